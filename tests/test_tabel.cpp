// The table store: reading the table files, the look-up idiom with its shared cursor, and the
// changes of the one table the user writes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "core/Berkas.h"
#include "core/Tabel.h"

using namespace falak;

namespace {

Tabel dariCsv(std::string_view isi) {
    Tabel t("Uji");
    const std::string galat = t.bacaCsv(isi);
    EXPECT_EQ(galat, "");
    return t;
}

}  // namespace

TEST(BacaCsv, QuotedFieldsHoldCommasQuotesAndLineBreaks) {
    Tabel t = dariCsv(
        "\xEF\xBB\xBF"
        "Cari,mn,Catatan\r\n"
        "1,\"Syarthan, Butain\",\"kata \"\"ini\"\"\"\r\n"
        "\r\n"
        "2,,\"dua\nbaris\"\n"
        "3,Tsurayya,akhir");
    ASSERT_TRUE(t.terbuka());
    EXPECT_EQ(t.kolom(), (std::vector<std::string>{"Cari", "mn", "Catatan"}));  // the mark is not a name
    ASSERT_EQ(t.jumlahBaris(), 3u);  // the blank line is no row
    EXPECT_EQ(t.sel(0, 1), "Syarthan, Butain");
    EXPECT_EQ(t.sel(0, 2), "kata \"ini\"");
    EXPECT_EQ(t.sel(1, 1), "");
    EXPECT_EQ(t.sel(1, 2), "dua\nbaris");
    EXPECT_EQ(t.sel(2, 2), "akhir");  // no line end after the last row
}

TEST(BacaCsv, WrittenTableQuotesOnlyWhereNeeded) {
    const std::string csv = "a,b\n\"x,y\",\"q\"\"\"\n,\"l\r\nm\"\nplain,7\n";
    EXPECT_EQ(dariCsv(csv).keCsv(), csv);
}

TEST(BacaCsv, MalformedFileIsToldWithItsLineAndLeavesTheTableClosed) {
    Tabel t("Uji");
    // The quoted field spans lines 2 and 3, so the short row stands on line 4.
    EXPECT_EQ(t.bacaCsv("a,b\n1,\"x\ny\"\n2\n"), "baris 4: ada 1 isian, mestinya 2");
    EXPECT_FALSE(t.terbuka());
    EXPECT_FALSE(t.cari("a", "1"));
    EXPECT_EQ(t.bacaCsv("a,b\n1,2\n3,\xC3\x28\n"), "baris 3: bukan teks UTF-8 yang sah");
    EXPECT_EQ(t.bacaCsv("a,b\n1,\xED\xA0\x80\n"), "baris 2: bukan teks UTF-8 yang sah");  // a surrogate
    EXPECT_EQ(t.bacaCsv("a,b\n1,\"2\n"), "baris 2: tanda petik yang dibuka di baris 2 tidak ditutup");
    EXPECT_EQ(t.bacaCsv("a,b\n1,\"2\"x\n"), "baris 2: sesudah tanda petik penutup mestinya koma atau akhir baris");
    EXPECT_EQ(t.bacaCsv("a,b,a\n"), "baris judul: kolom \"a\" ada dua kali");
    EXPECT_EQ(t.bacaCsv(""), "berkas kosong, tidak ada baris judul");
    EXPECT_EQ(t.bacaCsv("a\n\xE2\x82\xAC\n"), "");  // a well-formed three-byte character
}

TEST(BacaCsv, MissingFileIsToldAndTheTableStaysClosed) {
    Tabel t("Uji");
    EXPECT_EQ(t.buka(std::filesystem::path(testing::TempDir()) / "tidak-ada.csv"), "berkas tidak ada");
    EXPECT_FALSE(t.terbuka());
    EXPECT_TRUE(t.eof());
}

TEST(CariTabel, FirstMatchWinsAndTheCursorReadsOnInTheRow) {
    Tabel t = dariCsv("Cari,mnJah,mn\n360,0,Nath\n5,1,Buthain\n5,2,Kedua\n12,3,Tsurayya\n");
    ASSERT_TRUE(t.cari("Cari", int64_t{5}));
    EXPECT_EQ(t.kursor(), 1u);
    EXPECT_EQ(t.baca("mnJah"), "1");
    EXPECT_EQ(t.baca("mn"), "Buthain");
    EXPECT_FALSE(t.baca("tidakAda"));
    t.moveNext();
    EXPECT_EQ(t.baca("mn"), "Kedua");
    t.moveNext();
    t.moveNext();
    EXPECT_TRUE(t.eof());
    EXPECT_FALSE(t.baca("mn"));
    t.moveFirst();
    EXPECT_EQ(t.baca("mn"), "Nath");

    // The key is text: "05" is not "5". A key that is not there leaves the table at its end.
    EXPECT_FALSE(t.cari("Cari", "05"));
    EXPECT_TRUE(t.eof());
    EXPECT_FALSE(t.cari("Tidak", "5"));
    EXPECT_TRUE(t.cari("mn", "Tsurayya"));
    EXPECT_EQ(t.baca("Cari"), "12");
}

TEST(CariTabel, ChangesAreFoundByTheNextSearch) {
    Tabel t = dariCsv("BaladIN,ZonaTime\nA,7\nB,8\n");
    ASSERT_TRUE(t.cari("BaladIN", "B"));
    t.tambahBaris({"C", "9"});
    ASSERT_TRUE(t.cari("BaladIN", "C"));
    EXPECT_EQ(t.baca("ZonaTime"), "9");

    t.ubahSel(0, 0, "Z");
    EXPECT_FALSE(t.cari("BaladIN", "A"));
    EXPECT_TRUE(t.cari("BaladIN", "Z"));

    t.hapusBaris(0);
    ASSERT_TRUE(t.cari("BaladIN", "C"));
    EXPECT_EQ(t.kursor(), 1u);
    EXPECT_FALSE(t.cari("BaladIN", "Z"));

    t.tambahBaris({"D"});  // a short row gets empty cells
    ASSERT_TRUE(t.cari("BaladIN", "D"));
    EXPECT_EQ(t.baca("ZonaTime"), "");
    EXPECT_EQ(t.keCsv(), "BaladIN,ZonaTime\nB,8\nC,9\nD,\n");
}

TEST(CariTabel, MovedTableStillFindsItsRows) {
    // A table this small keeps its text inside the string object, which a move copies.
    Tabel a = dariCsv("k,v\n1,x\n");
    ASSERT_TRUE(a.cari("k", "1"));
    Tabel b = std::move(a);
    ASSERT_TRUE(b.cari("k", "1"));
    EXPECT_EQ(b.baca("v"), "x");
    EXPECT_FALSE(a.terbuka());
}

TEST(CariTabel, WholeNumberKeyMatchesOnlyACellPrintedAsIt) {
    // Keys close together and keys far apart are searched differently; both ways alike.
    Tabel rapat = dariCsv("Cari\n05\n7\n5\n5\n-0\n");
    ASSERT_TRUE(rapat.cari("Cari", int64_t{5}));
    EXPECT_EQ(rapat.kursor(), 2u);
    EXPECT_FALSE(rapat.cari("Cari", int64_t{0}));
    EXPECT_FALSE(rapat.cari("Cari", int64_t{6}));
    EXPECT_TRUE(rapat.eof());
    rapat.ubahSel(0, 0, "5");
    ASSERT_TRUE(rapat.cari("Cari", int64_t{5}));
    EXPECT_EQ(rapat.kursor(), 0u);
    Tabel jarang = dariCsv("Cari\n05\n9000000000\n5\n");
    ASSERT_TRUE(jarang.cari("Cari", int64_t{5}));
    EXPECT_EQ(jarang.kursor(), 2u);
    ASSERT_TRUE(jarang.cari("Cari", int64_t{9000000000}));
    EXPECT_EQ(jarang.kursor(), 1u);
}

TEST(CariTabel, ColumnNamedOnceFollowsTheTableWhenItIsOpenedAnew) {
    Tabel t = dariCsv("Cari,v\n7,x\n");
    const KolomTabel kunci{"Cari"}, isi{"v"}, hilang{"w"};
    ASSERT_TRUE(t.cari(kunci.di(t), int64_t{7}));
    EXPECT_EQ(t.baca(isi.di(t)), "x");
    EXPECT_FALSE(t.cari(hilang.di(t), "x"));
    EXPECT_TRUE(t.eof());

    // The same names now stand in other places: the positions found before must not be used.
    ASSERT_EQ(t.bacaCsv("v,u,Cari\ny,z,7\n"), "");
    ASSERT_TRUE(t.cari(kunci.di(t), int64_t{7}));
    EXPECT_EQ(t.baca(isi.di(t)), "y");
    Tabel lain = dariCsv("v\nq\n");
    lain.moveFirst();
    EXPECT_EQ(lain.baca(isi.di(lain)), "q");
    EXPECT_EQ(kunci.di(lain), -1);
}

TEST(TulisAtomik, ReplacesTheFileWholeAndLeavesNoTemporaryFile) {
    const auto folder =
        std::filesystem::path(testing::TempDir()) / ("falak-atomik-" + std::to_string(getpid())) / "dalam";
    std::filesystem::remove_all(folder.parent_path());
    const auto berkas = folder / "Daerah.csv";
    EXPECT_EQ(TulisAtomik(berkas, "satu\n"), "");  // the folder is made
    EXPECT_EQ(TulisAtomik(berkas, "dua\n"), "");
    std::string isi;
    EXPECT_EQ(BacaBerkas(berkas, isi), "");
    EXPECT_EQ(isi, "dua\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()), 1);
    std::filesystem::remove_all(folder.parent_path());
}
