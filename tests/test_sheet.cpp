// The sheet model that the grid, the text printer and the spreadsheet writer share.
#include <gtest/gtest.h>

#include "core/FlexGrid.h"
#include "core/Sheet.h"

namespace falak {
namespace {

TEST(Sheet, RangesReadAsASpreadsheetNamesThem) {
    Rentang r;
    ASSERT_TRUE(BacaRentang("A1:O1", r));
    EXPECT_EQ(r.baris1, 0);
    EXPECT_EQ(r.kolom1, 0);
    EXPECT_EQ(r.baris2, 0);
    EXPECT_EQ(r.kolom2, 14);
    ASSERT_TRUE(BacaRentang(" AB12 ", r));
    EXPECT_EQ(r.baris1, 11);
    EXPECT_EQ(r.kolom1, 27);
    EXPECT_EQ(r.kolom2, 27);
    for (const char* salah : {"", "A0", "1A", "A1:", "A1-B2", "a1", "A1:B2:C3"}) EXPECT_FALSE(BacaRentang(salah, r)) << salah;
    EXPECT_EQ(NamaKolom(0), "A");
    EXPECT_EQ(NamaKolom(25), "Z");
    EXPECT_EQ(NamaKolom(26), "AA");
    EXPECT_EQ(NamaKolom(39), "AN");
    EXPECT_EQ(NamaKolom(701), "ZZ");
    EXPECT_EQ(NamaKolom(702), "AAA");
}

TEST(Sheet, AMergeThatOverlapsAnEarlierOneReplacesIt) {
    Sheet s;
    s.atur(5, 6);
    s.gabung(0, 0, 5);
    s.gabung(Rentang{2, 1, 3, 2});
    s.gabung(0, 2, 3);  // overlaps the heading
    ASSERT_EQ(s.gabungan().size(), 2u);
    const Gabungan* g = s.gabunganDi(3, 2);
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(g->tinggi, 2);
    EXPECT_EQ(s.gabunganDi(0, 0), nullptr);
    s.gabung(Rentang{4, 5, 4, 5});  // one cell is no merge
    s.gabung(Rentang{4, 5, 4, 6});  // off the sheet
    EXPECT_EQ(s.gabungan().size(), 2u);
}

TEST(Sheet, OuterLinesOnlyOnTheEdgesOfTheBlock) {
    Sheet s;
    s.atur(4, 4);
    s.garis(Rentang{1, 1, 2, 2}, SisiSemua, true);
    EXPECT_EQ(s.selLengkap(1, 1).garis, SisiAtas | SisiKiri);
    EXPECT_EQ(s.selLengkap(2, 2).garis, SisiBawah | SisiKanan);
    EXPECT_EQ(s.selLengkap(0, 0).garis, 0);
    s.garis(Rentang{0, 0, 0, 9}, SisiBawah, false);  // clipped to the sheet
    EXPECT_EQ(s.selLengkap(0, 3).garis, SisiBawah);
}

TEST(Sheet, ClearingKeepsTheCellsKindAndTipsFollowTheirCell) {
    Sheet s;
    s.atur(3, 3);
    s.tulis(1, 1, "12", JenisSel::Angka);
    s.kosongkan(Rentang{0, 0, 2, 2});
    EXPECT_TRUE(s.barisKosong(1));
    EXPECT_EQ(s.selLengkap(1, 1).jenis, JenisSel::Angka);
    s.tip(1, 1, "a", "b");
    s.tip(1, 1, "c", "d");
    s.tip(7, 7, "e", "f");
    ASSERT_EQ(s.tips().size(), 1u);
    EXPECT_EQ(s.tips()[0].judul, "c");
}

TEST(Sheet, TheGridWritersSayWhatEachCellHolds) {
    Sheet s;
    ClsFlexGrid g;
    g.pilih(&s);
    g.FlexSetting(4, 8, 0, 0, 0, true);
    g.FlexNama("\u0627\u0644\u0634\u0645\u0633", 0, 0, 7);
    g.FlexData(Nilai("01 02 03 04 05 1"), 1, 7, {1, 2, 3});
    g.FlexTeks("1440", 2, 7);
    g.FlexTeks("Pasuruan", 2, 6);
    g.FlexTeks("\u0645\u0643\u0629", 2, 5);
    EXPECT_EQ(s.selLengkap(0, 0).jenis, JenisSel::LabelArab);
    EXPECT_EQ(s.sel(1, 3), "3");
    EXPECT_EQ(s.selLengkap(1, 3).jenis, JenisSel::Angka);
    EXPECT_EQ(s.selLengkap(2, 7).jenis, JenisSel::Angka);
    EXPECT_EQ(s.selLengkap(2, 6).jenis, JenisSel::Label);
    EXPECT_EQ(s.selLengkap(2, 5).jenis, JenisSel::LabelArab);

    // A text with a "-" on an Arabic sheet has its first character, a whole letter, moved to
    // its end, behind the kasra: the text stays valid UTF-8 (a place named "Kec. -Desa").
    g.FlexNama("حساب -Desa", 3, 0, 7);
    EXPECT_EQ(s.sel(3, 0), "ِساب -Desaح");

    // An Indonesian sheet reads from the left: a spreadsheet does not mirror it.
    EXPECT_TRUE(s.dibacaDariKanan);
    g.FlexSetting(2, 2, 0, 0, 0, false);
    EXPECT_FALSE(s.dibacaDariKanan);
}

}  // namespace
}  // namespace falak
