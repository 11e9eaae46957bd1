#include "methods/LangkahTaqribi.h"

#include <string>

#include "core/FungsHisab.h"
#include "core/Manzil.h"
#include "methods/Taadil.h"

namespace falak {

namespace {
Nilai busur(int64_t d, int64_t m) { return DlorbuSittin(0, d, m, 0, 0, 1, ModusBuruj); }
}  // namespace

void HitungManzil(std::span<Nilai, 6> manzil, const Nilai& matahari, Tabel& trbTaadil) {
    manzil[0] = ClsTaadil::Madkhul(matahari);
    const int a = AmbilTingkat(manzil[0], MedanBuruj), b = AmbilTingkat(manzil[0], MedanDarojah);
    manzil[1] = Nilai(AmbilManzil(trbTaadil, 1, a, b));
    manzil[2] = Nilai(CetakAngka(ValAngka(manzil[1].teks()) + 1));
    isi(manzil[1], DlorbuSittin("0", manzil[1].teks(), "0", "0", "0", 1, ModusBuruj));
    const std::string berikut = ValAngka(manzil[2].teks()) > 13 ? "1" : manzil[2].teks();
    isi(manzil[2], DlorbuSittin("0", berikut, "0", "0", "0", 1, ModusBuruj));
    manzil[3] = DlorbuSittin(0, 0, AmbilTingkat(manzil[0], MedanDaqiqoh), AmbilTingkat(manzil[0], MedanTsaniyah),
                             AmbilTingkat(manzil[0], MedanTsalitsah), 1, ModusBuruj);
    manzil[4] = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, manzil[1], manzil[3]);
    manzil[5] = Nilai(AmbilManzil(trbTaadil, 2, a, b));
}

void HitungSaah(std::span<Nilai, 5> saah, const Nilai& koreksiQomar, const Nilai& daqoiq, const Nilai& hishshohSaah) {
    saah[0] = koreksiQomar;
    saah[1] = daqoiq;
    saah[2] = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, saah[0], saah[1]);
    saah[3] = hishshohSaah;
    isi(saah[4], KaliNilai(JenisBusur, TandaIkut, ModusBuruj, saah[2], saah[3]));
}

Nilai SelisihBujur(const Tempat& tempat, int bujurDerajat, int bujurMenit, bool bertanggal) {
    const Nilai p = DlorbuSittin(0, tempat.bujurDerajat, tempat.bujurMenit, 0, 0, AmbilTanda(Nilai(tempat.tandaBujur)),
                                 ModusDarojah);
    const Nilai j = DlorbuSittin(0, bujurDerajat, bujurMenit, 0, 0, 1, ModusDarojah);
    Nilai d = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, p, j);
    isi(d, BagiNilai(JenisBusur, TandaIkut, ModusBuruj, d, busur(15, 0)));
    return CUmumToAlamah(d, bertanggal);
}

Nilai IjtimaDiTempat(int jenis, const Nilai& diMarkaz, const Nilai& selisihBujur) {
    // A correction that walks back across the start of the week wraps the fields round it, so
    // the sum is a moment of the week whatever its flag says. The signed sum takes its flag from
    // a magnitude that only compares alamah values, which a correction of some minutes can
    // outweigh; read as a negative time, "24 hours less the ijtima'" would become 24 hours plus.
    return TambahNilai(jenis, TandaPlus, ModusBuruj, diMarkaz, selisihBujur);
}

void TinggiHilal(std::span<Nilai, 7> hilal, std::span<Nilai, 2> nur, const Nilai& cahayaLintang) {
    hilal[3] = busur(0, 30);
    isi(hilal[4], KaliNilai(JenisBusur, TandaIkut, ModusBuruj, hilal[2], hilal[3]));
    hilal[5] = busur(0, 4);
    isi(hilal[6], KaliNilai(JenisBusur, TandaIkut, ModusBuruj, hilal[4], hilal[5]));
    nur[0] = cahayaLintang;
    nur[1] = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, nur[0], hilal[6]);
}

void HilalMaghribTetap(std::span<Nilai, 7> hilal, std::span<Nilai, 2> nur, const Nilai& ijtima,
                       const Nilai& cahayaLintang) {
    hilal[0] = Nilai("00 24 00 00 00 1");
    hilal[1] = CAlamahToUmum(ijtima);
    hilal[2] = KurangNilai(JenisBusur, TandaPlus, ModusBuruj, hilal[0], hilal[1]);
    TinggiHilal(hilal, nur, cahayaLintang);
}

}  // namespace falak
