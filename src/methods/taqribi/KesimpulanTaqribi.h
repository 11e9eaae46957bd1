// The conclusion of a taqribi treatise: the thirteen lines that put its reckoned ijtima' and
// hilal into dates and words. Every taqribi writer fills the same lines in the same order;
// they differ only in the numbers they hand over, their heading and their markaz.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "conclusions/Kesimpulan.h"
#include "core/Nilai.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

// What a treatise hands its conclusion writer.
struct BahanKesimpulan {
    std::string judul;     // the heading: the treatise's name
    Nilai ijtima;          // alamah value of the ijtima' at the place: weekday and hours from sunset
    Nilai hariIjtima;      // date value of the day of the ijtima'
    Nilai awalBulan;       // date value of the first of the month
    Nilai tinggi;          // the hilal's height, worded with its sign
    Nilai matahari;        // the sun's place at the ijtima'
    Nilai mukts;           // the hilal's stay
    Nilai nur;             // the hilal's light
    bool gurubHariIjtima = false;  // sunset of the day of the ijtima', else of the first of the month
    // The ijtima' falls on the eve of the day named, after the sunset that opens it; unset: when
    // its clock reads 18 hours or later, the sunset of the books that fix it there.
    std::optional<bool> malam;
    TitikMarkaz markaz{};
    bool kata = true;  // word the lines; else the gist alone
};

// The civil date of the ijtima': the day of the chosen Hijri month that falls on the reckoned
// weekday (an empty value when none does).
Nilai HariIjtimaTaqribi(Konteks& k, const Nilai& ijtima);

// The date value of the day an alamah that carries its Masehi date stands for (the day that
// its weekday names, from the sunset before); an empty value for a time of the week alone.
Nilai TanggalAlamah(const Nilai& alamah);

// The first of the month: two days after the ijtima' when the hilal stands below 2 degrees,
// else one; the day, the pasaran and the weekday all move.
Nilai AwalBulanTaqribi(const Nilai& hariIjtima, double tinggi);
// The same as the month's first-day operation reckons it: the day of the ijtima' advanced by
// 25 hours, or 49 (a date value whose hour reads 01); none without a day of the ijtima'.
std::optional<Nilai> AwalBulanJam(const Nilai& hariIjtima, double tinggi);

// Writes the lines, the heading first (none when the run asks for no words), and the gist of
// the run.
void TulisKesimpulanTaqribi(Konteks& k, const BahanKesimpulan& bahan, std::vector<std::string>& baris,
                            Ringkasan& ringkasan);

}  // namespace falak
