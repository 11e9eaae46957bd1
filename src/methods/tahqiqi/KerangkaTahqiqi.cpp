#include "methods/tahqiqi/KerangkaTahqiqi.h"

#include <cmath>
#include <cstdlib>
#include <string>

#include "conclusions/Kesimpulan.h"
#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Maghrib.h"
#include "core/Sesi.h"
#include "core/Tabel.h"
#include "methods/Lembar.h"
#include "methods/Taadil.h"

namespace falak {

namespace {

constexpr int kLangkah = 8;  // steps of the progress bar

// The columns of an element in the motion tables: buruj, degree, minute, second.
constexpr const char* kKolom[5][4] = {{"wsBrjS", "wsJahS", "wsQohS", "wsNiiS"},
                                      {"ksBrjS", "ksJahS", "ksQohS", "ksNiiS"},
                                      {"wsBrjQ", "wsJahQ", "wsQohQ", "wsNiiQ"},
                                      {"ksBrjQ", "ksJahQ", "ksQohQ", "ksNiiQ"},
                                      {"uqdBrjQ", "uqdJahQ", "uqdQohQ", "uqdNiiQ"}};
// The motion of hours (TQQSaah): each element's columns from the degree down; the sun's and
// the node's have no degrees.
constexpr const char* kKolomJam[5][3] = {{nullptr, "wsQohS", "wsNiiS"},
                                         {nullptr, "ksQohS", "ksNiiS"},
                                         {"wsJahQ", "wsQohQ", "wsNiiQ"},
                                         {"ksJahQ", "ksQohQ", "ksNiiQ"},
                                         {nullptr, "uqdQohQ", "uqdNiiQ"}};

constexpr int kBujurJadwal[2] = {112, 13};  // the tables' longitude

template <size_t N>
std::array<std::array<KolomTabel, N>, 5> kolomUnsur(const char* const (&nama)[5][N]) {
    std::array<std::array<KolomTabel, N>, 5> k;
    for (size_t e = 0; e < 5; ++e)
        for (size_t i = 0; i < N; ++i) k[e][i] = nama[e][i];
    return k;
}

// A cell of the current row as text: empty when there is none.
std::string_view sel(const Tabel& t, const KolomTabel& k) { return t.baca(k.di(t)).value_or(std::string_view()); }

Nilai nol() { return Nilai("00 00 00 00 00 1"); }
Nilai nolAlamah() { return Nilai("000 00 00 00 00 00 00 00 00 1"); }

}  // namespace

// The columns of a table of motions (the single years, the months, the days run).
struct KerangkaTahqiqi::KolomGerak {
    KolomTabel cari{"Cari"}, pasaran{"Pasaran"}, hari{"Hari"};
    std::array<std::array<KolomTabel, 4>, 5> unsur = kolomUnsur(kKolom);
};

// Every column the skeleton reads, named once and read by position: the run's many look-ups
// then hash no names.
struct KerangkaTahqiqi::KolomBaca {
    KolomGerak thMab, syahru, yaumTam;
    // The motion of hours (TQQSaah) and of minutes with the daqa'iq tafawut (TQQDaqoiqAhTaf).
    KolomTabel cariJam{"Cari"};
    std::array<std::array<KolomTabel, 3>, 5> unsurJam = kolomUnsur(kKolomJam);
    KolomTabel cariTafawut{"Cari"}, tanda{"Tanda"}, qohTafawut{"QohTafawut"}, daqoiq{"Daqoiq"};
    std::array<std::array<KolomTabel, 3>, 5> unsurMenit = kolomUnsur(kKolomJam);
};

KerangkaTahqiqi::KerangkaTahqiqi(Konteks k, const DataKitabTahqiqi& data)
    : Hasil(static_cast<size_t>(data.jumlahHasil)), HasilTeks(static_cast<size_t>(data.jumlahHasil)), k_(k),
      data_(data), kolom_(std::make_unique<KolomBaca>()) {
    for (size_t i = 0; i < 6; ++i) {
        mabda_[i] = Nilai(data.mabda[i]);
        tambah_[i] = Nilai(data.tambah[i]);
        kurang_[i] = Nilai(data.kurang[i]);
    }
}

KerangkaTahqiqi::~KerangkaTahqiqi() = default;

double KerangkaTahqiqi::derajat(const Nilai& v) {
    const double d = AmbilTingkat(v, MedanBuruj) * 30.0 + AmbilTingkat(v, MedanDarojah) +
                     AmbilTingkat(v, MedanDaqiqoh) / 60.0 + AmbilTingkat(v, MedanTsaniyah) / 3600.0 +
                     AmbilTingkat(v, MedanTsalitsah) / 216000.0;
    return AmbilTanda(v) == 0 ? -d : d;
}

Nilai KerangkaTahqiqi::tambah(const Nilai& a, const Nilai& b) const {
    return TambahNilai(JenisBusur, TandaIkut, data_.modus, a, b);
}

Nilai KerangkaTahqiqi::kurang(const Nilai& a, const Nilai& b) const {
    return KurangNilai(JenisBusur, TandaIkut, data_.modus, a, b);
}

Nilai KerangkaTahqiqi::jarak(const Nilai& a, const Nilai& b, int modusPutar) const {
    Nilai d = KurangNilai(JenisBusur, TandaIkut, modusPutar, a, b);
    if (NilaiDesimal(JenisBusur, b) > NilaiDesimal(JenisBusur, a)) {
        const Nilai putar = modusPutar == ModusBuruj ? Nilai("12 00 00 00 00 1") : Nilai("00 360 00 00 00 1");
        d = TambahNilai(JenisBusur, TandaIkut, modusPutar, d, putar);
    }
    return d;
}

double KerangkaTahqiqi::lintang() const {
    const Tempat& t = k_.sesi.tempat;
    const double d = t.lintangDerajat + t.lintangMenit / 60.0;
    return ValAngka(t.tandaLintang) == 1 ? d : -d;
}

// Years since the epoch: groups of thirty and single years. Year 1 is the epoch itself (one
// group of nothing); years at or before it take groups off, and single years of a whole
// group fold back into one group less.
void KerangkaTahqiqi::tahun(int32_t tahun) {
    const int32_t y = tahun - 1;
    int32_t pengali;
    const std::array<Nilai, 6>* baris = &tambah_;
    int32_t sisa;
    if (y >= 30) {
        Dawr = y / 30;
        pengali = Dawr;
        sisa = y % 30;
    } else if (y >= 0) {
        Dawr = 1;
        pengali = 0;
        sisa = y;
    } else {
        Dawr = (y - 30) / 30;
        pengali = std::abs(Dawr);
        sisa = y + 1 - Dawr * 30;
        baris = &kurang_;
        if (sisa == 30) {
            Dawr += 1;
            pengali -= 1;
            sisa = 0;
        }
    }
    SisaTahun = static_cast<int16_t>(sisa);
    HitungMajmuah(TarikhMajmu.semua(), mabda_, *baris, pengali, 0, data_.modus);
}

void KerangkaTahqiqi::bacaGerak(Baris<6>& b, Tabel& t, const KolomGerak& kolom, int64_t kunci) {
    if (!t.cari(kolom.cari.di(t), kunci)) return;
    b(1) = AlamahTarkh(0, {"0", "0", "0", sel(t, kolom.pasaran), sel(t, kolom.hari), "0", "0", "0", "0"}, 1)
               .value_or(b(1));
    for (size_t e = 0; e < 5; ++e) {
        const auto& k = kolom.unsur[e];
        isi(b(e + 2), DlorbuSittin(sel(t, k[0]), sel(t, k[1]), sel(t, k[2]), sel(t, k[3]), "0", 1, data_.modus));
    }
}

int HariBerjalan(int d) {
    switch (d) {
        case 6: return 27;
        case 0:
        case 7: return 28;
        case 2: return 30;
        default: return 29;
    }
}

// The days run: from the day the tables reach for the first of the month to the 29th of the
// month, chosen by the weekday of the calendar's first against the tables'. The run's chosen
// date holds only the year and the month, so the first's weekday and pasaran are the
// calendar's own; as both count from the same Thursday epoch they agree, and 28 days are run.
void KerangkaTahqiqi::hitungHari(int32_t tahun, int16_t bulan) {
    const Nilai jumlah = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, TarikhMajmu(1), TarikhMabsut(1), Syahr(1));
    const Nilai awal = ClsKesimpulan::ConvertToHijri(tahun, bulan, 1).value_or(Nilai());
    const Nilai alamahAwal = AlamahTarkh(0, {0, 0, 0, AmbilTingkat(awal, MedanPasaran), AmbilTingkat(awal, MedanHari), 0, 0, 0, 0}, 1);
    int d = AmbilTingkat(alamahAwal, MedanHari) - AmbilTingkat(jumlah, MedanHari);
    if (d < 1) d += 7;
    const int hari = HariBerjalan(d);
    Hari = std::to_string(hari);
    bacaGerak(YaumTam, k_.koneksi.TQQYaumTam, kolom_->yaumTam, hari);
}

// The mean noon of the tables moved to the apparent noon by the minutes of the equation of
// time at the sun's mean place.
void KerangkaTahqiqi::hitungTafawut() {
    int k = AmbilTingkat(Jumlah(2), MedanBuruj) * 30 + AmbilTingkat(Jumlah(2), MedanDarojah);
    if (k > 360) k -= 360;
    Tabel& t = k_.koneksi.TQQDaqoiqAhTaf;
    const KolomBaca& kb = *kolom_;
    if (!t.cari(kb.cariTafawut.di(t), k)) return;
    tandaTafawut = sel(t, kb.tanda);
    const int tanda = tandaTafawut == "+" ? 1 : 0;
    const std::string menit(sel(t, kb.qohTafawut));
    Tafawut(1) = Nilai(tandaTafawut + " " + menit);
    if (!t.cari(kb.daqoiq.di(t), menit)) return;
    for (size_t e = 0; e < 5; ++e)
        isi(Tafawut(e + 2), DlorbuSittin("0", "0", sel(t, kb.unsurMenit[e][1]), sel(t, kb.unsurMenit[e][2]), "0",
                                         tanda, data_.modus));
}

// The place's longitude against the tables': the motion of the hours and minutes between.
void KerangkaTahqiqi::hitungThul() {
    const Tempat& tp = k_.sesi.tempat;
    const Nilai p = DlorbuSittin(0, tp.bujurDerajat, tp.bujurMenit, 0, 0, AmbilTanda(Nilai(tp.tandaBujur)), ModusDarojah);
    const Nilai j = DlorbuSittin(0, kBujurJadwal[0], kBujurJadwal[1], 0, 0, 1, ModusDarojah);
    const Nilai d = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, j, p);
    const Nilai t = BagiNilai(JenisBusur, TandaIkut, ModusDarojah, d, Nilai("00 15 00 00 00 1")).value_or(nol());
    const int tanda = AmbilTanda(t);
    const Nilai alamah = CUmumToAlamah(t, false);
    Thul(1) = GantiTanda(alamah, std::to_string(tanda));
    for (size_t i = 2; i <= 6; ++i) Thul(i) = nol();
    const int jam = AmbilTingkat(alamah, MedanJam);
    // The minutes to the nearest: the seconds of the difference round into them.
    const int menit = AmbilTingkat(alamah, MedanMenit) + (AmbilTingkat(alamah, MedanDetik) >= 30 ? 1 : 0);
    const KolomBaca& kb = *kolom_;
    Tabel& s = k_.koneksi.TQQSaah;
    if (jam != 0 && s.cari(kb.cariJam.di(s), jam)) {
        for (size_t e = 0; e < 5; ++e) {
            const auto& kk = kb.unsurJam[e];
            isi(Thul(e + 2), DlorbuSittin("0", kk[0].nama() ? sel(s, kk[0]) : "0", sel(s, kk[1]), sel(s, kk[2]), "0",
                                          tanda, data_.modus));
        }
    }
    Tabel& m = k_.koneksi.TQQDaqoiqAhTaf;
    if (menit != 0 && m.cari(kb.daqoiq.di(m), menit)) {
        for (size_t e = 0; e < 5; ++e) {
            const Nilai v = DlorbuSittin("0", "0", sel(m, kb.unsurMenit[e][1]), sel(m, kb.unsurMenit[e][2]), "0", tanda,
                                         data_.modus)
                                .value_or(nol());
            Thul(e + 2) = TambahNilai(JenisBusur, TandaIkut, data_.modus, Thul(e + 2), v);
        }
    }
}

// The hours of sunset at the place (local apparent time) as the sunset clock gives them,
// counted from noon, where the tables' elements stand; and their motion.
void KerangkaTahqiqi::hitungGurub() {
    const double matahari = std::fmod(derajat(Muqowwam(2)) + 360.0, 360.0);
    const int d = static_cast<int>(matahari);
    const Waktu w = WaktuMaghrib(d, 0, k_.sesi.tempat).terbenam;
    jamGurub_ = w.jam();
    menitGurub_ = w.menit();
    const KolomBaca& kb = *kolom_;
    Tabel& s = k_.koneksi.TQQSaah;
    Tabel& m = k_.koneksi.TQQDaqoiqAhTaf;
    const bool adaJam = s.cari(kb.cariJam.di(s), jamGurub_);
    for (size_t e = 0; e < 5 && adaJam; ++e) {
        const auto& kk = kb.unsurJam[e];
        isi(Saah(e + 2), DlorbuSittin("0", kk[0].nama() ? sel(s, kk[0]) : "0", sel(s, kk[1]), sel(s, kk[2]), "0", 1,
                                      data_.modus));
    }
    const bool adaMenit = m.cari(kb.daqoiq.di(m), menitGurub_);
    for (size_t e = 0; e < 5 && adaMenit; ++e)
        isi(Daqoiq(e + 2), DlorbuSittin("0", "0", sel(m, kb.unsurMenit[e][1]), sel(m, kb.unsurMenit[e][2]), "0", 1,
                                        data_.modus));
    Saah(1) = AlamahTarkh(0, {0, 0, 0, 0, 0, jamGurub_, 0, 0, 0}, 1);
    Daqoiq(1) = AlamahTarkh(0, {0, 0, 0, 0, 0, 0, menitGurub_, 0, 0}, 1);
}

void KerangkaTahqiqi::Siapkan(int32_t tahun_, int16_t bulan) {
    tahunRun_ = tahun_;
    bulanRun_ = bulan;
    tahun(tahun_);
    const bool kabisat = ClsKesimpulan::ConvertToHijri(tahun_, 12, 30).value_or(Nilai()) !=
                         ClsKesimpulan::ConvertToHijri(tahun_ + 1, 1, 1).value_or(Nilai());
    Bulan = static_cast<int16_t>(bulan == 12 && kabisat ? 13 : bulan);

    for (auto [baris, tabel, kolom, kunci] :
         {std::tuple{&TarikhMabsut, &k_.koneksi.TQQthMab, &kolom_->thMab, int64_t{SisaTahun}},
          std::tuple{&Syahr, &k_.koneksi.TQQSyahru, &kolom_->syahru, int64_t{Bulan}}}) {
        if (kunci == 0) {
            (*baris)(1) = nolAlamah();
            for (size_t i = 2; i <= 6; ++i) (*baris)(i) = nol();
        } else {
            bacaGerak(*baris, *tabel, *kolom, kunci);
        }
    }
    hitungHari(tahun_, bulan);
    hariLagi = 0;
    hitungThul();
    hitungMuqowwam();
}

// From the sums to the elements at sunset at the place.
void KerangkaTahqiqi::hitungMuqowwam() {
    Jumlah(1) = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, TarikhMajmu(1), TarikhMabsut(1), Syahr(1), YaumTam(1));
    for (size_t i = 2; i <= 6; ++i)
        Jumlah(i) = TambahNilai(JenisBusur, TandaIkut, data_.modus, TarikhMajmu(i), TarikhMabsut(i), Syahr(i), YaumTam(i));
    hitungTafawut();
    for (size_t i = 2; i <= 6; ++i) Muqowwam(i) = tambah(tambah(Jumlah(i), Tafawut(i)), Thul(i));
    hitungGurub();
    Muqowwam(1) = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, Jumlah(1), Saah(1), Daqoiq(1));
    for (size_t i = 2; i <= 6; ++i) Muqowwam(i) = tambah(tambah(Muqowwam(i), Saah(i)), Daqoiq(i));
}

// One day more run: a day of each element's mean motion, and the next weekday and pasaran.
void KerangkaTahqiqi::LagiSehari() {
    static const std::array<Nilai, 6> sehari = {Nilai("000 00 00 01 01 00 00 00 00 1"), Nilai("00 00 59 08 00 1"),
                                                Nilai("00 00 59 08 00 1"),              Nilai("00 13 10 35 00 1"),
                                                Nilai("00 13 03 54 00 1"),              Nilai("00 00 03 11 00 1")};
    YaumTam(1) = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, YaumTam(1), sehari[0]);
    for (size_t i = 2; i <= 6; ++i) YaumTam(i) = tambah(YaumTam(i), sehari[i - 1]);
    Hari = std::to_string(std::stoi(Hari) + 1);
    ++hariLagi;
    hitungMuqowwam();
}

void KerangkaTahqiqi::HitungSyams() {
    for (int kode : {8, 9, 11, 14}) k_.taadil.TaadilBaris(Tdl[kode - 8].semua(), kode, Muqowwam(3), 1, false);
    Syams(1) = Tdl[0](5);
    Syams(2) = tambah(Muqowwam(2), Syams(1));
}

void KerangkaTahqiqi::HitungQomar() {
    auto baca = [&](int kode, const Nilai& argumen) {
        k_.taadil.TaadilBaris(Tdl[kode - 8].semua(), kode, argumen, 1, false);
        return Tdl[kode - 8](5);
    };
    Qomar(1) = Muqowwam(4);
    Qomar(2) = Tdl[9 - 8](5);
    Qomar(3) = tambah(Qomar(1), Qomar(2));
    // The evection: twice the distance of the mean moon from the true sun, less the anomaly.
    const Nilai a = jarak(Qomar(1), Syams(2), ModusBuruj);
    const Nilai b = TambahNilai(JenisBusur, TandaIkut, data_.modus, a, a);
    Qomar(4) = baca(10, jarak(b, Muqowwam(5), data_.modus));
    Qomar(5) = tambah(Qomar(3), Qomar(4));
    // The centre, at the anomaly corrected by the annual terms and the evection.
    const Nilai khossoh = TambahNilai(JenisBusur, TandaIkut, data_.modus, Muqowwam(5), Tdl[9 - 8](5), Tdl[10 - 8](5),
                                      Tdl[11 - 8](5));
    Qomar(6) = baca(12, khossoh);
    Qomar(7) = tambah(Qomar(5), Qomar(6));
    Qomar(8) = baca(13, jarak(Qomar(7), Syams(2), ModusBuruj));
    Qomar(9) = tambah(Qomar(7), Qomar(8));
    // The reduction, at the argument of latitude (Hishshoh al-'Ardl).
    Qomar(10) = baca(15, TambahNilai(JenisBusur, TandaIkut, data_.modus, Muqowwam(6), Tdl[14 - 8](5), Qomar(9)));
    Qomar(11) = tambah(Qomar(9), Qomar(10));
}

bool KerangkaTahqiqi::BulanDiBelakang() const {
    return std::fmod(derajat(Qomar(11)) - derajat(Syams(2)) + 540.0, 360.0) - 180.0 < 0;
}

// Bu'd, the moon less the sun at sunset, folded into half a circle either way: ahead, the
// ijtima' was that many hours before sunset; behind, it comes after.
void KerangkaTahqiqi::HitungIjtimaJam() {
    double bud = derajat(Qomar(11)) - derajat(Syams(2));
    bud = std::fmod(bud + 540.0, 360.0) - 180.0;
    // The distance in value arithmetic, in open degrees, so that the sheet shows it to the second.
    auto terbuka = [](const Nilai& v) {
        return DlorbuSittin(AmbilTingkat(v, 1), AmbilTingkat(v, 2), AmbilTingkat(v, 3), AmbilTingkat(v, 4),
                            AmbilTingkat(v, 5), 1, ModusDarojah);
    };
    const Nilai putaran("00 360 00 00 00 1");
    Nilai d = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, terbuka(Qomar(11)), terbuka(Syams(2)));
    if (bud < 0 && AmbilTanda(d) == 1) d = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, d, putaran);
    if (bud > 0 && AmbilTanda(d) == 0) d = TambahNilai(JenisBusur, TandaIkut, ModusDarojah, d, putaran);
    Ijtima(1) = d;
    Ijtima(2) = sabaq();
    isi(Ijtima(3), BagiNilai(JenisBusur, TandaIkut, ModusDarojah, Ijtima(1), Ijtima(2)));
    // Sunset on the clock of the day: the sunset clock counts its evening hours from noon.
    Ijtima(4) = DlorbuSittin(0, jamGurub_ < 12 ? jamGurub_ + 12 : jamGurub_, menitGurub_, 0, 0, 1, ModusDarojah);
    Ijtima(5) = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, Ijtima(4), Ijtima(3));
    geserHari = hariLagi;
    const Nilai sehari("00 24 00 00 00 1");
    for (int i = 0; i < 3 && AmbilTanda(Ijtima(5)) == 0 && NilaiDesimal(JenisBusur, Ijtima(5)) != 0; ++i) {
        Ijtima(5) = TambahNilai(JenisBusur, TandaIkut, ModusDarojah, Ijtima(5), sehari);
        --geserHari;
    }
    for (int i = 0; i < 3 && NilaiDesimal(JenisBusur, Ijtima(5)) >= 24; ++i) {
        Ijtima(5) = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, Ijtima(5), sehari);
        ++geserHari;
    }
}

void KerangkaTahqiqi::tulisHasilTeks() {
    for (size_t i = 0; i < Hasil.size(); ++i)
        HasilTeks[i] = std::isfinite(Hasil[i]) ? NilaiDariDesimal(Hasil[i]) : Nilai();
}

HariTahqiqi KerangkaTahqiqi::hariHasil() {
    HariTahqiqi h;
    const Nilai tanggal29 = ClsKesimpulan::ConvertToHijri(tahunRun_, bulanRun_, 29).value_or(Nilai());
    if (tanggal29.kosongTeks()) return h;
    const std::string g = std::to_string(std::abs(geserHari));
    const Nilai geser = AlamahTarkh(3, {"0", "0", g, g, g, "0", "0", "0", "0"}, geserHari < 0 ? 0 : 1).value_or(Nilai());
    h.ijtima = geserHari == 0 ? tanggal29 : TambahNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, tanggal29, geser);
    // The hilal is reckoned at the sunset of the day the reckoning reached: the month begins
    // the next day when it stands at two degrees or more, else a day later.
    const std::string l = std::to_string(hariLagi);
    const Nilai hariHilal = hariLagi == 0 ? tanggal29 : TambahNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, tanggal29,
        AlamahTarkh(3, {"0", "0", l, l, l, "0", "0", "0", "0"}, 1).value_or(Nilai()));
    h.awal = AwalBulanTaqribi(hariHilal, tinggiHilal());
    return h;
}

void KerangkaTahqiqi::hitungTahap(int32_t tahun, int16_t bulan) {
    Kemajuan& maju = k_.kemajuan;
    Siapkan(tahun, bulan);
    maju.langkah();
    HitungSyams();
    HitungQomar();
    // The hilal is sought at the first sunset after the ijtima': while the moon has not yet
    // reached the sun at the sunset reckoned, the reckoning runs one day on.
    for (int i = 0; i < 3 && BulanDiBelakang(); ++i) {
        LagiSehari();
        HitungSyams();
        HitungQomar();
    }
    maju.langkah();
    HitungIjtimaJam();
    maju.langkah();
    HitungHilal();
    maju.langkah();
}

std::optional<Nilai> KerangkaTahqiqi::AwalBulan(int32_t tahun, int16_t bulan) {
    hitungTahap(tahun, bulan);
    const HariTahqiqi h = hariHasil();
    if (h.awal.kosongTeks()) return std::nullopt;
    return h.awal;
}

HasilHitung KerangkaTahqiqi::Hitung(const Permintaan& p) {
    Kemajuan& maju = k_.kemajuan;
    HasilHitung h;
    maju.mulai(kLangkah);
    hitungTahap(p.tahun, p.bulan);

    BahanKesimpulanTahqiqi b;
    b.judul = k_.sesi.namaKitab;
    b.hari = hariHasil();
    const double jam = NilaiDesimal(JenisBusur, Ijtima(5));
    b.jamIjtima = Waktu::dari(0, 0, static_cast<int64_t>(std::floor(jam * 3600)));
    b.tinggi = tinggiHilal();
    const double s = std::fmod(derajat(Syams(2)) + 360.0, 360.0);
    b.matahari = DesimalKeNilai(JenisBusur, TandaIkut, ModusBuruj, static_cast<float>(s), 1).value_or(nol());
    b.mukts = muktsHilal();
    b.nur = nurHilal();
    b.markaz = data_.markaz;
    b.kata = p.kata;
    TulisKesimpulanTahqiqi(k_, b, h.kesimpulan, h.ringkasan);
    maju.langkah();
    if (p.lembar) {
        tulisHasilTeks();
        ClsFlexGrid g(&h.lembarBaru(""));
        isiTabel(g);
        h.baris = baris();
        h.rumus = Rumus();
    }
    maju.penuh();
    return h;
}

void KerangkaTahqiqi::isiTabel(ClsFlexGrid& g) {
    const Sesi& s = k_.sesi;
    g.FlexSetting(48, 51, 490, 500, 2500, true);
    IsiBingkai(g, k_.koneksi.Names, data_.kode);
    g.FlexNama(JudulLembarArab(s.tempat.namaTampil, tahunRun_, bulanRun_ + 1), 0, 0, 50);
    g.FlexTeks(std::to_string(Dawr * 30), 3, 48);
    g.FlexTeks(std::to_string(SisaTahun), 4, 48);
    g.FlexTeks(NamaBulanArab(Bulan), 5, 48);
    g.FlexTeks(Hari, 6, 48);
    g.FlexTeks(tandaTafawut, 8, 48);
    // The rows of six cells: the alamah's weekday, pasaran, hour and minute, then each
    // element's buruj, degree, minute and second, eight columns apart.
    const std::array<const Baris<6>*, 10> enam = {&TarikhMajmu, &TarikhMabsut, &Syahr, &YaumTam, &Jumlah,
                                                  &Tafawut, &Thul, &Saah, &Daqoiq, &Muqowwam};
    for (size_t r = 0; r < enam.size(); ++r) {
        const int baris = 3 + static_cast<int>(r);
        const Baris<6>& b = *enam[r];
        // The tafawut's first cell is its sign, written beside the label.
        if (&b != &Tafawut) g.FlexData(b(1), baris, 47, {MedanHari, MedanPasaran, MedanJam, MedanMenit});
        for (size_t e = 0; e < 5; ++e) g.FlexData(b(e + 2), baris, 39 - 8 * static_cast<int>(e), {1, 2, 3, 4});
    }
    const std::initializer_list<int> lima = {1, 2, 3, 4, 5};
    for (size_t i = 1; i <= 2; ++i) g.FlexData(Syams(i), 14 + static_cast<int>(i), 47, lima);
    for (size_t i = 1; i <= 11; ++i) g.FlexData(Qomar(i), 17 + static_cast<int>(i), 47, lima);
    for (size_t i = 1; i <= 5; ++i) g.FlexData(Ijtima(i), 29 + static_cast<int>(i), 47, lima);
    // The worked look-ups of the sun's equation and the moon's four corrections shown.
    const std::array<size_t, 5> kode = {8, 10, 12, 13, 15};
    for (size_t j = 0; j < kode.size(); ++j)
        for (size_t i = 1; i <= 5; ++i)
            g.FlexData(Tdl[kode[j] - 8](i), 14 + 6 * static_cast<int>(j) + static_cast<int>(i), 33, lima);
    for (size_t i = 0; i < HasilTeks.size(); ++i) g.FlexData(HasilTeks[i], 15 + static_cast<int>(i), 19, lima);
}

std::vector<BarisTercatat> KerangkaTahqiqi::baris() const {
    std::vector<BarisTercatat> r = {catat("TarikhMajmu", TarikhMajmu), catat("TarikhMabsut", TarikhMabsut),
                                    catat("Syahr", Syahr),             catat("YaumTam", YaumTam),
                                    catat("Jumlah", Jumlah),           catat("Tafawut", Tafawut),
                                    catat("Thul", Thul),               catat("Saah", Saah),
                                    catat("Daqoiq", Daqoiq),           catat("Muqowwam", Muqowwam),
                                    catat("Syams", Syams),             catat("Qomar", Qomar),
                                    catat("Ijtima", Ijtima)};
    for (int kode = 8; kode <= 15; ++kode) r.push_back(catat("Tdl" + std::to_string(kode), Tdl[static_cast<size_t>(kode - 8)]));
    BarisTercatat h{"Hasil", {}};
    for (const Nilai& v : HasilTeks) h.sel.push_back(v.teks());
    r.push_back(std::move(h));
    return r;
}

}  // namespace falak
