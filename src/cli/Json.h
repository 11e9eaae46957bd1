// A small writer of JSON text for the command line's --json output.
#pragma once

#include <string>
#include <string_view>

namespace falak::cli {

// The text as a JSON string, quoted and escaped.
std::string jsonTeks(std::string_view s);

}  // namespace falak::cli
