// The sunset that many treatises share and that belongs to none of them.
#pragma once

#include "core/Tempat.h"
#include "core/Waktu.h"

namespace falak {

struct SaatMatahari {
    Waktu terbenam;  // sunset, hours counted from noon (6.00 at the equinox)
    Waktu terbit;    // sunrise, hours counted from midnight
};

// WaktuMaghrib: sunset and sunrise in local apparent time for the sun's longitude given as
// degrees and minutes, at the place's latitude, all in value arithmetic. The obliquity
// 23° 27' and the fixed 3 minutes 30 seconds (semidiameter and refraction) are the routine's
// own, whatever the treatise's obliquity is. Times carry no seconds: more than 30 seconds
// lift the minute, exactly 30 do not (the quotient 0.5 rounds to even).
SaatMatahari WaktuMaghrib(int darojat, int daqiqoh, const Tempat& tempat);

}  // namespace falak
