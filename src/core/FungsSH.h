// The decimal arithmetic of Syamsu al-Hilal and of the eclipse reckonings built on it.
//
// That treatise does not reckon on value rows: its elements are decimal degrees and decimal
// hours held in 32-bit floats, a count of whole days or of Buruj riding beside them in a
// text. These routines move the elements by groups of years, add the rows of a sum, and work
// two quantities with the days or Buruj split off. Each is worked in 64-bit and its result
// held as a 32-bit float, as the rows that receive it hold it.
//
// Look-ups into the treatise's tables take the nearest row, never interpolating: the nearest
// whole degree (ties to even) or the nearest multiple of five (ties up).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace falak {

// The base of an element moved by `kali` steps: langkah x kali + pokok.
//   jenis -1: hours, with the weekday beside them. The base weekday is 5 and every step
//     moves it by 5, by -5 when the step is negative (a step of 0 counts as positive).
//     Hours above 24 give their whole days (hours rounded, then \ 24) to the weekday; a
//     weekday above 7 keeps its remainder by 7, one below 0 gains 7 x |w \ 7 - 1|. The
//     weekday is written to `hari`.
//   jenis 0: degrees. Above 360 they lose 360 x (rounded \ 360); below 0 they gain
//     360 x |rounded \ 360|, so a value between -360 and 0 stays as it is.
// No result when the rounded value overflows a 32-bit whole number.
std::optional<float> GeserSH(int jenis, float pokok, float langkah, int32_t kali, std::string& hari);

// The sum of a1, a2 and a3.
//   jenis -1: hours, and the weekdays h1 + h2 + h3 beside them. Hours above 24 give their
//     whole days to the weekday and keep the rest; a weekday above 7 keeps its remainder
//     by 7 (so 7 stays 7 and 14 becomes 0). The weekday is written to `hari`.
//   jenis 0: degrees; a sum above 360 keeps its remainder by 360 (exactly 360 stays).
float JumlahSH(int jenis, float h1, float h2, float h3, float a1, float a2, float a3, std::string& hari);

// Two quantities, each given as a count and a rest: with jenis -1 days and hours
// (x = d x 24 + a), with jenis 0 Buruj and degrees (x = d x 30 + a). operasi 1 adds, 3
// multiplies, anything else gives |x1 - x2|. The result is split again: the whole days (or
// Buruj) go to `teks` and the hours (or degrees) are returned. A count above 7 days becomes
// its quotient by 7, a count above 12 Buruj its quotient by 12: the count is kept only as
// far as the reckoning reads it, and the rest of a sum of degrees stays below 30.
float HitungSH(int jenis, int operasi, float d1, float a1, float d2, float a2, std::string& teks);

// The key of a whole-degree table row: the nearest whole number, ties to even.
std::optional<int32_t> KunciSH(double x);
// The key of a five-degree table row: the multiple of 5 nearest to x, a tie going up. Let
// m = 5 x (floor(x) \ 5); the key is m when nearest(x - m) < nearest(m + 5 - x), else m + 5.
std::optional<int32_t> KunciLimaSH(double x);

// A cell kept to three decimals, as the sheet shows it: through the text "0.000".
float TigaDesimal(float x);

}  // namespace falak
