// The worked table of a run: a grid of text cells with merges, laid out the way the book lays
// it out. One model feeds the window, the command line and the exports; no reckoning code
// ever touches a widget.
#pragma once

#include <string>
#include <vector>

namespace falak {

// Cells [kolom1 .. kolom2] of one row shown as one.
struct Gabungan {
    int baris = 0;
    int kolom1 = 0;
    int kolom2 = 0;
};

class Sheet {
public:
    // Sets the size and clears every cell and merge.
    void atur(int baris, int kolom);
    int jumlahBaris() const { return baris_; }
    int jumlahKolom() const { return kolom_; }
    bool ada(int baris, int kolom) const { return baris >= 0 && baris < baris_ && kolom >= 0 && kolom < kolom_; }

    // Cell text; a cell outside the grid reads empty and is not written.
    const std::string& sel(int baris, int kolom) const;
    bool tulis(int baris, int kolom, std::string teks);
    void gabung(int baris, int kolom1, int kolom2);
    const std::vector<Gabungan>& gabungan() const { return gabungan_; }

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
    int baris_ = 0;
    int kolom_ = 0;
    std::vector<std::string> sel_;
    std::vector<Gabungan> gabungan_;
};

}  // namespace falak
