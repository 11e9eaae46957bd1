// wsExl: the work sheets as a spreadsheet file (.xlsx), written without any office program.
// One worksheet a work sheet, named by its tab's caption, with the grid's cells, merges, lines
// and formula tips and the sheet's page set-up; then a worksheet "Kesimpulan" with the
// conclusion of each, split at its ":" into a label and a value (none when no sheet has one).
//
// A right-to-left sheet is written as a right-to-left worksheet: its columns are mirrored, so
// that the book's row labels, at the grid's right, stand in column A at the worksheet's right.
// Every text is written as a text, never as a formula: "=1+1" in a cell stays those characters.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace falak {

class ClsConnection;
struct LembarKerja;

// Writes the workbook to the file, atomically: into a temporary file beside it, renamed over
// it only when the whole workbook is written, so that a failure leaves the former file (or
// none) and never half of one. denganLembar false leaves the grids out (the conclusions
// only). Empty text, or what went wrong in the user's words.
std::string EksporExcel(const std::vector<const LembarKerja*>& lembar, bool denganLembar,
                        const ClsConnection& koneksi, const std::filesystem::path& berkas);

}  // namespace falak
