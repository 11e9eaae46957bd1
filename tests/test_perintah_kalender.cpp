// "falak kalender" as a user runs it: the grid, the JSON, and the answers to input it cannot use.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <unistd.h>

#include "cli/Perintah.h"

using namespace falak;

namespace {

struct Keluaran {
    int status;
    std::string out, err;
};

class PerintahKalender : public testing::Test {
protected:
    ~PerintahKalender() override { std::filesystem::remove_all(pengguna); }
    Keluaran jalan(std::vector<std::string> argumen) {
        argumen.insert(argumen.begin(), "kalender");
        std::istringstream in;
        std::ostringstream out, err;
        const int status = cli::Jalankan(argumen, {{FALAK_DATA_UJI, pengguna}, in, out, err});
        return {status, out.str(), err.str()};
    }
    std::filesystem::path pengguna =
        std::filesystem::path(testing::TempDir()) / ("falak-perintah-kalender-" + std::to_string(getpid()));
};

size_t hitung(const std::string& teks, const std::string& kata) {
    size_t n = 0;
    for (size_t i = teks.find(kata); i != std::string::npos; i = teks.find(kata, i + 1)) ++n;
    return n;
}

}  // namespace

TEST_F(PerintahKalender, InputItCannotUseIsRefusedInIndonesianWithStatus2) {
    const Keluaran huruf = jalan({"--tahun", "dua ribu"});
    EXPECT_EQ(huruf.status, 2);
    EXPECT_NE(huruf.err.find("falak kalender: Tahun \"dua ribu\" bukan bilangan bulat"), std::string::npos) << huruf.err;
    EXPECT_EQ(huruf.out, "");
    EXPECT_EQ(jalan({}).status, 2);
    EXPECT_EQ(jalan({"--tahun"}).status, 2);
    EXPECT_EQ(jalan({"--tahun", "2026", "--warna"}).status, 2);
    const Keluaran kitab = jalan({"--tahun", "2026", "--kitab", "XX"});
    EXPECT_EQ(kitab.status, 2);
    EXPECT_NE(kitab.err.find("kitab \"XX\" tidak dikenal"), std::string::npos) << kitab.err;
    EXPECT_EQ(jalan({"--tahun", "2026", "--markaz", "Atlantis"}).status, 2);
    // A precise book whose module is not there yet.
    const Keluaran belum = jalan({"--tahun", "2026", "--kitab", "MA"});
    EXPECT_EQ(belum.status, 2);
    EXPECT_NE(belum.err.find("belum tersedia"), std::string::npos) << belum.err;
}

TEST_F(PerintahKalender, TheGridShowsEveryDayUnderItsWeekday) {
    const Keluaran k = jalan({"--tahun", "2026"});
    ASSERT_EQ(k.status, 0) << k.err;
    EXPECT_EQ(k.out.rfind("KALENDER TAHUN 2026 M. - Sullam al-Nairoin, Pasuruan\n", 0), 0u) << k.out.substr(0, 200);
    // Twelve blocks, each with the row of day names; 1 January 2026 is Kamis Pon, the fifth
    // column of eight characters.
    EXPECT_EQ(hitung(k.out, "    Ahad   Senin  Selasa    Rabu   Kamis  Ju'mat   Sabtu\n"), 12u);
    const size_t jan = k.out.find("JANUARI 2026 M.");
    ASSERT_NE(jan, std::string::npos);
    const size_t baris = k.out.find('\n', k.out.find('\n', jan) + 1) + 1;
    EXPECT_EQ(k.out.substr(baris, 36), std::string(32, ' ') + "   1");
    const size_t pasaran = k.out.find('\n', baris) + 1;
    EXPECT_EQ(k.out.substr(pasaran, 40), std::string(32, ' ') + "    Pon ");
    EXPECT_NE(k.out.find("DESEMBER 2026 M."), std::string::npos);
    // A first day in the grid for each one in the list below it.
    const size_t daftar = k.out.find("Awal bulan:\n");
    ASSERT_NE(daftar, std::string::npos);
    EXPECT_EQ(hitung(k.out.substr(jan, daftar - jan), "*"), hitung(k.out.substr(daftar), " H. = "));
}

TEST_F(PerintahKalender, JsonGivesEveryDayOfTheYear) {
    const Keluaran k = jalan({"--tahun", "2024", "--json"});
    ASSERT_EQ(k.status, 0) << k.err;
    EXPECT_EQ(hitung(k.out, "{\"masehi\": \"2024-"), 366u);
    EXPECT_NE(k.out.find("{\"masehi\": \"2024-03-10\", \"hari\": \"Ahad\", \"pasaran\": \"Legi\""), std::string::npos);
    EXPECT_EQ(hitung(k.out, "\"awalBulan\": true"), hitung(k.out.substr(k.out.find("\"awalBulan\": [")), "\"hijriah\""));
    EXPECT_NE(k.out.find("\"sumber\": \"hisab kalender\""), std::string::npos);

    const Keluaran h = jalan({"--tahun", "1445", "--hijriah", "--json", "--kitab", "FR"});
    ASSERT_EQ(h.status, 0) << h.err;
    EXPECT_EQ(hitung(h.out, "\"awalBulan\": true"), 12u);
    EXPECT_NE(h.out.find("{\"judul\": \"Muharrom 1445 H.\""), std::string::npos);
    EXPECT_NE(h.out.find("\"kitab\": \"FR\""), std::string::npos);
}
