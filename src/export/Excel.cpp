#include "export/Excel.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <tuple>

#ifdef _WIN32
#include <random>
#else
#include <unistd.h>
#endif

#include "core/Berkas.h"
#include "export/TataLembar.h"
#include "run/Workspace.h"

namespace falak {

namespace {

// Margins of a printed worksheet, in inches: left and right, top and bottom.
constexpr double kTepiSamping = 0.5;
constexpr double kTepiAtasBawah = 0.7;
constexpr uint8_t kKertasA4 = 9;
// Input messages hold at most 32 characters of title and 255 of text.
constexpr size_t kMaksJudulTip = 32;
constexpr size_t kMaksPesanTip = 255;

std::string awalHuruf(std::string_view s, size_t n) {
    size_t huruf = 0;
    for (size_t i = 0; i < s.size(); ++i)
        if ((s[i] & 0xC0) != 0x80 && huruf++ == n) return std::string(s.substr(0, i));
    return std::string(s);
}

size_t jumlahHuruf(std::string_view s) {
    return static_cast<size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// A number cell holds a plain decimal number; it goes out as a number so that the user can
// reckon with it. Anything else is a text.
bool bacaBilangan(std::string_view t, double& x) {
    if (t.empty() || t.front() == '+') return false;
    const auto [akhir, salah] = std::from_chars(t.data(), t.data() + t.size(), x);
    return salah == std::errc{} && akhir == t.data() + t.size();
}

// What a cell's look is made of; the workbook keeps one format for each that occurs.
struct Rupa {
    Rata rata = Rata::Kiri;
    uint8_t garis = 0;
    bool arab = false;
    bool tebal = false;
    std::string font;
    auto operator<=>(const Rupa&) const = default;
};

class BukuKerja {
public:
    explicit BukuKerja(const std::string& berkas) : buku_(workbook_new(berkas.c_str())) {}
    ~BukuKerja() {
        if (buku_) workbook_close(buku_);
    }
    bool ada() const { return buku_ != nullptr; }
    bool kosong() const { return nama_.empty(); }

    // A new worksheet named after the caption; none when no name can be found for it.
    lxw_worksheet* lembarBaru(std::string_view judul) {
        const auto nama = NamaLembarUnik(judul, nama_);
        if (!nama) return nullptr;
        nama_.push_back(*nama);
        return workbook_add_worksheet(buku_, nama->c_str());
    }

    lxw_format* format(const Rupa& r) {
        auto [it, baru] = format_.try_emplace(r, nullptr);
        if (!baru) return it->second;
        lxw_format* f = workbook_add_format(buku_);
        const uint8_t rata = r.rata == Rata::Kanan ? LXW_ALIGN_RIGHT : r.rata == Rata::Tengah ? LXW_ALIGN_CENTER : LXW_ALIGN_LEFT;
        format_set_align(f, rata);
        format_set_align(f, LXW_ALIGN_VERTICAL_CENTER);
        if (r.garis & SisiAtas) format_set_top(f, LXW_BORDER_THIN);
        if (r.garis & SisiBawah) format_set_bottom(f, LXW_BORDER_THIN);
        if (r.garis & SisiKiri) format_set_left(f, LXW_BORDER_THIN);
        if (r.garis & SisiKanan) format_set_right(f, LXW_BORDER_THIN);
        if (r.arab) format_set_reading_order(f, 2);
        if (r.tebal) format_set_bold(f);
        if (!r.font.empty()) format_set_font_name(f, r.font.c_str());
        it->second = f;
        return f;
    }

    // Writes and closes the workbook; false when it could not be written.
    bool tutup() {
        const lxw_error e = workbook_close(buku_);
        buku_ = nullptr;
        return e == LXW_NO_ERROR;
    }

private:
    lxw_workbook* buku_;
    std::vector<std::string> nama_;
    std::map<Rupa, lxw_format*> format_;
};

// The sides of a cell as the worksheet shows it: mirrored left for right when the columns are.
uint8_t sisiCermin(uint8_t g, bool cermin) {
    if (!cermin) return g;
    const uint8_t kiri = g & SisiKiri, kanan = g & SisiKanan;
    return static_cast<uint8_t>((g & ~(SisiKiri | SisiKanan)) | (kiri ? SisiKanan : 0) | (kanan ? SisiKiri : 0));
}

class PenulisLembar {
public:
    PenulisLembar(BukuKerja& buku, lxw_worksheet* ws, const Sheet& s)
        : buku_(buku), ws_(ws), s_(s), cermin_(s.dibacaDariKanan) {}

    void tulis() {
        if (cermin_) worksheet_right_to_left(ws_);
        for (int b = 0; b < s_.jumlahBaris(); ++b)
            for (int k = 0; k < s_.jumlahKolom(); ++k) tulisSel(b, k);
        for (const Gabungan& g : s_.gabungan()) tulisGabungan(g);
        for (const Tip& t : s_.tips()) tulisTip(t);
        aturKolom();
        aturHalaman();
    }

private:
    lxw_col_t kolom(int k) const { return static_cast<lxw_col_t>(cermin_ ? s_.jumlahKolom() - 1 - k : k); }

    Rupa rupa(const Sel& sel, bool digabung) const {
        Rupa r;
        r.garis = sisiCermin(sel.garis, cermin_);
        r.arab = sel.jenis == JenisSel::LabelArab;
        r.font = s_.font;
        r.rata = sel.rata;
        if (r.rata == Rata::Bawaan) {
            const bool label = sel.jenis == JenisSel::Label || sel.jenis == JenisSel::LabelArab;
            r.rata = digabung && label ? Rata::Tengah : (!label || s_.dibacaDariKanan) ? Rata::Kanan : Rata::Kiri;
        }
        return r;
    }

    void tulisSel(int b, int k) {
        const Sel& sel = s_.selLengkap(b, k);
        const Gabungan* g = s_.gabunganDi(b, k);
        if (g) return;  // written with its merge
        lxw_format* f = buku_.format(rupa(sel, false));
        const auto baris = static_cast<lxw_row_t>(b);
        double x = 0;
        if (sel.teks.empty()) {
            if (sel.garis) worksheet_write_blank(ws_, baris, kolom(k), f);
        } else if (sel.jenis == JenisSel::Angka && bacaBilangan(sel.teks, x)) {
            worksheet_write_number(ws_, baris, kolom(k), x, f);
        } else {
            worksheet_write_string(ws_, baris, kolom(k), sel.teks.c_str(), f);
        }
    }

    // A merge holds the text of its top left cell in the grid; every other cell of it keeps
    // its own lines.
    void tulisGabungan(const Gabungan& g) {
        const lxw_col_t k1 = std::min(kolom(g.kolom1), kolom(g.kolom2)), k2 = std::max(kolom(g.kolom1), kolom(g.kolom2));
        const auto b1 = static_cast<lxw_row_t>(g.baris), b2 = static_cast<lxw_row_t>(g.baris + g.tinggi - 1);
        const Sel& kepala = s_.selLengkap(g.baris, g.kolom1);
        const int kPertama = cermin_ ? g.kolom2 : g.kolom1;
        Sel pertama = kepala;
        pertama.garis = s_.selLengkap(g.baris, kPertama).garis;
        worksheet_merge_range(ws_, b1, k1, b2, k2, kepala.teks.c_str(), buku_.format(rupa(pertama, true)));
        for (int b = g.baris; b < g.baris + g.tinggi; ++b)
            for (int k = g.kolom1; k <= g.kolom2; ++k)
                if (b != g.baris || k != kPertama) {
                    Sel kosong = kepala;
                    kosong.garis = s_.selLengkap(b, k).garis;
                    worksheet_write_blank(ws_, static_cast<lxw_row_t>(b), kolom(k), buku_.format(rupa(kosong, true)));
                }
    }

    void tulisTip(const Tip& t) {
        std::string judul = awalHuruf(t.judul, kMaksJudulTip), pesan = awalHuruf(t.pesan, kMaksPesanTip);
        lxw_data_validation v{};
        v.validate = LXW_VALIDATION_TYPE_ANY;
        v.show_input = LXW_VALIDATION_ON;
        // An empty title or message is left out rather than written empty.
        v.input_title = judul.empty() ? nullptr : judul.data();
        v.input_message = pesan.empty() ? nullptr : pesan.data();
        worksheet_data_validation_cell(ws_, static_cast<lxw_row_t>(t.baris), kolom(t.kolom), &v);
    }

    // Each column as wide as its longest text outside the merges.
    void aturKolom() {
        for (int k = 0; k < s_.jumlahKolom(); ++k) {
            size_t lebar = 0;
            for (int b = 0; b < s_.jumlahBaris(); ++b)
                if (!s_.gabunganDi(b, k)) lebar = std::max(lebar, jumlahHuruf(s_.sel(b, k)));
            const double w = std::clamp(static_cast<double>(lebar) * 1.1 + 1.0, 2.5, 40.0);
            worksheet_set_column(ws_, kolom(k), kolom(k), w, nullptr);
        }
    }

    void aturHalaman() {
        worksheet_set_margins(ws_, kTepiSamping, kTepiSamping, kTepiAtasBawah, kTepiAtasBawah);
        worksheet_set_paper(ws_, kKertasA4);
        if (s_.jumlahKolom() > 20) worksheet_set_landscape(ws_);
        worksheet_fit_to_pages(ws_, 1, 1);
    }

    BukuKerja& buku_;
    lxw_worksheet* ws_;
    const Sheet& s_;
    bool cermin_;
};

// The conclusions, one after another with an empty row between: the heading in bold, then
// each line split at its first ":" into the label (column A) and the value (column B).
void tulisKesimpulan(BukuKerja& buku, lxw_worksheet* ws, const std::vector<const std::vector<std::string>*>& semua) {
    lxw_row_t baris = 0;
    Rupa biasa, tebal;
    tebal.tebal = true;
    for (const auto* kesimpulan : semua) {
        for (size_t i = 0; i < kesimpulan->size(); ++i, ++baris) {
            const std::string& t = (*kesimpulan)[i];
            const size_t titik = t.find(':');
            if (i == 0 || titik == std::string::npos) {
                worksheet_write_string(ws, baris, 0, t.c_str(), buku.format(i == 0 ? tebal : biasa));
                continue;
            }
            auto rapi = [](std::string s) {
                s.erase(0, s.find_first_not_of(' '));
                s.erase(s.find_last_not_of(' ') + 1);
                return s;
            };
            worksheet_write_string(ws, baris, 0, rapi(t.substr(0, titik)).c_str(), buku.format(biasa));
            worksheet_write_string(ws, baris, 1, rapi(t.substr(titik + 1)).c_str(), buku.format(biasa));
        }
        ++baris;
    }
    worksheet_set_column(ws, 0, 0, 30, nullptr);
    worksheet_set_column(ws, 1, 1, 60, nullptr);
    worksheet_set_margins(ws, kTepiSamping, kTepiSamping, kTepiAtasBawah, kTepiAtasBawah);
    worksheet_set_paper(ws, kKertasA4);
    worksheet_fit_to_pages(ws, 1, 0);
}

// A file of its own in the temporary folder, removed when done: the workbook is written there
// and then copied to its place in one atomic step.
class BerkasKerja {
public:
    BerkasKerja() {
        std::error_code ec;
        const std::filesystem::path folder = std::filesystem::temp_directory_path(ec);
#ifdef _WIN32
        std::random_device acak;
        for (int coba = 0; coba < 100 && jalur_.empty(); ++coba) {
            const auto calon = folder / ("falak-" + std::to_string(acak()) + ".xlsx");
            if (!std::filesystem::exists(calon, ec)) jalur_ = calon;
        }
#else
        std::string pola = (folder / "falak-XXXXXX").string();
        const int fd = ::mkstemp(pola.data());
        if (fd >= 0) {
            ::close(fd);
            jalur_ = pola;
        }
#endif
    }
    ~BerkasKerja() {
        std::error_code ec;
        if (!jalur_.empty()) std::filesystem::remove(jalur_, ec);
    }
    const std::filesystem::path& jalur() const { return jalur_; }

private:
    std::filesystem::path jalur_;
};

}  // namespace

std::string EksporExcel(const std::vector<const LembarKerja*>& lembar, bool denganLembar,
                        const ClsConnection& koneksi, const std::filesystem::path& berkas) {
    if (lembar.empty()) return "Tidak ada lembar hisab untuk dikirim.";
    const BerkasKerja kerja;
    if (kerja.jalur().empty()) return "Berkas sementara tidak dapat dibuat.";
    {
        BukuKerja buku(kerja.jalur().string());
        if (!buku.ada()) return "Berkas sementara tidak dapat dibuat.";
        std::vector<const std::vector<std::string>*> kesimpulan;
        for (const LembarKerja* l : lembar) {
            if (denganLembar) {
                Sheet s = l->lembar;
                TerapkanTata(s, koneksi, AkhiranTata(l->kunci));
                if (lxw_worksheet* ws = buku.lembarBaru(l->judul)) PenulisLembar(buku, ws, s).tulis();
            }
            // The sheets of one run (an eclipse and its table) share one conclusion; a sheet
            // without one (the calendar) adds none.
            if (!l->kesimpulan.empty() && (kesimpulan.empty() || *kesimpulan.back() != l->kesimpulan))
                kesimpulan.push_back(&l->kesimpulan);
        }
        if (!kesimpulan.empty())
            if (lxw_worksheet* ws = buku.lembarBaru("Kesimpulan")) tulisKesimpulan(buku, ws, kesimpulan);
        if (buku.kosong()) return "Tidak ada lembar hisab atau kesimpulan untuk dikirim.";
        if (!buku.tutup()) return "Buku kerja tidak dapat ditulis.";
    }
    std::string isi;
    std::string masalah = BacaBerkas(kerja.jalur(), isi);
    if (masalah.empty()) masalah = TulisAtomik(berkas, isi);
    return masalah.empty() ? std::string() : berkas.string() + ": " + masalah;
}

}  // namespace falak
