#include "eclipse/lunar/KhusufSullam.h"

#include <array>
#include <cstdlib>

#include "core/FungsHisab.h"
#include "core/Koneksi.h"

namespace falak {

namespace {

const DataKhusuf kKhusufSullam = {"SN", 106, 52};

// A group of ten years, adding and taking off: alamah, Hishshoh, Khossyoh, Markaz, auj.
constexpr std::array<const char*, 5> kTambah = {"000 00 00 00 01 16 05 00 00 1", "02 20 30 00 00 1",
                                                "07 08 00 00 00 1", "08 12 40 00 00 1", "00 00 08 00 00 1"};
constexpr std::array<const char*, 5> kKurang = {"000 00 00 00 01 16 05 00 00 0", "02 20 30 00 00 0",
                                                "07 08 00 00 00 0", "08 12 40 00 00 0", "00 00 08 00 00 0"};

}  // namespace

KhusufSullam::KhusufSullam(Konteks k) : KerangkaKhusuf(k, kKhusufSullam) {}

void KhusufSullam::PokokKhusuf(int32_t tahun, int16_t bulan) {
    HsBulan = bulan;
    enum class Langkah { Tambah, Nol, Kurang } langkah;
    int32_t pengali;
    if (tahun >= 10) {
        HsDawr = (tahun + 10) / 10;
        pengali = HsDawr;
        HsSisaTahun = static_cast<int16_t>((tahun + 10) % 10);
        langkah = Langkah::Tambah;
    } else if (tahun > 0) {
        HsDawr = 0;
        pengali = 1;
        HsSisaTahun = static_cast<int16_t>(tahun);
        langkah = Langkah::Nol;
    } else {
        HsDawr = tahun / 10;
        HsSisaTahun = static_cast<int16_t>(tahun - HsDawr * 10 + 10);
        pengali = std::abs(HsDawr);
        langkah = Langkah::Kurang;
    }

    // The base drifts with the groups; the value builder carries minutes out of range.
    std::array<Nilai, 5> mabda = {Nilai("000 00 00 00 06 19 42 00 00 1"),
                                  DlorbuSittin(3, 5, 42 - 2 * int64_t{HsDawr}, 0, 0, 1, ModusBuruj),
                                  DlorbuSittin(4, 16, 13 - int64_t{HsDawr}, 0, 0, 1, ModusBuruj),
                                  Nilai("05 16 37 00 00 1"), Nilai("02 23 14 00 00 1")};
    std::array<Nilai, 5> langkahan;
    for (size_t i = 0; i < 5; ++i) {
        switch (langkah) {
            case Langkah::Tambah: langkahan[i] = Nilai(kTambah[i]); break;
            case Langkah::Kurang: langkahan[i] = Nilai(kKurang[i]); break;
            case Langkah::Nol:
                langkahan[i] = i == 0 ? Nilai("000 00 00 00 00 00 00 00 00 1") : Nilai("00 00 00 00 00 1");
        }
    }
    HitungMajmuah(HsMajmu.semua(), mabda, langkahan, pengali, 0, ModusBuruj);
    HitungMabsuthah(HsMabsut.semua(), HsSisaTahun, false, false, true, true);

    const auto nol = [] { return DlorbuSittin(0, 0, 0, 0, 0, 1, ModusBuruj); };
    if (bulan > 1) {
        Tabel& syahru = k_.koneksi.TRBSyahru;
        if (syahru.cari("Cari", bulan)) {
            auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, kolom); };
            isi(HsSyahr(1),
                AlamahTarkh(JenisAlamah, {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1));
            isi(HsSyahr(2), DlorbuSittin(sel("hsBrj"), sel("hsJah"), sel("hsQoh"), "0", "0", 1, ModusBuruj));
            isi(HsSyahr(3), DlorbuSittin(sel("ksBrj"), sel("ksJah"), sel("ksQoh"), "0", "0", 1, ModusBuruj));
            isi(HsSyahr(4), DlorbuSittin(sel("mrBrj"), sel("mrJah"), sel("mrQoh"), "0", "0", 1, ModusBuruj));
            HsSyahr(5) = nol();
        }
    } else {
        HsSyahr(1) = AlamahTarkh(JenisAlamah, MedanAlamah{}, 1);
        for (size_t i = 2; i <= 5; ++i) HsSyahr(i) = nol();
    }

    HsJumlah(1) = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, HsMajmu(1), HsMabsut(1), HsSyahr(1));
    for (size_t i = 2; i <= 5; ++i)
        HsJumlah(i) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, HsMajmu(i), HsMabsut(i), HsSyahr(i));
}

}  // namespace falak
