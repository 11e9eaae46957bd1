#include "export/TataLembar.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "core/Koneksi.h"
#include "run/Registri.h"

namespace falak {

namespace {

// Every range of one column of a layout table, in the order of its rows.
template <class F>
void tiapRentang(const Tabel& tabel, const std::string& kolom, F&& f) {
    const int i = tabel.indeksKolom(kolom);
    if (i < 0) return;
    for (size_t b = 0; b < tabel.jumlahBaris(); ++b) {
        const std::string_view sel = tabel.sel(b, static_cast<size_t>(i));
        if (!sel.empty()) f(sel);
    }
}

constexpr int kMaksNama = 31;
constexpr int kMaksNomor = 200;

// The first n characters of a UTF-8 text.
std::string_view awalHuruf(std::string_view s, size_t n) {
    size_t huruf = 0;
    for (size_t i = 0; i < s.size(); ++i)
        if ((s[i] & 0xC0) != 0x80 && huruf++ == n) return s.substr(0, i);
    return s;
}

std::string kecil(std::string_view s) {
    std::string k(s);
    std::transform(k.begin(), k.end(), k.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return k;
}

bool dipakai(const std::string& nama, const std::vector<std::string>& daftar) {
    const std::string k = kecil(nama);
    return std::any_of(daftar.begin(), daftar.end(), [&](const std::string& d) { return kecil(d) == k; });
}

}  // namespace

std::string AkhiranTata(std::string_view kunci) {
    const EntriModul* m = ModulDariKunci(kunci);
    if (!m) return {};
    if (kunci.starts_with("TdlKf")) return "TdlGM";
    const std::string kode(m->kode);
    switch (m->garapan) {
        case Garapan::Hs: return kode + "GB";
        case Garapan::Kf: return kode + "GM";
        case Garapan::Ij: break;
    }
    return kode;
}

void TerapkanTata(Sheet& lembar, const ClsConnection& koneksi, std::string_view akhiran) {
    if (akhiran.empty()) return;  // a sheet of no book (the calendar) is laid out by itself
    const std::string x(akhiran);
    // Khulashotu's clear column has always been spelled so.
    const std::string kolomBersih = x == "KW1" ? "ClearTxtKWI" : "ClearTxt" + x;
    Rentang r;
    tiapRentang(koneksi.ClearTxtMargen, kolomBersih, [&](std::string_view s) {
        if (BacaRentang(s, r)) lembar.kosongkan(r);
    });
    tiapRentang(koneksi.MergenExcel, "Mergn" + x, [&](std::string_view s) {
        if (BacaRentang(s, r)) lembar.gabung(r);
    });
    tiapRentang(koneksi.Lines, "Lines_" + x, [&](std::string_view s) {
        const size_t garis = s.find('|');
        if (garis == std::string_view::npos || !BacaRentang(s.substr(0, garis), r)) return;
        const std::string_view angka = s.substr(garis + 1);
        int sisi = 0;
        const auto [akhir, salah] = std::from_chars(angka.data(), angka.data() + angka.size(), sisi);
        if (salah != std::errc{} || akhir != angka.data() + angka.size() || sisi < 0 || sisi > 31) return;
        lembar.garis(r, static_cast<uint8_t>(sisi & SisiSemua), (sisi & 16) != 0);
    });
}

std::optional<std::string> NamaLembarUnik(std::string_view judul, const std::vector<std::string>& daftar) {
    std::string nama;
    for (char c : judul) nama += std::string_view("[]:*?/\\").find(c) == std::string_view::npos ? c : '-';
    while (!nama.empty() && (nama.front() == '\'' || nama.front() == ' ')) nama.erase(nama.begin());
    while (!nama.empty() && (nama.back() == '\'' || nama.back() == ' ')) nama.pop_back();
    if (nama.empty()) nama = "Lembar";
    const auto potong = [](std::string_view s, size_t maks) {
        std::string p(awalHuruf(s, maks));
        while (!p.empty() && (p.back() == '\'' || p.back() == ' ')) p.pop_back();
        return p;
    };
    nama = potong(nama, kMaksNama);
    if (!dipakai(nama, daftar)) return nama;
    for (int n = 1; n <= kMaksNomor; ++n) {
        const std::string nomor = "-" + std::to_string(n);
        const std::string calon = potong(nama, kMaksNama - nomor.size()) + nomor;
        if (!dipakai(calon, daftar)) return calon;
    }
    return std::nullopt;
}

}  // namespace falak
