#include "methods/tahqiqi/KesimpulanTahqiqi.h"

#include <cmath>
#include <cstdio>

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"
#include "methods/tahqiqi/Ephemeris.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

namespace {

// Hours as "hh:mm:ss" of the day, seconds truncated.
std::string teksJam(double jam) {
    const int64_t d = static_cast<int64_t>(std::floor(jam * 3600));
    const int64_t hari = 86400;
    const int64_t x = ((d % hari) + hari) % hari;
    char s[16];
    std::snprintf(s, sizeof s, "%02d:%02d:%02d", static_cast<int>(x / 3600), static_cast<int>(x / 60 % 60),
                  static_cast<int>(x % 60));
    return s;
}

// "hh.mm" rounded to the minute.
std::string teksMenit(double jam) {
    return Waktu::baca(teksJam(jam)).value_or(Waktu()).tambah(30).format("hh.mm");
}

}  // namespace

Nilai AwalBulanTahqiqi(const BahanTahqiqi& b) {
    const bool terlihat = b.jamIjtima < b.ghurub && b.tinggi >= 2;
    return AwalBulanTaqribi(b.hariIjtima, terlihat ? 2.0 : 0.0);
}

void TulisKesimpulanTahqiqi(Konteks& k, const BahanTahqiqi& b, std::vector<std::string>& baris, Ringkasan& ringkasan) {
    ClsKesimpulan& ks = k.kesimpulan;
    const Sesi& s = k.sesi;
    const Nilai awal = AwalBulanTahqiqi(b);
    baris.assign(13, std::string());
    baris[0] = b.judul;
    baris[1] = s.labelKe(0) + ks.FullM(awal, "17", true);
    baris[2] = s.labelKe(1) + ks.FullM(b.hariIjtima, std::to_string(static_cast<int>(std::floor(b.jamIjtima))), false);
    const std::string jam = ks.JamIjtimaTQQ(teksJam(b.jamIjtimaWis), teksJam(b.jamIjtima));
    baris[3] = s.labelKe(2) + jam;
    baris[4] = s.labelKe(3) + ClsKesimpulan::AzimutSQ(NilaiER(b.azimutSyams));
    baris[5] = s.labelKe(6) + ClsKesimpulan::AzimutSQ(NilaiER(b.azimutHilal));
    baris[6] = s.labelKe(5) + ClsKesimpulan::Kemiringan(NilaiER(b.azimutHilal), NilaiER(b.azimutSyams),
                                                         NilaiER(std::abs(b.azimutHilal - b.azimutSyams)),
                                                         NilaiER(b.tinggi));
    baris[7] = s.labelKe(7) + ClsKesimpulan::IrtifaHilal(NilaiER(b.tinggi), true);
    baris[8] = s.labelKe(8) + ClsKesimpulan::MuktsulHilal(NilaiER(b.mukts));
    baris[9] = s.labelKe(9) + ClsKesimpulan::NurHilal(NilaiER(b.nur));
    baris[10] = s.labelKe(12) + teksMenit(b.ghurubWis) + " WIS " + teksMenit(b.ghurub) + " " + ks.kataZona().substr(1);
    const Tempat& t = s.tempat;
    const std::string tempat = ClsKesimpulan::baris(t.nama, t.lintangDerajat, t.lintangMenit,
                                                    static_cast<int>(ValAngka(t.tandaLintang)), t.bujurDerajat,
                                                    t.bujurMenit, static_cast<int>(ValAngka(t.tandaBujur)));
    // A precise book reckons at the place itself: the place is its markaz.
    baris[11] = s.labelKe(14) + tempat;
    baris[12] = s.labelKe(15) + tempat;
    ringkasan = {b.hariIjtima, false, b.hariIjtima, jam, NilaiER(b.tinggi), awal};
}

}  // namespace falak
