// "falak tempat": what the user sees and the exit status, on a register in a folder of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

#include "cli/Perintah.h"

using namespace falak;
namespace fs = std::filesystem;

namespace {

struct Cli {
    fs::path akar;
    LokasiData lokasi;
    std::string keluar, galat;

    explicit Cli(const std::string& nama) {
        akar = fs::path(testing::TempDir()) / ("falak-cli-" + nama + "-" + std::to_string(getpid()));
        fs::remove_all(akar);
        lokasi = {akar / "data", akar / "pengguna"};
        fs::create_directories(lokasi.data);
        std::ofstream(lokasi.data / "Balad.csv")
            << "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,"
               "Ketinggian\nPasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n";
    }
    ~Cli() { fs::remove_all(akar); }
    int jalan(std::vector<std::string> argumen) {
        std::istringstream in;
        std::ostringstream out, err;
        argumen.insert(argumen.begin(), "tempat");
        const int status = cli::Jalankan(argumen, {lokasi, in, out, err});
        keluar = out.str();
        galat = err.str();
        return status;
    }
};

}  // namespace

TEST(PerintahTempat, AddChangeDeleteAndListNamingTheFile) {
    Cli c("urut");
    const std::string berkas = (c.lokasi.pengguna / "Daerah.csv").string();
    ASSERT_EQ(c.jalan({"tambah", "Gresik", "--lintang", "7\xC2\xB0" "9' LS", "--bujur", "112:39:bt", "--zona", "7",
                       "--tinggi", "12"}),
              0);
    EXPECT_EQ(c.keluar, "Tempat \"Gresik\" sudah ditambahkan ke " + berkas + ".\n");
    EXPECT_EQ(c.galat, "");
    ASSERT_EQ(c.jalan({"ubah", "gresik", "--nama", "Sampang", "--bujur", "113 15 BT"}), 0);
    ASSERT_EQ(c.jalan({"hapus", "Pasuruan"}), 0);
    ASSERT_EQ(c.jalan({"daftar"}), 0);
    EXPECT_EQ(c.keluar,
              "Berkas tempat: " + berkas +
                  "\n"
                  "NAMA     LINTANG  BUJUR      ZONA  TINGGI  NAMA ARAB\n"
                  "Sampang  7 9 LS   113 15 BT  7     12      Sampang\n");
}

TEST(PerintahTempat, BadInputIsRefusedAndNothingIsWritten) {
    Cli c("tolak");
    const fs::path berkas = c.lokasi.pengguna / "Daerah.csv";
    ASSERT_EQ(c.jalan({"daftar"}), 0);  // makes the working copy from the factory copy
    std::ifstream in(berkas);
    const std::string sebelum(std::istreambuf_iterator<char>(in), {});

    EXPECT_EQ(c.jalan({"tambah", "Bangil", "--lintang", "7 60 LS", "--bujur", "112 47 BT", "--zona", "7"}), 1);
    EXPECT_EQ(c.galat, "falak tempat tambah: Menit lintang harus antara 0 sampai 59, bukan 60.\n");
    EXPECT_EQ(c.jalan({"tambah", "Bangil", "--lintang", "7 LS", "--bujur", "112 47 BT", "--zona", "7"}), 1);
    EXPECT_EQ(c.galat, "falak tempat tambah: Tulis lintang seperti \"7 39 LS\": derajat, menit, lalu LU atau LS.\n");
    EXPECT_EQ(c.jalan({"hapus", "Bangil"}), 1);

    // Commands written wrongly show the usage.
    EXPECT_EQ(c.jalan({"tambah", "Bangil", "--lintang", "7 36 LS", "--zona", "7"}), 2);
    EXPECT_EQ(c.galat.rfind("falak tempat tambah: pilihan --bujur wajib diisi\nPemakaian: falak tempat tambah NAMA ", 0),
              0u);
    EXPECT_EQ(c.jalan({"ubah", "Pasuruan", "--warna", "hijau"}), 2);
    EXPECT_EQ(c.jalan({"ubah", "Pasuruan", "--zona"}), 2);

    std::ifstream lagi(berkas);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(lagi), {}), sebelum);
}
