// "falak kalender": the year calendar, twelve months of days with the Hijri day and the
// Javanese pasaran beside the Masehi one and the first days of the Hijri months marked, as a
// grid to read or as JSON.
#pragma once

#include <string>

#include "calendar/KalenderTahun.h"
#include "cli/Perintah.h"

namespace falak::cli {

int perintahKalender(const Argumen& a, const Lingkungan& l);

// The calendar as the grid that the command prints.
std::string teksKalender(const KalenderTahun& k);

}  // namespace falak::cli
