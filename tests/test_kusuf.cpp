// The solar eclipse: its three tests at their limits, the refusal of latitudes the tables do
// not hold, and the side of noon from which the place's stages count.
#include <gtest/gtest.h>

#include "SesiUji.h"
#include "core/FungsHisab.h"
#include "eclipse/solar/KusufSullam.h"

using namespace falak;

TEST(UjiKusuf, HishshohWithinSixDegreesOfANode) {
    EXPECT_TRUE(KerangkaKusuf::UjiHishshoh(Nilai("00 06 59 00 00 1")));
    EXPECT_FALSE(KerangkaKusuf::UjiHishshoh(Nilai("00 07 00 00 00 1")));
    EXPECT_TRUE(KerangkaKusuf::UjiHishshoh(Nilai("06 06 00 00 00 1")));
    EXPECT_TRUE(KerangkaKusuf::UjiHishshoh(Nilai("05 24 00 00 00 1")));
    EXPECT_FALSE(KerangkaKusuf::UjiHishshoh(Nilai("11 23 59 00 00 1")));
    // The lunar limit of 12 degrees is no solar eclipse.
    EXPECT_FALSE(KerangkaKusuf::UjiHishshoh(Nilai("06 12 00 00 00 1")));
}

TEST(UjiKusuf, IjtimaByDayOnTheAlamahClock) {
    // 13 hours from sunset is 07.00, 23 is 17.00.
    EXPECT_FALSE(KerangkaKusuf::UjiSiang(Nilai("000 00 00 00 03 12 59 00 00 1")));
    EXPECT_TRUE(KerangkaKusuf::UjiSiang(Nilai("000 00 00 00 03 13 00 00 00 1")));
    EXPECT_TRUE(KerangkaKusuf::UjiSiang(Nilai("000 00 00 00 03 23 59 00 00 1")));
    EXPECT_FALSE(KerangkaKusuf::UjiSiang(Nilai("000 00 00 00 03 00 00 00 00 1")));
}

TEST(UjiKusuf, OnlyLatitudesSixToEight) {
    Tempat t = Tempat::cadangan();
    for (const auto& [derajat, boleh] : {std::pair{5, false}, {6, true}, {7, true}, {8, true}, {9, false}, {0, false}}) {
        t.lintangDerajat = derajat;
        t.lintangMenit = 59;
        EXPECT_EQ(!PeriksaLintang(t).has_value(), boleh) << derajat;
    }
    t.lintangDerajat = 9;
    EXPECT_EQ(PeriksaLintang(t).value_or(""),
              "Gerhana matahari hanya bisa memproses untuk daerah dengan lintang 6, 7 dan 8 saja.");
}

namespace {

struct SesiKusuf : uji::SesiUji {
    KusufSullam* sn = nullptr;
    SesiKusuf() : uji::SesiUji("falak-kusuf") {}
    void SetUp() override {
        folder.tabel("Balad", uji::kKepalaBalad +
                                  "Jakarta,Jakarta,6,15,LS,106,52,BT,7,8\nMedan,Medan,3,35,LU,98,40,BT,7,20\n");
        bukaSesi();
        sn = dynamic_cast<KusufSullam*>(ws->modul(*CariModul("SN", Garapan::Kf)));
        ASSERT_NE(sn, nullptr);
    }
};

}  // namespace

TEST_F(SesiKusuf, NoonItselfIsNotAfternoon) {
    // 18 hours of the alamah clock is noon: the hour angle counts from there.
    sn->KfIjtima(5) = Nilai("000 00 00 00 03 18 00 00 00 1");
    sn->MatholiKusuf();
    EXPECT_FALSE(sn->KfSore);
    EXPECT_EQ(NilaiDesimal(JenisBusur, sn->KfFadlu(4)), 0.0);
    sn->KfIjtima(5) = Nilai("000 00 00 00 03 20 00 00 00 1");
    sn->MatholiKusuf();
    EXPECT_TRUE(sn->KfSore);
    // Two hours after noon: 30 degrees, west of the meridian.
    EXPECT_EQ(sn->KfFadlu(4).teks(), "01 00 00 00 00 0");
}

TEST_F(SesiKusuf, ThePlaceIsRefusedBeforeAnyReckoning) {
    const auto hasil = ws->mnuProsesGerhana(Garapan::Kf, "SN", "1447", 2, "Medan");
    EXPECT_EQ(hasil.lembar, nullptr);
    ASSERT_TRUE(hasil.pesan);
    EXPECT_EQ(hasil.pesan->judul, "Sepurane..");
    const auto cari = ws->cariGerhana(Garapan::Kf, "SN", "1440", 1450, "Medan");
    ASSERT_TRUE(cari.pesan);
    EXPECT_TRUE(cari.ringkas.empty());
}
