// The skeleton of the lunar eclipse (khusuf) of the taqribi books on value rows: whether a
// Hijri month holds one, and then its middle, size, duration and phases, worked as the books
// work it by hand. The rows of the year and the month reach the mean full moon in the middle
// of the month; two tests on the moon's distance from its node (the Hishshoh) and on the
// hours of the phases decide whether an eclipse is there and seen by night; the tables give
// the moon's daily motion (Buhtu), its latitude at the full moon, and from both the fingers,
// the half duration and the half totality.
//
// Sullam al-Nairoin works it on its own rows (the sun's place from the Markaz and the auj);
// the books after Fathu al-Ro'uf's pattern start the sun's place from the Wasath. What a book
// does differently is data (its constants, its split of the years, its markaz) and a small
// override of the stage where it differs.
//
// The alamah counts weekday and hours from sunset (18:00); the middle and the phases are in
// local apparent time at the chosen place.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "eclipse/LangkahGerhana.h"
#include "methods/Baris.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

class ClsFlexGrid;
class FathurRouf;

class KerangkaKhusuf : public Modul {
public:
    ~KerangkaKhusuf() override;
    HasilHitung Hitung(const Permintaan& p) override { return HitungKhusuf(p.tahun, p.bulan, p.lembar); }

    // One month: empty (no sheet, no conclusion) when the month holds no eclipse seen by night.
    HasilHitung HitungKhusuf(int32_t tahun, int16_t bulan, bool lembar = true);

    // The stages, in this order; each reads what the one before it wrote. The first fills the
    // sums of the years and the month.
    virtual void PokokKhusuf(int32_t tahun, int16_t bulan) = 0;
    void TaadilKhusuf();
    void QomarKhusuf();
    void IstiqbalKhusuf();
    void ArdlKhusuf();
    void BuhtuKhusuf();
    void UkuranKhusuf();
    void FaseKhusuf();

    // The first test: the Hishshoh lies within 12 degrees of a node.
    static bool UjiHishshoh(const Nilai& hishshoh);
    // The second test: the start or the end of the eclipse falls by night (alamah hours before
    // 13, or 24 and more).
    static bool UjiMalam(const Nilai& awal, const Nilai& akhir);

    Baris<5> HsMajmu, HsMabsut, HsSyahr, HsJumlah;
    Baris<5> HsTdlKs, HsTdlMr, HsTdlAr, HsTdlHs, HsTdlDq;
    Baris<6> HsQomar, HsSyams;
    Baris<5> HsSaah;
    Baris<11> HsIstiqbal;
    Baris<7> HsArdl;
    Baris<4> HsBuhtu;
    Baris<5> HsTdlBuhtu, HsTdlHs2;
    Baris<11> HsAshobi, HsSaatKhusf, HsMuktsu;
    Baris<5> HsFase, HsFaseTotal;
    int32_t HsDawr = 0;
    int16_t HsSisaTahun = 0;
    int16_t HsBulan = 0;

protected:
    KerangkaKhusuf(Konteks k, const DataGerhana& data);

    // The stages from the ta'dil to the phases; false when the month turns out to hold no
    // eclipse after all. A book that reckons in decimals works them its own way and leaves
    // its results in these rows.
    virtual bool TahapKhusuf();
    // The full moon at the markaz with the Masehi date the book's alamah carries; none where the
    // alamah is a time of the week and the day is sought in the month by its weekday.
    virtual std::optional<Nilai> istiqbalBertanggal() { return std::nullopt; }
    BarisTahun barisTahun() { return {HsMajmu, HsMabsut, HsSyahr, HsJumlah, HsDawr, HsSisaTahun, HsBulan}; }

    Konteks k_;

private:
    void KesimpulanKhusuf(HasilHitung& h);
    void IsiTabelKhusuf(ClsFlexGrid& g);
    void tulisSel(ClsFlexGrid& g);
    std::vector<BarisTercatat> baris() const;
    // The first of the month from Fathu al-Ro'uf's reckoning of the month before.
    std::optional<Nilai> awalBulan(int32_t tahun, int16_t bulan);

    const Nilai& khossyoh() const;

    const DataGerhana& data_;
    std::unique_ptr<FathurRouf> fathur_;
};

// The lunar eclipse of a book of Fathu al-Ro'uf's pattern: the skeleton on the book's rows of
// years and its month table's full-moon columns.
class KhusufPolaFathu : public KerangkaKhusuf {
public:
    void PokokKhusuf(int32_t tahun, int16_t bulan) override;

protected:
    KhusufPolaFathu(Konteks k, const DataGerhana& data, PokokFathu pokok);
    std::optional<Nilai> istiqbalBertanggal() override;

private:
    PokokFathu pokok_;
};

}  // namespace falak
