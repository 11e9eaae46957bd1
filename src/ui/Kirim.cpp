#include "ui/Kirim.h"

#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "export/Cetak.h"
#include "export/Excel.h"
#include "export/Word.h"
#include "ui/FrmHisab.h"
#include "ui/KotakPesan.h"
#include "ui/ModMenu.h"

namespace falak::ui {

void KirimExcel(FrmHisab& jendela, BagianKirim bagian) {
    if (!AdaGarapan(jendela)) return;
    // The caption of the sheet in front names the file at first.
    const QString nama = QString::fromUtf8(jendela.lembarAktif()->judul) + QStringLiteral(".xlsx");
    auto* dialog = new QFileDialog(&jendela, QStringLiteral("Kirim ke Excel"), nama,
                                   QStringLiteral("Buku kerja Excel (*.xlsx)"));
    dialog->setObjectName("dlgKirimExcel");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("xlsx"));
    QObject::connect(dialog, &QFileDialog::fileSelected, &jendela, [&jendela, bagian](const QString& berkas) {
        // The sheets may have closed while the dialog was open.
        const std::vector<const LembarKerja*> lembar =
            bagian == BagianKirim::Semua ? jendela.lembarTerbuka()
            : jendela.lembarAktif()      ? std::vector<const LembarKerja*>{jendela.lembarAktif()}
                                         : std::vector<const LembarKerja*>{};
        const std::string salah = EksporExcel(lembar, bagian != BagianKirim::Keterangan,
                                              jendela.ruangKerja().koneksi, berkas.toStdString());
        if (!salah.empty())
            BukaPesan(&jendela, QMessageBox::Warning, QStringLiteral("Gagal"), QString::fromStdString(salah));
    });
    dialog->open();
}

void KirimRumus(FrmHisab& jendela) {
    if (!AdaGarapan(jendela)) return;
    const LembarKerja& lembar = *jendela.lembarAktif();
    const auto rumus = jendela.ruangKerja().rumus.tampil(lembar.kunci);
    if (!rumus) {
        BukaPesan(&jendela, QMessageBox::Critical, QStringLiteral("Ojok gerusa gerusu...!"),
                  QStringLiteral("Export tidak dapat dilakukan, rumus hisab belum ada.\n"
                                 "Rumus hanya ada pada garapan hisab tahqiqi; pilihlah lembarnya sebelum "
                                 "mengExport rumusnya ke Word."));
        return;
    }
    auto* dialog = new QFileDialog(&jendela, QStringLiteral("Kirim Rumus ke Word"),
                                   QString::fromUtf8(lembar.judul) + QStringLiteral(" Rumus.odt"),
                                   QStringLiteral("Dokumen teks OpenDocument (*.odt)"));
    dialog->setObjectName("dlgKirimRumus");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("odt"));
    // The document is the sheet of the run chosen now, kept though its tab may close meanwhile.
    const std::string keterangan = lembar.judul + " - " + (lembar.modul ? std::string(lembar.modul->nama) : std::string());
    QObject::connect(dialog, &QFileDialog::fileSelected, &jendela,
                     [&jendela, isi = *rumus->lembar, keterangan](const QString& berkas) {
                         const std::string salah = TulisRumusOdt(isi, keterangan, berkas.toStdString());
                         if (!salah.empty())
                             BukaPesan(&jendela, QMessageBox::Warning, QStringLiteral("Gagal"), QString::fromStdString(salah));
                     });
    dialog->open();
}

void Cetak(FrmHisab& jendela) {
    if (!AdaGarapan(jendela)) return;
    auto* printer = new QPrinter(QPrinter::HighResolution);
    printer->setDocName(QString::fromStdString(jendela.lembarAktif()->judul));
    printer->setPageMargins(QMarginsF(12.7, 17.8, 12.7, 17.8), QPageLayout::Millimeter);
    auto* dialog = new QPrintPreviewDialog(printer, &jendela);
    dialog->setObjectName("dlgCetak");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QObject::destroyed, [printer] { delete printer; });
    QObject::connect(dialog, &QPrintPreviewDialog::paintRequested, &jendela, [&jendela](QPrinter* p) {
        if (const LembarKerja* l = jendela.lembarAktif()) LukisLembar(*p, {l}, jendela.ruangKerja().koneksi);
    });
    dialog->open();
}

}  // namespace falak::ui
