#include "ui/FrmHisab.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDate>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "core/Daerah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Tabel.h"
#include "ui/FrmDaerah.h"
#include "ui/KotakPesan.h"
#include "ui/PanelRumus.h"
#include "ui/Pekerja.h"
#include "ui/TabLembar.h"

namespace falak::ui {

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }
QString q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// On an item of the tree: the book's code, and the place of its module in the registry.
constexpr int kPeranKitab = Qt::UserRole;
constexpr int kPeranModul = Qt::UserRole + 1;

// Where the user's eye goes first on a start: the month that runs now, by the program's own
// calendar. The first day of each month of the years around today's, the last one that has
// begun wins.
std::pair<int, int> bulanHijriHariIni() {
    const QDate hari = QDate::currentDate();
    const int perkiraan = static_cast<int>((hari.year() - 622) * 365.2425 / 354.367);
    std::pair<int, int> hasil{perkiraan, 1};
    QDate terbaik;
    for (int tahun = perkiraan - 1; tahun <= perkiraan + 2; ++tahun)
        for (int bulan = 1; bulan <= 12; ++bulan) {
            const auto t = ClsKesimpulan::ConvertToHijri(tahun, static_cast<int16_t>(bulan), 1);
            if (!t) continue;
            const QDate awal(AmbilTingkat(*t, 6), AmbilTingkat(*t, 7), AmbilTingkat(*t, 8));
            if (awal.isValid() && awal <= hari && (!terbaik.isValid() || awal > terbaik)) {
                terbaik = awal;
                hasil = {tahun, bulan};
            }
        }
    return hasil;
}

}  // namespace

FrmHisab::FrmHisab(const LokasiData& lokasi, QWidget* induk)
    : QMainWindow(induk),
      koneksi_(std::make_unique<ClsConnection>(lokasi)),
      ws_(std::make_unique<Workspace>(*koneksi_)),
      pekerja_(std::make_unique<Pekerja>(ws_->kemajuan)) {
    setObjectName("FrmHisab");
    setWindowTitle(QStringLiteral("falak - Hisab Awal Bulan"));
    laporanTabel_ = q(LaporanMasalah(ws_->masalahTabel())).trimmed();
    buatTampilan();
    buatMenu();
    isiPohon();
    isiDaerah(QStringLiteral("Pasuruan"));
    pilihHariIni();

    connect(pekerja_.get(), &Pekerja::maju, this, [this](int nilai, int maksimum) {
        kemajuan_->setMaximum(std::max(maksimum, 1));
        kemajuan_->setValue(std::min(nilai, std::max(maksimum, 1)));
    });
    connect(pekerja_.get(), &Pekerja::gagal, this, [this](const QString& alasan) {
        BukaPesan(this, QMessageBox::Critical, QStringLiteral("Sepurane.."),
                  QStringLiteral("Hisab berhenti karena kesalahan:\n") + alasan);
    });
    aturSibuk(false);
    resize(1280, 800);
}

FrmHisab::~FrmHisab() {
    // The job and the tabs read the session: both go before it does.
    tab_->disconnect(this);
    pekerja_.reset();
    while (tab_->count() > 0) delete tab_->widget(0);
}

void FrmHisab::buatTampilan() {
    masalah_ = new QLabel;
    masalah_->setObjectName("lblMasalah");
    masalah_->setWordWrap(true);
    masalah_->setTextFormat(Qt::RichText);
    masalah_->setStyleSheet("QLabel { background: #fff3cd; color: #664d03; border: 1px solid #e0c36c; padding: 4px; }");
    if (!laporanTabel_.isEmpty()) {
        // The first line says it plainly; the tables and reasons are one click away.
        QString judul = laporanTabel_.section(QLatin1Char('\n'), 0, 0);
        if (judul.endsWith(QLatin1Char(':'))) judul.chop(1);
        masalah_->setText(judul.toHtmlEscaped() + QStringLiteral(". <a href=\"rincian\">Rinciannya</a>"));
        masalah_->setToolTip(laporanTabel_);
        connect(masalah_, &QLabel::linkActivated, this, [this] {
            BukaPesan(this, QMessageBox::Warning, QStringLiteral("Tabel tidak lengkap"), laporanTabel_);
        });
    }
    masalah_->setVisible(!laporanTabel_.isEmpty());

    daerah_ = new QComboBox;
    daerah_->setObjectName("cboDaerah");
    daerah_->setMaxVisibleItems(20);
    // A long place name is shortened in the box, not let widen the panel; the list shows it.
    daerah_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    daerah_->setMinimumContentsLength(16);
    tahunH_ = new QLineEdit;
    tahunH_->setObjectName("RichTahunH");
    tahunH_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,5}"), tahunH_));
    tahunH_->setMaximumWidth(80);
    tahunM_ = new QLineEdit;
    tahunM_->setObjectName("RichTahunM");
    tahunM_->setReadOnly(true);
    tahunM_->setFocusPolicy(Qt::NoFocus);
    tahunM_->setMaximumWidth(80);
    auto* tahun = new QHBoxLayout;
    tahun->addWidget(tahunH_);
    tahun->addWidget(new QLabel(QStringLiteral("H. /")));
    tahun->addWidget(tahunM_);
    tahun->addWidget(new QLabel(QStringLiteral("M.")));
    tahun->addStretch();

    bulan_ = new QListWidget;
    bulan_->setObjectName("lstBulan");
    for (const char* baris : kBarisBulan) bulan_->addItem(QString::fromUtf8(baris));
    bulan_->setFixedHeight(bulan_->sizeHintForRow(0) * 12 + 2 * bulan_->frameWidth() + 2);

    pohon_ = new QTreeWidget;
    pohon_->setObjectName("TreeKitab");
    pohon_->setHeaderHidden(true);
    pohon_->setRootIsDecorated(true);

    auto* pilihan = new QFormLayout;
    pilihan->addRow(QStringLiteral("&Daerah"), daerah_);
    auto* labelTahun = new QLabel(QStringLiteral("&Tahun"));
    labelTahun->setBuddy(tahunH_);
    pilihan->addRow(labelTahun, tahun);
    auto* kiri = new QWidget;
    auto* tataKiri = new QVBoxLayout(kiri);
    tataKiri->setContentsMargins(6, 6, 6, 6);
    tataKiri->addLayout(pilihan);
    auto* labelBulan = new QLabel(QStringLiteral("&Bulan"));
    labelBulan->setBuddy(bulan_);
    tataKiri->addWidget(labelBulan);
    tataKiri->addWidget(bulan_);
    auto* labelKitab = new QLabel(QStringLiteral("&Kitab"));
    labelKitab->setBuddy(pohon_);
    tataKiri->addWidget(labelKitab);
    tataKiri->addWidget(pohon_, 1);

    tab_ = new QTabWidget;
    tab_->setObjectName("TabLembar");
    tab_->setTabsClosable(true);
    tab_->setMovable(false);
    tab_->setDocumentMode(true);
    auto* kosong = new QLabel(QStringLiteral("Pilih daerah, tahun dan bulan, lalu klik kitab pada pohon di kiri."));
    kosong->setObjectName("lblKosong");
    kosong->setAlignment(Qt::AlignCenter);
    kosong->setEnabled(false);
    tengah_ = new QStackedWidget;
    tengah_->addWidget(kosong);
    tengah_->addWidget(tab_);

    auto* belah = new QSplitter(Qt::Horizontal);
    belah->addWidget(kiri);
    belah->addWidget(tengah_);
    rumus_ = new PanelRumus;
    belah->addWidget(rumus_);
    belah->setStretchFactor(1, 1);
    belah->setSizes({240, 1040, 360});
    belah->setChildrenCollapsible(false);
    rumus_->hide();

    auto* pusat = new QWidget;
    auto* tata = new QVBoxLayout(pusat);
    tata->setContentsMargins(0, 0, 0, 0);
    tata->setSpacing(0);
    tata->addWidget(masalah_);
    tata->addWidget(belah, 1);
    setCentralWidget(pusat);

    kemajuan_ = new QProgressBar;
    kemajuan_->setObjectName("ProgressBar1");
    kemajuan_->setMaximumWidth(320);
    kemajuan_->setValue(0);
    stop_ = new QPushButton(QStringLiteral("&Stop"));
    stop_->setObjectName("btnStop");
    statusBar()->addPermanentWidget(kemajuan_);
    statusBar()->addPermanentWidget(stop_);

    connect(pohon_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        const QVariant i = item->data(0, kPeranModul);
        if (!i.isValid()) return;
        const EntriModul& m = DaftarModul()[i.toULongLong()];
        AksiGarapan(m.garapan)(*this, m);
    });
    auto* enter = new QShortcut(QKeySequence(Qt::Key_Return), pohon_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(enter, &QShortcut::activated, this, [this] {
        if (QTreeWidgetItem* item = pohon_->currentItem()) emit pohon_->itemClicked(item, 0);
    });
    connect(tahunH_, &QLineEdit::textEdited, this, &FrmHisab::konversiTahun);
    connect(bulan_, &QListWidget::currentRowChanged, this, &FrmHisab::konversiTahun);
    connect(stop_, &QPushButton::clicked, this, &FrmHisab::tanyaBerhenti);
    connect(tab_, &QTabWidget::tabCloseRequested, this, &FrmHisab::tutupTab);
    connect(tab_, &QTabWidget::currentChanged, this, &FrmHisab::perbaruiMenu);
}

void FrmHisab::buatMenu() {
    MenuTerbangun menu = BangunMenu(*this, *menuBar(), DaftarMenu());
    perintah_ = menu.sibuk;
    perbarui_ = std::move(menu.perbarui);
    menuLembar_ = menuBar()->findChild<QMenu*>(QStringLiteral("SHEETSMENU"));
}

void FrmHisab::isiPohon() {
    // The modules that exist and that a command runs, under the heading of their group, in the
    // order of the registry; a group without one is left out.
    const auto& daftar = DaftarModul();
    for (size_t i = 0; i < daftar.size(); ++i) {
        const EntriModul& k = daftar[i];
        if (!ws_->modul(k) || !AksiGarapan(k.garapan)) continue;
        const QString kelompok = q(NamaKelompok(k.garapan, k.aliran));
        QTreeWidgetItem* induk = nullptr;
        for (int j = 0; j < pohon_->topLevelItemCount() && !induk; ++j)
            if (pohon_->topLevelItem(j)->text(0) == kelompok) induk = pohon_->topLevelItem(j);
        if (!induk) {
            induk = new QTreeWidgetItem({kelompok});
            induk->setFlags(Qt::ItemIsEnabled);
            pohon_->addTopLevelItem(induk);
        }
        auto* item = new QTreeWidgetItem({q(k.namaPohon)});
        item->setData(0, kPeranKitab, q(k.kode));
        item->setData(0, kPeranModul, QVariant::fromValue<qulonglong>(i));
        item->setToolTip(0, q(k.nama));
        induk->addChild(item);
    }
    pohon_->expandAll();
    // Every book's name whole: the panel is at least as wide as the tree's longest line.
    pohon_->header()->setStretchLastSection(false);
    pohon_->resizeColumnToContents(0);
    const int isi = pohon_->columnWidth(0);
    pohon_->header()->setStretchLastSection(true);
    pohon_->setMinimumWidth(isi + 2 * pohon_->frameWidth() +
                            pohon_->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, pohon_));
}

void FrmHisab::isiDaerah(const QString& pilih) {
    QSignalBlocker tahan(daerah_);
    daerah_->clear();
    for (const Tempat& t : koneksi_->registerDaerah().daftar())
        if (!t.nama.empty()) daerah_->addItem(q(t.nama));
    // The run falls back on Pasuruan's own record when the register lacks it, so it is always
    // a place to choose.
    const QString cadangan = q(Tempat::cadangan().nama);
    if (daerah_->findText(cadangan, Qt::MatchFixedString) < 0) daerah_->insertItem(0, cadangan);
    int i = daerah_->findText(pilih, Qt::MatchFixedString);
    if (i < 0) i = daerah_->findText(cadangan, Qt::MatchFixedString);
    daerah_->setCurrentIndex(i);
}

void FrmHisab::pilihHariIni() {
    const auto [tahun, bulan] = bulanHijriHariIni();
    tahunH_->setText(QString::number(tahun));
    QSignalBlocker tahan(bulan_);
    bulan_->setCurrentRow(bulan - 1);
    tahan.unblock();
    konversiTahun();
}

bool FrmHisab::pilih(const QString& tempat, const QString& tahun, int bulan) {
    const int i = daerah_->findText(tempat, Qt::MatchFixedString);
    if (i < 0 || bulan < 0 || bulan > 12) return false;
    daerah_->setCurrentIndex(i);
    if (!tahun.isNull()) tahunH_->setText(tahun);
    if (bulan) bulan_->setCurrentRow(bulan - 1);
    konversiTahun();
    return true;
}

QString FrmHisab::tempatTerpilih() const { return daerah_->currentText(); }
std::string FrmHisab::tahunTeks() const { return tahunH_->text().toStdString(); }
int FrmHisab::bulanTerpilih() const { return std::max(bulan_->currentRow(), 0) + 1; }

void FrmHisab::konversiTahun() {
    if (pekerja_->sibuk()) return;
    const std::string teks = tahunTeks();
    const auto tahun = BulatGenap32(ValAngka(teks));
    if (teks.empty() || !tahun || *tahun < Workspace::kTahunAwal || *tahun > Workspace::kTahunAkhir) {
        tahunM_->clear();
        return;
    }
    if (const auto awal = ClsKesimpulan::ConvertToHijri(*tahun, static_cast<int16_t>(bulanTerpilih()), 1))
        tahunM_->setText(QString::number(AmbilTingkat(*awal, MedanTahun)));
    else
        tahunM_->clear();
}

void FrmHisab::mulaiKerja(std::function<std::function<void()>()> tugas) {
    if (!pekerja_->mulai(std::move(tugas))) return;
    aturSibuk(true);
}

FrmHisab::Pilihan FrmHisab::pilihan() const { return {tahunTeks(), bulanTerpilih(), tempatTerpilih().toStdString()}; }

void FrmHisab::proses(Run run) {
    mulaiKerja([this, run = std::move(run), p = pilihan()]() -> std::function<void()> {
        const Workspace::HasilProses hasil = run(*ws_, p);
        return [this, hasil] { selesaiProses(hasil); };
    });
}

void FrmHisab::prosesBatch(Batch batch, Tab tab) {
    mulaiKerja([this, batch = std::move(batch), p = pilihan(), tab]() -> std::function<void()> {
        const Workspace::HasilBatch hasil = batch(*ws_, p);
        return [this, hasil, tab] { selesaiBatch(hasil, tab); };
    });
}

void FrmHisab::prosesKitab(const std::string& kode) {
    proses([kode](Workspace& ws, const Pilihan& p) { return ws.mnuProsesIjSub(kode, p.tahun, p.bulan, p.tempat); });
}

void FrmHisab::prosesSemuaMetode(int bulan, Tab tab) {
    prosesBatch([bulan](Workspace& ws, const Pilihan& p) {
        return ws.mnuProsesAllSub(p.tahun, bulan ? bulan : p.bulan, p.tempat);
    }, tab);
}

void FrmHisab::prosesSetahun(Tab tab) {
    prosesBatch([](Workspace& ws, const Pilihan& p) { return ws.duaBelasBulanSemuaKitab(p.tahun, p.tempat); }, tab);
}

bool FrmHisab::sibuk() const { return pekerja_->sibuk(); }

TabLembar* FrmHisab::tabAktif() const { return qobject_cast<TabLembar*>(tab_->currentWidget()); }

const LembarKerja* FrmHisab::lembarAktif() const {
    const TabLembar* t = tabAktif();
    return t ? &t->lembar() : nullptr;
}

std::vector<const LembarKerja*> FrmHisab::lembarTerbuka() const {
    std::vector<const LembarKerja*> semua;
    for (int i = 0; i < tab_->count(); ++i)
        if (const auto* t = qobject_cast<const TabLembar*>(tab_->widget(i))) semua.push_back(&t->lembar());
    return semua;
}

void FrmHisab::perbaruiMenu() {
    // The session is the worker's while a job runs; the pane catches up when it ends.
    if (const LembarKerja* l = lembarAktif(); l && !sibuk()) rumus_->ikuti(ws_->rumus, l->kunci);
    for (auto& [aksi, f] : perbarui_) f(*this, *aksi);
}

void FrmHisab::tampilkanRumus(bool tampil) {
    rumus_->setVisible(tampil);
    perbaruiMenu();
}

bool FrmHisab::rumusTampil() const { return !rumus_->isHidden(); }

void FrmHisab::aturSibuk(bool sibuk) {
    for (QAction* a : perintah_) a->setEnabled(!sibuk);
    pohon_->setEnabled(!sibuk);
    daerah_->setEnabled(!sibuk);
    stop_->setEnabled(sibuk);
    if (sibuk) {
        kemajuan_->setValue(0);
        statusBar()->showMessage(QStringLiteral("Sedang menghisab..."));
    } else {
        statusBar()->clearMessage();
        // A question still open when the job ended has nothing left to stop.
        if (tanya_) tanya_->reject();
        perbaruiMenu();
    }
}

void FrmHisab::selesaiProses(const Workspace::HasilProses& hasil) {
    aturSibuk(false);
    if (hasil.pesan) {
        tampilkanPesan(*hasil.pesan);
        return;
    }
    if (!hasil.lembar) return;
    tambahTab(*hasil.lembar);
    tab_->setCurrentIndex(tab_->count() - 1);
    tahunH_->setText(q(ws_->sesi.tahunHijri));
    konversiTahun();
}

void FrmHisab::selesaiBatch(const Workspace::HasilBatch& hasil, Tab tab) {
    aturSibuk(false);
    if (hasil.pesan) {
        tampilkanPesan(*hasil.pesan);
        return;
    }
    std::vector<bool> diganti(static_cast<size_t>(tab_->count()), false);
    int terakhir = -1;
    for (LembarKerja* l : hasil.lembar) {
        int i = 0;
        if (tab == Tab::Ganti)
            for (; i < static_cast<int>(diganti.size()); ++i)
                if (!diganti[static_cast<size_t>(i)] && qobject_cast<TabLembar*>(tab_->widget(i))->lembar().modul == l->modul)
                    break;
        if (tab == Tab::Ganti && i < static_cast<int>(diganti.size())) {
            gantiTab(i, *l);
            diganti[static_cast<size_t>(i)] = true;
            terakhir = i;
        } else {
            tambahTab(*l);
            terakhir = tab_->count() - 1;
        }
    }
    if (terakhir >= 0) {
        tab_->setCurrentIndex(terakhir);
        tahunH_->setText(q(ws_->sesi.tahunHijri));
        konversiTahun();
    }
    if (hasil.dihentikan)
        statusBar()->showMessage(QStringLiteral("Proses dihentikan: %1 lembar selesai.").arg(hasil.lembar.size()), 8000);
}

void FrmHisab::tampilkanPesan(const Workspace::Pesan& pesan) {
    // Every message of the session ends the command it answers: the stop sign, one button.
    BukaPesan(this, QMessageBox::Critical, q(pesan.judul), q(pesan.teks));
}

void FrmHisab::tambahTab(const LembarKerja& lembar) {
    auto* t = new TabLembar(lembar);
    const int i = tab_->addTab(t, q(lembar.judul));
    tab_->setTabToolTip(i, q(lembar.modul->nama) + QStringLiteral(" (") + q(lembar.kunci) + QLatin1Char(')'));
    tengah_->setCurrentWidget(tab_);
    perbaruiMenuLembar();
}

void FrmHisab::tutupTab(int indeks) {
    if (pekerja_->sibuk()) return;
    auto* t = qobject_cast<TabLembar*>(tab_->widget(indeks));
    if (!t) return;
    const LembarKerja* lembar = &t->lembar();
    tab_->removeTab(indeks);
    delete t;
    buangLembar(lembar);
    if (tab_->count() == 0) tengah_->setCurrentIndex(0);
    perbaruiMenuLembar();
}

void FrmHisab::gantiTab(int indeks, LembarKerja& baru) {
    auto* lama = qobject_cast<TabLembar*>(tab_->widget(indeks));
    const LembarKerja* lembarLama = &lama->lembar();
    ws_->rumus.pindah(baru.kunci, lembarLama->kunci);
    baru.kunci = lembarLama->kunci;
    auto* t = new TabLembar(baru);
    tab_->insertTab(indeks, t, q(baru.judul));
    tab_->setTabToolTip(indeks, q(baru.modul->nama) + QStringLiteral(" (") + q(baru.kunci) + QLatin1Char(')'));
    tab_->removeTab(indeks + 1);
    delete lama;
    buangLembar(lembarLama);
    perbaruiMenuLembar();
}

void FrmHisab::buangLembar(const LembarKerja* lembar) {
    auto& semua = ws_->lembar;
    semua.erase(std::remove_if(semua.begin(), semua.end(), [lembar](const auto& l) { return l.get() == lembar; }),
                semua.end());
}

void FrmHisab::tutupLembarAktif() {
    if (tab_->currentIndex() >= 0) tutupTab(tab_->currentIndex());
}

void FrmHisab::perbaruiMenuLembar() {
    // The items of the sheets follow the menu's own commands.
    for (QAction* a : menuLembar_->actions())
        if (a->objectName().startsWith(QStringLiteral("mnuSheet|"))) delete a;
    for (int i = 0; i < tab_->count(); ++i) {
        QAction* a = menuLembar_->addAction(tab_->tabText(i) + QStringLiteral("  -  ") + tab_->tabToolTip(i));
        a->setObjectName(QStringLiteral("mnuSheet|%1").arg(i + 1));
        connect(a, &QAction::triggered, this, [this, i] { tab_->setCurrentIndex(i); });
    }
    menuLembar_->menuAction()->setVisible(tab_->count() > 0);
}

void FrmHisab::tanyaBerhenti() {
    if (!pekerja_->sibuk() || tanya_) return;
    // The job waits while the user makes up their mind, so that "yes" stops it where it was.
    pekerja_->tahan();
    tanya_ = BukaPesan(this, QMessageBox::Warning, QStringLiteral("Ga' Sabaran"),
                       QStringLiteral("Yakin akan menghentikan proses ?"), QMessageBox::Ok | QMessageBox::Cancel,
                       [this](QMessageBox::StandardButton jawab) {
                           tanya_ = nullptr;
                           pekerja_->lepas(jawab == QMessageBox::Ok);
                       });
    tanya_->setObjectName("tanyaBerhenti");
}

void FrmHisab::bukaDaerah() {
    if (pekerja_->sibuk()) return;
    auto* dialog = new FrmDaerah(*koneksi_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, dialog] {
        if (dialog->berubah()) isiDaerah(tempatTerpilih());
    });
    dialog->open();
}

bool FrmHisab::simpanGambar(const QString& berkas) { return grab().save(berkas, "PNG"); }

void FrmHisab::closeEvent(QCloseEvent* e) {
    // A batch still running is asked to stop; the thread is joined when the window goes.
    if (pekerja_->sibuk()) pekerja_->lepas(true);
    QMainWindow::closeEvent(e);
}

}  // namespace falak::ui
