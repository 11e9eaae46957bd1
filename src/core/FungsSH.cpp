#include "core/FungsSH.h"

#include <cmath>
#include <cstdlib>

#include "core/Angka.h"

namespace falak {

namespace {

// Integer division of whole numbers, truncating toward zero.
int64_t bagiBulat(int64_t a, int64_t b) { return a / b; }

}  // namespace

std::optional<float> GeserSH(int jenis, float pokok, float langkah, int32_t kali, std::string& hari) {
    double nilai = static_cast<double>(langkah) * kali + static_cast<double>(pokok);
    if (jenis == -1) {
        int64_t h = 5 + static_cast<int64_t>(langkah < 0 ? -5 : 5) * kali;
        if (nilai > 24) {
            const auto jam = BulatGenap32(nilai);
            if (!jam) return std::nullopt;
            const int64_t hariLebih = bagiBulat(*jam, 24);
            h += hariLebih;
            nilai -= 24.0 * static_cast<double>(hariLebih);
        }
        if (h > 7) h -= 7 * bagiBulat(h, 7);
        if (h < 0) h += 7 * std::llabs(bagiBulat(h, 7) - 1);
        hari = std::to_string(h);
    } else if (jenis == 0) {
        if (nilai > 360 || nilai < 0) {
            const auto bulat = BulatGenap32(nilai);
            if (!bulat) return std::nullopt;
            const int64_t putaran = bagiBulat(*bulat, 360);
            nilai += nilai > 360 ? -360.0 * static_cast<double>(putaran) : 360.0 * static_cast<double>(std::llabs(putaran));
        }
    }
    return static_cast<float>(nilai);
}

float JumlahSH(int jenis, float h1, float h2, float h3, float a1, float a2, float a3, std::string& hari) {
    double jumlah = static_cast<double>(a1) + a2 + a3;
    if (jenis == -1) {
        int64_t h = static_cast<int64_t>(BulatGenap(static_cast<double>(h1) + h2 + h3));
        if (jumlah > 24) {
            const double hariLebih = std::floor(jumlah / 24);
            h += static_cast<int64_t>(hariLebih);
            jumlah -= 24 * hariLebih;
        }
        if (h > 7) h %= 7;
        hari = std::to_string(h);
    } else if (jumlah > 360) {
        jumlah -= 360 * std::floor(jumlah / 360);
    }
    return static_cast<float>(jumlah);
}

float HitungSH(int jenis, int operasi, float d1, float a1, float d2, float a2, std::string& teks) {
    const double satuan = jenis == -1 ? 24 : 30;
    const double x1 = static_cast<double>(d1) * satuan + a1;
    const double x2 = static_cast<double>(d2) * satuan + a2;
    double r;
    if (operasi == 1) r = x1 + x2;
    else if (operasi == 3) r = x1 * x2;
    else r = std::fabs(x1 - x2);
    double hitungan = std::trunc(r / satuan);
    const double sisa = r - satuan * hitungan;
    const double batas = jenis == -1 ? 7 : 12;
    if (hitungan > batas) hitungan = std::trunc(hitungan / batas);
    teks = CetakAngka(hitungan);
    return static_cast<float>(sisa);
}

std::optional<int32_t> KunciSH(double x) { return BulatGenap32(x); }

std::optional<int32_t> KunciLimaSH(double x) {
    const double lantai = std::floor(x);
    if (!BulatGenap32(lantai)) return std::nullopt;
    const int64_t m = 5 * bagiBulat(static_cast<int64_t>(lantai), 5);
    const auto a = KunciSH(x - static_cast<double>(m));
    const auto b = KunciSH(static_cast<double>(m) + 5 - x);
    if (!a || !b || !BulatGenap32(static_cast<double>(m) + 5)) return std::nullopt;
    return static_cast<int32_t>(*a < *b ? m : m + 5);
}

float TigaDesimal(float x) { return static_cast<float>(ValAngka(FormatTetap(x, 3))); }

}  // namespace falak
