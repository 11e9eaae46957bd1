// The main window: the place, the Hijri year and month, the tree of treatises, the work sheets
// on their tabs, the menus, the progress bar and the stop button.
//
// The window owns the session. Runs and batches go to the worker thread one at a time; while
// one runs the commands that would start another are disabled, the progress bar moves and the
// stop button asks whether to stop. The window touches the session only while it is idle.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/Berkas.h"
#include "run/Workspace.h"
#include "ui/ModMenu.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QMessageBox;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace falak {
class ClsConnection;
}

namespace falak::ui {

class Pekerja;
class PanelRumus;
class TabLembar;

class FrmHisab : public QMainWindow {
    Q_OBJECT
public:
    // Opens the tables from the two folders and sets the window up; a table that could not be
    // read is told in a line at the top of the window.
    explicit FrmHisab(const LokasiData& lokasi, QWidget* induk = nullptr);
    ~FrmHisab() override;

    // What the user chose: the year as typed, the month, the place.
    struct Pilihan {
        std::string tahun;
        int bulan = 0;
        std::string tempat;
    };
    using Run = std::function<Workspace::HasilProses(Workspace& ws, const Pilihan& pilihan)>;
    using Batch = std::function<Workspace::HasilBatch(Workspace& ws, const Pilihan& pilihan)>;

    // Where a batch puts its sheets: each on a new tab, or in place of an open sheet of the
    // same book (the first not yet replaced, in the order of the tabs), which keeps its tab
    // and key; a sheet with no such tab gets a new one.
    enum class Tab { Baru, Ganti };

    // A run of one treatise for the chosen place, year and month, as a click in the tree does.
    void prosesKitab(const std::string& kode);
    // Every treatise for one month; 0 is the chosen month.
    void prosesSemuaMetode(int bulan, Tab tab = Tab::Baru);
    // Every treatise for the twelve months of the chosen year.
    void prosesSetahun(Tab tab = Tab::Baru);
    // A run or a batch of the session for the user's choice, on the worker thread; its sheets
    // come onto tabs, its message into a box. Nothing while another job runs.
    void proses(Run run);
    void prosesBatch(Batch batch, Tab tab = Tab::Baru);
    // Opens the places register.
    void bukaDaerah();
    // Closes the sheet in front, as its tab's close button does.
    void tutupLembarAktif();
    // Chooses the place, the year and the month, as the user would; a null year or a month 0
    // keeps what is chosen. False when the place is not in the list or the month is past 12.
    bool pilih(const QString& tempat, const QString& tahun, int bulan);
    // The whole window as a picture.
    bool simpanGambar(const QString& berkas);

    Pekerja& pekerja() const { return *pekerja_; }
    bool sibuk() const;
    // The session. Read or change it only while no job runs.
    Workspace& ruangKerja() const { return *ws_; }
    // The sheet in front, or none; every sheet on the tabs, in their order.
    TabLembar* tabAktif() const;
    const LembarKerja* lembarAktif() const;
    std::vector<const LembarKerja*> lembarTerbuka() const;
    // The formula pane beside the sheets, shown or hidden; it follows the tab in front.
    void tampilkanRumus(bool tampil);
    bool rumusTampil() const;
    PanelRumus& panelRumus() const { return *rumus_; }
    // The report of the tables that could not be read; empty when all were.
    const QString& laporanTabel() const { return laporanTabel_; }

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void buatTampilan();
    void buatMenu();
    void isiPohon();
    void isiDaerah(const QString& pilih);
    void pilihHariIni();

    QString tempatTerpilih() const;
    std::string tahunTeks() const;
    int bulanTerpilih() const;
    Pilihan pilihan() const;

    // One job on the worker thread; the commands are disabled until it is over.
    void mulaiKerja(std::function<std::function<void()>()> tugas);
    void aturSibuk(bool sibuk);
    // The items whose state follows the sheet in front.
    void perbaruiMenu();
    void selesaiProses(const Workspace::HasilProses& hasil);
    void selesaiBatch(const Workspace::HasilBatch& hasil, Tab tab);
    void tampilkanPesan(const Workspace::Pesan& pesan);
    void tambahTab(const LembarKerja& lembar);
    void tutupTab(int indeks);
    // The sheet at a tab gives way to a new one, which takes its key; the old one leaves the
    // session.
    void gantiTab(int indeks, LembarKerja& baru);
    void buangLembar(const LembarKerja* lembar);
    void perbaruiMenuLembar();
    // The Masehi year box after the Hijri year or month changed; the box shows the year in
    // which the chosen month begins, as every conversion writes it.
    void konversiTahun();
    void tanyaBerhenti();

    std::unique_ptr<ClsConnection> koneksi_;
    std::unique_ptr<Workspace> ws_;
    std::unique_ptr<Pekerja> pekerja_;
    QString laporanTabel_;

    QLabel* masalah_ = nullptr;
    QComboBox* daerah_ = nullptr;
    QLineEdit* tahunH_ = nullptr;
    QLineEdit* tahunM_ = nullptr;
    QListWidget* bulan_ = nullptr;
    QTreeWidget* pohon_ = nullptr;
    QStackedWidget* tengah_ = nullptr;
    QTabWidget* tab_ = nullptr;
    PanelRumus* rumus_ = nullptr;
    QProgressBar* kemajuan_ = nullptr;
    QPushButton* stop_ = nullptr;
    QMenu* menuLembar_ = nullptr;
    QMessageBox* tanya_ = nullptr;
    QList<QAction*> perintah_;  // the commands that start a job or change the register
    std::vector<std::pair<QAction*, AksiMenu>> perbarui_;
};

}  // namespace falak::ui
