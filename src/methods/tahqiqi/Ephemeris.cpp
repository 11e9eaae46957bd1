#include "methods/tahqiqi/Ephemeris.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string_view>

#include "conclusions/Kesimpulan.h"
#include "core/Angka.h"
#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Maghrib.h"
#include "core/Sesi.h"
#include "methods/Lembar.h"
#include "methods/tahqiqi/HilalTahqiqi.h"
#include "methods/tahqiqi/KesimpulanTahqiqi.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

namespace {

// The book's factors between degrees and radians.
constexpr double kRad = 0.017453292519943278;
constexpr double kDer = 57.2957795130823;
constexpr int kLangkah = 56;  // steps of the progress bar: fifty hours and six stages

double sinD(double x) { return std::sin(x * kRad); }
double cosD(double x) { return std::cos(x * kRad); }
double tanD(double x) { return std::tan(x * kRad); }
double atanD(double x) { return std::atan(x) * kDer; }
// Arcsine and arccosine as the book writes them, through the arctangent.
double asinER(double x) { return std::atan(x / std::sqrt(1 - x * x)) * kDer; }
double acosER(double x) { return (2 * std::atan(1.0) + std::atan(-x / std::sqrt(1 - x * x))) * kDer; }
// An angle brought to 0-360: a large multiple of the circle added, the fraction of the turns kept.
double putar(double x, double tambah) {
    const double y = (x + tambah) / 360;
    return (y - std::floor(y)) * 360;
}

// A term of the Moon's series: multiples of D, M, M' and F, and the amplitude (arc-seconds of
// sine for longitude and latitude, km of cosine for the distance).
struct SukuQomar {
    int d, m, mp, f;
    double a;
};

// The Moon's series of the book.
constexpr SukuQomar kBujurQomar[] = {
    {0, 0, 1, 0, 22639.58578},
    {2, 0, -1, 0, 4586.4383},
    {2, 0, 0, 0, 2369.91394},
    {0, 0, 2, 0, 769.02571},
    {0, 1, 0, 0, -666.4171},
    {0, 0, 0, 2, -411.59567},
    {2, 0, -2, 0, 211.65555},
    {2, -1, -1, 0, 205.43582},
    {2, 0, 1, 0, 191.9562},
    {2, -1, 0, 0, 164.72851},
    {0, 1, -1, 0, -147.32129},
    {1, 0, 0, 0, -124.98812},
    {0, 1, 1, 0, -109.38029},
    {2, 0, 0, -2, 55.17705},
    {0, 0, 1, 2, -45.0996},
    {0, 0, 1, -2, 39.53329},
    {4, 0, -1, 0, 38.42983},
    {0, 0, 3, 0, 36.12381},
    {4, 0, -2, 0, 30.77257},
    {2, 1, -1, 0, -28.39708},
    {2, 1, 0, 0, -24.35821},
    {1, 0, -1, 0, -18.58471},
    {1, 1, 0, 0, 17.95446},
    {2, -1, 1, 0, 14.53027},
    {2, 0, 2, 0, 14.3797},
    {4, 0, 0, 0, 13.89906},
    {2, 0, -3, 0, 13.19406},
    {0, 1, -2, 0, -9.67905},
    {2, 0, -1, 2, -9.36586},
    {2, -1, -2, 0, 8.60553},
    {1, 0, 1, 0, -8.4531},
    {2, -2, 0, 0, 8.05016},
    {0, 1, 2, 0, -7.63015},
    {0, 2, 0, 0, -7.44749},
    {2, -2, -1, 0, 7.37119},
    {2, 0, 1, -2, -6.38315},
    {2, 0, 0, 2, -5.74161},
    {4, -1, -1, 0, 4.37401},
    {0, 0, 2, 2, -3.99761},
    {3, 0, -1, 0, -3.20969},
    {2, 1, 1, 0, -2.91454},
    {4, -1, -2, 0, 2.73189},
    {0, 2, -1, 0, -2.56794},
    {2, 2, -1, 0, -2.5212},
    {2, 1, -2, 0, 2.48889},
    {2, -1, 0, -2, 2.14607},
    {4, 0, 1, 0, 1.97773},
    {0, 0, 4, 0, 1.93368},
    {4, -1, 0, 0, 1.87076},
    {1, 0, -2, 0, -1.75297},
    {2, 1, 0, -2, -1.43716},
    {0, 0, 2, -2, -1.37257},
    {1, 1, 1, 0, 1.26182},
    {3, 0, -2, 0, -1.22412},
    {4, 0, -3, 0, 1.18683},
    {2, -1, 2, 0, 1.177},
    {0, 2, 1, 0, -1.16169},
    {1, 1, -1, 0, 1.07769},
    {2, 0, 3, 0, 1.0595},
    {2, 0, 1, 2, -0.99022},
    {2, 0, -4, 0, 0.94828},
    {2, -2, 1, 0, 0.75168},
    {0, 1, -3, 0, -0.66938},
    {4, 1, -1, 0, -0.63521},
    {1, 0, 2, 0, -0.58399},
    {1, 0, 0, -2, -0.58331},
    {6, 0, -2, 0, 0.57156},
    {2, 0, -2, -2, -0.56064},
    {1, -1, 0, 0, -0.55692},
    {0, 1, 3, 0, -0.54592},
    {2, 0, -2, 2, -0.53571},
};
constexpr SukuQomar kLintangQomar[] = {
    {0, 0, 1, 1, 1010.16707},
    {0, 0, 0, 1, 18461.23868},
    {0, 0, 1, -1, 999.69358},
    {2, 0, 0, -1, 623.65243},
    {2, 0, -1, 1, 199.48374},
    {2, 0, -1, -1, 166.5741},
    {2, 0, 0, 1, 117.26069},
    {0, 0, 2, 1, 61.91195},
    {2, 0, 1, -1, 33.3572},
    {0, 0, 2, -1, 31.75967},
    {2, -1, 0, -1, 29.57658},
    {2, 0, -2, -1, 15.56626},
    {2, 0, 1, 1, 15.12155},
    {2, 1, 0, -1, -12.09414},
    {2, -1, -1, 1, 8.86814},
    {2, -1, 0, 1, 7.95855},
    {2, -1, -1, -1, 7.43455},
    {0, 1, -1, -1, -6.73143},
    {4, 0, -1, -1, 6.57957},
    {0, 1, 0, 1, -6.46007},
    {0, 0, 0, 3, -6.29648},
    {0, 1, -1, 1, -5.63235},
    {1, 0, 0, 1, -5.3684},
    {0, 1, 1, 1, -5.31127},
    {0, 1, 1, -1, -5.07591},
    {0, 1, 0, -1, -4.83961},
    {1, 0, 0, -1, -4.80574},
    {0, 0, 3, 1, 3.98405},
    {4, 0, -1, 1, 2.99848},
    {4, 0, 0, -1, 3.67446},
    {0, 0, 1, -3, 2.79864},
    {4, 0, -2, 1, 2.41388},
    {2, 0, 0, -3, 2.18631},
    {2, 0, 2, -1, 2.14617},
    {2, -1, 1, -1, 1.76598},
    {2, 0, -2, 1, -1.62442},
    {0, 0, 3, -1, 1.5813},
    {2, 0, 2, 1, 1.51975},
    {2, 0, -3, -1, 1.51563},
    {2, 1, -1, 1, -1.31782},
    {2, 1, 0, 1, -1.26427},
    {4, 0, 0, 1, 1.19187},
    {2, -1, 1, 1, 1.13461},
    {2, -2, 0, -1, 1.08578},
    {0, 0, 1, 3, -1.01938},
    {2, 1, 1, -1, -0.82271},
    {1, 1, 0, -1, 0.80422},
    {1, 1, 0, 1, 0.80259},
    {0, 1, -2, -1, -0.79319},
    {2, 1, -1, -1, -0.79101},
    {1, 0, 1, 1, -0.66741},
    {2, -1, -2, -1, 0.65022},
    {0, 1, 2, 1, -0.63881},
    {4, 0, -2, -1, 0.63371},
    {4, -1, -1, -1, 0.59577},
    {1, 0, 1, -1, -0.58893},
};
constexpr SukuQomar kJarakQomar[] = {
    {0, 0, 1, 0, -20905.35504},
    {0, 0, 0, 0, 385000.52899},
    {2, 0, -1, 0, -3699.11092},
    {2, 0, 0, 0, -2955.96756},
    {0, 0, 2, 0, -569.92512},
    {2, 0, -2, 0, 246.15848},
    {2, -1, 0, 0, -204.58598},
    {2, 0, 1, 0, -170.73308},
    {2, -1, -1, 0, -152.13771},
    {0, 1, -1, 0, -129.62014},
    {1, 0, 0, 0, 108.7427},
    {0, 1, 1, 0, 104.75523},
    {0, 0, 1, -2, 79.66056},
    {0, 1, 0, 0, 48.8883},
    {4, 0, -1, 0, -34.78252},
    {2, 1, 0, 0, 30.82384},
    {2, 1, -1, 0, 24.20848},
    {0, 0, 3, 0, -23.21043},
    {4, 0, -2, 0, -21.63634},
    {1, 1, 0, 0, -16.67471},
    {2, 0, -3, 0, 14.40269},
    {2, -1, 1, 0, -12.8314},
    {4, 0, 0, 0, -11.64995},
    {2, 0, 2, 0, -10.44476},
    {2, 0, 0, -2, 10.32111},
    {2, -1, -2, 0, 10.0562},
    {2, -2, 0, 0, -9.88445},
    {2, 0, -1, -2, 8.75156},
    {1, 0, -1, 0, -8.37911},
    {0, 1, -2, 0, -7.00269},
    {1, 0, 1, 0, 6.322},
    {0, 1, 2, 0, 5.75085},
    {2, -2, -1, 0, -4.95013},
    {0, 0, 2, -2, -4.42118},
    {2, 0, 1, -2, 4.13111},
    {4, -1, -1, 0, -3.95798},
    {3, 0, -1, 0, 3.25824},
    {0, 0, 0, 2, -3.1483},
    {2, 1, 1, 0, 2.61641},
    {2, 2, -1, 0, 2.35363},
    {0, 2, -1, 0, -2.11713},
    {4, -1, -2, 0, -1.89704},
    {1, 0, -2, 0, -1.73853},
    {4, -1, 0, 0, -1.57139},
    {4, 0, 1, 0, -1.42255},
    {3, 0, 0, 0, -1.41893},
    {0, 2, 1, 0, 1.16553},
    {0, 0, 4, 0, -1.11694},
    {0, 2, 0, 0, 1.06567},
};

template <size_t N>
double jumlahQomar(const SukuQomar (&deret)[N], double d, double m, double mp, double f, bool kosinus) {
    double s = 0;
    for (const SukuQomar& t : deret) {
        const double arg = t.d * d + t.m * m + t.mp * mp + t.f * f;
        s += t.a * (kosinus ? cosD(arg) : sinD(arg));
    }
    return s;
}

double jumlahBumi(const std::vector<SukuBumi>& deret, double tau) {
    double s = 0;
    for (const SukuBumi& t : deret) s += t.a * std::cos(t.b + t.c * tau);
    return s;
}

// L0 + L1 tau + L2 tau^2 ..., in units of 1e-8.
template <size_t N>
double pangkat(const std::array<std::vector<SukuBumi>, N>& deret, double tau) {
    double s = 0, p = 1;
    for (const auto& d : deret) {
        s += jumlahBumi(d, tau) * p;
        p *= tau;
    }
    return s / 1e8;
}

// Right ascension and declination from longitude, latitude and obliquity.
void ekuator(double lambda, double beta, double eps, double& alpha, double& delta) {
    alpha = atanD((sinD(lambda) * cosD(eps) - tanD(beta) * sinD(eps)) / cosD(lambda));
    if (cosD(lambda) < 0) alpha += 180;
    alpha = putar(alpha, 360);
    delta = asinER(sinD(beta) * cosD(eps) + cosD(beta) * sinD(eps) * sinD(lambda));
}

// Arc-seconds of the Moon's arguments to degrees.
double detik(double d, double m, double s) { return (d * 3600 + m * 60 + s) / 3600; }

// Azimuth of a body at hour angle t and declination delta from the west point, north plus.
double azimut(double delta, double t, double phi) {
    const double a = atanD(1 / ((tanD(delta) * cosD(phi) / sinD(t)) + (-sinD(phi) / tanD(t))));
    return a >= 0 ? 90 - a : -90 - a;
}

// An hour in which a body passes 0° reads as the fraction of a degree it is, not as nearly a
// whole circle.
using hilal::selisihBusur;

}  // namespace

DeretBumi DeretBumi::baca(Tabel& tabel) {
    DeretBumi b;
    for (tabel.moveFirst(); !tabel.eof(); tabel.moveNext()) {
        const std::string nama = BacaTeks(tabel, "Deret");
        if (nama.size() != 2) continue;
        const size_t n = static_cast<size_t>(nama[1] - '0');
        const SukuBumi s{ValAngka(BacaTeks(tabel, "A")), ValAngka(BacaTeks(tabel, "B")), ValAngka(BacaTeks(tabel, "C"))};
        if (nama[0] == 'L' && n < b.l.size()) b.l[n].push_back(s);
        else if (nama[0] == 'B' && n < b.b.size()) b.b[n].push_back(s);
        else if (nama[0] == 'R' && n < b.r.size()) b.r[n].push_back(s);
    }
    return b;
}

double HariJulianER(int y, int m, int d) {
    if (m < 3) {
        y -= 1;
        m += 12;
    }
    const double b = static_cast<int64_t>(y) * 10000 + m * 100 + d >= 15821015
                         ? 2 - std::floor(y / 100.0) + std::floor(y / 400.0)
                         : 0;
    return std::floor(365.25 * (y + 4716)) + std::floor(30.6001 * (m + 1)) + d + b - 1524.5;
}

double DeltaTHari(double jd) {
    const double y = 2000 + (jd - 2451544.5) / 365.2425;
    double detikDT;
    if (y < 2005) {
        const double t = y - 2000;
        detikDT = 63.86 + t * (0.3345 + t * (-0.060374 + t * (0.0017275 + t * (0.000651814 + t * 0.00002373599))));
    } else if (y < 2050) {
        const double t = y - 2000;
        detikDT = 62.92 + 0.32217 * t + 0.005589 * t * t;
    } else {
        const double u = (y - 1820) / 100;
        detikDT = -20 + 32 * u * u - 0.5628 * (2150 - y);
    }
    return detikDT / 86400;
}

PosisiER PosisiPada(const DeretBumi& bumi, double jd) {
    PosisiER p{};
    const double T = (jd - 2451545) / 36525, tau = (jd - 2451545) / 365250;
    const double L = pangkat(bumi.l, tau) * kDer, B = pangkat(bumi.b, tau) * kDer;
    const double R = pangkat(bumi.r, tau);
    p.jarak = R;
    p.thulHakiki = putar(L + 180, 360000000);

    const double ls = 280.46645 + 36000.76983 * T + 0.0003032 * T * T;
    const double lq = 218.3164591 + 481267.88134236 * T - 0.0013268 * T * T + T * T * T / 538841 -
                      T * T * T * T / 65194000;
    const double om = 125.04452 - 1934.136261 * T + 0.0020708 * T * T + T * T * T / 450000;
    const double dpsi = (-17.2 * sinD(om) - 1.32 * sinD(2 * ls) - 0.23 * sinD(2 * lq) + 0.21 * sinD(2 * om)) / 3600;
    const double deps = (9.2 * cosD(om) + 0.57 * cosD(2 * ls) + 0.1 * cosD(2 * lq) - 0.09 * cosD(2 * om)) / 3600;

    const double aberasi = -20.4898 / 3600 / R, fk5 = -0.09033 / 3600;
    const double lambda = L + 180 + dpsi + aberasi + fk5;
    p.thulSyams = putar(lambda, 360000000);
    p.ardl = -B + 0.03916 / 3600 * (cosD(lambda) - sinD(lambda));
    p.mail = 23 + 26.0 / 60 + 21.448 / 3600 - 46.815 / 3600 * T - 0.00059 / 3600 * T * T +
             0.001813 / 3600 * T * T * T + deps;
    ekuator(lambda, p.ardl, p.mail, p.adjSyams, p.dekSyams);
    p.sdSyams = (959.63 / 3600) / R;

    const double l0 = putar(ls, 3600000);
    const double alpha = std::abs(l0 - p.adjSyams) > 5 ? p.adjSyams + 360 : p.adjSyams;
    p.daqoiq = ((l0 - 0.0057183 - alpha) + dpsi * cosD(p.mail)) / 15;

    const double T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    const double lp = putar(detik(218, 18, 59.95571) + (1732564372.83264 * T - 4.7763 * T2 + 0.006681 * T3 -
                                                        0.00005522 * T4) / 3600, 360000000);
    const double d = putar(detik(297, 51, 0.73512) + (1602961601.4603 * T - 5.8681 * T2 + 0.006595 * T3 -
                                                      0.00003184 * T4) / 3600, 360000000);
    const double m = putar(detik(357, 31, 44.79306) + (129596581.0474 * T - 0.5529 * T2 + 0.000147 * T3) / 3600,
                           360000000);
    const double mp = putar(detik(134, 57, 48.28096) + (1717915923.4728 * T + 32.3893 * T2 + 0.051651 * T3 -
                                                        0.0002447 * T4) / 3600, 360000000);
    const double f = putar(detik(93, 16, 19.55755) + (1739527263.0983 * T - 12.2505 * T2 + 0.001021 * T3 -
                                                      0.00000417 * T4) / 3600, 3600000);
    p.thulQomar = putar(lp + jumlahQomar(kBujurQomar, d, m, mp, f, false) / 3600 + dpsi, 360000000);
    p.ardlQomar = jumlahQomar(kLintangQomar, d, m, mp, f, false) / 3600;
    const double r = jumlahQomar(kJarakQomar, d, m, mp, f, true);
    ekuator(p.thulQomar, p.ardlQomar, p.mail, p.adjQomar, p.dekQomar);
    p.hp = asinER(6378.14 / r);
    p.sdQomar = asinER(sinD(p.hp) * 0.272481);

    const double dAlpha = p.adjSyams - p.adjQomar;
    const double penyebut = sinD(p.dekSyams) * cosD(p.dekQomar) - cosD(p.dekSyams) * sinD(p.dekQomar) * cosD(dAlpha);
    double sudut = atanD(cosD(p.dekSyams) * sinD(dAlpha) / penyebut);
    if (penyebut < 0) sudut += 180;
    p.sudut = putar(sudut, 360);

    const double x = cosD(p.thulQomar - p.thulHakiki) * cosD(p.ardlQomar);
    const double psi = (1.57079626 - std::atan(x / std::sqrt(1 - x * x))) * kDer;
    const double i = 180 - psi - (0.13874068 / 0.9833) * sinD(psi);
    p.fib = (1 + cosD(i)) / 2;
    return p;
}

Nilai NilaiER(double x) {
    double a = std::abs(x);
    const int64_t d = static_cast<int64_t>(a);
    a = (a - static_cast<double>(d)) * 60;
    const int64_t m = static_cast<int64_t>(a);
    a = (a - static_cast<double>(m)) * 60;
    const int64_t s = static_cast<int64_t>(a);
    a = (a - static_cast<double>(s)) * 60;
    const int64_t t = static_cast<int64_t>(a);
    return DlorbuSittin(0, d, m, s, t, x < 0 ? 0 : 1, ModusDarojah);
}

std::string TeksSudutER(double x, bool meter) {
    int64_t detikBulat = static_cast<int64_t>(std::llround(std::abs(x) * 3600));
    std::string s = (x < 0 && detikBulat > 0 ? "-" : "") + std::to_string(detikBulat / 3600) + "°" +
                    std::to_string(detikBulat / 60 % 60) + "'" + std::to_string(detikBulat % 60);
    if (meter) s += " " + FormatTetap(x * 0.72, 2) + " m";
    return s;
}

Ephemeris::Ephemeris(Konteks k) : k_(k), bumi_(DeretBumi::baca(k.koneksi.ERBumi)) {}

void Ephemeris::mulaiTabel(int y, int m, int d, bool semuaJam) {
    jdAwal_ = HariJulianER(y, m, d);
    adaJam_.fill(false);
    if (semuaJam) return;
    constexpr double kosong = std::numeric_limits<double>::quiet_NaN();
    for (KolomJam* k : {&ERJarak, &ERThulHakiki, &ERThulSyams, &ERArdl, &ERMail, &ERAdjSyams, &ERDekSyams, &ERSdSyams,
                        &ERDaqoiq, &ERThulQomar, &ERArdlQomar, &ERAdjQomar, &ERDekQomar, &ERHp, &ERSdQomar, &ERSudut,
                        &ERFib})
        std::ranges::fill(k->semua(), kosong);
}

void Ephemeris::isiJam(size_t h) {
    double jd = jdAwal_ + static_cast<double>(h - 1) / 24;
    // With delta T the hours are universal time, and the bodies are placed in dynamical time.
    if (k_.sesi.deltaT) jd += DeltaTHari(jd);
    const PosisiER p = PosisiPada(bumi_, jd);
    ERJarak(h) = p.jarak;
    ERThulHakiki(h) = p.thulHakiki;
    ERThulSyams(h) = p.thulSyams;
    ERArdl(h) = p.ardl;
    ERMail(h) = p.mail;
    ERAdjSyams(h) = p.adjSyams;
    ERDekSyams(h) = p.dekSyams;
    ERSdSyams(h) = p.sdSyams;
    ERDaqoiq(h) = p.daqoiq;
    ERThulQomar(h) = p.thulQomar;
    ERArdlQomar(h) = p.ardlQomar;
    ERAdjQomar(h) = p.adjQomar;
    ERDekQomar(h) = p.dekQomar;
    ERHp(h) = p.hp;
    ERSdQomar(h) = p.sdQomar;
    ERSudut(h) = p.sudut;
    ERFib(h) = p.fib;
    adaJam_[h] = true;
    k_.kemajuan.langkah();
}

int Ephemeris::EphemerisJam(int y, int m, int d) {
    mulaiTabel(y, m, d, true);
    for (size_t h = 1; h <= 50; ++h) isiJam(h);
    int terbaik = 1;
    for (size_t h = 2; h < 50; ++h)
        if (std::abs(ERFib(h)) < std::abs(ERFib(static_cast<size_t>(terbaik)))) terbaik = static_cast<int>(h);
    return terbaik;
}

// The best hour without the whole table. Over fifty hours the Moon's lead in longitude and
// its latitude each run nearly straight, so the elongation, the root of the sum of their
// squares, falls to one lowest hour and rises after it, and the fraction with it: a walk
// downhill from a near guess ends on the hour that a look at all of them finds (the first,
// should two be equal).
int Ephemeris::jamTerbaikHemat() {
    const auto unggul = [this](size_t h) {
        pastikanJam(h);
        return selisihBusur(ERThulQomar(h), ERThulHakiki(h));
    };
    const auto jamKe = [](double x) { return static_cast<size_t>(std::clamp(std::lround(x), 1L, 49L)); };
    // The guess: where the lead runs out, first at the mean gain of an hour, then by the secant.
    constexpr size_t tengah = 25;
    const double a = unggul(tengah);
    size_t h = jamKe(tengah - a / 0.508);
    if (h != tengah) {
        const double b = unggul(h);
        if (b != a) h = jamKe(static_cast<double>(h) - b * (static_cast<double>(h) - tengah) / (b - a));
    }
    for (;;) {
        if (h > 1 && fibPada(h - 1) <= fibPada(h)) --h;
        else if (h < 49 && fibPada(h + 1) < fibPada(h)) ++h;
        else return static_cast<int>(h);
    }
}

void Ephemeris::HisabER(int32_t tahun, int16_t bulan, bool semuaJam) {
    tahun_ = tahun;
    bulan_ = bulan;
    // The table opens at 0h GMT of the day before the ijtima' is looked for, the 29th of the
    // month by the arithmetic calendar. When the ijtima' falls on the first local day of the
    // table, or after the second, the table is reckoned again a day earlier or later, as a
    // reader of the almanac turns the page, so that the ijtima' always falls on the second
    // day, whose sunset the hilal is reckoned at.
    int geser = 0;
    for (int coba = 0; coba < 3; ++coba) {
        const auto awal = ClsKesimpulan::ConvertToHijri(tahun, bulan, 28 + geser);
        if (!awal) return;
        ERTanggalAwal = *awal;
        const int y = static_cast<int>(AmbilTingkat(*awal, MedanTahun)), m = static_cast<int>(AmbilTingkat(*awal, MedanBulan)),
                  d = static_cast<int>(AmbilTingkat(*awal, MedanTanggal));
        if (semuaJam) {
            ERJamTerbaik = EphemerisJam(y, m, d);
        } else {
            mulaiTabel(y, m, d, false);
            ERJamTerbaik = jamTerbaikHemat();
        }
        IjtimaER();
        if (jamIjtimaMentah_ <= 24) --geser;
        else if (jamIjtimaMentah_ > 48 || ERJamTerbaik >= 49) ++geser;
        else break;
    }
    ERHariIjtima = ClsKesimpulan::ConvertToHijri(tahun, bulan, 28 + geser + (ERGeser ? 1 : 0)).value_or(Nilai());
}

void Ephemeris::IjtimaER() {
    auto& R = ERHasil;
    const size_t s = static_cast<size_t>(ERJamTerbaik);
    R[0] = s > 25 ? static_cast<double>(s) - 25 : static_cast<double>(s);
    pastikanJam(s + 1);
    R[1] = ERThulHakiki(s);
    R[2] = ERThulHakiki(s + 1);
    R[3] = std::abs(selisihBusur(R[1], R[2]));
    R[4] = ERThulQomar(s);
    R[5] = ERThulQomar(s + 1);
    R[6] = std::abs(selisihBusur(R[4], R[5]));
    R[7] = k_.sesi.tempat.zona;
    R[8] = selisihBusur(R[1], R[4]) / (R[6] - R[3]) + static_cast<double>(s - 1) + R[7];
    jamIjtimaMentah_ = R[8];
    if (R[8] > 24) {
        R[8] -= 24;
        ERGeser = 25;
    } else {
        ERGeser = 0;
    }
}

double Ephemeris::BacaJamER(const KolomJam& kolom, double x) {
    const double bulat = std::floor(x);
    const int i = std::clamp(static_cast<int>(bulat) + 25, 1, 49);
    pastikanJam(static_cast<size_t>(i));
    pastikanJam(static_cast<size_t>(i) + 1);
    const double v = kolom(static_cast<size_t>(i));
    const double beda = v - kolom(static_cast<size_t>(i) + 1);
    if (std::abs(beda) <= 180) return v - (x - bulat) * beda;
    // A longitude or right ascension that passes 360° within the hour.
    return putar(v - (x - bulat) * selisihBusur(v, kolom(static_cast<size_t>(i) + 1)), 360);
}

double Ephemeris::RefraksiER(double tinggi) {
    Tabel& t = k_.koneksi.Refraksi;
    std::string baris;
    double a = 0, selisih = 0;
    for (t.moveFirst(); !t.eof(); t.moveNext()) {
        const double h = ValAngka(BacaTeks(t, "h"));
        if (std::abs(h) >= std::abs(tinggi)) {
            baris = BacaTeks(t, "h");
            selisih = h - tinggi;
            a = ValAngka(BacaTeks(t, "Refraksi")) / 60;
        }
    }
    if (baris.empty() || !t.cari("h", baris)) return a;
    t.moveNext();
    if (t.eof()) t.moveFirst();
    const double b = ValAngka(BacaTeks(t, "Refraksi")) / 60;
    return a - (a - b) * selisih;
}

double Ephemeris::lintang() const {
    const Tempat& t = k_.sesi.tempat;
    const double phi = t.lintangDerajat + t.lintangMenit / 60.0;
    return ValAngka(t.tandaLintang) == 0 ? -phi : phi;
}

double Ephemeris::koreksiBujur() const {
    const Tempat& t = k_.sesi.tempat;
    double lambda = t.bujurDerajat + t.bujurMenit / 60.0;
    if (t.tandaBujur == "BB") lambda = -lambda;
    switch (t.zona) {
        case 7: return (105 - lambda) / 15;
        case 8: return (120 - lambda) / 15;
        case 9: return (135 - lambda) / 15;
        default: break;
    }
    // Any other zone: its own meridian, west when the place lies west.
    const double meridian = t.zona * 15.0;
    return ((ValAngka(t.tandaBujur) == 0 ? -meridian : meridian) - lambda) / 15;
}

void Ephemeris::GhurubER() {
    auto& R = ERHasil;
    const double phi = lintang();
    // The first estimate: the shared sunset of the day of the ijtima', to the whole hour.
    const Nilai matahari(BurujMatahari(ERHariIjtima).value_or(""));
    const SaatMatahari saat = WaktuMaghrib(AmbilTingkat(matahari, MedanDarojah) * 30 + AmbilTingkat(matahari, MedanDaqiqoh), 0,
                                           k_.sesi.tempat);
    R[9] = BulatGenap(12 + saat.terbenam.jam() + saat.terbenam.menit() / 60.0);
    R[10] = R[9] - R[7];
    const size_t i = static_cast<size_t>(std::clamp(ERGeser + static_cast<int>(R[10]), 1, 50));
    pastikanJam(i);
    R[11] = ERSdSyams(i);
    R[12] = 34.5 / 60;
    R[13] = std::sqrt(std::max(k_.sesi.tempat.tinggi, 0.0)) * 1.76 / 60;
    R[14] = -R[11] - R[12] - R[13];
    R[15] = ERDekSyams(i);
    R[16] = acosER(-tanD(phi) * tanD(R[15]) + sinD(R[14]) / cosD(phi) / cosD(R[15]));
    R[17] = ERDaqoiq(i);
    R[18] = koreksiBujur();
    R[19] = 12;
    R[20] = 12 - R[17] + R[16] / 15 + R[18];
    R[21] = R[20] - R[7];
    // The second: the same at the first estimate's hour, interpolated.
    R[22] = BacaJamER(ERSdSyams, R[21]);
    R[23] = -R[22] - R[12] - R[13];
    R[24] = BacaJamER(ERDekSyams, R[21]);
    R[25] = acosER(-tanD(phi) * tanD(R[24]) + sinD(R[23]) / cosD(phi) / cosD(R[24]));
    R[26] = BacaJamER(ERDaqoiq, R[21]);
    R[27] = R[18];
    R[28] = 12;
    R[29] = 12 - R[26] + R[25] / 15 + R[27];
    R[30] = R[29] - R[7];
}

void Ephemeris::HilalER() {
    auto& R = ERHasil;
    const double phi = lintang(), x = R[30];
    R[31] = BacaJamER(ERAdjSyams, x);
    R[32] = BacaJamER(ERAdjQomar, x);
    R[33] = R[31] - R[32] + R[25];
    R[34] = BacaJamER(ERDekQomar, x);
    R[35] = asinER(sinD(phi) * sinD(R[34]) + cosD(phi) * cosD(R[34]) * cosD(R[33]));
    R[36] = BacaJamER(ERHp, x);
    R[37] = cosD(R[35]) * R[36];
    R[38] = BacaJamER(ERSdQomar, x);
    R[39] = R[35] - R[37] + R[38];
    R[40] = RefraksiER(R[35]);
    R[41] = R[40] + R[39] + R[13];
    R[42] = R[41] / 15;
    R[43] = R[42] + R[20];
    R[44] = azimut(R[24], R[25], phi);
    R[45] = azimut(R[34], R[33], phi);
    R[46] = R[45] - R[44];
    R[47] = BacaJamER(ERFib, x);
    R[48] = std::sqrt(R[41] * R[41] + R[46] * R[46]) / 15;
    R[49] = atanD(R[46] / R[41]);
}

void Ephemeris::KesimpulanER(HasilHitung& h, bool kata) {
    const auto& R = ERHasil;
    const Tempat& t = k_.sesi.tempat;
    BahanKesimpulanTahqiqi b;
    const int bulanBaru = bulan_ % 12 + 1;
    const int32_t tahunBaru = bulan_ == 12 ? tahun_ + 1 : tahun_;
    b.judul = "Hisab Awal Bulan " + ClsKesimpulan::NamaBulan(bulanBaru - 1) + " " + std::to_string(tahunBaru) +
              " H. Metode EPHEMERIS Untuk daerah " + t.nama;
    // Local apparent time: the zone's clock less the place's correction, with the equation of
    // time of the hour of the ijtima'; the civil day moves with it across midnight.
    const double wis = R[8] - R[18] + ERDaqoiq(static_cast<size_t>(ERJamTerbaik));
    const int geser = static_cast<int>(std::floor(wis / 24));
    b.hari.ijtima = ClsKesimpulan::GeserHari(ERHariIjtima, geser);
    b.jamIjtima = Waktu::dari(0, 0, static_cast<int64_t>(std::floor((wis - 24.0 * geser) * 3600)));
    // One day on when the ijtima' falls before sunset and the hilal stands at 2 degrees or
    // more, else two.
    const bool terlihat = R[8] < R[20] && R[41] >= 2;
    b.hari.awal = AwalBulanTaqribi(ERHariIjtima, terlihat ? 2.0 : 0.0);
    b.tinggi = R[41];
    const double matahari = ERThulSyams(static_cast<size_t>(ERJamTerbaik));
    b.matahari = DesimalKeNilai(JenisBusur, TandaIkut, ModusBuruj, static_cast<float>(matahari), 1)
                     .value_or(Nilai("00 00 00 00 00 1"));
    b.mukts = R[42];
    b.nur = R[48];
    // The reckoning is made at the place itself: it is its own markaz.
    b.kata = kata;
    b.markaz = {t.nama.c_str(), t.lintangDerajat, t.lintangMenit, static_cast<int>(ValAngka(t.tandaLintang)),
                t.bujurDerajat, t.bujurMenit, static_cast<int>(ValAngka(t.tandaBujur))};
    TulisKesimpulanTahqiqi(k_, b, h.kesimpulan, h.ringkasan);
}

void Ephemeris::IsiTabelER(ClsFlexGrid& g) {
    constexpr int kBarisJam = 4, kBarisHasil = 56;
    g.FlexSetting(kBarisHasil + 50, 12, 1300, 300, 1300, false);
    IsiBingkai(g, k_.koneksi.Names, "ER");
    const int bulanBaru = bulan_ % 12 + 1;
    g.FlexNama("Hisab Awal Bulan " + ClsKesimpulan::NamaBulan(bulanBaru - 1) + " " +
                   std::to_string(bulan_ == 12 ? tahun_ + 1 : tahun_) + " H. Metode Ephemeris, " + k_.sesi.tempat.nama,
               0, 0, 11);
    for (size_t h = 1; h <= 50; ++h) {
        const int b = kBarisJam + static_cast<int>(h) - 1;
        const int jam = static_cast<int>((h - 1) % 24);
        if (jam == 0) {
            const Nilai hari = AlamahTarkh(2, {AmbilTingkat(ERTanggalAwal, MedanTahun), AmbilTingkat(ERTanggalAwal, MedanBulan),
                                               AmbilTingkat(ERTanggalAwal, MedanTanggal) + static_cast<int64_t>((h - 1) / 24),
                                               0, 0, 0, 0, 0, 0},
                                           1);
            g.FlexTeks(std::to_string(AmbilTingkat(hari, MedanTanggal)) + " " +
                           ClsKesimpulan::ManaBln(AmbilTingkat(hari, MedanBulan)) + " " +
                           std::to_string(AmbilTingkat(hari, MedanTahun)),
                       b, 0);
        }
        g.FlexTeks(std::to_string(jam), b, 1);
        g.FlexTeks(TeksSudutER(ERThulSyams(h)), b, 2);
        g.FlexTeks(TeksSudutER(ERDekSyams(h)), b, 3);
        g.FlexTeks(TeksSudutER(ERSdSyams(h)), b, 4);
        g.FlexTeks(TeksSudutER(ERDaqoiq(h)), b, 5);
        g.FlexTeks(TeksSudutER(ERThulQomar(h)), b, 6);
        g.FlexTeks(TeksSudutER(ERArdlQomar(h)), b, 7);
        g.FlexTeks(TeksSudutER(ERDekQomar(h)), b, 8);
        g.FlexTeks(TeksSudutER(ERHp(h)), b, 9);
        g.FlexTeks(TeksSudutER(ERSdQomar(h)), b, 10);
        g.FlexTeks(FormatTetap(ERFib(h), 5), b, 11);
    }
    // The reckoning: one row a result, named as its formula sheet names it.
    Tabel& t = k_.koneksi.TQQRumuz;
    t.moveFirst();
    for (size_t i = 0; i < ERHasil.size(); ++i) {
        const int b = kBarisHasil + static_cast<int>(i);
        g.FlexTeks("[" + std::to_string(i) + "]", b, 0);
        g.FlexNama(BacaTeks(t, "ERNama"), b, 1, 4);
        g.FlexTeks(TeksSudutER(ERHasil[i], i == 41), b, 5);
        g.FlexNama(BacaTeks(t, "ERRumuz"), b, 6, 11);
        t.moveNext();
    }
}

LembarRumus Ephemeris::RumusER() {
    // The sheet's variable lists number the results from 1, as the other precise books' do.
    std::vector<Nilai> nilai{Nilai()};
    for (double x : ERHasil) nilai.push_back(NilaiER(x));
    const AnggotaRumus* a = CariAnggotaRumus(48);
    return a ? BangunRumus(*a, k_.koneksi.TQQRumuz, nilai) : LembarRumus();
}

HasilHitung Ephemeris::HitungIjtimaER(int32_t tahun, int16_t bulan, bool lembar, bool kata) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    HisabER(tahun, bulan, lembar);
    maju.langkah();
    GhurubER();
    maju.langkah();
    HilalER();
    maju.langkah();
    KesimpulanER(h, kata);
    maju.langkah();
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelER(g);
        maju.langkah();
        h.rumus = RumusER();
        h.baris = baris();
    }
    maju.penuh();
    return h;
}

std::vector<BarisTercatat> Ephemeris::baris() const {
    BarisTercatat hasil{"ERHasil", {}};
    for (double x : ERHasil) hasil.sel.push_back(CetakAngka(x));
    std::vector<BarisTercatat> b{hasil};
    const std::pair<const char*, const KolomJam*> kolom[] = {
        {"ERJarak", &ERJarak},       {"ERThulHakiki", &ERThulHakiki}, {"ERThulSyams", &ERThulSyams},
        {"ERArdl", &ERArdl},         {"ERMail", &ERMail},             {"ERAdjSyams", &ERAdjSyams},
        {"ERDekSyams", &ERDekSyams}, {"ERSdSyams", &ERSdSyams},       {"ERDaqoiq", &ERDaqoiq},
        {"ERThulQomar", &ERThulQomar}, {"ERArdlQomar", &ERArdlQomar}, {"ERAdjQomar", &ERAdjQomar},
        {"ERDekQomar", &ERDekQomar}, {"ERHp", &ERHp},                 {"ERSdQomar", &ERSdQomar},
        {"ERSudut", &ERSudut},       {"ERFib", &ERFib}};
    for (const auto& [nama, k] : kolom) {
        BarisTercatat r{nama, {}};
        for (double x : k->semua()) r.sel.push_back(CetakAngka(x));
        b.push_back(std::move(r));
    }
    return b;
}

}  // namespace falak
