// The eclipses of the books of Fathu al-Ro'uf's pattern: each book's search run through the
// command line on real eclipses, whose middle and size come from the Swiss Ephemeris (local
// apparent time at Semarang, 110° 24' E, 6° 56' S); and the rows where a book's own data
// changes the numbers, worked by hand from its constants and the month table.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "SesiUji.h"
#include "cli/Perintah.h"
#include "core/FungsHisab.h"
#include "eclipse/GerhanaFaidlulKarim.h"
#include "eclipse/GerhanaFathurRouf.h"
#include "eclipse/GerhanaTadzkirotulIkhwan.h"
#include "methods/taqribi/FaidlulKarim.h"

using namespace falak;

namespace {

constexpr const char* kKitab[] = {"FR", "TZ", "IDB1", "FK"};

struct GerhanaKitab : uji::SesiUji {
    GerhanaKitab() : uji::SesiUji("falak-gerhana-kitab") {}
    void SetUp() override {
        folder.tabel("Balad", uji::kKepalaBalad + "Semarang,Semarang,6,56,LS,110,24,BT,7,18\n");
        bukaSesi();
    }
    std::string jalan(const std::vector<std::string>& argumen, int& status) {
        std::istringstream in;
        std::ostringstream out, err;
        status = cli::Jalankan(argumen, {folder.lokasi(), in, out, err});
        return out.str();
    }
    // A number behind its key in the command's JSON.
    static double angka(const std::string& json, const std::string& kunci) {
        const size_t p = json.find("\"" + kunci + "\": ");
        return p == std::string::npos ? -1 : std::stod(json.substr(p + kunci.size() + 4));
    }
    template <class M>
    M& modul(const char* kode, Garapan g) {
        auto* m = dynamic_cast<M*>(ws->modul(*CariModul(kode, g)));
        EXPECT_NE(m, nullptr);
        return *m;
    }
};

}  // namespace

TEST_F(GerhanaKitab, TotalLunarEclipseOf26May2021) {
    // Greatest 11:18:43 UT, 18.72 h local apparent time at Semarang, umbral magnitude 1.010
    // (12.1 fingers): the evening of Rabu 26 May, the eve of Kamis 27 May, mid-Syawal 1442.
    for (const char* k : kKitab) {
        int status = 0;
        const std::string json = jalan({"gerhana", "--jenis", "bulan", "--kitab", k, "--tahun", "1442", "--bulan", "10",
                                        "--markaz", "Semarang", "--json"},
                                       status);
        ASSERT_EQ(status, 0) << k;
        EXPECT_NEAR(angka(json, "jamTengah"), 18.72, 0.3) << k;
        EXPECT_NEAR(angka(json, "ashobi"), 12.1, 1.0) << k;
        EXPECT_NE(json.find("Gerhana terjadi pada : Malam Kamis"), std::string::npos) << k;
        EXPECT_NE(json.find("Syawal 1442 H./ 27 Mei 2021 M."), std::string::npos) << k;
    }
}

TEST_F(GerhanaKitab, PartialSolarEclipseOf20April2023) {
    // Greatest at Semarang 11.22 h local apparent time, magnitude 0.598 (7.2 fingers), at the
    // ijtima' that ends Ramadan 1444: Kamis 20 April.
    for (const char* k : kKitab) {
        int status = 0;
        const std::string json = jalan({"gerhana", "--jenis", "matahari", "--kitab", k, "--tahun", "1444", "--bulan",
                                        "9", "--markaz", "Semarang", "--json"},
                                       status);
        ASSERT_EQ(status, 0) << k;
        EXPECT_NEAR(angka(json, "jamTengah"), 11.22, 0.5) << k;
        EXPECT_NEAR(angka(json, "ashobi"), 7.2, 1.5) << k;
        EXPECT_NE(json.find("Gerhana terjadi pada : Kamis"), std::string::npos) << k;
        EXPECT_NE(json.find("20 Apr 2023 M."), std::string::npos) << k;
    }
}

TEST_F(GerhanaKitab, DatedAlamahAtAFullMoonCountedBackWestOfTheMarkaz) {
    // Greatest 13:00:26 UT on 4 June 1993, 20.40 h local apparent time at Semarang, umbral
    // magnitude 1.56: the eve of Sabtu 5 June, mid-Dzulhijjah 1413. Its full moon stands half a
    // lunation before the next year's first ijtima' (fifteen days back), and Semarang lies west
    // of Surabaya and Sampang: the place's correction takes the middle back over the start of
    // the week.
    for (const char* k : {"IDB1", "FK"}) {
        int status = 0;
        const std::string json = jalan({"gerhana", "--jenis", "bulan", "--kitab", k, "--tahun", "1413", "--bulan", "12",
                                        "--markaz", "Semarang", "--json"},
                                       status);
        ASSERT_EQ(status, 0) << k;
        EXPECT_NEAR(angka(json, "jamTengah"), 20.40, 1.0) << k;
        EXPECT_NE(json.find("Gerhana terjadi pada : Malam Sabtu"), std::string::npos) << k;
        EXPECT_NE(json.find("Dzulhijjah 1413 H./ 5 Jun 1993 M."), std::string::npos) << k;
    }
}

TEST_F(GerhanaKitab, AYearsSearchFindsTheEclipsesInTheirMonths) {
    // 1442 to 1444 H: the lunar eclipses of 26 May 2021 (Syawal 1442) and 8 November 2022
    // (Robiul Tsani 1444, total) at night; the one of 19 November 2021 ends before moonrise
    // by the book's clock, and 16 May 2022 is by day.
    int status = 0;
    const std::string daftar = jalan({"gerhana", "--jenis", "bulan", "--kitab", "TZ", "--tahun", "1442", "--sampai",
                                      "1444", "--markaz", "Semarang"},
                                     status);
    ASSERT_EQ(status, 0);
    EXPECT_EQ(daftar.rfind("1442 10  ", 0), 0u) << daftar;
    EXPECT_NE(daftar.find("\n1444  4  Malam Rabu Wage, 14 R. Tsani 1444 H./ 9 Nov 2022 M."), std::string::npos);
    EXPECT_NE(daftar.find("12 Ushbu' (Total)"), std::string::npos);
    EXPECT_EQ(daftar.find("1443 "), std::string::npos);
    // The book's middle of 6 May 2023 falls just after midnight by the sun at Semarang, 110° 24'
    // E: by the zone of 105° it is some 25 minutes earlier, before midnight.
    EXPECT_NE(daftar.find("tengah 00.06 WIS, 23.4"), std::string::npos) << daftar;
}

TEST_F(GerhanaKitab, SyamsusSheetsWriteNoUnlabelledRow) {
    // Syamsu al-Hilal fills the sun's rows as Fathu's pattern does (the mean place, the moon's
    // correction, the sun's place, and at the full moon the moon's): every number of the first
    // column of its lunar sheet (28 July 2018) and its solar one (11 June 1983) has its label.
    struct Bulan {
        Garapan garapan;
        const char* tahun;
        int bulan;
    };
    for (const auto& [garapan, tahun, bulan] : {Bulan{Garapan::Hs, "1439", 11}, Bulan{Garapan::Kf, "1403", 8}}) {
        const auto hasil = ws->mnuProsesGerhana(garapan, "SH", tahun, bulan, "Semarang");
        ASSERT_NE(hasil.lembar, nullptr) << tahun;
        const Sheet& l = hasil.lembar->lembar;
        for (int r = 0; r < l.jumlahBaris(); ++r) {
            if (l.selLengkap(r, 37).jenis != JenisSel::Angka) continue;
            EXPECT_FALSE(l.sel(r, 38).empty() && l.sel(r, 39).empty()) << tahun << " row " << r;
        }
    }
}

TEST_F(GerhanaKitab, YearsAndMonthOfTheFullMoonRows) {
    // Fathu's rows count the years gone, ten more than a group of thirty: 1441 + 10 = 48 groups
    // and 11 years. The full moon in the middle of Syawal is the month table's row 11 in its
    // eclipse form, 9.5 lunations: Hishshoh 9.5 x 30° 40' 14" and half a turn, 3s 21° 22'.
    auto& fr = modul<KhusufFathurRouf>("FR", Garapan::Hs);
    fr.PokokKhusuf(1442, 10);
    EXPECT_EQ(fr.HsDawr, 48);
    EXPECT_EQ(fr.HsSisaTahun, 11);
    EXPECT_EQ(fr.HsSyahr(2).teks(), "03 21 22 00 00 1");
    // Dzulhijjah's full moon lies half a lunation before the next year's first ijtima': the
    // next year's rows (12 single years) and weekday 6, 5 h 37 m of the month table's row 1.
    fr.PokokKhusuf(1442, 12);
    EXPECT_EQ(fr.HsSisaTahun, 12);
    EXPECT_EQ(AmbilTingkat(fr.HsSyahr(1), MedanHari), 6);
    EXPECT_EQ(AmbilTingkat(fr.HsSyahr(1), MedanJam), 5);
    EXPECT_EQ(AmbilTingkat(fr.HsSyahr(1), MedanMenit), 37);
    // Tadzkirotu counts three years on: 1444 is 48 groups and 4 years.
    auto& tz = modul<KhusufTadzkirotulIkhwan>("TZ", Garapan::Hs);
    tz.PokokKhusuf(1442, 10);
    EXPECT_EQ(tz.HsDawr, 48);
    EXPECT_EQ(tz.HsSisaTahun, 4);
}

TEST_F(GerhanaKitab, SunsPlaceFromTheMeanPlaceAndTheMoonOpposite) {
    // Fathu's pattern: the mean place less the moon's correction, and the moon half a turn on.
    auto& fr = modul<KhusufFathurRouf>("FR", Garapan::Hs);
    fr.PokokKhusuf(1442, 10);
    fr.TaadilKhusuf();
    fr.QomarKhusuf();
    EXPECT_EQ(fr.HsSyams(1).teks(), fr.HsJumlah(3).teks());
    const double wasath = NilaiDesimal(JenisBusur, fr.HsJumlah(3));
    const double koreksi = NilaiDesimal(JenisBusur, fr.HsQomar(6));
    const double matahari = NilaiDesimal(JenisBusur, fr.HsSyams(3));
    EXPECT_NEAR(std::fmod(matahari - wasath + koreksi + 720, 360), 0, 1.0 / 3600);
    EXPECT_NEAR(std::fmod(NilaiDesimal(JenisBusur, fr.HsSyams(4)) - matahari + 720, 360), 180, 1.0 / 3600);
}

TEST_F(GerhanaKitab, FaidlusEclipseBaseIsAMinuteOnInTheMeanPlace) {
    // Its eclipse chapter prints the sun's mean place 03 27 22 24 where its month reckoning
    // has 03 27 21 24; everything else of the base is the same.
    auto& kusuf = modul<KusufFaidlulKarim>("FK", Garapan::Kf);
    auto& bulan = modul<FaidlulKarim>("FK", Garapan::Ij);
    kusuf.PokokKusuf(1444, 9);
    bulan.PokokFR(1444, 10);
    EXPECT_NEAR(NilaiDesimal(JenisBusur, kusuf.KfJumlah(3)) - NilaiDesimal(JenisBusur, bulan.Jumlah(3)), 1.0 / 60,
                1e-9);
    EXPECT_EQ(kusuf.KfJumlah(2).teks(), bulan.Jumlah(2).teks());
    EXPECT_EQ(kusuf.KfJumlah(1).teks(), bulan.Jumlah(1).teks());
}
