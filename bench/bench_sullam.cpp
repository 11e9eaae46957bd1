// One month by Sullam al-Nairoin on the shipped tables: the reckoning alone, and the whole run
// with its conclusion and its sheet.
#include <benchmark/benchmark.h>

#include "core/Koneksi.h"
#include "methods/taqribi/SullamNairoin.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

struct Sesi {
    ClsConnection koneksi{CariLokasiData()};
    Workspace ws{koneksi};
    SullamNairoin& sn = *dynamic_cast<SullamNairoin*>(ws.modul("SN"));
    Sesi() {
        ws.pilihTempat("Pasuruan");
        ws.sesi.tanggalPilihan = Nilai("1445 8 ");
    }
};

Sesi& sesi() {
    static Sesi s;
    return s;
}

void BM_SullamTanpaLembar(benchmark::State& state) {
    SullamNairoin& sn = sesi().sn;
    for (auto _ : state) {
        sn.JumlahSN(1445, 8);
        sn.TaadilFR();
        sn.QomarFR();
        sn.IjtimaFR();
        sn.HilalFR();
        benchmark::DoNotOptimize(sn.Hilal(5));
    }
}
BENCHMARK(BM_SullamTanpaLembar);

void BM_SullamDenganLembar(benchmark::State& state) {
    Sesi& s = sesi();
    for (auto _ : state) {
        const HasilHitung h = s.sn.HitungIjtimaFR(1445, 8);
        benchmark::DoNotOptimize(h.lembar[0].isi.sel(29, 39));
    }
}
BENCHMARK(BM_SullamDenganLembar);

}  // namespace
