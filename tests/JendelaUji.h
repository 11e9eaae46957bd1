// What the window tests share: a user's data folder of their own with a small places register,
// the shipped tables of the repository, and a way to find a window's parts by their keys.
#pragma once

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/Berkas.h"

namespace falak::uji {

// Three places; Surabaya's display name is in Arabic script, as a user may write it.
inline const char* kDaerahUji =
    "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,Ketinggian\n"
    "Jakarta,Jakarta,6,15,LS,106,52,BT,7,8\n"
    "Pasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n"
    "Surabaya,سورابايا,7,15,LS,112,45,BT,7,5\n";

class FolderJendela {
public:
    FolderJendela() {
        std::ofstream(berkasDaerah()) << kDaerahUji;
    }
    LokasiData lokasi() const { return {FALAK_DATA_UJI, pengguna()}; }
    std::filesystem::path pengguna() const { return std::filesystem::path(folder_.path().toStdString()); }
    std::filesystem::path berkasDaerah() const { return pengguna() / "Daerah.csv"; }
    std::string isiDaerah() const {
        std::ifstream f(berkasDaerah());
        std::stringstream s;
        s << f.rdbuf();
        return s.str();
    }

private:
    QTemporaryDir folder_;
};

template <typename T = QAction>
T* cari(QObject& induk, const QString& kunci) {
    return induk.findChild<T*>(kunci);
}

// The message box that the window (or a dialog of it) shows now, if any.
inline QMessageBox* kotakTerbuka(QWidget& induk) {
    for (QMessageBox* k : induk.findChildren<QMessageBox*>())
        if (k->isVisible()) return k;
    return nullptr;
}

}  // namespace falak::uji
