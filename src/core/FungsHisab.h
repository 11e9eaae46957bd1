// The arithmetic of value rows (ModFungsHisab): field access, addition and subtraction with
// carries, products and quotients through 32-bit floats, trigonometry, and the mean-motion
// sums of grouped and single years.
//
// The three small integers that every operation takes:
//   Jenis  3 arc value; 0 alamah (time of week only); 1 alamah, months of 30 days;
//          2 alamah, civil months.
//   Tanda  1 signs do not decide between adding and subtracting; 2 as 3 with the result
//          forced plus; 3 signed arithmetic; 4 as 3 with the order of a subtraction fixed.
//   Modus  1 twelve signs of 30 degrees; 2 degrees on a circle; 3 degrees, never wrapped.
// Products and quotients pass through 32-bit floats on purpose: that narrowing fixes the
// thirds of a result, and the treatises' digits depend on it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/Angka.h"
#include "core/Nilai.h"
#include "core/Tingkatan.h"

namespace falak {

// Field reading: indexes 1 to 5 read positions 1 to 5 (arc fields), 6 to 14 read positions
// 1 to 9 (alamah fields: 6 year, 7 month, 8 day, 9 pasaran, 10 weekday, 11 hour, 12 minute,
// 13 second, 14 third). Any other index reads 0.
int32_t AmbilTingkat(const Nilai& v, int indeks);
// The sign flag: the last character as a digit, 0 when it is not one.
inline int AmbilTanda(const Nilai& v) { return v.tanda(); }
// The value with its last character replaced by the last character of the second text.
Nilai GantiTanda(const Nilai& v, std::string_view tanda);
// The sign flag set to 0 when Darojah exceeds 180, else to 1.
Nilai TandaBusur(const Nilai& v);
// The value with its first field replaced by "00".
Nilai NolkanBuruj(const Nilai& v);

// Magnitude as a 64-bit float, never negative. For an arc value, degrees; for an alamah
// value a number that only serves to compare magnitudes and to test for zero.
double NilaiDesimal(int jenis, const Nilai& v);
// The sign of a when b is smaller in magnitude, else (ties too) the sign of b.
int TandaTerbesar(int jenis, const Nilai& a, const Nilai& b);

// A magnitude (32-bit float) to an arc value. No result when it does not fit a 32-bit
// whole number of degrees.
Hasil DesimalKeNilai(int jenis, int tanda, int modus, float x, int tandaNilai);
// Degrees to an arc value in mode 2; with lingkaran the flag tells the halves of the circle.
Hasil DesimalKeBusur(double x, bool lingkaran);

// Sum and difference of a first operand and up to five more; "Kosong" ends the list.
Nilai TambahNilai(int jenis, int tanda, int modus, const Nilai& v1, const Nilai& v2,
                  const Nilai& v3 = Kosong, const Nilai& v4 = Kosong, const Nilai& v5 = Kosong,
                  const Nilai& v6 = Kosong);
Nilai KurangNilai(int jenis, int tanda, int modus, const Nilai& v1, const Nilai& v2,
                  const Nilai& v3 = Kosong, const Nilai& v4 = Kosong, const Nilai& v5 = Kosong,
                  const Nilai& v6 = Kosong);
// Product: plus when the two flags agree. Quotient: the sign of the dividend; no result for
// a zero divisor.
Hasil KaliNilai(int jenis, int tanda, int modus, const Nilai& a, const Nilai& b);
Hasil BagiNilai(int jenis, int tanda, int modus, const Nilai& a, const Nilai& b);

// 1 sine, 2 cosine, 3 tangent of degrees.
double FungsiTrig(int fungsi, double derajat);
// 1 arcsine, 2 arccosine, 3 arctangent, in degrees; no result for |x| >= 1 in the first two.
std::optional<double> FungsiBusur(int fungsi, double x);
// 1 add, 2 subtract, 3 multiply, 4 divide; any other operator gives the first number.
// No result for a zero divisor or an overflow.
std::optional<double> OperasiAngka(int operasi, double a, double b);
// Sine, cosine or tangent of a value, as a value; with angka the plain number as text.
Hasil TrigNilai(int fungsi, int modus, const Nilai& v, bool angka);
// A left-to-right chain of five signed values and four operators, through an arc function.
Hasil HitungDeret(int tanda, int modus, int fungsiBusur, const Nilai& v1, int op1, const Nilai& v2, int op2,
                  const Nilai& v3, int op3, const Nilai& v4, int op4, const Nilai& v5);

// "(+)" for sign 1 and "(-)" otherwise, then the text behind a blank unless it is empty.
std::string TandaKurung(int tanda, std::string_view teks);

// Grouped years: hasil[i] = mabda[i] +/- tambah[i] x n, the direction from tambah[i]'s flag;
// cell 1 is an alamah value, the others arc values in the given mode.
void HitungMajmuah(std::span<Nilai> hasil, std::span<const Nilai> mabda, std::span<const Nilai> tambah, int n,
                   int bertanggal, int modus);
// The day of the base corrected for the count of grouped years.
int64_t KoreksiTanggal(int64_t hari, int64_t n, int tanda, int bertanggal);
// The motion of n single years, slot by slot into hasil. False (no result) when the fifth
// slot of the five-row layout has no entry for n; the slots before it are written.
bool HitungMabsuthah(std::span<Nilai> hasil, int n, bool bertanggal, bool detik, bool bulat, bool lima);

// Sign flag of a step of the tahqiqi equations by the quadrant of an arc. Kind 13 reads the
// quadrants differently on the sheets whose code is 15, 16, 17, 36, 37 or 53.
int TandaKuadran(int jenis, const Nilai& v, int kodeLembar);

// The sun's place, roughly, from the civil month and day of a date value: " b c" (Buruj and
// Darojah). No result for a month outside 1 to 12.
std::optional<std::string> BurujMatahari(const Nilai& tanggal);
// The inverse: " m d" from " b c". No result for a month outside 1 to 12.
std::optional<std::string> TanggalDariBuruj(const Nilai& buruj);

}  // namespace falak
