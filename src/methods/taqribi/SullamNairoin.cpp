#include "methods/taqribi/SullamNairoin.h"

#include <array>
#include <string>

#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"

namespace falak {

namespace {

// The treatise's constants: alamah, Hishshoh, Khossyoh, Markaz and the auj.
const DataKitabFR kSullamNairoin = {
    "SN",
    5,
    {2, 0, 3, 4},
    {"000 00 00 00 07 14 04 00 00 1", "09 16 33 00 00 1", "10 26 13 00 00 1", "06 01 10 00 00 1",
     "02 23 14 00 00 1"},
    {"000 00 00 00 01 16 05 00 00 1", "02 20 30 00 00 1", "07 08 00 00 00 1", "08 12 40 00 00 1",
     "00 00 08 00 00 1"},
    {"000 00 00 00 01 16 05 00 00 0", "02 20 30 00 00 0", "07 08 00 00 00 0", "08 12 40 00 00 0",
     "00 00 08 00 00 0"},
    {10, 0, 0, 0, 0},
    106,
    52,
    {"Jakarta", 6, 15, 0, 106, 52, 1},
    4,
    7,
    true,
    false,
    {5, true},
};

Nilai busur(int64_t b, int64_t d, int64_t m) { return DlorbuSittin(b, d, m, 0, 0, 1, ModusBuruj); }

}  // namespace

SullamNairoin::SullamNairoin(Konteks k) : KerangkaTaqribi(k, kSullamNairoin) {}

void SullamNairoin::JumlahSN(int32_t tahun, int16_t bulan) {
    Bulan = bulan;
    bool maju = true;
    if (tahun >= 10) {
        Dawr = (tahun + 10) / 10;
        SisaTahun = static_cast<int16_t>((tahun + 10) % 10);
        Pengali = Dawr;
    } else if (tahun > 0) {
        Dawr = 1;
        SisaTahun = static_cast<int16_t>(tahun);
        Pengali = 1;
    } else {
        Dawr = tahun / 10;
        SisaTahun = static_cast<int16_t>(tahun - Dawr * 10 + 10);
        maju = false;
        Pengali = Dawr < 0 ? -Dawr : Dawr;
    }
    std::array<Nilai, 5> mabda, tambah;
    for (size_t i = 0; i < 5; ++i) {
        mabda[i] = Nilai(data().mabda[i]);
        tambah[i] = Nilai(maju ? data().tambah[i] : data().kurang[i]);
    }
    HitungMajmuah(Majmu.semua(), mabda, tambah, Pengali, 0, ModusBuruj);
    HitungMabsuthah(Mabsut.semua(), SisaTahun, false, false, true, true);

    if (bulan > 1) {
        Tabel& syahru = k_.koneksi.TRBSyahru;
        if (syahru.cari("Cari", bulan)) {
            auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, kolom); };
            isi(Syahr(1), AlamahTarkh(JenisAlamah,
                                      {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1));
            isi(Syahr(2), DlorbuSittin(sel("hsBrj"), sel("hsJah"), sel("hsQoh"), "0", "0", 1, ModusBuruj));
            isi(Syahr(3), DlorbuSittin(sel("ksBrj"), sel("ksJah"), sel("ksQoh"), "0", "0", 1, ModusBuruj));
            isi(Syahr(4), DlorbuSittin(sel("mrBrj"), sel("mrJah"), sel("mrQoh"), "0", "0", 1, ModusBuruj));
            Syahr(5) = busur(0, 0, 0);
        }
    } else {
        Syahr(1) = AlamahTarkh(JenisAlamah, MedanAlamah{}, 1);
        for (size_t i = 2; i <= 5; ++i) Syahr(i) = busur(0, 0, 0);
    }

    Jumlah(1) = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, Majmu(1), Mabsut(1), Syahr(1));
    for (size_t i = 2; i <= 5; ++i)
        Jumlah(i) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Majmu(i), Mabsut(i), Syahr(i));
}

void SullamNairoin::HitungBudTaqwim() {
    BudTaqwim(1) = Jumlah(4);
    BudTaqwim(2) = Jumlah(5);
    BudTaqwim(3) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, BudTaqwim(1), BudTaqwim(2));
    BudTaqwim(4) = Qomar(7);
    BudTaqwim(5) = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, BudTaqwim(3), BudTaqwim(4));
}

void SullamNairoin::tulisSelTambahan(ClsFlexGrid& g) { g.FlexTeks(k_.sesi.tempat.nama, barisBawah(29), 39); }

}  // namespace falak
