// The value of the reckoning: a blank-separated row of whole-number fields ending in a sign
// flag, as a reckoner writes it in the columns of his table.
//
//   arc value     "09 16 33 00 00 1"                 Buruj Darojah Daqiqoh Tsaniyah Tsalitsah sign
//   alamah value  "000 00 00 00 07 14 04 00 00 1"    year month day pasaran weekday h m s third sign
//
// Observable behaviour is that of the text: fields are read by position of the blanks, the
// sign is the last character, any text is a value (an empty one, a mansion's name, a number
// printed by a trigonometric step). In memory a value made by the arithmetic keeps its
// fields as numbers and prints its exact text on demand, so that the thousands of field reads
// of a run cost nothing; a value made from text keeps that text as it stands.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace falak {

class Nilai {
public:
    // The empty text.
    Nilai() = default;
    // Any text, kept as it stands.
    Nilai(std::string_view teks);  // NOLINT(google-explicit-constructor): values are texts
    Nilai(const char* teks) : Nilai(std::string_view(teks)) {}  // NOLINT
    Nilai(const std::string& teks) : Nilai(std::string_view(teks)) {}  // NOLINT

    // An arc value from normalised fields (absolute values), finished with the given sign
    // digit. Darojah is padded to three digits in the forms that fold Buruj into it.
    static Nilai busur(int64_t buruj, int64_t darojah, int64_t daqiqoh, int64_t tsaniyah,
                       int64_t tsalitsah, int tanda, bool darojahTigaDigit);
    // An alamah value from normalised fields (absolute values) and a sign digit.
    static Nilai alamah(const std::array<int64_t, 9>& medan, int tanda);

    // The exact text.
    std::string teks() const;
    // The value with its sign digit replaced, for a value the arithmetic made whose sign is
    // one digit: the text is then known without printing it. No result for any other value.
    std::optional<Nilai> denganTanda(int digit) const;
    // An arc value the arithmetic made with Buruj 0; no result for any other value.
    std::optional<Nilai> tanpaBuruj() const;
    // Field at blank-separated position p (1 to 9) as a 32-bit whole number: a field that is
    // not a number, or lies past the end, reads 0.
    int32_t posisi(int p) const {
        if (p < 1 || p > 9) return 0;
        const int64_t v = medan_[static_cast<size_t>(p - 1)];
        return v < INT32_MIN || v > INT32_MAX ? 0 : static_cast<int32_t>(v);
    }
    // The last character as a digit; 0 when it is not a digit.
    int tanda() const { return tanda_; }
    // The word "Kosong", which stands for an operand that is not given.
    bool kosong() const { return kosong_; }
    bool kosongTeks() const { return bentuk_ == Bentuk::Teks && teks_.empty(); }

    friend bool operator==(const Nilai& a, const Nilai& b) { return a.teks() == b.teks(); }

private:
    enum class Bentuk : uint8_t { Teks, Busur, Alamah };

    std::array<int64_t, 9> medan_{};  // fields; for Teks the readings of positions 1 to 9
    int32_t tandaAngka_ = 0;  // the sign number as appended to a finished value
    int8_t tanda_ = 0;
    Bentuk bentuk_ = Bentuk::Teks;
    bool tigaDigit_ = false;
    bool kosong_ = false;
    std::string teks_;  // Teks only
};

// The outcome of an operation that can meet a zero divisor, an overflow or the arcsine of
// ±1. The reckoning keeps the target's former value when there is none.
using Hasil = std::optional<Nilai>;

// "Kosong": the operand that is not given.
extern const Nilai Kosong;

// Assign a result to a target, keeping the target's former value when there is no result.
inline void isi(Nilai& target, const Hasil& hasil) {
    if (hasil) target = *hasil;
}

}  // namespace falak
