#include "methods/tahqiqi/NurulAnwar.h"

#include <cmath>

#include "core/FungsHisab.h"
#include "methods/Taadil.h"
#include "core/Koneksi.h"
#include "methods/tahqiqi/HilalTahqiqi.h"
#include "methods/tahqiqi/RumusTahqiqi.h"

namespace falak {

namespace {

const DataKitabTahqiqi kNurulAnwar = {
    "NA",
    ModusLingkaran,
    {"000 00 00 00 05 00 00 00 00 1", "00 115 05 49 00 1", "00 036 58 55 00 1", "00 129 58 55 00 1",
     "00 116 19 54 00 1", "00 233 01 38 00 1"},
    {"000 00 00 00 05 00 00 00 00 1", "00 038 24 58 00 1", "00 037 53 11 00 1", "00 038 16 30 00 1",
     "00 293 53 46 00 1", "00 202 57 56 00 1"},
    {"000 00 00 00 05 00 00 00 00 0", "00 038 24 58 00 0", "00 037 53 11 00 0", "00 038 16 30 00 0",
     "00 293 53 46 00 0", "00 202 57 56 00 0"},
    {"Jombang", 7, 33, 0, 112, 13, 1},
    29,
};

const double kMail = ValAngka("23.4444444444444");   // the obliquity, read from its text
const double kInkhifadl = ValAngka("1.21666666666667");  // the depression of the horizon at sunset
constexpr double kMailQomar = 5;                        // the moon's greatest latitude

}  // namespace

NurulAnwar::NurulAnwar(Konteks k) : KerangkaTahqiqi(k, kNurulAnwar) {}

LembarRumus NurulAnwar::Rumus() { return RumusTahqiqi(*this, 41, k_.koneksi.TQQRumuz, {kMail, kMailQomar, kInkhifadl}); }

// The moon's hourly gain on the sun at sunset: its own motion by the corrected anomaly, the
// evection's and the variation's shares, less the sun's motion by its anomaly.
Nilai NurulAnwar::sabaq() {
    k_.taadil.TaadilBaris(Sabaq[0].semua(), 18, Tdl[12 - 8](1), 1, false);
    k_.taadil.TaadilBaris(Sabaq[1].semua(), 19, Tdl[10 - 8](1), 1, false);
    k_.taadil.TaadilBaris(Sabaq[2].semua(), 20, KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, Syams(2), Qomar(11)), 1,
                          false);
    const Nilai s = TambahNilai(JenisBusur, TandaIkut, ModusLingkaran, Sabaq[0](5), Sabaq[1](5), Sabaq[2](5));
    return KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, s, k_.taadil.Syatar1(21, Muqowwam(3), 1, false));
}

void NurulAnwar::HitungHilal() {
    using namespace hilal;
    std::vector<double>& h = Hasil;
    const double phi = lintang();
    auto busurTerbenam = [&](double deklinasi) {
        return acs(-tn(phi) * tn(deklinasi) - (1 / cs(phi) / cs(deklinasi)) * sn(kInkhifadl));
    };
    h[0] = std::fmod(derajat(Syams(2)) + 360.0, 360.0);
    h[1] = asn(sn(kMail) * sn(h[0]));
    h[2] = phi;
    h[3] = busurTerbenam(h[1]);
    h[4] = std::fabs(asn(cs(h[0]) / cs(h[1])));
    h[5] = matholi(h[0], h[4]);
    h[6] = h[5] + h[3];
    h[7] = std::fmod(derajat(Qomar(11)) + 360.0, 360.0);
    h[8] = atn(tn(kMail) * sn(h[7]));
    h[9] = std::fmod(derajat(Tdl[15 - 8](1)) + 360.0, 360.0);
    h[10] = asn(sn(kMailQomar) * sn(h[9]));
    h[11] = h[10] + h[8];
    h[12] = asn(sn(h[11]) * cs(kMail) / cs(h[8]));
    h[13] = busurTerbenam(h[12]);
    h[14] = asn(sn(kMail) * sn(h[7]));
    h[15] = (h[14] + h[12]) / 2;
    double q = cs(h[7]) / cs(h[15]);
    rasioTerbalik = q >= 1;
    if (rasioTerbalik) q = cs(h[15]) / cs(h[7]);
    h[16] = std::fabs(asn(q));
    h[17] = matholi(h[7], h[16]);
    h[18] = h[17] + h[13];
    h[19] = h[6];
    h[20] = selisihBusur(h[18], h[19]);
    h[21] = h[13] - h[20];
    h[22] = asn(sn(phi) * sn(h[12]) + cs(phi) * cs(h[12]) * cs(h[21]));
    h[23] = ((h[22] + h[20]) / 2) / 15;
    h[24] = asn(sn(h[1]) / cs(phi));
    h[25] = acs(sn(h[21]) * cs(h[12]) / cs(h[22]));
    h[26] = std::fabs(h[24]) - std::fabs(h[25]);
    h[27] = selisihBusur(h[7], h[0]);
    h[28] = h[27] / 15 + h[10] / 60;
}

}  // namespace falak
