// ClsKesimpulan: the one object through which a reckoned result becomes dates and words.
//
// Its calendar half carries a Hijri date to the Masehi calendar with weekday and Javanese
// pasaran, and pins a weekday reckoned by a treatise to a calendar date; its hilal half words
// the time of the ijtima', the height, side, lie, stay and light of the hilal and the sunset,
// in local apparent time (WIS) and in the place's zone.
//
// A date value is ten blank-separated fields: Masehi year, month "MM", day, pasaran index
// (1 Legi .. 5 Kliwon), weekday index (1 Ahad .. 7 Sabtu), "00 00 00 00 1"; it is read with
// AmbilTingkat (6 year, 7 month, 8 day, 9 pasaran, 10 weekday).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Nilai.h"
#include "core/Sesi.h"
#include "core/Tabel.h"
#include "core/Waktu.h"

namespace falak {

// A markaz as a conclusion line names it (flags: non-zero is north, east).
struct TitikMarkaz {
    const char* nama;
    int lintangDerajat, lintangMenit, tandaLintang;
    int bujurDerajat, bujurMenit, tandaBujur;
};

class ClsKesimpulan {
public:
    explicit ClsKesimpulan(Sesi& sesi);

    // The day near the end of Hijri month (tahun, bulan) that falls on the reckoned weekday:
    // the one of the seven days from the 27th on (past the month's end the count runs on into
    // the next month). No result when the year or month overflows the reckoning.
    static std::optional<Nilai> CariTHM(int32_t tahun, int32_t bulan, int32_t hari);
    // A Hijri date on the Masehi calendar (the name is kept: it converts from Hijri), by the
    // arithmetic calendar of the thirty-year cycle; it touches no state.
    static std::optional<Nilai> ConvertToHijri(int32_t tahun, int32_t bulan, int32_t tanggal);
    // The date value so many days on (back, when negative), with its pasaran and weekday.
    static Nilai GeserHari(const Nilai& tanggal, int hari);
    // Day of the month of a less that of the Hijri date b on the Masehi calendar.
    static int16_t CekHijriHaqiqi(const Nilai& a, const Nilai& b);
    // A date in words; with bulanHijri the month list's name in front.
    std::string FullM(const Nilai& tanggal, std::string_view jam, bool bulanHijri) const;
    static std::string NamaHari(int hari, std::string_view jam, bool bendera);
    static std::string NamaBulan(int bulan);
    static std::string NamaPas(int pasaran);
    static std::string ManaBln(int bulan);

    // Hilal conclusions.
    std::string JamIjtima(std::string_view jam, std::string_view menit, const Nilai& tanggal);
    std::string JamIjtimaTQQ(std::string_view waktuWis, std::string_view waktuZona);
    std::string SaatuMaghribS(const Nilai& matahari);
    static std::string AzimutSQ(const Nilai& azimut);
    static std::string Kemiringan(const Nilai& a, const Nilai& b, const Nilai& c, const Nilai& d);
    static std::string IrtifaHilal(const Nilai& tinggi, bool bertanda);
    std::string ArahHilal(const Nilai& tempatHilal);
    static std::string KeadaanHilal(const Nilai& matahari);
    static std::string MuktsulHilal(const Nilai& lama);
    // Sunset for the sun's place " b c" (Buruj and Darojah); the two lines of sunset and
    // sunrise go to the outputs; returns the raw sunset time.
    Waktu WaktuGurub(const Nilai& matahari, std::string& gurub, std::string& terbit);
    static std::string NurHilal(const Nilai& nur);

    // Eclipse conclusions.
    //
    // The size in fingers: twelve and more is a total eclipse, else the band of the hilal's light.
    static std::string UkuranGerhana(const Nilai& ukuran);
    // The date line of a lunar eclipse. `tanggal` comes in as the first of the Hijri month and
    // leaves as the day, from the 12th to the 18th, that falls on the weekday of `hariDihitung`
    // ; hariHijri is left as that day of the month. When none does, the date
    // of the 18th with the day 17, as the search leaves them. The time `jam`
    // (hours from sunset) makes an evening read as the eve of that day.
    std::string FullGerhanB(Nilai& tanggal, const Nilai& hariDihitung, const Nilai& jam, int16_t& hariHijri) const;
    // The same line for a book whose reckoning carries the date (`tanggal`, a date value):
    // the first of the Hijri month `awal` gives the day of the month.
    std::string FullGerhanBTanggal(const Nilai& awal, const Nilai& tanggal, const Nilai& jam, int16_t& hariHijri) const;
    // The date line of a solar eclipse: the date of the ijtima', written the 29th of the run's month.
    std::string FullGerhanM(Nilai& tanggal, const Nilai& jam) const;
    // The clock line of a phase: the time (an alamah value or an arc value of hours) in local
    // apparent time and in the place's zone for the date's month and day, the part of the day,
    // and with a latitude value `tempat` the side from which the body is touched (`akhir`: the
    // side it leaves). With `lengkap` clear only "hh.mm"; with `zonaKedua` clear the two times
    // change places under their labels.
    std::string FormatJam(const Nilai& jam, const Nilai& tanggal, bool lengkap, const Nilai& tempat,
                          const Nilai& ukuran, bool zonaKedua, bool akhir) const;
    // The colour of the moon and of the sun in eclipse, by degrees and minutes of the value.
    static std::string WarnaGerhana(const Nilai& v);
    static std::string WarnaGerhanaM(const Nilai& v);

    // A local apparent time (WIS) moved to the place's zone for a civil month and day.
    Waktu keZona(int bulan, int hari, Waktu waktu) const;
    // " WIB", " WITA", " WIT" or " W. Setempat" by the place's zone.
    std::string kataZona() const;
    // A place line: name, latitude and longitude with their sides.
    static std::string baris(std::string_view nama, int lintangDerajat, int lintangMenit, int tandaLintang,
                             int bujurDerajat, int bujurMenit, int tandaBujur);
    // The same line for the markaz a treatise reckons from, and for the session's place.
    static std::string barisMarkaz(const TitikMarkaz& m);
    static std::string barisTempat(const Tempat& t);

private:
    // The words of a lunar eclipse's date line, once its day is known.
    std::string barisGerhanaB(const Nilai& tanggal, const Nilai& jam, int16_t hariHijri) const;
    // The place's share of the zone time: the hours of its longitude from the zone's meridian
    // and the zone's hours from WIB, kept with the place they were worked out for.
    struct SelisihTempat {
        std::string tandaBujur;
        int16_t bujurDerajat = 0, bujurMenit = 0, zona = 0;
        Nilai jamBujur, jamZona;
    };
    const SelisihTempat& selisihTempat() const;

    Sesi& sesi_;
    mutable std::optional<SelisihTempat> selisihTempat_;
    // The equation of time's minutes and seconds by civil month, and the day column.
    std::array<std::array<KolomTabel, 2>, 12> kolomTafawut_;
    KolomTabel kolomTanggal_{"tgl"};
};

}  // namespace falak
