#include "eclipse/GerhanaFaidlulKarim.h"

#include "methods/taqribi/FaidlulKarim.h"

namespace falak {

namespace {

const DataGerhana kFaidlulKarim = {"FK", 113, 15, 3, 4, 5, 6};

// The month reckoning's constants with the eclipse chapter's sun's mean place.
PokokFathu pokok(Konteks k) {
    DataKitabFR kitab = FaidlulKarim(k).data();
    kitab.mabda[2] = "03 27 22 24 00 1";
    return PokokFathu(kitab, AlamahSyahrMasehi, PokokFathu::Tanggal::Alamah);
}

}  // namespace

KhusufFaidlulKarim::KhusufFaidlulKarim(Konteks k) : KhusufPolaFathu(k, kFaidlulKarim, pokok(k)) {}

KusufFaidlulKarim::KusufFaidlulKarim(Konteks k) : KusufPolaFathu(k, kFaidlulKarim, pokok(k)) {}

}  // namespace falak
