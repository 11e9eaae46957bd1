// The eclipses by Tadzkirotu al-Ikhwan: the skeletons on its own rows of years (the base of its
// month reckoning, to the second), the hours per degree read with seconds (table 6), and its
// markaz at Semarang (110° 24'). The moon's correction is the skeleton's, five minutes of the
// two equations: the book's eclipse chapter does not take its month reckoning's factor.
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"
#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

class KhusufTadzkirotulIkhwan : public KhusufPolaFathu {
public:
    explicit KhusufTadzkirotulIkhwan(Konteks k);
};

class KusufTadzkirotulIkhwan : public KusufPolaFathu {
public:
    explicit KusufTadzkirotulIkhwan(Konteks k);
};

}  // namespace falak
