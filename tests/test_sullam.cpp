// Sullam al-Nairoin: the year split, the place correction and the run's frame, on a session
// whose tables the test writes itself.
#include <gtest/gtest.h>

#include "SesiUji.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "methods/taqribi/SullamNairoin.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

struct SesiUji : uji::SesiUji {
    SullamNairoin* sn = nullptr;

    SesiUji() : uji::SesiUji("falak-sullam") {}
    void SetUp() override {
        folder.tabel("Balad", uji::kKepalaBalad +
                                  "Jakarta,Jakarta,6,15,LS,106,52,BT,7,8\nPasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n");
        bukaSesi();
        sn = dynamic_cast<SullamNairoin*>(ws->modul("SN"));
        ASSERT_NE(sn, nullptr);
    }
};

}  // namespace

TEST_F(SesiUji, YearSplitIntoGroupsOfTenAndSingleYears) {
    sn->JumlahSN(10, 1);
    EXPECT_EQ(sn->Dawr, 2);
    EXPECT_EQ(sn->SisaTahun, 0);
    EXPECT_EQ(sn->Mabsut(2).teks(), "00 00 00 00 00 1");
    // Epoch plus two groups of ten: Hishshoh 9s 16° 33' + 2 x 2s 20° 30'.
    EXPECT_EQ(sn->Majmu(2).teks(), "02 27 33 00 00 1");

    sn->JumlahSN(9, 1);
    EXPECT_EQ(sn->Dawr, 1);
    EXPECT_EQ(sn->SisaTahun, 9);
    EXPECT_EQ(sn->Majmu(2).teks(), "00 07 03 00 00 1");  // epoch plus one group, as for 10 to 19

    sn->JumlahSN(0, 1);
    EXPECT_EQ(sn->Dawr, 0);
    EXPECT_EQ(sn->SisaTahun, 10);
    EXPECT_EQ(sn->Majmu(2).teks(), "09 16 33 00 00 1");  // backward rows, counted zero times

    sn->JumlahSN(-15, 1);
    EXPECT_EQ(sn->Dawr, -1);
    EXPECT_EQ(sn->SisaTahun, 5);
    EXPECT_EQ(sn->Majmu(2).teks(), "06 26 03 00 00 1");
}

TEST_F(SesiUji, MonthOneTakesZeroRowsWithoutTheTable) {
    koneksi->TRBSyahru.tutup();
    sn->Syahr(2) = Nilai("lama");
    sn->JumlahSN(1445, 1);
    EXPECT_EQ(sn->Syahr(1).teks(), "000 00 00 00 00 00 00 00 00 1");
    EXPECT_EQ(sn->Syahr(2).teks(), "00 00 00 00 00 1");
    // A month whose row is missing keeps what the row held.
    sn->Syahr(3) = Nilai("lama");
    sn->JumlahSN(1445, 8);
    EXPECT_EQ(sn->Syahr(3).teks(), "lama");
}

TEST_F(SesiUji, PlaceAtTheMarkazHasNoCorrection) {
    ws->pilihTempat("Jakarta");
    sn->Jumlah(1) = Nilai("000 00 00 00 02 18 11 00 00 1");
    sn->Saah(5) = Nilai("00 00 00 00 00 1");
    sn->IjtimaFR();
    EXPECT_EQ(sn->Ijtima(4).teks(), "000 00 00 00 00 00 00 00 00 0");
    EXPECT_EQ(sn->Ijtima(5).teks(), sn->Ijtima(3).teks());

    // Pasuruan lies 6° 04' east of the markaz: 24' 16" of time later.
    ws->pilihTempat("Pasuruan");
    sn->IjtimaFR();
    EXPECT_EQ(sn->Ijtima(4).teks(), "000 00 00 00 00 00 24 16 00 1");
    EXPECT_EQ(sn->Ijtima(5).teks(), "000 00 00 00 02 18 35 16 00 1");
}

TEST_F(SesiUji, HeightOfTheHilalFromTheHoursToSunset) {
    sn->Ijtima(5) = Nilai("000 00 00 00 02 18 11 00 00 1");
    sn->TdlAr(5) = Nilai("00 00 20 00 00 1");
    sn->HilalFR();
    EXPECT_EQ(sn->Hilal(3).teks(), "00 05 49 00 00 1");
    EXPECT_EQ(sn->Hilal(5).teks(), "00 02 54 30 00 1");  // (24 h - 18 h 11 m) x 0° 30'
    EXPECT_EQ(sn->Hilal(7).teks(), "00 00 11 38 00 1");  // four minutes of stay a degree
    EXPECT_EQ(sn->Nur(2).teks(), "00 00 31 38 00 1");
}

TEST_F(SesiUji, YearCheckAndUnavailableTreatises) {
    auto h = ws->mnuProsesIjSub("SN", "", 8, "Jakarta");
    ASSERT_TRUE(h.pesan);
    EXPECT_EQ(h.pesan->judul, "Ojok kesusu..");
    EXPECT_EQ(h.pesan->teks, "Tahun belum diisi.\nSilahkan tentukan tahun sebelum Anda mengakses data.");
    EXPECT_TRUE(ws->mnuProsesIjSub("SN", "-1", 8, "Jakarta").pesan);
    EXPECT_TRUE(ws->mnuProsesIjSub("IM", "1445", 8, "Jakarta").pesan);
    EXPECT_TRUE(ws->lembar.empty());
}

TEST_F(SesiUji, ARunMakesItsSheetWithTheFrameAndTheCounts) {
    const auto h = ws->mnuProsesIjSub("SN", "1445", 8, "Nowhere");
    ASSERT_FALSE(h.pesan);
    const LembarKerja& tab = *h.lembar;
    EXPECT_EQ(tab.kunci, "IjSN_1");
    EXPECT_EQ(tab.modul->kodeLembar, 2);
    EXPECT_EQ(tab.judul, "Hisab Awal Bulan 1445 H. 8");
    EXPECT_EQ(ws->sesi.tempat.nama, "Pasuruan");  // an unknown place falls back
    EXPECT_EQ(tab.lembar.jumlahBaris(), 40);
    EXPECT_EQ(tab.lembar.sel(3, 39), "1440");
    EXPECT_EQ(tab.lembar.sel(4, 39), "5");
    EXPECT_EQ(tab.lembar.sel(29, 39), "Pasuruan");
    EXPECT_EQ(tab.lembar.sel(28, 39), "(+)");
    EXPECT_EQ(tab.kesimpulan.size(), 13u);
    EXPECT_EQ(tab.kesimpulan[0], "Sullam al-Nairoin");
    // The hishshoh of the grouped years, field by field from right to left.
    EXPECT_EQ(tab.lembar.sel(3, 31), "2");
    EXPECT_EQ(tab.lembar.sel(3, 29), "19");
    EXPECT_EQ(tab.lembar.sel(3, 27), "3");
    EXPECT_EQ(ws->mnuProsesIjSub("SN", "1445", 9, "Jakarta").lembar->kunci, "IjSN_2");
}
