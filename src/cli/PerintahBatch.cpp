#include "cli/PerintahBatch.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <ostream>

#include "cli/Json.h"
#include "conclusions/Kesimpulan.h"
#include "core/Angka.h"
#include "core/Arah.h"
#include "core/Daerah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#include "methods/tahqiqi/Ephemeris.h"
#include "run/Workspace.h"

namespace falak::cli {

namespace {

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

// The instant of the ijtima' in minutes on the zone's clock, from the civil day and the zone
// time of the conclusion's words ("hh.mm WIS, hh.mm WIB"); none when the run placed none.
std::optional<double> menitIjtima(const Ringkasan& g) {
    const size_t koma = g.jamIjtima.find(',');
    if (g.tanggalSipil.kosongTeks() || koma == std::string::npos) return std::nullopt;
    const size_t awal = g.jamIjtima.find_first_of("0123456789", koma);
    if (awal == std::string::npos) return std::nullopt;
    const double jam = ValAngka(g.jamIjtima.substr(awal, 2)), menit = ValAngka(g.jamIjtima.substr(awal + 3, 2));
    const Nilai& t = g.tanggalSipil;
    return HariJulianER(AmbilTingkat(t, 6), AmbilTingkat(t, 7), AmbilTingkat(t, 8)) * 1440 + jam * 60 + menit;
}

double derajatTinggi(const Nilai& tinggi) { return (AmbilTanda(tinggi) == 0 ? -1 : 1) * NilaiDesimal(3, tinggi); }

// How far a book stands from the modern reckoning of the same month: its ijtima' in minutes
// of time and its height in minutes of arc, both less the modern one's.
struct SelisihER {
    std::optional<double> ijtima;
    double tinggi = 0;
};

std::optional<SelisihER> selisihER(const Workspace::HasilRun& r, const std::vector<Workspace::HasilRun>& runs) {
    for (const auto& er : runs)
        if (er.modul->kode == "ER" && er.bulan == r.bulan && er.tahun == r.tahun) {
            SelisihER s;
            const auto a = menitIjtima(r.ringkasan), b = menitIjtima(er.ringkasan);
            if (a && b) s.ijtima = *a - *b;
            s.tinggi = (derajatTinggi(r.ringkasan.tinggiHilal) - derajatTinggi(er.ringkasan.tinggiHilal)) * 60;
            return s;
        }
    return std::nullopt;
}

std::string bertanda(double x) {
    const std::string s = FormatTetap(x, 1);
    return x > 0 && s != "0.0" ? "+" + s : s;
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
            << jsonTeks(tanggalKata(g.awalBulan)) << "},";
        if (const auto d = selisihER(r, runs))
            out << "\n     \"selisihER\": {\"ijtimaMenit\": " << (d->ijtima ? CetakAngka(*d->ijtima) : "null")
                << ", \"tinggiMenit\": " << CetakAngka(d->tinggi) << "},";
        out << "\n     \"kesimpulan\": [";
        for (size_t j = 0; j < r.kesimpulan.size(); ++j) out << (j ? ", " : "") << jsonTeks(r.kesimpulan[j]);
        out << "]}";
    }
    out << "\n  ]\n}\n";
}

using Jalankan = std::function<Workspace::HasilBatch(Workspace&, const std::string& tempat, Workspace::Keluaran)>;

int jalankan(const Argumen& a, const Lingkungan& l, bool kolomBulan, const Jalankan& batch) {
    ClsConnection koneksi(l.lokasi);
    Workspace ws(koneksi);
    ws.sesi.deltaT = a.ada("--deltat");
    l.err << LaporanMasalah(ws.masalahTabel());  // one line a table, each ended
    const auto tempat = CariTempat(koneksi.Daerah, a.teks("--markaz"));
    if (!tempat)
        throw SalahPakai{"daerah \"" + a.teks("--markaz") + "\" tidak ada di daftar tempat (lihat: falak tempat daftar)"};
    // Sheets are painted only for a workbook, the conclusions worded only for JSON.
    const Workspace::HasilBatch h =
        batch(ws, tempat->nama, a.ada("--xlsx")   ? Workspace::Keluaran::Lembar
                                : a.ada("--json") ? Workspace::Keluaran::Ringkas
                                                  : Workspace::Keluaran::Intisari);
    if (h.pesan) return Tolak(a, l, h.pesan->teks);
    if (a.ada("--xlsx")) {
        std::vector<const LembarKerja*> semua;
        for (const auto& lembar : ws.lembar) semua.push_back(lembar.get());
        if (const std::string salah = EksporExcel(semua, true, koneksi, a.teks("--xlsx")); !salah.empty())
            return Tolak(a, l, salah);
    }
    if (a.ada("--json")) {
        tulisJson(l.out, ws, h.ringkas);
        return 0;
    }
    std::vector<Baris> tabel;
    Baris kepala = {"Kitab", "Ijtima'", "Jam ijtima'", "Tinggi", "Awal bulan"};
    if (kolomBulan) kepala.insert(kepala.begin(), "Bulan");
    // Every book against the modern reckoning, when it ran among them.
    const bool banding = !kolomBulan && std::any_of(h.ringkas.begin(), h.ringkas.end(),
                                                    [](const auto& r) { return r.modul->kode == "ER"; });
    if (banding) kepala.insert(kepala.end(), {"Ijtima' - ER (menit)", "Tinggi - ER (')"});
    tabel.push_back(kepala);
    for (const auto& r : h.ringkas) {
        const Ringkasan& g = r.ringkasan;
        Baris b = {std::string(r.modul->kode), hariIjtimaKata(g), g.jamIjtima, tinggiKata(g.tinggiHilal),
                   tanggalKata(g.awalBulan)};
        if (kolomBulan) b.insert(b.begin(), std::string(kBarisBulan[static_cast<size_t>(r.bulan - 1)]).substr(5));
        if (const auto d = banding ? selisihER(r, h.ringkas) : std::nullopt)
            b.insert(b.end(), {d->ijtima ? bertanda(*d->ijtima) : "-", bertanda(d->tinggi)});
        tabel.push_back(std::move(b));
    }
    l.out << "Tempat: " << IsolasiNama(ws.sesi.tempat.nama) << "\n";
    tulisTabel(l.out, tabel);
    return 0;
}

}  // namespace

int perintahSemua(const Argumen& a, const Lingkungan& l) {
    return jalankan(a, l, false, [&](Workspace& ws, const std::string& tempat, Workspace::Keluaran keluaran) {
        return ws.mnuProsesAllSub(a.teks("--tahun"), a.bulat("--bulan"), tempat, keluaran);
    });
}

int perintahSetahun(const Argumen& a, const Lingkungan& l) {
    const std::string kitab = a.teks("--kitab");
    return jalankan(a, l, true, [&](Workspace& ws, const std::string& tempat, Workspace::Keluaran keluaran) {
        return kitab == "semua" ? ws.duaBelasBulanSemuaKitab(a.teks("--tahun"), tempat, keluaran)
                                : ws.mnu12BulanSub(kitab, a.teks("--tahun"), tempat, keluaran);
    });
}

}  // namespace falak::cli
