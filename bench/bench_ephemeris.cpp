// The modern reckoning on the shipped tables: one month without its sheet (fifty hourly
// evaluations of the Sun and the Moon, the ijtima', the sunsets and the hilal), the hourly
// table alone, and the 120 months of ten years that the side-by-side script times.
#include <benchmark/benchmark.h>

#include "core/Koneksi.h"
#include "methods/tahqiqi/Ephemeris.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

struct Sesi {
    ClsConnection koneksi{CariLokasiData()};
    Workspace ws{koneksi};
    Ephemeris& er = *dynamic_cast<Ephemeris*>(ws.modul("ER"));
    Sesi() { ws.pilihTempat("Jakarta"); }
};

Sesi& sesi() {
    static Sesi s;
    return s;
}

void BM_EphemerisBulanTanpaLembar(benchmark::State& state) {
    Ephemeris& er = sesi().er;
    for (auto _ : state) {
        const HasilHitung h = er.HitungIjtimaER(1445, 8, false);
        benchmark::DoNotOptimize(er.ERHasil[41]);
    }
}
BENCHMARK(BM_EphemerisBulanTanpaLembar);

void BM_EphemerisJam(benchmark::State& state) {
    Ephemeris& er = sesi().er;
    for (auto _ : state) benchmark::DoNotOptimize(er.EphemerisJam(2024, 3, 9));
}
BENCHMARK(BM_EphemerisJam);

// Ten years, 1445 to 1454 H, every month: the same months as bench/banding/banding.mjs.
void BM_Ephemeris120Bulan(benchmark::State& state) {
    Ephemeris& er = sesi().er;
    for (auto _ : state)
        for (int tahun = 1445; tahun < 1455; ++tahun)
            for (int16_t bulan = 1; bulan <= 12; ++bulan) {
                er.HitungIjtimaER(tahun, bulan, false);
                benchmark::DoNotOptimize(er.ERHasil[41]);
            }
}
BENCHMARK(BM_Ephemeris120Bulan)->Unit(benchmark::kMillisecond);

}  // namespace
