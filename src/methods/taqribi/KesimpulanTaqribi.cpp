#include "methods/taqribi/KesimpulanTaqribi.h"

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"

namespace falak {

Nilai AwalBulanTaqribi(const Nilai& hariIjtima, double tinggi) {
    const std::string d = tinggi < 2 ? "2" : "1";
    const Nilai tambahHari = AlamahTarkh(3, {"0", "0", d, d, d, "0", "0", "0", "0"}, 1).value_or(Nilai());
    return TambahNilai(2, 3, 1, hariIjtima, tambahHari);
}

void TulisKesimpulanTaqribi(Konteks& k, const BahanKesimpulan& b, std::vector<std::string>& baris,
                            Ringkasan& ringkasan) {
    ClsKesimpulan& ks = k.kesimpulan;
    const Sesi& s = k.sesi;
    const int tahun = AmbilTingkat(s.tanggalPilihan, 6);
    const int bulan = AmbilTingkat(s.tanggalPilihan, 7);
    const std::string jamIjtima = std::to_string(AmbilTingkat(b.ijtima, 11) + 18);

    // The civil date of the reckoned weekday at the end of the chosen month.
    const Nilai hariIjtima = ks.CariTHM(tahun, bulan, AmbilTingkat(b.ijtima, 10)).value_or(Nilai());
    const Nilai awalBulan = AwalBulanTaqribi(hariIjtima, b.tinggi);

    baris.assign(13, std::string());
    baris[0] = s.namaKitab;
    baris[1] = s.labelKe(0) + ks.FullM(awalBulan, "17", true);
    baris[2] = s.labelKe(1) + ks.FullM(hariIjtima, jamIjtima, false);
    const std::string jam = ks.JamIjtima(jamIjtima, std::to_string(AmbilTingkat(b.ijtima, 12)), hariIjtima);
    baris[3] = s.labelKe(2) + jam;
    baris[4] = s.labelKe(3) + ks.SaatuMaghribS(b.matahari);
    baris[5] = s.labelKe(6) + ks.ArahHilal(b.matahari);
    baris[6] = s.labelKe(5) + ks.KeadaanHilal(b.matahari);
    baris[7] = s.labelKe(7) + ks.IrtifaHilal(b.tinggiNilai, true);
    baris[8] = s.labelKe(8) + ks.MuktsulHilal(b.mukts);
    baris[9] = s.labelKe(9) + ks.NurHilal(b.nur);
    std::string gurub, terbit;
    const Nilai& hariGurub = b.gurubAwalBulan ? awalBulan : hariIjtima;
    ks.WaktuGurub(Nilai(BurujMatahari(hariGurub).value_or("")), gurub, terbit);
    baris[10] = s.labelKe(12) + gurub;
    const BarisMarkaz& m = b.markaz;
    baris[11] = s.labelKe(14) + ClsKesimpulan::baris(m.nama, m.lintangDerajat, m.lintangMenit, m.tandaLintang,
                                                      m.bujurDerajat, m.bujurMenit, m.tandaBujur);
    const Tempat& t = s.tempat;
    baris[12] = s.labelKe(15) + ClsKesimpulan::baris(t.nama, t.lintangDerajat, t.lintangMenit,
                                                      static_cast<int>(ValAngka(t.tandaLintang)), t.bujurDerajat,
                                                      t.bujurMenit, static_cast<int>(ValAngka(t.tandaBujur)));
    ringkasan = {hariIjtima, jam, b.tinggiNilai, awalBulan};
}

}  // namespace falak
