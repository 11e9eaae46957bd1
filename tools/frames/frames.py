#!/usr/bin/env python3
"""Writes the tables of the program's own texts: data/Names.csv (the frames of the worked
sheets) and data/ListTxt.csv (the labels of the conclusion lines).

Each treatise X in Names has four columns NamaX, BarisX, Kolom1X, Kolom2X: a label text, its row and
the first and last column it spans. The value cells themselves are written by the reckoning;
the frame places the labels around them as the book lays out its table, reading from right
to left: row labels in the highest columns, the fields of a value running leftwards.

Run: python3 tools/frames/frames.py            (--verify: fail unless data/ holds what it would write)
"""
import csv
import io
import os
import sys

# Headings of the fields of an arc value and of an alamah value, in Arabic as the book has them.
BURUJ, DARAJAH, DAQIQAH, TSANIYAH, TSALITSAH = "برج", "درجة", "دقيقة", "ثانية", "ثالثة"
YAUM, SAAH = "يوم", "ساعة"


def kepalaJumlah(label, kelompok):
    """The top of a taqribi sheet: the groups of the year, month and sum rows (the alamah at
    columns 37-33, then each element three fields wide, six columns apart), their field
    headings, the row labels, and the field headings over the three lower blocks."""
    for i, teks in enumerate(kelompok):
        label(teks, 1, 33 - 6 * i, 37 - 6 * i)
    for kol, teks in [(37, YAUM), (35, SAAH), (33, DAQIQAH)]:
        label(teks, 2, kol)
    for awal in [31 - 6 * i for i in range(len(kelompok) - 1)]:
        for i, teks in enumerate((BURUJ, DARAJAH, DAQIQAH)):
            label(teks, 2, awal - 2 * i)
    label("السنين", 2, 39)
    label("المجموعة", 3, 38)
    label("المبسوطة", 4, 38)
    label("الشهر", 5, 38)
    label("الجملة", 6, 38, 39)
    for awal in (37, 19, 9):
        for i, teks in enumerate((BURUJ, DARAJAH, DAQIQAH, TSANIYAH, TSALITSAH)):
            label(teks, 7, awal - 2 * i)


def sullam():
    """Sullam al-Nairoin: a grid of 40 by 40; values written by the run at the columns below."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    # Top block: the sums of years and months. Alamah at 37-33, then Hishshoh, Khossyoh,
    # Markaz and the auj, three fields each, six columns apart.
    kepalaJumlah(label, ["العلامة", "الحصة", "الخاصة", "المركز", "الأوج"])

    # Right block: the moon's correction, the sun's place, the hours, the ijtima', the hilal.
    kanan = {
        8: "تعديل الخاصة", 9: "تعديل المركز", 10: "المجموع", 11: "الضابط", 12: "الحاصل",
        13: "تعديل المركز", 14: "تعديل القمر",
        15: "المركز", 16: "الأوج", 17: "وسط الشمس", 18: "تعديل القمر", 19: "تقويم الشمس",
        20: "تعديل القمر", 21: "دقائق تعديل الأيام", 22: "الباقي", 23: "حصة الساعة", 24: "ساعات البعد",
        25: "العلامة", 26: "ساعات البعد", 27: "الاجتماع بالمركز", 28: "فضل الطولين", 29: "الاجتماع ببلد",
        30: "الغروب", 31: "الاجتماع ببلد", 32: "ما بين الاجتماع والغروب", 33: "الضابط",
        34: "ارتفاع الهلال", 35: "الضابط", 36: "مكث الهلال",
        37: "عرض القمر", 38: "نور الهلال",
    }
    for baris, teks in kanan.items():
        label(teks, baris, 38)
    # Middle and left blocks: five-line worked look-ups of the tables.
    lima = ["المدخل", "السطر", "السطر التالي", "الفضل", "المعدل"]
    blok = [(8, "تعديل الخاصة", 11, 19, 20, 27), (8, "تعديل المركز", 1, 9, 10, 10),
            (16, "حصة الساعة", 11, 19, 20, 27), (16, "دقائق تعديل الأيام", 1, 9, 10, 10),
            (24, "عرض القمر", 11, 19, 20, 27), (24, "المنزلة", 1, 9, 10, 10)]
    for baris, judul, k1, k2, l1, l2 in blok:
        label(judul, baris, k1, k2)
        for i, teks in enumerate(lima):
            label(teks, baris + 1 + i, l1, l2)
    return f


def fathur(sel=5, qomar=7, latitude=True, waktu=False):
    """Fathu al-Ro'uf al-Mannan and the treatises on its skeleton: a grid of 40 by 40. sel is 5,
    or 4 for a book without the Hishshoh; qomar the cells of the moon's correction (7, or 10 when
    its factor is a product); latitude whether the moon's latitude is worked; waktu whether the
    place and time of the hilal follow (Ittifaq Dzatu al-Bain and Faidlu al-Karim)."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    nama = ["العلامة", "الحصة", "الوسط", "الخاصة", "المركز"]
    if sel == 4:
        nama = ["العلامة", "الوسط", "الخاصة", "المركز"]
    kepalaJumlah(label, nama)

    if qomar == 7:
        bulan = ["تعديل الخاصة", "تعديل المركز", "المجموع", "الضابط", "الحاصل", "تعديل المركز", "تعديل القمر"]
    else:
        bulan = ["تعديل الخاصة", "تعديل المركز", "المجموع", "حصة الساعة", "الضابط", "الحاصل", "المجموع",
                 "الحاصل", "تعديل المركز", "تعديل القمر"]
    kanan = bulan + ["الوسط", "تعديل القمر", "تقويم الشمس",
                     "تعديل القمر", "دقائق تعديل الأيام", "الباقي", "حصة الساعة", "ساعات البعد",
                     "العلامة", "ساعات البعد", "الاجتماع بالمركز", "فضل الطولين", "الاجتماع ببلد",
                     "الغروب", "الاجتماع ببلد", "ما بين الاجتماع والغروب", "الضابط", "ارتفاع الهلال", "الضابط",
                     "مكث الهلال", "عرض القمر", "نور الهلال"]
    for i, teks in enumerate(kanan):
        label(teks, 8 + i, 38)

    lima = ["المدخل", "السطر", "السطر التالي", "الفضل", "المعدل"]
    blok = [(8, "تعديل الخاصة", 11, 19, 20, 27), (8, "تعديل المركز", 1, 9, 10, 10),
            (16, "حصة الساعة", 11, 19, 20, 27), (16, "دقائق تعديل الأيام", 1, 9, 10, 10),
            (24, "المنزلة", 1, 9, 10, 10)]
    if latitude:
        blok.append((24, "عرض القمر", 11, 19, 20, 27))
    for baris, judul, k1, k2, l1, l2 in blok:
        label(judul, baris, k1, k2)
        for i, teks in enumerate(lima):
            label(teks, baris + 1 + i, l1, l2)
    if waktu:
        label("وقت الهلال", 31, 11, 19)
        for i, teks in enumerate(["تقويم الشمس", "الميل", "عرض البلد", "تعديل الغروب", "بالساعات",
                                  "ساعة الاجتماع", "الجملة"]):
            label(teks, 32 + i, 22, 27)
    return f


def syamsul_hilal():
    """Syamsu al-Hilal: a grid of 19 by 12. Its values are decimals, one cell each: the sums
    of years and months along rows 3 to 6 (Hari at column 9, then leftwards), and three
    columns of worked steps below them, each value at the left of its label."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    # Top block: the years and the month, and their sum.
    label("العلامة", 1, 8, 9)
    for kol, teks in [(7, "الحصة"), (6, "الوسط"), (5, "الخاصة"), (4, "المركز")]:
        label(teks, 1, kol)
    label("السنين", 2, 11)
    label(YAUM, 2, 9)
    label(SAAH, 2, 8)
    for kol in (7, 6, 5, 4):
        label(DARAJAH, 2, kol)
    label("المجموعة", 3, 10)
    label("المبسوطة", 4, 10)
    label("الشهر", 5, 10)
    label("الجملة", 6, 10, 11)

    # Right: the moon's correction and the sun's true place, then the mansion.
    label("تعديل القمر", 7, 9, 11)
    kanan = ["تعديل الخاصة", "تعديل المركز", "المجموع", "الضابط", "الحاصل", "تعديل المركز", "تعديل القمر",
             "تعديل القمر", "تقويم الشمس", "المنزلة", "اسم المنزلة"]
    for i, teks in enumerate(kanan):
        label(teks, 8 + i, 10, 11)
    # Middle: the hours between the luminaries, then the ijtima' (days beside the hours).
    label("ساعات البعد", 7, 4, 7)
    tengah = ["المجموع", "تعديل المقوم", "الباقي", "حصة الساعة", "ساعات البعد"]
    for i, teks in enumerate(tengah):
        label(teks, 8 + i, 6, 7)
    label("الاجتماع", 13, 4, 7)
    ijtima = ["العلامة", "ساعات البعد", "الاجتماع بالمركز", "فضل الطولين", "الاجتماع ببلد"]
    for i, teks in enumerate(ijtima):
        label(teks, 14 + i, 6)
    # Left: the hilal at sunset.
    label("الهلال", 7, 0, 2)
    kiri = ["الغروب", "الاجتماع ببلد", "ما بين الاجتماع والغروب", "الضابط", "ارتفاع الهلال", "الضابط",
            "مكث الهلال", "عرض القمر", "مكث الهلال", "نور الهلال"]
    for i, teks in enumerate(kiri):
        label(teks, 8 + i, 1, 2)
    return f


HASIL_BM = ["تقويم الشمس", "ميل الشمس", "عرض البلد", "تعديل النهار", "نصف قوس النهار", "قوس المطالع",
            "مطالع الشمس", "مطالع الغروب", "تقويم القمر", "الميل الأول", "حصة العرض", "عرض القمر",
            "البعد عن المعدل", "ميل القمر", "تعديل نهار القمر", "نصف قوس نهار القمر", "الميل الثاني",
            "قوس مطالع القمر", "مطالع القمر", "مطالع غروب القمر", "مطالع الغروب", "مكث الهلال",
            "المكث بالساعات", "فضل الدائر", "ارتفاع الهلال", "سمت الشمس", "سمت القمر", "فضل السمتين",
            "انحراف الهلال", "سمت الهلال", "بعد السمتين", "نور الهلال"]
HASIL_NA = ["تقويم الشمس", "ميل الشمس", "عرض البلد", "نصف قوس الغروب", "قوس المطالع", "مطالع الشمس",
            "مطالع الغروب", "تقويم القمر", "الميل الأول", "حصة العرض", "عرض القمر", "البعد عن المعدل",
            "ميل القمر", "نصف قوس غروب القمر", "الميل الثاني", "الميل الأوسط", "قوس مطالع القمر",
            "مطالع القمر", "مطالع غروب القمر", "مطالع الغروب", "مكث الهلال", "فضل الدائر", "ارتفاع الهلال",
            "المكث بالساعات", "سمت الشمس", "سمت القمر", "فضل السمتين", "البعد", "نور الهلال"]


def tahqiqi(hasil):
    """The precise books: a grid of 48 by 51. The rows of six cells run along rows 3 to 12
    (the alamah's weekday, pasaran, hour and minute at columns 47-41, then each element's
    buruj, degree, minute and second, eight columns apart from 39); below them the true sun,
    the moon's corrections and the ijtima' (column 47), the worked look-ups (column 33) and
    the hilal's values (column 19), each with its label to its right."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    label("العلامة", 1, 41, 47)
    for i, teks in enumerate(["وسط الشمس", "خاصة الشمس", "وسط القمر", "خاصة القمر", "العقدة"]):
        label(teks, 1, 33 - 8 * i, 39 - 8 * i)
    for kol, teks in [(47, YAUM), (45, "الفصل"), (43, SAAH), (41, DAQIQAH)]:
        label(teks, 2, kol)
    for awal in (39, 31, 23, 15, 7):
        for i, teks in enumerate((BURUJ, DARAJAH, DAQIQAH, TSANIYAH)):
            label(teks, 2, awal - 2 * i)
    label("السنين", 2, 49, 50)
    atas = ["المجموعة", "المبسوطة", "الشهر", "الأيام التامة", "الجملة", "دقائق التفاوت", "فضل الطولين",
            "ساعات الغروب", "دقائق الغروب", "المقوم"]
    for i, teks in enumerate(atas):
        label(teks, 3 + i, 49, 50)
    kanan = {15: "تعديل الشمس", 16: "تقويم الشمس", 18: "وسط القمر", 19: "التعديل الأول", 20: "المعدل الأول",
             21: "التعديل الثاني", 22: "المعدل الثاني", 23: "التعديل الثالث", 24: "المعدل الثالث",
             25: "التعديل الرابع", 26: "المعدل الرابع", 27: "التعديل الخامس", 28: "تقويم القمر", 30: "البعد",
             31: "سبق القمر", 32: "ساعات البعد", 33: "الغروب", 34: "الاجتماع"}
    for baris, teks in kanan.items():
        label(teks, baris, 48, 50)
    for j, teks in enumerate(["تعديل الشمس", "التعديل الثاني", "التعديل الثالث", "التعديل الرابع",
                              "التعديل الخامس"]):
        label(teks, 14 + 6 * j, 25, 37)
        for i, baris in enumerate(["المدخل", "السطر", "ما بعده", "الفضل", "الحاصل"]):
            label(baris, 15 + 6 * j + i, 34, 37)
    for i, teks in enumerate(hasil):
        label(teks, 15 + i, 20, 23)
    return f


# The sum rows of the eclipses: Sullam keeps the auj in the last cell, as in its month
# reckoning; the books of Fathu's pattern keep the sun's mean place (wasath) after the hishshoh.
UNSUR_SULLAM = ["العلامة", "الحصة", "الخاصة", "المركز", "الأوج"]
UNSUR_FATHUR = ["العلامة", "الحصة", "الوسط", "الخاصة", "المركز"]


def syams_gerhana(fathur, istiqbal):
    """The rows of the sun's place against the moon's correction: Sullam's from the markaz and
    the auj, Fathu's from the mean place; at the full moon the moon's place opposite. Rows the
    form does not fill stay without a label (None), so the rows below keep their places."""
    if fathur:
        baris = ["وسط الشمس", "تعديل القمر", "تقويم الشمس"] + (["تقويم القمر"] if istiqbal else [])
    else:
        baris = ["المركز", "الأوج", "وسط الشمس", "تعديل القمر", "تقويم الشمس"] + (["تقويم القمر"] if istiqbal else [])
    return baris + [None] * ((6 if istiqbal else 5) - len(baris))


def khusuf_sullam(fathur=False):
    """Sullam al-Nairoin's lunar eclipse: a grid of 58 rows by 40; the values written by the run
    at the columns below (the right block at 37, the look-ups at 19 and at 9). With fathur, the
    same sheet for a book of Fathu's pattern."""
    f = []

    def label(teks, baris, k1, k2=None):
        if teks is not None:
            f.append((teks, baris, k1, k1 if k2 is None else k2))

    kepalaJumlah(label, UNSUR_FATHUR if fathur else UNSUR_SULLAM)
    kanan = [
        "تعديل الخاصة", "تعديل المركز", "المجموع", "الحاصل", "تعديل المركز", "تعديل القمر",
        *syams_gerhana(fathur, True),
        "تعديل القمر", "دقائق تعديل الأيام", "الباقي", "حصة الساعة", "ساعات البعد",
        "العلامة", "ساعات البعد", "الاستقبال بالمركز", "الحصة", "دقائق الحصة", "حصة الساعة", "ساعات الحصة",
        "الاستقبال", "الاستقبال المعدل", "فضل الطولين", "وسط الخسوف ببلد",
        "ساعات البعد", "الحاصل", "تعديل المركز", "المجموع", "الحصة", "المجموع", "الحصة المعدلة",
        "ساعات البعد", "الحاصل", "الخاصة", "الخاصة المعدلة",
        "وسط الخسوف", "نصف مدة الخسوف", "أول الخسوف", "آخر الخسوف", "مدة الخسوف",
        "وسط الخسوف", "نصف مدة المكث", "أول المكث", "آخر المكث", "مدة المكث",
    ]  # fmt: skip
    for i, teks in enumerate(kanan):
        label(teks, 8 + i, 38)
    lima = ["المدخل", "السطر", "السطر التالي", "الفضل", "المعدل"]
    blok = [(8, "تعديل الخاصة", 11, 19, 20, 27), (8, "تعديل المركز", 1, 9, 10, 10),
            (16, "حصة الساعة", 11, 19, 20, 27), (16, "دقائق تعديل الأيام", 1, 9, 10, 10),
            (24, "عرض القمر", 11, 19, 20, 27), (24, "العرض المعدل", 1, 9, 10, 10),
            (32, "البهت", 11, 19, 20, 27)]
    for baris, judul, k1, k2, l1, l2 in blok:
        label(judul, baris, k1, k2)
        for i, teks in enumerate(lima):
            label(teks, baris + 1 + i, l1, l2)
    # The double look-ups: two entries and their term in the latitude, the value at the row of
    # the daily motion, the same one row on, their difference, its term and the result.
    ganda = ["السطر", "السطر التالي", "الفضل", "المعدل", "السطر الثاني", "التالي", "الفضل", "المعدل",
             "الفضل بين المعدلين", "الفضل", "الحاصل"]
    for baris, judul, k1, k2, l1, l2 in [(40, "الأصابع", 11, 19, 20, 27), (32, "نصف مدة الخسوف", 1, 9, 10, 10),
                                         (46, "نصف مدة المكث", 1, 9, 10, 10)]:
        label(judul, baris, k1, k2)
        for i, teks in enumerate(ganda):
            label(teks, baris + 1 + i, l1, l2)
    return f


def kusuf_sullam(fathur=False):
    """Sullam al-Nairoin's solar eclipse: a grid of 47 rows by 40; the run writes its right
    block at column 37, the place's rows at 19 and the double look-ups at 9. With fathur, the
    same sheet for a book of Fathu's pattern."""
    f = []

    def label(teks, baris, k1, k2=None):
        if teks is not None:
            f.append((teks, baris, k1, k1 if k2 is None else k2))

    kepalaJumlah(label, UNSUR_FATHUR if fathur else UNSUR_SULLAM)
    kanan = [
        "تعديل الخاصة", "تعديل المركز", "المجموع", "الحاصل", "تعديل المركز", "تعديل القمر",
        *syams_gerhana(fathur, False),
        "تعديل القمر", "دقائق تعديل الأيام", "الباقي", "حصة الساعة", "ساعات البعد",
        "العلامة", "ساعات البعد", "الاجتماع بالمركز", "فضل الطولين", "الاجتماع ببلد",
        "ساعات البعد", "الحاصل", "تعديل المركز", "المجموع", "الحصة", "المجموع", "الحصة المعدلة",
        "ساعات البعد", "الحاصل", "الخاصة", "الخاصة المعدلة",
        "وسط الكسوف", "أول الكسوف", "آخر الكسوف", "مدة الكسوف",
    ]  # fmt: skip
    tengah = [
        "نصف النهار", "ساعة الاجتماع", "فضل الدائر", "الدائر", "تقويم الشمس", "وسط السماء", "الدائر",
        "مطالع وسط السماء",
        "تقويم الشمس", "وسط السماء", "البعد", "الجيب",
        "اختلاف الطول", "الحاصل", "حصة الساعة", "تعديل الوقت", "الاجتماع", "الاجتماع المرئي",
        "نصف النهار", "الاجتماع المرئي", "فضل الدائر", "الدائر", "تقويم الشمس", "وسط السماء",
        "الميل", "الإقليم", "اختلاف الطول", "الميل", "الإقليم", "اختلاف الطول",
        "الحصة المعدلة", "اختلاف الطول", "الحصة المرئية", "العرض المرئي",
        "مكث الكسوف", "أول المكث", "آخر المكث", "مدة المكث",
    ]  # fmt: skip
    for i, teks in enumerate(kanan):
        label(teks, 8 + i, 38)
    for i, teks in enumerate(tengah):
        label(teks, 8 + i, 20, 27)
    ganda = ["السطر التالي", "الفضل", "المعدل", "السطر الثاني", "التالي", "الفضل", "المعدل",
             "الفضل بين المعدلين", "الفضل", "الحاصل", "العرض المرئي", "البهت"]
    for awal, judul in [(8, "الأصابع"), (21, "نصف مدة الكسوف"), (34, "نصف مدة المكث")]:
        for i, teks in enumerate([judul] + ganda):
            label(teks, awal + i, 10)
    return f


def koreksi_kusuf():
    """The sheet of the solar eclipse's worked look-ups: one row a look-up, its five lines side
    by side from the right, eight columns each (Buruj, Darajah, Daqiqah, Tsaniyah)."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    label("تعديلات الكسوف", 0, 0, 40)
    for i, teks in enumerate(["المدخل", "السطر", "السطر التالي", "الفضل", "المعدل"]):
        label(teks, 1, 33 - 8 * i, 39 - 8 * i)
    for i, teks in enumerate(["تعديل الخاصة", "تعديل المركز", "حصة الساعة", "دقائق تعديل الأيام", "البهت",
                              "المطالع", "مطالع وسط السماء", "الميل", "الإقليم", "اختلاف الطول", "الجيب",
                              "الميل الثاني", "الإقليم الثاني", "اختلاف الطول الثاني", "اختلاف العرض",
                              "عرض القمر"]):
        label(teks, 2 + i, 40)
    return f


# The labels of the conclusion lines, read by position (the line writers name the position).
LABEL = [
    "Awal bulan sesudah ",        # 0  first of the month, after the chosen month's name
    "Ijtima' : ",                 # 1  the day of the ijtima'
    "Jam ijtima' : ",             # 2
    "Posisi matahari terbenam : ",  # 3  the sun's declination at sunset, as a side of west
    "Azimut matahari : ",         # 4
    "Keadaan hilal : ",           # 5
    "Posisi hilal : ",            # 6
    "Tinggi hilal : ",            # 7
    "Lama hilal : ",              # 8
    "Nurul hilal : ",             # 9
    "Azimut hilal : ",            # 10
    "Jarak matahari dan hilal : ",  # 11
    "Matahari terbenam : ",       # 12
    "Matahari terbit : ",         # 13
    "Markaz : ",                  # 14
    "Tempat : ",                  # 15
    "Gerhana terjadi pada : ",    # 16
    "Awal gerhana : ",            # 17
    "Tengah gerhana : ",          # 18
    "Akhir gerhana : ",           # 19
    "Lama gerhana : ",            # 20
    "Awal total : ",              # 21
    "Akhir total : ",             # 22
    "Lama total : ",              # 23
    "Besar gerhana : ",           # 24
    "Warna gerhana : ",           # 25
]

PERIKSA = "--verify" in sys.argv[1:]
USANG = []


def tulis(nama, kepala, baris):
    """Writes the table; with --verify only compares it with the file."""
    keluar = os.path.join(os.path.dirname(__file__), "..", "..", "data", nama)
    buf = io.StringIO()
    w = csv.writer(buf, lineterminator="\n")
    w.writerow(kepala)
    w.writerows(baris)
    if PERIKSA:
        with open(keluar, encoding="utf-8", newline="") as fh:
            if fh.read() != buf.getvalue():
                USANG.append(nama)
        return
    with open(keluar, "w", newline="", encoding="utf-8") as fh:
        fh.write(buf.getvalue())


def ephemeris():
    """Ephemeris: a grid of 106 by 12, read from the left. The hourly table (rows 4 to 53:
    date, hour, the Sun's four columns, the Moon's six) under its headings in Arabic and in
    Indonesian, then the reckoning (rows 56 to 105) under its own heading."""
    f = []

    def label(teks, baris, k1, k2=None):
        f.append((teks, baris, k1, k1 if k2 is None else k2))

    label("الشمس  Matahari", 1, 2, 5)
    label("القمر  Bulan", 1, 6, 11)
    kolom = [("التاريخ", "Tanggal"), ("الساعة", "Jam (GMT)"),
             ("الطول الظاهري", "Bujur Tampak"), ("الميل", "Deklinasi"), ("نصف القطر", "Semi Diameter"),
             ("تعديل الوقت", "Perata Waktu"),
             ("الطول الظاهري", "Bujur Tampak"), ("العرض", "Lintang"), ("الميل", "Deklinasi"),
             ("اختلاف المنظر", "Horizontal Parallax"), ("نصف القطر", "Semi Diameter"), ("النور", "Fraksi Iluminasi")]
    for k, (arab, indonesia) in enumerate(kolom):
        label(arab, 2, k)
        label(indonesia, 3, k)
    label("حساب الاجتماع والهلال  Hisab Ijtima' dan Hilal", 55, 0, 11)
    return f


def main():
    frames = {
        "SN": sullam(),
        "FR": fathur(),
        "IDB1": fathur(waktu=True),
        "TZ": fathur(qomar=10),
        "KW1": fathur(sel=4, latitude=False),
        "FK": fathur(waktu=True),
        "SH": syamsul_hilal(),
        "SNGB": khusuf_sullam(),
        "SNGM": kusuf_sullam(),
        "SNTK": koreksi_kusuf(),
        # Syamsu al-Hilal's eclipses write their decimals on the same sheets, in Fathu's order.
        **{kitab + jenis: buat for kitab in ("FR", "TZ", "IDB1", "FK", "SH")
           for jenis, buat in (("GB", khusuf_sullam(fathur=True)), ("GM", kusuf_sullam(fathur=True)),
                               ("TK", koreksi_kusuf()))},
        "BM": tahqiqi(HASIL_BM),
        "NA": tahqiqi(HASIL_NA),
        "ER": ephemeris(),
    }
    panjang = max(len(v) for v in frames.values())
    kolom = [f"{nama}{x}" for x in frames for nama in ("Nama", "Baris", "Kolom1", "Kolom2")]
    baris = []
    for i in range(panjang):
        b = []
        for f in frames.values():
            b += list(f[i]) if i < len(f) else ["", "", "", ""]
        baris.append(b)
    tulis("Names.csv", kolom, baris)
    tulis("ListTxt.csv", ["IsiText"], [[t] for t in LABEL])


if __name__ == "__main__":
    main()
    for nama in USANG:
        print(f"{nama} is not what the generator writes", file=sys.stderr)
    sys.exit(1 if USANG else 0)
