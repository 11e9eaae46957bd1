#include "methods/taqribi/KhulashohWafiyah.h"

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "methods/LangkahTaqribi.h"

namespace falak {

namespace {

const DataKitabFR kKhulashohWafiyah = {
    "KW1",
    4,
    {0, 2, 3, 4},
    {"000 00 00 00 02 12 08 00 00 1", "07 14 45 00 00 1", "08 12 47 00 00 1", "04 21 32 00 00 1", nullptr},
    {"000 00 00 00 01 16 05 00 00 1", "08 12 48 00 00 1", "07 07 59 00 00 1", "08 12 40 00 00 1", nullptr},
    {"000 00 00 00 01 16 05 00 00 0", "08 12 48 00 00 0", "07 07 59 00 00 0", "08 12 40 00 00 0", nullptr},
    {10, 9, 10, 0, 0},
    39,
    57,
    {"Makkah al-Mukarromah", 21, 25, 1, 39, 57, 1},
    4,
    7,
    false,
    true,
    {3, false},
};

}  // namespace

KhulashohWafiyah::KhulashohWafiyah(Konteks k) : KerangkaTaqribi(k, kKhulashohWafiyah) {}

void KhulashohWafiyah::HilalFR() {
    // The sunset of the day of the ijtima' at the place, in hours and minutes.
    std::string gurub, terbit;
    const Waktu w = k_.kesimpulan.WaktuGurub(Nilai(BurujMatahari(hariIjtima()).value_or("")), gurub, terbit);
    const Nilai terbenam = AlamahTarkh(JenisAlamah, MedanAlamah{0, 0, 0, 0, 0, w.jam(), w.menit(), 0, 0}, 1);
    Hilal(1) = CAlamahToUmum(terbenam);
    Hilal(2) = CAlamahToUmum(Ijtima(5));
    // An ijtima' after that sunset is measured to the next one, 24 hours on.
    const bool sesudahGurub = NilaiDesimal(JenisBusur, Hilal(2)) > NilaiDesimal(JenisBusur, Hilal(1));
    const Nilai gurubDipakai = sesudahGurub ? TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Hilal(1),
                                                          DlorbuSittin(0, 24, 0, 0, 0, 1, ModusBuruj))
                                            : Hilal(1);
    Hilal(3) = KurangNilai(JenisBusur, TandaPlus, ModusBuruj, gurubDipakai, Hilal(2));
    TinggiHilal(Hilal.semua(), Nur.semua(), cahayaLintang());
}

Nilai KhulashohWafiyah::ijtimaSejakMaghrib() const {
    return TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, Ijtima(5), Nilai("000 00 00 00 00 18 00 00 00 1"));
}

}  // namespace falak
