// A clock time as the conclusions handle it: built from hours, minutes and seconds that may
// run past a day, read back from "hh:mm:ss" texts, and printed as "hh.mm". Only the time of
// day is shown, as a calendar clock shows it: 36 hours print as 12.00.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace falak {

class Waktu {
public:
    Waktu() = default;
    static Waktu dari(int64_t jam, int64_t menit, int64_t detik) { return Waktu(jam * 3600 + menit * 60 + detik); }
    // "hh:mm:ss", "hh:mm" or "hh"; no result for a text that is not a time.
    static std::optional<Waktu> baca(std::string_view teks);

    int64_t detik() const { return detik_; }
    Waktu tambah(int64_t detik) const { return Waktu(detik_ + detik); }

    // Hours, minutes and seconds of the time of day. A time before midnight of day 0 shows
    // the absolute value of its part of a day, as the calendar clock does.
    int jam() const { return static_cast<int>(hariIni() / 3600); }
    int menit() const { return static_cast<int>(hariIni() / 60 % 60); }
    int detikIni() const { return static_cast<int>(hariIni() % 60); }

    // Formats: "hh.mm", "hh.mm.ss", "hh:mm:ss".
    std::string format(std::string_view pola) const;

private:
    explicit Waktu(int64_t detik) : detik_(detik) {}
    int64_t hariIni() const;
    int64_t detik_ = 0;
};

}  // namespace falak
