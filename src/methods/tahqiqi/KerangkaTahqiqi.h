// The skeleton of the precise books that reckon from tables of mean motions and equations:
// Badi'atu al-Mitsal, and Nuru al-Anwar, which took its data from it. For one Hijri month it
// works, as the books do by hand:
//
//   1 the mean elements at noon of the day the tables reach: the epoch, the thirty-year groups,
//     the single years, the month and the days run to the 29th of the month;
//   2 the daqa'iq tafawut (mean to apparent noon), the place's longitude and the clock hours
//     of sunset, so that the elements stand at sunset of the 29th at the place;
//   3 the true sun and the true moon by the equations of TQQTaadil, each read through the
//     table engine at the argument the step before built;
//   4 the time of the ijtima' from the distance of the luminaries at sunset;
//   5 the hilal at that sunset, in doubles and spherical trigonometry.
//
// The rows hold six cells: the alamah (weekday and pasaran of the day reached), Wasath Syams,
// Khossoh Syams, Wasath Qomar, Khossoh Qomar and 'Uqdah. What a book does differently is data
// (its constants, the circle of its values: buruj or degrees, its sheet's frame) or one of the
// small overrides below: the hourly motion of the ijtima', and the hilal.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "methods/tahqiqi/KesimpulanTahqiqi.h"

namespace falak {

class ClsFlexGrid;
class Tabel;

// The days run to the 29th of the month, by d, the weekday of the calendar's first of the
// month less that of the tables' (1 to 7): the two counts agree (7), or the calendar's first
// falls a day later (1), two days later (2) or a day earlier (6). Any other d, a count
// that has run away, takes 29.
int HariBerjalan(int d);

struct DataKitabTahqiqi {
    const char* kode;                    // the book's columns in the frames table
    int modus;                           // ModusBuruj or ModusLingkaran: the circle of its rows
    std::array<const char*, 6> mabda;    // the epoch
    std::array<const char*, 6> tambah;   // a group of thirty years, adding
    std::array<const char*, 6> kurang;   // a group, taking off
    TitikMarkaz markaz;                  // the tables' place, as the conclusion names it
    int jumlahHasil;                     // values of the hilal
};

class KerangkaTahqiqi : public Modul {
public:
    HasilHitung Hitung(const Permintaan& p) override;
    // The first of the month by the reckoning stages alone, without the conclusion's words.
    std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) override;

    // The stages, in this order; each reads what the one before it wrote.
    void Siapkan(int32_t tahun, int16_t bulan);
    void HitungSyams();
    void HitungQomar();
    // Whether the moon is still behind the sun at the sunset reckoned; one more day run.
    bool BulanDiBelakang() const;
    void LagiSehari();
    virtual void HitungIjtimaJam();
    virtual void HitungHilal() = 0;

    const DataKitabTahqiqi& data() const { return data_; }

    // Rows of the run, kept between runs.
    Baris<6> TarikhMajmu, TarikhMabsut, Syahr, YaumTam, Jumlah, Tafawut, Thul, Saah, Daqoiq, Muqowwam;
    Baris<2> Syams;
    Baris<11> Qomar;
    // The worked look-ups of codes 8 to 15, by code less 8.
    std::array<Baris<5>, 8> Tdl;
    // The time of the ijtima': Bu'd, the hourly motion, the hours, sunset, the ijtima'.
    Baris<5> Ijtima;
    std::vector<double> Hasil;
    std::vector<Nilai> HasilTeks;
    int32_t Dawr = 0;
    int16_t SisaTahun = 0;
    int16_t Bulan = 0;
    std::string Hari;            // the days run
    std::string tandaTafawut;    // "+" or "-"
    int hariLagi = 0;            // days run beyond the 29th to the first sunset after the ijtima'
    int geserHari = 0;           // the day of the ijtima' against the 29th

    // The place's latitude in degrees, negative to the south.
    double lintang() const;
    // The height of the hilal, the stay (hours) and the light (fingers) by the book.
    virtual double tinggiHilal() const = 0;
    virtual double muktsHilal() const = 0;
    virtual double nurHilal() const = 0;
    // The formula sheet of the run, from the values its worked table shows.
    virtual LembarRumus Rumus() = 0;
    // The hilal's values as the sheet shows them (a run without a sheet leaves them).
    void tulisHasilTeks();

    ~KerangkaTahqiqi() override;

protected:
    KerangkaTahqiqi(Konteks k, const DataKitabTahqiqi& data);

    // The moon's hourly gain on the sun that turns Bu'd into hours.
    virtual Nilai sabaq() = 0;

    // Degrees of a value of the book's circle.
    static double derajat(const Nilai& v);
    Nilai tambah(const Nilai& a, const Nilai& b) const;
    Nilai kurang(const Nilai& a, const Nilai& b) const;
    // a - b, a whole circle added when b is the greater.
    Nilai jarak(const Nilai& a, const Nilai& b, int modusPutar) const;

    Konteks k_;

private:
    struct KolomBaca;
    struct KolomGerak;

    void tahun(int32_t tahun);
    void bacaGerak(Baris<6>& baris, Tabel& t, const KolomGerak& kolom, int64_t kunci);
    void hitungHari(int32_t tahun, int16_t bulan);
    void hitungMuqowwam();
    // The reckoning stages, from the years to the hilal.
    void hitungTahap(int32_t tahun, int16_t bulan);
    void hitungTafawut();
    void hitungThul();
    void hitungGurub();
    HariTahqiqi hariHasil();
    void isiTabel(ClsFlexGrid& g);
    std::vector<BarisTercatat> baris() const;

    const DataKitabTahqiqi& data_;
    // The epoch and the group rows of the data, read once.
    std::array<Nilai, 6> mabda_, tambah_, kurang_;
    std::unique_ptr<const KolomBaca> kolom_;
    int32_t tahunRun_ = 0;
    int16_t bulanRun_ = 0;
    int jamGurub_ = 0, menitGurub_ = 0;
};

}  // namespace falak
