// "falak gerhana": the lunar or solar eclipses that a book finds over a run of years, one a
// line with the times of their phases; with one month, the worked sheet and its conclusion.
#pragma once

#include "cli/Perintah.h"

namespace falak::cli {

int perintahGerhana(const Argumen& a, const Lingkungan& l);

}  // namespace falak::cli
