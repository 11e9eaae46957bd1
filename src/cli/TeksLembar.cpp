#include "cli/TeksLembar.h"

#include <algorithm>
#include <vector>

namespace falak::cli {

namespace {

bool tandaGabung(char32_t c) {
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x0610 && c <= 0x061A) || (c >= 0x064B && c <= 0x065F) ||
           c == 0x0670 || (c >= 0x06D6 && c <= 0x06ED) || c == 0x200C || c == 0x200D || c == 0x200F || c == 0x200E;
}

std::string isiKiri(const std::string& s, size_t lebar) {
    const size_t w = lebarTampil(s);
    return w >= lebar ? s : std::string(lebar - w, ' ') + s;
}

}  // namespace

size_t lebarTampil(std::string_view s) {
    size_t n = 0;
    for (size_t i = 0; i < s.size();) {
        const unsigned char c = static_cast<unsigned char>(s[i]);
        char32_t cp;
        size_t len;
        if (c < 0x80) { cp = c; len = 1; }
        else if ((c >> 5) == 6) { cp = c & 0x1F; len = 2; }
        else if ((c >> 4) == 14) { cp = c & 0x0F; len = 3; }
        else { cp = c & 0x07; len = 4; }
        for (size_t j = 1; j < len && i + j < s.size(); ++j) cp = (cp << 6) | (static_cast<unsigned char>(s[i + j]) & 0x3F);
        if (!tandaGabung(cp)) ++n;
        i += len;
    }
    return n;
}

std::string tampilLembar(const Sheet& lembar) {
    const int nb = lembar.jumlahBaris(), nk = lembar.jumlahKolom();
    auto gabunganDi = [&](int b, int k) { return lembar.gabunganDi(b, k); };
    auto judul = [&](const Gabungan& g) { return g.kolom1 == 0 && g.kolom2 == nk - 1; };

    // Widths from the single cells; a merged cell widens the first column of its span.
    std::vector<size_t> lebar(static_cast<size_t>(nk), 0);
    for (int b = 0; b < nb; ++b)
        for (int k = 0; k < nk; ++k) {
            const Gabungan* g = gabunganDi(b, k);
            if (!g) lebar[static_cast<size_t>(k)] = std::max(lebar[static_cast<size_t>(k)], lebarTampil(lembar.sel(b, k)));
        }
    for (const Gabungan& g : lembar.gabungan()) {
        if (judul(g)) continue;
        const size_t perlu = lebarTampil(lembar.sel(g.baris, g.kolom1));
        size_t ada = 0;
        for (int k = g.kolom1; k <= g.kolom2; ++k) ada += lebar[static_cast<size_t>(k)] + (lebar[static_cast<size_t>(k)] ? 1 : 0);
        if (perlu > ada) lebar[static_cast<size_t>(g.kolom1)] += perlu - ada;
    }

    size_t total = 0;
    for (size_t w : lebar) total += w ? w + 1 : 0;
    std::string out;
    for (int b = 0; b < nb; ++b) {
        std::string baris;
        bool isi = false;
        for (int k = 0; k < nk; ++k) {
            const Gabungan* g = gabunganDi(b, k);
            if (g && judul(*g)) {
                const std::string& t = lembar.sel(b, g->kolom1);
                const size_t w = lebarTampil(t);
                baris = std::string(total > w ? (total - w) / 2 : 0, ' ') + t;
                isi = !t.empty();
                break;
            }
            if (g) {
                if (k != g->kolom1) continue;  // a merged cell is written once, over its span
                size_t w = 0;
                for (int j = g->kolom1; j <= g->kolom2; ++j) w += lebar[static_cast<size_t>(j)] + (lebar[static_cast<size_t>(j)] ? 1 : 0);
                const std::string& t = lembar.sel(b, g->kolom1);
                isi = isi || !t.empty();
                baris += isiKiri(t, w ? w - 1 : 0) + " ";
                continue;
            }
            if (!lebar[static_cast<size_t>(k)]) continue;
            const std::string& t = lembar.sel(b, k);
            isi = isi || !t.empty();
            baris += isiKiri(t, lebar[static_cast<size_t>(k)]) + " ";
        }
        if (!isi) continue;
        while (!baris.empty() && baris.back() == ' ') baris.pop_back();
        out += baris + "\n";
    }
    return out;
}

}  // namespace falak::cli
