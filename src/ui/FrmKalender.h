// The year calendar window: a year, Masehi or Hijri, and a book from the calendar's list; the
// twelve months with the Hijri day and the pasaran in every day's cell and the first days of
// the Hijri months boxed. The calendar is the sheet that the command line and the
// spreadsheet show; "Kirim ke Excel" writes it to a workbook chosen in a save dialog, "Cetak"
// prints it through the print preview.
#pragma once

#include <QDialog>

#include <memory>

#include "run/Workspace.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace falak::ui {

class GridLembar;

class FrmKalender : public QDialog {
    Q_OBJECT
public:
    // The calendar is reckoned for the named place of the main form.
    FrmKalender(Workspace& ws, const QString& tempat, QWidget* induk = nullptr);

    // ProsesKal12: reckons the calendar of the year in the box, or says what is wrong.
    void ProsesKal12();
    // Asks for a file (the dialog "dlgKirimKalender") and writes the calendar's workbook.
    void KirimExcel();
    // The print preview of the calendar (the dialog "dlgCetakKalender"), to pin on the wall.
    void Cetak();
    const Sheet& lembar() const { return kerja_.lembar; }

private:
    Workspace& ws_;
    QString tempat_;
    LembarKerja kerja_;
    QLineEdit* tahun_;
    QRadioButton *masehi_, *hijri_;
    QComboBox* metode_;
    QPushButton* proses_;
    QPushButton* kirim_;
    QPushButton* cetak_;
    QLabel* keterangan_;
    QVBoxLayout* tata_;
    GridLembar* grid_ = nullptr;
};

}  // namespace falak::ui
