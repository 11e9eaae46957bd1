#include "core/Teks.h"

#include <cstdint>

namespace falak {

size_t SalahUtf8(std::string_view s) {
    const auto* p = reinterpret_cast<const unsigned char*>(s.data());
    const size_t n = s.size();
    size_t i = 0;
    while (i < n) {
        const unsigned char c = p[i];
        if (c < 0x80) {
            ++i;
            continue;
        }
        size_t lanjut;
        uint32_t kode;
        if (c >= 0xC2 && c <= 0xDF) { lanjut = 1; kode = c & 0x1F; }
        else if (c >= 0xE0 && c <= 0xEF) { lanjut = 2; kode = c & 0x0F; }
        else if (c >= 0xF0 && c <= 0xF4) { lanjut = 3; kode = c & 0x07; }
        else return i;
        for (size_t k = 1; k <= lanjut; ++k) {
            if (i + k >= n || (p[i + k] & 0xC0) != 0x80) return i;
            kode = (kode << 6) | (p[i + k] & 0x3F);
        }
        if ((lanjut == 2 && (kode < 0x800 || (kode >= 0xD800 && kode <= 0xDFFF))) ||
            (lanjut == 3 && (kode < 0x10000 || kode > 0x10FFFF)))
            return i;
        i += lanjut + 1;
    }
    return std::string_view::npos;
}

bool AdaKendali(std::string_view s) {
    for (const char c : s)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) return true;
    return false;
}

std::string Pendekkan(std::string_view s, size_t n) {
    if (s.size() <= n) return std::string(s);
    while (n > 0 && (static_cast<unsigned char>(s[n]) & 0xC0) == 0x80) --n;
    return std::string(s.substr(0, n)) + "...";
}

}  // namespace falak
