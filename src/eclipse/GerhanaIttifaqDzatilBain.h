// The eclipses by Ittifaq Dzatu al-Bain (taqribi): the skeletons on its own rows of years, whose
// alamah carries the Masehi date of its base (Kamis Kliwon 15 July 622), and its markaz at
// Surabaya (112° 46').
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"
#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

class KhusufIttifaqDzatilBain : public KhusufPolaFathu {
public:
    explicit KhusufIttifaqDzatilBain(Konteks k);
};

class KusufIttifaqDzatilBain : public KusufPolaFathu {
public:
    explicit KusufIttifaqDzatilBain(Konteks k);
};

}  // namespace falak
