#include "ui/ModMenu.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>

#include <map>

#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "ui/FrmHisab.h"
#include "ui/FrmKalender.h"
#include "ui/KotakPesan.h"
#include "ui/Kirim.h"

namespace falak::ui {

namespace {

QString q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

void keluar(FrmHisab& j, QAction&) { j.close(); }
void bukaDaerah(FrmHisab& j, QAction&) { j.bukaDaerah(); }
void tutupLembar(FrmHisab& j, QAction&) { j.tutupLembarAktif(); }
void prosesKitab(FrmHisab& j, const EntriModul& m) { j.prosesKitab(std::string(m.kode)); }
void prosesSemuaMetode(FrmHisab& j, QAction&) { j.prosesSemuaMetode(0, FrmHisab::Tab::Ganti); }
void prosesSemuaMetodeTabBaru(FrmHisab& j, QAction&) { j.prosesSemuaMetode(0); }
void prosesBulan(FrmHisab& j, int bulan) { j.prosesSemuaMetode(bulan); }
void prosesSetahun(FrmHisab& j, QAction&) { j.prosesSetahun(FrmHisab::Tab::Ganti); }
void prosesSetahunTabBaru(FrmHisab& j, QAction&) { j.prosesSetahun(); }
void bukaKalender(FrmHisab& j, QAction&) {
    auto* dialog = new FrmKalender(j.ruangKerja(), j.findChild<QComboBox*>("cboDaerah")->currentText(), &j);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
void eksporIni(FrmHisab& j, QAction&) { KirimExcel(j, BagianKirim::HalamanIni); }
void eksporKet(FrmHisab& j, QAction&) { KirimExcel(j, BagianKirim::Keterangan); }
void eksporSemua(FrmHisab& j, QAction&) { KirimExcel(j, BagianKirim::Semua); }
void eksporRumus(FrmHisab& j, QAction&) { KirimRumus(j); }
void cetak(FrmHisab& j, QAction&) { Cetak(j); }

// One book's eclipse of the chosen month, on a sheet as a month's reckoning opens.
void prosesGerhana(FrmHisab& j, const EntriModul& m) {
    j.proses([kode = std::string(m.kode), jenis = m.garapan](Workspace& ws, const FrmHisab::Pilihan& p) {
        return ws.mnuProsesGerhana(jenis, kode, p.tahun, p.bulan, p.tempat);
    });
}

// The search over the chosen year and the n - 1 after it, by every book that reckons that
// eclipse: a sheet for each eclipse found. The stop button ends it between two months.
void gerhanaBeberapaTahun(FrmHisab& j, Garapan jenis, int n) {
    j.prosesBatch([jenis, n](Workspace& ws, const FrmHisab::Pilihan& p) {
        Workspace::HasilBatch semua;
        const int32_t akhir = BulatGenap32(ValAngka(p.tahun)).value_or(0) + n - 1;
        for (const EntriModul& e : DaftarModul()) {
            if (e.garapan != jenis || !e.tersedia()) continue;
            Workspace::HasilBatch h = ws.cariGerhana(jenis, std::string(e.kode), p.tahun, akhir, p.tempat,
                                                     Workspace::Keluaran::Lembar);
            semua.lembar.insert(semua.lembar.end(), h.lembar.begin(), h.lembar.end());
            if (h.pesan) semua.pesan = h.pesan;
            if ((semua.dihentikan = h.dihentikan) || h.pesan) break;
        }
        return semua;
    });
}
void gerhanaBulanTahun(FrmHisab& j, int n) { gerhanaBeberapaTahun(j, Garapan::Hs, n); }
void gerhanaMatahariTahun(FrmHisab& j, int n) { gerhanaBeberapaTahun(j, Garapan::Kf, n); }

QString judulBulan(int bulan) { return QString::fromUtf8(kBarisBulan[static_cast<size_t>(bulan - 1)]); }
QString tahunKedepan(int n) { return QString::number(n) + QStringLiteral(" tahun kedepan"); }

void tentang(FrmHisab& j, QAction&) {
    BukaPesan(&j, QMessageBox::Information, QStringLiteral("Seng Nggawe Program"),
              QStringLiteral("Lek botoh bantuan nilpuno nang seng gawe :\n\n"
                             "Nama : Tim pengembang falak\n"
                             "Alamat : -\n"
                             "Email : -\n"
                             "Telp. : -"));
}

// The formula pane: the command shows or hides it, its caption says which it will do.
void picRumuz(FrmHisab& j, QAction&) { j.tampilkanRumus(!j.rumusTampil()); }
void judulRumuz(FrmHisab& j, QAction& a) {
    a.setText(j.rumusTampil() ? QStringLiteral("Tutup &Rumuz") : QStringLiteral("Tampilkan &Rumuz"));
}

ItemMenu ikutiLembar(ItemMenu item, AksiMenu perbarui) {
    item.perbarui = perbarui;
    return item;
}

ItemMenu bolehSibuk(ItemMenu item) {
    item.bolehSaatSibuk = true;
    return item;
}

}  // namespace

ItemMenu Menu(std::string_view induk, std::string_view kunci, std::string_view judul) {
    ItemMenu m;
    m.jenis = ItemMenu::Jenis::Menu;
    m.induk = induk;
    m.kunci = kunci;
    m.judul = judul;
    return m;
}

ItemMenu MenuJendela(std::string_view induk, std::string_view kunci, std::string_view judul) {
    ItemMenu m = Menu(induk, kunci, judul);
    m.diisiJendela = true;
    return m;
}

ItemMenu Pemisah(std::string_view induk, std::string_view kunci) {
    ItemMenu m;
    m.jenis = ItemMenu::Jenis::Pemisah;
    m.induk = induk;
    m.kunci = kunci;
    return m;
}

ItemMenu Perintah(std::string_view induk, std::string_view kunci, std::string_view judul, AksiMenu aksi,
                  QKeySequence pintasan) {
    ItemMenu m;
    m.induk = induk;
    m.kunci = kunci;
    m.judul = judul;
    m.aksi = aksi;
    m.pintasan = pintasan;
    return m;
}

ItemMenu PerModul(std::string_view induk, std::string_view kunci, Garapan garapan, AksiModul aksi) {
    ItemMenu m;
    m.jenis = ItemMenu::Jenis::PerModul;
    m.induk = induk;
    m.kunci = kunci;
    m.garapan = garapan;
    m.aksiModul = aksi;
    return m;
}

ItemMenu PerNomor(std::string_view induk, std::string_view kunci, int dari, int sampai, JudulNomor judul,
                  AksiNomor aksi) {
    ItemMenu m;
    m.jenis = ItemMenu::Jenis::PerNomor;
    m.induk = induk;
    m.kunci = kunci;
    m.dari = dari;
    m.sampai = sampai;
    m.judulNomor = judul;
    m.aksiNomor = aksi;
    return m;
}

const std::vector<ItemMenu>& DaftarMenu() {
    static const std::vector<ItemMenu> daftar = {
        Menu("", "FILE", "&File"),
        Menu("FILE", "mnuExport", "Kirim ke Excel (&Export to Excel)"),
        Perintah("mnuExport", "mnuExportThis", "&Halaman Ini Saja", eksporIni, QKeySequence(Qt::CTRL | Qt::Key_E)),
        Perintah("mnuExport", "mnuExportKet", "&Keterangan Saja", eksporKet),
        Perintah("mnuExport", "mnuExportAll", "Se&mua", eksporSemua, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E)),
        Perintah("FILE", "mnuExportRumus", "Kirim Rumus ke Word (&Export to Word)", eksporRumus),
        Pemisah("FILE", "SEPARATOR1"),
        Perintah("FILE", "mnuPrint", "Cetak (&Print)", cetak, QKeySequence::Print),
        Pemisah("FILE", "SEPARATOR2"),
        bolehSibuk(Perintah("FILE", "mnuExit", "Keluar (&Exit)", keluar, QKeySequence::Quit)),

        Menu("", "EDIT", "&Edit"),
        ikutiLembar(Perintah("EDIT", "mnuPicRumuz", "Tampilkan &Rumuz", picRumuz), judulRumuz),
        Pemisah("EDIT", "SEPARATOR3"),
        Perintah("EDIT", "mnuNewDaerah", "Tambah/Hapus &Daerah", bukaDaerah, QKeySequence::Open),

        Menu("", "PROSESMENU", "Proses"),
        Menu("PROSESMENU", "mnuProsesIj", "Hisab Awal Bulan"),
        PerModul("mnuProsesIj", "mnuProsesIj", Garapan::Ij, prosesKitab),
        Menu("PROSESMENU", "mnuProsesGB", "Gerhana Bulan"),
        PerModul("mnuProsesGB", "mnuProsesGB", Garapan::Hs, prosesGerhana),
        Menu("PROSESMENU", "mnuProsesGM", "Gerhana Matahari"),
        PerModul("mnuProsesGM", "mnuProsesGM", Garapan::Kf, prosesGerhana),
        Pemisah("PROSESMENU", "SEPARATOR4"),
        Perintah("PROSESMENU", "mnuProsesAll", "Proses semua metode", prosesSemuaMetode),
        Perintah("PROSESMENU", "mnuProsesAll1", "Proses semua metode (Tab Baru)", prosesSemuaMetodeTabBaru),
        Menu("PROSESMENU", "mnuBulan", "Bulan"),
        PerNomor("mnuBulan", "mnuBulan", 1, 12, judulBulan, prosesBulan),
        Perintah("PROSESMENU", "mnu12Bulan", "Satu tahun", prosesSetahun),
        Perintah("PROSESMENU", "mnu12Bulan1", "Satu tahun (Tab Baru)", prosesSetahunTabBaru),
        Perintah("PROSESMENU", "mnuKalender", "&Kalender", bukaKalender),
        Pemisah("PROSESMENU", "SEPARATOR5"),
        Menu("PROSESMENU", "mnuthGerhanaB", "Gerhana Bulan Beberapa Tahun"),
        PerNomor("mnuthGerhanaB", "mnthGB", 1, 10, tahunKedepan, gerhanaBulanTahun),
        Menu("PROSESMENU", "mnuthGerhanaM", "Gerhana Matahari Beberapa Tahun"),
        PerNomor("mnuthGerhanaM", "mnthGM", 1, 10, tahunKedepan, gerhanaMatahariTahun),

        MenuJendela("", "SHEETSMENU", "&Lembar"),
        Perintah("SHEETSMENU", "mnuTutupLembar", "&Tutup Lembar Ini", tutupLembar, QKeySequence(Qt::CTRL | Qt::Key_W)),
        Pemisah("SHEETSMENU", "SEPARATOR"),

        Menu("", "HELP", "&Help"),
        bolehSibuk(Perintah("HELP", "mnuAbout", "Seng Nggawe Program", tentang)),
    };
    return daftar;
}

MenuTerbangun BangunMenu(FrmHisab& jendela, QMenuBar& bar, const std::vector<ItemMenu>& daftar) {
    MenuTerbangun hasil;
    std::map<std::string_view, QMenu*> menu;
    std::vector<std::pair<QMenu*, bool>> urutan;  // with whether the window fills it
    auto tambah = [&](const ItemMenu& item, const QString& kunci, const QString& judul) {
        QAction* a = menu.at(item.induk)->addAction(judul);
        a->setObjectName(kunci);
        if (!item.bolehSaatSibuk) hasil.sibuk << a;
        return a;
    };
    for (const ItemMenu& item : daftar) {
        using enum ItemMenu::Jenis;
        switch (item.jenis) {
            case Menu: {
                QMenu* m = item.induk.empty() ? bar.addMenu(q(item.judul)) : menu.at(item.induk)->addMenu(q(item.judul));
                m->setObjectName(q(item.kunci));
                menu[item.kunci] = m;
                urutan.emplace_back(m, item.diisiJendela);
                break;
            }
            case Pemisah:
                menu.at(item.induk)->addSeparator()->setObjectName(q(item.kunci));
                break;
            case Perintah: {
                if (!item.aksi) break;
                QAction* a = tambah(item, q(item.kunci), q(item.judul));
                a->setShortcut(item.pintasan);
                QObject::connect(a, &QAction::triggered, &jendela, [&jendela, a, f = item.aksi] { f(jendela, *a); });
                if (item.perbarui) hasil.perbarui.emplace_back(a, item.perbarui);
                break;
            }
            case PerModul:
                if (!item.aksiModul) break;
                for (const EntriModul& e : DaftarModul()) {
                    if (e.garapan != item.garapan || !jendela.ruangKerja().modul(e)) continue;
                    QAction* a = tambah(item, q(item.kunci) + QStringLiteral("|%1").arg(e.kodeLembar), q(e.nama));
                    QObject::connect(a, &QAction::triggered, &jendela,
                                     [&jendela, &e, f = item.aksiModul] { f(jendela, e); });
                }
                break;
            case PerNomor:
                if (!item.aksiNomor) break;
                for (int n = item.dari; n <= item.sampai; ++n) {
                    QAction* a = tambah(item, q(item.kunci) + QStringLiteral("|%1").arg(n), item.judulNomor(n));
                    QObject::connect(a, &QAction::triggered, &jendela, [&jendela, n, f = item.aksiNomor] { f(jendela, n); });
                }
                break;
        }
    }
    // A menu with nothing to choose is not there; an inner menu first, so that its parent
    // then knows whether anything is left in it. The window's own menus wait hidden until it
    // has put its items in them.
    for (auto it = urutan.rbegin(); it != urutan.rend(); ++it) {
        auto [m, diisiJendela] = *it;
        bool ada = false;
        for (const QAction* a : m->actions()) ada = ada || !a->isSeparator();
        if (diisiJendela) m->menuAction()->setVisible(false);
        else if (!ada) delete m;
    }
    return hasil;
}

AksiModul AksiGarapan(Garapan garapan) {
    for (const ItemMenu& m : DaftarMenu())
        if (m.jenis == ItemMenu::Jenis::PerModul && m.garapan == garapan && m.aksiModul) return m.aksiModul;
    return nullptr;
}

bool AdaGarapan(FrmHisab& jendela) {
    if (jendela.lembarAktif()) return true;
    BukaPesan(&jendela, QMessageBox::Critical, QStringLiteral("Ojok gerusa gerusu...!"),
              QStringLiteral("Export tidak dapat dilakukan, garapan hisab belum ada.\n"
                             "Pastikan Anda telah membuat garapan hisab sebelum mengExportnya ke Microsoft Excel."));
    return false;
}

}  // namespace falak::ui
