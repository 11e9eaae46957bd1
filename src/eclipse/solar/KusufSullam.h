// The solar eclipse by Sullam al-Nairoin: its rows of years stand at the ijtima' that ends
// month 1, on the same base as its month reckoning (no drift), with the auj in the last cell.
#pragma once

#include "eclipse/solar/KerangkaKusuf.h"

namespace falak {

class KusufSullam : public KerangkaKusuf {
public:
    explicit KusufSullam(Konteks k);

    void PokokKusuf(int32_t tahun, int16_t bulan) override;
};

}  // namespace falak
