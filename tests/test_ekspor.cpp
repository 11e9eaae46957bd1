// The layout of a sheet that leaves the program, and the names of the worksheets.
#include <gtest/gtest.h>

#include "SesiUji.h"
#include "export/TataLembar.h"

namespace falak {
namespace {

TEST(NamaLembar, AClashTakesTheNextFreeNumberUpTo200) {
    std::vector<std::string> dipakai;
    for (int i = 0; i <= 200; ++i) {
        const auto nama = NamaLembarUnik("Hisab Awal Bulan 1445 H. 8", dipakai);
        ASSERT_TRUE(nama);
        dipakai.push_back(*nama);
    }
    EXPECT_EQ(dipakai[0], "Hisab Awal Bulan 1445 H. 8");
    EXPECT_EQ(dipakai[1], "Hisab Awal Bulan 1445 H. 8-1");
    EXPECT_EQ(dipakai[200], "Hisab Awal Bulan 1445 H. 8-200");
    EXPECT_FALSE(NamaLembarUnik("Hisab Awal Bulan 1445 H. 8", dipakai));
    // A freed number is taken again.
    dipakai.erase(dipakai.begin() + 7);
    EXPECT_EQ(NamaLembarUnik("Hisab Awal Bulan 1445 H. 8", dipakai), "Hisab Awal Bulan 1445 H. 8-7");
}

TEST(NamaLembar, NamesAWorkbookAccepts) {
    // Case does not tell names apart.
    EXPECT_EQ(NamaLembarUnik("Kesimpulan", {"KESIMPULAN"}), "Kesimpulan-1");
    // Characters a workbook refuses, apostrophes at the ends.
    EXPECT_EQ(NamaLembarUnik("1445/8 [SN]: a*b?c\\d", {}), "1445-8 -SN-- a-b-c-d");
    EXPECT_EQ(NamaLembarUnik("'Ijtima''", {}), "Ijtima");
    EXPECT_EQ(NamaLembarUnik("", {}), "Lembar");
    // At most 31 characters, the number included; an Arabic letter is one character.
    const std::string panjang = "Hisab Awal Bulan 1445 H. 12 Pasuruan";
    EXPECT_EQ(NamaLembarUnik(panjang, {}), "Hisab Awal Bulan 1445 H. 12 Pas");
    EXPECT_EQ(NamaLembarUnik(panjang, {"Hisab Awal Bulan 1445 H. 12 Pas"}), "Hisab Awal Bulan 1445 H. 12 P-1");
    std::string huruf;
    for (int i = 0; i < 40; ++i) huruf += "\u0628";
    EXPECT_EQ(NamaLembarUnik(huruf, {})->size(), 31u * 2);
}

TEST(AkhiranTata, TheSheetKeyNamesTheLayoutColumns) {
    EXPECT_EQ(AkhiranTata("IjSN_1"), "SN");
    EXPECT_EQ(AkhiranTata("IjKW1_12"), "KW1");
    EXPECT_EQ(AkhiranTata("HsFR_3"), "FRGB");
    EXPECT_EQ(AkhiranTata("KfTZ_4"), "TZGM");
    EXPECT_EQ(AkhiranTata("TdlKfSN_4"), "TdlGM");
    EXPECT_EQ(AkhiranTata("Kalender_1"), "");
}

class Tata : public uji::SesiUji {
protected:
    Tata() : SesiUji("tata") {}
};

TEST_F(Tata, ClearsThenMergesThenDrawsSkippingEmptyAndUnreadableCells) {
    folder.tabel("ClearTxtMargen", "ClearTxtSN,ClearTxtKWI\nB1:C1,A1\n");
    folder.tabel("MergenExcel", "MergnSN,MergnKW1\nA1:C1,\n,\nZZZ:1,\nA3:B3,A2:B2\n");
    folder.tabel("Lines", "Lines_SN\nA2:C3|31\nB1|2\nA1:A1|x\nA1:A1|32\n\nC1|12\n");
    bukaSesi();
    Sheet s;
    s.atur(3, 3);
    for (int k = 0; k < 3; ++k) s.tulis(0, k, "salinan");
    s.tulis(2, 0, "a");
    TerapkanTata(s, *koneksi, "SN");
    // The copies right of the merge's first cell are gone, the first stays.
    EXPECT_EQ(s.sel(0, 0), "salinan");
    EXPECT_EQ(s.sel(0, 1), "");
    // The merge after the empty and the unreadable cells is made.
    ASSERT_EQ(s.gabungan().size(), 2u);
    EXPECT_TRUE(s.gabunganDi(2, 1));
    EXPECT_FALSE(s.gabunganDi(1, 0));
    // A box: the outer edges only.
    EXPECT_EQ(s.selLengkap(1, 0).garis, SisiAtas | SisiKiri);
    EXPECT_EQ(s.selLengkap(2, 2).garis, SisiBawah | SisiKanan);
    EXPECT_EQ(s.selLengkap(1, 1).garis, SisiAtas);
    EXPECT_EQ(s.selLengkap(0, 1).garis, SisiBawah);
    // Sides past 31 or not a number draw nothing; the row after a blank line is read.
    EXPECT_EQ(s.selLengkap(0, 0).garis, 0);
    EXPECT_EQ(s.selLengkap(0, 2).garis, SisiKiri | SisiKanan);

    // Khulashotu's clear column is ClearTxtKWI; a sheet without a column keeps its texts.
    Sheet kw;
    kw.atur(2, 2);
    kw.tulis(0, 0, "x");
    TerapkanTata(kw, *koneksi, "KW1");
    EXPECT_EQ(kw.sel(0, 0), "");
    EXPECT_TRUE(kw.gabunganDi(1, 1));
    Sheet lain;
    lain.atur(1, 1);
    lain.tulis(0, 0, "x");
    TerapkanTata(lain, *koneksi, "FR");
    EXPECT_EQ(lain.sel(0, 0), "x");
}

// Every range of the shipped layout tables lies on the sheet of its book, and clears only
// copies: the text of a cleared cell stands in the merge that covers it. The sheets are those
// of every month module and of every eclipse module, in a month where the books find one (the
// solar eclipse with the sheet of its look-ups).
TEST(TataTerkirim, EveryRangeLiesOnItsSheet) {
    ClsConnection koneksi(CariLokasiData());
    Workspace ws(koneksi);
    for (const EntriModul* e : ws.kitabTersedia()) ASSERT_TRUE(ws.mnuProsesIjSub(std::string(e->kode), "1445", 8, "Pasuruan").lembar);
    const size_t bulanan = ws.lembar.size();  // the sheets after these are eclipses
    for (const EntriModul& e : DaftarModul()) {
        if (e.garapan == Garapan::Ij || !e.tersedia()) continue;
        const bool bulan = e.garapan == Garapan::Hs;
        ws.mnuProsesGerhana(e.garapan, std::string(e.kode), bulan ? "1447" : "1437", bulan ? 3 : 5, "Jakarta");
    }
    ASSERT_GE(ws.lembar.size(), bulanan + 3);  // at least Sullam's two eclipses
    for (size_t i = 0; i < ws.lembar.size(); ++i) {
        const auto& l = ws.lembar[i];
        SCOPED_TRACE(l->kunci);
        const Sheet& asli = l->lembar;
        const std::string x = AkhiranTata(l->kunci);
        for (const Tabel* t : {&koneksi.ClearTxtMargen, &koneksi.MergenExcel, &koneksi.Lines}) {
            const std::string nama = t == &koneksi.Lines ? "Lines_" + x
                                     : t == &koneksi.MergenExcel ? "Mergn" + x
                                     : x == "KW1"                ? "ClearTxtKWI"
                                                                 : "ClearTxt" + x;
            // Every month's sheet is laid out; an eclipse sheet of a book off the skeleton may
            // not be yet.
            const int kolom = t->indeksKolom(nama);
            if (kolom < 0) {
                EXPECT_GE(i, bulanan) << nama;
                continue;
            }
            for (size_t b = 0; b < t->jumlahBaris(); ++b) {
                std::string_view sel = t->sel(b, static_cast<size_t>(kolom));
                if (sel.empty()) continue;
                sel = sel.substr(0, sel.find('|'));
                Rentang r;
                ASSERT_TRUE(BacaRentang(sel, r)) << sel;
                EXPECT_TRUE(asli.ada(r.baris2, r.kolom2)) << sel;
            }
        }
        Sheet s = asli;
        TerapkanTata(s, koneksi, x);
        for (int b = 0; b < s.jumlahBaris(); ++b)
            for (int k = 0; k < s.jumlahKolom(); ++k)
                if (s.sel(b, k).empty() && !asli.sel(b, k).empty()) {
                    const Gabungan* g = s.gabunganDi(b, k);
                    ASSERT_TRUE(g) << b << "," << k;
                    EXPECT_EQ(s.sel(g->baris, g->kolom1), asli.sel(b, k));
                }
        // A merge of the tables never swallows a text: only its first cell holds one.
        for (const Gabungan& g : s.gabungan())
            for (int b = g.baris; b < g.baris + g.tinggi; ++b)
                for (int k = g.kolom1; k <= g.kolom2; ++k) {
                    if (b == g.baris && k == g.kolom1) continue;
                    EXPECT_EQ(s.sel(b, k), "") << b << "," << k;
                }
    }
}

}  // namespace
}  // namespace falak
