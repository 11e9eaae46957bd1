// Syamsu al-Hilal: the ijtima' and the hilal at sunset for one Hijri month, as the treatise
// works it, with its markaz at Jepara (110° 40' E).
//
// Unlike the other taqribi treatises it does not reckon on value rows. Its elements are
// decimal degrees and decimal hours in 32-bit floats: a base at the start of year 1, moved by
// groups of thirty years, then the remaining years and the month from its own tables of
// plain decimals; its equations come from the nearest row of its own table, without
// interpolation. Value rows appear only for the place's correction and for the words of the
// conclusion.
//
// The elements, in the order of every row: Hari (weekday, 1 Ahad .. 7 Sabtu), Alamah (hours
// from the sunset that opens that day), Hishshoh (the moon's distance from its node), Wasath
// (the sun's mean longitude), Khossyoh (the moon's mean anomaly) and Markaz (the sun's mean
// anomaly), both anomalies counted from the apogee. The month row of month m adds m
// lunations, so month m gives the ijtima' at the end of month m and the hilal that opens
// month m + 1.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

class ClsFlexGrid;

class SyamsulHilal : public Modul {
public:
    explicit SyamsulHilal(Konteks k) : k_(k) {}

    HasilHitung Hitung(const Permintaan& p) override { return HitungIjtimaSH(p.tahun, p.bulan, p.lembar, p.kata); }
    // The day of the ijtima' advanced by 25 hours, or 49 when the hilal stands below 2 degrees.
    std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) override;
    std::vector<BarisTercatat> baris() const;

    // The whole run: the stages and the conclusion; with lembar then the frame, the rounding
    // of the rows to three decimals and the cells of the sheet. Only a run with its sheet
    // rounds its rows.
    HasilHitung HitungIjtimaSH(int32_t tahun, int16_t bulan, bool lembar = true, bool kata = true);
    // The stages from the year split to the ijtima' only, without words or sheet. With
    // purnama the month row is the full moon in the middle of the month (its GB columns), and
    // the rows reach the istiqbal instead: the lunar eclipse stands on them.
    void IjtimaSajaSH(int32_t tahun, int16_t bulan, bool purnama = false);

    // The stages, in this order; each reads what the one before it wrote.
    void PokokSH(int32_t tahun, int16_t bulan, bool purnama = false);
    void TaadilSH();
    void QomarSH();
    void BudSH();
    void MuqowwamSH();
    void ManzilSH();
    void SaahSH();
    void IjtimaSH();
    void HilalSH();
    void KesimpulanSH(HasilHitung& h, bool kata = true);
    void IsiTabelSH(ClsFlexGrid& g);
    // Every cell of the rows kept to three decimals, through the text "0.000".
    void TigaDesimalSH();

    // Rows of the run, kept between runs.
    Baris<6, float> SHMajmu, SHMabsut, SHSyahr, SHJumlah;
    Baris<7, float> SHQomar;
    Baris<2, float> SHBud;
    Baris<5, float> SHSaah;
    Baris<5, float> SHIjtima;
    Baris<5, std::string> SHIjtimaTeks;  // the day counts beside cells 1, 3 and 5 of SHIjtima
    Baris<10, float> SHHilal;
    int32_t SHDawr = 0;       // groups of thirty years
    int16_t SHSisaTahun = 0;  // the years left over
    int16_t SHBulan = 0;
    // What the table gave.
    float SHTdlKhossyoh = 0, SHTdlMarkaz = 0, SHTdlArdl = 0, SHTdlHishshoh = 0, SHTdlMuqowwam = 0;
    float SHManzil = 0;          // degrees travelled in the mansion
    std::string SHNamaManzil;    // the mansion's name
    std::string SHHariText;      // the last whole count of days or Buruj handed back
    int16_t SHTandaBujur = 0;    // 1 when the place lies east of the markaz
    Nilai SHIjtimaAlamah;        // the ijtima' at the place as an alamah value, for the words

private:
    void tulisSel(ClsFlexGrid& g);
    Konteks k_;
};

}  // namespace falak
