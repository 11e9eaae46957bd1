// Sullam al-Nairoin: the ijtima' and the hilal at sunset for one Hijri month, as the treatise
// works it by hand from its tables of collected and expanded years and of the months, in
// value arithmetic, with its markaz at Jakarta (6° 15' S, 106° 52' E).
//
// It works the stages of the taqribi skeleton on rows of its own: groups of ten years from
// its epoch, and in the last cell the sun's apogee (the auj) where Fathu's books keep the
// sun's mean place, so that the sun's place is the Markaz plus the auj. The year rows hold
// the mean conjunction that ends month 1; the month row of month m adds m - 1 lunations, so
// month m gives the ijtima' at the end of month m and the hilal that opens month m + 1.
#pragma once

#include <cstdint>

#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

class SullamNairoin : public KerangkaTaqribi {
public:
    explicit SullamNairoin(Konteks k);

    void PokokFR(int32_t tahun, int16_t bulan) override { JumlahSN(tahun, bulan); }
    // The grouped years, the single years and the month: Majmu, Mabsut, Syahr and their sum
    // Jumlah. Dawr counts the groups of ten (one more than the whole decades from year 10 on),
    // Pengali the groups added or taken off.
    void JumlahSN(int32_t tahun, int16_t bulan);

protected:
    // The sun's place: the Markaz plus the auj, less the moon's correction.
    void HitungBudTaqwim() override;
    int32_t tahunMajmu() const override { return (Dawr - 1) * 10; }
    int bulanJudul() const override { return Bulan + 1; }
    // The place's name stands once more, beside the hilal's rows.
    void tulisSelTambahan(ClsFlexGrid& g) override;
};

}  // namespace falak
