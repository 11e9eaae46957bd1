#include "eclipse/GerhanaIttifaqDzatilBain.h"

#include "methods/taqribi/IttifaqDzatilBain.h"

namespace falak {

namespace {

const DataGerhana kIttifaqDzatilBain = {"IDB1", 112, 46, 3, 4, 5, 6};

PokokFathu pokok(Konteks k) {
    return PokokFathu(IttifaqDzatilBain(k).data(), AlamahSyahrMasehi, PokokFathu::Tanggal::Alamah);
}

}  // namespace

KhusufIttifaqDzatilBain::KhusufIttifaqDzatilBain(Konteks k) : KhusufPolaFathu(k, kIttifaqDzatilBain, pokok(k)) {}

KusufIttifaqDzatilBain::KusufIttifaqDzatilBain(Konteks k) : KusufPolaFathu(k, kIttifaqDzatilBain, pokok(k)) {}

}  // namespace falak
