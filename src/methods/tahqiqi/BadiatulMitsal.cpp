#include "methods/tahqiqi/BadiatulMitsal.h"

#include <cmath>

#include "core/FungsHisab.h"
#include "core/Sesi.h"
#include "core/Koneksi.h"
#include "methods/tahqiqi/HilalTahqiqi.h"
#include "methods/tahqiqi/RumusTahqiqi.h"

namespace falak {

namespace {

const DataKitabTahqiqi kBadiatulMitsal = {
    "BM",
    ModusBuruj,
    {"000 00 00 00 05 00 00 00 00 1", "03 25 05 32 00 1", "01 06 58 38 00 1", "04 09 55 04 00 1",
     "03 26 16 05 00 1", "07 23 01 37 00 1"},
    {"000 00 00 01 05 00 00 00 00 1", "01 08 24 58 00 1", "01 07 53 11 00 1", "01 08 16 30 00 1",
     "09 23 53 46 00 1", "06 22 57 56 00 1"},
    {"000 00 00 01 05 00 00 00 00 0", "01 08 24 58 00 0", "01 07 53 11 00 0", "01 08 16 30 00 0",
     "09 23 53 46 00 0", "06 22 57 56 00 0"},
    {"Jombang", 7, 33, 0, 112, 13, 1},
    32,
};

constexpr double kMail = 23.45;             // the obliquity, read from its text
constexpr double kMailQomar = 5 + 2 / 60.0;  // the moon's greatest latitude

}  // namespace

BadiatulMitsal::BadiatulMitsal(Konteks k) : KerangkaTahqiqi(k, kBadiatulMitsal) {}

Nilai BadiatulMitsal::sabaq() { return Nilai("00 00 30 28 00 1"); }

LembarRumus BadiatulMitsal::Rumus() { return RumusTahqiqi(*this, 31, k_.koneksi.TQQRumuz, {kMail, kMailQomar, {}}); }

void BadiatulMitsal::HitungHilal() {
    using namespace hilal;
    std::vector<double>& h = Hasil;
    const double phi = lintang();
    h[0] = std::fmod(derajat(Syams(2)) + 360.0, 360.0);
    h[1] = asn(sn(kMail) * sn(h[0]));
    h[2] = phi;
    h[3] = asn(tn(phi) * tn(h[1]));
    h[4] = h[3] + 90;
    h[5] = std::fabs(asn(cs(h[0]) / cs(h[1])));
    h[6] = matholi(h[0], h[5]);
    h[7] = h[6] + h[4];
    h[8] = std::fmod(derajat(Qomar(11)) + 360.0, 360.0);
    h[9] = atn(tn(kMail) * sn(h[8]));
    h[10] = std::fmod(derajat(Tdl[15 - 8](1)) + 360.0, 360.0);
    h[11] = asn(sn(kMailQomar) * sn(h[10]));
    h[12] = h[11] + h[9];
    h[13] = asn(sn(h[12]) * cs(kMail) / cs(h[9]));
    h[14] = asn(tn(phi) * tn(h[13]));
    h[15] = h[14] + 90;
    h[16] = asn(sn(kMail) * sn(h[8]));
    h[17] = std::fabs(asn(cs(h[8]) / cs(h[16])));
    h[18] = matholi(h[8], h[17]);
    h[19] = h[18] + h[15];
    h[20] = h[7];
    h[21] = selisihBusur(h[19], h[20]);
    h[22] = h[21] / 15;
    h[23] = h[15] - h[21];
    h[24] = asn(sn(phi) * sn(h[13])) + asn(cs(phi) * cs(h[13]) * cs(h[23]));
    h[25] = asn(sn(h[1]) / cs(phi));
    h[26] = asn(sn(h[13]) / cs(phi));
    h[27] = h[25] - h[26];
    // The hilal's azimuth from the west point: north or south by the declination and the place.
    const double p = asn(sn(phi) / sn(h[13]));
    const bool selatan = (h[13] >= 0 || h[13] >= phi || h[24] >= p) ? h[13] < 0 : ValAngka(k_.sesi.tempat.tandaLintang) == 0;
    h[28] = std::fabs(acs(sn(h[23]) * cs(h[13]) / cs(h[24]))) * (selatan ? -1 : 1);
    h[29] = h[28] + h[25];
    h[30] = h[25] - h[28];
    h[31] = std::sqrt(h[24] * h[24] + h[30] * h[30]) / 15;
}

}  // namespace falak
