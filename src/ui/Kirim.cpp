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

void DialogSimpan(QWidget& induk, const QString& objek, const QString& judul, const QString& nama,
                  const QString& akhiran, const QString& saringan, std::function<std::string(const std::string&)> tulis) {
    auto* dialog = new QFileDialog(&induk, judul, nama, saringan);
    dialog->setObjectName(objek);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(akhiran);
    QObject::connect(dialog, &QFileDialog::fileSelected, &induk, [&induk, tulis = std::move(tulis)](const QString& berkas) {
        const std::string salah = tulis(berkas.toStdString());
        if (!salah.empty()) BukaPesan(&induk, QMessageBox::Warning, QStringLiteral("Gagal"), QString::fromStdString(salah));
    });
    dialog->open();
}

void PratinjauCetak(QWidget& induk, const QString& objek, const QString& judul,
                    std::function<std::vector<const LembarKerja*>()> lembar, const ClsConnection& koneksi) {
    auto* printer = new QPrinter(QPrinter::HighResolution);
    printer->setDocName(judul);
    printer->setPageMargins(QMarginsF(12.7, 17.8, 12.7, 17.8), QPageLayout::Millimeter);
    auto* dialog = new QPrintPreviewDialog(printer, &induk);
    dialog->setObjectName(objek);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QObject::destroyed, [printer] { delete printer; });
    QObject::connect(dialog, &QPrintPreviewDialog::paintRequested, &induk,
                     [lembar = std::move(lembar), &koneksi](QPrinter* p) {
                         if (const auto daftar = lembar(); !daftar.empty()) LukisLembar(*p, daftar, koneksi);
                     });
    dialog->open();
}

void KirimExcel(FrmHisab& jendela, BagianKirim bagian) {
    if (!AdaGarapan(jendela)) return;
    // The caption of the sheet in front names the file at first.
    DialogSimpan(jendela, QStringLiteral("dlgKirimExcel"), QStringLiteral("Kirim ke Excel"),
                 QString::fromUtf8(jendela.lembarAktif()->judul) + QStringLiteral(".xlsx"), QStringLiteral("xlsx"),
                 QStringLiteral("Buku kerja Excel (*.xlsx)"), [&jendela, bagian](const std::string& berkas) {
                     // The sheets may have closed while the dialog was open.
                     const std::vector<const LembarKerja*> lembar =
                         bagian == BagianKirim::Semua ? jendela.lembarTerbuka()
                         : jendela.lembarAktif()      ? std::vector<const LembarKerja*>{jendela.lembarAktif()}
                                                      : std::vector<const LembarKerja*>{};
                     return EksporExcel(lembar, bagian != BagianKirim::Keterangan, jendela.ruangKerja().koneksi, berkas);
                 });
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
    // The document is the sheet of the run chosen now, kept though its tab may close meanwhile.
    const std::string keterangan = lembar.judul + " - " + (lembar.modul ? std::string(lembar.modul->nama) : std::string());
    DialogSimpan(jendela, QStringLiteral("dlgKirimRumus"), QStringLiteral("Kirim Rumus ke Word"),
                 QString::fromUtf8(lembar.judul) + QStringLiteral(" Rumus.odt"), QStringLiteral("odt"),
                 QStringLiteral("Dokumen teks OpenDocument (*.odt)"),
                 [isi = *rumus->lembar, keterangan](const std::string& berkas) {
                     return TulisRumusOdt(isi, keterangan, berkas);
                 });
}

void Cetak(FrmHisab& jendela) {
    if (!AdaGarapan(jendela)) return;
    PratinjauCetak(jendela, QStringLiteral("dlgCetak"), QString::fromStdString(jendela.lembarAktif()->judul),
                   [&jendela] {
                       const LembarKerja* l = jendela.lembarAktif();
                       return l ? std::vector<const LembarKerja*>{l} : std::vector<const LembarKerja*>{};
                   },
                   jendela.ruangKerja().koneksi);
}

}  // namespace falak::ui
