#!/usr/bin/env python3
"""Writes the tables of Syamsu al-Hilal: data/TRBthMabSH.csv (the remaining years),
data/TRBSyahruSH.csv (the months) and data/TRBTaadilSH.csv (its equations, the hours per
degree, the equation of days, the moon's latitude and the mansions).

The treatise reckons in decimals: a base at the start of year 1 moved by groups of thirty
years, then the rows of these tables, then look-ups of the nearest row without interpolation.
Everything here follows from the treatise's own constants and the Ptolemaic model of the
Sun and the Moon with the parameters of Ulugh Beg's zij:

1. The year and month rows carry the mean motions that the thirty-year step implies.
2. Each element of the treatise is a modern mean element plus a fixed amount: the offsets
   are measured by setting the treatise's own sum for the group of 1441 H beside Meeus's
   mean elements of the same lunation.
3. The equation tables are the Ptolemaic equations at the true anomalies behind the
   treatise's arguments, each carrying a constant that keeps it positive; together the
   constants take back the alamah's offset, converted to degrees of elongation.

Run:  python3 tools/tables/syamsul_hilal.py            write the three tables
      python3 tools/tables/syamsul_hilal.py --verify   fail unless data/ holds what it would write
      python3 tools/tables/syamsul_hilal.py --offsets  print the measured offsets
"""
import csv
import io
import math
import os
import sys

DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data")

# --- The treatise's constants, as its module holds them ------------------------------------
ELEMEN = ("Hishshoh", "Wasath", "Khossyoh", "Markaz")
POKOK = {"Hari": 5, "Alamah": 3.05, "Hishshoh": 348.767, "Wasath": 117.35, "Khossyoh": 110.2, "Markaz": 33.984}
TIGA_PULUH = {"Hari": 5, "Alamah": 0.25, "Hishshoh": 241.4, "Wasath": 38.4, "Khossyoh": 293.95, "Markaz": 38.0}
FAKTOR_QOMAR = 0.083      # the sun's motion per degree of the moon's correction
BUJUR_MARKAZ = 110 + 40 / 60
BULAN_TIGA_PULUH = 360    # lunations in thirty lunar years
DESIMAL = 3               # the tables print as the treatise's constants do

# --- Ulugh Beg's parameters -----------------------------------------------------------------
EKSENTRISITAS_MATAHARI = math.sin(math.radians(1 + 55 / 60 + 53 / 3600))  # greatest equation 1° 55' 53"
JARI_EPISIKEL = 5.25 / 60  # the moon's epicycle at the syzygies, 5;15 in parts of 60
KEMIRINGAN_BULAN = 5.0     # the moon's greatest latitude
MIRING_EKLIPTIKA = 23 + 30 / 60 + 17 / 3600
JUMLAH_MANZIL = 28
NAMA_MANZIL = ["الشرطين", "البطين", "الثريا", "الدبران", "الهقعة", "الهنعة", "الذراع", "النثرة", "الطرف",
               "الجبهة", "الزبرة", "الصرفة", "العواء", "السماك", "الغفر", "الزبانى", "الإكليل", "القلب",
               "الشولة", "النعائم", "البلدة", "سعد الذابح", "سعد بلع", "سعد السعود", "سعد الأخبية",
               "الفرغ المقدم", "الفرغ المؤخر", "بطن الحوت"]

# The group whose sum calibrates the offsets: Tahun 1441 starts 48 groups after the base.
GROUP_KALIBRASI = 48


def putar(x):
    return x % 360.0


def selisih_sudut(a, b):
    """a - b brought into -180 .. 180."""
    return (a - b + 180.0) % 360.0 - 180.0


# --- Mean motions of the treatise -------------------------------------------------------------
# The thirty-year step moves each element by whole turns plus the stated rest; the whole turns
# are those of the modern mean motions (below). The time of 360 lunations is 10631 days (1518
# weeks and the step's 5 days) and the step's 0.25 hours.
def gerak_sebulan():
    """Per lunation: hours of time and degrees of each element."""
    modern = gerak_modern_sebulan()
    gerak = {"jam": (10631 * 24 + TIGA_PULUH["Alamah"]) / BULAN_TIGA_PULUH}
    for e in ELEMEN:
        putaran = round((modern[e] * BULAN_TIGA_PULUH - TIGA_PULUH[e]) / 360.0)
        gerak[e] = (360.0 * putaran + TIGA_PULUH[e]) / BULAN_TIGA_PULUH
    return gerak


def setelah(bulan):
    """The motion of a number of lunations as a row: Hari (whole days modulo the week),
    Alamah (hours left over), and the four elements modulo 360."""
    g = gerak_sebulan()
    jam = bulan * g["jam"]
    hari = math.floor(jam / 24 + 1e-9)
    baris = {"Hari": hari % 7, "Alamah": jam - 24 * hari}
    for e in ELEMEN:
        baris[e] = putar(bulan * g[e])
    return baris


# --- Modern mean elements (Meeus, Astronomical Algorithms, 2nd ed., ch. 47 and 49) ----------
def gerak_modern_sebulan():
    """Degrees per mean lunation of F, the sun's mean longitude, M' and M."""
    sinodis = 29.530588861
    return {"Hishshoh": 390.67050284, "Wasath": 36000.76983 / 36525 * sinodis,
            "Khossyoh": 385.81693528, "Markaz": 29.10535670}


def ijtima_rata(k):
    """The mean new moon of lunation k (k = 0 in January 2000): JDE and the mean elements."""
    t = k / 1236.85
    jde = 2451550.09766 + 29.530588861 * k + 0.00015437 * t * t - 0.000000150 * t ** 3 + 0.00000000073 * t ** 4
    m = 2.5534 + 29.10535670 * k - 0.0000014 * t * t - 0.00000011 * t ** 3
    mp = 201.5643 + 385.81693528 * k + 0.0107582 * t * t + 0.00001238 * t ** 3 - 0.000000058 * t ** 4
    f = 160.7108 + 390.67050284 * k - 0.0016118 * t * t - 0.00000227 * t ** 3 + 0.000000011 * t ** 4
    tc = (jde - 2451545.0) / 36525
    l0 = 280.46646 + 36000.76983 * tc + 0.0003032 * tc * tc
    return jde, {"Hishshoh": putar(f), "Wasath": putar(l0), "Khossyoh": putar(mp), "Markaz": putar(m)}


def delta_t(tahun):
    """TT - UT in seconds (Espenak and Meeus), for the years around the calibration."""
    assert 1986 <= tahun < 2050, "delta T is only given here for 1986 to 2050"
    t = tahun - 2000
    if tahun < 2005:
        return 63.86 + 0.3345 * t - 0.060374 * t ** 2 + 0.0017275 * t ** 3 + 0.000651814 * t ** 4 + 0.00002373599 * t ** 5
    return 62.92 + 0.32217 * t + 0.005589 * t ** 2


def jam_dari_maghrib(jde):
    """The weekday (1 Ahad .. 7 Sabtu) and hours from 18:00 local mean time at the markaz of a
    moment given as JDE, the day beginning at the sunset before it."""
    tahun = 2000 + (jde - 2451545.0) / 365.25
    lokal = jde - delta_t(tahun) / 86400 + BUJUR_MARKAZ / 360 + 0.5 + 0.25  # days from 18:00
    hari = math.floor(lokal)
    return (hari + 1) % 7 + 1, (lokal - hari) * 24


def lunasi_awal_tahun(tahun_hijri):
    """The lunation k of the mean new moon that opens a Hijri year (1 H: July 622)."""
    return -17037 + 12 * (tahun_hijri - 1)


def ofset():
    """The treatise's elements less the modern mean elements, for the sum of the base and
    GROUP_KALIBRASI groups (the start of year 30 x GROUP_KALIBRASI + 1):
    alamah in hours, anomalies less 180 (they are counted from the apogee)."""
    n = GROUP_KALIBRASI
    jde, modern = ijtima_rata(lunasi_awal_tahun(30 * n + 1))
    hari_modern, jam_modern = jam_dari_maghrib(jde)
    hari = (POKOK["Hari"] + n * TIGA_PULUH["Hari"] - 1) % 7 + 1
    jam = POKOK["Alamah"] + n * TIGA_PULUH["Alamah"]
    hasil = {"Alamah": ((hari - hari_modern + 3) % 7 - 3) * 24 + jam - jam_modern}
    for e in ELEMEN:
        hasil[e] = selisih_sudut(putar(POKOK[e] + n * TIGA_PULUH[e]), modern[e])
    hasil["Khossyoh"] = selisih_sudut(hasil["Khossyoh"], 180.0)
    hasil["Markaz"] = selisih_sudut(hasil["Markaz"], 180.0)
    return hasil


# --- The Ptolemaic Sun and Moon ---------------------------------------------------------------
def persamaan_matahari(anomali):
    """True less mean longitude of the sun on its eccentric, anomaly from the apogee."""
    a = math.radians(anomali)
    e = EKSENTRISITAS_MATAHARI
    return -math.degrees(math.atan2(e * math.sin(a), 1 + e * math.cos(a)))


def persamaan_bulan(anomali):
    """True less mean longitude of the moon on its epicycle at the syzygies, anomaly from the
    epicycle's apogee."""
    a = math.radians(anomali)
    r = JARI_EPISIKEL
    return -math.degrees(math.atan2(r * math.sin(a), 1 + r * math.cos(a)))


def turunan(f, x, h=1e-3):
    return (f(x + h) - f(x - h)) / (2 * h)


def kecepatan_elongasi(anomali_bulan):
    """Degrees an hour by which the moon gains on the sun at a given anomaly: the moon's mean
    motion with the change of its equation, less the sun's mean motion."""
    g = gerak_sebulan()
    per_jam = 1 / g["jam"]
    bulan = (360 + g["Wasath"]) * per_jam + turunan(persamaan_bulan, anomali_bulan) * g["Khossyoh"] * per_jam
    return bulan - g["Wasath"] * per_jam


def persamaan_waktu(bujur, apogee):
    """Apparent less mean solar time, in hours, for the sun's true longitude: the mean longitude
    behind it less its right ascension."""
    rata = bujur
    for _ in range(20):  # the mean longitude whose true longitude is `bujur`
        rata = bujur - persamaan_matahari(rata - apogee)
    e = math.radians(MIRING_EKLIPTIKA)
    lam = math.radians(bujur)
    alfa = math.degrees(math.atan2(math.cos(e) * math.sin(lam), math.cos(lam)))
    return selisih_sudut(rata, alfa) / 15


def lintang_bulan(hishshoh):
    return math.degrees(math.asin(math.sin(math.radians(KEMIRINGAN_BULAN)) * math.sin(math.radians(hishshoh))))


# --- The tables ---------------------------------------------------------------------------------
def rata_rata(f, n=3600):
    return sum(f(360.0 * i / n) for i in range(n)) / n


def tetapan():
    """The constants that the equation tables carry, from the offsets.

    The reckoning takes back the alamah's offset through the sum of the tables, in degrees,
    which it multiplies by the hours per degree of elongation: K, the offset in degrees, is
    the offset in hours at the moon's mean motion in longitude (0.549 degrees an hour). The
    moon gains on the sun more slowly than that, so K times the hours per degree takes back
    more than the offset, by about an hour on the average and by up to two and a half
    hours when the moon is slow: the treatise's ijtima' comes early, as its published
    results do.

    The constant of the equation of days keeps that table at or above zero; the sun's
    equation carries the sun's greatest equation, and the moon's equation the rest of K, which
    keeps it above zero too. D is how far the treatise's sun at the ijtima' (the Wasath less
    the moon's correction) stands from the true sun; the tables keyed by it read the true sun
    at key - D."""
    o = ofset()
    g = gerak_sebulan()
    kecepatan = rata_rata(kecepatan_elongasi)
    k = o["Alamah"] * (360 + g["Wasath"]) / g["jam"]
    apogee = putar(POKOK["Wasath"] - POKOK["Markaz"] + GROUP_KALIBRASI * (TIGA_PULUH["Wasath"] - TIGA_PULUH["Markaz"]))
    c_q = -min(persamaan_waktu(0.1 * i, apogee) for i in range(3600)) * kecepatan
    c_r = math.degrees(math.asin(EKSENTRISITAS_MATAHARI))
    c_k = k + c_q - c_r
    assert c_k >= math.degrees(math.asin(JARI_EPISIKEL)), "the moon's equation would go below zero"
    d = o["Wasath"] - c_r - FAKTOR_QOMAR * (c_k + c_r)
    return {"ofset": o, "C_k": c_k, "C_r": c_r, "C_q": c_q, "K": k, "D": d, "apogee": apogee, "kecepatan": kecepatan}


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
    return ["Cari"] + KOLOM_TAHUN, [[str(n)] + baris_gerak(12 * n) for n in range(1, 31)]


def tabel_bulan():
    """TRBSyahruSH: the motion of m lunations from the start of the year, for the ijtima' at
    the end of month m; the GB columns the motion of m - 1/2 lunations, for the full moon in
    the middle of month m."""
    kepala = ["Cari"] + KOLOM_TAHUN + [k + "GB" for k in KOLOM_TAHUN]
    return kepala, [[str(m)] + baris_gerak(m) + baris_gerak(m - 0.5) for m in range(1, 13)]


def tabel_taadil():
    """TRBTaadilSH, one row a whole degree from 0 to 365 (the keys reach 361 and, by fives,
    365); CariLoop5 stands on the rows whose degree is a multiple of 5."""
    t = tetapan()
    o = t["ofset"]
    kepala = ["Cari", "tdlKhosshoh", "TdlMarkaz", "tdlArdluQ", "mnJah", "mn", "CariLoop5", "tdlHisshoh", "tdlMuqowwam"]
    rows = []
    lebar_manzil = 360.0 / JUMLAH_MANZIL
    for c in range(0, 366):
        anomali_bulan = c - o["Khossyoh"]
        anomali_matahari = c - o["Markaz"]
        hishshoh = c - o["Hishshoh"]
        bujur = putar(c - t["D"])
        manzil = int(bujur // lebar_manzil)
        row = [str(c),
               cetak(t["C_k"] + persamaan_bulan(anomali_bulan)),
               cetak(t["C_r"] - persamaan_matahari(anomali_matahari)),
               cetak(abs(lintang_bulan(hishshoh)) / 15),
               str(int(bujur - manzil * lebar_manzil)),
               NAMA_MANZIL[manzil]]
        if c % 5 == 0:
            row += [str(c), cetak(1 / kecepatan_elongasi(anomali_bulan)),
                    cetak(t["C_q"] + persamaan_waktu(bujur, t["apogee"]) * t["kecepatan"])]
        else:
            row += ["", "", ""]
        rows.append(row)
    return kepala, rows


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
    # The treatise's thirty-year step against the modern mean motions.
    modern = gerak_modern_sebulan()
    for e in ELEMEN:
        beda = selisih_sudut(TIGA_PULUH[e], putar(modern[e] * BULAN_TIGA_PULUH))
        if abs(beda) > 0.2:
            salah.append(f"the step of {e} is {beda:+.3f} degrees from the modern motion")
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
