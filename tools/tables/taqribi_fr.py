#!/usr/bin/env python3
"""Writes the column of the printed tables that Ittifaq Dzatu al-Bain and Faidlu al-Karim read
beyond those that tools/tables/tables.py writes, into data/TRBTaadil.csv:

  TRBTaadil  tdThMasehi                days by which Dawr groups of thirty years run beyond
                                       Dawr x (29 years and 1 month) from the base 15 July 622

(The month motions, the months' Masehi days and the hours per degree with seconds that Fathu
al-Ro'uf al-Mannan's books read come from tables.py, with the rest of the two tables.)

Only this column is written: the other columns and rows of a table that is already there
are kept as they are, a missing row (key) is added with its other cells empty, and a missing
file is made with the key column and these columns. So the script can be run again over tables
that the generator of Sullam al-Nairoin's columns has (re)written.

Run: python3 tools/tables/taqribi_fr.py            (writes)
     python3 tools/tables/taqribi_fr.py --verify   (fails unless the files hold these values)
"""
import csv
import io
import os
import sys

DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data")

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


def taadil_rows():
    rows = {}
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


def periksa(taadil):
    """Checks that fail the run: the date correction against the weekday of the base."""
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


def main():
    verify = "--verify" in sys.argv[1:]
    taadil = taadil_rows()
    periksa(taadil)
    hasil = [gabung("TRBTaadil.csv", ["tdThMasehi"], taadil)]
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
