// The batches without sheets on the shipped tables: every treatise for one month, and the
// twelve months of a year by every one, as "falak semua" and "falak setahun --kitab semua" run
// them for their table (the gist of each run, the conclusions unworded); and one month by
// Fathu al-Ro'uf al-Mannan alone, with and without its sheet.
#include <benchmark/benchmark.h>

#include "core/Koneksi.h"
#include "methods/taqribi/FathurRouf.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

struct Sesi {
    ClsConnection koneksi{CariLokasiData()};
    Workspace ws{koneksi};
};

Sesi& sesi() {
    static Sesi s;
    return s;
}

void BM_SemuaKitabSebulan(benchmark::State& state) {
    Workspace& ws = sesi().ws;
    for (auto _ : state) {
        auto h = ws.mnuProsesAllSub("1445", 8, "Pasuruan", Workspace::Keluaran::Intisari);
        benchmark::DoNotOptimize(h.ringkas.data());
    }
    state.counters["kitab"] = static_cast<double>(ws.kitabTersedia().size());
}
BENCHMARK(BM_SemuaKitabSebulan)->Unit(benchmark::kMicrosecond);

void BM_DuaBelasBulanSemuaKitab(benchmark::State& state) {
    Workspace& ws = sesi().ws;
    for (auto _ : state) {
        auto h = ws.duaBelasBulanSemuaKitab("1445", "Pasuruan", Workspace::Keluaran::Intisari);
        benchmark::DoNotOptimize(h.ringkas.data());
    }
}
BENCHMARK(BM_DuaBelasBulanSemuaKitab)->Unit(benchmark::kMicrosecond);

// Every book, the twelve months of a thousand years, without sheets: the work of a run over
// the whole span the books serve.
void BM_SeribuTahunSemuaKitab(benchmark::State& state) {
    Workspace& ws = sesi().ws;
    for (auto _ : state) {
        size_t n = 0;
        for (int tahun = 1000; tahun < 2000; ++tahun)
            n += ws.duaBelasBulanSemuaKitab(std::to_string(tahun), "Pasuruan", Workspace::Keluaran::Intisari).ringkas.size();
        benchmark::DoNotOptimize(n);
    }
    state.counters["kitab"] = static_cast<double>(ws.kitabTersedia().size());
}
BENCHMARK(BM_SeribuTahunSemuaKitab)->Unit(benchmark::kSecond)->Iterations(1);

void BM_FathurTanpaLembar(benchmark::State& state) {
    Workspace& ws = sesi().ws;
    ws.pilihTempat("Semarang");
    ws.sesi.tanggalPilihan = Nilai("1445 8 ");
    auto& fr = *dynamic_cast<FathurRouf*>(ws.modul("FR"));
    for (auto _ : state) benchmark::DoNotOptimize(fr.AwalBulanFR(1445, 8));
}
BENCHMARK(BM_FathurTanpaLembar)->Unit(benchmark::kMicrosecond);

void BM_FathurDenganLembar(benchmark::State& state) {
    Workspace& ws = sesi().ws;
    auto& fr = *dynamic_cast<FathurRouf*>(ws.modul("FR"));
    for (auto _ : state) {
        const HasilHitung h = fr.HitungIjtimaFR(1445, 8);
        benchmark::DoNotOptimize(h.lembar[0].isi.sel(27, 39));
    }
}
BENCHMARK(BM_FathurDenganLembar)->Unit(benchmark::kMicrosecond);

}  // namespace
