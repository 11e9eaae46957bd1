#include "eclipse/BarisSyamsu.h"

#include <cmath>
#include <string>

#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "core/FungsSH.h"
#include "core/Tabel.h"
#include "eclipse/LangkahGerhana.h"
#include "methods/taqribi/SyamsulHilal.h"

namespace falak {

namespace {

constexpr int kPindaiPaling = 400;   // rows the size scan walks at most
constexpr float kTepiPindai = 0.04f; // the margin the scan adds to the latitude, and its bound
// The moon's mean daily motion away from the sun, at which the size rows are worked, and the
// sun's daily motion: a moon of daily motion v passes the shadow in (v - sun) / mean of the
// time.
constexpr float kBuhtuNisbiRata = 12.191f;
constexpr float kGerakSyams = 0.986f;

std::optional<float> bacaKolom(const Tabel& t, std::string_view kolom) {
    const auto v = t.baca(kolom);
    if (!v || v->empty()) return std::nullopt;
    return static_cast<float>(ValAngka(*v));
}

}  // namespace

Nilai NilaiSH(float x) {
    return DesimalKeNilai(JenisBusur, TandaIkut, ModusBuruj, std::fabs(x), x < 0 ? 0 : 1).value_or(Nilai());
}

Nilai AlamahSH(float hari, float jam) {
    const Nilai j = NilaiSH(jam);
    return AlamahTarkh(JenisAlamah,
                       {0, 0, 0, 0, static_cast<int64_t>(std::lround(hari)), AmbilTingkat(j, MedanDarojah),
                        AmbilTingkat(j, MedanDaqiqoh), AmbilTingkat(j, MedanTsaniyah), 0},
                       1);
}

float HariSH(const std::string& teks) {
    const double h = ValAngka(teks);
    return static_cast<float>(h < 1 ? h + 7 : h);
}

float PutarSH(float x) {
    const float r = std::fmod(x, 360.0f);
    return r < 0 ? r + 360.0f : r;
}

void SalinBarisSH(const SyamsulHilal& sh, int16_t bulan, const BarisTahun& baris) {
    baris.bulan = bulan;
    baris.dawr = sh.SHDawr;
    baris.sisaTahun = sh.SHSisaTahun;
    const auto salin = [](const Baris<6, float>& dari, std::span<Nilai, 5> ke) {
        ke[0] = AlamahSH(dari(1), dari(2));
        for (size_t i = 1; i < 5; ++i) ke[i] = NilaiSH(dari(i + 2));
    };
    salin(sh.SHMajmu, baris.majmu.semua());
    salin(sh.SHMabsut, baris.mabsut.semua());
    salin(sh.SHSyahr, baris.syahr.semua());
    salin(sh.SHJumlah, baris.jumlah.semua());
}

void SalinTaadilSH(const SyamsulHilal& sh, const BarisTaadilSH& ke) {
    ke.khossyoh[4] = NilaiSH(sh.SHTdlKhossyoh);
    ke.markaz[4] = NilaiSH(sh.SHTdlMarkaz);
    ke.hishshoh[4] = NilaiSH(sh.SHTdlHishshoh);
    ke.daqoiq[4] = NilaiSH(sh.SHTdlMuqowwam);
    for (size_t i = 1; i <= 3; ++i) ke.qomar[i - 1] = NilaiSH(sh.SHQomar(i));
    for (size_t i = 4; i <= 6; ++i) ke.qomar[i - 1] = NilaiSH(sh.SHQomar(i + 1));
    ke.syams[0] = NilaiSH(sh.SHJumlah(4));
    ke.syams[1] = NilaiSH(sh.SHBud(1));
    ke.syams[2] = NilaiSH(sh.SHBud(2));
    for (size_t i = 1; i <= 5; ++i) ke.saah[i - 1] = NilaiSH(sh.SHSaah(i));
}

std::optional<float> BacaSH(Tabel& t, std::string_view kunci, float x, std::string_view kolom) {
    const auto k = KunciSH(x);
    if (!k || !t.cari(kunci, *k)) return std::nullopt;
    return bacaKolom(t, kolom);
}

std::optional<float> BacaLimaSH(Tabel& t, float x, std::string_view kolom) {
    const auto k = KunciLimaSH(x);
    if (!k || !t.cari("CariLoop5", *k)) return std::nullopt;
    return bacaKolom(t, kolom);
}

std::optional<float> LintangSH(Tabel& t, float hishshoh) {
    const float h = PutarSH(hishshoh);
    const int buruj = static_cast<int>(h / 30);
    const float derajat = h - 30.0f * static_cast<float>(buruj);
    if (buruj == 5 || buruj == 11) return BacaSH(t, "CariDr5_11", derajat, "ArdHqq5_11");
    if (buruj == 0 || buruj == 6) return BacaSH(t, "CariDr0_6", derajat, "ArdHqq0_6");
    return std::nullopt;
}

std::optional<float> BuhtuSH(Tabel& t, float khossyoh) { return BacaLimaSH(t, khossyoh, "tdlBuhtu"); }

std::optional<UkuranSH> PindaiUkuranSH(Tabel& t, std::string_view kunci, std::span<const std::string_view, 3> kolom,
                                       float lintang, float buhtu) {
    const float cari = std::fabs(lintang) + kTepiPindai;
    t.moveFirst();
    for (int i = 0; i < kPindaiPaling && !t.eof(); ++i, t.moveNext()) {
        const auto k = bacaKolom(t, kunci);
        if (!k || !(*k - cari < kTepiPindai)) continue;
        const auto jari = bacaKolom(t, kolom[0]);
        if (!jari || !(*jari > 0)) return std::nullopt;
        const float lambat = kBuhtuNisbiRata / (buhtu - kGerakSyams);
        return UkuranSH{*jari, bacaKolom(t, kolom[1]).value_or(0) * lambat,
                        bacaKolom(t, kolom[2]).value_or(0) * lambat};
    }
    return std::nullopt;
}

}  // namespace falak
