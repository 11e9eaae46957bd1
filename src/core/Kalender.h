// Day numbers of the civil calendar, as the conclusions' calendar counts them: Julian up to
// 4 October 1582, Gregorian from 15 October 1582 on. The number is the one whose remainders
// give the weekday and the Javanese pasaran (day 738957 is Ahad Legi, 10 March 2024).
#pragma once

#include <cstdint>

namespace falak {

struct TanggalSipil {
    int64_t tahun;
    int bulan;
    int hari;
};

// The day number of a civil date (astronomical years: year 0 is 1 BC). A day beyond its
// month runs on into the next.
int64_t NomorHari(int64_t tahun, int bulan, int64_t hari);
// The civil date of a day number.
TanggalSipil TanggalDariNomor(int64_t nomor);
// Weekday index 1 Ahad .. 7 Sabtu, and pasaran index 1 Legi .. 5 Kliwon.
int HariPekan(int64_t nomor);
int PasaranDariNomor(int64_t nomor);

}  // namespace falak
