#include "methods/taqribi/FaidlulKarim.h"

#include "core/FungsHisab.h"
#include "core/Sesi.h"

namespace falak {

namespace {

const DataKitabFR kFaidlulKarim = {
    "FK",
    5,
    {2, 3, 4, 5},
    {"622 07 15 00 05 03 14 27 00 1", "11 18 45 34 00 1", "03 27 21 24 00 1", "03 20 10 54 00 1",
     "01 03 58 40 00 1"},
    {"029 01 00 01 05 00 15 00 00 1", "08 01 24 00 00 1", "01 08 24 00 00 1", "09 23 57 00 00 1",
     "01 08 00 00 00 1"},
    {"029 01 00 01 05 00 15 00 00 0", "08 01 24 00 00 0", "01 08 24 00 00 0", "09 23 57 00 00 0",
     "01 08 00 00 00 0"},
    {30, 29, 0, 0, 30},
    113,
    15,
    {"Sampang", 7, 11, 0, 113, 15, 1},
    6,
    7,
    false,
    true,
    {3, false},
};

}  // namespace

FaidlulKarim::FaidlulKarim(Konteks k) : IttifaqDzatilBain(k, kFaidlulKarim) {}

void FaidlulKarim::HitungBudTaqwim() {
    BudTaqwim(1) = Jumlah(static_cast<size_t>(data().unsur.wasath));
    BudTaqwim(2) = Qomar(7);
    // Not the first cell: the third, empty as the run began.
    BudTaqwim(3) = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, BudTaqwim(3), BudTaqwim(2));
}

std::string FaidlulKarim::judulKesimpulan() const {
    std::string j = k_.sesi.namaKitab;
    const size_t p = j.find("(TRB)");
    if (p != std::string::npos) j.erase(p, 5);
    while (!j.empty() && j.back() == ' ') j.pop_back();
    return j;
}

}  // namespace falak
