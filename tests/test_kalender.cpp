// Civil day numbers: the worked value of the conclusions' calendar (Ahad Legi, 10 March 2024
// is day 738957) and the calendar reform, where Thursday 4 October 1582 (Julian) is followed
// by Friday 15 October 1582 (Gregorian).
#include <gtest/gtest.h>

#include "core/Kalender.h"

using namespace falak;

TEST(Kalender, DayNumbersWeekdaysAndPasaranAcrossTheReform) {
    EXPECT_EQ(NomorHari(2024, 3, 10), 738957);
    EXPECT_EQ(HariPekan(738957), 1);
    EXPECT_EQ(PasaranDariNomor(738957), 1);
    const TanggalSipil t = TanggalDariNomor(738957);
    EXPECT_EQ(t.tahun, 2024);
    EXPECT_EQ(t.bulan, 3);
    EXPECT_EQ(t.hari, 10);

    const int64_t akhirJulian = NomorHari(1582, 10, 4);
    EXPECT_EQ(NomorHari(1582, 10, 15), akhirJulian + 1);
    EXPECT_EQ(HariPekan(akhirJulian), 5);  // Kamis
    const TanggalSipil s = TanggalDariNomor(akhirJulian + 1);
    EXPECT_EQ(s.bulan, 10);
    EXPECT_EQ(s.hari, 15);
    // 29 February exists in 1500 on the Julian calendar and not in 1900 on the Gregorian.
    EXPECT_EQ(NomorHari(1500, 3, 1) - NomorHari(1500, 2, 28), 2);
    EXPECT_EQ(NomorHari(1900, 3, 1) - NomorHari(1900, 2, 28), 1);
    // A day past its month runs on into the next.
    EXPECT_EQ(NomorHari(2023, 2, 29), NomorHari(2023, 3, 1));
}
