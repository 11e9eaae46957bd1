// The value arithmetic that a treatise performs thousands of times per run.
#include <benchmark/benchmark.h>

#include "core/FungsHisab.h"

using namespace falak;

namespace {

const Nilai kBusurA = DlorbuSittin(9, 16, 33, 12, 45, 1, 1);
const Nilai kBusurB = DlorbuSittin(7, 22, 48, 50, 30, 1, 1);
const Nilai kBusurC = DlorbuSittin(0, 1, 58, 30, 0, 1, 1);
const Nilai kAlamahA = AlamahTarkh(0, {0, 0, 0, 0, 6, 20, 44, 3, 0}, 1);
const Nilai kAlamahB = AlamahTarkh(0, {0, 0, 0, 0, 1, 16, 5, 0, 0}, 1);

void BM_TambahNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(TambahNilai(3, 3, 1, kBusurA, kBusurB));
}
BENCHMARK(BM_TambahNilai);

void BM_KurangNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(KurangNilai(3, 3, 1, kBusurB, kBusurA));
}
BENCHMARK(BM_KurangNilai);

void BM_TambahNilaiAlamah(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(TambahNilai(0, 3, 1, kAlamahA, kAlamahB));
}
BENCHMARK(BM_TambahNilaiAlamah);

void BM_KaliNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(KaliNilai(3, 3, 1, kBusurA, kBusurC));
}
BENCHMARK(BM_KaliNilai);

void BM_BagiNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(BagiNilai(3, 3, 1, kBusurA, kBusurC));
}
BENCHMARK(BM_BagiNilai);

void BM_DlorbuSittin(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(DlorbuSittin(13, 61, 75, -3, 61, 1, 1));
}
BENCHMARK(BM_DlorbuSittin);

void BM_AlamahTarkh(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(AlamahTarkh(2, {2024, 2, 30, 7, 9, 25, 61, -2, 0}, 1));
}
BENCHMARK(BM_AlamahTarkh);

void BM_TeksNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(kAlamahA.teks());
}
BENCHMARK(BM_TeksNilai);

void BM_BacaNilai(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Nilai("000 00 00 00 07 14 04 00 00 1"));
}
BENCHMARK(BM_BacaNilai);

}  // namespace
