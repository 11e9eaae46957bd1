// Khulashotu al-Wafiyah, taqribi form: the skeleton of Fathu al-Ro'uf al-Mannan on rows of
// four cells (alamah, Wasath, Khossyoh, Markaz: no Hishshoh, so no latitude of the moon),
// years split by ten, markaz at Makkah al-Mukarromah (39° 57'). It finds the sunset by the
// shared sunset reckoning for the place instead of a fixed 24 hours, so its alamah is read on
// the same clock as that sunset: its hours run from noon, as the zij's day does, where the
// other books count from sunset. Its day changes at that sunset too, so that the day it names
// and the height agree.
#pragma once

#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

class KhulashohWafiyah : public KerangkaTaqribi {
public:
    explicit KhulashohWafiyah(Konteks k);

    // The rows of the years and the month, and beside them the month row of the full moon.
    void PokokFR(int32_t tahun, int16_t bulan) override;
    void HilalFR() override;
    Nilai ijtimaSejakMaghrib() const override;

    // The month in the eclipse form: the motion to the full moon in the middle of the month
    // (the GB columns of TRBSyahru), in the four cells of the other rows: alamah, Wasath,
    // Khossyoh, Markaz. Zero for a month the table lacks.
    Baris<4> SyahrGB;

protected:
    std::optional<bool> malamIjtima() const override;
    void catatTambahan(std::vector<BarisTercatat>& baris) const override;

private:
    bool sesudahGurub_ = false;  // the ijtima' falls after the sunset of the day from whose noon it counts
};

}  // namespace falak
