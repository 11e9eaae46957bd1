#include "core/Manzil.h"

#include "core/Tabel.h"

namespace falak {

std::string AmbilManzil(Tabel& tabel, int pilihan, int buruj, int darojah) {
    int kunci = buruj * 31 + darojah;
    if (kunci > 371) kunci -= 371;
    if (!tabel.cari("Cari", kunci)) return {};
    if (pilihan == 1) return std::to_string(static_cast<int16_t>(BacaBulat(tabel, "mnJah")));
    if (pilihan == 2) return BacaTeks(tabel, "mn");
    return {};
}

}  // namespace falak
