// The menu bar of the main window, built from one list of items in the order the user meets
// them (ModMenu.cpp). Each item is named by its key, which becomes its object name.
//
// A command that the program cannot do yet has no action on its line and is left out, as is a
// menu left empty; separators at the edge of a menu or next to each other fold away. The
// commands that run a book come from the registry: one item for each module that exists. So
// a new command is its function and its action on the list, and a new book shows itself.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <string_view>
#include <vector>

#include "run/Registri.h"

class QAction;
class QMenuBar;

namespace falak::ui {

class FrmHisab;

// What an item does. The action is given so that a command may change its own caption.
using AksiMenu = void (*)(FrmHisab& jendela, QAction& aksi);
// One item for each module of a kind that exists.
using AksiModul = void (*)(FrmHisab& jendela, const EntriModul& modul);
// One item for each number of a range: the months, a count of years.
using AksiNomor = void (*)(FrmHisab& jendela, int nomor);
using JudulNomor = QString (*)(int nomor);

struct ItemMenu {
    enum class Jenis { Menu, Pemisah, Perintah, PerModul, PerNomor };
    Jenis jenis = Jenis::Perintah;
    std::string_view induk;  // the key of the menu it stands in; empty on the menu bar
    std::string_view kunci;  // its key; of a numbered or per-module item, the part before "|"
    std::string_view judul;
    QKeySequence pintasan{};
    bool bolehSaatSibuk = false;  // stays enabled while a job runs: it touches no session
    bool diisiJendela = false;    // a menu that the window fills as it goes: kept, hidden at first
    AksiMenu aksi = nullptr;
    // Called when the current sheet changes or a job ends, for an item whose caption or
    // state follows the sheet in front.
    AksiMenu perbarui = nullptr;
    Garapan garapan = Garapan::Ij;
    AksiModul aksiModul = nullptr;
    int dari = 0, sampai = 0;
    JudulNomor judulNomor = nullptr;
    AksiNomor aksiNomor = nullptr;
};

// The lines of the list, by kind.
ItemMenu Menu(std::string_view induk, std::string_view kunci, std::string_view judul);
ItemMenu MenuJendela(std::string_view induk, std::string_view kunci, std::string_view judul);
ItemMenu Pemisah(std::string_view induk, std::string_view kunci);
ItemMenu Perintah(std::string_view induk, std::string_view kunci, std::string_view judul, AksiMenu aksi,
                  QKeySequence pintasan = {});
ItemMenu PerModul(std::string_view induk, std::string_view kunci, Garapan garapan, AksiModul aksi);
ItemMenu PerNomor(std::string_view induk, std::string_view kunci, int dari, int sampai, JudulNomor judul,
                  AksiNomor aksi);

// Every item of the menu bar, in order.
const std::vector<ItemMenu>& DaftarMenu();

// The items that the menu bar holds, as BangunMenu made them.
struct MenuTerbangun {
    QList<QAction*> sibuk;                            // disabled while a job runs
    std::vector<std::pair<QAction*, AksiMenu>> perbarui;  // with their hooks
};

// Builds the menus of the list on the bar, for the modules that the window's session has.
MenuTerbangun BangunMenu(FrmHisab& jendela, QMenuBar& bar, const std::vector<ItemMenu>& daftar);

// The command that runs a module of this kind, from its line on the list; none while that
// work has not landed. The tree of books runs its items by it too.
AksiModul AksiGarapan(Garapan garapan);

// The export guard: true when a work sheet of a run exists; else it tells the user so.
bool AdaGarapan(FrmHisab& jendela);

}  // namespace falak::ui
