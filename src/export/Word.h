// The formula sheet of a precise book's run as an OpenDocument text (.odt), which the word
// processors open: its title and the run's caption, then each step with its number and name,
// its formula in symbols and the run's numbers, one line a variable.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace falak {

struct LembarRumus;

// Writes the document whole or not at all (as the workbook is). Without a running Qt
// application one is started on the offscreen platform for the while. Empty text, or what
// went wrong.
std::string TulisRumusOdt(const LembarRumus& rumus, std::string_view keterangan, const std::filesystem::path& berkas);

}  // namespace falak
