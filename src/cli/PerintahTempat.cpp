#include "cli/PerintahTempat.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <ostream>

#include "core/Daerah.h"

namespace falak::cli {

const char* const kBantuanTempat =
    "  falak tempat daftar             daftar tempat dan berkas yang dipakai\n"
    "  falak tempat tambah NAMA --lintang \"7 39 LS\" --bujur \"112 56 BT\" --zona 7 [--tinggi M] [--arab TEKS]\n"
    "  falak tempat ubah NAMA [--nama BARU] [--lintang ..] [--bujur ..] [--zona ..] [--tinggi ..] [--arab ..]\n"
    "  falak tempat hapus NAMA\n";

namespace {

constexpr const char* kAwalan = "falak tempat: ";

// A command written wrongly: told with the usage, exit 2.
struct SalahTulis {
    std::string pesan;
};

using Opsi = std::map<std::string, std::string, std::less<>>;

// The options after the name: "--key value" pairs from the allowed set.
Opsi bacaOpsi(const std::vector<std::string>& argumen, size_t dari, std::initializer_list<std::string_view> boleh) {
    Opsi opsi;
    for (size_t i = dari; i < argumen.size(); i += 2) {
        const std::string& kunci = argumen[i];
        if (std::find(boleh.begin(), boleh.end(), kunci) == boleh.end())
            throw SalahTulis{"pilihan \"" + kunci + "\" tidak dikenal"};
        if (i + 1 >= argumen.size()) throw SalahTulis{"pilihan " + kunci + " belum diberi isi"};
        if (!opsi.emplace(kunci, argumen[i + 1]).second) throw SalahTulis{"pilihan " + kunci + " ditulis dua kali"};
    }
    return opsi;
}

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
std::optional<std::string> terapkan(const Opsi& opsi, IsianTempat& isian) {
    for (const auto& [kunci, isi] : opsi) {
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

}  // namespace

int perintahTempat(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                   std::ostream& err) {
    try {
        if (argumen.empty()) throw SalahTulis{"perintahnya apa? daftar, tambah, ubah atau hapus"};
        const std::string& perintah = argumen[0];
        if (perintah != "daftar" && perintah != "tambah" && perintah != "ubah" && perintah != "hapus")
            throw SalahTulis{"perintah \"" + perintah + "\" tidak dikenal"};
        if (perintah == "daftar" && argumen.size() > 1) throw SalahTulis{"daftar tidak memakai isian"};
        if (perintah != "daftar" && (argumen.size() < 2 || argumen[1].starts_with("--")))
            throw SalahTulis{"nama tempatnya belum ditulis"};
        if (perintah == "hapus" && argumen.size() > 2) throw SalahTulis{"hapus hanya memakai nama tempat"};
        const Opsi opsi = perintah == "tambah" ? bacaOpsi(argumen, 2, {"--lintang", "--bujur", "--zona", "--tinggi", "--arab"})
                          : perintah == "ubah"
                              ? bacaOpsi(argumen, 2, {"--nama", "--lintang", "--bujur", "--zona", "--tinggi", "--arab"})
                              : Opsi{};
        if (perintah == "tambah")
            for (const char* wajib : {"--lintang", "--bujur", "--zona"})
                if (!opsi.contains(wajib)) throw SalahTulis{std::string("pilihan ") + wajib + " wajib diisi"};
        if (perintah == "ubah" && opsi.empty()) throw SalahTulis{"tidak ada yang diubah"};

        Tabel tabel("Daerah");
        const std::string masalah = BukaDaerah(tabel, lokasi);
        if (!masalah.empty()) err << kAwalan << "daftar tempat " << BerkasDaerah(lokasi).string() << ": " << masalah << '\n';
        RegisterDaerah reg(tabel, BerkasDaerah(lokasi));

        if (perintah == "daftar") {
            daftar(reg, tabel.jumlahBaris(), out);
            return 0;
        }

        const std::string& nama = argumen[1];
        std::string tolak;
        if (perintah == "hapus") {
            tolak = reg.hapus(nama);
        } else {
            const auto ada = reg.cari(nama);
            IsianTempat isian;
            if (perintah == "tambah") isian.nama = nama;
            else if (ada) {
                isian = reg.isian(*ada);
                // A display name that only repeated the name follows the name when it changes.
                if (isian.namaTampil == isian.nama) isian.namaTampil.clear();
            }
            if (auto s = terapkan(opsi, isian)) tolak = *s;
            else tolak = perintah == "tambah" ? reg.tambah(isian) : reg.ubah(nama, isian);
        }
        if (tolak.empty()) tolak = reg.simpan();
        if (!tolak.empty()) {
            err << kAwalan << tolak << '\n';
            return 1;
        }
        const std::string kata = perintah == "tambah" ? "ditambahkan ke" : perintah == "ubah" ? "diubah di" : "dihapus dari";
        out << "Tempat \"" << nama << "\" sudah " << kata << " " << reg.berkas().string() << ".\n";
        return 0;
    } catch (const SalahTulis& s) {
        err << kAwalan << s.pesan << "\n\nPemakaian:\n" << kBantuanTempat;
        return 2;
    }
}

}  // namespace falak::cli
