// The main window driven as a user drives it: choose a place, a year and a month, click a
// treatise, read the tab, the grid and the conclusion; stop a batch; and the picture that
// falak-gui --screenshot saves.
#include <QComboBox>
#include <QDialog>
#include <QDate>
#include <QHelpEvent>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>
#include <QTreeWidget>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>

#include "JendelaUji.h"
#include "core/Koneksi.h"
#include "core/Sheet.h"
#include "run/Workspace.h"
#include "ui/FrmHisab.h"
#include "ui/ModMenu.h"
#include "ui/ModelLembar.h"
#include "ui/PanelRumus.h"
#include "ui/Pekerja.h"
#include "ui/TabLembar.h"

using namespace falak;
using namespace falak::ui;
using uji::cari;

namespace {

// Holds the worker at each progress report until the test lets it pass, so that a batch can
// be stopped at a known point however fast the machine is.
class Gerbang {
public:
    void pasang(Pekerja& p) {
        p.setelahLapor = [this](int, int) {
            std::unique_lock<std::mutex> kunci(m_);
            const int ini = ++laporan_;
            cv_.notify_all();
            cv_.wait(kunci, [&] { return izin_ >= ini; });
        };
    }
    // Window thread: waits until the worker stands at report n.
    bool tunggu(int n) {
        std::unique_lock<std::mutex> kunci(m_);
        return cv_.wait_for(kunci, std::chrono::seconds(30), [&] { return laporan_ >= n; });
    }
    void izinkan(int n) {
        {
            std::lock_guard<std::mutex> kunci(m_);
            izin_ = n;
        }
        cv_.notify_all();
    }

private:
    std::mutex m_;
    std::condition_variable cv_;
    int laporan_ = 0;
    int izin_ = 0;
};

QStringList isiCombo(const QComboBox& c) {
    QStringList s;
    for (int i = 0; i < c.count(); ++i) s << c.itemText(i);
    return s;
}

}  // namespace

class UjiFrmHisab : public QObject {
    Q_OBJECT

    uji::FolderJendela folder;
    std::unique_ptr<FrmHisab> w;

    QTabWidget* tab() { return cari<QTabWidget>(*w, "TabLembar"); }
    TabLembar* lembar(int i) { return qobject_cast<TabLembar*>(tab()->widget(i)); }
    void tungguSelesai() { QTRY_VERIFY_WITH_TIMEOUT(!w->pekerja().sibuk(), 30000); }

    void pilih(const QString& tempat, const QString& tahun, int bulan) {
        auto* daerah = cari<QComboBox>(*w, "cboDaerah");
        daerah->setCurrentIndex(daerah->findText(tempat));
        auto* tahunH = cari<QLineEdit>(*w, "RichTahunH");
        tahunH->selectAll();
        QTest::keyClick(tahunH, Qt::Key_Backspace);
        QTest::keyClicks(tahunH, tahun);
        auto* daftar = cari<QListWidget>(*w, "lstBulan");
        QTest::mouseClick(daftar->viewport(), Qt::LeftButton, {}, daftar->visualItemRect(daftar->item(bulan - 1)).center());
    }

    void klikKitab(const QString& nama) {
        auto* pohon = cari<QTreeWidget>(*w, "TreeKitab");
        // A book with eclipses stands also under the eclipse groups: the month's entry is meant.
        auto ketemu = pohon->findItems(nama, Qt::MatchExactly | Qt::MatchRecursive);
        ketemu.removeIf([](const QTreeWidgetItem* i) { return i->parent() && i->parent()->text(0).startsWith("Gerhana"); });
        QCOMPARE(ketemu.size(), 1);
        QTest::mouseClick(pohon->viewport(), Qt::LeftButton, {}, pohon->visualItemRect(ketemu[0]).center());
    }

private slots:
    void init() {
        w = std::make_unique<FrmHisab>(folder.lokasi());
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));
    }
    void cleanup() { w.reset(); }

    void startShowsPlacesMonthsAndOnlyTheTreatisesThatExist() {
        auto* daerah = cari<QComboBox>(*w, "cboDaerah");
        QCOMPARE(isiCombo(*daerah), QStringList({"Jakarta", "Pasuruan", "Surabaya"}));
        QCOMPARE(daerah->currentText(), QString("Pasuruan"));

        auto* bulan = cari<QListWidget>(*w, "lstBulan");
        const QStringList baris = {"01.  Muharrom", "02.  Shofar",  "03.  R. Awal",      "04.  R. Tsani",
                                   "05.  J. Ula",   "06.  J. Tsaniyah", "07.  Rojab",     "08.  Sy'ban",
                                   "09.  Romdlon",  "10.  Syawal",  "11.  Dzulqo'dah", "12.  Dzulhijjah"};
        QCOMPARE(bulan->count(), 12);
        for (int i = 0; i < 12; ++i) QCOMPARE(bulan->item(i)->text(), baris[i]);
        QVERIFY(bulan->currentRow() >= 0);
        // Today's Hijri year, and the Masehi year in which its chosen month begins.
        const int tahunH = cari<QLineEdit>(*w, "RichTahunH")->text().toInt();
        const int tahunM = cari<QLineEdit>(*w, "RichTahunM")->text().toInt();
        QVERIFY(qAbs(tahunM - QDate::currentDate().year()) <= 1);
        QVERIFY(qAbs(tahunM - (622 + tahunH * 354.367 / 365.2425)) <= 1);

        // The month groups of the tree have the treatises of the session in the order of the
        // registry; one that has no module yet is not there at all.
        ClsConnection koneksi(folder.lokasi());
        Workspace ws(koneksi);
        QStringList ada, absen;
        for (const EntriModul* k : Workspace::kitabTerdaftar())
            (ws.modul(*k) ? ada : absen) << QString::fromUtf8(k->kode.data(), static_cast<qsizetype>(k->kode.size()));
        QVERIFY(ada.contains("SN"));
        auto* pohon = cari<QTreeWidget>(*w, "TreeKitab");
        QStringList diPohon;
        for (QTreeWidgetItemIterator it(pohon); *it; ++it)
            if ((*it)->childCount() == 0 && (*it)->parent()->text(0).startsWith("Hisab "))
                diPohon << (*it)->data(0, Qt::UserRole).toString();
        QCOMPARE(diPohon.size(), ada.size());
        for (const QString& k : ada) QVERIFY2(diPohon.contains(k), qPrintable(k));
        QCOMPARE(pohon->topLevelItem(0)->text(0), QString("Hisab Taqribi"));
        QCOMPARE(pohon->topLevelItem(0)->child(0)->text(0), QString("Sullam al-Nairoin"));
        for (const QString& k : absen) {
            const EntriModul* kitab = CariModul(k.toStdString());
            QVERIFY(!cari(*w, QString("mnuProsesIj|%1").arg(kitab->kodeLembar)));
        }

        QVERIFY(!cari<QPushButton>(*w, "btnStop")->isEnabled());
        QCOMPARE(cari<QProgressBar>(*w, "ProgressBar1")->value(), 0);
        QVERIFY(cari<QLabel>(*w, "lblKosong")->isVisible());
    }

    void menusHaveTheirKeysAndCaptionsAndNothingThatDoesNotExist() {
        const std::pair<const char*, const char*> ada[] = {
            {"mnuExit", "Keluar (&Exit)"},         {"mnuNewDaerah", "Tambah/Hapus &Daerah"},
            {"mnuProsesIj|2", "Sullam al-Nairoin"}, {"mnuProsesAll", "Proses semua metode"},
            {"mnu12Bulan", "Satu tahun"},          {"mnuBulan|1", "01.  Muharrom"},
            {"mnuBulan|8", "08.  Sy'ban"},          {"mnuBulan|12", "12.  Dzulhijjah"},
            {"mnuAbout", "Seng Nggawe Program"}, {"mnuExportRumus", "Kirim Rumus ke Word (&Export to Word)"},
            {"mnuPicRumuz", "Tampilkan &Rumuz"}};
        for (const auto& [kunci, judul] : ada) {
            QAction* a = cari(*w, kunci);
            QVERIFY2(a, kunci);
            QCOMPARE(a->text(), QString::fromUtf8(judul));
            QVERIFY2(a->isEnabled(), kunci);
        }
        const std::pair<const char*, const char*> atas[] = {
            {"FILE", "&File"}, {"EDIT", "&Edit"}, {"PROSESMENU", "Proses"}, {"HELP", "&Help"}};
        for (const auto& [kunci, judul] : atas) QCOMPARE(cari<QMenu>(*w, kunci)->title(), QString(judul));
        QCOMPARE(cari<QMenu>(*w, "mnuBulan")->title(), QString("Bulan"));

        // Every key of the menu tree stands on the list the bar is built from. Those whose
        // work has landed are on the bar; the others are not there at all, not even as an
        // empty menu.
        const QStringList belum;
        const char* pohon[] = {"FILE",         "mnuExport",   "mnuExportThis", "mnuExportKet", "mnuExportAll",
                               "mnuExportRumus", "mnuPrint",  "mnuExit",       "EDIT",         "mnuPicRumuz",
                               "mnuNewDaerah", "PROSESMENU",  "mnuProsesIj",   "mnuProsesIj|2", "mnuProsesGB",
                               "mnuProsesGM",  "mnuProsesAll", "mnuProsesAll1", "mnu12Bulan1", "mnuBulan",     "mnuBulan|1",   "mnu12Bulan",
                               "mnuthGerhanaB", "mnthGB|1",   "mnuthGerhanaM", "mnthGM|1",     "HELP",
                               "mnuAbout",     "SHEETSMENU",  "mnuTutupLembar"};
        for (const QString kunci : pohon) {
            const QString awal = kunci.section('|', 0, 0);
            const bool tertulis = std::any_of(DaftarMenu().begin(), DaftarMenu().end(), [&](const ItemMenu& m) {
                return QString::fromUtf8(m.kunci.data(), static_cast<qsizetype>(m.kunci.size())) == awal;
            });
            QVERIFY2(tertulis, qPrintable(kunci));
            QCOMPARE(w->findChild<QObject*>(kunci) != nullptr, !belum.contains(kunci));
        }

        // The keys a desktop user reaches for; Ctrl+O opens the places register.
        QCOMPARE(cari(*w, "mnuExit")->shortcut(), QKeySequence(QKeySequence::Quit));
        QCOMPARE(cari(*w, "mnuNewDaerah")->shortcut(), QKeySequence(QKeySequence::Open));
        QTest::keyClick(w.get(), Qt::Key_O, Qt::ControlModifier);
        QDialog* daerah = nullptr;
        QTRY_VERIFY((daerah = w->findChild<QDialog*>("FrmDaerah")) && daerah->isVisible());
        daerah->reject();

        // No sheet yet, so no menu of sheets.
        QVERIFY(!cari<QMenu>(*w, "SHEETSMENU")->menuAction()->isVisible());

        cari(*w, "mnuAbout")->trigger();
        QMessageBox* kotak = uji::kotakTerbuka(*w);
        QVERIFY(kotak);
        QCOMPARE(kotak->windowTitle(), QString("Seng Nggawe Program"));
        QVERIFY(kotak->text().startsWith("Lek botoh bantuan nilpuno nang seng gawe :"));
        for (const char* label : {"\nNama ", "\nAlamat ", "\nEmail ", "\nTelp. "}) QVERIFY(kotak->text().contains(label));
        kotak->accept();
    }

    void clickInTheTreeRunsTheTreatiseIntoANewTab() {
        // A year typed with a leading zero is read as a number and written back.
        pilih("Surabaya", "01445", 8);
        klikKitab("Sullam al-Nairoin");
        QVERIFY(w->pekerja().sibuk() || tab()->count() == 1);
        tungguSelesai();

        QCOMPARE(tab()->count(), 1);
        TabLembar* t = lembar(0);
        QCOMPARE(t->objectName(), QString("IjSN_1"));
        QCOMPARE(tab()->tabText(0), QString("Hisab Awal Bulan 1445 H. 8"));
        QCOMPARE(cari<QLineEdit>(*w, "RichTahunH")->text(), QString("1445"));
        // Sya'ban 1445 ends in March 2024.
        QCOMPARE(cari<QLineEdit>(*w, "RichTahunM")->text(), QString("2024"));
        auto* bar = cari<QProgressBar>(*w, "ProgressBar1");
        QCOMPARE(bar->value(), bar->maximum());

        // The worked table: the heading across the sheet names the month that begins, the year
        // and the place by its display name; the year is split into its tens and the rest; the
        // frame cells come from the label table with their merges.
        GridLembar* g = t->grid();
        auto sel = [&](int b, int k) { return g->model().index(b, k).data().toString(); };
        QVERIFY(sel(0, 0).startsWith(QString::fromUtf8("حساب اجتماع النيرين")));
        QVERIFY(sel(0, 0).contains(QString::fromUtf8("شهر رمضان سنة 1445")));
        QVERIFY(sel(0, 0).endsWith(QString::fromUtf8("لبلد سورابايا")));
        QCOMPARE(g->columnSpan(0, 0), 40);
        QCOMPARE(sel(3, 39), QString("1440"));
        QCOMPARE(sel(4, 39), QString("5"));
        QCOMPARE(sel(5, 39), QString::fromUtf8("شعبان"));
        QCOMPARE(sel(1, 33), QString::fromUtf8("العلامة"));
        QCOMPARE(g->columnSpan(1, 33), 5);
        QCOMPARE(sel(29, 39), QString("Surabaya"));

        // The sheet reads from the right but the grid is not mirrored: column 0 is at the left,
        // the Arabic labels keep to the right of their cells, and the view opens at the right.
        QCOMPARE(g->layoutDirection(), Qt::LeftToRight);
        QVERIFY(g->columnViewportPosition(0) < g->columnViewportPosition(39));
        const auto rata = g->model().index(5, 39).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        QVERIFY(rata & Qt::AlignRight);
        QVERIFY(rata & Qt::AlignAbsolute);
        QCOMPARE(g->horizontalScrollBar()->value(), g->horizontalScrollBar()->maximum());
        QCOMPARE(QFontInfo(g->font()).family(), QString("Amiri"));  // installed, not just asked for

        // The conclusion beside the sheet: the treatise, the month that ends, and the place.
        const QStringList kesimpulan = t->kesimpulan()->toPlainText().split('\n');
        QCOMPARE(kesimpulan.value(0), QString("Sullam al-Nairoin"));
        QVERIFY(kesimpulan.value(1).startsWith("Awal bulan sesudah Sy'ban : "));
        QVERIFY(kesimpulan.contains(QString::fromUtf8("Tempat : Surabaya 7° 15' LS | 112° 45' BT")));
        QVERIFY(kesimpulan.contains(QString::fromUtf8("Markaz : Jakarta 6° 15' LS | 106° 52' BT")));
    }

    void menuCommandsRunSelectAndCloseSheets() {
        pilih("Pasuruan", "1445", 9);
        cari(*w, "mnuProsesIj|2")->trigger();
        tungguSelesai();
        klikKitab("Sullam al-Nairoin");
        tungguSelesai();
        cari(*w, "mnuBulan|12")->trigger();  // every treatise for Dzulhijjah
        tungguSelesai();
        const int n = tab()->count();
        QVERIFY(n >= 3);
        QCOMPARE(lembar(0)->objectName(), QString("IjSN_1"));
        QCOMPARE(lembar(1)->objectName(), QString("IjSN_2"));
        QCOMPARE(tab()->tabText(1), QString("Hisab Awal Bulan 1445 H. 9"));
        QCOMPARE(tab()->tabText(2), QString("Hisab Awal Bulan 1445 H. 12"));
        QCOMPARE(tab()->currentIndex(), n - 1);

        // One item per sheet in the sheets menu; an item brings its sheet to the front.
        QVERIFY(cari<QMenu>(*w, "SHEETSMENU")->menuAction()->isVisible());
        QVERIFY(cari(*w, QString("mnuSheet|%1").arg(n)));
        cari(*w, "mnuSheet|1")->trigger();
        QCOMPARE(tab()->currentIndex(), 0);

        // Closing a sheet takes its tab and its menu item; the next run's key goes on counting.
        emit tab()->tabCloseRequested(0);
        QCOMPARE(tab()->count(), n - 1);
        QCOMPARE(lembar(0)->objectName(), QString("IjSN_2"));
        QVERIFY(!cari(*w, QString("mnuSheet|%1").arg(n)));
        cari(*w, "mnuProsesIj|2")->trigger();
        tungguSelesai();
        QVERIFY(lembar(tab()->count() - 1)->objectName().startsWith("IjSN_"));
        QVERIFY(lembar(tab()->count() - 1)->objectName() != "IjSN_1");

        // Ctrl+W closes the sheet in front; the sheets menu keeps its own command.
        const int sisa = tab()->count();
        const QString depan = lembar(tab()->currentIndex())->objectName();
        QTest::keyClick(w.get(), Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(tab()->count(), sisa - 1);
        for (int i = 0; i < tab()->count(); ++i) QVERIFY(lembar(i)->objectName() != depan);
        QVERIFY(cari(*w, "mnuTutupLembar"));
        QVERIFY(!cari(*w, QString("mnuSheet|%1").arg(sisa)));
    }

    void allMethodsReplaceTheOpenSheetsUnlessANewTabIsAsked() {
        pilih("Pasuruan", "1445", 8);
        cari(*w, "mnuProsesAll")->trigger();
        tungguSelesai();
        const int n = tab()->count();
        QCOMPARE(n, static_cast<int>(w->ruangKerja().kitabTersedia().size()));
        QStringList kunci;
        for (int i = 0; i < n; ++i) kunci << lembar(i)->objectName();

        // Each book's new sheet stands where its old one stood, under the old key; the old
        // sheets are gone from the session.
        pilih("Pasuruan", "1445", 9);
        cari(*w, "mnuProsesAll")->trigger();
        tungguSelesai();
        QCOMPARE(tab()->count(), n);
        QCOMPARE(static_cast<int>(w->ruangKerja().lembar.size()), n);
        for (int i = 0; i < n; ++i) {
            QCOMPARE(lembar(i)->objectName(), kunci[i]);
            QCOMPARE(tab()->tabText(i), QString("Hisab Awal Bulan 1445 H. 9"));
        }

        QCOMPARE(cari(*w, "mnuProsesAll1")->text(), QString("Proses semua metode (Tab Baru)"));
        cari(*w, "mnuProsesAll1")->trigger();
        tungguSelesai();
        QCOMPARE(tab()->count(), 2 * n);
        QCOMPARE(tab()->currentIndex(), 2 * n - 1);
        QVERIFY(!kunci.contains(lembar(n)->objectName()));

        // A replaced precise book's tab shows the formula sheet of its new run.
        const int bm = static_cast<int>(kunci.indexOf(QRegularExpression("IjBM_\\d+")));
        QVERIFY(bm >= 0);
        tab()->setCurrentIndex(bm);
        cari(*w, "mnuPicRumuz")->trigger();
        QVERIFY(w->panelRumus().isi().contains(QString::fromUtf8("☉ = 20°")));
    }

    void formulaPaneFollowsTheTabInFront() {
        pilih("Jakarta", "1445", 8);
        klikKitab("Ephemeris");
        tungguSelesai();
        klikKitab("Badi'atu al-Mitsal");
        tungguSelesai();
        pilih("Jakarta", "1445", 9);
        klikKitab("Badi'atu al-Mitsal");
        tungguSelesai();
        klikKitab("Sullam al-Nairoin");
        tungguSelesai();
        QCOMPARE(tab()->count(), 4);

        PanelRumus& panel = w->panelRumus();
        QAction* perintah = cari(*w, "mnuPicRumuz");
        QVERIFY(!panel.isVisible());
        tab()->setCurrentIndex(2);
        perintah->trigger();
        QVERIFY(panel.isVisible());
        QCOMPARE(perintah->text(), QString("Tutup &Rumuz"));
        // Each tab brings its own run's sheet: the Ephemeris, then the two months of the same book.
        QCOMPARE(panel.judul(), QString("RUMUS BADIATUL MITSAL"));
        const QString ramadan = panel.isi();
        QVERIFY(ramadan.startsWith("1. Bujur Matahari hakiki\n"));
        tab()->setCurrentIndex(0);
        QCOMPARE(panel.judul(), QString("RUMUS IJTIMA EPHEMERIS"));
        QVERIFY(panel.isi().startsWith("1. Jam FIB terkecil"));
        tab()->setCurrentIndex(1);
        QVERIFY(panel.isi().contains(QString::fromUtf8("☉ = 350°")));
        QVERIFY(!ramadan.contains(QString::fromUtf8("☉ = 350°")));

        // The wheel scrolls it; another sheet comes on view from its top.
        QScrollBar* tegak = panel.gulung().verticalScrollBar();
        QVERIFY(tegak->maximum() > 0);
        QWidget* layar = panel.gulung().viewport();
        QWheelEvent roda(QPointF(20, 20), layar->mapToGlobal(QPointF(20, 20)), QPoint(), QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(layar, &roda);
        QVERIFY(tegak->value() > 0);
        tab()->setCurrentIndex(2);
        QCOMPARE(panel.isi(), ramadan);
        QCOMPARE(tegak->value(), 0);

        // A tab whose book has no formula sheet leaves the pane as it was.
        tab()->setCurrentIndex(3);
        QCOMPARE(panel.isi(), ramadan);

        perintah->trigger();
        QVERIFY(!panel.isVisible());
        QCOMPARE(perintah->text(), QString("Tampilkan &Rumuz"));
    }

    void emptyYearAndYearsBeyondTheBooksAreRefusedWithAMessage() {
        pilih("Pasuruan", "", 8);
        klikKitab("Sullam al-Nairoin");
        tungguSelesai();
        QMessageBox* kotak = nullptr;
        QTRY_VERIFY((kotak = uji::kotakTerbuka(*w)));
        QCOMPARE(kotak->windowTitle(), QString("Ojok kesusu.."));
        QCOMPARE(kotak->text(), QString("Tahun belum diisi.\nSilahkan tentukan tahun sebelum Anda mengakses data."));
        QCOMPARE(kotak->icon(), QMessageBox::Critical);
        QCOMPARE(kotak->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(tab()->count(), 0);
        kotak->button(QMessageBox::Ok)->click();
        QTRY_VERIFY(!uji::kotakTerbuka(*w));

        // The books serve the years 1 to 3000 H: no Masehi year is shown for another, and a run
        // or a batch says why it does nothing.
        pilih("Pasuruan", "3001", 8);
        QVERIFY(cari<QLineEdit>(*w, "RichTahunM")->text().isEmpty());
        for (const char* perintah : {"mnuProsesIj|2", "mnuProsesAll"}) {
            cari(*w, perintah)->trigger();
            tungguSelesai();
            QTRY_VERIFY((kotak = uji::kotakTerbuka(*w)));
            QCOMPARE(kotak->windowTitle(), QString("Ojok kesusu.."));
            QVERIFY2(kotak->text().contains("3001 H di luar jangkauan") && kotak->text().contains("1 sampai 3000"),
                     qPrintable(kotak->text()));
            kotak->button(QMessageBox::Ok)->click();
            QTRY_VERIFY(!uji::kotakTerbuka(*w));
        }
        QCOMPARE(tab()->count(), 0);
        pilih("Pasuruan", "3000", 8);
        QVERIFY(!cari<QLineEdit>(*w, "RichTahunM")->text().isEmpty());
    }

    void stopAsksAndEndsATwelveMonthBatchBetweenRuns() {
        Gerbang gerbang;
        gerbang.pasang(w->pekerja());
        pilih("Pasuruan", "1445", 1);
        auto* stop = cari<QPushButton>(*w, "btnStop");
        auto* pohon = cari<QTreeWidget>(*w, "TreeKitab");

        gerbang.izinkan(3);
        cari(*w, "mnu12Bulan")->trigger();
        // Report 4 comes after the third run. The window answers while the batch works.
        QVERIFY(gerbang.tunggu(4));
        QVERIFY(stop->isEnabled());
        QVERIFY(!pohon->isEnabled());
        QVERIFY(!cari(*w, "mnuProsesAll")->isEnabled());
        QVERIFY(!cari(*w, "mnuNewDaerah")->isEnabled());
        QTRY_COMPARE(cari<QProgressBar>(*w, "ProgressBar1")->value(), 3);

        // "Cancel": the batch goes on.
        QTest::mouseClick(stop, Qt::LeftButton);
        QMessageBox* tanya = uji::kotakTerbuka(*w);
        QVERIFY(tanya);
        QCOMPARE(tanya->windowTitle(), QString("Ga' Sabaran"));
        QCOMPARE(tanya->text(), QString("Yakin akan menghentikan proses ?"));
        QCOMPARE(tanya->icon(), QMessageBox::Warning);
        QCOMPARE(tanya->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        tanya->button(QMessageBox::Cancel)->click();
        gerbang.izinkan(4);
        QVERIFY(gerbang.tunggu(5));

        // "OK": the run under way is finished and no other begins.
        QTest::mouseClick(stop, Qt::LeftButton);
        QTRY_VERIFY((tanya = uji::kotakTerbuka(*w)));
        tanya->button(QMessageBox::Ok)->click();
        gerbang.izinkan(1000);
        tungguSelesai();

        QCOMPARE(tab()->count(), 4);
        QCOMPARE(lembar(0)->objectName(), QString("IjSN_1"));
        QCOMPARE(tab()->tabText(0), QString("Hisab Awal Bulan 1445 H. 1"));
        QVERIFY(w->statusBar()->currentMessage().contains("dihentikan"));
        QVERIFY(!stop->isEnabled());
        QVERIFY(pohon->isEnabled());
        QVERIFY(cari(*w, "mnu12Bulan")->isEnabled());

        // The next batch is not stopped by the old request.
        gerbang.izinkan(1 << 20);
        cari(*w, "mnuBulan|2")->trigger();
        tungguSelesai();
        QVERIFY(tab()->count() >= 5);
    }

    void missingTablesAreToldAndThePlacesListKeepsTheFallback() {
        QTemporaryDir kosong;
        FrmHisab sepi(LokasiData{kosong.filePath("data").toStdString(), kosong.filePath("pengguna").toStdString()});
        sepi.show();
        QVERIFY(QTest::qWaitForWindowExposed(&sepi));
        auto* label = cari<QLabel>(sepi, "lblMasalah");
        QVERIFY(label->isVisible());
        QVERIFY(label->text().contains("tabel yang tidak bisa dibaca"));
        QVERIFY(sepi.laporanTabel().contains("TRBTaadil"));
        QCOMPARE(isiCombo(*cari<QComboBox>(sepi, "cboDaerah")), QStringList({"Pasuruan"}));
    }

    void namesOfAnyScriptAndLengthStayReadable() {
        // A place written in Arabic, one with a very long name; the window starts anew to
        // read them.
        const QString makkah = QString::fromUtf8("مكة المكرمة");
        const QString panjang = QStringLiteral("Kampung") + QStringLiteral(" Sangat Panjang Namanya").repeated(6);
        std::ofstream(folder.berkasDaerah(), std::ios::app)
            << makkah.toStdString() << ',' << makkah.toStdString() << ",21,25,LU,39,49,BT,3,0\n"
            << panjang.toStdString() << ',' << panjang.toStdString() << ",7,0,LS,110,0,BT,7,0\n";
        w = std::make_unique<FrmHisab>(folder.lokasi());
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));

        // The Arabic name sits whole between the label and its coordinates, which read from
        // the left as in every other line.
        pilih(makkah, "1445", 8);
        klikKitab("Sullam al-Nairoin");
        tungguSelesai();
        QPlainTextEdit* teks = lembar(0)->kesimpulan();
        const QString baris = QString::fromUtf8("Tempat : \u2068مكة المكرمة\u2069 21° 25' LU | 39° 49' BT");
        const QStringList semua = teks->toPlainText().split('\n');
        QVERIFY2(semua.contains(baris), qPrintable(semua.join('\n')));
        const QTextBlock blok = teks->document()->findBlockByNumber(static_cast<int>(semua.indexOf(baris)));
        QVERIFY(blok.layout() && blok.layout()->lineCount() == 1);
        const QTextLine garis = blok.layout()->lineAt(0);
        auto x = [&](const QString& potongan, int geser = 0) {
            return garis.cursorToX(static_cast<int>(baris.indexOf(potongan)) + geser);
        };
        QVERIFY(x(":") < x(makkah) && x(":") < x(makkah, makkah.size()));
        QVERIFY(x(makkah) < x("21") && x(makkah, makkah.size()) < x("21"));
        QVERIFY(x("21") < x("25"));
        QVERIFY(x("25") < x("LU"));
        QVERIFY(x("LU") < x("39"));
        QVERIFY(x("39") < x("49"));

        // The long name: the box and its column keep their width, the text shortened and whole
        // in its tip; the Arabic heading holds it apart.
        auto* daerah = cari<QComboBox>(*w, "cboDaerah");
        QVERIFY(daerah->sizeHint().width() < daerah->fontMetrics().horizontalAdvance(panjang) / 2);
        pilih(panjang, "1445", 8);
        klikKitab("Sullam al-Nairoin");
        tungguSelesai();
        GridLembar* g = lembar(1)->grid();
        QVERIFY(g->model().index(0, 0).data().toString().endsWith(QString::fromUtf8("لبلد \u2068") + panjang + QChar(0x2069)));
        QModelIndex sel;
        for (int b = 0; b < g->model().rowCount() && !sel.isValid(); ++b)
            if (g->model().index(b, 39).data().toString() == panjang) sel = g->model().index(b, 39);
        QVERIFY(sel.isValid());
        const int lebarNama = g->fontMetrics().horizontalAdvance(panjang);
        QVERIFY(g->columnWidth(39) < lebarNama / 2);
        int lebarLembar = 0;
        for (int k = 0; k < g->model().columnCount(); ++k) lebarLembar += g->columnWidth(k);
        QVERIFY(lebarLembar < 2000);
        g->scrollTo(sel);
        const QPoint titik = g->visualRect(sel).center();
        QHelpEvent tanya(QEvent::ToolTip, titik, g->viewport()->mapToGlobal(titik));
        QApplication::sendEvent(g->viewport(), &tanya);
        QTRY_COMPARE(QToolTip::text(), panjang);

        // The last row shown is the book's last step; the frame's spare rows below it are not.
        pilih("Pasuruan", "1445", 8);
        klikKitab("Fathu al-Ro'uf al-Mannan");
        tungguSelesai();
        const ModelLembar& fr = lembar(2)->grid()->model();
        QVERIFY(fr.rowCount() < fr.lembar().jumlahBaris());
        QStringList akhir;
        for (int k = 0; k < fr.columnCount(); ++k) akhir << fr.index(fr.rowCount() - 1, k).data().toString();
        QVERIFY2(akhir.contains(QString::fromUtf8("نور الهلال")), qPrintable(akhir.join('|')));

        // Every book's name whole in the tree.
        auto* pohon = cari<QTreeWidget>(*w, "TreeKitab");
        for (QTreeWidgetItemIterator it(pohon); *it; ++it) {
            const int kanan = pohon->visualItemRect(*it).left() + pohon->fontMetrics().horizontalAdvance((*it)->text(0));
            QVERIFY2(kanan < pohon->viewport()->width(), qPrintable((*it)->text(0)));
        }

        std::ofstream(folder.berkasDaerah()) << uji::kDaerahUji;
    }

    void eclipseMenuOpensTheSheetWithItsConclusion() {
        // The total lunar eclipse of 26 May 2021, in mid-Syawal 1442, by Fathu al-Ro'uf.
        pilih("Surabaya", "1442", 10);
        cari(*w, "mnuProsesGB|7")->trigger();
        tungguSelesai();
        QCOMPARE(tab()->count(), 1);
        TabLembar* t = lembar(0);
        QVERIFY2(t->objectName().startsWith("HsFR_"), qPrintable(t->objectName()));
        const QStringList kesimpulan = t->kesimpulan()->toPlainText().split('\n');
        QCOMPARE(kesimpulan.value(0), QString("Fathu al-Ro'uf al-Mannan"));
        QVERIFY2(kesimpulan.value(1).startsWith("Gerhana terjadi pada : Malam Kamis"), qPrintable(kesimpulan.value(1)));
        QVERIFY(kesimpulan.value(1).endsWith("27 Mei 2021 M."));
        // The book's sum row keeps the sun's mean place in its third group.
        GridLembar* g = t->grid();
        QVERIFY(g->model().index(0, 0).data().toString().startsWith(QString::fromUtf8("خسوف القمر في شهر شوال سنة 1442")));
        QCOMPARE(g->model().index(1, 21).data().toString(), QString::fromUtf8("الوسط"));
    }

    void screenshotSavesTheWholeWindowAfterARun() {
        QTemporaryDir tmp;
        const QString gambar = tmp.filePath("layar.png");
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("FALAK_DATA", FALAK_DATA_UJI);
        env.insert("FALAK_DATA_HOME", QString::fromStdString(folder.pengguna().string()));
        env.remove("DISPLAY");
        env.remove("QT_QPA_PLATFORM");
        p.setProcessEnvironment(env);
        p.start(FALAK_GUI, {"--screenshot", gambar, "--markaz", "Surabaya", "--tahun", "1445", "--bulan", "8"});
        QVERIFY(p.waitForFinished(60000));
        QCOMPARE(p.exitCode(), 0);
        const QImage layar(gambar);
        QVERIFY(!layar.isNull());
        QVERIFY(layar.width() >= 1000 && layar.height() >= 700);

        p.start(FALAK_GUI, {"--screenshot", gambar, "--markaz", "Atlantis"});
        QVERIFY(p.waitForFinished(60000));
        QCOMPARE(p.exitCode(), 2);
        QVERIFY(p.readAllStandardError().contains("Atlantis"));
    }
};

QTEST_MAIN(UjiFrmHisab)
#include "test_frm_hisab.moc"
