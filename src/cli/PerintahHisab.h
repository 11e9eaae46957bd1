// "falak hisab": one month by one treatise, as the worked sheet and its conclusion.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace falak::cli {

int perintahHisab(const std::vector<std::string>& argumen, std::ostream& out, std::ostream& err);

}  // namespace falak::cli
