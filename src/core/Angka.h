// Reading and printing plain numbers the way the reckoning does it.
//
// The books' arithmetic goes through text at fixed points (a product is printed and read
// back, a height is rounded through "0.000"), so the digits that come out depend on exactly
// how a number is read and printed. These routines are the one place where that is decided.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace falak {

// The leading number of a text, after every blank (space, tab, CR, LF) has been taken out:
// sign, digits, fraction, exponent. A text that does not start with a number reads 0.
// " 1 2.5x" reads 12.5.
double ValAngka(std::string_view teks);

// True when the whole text is one number (sign, digits, fraction, exponent) and nothing else.
bool AdalahAngka(std::string_view teks);

// Conversion to a 32-bit integer, rounding half to even. No result outside the 32-bit range
// (or for a NaN), where the reckoning would meet an overflow.
std::optional<int32_t> BulatGenap32(double x);

// Round half to even to a whole number, kept in a double.
double BulatGenap(double x);

// A 64-bit float in its shortest form with at most 15 significant digits: "0.5", "1E-05",
// "1.5E+20", "-0" printed as "0".
std::string CetakAngka(double x);

// The number that the printing of x reads back as, ValAngka(CetakAngka(x)), without the text:
// x rounded to 15 significant digits; 0 for a NaN or an infinity, which print as no number.
double AngkaTercetak(double x);

// A 32-bit float in its shortest form with at most 7 significant digits ("6.189863E+14").
std::string CetakAngka32(float x);

// A fixed format such as "0.000": rounds half away from zero on the 15-digit printing of x,
// so 2.675 gives "2.68" with two decimals.
std::string FormatTetap(double x, int desimal);

}  // namespace falak
