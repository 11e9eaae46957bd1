#include "eclipse/solar/KusufSullam.h"

#include "eclipse/BarisSullam.h"

namespace falak {

namespace {

const DataGerhana kKusufSullam = {"SN", 106, 52, 0, 3, 4, 4};

}  // namespace

KusufSullam::KusufSullam(Konteks k) : KerangkaKusuf(k, kKusufSullam) {}

void KusufSullam::PokokKusuf(int32_t tahun, int16_t bulan) {
    const TahunTerbagi bagi = BagiTahun(tahun);
    const std::array<Nilai, 5> mabda = {Nilai("000 00 00 00 07 14 04 00 00 1"), Nilai("09 16 33 00 00 1"),
                                        Nilai("10 26 13 00 00 1"), Nilai("06 01 10 00 00 1"),
                                        Nilai("02 23 14 00 00 1")};
    HitungBarisSullam(k_, bagi, bulan, mabda, barisTahun());
}

}  // namespace falak
