#include "cli/Kalkulator.h"

#include <algorithm>
#include <functional>
#include <istream>
#include <map>
#include <ostream>

#include "core/FungsHisab.h"

namespace falak::cli {

namespace {

// A malformed line, told in the users' own words.
struct Cacat {
    std::string pesan;
};

std::string_view rapikan(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

// A field of a whole number, as the value rows write them: digits with a sign in front.
bool AdalahBulat(std::string_view s) {
    if (!s.empty() && (s.front() == '-' || s.front() == '+')) s.remove_prefix(1);
    return !s.empty() && s.find_first_not_of("0123456789") == std::string_view::npos;
}

// A piece of the user's line for a message: in quotes, cut short when it is long, so that a
// runaway line does not flood the terminal.
std::string kutip(std::string_view s) {
    constexpr size_t kPanjang = 40;
    if (s.size() <= kPanjang) return "\"" + std::string(s) + "\"";
    size_t n = kPanjang;
    while (n > 0 && (static_cast<unsigned char>(s[n]) & 0xC0) == 0x80) --n;  // not inside a letter
    return "\"" + std::string(s.substr(0, n)) + "…\"";
}

std::vector<std::string_view> pecah(std::string_view baris) {
    std::vector<std::string_view> isian;
    size_t awal = 0;
    while (true) {
        const size_t titikKoma = baris.find(';', awal);
        isian.push_back(baris.substr(awal, titikKoma == std::string_view::npos ? baris.npos : titikKoma - awal));
        if (titikKoma == std::string_view::npos) return isian;
        awal = titikKoma + 1;
    }
}

// The fields of one line, read as the operation asks for them.
class Isian {
public:
    explicit Isian(std::vector<std::string_view> isian) : isian_(std::move(isian)) {}

    size_t jumlah() const { return isian_.size(); }
    // A value: whole numbers between blanks, no more of them than an alamah value holds
    // (nine fields and the sign), so that a mistyped field is refused rather than read as 0;
    // or "Kosong", the operand that is not given.
    Nilai nilai(size_t i) const {
        if (rapikan(isian_[i]) == Kosong.teks()) return Kosong;
        size_t medan = 0;
        for (size_t awal = isian_[i].find_first_not_of(' '); awal != std::string_view::npos;) {
            const size_t akhir = std::min(isian_[i].find(' ', awal), isian_[i].size());
            if (!AdalahBulat(isian_[i].substr(awal, akhir - awal)))
                throw Cacat{"isian ke-" + std::to_string(i + 1) + " (" + kutip(isian_[i]) + ") bukan nilai"};
            ++medan;
            awal = isian_[i].find_first_not_of(' ', akhir);
        }
        if (medan > 10)
            throw Cacat{"isian ke-" + std::to_string(i + 1) + " (" + kutip(isian_[i]) + ") lebih dari sepuluh medan"};
        return Nilai(isian_[i]);
    }

    double angka(size_t i) const {
        const std::string_view s = rapikan(isian_[i]);
        if (!AdalahAngka(s))
            throw Cacat{"isian ke-" + std::to_string(i + 1) + " (" + kutip(isian_[i]) + ") bukan angka"};
        return ValAngka(s);
    }
    int bulat(size_t i) const {
        const auto v = BulatGenap32(angka(i));
        if (!v) throw Cacat{"isian ke-" + std::to_string(i + 1) + " terlalu besar"};
        return *v;
    }
    bool bendera(size_t i) const {
        const int v = bulat(i);
        if (v != 0 && v != 1) throw Cacat{"isian ke-" + std::to_string(i + 1) + " harus 0 atau 1"};
        return v == 1;
    }
    // A field that must hold a number, handed on as its text.
    std::string_view medan(size_t i) const {
        angka(i);
        return rapikan(isian_[i]);
    }

private:
    std::vector<std::string_view> isian_;
};

std::string tampil(const Hasil& h) { return h ? h->teks() : "ERROR"; }

struct Operasi {
    size_t paling_sedikit;  // fields, the operation's name included
    size_t paling_banyak;
    std::string bentuk;     // how the line is written, for the message
    std::function<std::string(const Isian&)> kerjakan;
};

// tambah and kurang: JENIS;TANDA;MODUS;V1;V2[;V3..;V6], ten fields at most with the name
template <typename F>
std::string jumlahkan(const Isian& x, F f) {
    Nilai v[6] = {x.nilai(4), x.nilai(5), Kosong, Kosong, Kosong, Kosong};
    for (size_t i = 6; i < x.jumlah(); ++i) v[i - 4] = x.nilai(i);
    return f(x.bulat(1), x.bulat(2), x.bulat(3), v[0], v[1], v[2], v[3], v[4], v[5]).teks();
}

const std::map<std::string, Operasi, std::less<>>& daftarOperasi() {
    static const std::map<std::string, Operasi, std::less<>> daftar = {
        {"tambah", {6, 10, "tambah;JENIS;TANDA;MODUS;V1;V2[;V3..;V6]",
                    [](const Isian& x) { return jumlahkan(x, TambahNilai); }}},
        {"kurang", {6, 10, "kurang;JENIS;TANDA;MODUS;V1;V2[;V3..;V6]",
                    [](const Isian& x) { return jumlahkan(x, KurangNilai); }}},
        {"kali", {6, 6, "kali;JENIS;TANDA;MODUS;A;B",
                  [](const Isian& x) {
                      return tampil(KaliNilai(x.bulat(1), x.bulat(2), x.bulat(3), x.nilai(4), x.nilai(5)));
                  }}},
        {"bagi", {6, 6, "bagi;JENIS;TANDA;MODUS;A;B",
                  [](const Isian& x) {
                      return tampil(BagiNilai(x.bulat(1), x.bulat(2), x.bulat(3), x.nilai(4), x.nilai(5)));
                  }}},
        {"dlorbu", {8, 8, "dlorbu;BURUJ;DAROJAH;DAQIQOH;TSANIYAH;TSALITSAH;SIGN;MODUS",
                    [](const Isian& x) {
                        return tampil(DlorbuSittin(x.medan(1), x.medan(2), x.medan(3), x.medan(4), x.medan(5),
                                                   x.bulat(6), x.bulat(7)));
                    }}},
        {"alamah", {12, 12, "alamah;MODUS;YEAR;MONTH;DAY;PASARAN;WEEKDAY;HOUR;MINUTE;SECOND;THIRD;SIGN",
                    [](const Isian& x) {
                        std::array<std::string_view, 9> medan;
                        for (size_t i = 0; i < medan.size(); ++i) medan[i] = x.medan(i + 2);
                        return tampil(AlamahTarkh(x.bulat(1), medan, x.bulat(11)));
                    }}},
        {"desimal", {3, 3, "desimal;JENIS;V",
                     [](const Isian& x) { return CetakAngka(NilaiDesimal(x.bulat(1), x.nilai(2))); }}},
        {"kenilai", {6, 6, "kenilai;JENIS;TANDA;MODUS;X;SIGN",
                     [](const Isian& x) {
                         return tampil(DesimalKeNilai(x.bulat(1), x.bulat(2), x.bulat(3),
                                                      static_cast<float>(x.angka(4)), x.bulat(5)));
                     }}},
        {"kebusur", {3, 3, "kebusur;X;LINGKARAN",
                     [](const Isian& x) { return tampil(DesimalKeBusur(x.angka(1), x.bendera(2))); }}},
        {"trig", {5, 5, "trig;F;MODUS;V;ANGKA",
                  [](const Isian& x) {
                      return tampil(TrigNilai(x.bulat(1), x.bulat(2), x.nilai(3), x.bendera(4)));
                  }}},
        {"deret", {13, 13, "deret;TANDA;MODUS;F;V1;OP1;V2;OP2;V3;OP3;V4;OP4;V5",
                   [](const Isian& x) {
                       return tampil(HitungDeret(x.bulat(1), x.bulat(2), x.bulat(3), x.nilai(4), x.bulat(5),
                                                 x.nilai(6), x.bulat(7), x.nilai(8), x.bulat(9), x.nilai(10),
                                                 x.bulat(11), x.nilai(12)));
                   }}},
        {"umum", {2, 2, "umum;V", [](const Isian& x) { return CAlamahToUmum(x.nilai(1)).teks(); }}},
        {"alamahdari", {3, 3, "alamahdari;V;BERTANGGAL",
                        [](const Isian& x) { return CUmumToAlamah(x.nilai(1), x.bendera(2)).teks(); }}},
    };
    return daftar;
}

}  // namespace

HasilBaris hitungBaris(std::string_view baris) {
    if (!baris.empty() && baris.back() == '\r') baris.remove_suffix(1);
    Isian isian(pecah(baris));
    const std::string_view nama = rapikan(pecah(baris).front());
    const auto& daftar = daftarOperasi();
    const auto it = daftar.find(nama);
    if (it == daftar.end()) return {true, "operasi " + kutip(nama) + " tidak dikenal"};
    const Operasi& op = it->second;
    if (isian.jumlah() < op.paling_sedikit || isian.jumlah() > op.paling_banyak)
        return {true, "jumlah isian salah (" + std::to_string(isian.jumlah()) + "); tulislah " + op.bentuk};
    try {
        return {false, op.kerjakan(isian)};
    } catch (const Cacat& c) {
        return {true, c.pesan + "; tulislah " + op.bentuk};
    }
}

int perintahNilai(const Argumen& a, const Lingkungan& l) {
    const bool batch = a.ada("--batch");
    const std::vector<std::string>& baris = a.posisi();
    if (batch && !baris.empty()) throw SalahPakai{"pakailah --batch tanpa operasi di baris perintah"};
    if (!batch && baris.empty()) throw SalahPakai{"belum ada operasi"};
    std::istream& in = l.in;
    std::ostream& out = l.out;
    std::ostream& err = l.err;
    bool adaCacat = false;
    size_t nomor = 0;
    auto kerjakan = [&](const std::string& b) {
        ++nomor;
        if (b.find_first_not_of(" \t\r") == std::string::npos) return;  // a blank line is no operation
        const HasilBaris h = hitungBaris(b);
        if (h.cacat) {
            adaCacat = true;
            err << "falak nilai: baris " << nomor << ": " << h.teks << '\n';
        } else {
            out << h.teks << '\n';
        }
    };
    if (batch) {
        std::string b;
        while (std::getline(in, b)) kerjakan(b);
    } else {
        for (const std::string& b : baris) kerjakan(b);
    }
    out.flush();
    return adaCacat ? 1 : 0;
}

}  // namespace falak::cli
