// The conclusion of a taqribi treatise: the thirteen lines that put its reckoned ijtima' and
// hilal into dates and words. Every taqribi writer fills the same lines in the same order;
// they differ only in the numbers they hand over and in their markaz.
#pragma once

#include <string>
#include <vector>

#include "core/Nilai.h"
#include "methods/Konteks.h"
#include "methods/MetodeIjtima.h"

namespace falak {

// A place line's fields, as the writer prints them (flags: non-zero is north, east).
struct BarisMarkaz {
    std::string nama;
    int lintangDerajat = 0, lintangMenit = 0, tandaLintang = 0;
    int bujurDerajat = 0, bujurMenit = 0, tandaBujur = 1;
};

// What a treatise hands its conclusion writer.
struct BahanKesimpulan {
    Nilai ijtima;          // alamah value of the ijtima' at the place: weekday and hours from sunset
    double tinggi = 0;     // the hilal's height in degrees, for the first of the month
    Nilai tinggiNilai;     // the same as a value, worded with its sign
    Nilai matahari;        // the sun's place at the ijtima'
    Nilai mukts;           // the hilal's stay
    Nilai nur;             // the hilal's light
    bool gurubAwalBulan = false;  // sunset of the first of the month, else of the day of the ijtima'
    BarisMarkaz markaz;
};

// The first of the month: two days after the ijtima' when the hilal stands below 2 degrees,
// else one; the day, the pasaran and the weekday all move.
Nilai AwalBulanTaqribi(const Nilai& hariIjtima, double tinggi);

// Writes the lines, the treatise's name first, and the gist of the run.
void TulisKesimpulanTaqribi(Konteks& k, const BahanKesimpulan& bahan, std::vector<std::string>& baris,
                            Ringkasan& ringkasan);

}  // namespace falak
