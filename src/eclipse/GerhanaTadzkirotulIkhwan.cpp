#include "eclipse/GerhanaTadzkirotulIkhwan.h"

#include "methods/taqribi/TadzkirotulIkhwan.h"

namespace falak {

namespace {

const DataGerhana kTadzkirotulIkhwan = {"TZ", 110, 24, 3, 4, 5, 4};

PokokFathu pokok(Konteks k) { return PokokFathu(TadzkirotulIkhwan(k).data(), AlamahSyahrFR); }

}  // namespace

KhusufTadzkirotulIkhwan::KhusufTadzkirotulIkhwan(Konteks k) : KhusufPolaFathu(k, kTadzkirotulIkhwan, pokok(k)) {}

KusufTadzkirotulIkhwan::KusufTadzkirotulIkhwan(Konteks k) : KusufPolaFathu(k, kTadzkirotulIkhwan, pokok(k)) {}

}  // namespace falak
