// Sullam al-Nairoin: the ijtima' and the hilal at sunset for one Hijri month, as the treatise
// works it by hand from its tables of collected and expanded years and of the months, in
// value arithmetic, with its markaz at Jakarta (6° 15' S, 106° 52' E).
//
// The year rows hold the mean conjunction that ends month 1; the month row of month m adds
// m - 1 lunations, so month m gives the ijtima' at the end of month m and the hilal that
// opens month m + 1. The alamah counts weekday and hours from sunset (18:00).
#pragma once

#include <cstdint>

#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

class ClsFlexGrid;

class SullamNairoin : public Modul {
public:
    explicit SullamNairoin(Konteks k) : k_(k) {}

    HasilHitung Hitung(const Permintaan& p) override { return HitungIjtimaSN(p.tahun, p.bulan, p.lembar); }
    // The day of the ijtima' advanced by 25 hours, or 49 when the hilal stands below 2 degrees.
    std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) override;
    std::vector<BarisTercatat> baris() const;

    // The whole run: the stages, the conclusion and, with lembar, the frame and the cells of
    // the sheet.
    HasilHitung HitungIjtimaSN(int32_t tahun, int16_t bulan, bool lembar = true);

    // The stages, in this order; each reads what the one before it wrote.
    void JumlahSN(int32_t tahun, int16_t bulan);
    void TaadilSN();
    void QomarSN();
    void IjtimaSN();
    void HilalSN();
    void KesimpulanSN(HasilHitung& h);
    void IsiTabelSN(ClsFlexGrid& g);

    // Rows of the run, kept between runs.
    Baris<5> Majmu, Mabsut, Syahr, Jumlah;
    Baris<5> TdlKs, TdlMr, TdlAr, TdlHs;
    Baris<7> Qomar;
    Baris<5> BudTaqwim;
    Baris<5> TdlDq;
    Baris<6> Manzil;
    Baris<5> Saah, Ijtima;
    Baris<7> Hilal;
    Baris<2> Nur;
    int32_t Daur = 0;
    int16_t SisaTahun = 0;
    int16_t BulanIni = 0;

private:
    void tahap(int32_t tahun, int16_t bulan);
    void tulisSel(ClsFlexGrid& g);
    Konteks k_;
};

}  // namespace falak
