// The table engine on small tables made here. Every expected row is worked by hand from the
// rules of the worked look-up and of the value rows (products and quotients through 32-bit
// floats, subtractions in form 2 with three-digit darojah).
#include <gtest/gtest.h>

#include <array>

#include "methods/Taadil.h"

using namespace falak;

namespace {

Tabel tabel(const char* nama, std::string_view csv) {
    Tabel t(nama);
    EXPECT_EQ(t.bacaCsv(csv), "");
    return t;
}

struct Meja {
    Tabel trb;
    Tabel tqq;
    Tempat tempat = Tempat::cadangan();  // latitude 7
    ClsTaadil taadil{trb, tqq, tempat};
    std::array<Nilai, 5> baris;

    Meja(std::string_view csvTrb, std::string_view csvTqq = "Cari\n")
        : trb(tabel("TRBTaadil", csvTrb)), tqq(tabel("TQQTaadil", csvTqq)) {}

    std::array<std::string, 5> kerjakan(int kode, const char* nilai, int langkah, bool jam = false) {
        taadil.TaadilBaris(baris, kode, Nilai(nilai), langkah, jam);
        std::array<std::string, 5> teks;
        for (size_t i = 0; i < 5; ++i) teks[i] = baris[i].teks();
        return teks;
    }
};

using Lima = std::array<std::string, 5>;

}  // namespace

TEST(TaadilBaris, StepOneInterpolatesUpward) {
    Meja m("Cari,tdKsJah,tdKsQoh\n40,2,30\n41,2,36\n");
    // Key 1 x 30 + 10 = 40; the next row is a degree on, key 41. Half a degree on, half of 6'.
    EXPECT_EQ(m.kerjakan(1, "01 10 30 00 00 1", 1),
              (Lima{"01 10 30 00 00 1", "00 02 30 00 00 1", "00 02 36 00 00 1", "00 000 03 00 00 0",
                    "00 002 33 00 00 1"}));
    // The sign of the argument goes into the next row's search but not into the offset.
    EXPECT_EQ(m.kerjakan(1, "01 10 30 00 00 0", 1)[4], "00 002 33 00 00 1");
}

TEST(TaadilBaris, KeyZeroReadsTheLastRowAndTheLastRowWrapsToTheFirst) {
    Meja m("Cari,dqMsQoh\n1,52\n359,48\n360,50\n");
    // 0 degrees is key 360; a degree on is key 1. A third of a degree of 2' is 40".
    EXPECT_EQ(m.kerjakan(5, "00 00 20 00 00 1", 1),
              (Lima{"00 00 20 00 00 1", "00 00 50 00 00 1", "00 00 52 00 00 1", "00 000 00 40 00 0",
                    "00 000 50 40 00 1"}));
    // 359 degrees 30 minutes: the next row, a degree on, is the circle's end, key 360.
    const Lima r = m.kerjakan(5, "11 29 30 00 00 1", 1);
    EXPECT_EQ(r[1], "00 00 48 00 00 1");
    EXPECT_EQ(r[2], "00 00 50 00 00 1");
    EXPECT_EQ(r[4], "00 000 49 00 00 1");
}

TEST(TaadilBaris, StepOfTwelveMinutesKeepsItsSixtyTimesSmallerTerm) {
    Meja m("Cari,HsJah5_11,HsQoh5_11,HsNii5_11\n12,0,34,0\n816,0,40,0\n");
    // Code 24 starts at 17 degrees: 17 05 is key 0, wrapped to 816; 12 minutes on is key 12.
    // The term is 5/60 of a degree times (6' / 12 degrees): 2" 30''', not the 2' 30" of a
    // plain reading, and so the result is 40' less 2" 30'''.
    EXPECT_EQ(m.kerjakan(24, "00 17 05 00 00 1", 12),
              (Lima{"00 17 05 00 00 1", "00 00 40 00 00 1", "00 00 34 00 00 1", "00 000 00 02 30 1",
                    "00 000 39 57 30 1"}));
    // Another code reads the same degrees without the 17-degree start: key 17 x 60 = 1020,
    // wrapped once to 204, which is not there.
    EXPECT_EQ(m.taadil.Syatar1(23, Nilai("00 17 05 00 00 1"), 12, false).teks(), "");
}

TEST(TaadilBaris, LatitudeTableTakesItsPairByThePlaceAndItsStepFromTheRow) {
    Meja m("Cari,IqlimJah6,IqlimQoh6,IqlimJah7,IqlimQoh7,IqlimJah8,IqlimQoh8,MahFudIqlim\n"
           "10,4,0,5,0,6,0,12\n"
           "12,4,10,5,20,6,30,15\n");
    // At latitude 7 the second pair; the row names 12 as the next argument, so the interval is
    // 2 degrees and half a degree on is a quarter of the 20' rise.
    EXPECT_EQ(m.kerjakan(39, "00 10 30 00 00 1", 1),
              (Lima{"00 10 30 00 00 1", "00 05 00 00 00 1", "00 05 20 00 00 1", "00 000 05 00 00 0",
                    "00 005 05 00 00 1"}));
    const Nilai v("00 10 00 00 00 1");
    m.tempat.lintangDerajat = 6;
    EXPECT_EQ(m.taadil.Syatar1(39, v, 1, false).teks(), "00 04 00 00 00 1");
    m.tempat.lintangDerajat = 9;  // any latitude but 6 and 7 takes the third pair
    EXPECT_EQ(m.taadil.Syatar1(39, v, 1, false).teks(), "00 06 00 00 00 1");
}

TEST(TaadilBaris, RightAscensionIsSearchedBackwardToALongitude) {
    Meja m("Cari\n", "Cari,MatholiJah\n30,27\n31,28\n32,30\n33,31\n");
    // 30 40 searches 29, which no row holds, then 28 (longitude 31). The rise to the next row
    // is one degree, so 2 40 on gives 33 40.
    EXPECT_EQ(m.kerjakan(32, "00 030 40 00 00 1", 1),
              (Lima{"00 030 40 00 00 1", "01 01 00 00 00 1", "01 02 00 00 00 1", "00 02 40 00 00 0",
                    "01 03 40 00 00 1"}));
    // Whole 31 is found in the last row; the next row is then the first.
    EXPECT_EQ(m.kerjakan(32, "00 031 00 00 00 1", 1),
              (Lima{"00 031 00 00 00 1", "01 03 00 00 00 1", "01 00 00 00 00 1", "00 00 00 00 00 0",
                    "01 03 00 00 00 1"}));
}

TEST(Syatar1, KeysShapesAndWhatFindsNothing) {
    Meja m("Cari,tdKsJah,tdKsQoh,tdThMasehi\n29,1,1,13\n288,2,2,\n",
           "Cari,MatholiJah,MatholiQoh,SabaqQ2Nii,SabaqQ2Lis\n45,123,45,7,8\n");
    auto syatar = [&](int kode, const char* v, int langkah, bool jam = false) {
        return m.taadil.Syatar1(kode, Nilai(v), langkah, jam).teks();
    };
    // With the hour flag the key is days x 24 + hours, wrapping at 288.
    EXPECT_EQ(syatar(1, "01 05 30 00 00 1", 1, true), "00 01 01 00 00 1");
    EXPECT_EQ(syatar(1, "00 00 30 00 00 1", 1, true), "00 02 02 00 00 1");
    // Code 7 is an alamah-shaped text around the cell; code 16 is in form 2.
    EXPECT_EQ(syatar(7, "00 29 00 00 00 1", 1), "000 00 13 00 00 00 00 00 00");
    EXPECT_EQ(syatar(16, "01 15 59 00 00 1", 1), "00 123 45 00 00 1");
    EXPECT_EQ(syatar(19, "01 15 00 00 00 1", 1), "00 00 00 07 08 1");
    // Step 5: 1 x 30 + 15 / 5 x 5.
    EXPECT_EQ(syatar(16, "01 19 00 00 00 1", 5), "00 123 45 00 00 1");
    for (const int kode : {25, 32, 35, 0, 42}) EXPECT_EQ(syatar(kode, "01 15 00 00 00 1", 1), "") << kode;
    EXPECT_EQ(syatar(1, "00 07 00 00 00 1", 1), "");      // no such key
    EXPECT_EQ(syatar(1, "00 29 00 00 00 1", 0), "");      // a step of 0 makes no key
    EXPECT_EQ(syatar(2, "00 29 00 00 00 1", 1), "");      // the table lacks the columns
    EXPECT_EQ(syatar(7, "00 288 00 00 00 1", 1), "000 00  00 00 00 00 00 00");  // an empty cell
}

TEST(TaadilGanda, LunarTableInterpolatesInBothArguments) {
    Meja m("CariKsf,AshobiJah,AshobiQoh\n105,1,0\n106,1,6\n170,1,30\n171,1,36\n");
    std::array<Nilai, 11> b;
    // 12 15 is row 1 of the first argument (from 11 50 by 20'), 5' on; 40' 30" is key 40,
    // 30" on: key 40 + 65. Each term is sixty times smaller than a plain one, as the rule is.
    ASSERT_TRUE(m.taadil.TaadilKhusfGanda(b, 25, Nilai("00 12 15 00 00 1"), Nilai("00 00 40 30 00 1")));
    const std::array<std::string, 11> harap = {
        "00 01 00 00 00 1",  "00 01 06 00 00 1",  "00 000 00 03 00 0", "00 001 00 03 00 1",
        "00 01 30 00 00 1",  "00 01 36 00 00 1",  "00 000 00 03 00 0", "00 001 30 03 00 1",
        "00 000 30 00 00 0", "00 000 00 07 30 0", "00 001 00 10 30 1"};
    for (size_t i = 0; i < harap.size(); ++i) EXPECT_EQ(b[i].teks(), harap[i]) << "line " << i + 1;
    // Code 26 reads the Mukts columns, which this table lacks.
    EXPECT_FALSE(m.taadil.TaadilKhusfGanda(b, 26, Nilai("00 12 15 00 00 1"), Nilai("00 00 40 30 00 1")));
    EXPECT_EQ(b[0].teks(), "");
}

TEST(TaadilGanda, SolarTableRefusesValuesBeyondItsBounds) {
    Meja m("CariKsfS,AshobiJahS,AshobiQohS\n1,2,10\n65,2,20\n66,2,30\n351,2,0\n");
    std::array<Nilai, 13> b;
    auto ada = [&](const char* a, const char* bb) {
        return m.taadil.TaadilKusfGanda(b, 35, Nilai(a), Nilai(bb));
    };
    // 11 50 and 0' is key 0, which this table reads as 351.
    ASSERT_TRUE(ada("00 11 50 00 00 1", "00 00 00 00 00 1"));
    EXPECT_EQ(b[0].teks(), "00 02 00 00 00 1");
    EXPECT_EQ(b[1].teks(), "00 02 10 00 00 1");
    EXPECT_EQ(b[4].teks(), "00 02 20 00 00 1");
    EXPECT_EQ(b[11].teks(), "00 00 00 00 00 1");
    EXPECT_EQ(b[12].teks(), "00 11 50 00 00 1");
    // Up to 12 30 the latitude may reach 31', up to 14 50 32', beyond that 35'.
    EXPECT_FALSE(ada("00 12 30 00 00 1", "00 00 32 00 00 1"));
    for (const Nilai& sel : b) EXPECT_EQ(sel.teks(), "");
    EXPECT_FALSE(ada("00 12 40 00 00 1", "00 00 33 00 00 1"));
    EXPECT_FALSE(ada("00 15 00 00 00 1", "00 00 36 00 00 1"));
    EXPECT_EQ(b[12].teks(), "");
    ada("00 12 40 00 00 1", "00 00 32 00 00 1");
    EXPECT_EQ(b[12].teks(), "00 12 40 00 00 1");
    ada("00 15 00 00 00 1", "00 00 35 00 00 1");
    EXPECT_EQ(b[11].teks(), "00 00 35 00 00 1");
}

TEST(OperMasehi, LeapDayTestWithJanuaryAndFebruaryInTheYearBefore) {
    EXPECT_TRUE(ClsTaadil::OperMasehi(Nilai("2024 03 01 00 00 00 00 00 00 1")));
    EXPECT_FALSE(ClsTaadil::OperMasehi(Nilai("2024 02 10 00 00 00 00 00 00 1")));
    EXPECT_TRUE(ClsTaadil::OperMasehi(Nilai("2025 01 10 00 00 00 00 00 00 1")));
    EXPECT_FALSE(ClsTaadil::OperMasehi(Nilai("1900 05 10 00 00 00 00 00 00 1")));
    EXPECT_TRUE(ClsTaadil::OperMasehi(Nilai("2000 12 10 00 00 00 00 00 00 1")));
    EXPECT_FALSE(ClsTaadil::OperMasehi(Nilai("2024 13 10 00 00 00 00 00 00 1")));
}

// The date step of the treatises whose alamah carries a Masehi date: base Kamis Kliwon 15 July
// 622 (Julian) at 3 h 12 m after sunset, a group of 10631 days written as 29 years and a month.
// One group on lands on 15 August 651 and runs 8 days beyond it (JDN 1948439 + 10631 =
// 1959070 against 1959062); one group back lands on 15 June 593, 9 days short.
TEST(Taadil, MasehiDateOfTheGroupsSettledOnTheReckonedWeekday) {
    Meja m("Cari,tdThMasehi\n1,8\n359,-9\n");
    const Nilai mabda("622 07 15 00 05 03 12 00 00 1"), tambah("029 01 00 01 05 00 15 00 00 1");
    const Nilai nol("000 00 00 00 00 00 00 00 00 1");
    const Nilai saah("00 05 30 00 00 1");

    // Selasa Legi 23 August 651 at 3 h 27 m; less 5 h 30 m is Senin Kliwon 22 August, 21 h 57 m.
    auto r = m.taadil.Taadil(Nilai("0000 00 00 01 03 03 27 00 00 1"), nol, nol, saah, 1, 0, mabda, tambah);
    EXPECT_EQ(r[0].teks(), "651 08 23 01 03 03 27 00 00 1");
    EXPECT_EQ(r[1].teks(), "651 08 22 00 02 21 57 00 00 1");

    // A weekday one later moves the date with it.
    r = m.taadil.Taadil(Nilai("0000 00 00 01 04 03 27 00 00 1"), nol, nol, saah, 1, 0, mabda, tambah);
    EXPECT_EQ(r[0].teks(), "651 08 24 02 04 03 27 00 00 1");

    // The month row adds its days (one month of 30 and 29 days: two lunations, weekday 3 on).
    r = m.taadil.Taadil(Nilai("0000 00 00 01 03 03 27 00 00 1"), nol, Nilai("000 01 29 04 03 12 44 00 00 1"), saah,
                        1, 0, mabda, tambah);
    EXPECT_EQ(r[0].teks(), "651 10 21 00 06 16 11 00 00 1");

    // Groups taken off read their key from the top of the table: Sabtu Wage 6 June 593.
    r = m.taadil.Taadil(Nilai("0000 00 00 04 00 02 57 00 00 1"), nol, nol, saah, -1, 0, mabda, tambah);
    EXPECT_EQ(r[0].teks(), "593 06 06 04 00 02 57 00 00 1");

    // Without a row for the count of groups there is no date.
    r = m.taadil.Taadil(nol, nol, nol, saah, 2, 0, mabda, tambah);
    EXPECT_TRUE(r[0].kosongTeks());
    EXPECT_TRUE(r[1].kosongTeks());
}

TEST(TaadilKhusf, SignFromTheSumOfThreeValues) {
    const Nilai a("00 10 00 00 00 1"), b("00 10 59 00 00 1");
    EXPECT_EQ(ClsTaadil::TaadilKhusf(a, b, Nilai("00 06 00 00 00 1"), "LSLU"), "LS");
    EXPECT_EQ(ClsTaadil::TaadilKhusf(a, b, Nilai("00 07 00 00 00 1"), "LSLU"), "LU");
    EXPECT_EQ(ClsTaadil::TaadilKhusf(Nilai("01 10 00 00 00 1"), Nilai("00 05 00 00 00 1"),
                                     Nilai("00 06 00 00 00 1"), "LSLU"),
              "LS");  // 51
}
