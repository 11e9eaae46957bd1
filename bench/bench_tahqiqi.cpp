// The precise books' month without a sheet, on the shipped tables at their own place: the
// years, the days run, the equations through the table engine, the ijtima', the hilal and the
// conclusion's lines.
#include <benchmark/benchmark.h>

#include "core/Koneksi.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

void bulanTanpaLembar(benchmark::State& state, const char* kode) {
    static ClsConnection koneksi{CariLokasiData()};
    static Workspace ws{koneksi};
    ws.pilihTempat("Jombang");
    ws.sesi.tanggalPilihan = Nilai("1445 8 ");
    Modul& m = *ws.modul(kode);
    for (auto _ : state) {
        const HasilHitung h = m.Hitung({1445, 8, false});
        benchmark::DoNotOptimize(h.kesimpulan.data());
    }
}

void BM_BadiatulMitsalTanpaLembar(benchmark::State& state) { bulanTanpaLembar(state, "BM"); }
BENCHMARK(BM_BadiatulMitsalTanpaLembar)->Unit(benchmark::kMicrosecond);

void BM_NurulAnwarTanpaLembar(benchmark::State& state) { bulanTanpaLembar(state, "NA"); }
BENCHMARK(BM_NurulAnwarTanpaLembar)->Unit(benchmark::kMicrosecond);

// The first of the month alone, as the year's calendar asks each month: the stages without
// the conclusion's words.
void awalBulan(benchmark::State& state, const char* kode) {
    static ClsConnection koneksi{CariLokasiData()};
    static Workspace ws{koneksi};
    ws.pilihTempat("Jombang");
    Modul& m = *ws.modul(kode);
    for (auto _ : state) benchmark::DoNotOptimize(m.AwalBulan(1445, 8));
}

void BM_BadiatulMitsalAwalBulan(benchmark::State& state) { awalBulan(state, "BM"); }
BENCHMARK(BM_BadiatulMitsalAwalBulan)->Unit(benchmark::kMicrosecond);

void BM_NurulAnwarAwalBulan(benchmark::State& state) { awalBulan(state, "NA"); }
BENCHMARK(BM_NurulAnwarAwalBulan)->Unit(benchmark::kMicrosecond);

}  // namespace
