// The precise books of mean motions and equations, Badi'atu al-Mitsal and Nuru al-Anwar, on
// the shipped tables: the years, the days run, the place's longitude, the ratio of Nuru
// al-Anwar's setting arc, and whole months against what happened in the sky.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <vector>

#include "SesiUji.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"
#include "methods/tahqiqi/BadiatulMitsal.h"
#include "methods/tahqiqi/NurulAnwar.h"

using namespace falak;

namespace {

struct SesiTahqiqi : uji::SesiUji {
    BadiatulMitsal* bm = nullptr;
    NurulAnwar* na = nullptr;
    SesiTahqiqi() : uji::SesiUji("falak-tahqiqi") {}

    void SetUp() override {
        for (const char* nama : {"TQQthMab", "TQQSyahru", "TQQYaumTam", "TQQSaah", "TQQDaqoiqAhTaf", "TQQTaadil",
                                 "Names", "ListTxt", "TafawutWIB", "TQQRumuz"}) {
            std::ifstream f(std::filesystem::path(FALAK_DATA_UJI) / (std::string(nama) + ".csv"));
            std::stringstream isi;
            isi << f.rdbuf();
            folder.tabel(nama, isi.str());
        }
        folder.tabel("Balad", uji::kKepalaBalad +
                                  "Jombang,Jombang,7,33,LS,112,13,BT,7,43\nSemarang,Semarang,6,56,LS,110,24,BT,7,3\n");
        bukaSesi();
        bm = dynamic_cast<BadiatulMitsal*>(ws->modul("BM"));
        na = dynamic_cast<NurulAnwar*>(ws->modul("NA"));
        ASSERT_NE(bm, nullptr);
        ASSERT_NE(na, nullptr);
    }

    void tempat(const std::string& nama) { ASSERT_FALSE(ws->mnuProsesIjSub("BM", "1445", 8, nama).pesan); }
};

}  // namespace

TEST_F(SesiTahqiqi, YearsSplitIntoGroupsAroundTheEpoch) {
    tempat("Jombang");
    // Year 1 is the epoch: one group of nothing, no single years, the row of zeros.
    bm->Siapkan(1, 1);
    EXPECT_EQ(bm->Dawr, 1);
    EXPECT_EQ(bm->SisaTahun, 0);
    EXPECT_EQ(bm->TarikhMajmu(2).teks(), "03 25 05 32 00 1");
    EXPECT_EQ(bm->TarikhMabsut(2).teks(), "00 00 00 00 00 1");
    // Year 31: the epoch and one group, 3s 25 05 32 + 1s 8 24 58.
    bm->Siapkan(31, 1);
    EXPECT_EQ(bm->Dawr, 1);
    EXPECT_EQ(bm->SisaTahun, 0);
    EXPECT_EQ(bm->TarikhMajmu(2).teks(), "05 03 30 30 00 1");
    // Year 0: one group off and 30 single years on fold back into the epoch itself.
    bm->Siapkan(0, 1);
    EXPECT_EQ(bm->Dawr, 0);
    EXPECT_EQ(bm->SisaTahun, 0);
    EXPECT_EQ(bm->TarikhMajmu(6).teks(), "07 23 01 37 00 1");
    // Year -1: a group off (the node 7s 23 01 37 - 6s 22 57 56) and 29 single years on.
    bm->Siapkan(-1, 1);
    EXPECT_EQ(bm->Dawr, -1);
    EXPECT_EQ(bm->SisaTahun, 29);
    EXPECT_EQ(bm->TarikhMajmu(6).teks(), "01 00 03 41 00 1");
    // 1445: 48 groups and 4 single years.
    bm->Siapkan(1445, 8);
    EXPECT_EQ(bm->Dawr, 48);
    EXPECT_EQ(bm->SisaTahun, 4);
}

TEST_F(SesiTahqiqi, DaysRunReachTheTwentyNinth) {
    const int harap[8] = {28, 29, 30, 29, 29, 29, 27, 28};
    for (int d = 0; d <= 7; ++d) EXPECT_EQ(HariBerjalan(d), harap[d]) << d;
}

// The sun's equation changes sign at its apsides, where the table writes it as the circle less
// it: the rows read there must still give a few seconds, not half a circle.
TEST_F(SesiTahqiqi, SunsEquationReadAcrossItsChangeOfSign) {
    auto detikBertanda = [](const Nilai& v) {
        const double d = std::fmod(NilaiDesimal(JenisBusur, v) * (AmbilTanda(v) == 0 ? -1 : 1) + 540.0, 360.0) - 180.0;
        return d * 3600;
    };
    // Rows 179 and 180 hold -58" and +1' 5"; half-way is +3.5".
    std::array<Nilai, 5> b;
    ws->taadil.TaadilBaris(b, 8, Nilai("05 29 30 00 00 1"), 1, false);
    EXPECT_NEAR(detikBertanda(b[4]), 3.5, 1.0) << b[4].teks();
    // Rows 359 and 360 hold +1' 54" and -4"; a quarter on is +1' 24.5".
    ws->taadil.TaadilBaris(b, 8, Nilai("11 29 15 00 00 1"), 1, false);
    EXPECT_NEAR(detikBertanda(b[4]), 84.5, 1.0) << b[4].teks();

    // The month that ended Jumada al-Ula 1443 met the sun at its perigee: the ijtima' of
    // 2 January 2022 at 18:33 UT. The hilal is sought at sunset of 3 January at Jombang, about
    // 10:40 UT, where the apparent sun stood at 283 deg 1' 52" (an independent ephemeris).
    tempat("Jombang");
    bm->Hitung({1443, 5, false});
    const double matahari = std::fmod(NilaiDesimal(JenisBusur, bm->Syams(2)) + 360.0, 360.0);
    EXPECT_NEAR(matahari, 283.0312, 2 / 60.0) << bm->Syams(2).teks();
}

TEST_F(SesiTahqiqi, PlaceLongitudeMovesTheElements) {
    // At the tables' own longitude nothing moves.
    tempat("Jombang");
    for (size_t i = 2; i <= 6; ++i) EXPECT_EQ(bm->Thul(i).teks(), "00 00 00 00 00 1") << i;
    // Semarang lies 1 49' west: 7 m 16 s later on the same clock, 7 minutes of motion added;
    // the moon's mean motion 13.176397 a day gives 3' 50.6" in 7 minutes.
    tempat("Semarang");
    EXPECT_EQ(bm->Thul(4).teks(), "00 00 03 51 00 1");
    EXPECT_EQ(AmbilTanda(bm->Thul(1)), 1);
}

TEST_F(SesiTahqiqi, NuruAlAnwarTakesTheInverseRatioAtOneOrMore) {
    // The moon's setting arc reads cos longitude / cos mean declination. A moon a degree past
    // the equinox at its greatest northern latitude makes that ratio pass one, and the book
    // takes the inverse so that the arcsine stays defined.
    tempat("Jombang");
    na->Syams(2) = Nilai("00 350 00 00 00 1");
    na->Qomar(11) = Nilai("00 001 00 00 00 1");
    na->Tdl[15 - 8](1) = Nilai("00 090 00 00 00 1");
    na->HitungHilal();
    ASSERT_TRUE(na->rasioTerbalik);
    const double r = M_PI / 180, e = 23.4444444444444;
    const double d14 = std::asin(std::sin(e * r) * std::sin(1 * r)) / r;
    const double d8 = std::atan(std::tan(e * r) * std::sin(1 * r)) / r;
    const double d12 = std::asin(std::sin((5 + d8) * r) * std::cos(e * r) / std::cos(d8 * r)) / r;
    const double d15 = (d14 + d12) / 2;
    EXPECT_GT(std::cos(1 * r) / std::cos(d15 * r), 1.0);
    EXPECT_NEAR(na->Hasil[16], std::asin(std::cos(d15 * r) / std::cos(1 * r)) / r, 1e-9);
    // A moon far from the equinoxes keeps the ratio as it is.
    na->Qomar(11) = Nilai("00 030 00 00 00 1");
    na->HitungHilal();
    EXPECT_FALSE(na->rasioTerbalik);
    EXPECT_TRUE(std::isfinite(na->Hasil[16]));
}

TEST_F(SesiTahqiqi, WholeMonthsAgainstTheSky) {
    // The ijtima' that ended Sya'ban 1445 came on Sunday 10 March 2024 at 09:00 UT (16.00
    // WIB); the hilal stood below two degrees in Java that evening, so Ramadan began on
    // Tuesday 12 March. That of Ramadan came on 9 April at 18:21 UT of the 8th (01.21 WIB),
    // and Syawal began on Wednesday 10 April.
    auto bm8 = ws->mnuProsesIjSub("BM", "1445", 8, "Jombang");
    ASSERT_FALSE(bm8.pesan);
    const auto& k = bm8.lembar->kesimpulan;
    ASSERT_EQ(k.size(), 13u);
    EXPECT_NE(k[1].find("Selasa Pon, 12 Mar 2024"), std::string::npos) << k[1];
    EXPECT_NE(k[2].find("10 Mar 2024"), std::string::npos) << k[2];
    EXPECT_NE(k[3].find("15.4"), std::string::npos) << k[3];  // within twenty minutes, its mean hourly motion

    auto na9 = ws->mnuProsesIjSub("NA", "1445", 9, "Jombang");
    ASSERT_FALSE(na9.pesan);
    const auto& n = na9.lembar->kesimpulan;
    EXPECT_NE(n[1].find("Rabu Pahing, 10 Apr 2024"), std::string::npos) << n[1];
    EXPECT_NE(n[2].find("9 Apr 2024"), std::string::npos) << n[2];
    EXPECT_NE(n[3].find("01.2"), std::string::npos) << n[3];
}

TEST_F(SesiTahqiqi, AMoonJustPastWhereTheArcsStartAgain) {
    // The ijtima' of 20 December 2025 (01 UT) leaves the sun short of the head of Capricorn
    // and the moon some five degrees past it at sunset in Java: the moon's setting arc is a
    // few degrees more than the sun's, and the hilal stays some twenty minutes.
    ASSERT_FALSE(ws->mnuProsesIjSub("BM", "1447", 6, "Jombang").pesan);
    EXPECT_GT(bm->Hasil[21], 2.0);
    EXPECT_LT(bm->Hasil[21], 9.0);
    EXPECT_NEAR(bm->Hasil[22], bm->Hasil[21] / 15, 1e-12);
    ASSERT_FALSE(ws->mnuProsesIjSub("NA", "1447", 6, "Jombang").pesan);
    EXPECT_GT(na->Hasil[20], 2.0);
    EXPECT_LT(na->Hasil[20], 9.0);
    EXPECT_GT(na->Hasil[23], 0.0);
    // The ijtima' of 20 March 2015 (09.36 UT) came with the sun at 359.4 degrees; at sunset the
    // moon stood under a degree past the head of Aries, its elongation a fraction of a degree.
    ASSERT_FALSE(ws->mnuProsesIjSub("NA", "1436", 5, "Jombang").pesan);
    EXPECT_GT(na->Hasil[27], 0.0);
    EXPECT_LT(na->Hasil[27], 2.0);
}

TEST_F(SesiTahqiqi, EveryMonthOfADecadeKeepsItsArcsShort) {
    // Over 1440-1450 H, at the tables' place and west of it, the moon's setting arc less the
    // sun's and Nuru al-Anwar's elongation are those of a young moon: a few degrees either way,
    // never nearly a whole circle, and the stay follows the arc.
    for (const char* tempat : {"Jombang", "Semarang"})
        for (int32_t tahun = 1440; tahun <= 1450; ++tahun)
            for (int16_t bulan = 1; bulan <= 12; ++bulan) {
                SCOPED_TRACE(std::string(tempat) + " " + std::to_string(tahun) + "/" + std::to_string(bulan));
                ASSERT_FALSE(ws->mnuProsesIjSub("BM", std::to_string(tahun), bulan, tempat).pesan);
                EXPECT_LT(std::fabs(bm->Hasil[21]), 30.0);
                EXPECT_NEAR(bm->Hasil[22], bm->Hasil[21] / 15, 1e-12);
                ASSERT_FALSE(ws->mnuProsesIjSub("NA", std::to_string(tahun), bulan, tempat).pesan);
                EXPECT_LT(std::fabs(na->Hasil[20]), 30.0);
                EXPECT_LT(std::fabs(na->Hasil[27]), 30.0);
            }
}

TEST_F(SesiTahqiqi, EveryRunKeepsItsFormulaSheet) {
    auto a = ws->mnuProsesIjSub("BM", "1445", 8, "Jombang");
    auto b = ws->mnuProsesIjSub("BM", "1445", 9, "Jombang");
    auto c = ws->mnuProsesIjSub("NA", "1445", 9, "Jombang");
    ASSERT_TRUE(a.lembar && b.lembar && c.lembar);
    // The sheets are counted by book; each tab brings its own back, with the switching title.
    auto tb = ws->rumus.tampil(b.lembar->kunci);
    auto ta = ws->rumus.tampil(a.lembar->kunci);
    auto tc = ws->rumus.tampil(c.lembar->kunci);
    ASSERT_TRUE(ta && tb && tc);
    EXPECT_EQ(ta->nomor, 1);
    EXPECT_EQ(tb->nomor, 2);
    EXPECT_EQ(tc->nomor, 1);
    EXPECT_EQ(ta->judul, "RUMUS BADIATUL MITSAL");
    EXPECT_EQ(tc->judul, "RUMUS MURUL ANWAR");
    // A month later the sun stands about 29 degrees on.
    auto matahari = [](const LembarRumus& l) { return l.baris[0].isi.substr(l.baris[0].isi.rfind("☉ = ")); };
    EXPECT_TRUE(matahari(*ta->lembar).starts_with("☉ = 350°")) << matahari(*ta->lembar);
    EXPECT_TRUE(matahari(*tb->lembar).starts_with("☉ = 20°")) << matahari(*tb->lembar);
    EXPECT_EQ(ws->rumus.jumlah(), 3u);
}

// The formula sheets through the real program: each figure the sheet shows is worked here
// again from the worked table's own cells (the true sun, the true moon and the argument of
// latitude that the run gives in --json) by the book's formulas.
namespace {

std::string jalankan(const std::string& perintah) {
    FILE* p = popen((FALAK_BIN " " + perintah + " 2>/dev/null").c_str(), "r");
    if (!p) return {};
    std::string keluar;
    char buf[4096];
    while (size_t n = fread(buf, 1, sizeof buf, p)) keluar.append(buf, n);
    EXPECT_EQ(pclose(p), 0) << perintah;
    return keluar;
}

// Degrees of a value text "BB DD MM SS TT s", buruj or open degrees.
double derajatTeks(const std::string& teks) {
    std::istringstream in(teks);
    double b = 0, d = 0, m = 0, s = 0, t = 0;
    int tanda = 1;
    in >> b >> d >> m >> s >> t >> tanda;
    const double x = b * 30 + d + m / 60 + s / 3600 + t / 216000;
    return tanda == 0 ? -x : x;
}

// Degrees of cell i (from 1) of a row of the run's --json.
double sel(const std::string& json, const std::string& nama, size_t i) {
    const size_t awal = json.find("{\"nama\": \"" + nama + "\", \"sel\": [");
    if (awal == std::string::npos) return NAN;
    const size_t buka = json.find('[', awal), tutup = json.find(']', buka);
    std::vector<std::string> potong;
    std::string isi = json.substr(buka + 1, tutup - buka - 1), teks;
    std::istringstream in(isi);
    for (size_t k = 0; std::getline(in, teks, '"'); ++k)
        if (k % 2 == 1) potong.push_back(teks);
    return i - 1 < potong.size() ? derajatTeks(potong[i - 1]) : NAN;
}

// The formula sheet of --rumus: by row number, each variable line's left side and its value
// in degrees ("-3°49'15.65''"); the row's text besides.
struct Rumus {
    std::map<int, std::map<std::string, double>> nilai;
    std::map<int, std::string> teks;
    double operator()(int baris, const std::string& kiri) const {
        const auto b = nilai.find(baris);
        if (b == nilai.end()) return NAN;
        const auto v = b->second.find(kiri);
        return v == b->second.end() ? NAN : v->second;
    }
};

Rumus bacaRumus(const std::string& keluar) {
    Rumus r;
    std::istringstream in(keluar.substr(std::min(keluar.find("\nRUMUS "), keluar.size())));
    std::string baris;
    int nomor = 0;
    const std::regex kepala(R"(^(\d+)\. )"), nilai(R"(^(.+) = (-?)(\d+)°(\d+)'(?:([\d.]+)'')?$)");
    std::smatch m;
    while (std::getline(in, baris)) {
        if (std::regex_search(baris, m, kepala)) nomor = std::stoi(m[1]);
        r.teks[nomor] += baris + "\n";
        if (std::regex_match(baris, m, nilai)) {
            const double x = std::stod(m[3]) + std::stod(m[4]) / 60 + (m[5].matched ? std::stod(m[5]) / 3600 : 0);
            r.nilai[nomor][m[1]] = m[2].length() ? -x : x;
        }
    }
    return r;
}

constexpr double kR = M_PI / 180;
double sn(double x) { return std::sin(x * kR); }
double cs(double x) { return std::cos(x * kR); }
double tn(double x) { return std::tan(x * kR); }
double asn(double x) { return std::asin(x) / kR; }
double acs(double x) { return std::acos(x) / kR; }
// The right ascension from the head of Capricorn, by the quadrant of the longitude.
double matholi(double bujur, double b) {
    return bujur < 90 ? 180 - b : bujur < 180 ? 180 + b : bujur < 270 ? 360 - b : b;
}
double putar(double x) { return std::fmod(x + 720, 360); }

constexpr double kDetik = 0.2 / 3600;  // the sheet's values pass through single precision
constexpr double kPhi = -(7 + 33 / 60.0);  // Jombang
const std::string kRumusTetap = "Jika A < 090 = 180° - B\nJika A < 180 = 180° + B\nJika A < 270 = 360° - B\nJika A < 360 = B";

}  // namespace

TEST(FalakRumus, BadiatulMitsalAtTheEndOfSyaban1445) {
    const std::string perintah = "hisab --kitab BM --tahun 1445 --bulan 8 --markaz Jombang";
    const std::string json = jalankan(perintah + " --json");
    const Rumus r = bacaRumus(jalankan(perintah + " --rumus"));
    ASSERT_NE(json.find("\"judul\": \"RUMUS IJTIMA METODE BADIATUL MITSAL\""), std::string::npos);
    ASSERT_EQ(r.teks.size(), 28u);  // the title and 27 rows
    const double syams = putar(sel(json, "Syams", 2)), qomar = putar(sel(json, "Qomar", 11));
    const double hishshoh = putar(sel(json, "Tdl15", 1));

    // The true sun and moon as the sums of their steps, the mean places from the sunset row.
    EXPECT_NEAR(putar(r(1, "Wasath ☉") + r(1, "Ta'dil ☉")), syams, kDetik);
    EXPECT_NEAR(putar(sel(json, "Muqowwam", 2)), r(1, "Wasath ☉"), kDetik);
    EXPECT_NEAR(r(1, "☉"), syams, kDetik);
    double bulan = r(7, "Wasath ☽");
    for (const char* k : {"k₁", "k₂", "k₃", "k₄", "k₅"}) bulan += r(7, k);
    EXPECT_NEAR(putar(bulan), qomar, kDetik);
    EXPECT_LT(r(7, "k₃"), 0);  // the centre took off this month: shown with its minus
    EXPECT_NEAR(putar(r(9, "'Uqdah") + r(9, "Ta'dil 'uqdah") + r(9, "☽'")), hishshoh, kDetik);

    const double e = 23.45, i = 5 + 2 / 60.0;
    EXPECT_NEAR(r(2, "ε"), e, 1e-9);
    EXPECT_NEAR(r(10, "i"), i, 1e-9);
    EXPECT_NEAR(r(3, "φ"), kPhi, 1e-9);
    const double dS = asn(sn(e) * sn(syams));
    EXPECT_NEAR(r(2, "δ☉"), dS, kDetik);
    const double aS = matholi(syams, std::fabs(asn(cs(syams) / cs(dS))));
    EXPECT_NEAR(r(5, "α☉"), aS, kDetik);
    const double mgS = aS + asn(tn(kPhi) * tn(dS)) + 90;
    EXPECT_NEAR(r(6, "MG☉"), mgS, kDetik);
    const double d2 = std::atan(tn(e) * sn(qomar)) / kR, beta = asn(sn(i) * sn(hishshoh));
    EXPECT_NEAR(r(10, "β"), beta, kDetik);
    const double dQ = asn(sn(beta + d2) * cs(e) / cs(d2));
    EXPECT_NEAR(r(12, "δ☽"), dQ, kDetik);
    const double aQ = matholi(qomar, std::fabs(asn(cs(qomar) / cs(asn(sn(e) * sn(qomar))))));
    EXPECT_NEAR(r(15, "α☽"), aQ, kDetik);
    const double setengahQ = asn(tn(kPhi) * tn(dQ)) + 90, bud = aQ + setengahQ - mgS;
    EXPECT_NEAR(r(17, "Bu'd"), bud, kDetik);
    EXPECT_NEAR(r(18, "Mukts"), bud / 15, kDetik);
    const double h = asn(sn(kPhi) * sn(dQ)) + asn(cs(kPhi) * cs(dQ) * cs(setengahQ - bud));
    EXPECT_NEAR(r(20, "h"), h, kDetik);

    // The fixed rows: the right ascensions by their quadrant, A the longitude.
    for (int b : {5, 15}) EXPECT_NE(r.teks.at(b).find(kRumusTetap), std::string::npos) << r.teks.at(b);
    EXPECT_NEAR(r(15, "A"), qomar, kDetik);
}

TEST(FalakRumus, NurulAnwarAtTheEndOfRamadan1445) {
    const std::string perintah = "hisab --kitab NA --tahun 1445 --bulan 9 --markaz Jombang";
    const std::string json = jalankan(perintah + " --json");
    const Rumus r = bacaRumus(jalankan(perintah + " --rumus"));
    ASSERT_NE(json.find("\"judul\": \"RUMUS MURUL ANWAR\""), std::string::npos);
    ASSERT_EQ(r.teks.size(), 25u);  // the title and 24 rows
    const double syams = putar(sel(json, "Syams", 2)), qomar = putar(sel(json, "Qomar", 11));
    const double hishshoh = putar(sel(json, "Tdl15", 1));

    const double e = 23 + 4 / 9.0, i = 5, d = 1 + 13 / 60.0;
    EXPECT_NEAR(r(2, "ε"), e, 1e-9);
    EXPECT_NEAR(r(9, "i"), i, 1e-9);
    EXPECT_NEAR(r(3, "d"), d, 1e-9);
    auto setengahBusur = [&](double dek) { return acs(-tn(kPhi) * tn(dek) - (1 / cs(kPhi) / cs(dek)) * sn(d)); };
    const double dS = asn(sn(e) * sn(syams));
    const double qS = setengahBusur(dS);
    EXPECT_NEAR(r(3, "½QN☉"), qS, kDetik);
    const double aS = matholi(syams, std::fabs(asn(cs(syams) / cs(dS))));
    EXPECT_NEAR(r(4, "α☉"), aS, kDetik);
    const double d2 = std::atan(tn(e) * sn(qomar)) / kR, beta = asn(sn(i) * sn(hishshoh));
    const double dQ = asn(sn(beta + d2) * cs(e) / cs(d2));
    EXPECT_NEAR(r(11, "δ☽"), dQ, kDetik);
    const double rata = (asn(sn(e) * sn(qomar)) + dQ) / 2;
    EXPECT_NEAR(r(13, "δ̄"), rata, kDetik);
    double q = cs(qomar) / cs(rata);
    if (q >= 1) q = 1 / q;
    const double aQ = matholi(qomar, std::fabs(asn(q)));
    EXPECT_NEAR(r(14, "α☽"), aQ, kDetik);
    const double qQ = setengahBusur(dQ), bud = aQ + qQ - (aS + qS);
    EXPECT_NEAR(r(16, "Bu'd"), bud, kDetik);
    const double h = asn(sn(kPhi) * sn(dQ) + cs(kPhi) * cs(dQ) * cs(qQ - bud));
    EXPECT_NEAR(r(18, "h"), h, kDetik);
    EXPECT_NEAR(r(19, "Mukts"), (h + bud) / 2 / 15, kDetik);
    EXPECT_NEAR(r(24, "Nur"), (qomar - syams) / 15 + beta / 60, kDetik);
    for (int b : {4, 14}) EXPECT_NE(r.teks.at(b).find(kRumusTetap), std::string::npos) << r.teks.at(b);
}
