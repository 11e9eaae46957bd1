#!/usr/bin/env python3
"""Writes the printed tables of the taqribi treatises: TRBSyahru, TRBTaadil and TafawutWIB.

    python3 tools/tables/tables.py            # writes data/TRBSyahru.csv, TRBTaadil.csv, TafawutWIB.csv
    python3 tools/tables/tables.py --out DIR  # writes them into DIR instead

The astronomy lives in model.py; this file turns it into rows and columns. Every number written
comes from a function below and the parameters at the top; data/README.md tells the meaning of
every column. Columns that other generators write into the same tables (such as tdThMasehi,
from taqribi_fr.py) are kept as the files hold them. Only the Python standard library is
needed.
"""

import argparse
import calendar
import csv
import io
import math
import os
import sys
from fractions import Fraction

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import model  # noqa: E402
from model import sexagesimal  # noqa: E402

# ---------------------------------------------------------------------------------------------
# Parameters of the equation tables
# ---------------------------------------------------------------------------------------------

# Each equation table gives positive values only: the signed equation plus a fixed offset, which
# the treatise's epoch takes back. The offset of the moon's and of the sun's table is the greatest
# equation itself, so each table runs from 0 to twice its greatest equation. (The printed sun's
# place of Sya'ban 1434 and the printed distance of the luminaries of Sya'ban 1437 would want the
# two offsets together some 12 minutes smaller; the moon's table would then fall below zero near
# 95 degrees of khossyoh, which a table of positive entries cannot hold.)
OFFSET_KHOSSYOH = model.MOON_GREATEST_EQUATION  # code 1, 5 01 11
OFFSET_MARKAZ = model.SUN_GREATEST_EQUATION  # code 2, 1 55 53

# The hilal's light gains four minutes for every degree of the moon's latitude, as its stay
# gains four minutes for every degree of its height: the crescent's light is its distance from
# the sun over fifteen, in fingers (twelve fingers at 180 degrees), and a finger is written as a
# degree of the value, so a degree of distance is four minutes of light.
LIGHT_PER_DEGREE_OF_LATITUDE = 4  # minutes (code 3)

# The day's equation (code 5): the equation of time of the zij's sun, in minutes of time, turned
# into the arc of elongation the moon gains in that time at its mean rate (0 30 29 an hour), plus
# a fixed offset in minutes of arc. The offset is the one constant of the reconstruction that
# the astronomy does not give: it is the whole minute that brings the printed ijtima' of
# Sya'ban 1434 (Senin 8 Juli 2013 at 12.11, height 2 54.5, stay 11 m 38 s) out of these tables,
# and it keeps the table positive (least value 2 minutes, in February).
OFFSET_DAY_EQUATION = 9.0  # minutes of arc
# The sun's apogee for the equation of days: the treatise's auj of 1440 H (03 12 34).
DAY_EQUATION_APOGEE = float(sexagesimal(3 * 30 + 12, 34))

# The moon's hours per degree of elongation (codes 4 and 6): from its true hourly motion.
HOURS_PER_DEGREE = model.hours_per_degree

# The equation of time of today's calendar (TafawutWIB): the mean of the years of one leap
# cycle, at 05:00 Universal Time (noon of the WIB zone). The table holds magnitudes; the program
# gives the sign by its calendar rule (negative in January, February, March, July and August,
# in April before the 15th, in June after the 14th, in September before the 3rd and in December
# after the 26th). On the few days next to a change of sign where that rule and the sky
# disagree, the cell holds 0, the value that errs least under the rule's sign.
ZONE_TABLE_YEARS = (2024, 2025, 2026, 2027)
ZONE_TABLE_HOUR_UT = 5.0


# ---------------------------------------------------------------------------------------------
# Small helpers
# ---------------------------------------------------------------------------------------------


def round_half_up(x):
    return math.floor(x + 0.5)


def split_fields(value, unit_count):
    """Splits an exact non-negative quantity into whole sexagesimal fields.

    value is in the unit of the first field; unit_count the number of fields. The last field
    must come out whole (the inputs here are exact).
    """
    fields = []
    for i in range(unit_count):
        whole = math.floor(value)
        fields.append(whole)
        value = (value - whole) * 60
    if value != 0:
        raise ValueError("value does not end in whole units of its last field")
    return fields


def arc_fields(degrees, count):
    """Buruj, darojah and then count - 2 sexagesimal fields of an exact angle on the circle."""
    degrees = Fraction(degrees) % 360
    buruj = math.floor(degrees / 30)
    return [buruj] + split_fields(degrees - 30 * buruj, count - 1)


def rounded_fields(value, count):
    """A non-negative float split into count sexagesimal fields, rounded in the last one."""
    units = round_half_up(value * 60 ** (count - 1))
    fields = []
    for _ in range(count - 1):
        fields.append(units % 60)
        units //= 60
    fields.append(units)
    return list(reversed(fields))


def read_csv(path):
    """Header and rows of a table file, or None when there is none."""
    if not os.path.exists(path):
        return None
    with open(path, encoding="utf-8-sig", newline="") as f:
        table = [row for row in csv.reader(f) if row]
    return table[0], table[1:]


def merge_other_columns(path, header, rows):
    """Keeps what other generators wrote into the same table.

    The columns of header are this generator's; any other column of the file already there is
    kept, after these, with its cells matched by the key (the first column). Rows of the file
    whose key this generator does not write are kept at the end, in their order, with this
    generator's columns empty.
    """
    existing = read_csv(path)
    if existing is None:
        return header, rows
    old_header, old_rows = existing
    old_key = old_header.index(header[0])
    others = [i for i, name in enumerate(old_header) if name not in header]
    by_key = {}
    for row in old_rows:
        by_key.setdefault(row[old_key], row)
    merged = []
    written = set()
    for row in rows:
        key = str(row[0])
        written.add(key)
        old = by_key.get(key, [])
        merged.append(list(row) + [old[i] if i < len(old) else "" for i in others])
    for row in old_rows:
        if row[old_key] not in written:
            # A key of another generator only: this generator's columns stay empty in it.
            mine = [row[old_key]] + [""] * (len(header) - 1)
            merged.append(mine + [row[i] if i < len(row) else "" for i in others])
            written.add(row[old_key])
    return header + [old_header[i] for i in others], merged


def write_csv(path, header, rows, verify=False):
    """UTF-8, comma-separated, quoted only where needed, LF line ends. With verify the file is
    not written: True when it already holds exactly this."""
    header, rows = merge_other_columns(path, header, rows)
    buffer = io.StringIO()
    writer = csv.writer(buffer, lineterminator="\n", quoting=csv.QUOTE_MINIMAL)
    writer.writerow(header)
    for row in rows:
        writer.writerow(["" if cell is None else cell for cell in row])
    if verify:
        with open(path, encoding="utf-8", newline="") as f:
            return f.read() == buffer.getvalue()
    with open(path, "w", encoding="utf-8", newline="") as f:
        f.write(buffer.getvalue())
    return True


# ---------------------------------------------------------------------------------------------
# TRBSyahru: the motions of whole lunations
# ---------------------------------------------------------------------------------------------

SYAHRU_BASE_COLUMNS = [
    "mshTh", "mshBln", "mshTgl", "Pasaran", "Hari",
    "alHari", "alSah", "alQoh", "alNii", "alLis",
    "hsBrj", "hsJah", "hsQoh", "hsNii",
    "wsBrj", "wsJah", "wsQoh", "wsNii",
    "ksBrj", "ksJah", "ksQoh", "ksNii", "ksLis",
    "mrBrj", "mrJah", "mrQoh", "mrNii",
]  # fmt: skip
SYAHRU_COLUMNS = ["Cari"] + SYAHRU_BASE_COLUMNS + [c + "GB" for c in SYAHRU_BASE_COLUMNS]


def masehi_fields(days):
    """Whole days of the motion as years and months of 30 days, days, pasaran and weekday.

    days may be negative (the full moon half a lunation before the year's conjunction): the
    day field then stays negative and pasaran and weekday are its remainders, 0 to 4 and 0 to 6.
    """
    whole = math.floor(days)
    if whole < 0:
        return [0, 0, whole, whole % 5, whole % 7]
    return [whole // 360, (whole % 360) // 30, whole % 30, whole % 5, whole % 7]


def alamah_fields(days):
    """Weekday, hour, minute, second and third of a motion in days, the week taken off."""
    days = Fraction(days) % 7
    weekday = math.floor(days)
    return [weekday] + split_fields((days - weekday) * 24, 4)


def motion_fields(lunations):
    """The columns of one motion of the given (possibly fractional) number of lunations."""
    days = lunations * model.per_lunation("alamah_days")
    return (
        masehi_fields(days)
        + alamah_fields(days)
        + arc_fields(lunations * model.per_lunation("hishshoh"), 4)
        + arc_fields(lunations * model.per_lunation("wasath"), 4)
        + arc_fields(lunations * model.per_lunation("khossyoh"), 5)
        + arc_fields(lunations * model.per_lunation("markaz"), 4)
    )


def syahru_rows():
    """Month m adds m - 1 lunations; its eclipse form (GB) half a lunation less."""
    rows = []
    for month in range(1, 13):
        lunations = Fraction(month - 1)
        rows.append([month] + motion_fields(lunations) + motion_fields(lunations - Fraction(1, 2)))
    return rows


# ---------------------------------------------------------------------------------------------
# TRBTaadil: the equation tables (codes 1 to 6) and the lunar mansions
# ---------------------------------------------------------------------------------------------

TAADIL_COLUMNS = [
    "Cari", "tdKsJah", "tdKsQoh", "tdMrJah", "tdMrQoh", "ArQoh", "ArNii", "hsJah1", "hsQoh1",
    "dqMsQoh", "hsJah", "hsQoh", "hsNii", "mnJah", "mn",
]  # fmt: skip


def khossyoh_equation(khossyoh):
    """Code 1: the moon's equation with its offset, degrees."""
    return OFFSET_KHOSSYOH - model.moon_equation(khossyoh)


def markaz_equation(markaz):
    """Code 2: the sun's equation with its offset, degrees."""
    return OFFSET_MARKAZ + model.sun_equation(markaz)


def latitude_light(hishshoh):
    """Code 3: the hilal's light from the moon's latitude, minutes of arc."""
    return LIGHT_PER_DEGREE_OF_LATITUDE * abs(model.moon_latitude(hishshoh))


def day_equation(sun_longitude):
    """Code 5: the day's equation as minutes of arc of elongation, with its offset."""
    minutes_of_time = model.equation_of_days(sun_longitude, DAY_EQUATION_APOGEE)
    return OFFSET_DAY_EQUATION + minutes_of_time * model.mean_elongation_per_hour()


# The twenty-eight mansions of the moon, twelve and six sevenths degrees each, the first at the
# beginning of Aries.
MANSIONS = [
    "الشرطين", "البطين", "الثريا", "الدبران", "الهقعة", "الهنعة", "الذراع",
    "النثرة", "الطرف", "الجبهة", "الزبرة", "الصرفة", "العواء", "السماك",
    "الغفر", "الزبانى", "الإكليل", "القلب", "الشولة", "النعائم", "البلدة",
    "سعد الذابح", "سعد بلع", "سعد السعود", "سعد الأخبية", "الفرغ المقدم", "الفرغ المؤخر", "بطن الحوت",
]  # fmt: skip
MANSION_WIDTH = Fraction(360, 28)


def mansion_of(longitude):
    """The mansion of a whole degree of longitude, and the whole degrees already run in it."""
    index = math.floor(Fraction(longitude) / MANSION_WIDTH)
    within = math.floor(Fraction(longitude) - index * MANSION_WIDTH)
    return within, MANSIONS[index]


def mansion_key_longitude(key):
    """The longitude of a mansion key buruj x 31 + darojah, or None for keys of no degree."""
    buruj, darojah = divmod(key, 31)
    if darojah > 29 or buruj > 11:
        return None
    return 30 * buruj + darojah


def taadil_row(key):
    row = {"Cari": key}
    if 1 <= key <= 360:
        argument = key % 360
        row["tdKsJah"], row["tdKsQoh"] = rounded_fields(khossyoh_equation(argument), 2)
        row["tdMrJah"], row["tdMrQoh"] = rounded_fields(markaz_equation(argument), 2)
        light = rounded_fields(latitude_light(argument) / 60, 3)
        row["ArQoh"], row["ArNii"] = light[0] * 60 + light[1], light[2]
        if key % 5 == 0:
            hours = HOURS_PER_DEGREE(argument)
            row["hsJah1"], row["hsQoh1"] = rounded_fields(hours, 2)
            row["hsJah"], row["hsQoh"], row["hsNii"] = rounded_fields(hours, 3)
            row["dqMsQoh"] = round_half_up(day_equation(argument))
    longitude = mansion_key_longitude(key)
    if longitude is not None:
        row["mnJah"], row["mn"] = mansion_of(longitude)
    return [row.get(c) for c in TAADIL_COLUMNS]


def taadil_rows():
    """Keys 0 to 370: the degrees 1 to 360 and the mansion keys, one row a key."""
    return [taadil_row(key) for key in range(0, 11 * 31 + 30)]


# ---------------------------------------------------------------------------------------------
# TafawutWIB: the equation of time by the day of the year
# ---------------------------------------------------------------------------------------------

MONTH_COLUMNS = ["Jan", "Peb", "Mar", "Apr", "Mei", "juni", "juli", "Agus", "Sept", "Okt", "Nop", "Des"]
TAFAWUT_COLUMNS = ["tgl"] + [name + half for name in MONTH_COLUMNS for half in ("1", "2")]


def mean_equation_of_time(month, day):
    """Equation of time of a calendar day, minutes, over the years of the leap cycle that have it."""
    values = [
        model.equation_of_time(model.julian_day(year, month, day, ZONE_TABLE_HOUR_UT))
        for year in ZONE_TABLE_YEARS
        if day <= calendar.monthrange(year, month)[1]
    ]
    return sum(values) / len(values)


def rule_says_negative(month, day):
    """The program's calendar rule for the sign of the equation of time."""
    return (
        month in (1, 2, 3, 7, 8)
        or (month == 4 and day < 15)
        or (month == 6 and day > 14)
        or (month == 9 and day < 3)
        or (month == 12 and day > 26)
    )


def zone_table_seconds(month, day):
    """The cell of a day: the equation of time in whole seconds, 0 where the rule's sign is wrong."""
    value = mean_equation_of_time(month, day)
    if (value < 0) != rule_says_negative(month, day):
        return 0
    return round_half_up(abs(value) * 60)


def tafawut_rows():
    rows = []
    for day in range(1, 32):
        row = [day]
        for month in range(1, 13):
            if day > max(calendar.monthrange(y, month)[1] for y in ZONE_TABLE_YEARS):
                row += [None, None]
                continue
            seconds = zone_table_seconds(month, day)
            row += [seconds // 60, seconds % 60]
        rows.append(row)
    return rows


# ---------------------------------------------------------------------------------------------


def main(argv=None):
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", default=os.path.normpath(os.path.join(here, "..", "..", "data")))
    parser.add_argument("--verify", action="store_true", help="fail unless the files hold what would be written")
    # For the calibration study only (check_sullam.py calibrate): other choices than the ones made.
    parser.add_argument("--day-equation-offset", type=float, help=argparse.SUPPRESS)
    parser.add_argument("--ptolemaic-hourly-motion", action="store_true", help=argparse.SUPPRESS)
    args = parser.parse_args(argv)
    global OFFSET_DAY_EQUATION, HOURS_PER_DEGREE
    if args.day_equation_offset is not None:
        OFFSET_DAY_EQUATION = args.day_equation_offset
    if args.ptolemaic_hourly_motion:
        HOURS_PER_DEGREE = model.hours_per_degree_ptolemaic
    os.makedirs(args.out, exist_ok=True)
    tables = [("TRBSyahru.csv", SYAHRU_COLUMNS, syahru_rows()), ("TRBTaadil.csv", TAADIL_COLUMNS, taadil_rows()),
              ("TafawutWIB.csv", TAFAWUT_COLUMNS, tafawut_rows())]
    stale = [name for name, header, rows in tables if not write_csv(os.path.join(args.out, name), header, rows, args.verify)]
    for name in stale:
        print(f"{name} is not what the generator writes", file=sys.stderr)
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
