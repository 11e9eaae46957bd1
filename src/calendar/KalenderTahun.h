// The calendar of a year: twelve blocks of days, each day with its Masehi date, its Hijri date,
// its weekday and its Javanese pasaran, and the first days of the Hijri months marked. A
// Masehi year is laid out by its Masehi months, a Hijri year by its Hijri months.
//
// Where the first days come from is the caller's: the calendar's own reckoning, or a book's
// module. The same calendar is drawn as a sheet for the window, the printed page and the
// spreadsheet.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Kalender.h"
#include "core/Sheet.h"

namespace falak {

struct HariKalender {
    int64_t nomor = 0;      // day number
    TanggalSipil masehi{};
    int32_t tahunHijri = 0;
    int bulanHijri = 0;     // 1..12
    int tanggalHijri = 0;   // day of the Hijri month, 1 on its first day
    int pasaran = 0;        // 1 Legi .. 5 Kliwon
    int hariPekan = 0;      // 1 Ahad .. 7 Sabtu
    bool awalBulan() const { return tanggalHijri == 1; }
};

struct BulanKalender {
    std::string judul;       // "JANUARI 2026 M." or "Romadlon 1447 H."
    std::string keterangan;  // the months of the other reckoning that it spans
    std::vector<HariKalender> hari;
};

struct KalenderTahun {
    int32_t tahun = 0;
    bool hijriah = false;
    std::vector<BulanKalender> bulan;
};

// The day number of the first of the month that the ijtima' at the end of Hijri month
// (tahun, bulan) opens; month 0 is month 12 of the year before.
using SumberAwalBulan = std::function<std::optional<int64_t>(int32_t tahun, int bulan)>;

// The calendar of a Masehi year (hijriah false) or of a Hijri year. None when a first day
// that it needs cannot be had.
std::optional<KalenderTahun> SusunKalender(int32_t tahun, bool hijriah, const SumberAwalBulan& awalBulan);

// The names the calendar shows.
std::string NamaBulanKalender(int bulanHijri);  // 1..12: "Muharrom" ..
std::string NamaBulanMasehi(int bulan);         // 1..12: "JANUARI" ..
std::string NamaHariKalender(int hariPekan);    // 1..7: "Ahad" .. "Sabtu"
std::string NamaPasaranKalender(int pasaran);   // 1..5: "Legi" .. "Kliwon"

// The calendar as a sheet: the twelve blocks three abreast, each a title, the months of the
// other reckoning, the day names and the weeks; a day's cell reads "Masehi/Hijri pasaran" and
// the first of a Hijri month is boxed and names its month.
Sheet LembarKalender(const KalenderTahun& kalender);

}  // namespace falak
