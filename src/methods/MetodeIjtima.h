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

class MetodeIjtima {
public:
    virtual ~MetodeIjtima() = default;

    virtual std::string kode() const = 0;       // "SN", "FR" ...
    virtual std::string nama() const = 0;       // the treatise's name
    virtual std::string awalanLembar() const = 0;  // "IjSN_" ...

    // The whole run with its conclusion and its sheet.
    virtual void Hitung(int32_t tahun, int16_t bulan) = 0;
    // The conclusion lines of the last run, line 0 the heading.
    const std::vector<std::string>& kesimpulan() const { return kesimpulan_; }
    // Every row of the last run, named as the book names it.
    virtual std::vector<BarisTercatat> baris() const = 0;

protected:
    std::vector<std::string> kesimpulan_;
};

}  // namespace falak
