// The conclusion of a precise book: the thirteen lines of a month, worded from the decimals
// that the book reckons at the place itself: the ijtima' in local apparent time and in the
// zone's clock, the azimuths of the sun and the hilal, the lie of the crescent, its height,
// stay and light, and the sunset.
#pragma once

#include <string>
#include <vector>

#include "core/Nilai.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

struct BahanTahqiqi {
    std::string judul;        // line 0
    Nilai hariIjtima;         // date value of the local day of the ijtima'
    double jamIjtima = 0;     // hours of the zone's clock on that day
    double jamIjtimaWis = 0;  // the same in local apparent time
    double ghurub = 0;        // sunset, hours of the zone's clock
    double ghurubWis = 0;     // the same in local apparent time
    double tinggi = 0;        // the hilal's height, degrees
    double mukts = 0;         // its stay, hours
    double nur = 0;           // its light, fingers
    double azimutSyams = 0;   // azimuths from the west point, north plus
    double azimutHilal = 0;
};

// The first of the month: one day after the day of the ijtima' when it falls before sunset
// and the hilal stands at 2 degrees or more, else two.
Nilai AwalBulanTahqiqi(const BahanTahqiqi& b);

// Writes the lines, the heading first, and the gist of the run.
void TulisKesimpulanTahqiqi(Konteks& k, const BahanTahqiqi& b, std::vector<std::string>& baris, Ringkasan& ringkasan);

}  // namespace falak
