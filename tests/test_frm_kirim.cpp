// The window's commands that hand a reckoning on: to a spreadsheet file and to the printer.
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QTabWidget>

#include "JendelaUji.h"
#include "ui/FrmHisab.h"
#include "ui/Pekerja.h"

namespace falak::ui {

using uji::cari;
using uji::kotakTerbuka;

class UjiFrmKirim : public QObject {
    Q_OBJECT

    uji::FolderJendela folder;
    std::unique_ptr<FrmHisab> w;

    void tungguSelesai() { QTRY_VERIFY_WITH_TIMEOUT(!w->pekerja().sibuk(), 30000); }

    // Chooses the file in the save dialog, as the user would, and waits for the workbook.
    void simpanKe(const QString& berkas) {
        QFileDialog* dialog = nullptr;
        QTRY_VERIFY((dialog = w->findChild<QFileDialog*>("dlgKirimExcel")) && dialog->isVisible());
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        dialog->setDirectory(QFileInfo(berkas).path());
        auto* nama = dialog->findChild<QLineEdit*>("fileNameEdit");
        QVERIFY(nama);
        nama->setText(QFileInfo(berkas).fileName());
        static_cast<QDialog*>(dialog)->accept();
        QTRY_VERIFY(QFileInfo(berkas).size() > 0);
    }

    // The worksheets of a workbook: each is a file "xl/worksheets/sheetN.xml" of the zip, whose
    // name stands twice in it (its own header and the directory at the end).
    static qsizetype jumlahLembar(const QString& berkas) {
        QFile f(berkas);
        if (!f.open(QIODevice::ReadOnly)) return -1;
        return f.readAll().count("xl/worksheets/sheet") / 2;
    }

private slots:
    void init() {
        w = std::make_unique<FrmHisab>(folder.lokasi());
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));
    }
    void cleanup() { w.reset(); }

    void withoutASheetTheGuardSpeaksAndNothingOpens() {
        for (const char* kunci : {"mnuExportThis", "mnuExportKet", "mnuExportAll", "mnuExportRumus", "mnuPrint"}) {
            QAction* a = cari(*w, kunci);
            QVERIFY2(a && a->isEnabled(), kunci);
            a->trigger();
            QMessageBox* kotak = nullptr;
            QTRY_VERIFY((kotak = kotakTerbuka(*w)));
            QCOMPARE(kotak->windowTitle(), QString("Ojok gerusa gerusu...!"));
            QVERIFY(kotak->text().startsWith("Export tidak dapat dilakukan, garapan hisab belum ada."));
            kotak->close();
            QTRY_VERIFY(!kotakTerbuka(*w));
            QVERIFY(!w->findChild<QFileDialog*>());
            QVERIFY(!w->findChild<QPrintPreviewDialog*>());
        }
    }

    void theSheetsGoToTheFileChosen() {
        w->prosesKitab("SN");
        tungguSelesai();
        w->prosesKitab("FR");
        tungguSelesai();
        QTemporaryDir folderBerkas;
        // One sheet and its conclusion; the conclusion alone; both sheets and one conclusion.
        const std::pair<const char*, qsizetype> perintah[] = {{"mnuExportThis", 2}, {"mnuExportKet", 1}, {"mnuExportAll", 3}};
        for (const auto& [kunci, jumlah] : perintah) {
            cari(*w, kunci)->trigger();
            const QString berkas = folderBerkas.filePath(QString(kunci) + ".xlsx");
            simpanKe(berkas);
            QCOMPARE(jumlahLembar(berkas), jumlah);
        }
    }

    // A book without formula sheet is refused; a precise book's sheet goes to the document.
    void theFormulaSheetOfTheSheetInFrontGoesToADocument() {
        w->prosesKitab("SN");
        tungguSelesai();
        cari(*w, "mnuExportRumus")->trigger();
        QMessageBox* kotak = nullptr;
        QTRY_VERIFY((kotak = kotakTerbuka(*w)));
        QVERIFY(kotak->text().startsWith("Export tidak dapat dilakukan, rumus hisab belum ada."));
        kotak->close();
        QTRY_VERIFY(!kotakTerbuka(*w));
        QVERIFY(!w->findChild<QFileDialog*>());

        w->prosesKitab("ER");
        tungguSelesai();
        cari(*w, "mnuExportRumus")->trigger();
        QFileDialog* dialog = nullptr;
        QTRY_VERIFY((dialog = w->findChild<QFileDialog*>("dlgKirimRumus")) && dialog->isVisible());
        QVERIFY(dialog->selectedFiles().value(0).endsWith(" Rumus.odt"));
        QTemporaryDir folderBerkas;
        dialog->setDirectory(folderBerkas.path());
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText("er");
        static_cast<QDialog*>(dialog)->accept();
        QFile f(folderBerkas.filePath("er.odt"));  // the suffix added
        QTRY_VERIFY(f.size() > 0);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray kepala = f.read(128);  // a zip whose first entry names the format
        QVERIFY(kepala.startsWith("PK") && kepala.contains("application/vnd.oasis.opendocument.text"));
    }

    void printShowsThePreviewOfTheSheetInFront() {
        w->prosesKitab("SN");
        tungguSelesai();
        cari(*w, "mnuPrint")->trigger();
        QPrintPreviewDialog* dialog = nullptr;
        QTRY_VERIFY((dialog = w->findChild<QPrintPreviewDialog*>("dlgCetak")) && dialog->isVisible());
        dialog->reject();
        QTRY_VERIFY(!w->findChild<QPrintPreviewDialog*>("dlgCetak"));
    }
};

}  // namespace falak::ui

QTEST_MAIN(falak::ui::UjiFrmKirim)
#include "test_frm_kirim.moc"
