// A module of the reckoning as the run driver sees it: a book's month, its lunar or solar
// eclipse. Asked for a Hijri year and month at the session's place, it runs its stages and
// returns what it found as a value: the sheets it painted, its conclusion lines, its named
// rows and a summary of values from which every front end words what it shows. The rows a
// book keeps from run to run stay in the module.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Nilai.h"
#include "core/Sheet.h"
#include "methods/Baris.h"
#include "rumus/Rumus.h"

namespace falak {

// What a run concludes, for the lines of a batch: the day and the clock time of the ijtima',
// the hilal's height and the first of the month.
struct Ringkasan {
    Nilai tanggalIjtima;       // date value of the day that the book names for the ijtima'
    bool malam = false;        // the ijtima' falls on the eve of that day, after the sunset opening it
    Nilai tanggalSipil;        // date value of the civil day of the ijtima' on the zone's clock
    std::string jamIjtima;     // "hh.mm WIS, hh.mm WIB" as the conclusion words it
    Nilai tinggiHilal;         // the height as the treatise reckons it
    Nilai awalBulan;           // date value of the first of the month
};

// What an eclipse run concludes, for the lines of a search over years: the civil day, the
// phases as the conclusion words them ("hh.mm WIS hh.mm WIB ..."), the size, and the middle
// and the size as numbers for those who compare them.
struct RingkasanGerhana {
    Nilai tanggal;                      // date value of the day of the middle
    std::string awal, tengah, akhir;
    std::string awalTotal, akhirTotal;  // empty without a total phase
    std::string besar;
    double jamTengah = 0;               // the middle, hours of local apparent time at the place
    double ashobi = 0;                  // fingers
};

// What the driver asks of a module.
struct Permintaan {
    int32_t tahun = 0;
    int16_t bulan = 0;
    bool lembar = true;  // paint the sheets; a batch that prints no sheet asks for none
    bool kata = true;    // word the conclusion's lines; a batch that prints only the gist asks for none
};

// A sheet that a run painted: the prefix of its key ("IjSN_", "TdlKfSN_"), its tab's caption
// (empty: the driver's) and its cells.
struct LembarHasil {
    std::string awalan;
    std::string judul;
    Sheet isi;
};

struct HasilHitung {
    std::vector<LembarHasil> lembar;
    std::vector<std::string> kesimpulan;  // the heading first
    std::vector<BarisTercatat> baris;     // every row of the run, named as the book names it
    Ringkasan ringkasan;
    std::optional<LembarRumus> rumus;     // the formula sheet of a precise book's run
    std::optional<RingkasanGerhana> gerhana;  // an eclipse run that found one

    // A new sheet at the end of the list, to be painted.
    Sheet& lembarBaru(std::string awalan, std::string judul = {}) {
        lembar.push_back({std::move(awalan), std::move(judul), {}});
        return lembar.back().isi;
    }
};

class Modul {
public:
    virtual ~Modul() = default;

    virtual HasilHitung Hitung(const Permintaan& p) = 0;
    // The first of the month that the ijtima' at the end of month `bulan` opens, as a date
    // value, by the reckoning stages alone; none when the run could not place the ijtima' on
    // the calendar. By default: the first of the month of a run without sheets.
    virtual std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) {
        const HasilHitung h = Hitung({tahun, bulan, false});
        if (h.ringkasan.awalBulan.kosongTeks()) return std::nullopt;
        return h.ringkasan.awalBulan;
    }
};

}  // namespace falak
