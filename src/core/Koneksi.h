// ClsConnection: every table of the books, opened once when a session starts and kept open
// for its life. A table that cannot be read stays closed: its readers find nothing and keep
// their former values, and the session is told once which tables failed and why.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Berkas.h"
#include "core/Daerah.h"
#include "core/Tabel.h"

namespace falak {

// A table that could not be read, with the file and the reason.
struct MasalahTabel {
    std::string tabel;
    std::filesystem::path berkas;
    std::string alasan;
};

class ClsConnection {
public:
    // Opens every table, in this order: Daerah (the working copy of the places register),
    // then the shipped tables from lokasi.data.
    explicit ClsConnection(LokasiData lokasi);

    ClsConnection(const ClsConnection&) = delete;
    ClsConnection& operator=(const ClsConnection&) = delete;

    // Opens one table by its name, from its file; a failure is added to masalah().
    void BukaTabel(Tabel& tabel, std::string_view nama);
    // One change to the places register, made and saved under its lock on the file as it is
    // now (RegisterDaerah::Ubah); the table Daerah then holds the file as saved. An empty text,
    // or the message to show.
    std::string ubahDaerah(const std::function<std::string(RegisterDaerah&)>& ubah) {
        return RegisterDaerah::Ubah(Daerah, lokasi_, ubah);
    }

    // A table by name; nullptr for a name that is not one of the tables.
    Tabel* tabel(std::string_view nama);
    // The register API over the table Daerah.
    RegisterDaerah registerDaerah() { return RegisterDaerah(Daerah, BerkasDaerah(lokasi_)); }

    const LokasiData& lokasi() const { return lokasi_; }
    const std::vector<MasalahTabel>& masalah() const { return masalah_; }

    // The tables, named as the treatises name them.
    Tabel Daerah{"Daerah"}, ClearTxtMargen{"ClearTxtMargen"}, Lines{"Lines"}, ListTxt{"ListTxt"},
        MergenExcel{"MergenExcel"}, Names{"Names"}, Refraksi{"Refraksi"},
        TafawutWIB{"TafawutWIB"}, TQQDaqoiqAhTaf{"TQQDaqoiqAhTaf"}, TQQImkanGerhana{"TQQImkanGerhana"},
        TQQRumuz{"TQQRumuz"}, TQQSaah{"TQQSaah"}, TQQSyahru{"TQQSyahru"}, TQQTaadil{"TQQTaadil"},
        TQQthMab{"TQQthMab"}, TQQYaumTam{"TQQYaumTam"}, TRBSyahru{"TRBSyahru"}, TRBSyahruSH{"TRBSyahruSH"},
        TRBTaadil{"TRBTaadil"}, TRBTaadilSH{"TRBTaadilSH"}, TRBthMabSH{"TRBthMabSH"}, TdlTA1{"TdlTA1"},
        TdlTA2{"TdlTA2"}, ERBumi{"ERBumi"}, TaadilKal1{"TaadilKal1"}, TaadilKal2{"TaadilKal2"},
        TaadilKal3{"TaadilKal3"}, Validation{"Validation"};

    // Every table in the order of opening.
    std::vector<Tabel*> semua();

private:
    LokasiData lokasi_;
    std::vector<MasalahTabel> masalah_;
};

// What makes an open table unfit for a run: it has no rows, or a cell that holds a number in
// the books holds something else. A column of words (a mansion's name "mn", the texts
// "IsiText", the names "Nama...") may hold anything; an empty cell is allowed anywhere, since
// the books leave cells blank. Empty when the table is sound.
std::string PeriksaIsi(const Tabel& tabel);

// One plain message for the user about the tables that could not be read; empty when none.
std::string LaporanMasalah(const std::vector<MasalahTabel>& masalah);

}  // namespace falak
