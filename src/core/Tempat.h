// The place record of a run: the markaz or balad for which a treatise reckons.
#pragma once

#include <cstdint>
#include <string>

namespace falak {

struct Tempat {
    std::string nama;            // BaladIN, trimmed
    std::string namaTampil;      // BaladAR, trimmed: the display name
    std::string tandaLintang;    // "0" south (LS), "1" north
    int16_t lintangDerajat = 0;
    int16_t lintangMenit = 0;
    std::string tandaBujur;      // "1" east (BT), "0" west
    int16_t bujurDerajat = 0;
    int16_t bujurMenit = 0;
    int16_t zona = 0;            // 7 WIB, 8 WITA, 9 WIT; anything else is local time
    double tinggi = 0;           // metres

    // The record a run falls back on when the chosen place is not in the register.
    static Tempat cadangan() {
        return {"Pasuruan", "Pasuruan", "0", 7, 39, "1", 112, 56, 7, 0};
    }
};

}  // namespace falak
