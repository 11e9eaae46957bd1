#include "methods/taqribi/KerangkaTaqribi.h"

#include <cstdlib>
#include <string>

#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "methods/Taadil.h"
#include "methods/LangkahTaqribi.h"
#include "methods/Lembar.h"

namespace falak {

namespace {

constexpr int kLangkah = 8;  // steps of the progress bar

Nilai busur(int64_t b, int64_t d, int64_t m) { return DlorbuSittin(b, d, m, 0, 0, 1, ModusBuruj); }

// The slot of each element in the single-year rows of the value arithmetic: alamah, Hishshoh,
// Wasath, Khossyoh, Markaz.
struct SlotUnsur {
    int LetakUnsur::*unsur;
    size_t slot;
    const char* kolom;  // its columns in TRBSyahru: <kolom>Brj, <kolom>Jah, <kolom>Qoh
};
constexpr SlotUnsur kSlot[] = {{&LetakUnsur::hishshoh, 2, "hs"},
                               {&LetakUnsur::wasath, 3, "ws"},
                               {&LetakUnsur::khossyoh, 4, "ks"},
                               {&LetakUnsur::markaz, 5, "mr"}};

}  // namespace

KerangkaTaqribi::KerangkaTaqribi(Konteks k, const DataKitabFR& data) : k_(k), data_(data) {}

TahunTerbagi BagiTahunFR(const PembagiTahun& p, int32_t tahun) {
    using enum TahunTerbagi::Langkah;
    const int32_t Y = tahun - 1;
    if (Y > p.atas) {
        const int32_t dawr = (Y + p.geser) / p.g;
        return {dawr, dawr, static_cast<int16_t>((Y + p.geser) % p.g), Tambah};
    }
    if (Y > p.bawah) return {0, 1, static_cast<int16_t>(Y + p.geser), Nol};
    TahunTerbagi t{(Y - p.mundur) / p.g, 0, 0, Kurang};
    t.pengali = std::abs(t.dawr);
    int32_t sisa = Y - p.g * t.dawr + p.geser;
    if (sisa == p.g) {
        t.dawr += 1;
        t.pengali -= 1;
        sisa = 0;
    }
    t.sisa = static_cast<int16_t>(sisa);
    return t;
}

void BulanDibuka(int32_t& tahun, int16_t& bulan) {
    if (bulan >= 12) {
        tahun += 1;
        bulan = 1;
    } else {
        bulan = static_cast<int16_t>(bulan + 1);
    }
}

std::optional<Nilai> AlamahSyahrFR(const Tabel& syahru, std::string_view akhiran) {
    auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, std::string(kolom) + std::string(akhiran)); };
    return AlamahTarkh(JenisAlamah, {"0", "0", "0", "0", sel("alHari"), sel("alSah"), sel("alQoh"), "0", "0"}, 1);
}

TahunTerbagi HitungPokokFR(Konteks& k, const DataKitabFR& data, int32_t tahun, int16_t bulan, std::string_view akhiran,
                           const BacaAlamahSyahr& alamahSyahr, const BarisPokok& r) {
    using enum TahunTerbagi::Langkah;
    const TahunTerbagi t = BagiTahunFR(data.pembagi, tahun);
    const size_t n = static_cast<size_t>(data.jumlahSel);
    std::array<Nilai, 5> mabda, tambah;
    for (size_t i = 0; i < n; ++i) {
        mabda[i] = Nilai(data.mabda[i]);
        switch (t.langkah) {
            case Tambah: tambah[i] = Nilai(data.tambah[i]); break;
            case Kurang: tambah[i] = Nilai(data.kurang[i]); break;
            case Nol: tambah[i] = i == 0 ? Nilai("000 00 00 00 00 00 00 00 00 1") : Nilai("00 00 00 00 00 1");
        }
    }
    HitungMajmuah(r.majmu.first(n), std::span<const Nilai>(mabda).first(n), std::span<const Nilai>(tambah).first(n),
                  t.pengali, 0, 1);

    std::array<Nilai, 5> mabsut;
    HitungMabsuthah(mabsut, t.sisa, false, false, false, false);
    r.mabsut[0] = mabsut[0];

    Tabel& syahru = k.koneksi.TRBSyahru;
    const bool adaSyahr = syahru.cari("Cari", bulan);
    if (adaSyahr) r.syahr[0] = alamahSyahr(syahru, akhiran).value_or(r.syahr[0]);
    for (const SlotUnsur& s : kSlot) {
        const int sel = data.unsur.*s.unsur;
        if (sel == 0) continue;
        const size_t i = static_cast<size_t>(sel) - 1;
        r.mabsut[i] = mabsut[s.slot - 1];
        if (adaSyahr) {
            const std::string k = s.kolom, a(akhiran);
            isi(r.syahr[i], DlorbuSittin(BacaTeks(syahru, k + "Brj" + a), BacaTeks(syahru, k + "Jah" + a),
                                         BacaTeks(syahru, k + "Qoh" + a), "0", "0", 1, ModusBuruj));
        }
    }

    r.jumlah[0] = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, r.majmu[0], r.mabsut[0], r.syahr[0]);
    for (size_t i = 1; i < n; ++i)
        r.jumlah[i] = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, r.majmu[i], r.mabsut[i], r.syahr[i]);
    return t;
}

void KerangkaTaqribi::PokokFR(int32_t tahun, int16_t bulan) {
    Bulan = bulan;
    const TahunTerbagi t = HitungPokokFR(
        k_, data_, tahun, bulan, "",
        [this](const Tabel& syahru, std::string_view akhiran) { return alamahSyahr(syahru, akhiran); },
        {Majmu.semua(), Mabsut.semua(), Syahr.semua(), Jumlah.semua()});
    Dawr = t.dawr;
    Pengali = t.pengali;
    SisaTahun = t.sisa;
}

std::optional<Nilai> KerangkaTaqribi::alamahSyahr(const Tabel& syahru, std::string_view akhiran) const {
    return AlamahSyahrFR(syahru, akhiran);
}

void KerangkaTaqribi::TaadilFR() {
    const LetakUnsur& u = data_.unsur;
    const Nilai& khossyoh = Jumlah(static_cast<size_t>(u.khossyoh));
    k_.taadil.TaadilBaris(TdlKs.semua(), 1, khossyoh, 1, false);
    k_.taadil.TaadilBaris(TdlMr.semua(), 2, Jumlah(static_cast<size_t>(u.markaz)), 1, false);
    if (u.hishshoh != 0) k_.taadil.TaadilBaris(TdlAr.semua(), 3, Jumlah(static_cast<size_t>(u.hishshoh)), 1, false);
    k_.taadil.TaadilBaris(TdlHs.semua(), data_.kodeTdlHs, khossyoh, 5, false);
}

void KerangkaTaqribi::QomarFR() {
    TaadilQomar();
    HitungBudTaqwim();
    k_.taadil.TaadilBaris(TdlDq.semua(), 5, tempatMatahari(), 5, false);

    HitungManzil(Manzil.semua(), tempatMatahari(), k_.koneksi.TRBTaadil);
}

void KerangkaTaqribi::TaadilQomar() {
    Qomar(1) = TdlKs(5);
    Qomar(2) = TdlMr(5);
    Qomar(3) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(1), Qomar(2));
    Qomar(4) = busur(0, 0, 5);
    isi(Qomar(5), KaliNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(3), Qomar(4)));
    Qomar(6) = TdlMr(5);
    Qomar(7) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Qomar(5), Qomar(6));
}

void KerangkaTaqribi::HitungBudTaqwim() {
    BudTaqwim(1) = Jumlah(static_cast<size_t>(data_.unsur.wasath));
    BudTaqwim(2) = Qomar(static_cast<size_t>(data_.jumlahQomar));
    BudTaqwim(3) = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, BudTaqwim(1), BudTaqwim(2));
}

void KerangkaTaqribi::hitungSaah() { HitungSaah(Saah.semua(), Qomar(3), TdlDq(5), TdlHs(5)); }

Nilai KerangkaTaqribi::selisihBujur(bool bertanggal) const {
    return SelisihBujur(k_.sesi.tempat, data_.bujurDerajat, data_.bujurMenit, bertanggal);
}

void KerangkaTaqribi::IjtimaFR() {
    hitungSaah();
    Ijtima(1) = Jumlah(1);
    Ijtima(2) = CUmumToAlamah(Saah(5), false);
    Ijtima(3) = KurangNilai(JenisAlamah, TandaIkut, ModusBuruj, Jumlah(1), Ijtima(2));
    Ijtima(4) = selisihBujur(false);
    Ijtima(5) = IjtimaDiTempat(JenisAlamah, Ijtima(3), Ijtima(4));
}

void KerangkaTaqribi::HilalFR() { HilalMaghribTetap(Hilal.semua(), Nur.semua(), Ijtima(5), cahayaLintang()); }

Nilai KerangkaTaqribi::cahayaLintang() const {
    // Without a latitude table the light is the stay alone.
    return data_.unsur.hishshoh != 0 ? TdlAr(5) : busur(0, 0, 0);
}

Nilai KerangkaTaqribi::hariIjtima() { return HariIjtimaTaqribi(k_, ijtimaSejakMaghrib()); }

KerangkaTaqribi::HariHasil KerangkaTaqribi::hariHasil() {
    HariHasil h;
    h.ijtima = hariIjtima();
    h.awal = AwalBulanTaqribi(h.ijtima, NilaiDesimal(JenisBusur, Hilal(5)));
    return h;
}

std::string KerangkaTaqribi::judulKesimpulan() const { return k_.sesi.namaKitab; }

void KerangkaTaqribi::hitungTahap(int32_t tahun, int16_t bulan) {
    Kemajuan& maju = k_.kemajuan;
    // Fathu's books count the month whose beginning they seek: their row of month m holds the
    // lunation that opens month m (their mean ijtima' of month m runs some 13 hours ahead of
    // the true conjunction that opens it, as Sullam's of month m does of the one that ends
    // it). The ijtima' at the end of month m is therefore their month m + 1, and after
    // Dzulhijjah their Muharram of the next year.
    if (data_.bulanYangDibuka) BulanDibuka(tahun, bulan);
    kosongkanBaris();
    PokokFR(tahun, bulan);
    maju.langkah();
    TaadilFR();
    maju.langkah();
    QomarFR();
    maju.langkah();
    IjtimaFR();
    maju.langkah();
    HilalFR();
    maju.langkah();
}

void KerangkaTaqribi::kosongkanBaris() {
    for (Baris<5>* b : {&Majmu, &Mabsut, &Syahr, &Jumlah, &TdlKs, &TdlMr, &TdlAr, &TdlHs, &BudTaqwim, &TdlDq, &Saah, &Ijtima})
        *b = {};
    Qomar = {};
    Manzil = {};
    Hilal = {};
    Nur = {};
}

void KerangkaTaqribi::KesimpulanFR(HasilHitung& h, bool kata) {
    const HariHasil hari = hariHasil();
    BahanKesimpulan b;
    b.judul = judulKesimpulan();
    b.ijtima = ijtimaSejakMaghrib();
    b.hariIjtima = hari.ijtima;
    b.awalBulan = hari.awal;
    b.tinggi = Hilal(5);
    b.matahari = tempatMatahari();
    b.mukts = Hilal(7);
    b.nur = Nur(2);
    b.gurubHariIjtima = data_.gurubHariIjtima;
    b.malam = malamIjtima();
    b.markaz = data_.markazKesimpulan;
    b.kata = kata;
    TulisKesimpulanTaqribi(k_, b, h.kesimpulan, h.ringkasan);
}

void KerangkaTaqribi::IsiTabelFR(ClsFlexGrid& g) {
    const Sesi& s = k_.sesi;
    g.FlexSetting(40, 40, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, data_.kode);
    const int tahun = AmbilTingkat(s.tanggalPilihan, MedanTahun);
    g.FlexNama(JudulLembarArab(s.tempat.namaTampil, tahun, bulanJudul()), 0, 0, 39);
    g.FlexTeks(std::to_string(tahunMajmu()), 3, 39);
    g.FlexTeks(std::to_string(SisaTahun), 4, 39);
    g.FlexTeks(NamaBulanArab(Bulan), 5, 39);
    g.FlexTeks(TandaKurung(AmbilTanda(Ijtima(4)), ""), barisBawah(26), 39);
    g.FlexTeks(s.tempat.nama, barisBawah(27), 39);
}

void KerangkaTaqribi::tulisSel(ClsFlexGrid& g) {
    constexpr int T = ClsFlexGrid::kTanpaMedan;
    const std::initializer_list<int> lima = {1, 2, 3, 4, 5};
    const size_t sel = static_cast<size_t>(data_.jumlahSel);
    int c = 37;
    for (size_t k = 1; k <= 7; c -= 6, ++k) {
        const int b = static_cast<int>(k);
        if (k <= sel) {
            for (auto [baris, row] : {std::pair{3, &Majmu}, {4, &Mabsut}, {5, &Syahr}, {6, &Jumlah}}) {
                if (k == 1 && data_.lembar.detikAlamah) g.FlexData((*row)(k), baris, c, {10, 11, 12, 13});
                else if (k == 1) g.FlexData((*row)(k), baris, c, {10, 11, 12, T});
                else g.FlexData((*row)(k), baris, c, {1, 2, 3, T});
            }
        }
        if (k <= 5) {
            g.FlexData(TdlKs(k), b + 8, 19, lima);
            g.FlexData(TdlMr(k), b + 8, 9, lima);
            g.FlexData(TdlHs(k), b + 16, 19, lima);
            if (data_.unsur.hishshoh != 0) g.FlexData(TdlAr(k), b + 24, 19, lima);
            g.FlexData(TdlDq(k), b + 16, 9, lima);
            g.FlexData(Manzil(k), b + 24, 9, lima);
            g.FlexData(Saah(k), barisBawah(b + 17), 37, lima);
            g.FlexData(Ijtima(k), barisBawah(b + 22), 37, {10, 11, 12, 13, 14});
        }
        if (k <= static_cast<size_t>(data_.lembar.jumlahBud)) g.FlexData(BudTaqwim(k), barisKanan(b + 14), 37, lima);
        if (k <= 2) g.FlexData(Nur(k), barisBawah(b + 34), 37, lima);
        g.FlexData(Hilal(k), barisBawah(b + 27), 37, lima);
    }
    for (size_t k = 1; k <= static_cast<size_t>(data_.jumlahQomar); ++k)
        g.FlexData(Qomar(k), static_cast<int>(k) + 7, 37, lima);
    TulisNamaManzil(g, Manzil(6).teks(), 29, 7);
    tulisSelTambahan(g);
}

HasilHitung KerangkaTaqribi::HitungIjtimaFR(int32_t tahun, int16_t bulan, bool lembar, bool kata) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    hitungTahap(tahun, bulan);
    KesimpulanFR(h, kata);
    maju.langkah();
    if (lembar) {
        ClsFlexGrid g(&h.lembarBaru(""));
        IsiTabelFR(g);
        maju.langkah();
        tulisSel(g);
        h.baris = baris();
    }
    maju.penuh();
    return h;
}

std::optional<Nilai> KerangkaTaqribi::AwalBulanFR(int32_t tahun, int16_t bulan) {
    k_.sesi.tanggalPilihan = Nilai(std::to_string(tahun) + " " + std::to_string(bulan) + " ");
    hitungTahap(tahun, bulan);
    return AwalBulanJam(hariIjtima(), NilaiDesimal(JenisBusur, Hilal(5)));
}

std::vector<BarisTercatat> KerangkaTaqribi::baris() const {
    const size_t sel = static_cast<size_t>(data_.jumlahSel);
    auto potong = [](BarisTercatat b, size_t n) {
        b.sel.resize(n);
        return b;
    };
    std::vector<BarisTercatat> r = {potong(catat("Majmu", Majmu), sel), potong(catat("Mabsut", Mabsut), sel),
                                    potong(catat("Syahr", Syahr), sel), potong(catat("Jumlah", Jumlah), sel),
                                    catat("TdlKs", TdlKs),   catat("TdlMr", TdlMr)};
    if (data_.unsur.hishshoh != 0) r.push_back(catat("TdlAr", TdlAr));
    r.push_back(catat("TdlHs", TdlHs));
    r.push_back(potong(catat("Qomar", Qomar), static_cast<size_t>(data_.jumlahQomar)));
    r.push_back(potong(catat("BudTaqwim", BudTaqwim), static_cast<size_t>(data_.lembar.jumlahBud)));
    for (auto b : {catat("TdlDq", TdlDq), catat("Manzil", Manzil), catat("Saah", Saah),
                   catat("Ijtima", Ijtima), catat("Hilal", Hilal), catat("Nur", Nur)})
        r.push_back(std::move(b));
    catatTambahan(r);
    return r;
}

}  // namespace falak
