// Ephemeris: the ijtima' and the hilal by modern theory, as the government's almanac teaches
// the hand reckoning. For two days and two hours it computes an hourly table of the Sun and
// the Moon in doubles (the Earth's short series from the table ERBumi, the Moon's series of
// the book), takes the hour of the smallest illuminated fraction, interpolates the ijtima'
// between that hour and the next, and reckons the hilal at sunset by spherical trigonometry.
//
// Every formula is kept as the book writes it, so that a student can check each worked
// number: hours are taken as dynamical time (no delta T, unless the session asks for it),
// arcsine and arccosine are written through the arctangent, the degree factor and the fixed
// factors of the illuminated fraction are the book's.
//
// The hourly table runs from 0h GMT of the day before the local day of the ijtima' (hour 1)
// to 1h of the day after it (hour 50); the hilal is reckoned at the sunset of the second day.
// A run that paints no sheet fills only the hours its reckoning reads: those around the
// smallest fraction and those of the sunset; the others are left not-a-number.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Nilai.h"
#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "rumus/Rumus.h"

namespace falak {

class ClsFlexGrid;
class Tabel;

// A column of the hourly table: hour 1 (0h of the first day) to hour 50.
using KolomJam = Baris<50, double>;

// One term A cos(B + C tau) of the Earth's series.
struct SukuBumi {
    double a, b, c;
};

// The Earth's series by name (L0 .. L5, B0, B1, R0 .. R4), read from the table ERBumi.
struct DeretBumi {
    std::array<std::vector<SukuBumi>, 6> l;
    std::array<std::vector<SukuBumi>, 2> b;
    std::array<std::vector<SukuBumi>, 5> r;
    static DeretBumi baca(Tabel& tabel);
};

// The positions of one instant: what EphemerisJam writes into one hour of the table.
struct PosisiER {
    double jarak, thulHakiki, thulSyams, ardl, mail, adjSyams, dekSyams, sdSyams, daqoiq;
    double thulQomar, ardlQomar, adjQomar, dekQomar, hp, sdQomar, sudut, fib;
};

// The positions at a Julian ephemeris day.
PosisiER PosisiPada(const DeretBumi& bumi, double jd);
// Julian day of 0h of a civil date, as the book reckons it (Gregorian from 15 October 1582).
double HariJulianER(int y, int m, int d);
// Delta T in days for a Julian day, by the usual polynomials of the present era.
double DeltaTHari(double jd);

// A double as a value row: fields by truncation towards zero, the sign from the double.
Nilai NilaiER(double x);
// Degrees, minutes and whole seconds: "-7°47'2"; with meter the height in metres behind it.
std::string TeksSudutER(double x, bool meter = false);

class Ephemeris : public Modul {
public:
    explicit Ephemeris(Konteks k);

    HasilHitung Hitung(const Permintaan& p) override { return HitungIjtimaER(p.tahun, p.bulan, p.lembar, p.kata); }

    HasilHitung HitungIjtimaER(int32_t tahun, int16_t bulan, bool lembar = true, bool kata = true);
    // The stages, in order; each reads what the one before it wrote.
    // semuaJam: the whole hourly table, as the sheet shows it; else only the hours needed.
    void HisabER(int32_t tahun, int16_t bulan, bool semuaJam = true);
    // The whole table of a day, and its best hour.
    int EphemerisJam(int y, int m, int d);
    void IjtimaER();
    void GhurubER();
    void HilalER();
    void KesimpulanER(HasilHitung& h, bool kata = true);
    void IsiTabelER(ClsFlexGrid& g);
    // The formula sheet of the run: the results as values, one row of TQQRumuz a step.
    LembarRumus RumusER();

    // Interpolation at a time x in hours of the second day.
    enum class KelompokER { Matahari = 1, Hilal = 2 };
    double BacaJamER(const KolomJam& kolom, double x);
    double RefraksiER(double tinggi);

    // The hourly table.
    KolomJam ERJarak, ERThulHakiki, ERThulSyams, ERArdl, ERMail, ERAdjSyams, ERDekSyams, ERSdSyams, ERDaqoiq,
        ERThulQomar, ERArdlQomar, ERAdjQomar, ERDekQomar, ERHp, ERSdQomar, ERSudut, ERFib;
    // The results, [0] to [49], in the order of the reckoning.
    std::array<double, 50> ERHasil{};
    int ERJamTerbaik = 1;  // the best hour, 1 to 49
    int ERGeser = 0;       // 25 when the ijtima' falls on the second day, else 0
    Nilai ERTanggalAwal;   // date value of the first day of the table
    Nilai ERHariIjtima;    // date value of the local day of the ijtima'
    std::vector<BarisTercatat> baris() const;

private:
    void mulaiTabel(int y, int m, int d, bool semuaJam);
    void isiJam(size_t h);
    // Fills hour h (1 to 50) of the table when the run has not yet reckoned it.
    void pastikanJam(size_t h) {
        if (!adaJam_[h]) isiJam(h);
    }
    double fibPada(size_t h) {
        pastikanJam(h);
        return std::abs(ERFib(h));
    }
    int jamTerbaikHemat();
    // The place's latitude, south negative; the hours from its meridian to its zone's clock.
    double lintang() const;
    double koreksiBujur() const;
    Konteks k_;
    double jamIjtimaMentah_ = 0;  // the ijtima' in hours of the zone from 0h of the first day
    DeretBumi bumi_;
    double jdAwal_ = 0;                // Julian day of hour 1
    std::array<bool, 51> adaJam_{};    // [h]: hour h of this table is reckoned
    int32_t tahun_ = 0;
    int16_t bulan_ = 0;
};

}  // namespace falak
