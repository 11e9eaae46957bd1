// The eclipses by Faidlu al-Karim: the skeletons on its own rows of years (its alamah carries
// the Masehi date of its base), the hours per degree read with seconds (table 6), and its
// markaz at Sampang (113° 15'). Its eclipse base puts the sun's mean place a minute further
// on than its month reckoning's (22' against 21'): the two chapters print them so.
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"
#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

class KhusufFaidlulKarim : public KhusufPolaFathu {
public:
    explicit KhusufFaidlulKarim(Konteks k);
};

class KusufFaidlulKarim : public KusufPolaFathu {
public:
    explicit KusufFaidlulKarim(Konteks k);
};

}  // namespace falak
