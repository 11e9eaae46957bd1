// The lunar eclipse by Syamsu al-Hilal: the treatise's own month reckoning, its month row
// taken at the full moon in the middle of the month, gives the istiqbal in decimals; the
// stages of the eclipse follow in decimals on the treatise's own table, read by the nearest
// row, and the size comes from a scan down its latitudes. Its markaz is Jepara (110° 40').
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"
#include "methods/taqribi/SyamsulHilal.h"

namespace falak {

class KhusufSyamsu : public KerangkaKhusuf {
public:
    explicit KhusufSyamsu(Konteks k);

    // The treatise's rows up to the full moon, shown in the five cells of the skeleton.
    void PokokKhusuf(int32_t tahun, int16_t bulan) override;

protected:
    bool TahapKhusuf() override;

private:
    // The full moon at the place: the mean one less the correction, the time the moon takes
    // over its distance from the node, and the place's difference from the markaz.
    void istiqbal();
    SyamsulHilal sh_;
};

}  // namespace falak
