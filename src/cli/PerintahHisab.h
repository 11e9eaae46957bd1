// "falak hisab": one month by one treatise, as the worked sheet and its conclusion.
#pragma once

#include "cli/Perintah.h"

namespace falak::cli {

int perintahHisab(const Argumen& a, const Lingkungan& l);

}  // namespace falak::cli
