#include "methods/taqribi/KhulashohWafiyah.h"

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "methods/LangkahTaqribi.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

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

void KhulashohWafiyah::PokokFR(int32_t tahun, int16_t bulan) {
    KerangkaTaqribi::PokokFR(tahun, bulan);
    Tabel& syahru = k_.koneksi.TRBSyahru;
    if (!syahru.cari("Cari", bulan)) {
        SyahrGB = {};
        return;
    }
    const auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, std::string(kolom) + "GB"); };
    SyahrGB(1) = AlamahTarkh(JenisAlamah, {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1)
                     .value_or(Nilai());
    size_t i = 2;
    for (const char* unsur : {"ws", "ks", "mr"}) {
        const std::string u(unsur);
        SyahrGB(i++) =
            DlorbuSittin(sel(u + "Brj"), sel(u + "Jah"), sel(u + "Qoh"), "0", "0", 1, ModusBuruj).value_or(Nilai());
    }
}

void KhulashohWafiyah::HilalFR() {
    // The sunset of the civil day from whose noon the ijtima's hours run, in hours from noon.
    std::string gurub, terbit;
    const Nilai hariSiang = HariIjtimaTaqribi(k_, Ijtima(5));
    const Waktu w = k_.kesimpulan.WaktuGurub(Nilai(BurujMatahari(hariSiang).value_or("")), gurub, terbit);
    const Nilai terbenam = AlamahTarkh(JenisAlamah, MedanAlamah{0, 0, 0, 0, 0, w.jam(), w.menit(), 0, 0}, 1);
    Hilal(1) = CAlamahToUmum(terbenam);
    Hilal(2) = CAlamahToUmum(Ijtima(5));
    // An ijtima' after that sunset is measured to the next one, 24 hours on.
    sesudahGurub_ = NilaiDesimal(JenisBusur, Hilal(2)) > NilaiDesimal(JenisBusur, Hilal(1));
    const Nilai gurubDipakai =
        sesudahGurub_ ? TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Hilal(1), DlorbuSittin(0, 24, 0, 0, 0, 1, ModusBuruj))
                      : Hilal(1);
    Hilal(3) = KurangNilai(JenisBusur, TandaPlus, ModusBuruj, gurubDipakai, Hilal(2));
    TinggiHilal(Hilal.semua(), Nur.semua(), cahayaLintang());
}

Nilai KhulashohWafiyah::ijtimaSejakMaghrib() const {
    // Noon of a day is 18 hours after the sunset at 18.00 that opens it; the day itself changes
    // at the sunset of the place, the one the height is measured to.
    const Nilai satuHari("000 00 00 01 01 00 00 00 00 1");
    const Nilai v = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, Ijtima(5), Nilai("000 00 00 00 00 18 00 00 00 1"));
    const int jamSiang = AmbilTingkat(Ijtima(5), MedanJam);
    const bool hariBerikut = jamSiang >= 12 || sesudahGurub_;
    const bool hariBerikutJam18 = jamSiang >= 6;
    if (hariBerikut == hariBerikutJam18) return v;
    return hariBerikut ? TambahNilai(JenisAlamah, TandaPlus, ModusBuruj, v, satuHari)
                       : KurangNilai(JenisAlamah, TandaPlus, ModusBuruj, v, satuHari);
}

void KhulashohWafiyah::catatTambahan(std::vector<BarisTercatat>& baris) const {
    baris.push_back(catat("SyahrGB", SyahrGB));
}

std::optional<bool> KhulashohWafiyah::malamIjtima() const {
    // Between its sunset and midnight the ijtima' falls on the eve of the next day.
    if (AmbilTingkat(Ijtima(5), MedanJam) >= 12) return std::nullopt;
    return sesudahGurub_;
}

}  // namespace falak
