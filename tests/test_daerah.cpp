// The places register: the place record of a row, the working copy made from the factory copy,
// the checks on what the user types, and saves that never leave the file half-written.
#include <gtest/gtest.h>

#include <algorithm>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "core/Daerah.h"

using namespace falak;
namespace fs = std::filesystem;

namespace {

const char* const kBalad =
    "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,Ketinggian\n"
    " Pasuruan ,\xD9\x81\xD8\xB3\xD8\xB1\xD9\x88\xD8\xA7\xD9\x86 ,7,39,LS,112,56,BT,7,0\n"
    "Makkah,Makkah,21,25,LU,39,49,BT,3,277.5\n"
    "Greenwich,Greenwich,51,29,U,0,0,BB,0,\n";

struct Folder {
    fs::path akar;
    LokasiData lokasi;
    explicit Folder(const std::string& nama) {
        // One folder per process: test runs may go side by side.
        akar = fs::path(testing::TempDir()) / ("falak-" + nama + "-" + std::to_string(getpid()));
        fs::remove_all(akar);
        lokasi = {akar / "data", akar / "pengguna"};
        fs::create_directories(lokasi.data);
    }
    ~Folder() { fs::remove_all(akar); }
    void tulis(const fs::path& berkas, std::string_view isi) const {
        fs::create_directories(berkas.parent_path());
        std::ofstream(berkas, std::ios::binary) << isi;
    }
    std::string baca(const fs::path& berkas) const {
        std::string isi;
        EXPECT_EQ(BacaBerkas(berkas, isi), "");
        return isi;
    }
};

IsianTempat gresik() { return {"Gresik", "", "7", "9", "LS", "112", "39", "BT", "7", "12"}; }

}  // namespace

TEST(TempatDariBaris, FlagsAndNumbersAsTheRunReadsThem) {
    Tabel t("Daerah");
    ASSERT_EQ(t.bacaCsv(kBalad), "");
    const Tempat p = TempatDariBaris(t, 0);
    EXPECT_EQ(p.nama, "Pasuruan");
    EXPECT_EQ(p.namaTampil, "\xD9\x81\xD8\xB3\xD8\xB1\xD9\x88\xD8\xA7\xD9\x86");
    EXPECT_EQ(p.tandaLintang, "0");
    EXPECT_EQ(p.lintangDerajat, 7);
    EXPECT_EQ(p.lintangMenit, 39);
    EXPECT_EQ(p.tandaBujur, "1");
    EXPECT_EQ(p.bujurDerajat, 112);
    EXPECT_EQ(p.bujurMenit, 56);
    EXPECT_EQ(p.zona, 7);

    const Tempat m = TempatDariBaris(t, 1);
    EXPECT_EQ(m.tandaLintang, "1");
    EXPECT_DOUBLE_EQ(m.tinggi, 277.5);
    const Tempat g = TempatDariBaris(t, 2);  // anything but LS is north, anything but BT west
    EXPECT_EQ(g.tandaLintang, "1");
    EXPECT_EQ(g.tandaBujur, "0");
    EXPECT_EQ(g.tinggi, 0.0);

    // The run's search is the table's own: the exact stored name.
    ASSERT_TRUE(CariTempat(t, "Makkah"));
    EXPECT_EQ(CariTempat(t, "Makkah")->zona, 3);
    EXPECT_EQ(t.kursor(), 1u);
    EXPECT_FALSE(CariTempat(t, "Surabaya"));
}

TEST(BukaDaerah, WorkingCopyIsMadeFromTheFactoryCopyOnce) {
    Folder f("buka");
    f.tulis(BerkasBalad(f.lokasi), kBalad);
    Tabel t("Daerah");
    EXPECT_EQ(BukaDaerah(t, f.lokasi), "");
    EXPECT_EQ(t.jumlahBaris(), 3u);
    EXPECT_EQ(f.baca(BerkasDaerah(f.lokasi)), kBalad);

    // The user's own copy is never replaced by the factory's.
    f.tulis(BerkasDaerah(f.lokasi), "BaladIN\nSendiri\n");
    EXPECT_EQ(BukaDaerah(t, f.lokasi), "");
    EXPECT_EQ(t.jumlahBaris(), 1u);
}

TEST(BukaDaerah, WithoutAnyCopyTheRegisterStartsEmptyAndMakesTheFile) {
    Folder f("kosong");
    Tabel t("Daerah");
    EXPECT_NE(BukaDaerah(t, f.lokasi), "");
    EXPECT_FALSE(t.terbuka());
    RegisterDaerah reg(t, BerkasDaerah(f.lokasi));
    EXPECT_EQ(reg.tambah(gresik()), "");
    EXPECT_EQ(reg.simpan(), "");
    EXPECT_EQ(f.baca(BerkasDaerah(f.lokasi)),
              "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,"
              "Ketinggian\nGresik,Gresik,7,9,LS,112,39,BT,7,12\n");
}

TEST(BukaDaerah, BrokenWorkingCopyIsToldAndNeverOverwritten) {
    Folder f("rusak");
    const std::string rusak = "BaladIN,BaladAR\nA\n";
    f.tulis(BerkasDaerah(f.lokasi), rusak);
    Tabel t("Daerah");
    EXPECT_EQ(BukaDaerah(t, f.lokasi),
              "baris 2: ada 1 isian, mestinya 2 (baris itu dilewati; berkas tidak diubah sebelum dibetulkan)");
    RegisterDaerah reg(t, BerkasDaerah(f.lokasi));
    EXPECT_NE(reg.simpan().find("rusak: baris 2"), std::string::npos);
    EXPECT_EQ(f.baca(BerkasDaerah(f.lokasi)), rusak);
}

TEST(RegisterDaerah, BadValuesAreRefusedWithAClearMessage) {
    Tabel t("Daerah");
    ASSERT_EQ(t.bacaCsv(kBalad), "");
    RegisterDaerah reg(t, "tidak-dipakai.csv");
    auto dengan = [](auto ubah) {
        IsianTempat i = gresik();
        ubah(i);
        return i;
    };
    struct Kasus {
        IsianTempat isian;
        std::string pesan;
    };
    const Kasus kasus[] = {
        {dengan([](auto& i) { i.nama = "  "; }), "Nama tempat belum diisi."},
        {dengan([](auto& i) { i.nama = " makkah "; }),
         "Tempat \"Makkah\" sudah ada di daftar. Pakai nama lain, atau ubah yang sudah ada."},
        {dengan([](auto& i) { i.nama = "Gre\nsik"; }), "Nama tempat jangan pakai ganti baris atau tab."},
        {dengan([](auto& i) { i.lintangDerajat = "91"; }), "Derajat lintang harus antara 0 sampai 90, bukan 91."},
        {dengan([](auto& i) { i.lintangDerajat = "90"; }), "Kebablasan: lintang paling jauh 90 derajat 0 menit."},
        {dengan([](auto& i) { i.lintangDerajat = "-7"; }),
         "Derajat lintang ditulis tanpa minus; utara atau selatan pakai LU atau LS."},
        {dengan([](auto& i) { i.lintangDerajat = "7.5"; }), "Derajat lintang harus bilangan bulat, bukan \"7.5\"."},
        {dengan([](auto& i) { i.lintangMenit = "60"; }), "Menit lintang harus antara 0 sampai 59, bukan 60."},
        {dengan([](auto& i) { i.arahLintang = "S"; }), "Arah lintang harus LU (utara) atau LS (selatan)."},
        {dengan([](auto& i) { i.bujurDerajat = "181"; }), "Derajat bujur harus antara 0 sampai 180, bukan 181."},
        {dengan([](auto& i) { i.bujurMenit = ""; }), "Menit bujur belum diisi."},
        {dengan([](auto& i) { i.arahBujur = "BU"; }), "Arah bujur harus BT (timur) atau BB (barat)."},
        {dengan([](auto& i) { i.zona = "7.5"; }),
         "Zona waktu harus bilangan bulat, bukan \"7.5\". Misalnya 7 untuk WIB, 8 WITA, 9 WIT."},
        {dengan([](auto& i) { i.zona = "15"; }),
         "Zona waktu harus antara -12 sampai 14, bukan 15. Misalnya 7 untuk WIB, 8 WITA, 9 WIT."},
        {dengan([](auto& i) { i.tinggi = "tinggi"; }), "Ketinggian harus angka (meter), bukan \"tinggi\"."},
    };
    for (const Kasus& k : kasus) EXPECT_EQ(reg.tambah(k.isian), k.pesan);
    EXPECT_EQ(t.jumlahBaris(), 3u);  // nothing went in

    // The edges themselves are fine.
    EXPECT_EQ(reg.tambah(dengan([](auto& i) {
                  i.nama = "Kutub";
                  i.lintangDerajat = "90";
                  i.lintangMenit = "0";
                  i.arahLintang = "lu";
                  i.bujurDerajat = "180";
                  i.bujurMenit = "0";
                  i.zona = "-12";
                  i.tinggi = "";
              })),
              "");
    const Tempat k = TempatDariBaris(t, 3);
    EXPECT_EQ(k.tandaLintang, "1");
    EXPECT_EQ(k.lintangDerajat, 90);
    EXPECT_EQ(k.zona, -12);
}

TEST(RegisterDaerah, AddChangeDeleteThenSave) {
    Folder f("ubah");
    f.tulis(BerkasBalad(f.lokasi), kBalad);
    Tabel t("Daerah");
    ASSERT_EQ(BukaDaerah(t, f.lokasi), "");
    RegisterDaerah reg(t, BerkasDaerah(f.lokasi));

    ASSERT_EQ(reg.tambah(gresik()), "");
    IsianTempat m = reg.isian(*reg.cari("MAKKAH"));
    EXPECT_EQ(m.nama, "Makkah");
    m.zona = "4";
    EXPECT_EQ(reg.ubah("makkah", m), "");  // keeping its own name is no clash
    m.nama = "Gresik";
    EXPECT_EQ(reg.ubah("Makkah", m),
              "Tempat \"Gresik\" sudah ada di daftar. Pakai nama lain, atau ubah yang sudah ada.");
    EXPECT_EQ(reg.hapus("Greenwich"), "");
    EXPECT_EQ(reg.hapus("Greenwich"), "Tempat \"Greenwich\" tidak ada di daftar.");
    EXPECT_EQ(reg.ubah("Bandung", m), "Tempat \"Bandung\" tidak ada di daftar.");
    ASSERT_EQ(reg.simpan(), "");

    Tabel baru("Daerah");
    ASSERT_EQ(baru.buka(BerkasDaerah(f.lokasi)), "");
    RegisterDaerah lagi(baru, BerkasDaerah(f.lokasi));
    const auto daftar = lagi.daftar();
    ASSERT_EQ(daftar.size(), 3u);
    EXPECT_EQ(daftar[0].nama, "Pasuruan");
    EXPECT_EQ(daftar[1].nama, "Makkah");
    EXPECT_EQ(daftar[1].zona, 4);
    EXPECT_DOUBLE_EQ(daftar[1].tinggi, 277.5);
    EXPECT_EQ(daftar[2].nama, "Gresik");
    EXPECT_EQ(daftar[2].namaTampil, "Gresik");
}

TEST(RegisterDaerah, FailedSaveLeavesThePreviousFileWhole) {
    Folder f("penuh");
    f.tulis(BerkasBalad(f.lokasi), kBalad);
    Tabel t("Daerah");
    ASSERT_EQ(BukaDaerah(t, f.lokasi), "");
    RegisterDaerah reg(t, BerkasDaerah(f.lokasi));
    ASSERT_EQ(reg.tambah(gresik()), "");

    // A file size limit smaller than the register makes the write fail part-way, as a full
    // disk would.
    rlimit lama{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &lama), 0);
    const auto sinyal = std::signal(SIGXFSZ, SIG_IGN);
    rlimit kecil = lama;
    kecil.rlim_cur = 100;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &kecil), 0);
    const std::string pesan = reg.simpan();
    setrlimit(RLIMIT_FSIZE, &lama);
    std::signal(SIGXFSZ, sinyal);

    EXPECT_EQ(pesan, "Sepurane, daftar tempat gagal disimpan ke " + BerkasDaerah(f.lokasi).string() +
                         ": gagal menulis (berkas kebesaran untuk disk ini). Berkas yang lama tetap utuh.");
    EXPECT_EQ(f.baca(BerkasDaerah(f.lokasi)), kBalad);
    // Nothing is left beside the register but its lock.
    std::vector<std::string> ada;
    for (const auto& e : fs::directory_iterator(f.lokasi.pengguna)) ada.push_back(e.path().filename().string());
    std::sort(ada.begin(), ada.end());
    EXPECT_EQ(ada, (std::vector<std::string>{"Daerah.csv", "Daerah.csv.lock"}));
    EXPECT_EQ(reg.simpan(), "");  // and the next save goes through
}

TEST(FolderPengguna, EnvironmentDecidesWhereTheRegisterLives) {
    const auto simpan = [](const char* n) {
        const char* v = std::getenv(n);
        return v ? std::optional<std::string>(v) : std::nullopt;
    };
    const auto home = simpan("HOME"), xdg = simpan("XDG_DATA_HOME"), falak = simpan("FALAK_DATA_HOME");
    setenv("HOME", "/rumah/santri", 1);
    unsetenv("FALAK_DATA_HOME");
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(FolderPengguna(), fs::path("/rumah/santri/.local/share/falak"));
    setenv("XDG_DATA_HOME", "relatif", 1);  // ignored: the rule wants an absolute path
    EXPECT_EQ(FolderPengguna(), fs::path("/rumah/santri/.local/share/falak"));
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(FolderPengguna(), fs::path("/data/falak"));
    setenv("FALAK_DATA_HOME", "/uji", 1);
    EXPECT_EQ(FolderPengguna(), fs::path("/uji"));
    const auto pulihkan = [](const char* n, const std::optional<std::string>& v) {
        if (v) setenv(n, v->c_str(), 1);
        else unsetenv(n);
    };
    pulihkan("HOME", home);
    pulihkan("XDG_DATA_HOME", xdg);
    pulihkan("FALAK_DATA_HOME", falak);
}
