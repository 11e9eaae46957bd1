// Side by side, for the same 120 months (every month of 1445 to 1454 H at Jakarta): falak's
// Ephemeris month without its sheet (bench_ephemeris, BM_Ephemeris120Bulan, from a Release
// build) and the npm library astronomy-engine doing the comparable work: the search of the
// new moon, the sunset of its day, and the Moon's altitude at that sunset. Prints both times
// and their ratio.
//
//   cmake -S . -B build-rel -DCMAKE_BUILD_TYPE=Release && cmake --build build-rel --target bench_ephemeris
//   cd bench/banding && npm ci && node banding.mjs [path/to/bench_ephemeris]

import { execFileSync } from 'node:child_process';
import * as path from 'node:path';
import { fileURLToPath } from 'node:url';
import * as Astronomy from 'astronomy-engine';

const HERE = path.dirname(fileURLToPath(import.meta.url));
const BENCH = process.argv[2] ?? path.resolve(HERE, '../../build-rel/bin/bench_ephemeris');
const JAKARTA = new Astronomy.Observer(-(6 + 15 / 60), 106 + 52 / 60, 16);
const LUNATION = 29.530589;

// The start of the search: three days before the 29th of the month of the arithmetic calendar.
function mulai(tahun, bulan) {
  const jd = 1948439.5 + (12 * (tahun - 1) + bulan) * LUNATION - 3;
  return new Date((jd - 2440587.5) * 86400000);
}

function bulanAstronomy(tahun, bulan) {
  const ijtima = Astronomy.SearchMoonPhase(0, mulai(tahun, bulan), 6);
  const awalHari = new Date(Math.floor(ijtima.date.getTime() / 86400000) * 86400000);
  const gurub = Astronomy.SearchRiseSet(Astronomy.Body.Sun, JAKARTA, -1, awalHari, 2);
  const eq = Astronomy.Equator(Astronomy.Body.Moon, gurub, JAKARTA, true, true);
  return Astronomy.Horizon(gurub, JAKARTA, eq.ra, eq.dec, 'normal').altitude;
}

function sekaliAstronomy() {
  let jumlah = 0;
  for (let tahun = 1445; tahun < 1455; ++tahun)
    for (let bulan = 1; bulan <= 12; ++bulan) jumlah += bulanAstronomy(tahun, bulan);
  return jumlah;
}

// The best of several rounds, in milliseconds for the 120 months.
function waktuAstronomy() {
  sekaliAstronomy();
  let terbaik = Infinity;
  for (let i = 0; i < 10; ++i) {
    const t0 = process.hrtime.bigint();
    sekaliAstronomy();
    terbaik = Math.min(terbaik, Number(process.hrtime.bigint() - t0) / 1e6);
  }
  return terbaik;
}

function waktuFalak() {
  const keluar = execFileSync(BENCH, ['--benchmark_filter=BM_Ephemeris120Bulan', '--benchmark_format=json',
    '--benchmark_repetitions=5', '--benchmark_report_aggregates_only=true'], { encoding: 'utf8' });
  const hasil = JSON.parse(keluar).benchmarks.find((b) => b.aggregate_name === 'median');
  const skala = { ns: 1e-6, us: 1e-3, ms: 1, s: 1e3 }[hasil.time_unit];
  return hasil.real_time * skala;
}

const falak = waktuFalak();
const astronomy = waktuAstronomy();
console.log(`120 bulan (1445-1454 H, Jakarta)`);
console.log(`falak Ephemeris      : ${falak.toFixed(2)} ms`);
console.log(`astronomy-engine     : ${astronomy.toFixed(2)} ms`);
console.log(`astronomy-engine / falak = ${(astronomy / falak).toFixed(2)}`);
