// "falak kalender": the year calendar, twelve months of days with the Hijri day and the
// Javanese pasaran beside the Masehi one and the first days of the Hijri months marked, as a
// grid to read or as JSON.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "calendar/KalenderTahun.h"
#include "core/Berkas.h"

namespace falak::cli {

extern const char* const kBantuanKalender;

// Return 0, 1 when the calendar cannot be made, 2 for a command written wrongly.
int perintahKalender(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                     std::ostream& err);

// The calendar as the grid that the command prints.
std::string teksKalender(const KalenderTahun& k);

}  // namespace falak::cli
