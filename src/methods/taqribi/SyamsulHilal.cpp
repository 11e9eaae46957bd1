#include "methods/taqribi/SyamsulHilal.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/FungsSH.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "methods/taqribi/KesimpulanTaqribi.h"
#include "methods/Lembar.h"

namespace falak {

namespace {

// The treatise's constants, in the order Alamah, Hishshoh, Wasath, Khossyoh, Markaz. The
// base is the start of year 1 (its weekday, 5, stands in GeserSH); a group of thirty years
// adds the second row, or takes it off.
using Unsur = std::array<float, 5>;
constexpr Unsur kPokok = {3.05f, 348.767f, 117.35f, 110.2f, 33.984f};
constexpr Unsur kTambah = {0.25f, 241.4f, 38.4f, 293.95f, 38.0f};
constexpr Unsur kNol = {0, 0, 0, 0, 0};
constexpr Unsur kKurang = {-0.25f, -241.4f, -38.4f, -293.95f, -38.0f};

constexpr float kFaktorQomar = 0.083f;  // the sun's motion for each degree of the moon's correction
constexpr float kFaktorMukts = 0.067f;  // hours of stay for each degree of height
constexpr float kJamHilal = 0.5f;       // degrees of height for each hour from the ijtima' to sunset
constexpr int kBujurMarkazDerajat = 110;
constexpr int kBujurMarkazMenit = 40;
constexpr int kLangkah = 13;  // steps of the progress bar

constexpr std::array<std::string_view, 6> kKolomTahun = {"Hari", "Alamah", "Hishshoh", "Wasath", "Khossyoh", "Markaz"};

// Finds the row of a key; no key (an overflow) finds nothing.
bool cariBaris(Tabel& t, std::string_view kolom, std::optional<int32_t> kunci) { return kunci && t.cari(kolom, *kunci); }

// A column of the current row as a decimal; a column without a value leaves the cell.
void bacaDesimal(const Tabel& t, std::string_view kolom, float& sel) {
    if (auto v = t.baca(kolom)) sel = static_cast<float>(ValAngka(*v));
}

// A decimal as the value row that the words of the conclusion read.
Nilai keNilai(float x, int tanda = 1) {
    return DesimalKeNilai(JenisBusur, TandaIkut, ModusBuruj, x, tanda).value_or(Nilai());
}

}  // namespace

void SyamsulHilal::PokokSH(int32_t tahun, int16_t bulan, bool purnama) {
    SHBulan = bulan;
    const int64_t y = static_cast<int64_t>(tahun) - 1;
    const Unsur* langkah;
    int32_t kali;
    if (y >= 30) {
        SHDawr = static_cast<int32_t>(y / 30);
        kali = SHDawr;
        SHSisaTahun = static_cast<int16_t>(y % 30);
        langkah = &kTambah;
    } else if (y > 0) {
        // No group to move: the nothing row is taken zero times, since GeserSH moves the
        // weekday by 5 for every step it is given, a zero step included, and years 2 to 30
        // would fall two days early.
        SHDawr = 0;
        kali = 0;
        SHSisaTahun = static_cast<int16_t>(y);
        langkah = &kNol;
    } else {
        SHDawr = static_cast<int32_t>((y - 30) / 30);
        kali = SHDawr < 0 ? -SHDawr : SHDawr;
        SHSisaTahun = static_cast<int16_t>(y - 30 * static_cast<int64_t>(SHDawr));
        langkah = &kKurang;
    }

    if (auto jam = GeserSH(-1, kPokok[0], (*langkah)[0], kali, SHHariText)) {
        SHMajmu(2) = *jam;
        SHMajmu(1) = static_cast<float>(ValAngka(SHHariText));
    }
    for (size_t i = 1; i < 5; ++i)
        if (auto v = GeserSH(0, kPokok[i], (*langkah)[i], kali, SHHariText)) SHMajmu(i + 2) = *v;

    if (SHSisaTahun == 0) {
        for (float& v : SHMabsut.semua()) v = 0.0f;
    } else if (Tabel& t = k_.koneksi.TRBthMabSH; t.cari("Cari", SHSisaTahun)) {
        for (size_t i = 0; i < 6; ++i) bacaDesimal(t, kKolomTahun[i], SHMabsut(i + 1));
    }
    if (Tabel& t = k_.koneksi.TRBSyahruSH; t.cari("Cari", SHBulan)) {
        for (size_t i = 0; i < 6; ++i)
            bacaDesimal(t, std::string(kKolomTahun[i]) + (purnama ? "GB" : ""), SHSyahr(i + 1));
    }

    SHJumlah(2) = JumlahSH(-1, SHMajmu(1), SHMabsut(1), SHSyahr(1), SHMajmu(2), SHMabsut(2), SHSyahr(2), SHHariText);
    SHJumlah(1) = static_cast<float>(ValAngka(SHHariText));
    for (size_t i = 3; i <= 6; ++i) SHJumlah(i) = JumlahSH(0, 0, 0, 0, SHMajmu(i), SHMabsut(i), SHSyahr(i), SHHariText);

    // An alamah below one hour borrows a day; a weekday of 0 is Sabtu, shown as 7.
    if (SHJumlah(2) < 1.0f) {
        SHJumlah(2) += 24;
        SHJumlah(1) -= 1;
        if (SHJumlah(1) < 0) SHJumlah(1) += 7;
    }
    if (SHJumlah(1) == 0) SHJumlah(1) = 7;
    for (size_t i = 3; i <= 6; ++i)
        if (SHJumlah(i) < 1.0f) SHJumlah(i) += 360;
}

void SyamsulHilal::TaadilSH() {
    Tabel& t = k_.koneksi.TRBTaadilSH;
    if (cariBaris(t, "Cari", KunciSH(SHJumlah(5)))) bacaDesimal(t, "tdlKhosshoh", SHTdlKhossyoh);
    if (cariBaris(t, "Cari", KunciSH(SHJumlah(6)))) bacaDesimal(t, "TdlMarkaz", SHTdlMarkaz);
    if (cariBaris(t, "Cari", KunciSH(SHJumlah(3)))) bacaDesimal(t, "tdlArdluQ", SHTdlArdl);
    if (cariBaris(t, "CariLoop5", KunciLimaSH(SHJumlah(5)))) bacaDesimal(t, "tdlHisshoh", SHTdlHishshoh);
}

void SyamsulHilal::QomarSH() {
    SHQomar(1) = SHTdlKhossyoh;
    SHQomar(2) = SHTdlMarkaz;
    SHQomar(3) = HitungSH(0, 1, 0, SHQomar(1), 0, SHQomar(2), SHHariText);
    SHQomar(4) = kFaktorQomar;
    SHQomar(5) = HitungSH(0, 3, 0, SHQomar(3), 0, SHQomar(4), SHHariText);
    SHQomar(6) = SHQomar(2);
    SHQomar(7) = HitungSH(0, 1, 0, SHQomar(5), 0, SHQomar(6), SHHariText);
}

void SyamsulHilal::BudSH() {
    SHBud(1) = SHQomar(7);
    SHBud(2) = SHJumlah(4) - SHBud(1);
    if (!(SHBud(2) > 0)) SHBud(2) += 360;
}

void SyamsulHilal::MuqowwamSH() {
    Tabel& t = k_.koneksi.TRBTaadilSH;
    if (cariBaris(t, "CariLoop5", KunciLimaSH(SHBud(2)))) bacaDesimal(t, "tdlMuqowwam", SHTdlMuqowwam);
}

void SyamsulHilal::ManzilSH() {
    Tabel& t = k_.koneksi.TRBTaadilSH;
    if (!cariBaris(t, "Cari", KunciSH(SHBud(2)))) return;
    // The whole degrees of the nearest row, and the fraction of the place itself.
    if (t.baca("mnJah")) SHManzil = static_cast<float>(BacaBulat(t, "mnJah") + (SHBud(2) - std::floor(SHBud(2))));
    if (auto nama = t.baca("mn")) SHNamaManzil = std::string(*nama);
}

void SyamsulHilal::SaahSH() {
    SHSaah(1) = SHQomar(3);
    SHSaah(2) = SHTdlMuqowwam;
    SHSaah(3) = HitungSH(0, 2, 0, SHSaah(1), 0, SHSaah(2), SHHariText);
    SHSaah(4) = SHTdlHishshoh;
    SHSaah(5) = HitungSH(0, 3, 0, SHSaah(3), 0, SHSaah(4), SHHariText);
}

void SyamsulHilal::IjtimaSH() {
    SHIjtimaTeks(1) = CetakAngka32(SHJumlah(1));
    SHIjtima(1) = SHJumlah(2);
    SHIjtima(2) = SHSaah(5);
    SHIjtima(3) = HitungSH(-1, 2, SHJumlah(1), SHJumlah(2), 0, SHSaah(5), SHIjtimaTeks(3));
    if (ValAngka(SHIjtimaTeks(3)) < 1) SHIjtimaTeks(3) = CetakAngka(ValAngka(SHIjtimaTeks(3)) + 7);

    // The place: its distance in longitude from the markaz, in hours, and its side.
    const Tempat& t = k_.sesi.tempat;
    const Nilai p = DlorbuSittin(0, t.bujurDerajat, t.bujurMenit, 0, 0, AmbilTanda(Nilai(t.tandaBujur)), ModusDarojah);
    const Nilai j = DlorbuSittin(0, kBujurMarkazDerajat, kBujurMarkazMenit, 0, 0, 1, ModusDarojah);
    if (auto jam = BagiNilai(JenisBusur, TandaIkut, ModusBuruj, KurangNilai(JenisBusur, TandaIkut, ModusDarojah, p, j),
                             DlorbuSittin(0, 15, 0, 0, 0, 1, ModusBuruj))) {
        const Nilai selisih = CAlamahToUmum(CUmumToAlamah(*jam, false));
        SHTandaBujur = static_cast<int16_t>(AmbilTanda(selisih));
        SHIjtima(4) = static_cast<float>(NilaiDesimal(JenisBusur, selisih));
    }
    SHIjtima(5) = HitungSH(-1, SHTandaBujur == 0 ? 2 : 1, static_cast<float>(ValAngka(SHIjtimaTeks(3))), SHIjtima(3),
                           0, SHIjtima(4), SHIjtimaTeks(5));

    // The same moment as an alamah value, whose weekday, hour and minute the words read.
    const Nilai jam = keNilai(SHIjtima(5));
    const auto hari = BulatGenap32(ValAngka(SHIjtimaTeks(5))).value_or(0);
    SHIjtimaAlamah = AlamahTarkh(JenisAlamah,
                                 {0, 0, 0, 0, hari, AmbilTingkat(jam, MedanDarojah), AmbilTingkat(jam, MedanDaqiqoh),
                                  AmbilTingkat(jam, MedanTsaniyah), 0},
                                 1);
}

void SyamsulHilal::HilalSH() {
    SHHilal(1) = 24.0f;
    SHHilal(2) = SHIjtima(5);
    SHHilal(3) = HitungSH(-1, 2, 0, SHHilal(1), 0, SHHilal(2), SHHariText);
    SHHilal(4) = kJamHilal;
    SHHilal(5) = HitungSH(0, 3, 0, SHHilal(3), 0, SHHilal(4), SHHariText);
    SHHilal(6) = kFaktorMukts;
    SHHilal(7) = HitungSH(0, 3, 0, SHHilal(5), 0, SHHilal(6), SHHariText);
    SHHilal(8) = SHTdlArdl;
    SHHilal(9) = SHHilal(7);
    SHHilal(10) = HitungSH(-1, 1, 0, SHHilal(8), 0, SHHilal(9), SHHariText);
}

void SyamsulHilal::KesimpulanSH(HasilHitung& h, bool kata) {
    BahanKesimpulan b;
    b.judul = k_.sesi.namaKitab;
    b.ijtima = SHIjtimaAlamah;
    b.hariIjtima = HariIjtimaTaqribi(k_, SHIjtimaAlamah);
    b.awalBulan = AwalBulanTaqribi(b.hariIjtima, SHHilal(5));
    b.tinggi = keNilai(SHHilal(5));
    b.matahari = keNilai(SHBud(2));
    b.mukts = keNilai(SHHilal(7));
    b.nur = keNilai(SHHilal(9), SHHilal(9) > 180 ? 0 : 1);
    // The markaz line as the treatise's writer has it, its latitude flagged 1.
    b.markaz = {"Jepara", 6, 36, 1, kBujurMarkazDerajat, kBujurMarkazMenit, 1};
    b.kata = kata;
    TulisKesimpulanTaqribi(k_, b, h.kesimpulan, h.ringkasan);
}

void SyamsulHilal::IsiTabelSH(ClsFlexGrid& g) {
    const Sesi& s = k_.sesi;
    g.FlexSetting(19, 12, 900, 300, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, "SH");
    const int tahun = AmbilTingkat(s.tanggalPilihan, MedanTahun);
    g.FlexNama(JudulLembarArab(s.tempat.namaTampil, tahun, SHBulan + 1), 0, 0, 11);
    g.FlexTeks(std::to_string(static_cast<int64_t>(SHDawr) * 30), 3, 11);
    g.FlexTeks(std::to_string(SHSisaTahun), 4, 11);
    g.FlexTeks(NamaBulanArab(SHBulan), 5, 11);
    g.FlexTeks(TandaKurung(SHTandaBujur, ""), 17, 5);
    g.FlexTeks(s.tempat.nama, 18, 7);
}

void SyamsulHilal::TigaDesimalSH() {
    for (size_t k = 1; k <= 10; ++k) {
        if (k < 3) SHBud(k) = TigaDesimal(SHBud(k));
        if (k < 6) {
            SHIjtima(k) = TigaDesimal(SHIjtima(k));
            SHSaah(k) = TigaDesimal(SHSaah(k));
        }
        if (k < 7)
            for (auto* row : {&SHMajmu, &SHMabsut, &SHSyahr, &SHJumlah}) (*row)(k) = TigaDesimal((*row)(k));
        if (k < 8) SHQomar(k) = TigaDesimal(SHQomar(k));
        SHHilal(k) = TigaDesimal(SHHilal(k));
    }
}

void SyamsulHilal::tulisSel(ClsFlexGrid& g) {
    // The sums of years and months, one row each, from Hari at column 9 leftwards.
    int baris = 3;
    for (auto* row : {&SHMajmu, &SHMabsut, &SHSyahr, &SHJumlah}) {
        for (size_t i = 1; i <= 6; ++i) g.FlexDataSH((*row)(i), baris, 10 - static_cast<int>(i));
        ++baris;
    }
    for (size_t k = 1; k <= 10; ++k) {
        const int b = static_cast<int>(k);
        if (k <= 7) g.FlexDataSH(SHQomar(k), 7 + b, 9);
        if (k <= 2) g.FlexDataSH(SHBud(k), 14 + b, 9);
        if (k <= 5) {
            g.FlexDataSH(SHSaah(k), 7 + b, 4);
            g.FlexDataSH(SHIjtima(k), 13 + b, 4);
            if (k % 2 == 1) g.FlexTeks(SHIjtimaTeks(k), 13 + b, 5);
        }
        g.FlexDataSH(SHHilal(k), 7 + b, 0);
    }
    g.FlexDataSH(SHManzil, 17, 9);
    g.FlexTeks(SHNamaManzil, 18, 9);
}

void SyamsulHilal::IjtimaSajaSH(int32_t tahun, int16_t bulan, bool purnama) {
    PokokSH(tahun, bulan, purnama);
    TaadilSH();
    QomarSH();
    BudSH();
    MuqowwamSH();
    ManzilSH();
    SaahSH();
    IjtimaSH();
}

std::optional<Nilai> SyamsulHilal::AwalBulan(int32_t tahun, int16_t bulan) {
    k_.sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    IjtimaSajaSH(tahun, bulan);
    HilalSH();
    return AwalBulanJam(HariIjtimaTaqribi(k_, SHIjtimaAlamah), SHHilal(5));
}

HasilHitung SyamsulHilal::HitungIjtimaSH(int32_t tahun, int16_t bulan, bool lembar, bool kata) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    PokokSH(tahun, bulan);
    maju.langkah();
    for (void (SyamsulHilal::*tahap)() : {&SyamsulHilal::TaadilSH, &SyamsulHilal::QomarSH, &SyamsulHilal::BudSH,
                                          &SyamsulHilal::MuqowwamSH, &SyamsulHilal::ManzilSH, &SyamsulHilal::SaahSH,
                                          &SyamsulHilal::IjtimaSH, &SyamsulHilal::HilalSH}) {
        (this->*tahap)();
        maju.langkah();
    }
    KesimpulanSH(h, kata);
    maju.langkah();
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelSH(g);
        maju.langkah();
        TigaDesimalSH();
        maju.langkah();
        tulisSel(g);
        h.baris = baris();
    }
    maju.penuh();
    return h;
}

std::vector<BarisTercatat> SyamsulHilal::baris() const {
    return {catat("SHMajmu", SHMajmu), catat("SHMabsut", SHMabsut), catat("SHSyahr", SHSyahr),
            catat("SHJumlah", SHJumlah), catat("SHQomar", SHQomar), catat("SHBud", SHBud),
            catat("SHSaah", SHSaah), catat("SHIjtima", SHIjtima), catat("SHIjtimaTeks", SHIjtimaTeks),
            catat("SHHilal", SHHilal)};
}

}  // namespace falak
