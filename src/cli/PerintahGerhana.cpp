#include "cli/PerintahGerhana.h"

#include <ostream>

#include "cli/Json.h"
#include "cli/TeksLembar.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#ifdef FALAK_PDF
#include "export/Cetak.h"
#endif
#include "run/Workspace.h"

namespace falak::cli {

namespace {

struct Pilihan {
    std::string kitab;
    std::string tahun;
    std::string tempat;
    int32_t sampai = 0;
    bool json = false;
};

std::string daftarKode(Garapan jenis) {
    std::string s;
    for (const EntriModul& e : DaftarModul())
        if (e.garapan == jenis && e.tersedia()) s += (s.empty() ? "" : ", ") + std::string(e.kode);
    return s;
}

void tulisGerhanaJson(std::ostream& out, const RingkasanGerhana& g) {
    out << "\"awal\": " << jsonTeks(g.awal) << ", \"tengah\": " << jsonTeks(g.tengah)
        << ", \"akhir\": " << jsonTeks(g.akhir) << ", \"awalTotal\": " << jsonTeks(g.awalTotal)
        << ", \"akhirTotal\": " << jsonTeks(g.akhirTotal) << ", \"besar\": " << jsonTeks(g.besar)
        << ", \"ashobi\": " << CetakAngka(g.ashobi) << ", \"jamTengah\": " << CetakAngka(g.jamTengah);
}

void tulisKesimpulanJson(std::ostream& out, const std::vector<std::string>& kesimpulan) {
    out << "\"kesimpulan\": [";
    for (size_t i = 0; i < kesimpulan.size(); ++i) out << (i ? ", " : "") << jsonTeks(kesimpulan[i]);
    out << "]";
}

int satuBulan(Workspace& ws, Garapan jenis, const Pilihan& p, int bulan, const Argumen& a, const Lingkungan& l) {
    std::ostream& out = l.out;
    const auto hasil = ws.mnuProsesGerhana(jenis, p.kitab, p.tahun, bulan, p.tempat);
    if (hasil.pesan) return Tolak(a, l, hasil.pesan->teks);
    const LembarKerja& tab = *hasil.lembar;
    // The eclipse's sheets: a solar eclipse adds the sheet of its look-ups.
    std::vector<const LembarKerja*> semua;
    for (const auto& lembar : ws.lembar) semua.push_back(lembar.get());
    if (a.ada("--xlsx")) {
        if (const std::string salah = EksporExcel(semua, true, ws.koneksi, a.teks("--xlsx")); !salah.empty())
            return Tolak(a, l, salah);
    }
    if (a.ada("--pdf")) {
#ifdef FALAK_PDF
        if (const std::string salah = CetakPdf(semua, ws.koneksi, a.teks("--pdf")); !salah.empty()) return Tolak(a, l, salah);
#else
        return Tolak(a, l, "--pdf tidak tersedia: falak ini dibangun tanpa Qt");
#endif
    }
    if (p.json) {
        out << "{\"kitab\": " << jsonTeks(p.kitab) << ", \"kunci\": " << jsonTeks(tab.kunci) << ", ";
        tulisGerhanaJson(out, *tab.gerhana);
        out << ",\n \"baris\": [";
        for (size_t i = 0; i < tab.baris.size(); ++i) {
            out << (i ? ",\n  " : "\n  ") << "{\"nama\": " << jsonTeks(tab.baris[i].nama) << ", \"sel\": [";
            for (size_t j = 0; j < tab.baris[i].sel.size(); ++j) out << (j ? ", " : "") << jsonTeks(tab.baris[i].sel[j]);
            out << "]}";
        }
        out << "],\n ";
        tulisKesimpulanJson(out, tab.kesimpulan);
        out << "}\n";
        return 0;
    }
    out << tab.judul << " - " << ws.sesi.namaKitab << "\n\n" << tampilLembar(tab.lembar) << "\n";
    for (const std::string& baris : tab.kesimpulan) out << baris << "\n";
    return 0;
}

int beberapaTahun(Workspace& ws, Garapan jenis, const Pilihan& p, const Argumen& a, const Lingkungan& l) {
    std::ostream& out = l.out;
    const auto hasil = ws.cariGerhana(jenis, p.kitab, p.tahun, p.sampai, p.tempat);
    if (hasil.pesan) return Tolak(a, l, hasil.pesan->teks);
    if (p.json) out << "[";
    bool pertama = true;
    for (const Workspace::HasilRun& r : hasil.ringkas) {
        const RingkasanGerhana& g = *r.gerhana;
        // The date line without its label.
        const std::string& baris = r.kesimpulan.at(1);
        const std::string tanggal = baris.substr(std::min(baris.size(), ws.sesi.labelKe(16).size()));
        if (p.json) {
            out << (pertama ? "\n" : ",\n") << " {\"tahun\": " << r.tahun << ", \"bulan\": " << r.bulan
                << ", \"tanggal\": " << jsonTeks(tanggal) << ", ";
            tulisGerhanaJson(out, g);
            out << ", ";
            tulisKesimpulanJson(out, r.kesimpulan);
            out << "}";
        } else {
            out << r.tahun << " " << (r.bulan < 10 ? " " : "") << r.bulan << "  " << tanggal << "  awal " << g.awal
                << "  tengah " << g.tengah << "  akhir " << g.akhir;
            if (!g.awalTotal.empty()) out << "  total " << g.awalTotal << " - " << g.akhirTotal;
            out << "  besar " << FormatTetap(g.ashobi, 2) << " Ushbu' (" << g.besar << ")\n";
        }
        pertama = false;
    }
    if (p.json) out << (pertama ? "]\n" : "\n]\n");
    else if (pertama) out << "Tidak ada gerhana yang ditemukan.\n";
    return 0;
}

}  // namespace

int perintahGerhana(const Argumen& a, const Lingkungan& l) {
    const Garapan jenis = a.teks("--jenis") == "matahari" ? Garapan::Kf : Garapan::Hs;
    Pilihan p{a.teks("--kitab"), a.teks("--tahun"), a.teks("--markaz"), a.bulat("--tahun"), a.ada("--json")};
    const EntriModul* e = CariModul(p.kitab, jenis);
    if (!e || !e->tersedia())
        throw SalahPakai{"gerhana " + a.teks("--jenis") + " menurut kitab \"" + p.kitab +
                         "\" belum tersedia; pilihlah " + daftarKode(jenis)};
    if (a.ada("--sampai")) {
        if (a.ada("--bulan")) throw SalahPakai{"--bulan dan --sampai tidak bisa dipakai bersama"};
        p.sampai = a.bulat("--sampai");
        if (p.sampai < a.bulat("--tahun")) throw SalahPakai{"--sampai tidak boleh sebelum --tahun"};
    }
    if (!a.ada("--bulan") && (a.ada("--xlsx") || a.ada("--pdf")))
        throw SalahPakai{"--xlsx dan --pdf memerlukan --bulan: lembar kerja satu gerhana"};
    ClsConnection koneksi(l.lokasi);
    Workspace ws(koneksi);
    l.err << LaporanMasalah(ws.masalahTabel());
    const auto tempat = CariTempat(koneksi.Daerah, p.tempat);
    if (!tempat) throw SalahPakai{"daerah \"" + p.tempat + "\" tidak ada di daftar tempat (lihat: falak tempat daftar)"};
    p.tempat = tempat->nama;
    return a.ada("--bulan") ? satuBulan(ws, jenis, p, a.bulat("--bulan"), a, l) : beberapaTahun(ws, jenis, p, a, l);
}

}  // namespace falak::cli
