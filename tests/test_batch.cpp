// The batches without sheets and the commands that print them: what runs, in which order, the
// progress and the stop, and the table and JSON that the user reads.
#include <gtest/gtest.h>

#include <sstream>

#include "FolderUji.h"
#include "cli/Perintah.h"
#include "core/Koneksi.h"
#include "run/Workspace.h"

using namespace falak;

namespace {

struct Batch : testing::Test {
    uji::FolderUji folder{"falak-batch"};

    void SetUp() override {
        folder.tabel("Balad", "BaladIN,BaladAR,DarojatArdlu,DaqiqohArdlu,ArahArdlu,DarojatThul,DaqiqohThul,ArahThul,"
                              "ZonaTime,Ketinggian\nPasuruan,Pasuruan,7,39,LS,112,56,BT,7,0\n");
    }
    int jalan(std::vector<std::string> argumen, std::string& keluar, std::string& galat) {
        std::istringstream in;
        std::ostringstream out, err;
        const int s = cli::Jalankan(argumen, {folder.lokasi(), in, out, err});
        keluar = out.str();
        galat = err.str();
        return s;
    }
};

// The treatises that have modules, in the order of the tree: the modern reckoning last.
const std::vector<std::string> kUrutan = {"SN", "FR", "IDB1", "SH", "TZ", "KW1", "FK", "BM", "NA", "ER"};

}  // namespace

TEST_F(Batch, AllTreatisesForAMonthWithoutSheets) {
    ClsConnection koneksi(folder.lokasi());
    Workspace ws(koneksi);
    std::vector<std::pair<int, int>> lapor;
    ws.kemajuan.atasLapor([&](int n, int maks) { lapor.emplace_back(n, maks); });
    const auto h = ws.mnuProsesAllSub("1445", 8, "Pasuruan", Workspace::Keluaran::Ringkas);
    ASSERT_FALSE(h.pesan);
    EXPECT_TRUE(h.lembar.empty());
    EXPECT_TRUE(ws.lembar.empty());
    ASSERT_EQ(h.ringkas.size(), kUrutan.size());
    for (size_t i = 0; i < kUrutan.size(); ++i) {
        EXPECT_EQ(h.ringkas[i].modul->kode, kUrutan[i]);
        EXPECT_EQ(h.ringkas[i].bulan, 8);
        EXPECT_EQ(h.ringkas[i].kesimpulan.size(), 13u);
    }
    // The bar starts at 0 of one a treatise and moves once a run, whatever the methods do inside.
    const int n = static_cast<int>(kUrutan.size());
    ASSERT_FALSE(lapor.empty());
    EXPECT_EQ(lapor.front(), std::make_pair(0, n));
    EXPECT_EQ(lapor.back(), std::make_pair(n, n));
    EXPECT_EQ(lapor.size(), kUrutan.size() + 1);
    EXPECT_FALSE(ws.kemajuan.batch);
}

TEST_F(Batch, TwelveMonthsAndTheStopBetweenRuns) {
    ClsConnection koneksi(folder.lokasi());
    Workspace ws(koneksi);
    auto h = ws.mnu12BulanSub("FR", "1445", "Pasuruan", Workspace::Keluaran::Ringkas);
    ASSERT_EQ(h.ringkas.size(), 12u);
    EXPECT_EQ(h.ringkas[11].bulan, 12);

    // Months first, the treatises within each month.
    h = ws.duaBelasBulanSemuaKitab("1445", "Pasuruan", Workspace::Keluaran::Ringkas);
    ASSERT_EQ(h.ringkas.size(), 12 * kUrutan.size());
    EXPECT_EQ(h.ringkas[kUrutan.size()].modul->kode, "SN");
    EXPECT_EQ(h.ringkas[kUrutan.size()].bulan, 2);

    // A stop raised during the third run ends the batch before the fourth.
    ws.kemajuan.atasLapor([&](int n, int) {
        if (n == 3) ws.kemajuan.berhenti = true;
    });
    h = ws.duaBelasBulanSemuaKitab("1445", "Pasuruan", Workspace::Keluaran::Ringkas);
    EXPECT_TRUE(h.dihentikan);
    EXPECT_EQ(h.ringkas.size(), 3u);

    // With sheets the same batch makes one sheet a run.
    ws.kemajuan.atasLapor(nullptr);
    h = ws.mnu12BulanSub("TZ", "1445", "Pasuruan");
    EXPECT_EQ(h.lembar.size(), 12u);
    EXPECT_EQ(ws.lembar.size(), 12u);
    EXPECT_TRUE(ws.mnu12BulanSub("TZ", "", "Pasuruan", Workspace::Keluaran::Ringkas).pesan);
}

// A batch that prints only the gist leaves the conclusions unworded; what it keeps must be what
// the worded batch gives, for every book and month, or the table would differ from the JSON.
TEST_F(Batch, TheGistAloneIsTheGistOfTheWordedRuns) {
    ClsConnection koneksi(folder.lokasi());
    Workspace ws(koneksi);
    const auto kata = ws.duaBelasBulanSemuaKitab("1446", "Pasuruan", Workspace::Keluaran::Ringkas);
    const auto intisari = ws.duaBelasBulanSemuaKitab("1446", "Pasuruan", Workspace::Keluaran::Intisari);
    ASSERT_EQ(intisari.ringkas.size(), kata.ringkas.size());
    for (size_t i = 0; i < kata.ringkas.size(); ++i) {
        const Ringkasan &a = kata.ringkas[i].ringkasan, &b = intisari.ringkas[i].ringkasan;
        SCOPED_TRACE(std::string(kata.ringkas[i].modul->kode) + " " + std::to_string(kata.ringkas[i].bulan));
        EXPECT_EQ(kata.ringkas[i].kesimpulan.size(), 13u);
        EXPECT_TRUE(intisari.ringkas[i].kesimpulan.empty());
        EXPECT_EQ(b.tanggalIjtima, a.tanggalIjtima);
        EXPECT_EQ(b.malam, a.malam);
        EXPECT_EQ(b.tanggalSipil, a.tanggalSipil);
        EXPECT_EQ(b.jamIjtima, a.jamIjtima);
        EXPECT_EQ(b.tinggiHilal, a.tinggiHilal);
        EXPECT_EQ(b.awalBulan, a.awalBulan);
    }
}

TEST_F(Batch, CommandsPrintAlignedTablesAndJson) {
    std::string out, err;
    ASSERT_EQ(jalan({"semua", "--tahun", "1445", "--bulan", "8"}, out, err), 0) << err;
    std::istringstream baris(out);
    std::string tempat, kepala, b;
    std::getline(baris, tempat);
    EXPECT_EQ(tempat, "Tempat: Pasuruan");
    std::getline(baris, kepala);
    const size_t kolomAwal = kepala.find("Awal bulan");
    ASSERT_NE(kolomAwal, std::string::npos);
    size_t n = 0;
    while (std::getline(baris, b)) {
        EXPECT_EQ(b.substr(0, kUrutan[n].size()), kUrutan[n]);
        // Every line is as long, up to the last column, as the heading (in characters).
        size_t kar = 0, i = 0;
        for (; i < b.size() && kar < kolomAwal; ++i)
            if ((static_cast<unsigned char>(b[i]) & 0xC0) != 0x80) ++kar;
        EXPECT_EQ(b[i - 1], ' ') << b;
        EXPECT_NE(b[i], ' ') << b;
        ++n;
    }
    EXPECT_EQ(n, kUrutan.size());

    ASSERT_EQ(jalan({"setahun", "--kitab", "KW1", "--tahun", "1445", "--json"}, out, err), 0) << err;
    EXPECT_EQ(out.front(), '{');
    EXPECT_NE(out.find("\"kitab\": \"KW1\", \"nama\": \"Khulashotu al-Wafiyah Taqribi\", \"tahun\": 1445, \"bulan\": 12"),
              std::string::npos);

    EXPECT_EQ(jalan({"semua", "--tahun", "1445", "--bulan", "13"}, out, err), 2);
    EXPECT_NE(err.find("bulan \"13\" tidak ada"), std::string::npos);
    EXPECT_EQ(jalan({"setahun", "--kitab", "XX", "--tahun", "1445"}, out, err), 2);
    EXPECT_NE(err.find("kitab \"XX\" tidak dikenal"), std::string::npos);
    EXPECT_EQ(jalan({"setahun", "--kitab", "SN", "--tahun", "1445", "--markaz", "Atlantis"}, out, err), 2);
    EXPECT_TRUE(out.empty());
}
