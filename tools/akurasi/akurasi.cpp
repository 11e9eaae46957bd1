// How near the taqribi treatises come to the sky: a tool, never part of the program (it links
// the Swiss Ephemeris, whose licence the program does not take on).
//
// For each treatise at its own markaz, over every month of the Hijri years 1440 to 1446:
//
//  1. The mean ijtima' of the book (the alamah of its year and month rows, month m adding m - 1
//     mean lunations to month 1; Syamsu al-Hilal's month 1 adds one itself) against the true conjunction, as weekday and hours from sunset (18:00
//     local mean time): the offset that the book's equations must take back, and which
//     lunation the book's month m counts (the one that ends month m, or the one that opens it).
//  2. The whole reckoning as the program runs it (the first of the month without a sheet): its
//     ijtima' against the true geocentric conjunction (apparent longitudes) in local apparent
//     time, its hilal's height against the true geocentric airless height of the moon's centre
//     at the true sunset of the markaz that ends the day of the book's ijtima', and its first
//     of the month against the first of the month that the same rule (below 2 degrees two days
//     after the ijtima's day, else one) gives on the true conjunction and height.
//  3. The hours per degree of table 6 at Tadzkirotu's own anomaly against the true rate of
//     elongation at each true conjunction.
//  4. The precise books (Badi'atu al-Mitsal, Nuru al-Anwar) over every month of 1440 to 1450 H
//     at their tables' place (112 13 E): the ijtima' in minutes against the true conjunction,
//     the height against the true geocentric airless height at the sunset the book reckons,
//     and, at that sunset, the book's true sun and true moon against their apparent places.
//  5. The modern reckoning (Ephemeris), every month of 1400 to 1500 H at Jakarta and at Makkah,
//     as the book has it and with delta T: its ijtima' against the true conjunction (universal
//     time), its sunset against the true sunset of the same day, and at its own sunset the
//     moon's geocentric airless height and the elongation against the sky at the same instant.
//
// Run from the top of the repository (it reads data/): ./build/bin/akurasi
// (with --rinci it lists every month of section 4: days run, Bu'd at the sunset, ijtima' - true)
#include <swephexp.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "core/FungsHisab.h"
#include "core/Kalender.h"
#include "core/Koneksi.h"
#include "methods/tahqiqi/Ephemeris.h"
#include "methods/taqribi/KerangkaTaqribi.h"
#include "methods/taqribi/SyamsulHilal.h"
#include "methods/tahqiqi/KerangkaTahqiqi.h"
#include "conclusions/Kesimpulan.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

constexpr int kTahunAwal = 1440, kTahunAkhir = 1446;
constexpr double kBulan = 29.530589;

struct Markaz {
    const char* kitab;
    const char* tempat;
    double lintang, bujur;  // degrees, north and east positive
};
const Markaz kMarkaz[] = {{"SN", "Jakarta", -(6 + 15 / 60.0), 106 + 52 / 60.0},
                          {"FR", "Semarang", -(6 + 56 / 60.0), 110 + 24 / 60.0},
                          {"IDB1", "Surabaya", -(7 + 15 / 60.0), 112 + 46 / 60.0},
                          {"TZ", "Semarang", -(6 + 56 / 60.0), 110 + 24 / 60.0},
                          {"KW1", "Makkah", 21 + 25 / 60.0, 39 + 57 / 60.0},
                          {"FK", "Sampang", -(7 + 11 / 60.0), 113 + 15 / 60.0},
                          {"SH", "Jepara", -(6 + 36 / 60.0), 110 + 40 / 60.0}};

double bujurBeda(double a, double b) { return std::remainder(a - b, 360.0); }

void posisi(double jd, int benda, int flag, double* xx) {
    char err[256];
    swe_calc_ut(jd, benda, SEFLG_SWIEPH | SEFLG_SPEED | flag, xx, err);
}

// The true conjunction (apparent geocentric longitudes) nearest to jd.
double ijtimaSejati(double jd) {
    for (int i = 0; i < 20; ++i) {
        double m[6], s[6];
        posisi(jd, SE_MOON, 0, m);
        posisi(jd, SE_SUN, 0, s);
        const double d = bujurBeda(m[0], s[0]);
        jd -= d / (m[3] - s[3]);
        if (std::fabs(d) < 1e-7) break;
    }
    return jd;
}

// The conjunction as the modern reckoning defines it: the apparent Moon on the geometric Sun
// (no aberration, no nutation), nearest to jd.
double ijtimaGeometris(double jd) {
    for (int i = 0; i < 20; ++i) {
        double m[6], s[6];
        posisi(jd, SE_MOON, 0, m);
        posisi(jd, SE_SUN, SEFLG_NOABERR | SEFLG_NONUT, s);
        const double d = bujurBeda(m[0], s[0]);
        jd -= d / (m[3] - s[3]);
        if (std::fabs(d) < 1e-7) break;
    }
    return jd;
}

// The conjunction that ends Hijri month (tahun, bulan): near the 29th of the month of the
// arithmetical calendar (1 Muharram 1 = JD 1948439.5).
double ijtimaAkhirBulan(int tahun, int bulan) {
    return ijtimaSejati(1948439.5 + (12.0 * (tahun - 1) + bulan) * kBulan - 1.0);
}

// Weekday (1 Ahad .. 7 Sabtu) and hours since 18:00 of the day before, of a local time (JD of
// the local clock, so that .5 is midnight).
struct HariJam {
    int hari;
    double jam;
};
HariJam hariJam(double jdLokal) {
    double t = jdLokal + 0.25;  // from 18:00 the day before
    const double hariJd = std::floor(t + 0.5);
    return {HariPekan(static_cast<int64_t>(hariJd) - 1721423), (t + 0.5 - hariJd) * 24};
}

double jamMinggu(int hari, double jam) { return (hari % 7) * 24 + jam; }

// A difference of times of the week in hours, into (-84, 84].
double bedaMinggu(double a, double b) {
    double d = std::fmod(a - b, 168.0);
    if (d > 84) d -= 168;
    if (d <= -84) d += 168;
    return d;
}

struct Stat {
    double jumlah = 0, mutlak = 0, maks = 0;
    int n = 0;
    void tambah(double x) {
        jumlah += x;
        mutlak += std::fabs(x);
        if (std::fabs(x) > std::fabs(maks)) maks = x;
        ++n;
    }
    double rata() const { return n ? jumlah / n : 0; }
    double rataMutlak() const { return n ? mutlak / n : 0; }
};

double tinggiGeosentris(double jdUt, double lintang, double bujur) {
    double q[6];
    posisi(jdUt, SE_MOON, SEFLG_EQUATORIAL, q);
    const double lst = swe_sidtime(jdUt) * 15 + bujur;
    const double H = (lst - q[0]) * M_PI / 180, d = q[1] * M_PI / 180, f = lintang * M_PI / 180;
    return std::asin(std::sin(f) * std::sin(d) + std::cos(f) * std::cos(d) * std::cos(H)) * 180 / M_PI;
}

double gurubSesudah(double jdUt, double lintang, double bujur, int tepi = 0) {
    double geo[3] = {bujur, lintang, 0}, t = 0;
    char err[256];
    swe_rise_trans(jdUt, SE_SUN, nullptr, SEFLG_SWIEPH, SE_CALC_SET | tepi, geo, 1013.25, 15, &t, err);
    return t;
}

// The same sunset seen from a height of `meter`, under the horizon lowered by the dip that the
// Swiss Ephemeris reckons for that height (its horizon height -100).
double gurubDariKetinggian(double jdUt, double lintang, double bujur, double meter) {
    double geo[3] = {bujur, lintang, meter}, t = 0;
    char err[256];
    swe_rise_trans_true_hor(jdUt, SE_SUN, nullptr, SEFLG_SWIEPH, SE_CALC_SET, geo, 1013.25, 15, -100, &t, err);
    return t;
}

// Local apparent time of a UT instant, as a JD of the local clock.
double waktuHakiki(double jdUt, double bujur) {
    double e = 0;
    char err[256];
    swe_time_equ(jdUt, &e, err);
    return jdUt + bujur / 360 + e;
}

double elongasi(double jdUt) {
    double m[6], s[6];
    posisi(jdUt, SE_MOON, 0, m);
    posisi(jdUt, SE_SUN, 0, s);
    const double r = M_PI / 180;
    return std::acos(std::cos((m[0] - s[0]) * r) * std::cos(m[1] * r) * std::cos(s[1] * r) +
                     std::sin(m[1] * r) * std::sin(s[1] * r)) / r;
}

// The modern reckoning of every month of 1400-1500 H at one place, against the sky.
void ukurEphemeris(Workspace& ws, const char* tempat, double lintang, double bujur, bool deltaT) {
    ws.pilihTempat(tempat);
    ws.sesi.deltaT = deltaT;
    auto* er = dynamic_cast<Ephemeris*>(ws.modul("ER"));
    Stat ij, ijGeometris, gurub, gurubCelup, tinggi, elong;
    const double meter = ws.sesi.tempat.tinggi;
    for (int tahun = 1400; tahun <= 1500; ++tahun)
        for (int bulan = 1; bulan <= 12; ++bulan) {
            er->HitungIjtimaER(tahun, static_cast<int16_t>(bulan), false);
            const auto& R = er->ERHasil;
            const Nilai& t0 = er->ERTanggalAwal;
            const double jd0 = HariJulianER(AmbilTingkat(t0, 6), AmbilTingkat(t0, 7), AmbilTingkat(t0, 8));
            const double jdIjtima = jd0 + (R[8] + (er->ERGeser ? 24 : 0) - R[7]) / 24;
            const double selisihIjtima = (jdIjtima - ijtimaSejati(jdIjtima)) * 1440;
            ij.tambah(selisihIjtima);
            ijGeometris.tambah((jdIjtima - ijtimaGeometris(jdIjtima)) * 1440);
            // Its sunset, on the clock of the second day of its table, and the sky's.
            const double jdGurub = jd0 + (24 + R[30]) / 24;
            gurub.tambah((jdGurub - gurubSesudah(jd0 + 1 + (12 - bujur / 15) / 24, lintang, bujur)) * 1440);
            gurubCelup.tambah((jdGurub - gurubDariKetinggian(jd0 + 1 + (12 - bujur / 15) / 24, lintang, bujur, meter)) * 1440);
            const double selisihTinggi = (R[35] - tinggiGeosentris(jdGurub, lintang, bujur)) * 60;
            tinggi.tambah(selisihTinggi);
            // A month off by more than an hour or a degree is named, so that it can be looked into.
            if (std::abs(selisihIjtima) > 60 || std::abs(selisihTinggi) > 60)
                std::fprintf(stderr, "ER %s %s %d/%d: ijtima' %+.0f min, height %+.0f'\n", tempat,
                             deltaT ? "delta T" : "book", bulan, tahun, selisihIjtima, selisihTinggi);
            const double x = std::cos((er->BacaJamER(er->ERThulQomar, R[30]) - er->BacaJamER(er->ERThulHakiki, R[30])) *
                                      M_PI / 180) *
                             std::cos(er->BacaJamER(er->ERArdlQomar, R[30]) * M_PI / 180);
            elong.tambah((std::acos(x) * 180 / M_PI - elongasi(jdGurub)) * 60);
        }
    ws.sesi.deltaT = false;
    std::printf("%-8s %-7s | %+6.2f %6.2f %+7.2f | %+6.2f %6.2f %+7.2f | %+6.2f %6.2f %+7.2f | %+6.2f %6.2f %+7.2f | %d\n",
                tempat, deltaT ? "delta T" : "book", ij.rata(), ij.rataMutlak(), ij.maks, gurub.rata(), gurub.rataMutlak(),
                gurub.maks, tinggi.rata(), tinggi.rataMutlak(), tinggi.maks, elong.rata(), elong.rataMutlak(), elong.maks,
                ij.n);
    std::printf("%-8s %-7s |   against the apparent moon on the geometric sun: %+6.2f %6.2f %+7.2f; sunset under the dip"
                " of %.0f m: %+6.2f %6.2f %+7.2f\n",
                "", "", ijGeometris.rata(), ijGeometris.rataMutlak(), ijGeometris.maks, meter, gurubCelup.rata(),
                gurubCelup.rataMutlak(), gurubCelup.maks);
}

double jdSipil(const Nilai& tanggal) {
    return static_cast<double>(NomorHari(AmbilTingkat(tanggal, 6), AmbilTingkat(tanggal, 7), AmbilTingkat(tanggal, 8))) +
           1721423 - 0.5;
}

}  // namespace

int main(int argc, char** argv) {
    const bool rinci = argc > 1 && std::string(argv[1]) == "--rinci";
    swe_set_ephe_path(const_cast<char*>("/usr/share/libswe/ephe"));
    ClsConnection koneksi(CariLokasiData());
    Workspace ws(koneksi);

    std::printf("1. The books' mean ijtima' (alamah) against the true conjunction, hours (book - true)\n");
    std::printf("%-5s %-9s %-38s %-38s\n", "kitab", "markaz", "to the one ending m", "to the one opening m");
    for (const Markaz& mk : kMarkaz) {
        ws.pilihTempat(mk.tempat);
        Modul* m = ws.modul(mk.kitab);
        Stat akhir, awal;
        for (int tahun = kTahunAwal; tahun <= kTahunAkhir; ++tahun) {
            Nilai alamah;
            double jam1;
            if (auto* sh = dynamic_cast<SyamsulHilal*>(m)) {
                // Its month 1 already adds one lunation, its alamah is in decimal hours.
                sh->PokokSH(tahun, 1);
                jam1 = jamMinggu(static_cast<int>(sh->SHJumlah(1)), sh->SHJumlah(2));
            } else {
                auto* buku = dynamic_cast<KerangkaTaqribi*>(m);
                buku->PokokFR(tahun, 1);
                alamah = buku->Jumlah(1);
                jam1 = jamMinggu(AmbilTingkat(alamah, 10), AmbilTingkat(alamah, 11) + AmbilTingkat(alamah, 12) / 60.0 +
                                                               AmbilTingkat(alamah, 13) / 3600.0);
            }
            for (int bulan = 1; bulan <= 12; ++bulan) {
                const double buku = jam1 + (bulan - 1) * kBulan * 24;
                for (auto [stat, b] : {std::pair{&akhir, bulan}, {&awal, bulan - 1}}) {
                    const double jd = ijtimaAkhirBulan(b == 0 ? tahun - 1 : tahun, b == 0 ? 12 : b);
                    const HariJam h = hariJam(jd + mk.bujur / 360);
                    stat->tambah(bedaMinggu(buku, jamMinggu(h.hari, h.jam)));
                }
            }
        }
        std::printf("%-5s %-9s mean %+6.2f, |.| %5.2f, largest %+7.2f  mean %+6.2f, |.| %5.2f, largest %+7.2f\n",
                    mk.kitab, mk.tempat, akhir.rata(), akhir.rataMutlak(), akhir.maks, awal.rata(), awal.rataMutlak(),
                    awal.maks);
    }

    std::printf("\n1b. Ittifaq's Masehi date of its mean ijtima' (date step, tdThMasehi, the months' Masehi days)\n");
    {
        ws.pilihTempat("Surabaya");
        auto* idb = dynamic_cast<KerangkaTaqribi*>(ws.modul("IDB1"));
        Tabel& syahru = koneksi.TRBSyahru;
        Stat beda;
        int hariSalah = 0;
        for (int tahun = kTahunAwal; tahun <= kTahunAkhir; ++tahun) {
            idb->PokokFR(tahun, 1);
            for (int bulan = 1; bulan <= 12; ++bulan) {
                if (!syahru.cari("Cari", bulan)) continue;
                // The month row: its Masehi days from the table, its weekday and hours those of
                // m - 1 mean lunations.
                const double hari = (bulan - 1) * kBulan;
                const int64_t utuh = static_cast<int64_t>(std::floor(hari));
                const double jam = (hari - utuh) * 24;
                const Nilai syahr = AlamahTarkh(
                    -1, MedanAlamah{0, BacaBulat(syahru, "mshBln"), BacaBulat(syahru, "mshTgl"), BacaBulat(syahru, "Pasaran"),
                                    utuh % 7, static_cast<int64_t>(jam), static_cast<int64_t>((jam - std::floor(jam)) * 60), 0, 0},
                    1);
                const auto t = ws.taadil.Taadil(idb->Majmu(1), idb->Mabsut(1), syahr, Nilai("00 00 00 00 00 1"), idb->Dawr,
                                                idb->SisaTahun, Nilai(idb->data().mabda[0]), Nilai(idb->data().tambah[0]));
                if (t[0].kosongTeks()) continue;
                const double bukuLokal = jdSipil(t[0]) - 0.25 + (AmbilTingkat(t[0], 11) + AmbilTingkat(t[0], 12) / 60.0) / 24;
                const double jd = ijtimaAkhirBulan(bulan == 1 ? tahun - 1 : tahun, bulan == 1 ? 12 : bulan - 1);
                const double d = (bukuLokal - (jd + (112 + 46 / 60.0) / 360)) * 24;
                beda.tambah(d);
                if (std::fabs(d - 12.94) > 24) ++hariSalah;
            }
        }
        std::printf("date and hour of the mean ijtima' - true conjunction opening the month: mean %+.2f h, "
                    "mean |.| %.2f h, largest %+.2f h; a day or more off the offset: %d of %d\n",
                    beda.rata(), beda.rataMutlak(), beda.maks, hariSalah, beda.n);
    }

    std::printf("\n2. The reckoning as the program runs it, every month of %d-%d H at the markaz\n", kTahunAwal,
                kTahunAkhir);
    const bool lengkap = koneksi.TRBSyahru.indeksKolom("alHari") >= 0 && koneksi.TRBTaadil.indeksKolom("tdKsJah") >= 0 &&
                         koneksi.TRBTaadil.indeksKolom("mnJah") >= 0;
    if (!lengkap)
        std::printf("(the month and equation tables lack Sullam's columns: these figures do not yet measure the books)\n");
    std::printf("%-5s %-9s | ijtima' - true conj. (h)  | height - true (deg)     | first of month\n", "kitab",
                "markaz");
    std::printf("%-5s %-9s | mean   |mean|   largest | mean   |mean|  largest  | same  earlier  later\n", "", "");
    for (const Markaz& mk : kMarkaz) {
        Stat ij, tg;
        int sama = 0, dulu = 0, lambat = 0;
        for (int tahun = kTahunAwal; tahun <= kTahunAkhir; ++tahun) {
            auto hasil = ws.mnu12BulanSub(mk.kitab, std::to_string(tahun), mk.tempat, Workspace::Keluaran::Ringkas);
            for (const auto& r : hasil.ringkas) {
                const Ringkasan& g = r.ringkasan;
                if (g.tanggalIjtima.kosongTeks()) continue;
                const double jdSejati = ijtimaAkhirBulan(tahun, r.bulan);
                // The book's ijtima': its day from 18:00 of the day before, plus its hours.
                const auto titik = g.jamIjtima.find('.');
                const double jam = std::stod(g.jamIjtima.substr(0, titik)) + std::stod(g.jamIjtima.substr(titik + 1, 2)) / 60;
                const double bukuLokal = jdSipil(g.tanggalIjtima) - 1 + jam / 24;
                // Hours from sunset run past midnight: 20.30 is the evening before the day.
                const double bukuJd = jam >= 18 ? bukuLokal : bukuLokal + 1;
                ij.tambah((bukuJd - waktuHakiki(jdSejati, mk.bujur)) * 24);

                // The sunset of the book's civil day of the ijtima', the one its height is for: not
                // the first after its instant, which is the next day's when the book puts the
                // ijtima' between the true sunset and its own 18:00.
                const double gurub = gurubSesudah(jdSipil(g.tanggalIjtima) - mk.bujur / 360, mk.lintang, mk.bujur);
                const double tinggiBuku = (AmbilTanda(g.tinggiHilal) == 0 ? -1 : 1) * NilaiDesimal(3, g.tinggiHilal);
                tg.tambah(tinggiBuku - tinggiGeosentris(gurub, mk.lintang, mk.bujur));

                // The same rule on the sky: the day that the first sunset after the conjunction ends.
                const double gurubSejati = gurubSesudah(jdSejati, mk.lintang, mk.bujur);
                const double hariSejati = std::floor(gurubSejati + mk.bujur / 360 + 0.5);
                const double awalSejati = hariSejati + (tinggiGeosentris(gurubSejati, mk.lintang, mk.bujur) < 2 ? 2 : 1);
                const double awalBuku = jdSipil(g.awalBulan) + 0.5;
                if (awalBuku == awalSejati) ++sama;
                else if (awalBuku < awalSejati) ++dulu;
                else ++lambat;
            }
        }
        std::printf("%-5s %-9s | %+6.2f %6.2f %+8.2f | %+6.2f %6.2f %+7.2f  | %4d  %4d  %4d\n", mk.kitab, mk.tempat,
                    ij.rata(), ij.rataMutlak(), ij.maks, tg.rata(), tg.rataMutlak(), tg.maks, sama, dulu, lambat);
    }

    std::printf("\n3. Hours per degree of elongation: table 6 at Tadzkirotu's anomaly against the sky\n");
    {
        ws.pilihTempat("Semarang");
        auto* tz = dynamic_cast<KerangkaTaqribi*>(ws.modul("TZ"));
        Stat beda;
        for (int tahun = kTahunAwal; tahun <= kTahunAkhir; ++tahun) {
            tz->PokokFR(tahun, 1);
            const Nilai k1 = tz->Jumlah(4);
            for (int bulan = 1; bulan <= 12; ++bulan) {
                // The anomaly gains 25° 49' a lunation (thirty years: 9s 23° 57' beyond 385 circles).
                const double k = std::fmod(NilaiDesimal(3, k1) + (bulan - 1) * (385 * 360 + 293 + 57 / 60.0) / 360, 360);
                std::array<Nilai, 5> baris;
                ws.taadil.TaadilBaris(baris, 6, DesimalKeBusur(k, false).value_or(Nilai()), 5, false);
                if (baris[4].kosongTeks()) continue;
                const double jd = ijtimaAkhirBulan(bulan == 1 ? tahun - 1 : tahun, bulan == 1 ? 12 : bulan - 1);
                double m[6], s[6];
                posisi(jd, SE_MOON, 0, m);
                posisi(jd, SE_SUN, 0, s);
                beda.tambah((NilaiDesimal(3, baris[4]) - 24 / (m[3] - s[3])) * 60);
            }
        }
        std::printf("table - true, minutes of time per degree: mean %+.2f, mean |.| %.2f, largest %+.2f (%d months)\n",
                    beda.rata(), beda.rataMutlak(), beda.maks, beda.n);
    }
    std::printf("\n4. The precise books, every month of 1440-1450 H at 112 13 E (Jombang, 7 33 S)\n");
    std::printf("%-5s | ijtima' - true (min)      | height - true (deg)    | sun - true (')  | moon - true (')\n", "kitab");
    std::printf("%-5s | mean  |mean|  largest     | mean  |mean|  largest  | |mean|  largest | |mean|  largest\n", "");
    {
        ws.pilihTempat("Jombang");
        const double lintang = -(7 + 33 / 60.0), bujur = 112 + 13 / 60.0;
        for (const char* kode : {"BM", "NA"}) {
            auto* buku = dynamic_cast<KerangkaTahqiqi*>(ws.modul(kode));
            Stat ij, tg, tgPusat, matahari, bulanS;
            int lintas = 0;
            auto derajat = [](const Nilai& v) {
                return AmbilTingkat(v, 1) * 30.0 + AmbilTingkat(v, 2) + AmbilTingkat(v, 3) / 60.0 +
                       AmbilTingkat(v, 4) / 3600.0 + AmbilTingkat(v, 5) / 216000.0;
            };
            for (int tahun = 1440; tahun <= 1450; ++tahun) {
                for (int bulan = 1; bulan <= 12; ++bulan) {
                    ws.sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
                    buku->Hitung({tahun, static_cast<int16_t>(bulan), false});
                    const auto t29 = ClsKesimpulan::ConvertToHijri(tahun, static_cast<int16_t>(bulan), 29);
                    if (!t29) continue;
                    // Local apparent clock to UT: the equation of time of the day.
                    auto keUt = [&](double hariLokal, double jamWis) {
                        double e = 0;
                        char err[256];
                        const double kira = hariLokal + jamWis / 24 - bujur / 360;
                        swe_time_equ(kira, &e, err);
                        return kira - e;
                    };
                    // The sun's equation read between the two rows where it changes sign.
                    const bool melintas = std::fabs(derajat(buku->Tdl[0](2)) - derajat(buku->Tdl[0](3))) > 180;
                    if (melintas) ++lintas;
                    const double hari29 = jdSipil(*t29);
                    const double ijtima = keUt(hari29 + buku->geserHari, NilaiDesimal(3, buku->Ijtima(5)));
                    ij.tambah((ijtima - ijtimaAkhirBulan(tahun, bulan)) * 1440);
                    if (rinci)
                        std::printf("%-3s %d %2d  days run %s  Bu'd %+7.3f  ijtima' - true %+7.1f min%s\n", kode, tahun,
                                    bulan, buku->Hari.c_str(),
                                    (AmbilTanda(buku->Ijtima(1)) == 0 ? -1 : 1) * NilaiDesimal(3, buku->Ijtima(1)),
                                    (ijtima - ijtimaAkhirBulan(tahun, bulan)) * 1440, melintas ? "  (sun's equation across its change of sign)" : "");
                    const double hariHilal = hari29 + buku->hariLagi;
                    const double gurub = keUt(hariHilal, NilaiDesimal(3, buku->Ijtima(4)));
                    const double gurubSejati = gurubSesudah(hariHilal - bujur / 360 + 0.25, lintang, bujur);
                    tg.tambah(buku->tinggiHilal() - tinggiGeosentris(gurubSejati, lintang, bujur));
                    // The same at the moment the sun's centre reaches the airless horizon.
                    const double gurubPusat = gurubSesudah(hariHilal - bujur / 360 + 0.25, lintang, bujur,
                                                           SE_BIT_DISC_CENTER | SE_BIT_NO_REFRACTION);
                    tgPusat.tambah(buku->tinggiHilal() - tinggiGeosentris(gurubPusat, lintang, bujur));
                    double m[6], sn[6];
                    posisi(gurub, SE_MOON, 0, m);
                    posisi(gurub, SE_SUN, 0, sn);
                    matahari.tambah(bujurBeda(derajat(buku->Syams(2)), sn[0]) * 60);
                    bulanS.tambah(bujurBeda(derajat(buku->Qomar(11)), m[0]) * 60);
                }
            }
            std::printf("%-5s | %+6.1f %6.1f %+8.1f   | %+5.2f %5.2f %+7.2f   | %5.2f %+7.2f  | %5.2f %+7.2f   (%d months;"
                        " %d of them with the sun's equation read across its change of sign)\n",
                        kode, ij.rata(), ij.rataMutlak(), ij.maks, tg.rata(), tg.rataMutlak(), tg.maks,
                        matahari.rataMutlak(), matahari.maks, bulanS.rataMutlak(), bulanS.maks, ij.n, lintas);
            std::printf("%-5s   height - true at the sun's centre on the airless horizon: mean %+.2f, |.| %.2f, largest %+.2f\n",
                        kode, tgPusat.rata(), tgPusat.rataMutlak(), tgPusat.maks);
        }
    }

    std::printf("\n5. Ephemeris, every month of 1400-1500 H (ER - sky; mean, mean |.|, largest)\n");
    std::printf("%-8s %-7s | ijtima' (min of time)   | sunset (min of time)    | height [35] (arcmin)    | "
                "elongation (arcmin)     | months\n", "place", "");
    for (bool deltaT : {false, true}) {
        ukurEphemeris(ws, "Jakarta", -(6 + 15 / 60.0), 106 + 52 / 60.0, deltaT);
        ukurEphemeris(ws, "Makkah", 21 + 25 / 60.0, 39 + 57 / 60.0, deltaT);
    }
    return 0;
}
