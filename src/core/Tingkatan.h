// The six operations of the value rows (ClsTingkatan): month lengths, the finishing of alamah
// and arc values with their carries, borrows and wraps, and the passage between the two.
//
// The fields of a value are worked as whole numbers. The finishing routines take the fields
// as numbers; the forms that take texts read each with ValAngka and round it half to even,
// as the books' literals and table cells are read ("007" is 7).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Nilai.h"

namespace falak {

// The three small integers that the value arithmetic takes, by the names the reckoner gives
// them. They stay plain integers (a table or a calculator line may carry any of them), so
// these names convert to int.
//
// Jenis: the shape of a value.
enum JenisNilai : int {
    JenisAlamah = 0,        // alamah, the time of the week only
    JenisAlamahHijri = 1,   // alamah counting months of 30 days
    JenisAlamahMasehi = 2,  // alamah on the civil calendar
    JenisBusur = 3,         // arc value
};
// Tanda: how the sign flags take part in an operation.
enum CaraTanda : int {
    TandaAbai = 1,       // the flags do not decide between adding and subtracting
    TandaPlus = 2,       // signed, the result forced plus
    TandaIkut = 3,       // signed arithmetic
    TandaIkutUrut = 4,   // signed, the order of a subtraction kept as written
};
// Modus: the circle of an arc value.
enum ModusBusur : int {
    ModusBuruj = 1,      // twelve signs of 30 degrees
    ModusLingkaran = 2,  // degrees on a circle of 360
    ModusDarojah = 3,    // open degrees, folded but never wrapped
};
// The fields of a value by their index for AmbilTingkat: 1 to 5 of an arc value, 6 to 14 of
// an alamah or date value.
enum MedanNilai : int {
    MedanBuruj = 1,
    MedanDarojah = 2,
    MedanDaqiqoh = 3,
    MedanTsaniyah = 4,
    MedanTsalitsah = 5,
    MedanTahun = 6,
    MedanBulan = 7,
    MedanTanggal = 8,
    MedanPasaran = 9,
    MedanHari = 10,
    MedanJam = 11,
    MedanMenit = 12,
    MedanDetik = 13,
    MedanTsalitsahWaktu = 14,
};

// Length of a civil month in days (Gregorian leap rule for every year). A month above 12 has
// 12 taken off once, one below 0 has 12 added once; month 0 counts 31 days; a month still
// outside 0 to 12 has 0 days.
int16_t Umurbulan(int32_t tahun, int32_t bulan);

// Number of units to borrow from the next field up so that a negative field becomes
// non-negative: |a div b|, plus one when a mod b is not 0. No result for a divisor of 0.
std::optional<int32_t> Pengurang(int64_t a, int64_t b);
std::optional<int32_t> Pengurang(std::string_view a, std::string_view b);

// Fields of an alamah value: year, month, day, pasaran, weekday, hour, minute, second, third.
using MedanAlamah = std::array<int64_t, 9>;

// Finishes an alamah value. Modus 0 keeps the time of the week only (day, month and year
// become 0); 1 counts months of 30 days; 2 follows the civil calendar; any other mode runs
// the common carries and borrows and leaves day and month alone.
Nilai AlamahTarkh(int modus, MedanAlamah medan, int tanda);
// The form with texts. No result when a field does not fit a 32-bit whole number.
std::optional<Nilai> AlamahTarkh(int modus, const std::array<std::string_view, 9>& medan, int tanda);

// Finishes an arc value. Modus 1: twelve signs of 30 degrees; 2: degrees on a circle of 360;
// 3: degrees folded but never wrapped. A whole circle given exactly as 12 signs or 360
// degrees stays as it is.
Nilai DlorbuSittin(int64_t buruj, int64_t darojah, int64_t daqiqoh, int64_t tsaniyah, int64_t tsalitsah,
                   int tanda, int modus);
std::optional<Nilai> DlorbuSittin(std::string_view buruj, std::string_view darojah, std::string_view daqiqoh,
                                  std::string_view tsaniyah, std::string_view tsalitsah, int tanda, int modus);

// Alamah value to arc value in mode 1: the hour becomes Darojah (an hour of 45 becomes
// "01 15 ..."), then minute, second, third, with the same sign.
Nilai CAlamahToUmum(const Nilai& alamah);

// Arc value to alamah value: Buruj becomes the weekday, Darojah the hour. Finished in mode 0,
// or with bertanggal in the mode that keeps the count of days that the hours carry.
Nilai CUmumToAlamah(const Nilai& umum, bool bertanggal);

}  // namespace falak
