// The registry of modules: every reckoning that the menus offer, in the order of the tree,
// with what names it (its code, the kind and code of its sheet, the prefix of its sheet key,
// its name), the tables it reads, and how to make it. The run driver, the command line's
// lists and help, the window's tree and the check of the tables all read this one list;
// adding a book is its file pair, its tables, and a line here.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "methods/Konteks.h"
#include "methods/Modul.h"

namespace falak {

// The kind of work a module does, by the first letters of its sheet keys: Ij the ijtima' and
// the hilal of a month, Hs a lunar eclipse, Kf a solar eclipse (whose run adds a TdlKf sheet).
enum class Garapan { Ij, Hs, Kf };

// The school of a book: the mean-motion books, and the precise ones.
enum class Aliran { Taqribi, Tahqiqi };

using PembuatModul = std::unique_ptr<Modul> (*)(Konteks);

struct EntriModul {
    std::string_view kode;       // the book's code: "SN"
    Garapan garapan;
    int kodeLembar;              // the sheet code of the run driver
    std::string_view awalan;     // prefix of its sheet keys: "IjSN_"
    std::string_view nama;       // the book's name as a conclusion heads it
    std::string_view namaPohon;  // as the tree shows it
    Aliran aliran;
    std::vector<std::string_view> tabel;  // the tables its reckoning reads
    PembuatModul buat;           // none while the module is not available yet

    bool tersedia() const { return buat != nullptr; }
};

// Every module, in the order of the tree.
const std::vector<EntriModul>& DaftarModul();
// A module by its book's code and kind; none for an unknown code.
const EntriModul* CariModul(std::string_view kode, Garapan garapan = Garapan::Ij);
// The module whose sheets carry this key ("IjSN_3", "TdlKfSN_1"); none for an unknown prefix.
const EntriModul* ModulDariKunci(std::string_view kunci);
// The heading of a group of the tree.
std::string_view NamaKelompok(Garapan garapan, Aliran aliran);

}  // namespace falak
