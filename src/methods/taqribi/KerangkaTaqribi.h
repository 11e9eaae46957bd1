// The skeleton of the taqribi books on value rows: the ijtima' and the hilal at sunset for one
// Hijri month, worked as the books work it by hand from their constants of grouped years,
// single years and months, in value arithmetic. Its stages are those of Fathu al-Ro'uf
// al-Mannan, after whose pattern four more books were written (Tadzkirotu al-Ikhwan,
// Khulashotu al-Wafiyah, Ittifaq Dzatu al-Bain and Faidlu al-Karim); Sullam al-Nairoin, the
// older book, works the same stages on its own rows of years. What one book does differently
// is either data (its constants, its split of the years, its markaz, the table of the fourth
// ta'dil row, the layout of its sheet) handed to this class, or a small override of one stage.
// The books are kept apart: each keeps its own constants and roundings even where two of them
// look alike.
//
// The rows hold, cell by cell: the alamah (weekday and hours counted from sunset, 18:00),
// then the Hishshoh (the moon's distance from its node), the Wasath (the sun's mean place),
// the Khossyoh (the moon's anomaly) and the Markaz (the sun's anomaly); a book without a
// Hishshoh has four cells, and Sullam keeps the sun's apogee (the auj) where the others keep
// the Wasath. In Fathu's books the grouped years plus the single years give the mean ijtima'
// that opens month 1 of the year Tahun and the month row of month m adds m - 1 lunations: they
// count the month that begins, so a run for the ijtima' at the end of month m (as the driver
// asks every book) reckons their month m + 1. Sullam's rows end the month they name.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

class ClsFlexGrid;
class Tabel;

// How a treatise splits the years since its base into groups and single years. With
// Y = Tahun - 1 and G the years of a group:
//   Y > atas:  Dawr = (Y + geser) \ G, multiplier Dawr, single years (Y + geser) mod G, adding;
//   Y > bawah: Dawr = 0, multiplier 1, single years Y + geser, the row that adds nothing;
//   else:      Dawr = (Y - mundur) \ G, multiplier |Dawr|, single years Y - G Dawr + geser,
//              taking off; single years of a whole group fold back into one group less.
// So the years counted from the base are always Y + geser.
struct PembagiTahun {
    int g;
    int atas;
    int geser;
    int bawah;
    int mundur;
};

// Where a treatise keeps each element in its rows (cell numbers from 1; 0 when it has none).
struct LetakUnsur {
    int hishshoh, wasath, khossyoh, markaz;
};

// Where the rows of the sheet's right block stand below the moon's correction: the rows of
// the sun's place, then those below them, move down by the extra cells of the rows above.
struct LetakLembar {
    int jumlahBud;       // cells of the sun's place (BudTaqwim): 3, or 5 with the auj
    bool detikAlamah;    // the grouped years' alamah shows its seconds
};

// The constants and choices that tell one treatise of the skeleton from another.
struct DataKitabFR {
    const char* kode;  // the book's columns in the frames table
    int jumlahSel;  // cells of the year, month and sum rows: 5, or 4 without a Hishshoh
    LetakUnsur unsur;
    std::array<const char*, 5> mabda;   // the base
    std::array<const char*, 5> tambah;  // a group, adding
    std::array<const char*, 5> kurang;  // a group, taking off
    PembagiTahun pembagi;
    int bujurDerajat, bujurMenit;  // the markaz's longitude in the place correction
    TitikMarkaz markazKesimpulan;  // the markaz as the conclusion names it
    int kodeTdlHs;                 // table of the hours per degree: 4, or 6 with seconds
    int jumlahQomar;               // cells of the moon's correction: 7, or 10
    bool gurubHariIjtima;          // the sunset line for the day of the ijtima' (else the first of the month)
    bool bulanYangDibuka;          // its month row counts the month that begins
    LetakLembar lembar;
};

// The split of one year: Dawr, the multiplier of the group row, the single years, and whether
// the group row adds, adds nothing or takes off.
struct TahunTerbagi {
    enum class Langkah { Tambah, Nol, Kurang };
    int32_t dawr = 0;
    int32_t pengali = 0;
    int16_t sisa = 0;
    Langkah langkah = Langkah::Tambah;
};
TahunTerbagi BagiTahunFR(const PembagiTahun& p, int32_t tahun);

// The month that a book counting the month that begins reckons for the ijtima' at the end of
// month m (or the full moon in its middle): m + 1, and after Dzulhijjah Muharram of the next year.
void BulanDibuka(int32_t& tahun, int16_t& bulan);

// The alamah of the month row: weekday and hours of the columns al... with the suffix (""
// for the ijtima', "GB" for the full moon); none when the table's cells do not make a value.
using BacaAlamahSyahr = std::function<std::optional<Nilai>(const Tabel& syahru, std::string_view akhiran)>;
std::optional<Nilai> AlamahSyahrFR(const Tabel& syahru, std::string_view akhiran);

// The rows of grouped years, single years, the month and their sum.
struct BarisPokok {
    std::span<Nilai, 5> majmu, mabsut, syahr, jumlah;
};

// The grouped years, the single years and the month of a book of Fathu's pattern, from its base
// and group rows, and their sum; the month row from TRBSyahru's columns with the suffix. A
// missing month row leaves the former cells.
TahunTerbagi HitungPokokFR(Konteks& k, const DataKitabFR& data, int32_t tahun, int16_t bulan, std::string_view akhiran,
                           const BacaAlamahSyahr& alamahSyahr, const BarisPokok& baris);

class KerangkaTaqribi : public Modul {
public:
    HasilHitung Hitung(const Permintaan& p) override { return HitungIjtimaFR(p.tahun, p.bulan, p.lembar, p.kata); }
    std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) override { return AwalBulanFR(tahun, bulan); }
    std::vector<BarisTercatat> baris() const;

    // The whole run: the stages, the conclusion and, with lembar, the frame and the cells of
    // the sheet.
    HasilHitung HitungIjtimaFR(int32_t tahun, int16_t bulan, bool lembar = true, bool kata = true);
    // The first of the month: stores the year and month in the chosen date, runs the five
    // reckoning stages without any sheet, and returns the day of the ijtima' advanced by 25
    // hours, or 49 when the hilal stands below 2 degrees (a date value whose hour reads 01).
    std::optional<Nilai> AwalBulanFR(int32_t tahun, int16_t bulan);

    // The stages, in this order; each reads what the one before it wrote. The first fills
    // the sums of grouped years, single years and the month.
    virtual void PokokFR(int32_t tahun, int16_t bulan);
    virtual void TaadilFR();
    virtual void QomarFR();
    virtual void IjtimaFR();
    virtual void HilalFR();
    void KesimpulanFR(HasilHitung& h, bool kata = true);
    void IsiTabelFR(ClsFlexGrid& g);

    const DataKitabFR& data() const { return data_; }

    // Rows of the last run; a treatise with fewer cells leaves the last empty.
    Baris<5> Majmu, Mabsut, Syahr, Jumlah;
    Baris<5> TdlKs, TdlMr, TdlAr, TdlHs;
    Baris<10> Qomar;
    Baris<5> BudTaqwim;
    Baris<5> TdlDq;
    Baris<6> Manzil;
    Baris<5> Saah, Ijtima;
    Baris<7> Hilal;
    Baris<2> Nur;
    int32_t Dawr = 0;
    int32_t Pengali = 0;
    int16_t SisaTahun = 0;
    int16_t Bulan = 0;

    // The sun's place against the moon's correction: the last cell of BudTaqwim.
    const Nilai& tempatMatahari() const { return BudTaqwim(static_cast<size_t>(data_.lembar.jumlahBud)); }

protected:
    KerangkaTaqribi(Konteks k, const DataKitabFR& data);

    // Parts of the moon's stage: the moon's correction (Qomar), and the sun's place against it
    // (BudTaqwim); then the look-up of the day's minutes and the mansion, which all share.
    virtual void TaadilQomar();
    virtual void HitungBudTaqwim();
    // The hours between the luminaries (Saah).
    void hitungSaah();
    // The latitude's share of the hilal's light.
    Nilai cahayaLintang() const;

    // The month row from TRBSyahru; its alamah cell. A treatise whose alamah carries a
    // Masehi date fills the date fields too.
    virtual std::optional<Nilai> alamahSyahr(const Tabel& syahru, std::string_view akhiran) const;
    // The ijtima' as the conclusion reads it: weekday and hours from sunset.
    virtual Nilai ijtimaSejakMaghrib() const { return Ijtima(5); }
    // Whether the ijtima' falls on the eve of the day named; none: as its clock tells.
    virtual std::optional<bool> malamIjtima() const { return std::nullopt; }
    // The civil date of the ijtima' (a date value): the day of the Hijri month that falls on
    // the reckoned weekday.
    virtual Nilai hariIjtima();
    // The conclusion's heading.
    virtual std::string judulKesimpulan() const;
    // The frame's texts of the years: the years of the groups, as the book counts them.
    virtual int32_t tahunMajmu() const { return Dawr * data_.pembagi.g; }
    // The month whose beginning the sheet's heading names.
    virtual int bulanJudul() const { return Bulan + (Bulan == 1 ? 12 : 0); }
    // Rows that a treatise adds to the sheet, its cells and its list of rows.
    virtual void tulisSelTambahan(ClsFlexGrid&) {}
    virtual void catatTambahan(std::vector<BarisTercatat>&) const {}

    // The place's longitude less the markaz's, in hours, as an alamah value.
    Nilai selisihBujur(bool bertanggal) const;
    // The five reckoning stages, on rows emptied first: a month reckons alike alone and in a
    // batch, whatever the run before it left.
    void hitungTahap(int32_t tahun, int16_t bulan);
    // Day of the ijtima' and first of the month of the last run.
    struct HariHasil {
        Nilai ijtima;
        Nilai awal;
    };
    HariHasil hariHasil();

    // Grid rows of the right block: the moon's rows first, everything below them moves down
    // by the moon's extra cells, and everything below the sun's place by its extra cells too.
    int barisKanan(int barisFR) const { return barisFR + (data_.jumlahQomar - 7); }
    int barisBawah(int barisFR) const { return barisKanan(barisFR) + (data_.lembar.jumlahBud - 3); }

    Konteks k_;

private:
    void kosongkanBaris();
    void tulisSel(ClsFlexGrid& g);
    const DataKitabFR& data_;
};

}  // namespace falak
