// The lunar eclipse by Sullam al-Nairoin: its rows of years stand at the full moon (istiqbal)
// that ends month 1, in groups of ten years from its epoch, with the auj in the last cell; its
// base loses two minutes of Hishshoh and one of Khossyoh for every group of ten years.
#pragma once

#include "eclipse/lunar/KerangkaKhusuf.h"

namespace falak {

class KhusufSullam : public KerangkaKhusuf {
public:
    explicit KhusufSullam(Konteks k);

    // The grouped years, the single years and the month: HsMajmu, HsMabsut, HsSyahr and their
    // sum HsJumlah (alamah, Hishshoh, Khossyoh, Markaz, auj).
    void PokokKhusuf(int32_t tahun, int16_t bulan) override;
};

}  // namespace falak
