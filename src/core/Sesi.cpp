#include "core/Sesi.h"

namespace falak {

const std::array<const char*, 12> kBarisBulan = {
    "01.  Muharrom", "02.  Shofar",    "03.  R. Awal",  "04.  R. Tsani", "05.  J. Ula",       "06.  J. Tsaniyah",
    "07.  Rojab",    "08.  Sy'ban",    "09.  Romdlon",  "10.  Syawal",   "11.  Dzulqo'dah", "12.  Dzulhijjah"};

namespace {

const std::string kTanpaLabel;

}  // namespace

const std::string& Sesi::labelKe(size_t i) const { return i < label.size() ? label[i] : kTanpaLabel; }

}  // namespace falak
