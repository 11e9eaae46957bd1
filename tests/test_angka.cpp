// Reading and printing numbers: the text round trips that fix the reckoning's digits.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include "core/Angka.h"

using namespace falak;

TEST(ValAngka, TakesOutBlanksThenReadsTheLeadingNumber) {
    EXPECT_DOUBLE_EQ(ValAngka(" 1 2.5x"), 12.5);
    EXPECT_DOUBLE_EQ(ValAngka("12\t3\r\n"), 123);
    EXPECT_DOUBLE_EQ(ValAngka("-.5"), -0.5);
    EXPECT_DOUBLE_EQ(ValAngka("+7"), 7);
    EXPECT_DOUBLE_EQ(ValAngka("1.5E+20"), 1.5e20);
    EXPECT_DOUBLE_EQ(ValAngka("1e"), 1);  // an exponent without digits is not read
    EXPECT_DOUBLE_EQ(ValAngka("007"), 7);
}

TEST(ValAngka, NoNumberReadsZero) {
    EXPECT_EQ(ValAngka(""), 0);
    EXPECT_EQ(ValAngka("Kosong"), 0);
    EXPECT_EQ(ValAngka("."), 0);
    EXPECT_EQ(ValAngka("-"), 0);
}

TEST(AdalahAngka, OnlyAWholeNumberText) {
    for (const char* ya : {"12", "-3", "1.5", ".5", "1e5", "007"}) EXPECT_TRUE(AdalahAngka(ya)) << ya;
    for (const char* tidak : {"", "1x", ".", "e5", "1 2", "--1", "Kosong"}) EXPECT_FALSE(AdalahAngka(tidak)) << tidak;
}

TEST(BulatGenap32, RoundsHalfToEvenAndRefusesOverflow) {
    EXPECT_EQ(BulatGenap32(2.5), 2);
    EXPECT_EQ(BulatGenap32(3.5), 4);
    EXPECT_EQ(BulatGenap32(-2.5), -2);
    EXPECT_EQ(BulatGenap32(-3.5), -4);
    EXPECT_EQ(BulatGenap32(2.5000001), 3);
    EXPECT_EQ(BulatGenap32(2147483647.0), 2147483647);
    EXPECT_FALSE(BulatGenap32(2147483648.0));
    EXPECT_FALSE(BulatGenap32(-3e9));
}

TEST(CetakAngka, ShortestFormWithFifteenDigits) {
    EXPECT_EQ(CetakAngka(0.5), "0.5");
    EXPECT_EQ(CetakAngka(100), "100");
    EXPECT_EQ(CetakAngka(0.1 + 0.2), "0.3");
    EXPECT_EQ(CetakAngka(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(CetakAngka(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(CetakAngka(-12.25), "-12.25");
    EXPECT_EQ(CetakAngka(-0.0), "0");
    EXPECT_EQ(CetakAngka(123456789012345.0), "123456789012345");
    EXPECT_EQ(CetakAngka(0.0001), "0.0001");
}

TEST(CetakAngka, ExponentBelowMinusFourOrFromFifteen) {
    EXPECT_EQ(CetakAngka(1e-5), "1E-05");
    EXPECT_EQ(CetakAngka(-2.5e-7), "-2.5E-07");
    EXPECT_EQ(CetakAngka(1e15), "1E+15");
    EXPECT_EQ(CetakAngka(1.5e20), "1.5E+20");
    EXPECT_EQ(CetakAngka(1e100), "1E+100");
}

TEST(CetakAngka32, SevenDigitsExponentFromTenMillion) {
    EXPECT_EQ(CetakAngka32(0.1f), "0.1");
    EXPECT_EQ(CetakAngka32(9999999.0f), "9999999");
    EXPECT_EQ(CetakAngka32(1e7f), "1E+07");
    EXPECT_EQ(CetakAngka32(16777217.0f), "1.677722E+07");
    EXPECT_EQ(CetakAngka32(6.189863e14f), "6.189863E+14");
    EXPECT_EQ(CetakAngka32(71582784.0f), "7.158278E+07");
}

TEST(FormatTetap, RoundsHalfAwayFromZeroOnTheFifteenDigitPrinting) {
    EXPECT_EQ(FormatTetap(2.675, 2), "2.68");  // the double lies below 2.675; its printing does not
    EXPECT_EQ(FormatTetap(-1.2345, 3), "-1.235");
    EXPECT_EQ(FormatTetap(0.0005, 3), "0.001");
    EXPECT_EQ(FormatTetap(0.0004, 3), "0.000");
    EXPECT_EQ(FormatTetap(9.9995, 3), "10.000");
    EXPECT_EQ(FormatTetap(12.5, 0), "13");
    EXPECT_EQ(FormatTetap(3, 3), "3.000");
    EXPECT_EQ(FormatTetap(0, 2), "0.00");
    EXPECT_EQ(FormatTetap(-0.0001, 2), "0.00");
    EXPECT_EQ(FormatTetap(0.00004, 3), "0.000");
}

TEST(AngkaTercetak, ReadsAsTheFifteenDigitPrintingReadsBack) {
    // Against the text round trip, bit for bit: hard points first (ties at the fifteenth digit,
    // integers at and past fifteen digits, the change of printed form), then a broad sample.
    auto sama = [](double x) {
        const double lewatTeks = ValAngka(CetakAngka(x));
        const double langsung = AngkaTercetak(x);
        return std::memcmp(&lewatTeks, &langsung, sizeof(double)) == 0;
    };
    for (double x : {0.0, -0.0, 0.1 + 0.2, 1.0 / 3, 2.0 / 3, 0.000123456789012345, 1e-5, 99999.99999999995,
                     123456789012345.0, 1234567890123456.0, 999999999999999.5, 1e15, 1e21, 359.99999999999994,
                     5e-324, 1.7976931348623157e308, std::nan(""), HUGE_VAL, -HUGE_VAL})
        EXPECT_TRUE(sama(x)) << x;
    std::mt19937_64 acak(12);
    std::uniform_real_distribution<double> mantisa(1, 10);
    std::uniform_int_distribution<int> pangkat(-12, 22);
    int beda = 0;
    for (int i = 0; i < 30000; ++i) {
        const double x = mantisa(acak) * std::pow(10.0, pangkat(acak));
        beda += !sama(x) + !sama(-x) + !sama(std::floor(x * 4) / 4);
    }
    EXPECT_EQ(beda, 0);
}
