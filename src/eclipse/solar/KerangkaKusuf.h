// The skeleton of the solar eclipse (kusuf) of the taqribi books on value rows: whether the
// ijtima' of a Hijri month eclipses the sun for the chosen place, and then its middle, size and
// phases there. The rows reach the mean ijtima' at the end of the month; three tests decide:
// the moon within 6 degrees of its node (Hishshoh), the ijtima' by day (13 to 23 hours of the
// alamah clock, which starts at sunset), and the node test again on the corrected Hishshoh.
// The place enters through the point of the ecliptic on the meridian, found twice (at the
// ijtima' and at the time the parallax along the ecliptic corrects): its distance from the
// zenith gives the parallaxes along and across the ecliptic, and the latitude seen from the
// place, with the moon's daily motion, keys the double table of fingers and durations.
//
// The tables of the meridian's point exist for latitudes 6, 7 and 8 only: the driver refuses
// any other place before the module runs (PeriksaLintang).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "eclipse/LangkahGerhana.h"
#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

class ClsFlexGrid;
struct Tempat;

// The refusal of a place whose latitude the solar tables do not hold: degrees 5 or less, or 9
// or more. Empty when the place can be reckoned.
std::optional<std::string> PeriksaLintang(const Tempat& tempat);

class KerangkaKusuf : public Modul {
public:
    HasilHitung Hitung(const Permintaan& p) override { return HitungKusuf(p.tahun, p.bulan, p.lembar); }
    HasilHitung HitungKusuf(int32_t tahun, int16_t bulan, bool lembar = true);

    virtual void PokokKusuf(int32_t tahun, int16_t bulan) = 0;
    void TaadilKusuf();
    void QomarKusuf();
    void IjtimaKusuf();
    void ArdlKusuf();
    void BuhtuKusuf();
    void MatholiKusuf();
    void MarkazKusuf();
    // False when the place sees no eclipse (the latitude lies beyond the double table, or the
    // table gives it no finger).
    bool UkuranKusuf();
    // The partial and total phases about the middle KfFase(1), from the half duration
    // KfSaatKusf(11) and the half totality KfMuktsu(11) (none when zero).
    void FaseKusuf();

    // The node tests, the first and the third: within 6 degrees of a node.
    static bool UjiHishshoh(const Nilai& hishshoh);
    // The second: the ijtima' by day, 13 to 23 hours of the alamah clock.
    static bool UjiSiang(const Nilai& ijtima);

    // The rows of table 38 (the point's declination), 39 (its distance from the zenith) and 33
    // (the parallax along the ecliptic) on a longitude, and their three results.
    void IqlimBaris(const Nilai& nilai, std::span<Nilai, 3> baris, std::span<Nilai, 5> mel,
                    std::span<Nilai, 5> iqlim, std::span<Nilai, 5> thul);

    Baris<5> KfMajmu, KfMabsut, KfSyahr, KfJumlah;
    Baris<5> KfTdlKs, KfTdlMr, KfTdlHs, KfTdlDq;
    Baris<6> KfQomar;
    Baris<5> KfSyams, KfSaah, KfIjtima;
    Baris<7> KfArdl;
    Baris<4> KfBuhtu;
    Baris<5> KfTdlBuhtu;
    Baris<8> KfFadlu;
    Baris<5> KfMatholi, KfMatholi2, KfMel1, KfIqlim1, KfThul1;
    Baris<3> KfMail1;
    Baris<5> KfJaib;
    Baris<4> KfBud;
    Baris<6> KfWaktu, KfDlil;
    Baris<5> KfMel2, KfIqlim2, KfThul2;
    Baris<3> KfMail2;
    Baris<5> KfTdlArdl, KfTdlHs2;
    Baris<3> KfArdlMar;
    Baris<1> KfJumlahArdl;
    Baris<13> KfAshobi, KfSaatKusf, KfMuktsu;
    Baris<4> KfFase, KfFaseTotal;
    bool KfSore = false;
    int32_t KfDawr = 0;
    int16_t KfSisaTahun = 0;
    int16_t KfBulan = 0;

protected:
    KerangkaKusuf(Konteks k, const DataGerhana& data);

    // The stages after the first test, with the second and third tests, up to the phases;
    // false when a test fails or the place sees no eclipse. A book that reckons in decimals
    // works them its own way and leaves its results in these rows.
    virtual bool TahapKusuf();
    // The ijtima' at the markaz with the Masehi date the book's alamah carries; none where the
    // alamah is a time of the week and the day is sought in the month by its weekday.
    virtual std::optional<Nilai> ijtimaBertanggal() { return std::nullopt; }
    BarisTahun barisTahun() { return {KfMajmu, KfMabsut, KfSyahr, KfJumlah, KfDawr, KfSisaTahun, KfBulan}; }

    Konteks k_;

private:
    void KesimpulanKusuf(HasilHitung& h);
    void IsiTabelKusuf(ClsFlexGrid& g);
    void TabelKoreksiKusuf(ClsFlexGrid& g);
    std::vector<BarisTercatat> baris() const;

    const Nilai& khossyoh() const;
    // The sun's place at the ijtima'.
    const Nilai& matahari() const;

    const DataGerhana& data_;
};

// The solar eclipse of a book of Fathu al-Ro'uf's pattern: the skeleton on the book's rows of
// years and its month table.
class KusufPolaFathu : public KerangkaKusuf {
public:
    void PokokKusuf(int32_t tahun, int16_t bulan) override;

protected:
    KusufPolaFathu(Konteks k, const DataGerhana& data, PokokFathu pokok);
    std::optional<Nilai> ijtimaBertanggal() override;

private:
    PokokFathu pokok_;
};

}  // namespace falak
