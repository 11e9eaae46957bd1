// The formula sheets of the precise books: for each step of a run the name of the quantity,
// its formula in symbols and the run's own numbers, as one long text beside the worked table.
//
// The texts live in the table TQQRumuz, one row a step and three columns a book (its name
// column, its symbols, its variable list: `ERNama`, `ERRumuz`, `ERVar`); a book joins the
// family with its three columns and one line of kAnggota in Rumus.cpp. A variable list is a
// text of segments each closed by "|": "left,k" shows `left = ` and element k of the run's
// first array of values; "left,xk" (any character after the comma that is not a digit)
// element k of its second array.
//
// The session keeps every sheet built (DaftarRumus): several runs of one book keep their own,
// and the sheet on view is the one of the selected tab.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Nilai.h"
#include "core/Sheet.h"

namespace falak {

class Tabel;

// A book of the family: its columns, rows, and titles.
struct AnggotaRumus {
    std::string_view kolom;            // the prefix of its three columns: "ER"
    int kodeLembar;                    // the sheet code of its runs
    int jumlahBaris;                   // steps read from the first row
    std::vector<int> barisTetap;       // rows whose symbols are the four quadrant lines
    std::vector<int> derajatPenuh;     // elements shown in whole degrees (Buruj folded in)
    std::string_view judulGanti;       // the title when its sheet is brought on view
    std::string_view judulBangun;      // the title when its sheet is built
};

// The member whose runs have this sheet code; none for a book without formula sheet.
const AnggotaRumus* CariAnggotaRumus(int kodeLembar);

struct BarisRumus {
    std::string nama;   // the quantity, in Indonesian
    std::string rumuz;  // the formula in symbols
    std::string isi;    // the variables with the run's numbers, one line each
};

struct LembarRumus {
    int kodeLembar = 0;
    std::string judul;               // as built
    std::vector<BarisRumus> baris;
    std::string halaman;             // the whole sheet as one text
};

// A value in words: degrees (with "-" when negative, or Buruj folded in with derajatPenuh),
// minutes, and seconds when there are any: "252°10'12.5''", "-3°5'".
std::string KataNilaiRumus(const Nilai& v, bool derajatPenuh);
// A variable list filled with the run's values, one line a segment.
std::string IsiVariabel(std::string_view daftar, const AnggotaRumus& a, std::span<const Nilai> hasil1,
                        std::span<const Nilai> hasil2);
// Builds the sheet of a run from the table's rows.
LembarRumus BangunRumus(const AnggotaRumus& a, Tabel& tqqRumuz, std::span<const Nilai> hasil1,
                        std::span<const Nilai> hasil2 = {});

// The formula tips of a run's worked sheet. The table Validation names, in the column of the
// book (the prefix of its formula columns: "ER"), the cell that shows each step, row i for
// step i; that cell gets the step's name as title and its formula and numbers as text. An
// empty or unreadable address, or one off the sheet, is skipped.
void PasangTipRumus(Sheet& lembar, const Tabel& validation, const LembarRumus& rumus);

// The sheets of a session, each under the key of the tab of its run.
class DaftarRumus {
public:
    struct Tampilan {
        const LembarRumus* lembar;
        std::string_view judul;  // the title on view
        int nomor;               // the run's ordinal among the sheets of its book
    };
    // Keeps the sheet of a run; returns its ordinal among the sheets of its book (1, 2 ...).
    int tambah(std::string kunciTab, LembarRumus lembar);
    // The sheet of the selected tab, which becomes the current one; none when the tab has
    // none (the view then stays as it was).
    std::optional<Tampilan> tampil(std::string_view kunciTab);
    // The sheet kept under `dari` goes under `ke`, in place of the one kept there: a tab that
    // keeps its key shows a new run.
    void pindah(std::string_view dari, std::string_view ke);
    // The current sheet: the last built or shown.
    std::optional<Tampilan> kini() const;
    size_t jumlah() const { return item_.size(); }

private:
    struct Item {
        std::string kunci;
        int nomor;
        LembarRumus lembar;
    };
    Tampilan tampilan(const Item& i, bool bangun) const;
    std::vector<Item> item_;
    size_t kini_ = 0;
    bool kiniBaru_ = true;  // the current sheet was just built (its building title shows)
};

}  // namespace falak
