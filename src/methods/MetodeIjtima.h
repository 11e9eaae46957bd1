// A treatise's reckoning of the ijtima' and the hilal for one Hijri month, as the run driver
// sees it: called by sheet code, it runs its stages, writes its conclusion and paints its
// sheet, and keeps its rows for the next run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Nilai.h"
#include "methods/Baris.h"

namespace falak {

// What a run concludes, for the lines of a batch: the civil day and the clock time of the
// ijtima', the hilal's height and the first of the month.
struct Ringkasan {
    Nilai tanggalIjtima;       // date value of the day of the ijtima'
    std::string jamIjtima;     // "hh.mm WIS, hh.mm WIB" as the conclusion words it
    Nilai tinggiHilal;         // the height as the treatise reckons it
    Nilai awalBulan;           // date value of the first of the month
};

class MetodeIjtima {
public:
    virtual ~MetodeIjtima() = default;

    virtual std::string kode() const = 0;       // "SN", "FR" ...
    virtual std::string nama() const = 0;       // the treatise's name
    virtual std::string awalanLembar() const = 0;  // "IjSN_" ...

    // The whole run with its conclusion and its sheet.
    virtual void Hitung(int32_t tahun, int16_t bulan) = 0;
    // The run with its conclusion but without any sheet, for the batches. A module that does
    // not say otherwise runs whole: with no sheet selected its cell writers write nothing.
    virtual void HitungRingkas(int32_t tahun, int16_t bulan) { Hitung(tahun, bulan); }
    // The first of the month that the ijtima' at the end of month `bulan` opens, as a date
    // value, by the reckoning stages alone (no conclusion, no sheet); none when the run could
    // not place the ijtima' on the calendar. By default: the conclusion's first of the month.
    virtual std::optional<Nilai> AwalBulan(int32_t tahun, int16_t bulan) {
        HitungRingkas(tahun, bulan);
        if (ringkasan_.awalBulan.kosongTeks()) return std::nullopt;
        return ringkasan_.awalBulan;
    }
    // The conclusion lines of the last run, line 0 the heading.
    const std::vector<std::string>& kesimpulan() const { return kesimpulan_; }
    // Every row of the last run, named as the book names it.
    virtual std::vector<BarisTercatat> baris() const = 0;
    // The gist of the last run.
    const Ringkasan& ringkasan() const { return ringkasan_; }

protected:
    std::vector<std::string> kesimpulan_;
    Ringkasan ringkasan_;
};

}  // namespace falak
