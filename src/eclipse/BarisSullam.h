// The rows of years and month on which Sullam al-Nairoin works its eclipses: groups of ten
// years from a base, the single years, and the month, each with the alamah, the Hishshoh, the
// Khossyoh, the Markaz and the auj.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/Nilai.h"
#include "methods/Konteks.h"
#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

struct BarisTahun;

// Sullam's split of the year: groups of ten (one more than the whole decades from year 10 on),
// the group row adding from year 10, adding nothing for years 1 to 9, taking off for year 0
// and before.
TahunTerbagi BagiTahun(int32_t tahun);

// Majmu = base +/- the group row times the multiplier, Mabsut the single years, Syahr the
// month (zero for month 1, which reads no table; a missing row leaves the former cells) and
// Jumlah their sum; the split and the month are kept with them.
void HitungBarisSullam(Konteks& k, const TahunTerbagi& bagi, int16_t bulan, const std::array<Nilai, 5>& mabda,
                       const BarisTahun& baris);

}  // namespace falak
