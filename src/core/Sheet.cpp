#include "core/Sheet.h"

#include <algorithm>

namespace falak {

namespace {
const Sel kSelKosong;

bool tumpang(const Gabungan& a, const Gabungan& b) {
    return a.baris < b.baris + b.tinggi && b.baris < a.baris + a.tinggi && a.kolom1 <= b.kolom2 && b.kolom1 <= a.kolom2;
}
}  // namespace

void Sheet::atur(int baris, int kolom) {
    baris_ = std::max(baris, 0);
    kolom_ = std::max(kolom, 0);
    sel_.assign(static_cast<size_t>(baris_) * static_cast<size_t>(kolom_), Sel{});
    gabungan_.clear();
    tips_.clear();
}

Sel* Sheet::selDi(int baris, int kolom) {
    if (!ada(baris, kolom)) return nullptr;
    return &sel_[static_cast<size_t>(baris) * static_cast<size_t>(kolom_) + static_cast<size_t>(kolom)];
}

const Sel& Sheet::selLengkap(int baris, int kolom) const {
    if (!ada(baris, kolom)) return kSelKosong;
    return sel_[static_cast<size_t>(baris) * static_cast<size_t>(kolom_) + static_cast<size_t>(kolom)];
}

const std::string& Sheet::sel(int baris, int kolom) const { return selLengkap(baris, kolom).teks; }

bool Sheet::tulis(int baris, int kolom, std::string teks, JenisSel jenis) {
    Sel* s = selDi(baris, kolom);
    if (!s) return false;
    s->teks = std::move(teks);
    s->jenis = jenis;
    return true;
}

void Sheet::rata(int baris, int kolom, Rata r) {
    if (Sel* s = selDi(baris, kolom)) s->rata = r;
}

void Sheet::gabung(int baris, int kolom1, int kolom2) { gabung(Rentang{baris, kolom1, baris, kolom2}); }

void Sheet::gabung(const Rentang& r) {
    const int b1 = std::min(r.baris1, r.baris2), b2 = std::max(r.baris1, r.baris2);
    const int k1 = std::min(r.kolom1, r.kolom2), k2 = std::max(r.kolom1, r.kolom2);
    if (!ada(b1, k1) || !ada(b2, k2) || (b1 == b2 && k1 == k2)) return;
    const Gabungan baru{b1, k1, k2, b2 - b1 + 1};
    gabungan_.erase(std::remove_if(gabungan_.begin(), gabungan_.end(),
                                   [&](const Gabungan& g) { return tumpang(g, baru); }),
                    gabungan_.end());
    gabungan_.push_back(baru);
}

const Gabungan* Sheet::gabunganDi(int baris, int kolom) const {
    for (const Gabungan& g : gabungan_)
        if (g.memuat(baris, kolom)) return &g;
    return nullptr;
}

void Sheet::garis(const Rentang& r, uint8_t sisi, bool luar) {
    const int b1 = std::max(std::min(r.baris1, r.baris2), 0), b2 = std::min(std::max(r.baris1, r.baris2), baris_ - 1);
    const int k1 = std::max(std::min(r.kolom1, r.kolom2), 0), k2 = std::min(std::max(r.kolom1, r.kolom2), kolom_ - 1);
    for (int b = b1; b <= b2; ++b)
        for (int k = k1; k <= k2; ++k) {
            uint8_t s = sisi;
            if (luar) {
                if (b != b1) s &= static_cast<uint8_t>(~SisiAtas);
                if (b != b2) s &= static_cast<uint8_t>(~SisiBawah);
                if (k != k1) s &= static_cast<uint8_t>(~SisiKiri);
                if (k != k2) s &= static_cast<uint8_t>(~SisiKanan);
            }
            selDi(b, k)->garis |= s;
        }
}

void Sheet::kosongkan(const Rentang& r) {
    for (int b = std::min(r.baris1, r.baris2); b <= std::max(r.baris1, r.baris2); ++b)
        for (int k = std::min(r.kolom1, r.kolom2); k <= std::max(r.kolom1, r.kolom2); ++k)
            if (Sel* s = selDi(b, k)) s->teks.clear();
}

void Sheet::tip(int baris, int kolom, std::string judul, std::string pesan) {
    if (!ada(baris, kolom)) return;
    for (Tip& t : tips_)
        if (t.baris == baris && t.kolom == kolom) {
            t.judul = std::move(judul);
            t.pesan = std::move(pesan);
            return;
        }
    tips_.push_back({baris, kolom, std::move(judul), std::move(pesan)});
}

bool Sheet::barisKosong(int baris) const {
    for (int k = 0; k < kolom_; ++k)
        if (!sel(baris, k).empty()) return false;
    return true;
}

std::string NamaKolom(int kolom) {
    std::string nama;
    for (int n = kolom + 1; n > 0; n = (n - 1) / 26) nama.insert(nama.begin(), static_cast<char>('A' + (n - 1) % 26));
    return nama;
}

namespace {
// One cell address ("AB12") read from the front of s; false when it is none.
bool bacaAlamat(std::string_view& s, int& baris, int& kolom) {
    size_t i = 0;
    int k = 0;
    while (i < s.size() && s[i] >= 'A' && s[i] <= 'Z') k = k * 26 + (s[i++] - 'A' + 1);
    if (i == 0 || i > 3) return false;
    const size_t awalAngka = i;
    int b = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9' && b < 1000000) b = b * 10 + (s[i++] - '0');
    if (i == awalAngka || b == 0) return false;
    baris = b - 1;
    kolom = k - 1;
    s.remove_prefix(i);
    return true;
}
}  // namespace

bool BacaRentang(std::string_view teks, Rentang& r) {
    while (!teks.empty() && teks.front() == ' ') teks.remove_prefix(1);
    while (!teks.empty() && teks.back() == ' ') teks.remove_suffix(1);
    Rentang hasil;
    if (!bacaAlamat(teks, hasil.baris1, hasil.kolom1)) return false;
    hasil.baris2 = hasil.baris1;
    hasil.kolom2 = hasil.kolom1;
    if (!teks.empty()) {
        if (teks.front() != ':') return false;
        teks.remove_prefix(1);
        if (!bacaAlamat(teks, hasil.baris2, hasil.kolom2) || !teks.empty()) return false;
    }
    r = hasil;
    return true;
}

}  // namespace falak
