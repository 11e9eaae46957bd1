"""The printed page of a worked sheet, as falak writes it to PDF: rendered to an image and read
back as text by poppler's tools. FALAK is the falak executable."""
import os
import shutil
import subprocess
import tempfile
import unicodedata
import unittest

FALAK = os.environ["FALAK"]


def pgm(berkas):
    """Width, height and grey bytes of a binary PGM image."""
    with open(berkas, "rb") as f:
        data = f.read()
    kata = data.split(maxsplit=4)
    assert kata[0] == b"P5"
    lebar, tinggi = int(kata[1]), int(kata[2])
    return lebar, tinggi, data[len(data) - lebar * tinggi:]


class Halaman(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="falak-pdf-")
        cls.pdf = os.path.join(cls.dir, "sn.pdf")
        env = dict(os.environ, FALAK_DATA_HOME=os.path.join(cls.dir, "pengguna"))
        subprocess.run([FALAK, "hisab", "--kitab", "SN", "--tahun", "1445", "--bulan", "8", "--markaz", "Pasuruan",
                        "--pdf", cls.pdf], env=env, check=True, capture_output=True)
        cls.teks = subprocess.run(["pdftotext", "-enc", "UTF-8", cls.pdf, "-"], check=True, capture_output=True,
                                  text=True).stdout

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def test_one_a4_page_with_ink_where_the_sheet_stands(self):
        info = subprocess.run(["pdfinfo", self.pdf], check=True, capture_output=True, text=True).stdout
        self.assertRegex(info, r"Pages: +1\n")
        self.assertIn("(A4)", info)
        dasar = os.path.join(self.dir, "hal")
        subprocess.run(["pdftoppm", "-r", "40", "-gray", self.pdf, dasar], check=True)
        lebar, tinggi, abu = pgm(dasar + "-1.pgm")
        self.assertEqual((lebar, tinggi), (331, 468))  # A4 at 40 dots an inch, upright

        def tinta(x1, y1, x2, y2):
            """The share of dark dots in a part of the page, given in fractions of it."""
            titik = [abu[y * lebar + x] for y in range(int(y1 * tinggi), int(y2 * tinggi))
                     for x in range(int(x1 * lebar), int(x2 * lebar))]
            return sum(1 for t in titik if t < 128) / len(titik)

        # The margins stay white; the sheet (the upper part) and the conclusion (below) are
        # inked, the whole centred across the page.
        self.assertEqual(tinta(0, 0, 1, 0.04), 0)
        kolom = [x / lebar for x in range(lebar) if any(abu[y * lebar + x] < 128 for y in range(tinggi))]
        kiri, kanan = kolom[0], kolom[-1]
        self.assertGreater(kiri, 0.04)
        self.assertAlmostEqual(kiri, 1 - kanan, delta=0.02)
        self.assertGreater(tinta(kiri, 0.05, kanan, 0.7), 0.02)
        self.assertGreater(tinta(kiri, 0.72, kanan, 0.95), 0.001)
        # The right block's column of labels runs down the right of the sheet.
        self.assertGreater(tinta(kanan - 0.1, 0.2, kanan, 0.65), 0.02)

    def test_the_conclusion_reads_back(self):
        for baris in ["Sullam al-Nairoin", "Awal bulan sesudah Sy'ban", ": Selasa Pon, 12 Mar 2024 M.",
                      "Tempat", ": Pasuruan 7° 39' LS | 112° 56' BT"]:
            self.assertIn(baris, self.teks)

    def test_arabic_reads_back_as_joined_unicode_from_the_right(self):
        # Joined: the letters come back in their contextual forms (initial, medial, final)...
        bentuk = [c for c in self.teks if 0xFE70 <= ord(c) <= 0xFEFF]
        self.assertTrue(any("INITIAL" in unicodedata.name(c) for c in bentuk))
        self.assertTrue(any("MEDIAL" in unicodedata.name(c) for c in bentuk))
        # ... in the order they are read, each label a run that reads from the right.
        polos = unicodedata.normalize("NFKC", self.teks)
        for label in ["المجموعة", "الاجتماع بالمركز", "ما بين الاجتماع والغروب", "تعديل الخاصة",
                      "حساب اجتماع النيرين وارتفاع الهلال لأول شهر رمضان سنة"]:
            self.assertIn(label, polos)
        self.assertIn("\u202b", self.teks)  # right-to-left embedding
        # Every label is there once: nothing drawn twice as text.
        self.assertEqual(polos.count("ما بين الاجتماع والغروب"), 1)


if __name__ == "__main__":
    unittest.main()
