#!/usr/bin/env python3
"""Writes the tables of the precise (tahqiqi) books Badi'atu al-Mitsal and Nuru al-Anwar:

    TQQthMab.csv        the motion of 1 to 29 single years
    TQQSyahru.csv       the motion from the first of Muharram to the first of each month
    TQQYaumTam.csv      the motion of the days run to the evening of the ijtima'
    TQQSaah.csv         the motion of whole hours
    TQQDaqoiqAhTaf.csv  the motion of minutes, and the daqa'iq tafawut by the sun's degree
    TQQTaadil.csv       the equations, the hourly motions and the right ascension

    python3 tools/tables/tahqiqi.py            write them into data/
    python3 tools/tables/tahqiqi.py --verify   fail unless data/ holds what it would write
    python3 tools/tables/tahqiqi.py --ofset    print the books' elements against the modern ones

Everything follows from three things, told in data/README.md:

1. The books' own mean motions. The thirty-year row (10631 days) of each element, with its
   whole turns restored, divided by 10631 gives the daily motion; the books' stated daily
   motions (0 59 8, 13 10 35, 13 3 54, 0 3 11) are these rounded to the second. Every motion
   table is a number of days or hours times that rate, rounded to the second.
2. The books' epoch. Set beside the modern mean elements (Meeus, Astronomical Algorithms,
   ch. 47, with dT = 69 s), the epoch carried to 1445 H stands at mean noon of the table's day
   at 112 13 E: the elements hold at noon, the astronomers' day of the European tables. The
   small differences that remain there (the books' anomalies and node) are measured once and
   taken into the equation tables, so that each table read at the book's argument gives the
   equation of the true argument.
3. The inequalities of the eighteenth- and nineteenth-century solar and lunar tables, with
   their standard amplitudes, in the order the books correct: each table is read at the
   argument the book builds for it. Tables without a degrees column carry a fixed constant
   that keeps them positive; the constants of the moon's longitude are taken back in the
   equation of the centre, which, as the sun's equation, is kept as a signed angle (a negative
   equation is written as 360 less it, which the buruj arithmetic adds as a subtraction).

Only the Python standard library is used.
"""
import csv
import io
import math
import os
import sys
from fractions import Fraction

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "..", "data"))
RAD = math.pi / 180


def sx(d, m=0, s=0):
    return Fraction(d) + Fraction(m, 60) + Fraction(s, 3600)


# --- The books' constants ----------------------------------------------------------------------
ELEMEN = ("ws", "ks", "wq", "kq", "uq")  # the sun's mean place and anomaly, the moon's, the node
KOLOM = {"ws": ("wsBrjS", "wsJahS", "wsQohS", "wsNiiS"), "ks": ("ksBrjS", "ksJahS", "ksQohS", "ksNiiS"),
         "wq": ("wsBrjQ", "wsJahQ", "wsQohQ", "wsNiiQ"), "kq": ("ksBrjQ", "ksJahQ", "ksQohQ", "ksNiiQ"),
         "uq": ("uqdBrjQ", "uqdJahQ", "uqdQohQ", "uqdNiiQ")}
HARI_DAWR = 10631  # days of thirty lunar years
# The thirty-year row of each element, whole turns restored.
DAWR = {"ws": 29 * 360 + sx(38, 24, 58), "ks": 29 * 360 + sx(37, 53, 11), "wq": 389 * 360 + sx(38, 16, 30),
        "kq": 385 * 360 + sx(293, 53, 46), "uq": 1 * 360 + sx(202, 57, 56)}
# The daily motions the books state, which the rates must give to the second.
HARIAN = {"ws": sx(0, 59, 8), "ks": sx(0, 59, 8), "wq": sx(13, 10, 35), "kq": sx(13, 3, 54), "uq": sx(0, 3, 11)}
# Badi'atu al-Mitsal's epoch (weekday 5 of the alamah), its elements in degrees.
MABDA = {"ws": sx(115, 5, 32), "ks": sx(36, 58, 38), "wq": sx(129, 55, 4), "kq": sx(116, 16, 5),
         "uq": sx(233, 1, 37)}
BUJUR_JADWAL = 112 + 13 / 60  # the tables' longitude
KABISAT = (2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29)  # the long years of the thirty
MIRING = 23.45  # the books' obliquity, for the right ascension
HARI_SAAT_UKUR = 1445  # the year at whose first day the books' elements are set beside the modern

RATE = {e: DAWR[e] / HARI_DAWR for e in ELEMEN}


def hari_tahun(n):
    """Days of the first n lunar years of the cycle."""
    return sum(355 if (i % 30 or 30) in KABISAT else 354 for i in range(1, n + 1))


def hari_bulan(m):
    """Days from the first of Muharram to the first of month m (months of 30 and 29 days)."""
    return sum(30 if i % 2 else 29 for i in range(1, m))


# --- Fields ------------------------------------------------------------------------------------
def detik(x, n=2):
    """A non-negative exact or float quantity as whole units of its n-th sexagesimal field,
    rounded half up."""
    return math.floor(Fraction(x) * 60 ** n + Fraction(1, 2))


def busur(deg):
    """Buruj, darojah, daqiqoh, tsaniyah of an angle on the circle, rounded to the second."""
    s = detik(Fraction(deg) % 360) % (360 * 3600)
    return [s // 108000, s // 3600 % 30, s // 60 % 60, s % 60]


def pecah(x, fields):
    """A non-negative quantity in the given number of fields below its first (degrees or
    minutes), rounded in the last: [whole, minutes, seconds ...]."""
    u = detik(x, fields)
    out = []
    for _ in range(fields):
        out.append(u % 60)
        u //= 60
    return [u] + out[::-1]


# --- Modern mean elements ------------------------------------------------------------------------
DT_HARI = 69 / 86400  # dynamical less universal time


def unsur_modern(jd_ut):
    """Mean elements (Meeus ch. 47 and 25) as the books count them: anomalies from the apogee,
    the node counted backwards ('uqdah = -node)."""
    t = (jd_ut + DT_HARI - 2451545.0) / 36525
    lp = 218.3164477 + 481267.88123421 * t - 0.0015786 * t * t
    m = 357.5291092 + 35999.0502909 * t - 0.0001536 * t * t
    mp = 134.9633964 + 477198.8675055 * t + 0.0087414 * t * t
    om = 125.0445479 - 1934.1362891 * t + 0.0020754 * t * t
    l0 = 280.46646 + 36000.76983 * t + 0.0003032 * t * t
    return {"ws": l0 % 360, "ks": (m + 180) % 360, "wq": lp % 360, "kq": (mp + 180) % 360, "uq": (-om) % 360}


JD_MABDA = 1948438.5  # Thursday 15 July 622 (Julian), the alamah's weekday 5


def unsur_kitab(hari):
    return {e: float((MABDA[e] + hari * RATE[e]) % 360) for e in ELEMEN}


def ofset():
    """The book's elements less the modern ones at mean noon at 112 13 E of the first day of
    HARI_SAAT_UKUR by the tables (degrees, folded into -180 .. 180)."""
    hari = hari_tahun((HARI_SAAT_UKUR - 1) % 30) + (HARI_SAAT_UKUR - 1) // 30 * HARI_DAWR
    jd = JD_MABDA + hari + 0.5 - BUJUR_JADWAL / 360
    kitab, modern = unsur_kitab(hari), unsur_modern(jd)
    return {e: (kitab[e] - modern[e] + 180) % 360 - 180 for e in ELEMEN}


OFSET = ofset()


def apogee():
    """The sun's apogee by the book, mean sun less anomaly, on the measuring day."""
    hari = hari_tahun((HARI_SAAT_UKUR - 1) % 30) + (HARI_SAAT_UKUR - 1) // 30 * HARI_DAWR
    u = unsur_kitab(hari)
    return (u["ws"] - u["ks"]) % 360


APOGEE = apogee()

# --- The inequalities (degrees), with their standard amplitudes ---------------------------------
# Arguments from the perigee: the books count the anomalies from the apogee.
SUN_C = (1.914602, 0.019993, 0.000289)  # the sun's equation of the centre, sin M, 2M, 3M
ABERASI = 20.5 / 3600  # the sun's apparent place lies this far behind its geometric one
MOON_C = (6.288774, 0.213618)  # the moon's equation of the centre, sin M', 2M'
EVEKSI = 1.274027  # sin(2D - M')
VARIASI = 0.658314  # sin 2D
TAHUNAN = 0.185116  # annual equation, -sin M
REDUKSI = 0.114332  # reduction to the ecliptic, -sin 2F
SIMPUL = 0.15  # the node's annual equation, the node's longitude less this times sin M

# The constants that keep the tables of minutes positive (degrees).
C9, C11, C14, C15 = sx(0, 12), sx(0, 12), sx(0, 10), sx(0, 7)
C13 = sx(0, 40)
# The evection's table carries 7 degrees: with them the moon's centre, which takes every
# constant back, stays below zero on the whole circle and never crosses the wrap of its table.
C10 = sx(7)
# The hourly tables of Nuru al-Anwar: the constants of the evection's and the variation's share.
C19, C20 = sx(0, 0, 40), sx(0, 0, 45)

# The moon's mean daily motions (modern), for the hourly tables.
N_QOMAR, N_KHOSSOH, N_BUD, N_SYAMS = 13.176396, 13.064993, 12.190749, 0.985647


def anomali_syams(x):
    return (x - OFSET["ks"] - 180) * RAD  # mean anomaly from the perigee at the book's argument x


def anomali_qomar(x):
    return (x - OFSET["kq"] - 180) * RAD


def persamaan_syams(x):
    """Code 8: true less mean sun (apparent place), less the book's own offset of the mean sun."""
    m = anomali_syams(x)
    c = SUN_C[0] * math.sin(m) + SUN_C[1] * math.sin(2 * m) + SUN_C[2] * math.sin(3 * m)
    return c - ABERASI - OFSET["ws"]


def tahunan(x):
    """Code 9: the annual equation of the moon, read at the sun's anomaly."""
    return float(C9) - TAHUNAN * math.sin(anomali_syams(x))


def arg_eveksi(x):
    """2D - M' (radians) at the book's argument x = 2 (mean moon - true sun) - anomaly: the mean
    moon stands the book's offset ahead, the true sun the aberration behind, and the anomaly
    is counted from the apogee with its own offset."""
    return (x + 180 + OFSET["kq"] - 2 * (OFSET["wq"] + ABERASI)) * RAD


def eveksi(x):
    """Code 10: the evection, read at 2 (moon - true sun) - anomaly."""
    return float(C10) + EVEKSI * math.sin(arg_eveksi(x))


def tahunan_khossoh(x):
    """Code 11: the anomaly's annual term. The perigee does not move with the annual equation
    that code 9 put into the moon's place, so the anomaly takes it back."""
    return float(C11) + TAHUNAN * math.sin(anomali_syams(x))


# The offsets that arrive with the corrected anomaly: the constants of codes 9, 10 and 11.
GESER_KHOSSOH = float(C9 + C10 + C11)


def markaz_qomar(x):
    """Code 12: the moon's equation of the centre, at the corrected anomaly, less every constant
    of the other tables of the moon's place and the book's own offset of the mean moon."""
    m = (x - GESER_KHOSSOH - OFSET["kq"] - 180) * RAD
    c = MOON_C[0] * math.sin(m) + MOON_C[1] * math.sin(2 * m)
    return c - float(C9 + C10 + C13 + C15) - OFSET["wq"]


def variasi(x):
    """Code 13: the variation, at the moon less the true sun. The moon read there stands the
    constants of codes 13 and 15 short of its true place (code 12 took them off ahead of
    them), the true sun the aberration behind its geometric place."""
    return float(C13) + VARIASI * math.sin(2 * (x + float(C13 + C15) - ABERASI) * RAD)


def simpul(x):
    """Code 14: the node's annual equation, at the sun's anomaly (the 'uqdah runs backwards)."""
    return float(C14) + SIMPUL * math.sin(anomali_syams(x))


def reduksi(x):
    """Code 15: the reduction to the ecliptic, at the argument of latitude."""
    f = (x - geser_hishshoh()) * RAD
    return float(C15) - REDUKSI * math.sin(2 * f)


def geser_hishshoh():
    # The moon's place (9) that the book adds stands at the true place less C15 (code 12 took
    # every constant off but the reduction's, which comes after), and the 'uqdah with code 14
    # stands OFSET uq + C14 off.
    return OFSET["uq"] + float(C14) - float(C15)


def matholi(x):
    """Code 16: right ascension of the ecliptic degree x, from the vernal point."""
    lam = x * RAD
    return math.atan2(math.cos(MIRING * RAD) * math.sin(lam), math.cos(lam)) / RAD % 360


def sabaq_qomar(x):
    """Code 18: the moon's hourly motion in longitude by the corrected anomaly, less the
    constants of codes 19 and 20."""
    m = (x - GESER_KHOSSOH - OFSET["kq"] - 180) * RAD
    harian = N_QOMAR + (MOON_C[0] * math.cos(m) * N_KHOSSOH + MOON_C[1] * 2 * math.cos(2 * m) * N_KHOSSOH) * RAD
    return harian / 24 - float(C19 + C20)


def sabaq_eveksi(x):
    """Code 19: the evection's share of the hourly motion, at the evection's argument."""
    return float(C19) + EVEKSI * (2 * N_BUD - N_KHOSSOH) * RAD * math.cos(arg_eveksi(x)) / 24


def sabaq_variasi(x):
    """Code 20: the variation's share of the hourly motion, at the sun less the moon."""
    return float(C20) + VARIASI * 2 * N_BUD * RAD * math.cos(2 * x * RAD) / 24


def sabaq_syams(x):
    """Code 21: the sun's hourly motion by its anomaly."""
    m = anomali_syams(x)
    return (N_SYAMS + SUN_C[0] * math.cos(m) * N_SYAMS * RAD) / 24


def sabaq_bud(x):
    """Code 17: the moon's hourly gain on the sun at new moon (D = 0), by the moon's mean
    anomaly: the centre's, the evection's and the variation's share of the moon's motion, less
    the sun's mean motion."""
    m = anomali_qomar(x)
    harian = N_QOMAR + (MOON_C[0] * math.cos(m) * N_KHOSSOH + MOON_C[1] * 2 * math.cos(2 * m) * N_KHOSSOH
                        + EVEKSI * (2 * N_BUD - N_KHOSSOH) * math.cos(m) + VARIASI * 2 * N_BUD) * RAD
    return (harian - N_SYAMS) / 24


# --- The tables ----------------------------------------------------------------------------------
def baris_gerak(hari):
    """Hari, Pasaran and the twenty element columns of a motion of `hari` days (a Fraction)."""
    row = [str(math.floor(hari) % 7), str(math.floor(hari) % 5)]
    for e in ELEMEN:
        row += [str(f) for f in busur(hari * RATE[e])]
    return row


KEPALA_GERAK = ["Cari", "Hari", "Pasaran"] + [k for e in ELEMEN for k in KOLOM[e]]


def tabel_tahun():
    return KEPALA_GERAK, [[str(n)] + baris_gerak(Fraction(hari_tahun(n))) for n in range(1, 30)]


def tabel_bulan():
    # Row 13 is Dzulhijjah of a long year, whose first day is that of row 12.
    return KEPALA_GERAK, [[str(m)] + baris_gerak(Fraction(hari_bulan(min(m, 12)))) for m in range(1, 14)]


def tabel_hari():
    # Whole days, from the noon where the sum stands to the noon n days on; the hours of sunset
    # then count from that noon, as the books' clock of sunset reads them.
    return KEPALA_GERAK, [[str(n)] + baris_gerak(Fraction(n)) for n in range(1, 32)]


def gerak_jam(jam, kolom_q):
    """Motion of `jam` hours: the sun's in minutes and seconds, the moon's with degrees when
    kolom_q, the node's in minutes and seconds."""
    hari = Fraction(jam) / 24
    row = []
    for e in ELEMEN:
        s = detik(hari * RATE[e])
        bagian = [s // 3600, s // 60 % 60, s % 60]
        row += bagian if (e in ("wq", "kq") and kolom_q) else [s // 60, s % 60]
    return row


def tabel_saah():
    kepala = ["Cari", "wsQohS", "wsNiiS", "ksQohS", "ksNiiS", "wsJahQ", "wsQohQ", "wsNiiQ", "ksJahQ", "ksQohQ",
              "ksNiiQ", "uqdQohQ", "uqdNiiQ"]
    return kepala, [[str(h)] + [str(v) for v in gerak_jam(h, True)] for h in range(0, 25)]


def tafawut(derajat):
    """The daqa'iq tafawut at the sun's mean longitude: mean less apparent time, whole minutes,
    by which the mean noon of the tables is moved to the apparent noon. Its sign is '+' when
    the apparent noon comes later."""
    # The true sun from the mean, by the anomaly from the books' own apogee (the mean sun less
    # its anomaly) of the measuring year: the apogee moves a degree in sixty years, which
    # moves the tafawut by less than ten seconds of time.
    lam = derajat + persamaan_syams(derajat - APOGEE)
    alpha = math.atan2(math.cos(MIRING * RAD) * math.sin(lam * RAD), math.cos(lam * RAD)) / RAD
    eot = ((derajat - alpha + 180) % 360 - 180) * 4  # apparent less mean, minutes of time
    menit = math.floor(abs(eot) + 0.5)
    return ("+" if eot < 0 else "-"), menit


def tabel_daqoiq():
    kepala = ["Cari", "Tanda", "QohTafawut", "Daqoiq", "wsQohS", "wsNiiS", "ksQohS", "ksNiiS", "wsQohQ", "wsNiiQ",
              "ksQohQ", "ksNiiQ", "uqdQohQ", "uqdNiiQ"]
    rows = []
    for c in range(0, 361):
        tanda, menit = tafawut(c)
        row = [str(c), tanda, str(menit)]
        if c <= 60:
            row.append(str(c))
            hari = Fraction(c, 1440)
            for e in ELEMEN:
                s = detik(hari * RATE[e])
                row += [str(s // 60), str(s % 60)]
        else:
            row += [""] * 11
        rows.append(row)
    return kepala, rows


def bertanda(x, fields):
    """A signed equation as the tables hold it: negative ones as 360 less them."""
    return pecah(x % 360, fields)


KODE = [
    # code, columns, function, fields below the first, signed
    (8, ("tdlSyamsiJah", "tdlSyamsiQoh", "tdlSyamsiNii"), persamaan_syams, 2, True),
    (9, ("tdlAwalQomarQoh", "tdlAwalQomarNii"), tahunan, 2, False),
    (10, ("tdlTsaniQomarJah", "tdlTsaniQomarQoh", "tdlTsaniQomarNii"), eveksi, 2, False),
    (11, ("tdlTsalitsKhQomarQoh", "tdlTsalitsKhQomarNii"), tahunan_khossoh, 2, False),
    (12, ("tdlTsalitsWsQomarJah", "tdlTsalitsWsQomarQoh", "tdlTsalitsWsQomarNii"), markaz_qomar, 2, True),
    (13, ("tdlRobiWsQomarQoh", "tdlRobiWsQomarNii"), variasi, 2, False),
    (14, ("tdlMutamimRiksiQoh", "tdlMutamimRiksiNii"), simpul, 2, False),
    (15, ("tdlKhomisWsQomarQoh", "tdlKhomisWsQomarNii"), reduksi, 2, False),
    (16, ("MatholiJah", "MatholiQoh"), matholi, 1, True),
    (17, ("SabaqKW2Qoh", "SabaqKW2Nii"), sabaq_bud, 2, False),
    (18, ("SabaqQ1Qoh", "SabaqQ1Nii", "SabaqQ1Lis"), sabaq_qomar, 3, False),
    (19, ("SabaqQ2Nii", "SabaqQ2Lis"), sabaq_eveksi, 3, False),
    (20, ("SabaqQ3Nii", "SabaqQ3Lis"), sabaq_variasi, 3, False),
    (21, ("SabaqSQoh", "SabaqSNii", "SabaqSLis"), sabaq_syams, 3, False),
]


def tanpa_lintas(kode, fungsi, bertanda_):
    """The engine interpolates two rows by their difference in degrees on the circle, which
    cannot step across the wrap: a table whose rows pass from just above 0 to just below 360
    reads nonsense between them. Only the sun's equation, which has no constant to hold it on
    one side (the books add it to nothing else), crosses, at its two changes of sign."""
    if not bertanda_:
        return
    nilai = [fungsi(c % 360) % 360 for c in range(1, 361)]
    lintas = sum(1 for a, b in zip(nilai, nilai[1:] + nilai[:1]) if abs(a - b) > 180)
    if lintas > (2 if kode == 8 else 0):
        raise ValueError(f"the table of code {kode} crosses the wrap {lintas} times")


def sel_kode(fungsi, fields, bertanda_, kolom, x):
    v = fungsi(x)
    if bertanda_:
        v %= 360
    elif v < 0:
        raise ValueError(f"{fungsi.__name__}({x}) = {v} is below zero")
    f = pecah(v, fields)
    # The columns are the last len(kolom) fields, the first of them taking what is above it.
    n = len(kolom)
    depan = f[: len(f) - n + 1]
    nilai = 0
    for d in depan:
        nilai = nilai * 60 + d
    return [nilai] + f[len(f) - n + 1:]


def tabel_taadil():
    for kode, _, fungsi, _, signed in KODE:
        tanpa_lintas(kode, fungsi, signed and kode != 16)
    kepala = ["Cari"] + [k for _, kolom, _, _, _ in KODE for k in kolom]
    rows = []
    for c in range(1, 361):
        row = [str(c)]
        for _, kolom, fungsi, fields, signed in KODE:
            row += [str(v) for v in sel_kode(fungsi, fields, signed, kolom, c % 360)]
        rows.append(row)
    return kepala, rows


TABEL = {"TQQthMab": tabel_tahun, "TQQSyahru": tabel_bulan, "TQQYaumTam": tabel_hari, "TQQSaah": tabel_saah,
         "TQQDaqoiqAhTaf": tabel_daqoiq, "TQQTaadil": tabel_taadil}


# --- Checks --------------------------------------------------------------------------------------
def periksa():
    """Stops the generator unless the tables hold the books' own constants."""
    for e in ELEMEN:
        # The rates give the books' daily motions to the second, and thirty single years give
        # the thirty-year row to the second.
        assert detik(RATE[e]) == detik(HARIAN[e]), e
        assert busur(hari_tahun(30) * RATE[e]) == busur(DAWR[e]), e
    assert hari_tahun(30) == HARI_DAWR
    assert hari_bulan(13) == 354


def ke_csv(kepala, rows):
    f = io.StringIO()
    w = csv.writer(f, lineterminator="\n")
    w.writerow(kepala)
    w.writerows(rows)
    return f.getvalue()


def semua():
    periksa()
    return {nama + ".csv": ke_csv(*buat()) for nama, buat in TABEL.items()}


def main(argv):
    if "--ofset" in argv:
        for e, v in OFSET.items():
            print(e, f"{v:+.4f}")
        return 0
    tabel = semua()
    if "--verify" in argv:
        beda = [n for n, isi in tabel.items() if not os.path.exists(os.path.join(DATA, n))
                or open(os.path.join(DATA, n), encoding="utf-8").read() != isi]
        for n in beda:
            print("berbeda:", n, file=sys.stderr)
        return 1 if beda else 0
    for n, isi in tabel.items():
        with open(os.path.join(DATA, n), "w", encoding="utf-8", newline="") as fh:
            fh.write(isi)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
