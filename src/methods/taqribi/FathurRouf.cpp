#include "methods/taqribi/FathurRouf.h"

namespace falak {

namespace {

const DataKitabFR kFathurRouf = {
    "FR",
    5,
    {2, 3, 4, 5},
    {"000 00 00 00 03 10 58 00 00 1", "08 28 18 00 00 1", "07 14 33 00 00 1", "08 12 13 00 00 1",
     "04 21 19 00 00 1"},
    {"000 00 00 00 05 00 15 00 00 1", "08 01 24 00 00 1", "01 08 24 00 00 1", "09 23 57 00 00 1",
     "01 08 00 00 00 1"},
    {"000 00 00 00 05 00 15 00 00 0", "08 01 24 00 00 0", "01 08 24 00 00 0", "09 23 57 00 00 0",
     "01 08 00 00 00 0"},
    {30, 20, 10, 0, 20},
    110,
    24,
    {"Semarang", 6, 56, 0, 110, 24, 1},
    4,
    7,
    false,
    true,
    {3, false},
};

}  // namespace

FathurRouf::FathurRouf(Konteks k) : KerangkaTaqribi(k, kFathurRouf) {}

}  // namespace falak
