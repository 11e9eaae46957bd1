#include "cli/PerintahTempat.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <ostream>

#include "core/Daerah.h"

namespace falak::cli {

namespace {

// "7 39 LS", "7:39:LS" or "7°39' LS" into degrees, minutes and side; the checks of value are
// the register's.
std::optional<std::string> bacaSudut(std::string_view teks, std::string& derajat, std::string& menit,
                                     std::string& arah, bool lintang) {
    std::vector<std::string> bagian;
    std::string kini;
    for (size_t i = 0; i <= teks.size(); ++i) {
        const bool pemisah = i == teks.size() || teks[i] == ' ' || teks[i] == ':' || teks[i] == '\'' ||
                             teks.substr(i, 2) == "\xC2\xB0";
        if (!pemisah) {
            kini.push_back(teks[i]);
            continue;
        }
        if (!kini.empty()) bagian.push_back(std::move(kini));
        kini.clear();
        if (teks.substr(i, 2) == "\xC2\xB0") ++i;
    }
    if (bagian.size() != 3)
        return lintang ? "Tulis lintang seperti \"7 39 LS\": derajat, menit, lalu LU atau LS."
                       : "Tulis bujur seperti \"112 56 BT\": derajat, menit, lalu BT atau BB.";
    derajat = bagian[0];
    menit = bagian[1];
    arah = bagian[2];
    return std::nullopt;
}

// The options into a place's fields; only the options given change anything.
std::optional<std::string> terapkan(const Argumen& a, IsianTempat& isian) {
    for (const auto& [kunci, isi] : a.semua()) {
        if (kunci == "--nama") isian.nama = isi;
        else if (kunci == "--arab") isian.namaTampil = isi;
        else if (kunci == "--zona") isian.zona = isi;
        else if (kunci == "--tinggi") isian.tinggi = isi;
        else if (kunci == "--lintang") {
            if (auto s = bacaSudut(isi, isian.lintangDerajat, isian.lintangMenit, isian.arahLintang, true)) return s;
        } else if (kunci == "--bujur") {
            if (auto s = bacaSudut(isi, isian.bujurDerajat, isian.bujurMenit, isian.arahBujur, false)) return s;
        }
    }
    return std::nullopt;
}

// Width of a text on the screen, counted in characters rather than bytes.
size_t lebar(std::string_view s) {
    return static_cast<size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void daftar(const RegisterDaerah& reg, size_t jumlah, std::ostream& out) {
    out << "Berkas tempat: " << reg.berkas().string() << '\n';
    if (jumlah == 0) {
        out << "(belum ada tempat)\n";
        return;
    }
    std::vector<std::array<std::string, 6>> baris = {{"NAMA", "LINTANG", "BUJUR", "ZONA", "TINGGI", "NAMA ARAB"}};
    for (size_t b = 0; b < jumlah; ++b) {
        const IsianTempat i = reg.isian(b);
        baris.push_back({i.nama, i.lintangDerajat + " " + i.lintangMenit + " " + i.arahLintang,
                         i.bujurDerajat + " " + i.bujurMenit + " " + i.arahBujur, i.zona, i.tinggi, i.namaTampil});
    }
    std::array<size_t, 6> w{};
    for (const auto& r : baris)
        for (size_t k = 0; k < w.size(); ++k) w[k] = std::max(w[k], lebar(r[k]));
    for (const auto& r : baris) {
        std::string teks;
        for (size_t k = 0; k < w.size(); ++k) {
            teks += r[k];
            if (k + 1 < w.size()) teks.append(w[k] - lebar(r[k]) + 2, ' ');
        }
        while (!teks.empty() && teks.back() == ' ') teks.pop_back();
        out << teks << '\n';
    }
}

// A change to the register, made under its lock on the file as it is now; the refusal, or the
// confirmation naming the file. Returns the exit status.
int ubah(const Argumen& a, const Lingkungan& l, std::string_view kata,
         const std::function<std::string(RegisterDaerah&)>& perubahan) {
    Tabel tabel("Daerah");
    if (const std::string tolak = RegisterDaerah::Ubah(tabel, l.lokasi, perubahan); !tolak.empty())
        return Tolak(a, l, tolak);
    l.out << "Tempat \"" << a.posisi()[0] << "\" sudah " << kata << " " << BerkasDaerah(l.lokasi).string() << ".\n";
    return 0;
}

}  // namespace

int perintahTempatDaftar(const Argumen& a, const Lingkungan& l) {
    Tabel tabel("Daerah");
    // A problem with the file is told, and the list still shows what could be read.
    if (const std::string masalah = BukaDaerah(tabel, l.lokasi); !masalah.empty())
        l.err << "falak " << a.perintah().nama << ": daftar tempat " << BerkasDaerah(l.lokasi).string() << ": "
              << masalah << '\n';
    daftar(RegisterDaerah(tabel, BerkasDaerah(l.lokasi)), tabel.jumlahBaris(), l.out);
    return 0;
}

int perintahTempatTambah(const Argumen& a, const Lingkungan& l) {
    IsianTempat isian;
    isian.nama = a.posisi()[0];
    if (const auto salah = terapkan(a, isian)) return Tolak(a, l, *salah);
    return ubah(a, l, "ditambahkan ke", [&](RegisterDaerah& reg) { return reg.tambah(isian); });
}

int perintahTempatUbah(const Argumen& a, const Lingkungan& l) {
    if (a.semua().empty()) throw SalahPakai{"tidak ada yang diubah"};
    const std::string& nama = a.posisi()[0];
    return ubah(a, l, "diubah di", [&](RegisterDaerah& reg) {
        IsianTempat isian;
        if (const auto ada = reg.cari(nama)) {
            isian = reg.isian(*ada);
            // A display name that only repeated the name follows the name when it changes.
            if (isian.namaTampil == isian.nama) isian.namaTampil.clear();
        }
        if (const auto salah = terapkan(a, isian)) return *salah;
        return reg.ubah(nama, isian);
    });
}

int perintahTempatHapus(const Argumen& a, const Lingkungan& l) {
    return ubah(a, l, "dihapus dari", [&](RegisterDaerah& reg) { return reg.hapus(a.posisi()[0]); });
}

}  // namespace falak::cli
