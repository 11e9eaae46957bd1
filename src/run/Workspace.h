// The session of the reckoning: the run state, the tables, the treatises' modules with the
// rows they keep between runs, and the work sheets (tabs) that the runs make. The command
// line and the window each own one; tests make a fresh one.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "conclusions/Kesimpulan.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "core/Sheet.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "methods/Taadil.h"
#include "run/Registri.h"

namespace falak {

// One work sheet: a tab of the main form with its grid and the conclusion of its run.
struct LembarKerja {
    std::string kunci;                    // "IjSN_1": the sheet key, whose prefix names its module
    std::string judul;                    // the tab's caption
    const EntriModul* modul = nullptr;
    Sheet lembar;
    std::vector<std::string> kesimpulan;  // the conclusion lines, the heading first
    std::vector<BarisTercatat> baris;     // every row of the run
    Ringkasan ringkasan;                  // its gist, for the lines of a batch
    std::optional<RingkasanGerhana> gerhana;  // the eclipse an eclipse run found
};

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

    // mnuProsesIjSub: checks the year text, runs Proses and adds the sheets of the run (always
    // new ones, from the command line and the tree). The first sheet is the result; a message
    // when the year is not filled in or the treatise is not available yet.
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
    // its gist only; with Keluaran::Intisari its gist alone, the conclusion's lines unworded;
    // every way every run leaves them in `ringkas`. The progress bar
    // (Kemajuan's callback) moves once a run; the stop flag (Kemajuan::berhenti, which another
    // thread may raise) ends the batch between two runs, keeping what was already made.
    enum class Keluaran { Lembar, Ringkas, Intisari };
    struct HasilRun {
        const EntriModul* modul = nullptr;
        int32_t tahun = 0;
        int bulan = 0;
        std::vector<std::string> kesimpulan;
        Ringkasan ringkasan;
        std::optional<RingkasanGerhana> gerhana;
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

    // The eclipses: one month of a book's lunar (Hs) or solar (Kf) eclipse module, with a
    // message when the month holds none; and the search of every month of the years from
    // tahunTeks to tahunAkhir ("Beberapa Tahun"), which keeps the months that hold one. The
    // progress bar moves once a month; the stop flag ends the search between two months.
    HasilProses mnuProsesGerhana(Garapan jenis, const std::string& kodeKitab, const std::string& tahunTeks, int bulan,
                                 const std::string& namaTempat);
    HasilBatch cariGerhana(Garapan jenis, const std::string& kodeKitab, const std::string& tahunTeks,
                           int32_t tahunAkhir, const std::string& namaTempat, Keluaran keluaran = Keluaran::Ringkas);

    // Every month module of the registry, available or not, in the order of the tree.
    static std::vector<const EntriModul*> kitabTerdaftar();
    // The month modules that exist, in the order of the tree.
    const std::vector<const EntriModul*>& kitabTersedia() const { return tersedia_; }

    // The module of a registry entry, or none when it is not available yet.
    Modul* modul(const EntriModul& entri);
    // The month module of a book's code, or none.
    Modul* modul(std::string_view kode) {
        const EntriModul* e = CariModul(kode);
        return e ? modul(*e) : nullptr;
    }

    // The first of the month that the ijtima' at the end of month (tahun, bulan) opens, by the
    // module of a registry entry run without sheets at the session's place; none when the
    // module is not available or could not place the ijtima'.
    std::optional<Nilai> awalBulan(const EntriModul& entri, int32_t tahun, int bulan);

    // The Hijri years the books serve: within them every book's year arithmetic and the civil
    // calendar of its conclusion hold.
    static constexpr int32_t kTahunAwal = 1;
    static constexpr int32_t kTahunAkhir = 3000;
    // The year text as every run reads it: a message when it is not filled in, not a whole
    // number, or outside the years the books serve.
    static std::optional<Pesan> periksaTahun(const std::string& tahunTeks);

    // The tables that could not be read and that an available module reads (or the places
    // register), for the warning when a session starts: a table no module reads is no one's
    // concern.
    std::vector<MasalahTabel> masalahTabel() const;

    // Looks the place up in the register and fills the place record; the fixed record when
    // it is not there. False when it fell back.
    bool pilihTempat(const std::string& nama);

    ClsConnection& koneksi;
    Sesi sesi;
    ClsKesimpulan kesimpulan{sesi};
    ClsTaadil taadil;
    Kemajuan kemajuan;
    std::vector<std::unique_ptr<LembarKerja>> lembar;
    DaftarRumus rumus;  // the formula sheets of the precise books' runs, by tab

    // The first of the month that the last month's run spoke in its conclusion (the last date
    // spoken): the year calendar of the same book at the same place takes it over for that
    // month rather than reckon it afresh by its short scheme.
    struct AwalTerucap {
        const EntriModul* kitab = nullptr;
        std::string tempat;
        int32_t tahun = 0;
        int bulan = 0;  // the month at whose end the ijtima' falls
        Nilai awal;
    };
    std::optional<AwalTerucap> awalTerakhir;

private:
    void catatAwal(const EntriModul& entri, int32_t tahun, int bulan, const Ringkasan& r);
    // The solar eclipse's refusal of a place whose latitude its tables do not hold.
    std::optional<Pesan> tolakLintang(Garapan jenis) const;
    // Proses: one run of the module with its sheets, which become new work sheets; the first
    // of them is returned, none when the run made no sheet (a month without an eclipse).
    LembarKerja* Proses(const EntriModul& entri, Modul& m, int32_t tahun, int bulan);
    // The run state that Proses sets before a run: the chosen date, the month row, the sheet.
    void siapkan(const EntriModul& entri, int32_t tahun, int bulan);
    // Why the module cannot run: a table it reads is missing, empty or holds a bad cell. Each
    // table is checked once in a session.
    std::optional<Pesan> periksaTabel(const EntriModul& entri);
    HasilBatch batch(const std::vector<std::pair<const EntriModul*, int>>& runs, const std::string& tahunTeks,
                     const std::string& namaTempat, Keluaran keluaran);

    std::vector<std::unique_ptr<Modul>> modul_;  // by the index of the registry entry
    std::vector<const EntriModul*> tersedia_;
    int nomorLembar_ = 0;
    std::map<std::string, std::string, std::less<>> tabelDiperiksa_;  // table name -> what is wrong, or empty
};

}  // namespace falak
