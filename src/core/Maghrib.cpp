#include "core/Maghrib.h"

#include <array>
#include <string>

#include "core/FungsHisab.h"

namespace falak {

namespace {

// The arcsine of a value that holds a sine, as a value; zero when there is none.
Nilai arcsin(const Nilai& sinus) {
    const Nilai nol("00 00 00 00 00 1");
    return HitungDeret(TandaIkut, ModusBuruj, 1, sinus, 0, nol, 0, nol, 0, nol, 0, nol).value_or(nol);
}

Nilai sinus(const Nilai& v) { return TrigNilai(1, ModusBuruj, v, false).value_or(Nilai("00 00 00 00 00 1")); }
Nilai kosinus(const Nilai& v) { return TrigNilai(2, ModusBuruj, v, false).value_or(Nilai("00 00 00 00 00 1")); }

// Hours and minutes of an alamah value; the seconds lift the minute by half-even rounding.
Waktu jamMenit(const Nilai& alamah) {
    const int jam = AmbilTingkat(alamah, MedanJam);
    const int menit =
        AmbilTingkat(alamah, MedanMenit) + static_cast<int>(BulatGenap(AmbilTingkat(alamah, MedanDetik) / 60.0));
    return Waktu::dari(jam, menit, 0);
}

SaatMatahari hitungMaghrib(int darojat, int daqiqoh, const Tempat& tempat) {
    const Nilai enamPuluh = DlorbuSittin(0, 60, 0, 0, 0, 1, ModusBuruj);
    const Nilai lintang = DlorbuSittin(0, tempat.lintangDerajat, tempat.lintangMenit, 0, 0,
                                       AmbilTanda(Nilai(tempat.tandaLintang)), ModusBuruj);
    const Nilai bujurMatahari = DlorbuSittin(0, darojat, daqiqoh, 0, 0, 1, ModusBuruj);
    const Nilai mailKulli = DlorbuSittin(0, 23, 27, 0, 0, 1, ModusBuruj);

    const Nilai deklinasi =
        arcsin(KaliNilai(JenisBusur, TandaIkut, ModusBuruj, sinus(bujurMatahari), sinus(mailKulli)).value_or(Nilai()));
    const Nilai a =
        KaliNilai(JenisBusur, TandaIkut, ModusBuruj,
                  KaliNilai(JenisBusur, TandaIkut, ModusBuruj, sinus(deklinasi), sinus(lintang)).value_or(Nilai()),
                  enamPuluh)
            .value_or(Nilai());
    const Nilai b =
        KaliNilai(JenisBusur, TandaIkut, ModusBuruj,
                  KaliNilai(JenisBusur, TandaIkut, ModusBuruj, kosinus(deklinasi), kosinus(lintang)).value_or(Nilai()),
                  enamPuluh)
            .value_or(Nilai());
    const Nilai x = arcsin(BagiNilai(JenisBusur, TandaIkut, ModusBuruj, a, b).value_or(Nilai("00 00 00 00 00 1")));
    const Nilai jamLebih = BagiNilai(JenisBusur, TandaIkut, ModusBuruj, x, DlorbuSittin(0, 15, 0, 0, 0, 1, ModusBuruj))
                               .value_or(Nilai("00 00 00 00 00 1"));

    const Nilai enamJam = DlorbuSittin(0, 6, 0, 0, 0, 1, ModusBuruj);
    const Nilai ihtiyath = DlorbuSittin(0, 0, 3, 30, 0, 1, ModusBuruj);
    const Nilai terbenam = TambahNilai(JenisBusur, TandaIkut, ModusBuruj,
                                       TambahNilai(JenisBusur, TandaIkut, ModusBuruj, enamJam, jamLebih), ihtiyath);
    const Nilai terbit = KurangNilai(JenisBusur, TandaIkut, ModusBuruj,
                                     KurangNilai(JenisBusur, TandaIkut, ModusBuruj, enamJam, jamLebih), ihtiyath);
    return {jamMenit(CUmumToAlamah(terbenam, false)), jamMenit(CUmumToAlamah(terbit, false))};
}

// A batch asks the sunset at one place for the same few hundred longitudes over and over
// (every book, every month), and the value arithmetic of one costs as much as a book's whole
// equation of the Sun: the last answer for each minute of longitude is kept, with the
// latitude it was reckoned for.
struct MaghribTersimpan {
    int busur = -1;
    int16_t derajat = 0, menit = 0;
    std::string tanda;
    SaatMatahari saat;
};

}  // namespace

SaatMatahari WaktuMaghrib(int darojat, int daqiqoh, const Tempat& tempat) {
    if (darojat * 60 + daqiqoh > 360 * 60) darojat -= 360;
    thread_local std::array<MaghribTersimpan, 1024> simpanan;
    const int busur = darojat * 60 + daqiqoh;
    MaghribTersimpan& m = simpanan[static_cast<size_t>(busur) % simpanan.size()];
    if (m.busur != busur || m.derajat != tempat.lintangDerajat || m.menit != tempat.lintangMenit ||
        m.tanda != tempat.tandaLintang)
        m = {busur, tempat.lintangDerajat, tempat.lintangMenit, tempat.tandaLintang, hitungMaghrib(darojat, daqiqoh, tempat)};
    return m.saat;
}

}  // namespace falak
