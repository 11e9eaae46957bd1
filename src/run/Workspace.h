// The session of the reckoning: the run state, the tables, the treatises' modules with the
// rows they keep between runs, and the work sheets (tabs) that the runs make. The command
// line and the window each own one; tests make a fresh one.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "conclusions/Kesimpulan.h"
#include "core/FlexGrid.h"
#include "core/Sesi.h"
#include "core/Sheet.h"
#include "methods/Konteks.h"
#include "methods/MetodeIjtima.h"
#include "methods/tahqiqi/Taadil.h"

namespace falak {

class ClsConnection;

// One work sheet: a tab of the main form with its grid and its conclusion.
struct LembarKerja {
    std::string kunci;                    // "IjSN_1": the sheet key, whose prefix gives its code
    std::string judul;                    // the tab's caption
    int kode = 0;
    std::string kitab;                    // the treatise's code, "SN"
    Sheet lembar;
    std::vector<std::string> kesimpulan;  // the conclusion lines, the heading first
    std::vector<BarisTercatat> baris;     // every row of the run
    Ringkasan ringkasan;                  // its gist, for the lines of a batch
};

// A treatise in the dispatch table: its sheet code and what the tree and menus call it.
struct Kitab {
    int kodeLembar;
    std::string kode;     // "SN"
    std::string awalan;   // "IjSN_"
    std::string nama;     // "Sullam al-Nairoin"
};

// The conjunction treatises of the dispatch table, in the order of the tree.
const std::vector<Kitab>& DaftarKitab();
const Kitab* CariKitab(std::string_view kode);

class Workspace {
public:
    explicit Workspace(ClsConnection& koneksi);
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    // Why a command did nothing, in the program's own words: a title and a text.
    struct Pesan {
        std::string judul;
        std::string teks;
    };

    // mnuProsesIjSub: checks the year text, makes a new sheet (always, from the command line
    // and the tree) and runs Proses in it. The sheet is the result; a message when the year
    // is not filled in or the treatise is not available yet.
    struct HasilProses {
        LembarKerja* lembar = nullptr;
        std::optional<Pesan> pesan;
    };
    HasilProses mnuProsesIjSub(const std::string& kodeKitab, const std::string& tahunTeks, int bulan,
                               const std::string& namaTempat);

    // The batches: every available treatise for one month (mnuProsesAllSub), one treatise
    // for the twelve months of a year (mnu12BulanSub), and the twelve months by every
    // available treatise. With Keluaran::Lembar each run makes its sheet; with
    // Keluaran::Ringkas no sheet is made or painted and each run leaves its conclusion and
    // its gist only. The progress bar (Kemajuan's callback) moves once a run; the stop flag
    // (Kemajuan::berhenti, which another thread may raise) ends the batch between two runs,
    // keeping what was already made.
    enum class Keluaran { Lembar, Ringkas };
    struct HasilRun {
        const Kitab* kitab = nullptr;
        int32_t tahun = 0;
        int bulan = 0;
        std::vector<std::string> kesimpulan;
        Ringkasan ringkasan;
    };
    struct HasilBatch {
        std::vector<LembarKerja*> lembar;
        std::vector<HasilRun> ringkas;
        bool dihentikan = false;
        std::optional<Pesan> pesan;
    };
    HasilBatch mnuProsesAllSub(const std::string& tahunTeks, int bulan, const std::string& namaTempat,
                               Keluaran keluaran = Keluaran::Lembar);
    HasilBatch mnu12BulanSub(const std::string& kodeKitab, const std::string& tahunTeks, const std::string& namaTempat,
                             Keluaran keluaran = Keluaran::Lembar);
    HasilBatch duaBelasBulanSemuaKitab(const std::string& tahunTeks, const std::string& namaTempat,
                                       Keluaran keluaran = Keluaran::Lembar);

    // The treatises whose modules exist, in the order of the tree.
    std::vector<const Kitab*> kitabTersedia();

    // The treatise's module by its sheet code, or none when it is not available yet.
    MetodeIjtima* metode(int kodeLembar);

    // Looks the place up in the register and fills the place record; the fixed record when
    // it is not there. False when it fell back.
    bool pilihTempat(const std::string& nama);

    ClsConnection& koneksi;
    Sesi sesi;
    ClsFlexGrid grid;
    ClsKesimpulan kesimpulan{sesi};
    ClsTaadil taadil;
    Kemajuan kemajuan;
    std::vector<std::unique_ptr<LembarKerja>> lembar;

private:
    // The year text as the year check reads it; a message when it is not filled in.
    std::optional<Pesan> periksaTahun(const std::string& tahunTeks) const;
    // A new sheet for the treatise, and Proses in it.
    LembarKerja& jalankan(const Kitab& kitab, MetodeIjtima& m, int32_t tahun, int bulan);
    // Proses: one run of the treatise for the current sheet.
    void Proses(MetodeIjtima& m, int32_t tahun, int bulan, LembarKerja& tab);
    // The run state that Proses sets before a run: the chosen date, the month row, the sheet.
    void siapkan(const MetodeIjtima& m, int32_t tahun, int bulan, int kode, const std::string& kunci);
    HasilBatch batch(const std::vector<std::pair<const Kitab*, int>>& runs, const std::string& tahunTeks,
                     const std::string& namaTempat, Keluaran keluaran);

    std::vector<std::unique_ptr<MetodeIjtima>> metode_;
    int nomorLembar_ = 0;
};

}  // namespace falak
