#include "core/Angka.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

namespace falak {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the number at the start of s (0 if none): [+-] digits [. digits] [eE [+-] digits].
// At least one digit must stand in the mantissa; an exponent without digits is not part of it.
size_t panjangAngka(std::string_view s) {
    size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t digits = 0;
    while (i < s.size() && isDigit(s[i])) { ++i; ++digits; }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && isDigit(s[i])) { ++i; ++digits; }
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        size_t expDigits = 0;
        while (j < s.size() && isDigit(s[j])) { ++j; ++expDigits; }
        if (expDigits > 0) i = j;
    }
    return i;
}

// The number that panjangAngka measured, correctly rounded as strtod rounds it; from_chars does
// not take a leading "+".
double bacaAngka(std::string_view s) {
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    double x = 0;
    if (std::from_chars(s.data(), s.data() + s.size(), x).ec == std::errc::result_out_of_range) {
        std::string buf(s);
        return std::strtod(buf.c_str(), nullptr);
    }
    return x;
}

// The significant digits and decimal exponent of x, correctly rounded to n digits
// (the C library rounds the exact binary value, ties to even).
struct Digit {
    bool negatif = false;
    std::string digit;  // n digits, the first non-zero unless x is 0
    int eksponen = 0;   // x = 0.d1d2d3... * 10^(eksponen+1)
};

Digit uraikan(double x, int n) {
    Digit d;
    // to_chars with a precision rounds as printf's %E does.
    char buf[64];
    const char* akhir = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, n - 1).ptr;
    const char* p = buf;
    if (*p == '-') { d.negatif = true; ++p; }
    for (; p != akhir && *p != 'e'; ++p)
        if (isDigit(*p)) d.digit.push_back(*p);
    if (p != akhir && *p == 'e') {
        ++p;
        if (*p == '+') ++p;
        std::from_chars(p, static_cast<const char*>(akhir), d.eksponen);
    }
    return d;
}

std::string cetak(double x, int n, int batasEksponen) {
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return x < 0 ? "-Inf" : "Inf";
    if (x == 0) return "0";
    Digit d = uraikan(x, n);
    while (d.digit.size() > 1 && d.digit.back() == '0') d.digit.pop_back();
    std::string out = d.negatif ? "-" : "";
    const int e = d.eksponen;
    if (e < -4 || e >= batasEksponen) {
        out += d.digit[0];
        if (d.digit.size() > 1) out += "." + d.digit.substr(1);
        char eks[16];
        std::snprintf(eks, sizeof eks, "E%c%02d", e < 0 ? '-' : '+', std::abs(e));
        return out + eks;
    }
    if (e < 0) {
        out += "0." + std::string(static_cast<size_t>(-e - 1), '0') + d.digit;
        return out;
    }
    const size_t whole = static_cast<size_t>(e) + 1;
    if (d.digit.size() <= whole) return out + d.digit + std::string(whole - d.digit.size(), '0');
    return out + d.digit.substr(0, whole) + "." + d.digit.substr(whole);
}

}  // namespace

double ValAngka(std::string_view teks) {
    // Most table cells and fields are a short run of digits: read without the copy. Up to
    // fifteen digits the whole number is exact either way; "-0" stays a negative zero.
    const bool minus = !teks.empty() && teks.front() == '-';
    const std::string_view digit = minus ? teks.substr(1) : teks;
    if (!digit.empty() && digit.size() <= 15 && std::ranges::all_of(digit, isDigit)) {
        int64_t v = 0;
        for (char c : digit) v = v * 10 + (c - '0');
        return minus ? -static_cast<double>(v) : static_cast<double>(v);
    }
    std::string bersih;
    bersih.reserve(teks.size());
    for (char c : teks)
        if (!isBlank(c)) bersih.push_back(c);
    const size_t n = panjangAngka(bersih);
    return n == 0 ? 0.0 : bacaAngka(std::string_view(bersih).substr(0, n));
}

bool AdalahAngka(std::string_view teks) {
    return !teks.empty() && panjangAngka(teks) == teks.size();
}

double BulatGenap(double x) {
    const double bawah = std::floor(x);
    const double sisa = x - bawah;
    if (sisa > 0.5) return bawah + 1;
    if (sisa < 0.5) return bawah;
    return std::fmod(bawah, 2.0) == 0 ? bawah : bawah + 1;
}

std::optional<int32_t> BulatGenap32(double x) {
    if (std::isnan(x)) return std::nullopt;
    const double r = BulatGenap(x);
    if (r < std::numeric_limits<int32_t>::min() || r > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    return static_cast<int32_t>(r);
}

std::string CetakAngka(double x) { return cetak(x, 15, 15); }

double AngkaTercetak(double x) {
    if (!std::isfinite(x) || x == 0) return 0.0;
    // The printing's digits are these fifteen, and reading either form of the same decimal
    // number rounds alike.
    char buf[64];
    const char* akhir = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, 14).ptr;
    return bacaAngka(std::string_view(buf, static_cast<size_t>(akhir - buf)));
}

std::string CetakAngka32(float x) { return cetak(static_cast<double>(x), 7, 7); }

std::string FormatTetap(double x, int desimal) {
    if (x == 0 || std::isnan(x) || std::isinf(x)) {
        return desimal > 0 ? "0." + std::string(static_cast<size_t>(desimal), '0') : "0";
    }
    // Work on the 15 significant digits that the printing gives, then round that decimal
    // text half away from zero.
    Digit d = uraikan(x, 15);
    // Digits of the whole number scaled by 10^desimal, as a decimal string with a point
    // position: value = 0.digits * 10^(eksponen+1).
    const int titik = d.eksponen + 1 + desimal;  // digits before the cut
    std::string tetap;
    bool naik = false;
    if (titik < 0) {
        tetap = "0";
    } else {
        for (int i = 0; i < titik; ++i)
            tetap.push_back(i < static_cast<int>(d.digit.size()) ? d.digit[static_cast<size_t>(i)] : '0');
        if (titik < static_cast<int>(d.digit.size())) naik = d.digit[static_cast<size_t>(titik)] >= '5';
        if (tetap.empty()) tetap = "0";
    }
    if (naik) {
        int i = static_cast<int>(tetap.size()) - 1;
        while (i >= 0 && tetap[static_cast<size_t>(i)] == '9') tetap[static_cast<size_t>(i--)] = '0';
        if (i < 0) tetap.insert(tetap.begin(), '1');
        else ++tetap[static_cast<size_t>(i)];
    }
    if (static_cast<int>(tetap.size()) <= desimal)
        tetap.insert(0, static_cast<size_t>(desimal) + 1 - tetap.size(), '0');
    std::string utuh = tetap.substr(0, tetap.size() - static_cast<size_t>(desimal));
    std::string pecahan = tetap.substr(tetap.size() - static_cast<size_t>(desimal));
    const bool nol = utuh.find_first_not_of('0') == std::string::npos &&
                     pecahan.find_first_not_of('0') == std::string::npos;
    std::string out = (d.negatif && !nol) ? "-" : "";
    out += utuh;
    if (desimal > 0) out += "." + pecahan;
    return out;
}

}  // namespace falak
