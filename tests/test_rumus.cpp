// The formula sheets: values in words, the variable lists, building from the table's rows,
// and the sheets a session keeps as tabs are switched.
#include <gtest/gtest.h>

#include "core/Tabel.h"
#include "rumus/Rumus.h"

using namespace falak;

namespace {

const AnggotaRumus& er() {
    const AnggotaRumus* a = CariAnggotaRumus(48);
    EXPECT_NE(a, nullptr);
    return *a;
}

TEST(Rumus, ValuesInWords) {
    // A listed element folds Buruj into degrees and shows no minus: 8 Buruj 12° is 252°.
    EXPECT_EQ(KataNilaiRumus(Nilai("08 12 10 00 00 0"), true), "252°10'");
    // An unlisted negative value has "-" before its degrees; no seconds, no seconds shown.
    EXPECT_EQ(KataNilaiRumus(Nilai("00 03 05 00 00 0"), false), "-3°5'");
    EXPECT_EQ(KataNilaiRumus(Nilai("00 03 05 07 00 1"), false), "3°5'7''");
    // Thirds show as the decimals of the seconds.
    EXPECT_EQ(KataNilaiRumus(Nilai("00 03 05 07 30 1"), false), "3°5'7.50''");
    EXPECT_EQ(KataNilaiRumus(Nilai(), false), "");
}

TEST(Rumus, VariableListsPointIntoTheRunsArrays) {
    const std::vector<Nilai> satu = {Nilai("00 001 00 00 00 1"), Nilai("00 002 30 00 00 0"), Nilai(), Nilai("01 005 00 00 00 1")};
    const std::vector<Nilai> dua = {Nilai("00 009 00 00 00 1"), Nilai("00 008 00 00 00 1")};
    // Element 3 is listed for this book: shown in whole degrees.
    EXPECT_EQ(IsiVariabel("a,1|b,3|c,x1|", er(), satu, dua), "a = -2°30'\nb = 35°0'\nc = 8°0'");
    // An index past the array, or an empty element, leaves the left side alone.
    EXPECT_EQ(IsiVariabel("d,2|e,99|", er(), satu, dua), "d =\ne =");
}

TEST(Rumus, BuildingReadsTheBooksColumnsRowByRow) {
    Tabel t("TQQRumuz");
    ASSERT_EQ(t.bacaCsv("BMNama,BMRumuz,BMVar,ERNama,ERRumuz,ERVar\nx,y,z,Jam,s = jam,\"s,0|\"\n,,,Bujur,L,\"L,1|\"\n"), "");
    const std::vector<Nilai> hasil = {Nilai("00 009 00 00 00 1"), Nilai("00 251 59 45 00 1")};
    const LembarRumus l = BangunRumus(er(), t, hasil);
    ASSERT_EQ(l.baris.size(), 50u);  // the book's rows, the missing ones empty
    EXPECT_EQ(l.baris[0].nama, "Jam");
    EXPECT_EQ(l.baris[0].isi, "s = 9°0'");
    EXPECT_EQ(l.baris[1].isi, "L = 251°59'45''");
    EXPECT_EQ(l.baris[2].nama, "");
    EXPECT_EQ(l.judul, "RUMUS IJTIMA EPHEMERIS");
    EXPECT_NE(l.halaman.find("2. Bujur\nL\nL = 251°59'45''\n"), std::string::npos);
}

TEST(Rumus, EachStepsTipGoesToTheCellTheTableNames) {
    Tabel v("Validation");
    // Step 2 has no cell, step 3 an unreadable one, step 4 one off the sheet; the table runs
    // past the steps of the run.
    ASSERT_EQ(v.bacaCsv("BM,ER\nA1,B2\n,\nx,9Z\n,Z99\n,A3\n,C1\n"), "");
    LembarRumus l;
    l.kodeLembar = 48;
    for (const char* nama : {"Jam", "Bujur", "Lintang", "Jarak", "Tinggi"}) l.baris.push_back({nama, "r = " + std::string(nama), "r = 1°0'\ns = 2°0'"});
    Sheet s;
    s.atur(3, 3);
    PasangTipRumus(s, v, l);
    ASSERT_EQ(s.tips().size(), 2u);
    EXPECT_EQ(s.tips()[0].baris, 1);
    EXPECT_EQ(s.tips()[0].kolom, 1);
    EXPECT_EQ(s.tips()[0].judul, "Jam");
    EXPECT_EQ(s.tips()[0].pesan, "r = Jam\nr = 1°0'\ns = 2°0'");
    EXPECT_EQ(s.tips()[1].baris, 2);
    EXPECT_EQ(s.tips()[1].judul, "Tinggi");
    // A book without a column gets no tips.
    Tabel lain("Validation");
    ASSERT_EQ(lain.bacaCsv("BM\nA1\n"), "");
    Sheet t;
    t.atur(3, 3);
    PasangTipRumus(t, lain, l);
    EXPECT_TRUE(t.tips().empty());
}

TEST(Rumus, FixedRowsTakeTheQuadrantLines) {
    const AnggotaRumus* bm = CariAnggotaRumus(31);
    ASSERT_NE(bm, nullptr);
    Tabel t("TQQRumuz");
    std::string csv = "BMNama,BMRumuz,BMVar\n";
    for (int i = 1; i <= 5; ++i) csv += "b" + std::to_string(i) + ",r" + std::to_string(i) + ",\"A,1|B,2|\"\n";
    ASSERT_EQ(t.bacaCsv(csv), "");
    // Element 1 of this book is listed (whole degrees), element 2 is not (its degrees alone).
    const std::vector<Nilai> hasil = {Nilai(), Nilai("08 12 10 00 00 0"), Nilai("08 12 10 00 00 0")};
    const LembarRumus l = BangunRumus(*bm, t, hasil);
    ASSERT_EQ(l.baris.size(), 27u);
    EXPECT_EQ(l.baris[3].rumuz, "r4");
    EXPECT_EQ(l.baris[4].rumuz,
              "Jika A < 090 = 180° - B\nJika A < 180 = 180° + B\nJika A < 270 = 360° - B\nJika A < 360 = B");
    EXPECT_EQ(l.baris[4].isi, "A = 252°10'\nB = -12°10'");
    EXPECT_EQ(l.judul, "RUMUS IJTIMA METODE BADIATUL MITSAL");
}

TEST(Rumus, TheSheetOnViewFollowsTheSelectedTab) {
    DaftarRumus d;
    LembarRumus a, b;
    a.kodeLembar = b.kodeLembar = 48;
    a.judul = b.judul = "RUMUS IJTIMA EPHEMERIS";
    a.halaman = "pertama";
    b.halaman = "kedua";
    EXPECT_EQ(d.tambah("IjER_1", a), 1);
    EXPECT_EQ(d.tambah("IjER_2", b), 2);  // a second run keeps the first's sheet
    ASSERT_TRUE(d.kini());
    EXPECT_EQ(d.kini()->lembar->halaman, "kedua");
    auto t = d.tampil("IjER_1");
    ASSERT_TRUE(t);
    EXPECT_EQ(t->lembar->halaman, "pertama");
    EXPECT_EQ(t->nomor, 1);
    EXPECT_EQ(d.tampil("IjER_2")->lembar->halaman, "kedua");
    // A tab without a sheet leaves the view as it was.
    EXPECT_FALSE(d.tampil("IjSN_3"));
    EXPECT_EQ(d.kini()->lembar->halaman, "kedua");
    // A tab that keeps its key takes a new run: the new sheet goes under the key, the old goes.
    d.pindah("IjER_2", "IjER_1");
    EXPECT_EQ(d.jumlah(), 1u);
    EXPECT_EQ(d.tampil("IjER_1")->lembar->halaman, "kedua");
    EXPECT_FALSE(d.tampil("IjER_2"));
}

}  // namespace
