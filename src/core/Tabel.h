// One printed table of the books, held in memory as its file gives it: the column names, then
// the rows in stored order, every cell a text.
//
// A treatise reads a table in one idiom: search forward from the first row on a named column
// for a text key; the first row that matches wins and becomes the current row, whose further
// columns the reader then takes; a key that is not there leaves the table at its end, and the
// reader keeps what it had. The current row (the cursor) belongs to the table and is shared by
// all its readers, so that a worked look-up can read on in the row that an earlier step found.
//
// Searches do not scan: each searched column gets, at its first search, an index from cell
// text to the first row that holds it; a column of whole-number keys close together (degrees,
// hours, days) gets for the whole-number search a plain array by key instead.
//
// The file format: UTF-8 CSV (a byte-order mark is skipped), a header of the column names,
// LF or CRLF line ends, quotes only around a field that holds a comma, a quote or a line break,
// a quote inside doubled. Blank lines are passed over.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace falak {

class Tabel {
public:
    // A closed table: no columns, no rows; every search finds nothing.
    Tabel() = default;
    explicit Tabel(std::string nama) : nama_(std::move(nama)) {}

    Tabel(Tabel&&) noexcept;
    Tabel& operator=(Tabel&&) noexcept;
    ~Tabel();

    const std::string& nama() const { return nama_; }
    bool terbuka() const { return terbuka_; }

    // A reading that keeps the good rows of a damaged file: a row with the wrong number of
    // cells or a cell that is not UTF-8 is left out and told in dilewati ("baris 12: ..."), and
    // barisBerkas gives the line of the file on which each kept row starts.
    struct Longgar {
        std::vector<std::string> dilewati;
        std::vector<size_t> barisBerkas;
    };

    // Replaces the content by the CSV text. Returns an empty text, or what is wrong with it
    // ("baris 12: ..." with the line of the file); the table is then closed. With longgar, the
    // bad rows are left out and told there instead.
    std::string bacaCsv(std::string_view isi, Longgar* longgar = nullptr);
    // The same from a file. Returns an empty text, or why the file could not be read.
    std::string buka(const std::filesystem::path& berkas, Longgar* longgar = nullptr);
    // An open table with these columns and no rows.
    void bukaKosong(std::vector<std::string> kolom);
    void tutup();
    // The content as CSV text, header first, LF line ends.
    std::string keCsv() const;

    const std::vector<std::string>& kolom() const { return kolom_; }
    // The position of a column, or -1 when the table has no such column.
    int indeksKolom(std::string_view nama) const;
    // Moves on whenever the columns may have changed (the table was opened anew or closed):
    // a position found before is then to be looked up again.
    uint64_t versiKolom() const { return versiKolom_; }
    size_t jumlahBaris() const { return baris_; }
    // A cell; an empty text outside the table.
    std::string_view sel(size_t baris, size_t kolom) const;

    // The search of the look-up idiom: the first row whose cell in the named column equals the
    // key becomes the current row. True when found; otherwise the table is at its end.
    bool cari(std::string_view kolom, std::string_view kunci);
    // The same with a whole-number key, printed as the books' keys are ("Cari = '360'").
    bool cari(std::string_view kolom, int64_t kunci);
    // The same on a column given by its position.
    bool cari(int kolom, std::string_view kunci);
    bool cari(int kolom, int64_t kunci);
    void moveFirst() { kursor_ = 0; }
    void moveNext() {
        if (kursor_ < baris_) ++kursor_;
    }
    // True when there is no current row: past the last row, or the table is empty or closed.
    bool eof() const { return kursor_ >= baris_; }
    size_t kursor() const { return kursor_; }

    // A field of the current row. No value at the end of the table or for a column that the
    // table lacks; an empty cell is an empty text. The text stays valid until the table changes.
    std::optional<std::string_view> baca(std::string_view kolom) const;
    std::optional<std::string_view> baca(int kolom) const;

    // Changes, for the one table the user writes. A row given with fewer cells than columns
    // is filled with empty cells. Indexes are rebuilt at the next search.
    void tambahBaris(const std::vector<std::string>& isi);
    void ubahSel(size_t baris, size_t kolom, std::string_view isi);
    void hapusBaris(size_t baris);

private:
    struct Sel {
        uint32_t awal = 0;
        uint32_t panjang = 0;
    };
    struct HashTeks {
        using is_transparent = void;
        size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
    };
    using Indeks = std::unordered_map<std::string_view, uint32_t>;
    // The rows of the whole-number keys: baris[k - terkecil] is the first row whose cell
    // prints as k, -1 where there is none. Empty when the keys are too far apart.
    struct IndeksBulat {
        int64_t terkecil = 0;
        std::vector<int32_t> baris;
    };

    const Indeks& indeks(size_t kolom);
    const IndeksBulat& indeksBulat(size_t kolom);
    void lupakanIndeks();
    Sel simpan(std::string_view isi);

    std::string nama_;
    bool terbuka_ = false;
    std::vector<std::string> kolom_;
    std::unordered_map<std::string, size_t, HashTeks, std::equal_to<>> posisiKolom_;
    std::string teks_;       // every cell's text, one after the other
    std::vector<Sel> sel_;   // rows x columns, row by row
    size_t baris_ = 0;
    size_t kursor_ = 0;
    uint64_t versiKolom_ = 0;
    std::vector<std::unique_ptr<Indeks>> indeks_;  // per column, made at its first search
    std::vector<std::unique_ptr<IndeksBulat>> indeksBulat_;  // the same for whole-number keys
};

// A column that a reader names once and reads by position: the name is looked up at the first
// read and again only when the table's columns may have changed since. The reader keeps it,
// so that the many look-ups of a run hash no names.
class KolomTabel {
public:
    constexpr KolomTabel(const char* nama = nullptr) : nama_(nama) {}  // NOLINT: named as written
    // The column's position in the table, or -1 when it has none (or no name is given).
    int di(const Tabel& tabel) const {
        if (tabel_ != &tabel || versi_ != tabel.versiKolom()) {
            tabel_ = &tabel;
            versi_ = tabel.versiKolom();
            posisi_ = nama_ ? tabel.indeksKolom(nama_) : -1;
        }
        return posisi_;
    }
    const char* nama() const { return nama_; }

private:
    const char* nama_;
    mutable const Tabel* tabel_ = nullptr;
    mutable uint64_t versi_ = 0;
    mutable int posisi_ = -1;
};

// A field of the current row as text: empty when there is none.
std::string BacaTeks(const Tabel& tabel, std::string_view kolom);
// A field of the current row as a whole number, read as the kernel reads table cells
// (ValAngka, rounded half to even); 0 when there is none.
int32_t BacaBulat(const Tabel& tabel, std::string_view kolom);
int32_t BacaBulat(const Tabel& tabel, int kolom);

}  // namespace falak
