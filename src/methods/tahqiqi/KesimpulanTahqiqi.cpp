#include "methods/tahqiqi/KesimpulanTahqiqi.h"

#include <cmath>

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"

namespace falak {

Nilai NilaiDariDesimal(double x) {
    return DesimalKeNilai(JenisBusur, TandaIkut, ModusDarojah, static_cast<float>(std::fabs(x)), x < 0 ? 0 : 1)
        .value_or(Nilai("00 00 00 00 00 1"));
}

void TulisKesimpulanTahqiqi(Konteks& k, const BahanKesimpulanTahqiqi& b, std::vector<std::string>& baris,
                            Ringkasan& ringkasan) {
    ClsKesimpulan& ks = k.kesimpulan;
    const Sesi& s = k.sesi;
    const Nilai& hari = b.hari.ijtima;  // the civil day of the ijtima' in local apparent time
    const Waktu zona = ks.keZona(AmbilTingkat(hari, MedanBulan), AmbilTingkat(hari, MedanTanggal), b.jamIjtima);
    // The night belongs to the day that follows it: an ijtima' in the evening is named by the
    // next day, one in the hour after midnight by its own, both as its "Malam".
    const int jamJam = b.jamIjtima.jam();
    const bool malam = jamJam >= 18 || jamJam == 0;
    const Nilai hariNama = jamJam >= 18 ? ClsKesimpulan::GeserHari(hari, 1) : hari;
    const int64_t geser = zona.detik() < 0 ? -1 : zona.detik() / 86400;
    const Nilai hariZona = ClsKesimpulan::GeserHari(hari, static_cast<int>(geser));
    const std::string jam = ks.JamIjtimaTQQ(b.jamIjtima.format("hh:mm:ss"), zona.format("hh:mm:ss"));
    const Nilai tinggi = NilaiDariDesimal(b.tinggi);
    ringkasan = {hariNama, malam, hariZona, jam, tinggi, b.hari.awal};
    baris.clear();
    if (!b.kata) return;

    baris.assign(13, std::string());
    baris[0] = b.judul;
    baris[1] = s.labelKe(0) + ks.FullM(b.hari.awal, "17", true);
    baris[2] = s.labelKe(1) + ks.FullM(hariNama, malam ? "18" : "17", false);
    baris[3] = s.labelKe(2) + jam;
    baris[4] = s.labelKe(3) + ks.SaatuMaghribS(b.matahari);
    baris[5] = s.labelKe(6) + ks.ArahHilal(b.matahari);
    baris[6] = s.labelKe(5) + ks.KeadaanHilal(b.matahari);
    baris[7] = s.labelKe(7) + ks.IrtifaHilal(tinggi, true);
    baris[8] = s.labelKe(8) + ks.MuktsulHilal(NilaiDariDesimal(b.mukts));
    baris[9] = s.labelKe(9) + ks.NurHilal(NilaiDariDesimal(b.nur));
    std::string gurub, terbit;
    ks.WaktuGurub(Nilai(BurujMatahari(hari).value_or("")), gurub, terbit);
    baris[10] = s.labelKe(12) + gurub;
    baris[11] = s.labelKe(14) + ClsKesimpulan::barisMarkaz(b.markaz);
    baris[12] = s.labelKe(15) + ClsKesimpulan::barisTempat(s.tempat);
}

}  // namespace falak
