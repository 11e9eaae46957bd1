// The decimals on which Syamsu al-Hilal works its eclipses, and their passage into the value
// rows of the eclipse skeletons (which the conclusion and the sheet read).
//
// The treatise reaches the full moon or the ijtima' by its own month reckoning, then reads
// its own table by the nearest row: the moon's latitude by whole degrees of the Hishshoh near
// a node, the moon's daily motion by fives of the Khossyoh, and the size of the eclipse by a
// scan down the latitudes. The size rows stand at the moon's mean motion; a faster moon
// passes the shadow sooner, so the durations are shortened in the ratio of the motions.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/Nilai.h"

namespace falak {

class SyamsulHilal;
struct BarisTahun;
class Tabel;

// A decimal (degrees, hours or fingers) as a value row in Buruj, its sign in the flag.
Nilai NilaiSH(float x);
// A weekday and the hours of the alamah clock as an alamah value.
Nilai AlamahSH(float hari, float jam);
// The weekday a count of days handed back in a text stands for (0 becomes 7).
float HariSH(const std::string& teks);
// Degrees brought into 0 .. 360.
float PutarSH(float x);

// The rows of the years, the single years, the month and their sum in the five cells of
// Fathu's pattern: alamah (weekday and hours), Hishshoh, Wasath, Khossyoh and Markaz, with the
// treatise's split of the years and the month.
void SalinBarisSH(const SyamsulHilal& sh, int16_t bulan, const BarisTahun& baris);

// The equation rows (Khossyoh, Markaz, Hishshoh, daqa'iq), the moon's six cells, the sun's
// first three (its place, the Bu'd and the moon's distance from it) and the five hours, as both
// eclipses show them from the month reckoning.
struct BarisTaadilSH {
    std::span<Nilai, 5> khossyoh, markaz, hishshoh, daqoiq;
    std::span<Nilai, 6> qomar;
    std::span<Nilai> syams;
    std::span<Nilai, 5> saah;
};
void SalinTaadilSH(const SyamsulHilal& sh, const BarisTaadilSH& ke);

// The moon's latitude (its size, degrees) at this Hishshoh: Buruj 0 and 6 by the degrees past
// the node, Buruj 5 and 11 by the degrees of the sign up to it. None beyond the rows, where
// the moon stands too far from the node for any eclipse.
std::optional<float> LintangSH(Tabel& t, float hishshoh);

// The moon's daily motion at this Khossyoh, by the nearest five.
std::optional<float> BuhtuSH(Tabel& t, float khossyoh);

// A size row: fingers, half the eclipse and half the totality in hours.
struct UkuranSH {
    float jari = 0, saat = 0, mukts = 0;
};
// The scan down the size rows keyed `kunci` (CariQohArd, CariQohArdM): the first row whose key
// less (the latitude + 0.04) falls below 0.04, within 400 rows. None when no row answers or
// the row gives no fingers; the durations are those of the moon moving `buhtu` a day.
std::optional<UkuranSH> PindaiUkuranSH(Tabel& t, std::string_view kunci, std::span<const std::string_view, 3> kolom,
                                       float lintang, float buhtu);

// Nearest-row readings of a decimal column: by the nearest whole degree, or by the nearest
// five. None when the row or the cell is missing.
std::optional<float> BacaSH(Tabel& t, std::string_view kunci, float x, std::string_view kolom);
std::optional<float> BacaLimaSH(Tabel& t, float x, std::string_view kolom);

}  // namespace falak
