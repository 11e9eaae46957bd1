// "falak gerhana": the lunar or solar eclipses that a book finds over a run of years, one a
// line with the times of their phases; with one month, the worked sheet and its conclusion.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/Berkas.h"

namespace falak::cli {

extern const char* const kBantuanGerhana;

int perintahGerhana(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                    std::ostream& err);

}  // namespace falak::cli
