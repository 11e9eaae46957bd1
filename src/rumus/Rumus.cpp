#include "rumus/Rumus.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "core/Tabel.h"

namespace falak {

namespace {

// The family, one line a book. Rows shown in whole degrees are those the books write in
// Buruj; the fixed rows take the quadrant lines in place of symbols.
const std::vector<AnggotaRumus>& anggota() {
    static const std::vector<AnggotaRumus> daftar = {
        {"ER", 48, 50, {}, {3, 5, 6, 32, 33}, "RUMUS IJTIMA EPHEMERIS", "RUMUS IJTIMA EPHEMERIS"},
        {"BM", 31, 27, {5, 15}, {1, 7, 8, 9, 11, 19, 20}, "RUMUS BADIATUL MITSAL", "RUMUS IJTIMA METODE BADIATUL MITSAL"},
        {"NA", 41, 24, {4, 14}, {1, 6, 7, 8, 10, 18, 19}, "RUMUS MURUL ANWAR", "RUMUS MURUL ANWAR"},
    };
    return daftar;
}

// The symbols of a fixed row: the arc by its quadrant.
constexpr std::string_view kRumusTetap =
    "Jika A < 090 = 180° - B\nJika A < 180 = 180° + B\nJika A < 270 = 360° - B\nJika A < 360 = B";

std::string_view potong(std::string_view s) {
    const auto awal = s.find_first_not_of(" \t\r\n");
    if (awal == std::string_view::npos) return {};
    const auto akhir = s.find_last_not_of(" \t\r\n");
    return s.substr(awal, akhir - awal + 1);
}

bool ada(const std::vector<int>& v, int x) { return std::find(v.begin(), v.end(), x) != v.end(); }

// The whole number at the start of a text; none when there is none.
std::optional<int> bilangan(std::string_view s) {
    int n = 0;
    const auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), n);
    if (ec != std::errc() || p == s.data()) return std::nullopt;
    return n;
}

}  // namespace

const AnggotaRumus* CariAnggotaRumus(int kodeLembar) {
    for (const AnggotaRumus& a : anggota())
        if (a.kodeLembar == kodeLembar) return &a;
    return nullptr;
}

std::string KataNilaiRumus(const Nilai& v, bool derajatPenuh) {
    if (v.kosongTeks() || v.kosong()) return {};
    std::string s;
    if (derajatPenuh) {
        s = std::to_string(AmbilTingkat(v, MedanBuruj) * 30 + AmbilTingkat(v, MedanDarojah));
    } else {
        s = (AmbilTanda(v) == 0 ? "-" : "") + std::to_string(AmbilTingkat(v, MedanDarojah));
    }
    s += "°" + std::to_string(AmbilTingkat(v, MedanDaqiqoh)) + "'";
    const int tsaniyah = AmbilTingkat(v, MedanTsaniyah), tsalitsah = AmbilTingkat(v, MedanTsalitsah);
    if (tsalitsah != 0) {
        char pecahan[16];
        std::snprintf(pecahan, sizeof pecahan, "%.2f", std::abs(tsalitsah) / 60.0);
        s += std::to_string(tsaniyah) + (pecahan + 1) + "''";
    } else if (tsaniyah != 0) {
        s += std::to_string(tsaniyah) + "''";
    }
    return s;
}

std::string IsiVariabel(std::string_view daftar, const AnggotaRumus& a, std::span<const Nilai> hasil1,
                        std::span<const Nilai> hasil2) {
    std::string isi;
    while (!daftar.empty()) {
        const size_t akhir = daftar.find('|');
        const std::string_view segmen = daftar.substr(0, akhir);
        daftar = akhir == std::string_view::npos ? std::string_view() : daftar.substr(akhir + 1);
        if (potong(segmen).empty()) continue;
        const size_t koma = segmen.rfind(',');
        const std::string_view kiri = potong(segmen.substr(0, koma));
        std::string baris = std::string(kiri) + " =";
        if (koma != std::string_view::npos && koma + 1 < segmen.size()) {
            const std::string_view kanan = segmen.substr(koma + 1);
            const bool pertama = std::isdigit(static_cast<unsigned char>(kanan[0])) != 0;
            const auto k = bilangan(pertama ? kanan : kanan.substr(1));
            const std::span<const Nilai> hasil = pertama ? hasil1 : hasil2;
            if (k && *k >= 0 && static_cast<size_t>(*k) < hasil.size()) {
                const std::string kata = KataNilaiRumus(hasil[static_cast<size_t>(*k)], pertama && ada(a.derajatPenuh, *k));
                if (!kata.empty()) baris += " " + kata;
            }
        }
        isi += (isi.empty() ? "" : "\n") + baris;
    }
    return isi;
}

LembarRumus BangunRumus(const AnggotaRumus& a, Tabel& t, std::span<const Nilai> hasil1,
                        std::span<const Nilai> hasil2) {
    LembarRumus l;
    l.kodeLembar = a.kodeLembar;
    l.judul = std::string(a.judulBangun);
    const std::string k(a.kolom);
    const std::string kolomNama = k + "Nama", kolomRumuz = k + "Rumuz", kolomVar = k + "Var";
    t.moveFirst();
    for (int i = 1; i <= a.jumlahBaris; ++i) {
        BarisRumus b;
        // A missing row or column leaves the step empty; the sheet keeps its numbering.
        b.nama = std::string(potong(BacaTeks(t, kolomNama)));
        b.rumuz = ada(a.barisTetap, i) ? std::string(kRumusTetap) : std::string(potong(BacaTeks(t, kolomRumuz)));
        b.isi = IsiVariabel(potong(BacaTeks(t, kolomVar)), a, hasil1, hasil2);
        l.halaman += std::to_string(i) + ". " + b.nama + "\n" + b.rumuz + "\n" + b.isi + "\n\n";
        l.baris.push_back(std::move(b));
        t.moveNext();
    }
    return l;
}

void PasangTipRumus(Sheet& lembar, const Tabel& validation, const LembarRumus& rumus) {
    const AnggotaRumus* a = CariAnggotaRumus(rumus.kodeLembar);
    if (!a) return;
    const int kolom = validation.indeksKolom(std::string(a->kolom));
    if (kolom < 0) return;
    const size_t n = std::min(validation.jumlahBaris(), rumus.baris.size());
    for (size_t i = 0; i < n; ++i) {
        Rentang sel;
        if (!BacaRentang(validation.sel(i, static_cast<size_t>(kolom)), sel)) continue;
        const BarisRumus& b = rumus.baris[i];
        lembar.tip(sel.baris1, sel.kolom1, b.nama, b.rumuz + "\n" + b.isi);
    }
}

int DaftarRumus::tambah(std::string kunciTab, LembarRumus lembar) {
    const int nomor = 1 + static_cast<int>(std::count_if(item_.begin(), item_.end(), [&](const Item& i) {
                          return i.lembar.kodeLembar == lembar.kodeLembar;
                      }));
    item_.push_back({std::move(kunciTab), nomor, std::move(lembar)});
    kini_ = item_.size() - 1;
    kiniBaru_ = true;
    return nomor;
}

DaftarRumus::Tampilan DaftarRumus::tampilan(const Item& i, bool bangun) const {
    const AnggotaRumus* a = CariAnggotaRumus(i.lembar.kodeLembar);
    const std::string_view judul = bangun || !a ? std::string_view(i.lembar.judul) : a->judulGanti;
    return {&i.lembar, judul, i.nomor};
}

std::optional<DaftarRumus::Tampilan> DaftarRumus::tampil(std::string_view kunciTab) {
    if (kini_ < item_.size() && item_[kini_].kunci == kunciTab) return tampilan(item_[kini_], kiniBaru_);
    for (size_t i = 0; i < item_.size(); ++i)
        if (item_[i].kunci == kunciTab) {
            kini_ = i;
            kiniBaru_ = false;
            return tampilan(item_[i], false);
        }
    return std::nullopt;
}

void DaftarRumus::pindah(std::string_view dari, std::string_view ke) {
    const auto di = [](std::string_view kunci) { return [kunci](const Item& i) { return i.kunci == kunci; }; };
    if (dari == ke || std::none_of(item_.begin(), item_.end(), di(dari))) return;
    std::erase_if(item_, di(ke));
    for (Item& i : item_)
        if (i.kunci == dari) i.kunci = std::string(ke);
    kini_ = item_.size();
}

std::optional<DaftarRumus::Tampilan> DaftarRumus::kini() const {
    if (kini_ >= item_.size()) return std::nullopt;
    return tampilan(item_[kini_], kiniBaru_);
}

}  // namespace falak
