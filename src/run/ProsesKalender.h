// The year calendar of a session (ProsesKal12): the first days of the Hijri months by the
// calendar's own short reckoning for a mean-motion book, and by the book's own module for a
// precise book whose module is registered; a precise book without one is not available yet.
#pragma once

#include <optional>
#include <string>

#include "calendar/KalenderTahun.h"
#include "calendar/ModHisabKalender.h"
#include "run/Workspace.h"

namespace falak {

struct HasilKalender {
    std::optional<KalenderTahun> kalender;
    const EntriModul* kitab = nullptr;
    bool dariModul = false;  // the first days are the book's own
    std::optional<Workspace::Pesan> pesan;
    bool masukanSalah = false;  // refused for what the user wrote, not for what is missing
};

// The calendar of the year in the text (a Masehi year, or a Hijri year with hijriah) by the
// book of this code, at the named place (the fixed place when it is not in the register).
// A year that is not a number is refused with the program's message.
HasilKalender ProsesKal12(Workspace& ws, const std::string& kodeKitab, const std::string& tahunTeks, bool hijriah,
                          const std::string& namaTempat);

// The calendar as a work sheet for the spreadsheet and the printed page: its caption names the
// year and the book ("Kalender 2026 M. SN"), its key is not a module's, so no book's layout
// is laid over it.
LembarKerja LembarKerjaKalender(const HasilKalender& h);

// The place's longitude in degrees, east positive, as the calendar reads it.
double BujurKalender(const Tempat& tempat);

// The calendar's correction tables from the session's tables; an empty text, or what is wrong.
std::string BacaTaadilKalender(ClsConnection& koneksi, TaadilKalender& taadil);

}  // namespace falak
