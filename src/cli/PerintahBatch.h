// "falak semua" (every treatise for one month) and "falak setahun" (the twelve months of a
// year by one treatise, or by every one): one line a run, in a table that lines up, or JSON.
#pragma once

#include "cli/Perintah.h"

namespace falak::cli {

int perintahSemua(const Argumen& a, const Lingkungan& l);
int perintahSetahun(const Argumen& a, const Lingkungan& l);

}  // namespace falak::cli
