#include "methods/taqribi/KesimpulanTaqribi.h"

#include <cstdio>

#include "conclusions/Kesimpulan.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"

namespace falak {

Nilai HariIjtimaTaqribi(Konteks& k, const Nilai& ijtima) {
    const Sesi& s = k.sesi;
    return k.kesimpulan
        .CariTHM(AmbilTingkat(s.tanggalPilihan, MedanTahun), AmbilTingkat(s.tanggalPilihan, MedanBulan),
                 AmbilTingkat(ijtima, MedanHari))
        .value_or(Nilai());
}

Nilai TanggalAlamah(const Nilai& alamah) {
    if (AmbilTingkat(alamah, MedanTahun) == 0) return Nilai();
    char bulan[8];
    std::snprintf(bulan, sizeof bulan, "%02d", AmbilTingkat(alamah, MedanBulan));
    const int pasaran = AmbilTingkat(alamah, MedanPasaran) == 0 ? 5 : AmbilTingkat(alamah, MedanPasaran);
    const int hari = AmbilTingkat(alamah, MedanHari) == 0 ? 7 : AmbilTingkat(alamah, MedanHari);
    return Nilai(std::to_string(AmbilTingkat(alamah, MedanTahun)) + " " + bulan + " " +
                 std::to_string(AmbilTingkat(alamah, MedanTanggal)) + " " + std::to_string(pasaran) + " " +
                 std::to_string(hari) + " 00 00 00 00 1");
}

Nilai AwalBulanTaqribi(const Nilai& hariIjtima, double tinggi) {
    const std::string d = tinggi < 2 ? "2" : "1";
    const Nilai tambahHari = AlamahTarkh(3, {"0", "0", d, d, d, "0", "0", "0", "0"}, 1).value_or(Nilai());
    return TambahNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, hariIjtima, tambahHari);
}

std::optional<Nilai> AwalBulanJam(const Nilai& hariIjtima, double tinggi) {
    if (hariIjtima.kosongTeks()) return std::nullopt;
    const char* jam = tinggi < 2 ? "49" : "25";
    return TambahNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, hariIjtima,
                       Nilai(std::string("00 00 00 00 00 ") + jam + " 00 00 00 1"));
}

void TulisKesimpulanTaqribi(Konteks& k, const BahanKesimpulan& b, std::vector<std::string>& baris,
                            Ringkasan& ringkasan) {
    ClsKesimpulan& ks = k.kesimpulan;
    const Sesi& s = k.sesi;
    const std::string jamIjtima = std::to_string(AmbilTingkat(b.ijtima, MedanJam) + 18);
    const int jamJam = (AmbilTingkat(b.ijtima, MedanJam) + 18) % 24;
    // The night belongs to the day that follows it: the hour of midnight too is still named "Malam".
    const bool malam = b.malam.value_or(jamJam >= 18 || jamJam == 0);
    // An evening on the eve of a day is the evening of the civil day before it.
    const Nilai hariSipil = malam && jamJam >= 12 ? ClsKesimpulan::GeserHari(b.hariIjtima, -1) : b.hariIjtima;

    const std::string menit = std::to_string(AmbilTingkat(b.ijtima, MedanMenit));
    const std::string jam = ks.JamIjtima(jamIjtima, menit, hariSipil);
    // The zone's clock may pass midnight either way from the local apparent one.
    const Waktu zona = ks.keZona(AmbilTingkat(hariSipil, MedanBulan), AmbilTingkat(hariSipil, MedanTanggal),
                                 Waktu::dari(jamJam, ValAngka(menit), 0));
    const int64_t geser = zona.detik() < 0 ? -1 : zona.detik() / 86400;
    const Nilai tanggalZona = hariSipil.kosongTeks() ? hariSipil : ClsKesimpulan::GeserHari(hariSipil, static_cast<int>(geser));
    ringkasan = {b.hariIjtima, malam, tanggalZona, jam, b.tinggi, b.awalBulan};
    baris.clear();
    if (!b.kata) return;

    baris.assign(13, std::string());
    baris[0] = b.judul;
    baris[1] = s.labelKe(0) + ks.FullM(b.awalBulan, "17", true);
    baris[2] = s.labelKe(1) + ks.FullM(b.hariIjtima, malam ? "18" : "17", false);
    baris[3] = s.labelKe(2) + jam;
    baris[4] = s.labelKe(3) + ks.SaatuMaghribS(b.matahari);
    baris[5] = s.labelKe(6) + ks.ArahHilal(b.matahari);
    baris[6] = s.labelKe(5) + ks.KeadaanHilal(b.matahari);
    baris[7] = s.labelKe(7) + ks.IrtifaHilal(b.tinggi, true);
    baris[8] = s.labelKe(8) + ks.MuktsulHilal(b.mukts);
    baris[9] = s.labelKe(9) + ks.NurHilal(b.nur);
    std::string gurub, terbit;
    ks.WaktuGurub(Nilai(BurujMatahari(b.gurubHariIjtima ? b.hariIjtima : b.awalBulan).value_or("")), gurub, terbit);
    baris[10] = s.labelKe(12) + gurub;
    baris[11] = s.labelKe(14) + ClsKesimpulan::barisMarkaz(b.markaz);
    baris[12] = s.labelKe(15) + ClsKesimpulan::barisTempat(s.tempat);
}

}  // namespace falak
