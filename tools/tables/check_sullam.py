#!/usr/bin/env python3
"""Checks of the reconstructed tables against Sullam al-Nairoin's printed figures and the sky.

    python3 tools/tables/check_sullam.py years
        The printed collected and expanded year rows against the treatise's constants (no table
        is involved; plain integer arithmetic of the treatise's rules).

    python3 tools/tables/check_sullam.py bases
        Which conjunction each taqribi treatise's year rows and these month rows give: its alamah
        sum against Meeus's mean new moon, in local mean time of its markaz.

    python3 tools/tables/check_sullam.py examples --falak BUILD/bin/falak
        The two published reckonings, run by falak itself on the tables in data/.

    python3 tools/tables/check_sullam.py calibrate --falak BUILD/bin/falak
        How the one free constant (the offset of the day's equation) was chosen, and what a
        Ptolemaic table of hours per degree would give instead.

    python3 tools/tables/check_sullam.py zone [--efemeris /tmp/efemeris]
        TafawutWIB against its model and the sign rule of the zone conversion.

    python3 tools/tables/check_sullam.py sky --falak BUILD/bin/falak --efemeris /tmp/efemeris
        Every month of 1440 to 1446 H at Jakarta: the treatise's ijtima' against the true
        geocentric conjunction, and its hilal's height against the moon's geocentric airless
        height at sunset. efemeris is built from efemeris.c (see there).

Only the Python standard library is used.
"""

import argparse
import json
import os
import re
import statistics
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "..", "data"))

JAKARTA_LONGITUDE = 106 + 52 / 60
JAKARTA_LATITUDE = -(6 + 15 / 60)

# ---------------------------------------------------------------------------------------------
# Year rows
# ---------------------------------------------------------------------------------------------

# The treatise's constants, in minutes (alamah: minutes of the week; the others: minutes of arc).
EPOCH = [7 * 1440 + 14 * 60 + 4, (9 * 30 + 16) * 60 + 33, (10 * 30 + 26) * 60 + 13, (6 * 30 + 1) * 60 + 10, (2 * 30 + 23) * 60 + 14]
TEN_YEARS = [1 * 1440 + 16 * 60 + 5, (2 * 30 + 20) * 60 + 30, (7 * 30 + 8) * 60, (8 * 30 + 12) * 60 + 40, 8]
WEEK, CIRCLE = 7 * 1440, 360 * 60

# Printed rows: alamat (day hour minute), hishshah, khashshah, markaz, auj (buruj-darajah-minute).
PRINTED_COLLECTED = {
    1420: ("1 9 59", "9-08-03", "6-00-13", "10-12-30", "3-12-18"),
    1430: ("3 2 4", "11-28-33", "1-08-13", "6-25-10", "3-12-26"),
    1440: ("4 18 9", "2-19-03", "8-16-13", "3-07-50", "3-12-34"),
    1450: ("6 10 14", "5-09-33", "3-24-13", "11-20-30", "3-12-42"),
}
PRINTED_EXPANDED = {
    1: ("4 8 48", "0-08-03", "10-09-48", "11-19-16", "0-00-00"),
    2: ("1 17 37", "0-16-06", "8-19-36", "11-08-32", "0-00-02"),
    3: ("6 2 25", "0-24-09", "6-29-24", "10-27-48", "0-00-02"),
    4: ("3 11 14", "1-02-12", "5-09-12", "10-17-04", "0-00-03"),
    5: ("7 20 2", "1-10-15", "3-19-00", "10-06-20", "0-00-04"),
    6: ("5 4 51", "1-18-18", "1-28-48", "9-25-36", "0-00-05"),
    7: ("2 13 39", "1-26-21", "0-08-36", "9-14-52", "0-00-06"),
    8: ("6 22 28", "2-04-24", "10-18-24", "9-04-08", "0-00-06"),
    9: ("4 7 16", "2-12-27", "8-28-12", "8-23-24", "0-00-07"),
    10: ("1 16 5", "2-20-30", "7-08-00", "8-12-40", "0-00-08"),
}


def show_alamah(minutes):
    minutes %= WEEK
    day = minutes // 1440
    return "%d %d %d" % (day if day else 7, (minutes // 60) % 24, minutes % 60)


def show_arc(minutes):
    minutes %= CIRCLE
    return "%d-%02d-%02d" % (minutes // 1800, (minutes // 60) % 30, minutes % 60)


def collected(groups):
    """The epoch and the given number of ten-year groups."""
    return [EPOCH[i] + groups * TEN_YEARS[i] for i in range(5)]


def expanded(n):
    """The single-year rule with the treatise's flags (rounded minute steps, five rows)."""
    step = lambda c: round(n * c / 60 + 0.1)  # noqa: E731 (half to even, as the rule says)
    return [
        (4 * n) * 1440 + (8 * n) * 60 + 48 * n + step(30),
        (8 * n) * 60 + 2 * n + step(48),
        (10 * n * 30 + 9 * n) * 60 + 47 * n + step(54),
        (11 * n * 30 + 19 * n) * 60 + 16 * n,
        [0, 2, 2, 3, 4, 5, 6, 6, 7, 8][n - 1],
    ]


def differences(printed, reckoned):
    """Minutes by which the reckoned row differs from the printed one, element by element."""
    out = []
    for i, (p, r) in enumerate(zip(printed, reckoned)):
        if i == 0:
            d, h, m = (int(x) for x in p.split())
            value, modulus = (d % 7) * 1440 + h * 60 + m, WEEK
        else:
            b, d, m = (int(x) for x in p.split("-"))
            value, modulus = (b * 30 + d) * 60 + m, CIRCLE
        out.append((r - value + modulus // 2) % modulus - modulus // 2)
    return out


def check_years():
    print("Collected years (the row of year Y is the epoch and Y div 10 + 1 ten-year groups):")
    worst = 0
    for year, printed in PRINTED_COLLECTED.items():
        row = collected(year // 10 + 1)
        diff = differences(printed, row)
        worst = max(worst, max(abs(x) for x in diff))
        shown = [show_alamah(row[0])] + [show_arc(x) for x in row[1:]]
        print("  %d  %-8s %s  %s" % (year, shown[0], "  ".join(shown[1:]), diff))
    print("Expanded years (the single-year rule):")
    for n, printed in PRINTED_EXPANDED.items():
        row = expanded(n)
        diff = differences(printed, row)
        shown = [show_alamah(row[0])] + [show_arc(x) for x in row[1:]]
        print("  %2d    %-8s %s  %s" % (n, shown[0], "  ".join(shown[1:]), diff))
    print("Largest difference of a collected row: %d minute(s)" % worst)


# ---------------------------------------------------------------------------------------------
# Running falak
# ---------------------------------------------------------------------------------------------


def run_sullam(falak, year, month, place, data=DATA):
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, FALAK_DATA=data, FALAK_DATA_HOME=home)
        out = subprocess.run(
            [falak, "hisab", "--kitab", "SN", "--tahun", str(year), "--bulan", str(month), "--tempat", place, "--json"],
            env=env, capture_output=True, text=True, check=True,
        ).stdout
    result = json.loads(out)
    result["rows"] = {row["nama"]: row["sel"] for row in result["baris"]}
    return result


def fields(value):
    return [int(x) for x in value.split()]


def arc_degrees(value):
    f = fields(value)
    return f[0] * 30 + f[1] + f[2] / 60 + f[3] / 3600 + f[4] / 216000


def arc_text(value):
    f = fields(value)
    return "%d-%02d°%02d'%02d\"" % (f[0], f[1], f[2], f[3])


def ijtima_hours(value):
    """Hours of an alamah value after the sunset that begins its day."""
    f = fields(value)
    return f[5] + f[6] / 60 + f[7] / 3600 + f[8] / 216000


def check_examples(falak):
    cases = [
        ("End of Sya'ban 1434 H at Jakarta", 1434, "Jakarta",
         "Senin 8 Juli 2013 at 12.11; height 2° 54.5'; stay 11 m 38 s; sun in Saratan 15° 52'"),
        ("End of Sya'ban 1437 H at Kawunganten", 1437, "Kawunganten",
         "Ahad 5 Juni 2016 at 09.16.59 (WIB); distance 9° 50' 15\"; height about 4° 20'; "
         "stay about 17 m 20 s; light 37' 11\""),
    ]  # fmt: skip
    for title, year, place, printed in cases:
        r = run_sullam(falak, year, 8, place)
        rows = r["rows"]
        h = ijtima_hours(rows["Ijtima"][4])
        clock = (h + 18) % 24
        print(title)
        print("  printed : " + printed)
        print("  reckoned: ijtima' %02d:%02d:%02d (hours from sunset %s); Qomar %s; remaining arc %s;"
              % (int(clock), int(clock * 60) % 60, round(clock * 3600) % 60, rows["Ijtima"][4].split()[5:8],
                 arc_text(rows["Qomar"][2]), arc_text(rows["Saah"][2])))
        print("            height %s; stay %s; light %s; sun %s"
              % (arc_text(rows["Hilal"][4]), arc_text(rows["Hilal"][6]), arc_text(rows["Nur"][1]),
                 arc_text(rows["BudTaqwim"][4])))
        for line in r["kesimpulan"][1:9]:
            print("    " + line)


def clock_text(alamah):
    f = fields(alamah)
    return "%02d.%02d.%02d" % ((f[5] + 18) % 24, f[6], f[7])


def check_calibration(falak):
    """How the offset of the day's equation was chosen, and why the hourly motion is not Ptolemaic.

    The tables are made again in a scratch folder for each choice, and falak reckons the two
    published months on them.
    """
    import shutil

    printed = "printed: 1434 12.11.00-12.11.15 (height 2 54.5, stay 11 38); 1437 09.16.59 WIB"
    print(printed)
    for ptolemaic in (False, True):
        print("hourly motion: " + ("Ptolemaic epicycle at syzygy" if ptolemaic else "the moon's true motion (chosen)"))
        for tenths in range(0, 161, 5):
            offset = tenths / 10
            with tempfile.TemporaryDirectory() as data:
                for name in os.listdir(DATA):
                    if name.endswith(".csv"):
                        shutil.copy(os.path.join(DATA, name), data)
                options = ["--out", data, "--day-equation-offset", str(offset)]
                if ptolemaic:
                    options.append("--ptolemaic-hourly-motion")
                subprocess.run([sys.executable, os.path.join(HERE, "tables.py")] + options, check=True)
                a = run_sullam(falak, 1434, 8, "Jakarta", data)
                b = run_sullam(falak, 1437, 8, "Kawunganten", data)
                with open(os.path.join(data, "TRBTaadil.csv"), encoding="utf-8") as f:
                    day_equation = [int(x) for x in re.findall(r"^(?:[^,]*,){9}(-?\d+),", f.read(), re.M)]
            zone = re.search(r"WIS, +(\d\d\.\d\d)", b["kesimpulan"][3]).group(1)
            mark = " <- 12.11" if clock_text(a["rows"]["Ijtima"][4]).startswith("12.11") else ""
            if min(day_equation) < 0:
                mark += " (day's equation below zero: %d')" % min(day_equation)
            print("  offset %4.1f': 1434 %s height %s | 1437 %s WIS = %s WIB%s"
                  % (offset, clock_text(a["rows"]["Ijtima"][4]), arc_text(a["rows"]["Hilal"][4]),
                     clock_text(b["rows"]["Ijtima"][4]), zone, mark))


# ---------------------------------------------------------------------------------------------
# Which conjunction a treatise's year rows and these month rows give
# ---------------------------------------------------------------------------------------------

# Each treatise's alamah base and group row (minutes of the week), how it splits a year into
# groups and single years, whether its single years take the rounded minute step, and the
# longitude of its markaz.
def _week(day, hour, minute, second=0):
    return day * 1440 + hour * 60 + minute + second / 60


def _split(group, years_before_groups, first_year_offset):
    def split(year):
        y = year - first_year_offset
        return (y + years_before_groups) // group, (y + years_before_groups) % group
    return split


TREATISE_BASES = {
    "Sullam al-Nairoin": (_week(7, 14, 4), _week(1, 16, 5), _split(10, 10, 0), True, 106 + 52 / 60),
    "Fathu al-Ro'uf al-Mannan": (_week(3, 10, 58), _week(5, 0, 15), _split(30, 10, 1), False, 110 + 24 / 60),
    "Tadzkirotu al-Ikhwan": (_week(6, 0, 37, 33), _week(5, 0, 15), _split(30, 3, 1), False, 110 + 24 / 60),
    "Ittifaq Dzatu al-Bain": (_week(5, 3, 12), _week(5, 0, 15), _split(30, 0, 1), False, 112 + 46 / 60),
    "Faidlu al-Karim": (_week(5, 3, 14, 27), _week(5, 0, 15), _split(30, 0, 1), False, 113 + 15 / 60),
    "Khulashotu al-Wafiyah": (_week(2, 12, 8), _week(1, 16, 5), _split(10, 10, 1), False, 39 + 57 / 60),
}


def single_years_alamah(n, rounded):
    step = round(n * 30 / 60 + 0.1) if rounded else n * 30 // 60
    return _week(4 * n, 8 * n, 48 * n + step) if n else 0


def mean_new_moon_in_alamah(k, longitude):
    """Meeus's mean new moon k as minutes of the alamah week at a meridian (local mean time)."""
    t = k / 1236.85
    ut = 2451550.09766 + 29.530588861 * k + 0.00015437 * t * t - DELTA_T
    return ((ut + longitude / 360 + 0.25 + 1.5) % 7 + 1) * 1440


def check_bases():
    """For every treatise: its alamah sum for month m set beside the mean new moons that end and
    that open month m, in local mean time of its markaz, over 1440 to 1446 H."""
    import csv

    with open(os.path.join(DATA, "TRBSyahru.csv"), encoding="utf-8") as f:
        # The treatises read the month's alamah to the minute.
        months = {int(r["Cari"]): _week(*(int(r[c]) for c in ("alHari", "alSah", "alQoh"))) for r in csv.DictReader(f)}
    def hm(hours):
        sign = "-" if hours < 0 else "+"
        minutes = abs(hours) * 60
        return "%s%d h %04.1f m" % (sign, minutes // 60, minutes % 60)

    print("alamah sum after the mean new moon (mean, least and greatest over 84 months):")
    for name, (base, group, split, rounded, longitude) in TREATISE_BASES.items():
        ends, opens = [], []
        for year in range(1440, 1447):
            groups, single = split(year)
            for month in range(1, 13):
                alamah = (base + groups * group + single_years_alamah(single, rounded) + months[month]) % WEEK
                # Meeus's lunation k of the conjunction that ends month m of the year.
                k = round((((year - 1) * 12 + month) * 29.530589 + 1948439.5 - 2451550.09766) / 29.530588861)
                for k_, out in ((k, ends), (k - 1, opens)):
                    out.append(((alamah - mean_new_moon_in_alamah(k_, longitude) + WEEK / 2) % WEEK - WEEK / 2) / 60)
        print("  %-26s ends month m: %s (%s, %s)   opens month m: %s (%s, %s)"
              % (name, hm(statistics.mean(ends)), hm(min(ends)), hm(max(ends)),
                 hm(statistics.mean(opens)), hm(min(opens)), hm(max(opens))))


# ---------------------------------------------------------------------------------------------
# Against the sky
# ---------------------------------------------------------------------------------------------

MONTHS = {"Jan": 1, "Feb": 2, "Mar": 3, "Apr": 4, "Mei": 5, "Jun": 6, "Jul": 7, "Agu": 8, "Sep": 9, "Okt": 10,
          "Nov": 11, "Des": 12}  # fmt: skip


def julian_day(year, month, day, hour=0.0):
    if month <= 2:
        year -= 1
        month += 12
    a = year // 100
    return int(365.25 * (year + 4716)) + int(30.6001 * (month + 1)) + day + 2 - a + a // 4 - 1524.5 + hour / 24


class Sky:
    def __init__(self, program):
        self.p = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def ask(self, *words):
        self.p.stdin.write(" ".join("%.8f" % w if isinstance(w, float) else str(w) for w in words) + "\n")
        self.p.stdin.flush()
        return [float(x) for x in self.p.stdout.readline().split()]


def sullam_moment(result):
    """Julian day (UT) of the treatise's ijtima' at Jakarta, its height, and the civil day it names."""
    line = result["kesimpulan"][2]
    m = re.search(r"(\d+) (\w+) (\d+) M\.", line)
    day, month, year = int(m.group(1)), MONTHS[m.group(2)], int(m.group(3))
    hours = ijtima_hours(result["rows"]["Ijtima"][4])
    # The alamah day begins at the sunset (18:00) of the civil day before the one it names.
    apparent = julian_day(year, month, day, hours - 6)
    height = arc_degrees(result["rows"]["Hilal"][4])
    return apparent, height, (year, month, day)


def to_universal(sky, apparent_local):
    """Local apparent time at Jakarta's meridian, as a Julian day, to Universal Time."""
    ut = apparent_local - JAKARTA_LONGITUDE / 360
    for _ in range(3):
        eot = sky.ask("eot", ut)[0]
        ut = apparent_local - JAKARTA_LONGITUDE / 360 - eot / 1440
    return ut


DELTA_T = 69.2 / 86400  # Terrestrial less Universal Time over these years, days


def alamah_lead(alamah, near):
    """Minutes by which the treatise's mean conjunction (its alamah sum) runs after Meeus's mean
    new moon of the lunation near the given day, both in local mean time of Jakarta."""
    f = fields(alamah)
    alamah_minutes = f[4] * 1440 + f[5] * 60 + f[6] + f[7] / 60
    k = round((near - 2451550.09766) / 29.530588861)
    t = k / 1236.85
    mean_ut = 2451550.09766 + 29.530588861 * k + 0.00015437 * t * t - DELTA_T
    # Days of the week from the sunset (18:00 local mean time) that begins Ahad, day 1.
    since_saturday_sunset = (mean_ut + JAKARTA_LONGITUDE / 360 + 0.25 + 1.5) % 7
    mean_minutes = (since_saturday_sunset + 1) * 1440
    return (alamah_minutes - mean_minutes + WEEK / 2) % WEEK - WEEK / 2


def check_sky(falak, efemeris):
    sky = Sky(efemeris)
    rows = []
    for year in range(1440, 1447):
        for month in range(1, 13):
            result = run_sullam(falak, year, month, "Jakarta")
            apparent, height, civil = sullam_moment(result)
            ut = to_universal(sky, apparent)
            true = sky.ask("conj", ut)[0]
            lead = alamah_lead(result["rows"]["Jumlah"][0], true)
            # The treatise's hilal stands at the sunset that ends the day it names.
            noon = julian_day(*civil, 12 - JAKARTA_LONGITUDE / 15)
            sunset = sky.ask("sunset", noon, JAKARTA_LONGITUDE, JAKARTA_LATITUDE)[0]
            moon, _sun, _elongation, topo = sky.ask("alt", sunset, JAKARTA_LONGITUDE, JAKARTA_LATITUDE)
            rows.append((year, month, civil, (ut - true) * 1440, height, moon, topo, lead))
    print("H year m  civil day    Sullam-true  Sullam height  geocentric  topocentric  alamah-mean NM")
    for year, month, civil, dt, h, moon, topo, lead in rows:
        print("%d %2d  %04d-%02d-%02d   %7.1f m     %6.2f°      %6.2f°     %6.2f°     %6.1f m"
              % (year, month, *civil, dt, h, moon, topo, lead))
    dts = [r[3] for r in rows]
    dhs = [r[4] - r[5] for r in rows]
    print("ijtima' Sullam less true conjunction, minutes: mean %.1f, median %.1f, least %.1f, greatest %.1f, "
          "standard deviation %.1f; before the true one in %d of %d months"
          % (statistics.mean(dts), statistics.median(dts), min(dts), max(dts), statistics.pstdev(dts),
             sum(1 for x in dts if x < 0), len(dts)))
    print("height Sullam less geocentric airless, degrees: mean %+.2f, least %+.2f, greatest %+.2f, "
          "mean absolute %.2f; higher in %d of %d months"
          % (statistics.mean(dhs), min(dhs), max(dhs), statistics.mean(abs(x) for x in dhs),
             sum(1 for x in dhs if x > 0), len(dhs)))
    dts = [r[4] - r[6] for r in rows]
    print("height Sullam less topocentric airless, degrees: mean %+.2f, least %+.2f, greatest %+.2f; higher in %d of %d"
          % (statistics.mean(dts), min(dts), max(dts), sum(1 for x in dts if x > 0), len(dts)))
    leads = [r[7] for r in rows]
    print("alamah sum after the mean new moon, minutes: mean %.1f, least %.1f, greatest %.1f"
          % (statistics.mean(leads), min(leads), max(leads)))


def check_zone_table(efemeris=None):
    """TafawutWIB's cells against the model and the calendar rule that gives them their sign, and
    the model against the Swiss Ephemeris when the checking tool is given."""
    import csv

    sys.path.insert(0, HERE)
    import tables

    with open(os.path.join(DATA, "TafawutWIB.csv"), encoding="utf-8") as f:
        rows = {int(r["tgl"]): r for r in csv.DictReader(f)}
    disagree = []
    for month in range(1, 13):
        name = tables.MONTH_COLUMNS[month - 1]
        for day in range(1, 32):
            cell = rows[day][name + "1"]
            if cell == "":
                continue
            stored = int(cell) * 60 + int(rows[day][name + "2"])
            signed = tables.mean_equation_of_time(month, day) * 60
            wrong_sign = (signed < 0) != tables.rule_says_negative(month, day)
            expected = 0 if wrong_sign else abs(signed)
            if abs(stored - expected) > 0.5:
                raise SystemExit("TafawutWIB %d/%d holds %d s, expected %.1f s" % (day, month, stored, expected))
            if wrong_sign:
                disagree.append("%d/%d %+.0f s" % (day, month, signed))
    print("TafawutWIB agrees with its model to the second.")
    print("Days on which the calendar rule's sign differs from the sky (cell 0): %d (%s)"
          % (len(disagree), ", ".join(disagree)))
    if efemeris:
        sky = Sky(efemeris)
        worst = 0.0
        for year in tables.ZONE_TABLE_YEARS:
            for month in range(1, 13):
                for day in range(1, 29):
                    jd = julian_day(year, month, day, tables.ZONE_TABLE_HOUR_UT)
                    worst = max(worst, abs(sky.ask("eot", jd)[0] - tables.model.equation_of_time(jd)) * 60)
        print("Smart's formula against the Swiss Ephemeris, %d-%d: largest difference %.1f s"
              % (tables.ZONE_TABLE_YEARS[0], tables.ZONE_TABLE_YEARS[-1], worst))


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("what", choices=["years", "bases", "examples", "calibrate", "sky", "zone"])
    parser.add_argument("--falak", help="the falak program (built from this tree)")
    parser.add_argument("--efemeris", help="the checking tool built from efemeris.c")
    args = parser.parse_args(argv)
    if args.what == "years":
        check_years()
    elif args.what == "bases":
        check_bases()
    elif args.what == "examples":
        check_examples(args.falak)
    elif args.what == "calibrate":
        check_calibration(args.falak)
    elif args.what == "zone":
        check_zone_table(args.efemeris)
    else:
        check_sky(args.falak, args.efemeris)
    return 0


if __name__ == "__main__":
    sys.exit(main())
