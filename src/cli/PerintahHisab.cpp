#include "cli/PerintahHisab.h"

#include <ostream>

#include "cli/Json.h"
#include "cli/TeksLembar.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#include "run/Workspace.h"

namespace falak::cli {

namespace {

struct Pilihan {
    std::string kitab = "SN";
    std::string tahun;
    std::string bulan;
    std::string tempat = "Pasuruan";
    bool json = false;
    std::string xlsx;  // the workbook to write, when asked
};

std::string daftarKode() {
    std::string s;
    for (const EntriModul* k : Workspace::kitabTerdaftar()) s += (s.empty() ? "" : ", ") + std::string(k->kode);
    return s;
}

void tulisJson(std::ostream& out, const LembarKerja& tab, const Sesi& sesi, const Tempat& t) {
    out << "{\n  \"kitab\": " << jsonTeks(std::string(tab.modul->kode)) << ",\n  \"kunci\": " << jsonTeks(tab.kunci)
        << ",\n  \"judul\": " << jsonTeks(tab.judul) << ",\n  \"tahun\": " << AmbilTingkat(sesi.tanggalPilihan, 6)
        << ",\n  \"bulan\": " << sesi.barisBulan + 1 << ",\n  \"tempat\": {\"nama\": " << jsonTeks(t.nama)
        << ", \"lintang\": [" << t.lintangDerajat << ", " << t.lintangMenit << ", " << jsonTeks(t.tandaLintang)
        << "], \"bujur\": [" << t.bujurDerajat << ", " << t.bujurMenit << ", " << jsonTeks(t.tandaBujur)
        << "], \"zona\": " << t.zona << ", \"tinggi\": " << CetakAngka(t.tinggi) << "},\n  \"baris\": [";
    for (size_t i = 0; i < tab.baris.size(); ++i) {
        out << (i ? ",\n" : "\n") << "    {\"nama\": " << jsonTeks(tab.baris[i].nama) << ", \"sel\": [";
        for (size_t j = 0; j < tab.baris[i].sel.size(); ++j) out << (j ? ", " : "") << jsonTeks(tab.baris[i].sel[j]);
        out << "]}";
    }
    const Sheet& l = tab.lembar;
    out << "\n  ],\n  \"lembar\": {\"baris\": " << l.jumlahBaris() << ", \"kolom\": " << l.jumlahKolom()
        << ", \"sel\": [";
    bool pertama = true;
    for (int b = 0; b < l.jumlahBaris(); ++b)
        for (int k = 0; k < l.jumlahKolom(); ++k)
            if (!l.sel(b, k).empty()) {
                out << (pertama ? "\n" : ",\n") << "    [" << b << ", " << k << ", " << jsonTeks(l.sel(b, k)) << "]";
                pertama = false;
            }
    out << "\n  ], \"gabungan\": [";
    for (size_t i = 0; i < l.gabungan().size(); ++i) {
        const Gabungan& g = l.gabungan()[i];
        out << (i ? ", " : "") << "[" << g.baris << ", " << g.kolom1 << ", " << g.kolom2 << "]";
    }
    out << "]},\n  \"kesimpulan\": [";
    for (size_t i = 0; i < tab.kesimpulan.size(); ++i) out << (i ? ",\n" : "\n") << "    " << jsonTeks(tab.kesimpulan[i]);
    out << "\n  ]\n}\n";
}

}  // namespace

int perintahHisab(const std::vector<std::string>& argumen, std::ostream& out, std::ostream& err) {
    Pilihan p;
    for (size_t i = 0; i < argumen.size(); ++i) {
        const std::string& a = argumen[i];
        auto nilai = [&]() -> const std::string* {
            if (i + 1 >= argumen.size()) return nullptr;
            return &argumen[++i];
        };
        const std::string* v = nullptr;
        if (a == "--json") { p.json = true; continue; }
        if (a != "--kitab" && a != "--tahun" && a != "--bulan" && a != "--markaz" && a != "--tempat" && a != "--xlsx") {
            err << "falak hisab: pilihan \"" << a << "\" tidak dikenal\n";
            return 2;
        }
        if (!(v = nilai())) {
            err << "falak hisab: " << a << " butuh isian\n";
            return 2;
        }
        if (a == "--kitab") p.kitab = *v;
        else if (a == "--tahun") p.tahun = *v;
        else if (a == "--bulan") p.bulan = *v;
        else if (a == "--xlsx") p.xlsx = *v;
        else p.tempat = *v;
    }
    if (!CariModul(p.kitab)) {
        err << "falak hisab: kitab \"" << p.kitab << "\" tidak dikenal. Pilihan: " << daftarKode() << "\n";
        return 2;
    }
    if (!p.tahun.empty() && p.tahun.find('-') == std::string::npos && !(AdalahAngka(p.tahun) && BulatGenap32(ValAngka(p.tahun)) && ValAngka(p.tahun) == BulatGenap(ValAngka(p.tahun)))) {
        err << "falak hisab: tahun \"" << p.tahun << "\" bukan tahun Hijriyah yang sah (tulislah misalnya 1445)\n";
        return 2;
    }
    const double bulan = ValAngka(p.bulan);
    if (!AdalahAngka(p.bulan) || bulan != BulatGenap(bulan) || bulan < 1 || bulan > 12) {
        err << "falak hisab: bulan \"" << p.bulan << "\" tidak ada; pilihlah 1 sampai 12 (1 Muharrom ... 12 Dzulhijjah)\n";
        return 2;
    }

    ClsConnection koneksi(CariLokasiData());
    const std::string masalah = LaporanMasalah(koneksi.masalah());
    err << masalah;  // one line a table, each ended
    Workspace ws(koneksi);
    if (!CariTempat(koneksi.Daerah, p.tempat)) {
        err << "falak hisab: daerah \"" << p.tempat << "\" tidak ada di daftar tempat (lihat: falak tempat daftar)\n";
        return 2;
    }
    const auto hasil = ws.mnuProsesIjSub(p.kitab, p.tahun, static_cast<int>(bulan), p.tempat);
    if (hasil.pesan) {
        err << hasil.pesan->judul << ": " << hasil.pesan->teks << "\n";
        return 1;
    }
    const LembarKerja& tab = *hasil.lembar;
    if (!p.xlsx.empty()) {
        std::vector<const LembarKerja*> semua;
        for (const auto& l : ws.lembar) semua.push_back(l.get());
        if (const std::string salah = EksporExcel(semua, true, koneksi, p.xlsx); !salah.empty()) {
            err << "falak hisab: " << salah << "\n";
            return 1;
        }
    }
    if (p.json) {
        tulisJson(out, tab, ws.sesi, ws.sesi.tempat);
        return 0;
    }
    out << tab.judul << " - " << ws.sesi.namaKitab << "\n\n" << tampilLembar(tab.lembar) << "\n";
    for (const std::string& baris : tab.kesimpulan) out << baris << "\n";
    return 0;
}

}  // namespace falak::cli
