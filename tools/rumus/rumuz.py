#!/usr/bin/env python3
"""Writes data/TQQRumuz.csv: the formula sheets of the precise books, one row a step of the
reckoning and three columns a book X: XNama (the quantity, in Indonesian), XRumuz (its formula
in symbols), XVar (the variable list: segments "left,k|" where k is the index of the run's
result shown as `left = value`; a letter before k takes the run's second array).

A book joins the table by adding its list below; shorter lists leave their columns empty in
the later rows.

Run: python3 tools/rumus/rumuz.py            (--verify: fail unless data/ holds what it would write)
"""
import csv
import io
import os
import sys

# The modern reckoning: its fifty results [0] to [49] in order.
EPHEMERIS = [
    ("Jam FIB terkecil (GMT)", "s = jam dengan k terkecil; [0] = s, dikurangi 25 bila s > 25", "s,0|"),
    ("Bujur Matahari (ELM) jam s", "ELM₁ = λ☉ geosentris pada jam s", "ELM₁,1|"),
    ("Bujur Matahari (ELM) jam s+1", "ELM₂ = λ☉ geosentris pada jam s + 1", "ELM₂,2|"),
    ("Gerak Matahari per jam (B¹)", "B¹ = |ELM₁ − ELM₂|", "B¹,3|"),
    ("Bujur Bulan (ALB) jam s", "ALB₁ = λ☽ tampak pada jam s", "ALB₁,4|"),
    ("Bujur Bulan (ALB) jam s+1", "ALB₂ = λ☽ tampak pada jam s + 1", "ALB₂,5|"),
    ("Gerak Bulan per jam (B²)", "B² = |ALB₁ − ALB₂|", "B²,6|"),
    ("Zona waktu", "Z = zona waktu daerah", "Z,7|"),
    ("Ijtima'", "Ijt = (ELM₁ − ALB₁) / (B² − B¹) + (s − 1) + Z", "Ijt,8|"),
    ("Perkiraan terbenam Matahari", "G = jam Maghrib dibulatkan", "G,9|"),
    ("Perkiraan terbenam (GMT)", "G' = G − Z", "G',10|"),
    ("Semi diameter Matahari", "SD☉ = 959.63″ / R, pada jam G'", "SD☉,11|"),
    ("Refraksi di ufuk", "Ref = 34.5′", "Ref,12|"),
    ("Kerendahan ufuk (Dip)", "Dip = 1.76′ × √tinggi tempat", "Dip,13|"),
    ("Tinggi Matahari saat terbenam", "h☉ = −(SD☉ + Ref + Dip)", "h☉,14|"),
    ("Deklinasi Matahari", "δ☉ pada jam G'", "δ☉,15|"),
    ("Sudut waktu Matahari", "t☉ = cos⁻¹(−tan φ tan δ☉ + sin h☉ / cos φ / cos δ☉)", "t☉,16|"),
    ("Perata waktu (Equation of Time)", "e pada jam G'", "e,17|"),
    ("Koreksi waktu daerah (KWD)", "KWD = (λ zona − λ tempat) / 15", "KWD,18|"),
    ("Jam tengah hari", "12", "12,19|"),
    ("Terbenam Matahari (taksiran pertama)", "Ghurub = 12 − e + t☉ / 15 + KWD", "Ghurub,20|"),
    ("Terbenam (GMT)", "Ghurub' = Ghurub − Z", "Ghurub',21|"),
    ("Semi diameter Matahari (interpolasi)", "SD☉ pada jam Ghurub'", "SD☉,22|"),
    ("Tinggi Matahari saat terbenam", "h☉ = −(SD☉ + Ref + Dip)", "h☉,23|"),
    ("Deklinasi Matahari (interpolasi)", "δ☉ pada jam Ghurub'", "δ☉,24|"),
    ("Sudut waktu Matahari", "t☉ = cos⁻¹(−tan φ tan δ☉ + sin h☉ / cos φ / cos δ☉)", "t☉,25|"),
    ("Perata waktu (interpolasi)", "e pada jam Ghurub'", "e,26|"),
    ("Koreksi waktu daerah (KWD)", "KWD = (λ zona − λ tempat) / 15", "KWD,27|"),
    ("Jam tengah hari", "12", "12,28|"),
    ("Terbenam Matahari", "Ghurub = 12 − e + t☉ / 15 + KWD", "Ghurub,29|"),
    ("Terbenam (GMT)", "Ghurub' = Ghurub − Z", "Ghurub',30|"),
    ("Asensio rekta Matahari", "α☉ pada jam Ghurub'", "α☉,31|"),
    ("Asensio rekta Bulan", "α☽ pada jam Ghurub'", "α☽,32|"),
    ("Sudut waktu Bulan", "t☽ = α☉ − α☽ + t☉", "t☽,33|"),
    ("Deklinasi Bulan", "δ☽ pada jam Ghurub'", "δ☽,34|"),
    ("Tinggi hakiki Bulan", "h☽ = sin⁻¹(sin φ sin δ☽ + cos φ cos δ☽ cos t☽)", "h☽,35|"),
    ("Horizontal parallax Bulan", "HP pada jam Ghurub'", "HP,36|"),
    ("Parallax", "Par = cos h☽ × HP", "Par,37|"),
    ("Semi diameter Bulan", "SD☽ pada jam Ghurub'", "SD☽,38|"),
    ("Tinggi piringan atas Bulan", "h' = h☽ − Par + SD☽", "h',39|"),
    ("Refraksi", "Ref = dari tabel Refraksi pada h☽", "Ref,40|"),
    ("Tinggi mar'i hilal", "h = Ref + h' + Dip", "h,41|"),
    ("Lama hilal di atas ufuk", "Mukts = h / 15", "Mukts,42|"),
    ("Terbenam Bulan", "Ghurub☽ = Mukts + Ghurub", "Ghurub☽,43|"),
    ("Azimut Matahari", "A☉ = 90 − tan⁻¹(1 / (tan δ☉ cos φ / sin t☉ − sin φ / tan t☉))", "A☉,44|"),
    ("Azimut Bulan", "A☽ = 90 − tan⁻¹(1 / (tan δ☽ cos φ / sin t☽ − sin φ / tan t☽))", "A☽,45|"),
    ("Posisi hilal dari Matahari", "PH = A☽ − A☉", "PH,46|"),
    ("Fraksi iluminasi Bulan", "k pada jam Ghurub'", "k,47|"),
    ("Nurul hilal", "Nur = √(h² + PH²) / 15", "Nur,48|"),
    ("Kemiringan hilal", "Q = tan⁻¹(PH / h)", "Q,49|"),
]

KITAB = {"ER": EPHEMERIS}

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
    assert len(EPHEMERIS) == 50
    sys.exit(main())
