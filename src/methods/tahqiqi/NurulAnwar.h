// Nuru al-Anwar: the tables and the stages of Badi'atu al-Mitsal, worked in degrees (0 to
// 360) for a calculator, with its own epoch. It differs in the ijtima', which takes the
// distance of the luminaries at the hourly motions of that sunset (the moon's by its anomaly,
// the evection's and the variation's shares, less the sun's), and in its hilal: the sun's and
// the moon's setting arcs with the depression of the horizon 1° 13', the obliquity 23.4444 and
// the moon's inclination 5°.
#pragma once

#include "methods/tahqiqi/KerangkaTahqiqi.h"

namespace falak {

class NurulAnwar : public KerangkaTahqiqi {
public:
    explicit NurulAnwar(Konteks k);

    void HitungHilal() override;
    double tinggiHilal() const override { return Hasil[22]; }
    double muktsHilal() const override { return Hasil[23]; }
    double nurHilal() const override { return Hasil[28]; }
    LembarRumus Rumus() override;

    // The worked look-ups of the hourly motions: codes 18, 19, 20.
    std::array<Baris<5>, 3> Sabaq;
    // Whether the moon's setting arc took the inverse ratio (its cosine ratio reached one).
    bool rasioTerbalik = false;

protected:
    Nilai sabaq() override;
};

}  // namespace falak
