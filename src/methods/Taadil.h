// ClsTaadil: the one way a treatise reads an equation out of its printed tables.
//
// A treatise hands over a value and a table code and gets back either the tabulated entry or a
// five-line worked interpolation that its sheet shows as it stands:
//
//   1 the argument          (Madkhul)
//   2 the entry at or below it               (Syatar1)
//   3 the entry of the next row              (TaadilKusfM)
//   4 the interpolation term                 (TdlTarekhMasehi)
//   5 the interpolated value, the result     (TaadilSisa)
//
// Table codes 1 to 41 each name a table (TRBTaadil or TQQTaadil), the columns of one quantity
// and the fields of the value they fill. The key of a row is the text column Cari: degrees
// (buruj x 30 + darojah, in rows of `langkah` degrees), hours (with the hour flag), or minutes
// of arc in rows of 12 (langkah 12); keys at or below 0 wrap to the top of the table, so key 0
// reads the last row.
//
// The books' digits depend on the arithmetic exactly as written, oddities included: the term of
// a table in rows of 12 minutes still divides by 12 degrees and comes out sixty times smaller
// than a plain linear term; that is kept.
//
// A code outside the tables and a key that is not there give an empty value; the arithmetic
// that follows treats it as the kernel treats any empty value. Nothing here raises an error
// or touches a sheet. The tables' cursors move: code 39 reads on in the row its own search found.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core/Nilai.h"
#include "core/Tabel.h"
#include "core/Tempat.h"

namespace falak {

class ClsTaadil {
public:
    // The tables it reads, and the place whose latitude picks the columns of code 39; all are
    // read at the time of each call.
    ClsTaadil(Tabel& TRBTaadil, Tabel& TQQTaadil, const Tempat& tempat);

    // The argument unchanged: the first line of a worked look-up.
    static Nilai Madkhul(const Nilai& nilai) { return nilai; }

    // The tabulated entry at or below the value, a positive value in form 1 (code 16 in form 2;
    // code 7 an alamah-shaped text). Empty for codes 25 to 27, 32, 35 to 37 and any other code
    // outside the tables, for a key that is not there, and for a step of 0.
    Nilai Syatar1(int kode, const Nilai& nilai, int langkah, bool jam);

    // The worked look-up, line by line into baris. Code 32 is the inverse look-up of the right
    // ascension column: it finds the degree of longitude whose right ascension is the value.
    void TaadilBaris(std::span<Nilai, 5> baris, int kode, const Nilai& nilai, int langkah, bool jam);

    // The double look-ups of the eclipse tables, in two arguments: a the first (degrees and
    // minutes from 11 50, in rows of 20 minutes, 65 keys apart), b the second (minutes, one key
    // apart). The lines: 1, 2 the entries at (a, b) and (a, b + 1); 3 the term in b; 4 the
    // value at a; 5 to 8 the same one row of a further on; 9 the difference of 4 and 8; 10 the
    // term in a; 11 the result. Codes 25 (Ashobi), 26 (Mukts), 27 (SaatKhusf) for the lunar
    // table; 35 (Ashobi), 36 (SaatKusf), 37 (Muktsu) for the solar one, whose sheet adds line 12,
    // the argument b, and line 13, the argument a, and which refuses a value beyond the table's
    // bounds (it then leaves every line empty). True when the entry row was found.
    bool TaadilKhusfGanda(std::span<Nilai, 11> baris, int kode, const Nilai& a, const Nilai& b);
    bool TaadilKusfGanda(std::span<Nilai, 13> baris, int kode, const Nilai& a, const Nilai& b);

    // The Masehi date step of the taqribi treatises whose alamah carries a Masehi date.
    //
    // Given the alamah cells of the grouped, single and month rows, the hours between the
    // luminaries (saah, an arc value of hours), the count of groups dawr and of single years
    // sisaTahun, and the treatise's base and group rows (mabda, tambah: Masehi year, month,
    // day first). Returns two lines:
    //   1 the mean ijtima' (the time of the three rows) with its Masehi date;
    //   2 that less the hours between the luminaries: the ijtima' at the markaz, dated.
    // The date: the base's date moved by dawr times the group's years and months; the days
    // that the groups run beyond those, read from tdThMasehi (code 7) keyed by dawr; the days
    // of the single years (354 days 8 hours 48 minutes each) and of the month row (its date
    // fields, in months of 30 days); and the whole days that the hours carry. The weekday that
    // the alamah reckons is exact, so the day is then settled on the nearest date that falls
    // on it. Dates before 15 October 1582 are Julian, later ones Gregorian, as the
    // conclusions' calendar has them. Both lines are empty when the table has no row for
    // dawr: the reckoning then cannot place the ijtima' on the calendar.
    std::array<Nilai, 2> Taadil(const Nilai& majmu, const Nilai& mabsut, const Nilai& syahr, const Nilai& saah,
                                int32_t dawr, int32_t sisaTahun, const Nilai& mabda, const Nilai& tambah);

    // The eclipse test on the summed fields 1 and 2 of three values: their sum in whole degrees,
    // compared as text with 26, 51 and 49. bentuk holds the caller's two two-letter signs: the
    // first for one of those sums, the second otherwise.
    static std::string TaadilKhusf(const Nilai& a, const Nilai& b, const Nilai& c, std::string_view bentuk);

    // The entry of the row after Syatar1's. For code 39 the rows are irregular: the next argument
    // is the current row's MahFudIqlim, and the width of the interval is handed back through
    // langkahIqlim.
    Nilai TaadilKusfM(int kode, const Nilai& nilai, int langkah, bool jam, int& langkahIqlim);

    // The interpolation term: the value's offset from its row times (the difference of the two
    // entries divided by a value of n degrees), n being the step, or langkahIqlim for code 39.
    // No result for a step of 0.
    static Hasil TdlTarekhMasehi(int kode, const Nilai& entri, const Nilai& entriBerikut, const Nilai& nilai,
                                 int langkah, int langkahIqlim);

    // The interpolated value: the entry less the term, in form 2.
    static Nilai TaadilSisa(const Nilai& entri, const Nilai& entriBerikut, const Nilai& suku);

    // The leap-day test of a Masehi date (year field 6, month field 7): true when the year, a
    // January or February counting with the year before, is a leap year. False for a month
    // outside 1 to 12.
    static bool OperMasehi(const Nilai& tanggal);

private:
    Tabel& tabelUntuk(int kode) const;
    bool gandaIsi(std::span<Nilai> baris, int kode, const Nilai& a, const Nilai& b);

    Tabel& trb_;
    Tabel& tqq_;
    const Tempat& tempat_;
    // The columns that Syatar1 reads, by table code (the latitude columns of code 39 after
    // code 41), and the key column of each table: named once, read by position.
    static constexpr size_t kSlotKolom = 45;
    std::array<std::array<KolomTabel, 3>, kSlotKolom> kolom_{};
    KolomTabel kunciTrb_{"Cari"};
    KolomTabel kunciTqq_{"Cari"};
};

}  // namespace falak
