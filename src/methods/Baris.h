// A row of a treatise's worked table: cells of values numbered from 1, as the book numbers
// them. Rows stay from run to run; a stage overwrites only the cells it reaches.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/Nilai.h"

namespace falak {

template <size_t N>
class Baris {
public:
    Nilai& operator()(size_t i) { return sel_[i - 1]; }
    const Nilai& operator()(size_t i) const { return sel_[i - 1]; }
    static constexpr size_t ukuran() { return N; }
    std::span<Nilai, N> semua() { return sel_; }
    std::span<const Nilai, N> semua() const { return sel_; }

private:
    std::array<Nilai, N> sel_{};
};

// A named row as a run reports it: its name and the texts of its cells.
struct BarisTercatat {
    std::string nama;
    std::vector<std::string> sel;
};

template <size_t N>
BarisTercatat catat(std::string nama, const Baris<N>& baris) {
    BarisTercatat b{std::move(nama), {}};
    for (const Nilai& v : baris.semua()) b.sel.push_back(v.teks());
    return b;
}

}  // namespace falak
