// Writes a workbook of one made-up sheet for test_xlsx.py: a left-to-right sheet with texts
// that look like formulas, a merge and formula tips (one with a title and a message longer
// than a workbook takes).
#include <iostream>

#include "core/Koneksi.h"
#include "export/Excel.h"
#include "run/Workspace.h"

int main(int argc, char** argv) {
    using namespace falak;
    if (argc != 2) {
        std::cerr << "pemakaian: contoh_xlsx BERKAS.xlsx\n";
        return 2;
    }
    LembarKerja l;
    l.kunci = "Contoh_1";
    l.judul = "Contoh";
    Sheet& s = l.lembar;
    s.atur(3, 4);
    s.dibacaDariKanan = false;
    s.tulis(0, 0, "Rumus");
    s.gabung(0, 0, 3);
    const char* teks[] = {"=1+1", "+62 812", "-Desa", "@Pondok"};
    for (int k = 0; k < 4; ++k) s.tulis(1, k, teks[k], k == 0 ? JenisSel::Angka : JenisSel::Label);
    s.tulis(2, 0, "12.5", JenisSel::Angka);
    s.tip(2, 0, "Tinggi hilal", "h = asin(sin p sin d + cos p cos d cos t)\nh = 12.5");
    s.tip(2, 1, std::string(40, 'J'), std::string(300, 'p'));
    l.kesimpulan = {"Contoh", "Tinggi hilal : 12.5"};
    ClsConnection koneksi(CariLokasiData());
    const std::string salah = EksporExcel({&l}, true, koneksi, argv[1]);
    if (!salah.empty()) std::cerr << salah << "\n";
    return salah.empty() ? 0 : 1;
}
