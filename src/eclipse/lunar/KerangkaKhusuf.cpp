#include "eclipse/lunar/KerangkaKhusuf.h"

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
#include "methods/taqribi/FathurRouf.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

using namespace gerhana;

namespace {

constexpr int kLangkah = 10;  // steps of the progress bar

// The colour follows how much of the disc is covered: at most the whole of it, twelve fingers,
// however deep the moon stands in the shadow.
Nilai ditutup(const Nilai& ashobi) {
    return AmbilTingkat(ashobi, MedanDarojah) >= 12 ? busur(0, 12, 0) : ashobi;
}

}  // namespace

KerangkaKhusuf::KerangkaKhusuf(Konteks k, const DataGerhana& data)
    : k_(k), data_(data), fathur_(std::make_unique<FathurRouf>(k)) {}

KerangkaKhusuf::~KerangkaKhusuf() = default;

const Nilai& KerangkaKhusuf::khossyoh() const { return HsJumlah(static_cast<size_t>(data_.khossyoh)); }

KhusufPolaFathu::KhusufPolaFathu(Konteks k, const DataGerhana& data, PokokFathu pokok)
    : KerangkaKhusuf(k, data), pokok_(std::move(pokok)) {}

void KhusufPolaFathu::PokokKhusuf(int32_t tahun, int16_t bulan) { pokok_.hitung(k_, tahun, bulan, true, barisTahun()); }

std::optional<Nilai> KhusufPolaFathu::istiqbalBertanggal() {
    return pokok_.saatBertanggal(k_, barisTahun(), HsSaah(5));
}

bool KerangkaKhusuf::UjiHishshoh(const Nilai& hishshoh) { return dekatSimpul(hishshoh, 12); }

bool KerangkaKhusuf::UjiMalam(const Nilai& awal, const Nilai& akhir) {
    // The alamah clock counts hours 13 to 23 as day.
    const auto malam = [](const Nilai& v) {
        const int jam = AmbilTingkat(v, MedanJam);
        return jam < 13 || jam >= 24;
    };
    return malam(awal) || malam(akhir);
}

void KerangkaKhusuf::TaadilKhusuf() {
    ClsTaadil& t = k_.taadil;
    t.TaadilBaris(HsTdlKs.semua(), 1, khossyoh(), 1, false);
    t.TaadilBaris(HsTdlMr.semua(), 2, HsJumlah(static_cast<size_t>(data_.markaz)), 1, false);
    t.TaadilBaris(HsTdlAr.semua(), 3, HsJumlah(2), 1, false);
    t.TaadilBaris(HsTdlHs.semua(), data_.kodeTdlHsKhusuf, khossyoh(), 5, false);
}

void KerangkaKhusuf::QomarKhusuf() {
    HitungQomar(HsQomar.semua(), HsTdlKs(5), HsTdlMr(5));
    HitungSyams(HsSyams.semua(), HsJumlah.semua(), HsQomar(6), data_, true);
    k_.taadil.TaadilBaris(HsTdlDq.semua(), 5, HsSyams(SelMatahari(data_)), 5, false);
}

void KerangkaKhusuf::IstiqbalKhusuf() {
    HitungSaah(HsSaah.semua(), HsQomar(3), HsTdlDq(5), HsTdlHs(5));
    HsIstiqbal(1) = HsJumlah(1);
    HsIstiqbal(2) = CUmumToAlamah(HsSaah(5), false);
    // A dated full moon carries its date through the corrections to the middle.
    const std::optional<Nilai> bertanggal = istiqbalBertanggal();
    const int jenis = bertanggal ? JenisAlamahMasehi : JenisAlamah;
    HsIstiqbal(3) = bertanggal ? *bertanggal : kurangAlamah(HsIstiqbal(1), HsIstiqbal(2));
    // The time the moon takes over its distance from the node: twelve seconds a degree of the
    // Hishshoh, times the hours per degree.
    HsIstiqbal(4) = CUmumToAlamah(NolkanBuruj(HsJumlah(2)), false);
    HsIstiqbal(5) = CUmumToAlamah(kali(CAlamahToUmum(HsIstiqbal(4)), busur(0, 0, 0, 12)), false);
    HsIstiqbal(6) = CUmumToAlamah(HsTdlHs(5), false);
    HsIstiqbal(7) = CUmumToAlamah(kali(CAlamahToUmum(HsIstiqbal(5)), CAlamahToUmum(HsIstiqbal(6))), false);
    // Before the node the time is added, after it taken off.
    HsIstiqbal(8) = HsIstiqbal(3);
    if (burujSebelumSimpul(HsJumlah(2))) HsIstiqbal(8) = GantiTanda(HsIstiqbal(8), "0");
    HsIstiqbal(9) = GantiTanda(KurangNilai(jenis, TandaIkut, ModusBuruj, HsIstiqbal(8), HsIstiqbal(7)), "1");
    HsIstiqbal(10) = SelisihBujur(k_.sesi.tempat, data_.bujurDerajat, data_.bujurMenit, false);
    HsIstiqbal(11) = IjtimaDiTempat(jenis, HsIstiqbal(9), HsIstiqbal(10));
}

void KerangkaKhusuf::ArdlKhusuf() { HitungArdl(HsArdl.semua(), HsSaah(5), HsTdlMr(5), HsJumlah(2)); }

void KerangkaKhusuf::BuhtuKhusuf() {
    HitungBuhtu(HsBuhtu.semua(), HsSaah(5), khossyoh());
    ClsTaadil& t = k_.taadil;
    t.TaadilBaris(HsTdlBuhtu.semua(), 22, HsBuhtu(4), 5, false);
    t.TaadilBaris(HsTdlHs2.semua(), burujSebelumSimpul(HsArdl(7)) ? 24 : 23, HsArdl(7), 12, false);
}

void KerangkaKhusuf::UkuranKhusuf() {
    ClsTaadil& t = k_.taadil;
    t.TaadilKhusfGanda(HsAshobi.semua(), 25, HsTdlBuhtu(5), HsTdlHs2(5));
    t.TaadilKhusfGanda(HsSaatKhusf.semua(), 27, HsTdlBuhtu(5), HsTdlHs2(5));
    t.TaadilKhusfGanda(HsMuktsu.semua(), 26, HsTdlBuhtu(5), HsTdlHs2(5));
}

void KerangkaKhusuf::FaseKhusuf() {
    HsFase(1) = HsIstiqbal(11);
    HsFase(2) = CUmumToAlamah(HsSaatKhusf(11), false);
    HsFase(3) = kurangAlamah(HsFase(1), HsFase(2));
    HsFase(4) = tambahAlamah(HsFase(1), HsFase(2));
    HsFase(5) = kurangAlamah(HsFase(4), HsFase(3));

    HsFaseTotal(1) = HsIstiqbal(11);
    if (NilaiDesimal(JenisBusur, HsMuktsu(11)) == 0.0) {
        for (size_t i = 2; i <= 5; ++i) HsFaseTotal(i) = alamahNol();
        return;
    }
    HsFaseTotal(2) = CUmumToAlamah(HsMuktsu(11), false);
    HsFaseTotal(3) = kurangAlamah(HsFaseTotal(1), HsFaseTotal(2));
    HsFaseTotal(4) = tambahAlamah(HsFaseTotal(1), HsFaseTotal(2));
    HsFaseTotal(5) = kurangAlamah(HsFaseTotal(4), HsFaseTotal(3));
}

bool KerangkaKhusuf::TahapKhusuf() {
    for (void (KerangkaKhusuf::*tahap)() : {&KerangkaKhusuf::TaadilKhusuf, &KerangkaKhusuf::QomarKhusuf,
                                            &KerangkaKhusuf::IstiqbalKhusuf, &KerangkaKhusuf::ArdlKhusuf,
                                            &KerangkaKhusuf::BuhtuKhusuf, &KerangkaKhusuf::UkuranKhusuf,
                                            &KerangkaKhusuf::FaseKhusuf}) {
        (this->*tahap)();
        k_.kemajuan.langkah();
    }
    return true;
}

std::optional<Nilai> KerangkaKhusuf::awalBulan(int32_t tahun, int16_t bulan) {
    // The ijtima' at the end of the month before opens this month. Fathu's reckoning writes the
    // chosen date of the session; the eclipse run keeps its own.
    const Nilai pilihan = k_.sesi.tanggalPilihan;
    const auto awal = bulan - 1 < 1 ? fathur_->AwalBulanFR(tahun - 1, static_cast<int16_t>(bulan + 11))
                                    : fathur_->AwalBulanFR(tahun, static_cast<int16_t>(bulan - 1));
    k_.sesi.tanggalPilihan = pilihan;
    return awal;
}

HasilHitung KerangkaKhusuf::HitungKhusuf(int32_t tahun, int16_t bulan, bool lembar) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    const auto berhenti = [&] {
        maju.penuh();
        return h;
    };
    PokokKhusuf(tahun, bulan);
    maju.langkah();
    if (!UjiHishshoh(HsJumlah(2))) return berhenti();
    const auto awal = awalBulan(tahun, bulan);
    if (!TahapKhusuf() || !UjiMalam(HsFase(3), HsFase(4)) || !awal) return berhenti();
    h.gerhana.emplace();
    h.gerhana->tanggal = *awal;
    KesimpulanKhusuf(h);
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelKhusuf(g);
        tulisSel(g);
        h.baris = baris();
    }
    maju.penuh();
    return h;
}

void KerangkaKhusuf::KesimpulanKhusuf(HasilHitung& h) {
    ClsKesimpulan& ks = k_.kesimpulan;
    const Sesi& s = k_.sesi;
    int16_t hariHijri = 0;
    // The day from the date the middle carries, or else the day of the month on its weekday.
    Nilai tanggal = TanggalAlamah(HsIstiqbal(11));
    std::string hari;
    if (tanggal.kosongTeks()) {
        tanggal = h.gerhana->tanggal;
        hari = ks.FullGerhanB(tanggal, HsIstiqbal(11), HsIstiqbal(11), hariHijri);
    } else {
        hari = ks.FullGerhanBTanggal(h.gerhana->tanggal, tanggal, HsIstiqbal(11), hariHijri);
    }
    const FaseGerhana fase = {.awal = HsFase(3), .tengah = HsFase(1), .akhir = HsFase(4), .lama = HsFase(5),
                              .awalTotal = HsFaseTotal(3), .akhirTotal = HsFaseTotal(4), .lamaTotal = HsFaseTotal(5),
                              .lintang = HsArdl(7), .ukuran = HsAshobi(11), .mukts = HsMuktsu(11)};
    TulisKesimpulanGerhana(k_, h, fase, tanggal, hari, ks.WarnaGerhanaM(ditutup(HsAshobi(11))));
    std::string gurub, terbit;
    ks.WaktuGurub(Nilai(BurujMatahari(tanggal).value_or("")), gurub, terbit);
    h.kesimpulan.push_back(s.labelKe(12) + gurub);
    h.kesimpulan.push_back(s.labelKe(15) + ClsKesimpulan::barisTempat(s.tempat));
}

void KerangkaKhusuf::IsiTabelKhusuf(ClsFlexGrid& g) {
    const Sesi& s = k_.sesi;
    g.FlexSetting(58, 40, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, std::string(data_.kode) + "GB");
    TulisKepalaGerhana(g, s, "خسوف القمر في شهر ", barisTahun());
    g.FlexTeks(s.tempat.nama, 34, 39);
}

void KerangkaKhusuf::tulisSel(ClsFlexGrid& g) {
    const std::initializer_list<int> lima = {1, 2, 3, 4, 5};
    const std::initializer_list<int> waktu = {10, 11, 12, 13, 14};
    TulisKolom(g, HsQomar, 8, 37, lima);
    // Of the sun's row only the cells its form fills, up to the moon's place opposite the sun.
    TulisKolom(g, HsSyams, 14, 37, lima, SelMatahari(data_) + 1);
    TulisKolom(g, HsSaah, 20, 37, lima);
    TulisKolom(g, HsIstiqbal, 25, 37, waktu);
    TulisKolom(g, HsArdl, 36, 37, lima);
    TulisKolom(g, HsBuhtu, 43, 37, lima);
    TulisKolom(g, HsFase, 47, 37, waktu);
    TulisKolom(g, HsFaseTotal, 52, 37, waktu);
    TulisKolom(g, HsTdlKs, 9, 19, lima);
    TulisKolom(g, HsTdlHs, 17, 19, lima);
    TulisKolom(g, HsTdlAr, 25, 19, lima);
    TulisKolom(g, HsTdlBuhtu, 33, 19, lima);
    TulisKolom(g, HsAshobi, 41, 19, lima);
    TulisKolom(g, HsTdlMr, 9, 9, lima);
    TulisKolom(g, HsTdlDq, 17, 9, lima);
    TulisKolom(g, HsTdlHs2, 25, 9, lima);
    TulisKolom(g, HsSaatKhusf, 33, 9, lima);
    TulisKolom(g, HsMuktsu, 47, 9, lima);
}

std::vector<BarisTercatat> KerangkaKhusuf::baris() const {
    return {catat("HsMajmu", HsMajmu),         catat("HsMabsut", HsMabsut),     catat("HsSyahr", HsSyahr),
            catat("HsJumlah", HsJumlah),       catat("HsTdlKs", HsTdlKs),       catat("HsTdlMr", HsTdlMr),
            catat("HsTdlAr", HsTdlAr),         catat("HsTdlHs", HsTdlHs),       catat("HsQomar", HsQomar),
            catat("HsSyams", HsSyams),         catat("HsTdlDq", HsTdlDq),       catat("HsSaah", HsSaah),
            catat("HsIstiqbal", HsIstiqbal),   catat("HsArdl", HsArdl),         catat("HsBuhtu", HsBuhtu),
            catat("HsTdlBuhtu", HsTdlBuhtu),   catat("HsTdlHs2", HsTdlHs2),     catat("HsAshobi", HsAshobi),
            catat("HsSaatKhusf", HsSaatKhusf), catat("HsMuktsu", HsMuktsu),     catat("HsFase", HsFase),
            catat("HsFaseTotal", HsFaseTotal)};
}

}  // namespace falak
