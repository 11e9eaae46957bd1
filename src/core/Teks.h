// Small facts about UTF-8 text that the table reader, the places register and the command
// line share.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace falak {

// Position of the first byte that breaks UTF-8 (overlong forms, surrogates and code points
// past U+10FFFF included), or npos.
size_t SalahUtf8(std::string_view s);

// True when the text holds a control character (a line break, a tab, DEL ...).
bool AdaKendali(std::string_view s);

// The text cut to at most n bytes, at the start of a character, with "..." when it was cut;
// for quoting a long input in a message.
std::string Pendekkan(std::string_view s, size_t n);

}  // namespace falak
