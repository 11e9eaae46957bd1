// The worked sheet as a text grid for the terminal, laid out as the sheet is: its highest
// column at the right, so that it reads from right to left as the book does.
#pragma once

#include <string>

#include "core/Sheet.h"

namespace falak::cli {

// Width of a UTF-8 text in terminal cells: Arabic vowel marks and other combining marks
// take none.
size_t lebarTampil(std::string_view s);

// The grid, one line per row that holds anything; empty columns are left out. A cell merged
// over the whole width (a heading) stands on its own line, centred.
std::string tampilLembar(const Sheet& lembar);

}  // namespace falak::cli
