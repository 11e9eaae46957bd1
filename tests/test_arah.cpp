// A name inside a line is set off only when its letters run against the line.
#include <gtest/gtest.h>

#include "core/Arah.h"

using namespace falak;

namespace {

std::string isolasi(const std::string& s) { return "\u2068" + s + "\u2069"; }

}  // namespace

TEST(Arah, NameIsIsolatedWhenItsLettersRunAgainstTheLine) {
    // In a Latin line: Arabic in any of its blocks, Hebrew; not digits, signs or accented Latin.
    for (const std::string nama : {"مكة المكرمة", "ﻻدن", "Pasar \u05D0", "Kota \U0001EE00"})
        EXPECT_EQ(IsolasiNama(nama), isolasi(nama)) << nama;
    for (const std::string nama : {"Jakarta", "Blok 5 (Barat)", "Bánh-mì", "", "1445 - 3° 21'"})
        EXPECT_EQ(IsolasiNama(nama), nama) << nama;

    // In an Arabic line: any letter written from the left, Latin or other.
    for (const std::string nama : {"Jakarta", "سورابايا Kota", "Ñ", "\u4E2D"})
        EXPECT_EQ(IsolasiNama(nama, ArahBaris::KananKeKiri), isolasi(nama)) << nama;
    for (const std::string nama : {"سورابايا", "مكة 2", "(-)", "\u2013 \u00D7"})
        EXPECT_EQ(IsolasiNama(nama, ArahBaris::KananKeKiri), nama) << nama;
}

TEST(Arah, BrokenTextIsReadWithoutRunningPastItsEnd) {
    // A lead byte with its continuation missing, cut at the end, or stray continuations.
    EXPECT_EQ(IsolasiNama("\xD8"), "\xD8");
    EXPECT_EQ(IsolasiNama("ab\xE2\x80"), "ab\xE2\x80");
    EXPECT_EQ(IsolasiNama("\x80\x80 \xD9\x85"), isolasi("\x80\x80 \xD9\x85"));
}
