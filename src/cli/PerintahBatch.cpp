#include "cli/PerintahBatch.h"

#include <algorithm>
#include <functional>
#include <ostream>

#include "cli/Json.h"
#include "conclusions/Kesimpulan.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#include "run/Workspace.h"

namespace falak::cli {

const char* const kBantuanBatch =
    "  falak semua --tahun 1445 --bulan 8 [--markaz NAMA] [--json] [--xlsx BERKAS]\n"
    "                                  ijtima' dan awal bulan menurut semua kitab\n"
    "  falak setahun --kitab SN|semua --tahun 1445 [--markaz NAMA] [--json] [--xlsx BERKAS]\n"
    "                                  dua belas bulan setahun menurut satu kitab (atau semua)\n"
    "                                  --xlsx: lembar hisab dan kesimpulannya ke berkas .xlsx\n";

namespace {

struct Pilihan {
    std::string kitab;
    std::string tahun;
    std::string bulan;
    std::string tempat = "Pasuruan";
    bool json = false;
    std::string xlsx;  // the workbook to write, when asked
};

// Reads the options; a message and false when one is wrong.
bool bacaPilihan(const std::string& perintah, const std::vector<std::string>& argumen,
                 const std::vector<std::string>& boleh, Pilihan& p, std::ostream& err) {
    for (size_t i = 0; i < argumen.size(); ++i) {
        const std::string& a = argumen[i];
        if (a == "--json") {
            p.json = true;
            continue;
        }
        if (std::find(boleh.begin(), boleh.end(), a) == boleh.end()) {
            err << "falak " << perintah << ": pilihan \"" << a << "\" tidak dikenal\n";
            return false;
        }
        if (i + 1 >= argumen.size()) {
            err << "falak " << perintah << ": " << a << " butuh isian\n";
            return false;
        }
        const std::string& v = argumen[++i];
        if (a == "--kitab") p.kitab = v;
        else if (a == "--tahun") p.tahun = v;
        else if (a == "--bulan") p.bulan = v;
        else if (a == "--xlsx") p.xlsx = v;
        else p.tempat = v;
    }
    if (p.tahun.empty() || !AdalahAngka(p.tahun) || !BulatGenap32(ValAngka(p.tahun)) ||
        ValAngka(p.tahun) != BulatGenap(ValAngka(p.tahun))) {
        err << "falak " << perintah << ": tahun \"" << p.tahun
            << "\" bukan tahun Hijriyah yang sah (tulislah misalnya --tahun 1445)\n";
        return false;
    }
    return true;
}

// Width of a text as the terminal shows it: one column a character.
size_t lebar(const std::string& s) {
    return static_cast<size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string tanggalIso(const Nilai& t) {
    char b[32];
    std::snprintf(b, sizeof b, "%d-%02d-%02d", AmbilTingkat(t, 6), AmbilTingkat(t, 7), AmbilTingkat(t, 8));
    return b;
}

// "Senin Pon, 11 Mar 2024"
std::string tanggalKata(const Nilai& t) {
    if (t.kosongTeks()) return "-";
    return ClsKesimpulan::NamaHari(AmbilTingkat(t, 10), "17", false) + " " + ClsKesimpulan::NamaPas(AmbilTingkat(t, 9)) +
           ", " + std::to_string(AmbilTingkat(t, 8)) + " " + ClsKesimpulan::ManaBln(AmbilTingkat(t, 7)) + " " +
           std::to_string(AmbilTingkat(t, 6));
}

// The day of the ijtima' in the book's words: "Malam Jum'at Pon, 7 Jun 2024" for its eve.
std::string hariIjtimaKata(const Ringkasan& g) {
    return (g.malam && !g.tanggalIjtima.kosongTeks() ? "Malam " : "") + tanggalKata(g.tanggalIjtima);
}

// The height in degrees and minutes, as the conclusion words it, without the metres.
std::string tinggiKata(const Nilai& tinggi) {
    const std::string s = ClsKesimpulan::IrtifaHilal(tinggi, true);
    return s.substr(0, s.find(" / "));
}

using Baris = std::vector<std::string>;

void tulisTabel(std::ostream& out, const std::vector<Baris>& baris) {
    std::vector<size_t> w;
    for (const Baris& b : baris)
        for (size_t i = 0; i < b.size(); ++i) {
            if (w.size() <= i) w.push_back(0);
            w[i] = std::max(w[i], lebar(b[i]));
        }
    for (const Baris& b : baris) {
        std::string s;
        for (size_t i = 0; i < b.size(); ++i) {
            s += b[i];
            if (i + 1 < b.size()) s += std::string(w[i] - lebar(b[i]) + 2, ' ');
        }
        out << s << "\n";
    }
}

void tulisJson(std::ostream& out, const Workspace& ws, const std::vector<Workspace::HasilRun>& runs) {
    const Tempat& t = ws.sesi.tempat;
    out << "{\n  \"tempat\": {\"nama\": " << jsonTeks(t.nama) << ", \"lintang\": [" << t.lintangDerajat << ", "
        << t.lintangMenit << ", " << jsonTeks(t.tandaLintang) << "], \"bujur\": [" << t.bujurDerajat << ", "
        << t.bujurMenit << ", " << jsonTeks(t.tandaBujur) << "], \"zona\": " << t.zona << "},\n  \"hasil\": [";
    for (size_t i = 0; i < runs.size(); ++i) {
        const auto& r = runs[i];
        const Ringkasan& g = r.ringkasan;
        out << (i ? ",\n" : "\n") << "    {\"kitab\": " << jsonTeks(std::string(r.modul->kode)) << ", \"nama\": " << jsonTeks(std::string(r.modul->nama))
            << ", \"tahun\": " << r.tahun << ", \"bulan\": " << r.bulan << ",\n     \"ijtima\": {\"tanggal\": "
            << (g.tanggalSipil.kosongTeks() ? "null" : jsonTeks(tanggalIso(g.tanggalSipil)))
            << ", \"hari\": " << jsonTeks(hariIjtimaKata(g)) << ", \"jam\": " << jsonTeks(g.jamIjtima)
            << "},\n     \"tinggi\": {\"nilai\": " << jsonTeks(g.tinggiHilal.teks()) << ", \"derajat\": "
            << CetakAngka((AmbilTanda(g.tinggiHilal) == 0 ? -1 : 1) * NilaiDesimal(3, g.tinggiHilal))
            << ", \"kata\": " << jsonTeks(tinggiKata(g.tinggiHilal)) << "},\n     \"awalBulan\": {\"tanggal\": "
            << (g.awalBulan.kosongTeks() ? "null" : jsonTeks(tanggalIso(g.awalBulan))) << ", \"hari\": "
            << jsonTeks(tanggalKata(g.awalBulan)) << "},\n     \"kesimpulan\": [";
        for (size_t j = 0; j < r.kesimpulan.size(); ++j) out << (j ? ", " : "") << jsonTeks(r.kesimpulan[j]);
        out << "]}";
    }
    out << "\n  ]\n}\n";
}

using Jalankan = std::function<Workspace::HasilBatch(Workspace&, Workspace::Keluaran)>;

int jalankan(const std::string& perintah, const Pilihan& p, const LokasiData& lokasi, bool kolomBulan,
             const Jalankan& batch, std::ostream& out, std::ostream& err) {
    ClsConnection koneksi(lokasi);
    const std::string masalah = LaporanMasalah(koneksi.masalah());
    err << masalah;  // one line a table, each ended
    if (!CariTempat(koneksi.Daerah, p.tempat)) {
        err << "falak " << perintah << ": daerah \"" << p.tempat
            << "\" tidak ada di daftar tempat (lihat: falak tempat daftar)\n";
        return 2;
    }
    Workspace ws(koneksi);
    // Sheets are painted only for a workbook.
    const Workspace::HasilBatch h =
        batch(ws, p.xlsx.empty() ? Workspace::Keluaran::Ringkas : Workspace::Keluaran::Lembar);
    if (h.pesan) {
        err << h.pesan->judul << ": " << h.pesan->teks << "\n";
        return 1;
    }
    if (!p.xlsx.empty()) {
        std::vector<const LembarKerja*> semua;
        for (const auto& l : ws.lembar) semua.push_back(l.get());
        if (const std::string salah = EksporExcel(semua, true, koneksi, p.xlsx); !salah.empty()) {
            err << "falak " << perintah << ": " << salah << "\n";
            return 1;
        }
    }
    if (p.json) {
        tulisJson(out, ws, h.ringkas);
        return 0;
    }
    std::vector<Baris> tabel;
    Baris kepala = {"Kitab", "Ijtima'", "Jam ijtima'", "Tinggi", "Awal bulan"};
    if (kolomBulan) kepala.insert(kepala.begin(), "Bulan");
    tabel.push_back(kepala);
    for (const auto& r : h.ringkas) {
        const Ringkasan& g = r.ringkasan;
        Baris b = {std::string(r.modul->kode), hariIjtimaKata(g), g.jamIjtima, tinggiKata(g.tinggiHilal),
                   tanggalKata(g.awalBulan)};
        if (kolomBulan) b.insert(b.begin(), std::string(kBarisBulan[static_cast<size_t>(r.bulan - 1)]).substr(5));
        tabel.push_back(std::move(b));
    }
    out << "Tempat: " << ws.sesi.tempat.nama << "\n";
    tulisTabel(out, tabel);
    return 0;
}

}  // namespace

int perintahSemua(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                  std::ostream& err) {
    Pilihan p;
    if (!bacaPilihan("semua", argumen, {"--tahun", "--bulan", "--markaz", "--tempat", "--xlsx"}, p, err)) return 2;
    const double bulan = ValAngka(p.bulan);
    if (!AdalahAngka(p.bulan) || bulan != BulatGenap(bulan) || bulan < 1 || bulan > 12) {
        err << "falak semua: bulan \"" << p.bulan << "\" tidak ada; pilihlah 1 sampai 12 (1 Muharrom ... 12 Dzulhijjah)\n";
        return 2;
    }
    return jalankan("semua", p, lokasi, false,
                    [&](Workspace& ws, Workspace::Keluaran keluaran) {
                        return ws.mnuProsesAllSub(p.tahun, static_cast<int>(bulan), p.tempat, keluaran);
                    },
                    out, err);
}

int perintahSetahun(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                    std::ostream& err) {
    Pilihan p;
    p.kitab = "SN";
    if (!bacaPilihan("setahun", argumen, {"--kitab", "--tahun", "--markaz", "--tempat", "--xlsx"}, p, err)) return 2;
    const bool semua = p.kitab == "semua";
    if (!semua && !CariModul(p.kitab)) {
        std::string daftar;
        for (const EntriModul* k : Workspace::kitabTerdaftar()) daftar += (daftar.empty() ? "" : ", ") + std::string(k->kode);
        err << "falak setahun: kitab \"" << p.kitab << "\" tidak dikenal. Pilihan: " << daftar << ", semua\n";
        return 2;
    }
    return jalankan("setahun", p, lokasi, true,
                    [&](Workspace& ws, Workspace::Keluaran keluaran) {
                        return semua ? ws.duaBelasBulanSemuaKitab(p.tahun, p.tempat, keluaran)
                                     : ws.mnu12BulanSub(p.kitab, p.tahun, p.tempat, keluaran);
                    },
                    out, err);
}

}  // namespace falak::cli
