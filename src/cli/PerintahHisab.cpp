#include "cli/PerintahHisab.h"

#include <ostream>

#include "cli/Json.h"
#include "cli/TeksLembar.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#ifdef FALAK_PDF
#include "export/Cetak.h"
#include "export/Word.h"
#endif
#include "run/Workspace.h"

namespace falak::cli {

namespace {

void tulisJson(std::ostream& out, const LembarKerja& tab, const Sesi& sesi, const Tempat& t, const LembarRumus* rumus) {
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
    out << "\n  ]";
    if (rumus) {
        out << ",\n  \"rumus\": {\"judul\": " << jsonTeks(rumus->judul) << ", \"baris\": [";
        for (size_t i = 0; i < rumus->baris.size(); ++i) {
            const BarisRumus& b = rumus->baris[i];
            out << (i ? ",\n" : "\n") << "    {\"nama\": " << jsonTeks(b.nama) << ", \"rumuz\": " << jsonTeks(b.rumuz)
                << ", \"isi\": " << jsonTeks(b.isi) << "}";
        }
        out << "\n  ]}";
    }
    out << "\n}\n";
}

}  // namespace

int perintahHisab(const Argumen& a, const Lingkungan& l) {
    const std::string kitab = a.teks("--kitab");
    if (kitab == "semua") throw SalahPakai{"hisab memakai satu kitab; untuk semua kitab pakailah falak semua"};
    ClsConnection koneksi(l.lokasi);
    Workspace ws(koneksi);
    ws.sesi.deltaT = a.ada("--deltat");
    l.err << LaporanMasalah(ws.masalahTabel());  // one line a table, each ended
    const auto tempat = CariTempat(koneksi.Daerah, a.teks("--markaz"));
    if (!tempat) throw SalahPakai{"daerah \"" + a.teks("--markaz") + "\" tidak ada di daftar tempat (lihat: falak tempat daftar)"};
    const auto hasil = ws.mnuProsesIjSub(kitab, a.teks("--tahun"), a.bulat("--bulan"), tempat->nama);
    if (hasil.pesan) return Tolak(a, l, hasil.pesan->teks);
    const LembarKerja& tab = *hasil.lembar;
    std::vector<const LembarKerja*> semua;
    for (const auto& lembar : ws.lembar) semua.push_back(lembar.get());
    if (a.ada("--xlsx")) {
        if (const std::string salah = EksporExcel(semua, true, koneksi, a.teks("--xlsx")); !salah.empty())
            return Tolak(a, l, salah);
    }
    if (a.ada("--pdf")) {
#ifdef FALAK_PDF
        if (const std::string salah = CetakPdf(semua, koneksi, a.teks("--pdf")); !salah.empty()) return Tolak(a, l, salah);
#else
        return Tolak(a, l, "--pdf tidak tersedia: falak ini dibangun tanpa Qt");
#endif
    }
    const auto rumus = ws.rumus.tampil(tab.kunci);
    if (a.ada("--odt")) {
#ifdef FALAK_PDF
        if (!rumus) return Tolak(a, l, "kitab " + std::string(tab.modul->nama) + " tidak punya lembar rumus");
        const std::string keterangan = tab.judul + " - " + ws.sesi.namaKitab + ", " + ws.sesi.tempat.nama;
        if (const std::string salah = TulisRumusOdt(*rumus->lembar, keterangan, a.teks("--odt")); !salah.empty())
            return Tolak(a, l, salah);
#else
        return Tolak(a, l, "--odt tidak tersedia: falak ini dibangun tanpa Qt");
#endif
    }
    if (a.ada("--json")) {
        tulisJson(l.out, tab, ws.sesi, ws.sesi.tempat, rumus ? rumus->lembar : nullptr);
        return 0;
    }
    l.out << tab.judul << " - " << ws.sesi.namaKitab << "\n\n" << tampilLembar(tab.lembar) << "\n";
    for (const std::string& baris : tab.kesimpulan) l.out << baris << "\n";
    if (a.ada("--rumus")) {
        if (!rumus) return Tolak(a, l, "kitab " + std::string(tab.modul->nama) + " tidak punya lembar rumus");
        l.out << "\n" << rumus->judul << "\n\n" << rumus->lembar->halaman;
    }
    return 0;
}

}  // namespace falak::cli
