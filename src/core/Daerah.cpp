#include "core/Daerah.h"

#include <cmath>
#include <limits>
#include <system_error>

#include "core/Angka.h"
#include "core/Teks.h"

namespace fs = std::filesystem;

namespace falak {

namespace {

std::string_view rapikan(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
    return s;
}

char kecil(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool samaNama(std::string_view a, std::string_view b) {
    a = rapikan(a);
    b = rapikan(b);
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (kecil(a[i]) != kecil(b[i])) return false;
    return true;
}

std::string besar(std::string_view s) {
    std::string out(rapikan(s));
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

// A register cell as a 16-bit whole number, read as the kernel reads table cells.
int16_t angka16(std::string_view teks) {
    const auto v = BulatGenap32(ValAngka(teks));
    if (!v || *v < std::numeric_limits<int16_t>::min() || *v > std::numeric_limits<int16_t>::max()) return 0;
    return static_cast<int16_t>(*v);
}

std::string_view kolomBaris(const Tabel& t, size_t baris, std::string_view kolom) {
    const int k = t.indeksKolom(kolom);
    return k < 0 ? std::string_view() : t.sel(baris, static_cast<size_t>(k));
}

// A whole number typed by the user, within [bawah, atas]; otherwise the reason it is refused.
std::string bulatDalam(std::string_view teks, std::string_view apa, long bawah, long atas, long& hasil) {
    const std::string_view t = rapikan(teks);
    if (t.empty()) return std::string(apa) + " belum diisi.";
    const double x = AdalahAngka(t) ? ValAngka(t) : std::nan("");
    if (std::isnan(x) || x != std::floor(x))
        return std::string(apa) + " harus bilangan bulat, bukan \"" + std::string(t) + "\".";
    if (x < static_cast<double>(bawah) || x > static_cast<double>(atas))
        return std::string(apa) + " harus antara " + std::to_string(bawah) + " sampai " + std::to_string(atas) +
               ", bukan " + std::string(t) + ".";
    hasil = static_cast<long>(x);
    return {};
}

std::string periksaSudut(const IsianTempat& isian, bool lintang) {
    const long batas = lintang ? 90 : 180;
    const std::string nama = lintang ? "lintang" : "bujur";
    long derajat = 0;
    long menit = 0;
    const std::string_view teksDerajat = lintang ? isian.lintangDerajat : isian.bujurDerajat;
    if (rapikan(teksDerajat).starts_with('-'))
        return "Derajat " + nama + " ditulis tanpa minus; " + (lintang ? "utara atau selatan pakai LU atau LS."
                                                                       : "timur atau barat pakai BT atau BB.");
    if (auto s = bulatDalam(teksDerajat, "Derajat " + nama, 0, batas, derajat); !s.empty()) return s;
    if (auto s = bulatDalam(lintang ? isian.lintangMenit : isian.bujurMenit, "Menit " + nama, 0, 59, menit);
        !s.empty())
        return s;
    if (derajat == batas && menit != 0)
        return "Kebablasan: " + nama + " paling jauh " + std::to_string(batas) + " derajat 0 menit.";
    const std::string arah = besar(lintang ? isian.arahLintang : isian.arahBujur);
    if (lintang && arah != "LU" && arah != "LS") return "Arah lintang harus LU (utara) atau LS (selatan).";
    if (!lintang && arah != "BT" && arah != "BB") return "Arah bujur harus BT (timur) atau BB (barat).";
    return {};
}

std::string angkaTeks(std::string_view teks) {
    return std::to_string(static_cast<long>(ValAngka(rapikan(teks))));
}

// What makes a stored row unfit to serve: no name, or a number cell that holds no number (it
// would read as 0 in a run). The sides are read leniently ("LS" south, anything else north),
// as a run reads them.
std::string periksaBaris(const Tabel& t, size_t b) {
    if (t.indeksKolom("BaladIN") >= 0 && rapikan(kolomBaris(t, b, "BaladIN")).empty()) return "nama tempat kosong";
    for (const std::string_view kolom : {"DarojatArdlu", "DaqiqohArdlu", "DarojatThul", "DaqiqohThul", "ZonaTime"}) {
        if (t.indeksKolom(kolom) < 0) continue;
        if (const std::string_view isi = rapikan(kolomBaris(t, b, kolom)); !AdalahAngka(isi))
            return "kolom " + std::string(kolom) + " berisi \"" + Pendekkan(isi, 20) + "\", bukan angka";
    }
    if (const std::string_view tinggi = rapikan(kolomBaris(t, b, "Ketinggian")); !tinggi.empty() && !AdalahAngka(tinggi))
        return "kolom Ketinggian berisi \"" + Pendekkan(tinggi, 20) + "\", bukan angka";
    return {};
}

// The lock that the programs changing the register take turns on.
fs::path berkasKunci(const fs::path& berkas) { return fs::path(berkas).concat(".lock"); }

// The working copy with its good rows; what was left out, told line by line.
std::string bacaKerja(Tabel& daerah, const fs::path& berkas) {
    Tabel::Longgar longgar;
    if (std::string alasan = daerah.buka(berkas, &longgar); !alasan.empty()) return alasan;
    std::vector<std::string> rusak = std::move(longgar.dilewati);
    for (std::string& r : RegisterDaerah(daerah, berkas).singkirkanBarisRusak(longgar.barisBerkas))
        rusak.push_back(std::move(r));
    if (rusak.empty()) return {};
    std::string pesan;
    for (const std::string& r : rusak) pesan += (pesan.empty() ? "" : "; ") + r;
    return pesan + " (baris itu dilewati; berkas tidak diubah sebelum dibetulkan)";
}

}  // namespace

std::string BukaDaerah(Tabel& daerah, const LokasiData& lokasi) {
    const fs::path kerja = BerkasDaerah(lokasi);
    std::error_code ec;
    if (fs::exists(kerja, ec)) return bacaKerja(daerah, kerja);

    daerah.tutup();
    const fs::path pabrik = BerkasBalad(lokasi);
    std::string isi;
    if (std::string alasan = BacaBerkas(pabrik, isi); !alasan.empty())
        return "berkas tidak ada, dan salinan pabrik " + pabrik.string() + " juga tidak bisa dibaca (" + alasan + ")";
    // A factory copy that does not read would leave a working copy that blocks every save.
    if (std::string alasan = daerah.bacaCsv(isi); !alasan.empty())
        return "salinan pabrik " + pabrik.string() + " rusak: " + alasan;
    if (std::string alasan = TulisAtomik(kerja, isi); !alasan.empty())
        return "berkas tidak bisa dibuat dari salinan pabrik (" + alasan +
               "); daftar tempat dibaca dari salinan pabrik dan belum bisa disimpan";
    return {};
}

Tempat TempatDariBaris(const Tabel& daerah, size_t baris) {
    auto sel = [&](std::string_view kolom) { return kolomBaris(daerah, baris, kolom); };
    Tempat t;
    t.nama = std::string(rapikan(sel("BaladIN")));
    t.namaTampil = std::string(rapikan(sel("BaladAR")));
    t.tandaLintang = rapikan(sel("ArahArdlu")) == "LS" ? "0" : "1";
    t.lintangDerajat = angka16(sel("DarojatArdlu"));
    t.lintangMenit = angka16(sel("DaqiqohArdlu"));
    t.tandaBujur = rapikan(sel("ArahThul")) == "BT" ? "1" : "0";
    t.bujurDerajat = angka16(sel("DarojatThul"));
    t.bujurMenit = angka16(sel("DaqiqohThul"));
    t.zona = angka16(sel("ZonaTime"));
    t.tinggi = ValAngka(sel("Ketinggian"));
    return t;
}

std::optional<Tempat> CariTempat(Tabel& daerah, std::string_view nama) {
    if (daerah.cari("BaladIN", nama)) return TempatDariBaris(daerah, daerah.kursor());
    // The name as the user typed it: the same place whatever its case and outer blanks.
    for (size_t b = 0; b < daerah.jumlahBaris(); ++b) {
        const std::string_view tersimpan = kolomBaris(daerah, b, "BaladIN");
        if (samaNama(tersimpan, nama) && daerah.cari("BaladIN", tersimpan)) return TempatDariBaris(daerah, daerah.kursor());
    }
    return std::nullopt;
}

RegisterDaerah::RegisterDaerah(Tabel& daerah, fs::path berkas) : daerah_(daerah), berkas_(std::move(berkas)) {}

std::vector<Tempat> RegisterDaerah::daftar() const {
    std::vector<Tempat> semua;
    semua.reserve(daerah_.jumlahBaris());
    for (size_t b = 0; b < daerah_.jumlahBaris(); ++b) semua.push_back(TempatDariBaris(daerah_, b));
    return semua;
}

std::optional<size_t> RegisterDaerah::cari(std::string_view nama) const {
    for (size_t b = 0; b < daerah_.jumlahBaris(); ++b)
        if (samaNama(kolomBaris(daerah_, b, "BaladIN"), nama)) return b;
    return std::nullopt;
}

IsianTempat RegisterDaerah::isian(size_t baris) const {
    auto sel = [&](std::string_view kolom) { return std::string(rapikan(kolomBaris(daerah_, baris, kolom))); };
    return {sel("BaladIN"),     sel("BaladAR"),     sel("DarojatArdlu"), sel("DaqiqohArdlu"), sel("ArahArdlu"),
            sel("DarojatThul"), sel("DaqiqohThul"), sel("ArahThul"),     sel("ZonaTime"),     sel("Ketinggian")};
}

std::string RegisterDaerah::bolehDiubah() const {
    std::error_code ec;
    if (!daerah_.terbuka()) {
        if (fs::exists(berkas_, ec))
            return "Berkas daftar tempat " + berkas_.string() +
                   " ada tapi tidak bisa dibaca. Betulkan atau pindahkan dulu berkas itu, biar isinya tidak hilang.";
    }
    return {};
}

std::string RegisterDaerah::kolomLengkap() const {
    for (const std::string_view kolom : kKolomDaerah)
        if (daerah_.indeksKolom(kolom) < 0)
            return "Berkas daftar tempat tidak punya kolom " + std::string(kolom) + ", jadi tempatnya tidak bisa diisi.";
    return {};
}

std::string RegisterDaerah::periksa(const IsianTempat& isian, std::optional<size_t> kecuali) const {
    const std::string_view nama = rapikan(isian.nama);
    if (nama.empty()) return "Nama tempat belum diisi.";
    if (SalahUtf8(isian.nama) != std::string_view::npos || SalahUtf8(isian.namaTampil) != std::string_view::npos)
        return "Nama tempat memuat huruf yang rusak (bukan teks UTF-8 yang sah); tulis lagi namanya.";
    if (AdaKendali(isian.nama) || AdaKendali(isian.namaTampil)) return "Nama tempat jangan pakai ganti baris atau tab.";
    if (const auto ada = cari(nama); ada && ada != kecuali)
        return "Tempat \"" + std::string(kolomBaris(daerah_, *ada, "BaladIN")) +
               "\" sudah ada di daftar. Pakai nama lain, atau ubah yang sudah ada.";
    if (auto s = periksaSudut(isian, true); !s.empty()) return s;
    if (auto s = periksaSudut(isian, false); !s.empty()) return s;
    long zona = 0;
    if (auto s = bulatDalam(isian.zona, "Zona waktu", -12, 14, zona); !s.empty())
        return s + " Misalnya 7 untuk WIB, 8 WITA, 9 WIT.";
    const std::string_view tinggi = rapikan(isian.tinggi);
    if (!tinggi.empty() && (!AdalahAngka(tinggi) || !std::isfinite(ValAngka(tinggi))))
        return "Ketinggian harus angka (meter), bukan \"" + std::string(tinggi) + "\".";
    return {};
}

void RegisterDaerah::tulis(size_t baris, const IsianTempat& isian) {
    const std::string nama(rapikan(isian.nama));
    const std::string tampil(rapikan(isian.namaTampil));
    const std::string_view tinggi = rapikan(isian.tinggi);
    const std::string isi[] = {nama,
                               tampil.empty() ? nama : tampil,
                               angkaTeks(isian.lintangDerajat),
                               angkaTeks(isian.lintangMenit),
                               besar(isian.arahLintang),
                               angkaTeks(isian.bujurDerajat),
                               angkaTeks(isian.bujurMenit),
                               besar(isian.arahBujur),
                               angkaTeks(isian.zona),
                               tinggi.empty() ? "0" : std::string(tinggi)};
    for (size_t i = 0; i < kKolomDaerah.size(); ++i)
        daerah_.ubahSel(baris, static_cast<size_t>(daerah_.indeksKolom(kKolomDaerah[i])), isi[i]);
}

std::string RegisterDaerah::tambah(const IsianTempat& isian) {
    if (auto s = bolehDiubah(); !s.empty()) return s;
    if (!daerah_.terbuka()) daerah_.bukaKosong({kKolomDaerah.begin(), kKolomDaerah.end()});
    if (auto s = kolomLengkap(); !s.empty()) return s;
    if (auto s = periksa(isian, std::nullopt); !s.empty()) return s;
    daerah_.tambahBaris({});
    tulis(daerah_.jumlahBaris() - 1, isian);
    return {};
}

std::string RegisterDaerah::ubah(std::string_view nama, const IsianTempat& isian) {
    if (auto s = bolehDiubah(); !s.empty()) return s;
    const auto baris = cari(nama);
    if (!baris) return "Tempat \"" + std::string(rapikan(nama)) + "\" tidak ada di daftar.";
    if (auto s = kolomLengkap(); !s.empty()) return s;
    if (auto s = periksa(isian, baris); !s.empty()) return s;
    tulis(*baris, isian);
    return {};
}

std::string RegisterDaerah::hapus(std::string_view nama) {
    if (auto s = bolehDiubah(); !s.empty()) return s;
    const auto baris = cari(nama);
    if (!baris) return "Tempat \"" + std::string(rapikan(nama)) + "\" tidak ada di daftar.";
    daerah_.hapusBaris(*baris);
    return {};
}

std::vector<std::string> RegisterDaerah::singkirkanBarisRusak(const std::vector<size_t>& barisBerkas) {
    std::vector<std::string> rusak;
    for (size_t b = daerah_.jumlahBaris(); b-- > 0;)
        if (std::string s = periksaBaris(daerah_, b); !s.empty()) {
            rusak.insert(rusak.begin(), "baris " + std::to_string(b < barisBerkas.size() ? barisBerkas[b] : b + 2) + ": " + s);
            daerah_.hapusBaris(b);
        }
    return rusak;
}

std::string RegisterDaerah::bolehDitulis() const {
    std::error_code ec;
    if (!fs::exists(berkas_, ec)) return {};
    using enum fs::perms;
    if ((fs::status(berkas_, ec).permissions() & (owner_write | group_write | others_write)) == none)
        return "Berkas daftar tempat " + berkas_.string() +
               " hanya boleh dibaca, jadi tidak diubah. Beri dulu izin tulis pada berkas itu.";
    Tabel diDisk("Daerah");
    if (const std::string masalah = bacaKerja(diDisk, berkas_); !masalah.empty())
        return "Berkas daftar tempat " + berkas_.string() + " rusak: " + masalah +
               ". Betulkan atau pindahkan dulu berkas itu, biar isinya tidak hilang.";
    return {};
}

std::string RegisterDaerah::tulisBerkas() {
    if (auto s = bolehDiubah(); !s.empty()) return s;
    if (auto s = bolehDitulis(); !s.empty()) return s;
    if (!daerah_.terbuka()) daerah_.bukaKosong({kKolomDaerah.begin(), kKolomDaerah.end()});
    HapusSisaSementara(berkas_);
    if (auto alasan = TulisAtomik(berkas_, daerah_.keCsv()); !alasan.empty())
        return "Sepurane, daftar tempat gagal disimpan ke " + berkas_.string() + ": " + alasan +
               ". Berkas yang lama tetap utuh.";
    return {};
}

std::string RegisterDaerah::simpan() {
    const KunciBerkas kunci(berkasKunci(berkas_));
    if (!kunci.masalah().empty()) return "Sepurane, daftar tempat gagal disimpan: " + kunci.masalah() + ".";
    return tulisBerkas();
}

std::string RegisterDaerah::Ubah(Tabel& daerah, const LokasiData& lokasi,
                                 const std::function<std::string(RegisterDaerah&)>& ubah) {
    const fs::path berkas = BerkasDaerah(lokasi);
    const KunciBerkas kunci(berkasKunci(berkas));
    if (!kunci.masalah().empty()) return "Sepurane, daftar tempat tidak bisa diubah: " + kunci.masalah() + ".";
    Tabel segar(daerah.nama());
    const std::string masalah = BukaDaerah(segar, lokasi);
    std::error_code ec;
    if (!masalah.empty() && fs::exists(berkas, ec))
        return "Berkas daftar tempat " + berkas.string() + " rusak: " + masalah +
               ". Betulkan atau pindahkan dulu berkas itu, biar isinya tidak hilang.";
    RegisterDaerah reg(segar, berkas);
    if (std::string tolak = ubah(reg); !tolak.empty()) return tolak;
    if (std::string tolak = reg.tulisBerkas(); !tolak.empty()) return tolak;
    daerah = std::move(segar);
    return {};
}

}  // namespace falak
