// The solar eclipse by Syamsu al-Hilal: the treatise's own month reckoning gives the ijtima'
// at the place in decimals; the place enters by the point of the ecliptic on the meridian,
// found from the sun's place less the hour angle (without rising times), twice: at the
// ijtima' for the parallax along the ecliptic that moves the time, and at the time so moved
// for the parallax across it that moves the moon's latitude. The size comes from a scan down
// the latitudes of its own table. Its markaz is Jepara (110° 40').
#pragma once

#include "eclipse/solar/KerangkaKusuf.h"
#include "methods/taqribi/SyamsulHilal.h"

namespace falak {

class KusufSyamsu : public KerangkaKusuf {
public:
    explicit KusufSyamsu(Konteks k);

    void PokokKusuf(int32_t tahun, int16_t bulan) override;

protected:
    bool TahapKusuf() override;

private:
    // The point of the ecliptic on the meridian at these hours of the alamah clock (18 is
    // noon), KfSore set by the first call: before noon it lies west of the sun.
    float titikTengah(float jam, std::span<Nilai, 6> baris);
    // The distance of that point from the place's zenith; none outside the rows.
    std::optional<float> jarakZenit(float titik);
    SyamsulHilal sh_;
};

}  // namespace falak
