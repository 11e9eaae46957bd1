#include "eclipse/lunar/KhusufSyamsu.h"

#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "core/FungsSH.h"
#include "core/Koneksi.h"
#include "eclipse/BarisSyamsu.h"

namespace falak {

namespace {

const DataGerhana kKhusufSyamsu = {"SH", 110, 40, 3, 4, 5, 4};

constexpr float kDetikSimpul = 12.0f / 3600;  // twelve seconds of time for each degree from the node
constexpr float kFaktorArdl = 0.042f;         // the Hishshoh's motion for each hour of the correction
constexpr float kFaktorBuhtu = 0.717f;        // the Khossyoh's, 43 minutes an hour
constexpr std::array<std::string_view, 3> kUkuran = {"QodruKhs", "AshobiKhs", "MuktsuKhs"};

bool sebelumSimpul(float hishshoh) {
    const int buruj = static_cast<int>(PutarSH(hishshoh) / 30);
    return buruj == 5 || buruj == 11;
}

}  // namespace

KhusufSyamsu::KhusufSyamsu(Konteks k) : KerangkaKhusuf(k, kKhusufSyamsu), sh_(k) {}

void KhusufSyamsu::PokokKhusuf(int32_t tahun, int16_t bulan) {
    sh_.IjtimaSajaSH(tahun, bulan, true);
    SalinBarisSH(sh_, bulan, barisTahun());
}

void KhusufSyamsu::istiqbal() {
    const SyamsulHilal& s = sh_;
    std::string teks;
    const float hishshoh = s.SHJumlah(3);
    const float dalamBuruj = hishshoh - 30.0f * std::floor(hishshoh / 30.0f);
    const float jamSimpul = dalamBuruj * kDetikSimpul * s.SHTdlHishshoh;
    const float hari3 = HariSH(s.SHIjtimaTeks(3));
    // Before the node the time is added, after it taken off.
    const float jam9 = HitungSH(-1, sebelumSimpul(hishshoh) ? 1 : 2, hari3, s.SHIjtima(3), 0, jamSimpul, teks);
    const float hari9 = HariSH(teks);
    const float jam11 = HitungSH(-1, s.SHTandaBujur == 0 ? 2 : 1, hari9, jam9, 0, s.SHIjtima(4), teks);
    HsIstiqbal(1) = AlamahSH(s.SHJumlah(1), s.SHJumlah(2));
    HsIstiqbal(2) = NilaiSH(s.SHSaah(5));
    HsIstiqbal(3) = AlamahSH(hari3, s.SHIjtima(3));
    HsIstiqbal(4) = NilaiSH(dalamBuruj);
    HsIstiqbal(5) = NilaiSH(dalamBuruj * kDetikSimpul);
    HsIstiqbal(6) = NilaiSH(s.SHTdlHishshoh);
    HsIstiqbal(7) = NilaiSH(jamSimpul);
    HsIstiqbal(8) = HsIstiqbal(3);
    HsIstiqbal(9) = AlamahSH(hari9, jam9);
    HsIstiqbal(10) = NilaiSH(s.SHTandaBujur == 0 ? -s.SHIjtima(4) : s.SHIjtima(4));
    HsIstiqbal(11) = AlamahSH(HariSH(teks), jam11);
}

bool KhusufSyamsu::TahapKhusuf() {
    const SyamsulHilal& s = sh_;
    Tabel& t = k_.koneksi.TRBTaadilSH;
    SalinTaadilSH(s, {HsTdlKs.semua(), HsTdlMr.semua(), HsTdlHs.semua(), HsTdlDq.semua(), HsQomar.semua(),
                      HsSyams.semua(), HsSaah.semua()});
    HsSyams(4) = NilaiSH(PutarSH(s.SHBud(2) + 180.0f));
    istiqbal();
    k_.kemajuan.langkah();

    // The Hishshoh at the true full moon, and the moon's latitude there.
    const float saah = s.SHSaah(5);
    const float ardl2 = saah * kFaktorArdl;
    const float ardl4 = ardl2 + s.SHTdlMarkaz;
    const float ardl7 = PutarSH(s.SHJumlah(3) - ardl4);
    HsArdl(1) = NilaiSH(saah);
    HsArdl(2) = NilaiSH(ardl2);
    HsArdl(3) = NilaiSH(s.SHTdlMarkaz);
    HsArdl(4) = NilaiSH(ardl4);
    HsArdl(5) = NilaiSH(s.SHJumlah(3));
    HsArdl(6) = HsArdl(4);
    HsArdl(7) = NilaiSH(ardl7);
    // The Khossyoh at the true full moon, and the moon's daily motion there.
    const float buhtu2 = saah * kFaktorBuhtu;
    const float buhtu4 = PutarSH(s.SHJumlah(5) - buhtu2);
    HsBuhtu(1) = NilaiSH(saah);
    HsBuhtu(2) = NilaiSH(buhtu2);
    HsBuhtu(3) = NilaiSH(s.SHJumlah(5));
    HsBuhtu(4) = NilaiSH(buhtu4);
    k_.kemajuan.langkah();

    const auto lintang = LintangSH(t, ardl7);
    const auto buhtu = BuhtuSH(t, buhtu4);
    if (!lintang || !buhtu) return false;
    HsTdlBuhtu(5) = NilaiSH(*buhtu);
    HsTdlHs2(5) = NilaiSH(*lintang);
    const auto ukuran = PindaiUkuranSH(t, "CariQohArd", kUkuran, *lintang, *buhtu);
    if (!ukuran) return false;
    HsAshobi(11) = NilaiSH(ukuran->jari);
    HsSaatKhusf(11) = NilaiSH(ukuran->saat);
    HsMuktsu(11) = NilaiSH(ukuran->mukts);
    FaseKhusuf();
    k_.kemajuan.langkah();
    return true;
}

}  // namespace falak
