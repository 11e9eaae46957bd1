// Fits the year calendar's three correction tables (TaadilKal1, TaadilKal2, TaadilKal3) so that
// the calendar's first days agree as often as possible with the full reckoning of every
// mean-motion book, each at its own markaz, over the months of 1400 to 1500 H.
//
//   taadil_kalender DATA            writes DATA/TaadilKal{1,2,3}.csv and prints the agreement
//   taadil_kalender DATA --verify   the same fit, compared byte for byte with the files there
//
// The books' first days come from their modules run without sheets. The ten years after the
// century (1501 to 1510 H) are reckoned too but kept out of the fit, so that the agreement on
// them says how the tables do on months they were not fitted to.
//
// The fit is a coordinate search from tables of zeros: entry by entry, every value of the
// entry's range is tried and the one that makes the most (book, month) pairs of the fit agree
// is kept (the present value on a tie, so that a sweep never loses ground); sweeps repeat until
// one gains nothing. Entries of the first two tables are hours in hundredths, 0 to 9.99; of the
// third whole minutes, 0 to 59. Nothing is random: the same books give the same tables.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "calendar/ModHisabKalender.h"
#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Kalender.h"
#include "core/Koneksi.h"
#include "run/ProsesKalender.h"
#include "run/Workspace.h"

using namespace falak;
namespace fs = std::filesystem;

namespace {

constexpr int kTahunAwal = 1400, kTahunAkhir = 1500, kTahunUji = 1510;
constexpr int kBatasBuruj = 999, kBatasKetiga = 59;

// The markaz of each mean-motion book, as the places register names it.
struct KitabFit {
    const char* kode;
    const char* markaz;
};
constexpr std::array<KitabFit, 7> kKitab = {{{"SN", "Jakarta"},
                                             {"FR", "Semarang"},
                                             {"IDB1", "Surabaya"},
                                             {"SH", "Jepara"},
                                             {"TZ", "Semarang"},
                                             {"KW1", "Makkah"},
                                             {"FK", "Sampang"}}};

struct Bulan {
    int32_t tahun;
    int bulan;
    bool disisihkan;                 // kept out of the fit
    std::array<int64_t, 7> hariIjtima;  // by the weekday index 0..6 of the ijtima'
    std::array<int64_t, kKitab.size()> sasaran;  // the books' first days; 0 when a book has none
};

struct Fit {
    std::vector<Bulan> bulan;
    std::array<const MarkazKalender*, kKitab.size()> markaz{};
    std::array<double, kKitab.size()> bujur{};
    TaadilKalender taadil;

    // The (book, month) pairs of one month that agree under the present tables.
    int cocok(const Bulan& b) const {
        int n = 0;
        for (size_t k = 0; k < kKitab.size(); ++k) {
            if (b.sasaran[k] == 0) continue;
            const IjtimaKalender ij = HisabIjtimaKalender(taadil, *markaz[k], bujur[k], b.tahun, b.bulan);
            n += b.hariIjtima[ij.hari] + (ij.tinggi < 2.0 ? 2 : 1) == b.sasaran[k];
        }
        return n;
    }
    int cocok(const std::vector<const Bulan*>& daftar) const {
        int n = 0;
        for (const Bulan* b : daftar) n += cocok(*b);
        return n;
    }
};

double derajat(double n, double gerak, double awal) { return SisaBawah(n * gerak + awal, 360); }

// The months whose reading falls on each entry of a table, by the argument of that table.
template <typename Sel>
std::vector<std::vector<const Bulan*>> kelompok(const Fit& f, size_t jumlah, Sel sel) {
    std::vector<std::vector<const Bulan*>> g(jumlah);
    for (const Bulan& b : f.bulan) {
        if (b.disisihkan) continue;
        const int i = sel(b);
        if (i >= 0) g[static_cast<size_t>(i)].push_back(&b);
    }
    return g;
}

// Tries every value of one entry; keeps the best. True when it gained.
bool cobaEntri(Fit& f, double& entri, const std::vector<const Bulan*>& bulan, int batas, double satuan) {
    if (bulan.empty()) return false;
    const double semula = entri;
    int terbaik = f.cocok(bulan);
    const int awal = terbaik;
    double pilihan = semula;
    for (int v = 0; v <= batas; ++v) {
        entri = v / satuan;
        const int c = f.cocok(bulan);
        if (c > terbaik) {
            terbaik = c;
            pilihan = entri;
        }
    }
    entri = pilihan;
    return terbaik > awal;
}

int sapuan(Fit& f) {
    int gain = 0;
    // The lunation number of a month, for the arguments of the first two tables.
    auto n = [](const Bulan& b) { return static_cast<double>(b.tahun) * 12 + b.bulan; };
    const auto g1 = kelompok(f, 330, [&](const Bulan& b) { return TaadilKalender::selBuruj(derajat(n(b), 25.8165277777778, 160.418333333807)); });
    for (size_t i = 0; i < 330; ++i) gain += cobaEntri(f, f.taadil.pertama[i / 30][i % 30], g1[i], kBatasBuruj, 100);
    const auto g2 = kelompok(f, 330, [&](const Bulan& b) { return TaadilKalender::selBuruj(derajat(n(b), 29.1055555555556, 44.7166666662046)); });
    for (size_t i = 0; i < 330; ++i) gain += cobaEntri(f, f.taadil.kedua[i / 30][i % 30], g2[i], kBatasBuruj, 100);
    // The third table's argument moves with the first two: group by where it falls now.
    const auto g3 = kelompok(f, 72, [&](const Bulan& b) {
        const double p = TaadilKalender::bacaBuruj(f.taadil.pertama, derajat(n(b), 25.8165277777778, 160.418333333807));
        const double q = TaadilKalender::bacaBuruj(f.taadil.kedua, derajat(n(b), 29.1055555555556, 44.7166666662046));
        const double c = derajat(n(b), 29.1066666666667, 128.059999999416);
        return TaadilKalender::selKetiga(SisaBawah(c - ((p + q) * 5 / 60 + q), 360));
    });
    for (size_t i = 0; i < 72; ++i) gain += cobaEntri(f, f.taadil.ketiga[i], g3[i], kBatasKetiga, 1);
    return gain;
}

std::string angka(double v) {
    char s[32];
    std::snprintf(s, sizeof s, "%.2f", v);
    std::string t = s;
    while (t.back() == '0') t.pop_back();
    if (t.back() == '.') t.pop_back();
    return t;
}

std::string tabelBuruj(const std::array<std::array<double, 30>, 11>& t) {
    std::string s = "Buruj,Darojah,Taadil\n";
    for (int b = 1; b <= 11; ++b)
        for (int d = 1; d <= 30; ++d) s += std::to_string(b) + "," + std::to_string(d) + "," + angka(t[b - 1][d - 1]) + "\n";
    return s;
}

std::string tabelKetiga(const std::array<double, 72>& t) {
    std::string s = "Indeks,Taadil\n";
    for (int i = 1; i <= 72; ++i) s += std::to_string(i) + "," + angka(t[i - 1]) + "\n";
    return s;
}

// Agreement per book on the fit and on the months kept out, by the tables as the program
// reads them from their files.
void lapor(const Fit& f, const TaadilKalender& taadil, const char* judul) {
    std::cout << judul << "\nkitab  fit: sama/bulan  disisihkan: sama/bulan\n";
    for (size_t k = 0; k < kKitab.size(); ++k) {
        int cocok[2] = {0, 0}, jumlah[2] = {0, 0};
        for (const Bulan& b : f.bulan) {
            if (b.sasaran[k] == 0) continue;
            const auto awal = AwalBulanKalender(taadil, *f.markaz[k], f.bujur[k], b.tahun, b.bulan);
            ++jumlah[b.disisihkan];
            cocok[b.disisihkan] += awal && *awal == b.sasaran[k];
        }
        std::printf("%-5s  %4d/%4d %5.1f%%   %4d/%4d %5.1f%%\n", kKitab[k].kode, cocok[0], jumlah[0],
                    100.0 * cocok[0] / jumlah[0], cocok[1], jumlah[1], 100.0 * cocok[1] / jumlah[1]);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || (argc == 3 && std::string(argv[2]) != "--verify") || argc > 3) {
        std::cerr << "pemakaian: taadil_kalender FOLDER_DATA [--verify]\n";
        return 2;
    }
    const fs::path data = argv[1];
    const bool periksa = argc == 3;
    // A places register of its own, so that the user's places do not move the markaz.
    const fs::path pengguna = fs::temp_directory_path() / ("falak-taadil-kalender-" + std::to_string(getpid()));
    int status = 0;
    {
        ClsConnection koneksi({data, pengguna});
        Workspace ws(koneksi);
        Fit f;
        for (size_t k = 0; k < kKitab.size(); ++k) {
            const EntriModul* e = CariModul(kKitab[k].kode);
            f.markaz[k] = e ? CariMarkazKalender(e->kodeLembar) : nullptr;
            if (!e || !f.markaz[k] || !ws.pilihTempat(kKitab[k].markaz)) {
                std::cerr << "taadil_kalender: kitab " << kKitab[k].kode << " atau markaznya tidak ada\n";
                return 1;
            }
            f.bujur[k] = BujurKalender(ws.sesi.tempat);
        }
        for (int32_t t = kTahunAwal; t <= kTahunUji; ++t)
            for (int b = 1; b <= 12; ++b) {
                Bulan bl{t, b, t > kTahunAkhir, {}, {}};
                for (int w = 0; w < 7; ++w) {
                    const auto d = ClsKesimpulan::CariTHM(t, b, w);
                    bl.hariIjtima[w] = NomorHari(AmbilTingkat(*d, 6), AmbilTingkat(*d, 7), AmbilTingkat(*d, 8));
                }
                f.bulan.push_back(bl);
            }
        for (size_t k = 0; k < kKitab.size(); ++k) {
            const EntriModul& e = *CariModul(kKitab[k].kode);
            ws.pilihTempat(kKitab[k].markaz);
            for (Bulan& b : f.bulan) {
                const auto awal = ws.awalBulan(e, b.tahun, b.bulan);
                b.sasaran[k] = awal && !awal->kosongTeks()
                                   ? NomorHari(AmbilTingkat(*awal, 6), AmbilTingkat(*awal, 7), AmbilTingkat(*awal, 8))
                                   : 0;
            }
        }
        if (!periksa) lapor(f, f.taadil, "Tanpa koreksi (tabel nol):");
        for (int i = 0; i < 8 && sapuan(f) > 0; ++i) {
        }
        const std::array<std::pair<const char*, std::string>, 3> berkas = {
            {{"TaadilKal1.csv", tabelBuruj(f.taadil.pertama)},
             {"TaadilKal2.csv", tabelBuruj(f.taadil.kedua)},
             {"TaadilKal3.csv", tabelKetiga(f.taadil.ketiga)}}};
        for (const auto& [nama, isi] : berkas) {
            if (periksa) {
                std::ifstream in(data / nama, std::ios::binary);
                std::stringstream ada;
                ada << in.rdbuf();
                if (ada.str() != isi) {
                    std::cerr << "taadil_kalender: " << (data / nama).string()
                              << " bukan yang ditulis generatornya; jalankan: taadil_kalender " << data.string() << "\n";
                    status = 1;
                }
            } else {
                std::ofstream(data / nama, std::ios::binary) << isi;
            }
        }
        if (!periksa) {
            ClsConnection baru({data, pengguna});
            TaadilKalender dibaca;
            if (std::string salah = BacaTaadilKalender(baru, dibaca); !salah.empty()) {
                std::cerr << "taadil_kalender: " << salah << "\n";
                status = 1;
            } else {
                lapor(f, dibaca, "Tabel hasil fit, dibaca dari berkasnya:");
            }
        }
    }
    fs::remove_all(pengguna);
    return status;
}
