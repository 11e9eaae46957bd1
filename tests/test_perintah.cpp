// The command line's one reader: help, usage errors and exit statuses alike for every
// subcommand, read from the two tables.
#include <gtest/gtest.h>

#include <sstream>

#include "FolderUji.h"
#include "cli/Perintah.h"

using namespace falak;

namespace {

struct Keluaran {
    int status;
    std::string out, err;
};

struct Perintah : testing::Test {
    uji::FolderUji folder{"falak-perintah"};

    void SetUp() override {
        folder.tabel("Balad", "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,"
                              "ZonaTime,Ketinggian\nPasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n");
    }
    Keluaran jalan(const std::vector<std::string>& argumen) {
        std::istringstream in;
        std::ostringstream out, err;
        const int s = cli::Jalankan(argumen, {folder.lokasi(), in, out, err});
        return {s, out.str(), err.str()};
    }
    // A usage error: exit 2, nothing on out, and on err the one style: what is wrong, the
    // usage line, where to read more.
    void salahPakai(const std::vector<std::string>& argumen, const std::string& nama, const std::string& pesan) {
        const Keluaran k = jalan(argumen);
        EXPECT_EQ(k.status, 2) << argumen[1];
        EXPECT_EQ(k.out, "");
        EXPECT_EQ(k.err.rfind("falak " + nama + ": " + pesan, 0), 0u) << k.err;
        EXPECT_NE(k.err.find("\nPemakaian: falak " + nama + " "), std::string::npos) << k.err;
        EXPECT_TRUE(k.err.ends_with("\nKeterangan: falak " + nama + " --help\n")) << k.err;
    }
};

}  // namespace

TEST_F(Perintah, EverySubcommandHasItsHelp) {
    for (const cli::Perintah& p : cli::DaftarPerintah()) {
        std::vector<std::string> argumen;
        std::istringstream kata{std::string(p.nama)};
        for (std::string k; kata >> k;) argumen.push_back(k);
        argumen.push_back("--help");
        const Keluaran k = jalan(argumen);
        EXPECT_EQ(k.status, 0) << p.nama;
        EXPECT_EQ(k.out.rfind("Pemakaian: falak " + std::string(p.nama), 0), 0u) << k.out;
        for (const cli::PakaiOpsi& o : p.opsi) {
            ASSERT_NE(cli::CariOpsi(o.nama), nullptr) << p.nama << " " << o.nama;
            EXPECT_NE(k.out.find("\n  " + std::string(o.nama)), std::string::npos) << p.nama << " " << o.nama;
        }
    }
    EXPECT_EQ(jalan({"--version"}).out, "falak " FALAK_VERSI "\n");
    const Keluaran umum = jalan({"--help"});
    EXPECT_EQ(umum.status, 0);
    EXPECT_NE(umum.out.find("falak tempat hapus NAMA"), std::string::npos);
    EXPECT_EQ(jalan({}).status, 2);
    EXPECT_EQ(jalan({"hitung"}).status, 2);
    EXPECT_EQ(jalan({"tempat"}).status, 2);
    EXPECT_EQ(jalan({"tempat", "pindah", "X"}).status, 2);
}

TEST_F(Perintah, UsageErrorsOfEverySubcommandInOneStyle) {
    salahPakai({"hisab", "--tahun", "-5", "--bulan", "8", "--kitab", "SN"}, "hisab",
               "Tahun -5 H di luar jangkauan kitab-kitab ini");
    salahPakai({"semua", "--tahun", "1445", "--bulan", "13"}, "semua", "bulan \"13\" tidak ada");
    salahPakai({"semua", "--tahun", "1445", "--bulan", "8x"}, "semua", "bulan \"8x\" tidak ada");
    salahPakai({"hisab", "--kitab", "SN", "--bulan", "8"}, "hisab", "pilihan --tahun wajib diisi");
    salahPakai({"hisab", "--kitab", "semua", "--tahun", "1445", "--bulan", "8"}, "hisab", "hisab memakai satu kitab");
    salahPakai({"setahun", "--kitab", "IM", "--tahun", "1445"}, "setahun", "kitab Irsyadu al-Murid belum tersedia");
    salahPakai({"setahun", "--kitab", "SN", "--tahun", "1445", "--tahun", "1446"}, "setahun",
               "pilihan --tahun ditulis dua kali");
    salahPakai({"setahun", "--kitab", "SN", "--tahun"}, "setahun", "pilihan --tahun belum diberi isian TAHUN");
    salahPakai({"setahun", "--kitab", "SN", "--tahun", "1445", "--bulan", "8"}, "setahun",
               "pilihan --bulan tidak dikenal");
    salahPakai({"setahun", "--kitab", "SN", "--tahun", "1445", "lebih"}, "setahun", "isian \"lebih\" tidak dikenal");
    salahPakai({"setahun", "--kitab", "SN", "--json=ya", "--tahun", "1445"}, "setahun",
               "pilihan --json tidak memakai isian");
    salahPakai({"tempat", "hapus"}, "tempat hapus", "NAMA belum ditulis");
    salahPakai({"tempat", "ubah", "Pasuruan"}, "tempat ubah", "tidak ada yang diubah");
    salahPakai({"nilai"}, "nilai", "belum ada operasi");
    salahPakai({"nilai", "--batch", "umum;0"}, "nilai", "pakailah --batch tanpa operasi");
    salahPakai({"semua", "--tahun", "1445", "--bulan", "8", "--markaz", "Atlantis"}, "semua",
               "daerah \"Atlantis\" tidak ada di daftar tempat");
}

TEST_F(Perintah, ValuesAfterEqualsAndTheOldNameOfThePlaceOption) {
    const Keluaran k = jalan({"semua", "--tahun=1445", "--bulan=8", "--tempat", "PASURUAN "});
    EXPECT_EQ(k.status, 0) << k.err;
    EXPECT_EQ(k.out.rfind("Tempat: Pasuruan\n", 0), 0u);
}

// A book whose table is missing, emptied, cut short or holds words in a number cell does not
// answer: the run stops with the table named and exit 1. No warning speaks of tables that no
// available book reads.
TEST_F(Perintah, ABookWithADamagedTableRefusesToRun) {
    const std::string kepala = "Cari,mshTh,mshBln\n";
    struct Kasus {
        std::string tabel, isi, alasan;
        bool ada = true;
    };
    const Kasus kasus[] = {
        {"TRBTaadil", "", "berkas tidak ada", false},
        {"TRBTaadil", "", "berkas kosong"},
        {"TRBTaadil", "Cari,tdKsJah\n", "tabel kosong"},
        {"TRBSyahru", "Cari,mshTh,mshBln\n1,0,0\n2,0\n", "baris 3: ada 2 isian, mestinya 3"},
        {"TRBSyahru", "Cari,mshTh,mshBln\n1,0,0\n2,nol,0\n", "kolom mshTh: \"nol\" bukan angka"},
        {"TafawutWIB", "", "berkas tidak ada", false},
    };
    for (const Kasus& k : kasus) {
        uji::FolderUji f("falak-tabel");
        f.tabel("Balad", "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,"
                         "ZonaTime,Ketinggian\nPasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n");
        if (k.ada) f.tabel(k.tabel, k.isi);
        else std::filesystem::remove(f.lokasi().data / (k.tabel + ".csv"));
        std::istringstream in;
        std::ostringstream out, err;
        EXPECT_EQ(cli::Jalankan({"hisab", "--kitab", "SN", "--tahun", "1445", "--bulan", "8"}, {f.lokasi(), in, out, err}),
                  1)
            << k.tabel << " " << k.alasan;
        EXPECT_EQ(out.str(), "");
        EXPECT_NE(err.str().find("falak hisab: Kitab Sullam al-Nairoin tidak bisa dihitung: tabel " + k.tabel), std::string::npos)
            << err.str();
        EXPECT_NE(err.str().find(k.alasan), std::string::npos) << err.str();
    }
    const Keluaran sehat = jalan({"semua", "--tahun", "1445", "--bulan", "8"});
    EXPECT_EQ(sehat.status, 0);
    EXPECT_EQ(sehat.err, "");
}

TEST_F(Perintah, YearsOutsideTheServedRangeAreRefused) {
    for (const char* tahun : {"0", "-5", "3001", "9999999", "2147483647", "99999999999999999999"})
        salahPakai({"semua", "--tahun", tahun, "--bulan", "8"}, "semua", "Tahun ");
    salahPakai({"semua", "--tahun", "1445.5", "--bulan", "8"}, "semua", "Tahun \"1445.5\" bukan bilangan bulat");
    for (const char* tahun : {"1", "3000"}) EXPECT_EQ(jalan({"semua", "--tahun", tahun, "--bulan", "12"}).status, 0);
}
