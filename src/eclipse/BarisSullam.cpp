#include "eclipse/BarisSullam.h"

#include <cstdlib>

#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "eclipse/LangkahGerhana.h"

namespace falak {

namespace {

// A group of ten years, adding and taking off: alamah, Hishshoh, Khossyoh, Markaz, auj.
constexpr std::array<const char*, 5> kTambah = {"000 00 00 00 01 16 05 00 00 1", "02 20 30 00 00 1",
                                                "07 08 00 00 00 1", "08 12 40 00 00 1", "00 00 08 00 00 1"};
constexpr std::array<const char*, 5> kKurang = {"000 00 00 00 01 16 05 00 00 0", "02 20 30 00 00 0",
                                                "07 08 00 00 00 0", "08 12 40 00 00 0", "00 00 08 00 00 0"};

Nilai nol() { return DlorbuSittin(0, 0, 0, 0, 0, 1, ModusBuruj); }

}  // namespace

TahunTerbagi BagiTahun(int32_t tahun) {
    using enum TahunTerbagi::Langkah;
    if (tahun >= 10) {
        const int32_t dawr = (tahun + 10) / 10;
        return {dawr, dawr, static_cast<int16_t>((tahun + 10) % 10), Tambah};
    }
    if (tahun > 0) return {0, 1, static_cast<int16_t>(tahun), Nol};
    const int32_t dawr = tahun / 10;
    return {dawr, std::abs(dawr), static_cast<int16_t>(tahun - dawr * 10 + 10), Kurang};
}

void HitungBarisSullam(Konteks& k, const TahunTerbagi& bagi, int16_t bulan, const std::array<Nilai, 5>& mabda,
                       const BarisTahun& baris) {
    using enum TahunTerbagi::Langkah;
    baris.catat(bulan, bagi);
    const auto [majmu, mabsut, syahr, jumlah] = baris.pokok();
    std::array<Nilai, 5> langkah;
    for (size_t i = 0; i < 5; ++i) {
        switch (bagi.langkah) {
            case Tambah: langkah[i] = Nilai(kTambah[i]); break;
            case Kurang: langkah[i] = Nilai(kKurang[i]); break;
            case Nol: langkah[i] = i == 0 ? Nilai("000 00 00 00 00 00 00 00 00 1") : nol();
        }
    }
    HitungMajmuah(majmu, mabda, langkah, bagi.pengali, 0, ModusBuruj);
    HitungMabsuthah(mabsut, bagi.sisa, false, false, true, true);

    if (bulan > 1) {
        Tabel& syahru = k.koneksi.TRBSyahru;
        if (syahru.cari("Cari", bulan)) {
            auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, kolom); };
            isi(syahr[0],
                AlamahTarkh(JenisAlamah, {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1));
            isi(syahr[1], DlorbuSittin(sel("hsBrj"), sel("hsJah"), sel("hsQoh"), "0", "0", 1, ModusBuruj));
            isi(syahr[2], DlorbuSittin(sel("ksBrj"), sel("ksJah"), sel("ksQoh"), "0", "0", 1, ModusBuruj));
            isi(syahr[3], DlorbuSittin(sel("mrBrj"), sel("mrJah"), sel("mrQoh"), "0", "0", 1, ModusBuruj));
            syahr[4] = nol();
        }
    } else {
        syahr[0] = AlamahTarkh(JenisAlamah, MedanAlamah{}, 1);
        for (size_t i = 1; i < 5; ++i) syahr[i] = nol();
    }

    jumlah[0] = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, majmu[0], mabsut[0], syahr[0]);
    for (size_t i = 1; i < 5; ++i)
        jumlah[i] = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, majmu[i], mabsut[i], syahr[i]);
}

}  // namespace falak
