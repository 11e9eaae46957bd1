#include "calendar/ModHisabKalender.h"

#include <cmath>

#include "conclusions/Kesimpulan.h"
#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "core/Kalender.h"
#include "core/Tabel.h"

namespace falak {

namespace {

// Mean motions per lunation and their places at lunation 0, in degrees: the moon's anomaly,
// the sun's anomaly, the sun's place; and the lunation less four weeks, in hours.
constexpr double kGerakKhossoh = 25.8165277777778, kAwalKhossoh = 160.418333333807;
constexpr double kGerakMarkaz = 29.1055555555556, kAwalMarkaz = 44.7166666662046;
constexpr double kGerakWasath = 29.1066666666667, kAwalWasath = 128.059999999416;
constexpr double kJamSyahr = 36.7340277777778;
constexpr double kJamPekan = 168;

constexpr std::array<MarkazKalender, 7> kMarkaz = {{
    {2, 106.866666666667, 17.4090277774802},
    {6, 110.4, 18.228472221883},
    {11, 112.766666666667, 18.3923611108136},
    {19, 110.666666666667, 18.2416944441469},
    {23, 110.4, 18.2591666663691},
    {27, 113.25, 18.4490277774802},
    {34, 39.95, 13.5318055552163},
}};

std::string bacaTabelBuruj(const Tabel& t, std::array<std::array<double, 30>, 11>& isi) {
    const int kb = t.indeksKolom("Buruj"), kd = t.indeksKolom("Darojah"), kt = t.indeksKolom("Taadil");
    if (!t.terbuka() || kb < 0 || kd < 0 || kt < 0) return t.nama() + ": tabel atau kolomnya tidak ada";
    std::array<std::array<bool, 30>, 11> ada{};
    for (size_t r = 0; r < t.jumlahBaris(); ++r) {
        const int b = static_cast<int>(ValAngka(t.sel(r, kb))), d = static_cast<int>(ValAngka(t.sel(r, kd)));
        if (b < 1 || b > 11 || d < 1 || d > 30) return t.nama() + ": baris " + std::to_string(r + 2) + " di luar tabel";
        isi[b - 1][d - 1] = ValAngka(t.sel(r, kt));
        ada[b - 1][d - 1] = true;
    }
    for (const auto& b : ada)
        for (bool a : b)
            if (!a) return t.nama() + ": tabel tidak lengkap";
    return {};
}

}  // namespace

const std::array<int, 14> kKodeKalender = {2, 6, 11, 34, 19, 23, 27, 31, 15, 36, 39, 41, 45, 48};

const MarkazKalender* CariMarkazKalender(int kode) {
    for (const MarkazKalender& m : kMarkaz)
        if (m.kode == kode) return &m;
    return nullptr;
}

double SisaBawah(double x, double pembagi) {
    const double r = x - pembagi * std::floor(x / pembagi);
    return r < 0 ? r + pembagi : r;
}

std::string TaadilKalender::baca(const Tabel& t1, const Tabel& t2, const Tabel& t3) {
    if (std::string e = bacaTabelBuruj(t1, pertama); !e.empty()) return e;
    if (std::string e = bacaTabelBuruj(t2, kedua); !e.empty()) return e;
    const int ki = t3.indeksKolom("Indeks"), kt = t3.indeksKolom("Taadil");
    if (!t3.terbuka() || ki < 0 || kt < 0) return t3.nama() + ": tabel atau kolomnya tidak ada";
    std::array<bool, 72> ada{};
    for (size_t r = 0; r < t3.jumlahBaris(); ++r) {
        const int i = static_cast<int>(ValAngka(t3.sel(r, ki)));
        if (i < 1 || i > 72) return t3.nama() + ": baris " + std::to_string(r + 2) + " di luar tabel";
        ketiga[i - 1] = ValAngka(t3.sel(r, kt));
        ada[i - 1] = true;
    }
    for (bool a : ada)
        if (!a) return t3.nama() + ": tabel tidak lengkap";
    return {};
}

int TaadilKalender::selBuruj(double x) {
    int buruj = static_cast<int>(std::floor(x / 30));
    int derajat = static_cast<int>(BulatGenap(x - 30.0 * buruj));
    if (derajat == 0) {
        --buruj;
        derajat = 30;
    }
    if (buruj < 0) buruj += 12;
    if (buruj < 1 || buruj > 11) return -1;
    return 30 * (buruj - 1) + derajat - 1;
}

int TaadilKalender::selKetiga(double x) {
    int i = static_cast<int>(BulatGenap(x / 5)) + 1;
    while (i > 72) i -= 72;
    return i < 1 ? 0 : i - 1;
}

double TaadilKalender::bacaBuruj(const std::array<std::array<double, 30>, 11>& tabel, double x) {
    const int sel = selBuruj(x);
    return sel < 0 ? 0 : tabel[sel / 30][sel % 30];
}

double TaadilKalender::bacaKetiga(double x) const { return ketiga[selKetiga(x)]; }

IjtimaKalender HisabIjtimaKalender(const TaadilKalender& taadil, const MarkazKalender& markaz, double bujurTempat,
                                   int32_t tahun, int bulan) {
    IjtimaKalender r;
    r.tahun = tahun + static_cast<int32_t>(std::floor((bulan - 1) / 12.0));
    r.bulan = static_cast<int>(SisaBawah(bulan - 1, 12)) + 1;
    const double t0 = SisaBawah((bujurTempat - markaz.bujur) / 15 + markaz.jamTambahan, kJamPekan);
    const double n = static_cast<double>(tahun) * 12 + bulan;
    const double a = SisaBawah(n * kGerakKhossoh + kAwalKhossoh, 360);
    const double b = SisaBawah(n * kGerakMarkaz + kAwalMarkaz, 360);
    const double c = SisaBawah(n * kGerakWasath + kAwalWasath, 360);
    const double t = SisaBawah(n * kJamSyahr + t0, kJamPekan);
    const double p = TaadilKalender::bacaBuruj(taadil.pertama, a);
    const double q = TaadilKalender::bacaBuruj(taadil.kedua, b);
    const double s = p + q;
    const double d = SisaBawah(c - (s * 5 / 60 + q), 360);
    const double g = taadil.bacaKetiga(d) / 60;
    const double k = SisaBawah((s - g) * n, kJamPekan);
    r.jam = SisaBawah(t - k, kJamPekan);
    r.tinggi = (24 - SisaBawah(r.jam, 24)) * 0.5;
    r.hari = static_cast<int>(std::floor(r.jam / 24));
    return r;
}

std::optional<int64_t> AwalBulanKalender(const TaadilKalender& taadil, const MarkazKalender& markaz,
                                         double bujurTempat, int32_t tahun, int bulan) {
    const IjtimaKalender ij = HisabIjtimaKalender(taadil, markaz, bujurTempat, tahun, bulan);
    const auto tanggal = ClsKesimpulan::CariTHM(ij.tahun, ij.bulan, ij.hari);
    if (!tanggal || tanggal->kosongTeks()) return std::nullopt;
    const int64_t hari = NomorHari(AmbilTingkat(*tanggal, 6), AmbilTingkat(*tanggal, 7), AmbilTingkat(*tanggal, 8));
    return hari + (ij.tinggi < 2.0 ? 2 : 1);
}

}  // namespace falak
