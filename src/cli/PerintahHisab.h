// "falak hisab": one month by one treatise, as the worked sheet and its conclusion.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace falak::cli {

// The help line of --pdf: what it does, or that this build cannot.
extern const char* const kBantuanPdf;

int perintahHisab(const std::vector<std::string>& argumen, std::ostream& out, std::ostream& err);

}  // namespace falak::cli
