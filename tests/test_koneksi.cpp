// Opening every table at the start of a session: what opens, what stays closed, and the one
// message that tells the user about it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "core/Koneksi.h"

using namespace falak;
namespace fs = std::filesystem;

TEST(ClsConnection, OpensWhatItCanAndTellsWhatItCannot) {
    const fs::path akar = fs::path(testing::TempDir()) / ("falak-koneksi-" + std::to_string(getpid()));
    fs::remove_all(akar);
    const LokasiData lokasi{akar / "data", akar / "pengguna"};
    fs::create_directories(lokasi.data);
    std::ofstream(lokasi.data / "Balad.csv") << "BaladIN,ZonaTime\nPasuruan,7\n";
    std::ofstream(lokasi.data / "TRBTaadil.csv") << "Cari,tdKsJah\n1,2\n";
    std::ofstream(lokasi.data / "TQQTaadil.csv") << "Cari,tdKsJah\n1,2,3\n";

    ClsConnection k(lokasi);
    EXPECT_TRUE(k.Daerah.terbuka());
    EXPECT_TRUE(fs::exists(lokasi.pengguna / "Daerah.csv"));
    ASSERT_TRUE(k.TRBTaadil.cari("Cari", int64_t{1}));
    EXPECT_EQ(k.TRBTaadil.baca("tdKsJah"), "2");
    EXPECT_FALSE(k.TQQTaadil.terbuka());
    EXPECT_EQ(k.tabel("TRBTaadil"), &k.TRBTaadil);
    EXPECT_EQ(k.tabel("Balad"), nullptr);

    // 28 tables less the two that opened; in the order of opening, the broken one with its line.
    const auto& m = k.masalah();
    ASSERT_EQ(m.size(), 26u);
    EXPECT_EQ(m.front().tabel, "ClearTxtMargen");
    EXPECT_EQ(m.front().alasan, "berkas tidak ada");
    EXPECT_EQ(m.back().tabel, "Validation");
    const auto tqq = std::find_if(m.begin(), m.end(), [](const MasalahTabel& x) { return x.tabel == "TQQTaadil"; });
    ASSERT_NE(tqq, m.end());
    EXPECT_EQ(tqq->berkas, lokasi.data / "TQQTaadil.csv");
    EXPECT_EQ(tqq->alasan, "baris 2: ada 3 isian, mestinya 2");

    const std::string laporan = LaporanMasalah(m);
    EXPECT_EQ(laporan.rfind("Ada 26 tabel yang tidak bisa dibaca; hisab yang memakainya tidak akan lengkap:\n", 0), 0u);
    EXPECT_NE(laporan.find("  TQQTaadil (" + (lokasi.data / "TQQTaadil.csv").string() +
                           "): baris 2: ada 3 isian, mestinya 2\n"),
              std::string::npos);
    EXPECT_EQ(LaporanMasalah({}), "");

    EXPECT_EQ(k.ubahDaerah([](RegisterDaerah& r) {
        return r.tambah({"Gresik", "", "7", "9", "LS", "112", "39", "BT", "7", "0"});
    }),
              "Berkas daftar tempat tidak punya kolom BaladAR, jadi tempatnya tidak bisa diisi.");
    EXPECT_EQ(k.ubahDaerah([](RegisterDaerah& r) { return r.hapus("Pasuruan"); }), "");
    EXPECT_EQ(k.Daerah.jumlahBaris(), 0u);
    std::ifstream in(lokasi.pengguna / "Daerah.csv");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "BaladIN,ZonaTime\n");
    fs::remove_all(akar);
}

TEST(FolderData, TheEnvironmentVariableComesFirst) {
    const char* lama = std::getenv("FALAK_DATA");
    const std::string simpan = lama ? lama : "";
    setenv("FALAK_DATA", "/tabel/lain", 1);
    EXPECT_EQ(FolderData(), fs::path("/tabel/lain"));
    unsetenv("FALAK_DATA");
    // Without it, a data folder beside the test program or above it, or the one fixed at build.
    EXPECT_FALSE(FolderData().empty());
    if (lama) setenv("FALAK_DATA", simpan.c_str(), 1);
}
