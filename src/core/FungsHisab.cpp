#include "core/FungsHisab.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace falak {

namespace {

constexpr double kRadian = 0.017453292519943278;
constexpr double kDerajat = 57.29577951308238;

int balik(int tanda) { return tanda == 1 ? 0 : 1; }

// Arc fields are positions 1 to 5, alamah fields positions 1 to 9.
int jumlahMedan(int jenis) { return jenis == 3 ? 5 : 9; }

MedanAlamah medanDari(const Nilai& v, int n) {
    MedanAlamah m{};
    for (int i = 0; i < n; ++i) m[static_cast<size_t>(i)] = v.posisi(i + 1);
    return m;
}

Nilai selesaikan(int jenis, int modus, const MedanAlamah& r, int tanda) {
    if (jenis == 3) return DlorbuSittin(r[0], r[1], r[2], r[3], r[4], tanda, modus);
    return AlamahTarkh(jenis, r, tanda);
}

// A float32 integer as DlorbuSittin reads it back from its printed text: exact below 10^7,
// through the 7-digit printing above.
int64_t lewatTeks(float x) {
    if (std::fabs(x) < 1e7f) return static_cast<int64_t>(x);
    return BulatGenap32(ValAngka(CetakAngka32(x))).value_or(0);
}

// A signed number read back from its printed magnitude: "-" for a minus flag.
double angkaBertanda(const Nilai& v, bool minus) {
    const std::string teks = (minus ? "-" : "") + CetakAngka(NilaiDesimal(3, v));
    return ValAngka(teks);
}

// The flag of a trigonometric result: forced plus, else by the sign of y.
Nilai denganTanda(const Nilai& v, bool paksaPlus, double y) {
    return GantiTanda(v, paksaPlus ? "1" : (y < 0 ? "0" : "1"));
}

}  // namespace

int32_t AmbilTingkat(const Nilai& v, int indeks) {
    if (indeks >= 1 && indeks <= 5) return v.posisi(indeks);
    if (indeks >= 6 && indeks <= 14) return v.posisi(indeks - 5);
    return 0;
}

Nilai GantiTanda(const Nilai& v, std::string_view tanda) {
    if (!tanda.empty() && tanda.back() >= '0' && tanda.back() <= '9')
        if (auto w = v.denganTanda(tanda.back() - '0')) return std::move(*w);
    std::string teks = v.teks();
    if (!teks.empty()) teks.pop_back();
    if (!tanda.empty()) teks.push_back(tanda.back());
    return Nilai(teks);
}

Nilai TandaBusur(const Nilai& v) { return GantiTanda(v, AmbilTingkat(v, 2) > 180 ? "0" : "1"); }

Nilai NolkanBuruj(const Nilai& v) {
    if (auto w = v.tanpaBuruj()) return std::move(*w);
    const std::string teks = v.teks();
    const size_t blank = teks.find(' ');
    return Nilai("00" + (blank == std::string::npos ? std::string() : teks.substr(blank)));
}

double NilaiDesimal(int jenis, const Nilai& v) {
    double total;
    if (jenis == 3) {
        total = v.posisi(1) * 30.0;
        total += v.posisi(2);
        total += v.posisi(3) / 60.0;
        total += v.posisi(4) / 3600.0;
        total += v.posisi(5) / 216000.0;
    } else {
        total = v.posisi(1) * 30.0;
        total += v.posisi(5) / 7.0;
        total += v.posisi(6) / 24.0;
        total += v.posisi(7) / 60.0;
        total += v.posisi(8) / 3600.0;
        total += v.posisi(9) / 216000.0;
    }
    return std::fabs(total);
}

int TandaTerbesar(int jenis, const Nilai& a, const Nilai& b) {
    return NilaiDesimal(jenis, b) < NilaiDesimal(jenis, a) ? a.tanda() : b.tanda();
}

Hasil DesimalKeNilai(int /*jenis*/, int tanda, int modus, float x, int tandaNilai) {
    // A whole number already: rounding it is only the test that it fits 32 bits.
    const double lantai = std::floor(static_cast<double>(x));
    if (!(lantai >= std::numeric_limits<int32_t>::min() && lantai <= std::numeric_limits<int32_t>::max()))
        return std::nullopt;
    const auto utuh = static_cast<int32_t>(lantai);
    const float b = static_cast<float>(utuh / 30);
    const float r = static_cast<float>(static_cast<double>(x) - static_cast<double>(b) * 30.0);
    const float d = std::floor(r);
    const float q = static_cast<float>((static_cast<double>(r) - d) * 60.0);
    const float m = std::floor(q);
    const float t = static_cast<float>((static_cast<double>(q) - m) * 60.0);
    const float s = std::floor(t);
    const float u = static_cast<float>((static_cast<double>(t) - s) * 60.0);
    const float h = static_cast<float>(BulatGenap(u));
    return DlorbuSittin(lewatTeks(b), lewatTeks(d), lewatTeks(m), lewatTeks(s), lewatTeks(h),
                        tanda == 2 ? 1 : tandaNilai, modus);
}

Hasil DesimalKeBusur(double x, bool lingkaran) {
    const double mutlak = std::fabs(x);
    if (mutlak > std::numeric_limits<float>::max()) return std::nullopt;
    const int tanda = lingkaran ? (x < 180 ? 1 : 0) : (x < 0 ? 0 : 1);
    return DesimalKeNilai(3, 3, 2, static_cast<float>(mutlak), tanda);
}

namespace {

// The common frame of addition and subtraction: the accumulator takes each operand in turn.
// Each operand's magnitude is worked out once and handed to the step with the accumulator's.
template <typename Langkah>
Nilai jumlahkan(int jenis, int tanda, int modus, const std::array<const Nilai*, 6>& v, Langkah langkah) {
    const bool urutTetap = tanda == 4;
    if (urutTetap) tanda = 3;
    const int n = jumlahMedan(jenis);
    Nilai acc = *v[0];
    for (size_t k = 1; k < v.size() && !v[k]->kosong(); ++k) {
        const Nilai& op = *v[k];
        const double besarAcc = NilaiDesimal(jenis, acc);
        const double besarOp = NilaiDesimal(jenis, op);
        const bool lebih = jenis == 3 ? besarOp < besarAcc : true;
        MedanAlamah r{};
        int tandaHasil = langkah(acc, op, besarAcc, besarOp, lebih, urutTetap, tanda, n, r);
        if (tanda == 2) tandaHasil = 1;
        acc = selesaikan(jenis, modus, r, tandaHasil);
    }
    return acc;
}

void jumlahMedanNilai(const Nilai& a, const Nilai& b, int n, int arah, MedanAlamah& r) {
    for (int i = 0; i < n; ++i) r[static_cast<size_t>(i)] = int64_t{a.posisi(i + 1)} + arah * int64_t{b.posisi(i + 1)};
}

}  // namespace

Nilai TambahNilai(int jenis, int tanda, int modus, const Nilai& v1, const Nilai& v2, const Nilai& v3,
                  const Nilai& v4, const Nilai& v5, const Nilai& v6) {
    return jumlahkan(jenis, tanda, modus, {&v1, &v2, &v3, &v4, &v5, &v6},
                     [](const Nilai& acc, const Nilai& op, double besarAcc, double besarOp, bool lebih,
                        bool urutTetap, int tanda, int n, MedanAlamah& r) {
                         const bool accNol = besarAcc == 0;
                         // The sign of the greater magnitude, as TandaTerbesar gives it.
                         const int s = besarOp < besarAcc ? acc.tanda() : op.tanda();
                         if (acc.tanda() != op.tanda() && tanda != 1) {
                             if (accNol) r = medanDari(op, n);
                             else if (!lebih && !urutTetap) jumlahMedanNilai(op, acc, n, -1, r);
                             else jumlahMedanNilai(acc, op, n, -1, r);
                         } else {
                             jumlahMedanNilai(acc, op, n, 1, r);
                         }
                         return s;
                     });
}

Nilai KurangNilai(int jenis, int tanda, int modus, const Nilai& v1, const Nilai& v2, const Nilai& v3,
                  const Nilai& v4, const Nilai& v5, const Nilai& v6) {
    return jumlahkan(jenis, tanda, modus, {&v1, &v2, &v3, &v4, &v5, &v6},
                     [jenis](const Nilai& acc, const Nilai& op, double besarAcc, double /*besarOp*/, bool lebih,
                             bool urutTetap, int tanda, int n, MedanAlamah& r) {
                         const bool accNol = besarAcc == 0;
                         if (acc.tanda() != op.tanda() && tanda != 1) {
                             if (jenis == 3 && accNol) r = medanDari(op, n);
                             else jumlahMedanNilai(acc, op, n, 1, r);
                             return acc.tanda();
                         }
                         if (!lebih && !urutTetap) {
                             jumlahMedanNilai(op, acc, n, -1, r);
                             return balik(acc.tanda());
                         }
                         if (accNol) r = medanDari(op, n);
                         else jumlahMedanNilai(acc, op, n, -1, r);
                         return acc.tanda();
                     });
}

Hasil KaliNilai(int jenis, int tanda, int modus, const Nilai& a, const Nilai& b) {
    const int s = a.tanda() == b.tanda() ? 1 : 0;
    const double hasil = std::fabs(NilaiDesimal(jenis, a) * NilaiDesimal(jenis, b));
    if (hasil > std::numeric_limits<float>::max()) return std::nullopt;
    return DesimalKeNilai(jenis, tanda, modus, static_cast<float>(hasil), s);
}

Hasil BagiNilai(int jenis, int tanda, int modus, const Nilai& a, const Nilai& b) {
    const double pembagi = NilaiDesimal(jenis, b);
    if (pembagi == 0) return std::nullopt;
    const double hasil = std::fabs(NilaiDesimal(jenis, a) / pembagi);
    if (hasil > std::numeric_limits<float>::max()) return std::nullopt;
    return DesimalKeNilai(jenis, tanda, modus, static_cast<float>(hasil), a.tanda());
}

double FungsiTrig(int fungsi, double derajat) {
    const double rad = derajat * kRadian;
    switch (fungsi) {
        case 1: return std::sin(rad);
        case 2: return std::cos(rad);
        case 3: return std::tan(rad);
        default: return 0;
    }
}

std::optional<double> FungsiBusur(int fungsi, double x) {
    switch (fungsi) {
        case 1:
        case 2: {
            const double kuadrat = 1 - x * x;
            if (kuadrat <= 0 || std::isnan(kuadrat)) return std::nullopt;
            const double akar = std::sqrt(kuadrat);
            if (fungsi == 1) return std::atan(x / akar) * kDerajat;
            return (std::atan(-x / akar) + 2 * std::atan(1.0)) * kDerajat;
        }
        case 3:
            return std::atan(x) * kDerajat;
        default:
            return 0.0;
    }
}

std::optional<double> OperasiAngka(int operasi, double a, double b) {
    double r;
    switch (operasi) {
        case 1: r = a + b; break;
        case 2: r = a - b; break;
        case 3: r = a * b; break;
        case 4:
            if (b == 0) return std::nullopt;
            r = a / b;
            break;
        default: return a;
    }
    if (!std::isfinite(r)) return std::nullopt;
    return r;
}

Hasil TrigNilai(int fungsi, int modus, const Nilai& v, bool angka) {
    const bool minus = v.tanda() == 0 && (modus == 1 || (modus == 2 && AmbilTingkat(v, 1) < 6));
    const float sudut = static_cast<float>(angkaBertanda(v, minus));
    const double y = FungsiTrig(fungsi, sudut);
    const double mutlak = std::fabs(y);
    if (mutlak > std::numeric_limits<float>::max()) return std::nullopt;
    if (angka) return Nilai(CetakAngka32(static_cast<float>(y)));
    const Hasil nilai = DesimalKeNilai(3, fungsi, modus, static_cast<float>(mutlak), 1);
    if (!nilai) return std::nullopt;
    return denganTanda(*nilai, fungsi == 2, y);
}

Hasil HitungDeret(int tanda, int modus, int fungsiBusur, const Nilai& v1, int op1, const Nilai& v2, int op2,
                  const Nilai& v3, int op3, const Nilai& v4, int op4, const Nilai& v5) {
    const std::array<const Nilai*, 5> nilai = {&v1, &v2, &v3, &v4, &v5};
    const std::array<int, 4> operasi = {op1, op2, op3, op4};
    std::optional<double> hasil = angkaBertanda(v1, v1.tanda() == 0);
    for (size_t i = 0; i < operasi.size() && hasil; ++i)
        hasil = OperasiAngka(operasi[i], *hasil, angkaBertanda(*nilai[i + 1], nilai[i + 1]->tanda() == 0));
    if (!hasil) return std::nullopt;
    const auto y = FungsiBusur(fungsiBusur, *hasil);
    if (!y) return std::nullopt;
    const Hasil v = DesimalKeNilai(3, tanda, modus, static_cast<float>(std::fabs(*y)), 1);
    if (!v) return std::nullopt;
    return denganTanda(*v, tanda == 2, *y);
}

std::string TandaKurung(int tanda, std::string_view teks) {
    std::string out = tanda == 1 ? "(+)" : "(-)";
    if (!teks.empty()) {
        out.push_back(' ');
        out.append(teks);
    }
    return out;
}

int64_t KoreksiTanggal(int64_t hari, int64_t n, int /*tanda*/, int bertanggal) {
    static constexpr int64_t kSatu[4] = {0, 7, 15, 24};
    static constexpr int64_t kLain[4] = {0, 9, 17, 24};
    const int64_t sisa = n % 4;
    const int64_t k = sisa < 0 ? 0 : (bertanggal == 1 ? kSatu[sisa] : kLain[sisa]);
    return hari - (n / 4) * 32 - k;
}

void HitungMajmuah(std::span<Nilai> hasil, std::span<const Nilai> mabda, std::span<const Nilai> tambah, int n,
                   int bertanggal, int modus) {
    const size_t ukuran = std::min({hasil.size(), mabda.size(), tambah.size()});
    for (size_t i = 0; i < ukuran; ++i) {
        const bool alamah = i == 0;
        const int medan = alamah ? 9 : 5;
        MedanAlamah dasar = medanDari(mabda[i], medan);
        if (alamah && bertanggal != 0 && AmbilTingkat(tambah[0], 6) != 0)
            dasar[2] = KoreksiTanggal(dasar[2], n, tambah[0].tanda(), bertanggal);
        const int arah = tambah[i].tanda() == 1 ? 1 : -1;
        MedanAlamah r{};
        for (int f = 0; f < medan; ++f)
            r[static_cast<size_t>(f)] = dasar[static_cast<size_t>(f)] + arah * int64_t{tambah[i].posisi(f + 1)} * n;
        hasil[i] = alamah ? AlamahTarkh(bertanggal == 0 ? 0 : 1, r, 1) : DlorbuSittin(r[0], r[1], r[2], r[3], r[4], 1, modus);
    }
}

bool HitungMabsuthah(std::span<Nilai> hasil, int n, bool bertanggal, bool detik, bool bulat, bool lima) {
    auto tulis = [&](size_t slot, const Nilai& v) {
        if (slot < hasil.size()) hasil[slot] = v;
    };
    if (n == 0) {
        tulis(0, AlamahTarkh(1, MedanAlamah{}, 1));
        for (size_t i = 1; i < 5; ++i) tulis(i, DlorbuSittin(0, 0, 0, 0, 0, 1, 1));
        return true;
    }
    auto a = [&](int c) -> int64_t {
        const double x = static_cast<double>(n) * c / 60;
        return static_cast<int64_t>(bulat ? BulatGenap(x + 0.1) : std::floor(x));
    };
    auto w = [&](int c) -> int64_t { return detik ? 0 : a(c); };
    auto z = [&](int c) -> int64_t { return detik ? int64_t{n} * c : 0; };
    const int64_t N = n;

    if (bertanggal) {
        tulis(0, AlamahTarkh(1, MedanAlamah{0, N * 11, (N - 1) * 19 + 24 - (N - 1) / 4, N * 4, N * 4, N * 8,
                                            N * 48 + w(30), z(30), 0},
                             1));
    } else {
        tulis(0, AlamahTarkh(0, MedanAlamah{0, 0, 0, 0, N * 4, N * 8, N * 48 + w(30), z(30), 0}, 1));
    }
    tulis(1, DlorbuSittin(0, N * 8, N * 2 + w(48), z(48), 0, 1, 1));
    tulis(2, DlorbuSittin(N * 11, N * 19, N * 16 + w(48), z(48), 0, 1, 1));
    const Nilai khossoh = DlorbuSittin(N * 10, N * 9, N * 47 + w(54), z(54), 0, 1, 1);
    const Nilai markaz = DlorbuSittin(N * 11, N * 19, N * 16, 0, 0, 1, 1);
    if (!lima) {
        tulis(3, khossoh);
        tulis(4, markaz);
        return true;
    }
    tulis(2, khossoh);
    tulis(3, markaz);
    static constexpr int kAuj[10] = {0, 2, 2, 3, 4, 5, 6, 6, 7, 8};
    if (n < 1 || n > 10) return false;
    tulis(4, DlorbuSittin(0, 0, kAuj[n - 1], 0, 0, 1, 1));
    return true;
}

int TandaKuadran(int jenis, const Nilai& v, int kodeLembar) {
    int a = AmbilTingkat(v, 1) * 30 + AmbilTingkat(v, 2);
    if (a > 360) a -= 360;
    const bool kuadran13 = (a < 270 && a > 180) || a < 90;
    switch (jenis) {
        case 8: case 10: case 12: case 14: case 16:
            return a < 180 ? 0 : 1;
        case 9: case 11:
            return a < 180 ? 1 : 0;
        case 13:
            switch (kodeLembar) {
                case 15: case 16: case 17: case 36: case 37: case 53:
                    return kuadran13 ? 1 : 0;
                default:
                    return a < 180 ? 1 : 0;
            }
        case 15:
            return kuadran13 ? 0 : 1;
        case 19:
            return (a > 270 || a < 90) ? 0 : 1;
        case 20:
            return ((a < 226 && a > 134) || a < 45) ? 1 : 0;
        default:
            return 0;
    }
}

namespace {
constexpr int kSelisihBuruj[12] = {9, 10, 8, 10, 9, 9, 7, 7, 7, 6, 7, 7};

std::string pasangan(int a, int b) { return " " + std::to_string(a) + " " + std::to_string(b); }
}  // namespace

std::optional<std::string> BurujMatahari(const Nilai& tanggal) {
    const int m = AmbilTingkat(tanggal, 7);
    const int d = AmbilTingkat(tanggal, 8);
    if (m < 1 || m > 12) return std::nullopt;
    int b = m - 4;
    if (b < 1) b += 12;
    int c = d + kSelisihBuruj[m - 1];
    if (c > 30) {
        c -= 30;
        b += 1;
        if (b > 12) b %= 12;
    }
    return pasangan(b, c);
}

std::optional<std::string> TanggalDariBuruj(const Nilai& buruj) {
    const int b = AmbilTingkat(buruj, 7);
    const int c = AmbilTingkat(buruj, 8);
    int m = b + 4;
    if (m > 12) m -= 12;
    if (m < 1 || m > 12) return std::nullopt;
    int d = c - kSelisihBuruj[m - 1];
    if (d < 1) {
        m = m == 1 ? 12 : m - 1;
        d = c - kSelisihBuruj[m - 1] + Umurbulan(AmbilTingkat(buruj, 6), m);
    }
    return pasangan(m, d);
}

}  // namespace falak
