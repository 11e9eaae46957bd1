// The commands by which the work sheets leave the window: to a spreadsheet file or, for a
// formula sheet, a text document, chosen in a save dialog, and to the printer through the
// print preview.
#pragma once

#include <QString>

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace falak {
class ClsConnection;
struct LembarKerja;
}  // namespace falak

namespace falak::ui {

class FrmHisab;

// A save dialog (named objek) that suggests the file name and adds the suffix; the chosen file
// goes to tulis, whose answer (empty, or what went wrong) is shown when it is not empty.
void DialogSimpan(QWidget& induk, const QString& objek, const QString& judul, const QString& nama,
                  const QString& akhiran, const QString& saringan, std::function<std::string(const std::string&)> tulis);

// The print preview (the dialog named objek) of the sheets that lembar gives when the preview
// paints, one page each, from which the user prints.
void PratinjauCetak(QWidget& induk, const QString& objek, const QString& judul,
                    std::function<std::vector<const LembarKerja*>()> lembar, const ClsConnection& koneksi);

// What goes to the spreadsheet: the sheet in front with its conclusion (mnuExportThis), its
// conclusion alone (mnuExportKet), or every sheet on the tabs (mnuExportAll).
enum class BagianKirim { HalamanIni, Keterangan, Semua };

// Asks for a file (the dialog "dlgKirimExcel") and writes the workbook; the export guard's
// message when no sheet exists, a message when the file cannot be written.
void KirimExcel(FrmHisab& jendela, BagianKirim bagian);

// Asks for a file (the dialog "dlgKirimRumus") and writes the formula sheet of the sheet in
// front as a text document; the export guard's message when no sheet exists, and its like when
// the sheet in front has no formula sheet (a book that works without one).
void KirimRumus(FrmHisab& jendela);

// The print preview (the dialog "dlgCetak") of the sheet in front and its conclusion, from
// which the user prints; the export guard's message when no sheet exists.
void Cetak(FrmHisab& jendela);

}  // namespace falak::ui
