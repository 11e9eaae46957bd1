#include "core/Waktu.h"

#include <cstdio>
#include <cstdlib>

#include "core/Angka.h"

namespace falak {

namespace {
constexpr int64_t kSehari = 86400;
}  // namespace

std::optional<Waktu> Waktu::baca(std::string_view teks) {
    int64_t bagian[3] = {0, 0, 0};
    int n = 0;
    size_t awal = 0;
    while (n < 3) {
        const size_t titik = teks.find(':', awal);
        const std::string_view s = teks.substr(awal, titik == std::string_view::npos ? teks.npos : titik - awal);
        if (!AdalahAngka(s)) return std::nullopt;
        bagian[n++] = static_cast<int64_t>(ValAngka(s));
        if (titik == std::string_view::npos) break;
        awal = titik + 1;
    }
    return dari(bagian[0], bagian[1], bagian[2]);
}

int64_t Waktu::hariIni() const { return std::llabs(detik_ % kSehari); }

std::string Waktu::format(std::string_view pola) const {
    char buf[16];
    if (pola == "hh.mm.ss") std::snprintf(buf, sizeof buf, "%02d.%02d.%02d", jam(), menit(), detikIni());
    else if (pola == "hh:mm:ss") std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", jam(), menit(), detikIni());
    else std::snprintf(buf, sizeof buf, "%02d.%02d", jam(), menit());
    return buf;
}

}  // namespace falak
