#include "eclipse/solar/KusufSyamsu.h"

#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "core/FungsSH.h"
#include "core/Koneksi.h"
#include "core/Sesi.h"
#include "eclipse/BarisSyamsu.h"

namespace falak {

namespace {

const DataGerhana kKusufSyamsu = {"SH", 110, 40, 3, 4, 5, 4};

constexpr float kFaktorArdl = 0.042f;   // the Hishshoh's motion for each hour of the correction
constexpr float kFaktorBuhtu = 0.717f;  // the Khossyoh's, 43 minutes an hour
constexpr float kZawal = 18.0f;         // noon on the alamah clock, which starts at sunset
constexpr float kJamBusur = 15.0f;      // degrees of hour angle an hour
constexpr std::array<std::string_view, 3> kUkuran = {"QodruKf", "AshobiKf", "MuktsuKf"};

}  // namespace

KusufSyamsu::KusufSyamsu(Konteks k) : KerangkaKusuf(k, kKusufSyamsu), sh_(k) {}

void KusufSyamsu::PokokKusuf(int32_t tahun, int16_t bulan) {
    sh_.IjtimaSajaSH(tahun, bulan);
    SalinBarisSH(sh_, bulan, barisTahun());
}

float KusufSyamsu::titikTengah(float jam, std::span<Nilai, 6> baris) {
    const float syams = sh_.SHBud(2);
    const float jarak = std::fabs(jam - kZawal);
    const float sudut = jarak * kJamBusur;
    // After noon the sun has passed the meridian, whose point lies east of it.
    const float titik = PutarSH(KfSore ? syams + sudut : syams - sudut);
    baris[0] = NilaiSH(kZawal);
    baris[1] = NilaiSH(jam);
    baris[2] = NilaiSH(jarak);
    baris[3] = NilaiSH(sudut);
    baris[4] = NilaiSH(syams);
    baris[5] = NilaiSH(titik);
    return titik;
}

std::optional<float> KusufSyamsu::jarakZenit(float titik) {
    const Tempat& p = k_.sesi.tempat;
    // The rows hold places south of the equator; a place as far north sees the point of the
    // opposite longitude as the southern place sees this one.
    const float baca = p.tandaLintang == "1" ? PutarSH(titik + 180.0f) : titik;
    return BacaSH(k_.koneksi.TRBTaadilSH, "Cari", baca, "Iqlim" + std::to_string(p.lintangDerajat));
}

bool KusufSyamsu::TahapKusuf() {
    const SyamsulHilal& s = sh_;
    Tabel& t = k_.koneksi.TRBTaadilSH;
    Kemajuan& maju = k_.kemajuan;
    SalinTaadilSH(s, {KfTdlKs.semua(), KfTdlMr.semua(), KfTdlHs.semua(), KfTdlDq.semua(), KfQomar.semua(),
                      KfSyams.semua(), KfSaah.semua()});
    KfIjtima(1) = AlamahSH(s.SHJumlah(1), s.SHJumlah(2));
    KfIjtima(2) = NilaiSH(s.SHSaah(5));
    KfIjtima(3) = AlamahSH(HariSH(s.SHIjtimaTeks(3)), s.SHIjtima(3));
    KfIjtima(4) = NilaiSH(s.SHTandaBujur == 0 ? -s.SHIjtima(4) : s.SHIjtima(4));
    KfIjtima(5) = s.SHIjtimaAlamah;
    maju.langkah();
    if (!UjiSiang(KfIjtima(5))) return false;

    // The Hishshoh and the Khossyoh at the true ijtima'.
    const float saah = s.SHSaah(5);
    const float ardl4 = saah * kFaktorArdl + s.SHTdlMarkaz;
    const float ardl7 = PutarSH(s.SHJumlah(3) - ardl4);
    KfArdl(1) = NilaiSH(saah);
    KfArdl(2) = NilaiSH(saah * kFaktorArdl);
    KfArdl(3) = NilaiSH(s.SHTdlMarkaz);
    KfArdl(4) = NilaiSH(ardl4);
    KfArdl(5) = NilaiSH(s.SHJumlah(3));
    KfArdl(6) = KfArdl(4);
    KfArdl(7) = NilaiSH(ardl7);
    const float buhtu4 = PutarSH(s.SHJumlah(5) - saah * kFaktorBuhtu);
    KfBuhtu(1) = NilaiSH(saah);
    KfBuhtu(2) = NilaiSH(saah * kFaktorBuhtu);
    KfBuhtu(3) = NilaiSH(s.SHJumlah(5));
    KfBuhtu(4) = NilaiSH(buhtu4);
    maju.langkah();
    if (!UjiHishshoh(KfArdl(7))) return false;
    const auto lintang = LintangSH(t, ardl7);
    const auto buhtu = BuhtuSH(t, buhtu4);
    if (!lintang || !buhtu) return false;
    KfTdlBuhtu(5) = NilaiSH(*buhtu);
    // North of the ecliptic from the ascending node to the descending one.
    const float ardlQomar = ardl7 < 180.0f ? *lintang : -*lintang;

    // First pass: the parallax along the ecliptic at the ijtima', as time.
    const float jam = s.SHIjtima(5);
    KfSore = jam > kZawal;
    const float titik1 = titikTengah(jam, KfFadlu.semua().first<6>());
    const auto zenit1 = jarakZenit(titik1);
    const auto jaib = BacaSH(t, "Cari", std::fabs(jam - kZawal) * kJamBusur, "JebQous");
    if (!zenit1 || !jaib) return false;
    const auto thul = BacaSH(t, "Cari", *zenit1, "IkhtilafThul");
    if (!thul) return false;
    // East of the meridian the parallax puts the moon ahead, so the apparent ijtima' comes
    // sooner; west of it later.
    const float koreksi = *jaib * *thul * s.SHTdlHishshoh;
    std::string teks;
    const float jam2 = HitungSH(-1, KfSore ? 1 : 2, HariSH(s.SHIjtimaTeks(5)), jam, 0, koreksi, teks);
    const float hari2 = HariSH(teks);
    KfMail1(1) = NilaiSH(*zenit1);
    KfMail1(2) = NilaiSH(*jaib);
    KfMail1(3) = NilaiSH(*thul);
    KfWaktu(1) = NilaiSH(*thul);
    KfWaktu(2) = NilaiSH(*jaib * *thul);
    KfWaktu(3) = NilaiSH(s.SHTdlHishshoh);
    KfWaktu(4) = NilaiSH(koreksi);
    KfWaktu(5) = KfIjtima(5);
    KfWaktu(6) = AlamahSH(hari2, jam2);
    maju.langkah();
    // The parallax may carry the middle out of the day: the place then sees no eclipse.
    if (!UjiSiang(KfWaktu(6))) return false;

    // Second pass: the parallax across the ecliptic at the time so moved. It pushes the moon
    // away from the zenith: north when the meridian's point stands north of it.
    const float titik2 = titikTengah(jam2, KfDlil.semua());
    const auto zenit2 = jarakZenit(titik2);
    const auto mail = BacaSH(t, "Cari", titik2, "MelAsyir");
    if (!zenit2 || !mail) return false;
    const auto ikhtilaf = BacaSH(t, "Cari", *zenit2, "IkhtilafArdli");
    if (!ikhtilaf) return false;
    const Tempat& p = k_.sesi.tempat;
    const float lintangTempat = static_cast<float>(p.lintangDerajat) + static_cast<float>(p.lintangMenit) / 60.0f;
    const bool utara = *mail > (p.tandaLintang == "1" ? lintangTempat : -lintangTempat);
    const float ardlMar = ardlQomar + (utara ? *ikhtilaf : -*ikhtilaf);
    KfMail2(1) = NilaiSH(*zenit2);
    KfMail2(2) = NilaiSH(*mail);
    KfMail2(3) = NilaiSH(utara ? *ikhtilaf : -*ikhtilaf);
    KfArdlMar(1) = NilaiSH(ardlQomar);
    KfArdlMar(2) = KfMail2(3);
    // The Hishshoh on the side of the apparent latitude: the words read the side from it.
    KfArdlMar(3) = NilaiSH((ardlMar >= 0) == (ardl7 < 180.0f) ? ardl7 : PutarSH(ardl7 + 180.0f));
    KfJumlahArdl(1) = NilaiSH(ardlMar);
    maju.langkah();

    const auto ukuran = PindaiUkuranSH(t, "CariQohArdM", kUkuran, ardlMar, *buhtu);
    if (!ukuran) return false;
    KfAshobi(11) = NilaiSH(ukuran->jari);
    KfSaatKusf(11) = NilaiSH(ukuran->saat);
    KfMuktsu(11) = NilaiSH(ukuran->mukts);
    KfFase(1) = KfWaktu(6);
    FaseKusuf();
    return true;
}

}  // namespace falak
