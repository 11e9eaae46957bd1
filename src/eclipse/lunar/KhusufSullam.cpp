#include "eclipse/lunar/KhusufSullam.h"

#include "core/FungsHisab.h"
#include "eclipse/BarisSullam.h"

namespace falak {

namespace {

const DataGerhana kKhusufSullam = {"SN", 106, 52, 0, 3, 4, 4};

}  // namespace

KhusufSullam::KhusufSullam(Konteks k) : KerangkaKhusuf(k, kKhusufSullam) {}

void KhusufSullam::PokokKhusuf(int32_t tahun, int16_t bulan) {
    const TahunTerbagi bagi = BagiTahun(tahun);
    // The base drifts with the groups; the value builder carries minutes out of range.
    const std::array<Nilai, 5> mabda = {Nilai("000 00 00 00 06 19 42 00 00 1"),
                                        DlorbuSittin(3, 5, 42 - 2 * int64_t{bagi.dawr}, 0, 0, 1, ModusBuruj),
                                        DlorbuSittin(4, 16, 13 - int64_t{bagi.dawr}, 0, 0, 1, ModusBuruj),
                                        Nilai("05 16 37 00 00 1"), Nilai("02 23 14 00 00 1")};
    HitungBarisSullam(k_, bagi, bulan, mabda, barisTahun());
}

}  // namespace falak
