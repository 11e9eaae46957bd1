#include "core/Kalender.h"

namespace falak {

namespace {

// Offset between the Julian Day Number and the calendar's day number.
constexpr int64_t kSelisihJd = 1721423;
// The first Gregorian day, 15 October 1582, as a Julian Day Number.
constexpr int64_t kJdGregorius = 2299161;

int64_t bagiBawah(int64_t a, int64_t b) { return a / b - ((a % b != 0 && (a < 0) != (b < 0)) ? 1 : 0); }

int64_t jdn(int64_t y, int m, int64_t d, bool gregorius) {
    const int64_t a = bagiBawah(14 - m, 12);
    const int64_t yy = y + 4800 - a;
    const int64_t mm = m + 12 * a - 3;
    int64_t j = d + bagiBawah(153 * mm + 2, 5) + 365 * yy + bagiBawah(yy, 4);
    return gregorius ? j - bagiBawah(yy, 100) + bagiBawah(yy, 400) - 32045 : j - 32083;
}

}  // namespace

int64_t NomorHari(int64_t tahun, int bulan, int64_t hari) {
    const bool gregorius = tahun > 1582 || (tahun == 1582 && (bulan > 10 || (bulan == 10 && hari >= 15)));
    return jdn(tahun, bulan, hari, gregorius) - kSelisihJd;
}

TanggalSipil TanggalDariNomor(int64_t nomor) {
    const int64_t j = nomor + kSelisihJd;
    int64_t b, c;
    if (j >= kJdGregorius) {
        const int64_t a = j + 32044;
        b = bagiBawah(4 * a + 3, 146097);
        c = a - bagiBawah(146097 * b, 4);
    } else {
        b = 0;
        c = j + 32082;
    }
    const int64_t d = bagiBawah(4 * c + 3, 1461);
    const int64_t e = c - bagiBawah(1461 * d, 4);
    const int64_t m = bagiBawah(5 * e + 2, 153);
    const int hari = static_cast<int>(e - bagiBawah(153 * m + 2, 5) + 1);
    const int bulan = static_cast<int>(m + 3 - 12 * bagiBawah(m, 10));
    const int64_t tahun = 100 * b + d - 4800 + bagiBawah(m, 10);
    return {tahun, bulan, hari};
}

int HariPekan(int64_t nomor) {
    const int w = static_cast<int>(((nomor % 7) + 7) % 7) - 1;
    return w < 1 ? w + 7 : w;
}

int PasaranDariNomor(int64_t nomor) {
    const int p = static_cast<int>(((nomor % 5) + 5) % 5) - 1;
    return p < 1 ? p + 5 : p;
}

}  // namespace falak
