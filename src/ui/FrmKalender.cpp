#include "ui/FrmKalender.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calendar/ModHisabKalender.h"
#include "export/Excel.h"
#include "run/ProsesKalender.h"
#include "ui/Kirim.h"
#include "ui/KotakPesan.h"
#include "ui/ModelLembar.h"

namespace falak::ui {

namespace {

// The registry entry of a calendar code: the month module with that sheet code.
const EntriModul* kitabKode(int kode) {
    for (const EntriModul* e : Workspace::kitabTerdaftar())
        if (e->kodeLembar == kode) return e;
    return nullptr;
}

}  // namespace

FrmKalender::FrmKalender(Workspace& ws, const QString& tempat, QWidget* induk)
    : QDialog(induk), ws_(ws), tempat_(tempat) {
    setObjectName("FrmKalender");
    setWindowTitle(QStringLiteral("Kalender - ") + tempat);
    resize(1100, 760);

    tahun_ = new QLineEdit;
    tahun_->setObjectName("txtTahunKal");
    tahun_->setMaximumWidth(90);
    masehi_ = new QRadioButton(QStringLiteral("M."));
    masehi_->setObjectName("optMasehi");
    masehi_->setChecked(true);
    hijri_ = new QRadioButton(QStringLiteral("H."));
    hijri_->setObjectName("optHijri");
    metode_ = new QComboBox;
    metode_->setObjectName("cmbMetode");
    for (int kode : kKodeKalender)
        if (const EntriModul* e = kitabKode(kode)) metode_->addItem(QString::fromStdString(std::string(e->namaPohon)), kode);
    proses_ = new QPushButton(QStringLiteral("Proses"));
    proses_->setObjectName("ProsesKal12");
    proses_->setDefault(true);
    // Nothing to send before a calendar is drawn.
    kirim_ = new QPushButton(QStringLiteral("Kirim ke Excel"));
    kirim_->setObjectName("KirimKalender");
    kirim_->setEnabled(false);
    cetak_ = new QPushButton(QStringLiteral("Cetak"));
    cetak_->setObjectName("CetakKalender");
    cetak_->setEnabled(false);
    keterangan_ = new QLabel;
    keterangan_->setObjectName("lblSumber");

    auto* atas = new QHBoxLayout;
    atas->addWidget(new QLabel(QStringLiteral("Tahun")));
    atas->addWidget(tahun_);
    atas->addWidget(masehi_);
    atas->addWidget(hijri_);
    atas->addSpacing(12);
    atas->addWidget(new QLabel(QStringLiteral("Metode")));
    atas->addWidget(metode_);
    atas->addWidget(proses_);
    atas->addWidget(kirim_);
    atas->addWidget(cetak_);
    atas->addStretch(1);
    tata_ = new QVBoxLayout(this);
    tata_->addLayout(atas);
    tata_->addWidget(keterangan_);

    connect(proses_, &QPushButton::clicked, this, &FrmKalender::ProsesKal12);
    connect(tahun_, &QLineEdit::returnPressed, this, &FrmKalender::ProsesKal12);
    connect(kirim_, &QPushButton::clicked, this, &FrmKalender::KirimExcel);
    connect(cetak_, &QPushButton::clicked, this, &FrmKalender::Cetak);
}

void FrmKalender::ProsesKal12() {
    const EntriModul* kitab = kitabKode(metode_->currentData().toInt());
    const HasilKalender h = falak::ProsesKal12(ws_, kitab ? std::string(kitab->kode) : std::string(),
                                            tahun_->text().trimmed().toStdString(), hijri_->isChecked(),
                                            tempat_.toStdString());
    if (h.pesan) {
        BukaPesan(this, QMessageBox::Warning, QString::fromStdString(h.pesan->judul),
                  QString::fromStdString(h.pesan->teks));
        if (h.masukanSalah) {
            tahun_->selectAll();
            tahun_->setFocus();
        }
        return;
    }
    delete grid_;
    kerja_ = LembarKerjaKalender(h);
    grid_ = new GridLembar(kerja_.lembar);
    grid_->setObjectName("gridKalender");
    tata_->addWidget(grid_, 1);
    keterangan_->setText(h.dariModul ? QStringLiteral("Awal bulan menurut hisab kitabnya sendiri.")
                                     : QStringLiteral("Awal bulan menurut hisab kalender (taqribi ringkas)."));
    kirim_->setEnabled(true);
    cetak_->setEnabled(true);
}

void FrmKalender::KirimExcel() {
    DialogSimpan(*this, QStringLiteral("dlgKirimKalender"), QStringLiteral("Kirim ke Excel"),
                 QString::fromStdString(kerja_.judul) + ".xlsx", QStringLiteral("xlsx"),
                 QStringLiteral("Buku kerja Excel (*.xlsx)"),
                 [this](const std::string& berkas) { return EksporExcel({&kerja_}, true, ws_.koneksi, berkas); });
}

void FrmKalender::Cetak() {
    PratinjauCetak(*this, QStringLiteral("dlgCetakKalender"), QString::fromStdString(kerja_.judul),
                   [this] { return std::vector<const LembarKerja*>{&kerja_}; }, ws_.koneksi);
}

}  // namespace falak::ui
