// Tadzkirotu al-Ikhwan: the skeleton of Fathu al-Ro'uf al-Mannan with its own constants (the
// base runs to seconds, its alamah to the pasaran), its own split of the years, the hours per
// degree read with seconds (table 6), and a moon's correction whose factor is itself a
// product: the hours per degree times 2' 30", in place of a fixed five minutes. Markaz:
// Semarang, as the book it follows.
#pragma once

#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

class TadzkirotulIkhwan : public KerangkaTaqribi {
public:
    explicit TadzkirotulIkhwan(Konteks k);

protected:
    void TaadilQomar() override;
};

}  // namespace falak
