// Faidlu al-Karim: Ittifaq Dzatu al-Bain's reckoning with its own base (to the second), the
// hours per degree read with seconds (table 6), its markaz at Sampang (113° 15'), and two steps
// of its own: its sun's place takes the moon's correction off the row's third cell, which a
// run begins empty, where Ittifaq takes it off the sun's mean place; and its place correction
// keeps the count of days of its hours.
#pragma once

#include "methods/taqribi/IttifaqDzatilBain.h"

namespace falak {

class FaidlulKarim : public IttifaqDzatilBain {
public:
    explicit FaidlulKarim(Konteks k);

protected:
    void HitungBudTaqwim() override;
    bool bujurBertanggal() const override { return true; }
    std::string judulKesimpulan() const override;
};

}  // namespace falak
