// The calendar window, opened from the menu: a year that is not a number is refused with the
// program's message, and a year shows the same sheet the command line and the spreadsheet get.
#include <QComboBox>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "JendelaUji.h"
#include "calendar/KalenderTahun.h"
#include "core/Koneksi.h"
#include "run/ProsesKalender.h"
#include "ui/FrmHisab.h"
#include "ui/FrmKalender.h"
#include "ui/ModelLembar.h"

using namespace falak;
using namespace falak::ui;
using uji::cari;

class UjiFrmKalender : public QObject {
    Q_OBJECT

    uji::FolderJendela folder;
    std::unique_ptr<FrmHisab> w;

    FrmKalender* buka() {
        cari(*w, "mnuKalender")->trigger();
        auto* d = w->findChild<FrmKalender*>();
        if (d && !QTest::qWaitForWindowExposed(d)) return nullptr;
        return d;
    }
    static void isiTahun(FrmKalender& d, const QString& teks) {
        auto* e = cari<QLineEdit>(d, "txtTahunKal");
        e->selectAll();
        QTest::keyClick(e, Qt::Key_Backspace);
        QTest::keyClicks(e, teks);
    }

private slots:
    void init() {
        w = std::make_unique<FrmHisab>(folder.lokasi());
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));
    }
    void cleanup() { w.reset(); }

    void aYearThatIsNoNumberIsRefused() {
        FrmKalender* d = buka();
        QVERIFY(d);
        QCOMPARE(cari<QComboBox>(*d, "cmbMetode")->count(), 14);
        isiTahun(*d, "20x6");
        QTest::mouseClick(cari<QPushButton>(*d, "ProsesKal12"), Qt::LeftButton);
        QMessageBox* kotak = uji::kotakTerbuka(*d);
        QVERIFY(kotak);
        QCOMPARE(kotak->windowTitle(), QString("Kesalahan Input"));
        QCOMPARE(kotak->text(), QString("Input Tahun harus diisi dengan angka"));
        QCOMPARE(cari<QLineEdit>(*d, "txtTahunKal")->selectedText(), QString("20x6"));
        kotak->accept();
        QVERIFY(!d->findChild<GridLembar*>());
    }

    void aYearShowsTheCalendarSheet() {
        FrmKalender* d = buka();
        QVERIFY(d);
        isiTahun(*d, "1445");
        cari<QRadioButton>(*d, "optHijri")->setChecked(true);
        QTest::mouseClick(cari<QPushButton>(*d, "ProsesKal12"), Qt::LeftButton);
        QVERIFY(!uji::kotakTerbuka(*d));
        auto* grid = d->findChild<GridLembar*>("gridKalender");
        QVERIFY(grid);

        // The same sheet as the session's calendar for the first book of the list at the
        // window's place.
        ClsConnection koneksi(folder.lokasi());
        Workspace ws(koneksi);
        const HasilKalender h = ProsesKal12(ws, "SN", "1445", true, w->findChild<QComboBox*>("cboDaerah")->currentText().toStdString());
        QVERIFY(h.kalender);
        const Sheet s = LembarKalender(*h.kalender);
        const ModelLembar& m = grid->model();
        // Empty rows at the foot of the sheet are not shown.
        QVERIFY(m.rowCount() <= s.jumlahBaris());
        for (int b = m.rowCount(); b < s.jumlahBaris(); ++b) QVERIFY(s.barisKosong(b));
        QCOMPARE(m.columnCount(), s.jumlahKolom());
        for (int b = 0; b < m.rowCount(); ++b)
            for (int k = 0; k < s.jumlahKolom(); ++k)
                QCOMPARE(m.data(m.index(b, k)).toString(), QString::fromStdString(s.sel(b, k)));
        QCOMPARE(m.data(m.index(2, 0)).toString(), QString("Muharrom 1445 H."));
    }

    void theCalendarGoesToTheFileChosenAndToThePrinter() {
        FrmKalender* d = buka();
        QVERIFY(d);
        auto* kirim = cari<QPushButton>(*d, "KirimKalender");
        auto* cetak = cari<QPushButton>(*d, "CetakKalender");
        QVERIFY(!kirim->isEnabled() && !cetak->isEnabled());  // nothing to send yet
        isiTahun(*d, "2026");
        QTest::mouseClick(cari<QPushButton>(*d, "ProsesKal12"), Qt::LeftButton);
        QVERIFY(kirim->isEnabled());
        QTest::mouseClick(kirim, Qt::LeftButton);
        QFileDialog* dialog = nullptr;
        QTRY_VERIFY((dialog = d->findChild<QFileDialog*>("dlgKirimKalender")) && dialog->isVisible());
        QTemporaryDir folderBerkas;
        dialog->setDirectory(folderBerkas.path());
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText("kalender.xlsx");
        static_cast<QDialog*>(dialog)->accept();
        QFile f(folderBerkas.filePath("kalender.xlsx"));
        QTRY_VERIFY(f.size() > 0);
        QVERIFY(f.open(QIODevice::ReadOnly));
        // One worksheet, named by the year and the book.
        const QByteArray isi = f.readAll();
        QCOMPARE(isi.count("xl/worksheets/sheet") / 2, 1);

        QTest::mouseClick(cetak, Qt::LeftButton);
        QPrintPreviewDialog* pratinjau = nullptr;
        QTRY_VERIFY((pratinjau = d->findChild<QPrintPreviewDialog*>("dlgCetakKalender")) && pratinjau->isVisible());
        pratinjau->reject();
    }
};

QTEST_MAIN(UjiFrmKalender)
#include "test_frm_kalender.moc"
