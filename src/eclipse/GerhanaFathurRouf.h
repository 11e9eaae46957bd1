// The eclipses by Fathu al-Ro'uf al-Mannan: the skeletons on its own rows of thirty-year groups,
// the same base as its month reckoning, and its markaz at Semarang (110° 24').
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"
#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

class KhusufFathurRouf : public KhusufPolaFathu {
public:
    explicit KhusufFathurRouf(Konteks k);
};

class KusufFathurRouf : public KusufPolaFathu {
public:
    explicit KusufFathurRouf(Konteks k);
};

}  // namespace falak
