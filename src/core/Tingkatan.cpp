#include "core/Tingkatan.h"

#include <algorithm>
#include <cstdlib>

#include "core/Angka.h"

namespace falak {

namespace {

// Borrow for a negative field from the next one up; the divisor is never 0 here.
int64_t pinjam(int64_t field, int64_t basis) {
    const int64_t q = std::llabs(field / basis);
    return field % basis != 0 ? q + 1 : q;
}

void pinjamKe(int64_t& bawah, int64_t& atas, int64_t basis) {
    if (bawah < 0) {
        const int64_t p = pinjam(bawah, basis);
        atas -= p;
        bawah += p * basis;
    }
}

void bawaKe(int64_t& bawah, int64_t& atas, int64_t basis) {
    if (bawah >= basis) {
        atas += bawah / basis;
        bawah %= basis;
    }
}

int balik(int tanda) { return tanda == 1 ? 0 : 1; }

bool bulatKeInt(std::string_view teks, int64_t& out) {
    // A table cell is nearly always a short run of digits, which reads as itself.
    if (!teks.empty() && teks.size() <= 9 &&
        std::all_of(teks.begin(), teks.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        out = 0;
        for (char c : teks) out = out * 10 + (c - '0');
        return true;
    }
    const auto v = BulatGenap32(ValAngka(teks));
    if (!v) return false;
    out = *v;
    return true;
}

// Day to month in modes 1 and 2 (steps 4 and 9 of the finishing).
void hariKeBulan(int modus, int64_t& tahun, int64_t& bulan, int64_t& hari) {
    if (modus == 1) {
        if (hari > 30) {
            bulan += hari / 30;
            hari %= 30;
        }
    } else if (modus == 2) {
        const int64_t umur = Umurbulan(static_cast<int32_t>(tahun), static_cast<int32_t>(bulan));
        if (hari > umur) {
            hari -= umur;
            bulan += 1;
        }
    }
}

}  // namespace

int16_t Umurbulan(int32_t tahun, int32_t bulan) {
    if (bulan > 12) bulan -= 12;
    else if (bulan < 0) bulan += 12;
    switch (bulan) {
        case 0: case 1: case 3: case 5: case 7: case 8: case 10: case 12:
            return 31;
        case 4: case 6: case 9: case 11:
            return 30;
        case 2: {
            const bool kabisat = (tahun % 4 == 0 && tahun % 100 != 0) || tahun % 400 == 0;
            return kabisat ? 29 : 28;
        }
        default:
            return 0;
    }
}

std::optional<int32_t> Pengurang(int64_t a, int64_t b) {
    if (b == 0) return std::nullopt;
    return static_cast<int32_t>(pinjam(a, b));
}

std::optional<int32_t> Pengurang(std::string_view a, std::string_view b) {
    int64_t x = 0, y = 0;
    if (!bulatKeInt(a, x) || !bulatKeInt(b, y)) return std::nullopt;
    return Pengurang(x, y);
}

Nilai AlamahTarkh(int modus, MedanAlamah m, int tanda) {
    auto& [tahun, bulan, hari, pasaran, minggu, jam, menit, detik, tsalitsah] = m;
    const bool berhari = modus == 1 || modus == 2;

    pinjamKe(tsalitsah, detik, 60);
    pinjamKe(detik, menit, 60);
    pinjamKe(menit, jam, 60);
    if (jam < 0) {
        const int64_t p = pinjam(jam, 24);
        pasaran -= p;
        minggu -= p;
        hari -= p;
        jam += p * 24;
    }
    if (pasaran < 0) pasaran += pinjam(pasaran, 5) * 5;
    if (minggu < 0) minggu += pinjam(minggu, 7) * 7;

    if (berhari) hariKeBulan(modus, tahun, bulan, hari);
    if (modus == 1) {
        if (hari <= 0) {
            bulan -= 1;
            hari += 30;
        }
        if (bulan < 0) {
            tahun -= 1;
            bulan += 12;
        }
    } else if (modus == 2) {
        if (hari <= 0) {
            bulan -= 1;
            hari += Umurbulan(static_cast<int32_t>(tahun), static_cast<int32_t>(bulan));
        }
        if (bulan <= 0) {
            tahun -= 1;
            bulan += 12;
        }
    }

    bawaKe(tsalitsah, detik, 60);
    bawaKe(detik, menit, 60);
    bawaKe(menit, jam, 60);
    if (jam >= 24) {
        const int64_t h = jam / 24;
        pasaran += h;
        minggu += h;
        hari += h;
        jam %= 24;
    }
    if (pasaran >= 5) pasaran %= 5;
    if (minggu >= 7) minggu %= 7;

    if (berhari) hariKeBulan(modus, tahun, bulan, hari);
    if (bulan > 12) {
        tahun += bulan / 12;
        bulan %= 12;
    }
    if (modus == 0) tahun = bulan = hari = 0;

    for (auto& f : m) f = std::llabs(f);
    return Nilai::alamah(m, tanda);
}

std::optional<Nilai> AlamahTarkh(int modus, const std::array<std::string_view, 9>& medan, int tanda) {
    MedanAlamah m{};
    for (size_t i = 0; i < medan.size(); ++i)
        if (!bulatKeInt(medan[i], m[i])) return std::nullopt;
    return AlamahTarkh(modus, m, tanda);
}

Nilai DlorbuSittin(int64_t buruj, int64_t darojah, int64_t daqiqoh, int64_t tsaniyah, int64_t tsalitsah,
                   int tanda, int modus) {
    const bool utuh = (buruj == 12 || darojah == 360) && daqiqoh == 0 && tsaniyah == 0 && tsalitsah == 0;

    pinjamKe(tsalitsah, tsaniyah, 60);
    pinjamKe(tsaniyah, daqiqoh, 60);
    pinjamKe(daqiqoh, darojah, 60);
    if (modus == 1) {
        if (darojah < 0) {
            const int64_t p = pinjam(darojah, 30);
            buruj -= p;
            darojah += p * 30;
        }
        if (buruj < 0) {
            buruj += pinjam(buruj, 12) * 12;
            tanda = balik(tanda);
        }
    } else {
        darojah += buruj * 30;
        buruj = 0;
        if (modus == 2 && darojah < 0) {
            darojah += 360;
            tanda = balik(tanda);
        }
    }

    bawaKe(tsalitsah, tsaniyah, 60);
    bawaKe(tsaniyah, daqiqoh, 60);
    bawaKe(daqiqoh, darojah, 60);
    if (modus == 1) {
        bawaKe(darojah, buruj, 30);
        if (buruj > 12 || (buruj >= 12 && !utuh)) {
            buruj %= 12;
            tanda = tanda == 1 ? 1 : 0;
        }
    } else if (modus == 2) {
        if (darojah > 360 || (darojah >= 360 && !utuh)) darojah %= 360;
    }

    return Nilai::busur(std::llabs(buruj), std::llabs(darojah), std::llabs(daqiqoh), std::llabs(tsaniyah),
                        std::llabs(tsalitsah), tanda, modus != 1);
}

std::optional<Nilai> DlorbuSittin(std::string_view buruj, std::string_view darojah, std::string_view daqiqoh,
                                  std::string_view tsaniyah, std::string_view tsalitsah, int tanda, int modus) {
    int64_t f[5];
    const std::string_view teks[5] = {buruj, darojah, daqiqoh, tsaniyah, tsalitsah};
    for (int i = 0; i < 5; ++i)
        if (!bulatKeInt(teks[i], f[i])) return std::nullopt;
    return DlorbuSittin(f[0], f[1], f[2], f[3], f[4], tanda, modus);
}

Nilai CAlamahToUmum(const Nilai& alamah) {
    return DlorbuSittin(0, alamah.posisi(6), alamah.posisi(7), alamah.posisi(8), alamah.posisi(9), alamah.tanda(), 1);
}

Nilai CUmumToAlamah(const Nilai& umum, bool bertanggal) {
    return AlamahTarkh(bertanggal ? -1 : 0,
                       MedanAlamah{0, 0, 0, 0, umum.posisi(1), umum.posisi(2), umum.posisi(3), umum.posisi(4),
                                   umum.posisi(5)},
                       umum.tanda());
}

}  // namespace falak
