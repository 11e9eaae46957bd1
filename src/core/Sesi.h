// What every run reads: the place record, the chosen date and month, the module being run,
// the label list. The driver sets it before a run; the formatters only read it. One object per
// session; tests make a fresh one.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/Nilai.h"
#include "core/Tempat.h"

namespace falak {

class ClsConnection;

// The rows of the month list, as the menus and the month box show them.
extern const std::array<const char*, 12> kBarisBulan;

struct Sesi {
    ClsConnection* koneksi = nullptr;  // the tables, opened once at start
    Tempat tempat = Tempat::cadangan();
    Nilai tanggalPilihan;              // field 6 the Hijri year, field 7 the month
    int kodeLembar = 0;                // the sheet code of the module being run
    std::vector<std::string> label;    // the label list, in row order
    int barisBulan = 0;                // selected row of the month list, 0 to 11
    std::string tahunHijri;            // text of the Hijri year box
    std::string namaKitab;             // the treatise of the sheet being worked
    bool deltaT = false;               // the modern reckoning takes its hours as universal time

    // A label by position; empty past the end of the list.
    const std::string& labelKe(size_t i) const;
};

}  // namespace falak
