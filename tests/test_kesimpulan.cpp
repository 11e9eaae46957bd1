// Dates and words of the conclusions: the Hijri to Masehi arithmetic, the search of a
// reckoned weekday, the names, and the wording of the hilal. Expected dates are worked by
// hand from the day-number rules (and agree with the civil calendar where it is known).
#include <gtest/gtest.h>

#include "FolderUji.h"
#include "conclusions/Kesimpulan.h"
#include "core/Koneksi.h"
#include "core/Maghrib.h"

using namespace falak;

namespace {

struct Uji : testing::Test {
    Sesi sesi;
    ClsKesimpulan ks{sesi};
    std::string teks(const std::optional<Nilai>& v) { return v ? v->teks() : "ERROR"; }
};

}  // namespace

TEST_F(Uji, ConvertToHijriCarriesTheDayNumberToTheCivilCalendar) {
    EXPECT_EQ(teks(ks.ConvertToHijri(1445, 9, 1)), "2024 03 10 1 1 00 00 00 00 1");  // Ahad Legi
    EXPECT_EQ(teks(ks.ConvertToHijri(1434, 9, 1)), "2013 07 8 3 2 00 00 00 00 1");
    EXPECT_EQ(teks(ks.ConvertToHijri(1434, 8, 30)), "2013 07 8 3 2 00 00 00 00 1");
    // The last day of a year is 31 December, never day 0 of January: day number 739253 is Julian
    // day 2460676, a Tuesday.
    EXPECT_EQ(teks(ks.ConvertToHijri(1446, 6, 30)), "2024 12 31 2 3 00 00 00 00 1");  // Selasa Pahing
        // Before the reform the Julian reckoning holds: 15 July 622, a Thursday.
    EXPECT_EQ(teks(ks.ConvertToHijri(1, 1, 1)), "622 07 15 5 5 00 00 00 00 1");
}

TEST_F(Uji, ConvertToHijriRefusesOverflow) {
    EXPECT_FALSE(ks.ConvertToHijri(200000000, 1, 1));
    EXPECT_FALSE(ks.ConvertToHijri(1445, 1200, 1));
}

TEST_F(Uji, CariTHMPinsTheWeekdayToADay) {
    // The ijtima' of the end of Sya'ban 1434 on a Monday: day 30, that is 8 July 2013.
    EXPECT_EQ(teks(ks.CariTHM(1434, 8, 2)), "2013 07 8 3 2 00 00 00 00 1");
    // The last day itself fits: no search.
    EXPECT_EQ(teks(ks.CariTHM(1434, 8, 1)), "2013 07 7 2 1 00 00 00 00 1");
    // Weekday 0 is Sabtu. The day of the month is written without a leading zero.
    EXPECT_EQ(teks(ks.CariTHM(1434, 8, 0)), "2013 07 6 1 7 00 00 00 00 1");
    // Month 12 past day 30 runs on as month 13: day 2 of it is 19 July 2023, a Wednesday.
    EXPECT_EQ(teks(ks.CariTHM(1444, 12, 4)), "2023 07 19 1 4 00 00 00 00 1");
}

TEST_F(Uji, NamesOfDaysPasaranAndMonths) {
    EXPECT_EQ(ClsKesimpulan::NamaHari(2, "36", false), "Senin");
    EXPECT_EQ(ClsKesimpulan::NamaHari(2, "18", false), " Malam Senin");
    EXPECT_EQ(ClsKesimpulan::NamaHari(2, "18", true), "Senin");
    EXPECT_EQ(ClsKesimpulan::NamaHari(2, "17", false), "Senin");
    EXPECT_EQ(ClsKesimpulan::NamaHari(2, "0", false), " Malam Senin");  // 0 counts as 24
    EXPECT_EQ(ClsKesimpulan::NamaHari(0, "17", false), "Sabtu");
    EXPECT_EQ(ClsKesimpulan::NamaHari(9, "17", false), "Senin");
    EXPECT_EQ(ClsKesimpulan::NamaHari(15, "17", false), "");
    EXPECT_EQ(ClsKesimpulan::NamaPas(0), "Kliwon");
    EXPECT_EQ(ClsKesimpulan::NamaPas(5), "Kliwon");
    EXPECT_EQ(ClsKesimpulan::NamaPas(6), "");
    EXPECT_EQ(ClsKesimpulan::ManaBln(8), "Agu");
    EXPECT_EQ(ClsKesimpulan::ManaBln(13), "");
    EXPECT_EQ(ClsKesimpulan::NamaBulan(7), "Sakban");
    EXPECT_EQ(ClsKesimpulan::NamaBulan(12), "");
}

TEST_F(Uji, FullMSpeaksADate) {
    sesi.barisBulan = 7;
    const Nilai selasa("2013 07 09 3 3 00 00 00 00 1");
    EXPECT_EQ(ks.FullM(selasa, "17", true), "Sy'ban : Selasa Pon, 9 Jul 2013 M.");
    EXPECT_EQ(ks.FullM(selasa, "36", false), "Selasa Pon, 9 Jul 2013 M.");
    EXPECT_EQ(ks.FullM(selasa, "18", false), "Malam Selasa Pon, 9 Jul 2013 M.");
    EXPECT_EQ(ks.CekHijriHaqiqi(selasa, Nilai("1434 9 1")), 1);
}

TEST_F(Uji, HeightStayAndLightOfTheHilal) {
    EXPECT_EQ(ClsKesimpulan::IrtifaHilal(Nilai("00 02 54 30 00 1"), true), "2°55' / 2.09 m");
    EXPECT_EQ(ClsKesimpulan::IrtifaHilal(Nilai("00 04 59 45 00 1"), true), "5° / 3.60 m");
    EXPECT_EQ(ClsKesimpulan::IrtifaHilal(Nilai("00 01 30 00 00 0"), true), "-1°30' / -1.08 m");
    EXPECT_EQ(ClsKesimpulan::IrtifaHilal(Nilai("00 01 30 00 00 0"), false), "1°30' / 1.08 m");
    EXPECT_EQ(ClsKesimpulan::IrtifaHilal(Nilai("03 00 00 29 00 1"), true), "0° / 0.01 m");

    EXPECT_EQ(ClsKesimpulan::MuktsulHilal(Nilai("00 00 11 38 00 1")), "00.11 Menit");
    EXPECT_EQ(ClsKesimpulan::MuktsulHilal(Nilai("00 00 00 45 00 1")), "00.00.45 Menit");
    EXPECT_EQ(ClsKesimpulan::MuktsulHilal(Nilai("00 00 11 38 00 0")), "00.00 Menit");

    EXPECT_EQ(ClsKesimpulan::NurHilal(Nilai("00 00 00 00 00 1")), "1/10 Ushbu'  / 0.000 cm");
    EXPECT_EQ(ClsKesimpulan::NurHilal(Nilai("00 03 57 00 00 1")), "4Ushbu'  / 2.844 cm");
    EXPECT_EQ(ClsKesimpulan::NurHilal(Nilai("00 00 37 11 00 1")), "3/5 Ushbu'  / 0.446 cm");
    EXPECT_EQ(ClsKesimpulan::NurHilal(Nilai("00 00 05 00 00 1")), "1/12 Ushbu'  / 0.060 cm");
}

TEST_F(Uji, SideAndLieOfTheHilal) {
    sesi.tempat.lintangDerajat = 0;
    sesi.tempat.lintangMenit = 0;
    EXPECT_EQ(ks.ArahHilal(Nilai("00 180 00 00 00 1")), " Di selatan");
    EXPECT_EQ(ks.ArahHilal(Nilai("00 179 00 00 00 1")), " Di utara");
    sesi.tempat.lintangDerajat = 7;
    sesi.tempat.lintangMenit = 30;
    EXPECT_EQ(ks.ArahHilal(Nilai("06 07 00 00 00 1")), " Di utara");     // 187 below 180 + 7.5
    EXPECT_EQ(ks.ArahHilal(Nilai("11 23 00 00 00 1")), " Di utara");     // 353 above 360 - 7.5
    EXPECT_EQ(ks.ArahHilal(Nilai("08 00 00 00 00 1")), " Di selatan");

    EXPECT_EQ(ClsKesimpulan::KeadaanHilal(Nilai("03 15 52 00 00 1")), "Miring ke selatan");
    EXPECT_EQ(ClsKesimpulan::KeadaanHilal(Nilai("11 27 00 00 00 1")), "Miring ke utara");
    EXPECT_EQ(ClsKesimpulan::KeadaanHilal(Nilai("00 03 00 00 00 1")), "Miring ke utara");

    const Nilai a("00 05 00 00 00 1"), b("00 03 00 00 00 1");
    EXPECT_EQ(ClsKesimpulan::Kemiringan(a, a, Nilai("00 09 00 00 00 1"), Nilai("00 01 00 00 00 1")), "Terlentang");
    EXPECT_EQ(ClsKesimpulan::Kemiringan(a, b, Nilai("00 09 00 00 00 1"), Nilai("00 04 00 00 00 1")), "Tegak lurus");
    EXPECT_EQ(ClsKesimpulan::Kemiringan(a, b, Nilai("00 09 00 00 00 1"), Nilai("00 05 00 00 00 1")), "Miring ke selatan");
    EXPECT_EQ(ClsKesimpulan::Kemiringan(Nilai("00 05 00 00 00 0"), b, Nilai("00 09 00 00 00 1"), Nilai("00 05 00 00 00 1")),
              "Miring ke selatan");
    EXPECT_EQ(ClsKesimpulan::AzimutSQ(Nilai("00 22 29 00 00 0")), "22°29' Di sebelah selatan titik barat");
}

TEST_F(Uji, SunsDeclinationAtSunset) {
    // Sun at Cancer 15° 52': declination 22° 29' 47" by the book's sine of 0;23,52.
    EXPECT_EQ(ks.SaatuMaghribS(Nilai("03 15 52 00 00 1")), "22°29' Di sebelah utara titik barat");
    EXPECT_EQ(ks.SaatuMaghribS(Nilai("09 00 00 00 00 1")), "23°26' Di sebelah selatan titik barat");
}

TEST_F(Uji, ZoneWordsAndPlaceLines) {
    sesi.tempat.zona = 8;
    EXPECT_EQ(ks.kataZona(), " WITA");
    sesi.tempat.zona = 3;
    EXPECT_EQ(ks.kataZona(), " W. Setempat");
    EXPECT_EQ(ClsKesimpulan::baris(" Jakarta ", 6, 15, 0, 106, 52, 1), "Jakarta 6° 15' LS | 106° 52' BT");
    EXPECT_EQ(ClsKesimpulan::baris("Makkah", 21, 25, 1, 39, 57, 1), "Makkah 21° 25' LU | 39° 57' BT");
}

TEST(WaktuMaghrib, SunsetAndSunriseByTheSunsPlace) {
    Tempat khatulistiwa = Tempat::cadangan();
    khatulistiwa.lintangDerajat = 0;
    khatulistiwa.lintangMenit = 0;
    const SaatMatahari nol = WaktuMaghrib(105, 0, khatulistiwa);
    EXPECT_EQ(nol.terbenam.format("hh.mm"), "06.03");  // 30 seconds do not lift the minute
    EXPECT_EQ(nol.terbit.format("hh.mm"), "05.56");
    // Jakarta in July: the sun sets some ten minutes before six, plus the fixed 3' 30".
    Tempat jakarta = Tempat::cadangan();
    jakarta.lintangDerajat = 6;
    jakarta.lintangMenit = 15;
    const SaatMatahari juli = WaktuMaghrib(105, 0, jakarta);
    EXPECT_EQ(juli.terbenam.format("hh.mm"), "05.53");
    EXPECT_EQ(juli.terbit.format("hh.mm"), "06.07");
}

TEST(Zona, LocalApparentTimeToTheZone) {
    uji::FolderUji folder("falak-zona");
    folder.tabel("TafawutWIB", "tgl,Jan1,Jan2,juli1,juli2,Okt1,Okt2\n8,6,40,5,0,12,30\n");
    ClsConnection koneksi(folder.lokasi());
    Sesi sesi;
    sesi.koneksi = &koneksi;
    sesi.tempat = {"Jakarta", "Jakarta", "0", 6, 15, "1", 106, 52, 7, 0};
    ClsKesimpulan ks(sesi);
    const Nilai juli("2013 07 8 3 2 00 00 00 00 1");
    // July: the sun is slow by 5 minutes; Jakarta lies 1° 52' east of 105°, 7' 28" of time.
    EXPECT_EQ(ks.JamIjtima("30", "11", juli), "06.11 WIS,  06.08  WIB");
    EXPECT_EQ(ks.keZona(7, 8, Waktu::dari(12, 11, 0)).format("hh:mm:ss"), "12:08:32");
    // October: the sun is fast by 12' 30".
    EXPECT_EQ(ks.keZona(10, 8, Waktu::dari(12, 0, 0)).format("hh:mm:ss"), "11:40:02");
    // A day without a row leaves the time as it was.
    EXPECT_EQ(ks.keZona(7, 9, Waktu::dari(12, 11, 0)).format("hh:mm:ss"), "12:11:00");
    // Makassar in WITA: 14° 24' east of 105° is 57' 36" of time, less than the hour of the zone.
    sesi.tempat = {"Makassar", "Makassar", "0", 5, 8, "1", 119, 24, 8, 0};
    EXPECT_EQ(ks.keZona(7, 8, Waktu::dari(12, 0, 0)).format("hh:mm:ss"), "12:07:24");
    EXPECT_EQ(ks.JamIjtimaTQQ("12:10:40", "12:02:29"), "12.11 WIS, 12.03 WITA");
}
