#!/usr/bin/env python3
"""Writes the tables by which a worked sheet is laid out when it leaves the program (spreadsheet,
printed page): data/MergenExcel.csv (cells to show as one), data/ClearTxtMargen.csv (cells to
empty first) and data/Lines.csv (the lines of the book's table); and data/Validation.csv, the
cell of each step of a precise book's formula sheet, which carries that step's formula as its
tip (read from the variable lists of data/TQQRumuz.csv: run this again when they change).

Each treatise X has one column in each table (MergnX, ClearTxtX, Lines_X; Khulashotu's clear
column is ClearTxtKWI), one range a row, read from the first row to the last; an empty cell is
skipped. Ranges are in the coordinates of the sheet itself (column A the leftmost column of the
grid, row 1 its top row), as the frames of frames.py place their labels; a right-to-left sheet
is mirrored only when it is written.

A line is "RANGE|SIDES": SIDES is the sum of 1 top, 2 bottom, 4 left, 8 right, plus 16 when
the lines go only along the outer edges of the block (a box), not around every cell of it.

Run: python3 tools/frames/excel.py            (--verify: fail unless data/ holds what it would write)
"""
import csv
import io
import os
import sys

ATAS, BAWAH, KIRI, KANAN, LUAR = 1, 2, 4, 8, 16
KOTAK = ATAS + BAWAH + KIRI + KANAN + LUAR


def kolom(k):
    """The spreadsheet's letters of column k (0 is A)."""
    nama = ""
    k += 1
    while k:
        k, r = divmod(k - 1, 26)
        nama = chr(65 + r) + nama
    return nama


def rentang(b1, k1, b2=None, k2=None):
    """Rows and columns from 0, inclusive, as "B3:H7"."""
    b2 = b1 if b2 is None else b2
    k2 = k1 if k2 is None else k2
    return f"{kolom(k1)}{b1 + 1}:{kolom(k2)}{b2 + 1}"


class Garis(list):
    """The lines of a sheet, "RANGE|SIDES" each; garis(range, sides) draws one."""

    def __call__(self, r, sisi):
        self.append(f"{r}|{sisi}")


def kotakBlok(garis, b1, k1, b2, k2):
    """A worked block: a box around it and a line under its heading row."""
    garis(rentang(b1, k1, b2, k2), KOTAK)
    garis(rentang(b1, k1, b1, k2), BAWAH + LUAR)


def blokAtas(garis, k1, k2):
    """The top block of a month's sheet (rows 1 to 6, columns k1 to k2): the groups of the
    years, the month and the sum, with lines under the field headings and over the sum."""
    garis(rentang(1, k1, 6, k2), KOTAK)
    garis(rentang(2, k1, 2, k2), BAWAH + LUAR)
    garis(rentang(6, k1, 6, k2), ATAS + LUAR)


def taqribi(baris_kanan, kelompok=5, latitude=True, waktu=False, tempat=()):
    """The sheets of 40 by 40 drawn by frames.sullam and frames.fathur.

    baris_kanan: the number of row labels of the right block (from row 8); kelompok: the groups
    of the top block (5, or 4 without the Hishshoh); latitude: whether the look-up of the moon's
    latitude stands in the middle; waktu: whether the block of the hilal's time follows at row 31;
    tempat: the rows whose rightmost column holds the place or a sign beside its label."""
    merge, clear, garis = [], [], Garis()
    # The top block, as wide as its groups.
    kiri = 33 - 6 * (kelompok - 1)
    blokAtas(garis, kiri, 39)
    # The right block: the field headings at row 7, then one row a step.
    akhir = 7 + baris_kanan
    kotakBlok(garis, 7, 29, akhir, 39)
    # The worked look-ups of five lines: in the middle (columns 11-27) and at the left (1-10).
    tengah = [8, 16] + ([24] if latitude else [])
    for b in tengah:
        kotakBlok(garis, b, 11, b + 5, 27)
    for b in (8, 16, 24):
        kotakBlok(garis, b, 1, b + 5, 10)
    if waktu:
        kotakBlok(garis, 31, 11, 38, 27)
    # A row label of the right block runs into the empty rightmost column, unless that column
    # holds the place or a sign.
    for b in range(8, akhir + 1):
        if b not in tempat:
            merge.append(rentang(b, 38, b, 39))
    # The mansion's name is written in three cells so that the screen shows it whichever of them
    # it draws; the merged cell keeps the leftmost, the copies go first.
    clear.append(rentang(29, 8, 29, 9))
    return merge, clear, garis


def syamsul_hilal():
    """The sheet of 19 by 12 drawn by frames.syamsul_hilal: its labels are merged already."""
    garis = Garis()
    blokAtas(garis, 4, 11)
    kotakBlok(garis, 7, 9, 18, 11)
    kotakBlok(garis, 7, 4, 12, 7)
    kotakBlok(garis, 13, 4, 18, 7)
    kotakBlok(garis, 7, 0, 17, 2)
    return [], [], garis


def tahqiqi(hasil):
    """The sheets of 48 by 51 drawn by frames.tahqiqi: the rows of six cells at the top, then
    the luminaries and the ijtima' at the right, the worked look-ups in the middle and the
    hilal's `hasil` values at the left."""
    garis = Garis()
    garis(rentang(1, 1, 12, 50), KOTAK)
    garis(rentang(2, 1, 2, 50), BAWAH + LUAR)
    garis(rentang(7, 1, 7, 50), ATAS + LUAR)
    garis(rentang(12, 1, 12, 50), ATAS + LUAR)
    garis(rentang(15, 39, 34, 50), KOTAK)
    for b in range(5):
        kotakBlok(garis, 14 + 6 * b, 25, 19 + 6 * b, 37)
    garis(rentang(15, 11, 14 + hasil, 23), KOTAK)
    return [], [], garis


def ephemeris():
    """The sheet of 106 by 12 drawn by frames.ephemeris: the hourly table under its two rows of
    headings, then the reckoning under its own; its labels are merged already."""
    garis = Garis()
    garis(rentang(1, 0, 53, 11), KOTAK)
    garis(rentang(3, 0, 3, 11), BAWAH + LUAR)
    kotakBlok(garis, 55, 0, 105, 11)
    return [], [], garis


def khusuf():
    """The lunar eclipse of the taqribi skeleton, a sheet of 58 by 40 (frames.khusuf_sullam): the
    top block of the month's sheets, the right block of steps (rows 8 to 56, the place beside
    row 34), the look-ups of five lines in the middle and at the left, and the double look-ups
    of eleven (the fingers in the middle, the half durations at the left)."""
    merge, garis = [], Garis()
    blokAtas(garis, 9, 39)
    kotakBlok(garis, 7, 29, 56, 39)
    for b in (8, 16, 24, 32):
        kotakBlok(garis, b, 11, b + 5, 27)
    for b in (8, 16, 24):
        kotakBlok(garis, b, 1, b + 5, 10)
    kotakBlok(garis, 40, 11, 51, 27)
    kotakBlok(garis, 32, 1, 43, 10)
    kotakBlok(garis, 46, 1, 57, 10)
    merge += [rentang(b, 38, b, 39) for b in range(8, 57) if b != 34]
    return merge, [], garis


def kusuf():
    """The solar eclipse of the taqribi skeleton, a sheet of 47 by 40 (frames.kusuf_sullam): the
    top block, the right block of steps (rows 8 to 43), the place's rows in the middle (8 to 45)
    and the three double look-ups at the left (13 rows each from row 8), all under the field
    headings of row 7."""
    merge, garis = [], Garis()
    blokAtas(garis, 9, 39)
    kotakBlok(garis, 7, 29, 43, 39)
    kotakBlok(garis, 7, 11, 45, 27)
    kotakBlok(garis, 7, 1, 46, 10)
    for b in (21, 34):
        garis(rentang(b, 1, b, 10), ATAS + LUAR)
    merge += [rentang(b, 38, b, 39) for b in range(8, 44)]
    return merge, [], garis


def tadil_kusuf():
    """The look-ups of the solar eclipse, a sheet of 18 by 41 (frames.koreksi_kusuf): one row a
    look-up under the headings of row 1, its five lines side by side, eight columns each, from
    the right (columns 33-39 the entry)."""
    garis = Garis()
    garis(rentang(1, 1, 17, 40), KOTAK)
    garis(rentang(1, 1, 1, 40), BAWAH + LUAR)
    for i in range(5):
        garis(rentang(1, 33 - 8 * i, 17, 39 - 8 * i), KOTAK)
    return [], [], garis


# The books whose eclipses are worked on the taqribi skeleton: their sheets share its layout.
KERANGKA_GERHANA = ["SN", "FR", "IDB1", "TZ", "FK", "SH"]


def hasil_langkah(kode):
    """The result each step of a book's formula sheet gives, from data/TQQRumuz.csv (written by
    tools/rumus/rumuz.py): the element of the run's first array that its variable list ends
    with, the value the step arrives at."""
    berkas = os.path.join(os.path.dirname(__file__), "..", "..", "data", "TQQRumuz.csv")
    with open(berkas, encoding="utf-8", newline="") as fh:
        baris = list(csv.DictReader(fh))
    hasil = []
    for b in baris:
        daftar = (b.get(kode + "Var") or "").strip()
        if not daftar:
            break
        angka = [seg.rsplit(",", 1)[1] for seg in daftar.split("|") if "," in seg]
        angka = [int(a) for a in angka if a.isdigit()]
        hasil.append(angka[-1] if angka else None)
    return hasil


def validation(kode, sel):
    """The cell of each step of the book's formula sheet: sel(k) is where element k of its first
    array stands on the sheet; a step without one has none."""
    return ["" if k is None else rentang(*sel(k)).split(":")[0] for k in hasil_langkah(kode)]


PERIKSA = "--verify" in sys.argv[1:]
USANG = []


def tulis(nama, kepala, kolom_kolom):
    """Writes one table, a column per treatise; with --verify only compares it with the file."""
    keluar = os.path.join(os.path.dirname(__file__), "..", "..", "data", nama)
    buf = io.StringIO()
    w = csv.writer(buf, lineterminator="\n")
    w.writerow(kepala)
    panjang = max(len(k) for k in kolom_kolom)
    for i in range(panjang):
        w.writerow([k[i] if i < len(k) else "" for k in kolom_kolom])
    if PERIKSA:
        with open(keluar, encoding="utf-8", newline="") as fh:
            if fh.read() != buf.getvalue():
                USANG.append(nama)
        return
    with open(keluar, "w", newline="", encoding="utf-8") as fh:
        fh.write(buf.getvalue())


def main():
    # Rows beside which the rightmost column holds the place's name or the sign of the place
    # correction, as each module writes them (KerangkaTaqribi, SullamNairoin).
    sheets = {
        "SN": taqribi(31, tempat=(28, 29, 31)),
        "FR": taqribi(29, tempat=(26, 27)),
        "IDB1": taqribi(29, waktu=True, tempat=(26, 27)),
        "SH": syamsul_hilal(),
        "TZ": taqribi(32, tempat=(29, 30)),
        "KW1": taqribi(29, kelompok=4, latitude=False, tempat=(26, 27)),
        "FK": taqribi(29, waktu=True, tempat=(26, 27)),
        "BM": tahqiqi(32),
        "NA": tahqiqi(29),
        "ER": ephemeris(),
    }
    for x in KERANGKA_GERHANA:
        sheets[x + "GB"] = khusuf()
        sheets[x + "GM"] = kusuf()
    sheets["TdlGM"] = tadil_kusuf()
    kode = list(sheets)
    tulis("MergenExcel.csv", [f"Mergn{x}" for x in kode], [s[0] for s in sheets.values()])
    tulis("ClearTxtMargen.csv", ["ClearTxtKWI" if x == "KW1" else f"ClearTxt{x}" for x in kode],
          [s[1] for s in sheets.values()])
    tulis("Lines.csv", [f"Lines_{x}" for x in kode], [s[2] for s in sheets.values()])
    # One column a book of the formula family, named as the prefix of its formula columns.
    # Element k of a formula sheet is the run's result [k - 1]. The Ephemeris's fifty results
    # stand in rows 56 to 105, the value in column 5; the hilal of the precise books from row
    # 15 down, its first field at column 19 beside the label.
    tips = {
        "ER": validation("ER", lambda k: (55 + k, 5)),
        "BM": validation("BM", lambda k: (14 + k, 19)),
        "NA": validation("NA", lambda k: (14 + k, 19)),
    }
    tulis("Validation.csv", list(tips), list(tips.values()))


if __name__ == "__main__":
    main()
    for nama in USANG:
        print(f"{nama} is not what the generator writes (run python3 tools/frames/excel.py; Validation.csv follows "
              "data/TQQRumuz.csv)", file=sys.stderr)
    sys.exit(1 if USANG else 0)
