// ClsFlexGrid: the writers with which a module paints its worked table on a sheet of its run:
// the frame of named cells, then the numbers of its value rows field by field.
#pragma once

#include <initializer_list>
#include <string_view>

#include "core/Nilai.h"
#include "core/Sheet.h"

namespace falak {

class ClsFlexGrid {
public:
    // The field index that means "no further field".
    static constexpr int kTanpaMedan = 15;

    // The writers over a sheet; with none they write nothing.
    explicit ClsFlexGrid(Sheet* lembar = nullptr) : lembar_(lembar) {}
    void pilih(Sheet* lembar) { lembar_ = lembar; }
    Sheet* lembar() const { return lembar_; }

    // Sets the grid up for a sheet: size, cleared, with its size hints and font; a sheet with
    // the Arabic font reads from the right.
    void FlexSetting(int baris, int kolom, int lebarKolom, int tinggiBaris, int lebarLabel, bool fontArab);

    // One frame cell, merged from kolom1 to kolom2 when they differ. On an Arabic sheet a
    // leading "-" is moved to the end of the text, and the text is indented by `inden` blanks.
    void FlexNama(std::string_view teks, int baris, int kolom1, int kolom2, int inden = 0);

    // The fields of a value, from right to left: field i (an index of AmbilTingkat) goes to
    // column kolom - 2 (i - 1), printed as a plain whole number; index 15 ends the list.
    void FlexData(const Nilai& nilai, int baris, int kolom, std::initializer_list<int> medan);

    // A decimal cell of the treatises that reckon in 32-bit floats: the number as such a
    // float prints (at most 7 significant digits, shortest form).
    void FlexDataSH(float nilai, int baris, int kolom);

    // A text in one cell: a number when it is a whole number, else a label (in Arabic script
    // when it holds Arabic letters).
    void FlexTeks(std::string_view teks, int baris, int kolom);

private:
    Sheet* lembar_ = nullptr;
};

}  // namespace falak
