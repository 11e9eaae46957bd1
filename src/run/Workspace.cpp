#include "run/Workspace.h"

#include <algorithm>

#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "methods/taqribi/FaidlulKarim.h"
#include "methods/taqribi/FathurRouf.h"
#include "methods/taqribi/IttifaqDzatilBain.h"
#include "methods/taqribi/KhulashohWafiyah.h"
#include "methods/taqribi/SullamNairoin.h"
#include "methods/taqribi/TadzkirotulIkhwan.h"

namespace falak {

const std::vector<Kitab>& DaftarKitab() {
    static const std::vector<Kitab> daftar = {
        {2, "SN", "IjSN_", "Sullam al-Nairoin"},
        {6, "FR", "IjFR_", "Fathu al-Ro'uf al-Mannan"},
        {11, "IDB1", "IjIDB1_", "Ittifaq Dzatu al-Bain Taqribi"},
        {19, "SH", "IjSH_", "Syamsu al-Hilal"},
        {23, "TZ", "IjTZ_", "Tadzkirotu al-Ikhwan"},
        {34, "KW1", "IjKW1_", "Khulashotu al-Wafiyah Taqribi"},
        {27, "FK", "IjFK_", "Faidlu al-Karim"},
        {31, "BM", "IjBM_", "Badi'atu al-Mitsal"},
        {39, "MA", "IjMA_", "Muntaha Nataiji al-Aqwal"},
        {15, "IDB2", "IjIDB2_", "Ittifaq Dzatu al-Bain Tahqiqi"},
        {41, "NA", "IjNA_", "Nuru al-Anwar"},
        {36, "KW2", "IjKW2_", "Khulashotu al-Wafiyah Tahqiqi"},
        {45, "IM", "IjIM_", "Irsyadu al-Murid"},
        {48, "ER", "IjER_", "Ephemeris"},
    };
    return daftar;
}

const Kitab* CariKitab(std::string_view kode) {
    for (const Kitab& k : DaftarKitab())
        if (k.kode == kode) return &k;
    return nullptr;
}

Workspace::Workspace(ClsConnection& k) : koneksi(k), taadil(k.TRBTaadil, k.TQQTaadil, sesi.tempat) {
    sesi.koneksi = &k;
    Tabel& listTxt = k.ListTxt;
    for (listTxt.moveFirst(); !listTxt.eof(); listTxt.moveNext()) sesi.label.push_back(BacaTeks(listTxt, "IsiText"));
    const Konteks konteks{sesi, koneksi, taadil, kesimpulan, grid, kemajuan};
    metode_.push_back(std::make_unique<SullamNairoin>(konteks));
    metode_.push_back(std::make_unique<FathurRouf>(konteks));
    metode_.push_back(std::make_unique<IttifaqDzatilBain>(konteks));
    metode_.push_back(std::make_unique<TadzkirotulIkhwan>(konteks));
    metode_.push_back(std::make_unique<KhulashohWafiyah>(konteks));
    metode_.push_back(std::make_unique<FaidlulKarim>(konteks));
}

Workspace::~Workspace() = default;

MetodeIjtima* Workspace::metode(int kodeLembar) {
    const Kitab* kitab = nullptr;
    for (const Kitab& k : DaftarKitab())
        if (k.kodeLembar == kodeLembar) kitab = &k;
    if (!kitab) return nullptr;
    for (auto& m : metode_)
        if (m->kode() == kitab->kode) return m.get();
    return nullptr;
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

std::vector<const Kitab*> Workspace::kitabTersedia() {
    std::vector<const Kitab*> ada;
    for (const Kitab& k : DaftarKitab())
        if (metode(k.kodeLembar)) ada.push_back(&k);
    return ada;
}

LembarKerja& Workspace::jalankan(const Kitab& kitab, MetodeIjtima& m, int32_t tahun, int bulan) {
    auto tab = std::make_unique<LembarKerja>();
    tab->kunci = kitab.awalan + std::to_string(++nomorLembar_);
    tab->kode = kitab.kodeLembar;
    tab->kitab = kitab.kode;
    LembarKerja& ref = *tab;
    lembar.push_back(std::move(tab));
    Proses(m, tahun, bulan, ref);
    return ref;
}

Workspace::HasilProses Workspace::mnuProsesIjSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                                 int bulan, const std::string& namaTempat) {
    if (auto pesan = periksaTahun(tahunTeks)) return {nullptr, pesan};
    const Kitab* kitab = CariKitab(kodeKitab);
    MetodeIjtima* m = kitab ? metode(kitab->kodeLembar) : nullptr;
    if (!m)
        return {nullptr, Pesan{"Sabar rek..", "Kitab " + (kitab ? kitab->nama : kodeKitab) + " belum tersedia."}};
    pilihTempat(namaTempat);
    return {&jalankan(*kitab, *m, BulatGenap32(ValAngka(tahunTeks)).value_or(0), bulan), std::nullopt};
}

Workspace::HasilBatch Workspace::batch(const std::vector<std::pair<const Kitab*, int>>& runs,
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
    for (const auto& [kitab, bulan] : runs) {
        if (kemajuan.berhenti) {
            hasil.dihentikan = true;
            break;
        }
        MetodeIjtima& m = *metode(kitab->kodeLembar);
        if (keluaran == Keluaran::Lembar) {
            hasil.lembar.push_back(&jalankan(*kitab, m, tahun, bulan));
        } else {
            siapkan(m, tahun, bulan, kitab->kodeLembar, kitab->awalan);
            grid.pilih(nullptr);
            m.HitungRingkas(tahun, static_cast<int16_t>(bulan));
            hasil.ringkas.push_back({kitab, tahun, bulan, m.kesimpulan(), m.ringkasan()});
        }
        kemajuan.maju();
    }
    kemajuan.batch = false;
    return hasil;
}

Workspace::HasilBatch Workspace::mnuProsesAllSub(const std::string& tahunTeks, int bulan,
                                                 const std::string& namaTempat, Keluaran keluaran) {
    std::vector<std::pair<const Kitab*, int>> runs;
    for (const Kitab* k : kitabTersedia()) runs.emplace_back(k, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

Workspace::HasilBatch Workspace::mnu12BulanSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                               const std::string& namaTempat, Keluaran keluaran) {
    const Kitab* kitab = CariKitab(kodeKitab);
    if (!kitab || !metode(kitab->kodeLembar)) {
        HasilBatch h;
        h.pesan = Pesan{"Sabar rek..", "Kitab " + (kitab ? kitab->nama : kodeKitab) + " belum tersedia."};
        return h;
    }
    std::vector<std::pair<const Kitab*, int>> runs;
    for (int bulan = 1; bulan <= 12; ++bulan) runs.emplace_back(kitab, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

Workspace::HasilBatch Workspace::duaBelasBulanSemuaKitab(const std::string& tahunTeks, const std::string& namaTempat,
                                                         Keluaran keluaran) {
    std::vector<std::pair<const Kitab*, int>> runs;
    for (int bulan = 1; bulan <= 12; ++bulan)
        for (const Kitab* k : kitabTersedia()) runs.emplace_back(k, bulan);
    return batch(runs, tahunTeks, namaTempat, keluaran);
}

void Workspace::siapkan(const MetodeIjtima& m, int32_t tahun, int bulan, int kode, const std::string& kunci) {
    sesi.tahunHijri = CetakAngka(tahun);
    sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    sesi.barisBulan = std::clamp(bulan - 1, 0, 11);
    sesi.kodeLembar = kode;
    sesi.kunciTab = kunci;
    sesi.namaKitab = m.nama();
}

void Workspace::Proses(MetodeIjtima& m, int32_t tahun, int bulan, LembarKerja& tab) {
    siapkan(m, tahun, bulan, tab.kode, tab.kunci);
    tab.judul = "Hisab Awal Bulan " + std::to_string(tahun) + " H. " + std::to_string(bulan);
    grid.pilih(&tab.lembar);
    m.Hitung(tahun, static_cast<int16_t>(bulan));
    tab.kesimpulan = m.kesimpulan();
    tab.baris = m.baris();
    tab.ringkasan = m.ringkasan();
}

}  // namespace falak
