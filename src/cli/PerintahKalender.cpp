#include "cli/PerintahKalender.h"

#include <cstdio>
#include <ostream>

#include "cli/Json.h"
#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "export/Excel.h"
#ifdef FALAK_PDF
#include "export/Cetak.h"
#endif
#include "run/ProsesKalender.h"

namespace falak::cli {

namespace {

std::string tanggalIso(const TanggalSipil& t) {
    char b[32];
    std::snprintf(b, sizeof b, "%lld-%02d-%02d", static_cast<long long>(t.tahun), t.bulan, t.hari);
    return b;
}

std::string kolom(const std::string& s, size_t lebar) {
    return s.size() >= lebar ? s : std::string(lebar - s.size(), ' ') + s;
}

void tulisJson(std::ostream& out, const KalenderTahun& k, const HasilKalender& h, const std::string& tempat) {
    out << "{\n  \"tahun\": " << k.tahun << ",\n  \"hijriah\": " << (k.hijriah ? "true" : "false")
        << ",\n  \"kitab\": " << jsonTeks(h.kitab->kode) << ",\n  \"namaKitab\": " << jsonTeks(h.kitab->nama)
        << ",\n  \"sumber\": " << jsonTeks(h.dariModul ? "kitab" : "hisab kalender")
        << ",\n  \"tempat\": " << jsonTeks(tempat) << ",\n  \"bulan\": [";
    std::string awal;
    for (size_t i = 0; i < k.bulan.size(); ++i) {
        const BulanKalender& b = k.bulan[i];
        out << (i ? ",\n" : "\n") << "    {\"judul\": " << jsonTeks(b.judul) << ", \"keterangan\": " << jsonTeks(b.keterangan)
            << ", \"hari\": [";
        for (size_t j = 0; j < b.hari.size(); ++j) {
            const HariKalender& d = b.hari[j];
            const std::string hijri = "{\"tahun\": " + std::to_string(d.tahunHijri) + ", \"bulan\": " +
                                      std::to_string(d.bulanHijri) + ", \"namaBulan\": " +
                                      jsonTeks(NamaBulanKalender(d.bulanHijri)) + ", \"tanggal\": " +
                                      std::to_string(d.tanggalHijri) + "}";
            out << (j ? ",\n" : "\n") << "      {\"masehi\": " << jsonTeks(tanggalIso(d.masehi))
                << ", \"hari\": " << jsonTeks(NamaHariKalender(d.hariPekan))
                << ", \"pasaran\": " << jsonTeks(NamaPasaranKalender(d.pasaran)) << ", \"hijriah\": " << hijri
                << ", \"awalBulan\": " << (d.awalBulan() ? "true" : "false") << "}";
            // A first day shows in two blocks of a Hijri year only when the blocks overlap,
            // which they do not; in a Masehi year each day is in one block.
            if (d.awalBulan())
                awal += std::string(awal.empty() ? "\n" : ",\n") + "    {\"hijriah\": " + hijri +
                        ", \"masehi\": " + jsonTeks(tanggalIso(d.masehi)) + ", \"hari\": " +
                        jsonTeks(NamaHariKalender(d.hariPekan)) + ", \"pasaran\": " +
                        jsonTeks(NamaPasaranKalender(d.pasaran)) + "}";
        }
        out << "\n    ]}";
    }
    out << "\n  ],\n  \"awalBulan\": [" << awal << "\n  ]\n}\n";
}

}  // namespace

std::string teksKalender(const KalenderTahun& k) {
    constexpr size_t kLebar = 8;
    std::string s;
    std::string awal;
    for (const BulanKalender& b : k.bulan) {
        s += b.judul + "   (" + b.keterangan + ")\n";
        for (int h = 1; h <= 7; ++h) s += kolom(NamaHariKalender(h), kLebar);
        s += "\n";
        std::string tanggal, pasaran;
        auto tutupMinggu = [&] {
            s += tanggal + "\n" + pasaran + "\n";
            tanggal.clear();
            pasaran.clear();
        };
        const size_t kosong = static_cast<size_t>(b.hari.front().hariPekan - 1) * kLebar;
        tanggal.assign(kosong, ' ');
        pasaran.assign(kosong, ' ');
        for (const HariKalender& d : b.hari) {
            const int utama = k.hijriah ? d.tanggalHijri : d.masehi.hari;
            const int lain = k.hijriah ? d.masehi.hari : d.tanggalHijri;
            tanggal += kolom(std::to_string(utama) + "/" + std::to_string(lain) + (d.awalBulan() ? "*" : " "), kLebar);
            pasaran += kolom(NamaPasaranKalender(d.pasaran) + " ", kLebar);
            if (d.hariPekan == 7) tutupMinggu();
            if (d.awalBulan())
                awal += "  1 " + NamaBulanKalender(d.bulanHijri) + " " + std::to_string(d.tahunHijri) + " H. = " +
                        NamaHariKalender(d.hariPekan) + " " + NamaPasaranKalender(d.pasaran) + ", " +
                        std::to_string(d.masehi.hari) + " " + NamaBulanMasehi(d.masehi.bulan) + " " +
                        std::to_string(d.masehi.tahun) + " M.\n";
        }
        if (!tanggal.empty()) tutupMinggu();
        s += "\n";
    }
    return s + "Awal bulan:\n" + awal;
}

int perintahKalender(const Argumen& a, const Lingkungan& l) {
    ClsConnection koneksi(l.lokasi);
    Workspace ws(koneksi);
    l.err << LaporanMasalah(ws.masalahTabel());
    const auto tempat = CariTempat(koneksi.Daerah, a.teks("--markaz"));
    if (!tempat)
        throw SalahPakai{"daerah \"" + a.teks("--markaz") + "\" tidak ada di daftar tempat (lihat: falak tempat daftar)"};
    const HasilKalender h = ProsesKal12(ws, a.teks("--kitab"), a.teks("--tahun"), a.ada("--hijriah"), tempat->nama);
    if (h.pesan) {
        if (h.masukanSalah) throw SalahPakai{h.pesan->judul + ": " + h.pesan->teks};
        return Tolak(a, l, h.pesan->teks);
    }
    const LembarKerja kerja = LembarKerjaKalender(h);
    if (a.ada("--xlsx")) {
        if (const std::string salah = EksporExcel({&kerja}, true, koneksi, a.teks("--xlsx")); !salah.empty())
            return Tolak(a, l, salah);
    }
    if (a.ada("--pdf")) {
#ifdef FALAK_PDF
        if (const std::string salah = CetakPdf({&kerja}, koneksi, a.teks("--pdf")); !salah.empty()) return Tolak(a, l, salah);
#else
        return Tolak(a, l, "--pdf tidak tersedia: falak ini dibangun tanpa Qt");
#endif
    }
    if (a.ada("--json")) {
        tulisJson(l.out, *h.kalender, h, ws.sesi.tempat.nama);
        return 0;
    }
    l.out << "KALENDER TAHUN " << h.kalender->tahun << (h.kalender->hijriah ? " H." : " M.") << " - " << h.kitab->nama
          << ", " << ws.sesi.tempat.nama << "\n"
          << (h.dariModul ? "Awal bulan menurut hisab kitabnya sendiri." : "Awal bulan menurut hisab kalender (taqribi ringkas).")
          << " Tiap hari: tanggal " << (h.kalender->hijriah ? "Hijriah/Masehi" : "Masehi/Hijriah")
          << " dan pasaran; * awal bulan Hijriah.\n\n"
          << teksKalender(*h.kalender);
    return 0;
}

}  // namespace falak::cli
