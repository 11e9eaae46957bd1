#include "core/Nilai.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

#include "core/Angka.h"

namespace falak {

const Nilai Kosong("Kosong");

namespace {

int32_t bacaMedan(std::string_view medan) {
    // Most fields are short runs of digits: read them directly.
    const bool negatif = !medan.empty() && medan.front() == '-';
    const std::string_view digit = negatif ? medan.substr(1) : medan;
    // (A plain loop: a search for any of ten characters asks the library once per character.)
    if (!digit.empty() && digit.size() <= 9 &&
        std::all_of(digit.begin(), digit.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        int32_t v = 0;
        for (char c : digit) v = v * 10 + (c - '0');
        return negatif ? -v : v;
    }
    if (!AdalahAngka(medan)) return 0;
    return BulatGenap32(ValAngka(medan)).value_or(0);
}

// Append v (never negative) padded with zeros to at least lebar digits.
void tulis(std::string& out, int64_t v, int lebar) {
    char buf[24];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v);
    (void)ec;
    const int n = static_cast<int>(end - buf);
    for (int i = n; i < lebar; ++i) out.push_back('0');
    out.append(buf, end);
}

void tulisTanda(std::string& out, int32_t tanda) {
    char buf[16];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, tanda);
    (void)ec;
    out.push_back(' ');
    out.append(buf, end);
}

}  // namespace

Nilai::Nilai(std::string_view teks) : teks_(teks) {
    kosong_ = teks == "Kosong";
    if (!teks.empty() && teks.back() >= '0' && teks.back() <= '9') tanda_ = static_cast<int8_t>(teks.back() - '0');
    size_t awal = 0;
    for (size_t p = 0; p < medan_.size(); ++p) {
        const size_t blank = teks.find(' ', awal);
        const std::string_view medan = teks.substr(awal, blank == std::string_view::npos ? teks.npos : blank - awal);
        medan_[p] = bacaMedan(medan);
        if (blank == std::string_view::npos) break;
        awal = blank + 1;
    }
}

Nilai Nilai::busur(int64_t buruj, int64_t darojah, int64_t daqiqoh, int64_t tsaniyah, int64_t tsalitsah,
                   int tanda, bool darojahTigaDigit) {
    Nilai v;
    v.bentuk_ = Bentuk::Busur;
    v.medan_ = {buruj, darojah, daqiqoh, tsaniyah, tsalitsah, tanda, 0, 0, 0};
    v.tandaAngka_ = tanda;
    v.tanda_ = static_cast<int8_t>(std::abs(tanda) % 10);
    v.tigaDigit_ = darojahTigaDigit;
    return v;
}

Nilai Nilai::alamah(const std::array<int64_t, 9>& medan, int tanda) {
    Nilai v;
    v.bentuk_ = Bentuk::Alamah;
    v.medan_ = medan;
    v.tandaAngka_ = tanda;
    v.tanda_ = static_cast<int8_t>(std::abs(tanda) % 10);
    return v;
}

std::optional<Nilai> Nilai::denganTanda(int digit) const {
    if (bentuk_ == Bentuk::Teks || tandaAngka_ < 0 || tandaAngka_ > 9 || digit < 0 || digit > 9) return std::nullopt;
    Nilai v = *this;
    v.tandaAngka_ = digit;
    v.tanda_ = static_cast<int8_t>(digit);
    // An arc value's sign is its sixth field.
    if (bentuk_ == Bentuk::Busur) v.medan_[5] = digit;
    return v;
}

std::optional<Nilai> Nilai::tanpaBuruj() const {
    if (bentuk_ != Bentuk::Busur) return std::nullopt;
    Nilai v = *this;
    v.medan_[0] = 0;
    return v;
}

std::string Nilai::teks() const {
    switch (bentuk_) {
        case Bentuk::Teks:
            return teks_;
        case Bentuk::Busur: {
            std::string out;
            out.reserve(20);
            tulis(out, medan_[0], 2);
            out.push_back(' ');
            tulis(out, medan_[1], tigaDigit_ ? 3 : 2);
            for (int i = 2; i < 5; ++i) {
                out.push_back(' ');
                tulis(out, medan_[static_cast<size_t>(i)], 2);
            }
            tulisTanda(out, tandaAngka_);
            return out;
        }
        case Bentuk::Alamah: {
            std::string out;
            out.reserve(32);
            tulis(out, medan_[0], 3);
            for (size_t i = 1; i < 9; ++i) {
                out.push_back(' ');
                tulis(out, medan_[i], 2);
            }
            tulisTanda(out, tandaAngka_);
            return out;
        }
    }
    return {};
}


}  // namespace falak
