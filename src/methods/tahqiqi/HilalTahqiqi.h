// The spherical trigonometry of the precise books' hilal, in degrees. The arcsine is the
// arctangent of x / sqrt(1 - x^2), as the books' calculators work it; an argument at or beyond
// one has no result (NaN), and the steps after it carry that on.
#pragma once

#include <cmath>
#include <optional>

#include "core/FungsHisab.h"

namespace falak::hilal {

constexpr double kRad = 0.017453292519943278;

inline double sn(double x) { return std::sin(x * kRad); }
inline double cs(double x) { return std::cos(x * kRad); }
inline double tn(double x) { return std::tan(x * kRad); }
inline double asn(double x) { return FungsiBusur(1, x).value_or(NAN); }
inline double acs(double x) { return FungsiBusur(2, x).value_or(NAN); }
inline double atn(double x) { return FungsiBusur(3, x).value_or(NAN); }

// The right ascension counted from the head of Capricorn, from the longitude and the arc
// |asin(cos longitude / cos declination)|.
inline double matholi(double bujur, double busur) {
    if (bujur < 90) return 180 - busur;
    if (bujur < 180) return 180 + busur;
    if (bujur < 270) return 360 - busur;
    return busur;
}

// The arc from b to a the short way round, in (-180, 180]. Right ascensions counted from the
// head of Capricorn start again there, and longitudes at the head of Aries; a moon just past
// either point is a few degrees ahead of the sun, not nearly a whole circle behind it, and the
// hand-worker adds the circle.
inline double selisihBusur(double a, double b) {
    const double d = std::remainder(a - b, 360.0);
    return d == -180 ? 180 : d;
}

}  // namespace falak::hilal
