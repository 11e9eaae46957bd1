// "falak semua" (every treatise for one month) and "falak setahun" (the twelve months of a
// year by one treatise, or by every one): one line a run, in a table that lines up, or JSON.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/Berkas.h"

namespace falak::cli {

extern const char* const kBantuanBatch;

// Return 0, 1 when the run was refused, 2 for a command written wrongly.
int perintahSemua(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                  std::ostream& err);
int perintahSetahun(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                    std::ostream& err);

}  // namespace falak::cli
