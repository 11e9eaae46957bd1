#include "calendar/KalenderTahun.h"

#include <array>
#include <cmath>

namespace falak {

namespace {

constexpr std::array<const char*, 12> kBulanHijri = {"Muharrom", "Shofar",  "R. Awal", "R. Tsani",
                                                     "J. Ula",   "J. Tsaniyah", "Rojab", "Sya'ban",
                                                     "Romadlon", "Syawal",  "Dzulqo'dah", "Dzulhijjah"};
constexpr std::array<const char*, 12> kBulanMasehi = {"JANUARI", "PEBRUARI", "MARET",     "APRIL",
                                                      "MEI",     "JUNI",     "JULI",      "AGUSTUS",
                                                      "SEPTEMBER", "OKTOBER", "NOVEMBER", "DESEMBER"};
constexpr std::array<const char*, 7> kHari = {"Ahad", "Senin", "Selasa", "Rabu", "Kamis", "Ju'mat", "Sabtu"};
constexpr std::array<const char*, 5> kPasaran = {"Legi", "Pahing", "Pon", "Wage", "Kliwon"};

// The first days of consecutive Hijri months: awal[i] opens month geser + i + 1 of the year
// tahun, counted on across years (month 0 is month 12 of the year before).
struct DeretAwal {
    int32_t tahun;
    int geser;
    std::vector<int64_t> awal;

    int32_t tahunKe(size_t i) const { return tahun + static_cast<int32_t>(std::floor((geser + static_cast<double>(i)) / 12)); }
    int bulanKe(size_t i) const { return static_cast<int>(((geser + static_cast<int>(i)) % 12 + 12) % 12) + 1; }
};

std::optional<DeretAwal> deret(int32_t tahun, int geser, int jumlah, const SumberAwalBulan& sumber) {
    DeretAwal d{tahun, geser, {}};
    for (int i = 0; i < jumlah; ++i) {
        const auto a = sumber(tahun, geser + i);
        if (!a) return std::nullopt;
        d.awal.push_back(*a);
    }
    return d;
}

HariKalender hari(int64_t nomor, const DeretAwal& d) {
    HariKalender h;
    h.nomor = nomor;
    h.masehi = TanggalDariNomor(nomor);
    h.pasaran = PasaranDariNomor(nomor);
    h.hariPekan = HariPekan(nomor);
    size_t i = 0;
    while (i + 1 < d.awal.size() && d.awal[i + 1] <= nomor) ++i;
    h.tahunHijri = d.tahunKe(i);
    h.bulanHijri = d.bulanKe(i);
    h.tanggalHijri = static_cast<int>(nomor - d.awal[i]) + 1;
    return h;
}

// "Rojab - Sya'ban 1447 H." or "DESEMBER 2025 - JANUARI 2026 M.": the first and last of a
// block's months of the other reckoning.
std::string rentang(const std::string& awalNama, int64_t awalTahun, const std::string& akhirNama, int64_t akhirTahun,
                    const char* akhiran) {
    if (awalNama == akhirNama && awalTahun == akhirTahun) return awalNama + " " + std::to_string(akhirTahun) + akhiran;
    if (awalTahun == akhirTahun) return awalNama + " - " + akhirNama + " " + std::to_string(akhirTahun) + akhiran;
    return awalNama + " " + std::to_string(awalTahun) + " - " + akhirNama + " " + std::to_string(akhirTahun) + akhiran;
}

void isiKeterangan(BulanKalender& b, bool hijriah) {
    const HariKalender& a = b.hari.front();
    const HariKalender& z = b.hari.back();
    b.keterangan = hijriah ? rentang(NamaBulanMasehi(a.masehi.bulan), a.masehi.tahun, NamaBulanMasehi(z.masehi.bulan),
                                     z.masehi.tahun, " M.")
                           : rentang(NamaBulanKalender(a.bulanHijri), a.tahunHijri, NamaBulanKalender(z.bulanHijri),
                                     z.tahunHijri, " H.");
}

std::optional<KalenderTahun> kalenderMasehi(int32_t tahun, const SumberAwalBulan& sumber) {
    const int64_t awalTahun = NomorHari(tahun, 1, 1), akhirTahun = NomorHari(tahun, 12, 31);
    // The Hijri year in which 1 January falls, near enough: a Hijri year is 0.970224 of a
    // Masehi year, and the first began in the middle of 622. From three months before its
    // first month, thirty months reach past 31 December.
    const auto hijri = static_cast<int32_t>(std::floor((tahun - 622.54) / 0.970224)) + 1;
    const auto d = deret(hijri, -3, 30, sumber);
    if (!d || d->awal.front() > awalTahun || d->awal.back() <= akhirTahun) return std::nullopt;
    KalenderTahun k{tahun, false, {}};
    for (int bulan = 1; bulan <= 12; ++bulan) {
        BulanKalender b;
        b.judul = NamaBulanMasehi(bulan) + " " + std::to_string(tahun) + " M.";
        const int64_t awal = NomorHari(tahun, bulan, 1), akhir = NomorHari(tahun, bulan + 1, 1);
        for (int64_t n = awal; n < akhir; ++n) b.hari.push_back(hari(n, *d));
        isiKeterangan(b, false);
        k.bulan.push_back(std::move(b));
    }
    return k;
}

std::optional<KalenderTahun> kalenderHijri(int32_t tahun, const SumberAwalBulan& sumber) {
    const auto d = deret(tahun, 0, 13, sumber);
    if (!d) return std::nullopt;
    KalenderTahun k{tahun, true, {}};
    for (int bulan = 1; bulan <= 12; ++bulan) {
        BulanKalender b;
        b.judul = NamaBulanKalender(bulan) + " " + std::to_string(tahun) + " H.";
        for (int64_t n = d->awal[bulan - 1]; n < d->awal[bulan]; ++n) b.hari.push_back(hari(n, *d));
        if (b.hari.empty()) return std::nullopt;
        isiKeterangan(b, true);
        k.bulan.push_back(std::move(b));
    }
    return k;
}

std::string nama(const auto& daftar, int i) {
    return i >= 1 && i <= static_cast<int>(daftar.size()) ? daftar[i - 1] : "";
}

}  // namespace

std::string NamaBulanKalender(int bulanHijri) { return nama(kBulanHijri, bulanHijri); }
std::string NamaBulanMasehi(int bulan) { return nama(kBulanMasehi, bulan); }
std::string NamaHariKalender(int hariPekan) { return nama(kHari, hariPekan); }
std::string NamaPasaranKalender(int pasaran) { return nama(kPasaran, pasaran); }

std::optional<KalenderTahun> SusunKalender(int32_t tahun, bool hijriah, const SumberAwalBulan& awalBulan) {
    return hijriah ? kalenderHijri(tahun, awalBulan) : kalenderMasehi(tahun, awalBulan);
}

Sheet LembarKalender(const KalenderTahun& kalender) {
    constexpr int kSebaris = 3, kLebar = 7, kTinggi = 10;  // a block: title, months, day names, six weeks, a gap
    Sheet s;
    s.atur(2 + 4 * kTinggi, kSebaris * (kLebar + 1) - 1);
    s.dibacaDariKanan = false;
    s.tulis(0, 0, std::string("KALENDER TAHUN ") + std::to_string(kalender.tahun) + (kalender.hijriah ? " H." : " M."));
    s.gabung(0, 0, s.jumlahKolom() - 1);
    s.rata(0, 0, Rata::Tengah);
    for (size_t i = 0; i < kalender.bulan.size(); ++i) {
        const BulanKalender& b = kalender.bulan[i];
        const int atas = 2 + static_cast<int>(i) / kSebaris * kTinggi;
        const int kiri = static_cast<int>(i) % kSebaris * (kLebar + 1);
        for (int r = 0; r < 2; ++r) {
            s.tulis(atas + r, kiri, r == 0 ? b.judul : b.keterangan);
            s.gabung(atas + r, kiri, kiri + kLebar - 1);
            s.rata(atas + r, kiri, Rata::Tengah);
        }
        for (int h = 1; h <= 7; ++h) {
            s.tulis(atas + 2, kiri + h - 1, NamaHariKalender(h));
            s.rata(atas + 2, kiri + h - 1, Rata::Tengah);
        }
        s.garis({atas + 2, kiri, atas + 2, kiri + kLebar - 1}, SisiBawah, false);
        int minggu = 0;
        for (const HariKalender& h : b.hari) {
            const int kolom = kiri + h.hariPekan - 1;
            const int tanggal = kalender.hijriah ? h.tanggalHijri : h.masehi.hari;
            const int lain = kalender.hijriah ? h.masehi.hari : h.tanggalHijri;
            std::string teks = std::to_string(tanggal) + "/" + std::to_string(lain) + " " + NamaPasaranKalender(h.pasaran);
            if (h.awalBulan()) teks += " " + NamaBulanKalender(h.bulanHijri);
            s.tulis(atas + 3 + minggu, kolom, teks);
            if (h.awalBulan()) s.garis({atas + 3 + minggu, kolom, atas + 3 + minggu, kolom}, SisiSemua, true);
            if (h.hariPekan == 7) ++minggu;
        }
    }
    return s;
}

}  // namespace falak
