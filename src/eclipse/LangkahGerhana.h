// What the lunar and the solar eclipse of the taqribi books work alike: the value arithmetic
// they use, the data that tells one book from another, and the stages that both kinds run on
// their own rows (the moon's correction, the sun's place, the moon's latitude, its daily motion).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Nilai.h"
#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak::gerhana {

Nilai busur(int64_t b, int64_t d, int64_t m, int64_t s = 0);
Nilai tambah(const Nilai& a, const Nilai& b);
Nilai kurang(const Nilai& a, const Nilai& b);
Nilai kali(const Nilai& a, const Nilai& b, int modus = ModusBuruj);
Nilai tambahAlamah(const Nilai& a, const Nilai& b);
Nilai kurangAlamah(const Nilai& a, const Nilai& b);
Nilai alamahNol();
// Buruj 5 or 11: the moon comes up to its node, where 0 and 6 have passed it.
bool burujSebelumSimpul(const Nilai& v);
// The moon within `batas` degrees of a node: past it (Buruj 0, 6, and 12, which the test reads
// though a finished value never has it), or coming up to it.
bool dekatSimpul(const Nilai& hishshoh, int batas);
// A time of the alamah clock (hours from sunset) as the civil clock reads it.
Nilai jamSipil(const Nilai& alamah);
double jamDesimal(const Nilai& alamah);

}  // namespace falak::gerhana

namespace falak {

struct Sesi;

// The constants and choices that tell one book's eclipse from another's.
struct DataGerhana {
    const char* kode;              // the book's frame columns: Nama<kode>GB, Nama<kode>GM ...
    int bujurDerajat, bujurMenit;  // the markaz's longitude in the place correction
    // The cells of the sum row: Sullam keeps alamah, Hishshoh, Khossyoh, Markaz and the auj
    // (wasath 0: the sun's place is Markaz plus auj); Fathu's pattern keeps alamah, Hishshoh,
    // Wasath, Khossyoh and Markaz, and its sun's place starts from the Wasath.
    int wasath, khossyoh, markaz;
    // Table of the hours per degree in the lunar reckoning: 4, or 6 with seconds. A book's
    // eclipse reads its own, not always the one its month reckoning reads; every solar
    // reckoning reads 4.
    int kodeTdlHsKhusuf;
};

// The moon's correction: the two equations, their sum, five minutes of it, and that with the
// sun's equation again.
void HitungQomar(std::span<Nilai, 6> qomar, const Nilai& tdlKs, const Nilai& tdlMr);

// The cell of the sun's row that holds the sun's place: 5 in Sullam's form (Markaz plus auj,
// less the moon's correction), 3 in Fathu's (Wasath less the correction).
size_t SelMatahari(const DataGerhana& data);

// The sun's place against the moon's correction, in the book's form, and with titikHadap the
// point opposite it, in the cell after it, where the moon stands at the full moon.
void HitungSyams(std::span<Nilai> syams, std::span<const Nilai, 5> jumlah, const Nilai& koreksi,
                 const DataGerhana& data, bool titikHadap);

// The moon's Hishshoh at the syzygy: the hours to it times 2' 30" an hour, with the sun's
// equation, taken off the mean Hishshoh (cell 7).
void HitungArdl(std::span<Nilai, 7> ardl, const Nilai& saah, const Nilai& tdlMr, const Nilai& hishshoh);

// The moon's anomaly at the syzygy, the argument of its daily motion: 43' an hour taken off.
void HitungBuhtu(std::span<Nilai, 4> buhtu, const Nilai& saah, const Nilai& khossyoh);

// A row's first n cells down one column of a sheet, from the sheet row `awal`.
template <size_t N>
void TulisKolom(ClsFlexGrid& g, const Baris<N>& baris, int awal, int kolom, std::initializer_list<int> medan,
                size_t n = N) {
    for (size_t k = 1; k <= n; ++k) g.FlexData(baris(k), awal + static_cast<int>(k) - 1, kolom, medan);
}

// What the conclusion of an eclipse reads: the alamah times of the start, the middle and the
// end and the length, those of the totality, the latitude whose side tells where the body is
// first touched, the fingers, and the half totality (zero for none).
struct FaseGerhana {
    const Nilai &awal, &tengah, &akhir, &lama;
    const Nilai &awalTotal, &akhirTotal, &lamaTotal;
    const Nilai& lintang;
    const Nilai& ukuran;
    const Nilai& mukts;
};
// The eclipse's summary and the first eleven lines of its conclusion: the heading, the date line
// `hari`, the phases in the zone of the date `tanggal`, the size and the colour `warna`.
void TulisKesimpulanGerhana(Konteks& k, HasilHitung& h, const FaseGerhana& f, const Nilai& tanggal,
                            const std::string& hari, const std::string& warna);

}  // namespace falak

namespace falak {

// The rows of years and month of an eclipse skeleton (Majmu, Mabsut, Syahr and their sum
// Jumlah) and what they were filled for: the groups of years, the single years, the month.
struct BarisTahun {
    Baris<5>& majmu;
    Baris<5>& mabsut;
    Baris<5>& syahr;
    Baris<5>& jumlah;
    int32_t& dawr;
    int16_t& sisaTahun;
    int16_t& bulan;

    BarisPokok pokok() const { return {majmu.semua(), mabsut.semua(), syahr.semua(), jumlah.semua()}; }
    void catat(int16_t bulanRun, const TahunTerbagi& t) const {
        bulan = bulanRun;
        dawr = t.dawr;
        sisaTahun = t.sisa;
    }
};

// The head of an eclipse sheet below its frame: the title (`judul`, the eclipse, before the
// month, the run's year and the place), the groups of years, the single years and the month,
// and the rows of years and month with their sum five cells across (the alamah by weekday and
// hours, the rest by Buruj, degrees and minutes).
void TulisKepalaGerhana(ClsFlexGrid& g, const Sesi& s, std::string_view judul, const BarisTahun& baris);

// The rows of years and month of a book of Fathu's pattern at its eclipses: its constants,
// those of its month reckoning or its own eclipse base, read for the month that a run of
// month m reckons (the month that begins, as its month reckoning counts). The full moon in the
// middle of month m reads the month table's eclipse columns (GB), half a lunation back; the
// ijtima' at its end the plain ones.
class PokokFathu {
public:
    // Where the eclipse's date comes from: the day of the month found by the weekday the alamah
    // reckons, or the Masehi date that the book's alamah carries.
    enum class Tanggal { CariHari, Alamah };

    // alamah: how the book reads its month row's alamah (with the Masehi date where it carries one).
    PokokFathu(const DataKitabFR& kitab, BacaAlamahSyahr alamah, Tanggal tanggal = Tanggal::CariHari)
        : kitab_(kitab), alamah_(std::move(alamah)), tanggal_(tanggal) {}
    void hitung(Konteks& k, int32_t tahun, int16_t bulan, bool istiqbal, const BarisTahun& baris) const;
    // The syzygy at the markaz with its Masehi date, as the book's month reckoning dates its
    // ijtima': the date step of the tables on the alamah of the rows, less the hours to the
    // syzygy. None for a book whose alamah is a time of the week.
    std::optional<Nilai> saatBertanggal(Konteks& k, const BarisTahun& baris, const Nilai& saah) const;
    const DataKitabFR& kitab() const { return kitab_; }

private:
    DataKitabFR kitab_;
    BacaAlamahSyahr alamah_;
    Tanggal tanggal_;
};

}  // namespace falak
