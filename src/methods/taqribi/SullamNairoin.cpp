#include "methods/taqribi/SullamNairoin.h"

#include <array>
#include <string>

#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "methods/tahqiqi/Taadil.h"
#include "methods/taqribi/KesimpulanTaqribi.h"
#include "methods/taqribi/LangkahTaqribi.h"
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

    HitungManzil(Manzil.semua(), BudTaqwim(5), k_.koneksi.TRBTaadil);
}

void SullamNairoin::IjtimaSN() {
    HitungSaah(Saah.semua(), Qomar(3), TdlDq(5), TdlHs(5));
    Ijtima(1) = Jumlah(1);
    Ijtima(2) = CUmumToAlamah(Saah(5), false);
    Ijtima(3) = KurangNilai(0, 3, 1, Jumlah(1), Ijtima(2));
    Ijtima(4) = SelisihBujur(k_.sesi.tempat, kBujurMarkazDerajat, kBujurMarkazMenit, false);
    Ijtima(5) = TambahNilai(0, 3, 1, Ijtima(3), Ijtima(4));
}

void SullamNairoin::HilalSN() { HilalMaghribTetap(Hilal.semua(), Nur.semua(), Ijtima(5), TdlAr(5)); }

void SullamNairoin::KesimpulanSN(HasilHitung& h) {
    BahanKesimpulan b;
    b.judul = k_.sesi.namaKitab;
    b.ijtima = Ijtima(5);
    b.hariIjtima = HariIjtimaTaqribi(k_, Ijtima(5));
    b.awalBulan = AwalBulanTaqribi(b.hariIjtima, NilaiDesimal(3, Hilal(5)));
    b.tinggi = Hilal(5);
    b.matahari = BudTaqwim(5);
    b.mukts = Hilal(7);
    b.nur = Nur(2);
    b.gurubHariIjtima = true;
    b.markaz = {"Jakarta", 6, 15, 0, 106, 52, 1};
    TulisKesimpulanTaqribi(k_, b, h.kesimpulan, h.ringkasan);
}

void SullamNairoin::IsiTabelSN(ClsFlexGrid& g) {
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

void SullamNairoin::tulisSel(ClsFlexGrid& g) {
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

HasilHitung SullamNairoin::HitungIjtimaSN(int32_t tahun, int16_t bulan, bool lembar) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    tahap(tahun, bulan);
    KesimpulanSN(h);
    maju.langkah();
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelSN(g);
        maju.langkah();
        tulisSel(g);
        h.baris = baris();
    }
    maju.penuh();
    return h;
}

std::optional<Nilai> SullamNairoin::AwalBulan(int32_t tahun, int16_t bulan) {
    k_.sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    tahap(tahun, bulan);
    return AwalBulanJam(HariIjtimaTaqribi(k_, Ijtima(5)), NilaiDesimal(3, Hilal(5)));
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
