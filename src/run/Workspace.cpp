#include "run/Workspace.h"

#include <algorithm>

#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"

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

bool Workspace::pilihTempat(const std::string& nama) {
    const auto tempat = CariTempat(koneksi.Daerah, nama);
    sesi.tempat = tempat.value_or(Tempat::cadangan());
    return tempat.has_value();
}

std::optional<Workspace::Pesan> Workspace::periksaTahun(const std::string& tahunTeks) const {
    if (tahunTeks.find_first_not_of(' ') == std::string::npos || tahunTeks.find('-') != std::string::npos)
        return Pesan{"Ojok kesusu..", "Tahun belum diisi.\nSilahkan tentukan tahun sebelum Anda mengakses data."};
    return std::nullopt;
}

Workspace::HasilProses Workspace::mnuProsesIjSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                                 int bulan, const std::string& namaTempat) {
    if (auto pesan = periksaTahun(tahunTeks)) return {nullptr, pesan};
    const EntriModul* entri = CariModul(kodeKitab);
    Modul* m = entri ? modul(*entri) : nullptr;
    if (!m) return {nullptr, belumTersedia(entri, kodeKitab)};
    pilihTempat(namaTempat);
    return {&Proses(*entri, *m, BulatGenap32(ValAngka(tahunTeks)).value_or(0), bulan), std::nullopt};
}

Workspace::HasilBatch Workspace::batch(const std::vector<std::pair<const EntriModul*, int>>& runs,
                                       const std::string& tahunTeks, const std::string& namaTempat,
                                       Keluaran keluaran) {
    HasilBatch hasil;
    if (auto pesan = periksaTahun(tahunTeks)) {
        hasil.pesan = pesan;
        return hasil;
    }
    pilihTempat(namaTempat);
    const int32_t tahun = BulatGenap32(ValAngka(tahunTeks)).value_or(0);
    kemajuan.berhenti = false;
    kemajuan.mulaiBatch(static_cast<int>(runs.size()));
    kemajuan.batch = true;
    for (const auto& [entri, bulan] : runs) {
        if (kemajuan.berhenti) {
            hasil.dihentikan = true;
            break;
        }
        Modul& m = *modul(*entri);
        if (keluaran == Keluaran::Lembar) {
            hasil.lembar.push_back(&Proses(*entri, m, tahun, bulan));
        } else {
            siapkan(*entri, tahun, bulan);
            HasilHitung h = m.Hitung({tahun, static_cast<int16_t>(bulan), false});
            hasil.ringkas.push_back({entri, tahun, bulan, std::move(h.kesimpulan), std::move(h.ringkasan)});
        }
        kemajuan.maju();
    }
    kemajuan.batch = false;
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

void Workspace::siapkan(const EntriModul& entri, int32_t tahun, int bulan) {
    sesi.tahunHijri = CetakAngka(tahun);
    sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    sesi.barisBulan = std::clamp(bulan - 1, 0, 11);
    sesi.kodeLembar = entri.kodeLembar;
    sesi.namaKitab = std::string(entri.nama);
}

LembarKerja& Workspace::Proses(const EntriModul& entri, Modul& m, int32_t tahun, int bulan) {
    siapkan(entri, tahun, bulan);
    HasilHitung h = m.Hitung({tahun, static_cast<int16_t>(bulan), true});
    const std::string judul = "Hisab Awal Bulan " + std::to_string(tahun) + " H. " + std::to_string(bulan);
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
        lembar.push_back(std::move(tab));
    }
    // The formula sheet stays under the key of the run's first tab.
    if (h.rumus && pertama < lembar.size()) rumus.tambah(lembar[pertama]->kunci, std::move(*h.rumus));
    return *lembar.at(pertama);
}

}  // namespace falak
