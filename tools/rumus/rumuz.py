#!/usr/bin/env python3
"""Writes data/TQQRumuz.csv: the formula sheets of the precise books, one row a step of the
reckoning and three columns a book X: XNama (the quantity, in Indonesian), XRumuz (its formula
in symbols), XVar (the variable list: segments "left,k|" where k is the index of the run's
result shown as `left = value`; a letter before k takes the run's second array).

Every book numbers its first array from 1: element k is the run's result [k - 1], so that the
elements its sheet shows in whole degrees (the longitudes, the right ascensions, the argument of
latitude) keep the numbers the books give them. The books of mean motions and equations (BM,
NA) hold their hilal there; their second array holds the constants and the steps to the true
sun and moon (SEBELUM_HILAL).
A fixed row (the right ascension by its quadrant) takes its symbols from the program, so its
XRumuz stays empty; A and B of those lines are named in its variable list.

A book joins the table by adding its list below; shorter lists leave their columns empty in
the later rows.

Run: python3 tools/rumus/rumuz.py            (--verify: fail unless data/ holds what it would write)
"""
import csv
import io
import os
import sys

# The modern reckoning: its fifty results [0] to [49] in order, elements 1 to 50.
EPHEMERIS = [
    ("Jam FIB terkecil (GMT)", "s = jam dengan k terkecil; [0] = s, dikurangi 25 bila s > 25", "s,1|"),
    ("Bujur Matahari (ELM) jam s", "ELM₁ = λ☉ geosentris pada jam s", "ELM₁,2|"),
    ("Bujur Matahari (ELM) jam s+1", "ELM₂ = λ☉ geosentris pada jam s + 1", "ELM₂,3|"),
    ("Gerak Matahari per jam (B¹)", "B¹ = |ELM₁ − ELM₂|", "B¹,4|"),
    ("Bujur Bulan (ALB) jam s", "ALB₁ = λ☽ tampak pada jam s", "ALB₁,5|"),
    ("Bujur Bulan (ALB) jam s+1", "ALB₂ = λ☽ tampak pada jam s + 1", "ALB₂,6|"),
    ("Gerak Bulan per jam (B²)", "B² = |ALB₁ − ALB₂|", "B²,7|"),
    ("Zona waktu", "Z = zona waktu daerah", "Z,8|"),
    ("Ijtima'", "Ijt = (ELM₁ − ALB₁) / (B² − B¹) + (s − 1) + Z", "Ijt,9|"),
    ("Perkiraan terbenam Matahari", "G = jam Maghrib dibulatkan", "G,10|"),
    ("Perkiraan terbenam (GMT)", "G' = G − Z", "G',11|"),
    ("Semi diameter Matahari", "SD☉ = 959.63″ / R, pada jam G'", "SD☉,12|"),
    ("Refraksi di ufuk", "Ref = 34.5′", "Ref,13|"),
    ("Kerendahan ufuk (Dip)", "Dip = 1.76′ × √tinggi tempat", "Dip,14|"),
    ("Tinggi Matahari saat terbenam", "h☉ = −(SD☉ + Ref + Dip)", "h☉,15|"),
    ("Deklinasi Matahari", "δ☉ pada jam G'", "δ☉,16|"),
    ("Sudut waktu Matahari", "t☉ = cos⁻¹(−tan φ tan δ☉ + sin h☉ / cos φ / cos δ☉)", "t☉,17|"),
    ("Perata waktu (Equation of Time)", "e pada jam G'", "e,18|"),
    ("Koreksi waktu daerah (KWD)", "KWD = (λ zona − λ tempat) / 15", "KWD,19|"),
    ("Jam tengah hari", "12", "12,20|"),
    ("Terbenam Matahari (taksiran pertama)", "Ghurub = 12 − e + t☉ / 15 + KWD", "Ghurub,21|"),
    ("Terbenam (GMT)", "Ghurub' = Ghurub − Z", "Ghurub',22|"),
    ("Semi diameter Matahari (interpolasi)", "SD☉ pada jam Ghurub'", "SD☉,23|"),
    ("Tinggi Matahari saat terbenam", "h☉ = −(SD☉ + Ref + Dip)", "h☉,24|"),
    ("Deklinasi Matahari (interpolasi)", "δ☉ pada jam Ghurub'", "δ☉,25|"),
    ("Sudut waktu Matahari", "t☉ = cos⁻¹(−tan φ tan δ☉ + sin h☉ / cos φ / cos δ☉)", "t☉,26|"),
    ("Perata waktu (interpolasi)", "e pada jam Ghurub'", "e,27|"),
    ("Koreksi waktu daerah (KWD)", "KWD = (λ zona − λ tempat) / 15", "KWD,28|"),
    ("Jam tengah hari", "12", "12,29|"),
    ("Terbenam Matahari", "Ghurub = 12 − e + t☉ / 15 + KWD", "Ghurub,30|"),
    ("Terbenam (GMT)", "Ghurub' = Ghurub − Z", "Ghurub',31|"),
    ("Asensio rekta Matahari", "α☉ pada jam Ghurub'", "α☉,32|"),
    ("Asensio rekta Bulan", "α☽ pada jam Ghurub'", "α☽,33|"),
    ("Sudut waktu Bulan", "t☽ = α☉ − α☽ + t☉", "t☽,34|"),
    ("Deklinasi Bulan", "δ☽ pada jam Ghurub'", "δ☽,35|"),
    ("Tinggi hakiki Bulan", "h☽ = sin⁻¹(sin φ sin δ☽ + cos φ cos δ☽ cos t☽)", "h☽,36|"),
    ("Horizontal parallax Bulan", "HP pada jam Ghurub'", "HP,37|"),
    ("Parallax", "Par = cos h☽ × HP", "Par,38|"),
    ("Semi diameter Bulan", "SD☽ pada jam Ghurub'", "SD☽,39|"),
    ("Tinggi piringan atas Bulan", "h' = h☽ − Par + SD☽", "h',40|"),
    ("Refraksi", "Ref = dari tabel Refraksi pada h☽", "Ref,41|"),
    ("Tinggi mar'i hilal", "h = Ref + h' + Dip", "h,42|"),
    ("Lama hilal di atas ufuk", "Mukts = h / 15", "Mukts,43|"),
    ("Terbenam Bulan", "Ghurub☽ = Mukts + Ghurub", "Ghurub☽,44|"),
    ("Azimut Matahari", "A☉ = 90 − tan⁻¹(1 / (tan δ☉ cos φ / sin t☉ − sin φ / tan t☉))", "A☉,45|"),
    ("Azimut Bulan", "A☽ = 90 − tan⁻¹(1 / (tan δ☽ cos φ / sin t☽ − sin φ / tan t☽))", "A☽,46|"),
    ("Posisi hilal dari Matahari", "PH = A☽ − A☉", "PH,47|"),
    ("Fraksi iluminasi Bulan", "k pada jam Ghurub'", "k,48|"),
    ("Nurul hilal", "Nur = √(h² + PH²) / 15", "Nur,49|"),
    ("Kemiringan hilal", "Q = tan⁻¹(PH / h)", "Q,50|"),
]

# The second array of BM and NA, x0 to x13: the obliquity, the moon's greatest latitude, the
# depression of the horizon (NA), then the true sun and moon as the reckoning built them.
SEBELUM_HILAL = ["ε", "i", "d", "Wasath ☉", "Ta'dil ☉", "Wasath ☽", "k₁", "k₂", "k₃", "k₄", "k₅",
                 "'Uqdah", "Ta'dil 'uqdah", "☽'"]

# The true sun and moon, alike in both books.
SYAMS = ("Bujur Matahari hakiki", "☉ = Wasath ☉ + Ta'dil ☉", "Wasath ☉,x3|Ta'dil ☉,x4|☉,1|")
QOMAR = ("Bujur Bulan hakiki (koreksi tahunan k₁, evection k₂, markaz k₃, variasi k₄, reduksi k₅)",
         "☽ = Wasath ☽ + k₁ + k₂ + k₃ + k₄ + k₅",
         "Wasath ☽,x5|k₁,x6|k₂,x7|k₃,x8|k₄,x9|k₅,x10|☽,{}|")
HISHSHOH = ("Hishshoh al-'Ardl (jarak Bulan dari 'uqdah)", "H = 'Uqdah + Ta'dil 'uqdah + ☽'  (☽' = ☽ sebelum reduksi)",
            "'Uqdah,x11|Ta'dil 'uqdah,x12|☽',x13|H,{}|")


def qomar(k):
    return QOMAR[:2] + (QOMAR[2].format(k),)


def hishshoh(k):
    return HISHSHOH[:2] + (HISHSHOH[2].format(k),)


# Badi'atu al-Mitsal: its hilal [0] to [31] as elements 1 to 32; rows 5 and 15 are fixed.
BADIATUL_MITSAL = [
    SYAMS,
    ("Deklinasi Matahari", "δ☉ = sin⁻¹(sin ε × sin ☉)", "ε,x0|δ☉,2|"),
    ("Ta'dil al-nahar Matahari", "n☉ = sin⁻¹(tan φ × tan δ☉)", "φ,3|n☉,4|"),
    ("Setengah busur siang Matahari", "½QN☉ = n☉ + 90°", "½QN☉,5|"),
    ("Mathla' Matahari dari awal Jadi (α☉), B = | sin⁻¹(cos ☉ / cos δ☉) |", "", "A,1|B,6|α☉,7|"),
    ("Mathla' ghurub Matahari", "MG☉ = α☉ + ½QN☉", "MG☉,8|"),
    qomar(9),
    ("Deklinasi kedua titik Bulan di ekliptika", "δ₂ = tan⁻¹(tan ε × sin ☽)", "δ₂,10|"),
    hishshoh(11),
    ("Lintang Bulan ('Ardl al-Qomar)", "β = sin⁻¹(sin i × sin H)", "i,x1|β,12|"),
    ("Jumlah lintang dan deklinasi kedua", "β + δ₂", "β + δ₂,13|"),
    ("Deklinasi Bulan", "δ☽ = sin⁻¹(sin(β + δ₂) × cos ε / cos δ₂)", "δ☽,14|"),
    ("Ta'dil al-nahar Bulan", "n☽ = sin⁻¹(tan φ × tan δ☽)", "n☽,15|"),
    ("Setengah busur siang Bulan", "½QN☽ = n☽ + 90°", "½QN☽,16|"),
    ("Mathla' Bulan dari awal Jadi (α☽), δ₁ = sin⁻¹(sin ε × sin ☽), B = | sin⁻¹(cos ☽ / cos δ₁) |", "",
     "δ₁,17|A,9|B,18|α☽,19|"),
    ("Mathla' ghurub Bulan", "MG☽ = α☽ + ½QN☽", "MG☽,20|"),
    ("Busur Bulan di atas ufuk saat Matahari terbenam", "Bu'd = MG☽ − MG☉", "MG☉,21|Bu'd,22|"),
    ("Lama hilal di atas ufuk (jam)", "Mukts = Bu'd / 15", "Mukts,23|"),
    ("Sudut waktu Bulan", "t☽ = ½QN☽ − Bu'd", "t☽,24|"),
    ("Tinggi hilal", "h = sin⁻¹(sin φ × sin δ☽) + sin⁻¹(cos φ × cos δ☽ × cos t☽)", "h,25|"),
    ("Azimut terbenam Matahari dari titik barat", "A☉ = sin⁻¹(sin δ☉ / cos φ)", "A☉,26|"),
    ("Azimut terbenam Bulan dari titik barat", "A☽ = sin⁻¹(sin δ☽ / cos φ)", "A☽,27|"),
    ("Selisih azimut terbenam", "A☉ − A☽", "A☉ − A☽,28|"),
    ("Azimut hilal dari titik barat", "Z = ± cos⁻¹(sin t☽ × cos δ☽ / cos h), negatif bila di selatan", "Z,29|"),
    ("Jumlah azimut hilal dan Matahari", "Z + A☉", "Z + A☉,30|"),
    ("Posisi hilal dari Matahari", "PH = A☉ − Z", "PH,31|"),
    ("Nurul hilal (jari)", "Nur = √(h² + PH²) / 15", "Nur,32|"),
]

# Nuru al-Anwar: its hilal [0] to [28] as elements 1 to 29; rows 4 and 14 are fixed. Its
# setting arcs take the depression of the horizon d.
NURUL_ANWAR = [
    SYAMS,
    ("Deklinasi Matahari", "δ☉ = sin⁻¹(sin ε × sin ☉)", "ε,x0|δ☉,2|"),
    ("Setengah busur siang Matahari sampai terbenam", "½QN☉ = cos⁻¹(−tan φ × tan δ☉ − sin d / cos φ / cos δ☉)",
     "φ,3|d,x2|½QN☉,4|"),
    ("Mathla' Matahari dari awal Jadi (α☉), B = | sin⁻¹(cos ☉ / cos δ☉) |", "", "A,1|B,5|α☉,6|"),
    ("Mathla' ghurub Matahari", "MG☉ = α☉ + ½QN☉", "MG☉,7|"),
    qomar(8),
    ("Deklinasi kedua titik Bulan di ekliptika", "δ₂ = tan⁻¹(tan ε × sin ☽)", "δ₂,9|"),
    hishshoh(10),
    ("Lintang Bulan ('Ardl al-Qomar)", "β = sin⁻¹(sin i × sin H)", "i,x1|β,11|"),
    ("Jumlah lintang dan deklinasi kedua", "β + δ₂", "β + δ₂,12|"),
    ("Deklinasi Bulan", "δ☽ = sin⁻¹(sin(β + δ₂) × cos ε / cos δ₂)", "δ☽,13|"),
    ("Setengah busur siang Bulan sampai terbenam", "½QN☽ = cos⁻¹(−tan φ × tan δ☽ − sin d / cos φ / cos δ☽)",
     "½QN☽,14|"),
    ("Deklinasi titik Bulan di ekliptika dan rata-ratanya", "δ₁ = sin⁻¹(sin ε × sin ☽);  δ̄ = (δ₁ + δ☽) / 2",
     "δ₁,15|δ̄,16|"),
    ("Mathla' Bulan dari awal Jadi (α☽), B = | sin⁻¹(cos ☽ / cos δ̄) |, dengan kebalikannya bila nisbah itu 1 atau lebih",
     "", "A,8|B,17|α☽,18|"),
    ("Mathla' ghurub Bulan", "MG☽ = α☽ + ½QN☽", "MG☽,19|"),
    ("Busur Bulan di atas ufuk saat Matahari terbenam", "Bu'd = MG☽ − MG☉", "MG☉,20|Bu'd,21|"),
    ("Sudut waktu Bulan", "t☽ = ½QN☽ − Bu'd", "t☽,22|"),
    ("Tinggi hilal", "h = sin⁻¹(sin φ × sin δ☽ + cos φ × cos δ☽ × cos t☽)", "h,23|"),
    ("Lama hilal di atas ufuk (jam)", "Mukts = ((h + Bu'd) / 2) / 15", "Mukts,24|"),
    ("Azimut terbenam Matahari dari titik barat", "A☉ = sin⁻¹(sin δ☉ / cos φ)", "A☉,25|"),
    ("Azimut hilal dari titik barat", "Z = cos⁻¹(sin t☽ × cos δ☽ / cos h)", "Z,26|"),
    ("Posisi hilal dari Matahari", "PH = |A☉| − |Z|", "PH,27|"),
    ("Jarak bujur Bulan dari Matahari (elongasi)", "E = ☽ − ☉", "E,28|"),
    ("Nurul hilal (jari)", "Nur = E / 15 + β / 60", "Nur,29|"),
]

KITAB = {"ER": EPHEMERIS, "BM": BADIATUL_MITSAL, "NA": NURUL_ANWAR}

PERIKSA = "--verify" in sys.argv[1:]
KELUAR = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data", "TQQRumuz.csv")


def main():
    kolom = [f"{kode}{nama}" for kode in KITAB for nama in ("Nama", "Rumuz", "Var")]
    panjang = max(len(v) for v in KITAB.values())
    buf = io.StringIO()
    w = csv.writer(buf, lineterminator="\n")
    w.writerow(kolom)
    for i in range(panjang):
        baris = []
        for langkah in KITAB.values():
            baris += list(langkah[i]) if i < len(langkah) else ["", "", ""]
        w.writerow(baris)
    if PERIKSA:
        with open(KELUAR, encoding="utf-8", newline="") as fh:
            if fh.read() != buf.getvalue():
                print("TQQRumuz.csv is not what the generator writes", file=sys.stderr)
                return 1
        return 0
    with open(KELUAR, "w", encoding="utf-8", newline="") as fh:
        fh.write(buf.getvalue())
    return 0


if __name__ == "__main__":
    assert len(EPHEMERIS) == 50 and len(BADIATUL_MITSAL) == 27 and len(NURUL_ANWAR) == 24
    sys.exit(main())
