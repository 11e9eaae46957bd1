#include "core/Sheet.h"

#include <algorithm>

namespace falak {

namespace {
const std::string kKosong;
}  // namespace

void Sheet::atur(int baris, int kolom) {
    baris_ = std::max(baris, 0);
    kolom_ = std::max(kolom, 0);
    sel_.assign(static_cast<size_t>(baris_) * static_cast<size_t>(kolom_), std::string());
    gabungan_.clear();
}

const std::string& Sheet::sel(int baris, int kolom) const {
    if (!ada(baris, kolom)) return kKosong;
    return sel_[static_cast<size_t>(baris) * static_cast<size_t>(kolom_) + static_cast<size_t>(kolom)];
}

bool Sheet::tulis(int baris, int kolom, std::string teks) {
    if (!ada(baris, kolom)) return false;
    sel_[static_cast<size_t>(baris) * static_cast<size_t>(kolom_) + static_cast<size_t>(kolom)] = std::move(teks);
    return true;
}

void Sheet::gabung(int baris, int kolom1, int kolom2) {
    if (kolom1 > kolom2) std::swap(kolom1, kolom2);
    if (!ada(baris, kolom1) || !ada(baris, kolom2) || kolom1 == kolom2) return;
    gabungan_.erase(std::remove_if(gabungan_.begin(), gabungan_.end(),
                                   [&](const Gabungan& g) {
                                       return g.baris == baris && g.kolom1 <= kolom2 && kolom1 <= g.kolom2;
                                   }),
                    gabungan_.end());
    gabungan_.push_back({baris, kolom1, kolom2});
}

}  // namespace falak
