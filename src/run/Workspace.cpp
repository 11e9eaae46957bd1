#include "run/Workspace.h"

#include <algorithm>

#include "core/Angka.h"
#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "methods/taqribi/SullamNairoin.h"

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

Workspace::HasilProses Workspace::mnuProsesIjSub(const std::string& kodeKitab, const std::string& tahunTeks,
                                                 int bulan, const std::string& namaTempat) {
    const std::string& tahun = tahunTeks;
    if (tahun.find_first_not_of(' ') == std::string::npos || tahun.find('-') != std::string::npos)
        return {nullptr, Pesan{"Ojok kesusu..", "Tahun belum diisi.\nSilahkan tentukan tahun sebelum Anda mengakses data."}};
    const Kitab* kitab = CariKitab(kodeKitab);
    MetodeIjtima* m = kitab ? metode(kitab->kodeLembar) : nullptr;
    if (!m)
        return {nullptr, Pesan{"Sabar rek..", "Kitab " + (kitab ? kitab->nama : kodeKitab) + " belum tersedia."}};

    auto tab = std::make_unique<LembarKerja>();
    tab->kunci = kitab->awalan + std::to_string(++nomorLembar_);
    tab->kode = kitab->kodeLembar;
    tab->kitab = kitab->kode;
    LembarKerja& ref = *tab;
    lembar.push_back(std::move(tab));

    pilihTempat(namaTempat);
    Proses(*m, BulatGenap32(ValAngka(tahun)).value_or(0), bulan, ref);
    return {&ref, std::nullopt};
}

void Workspace::Proses(MetodeIjtima& m, int32_t tahun, int bulan, LembarKerja& tab) {
    sesi.tahunHijri = CetakAngka(tahun);
    sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    sesi.barisBulan = std::clamp(bulan - 1, 0, 11);
    tab.judul = "Hisab Awal Bulan " + std::to_string(tahun) + " H. " + std::to_string(bulan);
    sesi.kodeLembar = tab.kode;
    sesi.kunciTab = tab.kunci;
    sesi.namaKitab = m.nama();
    grid.pilih(&tab.lembar);
    m.Hitung(tahun, static_cast<int16_t>(bulan));
    tab.kesimpulan = m.kesimpulan();
    tab.baris = m.baris();
}

}  // namespace falak
