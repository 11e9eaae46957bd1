// The places register dialog, opened from the menu as a user opens it: add, change and delete
// a place, with the register's checks, and see each change on the disk and in the window.
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "JendelaUji.h"
#include "ui/FrmDaerah.h"
#include "ui/FrmHisab.h"

using namespace falak;
using namespace falak::ui;
using uji::cari;

class UjiFrmDaerah : public QObject {
    Q_OBJECT

    uji::FolderJendela folder;
    std::unique_ptr<FrmHisab> w;

    FrmDaerah* buka() {
        cari(*w, "mnuNewDaerah")->trigger();
        auto* d = w->findChild<FrmDaerah*>();
        if (d && !QTest::qWaitForWindowExposed(d)) return nullptr;
        return d;
    }
    static void isi(FrmDaerah& d, const char* kunci, const QString& teks) {
        auto* e = cari<QLineEdit>(d, kunci);
        e->selectAll();
        QTest::keyClick(e, Qt::Key_Backspace);
        QTest::keyClicks(e, teks);
    }
    static void pilihBaris(FrmDaerah& d, const QString& nama) {
        auto* t = cari<QTableWidget>(d, "BaladIN");
        const auto ketemu = t->findItems(nama, Qt::MatchExactly);
        QVERIFY(!ketemu.isEmpty());
        t->selectRow(ketemu[0]->row());
    }
    QStringList tempat() {
        auto* c = cari<QComboBox>(*w, "cboDaerah");
        QStringList s;
        for (int i = 0; i < c->count(); ++i) s << c->itemText(i);
        return s;
    }

private slots:
    void init() {
        w = std::make_unique<FrmHisab>(folder.lokasi());
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));
    }
    void cleanup() { w.reset(); }

    void addChangeAndDeleteArePersistedAtOnce() {
        FrmDaerah* d = buka();
        QVERIFY(d);
        QCOMPARE(d->windowTitle(), QString("Tambah/Hapus Daerah"));
        auto* daftar = cari<QTableWidget>(*d, "BaladIN");
        QCOMPARE(daftar->rowCount(), 3);

        isi(*d, "txtNama", "Lasem");
        isi(*d, "txtNamaTampil", "");
        isi(*d, "txtLintangDerajat", "6");
        isi(*d, "txtLintangMenit", "42");
        cari<QComboBox>(*d, "cboArahLintang")->setCurrentText("LS");
        isi(*d, "txtBujurDerajat", "111");
        isi(*d, "txtBujurMenit", "26");
        cari<QComboBox>(*d, "cboArahBujur")->setCurrentText("BT");
        isi(*d, "txtZona", "7");
        isi(*d, "txtTinggi", "10");
        QTest::mouseClick(cari<QPushButton>(*d, "btnTambah"), Qt::LeftButton);
        QVERIFY(!uji::kotakTerbuka(*d));
        QCOMPARE(daftar->rowCount(), 4);
        // Saved at once, with the name as the display name, in the register's column order.
        QVERIFY(folder.isiDaerah().ends_with("\nLasem,Lasem,6,42,LS,111,26,BT,7,10\n"));
        // Written through a temporary file that is gone again, under the register's lock.
        QCOMPARE(QDir(QString::fromStdString(folder.pengguna().string())).entryList(QDir::Files),
                 QStringList({"Daerah.csv", "Daerah.csv.lock"}));

        // A change of the chosen place replaces its row.
        pilihBaris(*d, "Lasem");
        QCOMPARE(cari<QLineEdit>(*d, "txtBujurDerajat")->text(), QString("111"));
        isi(*d, "txtTinggi", "12");
        QTest::mouseClick(cari<QPushButton>(*d, "btnUbah"), Qt::LeftButton);
        QVERIFY(folder.isiDaerah().ends_with("\nLasem,Lasem,6,42,LS,111,26,BT,7,12\n"));
        QCOMPARE(daftar->rowCount(), 4);

        QTest::mouseClick(cari<QPushButton>(*d, "btnTutup"), Qt::LeftButton);
        QTRY_VERIFY(!w->findChild<FrmDaerah*>());
        QVERIFY(tempat().contains("Lasem"));

        // Deleting asks first; "No" keeps the place.
        d = buka();
        QVERIFY(d);
        pilihBaris(*d, "Lasem");
        QTest::mouseClick(cari<QPushButton>(*d, "btnHapus"), Qt::LeftButton);
        QMessageBox* tanya = uji::kotakTerbuka(*d);
        QVERIFY(tanya);
        tanya->button(QMessageBox::No)->click();
        QVERIFY(folder.isiDaerah().find("Lasem") != std::string::npos);
        QTest::mouseClick(cari<QPushButton>(*d, "btnHapus"), Qt::LeftButton);
        QTRY_VERIFY((tanya = uji::kotakTerbuka(*d)));
        tanya->button(QMessageBox::Yes)->click();
        QCOMPARE(folder.isiDaerah(), std::string(uji::kDaerahUji));
        QTest::mouseClick(cari<QPushButton>(*d, "btnTutup"), Qt::LeftButton);
        QTRY_VERIFY(!w->findChild<FrmDaerah*>());
        QCOMPARE(tempat(), QStringList({"Jakarta", "Pasuruan", "Surabaya"}));
    }

    void badInputIsRefusedInTheRegistersWordsAndNothingIsSaved() {
        FrmDaerah* d = buka();
        QVERIFY(d);
        struct Kasus {
            const char* kunci;
            const char* teks;
            const char* pesan;
        };
        const Kasus kasus[] = {
            {"txtNama", "Surabaya", "Tempat \"Surabaya\" sudah ada di daftar. Pakai nama lain, atau ubah yang sudah ada."},
            {"txtLintangDerajat", "95", "Derajat lintang harus antara 0 sampai 90, bukan 95."},
            {"txtBujurMenit", "60", "Menit bujur harus antara 0 sampai 59, bukan 60."},
            {"txtZona", "", "Zona waktu belum diisi. Misalnya 7 untuk WIB, 8 WITA, 9 WIT."},
        };
        for (const Kasus& k : kasus) {
            isi(*d, "txtNama", "Rembang");
            isi(*d, "txtLintangDerajat", "6");
            isi(*d, "txtLintangMenit", "42");
            isi(*d, "txtBujurDerajat", "111");
            isi(*d, "txtBujurMenit", "20");
            isi(*d, "txtZona", "7");
            isi(*d, k.kunci, k.teks);
            QTest::mouseClick(cari<QPushButton>(*d, "btnTambah"), Qt::LeftButton);
            QMessageBox* kotak = uji::kotakTerbuka(*d);
            QVERIFY2(kotak, k.pesan);
            QCOMPARE(kotak->windowTitle(), QString("Tambah/Hapus Daerah"));
            QCOMPARE(kotak->text(), QString::fromUtf8(k.pesan));
            kotak->button(QMessageBox::Ok)->click();
            QTRY_VERIFY(!uji::kotakTerbuka(*d));
            QCOMPARE(folder.isiDaerah(), std::string(uji::kDaerahUji));
        }
        QCOMPARE(cari<QTableWidget>(*d, "BaladIN")->rowCount(), 3);
        d->reject();
    }
};

QTEST_MAIN(UjiFrmDaerah)
#include "test_frm_daerah.moc"
