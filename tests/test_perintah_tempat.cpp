// "falak tempat": what the user sees and the exit status, on a register in a folder of its own;
// commands at once by the real program; a register damaged, read-only or left with a
// temporary file by a save that was cut off.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <sys/wait.h>
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
    fs::path berkas() const { return lokasi.pengguna / "Daerah.csv"; }
    std::string isi() const {
        std::ifstream f(berkas(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(f), {});
    }
    void tulis(const std::string& teks) const {
        fs::create_directories(lokasi.pengguna);
        std::ofstream(berkas(), std::ios::binary) << teks;
    }
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
    // A name that is not UTF-8, or holds a control character, would lock the register.
    EXPECT_EQ(c.jalan({"tambah", "\xff\xfe" "bad", "--lintang", "7 36 LS", "--bujur", "112 47 BT", "--zona", "7"}), 1);
    EXPECT_NE(c.galat.find("bukan teks UTF-8"), std::string::npos);
    EXPECT_EQ(c.jalan({"tambah", "Ban\x1bgil", "--lintang", "7 36 LS", "--bujur", "112 47 BT", "--zona", "7"}), 1);
    // Names match whatever their case, in every subcommand.
    EXPECT_EQ(c.jalan({"tambah", "PASURUAN", "--lintang", "7 36 LS", "--bujur", "112 47 BT", "--zona", "7"}), 1);

    // Commands written wrongly show the usage.
    EXPECT_EQ(c.jalan({"tambah", "Bangil", "--lintang", "7 36 LS", "--zona", "7"}), 2);
    EXPECT_EQ(c.galat.rfind("falak tempat tambah: pilihan --bujur wajib diisi\nPemakaian: falak tempat tambah NAMA ", 0),
              0u);
    EXPECT_EQ(c.jalan({"ubah", "Pasuruan", "--warna", "hijau"}), 2);
    EXPECT_EQ(c.jalan({"ubah", "Pasuruan", "--zona"}), 2);

    std::ifstream lagi(berkas);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(lagi), {}), sebelum);
}

TEST(PerintahTempat, TwentyAddsAtOnceAreAllKept) {
    Cli c("serentak");
    ASSERT_EQ(c.jalan({"daftar"}), 0);
    std::vector<pid_t> anak;
    for (int i = 0; i < 20; ++i) {
        const std::string nama = "Tempat" + std::to_string(i);
        const pid_t p = fork();
        ASSERT_GE(p, 0);
        if (p == 0) {
            setenv("FALAK_DATA", c.lokasi.data.c_str(), 1);
            setenv("FALAK_DATA_HOME", c.lokasi.pengguna.c_str(), 1);
            execl(FALAK, FALAK, "tempat", "tambah", nama.c_str(), "--lintang", "7 0 LS", "--bujur", "110 0 BT",
                  "--zona", "7", static_cast<char*>(nullptr));
            _exit(127);
        }
        anak.push_back(p);
    }
    for (const pid_t p : anak) {
        int status = 0;
        ASSERT_EQ(waitpid(p, &status, 0), p);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    const std::string isi = c.isi();
    for (int i = 0; i < 20; ++i)
        EXPECT_NE(isi.find("\nTempat" + std::to_string(i) + ","), std::string::npos) << i;
    EXPECT_NE(isi.find("\nPasuruan,"), std::string::npos);
}

TEST(PerintahTempat, ADamagedRegisterServesItsGoodRowsAndIsNeverOverwritten) {
    Cli c("rusak");
    const std::string kepala =
        "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,Ketinggian\n";
    const std::string rusak = kepala + "Pasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n"
                                       "Bangil,Bangil,tujuh,36,LS,112,47,BT,7,0\n"
                                       "Lasem,Lasem,6,42\n"
                                       "\xff\xfe" "bad,x,7,0,LS,110,0,BT,7,0\n"
                                       "Jakarta,Jakarta,6,15,LS,106,52,BT,7,8\n";
    c.tulis(rusak);
    ASSERT_EQ(c.jalan({"daftar"}), 0);
    EXPECT_NE(c.keluar.find("\nPasuruan "), std::string::npos);
    EXPECT_NE(c.keluar.find("\nJakarta "), std::string::npos);
    EXPECT_EQ(c.keluar.find("Bangil"), std::string::npos);
    for (const char* baris : {"baris 3: kolom DarojatArdlu", "baris 4: ada 4 isian", "baris 5: bukan teks UTF-8"})
        EXPECT_NE(c.galat.find(baris), std::string::npos) << baris << "\n" << c.galat;

    EXPECT_EQ(c.jalan({"tambah", "Gresik", "--lintang", "7 9 LS", "--bujur", "112 39 BT", "--zona", "7"}), 1);
    EXPECT_NE(c.galat.find("rusak"), std::string::npos);
    EXPECT_EQ(c.jalan({"hapus", "Jakarta"}), 1);
    EXPECT_EQ(c.isi(), rusak);
}

TEST(PerintahTempat, AReadOnlyRegisterIsRefusedAndLeftoversAreCleaned) {
    Cli c("baca");
    ASSERT_EQ(c.jalan({"daftar"}), 0);
    const std::string sebelum = c.isi();
    fs::permissions(c.berkas(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(c.jalan({"tambah", "Gresik", "--lintang", "7 9 LS", "--bujur", "112 39 BT", "--zona", "7"}), 1);
    EXPECT_NE(c.galat.find("hanya boleh dibaca"), std::string::npos);
    EXPECT_EQ(c.isi(), sebelum);
    EXPECT_EQ(fs::status(c.berkas()).permissions() & fs::perms::owner_write, fs::perms::none);

    // A save cut off (a power cut) left its temporary file; the next save takes it away.
    fs::permissions(c.berkas(), fs::perms::owner_write, fs::perm_options::add);
    std::ofstream(c.lokasi.pengguna / ".Daerah.csv.k2J9xq") << "setengah";
    EXPECT_EQ(c.jalan({"tambah", "Gresik", "--lintang", "7 9 LS", "--bujur", "112 39 BT", "--zona", "7"}), 0);
    EXPECT_FALSE(fs::exists(c.lokasi.pengguna / ".Daerah.csv.k2J9xq"));
}
