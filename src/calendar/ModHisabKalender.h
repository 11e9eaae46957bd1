// ModHisabKalender: the first day of a Hijri month by the calendar's own short reckoning, for
// the year calendar. It does not run a book's module: it reckons a mean ijtima' in hours of
// the week, corrects it by three small tables and pins it to a date as the books do (two days
// after the ijtima' when the hilal stands below two degrees at sunset, else one).
//
// The three tables are tuning numbers fitted so that the calendar's first days agree with the
// full reckoning of the mean-motion books (tools/kalender writes them): the first is read by
// the moon's mean anomaly, the second by the sun's, the third by the sun's place less the two.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace falak {

class Tabel;

// The three correction tables: hours by Buruj 1..11 and degree 1..30 (Buruj 0 and 12 read 0),
// twice, and minutes by steps of five degrees, 72 of them.
struct TaadilKalender {
    std::array<std::array<double, 30>, 11> pertama{};
    std::array<std::array<double, 30>, 11> kedua{};
    std::array<double, 72> ketiga{};

    // Reads the three tables; an empty text, or what is wrong with them.
    std::string baca(const Tabel& t1, const Tabel& t2, const Tabel& t3);

    // A table of the Buruj form read at x degrees (0 to 360): Buruj = Floor(x / 30), the degree
    // the rest, rounded; degree 0 is degree 30 of the Buruj before.
    static double bacaBuruj(const std::array<std::array<double, 30>, 11>& tabel, double x);
    // The third table at x degrees: the step of five degrees, rounded, counted from 1.
    double bacaKetiga(double x) const;
    // The entry that a reading takes: 30 * (Buruj - 1) + degree - 1, or -1 where the table
    // reads 0; and 0..71 in the third table.
    static int selBuruj(double x);
    static int selKetiga(double x);
};

// Where and when the calendar's reckoning of a book stands: the longitude of its markaz and
// the hours that bring its week to the markaz's evening.
struct MarkazKalender {
    int kode;            // the sheet code of the book
    double bujur;        // degrees, east positive
    double jamTambahan;  // hours
};

// The codes of the calendar's list of books, in the order of its rows.
extern const std::array<int, 14> kKodeKalender;
// The markaz of a mean-motion book's code; none for the codes of the precise books.
const MarkazKalender* CariMarkazKalender(int kode);

// The steps of the reckoning for the ijtima' at the end of Hijri month (tahun, bulan).
struct IjtimaKalender {
    int32_t tahun = 0;  // the month brought to 1..12
    int bulan = 0;
    double jam = 0;     // the ijtima' in hours from the beginning of the week, 0 to 168
    double tinggi = 0;  // the hilal's height at sunset, degrees
    int hari = 0;       // weekday index of the ijtima', 0 Sabtu .. 6 Jum'at
};
IjtimaKalender HisabIjtimaKalender(const TaadilKalender& taadil, const MarkazKalender& markaz, double bujurTempat,
                                   int32_t tahun, int bulan);

// The day number of the first of the month that the ijtima' at the end of month (tahun,
// bulan) opens; a month above 12 runs into the next year, one below 1 into the year before.
// None when the date cannot be reckoned (a year beyond the calendar's range).
std::optional<int64_t> AwalBulanKalender(const TaadilKalender& taadil, const MarkazKalender& markaz,
                                         double bujurTempat, int32_t tahun, int bulan);

// The floored remainder: never negative for a positive divisor.
double SisaBawah(double x, double pembagi);

}  // namespace falak
