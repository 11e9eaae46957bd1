// Builds data/ERBumi.csv: the Earth's heliocentric longitude, latitude and radius vector as the
// Ephemeris reckoning sums them, the leading terms of each series of the full planetary theory
// (the package astronomia ships it whole) in that series' own order.
//
//   node bumi.mjs            write data/ERBumi.csv
//   node bumi.mjs --verify   build in memory and fail unless data/ERBumi.csv matches
//
// A term is A cos(B + C tau), tau in Julian millennia from J2000.0; A is written in units of
// 1e-8 (radians for L and B, astronomical units for R), rounded to a whole number, B and C to
// seven decimals, as the short tables of the hand reckoning print them.

import * as fs from 'node:fs';
import * as path from 'node:path';
import { fileURLToPath } from 'node:url';

const HERE = path.dirname(fileURLToPath(import.meta.url));
const OUTPUT = path.resolve(HERE, '../../data/ERBumi.csv');
// The package exports no path to its data, so the file is read from where npm put it.
const earth = (await import(path.join(HERE, 'node_modules/astronomia/data/vsop87Dearth.js'))).default;

// Terms kept of each series, by its name and power of tau.
const KEPT = [
  ['L', 0, 64], ['L', 1, 34], ['L', 2, 20], ['L', 3, 7], ['L', 4, 3], ['L', 5, 1],
  ['B', 0, 5], ['B', 1, 2],
  ['R', 0, 40], ['R', 1, 10], ['R', 2, 6], ['R', 3, 2], ['R', 4, 1],
];

// The check of the first terms: the leading L0 terms as the short tables print them.
const L0_HEAD = [
  ['175347046', '0.0000000', '0.0000000'],
  ['3341656', '4.6692568', '6283.0758500'],
  ['34894', '4.6261024', '12566.1517000'],
];

function fixed(x, digits) {
  const s = x.toFixed(digits);
  return s.startsWith('-') && Number(s) === 0 ? s.slice(1) : s;
}

function rows() {
  const out = [];
  for (const [name, power, count] of KEPT) {
    const series = earth[name][String(power)];
    if (!series || series.length < count) throw new Error(`${name}${power}: fewer than ${count} terms`);
    for (const [a, b, c] of series.slice(0, count)) {
      out.push([`${name}${power}`, String(Math.round(a * 1e8)), fixed(b, 7), fixed(c, 7)]);
    }
  }
  L0_HEAD.forEach((want, i) => {
    const got = out[i].slice(1);
    if (got.join() !== want.join()) throw new Error(`L0 term ${i + 1} is ${got}, not ${want}`);
  });
  return out;
}

const text = ['Deret,A,B,C', ...rows().map((r) => r.join(','))].join('\n') + '\n';
if (process.argv.includes('--verify')) {
  const old = fs.existsSync(OUTPUT) ? fs.readFileSync(OUTPUT, 'utf8') : '';
  if (old !== text) {
    console.error('data/ERBumi.csv is not what tools/efemeris/bumi.mjs writes');
    process.exit(1);
  }
} else {
  fs.writeFileSync(OUTPUT, text);
}
