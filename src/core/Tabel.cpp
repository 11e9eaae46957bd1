#include "core/Tabel.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "core/Angka.h"
#include "core/Berkas.h"
#include "core/Teks.h"

namespace falak {

namespace {

// The line (from 1) on which position pos of the text lies.
size_t barisDi(std::string_view isi, size_t pos) {
    size_t baris = 1;
    for (size_t i = 0; i < pos && i < isi.size(); ++i)
        if (isi[i] == '\n') ++baris;
    return baris;
}

bool perluPetik(std::string_view s) { return s.find_first_of(",\"\r\n") != std::string_view::npos; }

void tulisIsian(std::string& out, std::string_view s) {
    if (!perluPetik(s)) {
        out.append(s);
        return;
    }
    out.push_back('"');
    for (const char c : s) {
        if (c == '"') out.push_back('"');
        out.push_back(c);
    }
    out.push_back('"');
}

// Reads the CSV records one by one. Each field is handed to the sink as it is read, so that
// the cells of a large table go straight into their store.
class PembacaCsv {
public:
    explicit PembacaCsv(std::string_view isi) : s_(isi) {}

    bool habis() const { return i_ >= s_.size(); }
    size_t baris() const { return baris_; }

    // Reads one record, giving each field to tambah(field). Returns the number of fields, 0
    // for a blank line; an error text in galat for a quote that is never closed or is followed
    // by something other than a separator.
    template <typename Tambah>
    size_t rekaman(Tambah&& tambah, std::string& galat) {
        size_t n = 0;
        if (akhirBaris()) {
            lewatiAkhirBaris();
            return 0;
        }
        for (;;) {
            if (i_ < s_.size() && s_[i_] == '"') {
                const size_t mulai = baris_;
                ++i_;
                buf_.clear();
                for (;;) {
                    if (i_ >= s_.size()) {
                        galat = "tanda petik yang dibuka di baris " + std::to_string(mulai) + " tidak ditutup";
                        return n;
                    }
                    const char c = s_[i_++];
                    if (c == '"') {
                        if (i_ < s_.size() && s_[i_] == '"') {
                            buf_.push_back('"');
                            ++i_;
                            continue;
                        }
                        break;
                    }
                    if (c == '\n') ++baris_;
                    buf_.push_back(c);
                }
                tambah(std::string_view(buf_));
                if (!akhirBaris() && s_[i_] != ',') {
                    galat = "sesudah tanda petik penutup mestinya koma atau akhir baris";
                    return n;
                }
            } else {
                const size_t awal = i_;
                while (i_ < s_.size() && s_[i_] != ',' && s_[i_] != '\n' &&
                       !(s_[i_] == '\r' && (i_ + 1 == s_.size() || s_[i_ + 1] == '\n')))
                    ++i_;
                tambah(s_.substr(awal, i_ - awal));
            }
            ++n;
            if (i_ < s_.size() && s_[i_] == ',') {
                ++i_;
                continue;
            }
            lewatiAkhirBaris();
            return n;
        }
    }

private:
    bool akhirBaris() const {
        return i_ >= s_.size() || s_[i_] == '\n' || (s_[i_] == '\r' && (i_ + 1 == s_.size() || s_[i_ + 1] == '\n'));
    }
    void lewatiAkhirBaris() {
        if (i_ < s_.size() && s_[i_] == '\r') ++i_;
        if (i_ < s_.size() && s_[i_] == '\n') {
            ++i_;
            ++baris_;
        }
    }

    std::string_view s_;
    size_t i_ = 0;
    size_t baris_ = 1;
    std::string buf_;
};

}  // namespace

Tabel::Tabel(Tabel&& lain) noexcept { *this = std::move(lain); }

Tabel& Tabel::operator=(Tabel&& lain) noexcept {
    if (this == &lain) return *this;
    nama_ = std::move(lain.nama_);
    terbuka_ = lain.terbuka_;
    kolom_ = std::move(lain.kolom_);
    posisiKolom_ = std::move(lain.posisiKolom_);
    teks_ = std::move(lain.teks_);
    sel_ = std::move(lain.sel_);
    baris_ = lain.baris_;
    kursor_ = lain.kursor_;
    ++versiKolom_;
    // A short text moves its characters with it: the indexes' views would point into the old one.
    indeks_.clear();
    indeks_.resize(kolom_.size());
    indeksBulat_.clear();
    indeksBulat_.resize(kolom_.size());
    lain.tutup();
    return *this;
}

Tabel::~Tabel() = default;

void Tabel::tutup() {
    terbuka_ = false;
    kolom_.clear();
    posisiKolom_.clear();
    teks_.clear();
    sel_.clear();
    baris_ = 0;
    kursor_ = 0;
    indeks_.clear();
    indeksBulat_.clear();
    ++versiKolom_;
}

void Tabel::bukaKosong(std::vector<std::string> kolom) {
    tutup();
    kolom_ = std::move(kolom);
    for (size_t k = 0; k < kolom_.size(); ++k) posisiKolom_.emplace(kolom_[k], k);
    indeks_.resize(kolom_.size());
    indeksBulat_.resize(kolom_.size());
    ++versiKolom_;
    terbuka_ = true;
}

std::string Tabel::bacaCsv(std::string_view isi, Longgar* longgar) {
    tutup();
    if (isi.size() >= 3 && isi.substr(0, 3) == "\xEF\xBB\xBF") isi.remove_prefix(3);
    if (isi.size() >= std::numeric_limits<uint32_t>::max()) return "berkas kebesaran";
    if (const size_t salah = SalahUtf8(isi); salah != std::string_view::npos && !longgar)
        return "baris " + std::to_string(barisDi(isi, salah)) + ": bukan teks UTF-8 yang sah";

    PembacaCsv csv(isi);
    std::string galat;
    std::vector<std::string> kolom;
    while (!csv.habis() && kolom.empty()) {
        csv.rekaman([&](std::string_view f) { kolom.emplace_back(f); }, galat);
        if (!galat.empty()) return "baris " + std::to_string(csv.baris()) + ": " + galat;
    }
    if (kolom.empty()) return "berkas kosong, tidak ada baris judul";
    for (size_t k = 0; k < kolom.size(); ++k) {
        if (SalahUtf8(kolom[k]) != std::string_view::npos) return "baris judul: bukan teks UTF-8 yang sah";
        if (kolom[k].empty()) return "baris judul: nama kolom ke-" + std::to_string(k + 1) + " kosong";
        for (size_t j = 0; j < k; ++j)
            if (kolom[j] == kolom[k]) return "baris judul: kolom \"" + kolom[k] + "\" ada dua kali";
    }

    std::string teks;
    std::vector<Sel> sel;
    teks.reserve(isi.size());
    sel.reserve(isi.size() / 4);
    size_t baris = 0;
    while (!csv.habis()) {
        const size_t nomor = csv.baris();
        const size_t awalSel = sel.size(), awalTeks = teks.size();
        bool utf8 = true;
        const size_t n = csv.rekaman(
            [&](std::string_view f) {
                sel.push_back({static_cast<uint32_t>(teks.size()), static_cast<uint32_t>(f.size())});
                teks.append(f);
                utf8 = utf8 && (!longgar || SalahUtf8(f) == std::string_view::npos);
            },
            galat);
        if (!galat.empty()) return "baris " + std::to_string(nomor) + ": " + galat;
        if (n == 0) continue;
        std::string salah;
        if (!utf8) salah = "bukan teks UTF-8 yang sah";
        else if (n != kolom.size())
            salah = "ada " + std::to_string(n) + " isian, mestinya " + std::to_string(kolom.size());
        if (salah.empty()) {
            ++baris;
            if (longgar) longgar->barisBerkas.push_back(nomor);
            continue;
        }
        if (!longgar) return "baris " + std::to_string(nomor) + ": " + salah;
        longgar->dilewati.push_back("baris " + std::to_string(nomor) + ": " + salah);
        sel.resize(awalSel);
        teks.resize(awalTeks);
    }

    bukaKosong(std::move(kolom));
    teks_ = std::move(teks);
    sel_ = std::move(sel);
    baris_ = baris;
    return {};
}

std::string Tabel::buka(const std::filesystem::path& berkas, Longgar* longgar) {
    tutup();
    std::string isi;
    if (std::string alasan = BacaBerkas(berkas, isi); !alasan.empty()) return alasan;
    return bacaCsv(isi, longgar);
}

std::string Tabel::keCsv() const {
    std::string out;
    out.reserve(teks_.size() + sel_.size() + 64);
    for (size_t k = 0; k < kolom_.size(); ++k) {
        if (k) out.push_back(',');
        tulisIsian(out, kolom_[k]);
    }
    out.push_back('\n');
    for (size_t b = 0; b < baris_; ++b) {
        for (size_t k = 0; k < kolom_.size(); ++k) {
            if (k) out.push_back(',');
            tulisIsian(out, sel(b, k));
        }
        out.push_back('\n');
    }
    return out;
}

int Tabel::indeksKolom(std::string_view nama) const {
    const auto it = posisiKolom_.find(nama);
    return it == posisiKolom_.end() ? -1 : static_cast<int>(it->second);
}

std::string_view Tabel::sel(size_t baris, size_t kolom) const {
    if (baris >= baris_ || kolom >= kolom_.size()) return {};
    const Sel& s = sel_[baris * kolom_.size() + kolom];
    return std::string_view(teks_).substr(s.awal, s.panjang);
}

const Tabel::Indeks& Tabel::indeks(size_t kolom) {
    auto& slot = indeks_[kolom];
    if (!slot) {
        slot = std::make_unique<Indeks>();
        slot->reserve(baris_);
        // emplace keeps the first row of a repeated key: the forward search's first match.
        for (size_t b = 0; b < baris_; ++b) slot->emplace(sel(b, kolom), static_cast<uint32_t>(b));
    }
    return *slot;
}

const Tabel::IndeksBulat& Tabel::indeksBulat(size_t kolom) {
    auto& slot = indeksBulat_[kolom];
    if (slot) return *slot;
    slot = std::make_unique<IndeksBulat>();
    // Only a cell printed exactly as the search prints its key can match it ("05" is not 5).
    std::vector<std::pair<int64_t, uint32_t>> kunci;
    for (size_t b = 0; b < baris_; ++b) {
        const std::string_view s = sel(b, kolom);
        int64_t v = 0;
        const auto [akhir, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
        if (ec != std::errc() || akhir != s.data() + s.size()) continue;
        char buf[24];
        const auto cetak = std::to_chars(buf, buf + sizeof buf, v).ptr;
        if (std::string_view(buf, static_cast<size_t>(cetak - buf)) == s) kunci.emplace_back(v, static_cast<uint32_t>(b));
    }
    if (kunci.empty()) return *slot;
    const auto [kecil, besar] = std::ranges::minmax_element(kunci, {}, &std::pair<int64_t, uint32_t>::first);
    const uint64_t rentang = static_cast<uint64_t>(besar->first) - static_cast<uint64_t>(kecil->first);
    if (rentang > 4 * uint64_t{baris_} + 64) return *slot;
    slot->terkecil = kecil->first;
    slot->baris.assign(static_cast<size_t>(rentang) + 1, -1);
    for (const auto& [v, b] : kunci) {
        int32_t& r = slot->baris[static_cast<size_t>(static_cast<uint64_t>(v) - static_cast<uint64_t>(slot->terkecil))];
        if (r < 0) r = static_cast<int32_t>(b);  // the first row of a repeated key, as the forward search finds it
    }
    return *slot;
}

void Tabel::lupakanIndeks() {
    for (auto& i : indeks_) i.reset();
    for (auto& i : indeksBulat_) i.reset();
}

bool Tabel::cari(std::string_view kolom, std::string_view kunci) { return cari(indeksKolom(kolom), kunci); }

bool Tabel::cari(std::string_view kolom, int64_t kunci) { return cari(indeksKolom(kolom), kunci); }

bool Tabel::cari(int kolom, std::string_view kunci) {
    kursor_ = baris_;
    if (kolom < 0 || static_cast<size_t>(kolom) >= kolom_.size()) return false;
    const Indeks& idx = indeks(static_cast<size_t>(kolom));
    const auto it = idx.find(kunci);
    if (it == idx.end()) return false;
    kursor_ = it->second;
    return true;
}

bool Tabel::cari(int kolom, int64_t kunci) {
    if (kolom >= 0 && static_cast<size_t>(kolom) < kolom_.size()) {
        const IndeksBulat& idx = indeksBulat(static_cast<size_t>(kolom));
        if (!idx.baris.empty()) {
            kursor_ = baris_;
            const uint64_t i = static_cast<uint64_t>(kunci) - static_cast<uint64_t>(idx.terkecil);
            if (kunci < idx.terkecil || i >= idx.baris.size() || idx.baris[static_cast<size_t>(i)] < 0) return false;
            kursor_ = static_cast<size_t>(idx.baris[static_cast<size_t>(i)]);
            return true;
        }
    }
    char buf[24];
    const auto [akhir, ec] = std::to_chars(buf, buf + sizeof buf, kunci);
    (void)ec;
    return cari(kolom, std::string_view(buf, static_cast<size_t>(akhir - buf)));
}

std::optional<std::string_view> Tabel::baca(std::string_view kolom) const { return baca(indeksKolom(kolom)); }

std::optional<std::string_view> Tabel::baca(int kolom) const {
    if (eof() || kolom < 0 || static_cast<size_t>(kolom) >= kolom_.size()) return std::nullopt;
    return sel(kursor_, static_cast<size_t>(kolom));
}

Tabel::Sel Tabel::simpan(std::string_view isi) {
    const Sel s{static_cast<uint32_t>(teks_.size()), static_cast<uint32_t>(isi.size())};
    // A cell copied from this very table would be read from the store while it grows.
    const std::string kopi(isi);
    teks_.append(kopi);
    return s;
}

void Tabel::tambahBaris(const std::vector<std::string>& isi) {
    lupakanIndeks();
    for (size_t k = 0; k < kolom_.size(); ++k) sel_.push_back(simpan(k < isi.size() ? isi[k] : std::string_view()));
    ++baris_;
}

void Tabel::ubahSel(size_t baris, size_t kolom, std::string_view isi) {
    if (baris >= baris_ || kolom >= kolom_.size()) return;
    lupakanIndeks();
    // The old text stays in the store unused: the register is small and saved whole anyway.
    sel_[baris * kolom_.size() + kolom] = simpan(isi);
}

void Tabel::hapusBaris(size_t baris) {
    if (baris >= baris_) return;
    lupakanIndeks();
    const auto awal = sel_.begin() + static_cast<std::ptrdiff_t>(baris * kolom_.size());
    sel_.erase(awal, awal + static_cast<std::ptrdiff_t>(kolom_.size()));
    --baris_;
    if (kursor_ > baris_) kursor_ = baris_;
}

std::string BacaTeks(const Tabel& tabel, std::string_view kolom) {
    const auto v = tabel.baca(kolom);
    return v ? std::string(*v) : std::string();
}

int32_t BacaBulat(const Tabel& tabel, std::string_view kolom) { return BacaBulat(tabel, tabel.indeksKolom(kolom)); }

int32_t BacaBulat(const Tabel& tabel, int kolom) {
    const auto v = tabel.baca(kolom);
    return v ? BulatGenap32(ValAngka(*v)).value_or(0) : 0;
}

}  // namespace falak
