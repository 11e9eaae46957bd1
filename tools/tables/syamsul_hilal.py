#!/usr/bin/env python3
"""Writes the tables of Syamsu al-Hilal: data/TRBthMabSH.csv (the remaining years),
data/TRBSyahruSH.csv (the months) and data/TRBTaadilSH.csv (its equations, the hours per
degree, the equation of days, the light of the latitude and the mansions).

The treatise reckons in decimals: a base at the start of year 1 moved by groups of thirty
years, then the rows of these tables, then look-ups of the nearest row without interpolation.
Everything here follows from the treatise's own constants and the astronomy that the tables of
the other taqribi treatises are built on (model.py, tables.py):

1. The year and month rows carry the mean motions of the thirty-year step, which is the one
   that Fathu al-Ro'uf's books print, so the motions are model.py's.
2. Each element of the treatise is a modern mean element plus a fixed amount: the offsets
   are measured by setting the treatise's own sum for the group of 1441 H beside Meeus's
   mean elements of the same lunation.
3. The equation tables are those of Sullam's tables (the moon's and the sun's equation with
   their greatest equations as offsets, the light of the latitude, the equation of days turned
   into arc of elongation), read at the true anomalies behind the treatise's arguments, that
   is each argument less its offset. The hours per degree are the Ptolemaic epicycle's: Sullam's
   tables take the moon's true hourly motion instead because its printed reckonings ask for
   it, and this treatise has no printed reckoning to ask otherwise.

Run:  python3 tools/tables/syamsul_hilal.py            write the three tables
      python3 tools/tables/syamsul_hilal.py --verify   fail unless data/ holds what it would write
      python3 tools/tables/syamsul_hilal.py --offsets  print the measured offsets and constants
"""
import csv
import io
import math
import os
import sys
from fractions import Fraction

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import check_sullam  # noqa: E402
import gerhana  # noqa: E402
import model  # noqa: E402
import tables  # noqa: E402

DATA = os.path.join(HERE, "..", "..", "data")

# --- The treatise's constants, as its module holds them ------------------------------------
ELEMEN = ("Hishshoh", "Wasath", "Khossyoh", "Markaz")
MODEL = {"Hishshoh": "hishshoh", "Wasath": "wasath", "Khossyoh": "khossyoh", "Markaz": "markaz"}
POKOK = {"Hari": 5, "Alamah": 3.05, "Hishshoh": 348.767, "Wasath": 117.35, "Khossyoh": 110.2, "Markaz": 33.984}
TIGA_PULUH = {"Hari": 5, "Alamah": 0.25, "Hishshoh": 241.4, "Wasath": 38.4, "Khossyoh": 293.95, "Markaz": 38.0}
FAKTOR_QOMAR = 0.083      # the sun's motion per degree of the moon's correction
BUJUR_MARKAZ = 110 + 40 / 60
DESIMAL = 3               # the tables print as the treatise's constants do

# The group whose sum calibrates the offsets: Tahun 1441 starts 48 groups after the base.
GROUP_KALIBRASI = 48
MINGGU = 7 * 1440  # minutes in the alamah's week


def putar(x):
    return x % 360.0


def selisih_sudut(a, b):
    """a - b brought into -180 .. 180."""
    return (a - b + 180.0) % 360.0 - 180.0


# --- The mean motions ----------------------------------------------------------------------------
def setelah(bulan):
    """The motion of a number of lunations (a Fraction) as a row: Hari (whole days modulo the
    week), Alamah (the hours left over), and the four elements modulo 360."""
    hari = bulan * model.per_lunation("alamah_days")
    utuh = math.floor(hari)
    baris = {"Hari": utuh % 7, "Alamah": float((hari - utuh) * 24)}
    for e in ELEMEN:
        baris[e] = float((bulan * model.per_lunation(MODEL[e])) % 360)
    return baris


# --- Modern mean elements (Meeus, Astronomical Algorithms, 2nd ed., ch. 25 and 49) ----------
def ijtima_rata(k):
    """The mean elements at Meeus's mean new moon of lunation k (k = 0 in January 2000)."""
    t = k / 1236.85
    jde = 2451550.09766 + 29.530588861 * k + 0.00015437 * t * t
    m = 2.5534 + 29.10535670 * k - 0.0000014 * t * t
    mp = 201.5643 + 385.81693528 * k + 0.0107582 * t * t + 0.00001238 * t ** 3
    f = 160.7108 + 390.67050284 * k - 0.0016118 * t * t - 0.00000227 * t ** 3
    tc = (jde - 2451545.0) / 36525
    l0 = 280.46646 + 36000.76983 * tc + 0.0003032 * tc * tc
    return {"Hishshoh": putar(f), "Wasath": putar(l0), "Khossyoh": putar(mp), "Markaz": putar(m)}


def lunasi_awal_tahun(tahun_hijri):
    """Meeus's lunation k of the conjunction that opens a Hijri year (1 H: July 622)."""
    return -17037 + 12 * (tahun_hijri - 1)


def ofset():
    """The treatise's elements less the modern mean elements, for the sum of the base and
    GROUP_KALIBRASI groups (the start of year 30 x GROUP_KALIBRASI + 1): the alamah in hours
    (local mean time at the markaz), the anomalies less 180 (they are counted from the apogee)."""
    n = GROUP_KALIBRASI
    k = lunasi_awal_tahun(30 * n + 1)
    hari = (POKOK["Hari"] + n * TIGA_PULUH["Hari"] - 1) % 7 + 1
    alamah = hari * 1440 + (POKOK["Alamah"] + n * TIGA_PULUH["Alamah"]) * 60
    beda = (alamah - check_sullam.mean_new_moon_in_alamah(k, BUJUR_MARKAZ) + MINGGU / 2) % MINGGU - MINGGU / 2
    hasil = {"Alamah": beda / 60}
    modern = ijtima_rata(k)
    for e in ELEMEN:
        hasil[e] = selisih_sudut(POKOK[e] + n * TIGA_PULUH[e], modern[e])
    hasil["Khossyoh"] = selisih_sudut(hasil["Khossyoh"], 180.0)
    hasil["Markaz"] = selisih_sudut(hasil["Markaz"], 180.0)
    return hasil


# --- The constants of the equation tables --------------------------------------------------
def tetapan():
    """The offsets, and the constants that the equation tables carry.

    As in Sullam's tables, the moon's and the sun's tables carry their greatest equations, so
    that each runs from 0 to twice it; the equation of days carries the least whole minute of
    arc that keeps it at or above zero (Sullam's carries one fitted to its printed reckoning;
    this treatise has none to fit). Together the three constants, K degrees, come back through
    the reckoning as K times the hours per degree: 13.5 hours on the average against the
    alamah's offset of 13.0, so that the treatise's ijtima' comes early on the whole, more so
    when the moon is slow, and late by up to an hour and a half when it is fast.

    D is how far the treatise's sun at the ijtima' (the Wasath less the moon's correction)
    stands from the true sun; the tables keyed by it read the true sun at key - D. The apogee
    of the equation of days is the treatise's own: Wasath less Markaz."""
    o = ofset()
    c_k = tables.OFFSET_KHOSSYOH
    c_r = tables.OFFSET_MARKAZ
    apogee = putar(POKOK["Wasath"] - POKOK["Markaz"] + GROUP_KALIBRASI * (TIGA_PULUH["Wasath"] - TIGA_PULUH["Markaz"]))
    terkecil = min(model.equation_of_days(0.1 * i, apogee) for i in range(3600)) * model.mean_elongation_per_hour()
    c_q = math.ceil(-terkecil) / 60
    d = o["Wasath"] - c_r - FAKTOR_QOMAR * (c_k + c_r)
    jam = sum(model.hours_per_degree_ptolemaic(0.1 * i) for i in range(3600)) / 3600
    return {"ofset": o, "C_k": c_k, "C_r": c_r, "C_q": c_q, "K": c_k + c_r - c_q, "D": d, "apogee": apogee,
            "jam_per_derajat": jam}


# --- The tables ------------------------------------------------------------------------------
def cetak(x):
    """A decimal as the tables print it: three decimals, trailing zeros dropped."""
    t = f"{x:.{DESIMAL}f}".rstrip("0").rstrip(".")
    return "0" if t in ("-0", "") else t


KOLOM_TAHUN = ["Hari", "Alamah", "Hishshoh", "Wasath", "Khossyoh", "Markaz"]


def baris_gerak(bulan):
    b = setelah(bulan)
    return [str(b["Hari"])] + [cetak(b[k]) for k in KOLOM_TAHUN[1:]]


def tabel_tahun():
    """TRBthMabSH: the motion of 1 to 30 lunar years (12 lunations each). Row 30 is the
    thirty-year step itself, which year 1 reads after taking one step off."""
    return ["Cari"] + KOLOM_TAHUN, [[str(n)] + baris_gerak(Fraction(12 * n)) for n in range(1, 31)]


def tabel_bulan():
    """TRBSyahruSH: the motion of m lunations from the start of the year, for the ijtima' at
    the end of month m; the GB columns the motion of m - 1/2 lunations, for the full moon in
    the middle of month m."""
    kepala = ["Cari"] + KOLOM_TAHUN + [k + "GB" for k in KOLOM_TAHUN]
    return kepala, [[str(m)] + baris_gerak(Fraction(m)) + baris_gerak(Fraction(2 * m - 1, 2)) for m in range(1, 13)]


# --- The eclipse columns -----------------------------------------------------------------------
# The latitude near the nodes by whole degrees of the Hishshoh's sign: Buruj 0 and 6 from the
# node (0 to 20), Buruj 5 and 11 up to it (10 to 30, the node at 30).
DEKAT_SIMPUL = range(0, 21)
SEBELUM_SIMPUL = range(10, 31)
# The size tables are scanned from their first row down: the row of latitude b carries the key
# b + 0.08, so that the first row whose key less (the latitude + 0.04) falls below 0.04 is the
# first whose latitude lies below the moon's. Rows every hundredth of a degree, from the least
# latitude that gives no eclipse down to 0.
LANGKAH_LINTANG = 0.01
TAMBAH_KUNCI = 0.08
# The place tables: the latitudes of the places the solar reckoning serves (south, or north
# read at the opposite longitude), and the distances from the zenith (0 to 90).
LINTANG_IQLIM = (6, 7, 8)
JARAK_ZENIT = range(0, 91)


def baris_ukuran(hitung):
    """The rows of a size table: (latitude, fingers, half the eclipse in hours, half the
    totality in hours), from the least latitude without an eclipse down to 0, by `hitung`
    (the eclipse at the moon's mean motion for a latitude)."""
    atas = 0
    while hitung(atas * LANGKAH_LINTANG)[0] > 0:
        atas += 1
    return [(i * LANGKAH_LINTANG,) + tuple(hitung(i * LANGKAH_LINTANG)) for i in range(atas, -1, -1)]


def khusuf_rata(lintang):
    """The lunar eclipse at the moon's mean daily motion: fingers, half duration and half
    totality in hours."""
    return gerhana.khusuf(model.MOON_MEAN_MOTION, lintang)


def kusuf_rata(lintang):
    """The solar eclipse at the moon's mean daily motion, the half totality turned to hours."""
    ashobi, saat, total = gerhana.kusuf(model.MOON_MEAN_MOTION, lintang)
    return ashobi, saat, total / 60


def kolom_gerhana(rows, t):
    """Adds the eclipse columns to the rows of TRBTaadilSH (a list indexed by Cari)."""
    o = t["ofset"]
    for row in rows:
        c = int(row["Cari"])
        bujur = putar(c - t["D"])
        if c % 5 == 0:
            # The moon's daily motion at the anomaly behind the Khossyoh, by fives as the
            # hours per degree.
            row["tdlBuhtu"] = cetak(gerhana.buhtu(putar(c - o["Khossyoh"])))
        if c in DEKAT_SIMPUL:
            row["CariDr0_6"], row["ArdHqq0_6"] = str(c), cetak(gerhana.lintang_dekat_simpul(c))
        if c in SEBELUM_SIMPUL:
            row["CariDr5_11"], row["ArdHqq5_11"] = str(c), cetak(gerhana.lintang_dekat_simpul(30 - c))
        if c <= 360:
            # The ecliptic's point at the longitude behind the key: its declination (north
            # positive), its distance from the zenith of a place 6, 7 or 8 degrees south, and
            # the sine of an arc.
            mail = math.asin(math.sin(model.ZIJ_OBLIQUITY * model.RAD) * math.sin(bujur * model.RAD)) / model.RAD
            row["MelAsyir"] = cetak(mail)
            for lintang in LINTANG_IQLIM:
                row[f"Iqlim{lintang}"] = cetak(abs(mail + lintang))
            row["JebQous"] = cetak(abs(math.sin(c * model.RAD)))
        if c in JARAK_ZENIT:
            row["IkhtilafThul"] = cetak(gerhana.ikhtilaf_thul(c) / 60)
            row["IkhtilafArdli"] = cetak(gerhana.ikhtilaf_ardli(c) / 60)
    for kunci, kolom, hitung in (("CariQohArd", ("QodruKhs", "AshobiKhs", "MuktsuKhs"), khusuf_rata),
                                 ("CariQohArdM", ("QodruKf", "AshobiKf", "MuktsuKf"), kusuf_rata)):
        for row, (lintang, *nilai) in zip(rows, baris_ukuran(hitung)):
            row[kunci] = cetak(lintang + TAMBAH_KUNCI)
            for k, v in zip(kolom, nilai):
                row[k] = cetak(v)


KOLOM_GERHANA = ["tdlBuhtu", "CariDr0_6", "ArdHqq0_6", "CariDr5_11", "ArdHqq5_11", "MelAsyir", "Iqlim6", "Iqlim7",
                 "Iqlim8", "JebQous", "IkhtilafThul", "IkhtilafArdli", "CariQohArd", "QodruKhs", "AshobiKhs",
                 "MuktsuKhs", "CariQohArdM", "QodruKf", "AshobiKf", "MuktsuKf"]


def tabel_taadil():
    """TRBTaadilSH, one row a whole degree from 0 to 365 (the keys reach 361 and, by fives,
    365); CariLoop5 stands on the rows whose degree is a multiple of 5. The eclipse columns
    stand on the same rows with keys of their own."""
    t = tetapan()
    o = t["ofset"]
    kepala = ["Cari", "tdlKhosshoh", "TdlMarkaz", "tdlArdluQ", "mnJah", "mn", "CariLoop5", "tdlHisshoh", "tdlMuqowwam"]
    lebar = Fraction(360, len(tables.MANSIONS))
    rows = []
    for c in range(0, 366):
        khossyoh = c - o["Khossyoh"]
        bujur = putar(c - t["D"])
        manzil = int(bujur // lebar)
        row = [str(c),
               cetak(t["C_k"] - model.moon_equation(khossyoh)),
               cetak(t["C_r"] + model.sun_equation(c - o["Markaz"])),
               cetak(tables.latitude_light(c - o["Hishshoh"]) / 60),
               str(int(bujur - manzil * lebar)),
               tables.MANSIONS[manzil]]
        if c % 5 == 0:
            persamaan = model.equation_of_days(bujur, t["apogee"]) * model.mean_elongation_per_hour() / 60
            row += [str(c), cetak(model.hours_per_degree_ptolemaic(khossyoh)), cetak(t["C_q"] + persamaan)]
        else:
            row += ["", "", ""]
        rows.append(dict(zip(kepala, row)))
    kolom_gerhana(rows, t)
    kepala += KOLOM_GERHANA
    return kepala, [[r.get(k, "") for k in kepala] for r in rows]


def ke_csv(kepala, rows):
    f = io.StringIO()
    w = csv.writer(f, lineterminator="\n")
    w.writerow(kepala)
    w.writerows(rows)
    return f.getvalue()


def semua_tabel():
    return {"TRBthMabSH.csv": ke_csv(*tabel_tahun()), "TRBSyahruSH.csv": ke_csv(*tabel_bulan()),
            "TRBTaadilSH.csv": ke_csv(*tabel_taadil())}


def periksa(tabel):
    """Checks the tables before anything is written; returns what is wrong."""
    salah = []

    def baca(nama):
        return list(csv.DictReader(io.StringIO(tabel[nama])))

    tahun, bulan, taadil = baca("TRBthMabSH.csv"), baca("TRBSyahruSH.csv"), baca("TRBTaadilSH.csv")
    # The treatise's step is the one whose motions the rows carry.
    for e in ELEMEN:
        if model.per_lunation(MODEL[e]) * model.LUNATIONS_PER_GROUP % 360 != Fraction(str(TIGA_PULUH[e])):
            salah.append(f"the thirty-year step of {e} is not the one of model.py")
    if (model.per_lunation("alamah_days") * model.LUNATIONS_PER_GROUP - 10631) * 24 != Fraction(str(TIGA_PULUH["Alamah"])):
        salah.append("the thirty-year step of the alamah is not the one of model.py")
    # Year 1 takes one step off and reads row 30 back: the row must be the step itself.
    for k in KOLOM_TAHUN:
        if float(tahun[29][k]) != TIGA_PULUH[k]:
            salah.append(f"TRBthMabSH 30 {k} {tahun[29][k]} is not the thirty-year step {TIGA_PULUH[k]}")
    # Twelve months make a year.
    for k in KOLOM_TAHUN:
        if bulan[11][k] != tahun[0][k]:
            salah.append(f"TRBSyahruSH 12 {k} {bulan[11][k]} differs from TRBthMabSH 1 {tahun[0][k]}")
    # Every key the reckoning can ask for: whole degrees 0 to 361, fives 0 to 365.
    cari = {int(r["Cari"]) for r in taadil}
    lima = {int(r["CariLoop5"]) for r in taadil if r["CariLoop5"]}
    if not set(range(0, 362)) <= cari or set(range(0, 366, 5)) != lima:
        salah.append("TRBTaadilSH lacks keys")
    # No table goes below zero, and the hours of the correction stay below the 30 at which
    # the reckoning would hand a Buruj to its text.
    for r in taadil:
        for k in ("tdlKhosshoh", "TdlMarkaz", "tdlArdluQ", "tdlHisshoh", "tdlMuqowwam"):
            if r[k] and float(r[k]) < 0:
                salah.append(f"TRBTaadilSH {r['Cari']} {k} below zero")
    mr = max(float(r["TdlMarkaz"]) for r in taadil)
    mq = min(float(r["tdlMuqowwam"]) for r in taadil if r["CariLoop5"])
    for r in taadil:
        if r["CariLoop5"]:
            jam = (float(r["tdlKhosshoh"]) + mr - mq) * float(r["tdlHisshoh"])
            if jam >= 30:
                salah.append(f"TRBTaadilSH {r['Cari']}: the correction may reach {jam:.1f} hours")
    salah += periksa_gerhana(taadil)
    # The treatise's step against the modern motion of 360 lunations.
    k = lunasi_awal_tahun(1441)
    sekarang, nanti = ijtima_rata(k), ijtima_rata(k + model.LUNATIONS_PER_GROUP)
    for e in ELEMEN:
        beda = selisih_sudut(TIGA_PULUH[e], nanti[e] - sekarang[e])
        if abs(beda) > 0.2:
            salah.append(f"the step of {e} is {beda:+.3f} degrees from the modern motion")
    return salah


def periksa_gerhana(taadil):
    """Checks of the eclipse columns; returns what is wrong."""
    salah = []

    def kolom(kunci, nilai):
        return {int(float(r[kunci]) * 1000 + 0.5) if "." in r[kunci] else int(r[kunci]): r[nilai]
                for r in taadil if r[kunci]}

    dekat, sebelum = kolom("CariDr0_6", "ArdHqq0_6"), kolom("CariDr5_11", "ArdHqq5_11")
    # Twelve degrees from the node: asin(sin 5 sin 12) = asin(0.0871557 x 0.2079117) = 1.038
    # (worked by hand), on either side of it; the node itself has none.
    if dekat[12] != "1.038" or sebelum[18] != "1.038" or dekat[0] != "0" or sebelum[30] != "0":
        salah.append("TRBTaadilSH: the latitude near the nodes is not asin(sin 5 sin d)")
    for kunci, jari, total in (("CariQohArd", "QodruKhs", "MuktsuKhs"), ("CariQohArdM", "QodruKf", "MuktsuKf")):
        baris = [r for r in taadil if r[kunci]]
        k = [float(r[kunci]) for r in baris]
        f = [float(r[jari]) for r in baris]
        # The scan walks down the latitudes: the keys fall, the fingers grow, the first row has
        # none and the last is the central eclipse.
        if k != sorted(k, reverse=True) or f != sorted(f) or f[0] != 0 or k[-1] != TAMBAH_KUNCI:
            salah.append(f"TRBTaadilSH: {kunci} is not a scan from no eclipse down to a central one")
        if len(baris) > 400:
            salah.append(f"TRBTaadilSH: {kunci} has more rows than the scan walks")
        if kunci == "CariQohArd" and not float(baris[-1][total]) > 0:
            salah.append("TRBTaadilSH: a central lunar eclipse has no totality")
    baris = {int(r["Cari"]): r for r in taadil}
    # The parallax splits as cos and sin of the same distance; the key 90 reads the longitude
    # 90.389, 0.389 past the solstice: asin(sin 23.5047 cos 0.389) = 23.504.
    if baris[45]["IkhtilafThul"] != baris[45]["IkhtilafArdli"] or baris[90]["MelAsyir"] != "23.504":
        salah.append("TRBTaadilSH: the place columns do not hold at 45 and 90 degrees")
    return salah


def main(argv):
    if "--offsets" in argv:
        for k, v in tetapan().items():
            print(k, v)
        return 0
    tabel = semua_tabel()
    salah = periksa(tabel)
    for x in salah:
        print("salah:", x, file=sys.stderr)
    if salah:
        return 1
    if "--verify" in argv:
        beda = [n for n, isi in tabel.items()
                if not os.path.exists(os.path.join(DATA, n)) or open(os.path.join(DATA, n), encoding="utf-8").read() != isi]
        for n in beda:
            print("berbeda:", n, file=sys.stderr)
        return 1 if beda else 0
    for n, isi in tabel.items():
        with open(os.path.join(DATA, n), "w", encoding="utf-8", newline="") as fh:
            fh.write(isi)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
