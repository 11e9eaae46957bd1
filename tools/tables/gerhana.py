#!/usr/bin/env python3
"""Writes the eclipse columns of data/TRBTaadil.csv: the moon's daily motion (Buhtu), the moon's
latitude near the nodes, the half diameters of the shadow and the bodies, and the double tables
of the lunar eclipse (fingers, half duration, half totality) keyed by the moon's daily motion
and its latitude.

    python3 tools/tables/gerhana.py            # writes
    python3 tools/tables/gerhana.py --verify   # fails unless the file holds these values

Only these columns are written: the other columns and rows of the table are kept, and a key
row that is missing is added at the end with its other cells empty (the latitude rows go to
816, beyond the 370 keys of tables.py). The astronomy is that of model.py: the moon's true
motion and distance at syzygy from the principal terms of the modern lunar theory (Meeus,
Astronomical Algorithms, ch. 47), the sun of the zij, the moon's greatest latitude 5 degrees.
Python standard library only.
"""
import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import model  # noqa: E402
import tables  # noqa: E402
from taqribi_fr import gabung  # noqa: E402

RAD = math.pi / 180

# The double table of the lunar eclipse: ten rows of the moon's daily motion from 11 50, twenty
# minutes apart, each of 65 columns of the latitude in whole minutes (0 to 64). The key of a cell
# is the latitude's minute plus 65 times the row; key 0 is never read (the table engine reads
# key 360 for it), so keys run 1 to 650.
GANDA_AWAL = 11 * 60 + 50  # minutes of daily motion
GANDA_SELANG = 20
GANDA_KOLOM = 65
GANDA_BARIS = 10

# The daily motion of the last row ends at 15 10; the model's moon runs a little faster about its
# perigee (15 14). A motion beyond the table would be read in its first row, so Buhtu stops at
# the last minute the double table holds.
BUHTU_PUNCAK = (GANDA_AWAL + GANDA_SELANG * GANDA_BARIS) / 60 - 1 / 60

# The latitude tables run in rows of 12 minutes of the Hishshoh: near the nodes 0 (and 180) from
# 0 to 13 36 (key 816 is the argument 0), and before them from 17 degrees on (key 816 is 17 00).
LINTANG_PUNCAK = 816

# The sun's semi-diameter at the mean distance, its horizontal parallax, the ratio of the moon's
# radius to the earth's, the earth's equatorial radius, and the enlargement of the shadow by the
# earth's air (a fiftieth).
MATAHARI_JARI = 959.63 / 3600
MATAHARI_PARALAKS = 8.794 / 3600
RASIO_QOMAR = 0.272481
JARI_BUMI_KM = 6378.14
PEMBESAR_BAYANG = 1.02
EKSENTRISITAS_BUMI = 0.016708


def jarak_qomar(khossyoh):
    """The moon's distance at syzygy, km, for the khossyoh (its anomaly from the apogee)."""
    m = (khossyoh - 180) * RAD
    return 385000.56 - 2955.968 - (20905.355 + 3699.111) * math.cos(m) - 569.925 * math.cos(2 * m)


def paralaks(jarak):
    return math.asin(JARI_BUMI_KM / jarak) / RAD


def khossyoh_dari_buhtu(harian):
    """The khossyoh between 180 (perigee) and 360 (apogee) at which the moon moves `harian`
    degrees a day; motions beyond the model's range take its ends."""
    bawah, atas = 180.0, 360.0  # the motion falls from the perigee to the apogee
    if harian >= model.moon_daily_motion_at_syzygy(bawah):
        return bawah
    if harian <= model.moon_daily_motion_at_syzygy(atas):
        return atas
    for _ in range(60):
        tengah = (bawah + atas) / 2
        if model.moon_daily_motion_at_syzygy(tengah) > harian:
            bawah = tengah
        else:
            atas = tengah
    return (bawah + atas) / 2


def buhtu(khossyoh):
    """Code 22: the moon's daily motion, degrees, no more than the double table holds."""
    return min(model.moon_daily_motion_at_syzygy(khossyoh), BUHTU_PUNCAK)


def lintang_dekat_simpul(jauh):
    """The moon's latitude, degrees, at `jauh` degrees from a node."""
    return abs(model.moon_latitude(jauh))


def lintang_23(kunci):
    """Code 23: Hishshoh of Buruj 0 or 6 with these degrees and minutes past the node."""
    return lintang_dekat_simpul((kunci % LINTANG_PUNCAK) / 60)


def lintang_24(kunci):
    """Code 24: Hishshoh of Buruj 5 or 11, 17 degrees and more: the node lies at 30."""
    return lintang_dekat_simpul(30 - (17 + (kunci % LINTANG_PUNCAK) / 60))


def jari_matahari(markaz):
    """Code 30: the sun's semi-diameter, degrees, for its anomaly from the apogee."""
    m = (markaz - 180) * RAD  # from the perigee
    return MATAHARI_JARI / (1 - EKSENTRISITAS_BUMI * math.cos(m))


def benda_khusuf(harian):
    """The moon's semi-diameter, the shadow's radius and the hourly motion of the moon against
    the shadow along its path, degrees and degrees an hour, for a daily motion."""
    p = paralaks(jarak_qomar(khossyoh_dari_buhtu(harian)))
    jari = math.asin(RASIO_QOMAR * math.sin(p * RAD)) / RAD
    bayang = PEMBESAR_BAYANG * (p + MATAHARI_PARALAKS - MATAHARI_JARI)
    # The path crosses the ecliptic at the node slanting by the moon's latitude motion against
    # its motion from the shadow.
    nisbi = harian - model.SUN_MEAN_MOTION
    miring = math.atan(math.tan(model.MOON_INCLINATION * RAD) * harian / nisbi)
    return jari, bayang, nisbi / 24 / math.cos(miring), miring


def khusuf(harian, lintang):
    """Fingers of the moon's diameter in the shadow, half the eclipse and half the totality in
    hours, for a daily motion (degrees) and the latitude at opposition (degrees)."""
    jari, bayang, laju, miring = benda_khusuf(harian)
    dekat = lintang * math.cos(miring)  # the least distance of the centres
    ashobi = 12 * (bayang + jari - dekat) / (2 * jari)
    if ashobi <= 0:
        return 0.0, 0.0, 0.0

    def separuh(r):
        return math.sqrt(r * r - dekat * dekat) / laju if r > dekat else 0.0

    return ashobi, separuh(bayang + jari), separuh(bayang - jari)


# The solar eclipse at a place: the midheaven's declination, its distance from the zenith at
# the books' latitudes (south, 6, 7 and 8 degrees), the moon's parallax split along the
# ecliptic and across it, and a table of sines.
LINTANG_IQLIM = (6, 7, 8)
# The moon's mean horizontal parallax less the sun's: the parallax tables take the moon at its
# mean distance (their argument is the place, not the moon).
PARALAKS_RATA = paralaks(385000.56) - MATAHARI_PARALAKS
# The solar double table: the latitude runs to 35 minutes (the engine refuses more), rows as
# the lunar one.
GANDA_KOLOM_S = 36


def mail(bujur):
    """Code 38: the declination of the ecliptic's point at this longitude, degrees (magnitude)."""
    return abs(math.asin(math.sin(model.ZIJ_OBLIQUITY * RAD) * math.sin(bujur * RAD)) / RAD)


def iqlim(bujur, lintang):
    """Code 39: the distance of the ecliptic's point on the meridian from the zenith of a place
    `lintang` degrees south, degrees; the side (north of the zenith unless the point's
    declination is south and larger than the latitude) is the reckoning's."""
    bertanda = math.asin(math.sin(model.ZIJ_OBLIQUITY * RAD) * math.sin(bujur * RAD)) / RAD
    return abs(bertanda + lintang)


def ikhtilaf_thul(jarak_zenit):
    """Code 33: the parallax along the ecliptic at 90 degrees from the meridian, minutes."""
    return PARALAKS_RATA * math.cos(jarak_zenit * RAD) * 60


def ikhtilaf_ardli(jarak_zenit):
    """Code 34: the parallax across the ecliptic, minutes."""
    return PARALAKS_RATA * math.sin(jarak_zenit * RAD) * 60


def ikhtilaf_mandhor(jarak_zenit):
    """Code 41: the parallax in height of the moon at this distance from the zenith, minutes."""
    return PARALAKS_RATA * math.sin(jarak_zenit * RAD) * 60


def jaib(busur):
    """Code 40: the sine in parts of sixty."""
    return abs(60 * math.sin(busur * RAD))


def kusuf(harian, lintang):
    """Fingers of the sun's diameter covered, half the eclipse in hours and half the totality
    in minutes, for a daily motion (degrees) and the apparent latitude at the conjunction."""
    jari, _, laju, miring = benda_khusuf(harian)
    dekat = lintang * math.cos(miring)
    ashobi = 12 * (jari + MATAHARI_JARI - dekat) / (2 * MATAHARI_JARI)
    if ashobi <= 0:
        return 0.0, 0.0, 0.0

    def separuh(r):
        return math.sqrt(r * r - dekat * dekat) / laju if r > dekat else 0.0

    total = separuh(jari - MATAHARI_JARI) * 60 if jari > MATAHARI_JARI else 0.0
    return ashobi, separuh(jari + MATAHARI_JARI), total


def ganda_argumen(kunci):
    """The daily motion and the latitude (degrees) of a key of the double table."""
    baris, kolom = divmod(kunci, GANDA_KOLOM)
    return (GANDA_AWAL + GANDA_SELANG * baris) / 60, kolom / 60


def dua(nilai):
    """A non-negative quantity as whole units and minutes, rounded to the minute."""
    return tables.rounded_fields(nilai, 2)


def menit_detik(derajat):
    """Degrees as minutes and seconds of arc, rounded to the second."""
    d, m, s = tables.rounded_fields(derajat, 3)
    return d * 60 + m, s


def isi_baris():
    rows = {}

    def baris(kunci):
        return rows.setdefault(str(kunci), {})

    for kunci in range(5, 361, 5):
        k = kunci % 360
        b = baris(kunci)
        b["BuhtuJah"], b["BuhtuQoh"] = dua(buhtu(k))
        jari, bayang, _, _ = benda_khusuf(buhtu(k))
        b["NusQothrZilQoh"], b["NusQothrZilNii"] = menit_detik(bayang)
        b["NusQothrQomQoh"], b["NusQothrQomNii"] = menit_detik(jari)
        b["QothrQomQoh"], b["QothrQomNii"] = menit_detik(2 * jari)
        b["NusQothrSymsQoh"], b["NusQothrSymsNii"] = menit_detik(jari_matahari(k))
    for kunci in range(12, LINTANG_PUNCAK + 1, 12):
        b = baris(kunci)
        b["HsJah6_12"], b["HsQoh6_12"], b["HsNii6_12"] = tables.rounded_fields(lintang_23(kunci), 3)
        b["HsJah5_11"], b["HsQoh5_11"], b["HsNii5_11"] = tables.rounded_fields(lintang_24(kunci), 3)
    for kunci in range(1, GANDA_KOLOM * GANDA_BARIS + 1):
        b = baris(kunci)
        ashobi, saat, mukts = khusuf(*ganda_argumen(kunci))
        b["CariKsf"] = kunci
        b["AshobiJah"], b["AshobiQoh"] = dua(ashobi)
        b["SaatKhusfJah"], b["SaatKhusfQoh"] = dua(saat)
        b["MuktsKhusfJah"], b["MuktsKhusfQoh"] = dua(mukts)
    for kunci in range(1, 361):
        b = baris(kunci)
        b["MelAwalJah"], b["MelAwalQoh"], b["MelAwalNii"] = tables.rounded_fields(mail(kunci), 3)
        for lintang in LINTANG_IQLIM:
            b[f"IqlimJah{lintang}"], b[f"IqlimQoh{lintang}"] = dua(iqlim(kunci, lintang))
        # Every row names the argument of the next: here the next degree.
        b["MahFudIqlim"] = kunci + 1
        b["JaibJah"], b["JaibQoh"] = dua(jaib(kunci))
        if kunci <= 90:
            b["IkhtilafThulQoh"], b["IkhtilafThulNii"] = dua(ikhtilaf_thul(kunci))
            b["IkhtilafArdliQoh"], b["IkhtilafArdliNii"] = dua(ikhtilaf_ardli(kunci))
            b["IkhtilafMandhorQoh"], b["IkhtilafMandhorNii"] = dua(ikhtilaf_mandhor(kunci))
    for kunci in range(1, GANDA_KOLOM * GANDA_BARIS + 1):
        baris_ke, kolom = divmod(kunci, GANDA_KOLOM)
        if kolom >= GANDA_KOLOM_S:
            continue
        b = baris(kunci)
        ashobi, saat, total = kusuf(*ganda_argumen(kunci))
        b["CariKsfS"] = kunci
        b["AshobiJahS"], b["AshobiQohS"] = dua(ashobi)
        b["SaatKhusfJahS"], b["SaatKhusfQohS"] = dua(saat)
        b["SaatMuktsuS"] = tables.round_half_up(total)
    return {k: rows[k] for k in sorted(rows, key=int)}


KOLOM = [
    "BuhtuJah", "BuhtuQoh", "HsJah6_12", "HsQoh6_12", "HsNii6_12", "HsJah5_11", "HsQoh5_11", "HsNii5_11",
    "CariKsf", "AshobiJah", "AshobiQoh", "MuktsKhusfJah", "MuktsKhusfQoh", "SaatKhusfJah", "SaatKhusfQoh",
    "NusQothrZilQoh", "NusQothrZilNii", "NusQothrQomQoh", "NusQothrQomNii", "NusQothrSymsQoh",
    "NusQothrSymsNii", "QothrQomQoh", "QothrQomNii",
    "MelAwalJah", "MelAwalQoh", "MelAwalNii", "IqlimJah6", "IqlimQoh6", "IqlimJah7", "IqlimQoh7", "IqlimJah8",
    "IqlimQoh8", "MahFudIqlim", "JaibJah", "JaibQoh", "IkhtilafThulQoh", "IkhtilafThulNii", "IkhtilafArdliQoh",
    "IkhtilafArdliNii", "IkhtilafMandhorQoh", "IkhtilafMandhorNii",
    "CariKsfS", "AshobiJahS", "AshobiQohS", "SaatKhusfJahS", "SaatKhusfQohS", "SaatMuktsuS",
]  # fmt: skip


def periksa(rows):
    """Checks that stop the run before anything is written."""
    # The moon's motion: apogee and perigee of the model, the perigee held at the table's top.
    assert rows["360"]["BuhtuJah"] == 11 and rows["360"]["BuhtuQoh"] == 52, rows["360"]
    assert (rows["180"]["BuhtuJah"], rows["180"]["BuhtuQoh"]) == (15, 9), rows["180"]
    # The latitude: 0 at the node, 5 sin 12 = 1 02 18 (worked by hand: asin(sin 5 sin 12)).
    assert (rows["816"]["HsJah6_12"], rows["816"]["HsQoh6_12"], rows["816"]["HsNii6_12"]) == (0, 0, 0)
    assert (rows["720"]["HsJah6_12"], rows["720"]["HsQoh6_12"]) == (1, 2), rows["720"]
    assert (rows["780"]["HsJah5_11"], rows["780"]["HsQoh5_11"], rows["780"]["HsNii5_11"]) == (0, 0, 0)
    # Both latitude tables read the same distance from the node mirrored: 12 degrees before the
    # node (18 00, key 60) is 12 degrees after it (key 720).
    assert [rows["60"][c] for c in ("HsJah5_11", "HsQoh5_11", "HsNii5_11")] == [
        rows["720"][c] for c in ("HsJah6_12", "HsQoh6_12", "HsNii6_12")]
    # The double table: fingers fall as the latitude grows, and vanish beyond the limit; a
    # central eclipse is total at every distance of the moon.
    for baris in range(GANDA_BARIS):
        kunci = [baris * GANDA_KOLOM + j for j in range(GANDA_KOLOM) if baris * GANDA_KOLOM + j > 0]
        jari = [rows[str(k)]["AshobiJah"] * 60 + rows[str(k)]["AshobiQoh"] for k in kunci]
        assert all(a >= b for a, b in zip(jari, jari[1:])), baris
        assert jari[0] > 12 * 60 and jari[-1] == 0, baris
        assert rows[str(kunci[0])]["MuktsKhusfJah"] * 60 + rows[str(kunci[0])]["MuktsKhusfQoh"] > 0, baris


def periksa_kusuf(rows):
    """Checks of the solar columns."""
    # The declination at the solstice is the obliquity, 23 30 17; at the equinox 0.
    assert fields3(rows["90"], "MelAwal") == (23, 30, 17) and fields3(rows["360"], "MelAwal") == (0, 0, 0)
    # At 6 degrees south the point of 0 Aries stands 6 degrees north of the zenith; the winter
    # solstice's (270) 23 30 - 6 = 17 30 south of it.
    assert (rows["360"]["IqlimJah6"], rows["360"]["IqlimQoh6"]) == (6, 0), rows["360"]
    assert (rows["270"]["IqlimJah6"], rows["270"]["IqlimQoh6"]) == (17, 30), rows["270"]
    # The sine of 30 is 30 parts; the parallax splits as cos and sin of the same distance.
    assert (rows["30"]["JaibJah"], rows["30"]["JaibQoh"]) == (30, 0)
    assert rows["45"]["IkhtilafThulQoh"] == rows["45"]["IkhtilafArdliQoh"]
    # A central eclipse with the moon far (slow) is annular, near (fast) total.
    jauh, dekat = rows["1"], rows[str(9 * GANDA_KOLOM)]
    assert jauh["AshobiJahS"] == 11 and jauh["SaatMuktsuS"] == 0, jauh
    assert dekat["AshobiJahS"] == 12 and dekat["SaatMuktsuS"] > 0, dekat


def fields3(row, nama):
    return row[nama + "Jah"], row[nama + "Qoh"], row[nama + "Nii"]


def main():
    verify = "--verify" in sys.argv[1:]
    rows = isi_baris()
    periksa(rows)
    periksa_kusuf(rows)
    berkas, teks = gabung("TRBTaadil.csv", KOLOM, rows)
    if verify:
        with open(berkas, encoding="utf-8-sig") as fh:
            if fh.read() != teks:
                print(f"{berkas}: not what the generator gives", file=sys.stderr)
                sys.exit(1)
        return
    with open(berkas, "w", encoding="utf-8", newline="") as fh:
        fh.write(teks)


if __name__ == "__main__":
    main()
