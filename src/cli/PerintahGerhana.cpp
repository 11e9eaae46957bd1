#include "cli/PerintahGerhana.h"

#include <ostream>

#include "cli/Json.h"
#include "cli/TeksLembar.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "run/Workspace.h"

namespace falak::cli {

const char* const kBantuanGerhana =
    "  falak gerhana --jenis bulan|matahari --kitab SN --tahun 1445 [--sampai 1450] [--markaz NAMA] [--json]\n"
    "                                  gerhana yang ditemukan kitab itu, satu per baris dengan waktu fasenya\n"
    "  falak gerhana --jenis bulan --kitab SN --tahun 1445 --bulan 8 [--markaz NAMA] [--json]\n"
    "                                  hisab gerhana satu bulan: lembar kerja dan kesimpulannya\n";

namespace {

struct Pilihan {
    std::string jenis = "bulan";
    std::string kitab = "SN";
    std::string tahun;
    std::string sampai;
    std::string bulan;
    std::string tempat = "Pasuruan";
    bool json = false;
};

bool tahunSah(const std::string& t) {
    const double v = ValAngka(t);
    return AdalahAngka(t) && BulatGenap32(v) && v == BulatGenap(v);
}

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

int satuBulan(Workspace& ws, Garapan jenis, const Pilihan& p, int bulan, std::ostream& out, std::ostream& err) {
    const auto hasil = ws.mnuProsesGerhana(jenis, p.kitab, p.tahun, bulan, p.tempat);
    if (hasil.pesan) {
        err << hasil.pesan->judul << ": " << hasil.pesan->teks << "\n";
        return 1;
    }
    const LembarKerja& tab = *hasil.lembar;
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

int beberapaTahun(Workspace& ws, Garapan jenis, const Pilihan& p, std::ostream& out, std::ostream& err) {
    const int32_t akhir = BulatGenap32(ValAngka(p.sampai.empty() ? p.tahun : p.sampai)).value_or(0);
    const auto hasil = ws.cariGerhana(jenis, p.kitab, p.tahun, akhir, p.tempat);
    if (hasil.pesan) {
        err << hasil.pesan->judul << ": " << hasil.pesan->teks << "\n";
        return 1;
    }
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

int perintahGerhana(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                    std::ostream& err) {
    Pilihan p;
    for (size_t i = 0; i < argumen.size(); ++i) {
        const std::string& a = argumen[i];
        if (a == "--json") {
            p.json = true;
            continue;
        }
        std::string* tujuan = a == "--jenis"    ? &p.jenis
                              : a == "--kitab"  ? &p.kitab
                              : a == "--tahun"  ? &p.tahun
                              : a == "--sampai" ? &p.sampai
                              : a == "--bulan"  ? &p.bulan
                              : (a == "--markaz" || a == "--tempat") ? &p.tempat
                                                                      : nullptr;
        if (!tujuan) {
            err << "falak gerhana: pilihan \"" << a << "\" tidak dikenal\n";
            return 2;
        }
        if (i + 1 >= argumen.size()) {
            err << "falak gerhana: " << a << " butuh isian\n";
            return 2;
        }
        *tujuan = argumen[++i];
    }
    if (p.jenis != "bulan" && p.jenis != "matahari") {
        err << "falak gerhana: jenis \"" << p.jenis << "\" tidak dikenal; pilihlah bulan atau matahari\n";
        return 2;
    }
    const Garapan jenis = p.jenis == "bulan" ? Garapan::Hs : Garapan::Kf;
    if (!CariModul(p.kitab, jenis)) {
        err << "falak gerhana: kitab \"" << p.kitab << "\" tidak dikenal. Pilihan: " << daftarKode(jenis) << "\n";
        return 2;
    }
    if (p.tahun.empty() || !tahunSah(p.tahun)) {
        err << "falak gerhana: tahun \"" << p.tahun << "\" bukan tahun Hijriyah yang sah (tulislah misalnya 1445)\n";
        return 2;
    }
    if (!p.sampai.empty() && (!tahunSah(p.sampai) || ValAngka(p.sampai) < ValAngka(p.tahun))) {
        err << "falak gerhana: --sampai \"" << p.sampai << "\" harus tahun Hijriyah yang tidak sebelum --tahun\n";
        return 2;
    }
    int bulan = 0;
    if (!p.bulan.empty()) {
        const double b = ValAngka(p.bulan);
        if (!AdalahAngka(p.bulan) || b != BulatGenap(b) || b < 1 || b > 12 || !p.sampai.empty()) {
            err << "falak gerhana: bulan \"" << p.bulan
                << "\" tidak ada; pilihlah 1 sampai 12 (1 Muharrom ... 12 Dzulhijjah), tanpa --sampai\n";
            return 2;
        }
        bulan = static_cast<int>(b);
    }

    ClsConnection koneksi(lokasi);
    err << LaporanMasalah(koneksi.masalah());
    Workspace ws(koneksi);
    if (!CariTempat(koneksi.Daerah, p.tempat)) {
        err << "falak gerhana: daerah \"" << p.tempat << "\" tidak ada di daftar tempat (lihat: falak tempat daftar)\n";
        return 2;
    }
    return bulan != 0 ? satuBulan(ws, jenis, p, bulan, out, err) : beberapaTahun(ws, jenis, p, out, err);
}

}  // namespace falak::cli
