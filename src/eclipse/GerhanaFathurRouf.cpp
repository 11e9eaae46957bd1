#include "eclipse/GerhanaFathurRouf.h"

#include "methods/taqribi/FathurRouf.h"

namespace falak {

namespace {

const DataGerhana kFathurRouf = {"FR", 110, 24, 3, 4, 5, 4};

PokokFathu pokok(Konteks k) { return PokokFathu(FathurRouf(k).data(), AlamahSyahrFR); }

}  // namespace

KhusufFathurRouf::KhusufFathurRouf(Konteks k) : KhusufPolaFathu(k, kFathurRouf, pokok(k)) {}

KusufFathurRouf::KusufFathurRouf(Konteks k) : KusufPolaFathu(k, kFathurRouf, pokok(k)) {}

}  // namespace falak
