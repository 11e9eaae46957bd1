// How near the books' lunar eclipses come to the sky: a tool, never part of the program (it
// links the Swiss Ephemeris, whose licence the program does not take on).
//
// For each book whose lunar eclipse is built, at its own markaz, over every month of the Hijri
// years 1400 to 1450: the eclipses its search announces against every umbral lunar eclipse of
// the Swiss Ephemeris whose start or end falls between 18.00 and 07.00 local apparent time at
// the markaz (the book's own test of the night). An announced eclipse is matched with the true
// one whose greatest phase lies within two days of its middle:
//   found     both; the error of the middle (the book's middle, local apparent time, less the
//             true greatest eclipse) and of the size (the book's fingers less twelve times the
//             true umbral magnitude); and whether the book put it in another Hijri month;
//   missed    a true eclipse of the night that the book does not announce;
//   no such   an announced eclipse with no umbral eclipse within two days (a penumbral one
//             counted apart), or one the sky has only by day.
//
// The solar eclipses likewise, against every solar eclipse whose greatest phase the markaz sees
// by day (its local circumstances): the book's middle against the local greatest phase, its
// fingers against twelve times the local magnitude.
//
// Run from the top of the repository (it reads data/): ./build/bin/akurasi-gerhana
#include <swephexp.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "core/FungsHisab.h"
#include "core/Kalender.h"
#include "core/Tingkatan.h"
#include "core/Koneksi.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

constexpr int kTahunAwal = 1400, kTahunAkhir = 1450;
constexpr double kBulan = 29.530589;
constexpr double kMuharram1 = 1948439.5;  // 1 Muharram 1 of the arithmetical calendar

struct Markaz {
    const char* kitab;
    const char* tempat;
    double bujur;  // degrees east
};
const Markaz kMarkaz[] = {{"SN", "Jakarta", 106 + 52 / 60.0},   {"FR", "Semarang", 110 + 24 / 60.0},
                          {"IDB1", "Surabaya", 112 + 46 / 60.0}, {"TZ", "Semarang", 110 + 24 / 60.0},
                          {"FK", "Sampang", 113 + 15 / 60.0},    {"SH", "Jepara", 110 + 40 / 60.0}};

// Local apparent time of a UT instant, as a JD of the local clock, and back.
double waktuHakiki(double jdUt, double bujur) {
    double e = 0;
    char err[256];
    swe_time_equ(jdUt, &e, err);
    return jdUt + bujur / 360 + e;
}
double dariHakiki(double jdLokal, double bujur) {
    double ut = jdLokal - bujur / 360;
    for (int i = 0; i < 3; ++i) ut = jdLokal - bujur / 360 - (waktuHakiki(ut, bujur) - ut - bujur / 360);
    return ut;
}

// Hours of the local clock, 0 to 24.
double jamLokal(double jdLokal) { return std::fmod(jdLokal + 0.5, 1.0) * 24; }

bool malam(double jdUt, double bujur) {
    const double j = jamLokal(waktuHakiki(jdUt, bujur));
    return j >= 18 || j < 7;
}

struct Sejati {
    double puncak, awal, akhir;  // UT
    double magnitudo;            // umbral
    bool dilihat;                // start or end by night at the markaz
    int tahun, bulan;            // the Hijri month of the arithmetical calendar
    bool dipakai = false;
};

std::vector<Sejati> gerhanaSejati(double bujur, std::vector<double>& penumbra) {
    std::vector<Sejati> daftar;
    const double mulai = kMuharram1 + 12.0 * (kTahunAwal - 1) * kBulan;
    const double selesai = kMuharram1 + 12.0 * kTahunAkhir * kBulan;
    char err[256];
    for (double t = mulai; t < selesai;) {
        double tret[10], attr[20];
        const int jenis = swe_lun_eclipse_when(t, SEFLG_SWIEPH, SE_ECL_ALLTYPES_LUNAR, tret, 0, err);
        if (jenis < 0 || tret[0] >= selesai) break;
        t = tret[0] + 20;
        if (jenis & SE_ECL_PENUMBRAL) {
            penumbra.push_back(tret[0]);
            continue;
        }
        double geo[3] = {bujur, 0, 0};
        swe_lun_eclipse_how(tret[0], SEFLG_SWIEPH, geo, attr, err);
        const int n = static_cast<int>(std::floor((tret[0] - kMuharram1) / kBulan));
        daftar.push_back({tret[0], tret[2], tret[3], attr[0], malam(tret[2], bujur) || malam(tret[3], bujur),
                          n / 12 + 1, n % 12 + 1});
    }
    return daftar;
}

// The book's middle as a UT instant: the date of its conclusion and the clock hour, an hour
// from 18.00 on being the eve of that date.
double tengahBuku(const RingkasanGerhana& g, double bujur) {
    const Nilai& t = g.tanggal;
    double jd = static_cast<double>(NomorHari(AmbilTingkat(t, MedanTahun), AmbilTingkat(t, MedanBulan),
                                              AmbilTingkat(t, MedanTanggal))) +
                1721423 - 0.5 + g.jamTengah / 24;
    if (g.jamTengah >= 18) jd -= 1;
    return dariHakiki(jd, bujur);
}

// The solar eclipses seen at the markaz (the sun above the horizon at the greatest phase there)
// against the book's search: the middle against the local greatest phase, the fingers against
// twelve times the local magnitude (the fraction of the sun's diameter covered).
struct MarkazKusuf {
    const char* kitab;
    const char* tempat;
    double lintang, bujur;
};
const MarkazKusuf kMarkazKusuf[] = {{"SN", "Jakarta", -(6 + 15 / 60.0), 106 + 52 / 60.0},
                                    {"FR", "Semarang", -(6 + 56 / 60.0), 110 + 24 / 60.0},
                                    {"IDB1", "Surabaya", -(7 + 15 / 60.0), 112 + 46 / 60.0},
                                    {"TZ", "Semarang", -(6 + 56 / 60.0), 110 + 24 / 60.0},
                                    {"FK", "Sampang", -(7 + 11 / 60.0), 113 + 15 / 60.0},
                                    {"SH", "Jepara", -(6 + 36 / 60.0), 110 + 40 / 60.0}};

void cocokKusuf(Workspace& ws) {
    std::printf("\nSolar eclipses of %d to %d H seen at the markaz, against the book's search\n", kTahunAwal, kTahunAkhir);
    std::printf("%-5s %-9s %6s %6s %6s %8s %6s  %-23s %-23s\n", "kitab", "markaz", "sky", "found", "missed",
                "no such", "month", "middle (h): mean, |max|", "size (fingers): mean, |max|");
    for (const MarkazKusuf& mk : kMarkazKusuf) {
        const EntriModul* e = CariModul(mk.kitab, Garapan::Kf);
        if (!e || !e->tersedia()) continue;
        struct Lokal {
            double puncak, magnitudo;
            int tahun, bulan;
            bool dipakai = false;
        };
        std::vector<Lokal> sejati;
        const double mulai = kMuharram1 + 12.0 * (kTahunAwal - 1) * kBulan;
        const double selesai = kMuharram1 + 12.0 * kTahunAkhir * kBulan;
        double geo[3] = {mk.bujur, mk.lintang, 0};
        char err[256];
        for (double t = mulai; t < selesai;) {
            double tret[10], attr[20];
            const int jenis = swe_sol_eclipse_when_loc(t, SEFLG_SWIEPH, geo, tret, attr, 0, err);
            if (jenis < 0 || tret[0] >= selesai) break;
            t = tret[0] + 20;
            if (!(jenis & SE_ECL_VISIBLE) || !(jenis & SE_ECL_MAX_VISIBLE)) continue;
            const int n = static_cast<int>(std::floor((tret[0] - kMuharram1) / kBulan));
            sejati.push_back({tret[0], attr[0], n / 12 + 1, n % 12 + 1});
        }
        const auto hasil = ws.cariGerhana(Garapan::Kf, mk.kitab, std::to_string(kTahunAwal), kTahunAkhir, mk.tempat);
        int ketemu = 0, tiada = 0, lainBulan = 0;
        double jumlahJam = 0, maksJam = 0, jumlahJari = 0, maksJari = 0;
        std::string takAda;
        for (const Workspace::HasilRun& r : hasil.ringkas) {
            const double t = tengahBuku(*r.gerhana, mk.bujur);
            Lokal* cocok = nullptr;
            for (Lokal& s : sejati)
                if (std::fabs(s.puncak - t) < 2) cocok = &s;
            if (!cocok) {
                ++tiada;
                takAda += " " + std::to_string(r.tahun) + "/" + std::to_string(r.bulan) + " (" +
                          std::to_string(r.gerhana->ashobi).substr(0, 4) + ")";
                continue;
            }
            cocok->dipakai = true;
            ++ketemu;
            // The book names the month whose end the ijtima' closes.
            if (cocok->tahun != r.tahun || cocok->bulan != r.bulan) ++lainBulan;
            const double dj = (t - cocok->puncak) * 24;
            const double dx = r.gerhana->ashobi - 12 * cocok->magnitudo;
            jumlahJam += dj;
            jumlahJari += dx;
            if (std::fabs(dj) > std::fabs(maksJam)) maksJam = dj;
            if (std::fabs(dx) > std::fabs(maksJari)) maksJari = dx;
        }
        int luput = 0;
        for (const Lokal& s : sejati) luput += !s.dipakai;
        std::printf("%-5s %-9s %6zu %6d %6d %8d %6d  %+6.2f %6.2f %9s %+6.2f %6.2f\n", mk.kitab, mk.tempat,
                    sejati.size(), ketemu, luput, tiada, lainBulan, ketemu ? jumlahJam / ketemu : 0.0,
                    std::fabs(maksJam), "", ketemu ? jumlahJari / ketemu : 0.0, std::fabs(maksJari));
        std::printf("      missed:");
        for (const Lokal& s : sejati)
            if (!s.dipakai) std::printf(" %d/%d (%.2f)", s.tahun, s.bulan, s.magnitudo);
        std::printf("\n      none (fingers):%s\n", takAda.c_str());
    }
}

}  // namespace

int main() {
    swe_set_ephe_path(const_cast<char*>("/usr/share/libswe/ephe"));
    ClsConnection koneksi(CariLokasiData());
    Workspace ws(koneksi);
    std::printf("Lunar eclipses of %d to %d H: the book's search at its markaz against the sky\n", kTahunAwal,
                kTahunAkhir);
    std::printf("%-5s %-9s %6s %6s %6s %8s %10s %7s %6s  %-23s %-23s\n", "kitab", "markaz", "sky", "found", "missed",
                "no such", "penumbral", "by day", "month", "middle (h): mean, |max|", "size (fingers): mean, |max|");
    for (const Markaz& mk : kMarkaz) {
        const EntriModul* e = CariModul(mk.kitab, Garapan::Hs);
        if (!e || !e->tersedia()) continue;
        std::vector<double> penumbra;
        std::vector<Sejati> sejati = gerhanaSejati(mk.bujur, penumbra);
        const auto hasil =
            ws.cariGerhana(Garapan::Hs, mk.kitab, std::to_string(kTahunAwal), kTahunAkhir, mk.tempat);
        int ketemu = 0, tiada = 0, bayang = 0, siang = 0, lainBulan = 0;
        double jumlahJam = 0, maksJam = 0, jumlahJari = 0, maksJari = 0;
        for (const Workspace::HasilRun& r : hasil.ringkas) {
            const double t = tengahBuku(*r.gerhana, mk.bujur);
            Sejati* cocok = nullptr;
            for (Sejati& s : sejati)
                if (std::fabs(s.puncak - t) < 2) cocok = &s;
            if (!cocok) {
                ++tiada;
                for (double p : penumbra) bayang += std::fabs(p - t) < 2;
                continue;
            }
            cocok->dipakai = true;
            if (!cocok->dilihat) ++siang;
            ++ketemu;
            if (cocok->tahun != r.tahun || cocok->bulan != r.bulan) ++lainBulan;
            const double dj = (t - cocok->puncak) * 24;
            const double dx = r.gerhana->ashobi - 12 * cocok->magnitudo;
            jumlahJam += dj;
            jumlahJari += dx;
            if (std::fabs(dj) > std::fabs(maksJam)) maksJam = dj;
            if (std::fabs(dx) > std::fabs(maksJari)) maksJari = dx;
        }
        int dilihat = 0, luput = 0;
        for (const Sejati& s : sejati) {
            dilihat += s.dilihat;
            luput += s.dilihat && !s.dipakai;
        }
        std::printf("%-5s %-9s %6d %6d %6d %8d %10d %7d %6d  %+6.2f %6.2f %9s %+6.2f %6.2f\n", mk.kitab, mk.tempat,
                    dilihat, ketemu, luput, tiada, bayang, siang, lainBulan, ketemu ? jumlahJam / ketemu : 0.0, std::fabs(maksJam), "",
                    ketemu ? jumlahJari / ketemu : 0.0, std::fabs(maksJari));
        std::printf("      missed:");
        for (const Sejati& s : sejati)
            if (s.dilihat && !s.dipakai) std::printf(" %d/%d (%.2f)", s.tahun, s.bulan, s.magnitudo);
        std::printf("\n");
    }
    cocokKusuf(ws);
    return 0;
}
