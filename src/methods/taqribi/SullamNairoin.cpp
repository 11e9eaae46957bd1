#include "methods/taqribi/SullamNairoin.h"

#include <array>
#include <string>

#include "conclusions/Kesimpulan.h"
#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Manzil.h"
#include "core/Sesi.h"
#include "methods/tahqiqi/Taadil.h"
#include "methods/taqribi/Lembar.h"

namespace falak {

namespace {

// The treatise's constants: alamah, Hishshoh, Khossyoh, Markaz and the correction (the auj).
const std::array<Nilai, 5> kEpoch = {Nilai("000 00 00 00 07 14 04 00 00 1"), Nilai("09 16 33 00 00 1"),
                                     Nilai("10 26 13 00 00 1"), Nilai("06 01 10 00 00 1"),
                                     Nilai("02 23 14 00 00 1")};
const std::array<Nilai, 5> kSepuluhMaju = {Nilai("000 00 00 00 01 16 05 00 00 1"), Nilai("02 20 30 00 00 1"),
                                           Nilai("07 08 00 00 00 1"), Nilai("08 12 40 00 00 1"),
                                           Nilai("00 00 08 00 00 1")};
const std::array<Nilai, 5> kSepuluhMundur = {Nilai("000 00 00 00 01 16 05 00 00 0"), Nilai("02 20 30 00 00 0"),
                                             Nilai("07 08 00 00 00 0"), Nilai("08 12 40 00 00 0"),
                                             Nilai("00 00 08 00 00 0")};

constexpr int kBujurMarkazDerajat = 106;
constexpr int kBujurMarkazMenit = 52;
constexpr int kLangkah = 8;  // steps of the progress bar

Nilai busur(int64_t b, int64_t d, int64_t m) { return DlorbuSittin(b, d, m, 0, 0, 1, 1); }

}  // namespace

void SullamNairoin::JumlahSN(int32_t tahun, int16_t bulan) {
    BulanIni = bulan;
    bool maju = true;
    int32_t hitungan;
    if (tahun >= 10) {
        Daur = (tahun + 10) / 10;
        SisaTahun = static_cast<int16_t>((tahun + 10) % 10);
        hitungan = Daur;
    } else if (tahun > 0) {
        Daur = 1;
        SisaTahun = static_cast<int16_t>(tahun);
        hitungan = 1;
    } else {
        Daur = tahun / 10;
        SisaTahun = static_cast<int16_t>(tahun - Daur * 10 + 10);
        maju = false;
        hitungan = Daur < 0 ? -Daur : Daur;
    }
    HitungMajmuah(Majmu.semua(), kEpoch, maju ? kSepuluhMaju : kSepuluhMundur, hitungan, 0, 1);
    HitungMabsuthah(Mabsut.semua(), SisaTahun, false, false, true, true);

    if (bulan > 1) {
        Tabel& syahru = k_.koneksi.TRBSyahru;
        if (syahru.cari("Cari", bulan)) {
            auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, kolom); };
            isi(Syahr(1), AlamahTarkh(0, {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1));
            isi(Syahr(2), DlorbuSittin(sel("hsBrj"), sel("hsJah"), sel("hsQoh"), "0", "0", 1, 1));
            isi(Syahr(3), DlorbuSittin(sel("ksBrj"), sel("ksJah"), sel("ksQoh"), "0", "0", 1, 1));
            isi(Syahr(4), DlorbuSittin(sel("mrBrj"), sel("mrJah"), sel("mrQoh"), "0", "0", 1, 1));
            Syahr(5) = busur(0, 0, 0);
        }
    } else {
        Syahr(1) = AlamahTarkh(0, MedanAlamah{}, 1);
        for (size_t i = 2; i <= 5; ++i) Syahr(i) = busur(0, 0, 0);
    }

    Jumlah(1) = TambahNilai(0, 3, 1, Majmu(1), Mabsut(1), Syahr(1));
    for (size_t i = 2; i <= 5; ++i) Jumlah(i) = TambahNilai(3, 3, 1, Majmu(i), Mabsut(i), Syahr(i));
}

void SullamNairoin::TaadilSN() {
    k_.taadil.TaadilBaris(TdlKs.semua(), 1, Jumlah(3), 1, false);
    k_.taadil.TaadilBaris(TdlMr.semua(), 2, Jumlah(4), 1, false);
    k_.taadil.TaadilBaris(TdlAr.semua(), 3, Jumlah(2), 1, false);
    k_.taadil.TaadilBaris(TdlHs.semua(), 4, Jumlah(3), 5, false);
}

void SullamNairoin::QomarSN() {
    Qomar(1) = TdlKs(5);
    Qomar(2) = TdlMr(5);
    Qomar(3) = TambahNilai(3, 3, 1, TdlKs(5), TdlMr(5));
    Qomar(4) = busur(0, 0, 5);
    isi(Qomar(5), KaliNilai(3, 3, 1, Qomar(3), Qomar(4)));
    Qomar(6) = TdlMr(5);
    Qomar(7) = TambahNilai(3, 3, 1, Qomar(5), TdlMr(5));

    BudTaqwim(1) = Jumlah(4);
    BudTaqwim(2) = Jumlah(5);
    BudTaqwim(3) = TambahNilai(3, 3, 1, BudTaqwim(1), BudTaqwim(2));
    BudTaqwim(4) = Qomar(7);
    BudTaqwim(5) = KurangNilai(3, 3, 1, BudTaqwim(3), BudTaqwim(4));

    k_.taadil.TaadilBaris(TdlDq.semua(), 5, BudTaqwim(5), 5, false);

    Manzil(1) = ClsTaadil::Madkhul(BudTaqwim(5));
    const int a = AmbilTingkat(Manzil(1), 1), b = AmbilTingkat(Manzil(1), 2);
    Tabel& taadil = k_.koneksi.TRBTaadil;
    Manzil(2) = Nilai(AmbilManzil(taadil, 1, a, b));
    Manzil(3) = Nilai(CetakAngka(ValAngka(Manzil(2).teks()) + 1));
    isi(Manzil(2), DlorbuSittin("0", Manzil(2).teks(), "0", "0", "0", 1, 1));
    const std::string berikut = ValAngka(Manzil(3).teks()) > 13 ? "1" : Manzil(3).teks();
    isi(Manzil(3), DlorbuSittin("0", berikut, "0", "0", "0", 1, 1));
    Manzil(4) = DlorbuSittin(0, 0, AmbilTingkat(Manzil(1), 3), AmbilTingkat(Manzil(1), 4), AmbilTingkat(Manzil(1), 5), 1, 1);
    Manzil(5) = TambahNilai(3, 3, 1, Manzil(2), Manzil(4));
    Manzil(6) = Nilai(AmbilManzil(taadil, 2, a, b));
}

void SullamNairoin::IjtimaSN() {
    Saah(1) = Qomar(3);
    Saah(2) = TdlDq(5);
    Saah(3) = KurangNilai(3, 3, 1, Saah(1), Saah(2));
    Saah(4) = TdlHs(5);
    isi(Saah(5), KaliNilai(3, 3, 1, Saah(3), Saah(4)));

    Ijtima(1) = Jumlah(1);
    Ijtima(2) = CUmumToAlamah(Saah(5), false);
    Ijtima(3) = KurangNilai(0, 3, 1, Jumlah(1), Ijtima(2));

    const Tempat& t = k_.sesi.tempat;
    const Nilai p = DlorbuSittin(0, t.bujurDerajat, t.bujurMenit, 0, 0, AmbilTanda(Nilai(t.tandaBujur)), 3);
    const Nilai j = DlorbuSittin(0, kBujurMarkazDerajat, kBujurMarkazMenit, 0, 0, 1, 3);
    Ijtima(4) = KurangNilai(3, 3, 3, p, j);
    isi(Ijtima(4), BagiNilai(3, 3, 1, Ijtima(4), busur(0, 15, 0)));
    Ijtima(4) = CUmumToAlamah(Ijtima(4), false);
    Ijtima(5) = TambahNilai(0, 3, 1, Ijtima(3), Ijtima(4));
}

void SullamNairoin::HilalSN() {
    Hilal(1) = Nilai("00 24 00 00 00 1");
    Hilal(2) = CAlamahToUmum(Ijtima(5));
    Hilal(3) = KurangNilai(3, 2, 1, Hilal(1), Hilal(2));
    Hilal(4) = busur(0, 0, 30);
    isi(Hilal(5), KaliNilai(3, 3, 1, Hilal(3), Hilal(4)));
    Hilal(6) = busur(0, 0, 4);
    isi(Hilal(7), KaliNilai(3, 3, 1, Hilal(5), Hilal(6)));
    Nur(1) = TdlAr(5);
    Nur(2) = TambahNilai(3, 3, 1, Nur(1), Hilal(7));
}

void SullamNairoin::KesimpulanSN() {
    ClsKesimpulan& ks = k_.kesimpulan;
    Sesi& s = k_.sesi;
    const int tahun = AmbilTingkat(s.tanggalPilihan, 6);
    const int bulan = AmbilTingkat(s.tanggalPilihan, 7);
    const Nilai& I = Ijtima(5);
    const std::string jamIjtima = std::to_string(AmbilTingkat(I, 11) + 18);

    // The civil date of the ijtima', and the first of the month: two days after it when the
    // hilal stands below 2 degrees, else one.
    Nilai hariIjtima = ks.CariTHM(tahun, bulan, AmbilTingkat(I, 10)).value_or(Nilai());
    const int d = NilaiDesimal(3, Hilal(5)) < 2 ? 2 : 1;
    const std::string dd = std::to_string(d);
    const Nilai tambahHari = AlamahTarkh(3, {"0", "0", dd, dd, dd, "0", "0", "0", "0"}, 1).value_or(Nilai());
    const Nilai awalBulan = TambahNilai(2, 3, 1, hariIjtima, tambahHari);

    std::vector<std::string> baris(14);
    baris[1] = s.namaKitab;
    baris[2] = s.labelKe(0) + ks.FullM(awalBulan, "17", true);
    baris[3] = s.labelKe(1) + ks.FullM(hariIjtima, jamIjtima, false);
    const std::string jam = ks.JamIjtima(jamIjtima, std::to_string(AmbilTingkat(I, 12)), hariIjtima);
    baris[4] = s.labelKe(2) + jam;
    baris[5] = s.labelKe(3) + ks.SaatuMaghribS(BudTaqwim(5));
    baris[6] = s.labelKe(6) + ks.ArahHilal(BudTaqwim(5));
    baris[7] = s.labelKe(5) + ks.KeadaanHilal(BudTaqwim(5));
    baris[8] = s.labelKe(7) + ks.IrtifaHilal(Hilal(5), true);
    baris[9] = s.labelKe(8) + ks.MuktsulHilal(Hilal(7));
    baris[10] = s.labelKe(9) + ks.NurHilal(Nur(2));
    std::string gurub, terbit;
    ks.WaktuGurub(Nilai(BurujMatahari(hariIjtima).value_or("")), gurub, terbit);
    baris[11] = s.labelKe(12) + gurub;
    baris[12] = s.labelKe(14) + ClsKesimpulan::baris("Jakarta", 6, 15, 0, 106, 52, 1);
    const Tempat& t = s.tempat;
    baris[13] = s.labelKe(15) + ClsKesimpulan::baris(t.nama, t.lintangDerajat, t.lintangMenit,
                                                      static_cast<int>(ValAngka(t.tandaLintang)), t.bujurDerajat,
                                                      t.bujurMenit, static_cast<int>(ValAngka(t.tandaBujur)));
    kesimpulan_.assign(baris.begin() + 1, baris.end());
    ringkasan_ = {hariIjtima, jam, Hilal(5), awalBulan};
}

void SullamNairoin::IsiTabelSN() {
    ClsFlexGrid& g = k_.grid;
    const Sesi& s = k_.sesi;
    g.FlexSetting(40, 40, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, "SN");
    const int tahun = AmbilTingkat(s.tanggalPilihan, 6);
    g.FlexNama(JudulLembarArab(s.tempat.namaTampil, tahun, BulanIni + 1), 0, 0, 39);
    g.FlexTeks(std::to_string((Daur - 1) * 10), 3, 39);
    g.FlexTeks(std::to_string(SisaTahun), 4, 39);
    g.FlexTeks(NamaBulanArab(BulanIni), 5, 39);
    g.FlexTeks(TandaKurung(AmbilTanda(Ijtima(4)), ""), 28, 39);
    g.FlexTeks(s.tempat.nama, 29, 39);
    g.FlexTeks(s.tempat.nama, 31, 39);
}

void SullamNairoin::tulisSel() {
    ClsFlexGrid& g = k_.grid;
    constexpr int T = ClsFlexGrid::kTanpaMedan;
    int c = 37;
    for (size_t k = 1; k <= 7; c -= 6, ++k) {
        const int baris = static_cast<int>(k);
        if (k <= 5) {
            const std::initializer_list<int> atas = {1, 2, 3, T};
            if (k == 1) {
                for (auto [b, row] : {std::pair{3, &Majmu}, {4, &Mabsut}, {5, &Syahr}, {6, &Jumlah}})
                    g.FlexData((*row)(k), b, c, {10, 11, 12, 13});
            } else {
                for (auto [b, row] : {std::pair{3, &Majmu}, {4, &Mabsut}, {5, &Syahr}, {6, &Jumlah}})
                    g.FlexData((*row)(k), b, c, atas);
            }
            const std::initializer_list<int> lima = {1, 2, 3, 4, 5};
            g.FlexData(TdlKs(k), baris + 8, 19, lima);
            g.FlexData(TdlMr(k), baris + 8, 9, lima);
            g.FlexData(TdlHs(k), baris + 16, 19, lima);
            g.FlexData(TdlDq(k), baris + 16, 9, lima);
            g.FlexData(TdlAr(k), baris + 24, 19, lima);
            g.FlexData(Manzil(k), baris + 24, 9, lima);
            g.FlexData(Saah(k), baris + 19, 37, lima);
            g.FlexData(BudTaqwim(k), baris + 14, 37, lima);
            g.FlexData(Ijtima(k), baris + 24, 37, {10, 11, 12, 13, 14});
        }
        if (k <= 2) g.FlexData(Nur(k), baris + 36, 37, {1, 2, 3, 4, 5});
        g.FlexData(Qomar(k), baris + 7, 37, {1, 2, 3, 4, 5});
        g.FlexData(Hilal(k), baris + 29, 37, {1, 2, 3, 4, 5});
    }
    TulisNamaManzil(g, Manzil(6).teks(), 29, 7);
}

void SullamNairoin::tahap(int32_t tahun, int16_t bulan) {
    Kemajuan& maju = k_.kemajuan;
    JumlahSN(tahun, bulan);
    maju.langkah();
    TaadilSN();
    maju.langkah();
    QomarSN();
    maju.langkah();
    IjtimaSN();
    maju.langkah();
    HilalSN();
    maju.langkah();
}

void SullamNairoin::HitungIjtimaSN(int32_t tahun, int16_t bulan) {
    Kemajuan& maju = k_.kemajuan;
    maju.mulai(kLangkah);
    tahap(tahun, bulan);
    KesimpulanSN();
    maju.langkah();
    IsiTabelSN();
    maju.langkah();
    tulisSel();
    maju.penuh();
}

void SullamNairoin::HitungRingkas(int32_t tahun, int16_t bulan) {
    tahap(tahun, bulan);
    KesimpulanSN();
}

std::optional<Nilai> SullamNairoin::AwalBulan(int32_t tahun, int16_t bulan) {
    k_.sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    tahap(tahun, bulan);
    const auto hari = k_.kesimpulan.CariTHM(tahun, bulan, AmbilTingkat(Ijtima(5), 10));
    if (!hari || hari->kosongTeks()) return std::nullopt;
    const char* jam = NilaiDesimal(3, Hilal(5)) < 2 ? "49" : "25";
    return TambahNilai(2, 3, 1, *hari, Nilai(std::string("00 00 00 00 00 ") + jam + " 00 00 00 1"));
}

std::vector<BarisTercatat> SullamNairoin::baris() const {
    return {catat("Majmu", Majmu),   catat("Mabsut", Mabsut), catat("Syahr", Syahr),
            catat("Jumlah", Jumlah), catat("TdlKs", TdlKs),   catat("TdlMr", TdlMr),
            catat("TdlAr", TdlAr),   catat("TdlHs", TdlHs),   catat("Qomar", Qomar),
            catat("BudTaqwim", BudTaqwim), catat("TdlDq", TdlDq), catat("Manzil", Manzil),
            catat("Saah", Saah),     catat("Ijtima", Ijtima), catat("Hilal", Hilal),
            catat("Nur", Nur)};
}

}  // namespace falak
