// The conclusion of a precise book: the thirteen lines that put its ijtima' (a civil day and
// a clock time in local apparent time) and its hilal at sunset into dates and words. The
// books differ only in the numbers they hand over, their heading and their markaz.
#pragma once

#include <string>
#include <vector>

#include "core/Nilai.h"
#include "core/Waktu.h"
#include "methods/Konteks.h"
#include "methods/Modul.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

// The day of the ijtima' and the first of the month, as date values.
struct HariTahqiqi {
    Nilai ijtima;
    Nilai awal;
};

struct BahanKesimpulanTahqiqi {
    std::string judul;      // the heading: the book's name
    HariTahqiqi hari;
    Waktu jamIjtima;        // the ijtima' in local apparent time (WIS)
    double tinggi = 0;      // the hilal's height, degrees
    Nilai matahari;         // the sun's true place in buruj form
    double mukts = 0;       // the hilal's stay, hours
    double nur = 0;         // the hilal's light, fingers
    TitikMarkaz markaz{};
    bool kata = true;  // word the lines; else the gist alone
};

// A decimal as a value of open degrees, its sign in the flag (the conclusion's wordings
// read values).
Nilai NilaiDariDesimal(double x);

void TulisKesimpulanTahqiqi(Konteks& k, const BahanKesimpulanTahqiqi& bahan, std::vector<std::string>& baris,
                            Ringkasan& ringkasan);

}  // namespace falak
