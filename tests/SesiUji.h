// A session over a folder of tables that the test writes itself.
#pragma once

#include <memory>
#include <string>

#include "FolderUji.h"
#include "core/Koneksi.h"
#include "run/Workspace.h"

namespace falak::uji {

// The header of the places register.
inline const std::string kKepalaBalad =
    "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,ZonaTime,Ketinggian\n";

class SesiUji : public testing::Test {
protected:
    explicit SesiUji(const std::string& nama) : folder(nama) {}
    // Opens the tables written so far and makes the session over them.
    void bukaSesi() {
        koneksi = std::make_unique<ClsConnection>(folder.lokasi());
        ws = std::make_unique<Workspace>(*koneksi);
    }

    FolderUji folder;
    std::unique_ptr<ClsConnection> koneksi;
    std::unique_ptr<Workspace> ws;
};

}  // namespace falak::uji
