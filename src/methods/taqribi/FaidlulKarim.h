// Faidlu al-Karim: Ittifaq Dzatu al-Bain's reckoning with its own base (to the second), the
// hours per degree read with seconds (table 6), its markaz at Sampang (113° 15'), and two
// quirks kept as the book's program has them: the sun's place subtracts the moon's correction
// from what the row held at the end of the previous run (empty at the first), and the place
// correction keeps the count of days of its hours.
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
