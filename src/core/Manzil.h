// The lunar mansion (manzil) of a place on the ecliptic, from the mansions' rows of a table.
#pragma once

#include <string>

namespace falak {

class Tabel;

// AmbilManzil: the row of key buruj x 31 + darojah (a key above 371 has 371 taken off) gives
// mnJah, the whole degrees travelled in the mansion, and mn, the mansion's name. pilihan 1
// returns the printed mnJah, 2 the name; empty when the row is not there.
std::string AmbilManzil(Tabel& tabel, int pilihan, int buruj, int darojah);

}  // namespace falak
