// The lunar eclipse: the words of its conclusion at their thresholds, the two tests that find
// it, and Sullam al-Nairoin's drifting base against the book's printed row of the full moon.
// Expected values are worked by hand from the rules and the book's figures.
#include <gtest/gtest.h>

#include "SesiUji.h"
#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Tingkatan.h"
#include "eclipse/lunar/KhusufSullam.h"

using namespace falak;

namespace {

struct Kata : testing::Test {
    Sesi sesi;
    ClsKesimpulan ks{sesi};
};

Nilai busur(int d, int m) { return DlorbuSittin(0, d, m, 0, 0, 1, 1); }

}  // namespace

TEST_F(Kata, SizeIsTotalFromTwelveFingers) {
    EXPECT_EQ(ks.UkuranGerhana(busur(12, 0)), "12 Ushbu' (Total)");
    EXPECT_EQ(ks.UkuranGerhana(busur(21, 30)), "12 Ushbu' (Total)");
    // Below twelve the band of the light: 11 59 is a whole finger more.
    EXPECT_EQ(ks.UkuranGerhana(busur(11, 59)).substr(0, 9), "12Ushbu' ");
    EXPECT_EQ(ks.UkuranGerhana(busur(3, 30)).substr(0, 15), "1/2 Ushbu'  / 2");
}

TEST_F(Kata, ColoursChangeAtTheirLimits) {
    // The moon's table takes the limit below, the sun's the limit at or above.
    EXPECT_EQ(ClsKesimpulan::WarnaGerhana(busur(0, 10)), "Hitam");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhana(busur(0, 11)), "Hitam ke hijau - hijauan");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhana(busur(0, 50)), "Coklat");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhana(busur(0, 51)), "Kelabu");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(0, 20)), "Kuning keputi - putihan");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(0, 21)), "Kuning");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(7, 0)), "Coklat ke merah - merahan");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(7, 1)), "kelabu ke coklat - coklatan");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(12, 0)), "Sangat hitam");
    EXPECT_EQ(ClsKesimpulan::WarnaGerhanaM(busur(12, 1)), "");
}

TEST_F(Kata, DateOfTheFullMoonIsFoundByItsWeekday) {
    sesi.barisBulan = 2;
    sesi.tahunHijri = "1447";
    // 1 Robiul awal 1447 is Ahad Pon 24 Aug 2025; the reckoned full moon falls on a Senin
    // (weekday 2): the 15th day on (i = 14) is Senin 8 Sep, the 16th of the month.
    Nilai tanggal("2025 08 24 03 01 01 00 00 00 1");
    int16_t hari = 0;
    const Nilai senin("000 00 00 00 02 07 28 00 00 1");
    EXPECT_EQ(ks.FullGerhanB(tanggal, senin, senin, hari), "Senin Pon, 16 R. Awal 1447 H./ 8 Sep 2025 M.");
    EXPECT_EQ(hari, 16);
    // At 3 hours of the alamah clock (21.00) the night is the eve of that day.
    tanggal = Nilai("2025 08 24 03 01 01 00 00 00 1");
    const Nilai malam("000 00 00 00 02 03 00 00 00 1");
    EXPECT_EQ(ks.FullGerhanB(tanggal, malam, malam, hari).substr(0, 17), "Malam Senin Pon, ");
    // Weekday 0 reads as 7, Sabtu: the 7th day on, i = 13, Sabtu 6 Sep.
    tanggal = Nilai("2025 08 24 03 01 01 00 00 00 1");
    EXPECT_NE(ks.FullGerhanB(tanggal, Nilai("000 00 00 00 00 07 00 00 00 1"), senin, hari).find("Sabtu"),
              std::string::npos);
    EXPECT_EQ(hari, 14);
    EXPECT_EQ(AmbilTingkat(tanggal, MedanTanggal), 6);
}

TEST_F(Kata, ClockLinesOfThePhases) {
    const Nilai jam("000 00 00 00 02 19 28 00 00 1");
    EXPECT_EQ(ks.FormatJam(jam, Nilai("2025 09 08 02 02 01 00 00 00 1"), false, {}, busur(3, 0), true, false),
              "19.28");
    // Without a table of the zone the two times are the same; the part of the day is read from
    // the first time as a text, and the side from the Buruj of the latitude value.
    const Nilai tgl("2025 09 08 02 02 01 00 00 00 1");
    EXPECT_EQ(ks.FormatJam(Nilai("000 00 00 00 02 08 59 00 00 1"), tgl, true, busur(3, 0), busur(3, 0), true, false),
              "08.59 WIS, 08.59 WIB (Pagi) (dr Utara t'laut)");
    EXPECT_EQ(ks.FormatJam(Nilai("000 00 00 00 02 09 00 00 00 1"), tgl, true, Nilai("06 03 00 00 00 1"),
                           busur(3, 0), true, true),
              "09.00 WIS, 09.00 WIB (Siang) (dr Selatan)");
    EXPECT_EQ(ks.FormatJam(Nilai("000 00 00 00 02 18 00 00 00 1"), tgl, true, {}, busur(12, 0), true, false),
              "18.00 WIS, 18.00 WIB (Malam)");
    EXPECT_EQ(ks.FormatJam(Nilai("000 00 00 00 02 17 59 00 00 1"), tgl, true, busur(0, 1), busur(12, 0), true, true),
              "17.59 WIS, 17.59 WIB (Sore) (dr Barat)");
}

TEST(UjiKhusuf, HishshohWithinTwelveDegreesOfANode) {
    EXPECT_TRUE(KerangkaKhusuf::UjiHishshoh(Nilai("00 12 59 00 00 1")));
    EXPECT_FALSE(KerangkaKhusuf::UjiHishshoh(Nilai("00 13 00 00 00 1")));
    EXPECT_TRUE(KerangkaKhusuf::UjiHishshoh(Nilai("06 00 00 00 00 1")));
    EXPECT_TRUE(KerangkaKhusuf::UjiHishshoh(Nilai("12 12 00 00 00 1")));
    EXPECT_TRUE(KerangkaKhusuf::UjiHishshoh(Nilai("05 18 00 00 00 1")));
    EXPECT_FALSE(KerangkaKhusuf::UjiHishshoh(Nilai("11 17 59 00 00 1")));
    EXPECT_FALSE(KerangkaKhusuf::UjiHishshoh(Nilai("01 05 00 00 00 1")));
}

TEST(UjiKhusuf, SeenWhenTheStartOrTheEndFallsByNight) {
    const Nilai siang13("000 00 00 00 03 13 00 00 00 1");
    const Nilai siang23("000 00 00 00 03 23 59 00 00 1");
    EXPECT_FALSE(KerangkaKhusuf::UjiMalam(siang13, siang23));
    EXPECT_TRUE(KerangkaKhusuf::UjiMalam(Nilai("000 00 00 00 03 12 59 00 00 1"), siang23));
    EXPECT_TRUE(KerangkaKhusuf::UjiMalam(siang13, Nilai("000 00 00 00 04 00 10 00 00 1")));
}

namespace {

struct SesiKhusuf : uji::SesiUji {
    KhusufSullam* sn = nullptr;
    SesiKhusuf() : uji::SesiUji("falak-khusuf") {}
    void SetUp() override {
        folder.tabel("Balad", uji::kKepalaBalad + "Jakarta,Jakarta,6,15,LS,106,52,BT,7,8\n");
        bukaSesi();
        sn = dynamic_cast<KhusufSullam*>(ws->modul(*CariModul("SN", Garapan::Hs)));
        ASSERT_NE(sn, nullptr);
    }
};

}  // namespace

TEST_F(SesiKhusuf, BaseOf1420AgainstThePrintedFullMoonRow) {
    // The book's row of the full moon of 1420: alamat 0 15 37, hishshah 2-22-30, khashshah
    // 11-17-57, markaz 9-27-57, auj 3-12-18. The base with its drift, 143 groups on, gives the
    // alamat, markaz and auj exactly; the Hishshoh's base 3s 5° 42' less 286' is 3s 0° 56',
    // plus 143 x 80° 30' (11s 21° 30') makes 2s 22° 26'; the Khossyoh's 4s 16° 13' less 143'
    // is 4s 13° 50', plus 143 x 218° (7s 4°) makes 11s 17° 50': 4' and 7' short of the print.
    sn->PokokKhusuf(1420, 1);
    EXPECT_EQ(sn->HsDawr, 143);
    EXPECT_EQ(sn->HsSisaTahun, 0);
    EXPECT_EQ(AmbilTingkat(sn->HsMajmu(1), MedanHari), 0);
    EXPECT_EQ(AmbilTingkat(sn->HsMajmu(1), MedanJam), 15);
    EXPECT_EQ(AmbilTingkat(sn->HsMajmu(1), MedanMenit), 37);
    EXPECT_EQ(sn->HsMajmu(2).teks(), "02 22 26 00 00 1");
    EXPECT_EQ(sn->HsMajmu(3).teks(), "11 17 50 00 00 1");
    EXPECT_EQ(sn->HsMajmu(4).teks(), "09 27 57 00 00 1");
    EXPECT_EQ(sn->HsMajmu(5).teks(), "03 12 18 00 00 1");
    // Month 1 adds nothing and reads no table.
    EXPECT_EQ(sn->HsJumlah(2).teks(), sn->HsMajmu(2).teks());
}

TEST_F(SesiKhusuf, AMonthFarFromTheNodeMakesNoSheet) {
    // 1420, month 1: the Hishshoh 2s 22° 26' is far from both nodes.
    const auto hasil = ws->mnuProsesGerhana(Garapan::Hs, "SN", "1420", 1, "Jakarta");
    EXPECT_EQ(hasil.lembar, nullptr);
    ASSERT_TRUE(hasil.pesan);
    EXPECT_EQ(hasil.pesan->judul, "Tidak ada gerhana");
    EXPECT_TRUE(ws->lembar.empty());
}
