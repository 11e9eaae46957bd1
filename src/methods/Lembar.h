// Pieces of the worked sheets that the taqribi treatises share: the frame from the label
// table, the Arabic heading, the mansion's name spread over three cells.
#pragma once

#include <string>
#include <string_view>

#include "core/FlexGrid.h"

namespace falak {

class Tabel;

// Writes every frame cell of treatise `kode` from the label table: columns Nama<kode>,
// Baris<kode>, Kolom1<kode>, Kolom2<kode>, row by row, up to the first row without a row
// number.
void IsiBingkai(ClsFlexGrid& grid, Tabel& names, std::string_view kode);

// The Hijri month's name in Arabic script, by its number 1 to 12 (13 is month 1 again).
std::string NamaBulanArab(int bulan);

// The heading of an Arabic sheet: the reckoning of the month that begins, its year, the place.
std::string JudulLembarArab(std::string_view namaTempat, int tahun, int bulanBaru);

// The mansion's name in the cell at `kolom`, in front of what stands there, and repeated in
// the two cells to its left so that it spans all three.
void TulisNamaManzil(ClsFlexGrid& grid, std::string_view nama, int baris, int kolom);

}  // namespace falak
