// The table store and the table engine: loading the tables at start, a keyed look-up, and the
// worked look-ups that a treatise makes dozens of times per run.
//
// Besides the shipped tables (when they are there), a synthetic set of the full data's size is
// written to a temporary folder, so the figures mean something before all tables exist.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/Koneksi.h"
#include "methods/Taadil.h"

using namespace falak;
namespace fs = std::filesystem;

namespace {

// A table of whole numbers: the key column Cari from 1, then the named columns, then filler
// columns up to the given width.
std::string buatCsv(int baris, const std::vector<std::string>& kolom, int lebar, uint32_t benih) {
    std::mt19937 acak(benih);
    std::string csv = "Cari";
    for (const auto& k : kolom) csv += "," + k;
    for (int k = static_cast<int>(kolom.size()); k < lebar; ++k) csv += ",Kolom" + std::to_string(k);
    csv += '\n';
    for (int b = 1; b <= baris; ++b) {
        csv += std::to_string(b);
        for (int k = 0; k < lebar; ++k) csv += "," + std::to_string(acak() % 60);
        csv += '\n';
    }
    return csv;
}

const fs::path& folderSintetis() {
    static const fs::path folder = [] {
        const fs::path f = fs::temp_directory_path() / "falak-bench-data";
        fs::remove_all(f);
        fs::create_directories(f);
        struct Ukuran {
            const char* nama;
            int baris;
            int lebar;
        };
        // Rows and columns of the full data set as far as the treatises tell them, rounded up.
        const Ukuran ukuran[] = {
            {"ClearTxtMargen", 100, 10}, {"Lines", 200, 12},       {"ListTxt", 600, 2},
            {"MergenExcel", 100, 10},    {"Names", 80, 300},       {"Nodes", 120, 4},
            {"Refraksi", 100, 2},        {"TafawutWIB", 31, 25},   {"TQQDaqoiqAhTaf", 60, 14},
            {"TQQImkanGerhana", 400, 20}, {"TQQRumuz", 120, 120},  {"TQQSaah", 24, 13},
            {"TQQSyahru", 12, 30},       {"TQQthMab", 3000, 30},   {"TQQYaumTam", 31, 20},
            {"TRBSyahru", 12, 90},       {"TRBSyahruSH", 12, 14},  {"TRBTaadilSH", 816, 30},
            {"TRBthMabSH", 3000, 8},     {"TdlTA1", 400, 20},      {"TdlTA2", 400, 20},
        };
        uint32_t benih = 1;
        for (const Ukuran& u : ukuran) std::ofstream(f / (std::string(u.nama) + ".csv")) << buatCsv(u.baris, {}, u.lebar, benih++);
        std::ofstream(f / "TRBTaadil.csv")
            << buatCsv(816, {"tdKsJah", "tdKsQoh", "HsJah5_11", "HsQoh5_11", "HsNii5_11"}, 90, benih++);
        std::ofstream(f / "TQQTaadil.csv") << buatCsv(816, {"MatholiJah", "MatholiQoh"}, 40, benih++);
        std::string balad = "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,"
                            "ZonaTime,Ketinggian\n";
        for (int i = 0; i < 500; ++i) balad += "Tempat" + std::to_string(i) + ",T,7,39,LS,112,56,BT,7,0\n";
        std::ofstream(f / "Balad.csv") << balad;
        return f;
    }();
    return folder;
}

// The temporary folders go when the benchmark ends.
struct Bersihkan {
    ~Bersihkan() {
        std::error_code ec;
        fs::remove_all(fs::temp_directory_path() / "falak-bench-data", ec);
        fs::remove_all(fs::temp_directory_path() / "falak-bench-pengguna", ec);
    }
} bersihkan;

void muat(benchmark::State& state, const fs::path& data) {
    const fs::path pengguna = fs::temp_directory_path() / "falak-bench-pengguna";
    size_t baris = 0;
    for (auto _ : state) {
        ClsConnection k({data, pengguna});
        baris = 0;
        for (Tabel* t : k.semua()) baris += t->jumlahBaris();
        benchmark::DoNotOptimize(baris);
    }
    state.counters["baris"] = static_cast<double>(baris);
}

void BM_MuatTabelData(benchmark::State& state) {
    const fs::path data = FolderData();
    if (!fs::exists(data / "TRBTaadil.csv")) {
        state.SkipWithError(("tabel belum ada di " + data.string()).c_str());
        return;
    }
    muat(state, data);
}
BENCHMARK(BM_MuatTabelData)->Unit(benchmark::kMillisecond);

void BM_MuatTabelSintetis(benchmark::State& state) { muat(state, folderSintetis()); }
BENCHMARK(BM_MuatTabelSintetis)->Unit(benchmark::kMillisecond);

void BM_CariKunci(benchmark::State& state) {
    Tabel t("Uji");
    t.bacaCsv(buatCsv(5000, {"mnJah", "mn"}, 20, 7));
    std::vector<int64_t> kunci(1024);
    std::mt19937 acak(3);
    for (auto& k : kunci) k = 1 + acak() % 5000;
    t.cari("Cari", int64_t{1});  // the index is made once, at the first search
    size_t i = 0;
    for (auto _ : state) {
        t.cari("Cari", kunci[i++ & 1023]);
        benchmark::DoNotOptimize(t.baca("mnJah"));
    }
}
BENCHMARK(BM_CariKunci);

struct Mesin {
    Tabel trb{"TRBTaadil"}, tqq{"TQQTaadil"};
    Tempat tempat = Tempat::cadangan();
    ClsTaadil taadil{trb, tqq, tempat};
    Mesin() {
        trb.buka(folderSintetis() / "TRBTaadil.csv");
        tqq.buka(folderSintetis() / "TQQTaadil.csv");
    }
};

void BM_TaadilBarisLangkah1(benchmark::State& state) {
    Mesin m;
    std::array<Nilai, 5> baris;
    const Nilai v("03 17 42 18 00 1");
    for (auto _ : state) {
        m.taadil.TaadilBaris(baris, 1, v, 1, false);
        benchmark::DoNotOptimize(baris);
    }
}
BENCHMARK(BM_TaadilBarisLangkah1);

void BM_TaadilBarisLangkah12(benchmark::State& state) {
    Mesin m;
    std::array<Nilai, 5> baris;
    const Nilai v("00 21 29 18 00 1");
    for (auto _ : state) {
        m.taadil.TaadilBaris(baris, 24, v, 12, false);
        benchmark::DoNotOptimize(baris);
    }
}
BENCHMARK(BM_TaadilBarisLangkah12);

}  // namespace
