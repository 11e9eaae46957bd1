// How a worked sheet is laid out when it leaves the program, for a spreadsheet or a printed
// page: the cells to empty, the cells to show as one and the lines of the book's table, from
// the tables ClearTxtMargen, MergenExcel and Lines (one column per kind of sheet, one range a
// row), and a name for it among the sheets of a workbook.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Sheet.h"

namespace falak {

class ClsConnection;

// The suffix of the layout columns of a sheet, from its key: "IjSN_1" is SN, a lunar eclipse
// "HsSN_2" SNGB, a solar eclipse "KfSN_3" SNGM, and every eclipse table "TdlKfSN_3" TdlGM.
// Empty for a key of no module.
std::string AkhiranTata(std::string_view kunci);

// The sheet as it leaves the program: first the texts of the clear ranges are emptied, then
// the merge ranges are merged, then the lines are drawn ("RANGE|SIDES", SIDES the sum of the
// sides 1 top, 2 bottom, 4 left, 8 right, plus 16 for the outer edges only). An empty or
// unreadable cell of a table is skipped; a table without the sheet's column changes nothing.
void TerapkanTata(Sheet& lembar, const ClsConnection& koneksi, std::string_view akhiran);

// A worksheet name for a tab's caption: at most 31 characters, without the characters a
// workbook refuses ([ ] : * ? / \) and without an apostrophe at either end; kept apart from
// the names already used (compared without regard to case) by "-1", "-2" ... behind it. None
// when even "-200" is taken.
std::optional<std::string> NamaLembarUnik(std::string_view judul, const std::vector<std::string>& dipakai);

}  // namespace falak
