#include "ui/FrmDaerah.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "core/Daerah.h"
#include "core/Koneksi.h"
#include "ui/KotakPesan.h"

namespace falak::ui {

namespace {

const QString kJudul = QStringLiteral("Tambah/Hapus Daerah");

QString q(const std::string& s) { return QString::fromStdString(s); }
std::string s(const QLineEdit* e) { return e->text().toStdString(); }

QLineEdit* kotakAngka(const char* nama, int lebar) {
    auto* e = new QLineEdit;
    e->setObjectName(nama);
    e->setMaximumWidth(lebar);
    return e;
}

QComboBox* pilihArah(const char* nama, const char* a, const char* b) {
    auto* c = new QComboBox;
    c->setObjectName(nama);
    c->addItems({a, b});
    return c;
}

}  // namespace

FrmDaerah::FrmDaerah(ClsConnection& koneksi, QWidget* induk) : QDialog(induk), koneksi_(koneksi) {
    setObjectName("FrmDaerah");
    setWindowTitle(kJudul);

    cari_ = new QLineEdit;
    cari_->setObjectName("txtCari");
    cari_->setPlaceholderText(QStringLiteral("Cari nama tempat..."));
    cari_->setClearButtonEnabled(true);

    // The table view of the register.
    daftar_ = new QTableWidget(0, 6);
    daftar_->setObjectName("BaladIN");
    daftar_->setHorizontalHeaderLabels({"Nama", "Nama tampil", "Lintang", "Bujur", "Zona", "Tinggi (m)"});
    daftar_->setSelectionBehavior(QAbstractItemView::SelectRows);
    daftar_->setSelectionMode(QAbstractItemView::SingleSelection);
    daftar_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    daftar_->verticalHeader()->hide();
    daftar_->horizontalHeader()->setStretchLastSection(true);
    daftar_->setMinimumWidth(560);

    nama_ = new QLineEdit;
    nama_->setObjectName("txtNama");
    namaTampil_ = new QLineEdit;
    namaTampil_->setObjectName("txtNamaTampil");
    namaTampil_->setPlaceholderText(QStringLiteral("kosong: sama dengan nama"));
    lintangDerajat_ = kotakAngka("txtLintangDerajat", 60);
    lintangMenit_ = kotakAngka("txtLintangMenit", 60);
    arahLintang_ = pilihArah("cboArahLintang", "LS", "LU");
    bujurDerajat_ = kotakAngka("txtBujurDerajat", 60);
    bujurMenit_ = kotakAngka("txtBujurMenit", 60);
    arahBujur_ = pilihArah("cboArahBujur", "BT", "BB");
    zona_ = kotakAngka("txtZona", 60);
    zona_->setPlaceholderText("7");
    tinggi_ = kotakAngka("txtTinggi", 90);
    tinggi_->setPlaceholderText("0");

    auto sudut = [](QLineEdit* d, QLineEdit* m, QComboBox* arah) {
        auto* baris = new QHBoxLayout;
        baris->addWidget(d);
        baris->addWidget(new QLabel(QStringLiteral("°")));
        baris->addWidget(m);
        baris->addWidget(new QLabel(QStringLiteral("'")));
        baris->addWidget(arah);
        baris->addStretch();
        return baris;
    };
    auto* isian = new QFormLayout;
    isian->addRow(QStringLiteral("&Nama"), nama_);
    isian->addRow(QStringLiteral("Nama &tampil"), namaTampil_);
    // A row of several boxes needs a label of its own to take the first box as its buddy.
    auto label = [](const QString& teks, QWidget* kawan) {
        auto* l = new QLabel(teks);
        l->setBuddy(kawan);
        return l;
    };
    isian->addRow(label(QStringLiteral("&Lintang"), lintangDerajat_), sudut(lintangDerajat_, lintangMenit_, arahLintang_));
    isian->addRow(label(QStringLiteral("&Bujur"), bujurDerajat_), sudut(bujurDerajat_, bujurMenit_, arahBujur_));
    isian->addRow(QStringLiteral("&Zona waktu"), zona_);
    isian->addRow(QStringLiteral("Ketinggian (&m)"), tinggi_);

    tambah_ = new QPushButton(QStringLiteral("T&ambah"));
    tambah_->setObjectName("btnTambah");
    ubah_ = new QPushButton(QStringLiteral("&Ubah"));
    ubah_->setObjectName("btnUbah");
    hapus_ = new QPushButton(QStringLiteral("&Hapus"));
    hapus_->setObjectName("btnHapus");
    auto* tutup = new QPushButton(QStringLiteral("Tutu&p"));
    tutup->setObjectName("btnTutup");
    auto* tombol = new QHBoxLayout;
    tombol->addWidget(tambah_);
    tombol->addWidget(ubah_);
    tombol->addWidget(hapus_);
    tombol->addStretch();
    tombol->addWidget(tutup);

    keterangan_ = new QLabel;
    keterangan_->setObjectName("lblKeterangan");
    keterangan_->setWordWrap(true);
    keterangan_->setText(QStringLiteral("Disimpan di ") + QString::fromStdString(BerkasDaerah(koneksi_.lokasi()).string()));

    auto* kanan = new QVBoxLayout;
    kanan->addLayout(isian);
    kanan->addLayout(tombol);
    kanan->addWidget(keterangan_);
    kanan->addStretch();
    auto* kiri = new QVBoxLayout;
    kiri->addWidget(cari_);
    kiri->addWidget(daftar_);
    auto* tata = new QHBoxLayout(this);
    tata->addLayout(kiri, 3);
    tata->addLayout(kanan, 2);

    connect(cari_, &QLineEdit::textChanged, this, &FrmDaerah::saring);
    connect(daftar_, &QTableWidget::itemSelectionChanged, this, &FrmDaerah::tampilkanTerpilih);
    connect(tambah_, &QPushButton::clicked, this, &FrmDaerah::tambah);
    connect(ubah_, &QPushButton::clicked, this, &FrmDaerah::ubah);
    connect(hapus_, &QPushButton::clicked, this, &FrmDaerah::hapus);
    connect(tutup, &QPushButton::clicked, this, &QDialog::accept);

    isiDaftar();
    resize(1000, 560);
}

void FrmDaerah::isiDaftar(const QString& pilih) {
    RegisterDaerah reg = koneksi_.registerDaerah();
    const auto semua = reg.daftar();
    QSignalBlocker tahan(daftar_);
    daftar_->setRowCount(static_cast<int>(semua.size()));
    int barisPilih = -1;
    for (size_t b = 0; b < semua.size(); ++b) {
        const IsianTempat i = reg.isian(b);
        const QString sel[] = {q(i.nama),
                               q(i.namaTampil),
                               q(i.lintangDerajat + "° " + i.lintangMenit + "' " + i.arahLintang),
                               q(i.bujurDerajat + "° " + i.bujurMenit + "' " + i.arahBujur),
                               q(i.zona),
                               q(i.tinggi)};
        for (int k = 0; k < 6; ++k) {
            auto* item = new QTableWidgetItem(sel[k]);
            if (k < 2) item->setToolTip(sel[k]);
            daftar_->setItem(static_cast<int>(b), k, item);
        }
        if (!pilih.isEmpty() && QString::compare(sel[0], pilih, Qt::CaseInsensitive) == 0) barisPilih = static_cast<int>(b);
    }
    daftar_->resizeColumnsToContents();
    // A long name is shortened with an ellipsis (its tip shows it whole) rather than push the
    // other columns out of the dialog.
    const int batas = daftar_->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 16;
    for (int k = 0; k < 2; ++k) daftar_->setColumnWidth(k, std::min(daftar_->columnWidth(k), batas));
    saring(cari_->text());
    if (barisPilih >= 0) {
        daftar_->selectRow(barisPilih);
        daftar_->scrollToItem(daftar_->item(barisPilih, 0));
    } else {
        daftar_->clearSelection();
    }
    tahan.unblock();
    tampilkanTerpilih();
}

void FrmDaerah::saring(const QString& kata) {
    for (int b = 0; b < daftar_->rowCount(); ++b)
        daftar_->setRowHidden(b, !kata.isEmpty() && !daftar_->item(b, 0)->text().contains(kata, Qt::CaseInsensitive));
}

QString FrmDaerah::namaTerpilih() const {
    const auto terpilih = daftar_->selectionModel()->selectedRows();
    return terpilih.isEmpty() ? QString() : daftar_->item(terpilih.first().row(), 0)->text();
}

void FrmDaerah::tampilkanTerpilih() {
    const QString nama = namaTerpilih();
    ubah_->setEnabled(!nama.isEmpty());
    hapus_->setEnabled(!nama.isEmpty());
    if (nama.isEmpty()) return;
    RegisterDaerah reg = koneksi_.registerDaerah();
    const auto baris = reg.cari(nama.toStdString());
    if (!baris) return;
    const IsianTempat i = reg.isian(*baris);
    nama_->setText(q(i.nama));
    namaTampil_->setText(q(i.namaTampil));
    lintangDerajat_->setText(q(i.lintangDerajat));
    lintangMenit_->setText(q(i.lintangMenit));
    arahLintang_->setCurrentText(q(i.arahLintang));
    bujurDerajat_->setText(q(i.bujurDerajat));
    bujurMenit_->setText(q(i.bujurMenit));
    arahBujur_->setCurrentText(q(i.arahBujur));
    zona_->setText(q(i.zona));
    tinggi_->setText(q(i.tinggi));
}

IsianTempat FrmDaerah::isian() const {
    IsianTempat i;
    i.nama = s(nama_);
    i.namaTampil = s(namaTampil_);
    i.lintangDerajat = s(lintangDerajat_);
    i.lintangMenit = s(lintangMenit_);
    i.arahLintang = arahLintang_->currentText().toStdString();
    i.bujurDerajat = s(bujurDerajat_);
    i.bujurMenit = s(bujurMenit_);
    i.arahBujur = arahBujur_->currentText().toStdString();
    i.zona = s(zona_);
    i.tinggi = s(tinggi_);
    return i;
}

bool FrmDaerah::simpan(const std::function<std::string(RegisterDaerah&)>& perubahan, const QString& pilih) {
    if (const std::string tolak = koneksi_.ubahDaerah(perubahan); !tolak.empty()) {
        BukaPesan(this, QMessageBox::Warning, kJudul, q(tolak));
        return false;
    }
    berubah_ = true;
    isiDaftar(pilih);
    return true;
}

void FrmDaerah::tambah() {
    const IsianTempat i = isian();
    if (simpan([&](RegisterDaerah& r) { return r.tambah(i); }, QString::fromStdString(i.nama).trimmed()))
        keterangan_->setText(QStringLiteral("\"%1\" ditambahkan dan disimpan.").arg(nama_->text().trimmed()));
}

void FrmDaerah::ubah() {
    const QString lama = namaTerpilih();
    if (lama.isEmpty()) return;
    const IsianTempat i = isian();
    if (simpan([&](RegisterDaerah& r) { return r.ubah(lama.toStdString(), i); }, QString::fromStdString(i.nama).trimmed()))
        keterangan_->setText(QStringLiteral("\"%1\" diubah dan disimpan.").arg(nama_->text().trimmed()));
}

void FrmDaerah::hapus() {
    const QString nama = namaTerpilih();
    if (nama.isEmpty()) return;
    BukaPesan(this, QMessageBox::Question, kJudul, QStringLiteral("Hapus \"%1\" dari daftar tempat?").arg(nama),
              QMessageBox::Yes | QMessageBox::No, [this, nama](QMessageBox::StandardButton jawab) {
                  if (jawab != QMessageBox::Yes) return;
                  if (simpan([&](RegisterDaerah& r) { return r.hapus(nama.toStdString()); }, {}))
                      keterangan_->setText(QStringLiteral("\"%1\" dihapus dari daftar.").arg(nama));
              });
}

}  // namespace falak::ui
