#include "core/Waktu.h"

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
    // Hours, minutes and seconds of the day are each below a hundred: two digits apiece.
    std::string out;
    auto dua = [&out](int n) {
        out.push_back(static_cast<char>('0' + n / 10));
        out.push_back(static_cast<char>('0' + n % 10));
    };
    const bool detik = pola == "hh.mm.ss" || pola == "hh:mm:ss";
    const char pemisah = pola == "hh:mm:ss" ? ':' : '.';
    dua(jam());
    out.push_back(pemisah);
    dua(menit());
    if (detik) {
        out.push_back(pemisah);
        dua(detikIni());
    }
    return out;
}

}  // namespace falak
