// Badi'atu al-Mitsal: the ijtima' and the hilal at sunset for one Hijri month by the tables
// of mean motions and equations of the precise school, in buruj arithmetic, from the tables'
// place at 112° 13' E. Its ijtima' takes the distance of the luminaries at sunset at the mean
// hourly gain of the moon, 0° 30' 28"; its hilal is worked in 32 steps of spherical
// trigonometry at the obliquity 23.45 and the moon's inclination 5° 2'.
#pragma once

#include "methods/tahqiqi/KerangkaTahqiqi.h"

namespace falak {

class BadiatulMitsal : public KerangkaTahqiqi {
public:
    explicit BadiatulMitsal(Konteks k);

    void HitungHilal() override;
    double tinggiHilal() const override { return Hasil[24]; }
    double muktsHilal() const override { return Hasil[22]; }
    double nurHilal() const override { return Hasil[31]; }
    LembarRumus Rumus() override;

protected:
    Nilai sabaq() override;
};

}  // namespace falak
