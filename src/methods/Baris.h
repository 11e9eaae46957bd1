// A row of a treatise's worked table: cells numbered from 1, as the book numbers them. Most
// treatises hold values; the one that reckons in decimals holds 32-bit floats. Rows stay from
// run to run; a stage overwrites only the cells it reaches.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/Angka.h"
#include "core/Nilai.h"

namespace falak {

template <size_t N, typename T = Nilai>
class Baris {
public:
    T& operator()(size_t i) { return sel_[i - 1]; }
    const T& operator()(size_t i) const { return sel_[i - 1]; }
    static constexpr size_t ukuran() { return N; }
    std::span<T, N> semua() { return sel_; }
    std::span<const T, N> semua() const { return sel_; }

private:
    std::array<T, N> sel_{};
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

// A row of decimals, each cell as its 32-bit float prints.
template <size_t N>
BarisTercatat catat(std::string nama, const Baris<N, float>& baris) {
    BarisTercatat b{std::move(nama), {}};
    for (float v : baris.semua()) b.sel.push_back(CetakAngka32(v));
    return b;
}

template <size_t N>
BarisTercatat catat(std::string nama, const Baris<N, std::string>& baris) {
    return {std::move(nama), {baris.semua().begin(), baris.semua().end()}};
}

}  // namespace falak
