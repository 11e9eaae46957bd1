#include "eclipse/solar/KerangkaKusuf.h"

#include <string>
#include <utility>

#include "conclusions/Kesimpulan.h"
#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "eclipse/LangkahGerhana.h"
#include "methods/LangkahTaqribi.h"
#include "methods/Lembar.h"
#include "methods/Taadil.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

using namespace gerhana;

namespace {

constexpr int kLangkah = 12;  // steps of the progress bar

}  // namespace

std::optional<std::string> PeriksaLintang(const Tempat& tempat) {
    if (tempat.lintangDerajat <= 5 || tempat.lintangDerajat >= 9)
        return "Gerhana matahari hanya bisa memproses untuk daerah dengan lintang 6, 7 dan 8 saja.";
    return std::nullopt;
}

KerangkaKusuf::KerangkaKusuf(Konteks k, const DataGerhana& data) : k_(k), data_(data) {}

const Nilai& KerangkaKusuf::khossyoh() const { return KfJumlah(static_cast<size_t>(data_.khossyoh)); }

const Nilai& KerangkaKusuf::matahari() const { return KfSyams(SelMatahari(data_)); }

KusufPolaFathu::KusufPolaFathu(Konteks k, const DataGerhana& data, PokokFathu pokok)
    : KerangkaKusuf(k, data), pokok_(std::move(pokok)) {}

void KusufPolaFathu::PokokKusuf(int32_t tahun, int16_t bulan) { pokok_.hitung(k_, tahun, bulan, false, barisTahun()); }

std::optional<Nilai> KusufPolaFathu::ijtimaBertanggal() { return pokok_.saatBertanggal(k_, barisTahun(), KfSaah(5)); }

bool KerangkaKusuf::UjiHishshoh(const Nilai& hishshoh) { return dekatSimpul(hishshoh, 6); }

bool KerangkaKusuf::UjiSiang(const Nilai& ijtima) {
    const int jam = AmbilTingkat(ijtima, MedanJam);
    return jam >= 13 && jam <= 23;
}

void KerangkaKusuf::TaadilKusuf() {
    ClsTaadil& t = k_.taadil;
    t.TaadilBaris(KfTdlKs.semua(), 1, khossyoh(), 1, false);
    t.TaadilBaris(KfTdlMr.semua(), 2, KfJumlah(static_cast<size_t>(data_.markaz)), 1, false);
    t.TaadilBaris(KfTdlHs.semua(), 4, khossyoh(), 5, false);
}

void KerangkaKusuf::QomarKusuf() {
    HitungQomar(KfQomar.semua(), KfTdlKs(5), KfTdlMr(5));
    HitungSyams(KfSyams.semua(), KfJumlah.semua(), KfQomar(6), data_, false);
    k_.taadil.TaadilBaris(KfTdlDq.semua(), 5, matahari(), 5, false);
}

void KerangkaKusuf::IjtimaKusuf() {
    HitungSaah(KfSaah.semua(), KfQomar(3), KfTdlDq(5), KfTdlHs(5));
    KfIjtima(1) = KfJumlah(1);
    KfIjtima(2) = CUmumToAlamah(KfSaah(5), false);
    // A dated ijtima' carries its date to the place.
    const std::optional<Nilai> bertanggal = ijtimaBertanggal();
    KfIjtima(3) = bertanggal ? *bertanggal : kurangAlamah(KfIjtima(1), KfIjtima(2));
    KfIjtima(4) = SelisihBujur(k_.sesi.tempat, data_.bujurDerajat, data_.bujurMenit, false);
    KfIjtima(5) = IjtimaDiTempat(bertanggal ? JenisAlamahMasehi : JenisAlamah, KfIjtima(3), KfIjtima(4));
}

void KerangkaKusuf::ArdlKusuf() { HitungArdl(KfArdl.semua(), KfSaah(5), KfTdlMr(5), KfJumlah(2)); }

void KerangkaKusuf::BuhtuKusuf() { HitungBuhtu(KfBuhtu.semua(), KfSaah(5), khossyoh()); }

void KerangkaKusuf::IqlimBaris(const Nilai& nilai, std::span<Nilai, 3> baris, std::span<Nilai, 5> mel,
                               std::span<Nilai, 5> iqlim, std::span<Nilai, 5> thul) {
    ClsTaadil& t = k_.taadil;
    t.TaadilBaris(mel, 38, nilai, 1, false);
    t.TaadilBaris(iqlim, 39, nilai, 1, false);
    baris[0] = mel[4];
    baris[1] = iqlim[4];
    t.TaadilBaris(thul, 33, baris[1], 1, false);
    baris[2] = thul[4];
}

void KerangkaKusuf::MatholiKusuf() {
    ClsTaadil& t = k_.taadil;
    // Hours from noon (18 hours of the alamah clock) and the hour angle of the sun.
    KfFadlu(1) = busur(0, 18, 0);
    KfFadlu(2) = CAlamahToUmum(KfIjtima(5));
    KfSore = NilaiDesimal(JenisBusur, KfFadlu(2)) > 18.0;
    KfFadlu(3) = KfSore ? GantiTanda(kurang(KfFadlu(2), KfFadlu(1)), "0") : kurang(KfFadlu(1), KfFadlu(2));
    KfFadlu(4) = kali(busur(0, 15, 0), KfFadlu(3));
    KfFadlu(5) = matahari();
    KfFadlu(6) = kurang(KfFadlu(5), KfFadlu(4));
    t.TaadilBaris(KfMatholi.semua(), 16, matahari(), 1, false);
    KfFadlu(7) = KfFadlu(4);
    KfFadlu(8) = KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, KfMatholi(5), KfFadlu(4));
    t.TaadilBaris(KfMatholi2.semua(), 32, KfFadlu(8), 1, false);
    IqlimBaris(KfFadlu(6), KfMail1.semua(), KfMel1.semua(), KfIqlim1.semua(), KfThul1.semua());
}

void KerangkaKusuf::MarkazKusuf() {
    ClsTaadil& t = k_.taadil;
    const Tempat& tempat = k_.sesi.tempat;
    KfBud(1) = matahari();
    KfBud(2) = KfMatholi2(5);
    KfBud(3) = kurang(KfBud(1), KfBud(2));
    t.TaadilBaris(KfJaib.semua(), 40, KfBud(3), 1, false);
    KfBud(4) = KfJaib(5);

    // The parallax along the ecliptic at the sun's distance from the meridian, in hours.
    KfWaktu(1) = KfThul1(5);
    KfWaktu(2) = BagiNilai(JenisBusur, TandaIkut, ModusBuruj, kali(KfBud(4), KfWaktu(1), ModusLingkaran),
                           busur(0, 60, 0))
                     .value_or(Nilai());
    KfWaktu(3) = KfTdlHs(5);
    KfWaktu(4) = GantiTanda(kali(KfWaktu(2), KfWaktu(3), ModusLingkaran), KfSore ? "1" : "0");
    KfWaktu(5) = KfIjtima(5);
    KfWaktu(6) = kurangAlamah(KfWaktu(5), CUmumToAlamah(KfWaktu(4), false));
    KfWaktu(5) = CAlamahToUmum(KfWaktu(5));
    KfWaktu(6) = CAlamahToUmum(KfWaktu(6));

    // The second pass, from the corrected time.
    KfDlil(1) = busur(0, 18, 0);
    KfDlil(2) = KfWaktu(6);
    if (KfSore) {
        KfDlil(2) = GantiTanda(KfDlil(2), "1");
        KfDlil(3) = GantiTanda(kurang(KfDlil(2), KfDlil(1)), "0");
    } else {
        KfDlil(3) = kurang(KfDlil(1), KfDlil(2));
    }
    KfDlil(4) = kali(busur(0, 15, 0), KfDlil(3));
    KfDlil(5) = matahari();
    KfDlil(6) = kurang(KfDlil(5), KfDlil(4));
    IqlimBaris(KfDlil(6), KfMail2.semua(), KfMel2.semua(), KfIqlim2.semua(), KfThul2.semua());

    // The meridian's point beyond the zenith on the place's side turns the parallax's side.
    const int utara = AmbilTingkat(KfDlil(6), MedanBuruj) < 6 ? 1 : 0;
    const int tandaTempat = static_cast<int>(ValAngka(tempat.tandaLintang));
    const double lintang = NilaiDesimal(JenisBusur, busur(0, tempat.lintangDerajat, tempat.lintangMenit));
    if (tandaTempat == utara && NilaiDesimal(JenisBusur, KfMel2(5)) > lintang)
        KfMail2(2) = GantiTanda(KfMail2(2), tandaTempat != 0 ? "1" : "0");

    // The moon's corrected Hishshoh, moved by the parallax along the ecliptic.
    KfArdlMar(1) = KfArdl(7);
    KfArdlMar(2) = KfMail2(3);
    KfArdlMar(3) = KfSore ? tambah(KfArdlMar(1), KfArdlMar(2)) : kurang(KfArdlMar(1), KfArdlMar(2));
    t.TaadilBaris(KfTdlArdl.semua(), 34, KfMail2(2), 1, false);
    t.TaadilBaris(KfTdlHs2.semua(), burujSebelumSimpul(KfArdlMar(3)) ? 24 : 23, KfArdlMar(3), 12, false);
    KfTdlArdl(5) = GantiTanda(KfTdlArdl(5), KfMail2(2).tanda() != 0 ? "1" : "0");
    KfTdlHs2(5) = GantiTanda(KfTdlHs2(5), AmbilTingkat(KfArdlMar(3), MedanBuruj) < 6 ? "1" : "0");
    KfJumlahArdl(1) = tambah(KfTdlArdl(5), KfTdlHs2(5));
}

bool KerangkaKusuf::UkuranKusuf() {
    ClsTaadil& t = k_.taadil;
    k_.taadil.TaadilBaris(KfTdlBuhtu.semua(), 22, KfBuhtu(4), 5, false);
    // The latitude seen from the place beyond the table, or at its very edge where the table
    // gives no finger: the place sees no eclipse.
    if (!t.TaadilKusfGanda(KfAshobi.semua(), 35, KfTdlBuhtu(5), KfJumlahArdl(1)) ||
        NilaiDesimal(JenisBusur, KfAshobi(11)) <= 0.0)
        return false;
    t.TaadilKusfGanda(KfSaatKusf.semua(), 36, KfTdlBuhtu(5), KfJumlahArdl(1));
    t.TaadilKusfGanda(KfMuktsu.semua(), 37, KfTdlBuhtu(5), KfJumlahArdl(1));

    // A moon slower than 12 degrees a day is too far to cover the sun.
    if (AmbilTingkat(KfMuktsu(13), MedanDarojah) < 12) KfMuktsu(11) = busur(0, 0, 0);
    KfFase(1) = KfIjtima(5);
    FaseKusuf();
    return true;
}

void KerangkaKusuf::FaseKusuf() {
    KfFase(4) = CUmumToAlamah(KfSaatKusf(11), false);
    KfFase(2) = kurangAlamah(KfFase(1), KfFase(4));
    KfFase(3) = tambahAlamah(KfFase(1), KfFase(4));
    KfFase(4) = kurangAlamah(KfFase(3), KfFase(2));
    if (NilaiDesimal(JenisBusur, KfMuktsu(11)) == 0.0) {
        for (size_t i = 1; i <= 4; ++i) KfFaseTotal(i) = alamahNol();
        return;
    }
    KfFaseTotal(1) = CUmumToAlamah(KfMuktsu(11), false);
    KfFaseTotal(2) = kurangAlamah(KfFase(1), KfFaseTotal(1));
    KfFaseTotal(3) = tambahAlamah(KfFase(1), KfFaseTotal(1));
    KfFaseTotal(4) = kurangAlamah(KfFaseTotal(3), KfFaseTotal(2));
}

HasilHitung KerangkaKusuf::HitungKusuf(int32_t tahun, int16_t bulan, bool lembar) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    const auto berhenti = [&] {
        maju.penuh();
        return h;
    };
    PokokKusuf(tahun, bulan);
    maju.langkah();
    if (!UjiHishshoh(KfJumlah(2)) || !TahapKusuf()) return berhenti();
    // The day from the date the ijtima' carries, or else the day of the month on its weekday.
    Nilai hari = TanggalAlamah(KfIjtima(5));
    if (hari.kosongTeks()) hari = HariIjtimaTaqribi(k_, KfIjtima(5));
    if (hari.kosongTeks()) return berhenti();
    h.gerhana.emplace();
    h.gerhana->tanggal = hari;
    KesimpulanKusuf(h);
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelKusuf(g);
        ClsFlexGrid koreksi(&h.lembarBaru(std::string("TdlKf") + data_.kode + "_", "Ta'dil Kusuf"));
        TabelKoreksiKusuf(koreksi);
        h.baris = baris();
    }
    return berhenti();
}

bool KerangkaKusuf::TahapKusuf() {
    Kemajuan& maju = k_.kemajuan;
    for (void (KerangkaKusuf::*tahap)() :
         {&KerangkaKusuf::TaadilKusuf, &KerangkaKusuf::QomarKusuf, &KerangkaKusuf::IjtimaKusuf}) {
        (this->*tahap)();
        maju.langkah();
    }
    if (!UjiSiang(KfIjtima(5))) return false;
    ArdlKusuf();
    BuhtuKusuf();
    maju.langkah();
    if (!UjiHishshoh(KfArdl(7))) return false;
    MatholiKusuf();
    MarkazKusuf();
    maju.langkah();
    return UkuranKusuf();
}

void KerangkaKusuf::KesimpulanKusuf(HasilHitung& h) {
    ClsKesimpulan& ks = k_.kesimpulan;
    Nilai tanggal = h.gerhana->tanggal;
    const std::string hari = ks.FullGerhanM(tanggal, CAlamahToUmum(jamSipil(KfFase(1))));
    const FaseGerhana fase = {.awal = KfFase(2), .tengah = KfFase(1), .akhir = KfFase(3), .lama = KfFase(4),
                              .awalTotal = KfFaseTotal(2), .akhirTotal = KfFaseTotal(3), .lamaTotal = KfFaseTotal(4),
                              .lintang = KfArdlMar(3), .ukuran = KfAshobi(11), .mukts = KfMuktsu(11)};
    TulisKesimpulanGerhana(k_, h, fase, tanggal, hari, ks.WarnaGerhanaM(KfAshobi(11)));
    h.kesimpulan.push_back(k_.sesi.labelKe(15) + ClsKesimpulan::barisTempat(k_.sesi.tempat));
}

void KerangkaKusuf::IsiTabelKusuf(ClsFlexGrid& g) {
    const Sesi& s = k_.sesi;
    const std::initializer_list<int> lima = {1, 2, 3, 4, 5};
    const std::initializer_list<int> waktu = {10, 11, 12, 13, 14};
    g.FlexSetting(47, 40, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, std::string(data_.kode) + "GM");
    TulisKepalaGerhana(g, s, "كسوف الشمس في آخر شهر ", barisTahun());
    TulisKolom(g, KfQomar, 8, 37, lima);
    // Of the sun's row only the cells its form fills.
    TulisKolom(g, KfSyams, 14, 37, lima, SelMatahari(data_));
    TulisKolom(g, KfSaah, 19, 37, lima);
    TulisKolom(g, KfIjtima, 24, 37, waktu);
    TulisKolom(g, KfArdl, 29, 37, lima);
    TulisKolom(g, KfBuhtu, 36, 37, lima);
    TulisKolom(g, KfFase, 40, 37, waktu);
    TulisKolom(g, KfFaseTotal, 42, 19, waktu);
    TulisKolom(g, KfFadlu, 8, 19, lima);
    TulisKolom(g, KfBud, 16, 19, lima);
    TulisKolom(g, KfWaktu, 20, 19, lima);
    TulisKolom(g, KfDlil, 26, 19, lima);
    TulisKolom(g, KfMail1, 32, 19, lima);
    TulisKolom(g, KfMail2, 35, 19, lima);
    TulisKolom(g, KfArdlMar, 38, 19, lima);
    TulisKolom(g, KfJumlahArdl, 41, 19, lima);
    TulisKolom(g, KfAshobi, 8, 9, lima);
    TulisKolom(g, KfSaatKusf, 21, 9, lima);
    TulisKolom(g, KfMuktsu, 34, 9, lima);
}

void KerangkaKusuf::TabelKoreksiKusuf(ClsFlexGrid& g) {
    // One sheet row a worked look-up, its five lines side by side from the right.
    g.FlexSetting(18, 41, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, std::string(data_.kode) + "TK");
    int b = 2;
    for (const Baris<5>* row : {&KfTdlKs, &KfTdlMr, &KfTdlHs, &KfTdlDq, &KfTdlBuhtu, &KfMatholi, &KfMatholi2, &KfMel1,
                                &KfIqlim1, &KfThul1, &KfJaib, &KfMel2, &KfIqlim2, &KfThul2, &KfTdlArdl, &KfTdlHs2}) {
        for (size_t k = 1; k <= 5; ++k) g.FlexData((*row)(k), b, 39 - 8 * static_cast<int>(k - 1), {1, 2, 3, 4});
        ++b;
    }
}

std::vector<BarisTercatat> KerangkaKusuf::baris() const {
    return {catat("KfMajmu", KfMajmu),       catat("KfMabsut", KfMabsut),     catat("KfSyahr", KfSyahr),
            catat("KfJumlah", KfJumlah),     catat("KfTdlKs", KfTdlKs),       catat("KfTdlMr", KfTdlMr),
            catat("KfTdlHs", KfTdlHs),       catat("KfQomar", KfQomar),       catat("KfSyams", KfSyams),
            catat("KfTdlDq", KfTdlDq),       catat("KfSaah", KfSaah),         catat("KfIjtima", KfIjtima),
            catat("KfArdl", KfArdl),         catat("KfBuhtu", KfBuhtu),       catat("KfTdlBuhtu", KfTdlBuhtu),
            catat("KfFadlu", KfFadlu),       catat("KfMatholi", KfMatholi),   catat("KfMatholi2", KfMatholi2),
            catat("KfMel1", KfMel1),         catat("KfIqlim1", KfIqlim1),     catat("KfThul1", KfThul1),
            catat("KfMail1", KfMail1),       catat("KfJaib", KfJaib),         catat("KfBud", KfBud),
            catat("KfWaktu", KfWaktu),       catat("KfDlil", KfDlil),         catat("KfMel2", KfMel2),
            catat("KfIqlim2", KfIqlim2),     catat("KfThul2", KfThul2),       catat("KfMail2", KfMail2),
            catat("KfTdlArdl", KfTdlArdl),   catat("KfTdlHs2", KfTdlHs2),     catat("KfArdlMar", KfArdlMar),
            catat("KfJumlahArdl", KfJumlahArdl), catat("KfAshobi", KfAshobi), catat("KfSaatKusf", KfSaatKusf),
            catat("KfMuktsu", KfMuktsu),     catat("KfFase", KfFase),         catat("KfFaseTotal", KfFaseTotal)};
}

}  // namespace falak
