// How far Syamsu al-Hilal stands from the sky: for every month of a span of Hijri years at a
// place, its ijtima' against the true geocentric conjunction (apparent longitudes), its
// hilal's height against the moon's true geocentric airless altitude at the sunset it
// reckons for, and its first of the month against the one that the same two-degree rule
// gives from the true sky.
//
// The truth is the Swiss Ephemeris (a checking tool only; the program never links it).
//
//   akurasi_sh [--dari 1440] [--sampai 1446] [--markaz Jepara] [--rinci]
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <swephexp.h>

#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "methods/taqribi/SyamsulHilal.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

constexpr double kZona = 7.0;  // the civil dates of the first of the month are those of WIB

struct Tempat0 {
    double lintang, bujur;
};

double posisi(double jd, int planet, int bendera, int i, double* laju = nullptr) {
    double x[6];
    char err[256];
    swe_calc_ut(jd, planet, SEFLG_SWIEPH | SEFLG_SPEED | bendera, x, err);
    if (laju) *laju = x[3];
    return x[i];
}

// The conjunction nearest to jd: the moon's apparent longitude equals the sun's.
double ijtimaSejati(double jd) {
    for (int i = 0; i < 20; ++i) {
        double vb, vm;
        const double b = posisi(jd, SE_MOON, 0, 0, &vb), m = posisi(jd, SE_SUN, 0, 0, &vm);
        double beda = std::remainder(b - m, 360.0);
        const double langkah = beda / (vb - vm);
        jd -= langkah;
        if (std::fabs(langkah) < 1e-7) break;
    }
    return jd;
}

// The first sunset after jd: the sun's upper limb at the horizon with the standard refraction.
double gurubSetelah(double jd, const Tempat0& t) {
    double geo[3] = {t.bujur, t.lintang, 0}, hasil = 0;
    char err[256];
    swe_rise_trans(jd, SE_SUN, nullptr, SEFLG_SWIEPH, SE_CALC_SET, geo, 1013.25, 27, &hasil, err);
    return hasil;
}

// The moon's geocentric altitude without refraction.
double tinggiBulan(double jd, const Tempat0& t) {
    const double ra = posisi(jd, SE_MOON, SEFLG_EQUATORIAL, 0), dek = posisi(jd, SE_MOON, SEFLG_EQUATORIAL, 1);
    const double sudutJam = swe_sidtime(jd) * 15 + t.bujur - ra;
    const double r = M_PI / 180;
    return std::asin(std::sin(t.lintang * r) * std::sin(dek * r) + std::cos(t.lintang * r) * std::cos(dek * r) * std::cos(sudutJam * r)) / r;
}

// Midnight (UT) that opens a civil day in the zone.
double tengahMalam(int y, int m, int d) { return swe_julday(y, m, d, 0, SE_GREG_CAL) - kZona / 24; }

// The civil day (in the zone) of a moment, as a Julian day number.
long hariSipil(double jd) { return std::lround(std::floor(jd + kZona / 24 + 0.5)); }
long hariSipil(int y, int m, int d) { return hariSipil(tengahMalam(y, m, d) + 0.5); }

// A local apparent time (hours of the civil day) at the place, to UT.
double dariWaktuIstiwa(double jdTengahMalamLokal, double jam, double bujur) {
    double jd = jdTengahMalamLokal + (jam - bujur / 15) / 24;
    for (int i = 0; i < 3; ++i) {
        double e;
        char err[256];
        swe_time_equ(jd, &e, err);
        jd = jdTengahMalamLokal + (jam - bujur / 15) / 24 - e;
    }
    return jd;
}

struct Statistik {
    std::vector<double> x;
    void tambah(double v) { x.push_back(v); }
    double rata() const {
        double s = 0;
        for (double v : x) s += v;
        return s / static_cast<double>(x.size());
    }
    double terjauh() const {
        double t = 0;
        for (double v : x)
            if (std::fabs(v) > std::fabs(t)) t = v;
        return t;
    }
    double terkecil() const {
        double t = x.front();
        for (double v : x) t = std::min(t, v);
        return t;
    }
    double terbesar() const {
        double t = x.front();
        for (double v : x) t = std::max(t, v);
        return t;
    }
};

}  // namespace

int main(int argc, char** argv) {
    int dari = 1440, sampai = 1446;
    std::string markaz = "Jepara";
    bool rinci = false;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--dari" && i + 1 < argc) dari = std::atoi(argv[++i]);
        else if (a == "--sampai" && i + 1 < argc) sampai = std::atoi(argv[++i]);
        else if (a == "--markaz" && i + 1 < argc) markaz = argv[++i];
        else if (a == "--rinci") rinci = true;
        else {
            std::fprintf(stderr, "pakai: akurasi_sh [--dari 1440] [--sampai 1446] [--markaz Jepara] [--rinci]\n");
            return 2;
        }
    }
    swe_set_ephe_path(const_cast<char*>("/usr/share/libswe/ephe"));

    ClsConnection koneksi(CariLokasiData());
    Workspace ws(koneksi);
    auto* sh = dynamic_cast<SyamsulHilal*>(ws.metode(19));
    Statistik ijtima, tinggi;
    int awalSama = 0, bulan = 0;
    if (rinci) std::printf("tahun bln  ijtima SH (UT)      sejati (UT)       beda jam  tinggi SH  sejati   beda   awal SH / sejati\n");
    for (int tahun = dari; tahun <= sampai; ++tahun) {
        for (int b = 1; b <= 12; ++b) {
            const auto hasil = ws.mnuProsesIjSub("SH", std::to_string(tahun), b, markaz);
            if (!hasil.lembar) return 1;
            const Tempat& tp = ws.sesi.tempat;
            const Tempat0 t{(tp.lintangDerajat + tp.lintangMenit / 60.0) * (ValAngka(tp.tandaLintang) != 0 ? 1 : -1),
                            (tp.bujurDerajat + tp.bujurMenit / 60.0) * (ValAngka(tp.tandaBujur) != 0 ? 1 : -1)};
            const Ringkasan& r = hasil.lembar->ringkasan;
            const int y = AmbilTingkat(r.tanggalIjtima, 6), m = AmbilTingkat(r.tanggalIjtima, 7),
                      d = AmbilTingkat(r.tanggalIjtima, 8);
            // The treatise's day runs from the sunset before its civil date; its hours count
            // from 18:00 of the day before, in local apparent time at the place.
            const double malam = swe_julday(y, m, d, 0, SE_GREG_CAL) - 1;
            const double ijtimaSH = dariWaktuIstiwa(malam, 18 + sh->SHIjtima(5), t.bujur);
            const double sejati = ijtimaSejati(ijtimaSH);
            ijtima.tambah((ijtimaSH - sejati) * 24);

            const double gurubSH = gurubSetelah(tengahMalam(y, m, d), t);
            const double tinggiSejatiSH = tinggiBulan(gurubSH, t);
            tinggi.tambah(sh->SHHilal(5) - tinggiSejatiSH);

            // The same rule from the true sky: the first sunset after the conjunction, then one
            // day after it, or two when the moon stands below 2 degrees there.
            const double gurub = gurubSetelah(sejati, t);
            const long awalSejati = hariSipil(gurub) + (tinggiBulan(gurub, t) < 2 ? 2 : 1);
            const long awalSH = hariSipil(AmbilTingkat(r.awalBulan, 6), AmbilTingkat(r.awalBulan, 7),
                                          AmbilTingkat(r.awalBulan, 8));
            awalSama += awalSH == awalSejati;
            ++bulan;
            if (rinci) {
                int yy, mm, dd;
                double jam;
                auto cetak = [&](double jd) {
                    swe_revjul(jd, SE_GREG_CAL, &yy, &mm, &dd, &jam);
                    std::printf("%04d-%02d-%02d %5.2f  ", yy, mm, dd, jam);
                };
                std::printf("%d %2d   ", tahun, b);
                cetak(ijtimaSH);
                cetak(sejati);
                std::printf("%+6.2f   %7.3f  %7.3f  %+6.2f   %+ld\n", (ijtimaSH - sejati) * 24, sh->SHHilal(5),
                            tinggiSejatiSH, sh->SHHilal(5) - tinggiSejatiSH, awalSH - awalSejati);
            }
        }
    }
    std::printf("%d bulan, %d-%d H, di %s\n", bulan, dari, sampai, markaz.c_str());
    std::printf("ijtima' SH - sejati (jam): rata-rata %+.2f, terjauh %+.2f, dari %+.2f sampai %+.2f\n", ijtima.rata(),
                ijtima.terjauh(), ijtima.terkecil(), ijtima.terbesar());
    std::printf("tinggi SH - sejati (derajat): rata-rata %+.2f, terjauh %+.2f, dari %+.2f sampai %+.2f\n", tinggi.rata(),
                tinggi.terjauh(), tinggi.terkecil(), tinggi.terbesar());
    std::printf("awal bulan sama: %d dari %d\n", awalSama, bulan);
    swe_close();
    return 0;
}
