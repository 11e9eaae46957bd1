// The worked table of a run: a grid of cells with merges, laid out the way the book lays it
// out. One model feeds the window, the command line, the spreadsheet and the printed page; no
// reckoning code ever touches a widget.
//
// A cell holds its text and what every reader needs to show it alike: its kind (a number, a
// value, a label in Latin or in Arabic script), its alignment, its borders and, on the sheets
// of the precise books, a tip with the formula that gave it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace falak {

// What a cell holds. A number is a plain field of a value or a decimal; a value is a whole
// value text or a worded result; a label names a row or a column of the book's frame.
enum class JenisSel : uint8_t { Label, LabelArab, Angka, Nilai };

// Where the text stands in its cell; Bawaan leaves it to the reader (numbers and the labels of
// a right-to-left sheet to the right, the rest to the left).
enum class Rata : uint8_t { Bawaan, Kiri, Tengah, Kanan };

// Sides of a cell that carry a line.
enum Sisi : uint8_t { SisiAtas = 1, SisiBawah = 2, SisiKiri = 4, SisiKanan = 8, SisiSemua = 15 };

struct Sel {
    std::string teks;
    JenisSel jenis = JenisSel::Label;
    Rata rata = Rata::Bawaan;
    uint8_t garis = 0;  // Sisi flags
};

// Cells [kolom1 .. kolom2] of rows [baris .. baris + tinggi - 1] shown as one; the text is that
// of the top left cell.
struct Gabungan {
    int baris = 0;
    int kolom1 = 0;
    int kolom2 = 0;
    int tinggi = 1;
    bool memuat(int b, int k) const { return b >= baris && b < baris + tinggi && k >= kolom1 && k <= kolom2; }
};

// A cell's tip: the name of the step that gave it and its formula with the run's numbers.
struct Tip {
    int baris = 0;
    int kolom = 0;
    std::string judul;
    std::string pesan;
};

// A block of cells, inclusive, as a spreadsheet range names it ("B3:H7").
struct Rentang {
    int baris1 = 0, kolom1 = 0, baris2 = 0, kolom2 = 0;
};

class Sheet {
public:
    // Sets the size and clears every cell, merge and tip.
    void atur(int baris, int kolom);
    int jumlahBaris() const { return baris_; }
    int jumlahKolom() const { return kolom_; }
    bool ada(int baris, int kolom) const { return baris >= 0 && baris < baris_ && kolom >= 0 && kolom < kolom_; }

    // Cell text; a cell outside the grid reads empty and is not written.
    const std::string& sel(int baris, int kolom) const;
    // The whole cell; an empty label outside the grid.
    const Sel& selLengkap(int baris, int kolom) const;
    bool tulis(int baris, int kolom, std::string teks, JenisSel jenis = JenisSel::Label);
    void rata(int baris, int kolom, Rata r);

    // Merges cells of one row, or a block; a merge that overlaps an earlier one replaces it.
    void gabung(int baris, int kolom1, int kolom2);
    void gabung(const Rentang& r);
    const std::vector<Gabungan>& gabungan() const { return gabungan_; }
    // The merge that covers a cell, or none.
    const Gabungan* gabunganDi(int baris, int kolom) const;

    // Lines around every cell of a block on the given sides; with luar only on the block's outer
    // edges.
    void garis(const Rentang& r, uint8_t sisi, bool luar);
    // Empties the texts of a block, keeping everything else.
    void kosongkan(const Rentang& r);

    void tip(int baris, int kolom, std::string judul, std::string pesan);
    const std::vector<Tip>& tips() const { return tips_; }

    // True when no cell of the row holds a text.
    bool barisKosong(int baris) const;

    // The sheet is read from right to left, as the books' tables are: its labels stand in the
    // highest columns and the fields of a value run leftwards. Column 0 is at the left edge
    // all the same; a view does not mirror the grid.
    bool dibacaDariKanan = true;
    bool arab = false;        // labels stand in Arabic script
    std::string font;         // display font family
    int lebarKolom = 0;       // size hints of the frame, in the units the frame was drawn in
    int tinggiBaris = 0;
    int lebarLabel = 0;

private:
    Sel* selDi(int baris, int kolom);

    int baris_ = 0;
    int kolom_ = 0;
    std::vector<Sel> sel_;
    std::vector<Gabungan> gabungan_;
    std::vector<Tip> tips_;
};

// "B3:H7" (or "C5") as a block; none for a text that is not a range. Columns run A..Z, then
// AA.. as a spreadsheet names them.
bool BacaRentang(std::string_view teks, Rentang& r);
// The spreadsheet's name of a column: 0 is "A", 26 is "AA".
std::string NamaKolom(int kolom);

}  // namespace falak
