// Fathu al-Ro'uf al-Mannan: the ijtima' and the hilal at sunset for one Hijri month, worked as
// the treatise works it by hand from its constants of thirty-year groups, single years and
// months, in value arithmetic, with its markaz at Semarang (6° 56' S, 110° 24' E). Its stages
// are the taqribi skeleton's, as they stand.
#pragma once

#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

class FathurRouf : public KerangkaTaqribi {
public:
    explicit FathurRouf(Konteks k);
};

}  // namespace falak
