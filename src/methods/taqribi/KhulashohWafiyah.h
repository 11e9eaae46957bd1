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

    void HilalFR() override;
    Nilai ijtimaSejakMaghrib() const override;

protected:
    std::optional<bool> malamIjtima() const override;

private:
    bool sesudahGurub_ = false;  // the ijtima' falls after the sunset of the day from whose noon it counts
};

}  // namespace falak
