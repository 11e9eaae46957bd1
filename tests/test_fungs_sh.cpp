// The decimal routines of Syamsu al-Hilal, worked by hand from their rules.
#include <gtest/gtest.h>

#include "core/FungsSH.h"

using namespace falak;

TEST(GeserSH, HoursMoveTheWeekdayByFiveAGroup) {
    std::string hari;
    // 48 groups: 3.05 + 48 x 0.25 = 15.05 hours; weekday 5 + 240 = 245 = 35 weeks exactly.
    EXPECT_FLOAT_EQ(*GeserSH(-1, 3.05f, 0.25f, 48, hari), 15.05f);
    EXPECT_EQ(hari, "0");
    // A step of nothing still counts as a forward step: 5 + 5 = 10, that is 3.
    EXPECT_FLOAT_EQ(*GeserSH(-1, 3.05f, 0.0f, 1, hari), 3.05f);
    EXPECT_EQ(hari, "3");
    // Taking off: 5 - 5 = 0 stays 0; 5 - 10 = -5 gains 7 x |0 - 1|; 5 - 70 = -65 gains 7 x 10.
    EXPECT_FLOAT_EQ(*GeserSH(-1, 3.05f, -0.25f, 1, hari), 2.8f);
    EXPECT_EQ(hari, "0");
    GeserSH(-1, 3.05f, -0.25f, 2, hari);
    EXPECT_EQ(hari, "2");
    GeserSH(-1, 3.05f, -0.25f, 14, hari);
    EXPECT_EQ(hari, "5");
}

TEST(GeserSH, HoursPastADayGoByTheirRoundedCount) {
    std::string hari;
    // 90 groups: 25.55 hours; 26 \ 24 = 1 day, 1.55 hours left; 5 + 450 + 1 = 456 = 65 weeks + 1.
    EXPECT_NEAR(*GeserSH(-1, 3.05f, 0.25f, 90, hari), 1.55, 1e-5);
    EXPECT_EQ(hari, "1");
    // 47.6 hours round to 48: two days go, and the hours fall below zero.
    EXPECT_NEAR(*GeserSH(-1, 47.6f, 0.0f, 0, hari), -0.4, 1e-5);
    EXPECT_EQ(hari, "7");
}

TEST(GeserSH, DegreesLoseWholeTurnsByTheirRoundedCount) {
    std::string hari = "tetap";
    // 348.767 + 48 x 241.4 = 11935.967; 11936 \ 360 = 33 turns.
    EXPECT_NEAR(*GeserSH(0, 348.767f, 241.4f, 48, hari), 55.967, 1e-3);
    EXPECT_NEAR(*GeserSH(0, 117.35f, 38.4f, 48, hari), 160.55, 1e-3);
    EXPECT_EQ(hari, "tetap");  // degrees hand back no count
    // 719.6 rounds to 720: two turns go and the value falls below zero.
    EXPECT_NEAR(*GeserSH(0, 719.6f, 0.0f, 0, hari), -0.4, 1e-4);
    // Below zero: -183.75 rounds to -184, \ 360 = 0, so it stays; -500 gains one turn.
    EXPECT_FLOAT_EQ(*GeserSH(0, 110.2f, -293.95f, 1, hari), 110.2f - 293.95f);
    EXPECT_FLOAT_EQ(*GeserSH(0, 0.0f, -500.0f, 1, hari), -140.0f);
    EXPECT_FALSE(GeserSH(0, 0.0f, 241.4f, 20000000, hari));  // beyond a 32-bit count of degrees
}

TEST(JumlahSH, HoursCarryWholeDaysAndTheWeekdayWraps) {
    std::string hari;
    // 15.05 + 8.808 + 20.1 = 43.958: one day and 19.958 hours; 0 + 4 + 3 + 1 = 8, that is 1.
    EXPECT_NEAR(JumlahSH(-1, 0, 4, 3, 15.05f, 8.808f, 20.1f, hari), 19.958, 1e-4);
    EXPECT_EQ(hari, "1");
    // 24 hours exactly do not exceed a day; a weekday of 7 stays 7, one of 14 becomes 0.
    EXPECT_FLOAT_EQ(JumlahSH(-1, 7, 0, 0, 20, 4, 0, hari), 24.0f);
    EXPECT_EQ(hari, "7");
    JumlahSH(-1, 7, 7, 0, 1, 1, 1, hari);
    EXPECT_EQ(hari, "0");
}

TEST(JumlahSH, DegreesKeepTheirRemainderBy360) {
    std::string hari;
    EXPECT_FLOAT_EQ(JumlahSH(0, 0, 0, 0, 200, 100, 60, hari), 360.0f);  // exactly 360 stays
    EXPECT_NEAR(JumlahSH(0, 0, 0, 0, 200.25f, 300.5f, 260.125f, hari), 40.875, 1e-4);
    EXPECT_NEAR(JumlahSH(0, 0, 0, 0, -183.75f, 293.95f, 0, hari), 110.2, 1e-4);
}

TEST(HitungSH, SplitsDaysFromHoursAndBurujFromDegrees) {
    std::string teks;
    // |3 x 24 + 5.5 - 7.25| = 70.25: 2 days and 22.25 hours.
    EXPECT_FLOAT_EQ(HitungSH(-1, 2, 3, 5.5f, 0, 7.25f, teks), 22.25f);
    EXPECT_EQ(teks, "2");
    // 7 x 24 + 20 + 5 = 193: 8 days, kept as the quotient 8 / 7 = 1; 1 hour.
    EXPECT_FLOAT_EQ(HitungSH(-1, 1, 7, 20, 0, 5, teks), 1.0f);
    EXPECT_EQ(teks, "1");
    // A sum of ta'dil of 35 degrees keeps 5: the Buruj goes to the text.
    EXPECT_FLOAT_EQ(HitungSH(0, 1, 0, 20, 0, 15, teks), 5.0f);
    EXPECT_EQ(teks, "1");
    EXPECT_FLOAT_EQ(HitungSH(0, 2, 0, 3, 0, 5, teks), 2.0f);
    EXPECT_EQ(teks, "0");
    // 12.5 x 0.083 = 1.0375 degrees.
    EXPECT_NEAR(HitungSH(0, 3, 0, 12.5f, 0, 0.083f, teks), 1.0375, 1e-6);
    // 26 x 15 = 390: 13 Buruj become the quotient 13 / 12 = 1, the degrees are 0.
    EXPECT_FLOAT_EQ(HitungSH(0, 3, 0, 26, 0, 15, teks), 0.0f);
    EXPECT_EQ(teks, "1");
}

TEST(KunciSH, WholeDegreesTieToEvenAndFivesTieUp) {
    EXPECT_EQ(*KunciSH(2.5), 2);
    EXPECT_EQ(*KunciSH(360.5), 360);
    EXPECT_EQ(*KunciLimaSH(2.5), 5);
    EXPECT_EQ(*KunciLimaSH(2.4), 0);
    EXPECT_EQ(*KunciLimaSH(357.5), 360);
    // 1.5 from 0 rounds to 2, 3.5 to 5 rounds to 4: still the lower; 3.5 from 0 is the upper.
    EXPECT_EQ(*KunciLimaSH(1.5), 0);
    EXPECT_EQ(*KunciLimaSH(3.5), 5);
}

TEST(TigaDesimal, RoundsTheFloatsDecimalTextHalfAwayFromZero) {
    EXPECT_FLOAT_EQ(TigaDesimal(1.2345f), 1.235f);   // 1.23450005...
    EXPECT_FLOAT_EQ(TigaDesimal(-1.2345f), -1.235f);
    EXPECT_FLOAT_EQ(TigaDesimal(2.0005f), 2.0f);     // 2.00049996...
}
