#include "methods/tahqiqi/RumusTahqiqi.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "core/FungsHisab.h"
#include "methods/tahqiqi/KerangkaTahqiqi.h"

namespace falak {

namespace {

// Degrees of a value of either circle (buruj or open degrees), with its sign.
double derajatNilai(const Nilai& v) {
    const double d = AmbilTingkat(v, MedanBuruj) * 30.0 + AmbilTingkat(v, MedanDarojah) +
                     AmbilTingkat(v, MedanDaqiqoh) / 60.0 + AmbilTingkat(v, MedanTsaniyah) / 3600.0 +
                     AmbilTingkat(v, MedanTsalitsah) / 216000.0;
    return AmbilTanda(v) == 0 ? -d : d;
}

// A place on the circle, 0 to 360.
Nilai tempat(const Nilai& v) { return NilaiRumus(std::fmod(derajatNilai(v) + 360.0, 360.0)); }

// A correction, which the tables write as the circle less it when it takes off: -180 to 180.
Nilai koreksi(const Nilai& v) { return NilaiRumus(std::fmod(derajatNilai(v) + 540.0, 360.0) - 180.0); }

}  // namespace

Nilai NilaiRumus(double derajat) {
    const int64_t t = std::llround(std::fabs(derajat) * 216000.0);
    return DlorbuSittin(0, t / 216000, t / 3600 % 60, t / 60 % 60, t % 60, derajat < 0 ? 0 : 1, ModusDarojah);
}

LembarRumus RumusTahqiqi(const KerangkaTahqiqi& k, int kodeLembar, Tabel& tqqRumuz, const TetapanRumus& tetap) {
    const AnggotaRumus* a = CariAnggotaRumus(kodeLembar);
    if (!a) return {};
    std::vector<Nilai> hilal{Nilai()};
    hilal.insert(hilal.end(), k.HasilTeks.begin(), k.HasilTeks.end());
    const std::vector<Nilai> langkah = {
        NilaiRumus(tetap.mail),
        NilaiRumus(tetap.mailQomar),
        tetap.inkhifadl ? NilaiRumus(*tetap.inkhifadl) : Nilai(),
        tempat(k.Muqowwam(2)),
        koreksi(k.Syams(1)),
        tempat(k.Qomar(1)),
        koreksi(k.Qomar(2)),
        koreksi(k.Qomar(4)),
        koreksi(k.Qomar(6)),
        koreksi(k.Qomar(8)),
        koreksi(k.Qomar(10)),
        tempat(k.Muqowwam(6)),
        koreksi(k.Tdl[14 - 8](5)),
        tempat(k.Qomar(9)),
    };
    return BangunRumus(*a, tqqRumuz, hilal, langkah);
}

}  // namespace falak
