#include "core/Arah.h"

#include <cstdint>

namespace falak {

namespace {

// The next code point of UTF-8 text, moving i past it; a byte that starts no valid sequence
// counts as itself.
char32_t bacaKode(std::string_view s, size_t& i) {
    const auto b = static_cast<unsigned char>(s[i++]);
    int sisa = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
    char32_t k = sisa == 3 ? b & 0x07u : sisa == 2 ? b & 0x0Fu : sisa == 1 ? b & 0x1Fu : b;
    for (; sisa > 0 && i < s.size() && (static_cast<unsigned char>(s[i]) & 0xC0) == 0x80; --sisa)
        k = (k << 6) | (static_cast<unsigned char>(s[i++]) & 0x3Fu);
    return sisa == 0 ? k : b;
}

// Hebrew, Arabic, Syriac, Thaana, N'Ko and their presentation forms and supplements.
bool hurufKanan(char32_t k) {
    return (k >= 0x0590 && k <= 0x08FF) || (k >= 0xFB1D && k <= 0xFDFF) || (k >= 0xFE70 && k <= 0xFEFF) ||
           (k >= 0x10800 && k <= 0x10FFF) || (k >= 0x1E800 && k <= 0x1EFFF);
}

// Latin letters and every other letter that is written from the left; digits, punctuation,
// signs and combining marks have no direction of their own.
bool hurufKiri(char32_t k) {
    if (k < 0x80) return (k >= 'A' && k <= 'Z') || (k >= 'a' && k <= 'z');
    if (k < 0xC0 || k == 0xD7 || k == 0xF7) return false;
    if (k >= 0x0300 && k <= 0x036F) return false;
    if (k >= 0x2000 && k <= 0x2BFF) return false;
    if (k >= 0x3000 && k <= 0x303F) return false;
    return !hurufKanan(k);
}

}  // namespace

std::string IsolasiNama(std::string_view nama, ArahBaris baris) {
    const auto lain = baris == ArahBaris::KiriKeKanan ? hurufKanan : hurufKiri;
    for (size_t i = 0; i < nama.size();)
        if (lain(bacaKode(nama, i))) return "\u2068" + std::string(nama) + "\u2069";
    return std::string(nama);
}

}  // namespace falak
