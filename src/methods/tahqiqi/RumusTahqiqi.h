// The formula sheet of the books of mean motions and equations. Its first array is the hilal
// as the worked table shows it, numbered from 1 (element k is the hilal's [k - 1]); its second
// holds the book's constants and the steps to the true sun and moon:
//
//   x0 the obliquity, x1 the moon's greatest latitude, x2 the depression of the horizon (none
//   in a book that sets at the horizon itself), x3 the mean sun, x4 its equation, x5 the mean
//   moon, x6 to x10 the moon's five corrections in the order they are applied, x11 the node,
//   x12 its correction, x13 the moon before its reduction to the ecliptic.
#pragma once

#include <optional>

#include "rumus/Rumus.h"

namespace falak {

class KerangkaTahqiqi;

struct TetapanRumus {
    double mail;                       // the obliquity, degrees
    double mailQomar;                  // the moon's greatest latitude, degrees
    std::optional<double> inkhifadl;   // the depression of the horizon at sunset, degrees
};

// A value in degrees, to the nearest third.
Nilai NilaiRumus(double derajat);

// The sheet of the run that k has just reckoned; empty when the book has no member.
LembarRumus RumusTahqiqi(const KerangkaTahqiqi& k, int kodeLembar, Tabel& tqqRumuz, const TetapanRumus& tetap);

}  // namespace falak
