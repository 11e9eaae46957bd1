"""The formula sheet as falak writes it for a word processor (.odt), read back as the zip and
the XML that the OpenDocument format is. FALAK is the falak executable."""
import json
import os
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ET
import zipfile

FALAK = os.environ["FALAK"]
TEKS = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"


class Rumus(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="falak-odt-")
        cls.env = dict(os.environ, FALAK_DATA_HOME=os.path.join(cls.dir, "pengguna"))

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def falak(self, *argumen):
        return subprocess.run([FALAK, *argumen], env=self.env, capture_output=True, text=True)

    def test_the_formula_rows_in_an_opendocument_text(self):
        perintah = ["hisab", "--kitab", "ER", "--tahun", "1445", "--bulan", "8", "--markaz", "Jakarta"]
        berkas = os.path.join(self.dir, "er.odt")
        self.assertEqual(self.falak(*perintah, "--odt", berkas).returncode, 0)
        rumus = json.loads(self.falak(*perintah, "--json").stdout)["rumus"]
        with zipfile.ZipFile(berkas) as z:
            self.assertIsNone(z.testzip())
            # A reader knows the format by the first entry, stored uncompressed.
            pertama = z.infolist()[0]
            self.assertEqual(pertama.filename, "mimetype")
            self.assertEqual(pertama.compress_type, zipfile.ZIP_STORED)
            self.assertEqual(z.read("mimetype"), b"application/vnd.oasis.opendocument.text")
            self.assertIn("content.xml", z.read("META-INF/manifest.xml").decode())
            isi = ET.fromstring(z.read("content.xml"))
        alinea = ["".join(p.itertext()) for p in isi.iter(TEKS + "p")]
        self.assertEqual(alinea[0], "RUMUS IJTIMA EPHEMERIS")
        self.assertEqual(alinea[1], "Hisab Awal Bulan 1445 H. 8 - Ephemeris, Jakarta")
        # Every step: its number and name, then its formula and its numbers, a line a paragraph.
        harap = []
        for i, b in enumerate(rumus["baris"], 1):
            harap.append(f"{i}. {b['nama']}")
            harap += [baris for baris in (b["rumuz"] + "\n" + b["isi"]).split("\n") if baris]
        self.assertEqual(len(rumus["baris"]), 50)
        self.assertEqual(alinea[2:], harap)

    def test_a_book_without_formula_sheet_writes_nothing(self):
        berkas = os.path.join(self.dir, "sn.odt")
        p = self.falak("hisab", "--kitab", "SN", "--tahun", "1445", "--bulan", "8", "--odt", berkas)
        self.assertEqual(p.returncode, 1)
        self.assertIn("tidak punya lembar rumus", p.stderr)
        self.assertFalse(os.path.exists(berkas))


if __name__ == "__main__":
    unittest.main()
