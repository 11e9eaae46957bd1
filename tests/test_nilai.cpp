// The value type: any text is a value; fields are read by the position of the blanks.
#include <gtest/gtest.h>

#include "core/FungsHisab.h"

using namespace falak;

TEST(Nilai, KeepsAnyTextAndReadsItsFieldsByBlanks) {
    const Nilai v("0 29 31 50 7 1");
    EXPECT_EQ(v.teks(), "0 29 31 50 7 1");
    EXPECT_EQ(v.posisi(1), 0);
    EXPECT_EQ(v.posisi(2), 29);
    EXPECT_EQ(v.posisi(5), 7);
    EXPECT_EQ(v.posisi(6), 1);
    EXPECT_EQ(v.posisi(7), 0);  // past the last field
    EXPECT_EQ(v.tanda(), 1);
}

TEST(Nilai, AFieldIsReadOnlyWhenItIsWhollyANumber) {
    const Nilai v("007 1.5 2.5 x -3 1e2 12x 0");
    EXPECT_EQ(v.posisi(1), 7);
    EXPECT_EQ(v.posisi(2), 2);  // rounded half to even
    EXPECT_EQ(v.posisi(3), 2);
    EXPECT_EQ(v.posisi(4), 0);
    EXPECT_EQ(v.posisi(5), -3);
    EXPECT_EQ(v.posisi(6), 100);
    EXPECT_EQ(v.posisi(7), 0);
    EXPECT_EQ(v.tanda(), 0);
}

TEST(Nilai, TwoBlanksMakeAnEmptyField) {
    const Nilai v("1  2 3");
    EXPECT_EQ(v.posisi(1), 1);
    EXPECT_EQ(v.posisi(2), 0);
    EXPECT_EQ(v.posisi(3), 2);
    EXPECT_EQ(v.posisi(4), 3);
}

TEST(Nilai, SignIsTheLastCharacterAsADigit) {
    EXPECT_EQ(Nilai("00 10 00 00 00 0").tanda(), 0);
    EXPECT_EQ(Nilai("12 7").tanda(), 7);
    EXPECT_EQ(Nilai("Kosong").tanda(), 0);
    EXPECT_EQ(Nilai("").tanda(), 0);
    EXPECT_EQ(Nilai("1 2 ").tanda(), 0);
}

TEST(Nilai, KosongIsExactlyThatWord) {
    EXPECT_TRUE(Kosong.kosong());
    EXPECT_TRUE(Nilai("Kosong").kosong());
    EXPECT_FALSE(Nilai("kosong").kosong());
    EXPECT_FALSE(Nilai("").kosong());
    EXPECT_TRUE(Nilai().kosongTeks());
}

TEST(Nilai, FinishedValuesPrintWithTheirPadding) {
    EXPECT_EQ(DlorbuSittin(3, 5, 7, 0, 9, 1, 1).teks(), "03 05 07 00 09 1");
    EXPECT_EQ(DlorbuSittin(0, 5, 7, 0, 9, 0, 2).teks(), "00 005 07 00 09 0");
    EXPECT_EQ(DlorbuSittin(0, 12345, 0, 0, 0, 1, 3).teks(), "00 12345 00 00 00 1");
    EXPECT_EQ(AlamahTarkh(1, {5, 1, 2, 3, 4, 5, 6, 7, 8}, 1).teks(), "005 01 02 03 04 05 06 07 08 1");
    EXPECT_EQ(AlamahTarkh(1, {12, 1, 2, 3, 4, 5, 6, 7, 8}, 1).teks(), "012 01 02 03 04 05 06 07 08 1");
    EXPECT_EQ(AlamahTarkh(1, {1445, 1, 2, 3, 4, 5, 6, 7, 8}, 0).teks(), "1445 01 02 03 04 05 06 07 08 0");
}

TEST(Nilai, FinishedValuesReadBackLikeTheirText) {
    const Nilai busur = DlorbuSittin(11, 29, 59, 58, 57, 1, 1);
    const Nilai dariTeks(busur.teks());
    for (int p = 1; p <= 9; ++p) EXPECT_EQ(busur.posisi(p), dariTeks.posisi(p)) << p;
    const Nilai alamah = AlamahTarkh(2, {2024, 2, 29, 4, 6, 23, 59, 59, 59}, 1);
    const Nilai alamahTeks(alamah.teks());
    for (int p = 1; p <= 9; ++p) EXPECT_EQ(alamah.posisi(p), alamahTeks.posisi(p)) << p;
    EXPECT_EQ(busur, dariTeks);
}
