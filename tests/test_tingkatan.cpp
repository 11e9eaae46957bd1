// Finishing of alamah and arc values: borrows, carries, wraps of weeks, months and circles.
// Expected rows are worked by hand from the rules of the value rows.
#include <gtest/gtest.h>

#include "core/Tingkatan.h"

using namespace falak;

TEST(Pengurang, UnitsToBorrowForANegativeField) {
    EXPECT_EQ(Pengurang(-60, 60), 1);
    EXPECT_EQ(Pengurang(-61, 60), 2);
    EXPECT_EQ(Pengurang(0, 60), 0);
    EXPECT_EQ(Pengurang(-1, 24), 1);
    EXPECT_EQ(Pengurang("-120", "60"), 2);
    EXPECT_EQ(Pengurang(" -1 20", "60"), 2);  // blanks are taken out before reading
    EXPECT_FALSE(Pengurang(-5, 0));
}

TEST(Umurbulan, GregorianLengthsForEveryYear) {
    EXPECT_EQ(Umurbulan(2024, 2), 29);
    EXPECT_EQ(Umurbulan(2023, 2), 28);
    EXPECT_EQ(Umurbulan(1900, 2), 28);
    EXPECT_EQ(Umurbulan(2000, 2), 29);
    EXPECT_EQ(Umurbulan(1500, 2), 28);  // no Julian rule before the reform
    EXPECT_EQ(Umurbulan(2023, 4), 30);
    EXPECT_EQ(Umurbulan(2023, 12), 31);
    EXPECT_EQ(Umurbulan(2023, 0), 31);
}

TEST(Umurbulan, MonthsOutsideTheYearShiftOnce) {
    EXPECT_EQ(Umurbulan(2023, 13), 31);  // January
    EXPECT_EQ(Umurbulan(2024, 14), 29);  // February of the same year number
    EXPECT_EQ(Umurbulan(2023, -1), 30);  // November
    EXPECT_EQ(Umurbulan(2023, 25), 0);
    EXPECT_EQ(Umurbulan(2023, -13), 0);
}

TEST(DlorbuSittin, WholeCircleStaysOnlyWhenGivenExactly) {
    EXPECT_EQ(DlorbuSittin(12, 0, 0, 0, 0, 1, 1).teks(), "12 00 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(12, 0, 0, 1, 0, 1, 1).teks(), "00 00 00 01 00 1");
    EXPECT_EQ(DlorbuSittin(13, 0, 0, 0, 0, 1, 1).teks(), "01 00 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(11, 30, 0, 0, 0, 1, 1).teks(), "00 00 00 00 00 1");  // 12 reached by a carry
    EXPECT_EQ(DlorbuSittin(24, 0, 0, 0, 0, 1, 1).teks(), "00 00 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 360, 0, 0, 0, 1, 2).teks(), "00 360 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 360, 1, 0, 0, 1, 2).teks(), "00 000 01 00 00 1");
    EXPECT_EQ(DlorbuSittin(12, 0, 0, 0, 0, 1, 2).teks(), "00 360 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 725, 0, 0, 0, 1, 2).teks(), "00 005 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 725, 0, 0, 0, 1, 3).teks(), "00 725 00 00 00 1");
}

TEST(DlorbuSittin, WrapSetsTheSignToPlusOnlyIfItWasPlus) {
    EXPECT_EQ(DlorbuSittin(13, 0, 0, 0, 0, 0, 1).teks(), "01 00 00 00 00 0");
    EXPECT_EQ(DlorbuSittin(13, 0, 0, 0, 0, 7, 1).teks(), "01 00 00 00 00 0");
    EXPECT_EQ(DlorbuSittin(3, 0, 0, 0, 0, 7, 1).teks(), "03 00 00 00 00 7");  // no wrap: kept as given
}

TEST(DlorbuSittin, NegativeFieldsBorrowAndInvertTheSign) {
    EXPECT_EQ(DlorbuSittin(-1, 0, 0, 0, 0, 1, 1).teks(), "11 00 00 00 00 0");
    EXPECT_EQ(DlorbuSittin(0, 10, -1, 0, 0, 1, 1).teks(), "00 09 59 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 0, 0, 0, -1, 1, 1).teks(), "11 29 59 59 59 0");
    EXPECT_EQ(DlorbuSittin(1, -5, 0, 0, 0, 1, 1).teks(), "00 25 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, -7, 0, 0, 0, 0, 1).teks(), "11 23 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, -10, 0, 0, 0, 1, 2).teks(), "00 350 00 00 00 0");
    EXPECT_EQ(DlorbuSittin(0, -400, 0, 0, 0, 1, 2).teks(), "00 040 00 00 00 0");  // 360 is added once only
    EXPECT_EQ(DlorbuSittin(0, -5, 0, 0, 0, 1, 3).teks(), "00 005 00 00 00 1");    // mode 3 never repairs
}

TEST(DlorbuSittin, CarriesAndFolding) {
    EXPECT_EQ(DlorbuSittin(0, 29, 59, 59, 60, 1, 1).teks(), "01 00 00 00 00 1");
    EXPECT_EQ(DlorbuSittin(2, 10, 75, 0, 0, 1, 3).teks(), "00 071 15 00 00 1");
    EXPECT_EQ(DlorbuSittin(0, 95, 0, 0, 0, 1, 1).teks(), "03 05 00 00 00 1");
}

TEST(DlorbuSittin, TextFieldsAreReadAndRoundedHalfToEven) {
    EXPECT_EQ(DlorbuSittin("0", "007", "2.5", "3.5", "", 1, 1)->teks(), "00 07 02 04 00 1");
    EXPECT_EQ(DlorbuSittin("1 2", "0", "0", "0", "0", 1, 1)->teks(), "12 00 00 00 00 1");  // blanks inside are taken out
    EXPECT_FALSE(DlorbuSittin("0", "3e10", "0", "0", "0", 1, 1));
}

TEST(AlamahTarkh, ModeZeroKeepsTheWeekOnly) {
    EXPECT_EQ(AlamahTarkh(0, {1445, 5, 12, 0, 7, 14, 4, 0, 0}, 1).teks(), "000 00 00 00 00 14 04 00 00 1");
    // A negative hour walks weekday and pasaran back; the day it also moves is thrown away.
    EXPECT_EQ(AlamahTarkh(0, {0, 0, 0, 0, 0, -1, 0, 0, 0}, 1).teks(), "000 00 00 04 06 23 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(0, {0, 0, 0, 0, 6, 20, 75, 0, 0}, 1).teks(), "000 00 00 00 06 21 15 00 00 1");
    EXPECT_EQ(AlamahTarkh(0, {0, 0, 0, 3, 6, 25, 0, 0, 0}, 1).teks(), "000 00 00 04 00 01 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(0, {0, 0, 0, 0, 2, 0, 0, -1, 0}, 0).teks(), "000 00 00 04 01 23 59 59 00 0");
}

TEST(AlamahTarkh, ModeOneCountsMonthsOfThirtyDays) {
    EXPECT_EQ(AlamahTarkh(1, {1445, 5, 35, 0, 0, 0, 0, 0, 0}, 1).teks(), "1445 06 05 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 5, 0, 0, 0, 0, 0, 0, 0}, 1).teks(), "1445 04 30 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 0, 0, 0, 0, 0, 0, 0, 0}, 1).teks(), "1444 11 30 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 0, 5, 0, 0, 0, 0, 0, 0}, 1).teks(), "1445 00 05 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 12, 5, 0, 0, 0, 0, 0, 0}, 1).teks(), "1445 12 05 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 13, 5, 0, 0, 0, 0, 0, 0}, 1).teks(), "1446 01 05 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 12, 30, 0, 0, 24, 0, 0, 0}, 1).teks(), "1446 01 01 01 01 00 00 00 00 1");
}

TEST(AlamahTarkh, ModeTwoFollowsTheCivilCalendar) {
    EXPECT_EQ(AlamahTarkh(2, {2024, 2, 30, 0, 0, 0, 0, 0, 0}, 1).teks(), "2024 03 01 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(2, {2023, 2, 29, 0, 0, 0, 0, 0, 0}, 1).teks(), "2023 03 01 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(2, {2024, 3, 0, 0, 0, 0, 0, 0, 0}, 1).teks(), "2024 02 29 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(2, {2024, 1, 0, 0, 0, 0, 0, 0, 0}, 1).teks(), "2023 12 31 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(2, {2024, 0, 5, 0, 0, 0, 0, 0, 0}, 1).teks(), "2023 12 05 00 00 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(2, {2024, 12, 32, 0, 0, 0, 0, 0, 0}, 1).teks(), "2025 01 01 00 00 00 00 00 00 1");
    // The day carried by the hours is put into the next month by the second day test.
    EXPECT_EQ(AlamahTarkh(2, {2024, 2, 29, 0, 0, 24, 0, 0, 0}, 1).teks(), "2024 03 01 01 01 00 00 00 00 1");
}

TEST(AlamahTarkh, OtherModesLeaveDayAndMonthAlone) {
    EXPECT_EQ(AlamahTarkh(3, {2024, 2, 29, 4, 6, 0, 0, 0, 0}, 1).teks(), "2024 02 29 04 06 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(3, {2024, 2, 29, 4, 6, 48, 0, 0, 0}, 1).teks(), "2024 02 31 01 01 00 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(-1, {0, 13, 40, 0, 0, 0, 0, 0, 0}, 1).teks(), "001 01 40 00 00 00 00 00 00 1");
}

TEST(AlamahTarkh, TextFields) {
    const std::array<std::string_view, 9> medan = {"1445", "8", "29", "0", "007", "18", "11", "0", "0"};
    EXPECT_EQ(AlamahTarkh(1, medan, 1)->teks(), "1445 08 29 00 00 18 11 00 00 1");
}

TEST(CAlamahToUmum, HoursBecomeDegreesOfTheFirstForm) {
    EXPECT_EQ(CAlamahToUmum(Nilai("000 00 00 00 00 45 00 00 00 1")).teks(), "01 15 00 00 00 1");
    EXPECT_EQ(CAlamahToUmum(Nilai("000 00 00 00 03 18 11 30 15 0")).teks(), "00 18 11 30 15 0");
}

TEST(CUmumToAlamah, BurujIsTheWeekdayAndDarojahTheHour) {
    EXPECT_EQ(CUmumToAlamah(Nilai("02 05 30 00 00 1"), false).teks(), "000 00 00 00 02 05 30 00 00 1");
    EXPECT_EQ(CUmumToAlamah(Nilai("00 30 00 00 00 1"), false).teks(), "000 00 00 01 01 06 00 00 00 1");
    EXPECT_EQ(CUmumToAlamah(Nilai("00 30 00 00 00 1"), true).teks(), "000 00 01 01 01 06 00 00 00 1");
    EXPECT_EQ(CUmumToAlamah(Nilai("00 02 -30 00 00 0"), false).teks(), "000 00 00 00 00 01 30 00 00 0");
}
