#!/usr/bin/env python3
"""Writes the columns of the printed tables that Fathu al-Ro'uf al-Mannan and the books on its
skeleton read beyond those of Sullam al-Nairoin, into data/TRBSyahru.csv and data/TRBTaadil.csv:

  TRBSyahru  wsBrj wsJah wsQoh wsNii   the sun's mean place (Wasath) gained in m - 1 lunations
             mshTh mshBln mshTgl       the whole days of m - 1 lunations, in months of 30 days
             Pasaran                   those days modulo 5
  TRBTaadil  hsJah hsQoh hsNii         hours per degree of elongation by the moon's anomaly
                                       (table 6: table 4 with seconds), keys 5 .. 360
             tdThMasehi                days by which Dawr groups of thirty years run beyond
                                       Dawr x (29 years and 1 month) from the base 15 July 622

Only these columns are written: the other columns and rows of a table that is already there
are kept as they are, a missing row (key) is added with its other cells empty, and a missing
file is made with the key column and these columns. So the script can be run again over tables
that the generator of Sullam al-Nairoin's columns has (re)written.

Run: python3 tools/tables/taqribi_fr.py            (writes)
     python3 tools/tables/taqribi_fr.py --verify   (fails unless the files hold these values)
"""
import csv
import io
import math
import os
import sys

DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data")

# One mean lunation in days, and the sun's mean motion in a lunation as the books' constants
# give it: 360 lunations (thirty lunar years) carry the sun 29 circles and 38 deg 24'.
BULAN_HARI = 29.530589
WASATH_SEBULAN = (29 * 360 + 38 + 24 / 60) / 360  # degrees

# The moon of the tables: an epicycle of radius 5;15 in parts of 60 at the syzygies (greatest
# equation 5 deg 1'), mean motions in longitude and in anomaly per day, and the sun's mean
# motion per day. The anomaly (Khossyoh) is counted from the epicycle's apogee.
EPISIKEL = 5.25 / 60
GERAK_QOMAR = 13.176358
GERAK_KHOSSYOH = 13.064993
GERAK_SYAMS = 0.9856474

# The Masehi date of the base of the books that carry one, and a group of thirty lunar years:
# Kamis Kliwon 15 July 622 (Julian), 10631 days, written 29 years and 1 month.
MABDA = (622, 7, 15)
DAWR_HARI = 10631
DAWR_TAHUN, DAWR_BULAN = 29, 1


def jdn(y, m, d):
    """Julian Day Number of a civil date: Julian before 15 October 1582, Gregorian from it."""
    a = (14 - m) // 12
    yy = y + 4800 - a
    mm = m + 12 * a - 3
    j = d + (153 * mm + 2) // 5 + 365 * yy + yy // 4
    if (y, m, d) >= (1582, 10, 15):
        return j - yy // 100 + yy // 400 - 32045
    return j - 32083


def sexa(x, medan):
    """Degrees as whole degrees and then `medan` sexagesimal places, the last rounded."""
    skala = 60 ** medan
    n = round(x * skala)
    out = []
    for _ in range(medan):
        out.append(n % 60)
        n //= 60
    return [n] + out[::-1]


def syahru_rows():
    rows = {}
    for bulan in range(1, 13):
        lunasi = bulan - 1
        d, q, n = sexa((lunasi * WASATH_SEBULAN) % 360, 2)
        hari = math.floor(lunasi * BULAN_HARI)
        rows[str(bulan)] = {
            "wsBrj": d // 30, "wsJah": d % 30, "wsQoh": q, "wsNii": n,
            "mshTh": 0, "mshBln": hari // 30, "mshTgl": hari % 30, "Pasaran": hari % 5,
        }
    return rows


def jam_per_derajat(khossyoh):
    """Hours the moon needs to gain one degree on the sun, at an anomaly in degrees from the
    epicycle's apogee."""
    a = math.radians(khossyoh)
    e = EPISIKEL
    turunan = e * (e + math.cos(a)) / (1 + 2 * e * math.cos(a) + e * e)
    elongasi = GERAK_QOMAR - GERAK_KHOSSYOH * turunan - GERAK_SYAMS
    return 24 / elongasi


def taadil_rows():
    rows = {}
    for kunci in range(5, 361, 5):
        jam, menit, detik = sexa(jam_per_derajat(kunci % 360), 2)
        rows.setdefault(str(kunci), {}).update({"hsJah": jam, "hsQoh": menit, "hsNii": detik})
    mabda = jdn(*MABDA)
    for kunci in range(1, 361):
        dawr = kunci if kunci <= 180 else kunci - 360
        bulan = MABDA[1] - 1 + dawr * DAWR_BULAN
        tahun = MABDA[0] + dawr * DAWR_TAHUN + bulan // 12
        lebih = mabda + DAWR_HARI * dawr - jdn(tahun, bulan % 12 + 1, MABDA[2])
        rows.setdefault(str(kunci), {})["tdThMasehi"] = lebih
    return rows


def gabung(nama, kolom_baru, rows):
    """The table with these columns set, as CSV text."""
    berkas = os.path.join(DATA, nama)
    if os.path.exists(berkas):
        with open(berkas, newline="", encoding="utf-8-sig") as fh:
            r = list(csv.reader(fh))
        kepala, isi = r[0], [b for b in r[1:] if b]
    else:
        kepala, isi = ["Cari"], []
    for k in kolom_baru:
        if k not in kepala:
            kepala.append(k)
    isi = [b + [""] * (len(kepala) - len(b)) for b in isi]
    ic = kepala.index("Cari")
    ada = {b[ic] for b in isi}
    for kunci in rows:
        if kunci not in ada:
            b = [""] * len(kepala)
            b[ic] = kunci
            isi.append(b)
    for b in isi:
        nilai = rows.get(b[ic])
        for k in kolom_baru:
            b[kepala.index(k)] = str(nilai[k]) if nilai and k in nilai else b[kepala.index(k)]
    out = io.StringIO()
    w = csv.writer(out, lineterminator="\n")
    w.writerow(kepala)
    w.writerows(isi)
    return berkas, out.getvalue()


def periksa(syahru, taadil):
    """Checks that fail the run: the month rows against the books' thirty-year constants, the
    weekday of the Masehi days against the lunations, and the date correction against the
    weekday of the base."""
    # Twelve lunations of the sun's mean place against thirty years of Fathu (38 deg 24' a
    # group): 30 x 12 months are 360 lunations.
    assert abs((360 * WASATH_SEBULAN) % 360 - 38.4) < 1e-9
    for bulan, b in syahru.items():
        hari = 30 * b["mshBln"] + b["mshTgl"]
        assert hari <= (int(bulan) - 1) * BULAN_HARI < hari + 1, bulan
    # Each group date plus its correction lands on a day whose weekday is the base's advanced by
    # 5 a group (10631 = 1518 weeks and 5 days), and the correction grows by some 8.3 days a
    # group (10631 days against 29 Julian years and a month) plus the calendar reform's days.
    mabda = jdn(*MABDA)
    for kunci, b in taadil.items():
        if "tdThMasehi" not in b:
            continue
        dawr = int(kunci) if int(kunci) <= 180 else int(kunci) - 360
        bulan = MABDA[1] - 1 + dawr
        hari = jdn(MABDA[0] + 29 * dawr + bulan // 12, bulan % 12 + 1, MABDA[2]) + b["tdThMasehi"]
        assert (hari - mabda - 5 * dawr) % 7 == 0, kunci
        assert abs(b["tdThMasehi"] - 8.31 * dawr) < 60, kunci
    # At the base's key the correction is 0; one group on it is 8 days (worked by hand).
    assert taadil["360"]["tdThMasehi"] == 0 and taadil["1"]["tdThMasehi"] == 8
    # The hours per degree are shortest at the perigee (anomaly 180) and longest at the apogee.
    jam = {int(k): b["hsJah"] + b["hsQoh"] / 60 + b["hsNii"] / 3600 for k, b in taadil.items() if "hsJah" in b}
    assert max(jam, key=jam.get) == 360 and min(jam, key=jam.get) == 180


def main():
    verify = "--verify" in sys.argv[1:]
    syahru, taadil = syahru_rows(), taadil_rows()
    periksa(syahru, taadil)
    hasil = [gabung("TRBSyahru.csv", ["wsBrj", "wsJah", "wsQoh", "wsNii", "mshTh", "mshBln", "mshTgl", "Pasaran"],
                    syahru),
             gabung("TRBTaadil.csv", ["hsJah", "hsQoh", "hsNii", "tdThMasehi"], taadil)]
    salah = False
    for berkas, teks in hasil:
        if verify:
            with open(berkas, encoding="utf-8-sig") as fh:
                if fh.read() != teks:
                    print(f"{berkas}: not what the generator gives", file=sys.stderr)
                    salah = True
        else:
            with open(berkas, "w", encoding="utf-8", newline="") as fh:
                fh.write(teks)
    sys.exit(1 if salah else 0)


if __name__ == "__main__":
    main()
