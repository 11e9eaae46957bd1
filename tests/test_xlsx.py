"""The workbooks that falak writes, read back by a spreadsheet reader of their own (openpyxl).

FALAK is the falak executable, FALAK_CONTOH_XLSX the program that writes the made-up sheet of
contoh_xlsx.cpp."""
import json
import os
import re
import shutil
import subprocess
import tempfile
import unittest
import zipfile

import openpyxl

FALAK = os.environ["FALAK"]
CONTOH = os.environ["FALAK_CONTOH_XLSX"]

TEMPAT = ["--lintang", "7 39 LS", "--bujur", "112 56 BT", "--zona", "7"]


class Buku(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="falak-xlsx-")
        cls.env = dict(os.environ, FALAK_DATA_HOME=os.path.join(cls.dir, "pengguna"))

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def falak(self, *argumen, kode=0):
        p = subprocess.run([FALAK, *argumen], env=self.env, capture_output=True, text=True)
        self.assertEqual(p.returncode, kode, p.stderr)
        return p.stdout

    def tulis(self, nama, *argumen):
        berkas = os.path.join(self.dir, nama)
        self.falak(*argumen, "--xlsx", berkas)
        return berkas

    def test_sheet_cells_mirrored_into_a_right_to_left_worksheet(self):
        perintah = ["hisab", "--kitab", "SN", "--tahun", "1445", "--bulan", "8", "--markaz", "Pasuruan"]
        berkas = self.tulis("sn.xlsx", *perintah)
        lembar = json.loads(self.falak(*perintah, "--json"))["lembar"]
        wb = openpyxl.load_workbook(berkas)
        self.assertEqual(wb.sheetnames, ["Hisab Awal Bulan 1445 H. 8", "Kesimpulan"])
        ws = wb.worksheets[0]
        self.assertTrue(ws.sheet_view.rightToLeft)
        kolom = lembar["kolom"]

        def sel(b, k):
            """The worksheet's cell of grid row b, column k: the columns are mirrored."""
            return ws.cell(row=b + 1, column=kolom - k)

        def isi(b, k):
            """The value shown in the cell: a merge shows that of its first cell."""
            c = sel(b, k)
            for r in ws.merged_cells.ranges:
                if c.coordinate in r:
                    return ws.cell(row=r.min_row, column=r.min_col).value
            return c.value

        dikosongkan = {(29, 8), (29, 9)}  # the copies of the mansion's name
        for b, k, teks in lembar["sel"]:
            if (b, k) in dikosongkan:
                continue
            nilai = isi(b, k)
            if isinstance(nilai, (int, float)):
                self.assertEqual(nilai, float(teks), (b, k))
            else:
                self.assertEqual(nilai, teks, (b, k))
        # The grid's numbers are numbers, its labels texts read from the right.
        self.assertEqual(sel(3, 37).data_type, "n")
        self.assertEqual(sel(3, 38).value, "المجموعة")
        self.assertEqual(sel(3, 38).alignment.readingOrder, 2)

        gabung = {str(r) for r in ws.merged_cells.ranges}
        self.assertIn("A1:AN1", gabung)                    # the heading, over all 40 columns
        self.assertIn("A9:B9", gabung)                     # a row label into the empty last column
        self.assertNotIn("A29:B29", gabung)                # ... not where the place stands beside it
        self.assertIn("AE30:AG30", gabung)                 # the mansion's name
        self.assertTrue(sel(29, 9).value.startswith(" بطن الحوت"))

        # The box of the top block, grid rows 1-6 and columns 9-39: its right edge is column A.
        self.assertEqual(sel(1, 39).border.top.style, "thin")
        self.assertEqual(sel(1, 39).border.left.style, "thin")
        self.assertIsNone(sel(1, 39).border.right.style)
        self.assertEqual(sel(6, 9).border.bottom.style, "thin")
        self.assertEqual(sel(6, 9).border.right.style, "thin")
        self.assertIsNone(sel(4, 20).border.left.style)    # inside the box

        self.assertEqual(ws.page_margins.left, 0.5)
        self.assertEqual(ws.page_margins.top, 0.7)

        k = wb["Kesimpulan"]
        self.assertEqual(k["A1"].value, "Sullam al-Nairoin")
        self.assertTrue(k["A1"].font.b)
        self.assertEqual(k["A2"].value, "Awal bulan sesudah Sy'ban")
        self.assertEqual(k["B2"].value, "Selasa Pon, 12 Mar 2024 M.")
        self.assertEqual(k["A13"].value, "Tempat")

    def test_every_treatise_of_a_month_with_clashing_captions(self):
        wb = openpyxl.load_workbook(self.tulis("semua.xlsx", "semua", "--tahun", "1445", "--bulan", "8"))
        judul = "Hisab Awal Bulan 1445 H. 8"
        self.assertEqual(wb.sheetnames, [judul] + [f"{judul}-{i}" for i in range(1, 10)] + ["Kesimpulan"])
        # Syamsu al-Hilal's sheet, the fourth, is 12 columns wide.
        self.assertEqual(wb.worksheets[3].max_column, 12)
        kepala = [r[0].value for r in wb["Kesimpulan"].iter_rows() if r[0].font.b]
        self.assertEqual(kepala, ["Sullam al-Nairoin", "Fathu al-Ro'uf al-Mannan", "Ittifaq Dzatu al-Bain Taqribi",
                                  "Syamsu al-Hilal", "Tadzkirotu al-Ikhwan", "Khulashotu al-Wafiyah Taqribi",
                                  "Faidlu al-Karim", "Badi'atu al-Mitsal", "Nuru al-Anwar",
                                  "Hisab Awal Bulan Romadon 1445 H. Metode EPHEMERIS Untuk daerah Pasuruan"])

    def test_a_year_of_one_treatise(self):
        wb = openpyxl.load_workbook(self.tulis("setahun.xlsx", "setahun", "--kitab", "FR", "--tahun", "1446"))
        self.assertEqual(wb.sheetnames, [f"Hisab Awal Bulan 1446 H. {b}" for b in range(1, 13)] + ["Kesimpulan"])
        self.assertEqual(sum(1 for r in wb["Kesimpulan"].iter_rows() if r[0].font.b), 12)

    def test_texts_that_look_like_formulas_stay_texts(self):
        for nama, arab in [("=1+1", "@SUM(A1)"), ("+62 Desa", "-Desa")]:
            self.falak("tempat", "tambah", nama, *TEMPAT, "--arab", arab)
            berkas = self.tulis("rumus.xlsx", "hisab", "--tahun", "1445", "--bulan", "8", "--markaz", nama)
            with zipfile.ZipFile(berkas) as z:
                for n in z.namelist():
                    if n.startswith("xl/worksheets/sheet"):
                        self.assertNotIn(b"<f>", z.read(n), n)
            wb = openpyxl.load_workbook(berkas)
            ws = wb.worksheets[0]
            # The place's name beside the ijtima' at the place, grid row 29, column 39: column A.
            self.assertEqual(ws["A30"].value, nama)
            self.assertEqual(ws["A30"].data_type, "s")
            self.assertIn(arab.lstrip("-"), ws["A1"].value)
            self.assertEqual(wb["Kesimpulan"]["B13"].value.split(" ")[0], nama.split(" ")[0])

    def test_each_step_of_a_precise_book_carries_its_formula_as_a_tip(self):
        berkas = self.tulis("er.xlsx", "hisab", "--kitab", "ER", "--tahun", "1445", "--bulan", "8", "--markaz", "Jakarta")
        ws = openpyxl.load_workbook(berkas).worksheets[0]
        tips = {str(v.sqref): v for v in ws.data_validations.dataValidation}
        self.assertEqual(len(tips), 50)
        # The reckoning's rows name their step (column B) and its formula (column G); the tip
        # of the step's value (column F) says the same, then the run's numbers.
        for baris in range(57, 107):
            tip = tips[f"F{baris}"]
            self.assertTrue(tip.showInputMessage)
            self.assertEqual(tip.promptTitle, ws[f"B{baris}"].value[:32], baris)
            rumus, angka = tip.prompt.split("\n", 1)
            self.assertEqual(rumus, ws[f"G{baris}"].value, baris)
            self.assertIn(" = ", angka)
        self.assertEqual(tips["F106"].promptTitle, "Kemiringan hilal")

    def test_the_tip_of_a_hilal_value_shows_that_value(self):
        for kitab, langkah in [("BM", 27), ("NA", 24)]:
            berkas = self.tulis(f"{kitab}.xlsx", "hisab", "--kitab", kitab, "--tahun", "1445", "--bulan", "8")
            ws = openpyxl.load_workbook(berkas).worksheets[0]
            tips = ws.data_validations.dataValidation
            self.assertEqual(len(tips), langkah, kitab)
            for tip in tips:
                # The tip stands on the value's first field (its Buruj); the minutes and the
                # whole seconds that it ends with are those of the fields to its left.
                sel = ws[str(tip.sqref)]
                nilai = re.search(r"-?\d+°(\d+)'(?:(\d+)(?:\.\d+)?'')?$", tip.prompt)
                self.assertTrue(nilai, tip.prompt)
                menit, detik = ws.cell(row=sel.row, column=sel.column + 4), ws.cell(row=sel.row, column=sel.column + 6)
                self.assertEqual(int(nilai.group(1)), menit.value, (kitab, tip.promptTitle))
                self.assertEqual(int(nilai.group(2) or 0), detik.value, (kitab, tip.promptTitle))

    def test_eclipse_sheets_laid_out_as_the_book(self):
        gerhana = ["gerhana", "--kitab", "SN", "--markaz", "Jakarta"]
        wb = openpyxl.load_workbook(self.tulis("gb.xlsx", *gerhana, "--jenis", "bulan", "--tahun", "1447", "--bulan", "3"))
        self.assertEqual(wb.sheetnames, ["Gerhana Bulan 1447 H. 3", "Kesimpulan"])
        ws = wb.worksheets[0]
        self.assertTrue(ws.sheet_view.rightToLeft)
        gabung = {str(r) for r in ws.merged_cells.ranges}
        # A row label of the right block runs into the empty last column (column A), except
        # where the place's name stands beside it.
        self.assertIn("A9:B9", gabung)
        self.assertIn("A57:B57", gabung)
        self.assertNotIn("A35:B35", gabung)
        self.assertEqual(ws["A35"].value, "Jakarta")
        # The right block is boxed: its top right corner (column A of the worksheet) and its
        # bottom left one; inside it no line.
        self.assertEqual(ws["A8"].border.top.style, "thin")
        self.assertEqual(ws["A8"].border.left.style, "thin")
        self.assertEqual(ws["K57"].border.bottom.style, "thin")
        self.assertEqual(ws["K57"].border.right.style, "thin")
        self.assertIsNone(ws["E30"].border.left.style)
        self.assertEqual(wb["Kesimpulan"]["A1"].value, "Sullam al-Nairoin")

        wb = openpyxl.load_workbook(self.tulis("gm.xlsx", *gerhana, "--jenis", "matahari", "--tahun", "1437", "--bulan", "5"))
        self.assertEqual(wb.sheetnames, ["Gerhana Matahari 1437 H. 5", "Ta'dil Kusuf", "Kesimpulan"])
        self.assertIn("A44:B44", {str(r) for r in wb.worksheets[0].merged_cells.ranges})
        tdl = wb["Ta'dil Kusuf"]
        # The look-ups' table of 41 columns: the label column is A, the entry's columns B-H.
        self.assertEqual(tdl["B2"].border.top.style, "thin")
        self.assertEqual(tdl["H18"].border.right.style, "thin")
        self.assertEqual(tdl["A3"].border.left.style, "thin")
        # The sheets of one run share one conclusion.
        self.assertEqual(sum(1 for r in wb["Kesimpulan"].iter_rows() if r[0].font.b), 1)

        p = subprocess.run([FALAK, *gerhana, "--tahun", "1447", "--xlsx", os.path.join(self.dir, "x.xlsx")],
                           env=self.env, capture_output=True, text=True)
        self.assertEqual(p.returncode, 2)
        self.assertIn("--bulan", p.stderr)

    def test_the_year_calendar(self):
        perintah = ["kalender", "--tahun", "2026", "--markaz", "Jakarta"]
        wb = openpyxl.load_workbook(self.tulis("kalender.xlsx", *perintah))
        hari = [h for b in json.loads(self.falak(*perintah, "--json"))["bulan"] for h in b["hari"]]
        # A calendar has no conclusion.
        self.assertEqual(wb.sheetnames, ["Kalender 2026 M. SN"])
        ws = wb.worksheets[0]
        self.assertFalse(ws.sheet_view.rightToLeft)
        self.assertEqual(ws["A1"].value, "KALENDER TAHUN 2026 M.")
        self.assertIn("A1:W1", {str(r) for r in ws.merged_cells.ranges})
        self.assertEqual(ws["A3"].value, "JANUARI 2026 M.")
        self.assertEqual([c.value for c in ws[5][:7]], ["Ahad", "Senin", "Selasa", "Rabu", "Kamis", "Ju'mat", "Sabtu"])
        # 1 January 2026 is a Thursday: the first week of January has its first day under Kamis.
        self.assertEqual([c.value for c in ws[6][:4]], [None] * 4)
        kamis = ws["E6"].value
        self.assertEqual(kamis.split(" ")[0], f"1/{hari[0]['hijriah']['tanggal']}")
        self.assertEqual(kamis.split(" ")[1], hari[0]["pasaran"])
        # Every first day of a Hijri month is boxed and names its month, and only those.
        awal = {f"{h['masehi'][5:7]}-{h['hijriah']['namaBulan']}" for h in hari if h["awalBulan"]}
        kotak = set()
        for baris in ws.iter_rows():
            for c in baris:
                if c.border.top.style == "thin" and c.border.left.style == "thin" and c.border.right.style == "thin":
                    self.assertEqual(c.value.split("/")[1].split(" ")[0], "1", c.coordinate)
                    kotak.add(c.value.split(" ", 2)[2])
        self.assertEqual(kotak, {a.split("-")[1] for a in awal})
        self.assertEqual(len(awal), 12)

    def test_tips_and_a_left_to_right_sheet(self):
        berkas = os.path.join(self.dir, "contoh.xlsx")
        subprocess.run([CONTOH, berkas], check=True)
        wb = openpyxl.load_workbook(berkas)
        ws = wb["Contoh"]
        self.assertFalse(ws.sheet_view.rightToLeft)
        self.assertEqual([str(r) for r in ws.merged_cells.ranges], ["A1:D1"])
        self.assertEqual([ws.cell(row=2, column=k).value for k in range(1, 5)], ["=1+1", "+62 812", "-Desa", "@Pondok"])
        self.assertEqual(ws["A3"].value, 12.5)
        tips = {str(v.sqref): v for v in ws.data_validations.dataValidation}
        self.assertEqual(set(tips), {"A3", "B3"})
        self.assertTrue(tips["A3"].showInputMessage)
        self.assertEqual(tips["A3"].promptTitle, "Tinggi hilal")
        self.assertEqual(tips["A3"].prompt, "h = asin(sin p sin d + cos p cos d cos t)\nh = 12.5")
        # A workbook takes 32 characters of title and 255 of message.
        self.assertEqual(tips["B3"].promptTitle, "J" * 32)
        self.assertEqual(tips["B3"].prompt, "p" * 255)

    def test_nothing_half_written(self):
        folder = os.path.join(self.dir, "sudah-ada.xlsx")
        os.mkdir(folder)
        p = subprocess.run([FALAK, "hisab", "--tahun", "1445", "--bulan", "8", "--xlsx", folder], env=self.env,
                           capture_output=True, text=True)
        self.assertEqual(p.returncode, 1)
        self.assertIn("sudah-ada.xlsx", p.stderr)
        self.assertTrue(os.path.isdir(folder))
        self.assertEqual([n for n in os.listdir(self.dir) if n.startswith(".")], [])  # no temporary file left


if __name__ == "__main__":
    unittest.main()
