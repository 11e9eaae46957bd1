#include "methods/taqribi/TadzkirotulIkhwan.h"

#include "core/FungsHisab.h"

namespace falak {

namespace {

const DataKitabFR kTadzkirotulIkhwan = {
    "TZ",
    5,
    {2, 3, 4, 5},
    {"000 00 00 01 06 00 37 33 00 1", "10 24 38 10 00 1", "04 29 31 03 00 1", "08 20 48 12 00 1",
     "02 06 11 40 00 1"},
    {"000 00 00 00 05 00 15 00 00 1", "08 01 24 00 00 1", "01 08 24 00 00 1", "09 23 57 00 00 1",
     "01 08 00 00 00 1"},
    {"000 00 00 00 05 00 15 00 00 0", "08 01 24 00 00 0", "01 08 24 00 00 0", "09 23 57 00 00 0",
     "01 08 00 00 00 0"},
    {30, 27, 3, -3, 33},
    110,
    24,
    {"Semarang", 6, 56, 0, 110, 24, 1},
    6,
    10,
    false,
    true,
    {3, false},
};

}  // namespace

TadzkirotulIkhwan::TadzkirotulIkhwan(Konteks k) : KerangkaTaqribi(k, kTadzkirotulIkhwan) {}

void TadzkirotulIkhwan::TaadilQomar() {
    Qomar(1) = TdlKs(5);
    Qomar(2) = TdlMr(5);
    Qomar(3) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(1), Qomar(2));
    Qomar(4) = TdlHs(5);
    Qomar(5) = Nilai("00 00 02 30 00 1");
    isi(Qomar(6), KaliNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(4), Qomar(5)));
    Qomar(7) = Qomar(3);
    isi(Qomar(8), KaliNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(6), Qomar(7)));
    Qomar(9) = TdlMr(5);
    Qomar(10) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(8), Qomar(9));
}

}  // namespace falak
