#include "core/Sesi.h"

#include <utility>

namespace falak {

const std::array<const char*, 12> kBarisBulan = {
    "01.  Muharrom", "02.  Shofar",    "03.  R. Awal",  "04.  R. Tsani", "05.  J. Ula",       "06.  J. Tsaniyah",
    "07.  Rojab",    "08.  Sy'ban",    "09.  Romdlon",  "10.  Syawal",   "11.  Dzulqo'dah", "12.  Dzulhijjah"};

namespace {

constexpr std::pair<std::string_view, int> kKodeLembar[] = {
    {"IjSN_", 2},    {"HsSN_", 3},    {"KfSN_", 4},    {"TdlKfSN_", 4},     {"IjFR_", 6},    {"HsFR_", 7},
    {"KfFR_", 8},    {"TdlKfFR_", 8}, {"IjIDB1_", 11}, {"HsIDB1_", 12},    {"KfIDB1_", 13}, {"TdlKfIDB1_", 13},
    {"IjIDB2_", 15}, {"HsIDB2_", 16}, {"KfIDB2_", 17}, {"IjSH_", 19},       {"HsSH_", 20},   {"KfSH_", 21},
    {"IjTZ_", 23},   {"HsTZ_", 24},   {"KfTZ_", 25},   {"TdlKfTZ_", 25},    {"IjFK_", 27},   {"HsFK_", 28},
    {"KfFK_", 29},   {"TdlKfFK_", 29}, {"IjBM_", 31},  {"IjKW1_", 34},      {"IjKW2_", 36},  {"HsKW2_", 37},
    {"IjMA_", 39},   {"IjNA_", 41},   {"HsNA_", 42},   {"KfNA_", 43},       {"IjIM_", 45},   {"HsIM_", 46},
    {"IjER_", 48},   {"HsER_", 49},
};

const std::string kTanpaLabel;

}  // namespace

int KodeLembar(std::string_view kunci) {
    const size_t garis = kunci.find('_');
    if (garis == std::string_view::npos) return 0;
    const std::string_view awalan = kunci.substr(0, garis + 1);
    for (const auto& [a, kode] : kKodeLembar)
        if (a == awalan) return kode;
    return 0;
}

bool Sesi::CekSheet(int kode, bool dariTab) const {
    if (kode <= 0) return false;
    if (kode == kodeLembar) return true;
    return dariTab && kode == KodeLembar(kunciTab);
}

const std::string& Sesi::labelKe(size_t i) const { return i < label.size() ? label[i] : kTanpaLabel; }

}  // namespace falak
