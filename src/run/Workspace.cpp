#include "run/Workspace.h"

#include <algorithm>
#include <charconv>

#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

namespace {

std::optional<Workspace::Pesan> belumTersedia(const EntriModul* entri, const std::string& kode) {
    return Workspace::Pesan{"Sabar rek..",
                            "Kitab " + (entri ? std::string(entri->nama) : kode) + " belum tersedia."};
}

}  // namespace

Workspace::Workspace(ClsConnection& k) : koneksi(k), taadil(k.TRBTaadil, k.TQQTaadil, sesi.tempat) {
    sesi.koneksi = &k;
    Tabel& listTxt = k.ListTxt;
    for (listTxt.moveFirst(); !listTxt.eof(); listTxt.moveNext()) sesi.label.push_back(BacaTeks(listTxt, "IsiText"));
    const Konteks konteks{sesi, koneksi, taadil, kesimpulan, kemajuan};
    for (const EntriModul& e : DaftarModul()) {
        modul_.push_back(e.buat ? e.buat(konteks) : nullptr);
        if (e.buat && e.garapan == Garapan::Ij) tersedia_.push_back(&e);
    }
}

Workspace::~Workspace() = default;

std::vector<const EntriModul*> Workspace::kitabTerdaftar() {
    std::vector<const EntriModul*> daftar;
    for (const EntriModul& e : DaftarModul())
        if (e.garapan == Garapan::Ij) daftar.push_back(&e);
    return daftar;
}

Modul* Workspace::modul(const EntriModul& entri) {
    const auto& daftar = DaftarModul();
    const auto i = static_cast<size_t>(&entri - daftar.data());
    return i < modul_.size() ? modul_[i].get() : nullptr;
}

std::vector<MasalahTabel> Workspace::masalahTabel() const {
    std::vector<MasalahTabel> hasil;
    for (const MasalahTabel& m : koneksi.masalah()) {
        bool dibaca = m.tabel == "Daerah";
        for (const EntriModul* e : tersedia_)
            dibaca = dibaca || std::find(e->tabel.begin(), e->tabel.end(), m.tabel) != e->tabel.end();
        if (dibaca) hasil.push_back(m);
    }
    return hasil;
}

std::optional<Workspace::Pesan> Workspace::periksaTabel(const EntriModul& entri) {
    for (const std::string_view nama : entri.tabel) {
        auto it = tabelDiperiksa_.find(nama);
        if (it == tabelDiperiksa_.end()) {
            const Tabel* t = koneksi.tabel(nama);
            std::string salah = t ? PeriksaIsi(*t) : "tabel ini tidak dikenal";
            for (const MasalahTabel& m : koneksi.masalah())
                if (m.tabel == nama) salah = m.alasan;
            it = tabelDiperiksa_.emplace(std::string(nama), std::move(salah)).first;
        }
        if (!it->second.empty())
            return Pesan{"Tabel rusak", "Kitab " + std::string(entri.nama) + " tidak bisa dihitung: tabel " +
                                            std::string(nama) + " (" +
                                            (koneksi.lokasi().data / (std::string(nama) + ".csv")).string() +
                                            "): " + it->second + "."};
    }
    return std::nullopt;
}

bool Workspace::pilihTempat(const std::string& nama) {
    const auto tempat = CariTempat(koneksi.Daerah, nama);
    sesi.tempat = tempat.value_or(Tempat::cadangan());
    return tempat.has_value();
}

std::optional<Workspace::Pesan> Workspace::periksaTahun(const std::string& tahunTeks) {
    const size_t awal = tahunTeks.find_first_not_of(' ');
    if (awal == std::string::npos)
        return Pesan{"Ojok kesusu..", "Tahun belum diisi.\nSilahkan tentukan tahun sebelum Anda mengakses data."};
    const size_t akhir = tahunTeks.find_last_not_of(' ') + 1;
    int64_t tahun = 0;
    const auto [ujung, ec] = std::from_chars(tahunTeks.data() + awal, tahunTeks.data() + akhir, tahun);
    if (ec == std::errc::invalid_argument || ujung != tahunTeks.data() + akhir)
        return Pesan{"Ojok kesusu..", "Tahun \"" + tahunTeks.substr(awal, akhir - awal) +
                                          "\" bukan bilangan bulat; tulislah misalnya 1445."};
    if (ec == std::errc::result_out_of_range || tahun < kTahunAwal || tahun > kTahunAkhir)
        return Pesan{"Ojok kesusu..", "Tahun " + tahunTeks.substr(awal, akhir - awal) +
                                          " H di luar jangkauan kitab-kitab ini; pilihlah tahun " +
                                          std::to_string(kTahunAwal) + " sampai " + std::to_string(kTahunAkhir) +
                                          " H."};
    return std::nullopt;
}

Workspace::HasilProses Workspace::mnuProsesIjSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                                 int bulan, const std::string& namaTempat) {
    if (auto pesan = periksaTahun(tahunTeks)) return {nullptr, pesan};
    const EntriModul* entri = CariModul(kodeKitab);
    Modul* m = entri ? modul(*entri) : nullptr;
    if (!m) return {nullptr, belumTersedia(entri, kodeKitab)};
    if (auto pesan = periksaTabel(*entri)) return {nullptr, pesan};
    pilihTempat(namaTempat);
    return {Proses(*entri, *m, BulatGenap32(ValAngka(tahunTeks)).value_or(0), bulan), std::nullopt};
}

Workspace::HasilBatch Workspace::batch(const std::vector<std::pair<const EntriModul*, int>>& runs,
                                       const std::string& tahunTeks, const std::string& namaTempat,
                                       Keluaran keluaran) {
    HasilBatch hasil;
    if (auto pesan = periksaTahun(tahunTeks)) {
        hasil.pesan = pesan;
        return hasil;
    }
    for (const auto& [entri, bulan] : runs)
        if (auto pesan = periksaTabel(*entri)) {
            hasil.pesan = pesan;
            return hasil;
        }
    pilihTempat(namaTempat);
    const int32_t tahun = BulatGenap32(ValAngka(tahunTeks)).value_or(0);
    hasil.dihentikan = !kemajuan.jalankanBatch(static_cast<int>(runs.size()), [&](int i) {
        const auto& [entri, bulan] = runs[static_cast<size_t>(i)];
        Modul& m = *modul(*entri);
        if (keluaran == Keluaran::Lembar) {
            LembarKerja* tab = Proses(*entri, m, tahun, bulan);
            hasil.lembar.push_back(tab);
            hasil.ringkas.push_back({entri, tahun, bulan, tab->kesimpulan, tab->ringkasan, std::nullopt});
        } else {
            siapkan(*entri, tahun, bulan);
            HasilHitung h = m.Hitung({tahun, static_cast<int16_t>(bulan), false, keluaran == Keluaran::Ringkas});
            catatAwal(*entri, tahun, bulan, h.ringkasan);
            hasil.ringkas.push_back({entri, tahun, bulan, std::move(h.kesimpulan), std::move(h.ringkasan), std::nullopt});
        }
    });
    return hasil;
}

Workspace::HasilBatch Workspace::mnuProsesAllSub(const std::string& tahunTeks, int bulan,
                                                 const std::string& namaTempat, Keluaran keluaran) {
    std::vector<std::pair<const EntriModul*, int>> runs;
    for (const EntriModul* e : kitabTersedia()) runs.emplace_back(e, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

Workspace::HasilBatch Workspace::mnu12BulanSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                               const std::string& namaTempat, Keluaran keluaran) {
    const EntriModul* entri = CariModul(kodeKitab);
    if (!entri || !modul(*entri)) {
        HasilBatch h;
        h.pesan = belumTersedia(entri, kodeKitab);
        return h;
    }
    std::vector<std::pair<const EntriModul*, int>> runs;
    for (int bulan = 1; bulan <= 12; ++bulan) runs.emplace_back(entri, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

Workspace::HasilBatch Workspace::duaBelasBulanSemuaKitab(const std::string& tahunTeks, const std::string& namaTempat,
                                                         Keluaran keluaran) {
    std::vector<std::pair<const EntriModul*, int>> runs;
    for (int bulan = 1; bulan <= 12; ++bulan)
        for (const EntriModul* e : kitabTersedia()) runs.emplace_back(e, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

std::optional<Nilai> Workspace::awalBulan(const EntriModul& entri, int32_t tahun, int bulan) {
    Modul* m = modul(entri);
    if (!m) return std::nullopt;
    siapkan(entri, tahun, bulan);
    return m->AwalBulan(tahun, static_cast<int16_t>(bulan));
}

void Workspace::siapkan(const EntriModul& entri, int32_t tahun, int bulan) {
    sesi.tahunHijri = CetakAngka(tahun);
    sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    sesi.barisBulan = std::clamp(bulan - 1, 0, 11);
    sesi.kodeLembar = entri.kodeLembar;
    sesi.namaKitab = std::string(entri.nama);
}

LembarKerja* Workspace::Proses(const EntriModul& entri, Modul& m, int32_t tahun, int bulan) {
    siapkan(entri, tahun, bulan);
    HasilHitung h = m.Hitung({tahun, static_cast<int16_t>(bulan), true});
    if (h.lembar.empty()) return nullptr;
    catatAwal(entri, tahun, bulan, h.ringkasan);
    const std::string jenis = entri.garapan == Garapan::Ij ? "Hisab Awal Bulan"
                                                            : std::string(NamaKelompok(entri.garapan, entri.aliran));
    const std::string judul = jenis + " " + std::to_string(tahun) + " H. " + std::to_string(bulan);
    const size_t pertama = lembar.size();
    ++nomorLembar_;
    for (LembarHasil& l : h.lembar) {
        auto tab = std::make_unique<LembarKerja>();
        tab->kunci = (l.awalan.empty() ? std::string(entri.awalan) : l.awalan) + std::to_string(nomorLembar_);
        tab->judul = l.judul.empty() ? judul : l.judul;
        tab->modul = &entri;
        tab->lembar = std::move(l.isi);
        tab->kesimpulan = h.kesimpulan;
        tab->baris = h.baris;
        tab->ringkasan = h.ringkasan;
        tab->gerhana = h.gerhana;
        lembar.push_back(std::move(tab));
    }
    // The formula sheet stays under the key of the run's first tab.
    if (h.rumus && pertama < lembar.size()) {
        PasangTipRumus(lembar[pertama]->lembar, koneksi.Validation, *h.rumus);
        rumus.tambah(lembar[pertama]->kunci, std::move(*h.rumus));
    }
    return lembar.at(pertama).get();
}

void Workspace::catatAwal(const EntriModul& entri, int32_t tahun, int bulan, const Ringkasan& r) {
    if (entri.garapan != Garapan::Ij || r.awalBulan.kosongTeks()) return;
    awalTerakhir = AwalTerucap{&entri, sesi.tempat.nama, tahun, bulan, r.awalBulan};
}

std::optional<Workspace::Pesan> Workspace::tolakLintang(Garapan jenis) const {
    if (jenis != Garapan::Kf) return std::nullopt;
    if (auto teks = PeriksaLintang(sesi.tempat)) return Pesan{"Sepurane..", *teks};
    return std::nullopt;
}

Workspace::HasilProses Workspace::mnuProsesGerhana(Garapan jenis, const std::string& kodeKitab,
                                                   const std::string& tahunTeks, int bulan,
                                                   const std::string& namaTempat) {
    if (auto pesan = periksaTahun(tahunTeks)) return {nullptr, pesan};
    const EntriModul* entri = CariModul(kodeKitab, jenis);
    Modul* m = entri ? modul(*entri) : nullptr;
    if (!m) return {nullptr, belumTersedia(entri, kodeKitab)};
    if (auto pesan = periksaTabel(*entri)) return {nullptr, pesan};
    pilihTempat(namaTempat);
    if (auto pesan = tolakLintang(jenis)) return {nullptr, pesan};
    LembarKerja* tab = Proses(*entri, *m, BulatGenap32(ValAngka(tahunTeks)).value_or(0), bulan);
    if (tab) return {tab, std::nullopt};
    const std::string benda = jenis == Garapan::Hs ? "gerhana bulan" : "gerhana matahari";
    return {nullptr, Pesan{"Tidak ada gerhana", "Menurut kitab " + std::string(entri->nama) + " tidak ada " + benda +
                                                    " pada bulan " + std::to_string(bulan) + " tahun " + tahunTeks +
                                                    " H."}};
}

Workspace::HasilBatch Workspace::cariGerhana(Garapan jenis, const std::string& kodeKitab,
                                             const std::string& tahunTeks, int32_t tahunAkhir,
                                             const std::string& namaTempat, Keluaran keluaran) {
    HasilBatch hasil;
    if (auto pesan = periksaTahun(tahunTeks)) {
        hasil.pesan = pesan;
        return hasil;
    }
    const EntriModul* entri = CariModul(kodeKitab, jenis);
    Modul* m = entri ? modul(*entri) : nullptr;
    if (!m) {
        hasil.pesan = belumTersedia(entri, kodeKitab);
        return hasil;
    }
    if ((hasil.pesan = periksaTabel(*entri))) return hasil;
    pilihTempat(namaTempat);
    if ((hasil.pesan = tolakLintang(jenis))) return hasil;
    const int32_t awal = BulatGenap32(ValAngka(tahunTeks)).value_or(0);
    // Every month of the years, one run each.
    hasil.dihentikan = !kemajuan.jalankanBatch(std::max(0, tahunAkhir - awal + 1) * 12, [&](int i) {
        const int32_t tahun = awal + i / 12;
        const int bulan = i % 12 + 1;
        if (keluaran == Keluaran::Lembar) {
            if (LembarKerja* tab = Proses(*entri, *m, tahun, bulan)) hasil.lembar.push_back(tab);
        } else {
            siapkan(*entri, tahun, bulan);
            HasilHitung h = m->Hitung({tahun, static_cast<int16_t>(bulan), false});
            if (h.gerhana)
                hasil.ringkas.push_back(
                    {entri, tahun, bulan, std::move(h.kesimpulan), std::move(h.ringkasan), std::move(h.gerhana)});
        }
    });
    return hasil;
}

}  // namespace falak
