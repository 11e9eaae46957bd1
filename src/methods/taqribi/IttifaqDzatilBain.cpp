#include "methods/taqribi/IttifaqDzatilBain.h"

#include <cmath>

#include "core/Angka.h"
#include "core/FlexGrid.h"
#include "core/FungsHisab.h"
#include "core/Sesi.h"
#include "methods/LangkahTaqribi.h"
#include "methods/Taadil.h"
#include "methods/taqribi/KesimpulanTaqribi.h"

namespace falak {

namespace {

const DataKitabFR kIttifaqDzatilBain = {
    "IDB1",
    5,
    {2, 3, 4, 5},
    {"622 07 15 00 05 03 12 00 00 1", "11 18 46 00 00 1", "03 27 22 00 00 1", "03 20 12 00 00 1",
     "01 03 59 00 00 1"},
    {"029 01 00 01 05 00 15 00 00 1", "08 01 24 00 00 1", "01 08 24 00 00 1", "09 23 57 00 00 1",
     "01 08 00 00 00 1"},
    {"029 01 00 01 05 00 15 00 00 0", "08 01 24 00 00 0", "01 08 24 00 00 0", "09 23 57 00 00 0",
     "01 08 00 00 00 0"},
    {30, 29, 0, 0, 30},
    112,
    46,
    {"Surabaya", 7, 15, 0, 112, 45, 1},
    4,
    7,
    false,
    true,
    {3, false},
};

const Nilai kNol("00 00 00 00 00 1");

}  // namespace

IttifaqDzatilBain::IttifaqDzatilBain(Konteks k) : IttifaqDzatilBain(k, kIttifaqDzatilBain) {}

IttifaqDzatilBain::IttifaqDzatilBain(Konteks k, const DataKitabFR& data) : KerangkaTaqribi(k, data) {}

std::optional<Nilai> AlamahSyahrMasehi(const Tabel& syahru, std::string_view akhiran) {
    auto sel = [&](std::string_view kolom) { return BacaTeks(syahru, std::string(kolom) + std::string(akhiran)); };
    const auto alamah = AlamahTarkh(-1, {sel("mshTh"), sel("mshBln"), sel("mshTgl"), sel("Pasaran"), sel("alHari"),
                                         sel("alSah"), sel("alQoh"), "0", "0"},
                                    1);
    if (!alamah) return std::nullopt;
    // The date fields are days counted in months of 30, kept as the table gives them: a month
    // row of no days must not be finished into a month before month 0, and the full moon half
    // a lunation before the year's first ijtima' counts its fifteen days back.
    MedanAlamah m{};
    for (int f = 0; f < 9; ++f) m[static_cast<size_t>(f)] = AmbilTingkat(*alamah, 6 + f);
    m[2] = std::llround(ValAngka(sel("mshTgl")));
    return Nilai::alamah(m, 1);
}

std::optional<Nilai> IttifaqDzatilBain::alamahSyahr(const Tabel& syahru, std::string_view akhiran) const {
    return AlamahSyahrMasehi(syahru, akhiran);
}

void IttifaqDzatilBain::IjtimaFR() {
    hitungSaah();
    const Nilai saah = CUmumToAlamah(Saah(5), true);
    Ijtima(3) = KurangNilai(JenisAlamahHijri, TandaIkutUrut, ModusBuruj, Jumlah(1), saah);

    const auto t = k_.taadil.Taadil(Majmu(1), Mabsut(1), Syahr(1), Saah(5), Dawr, SisaTahun, Nilai(data().mabda[0]),
                                    Nilai(data().tambah[0]));
    TanggalMasehi = t;

    Ijtima(1) = Jumlah(1);
    // The hours between the luminaries under the date of the mean ijtima'.
    MedanAlamah m{};
    for (int f = 0; f < 5; ++f) m[static_cast<size_t>(f)] = AmbilTingkat(t[0], 6 + f);
    for (int f = 5; f < 9; ++f) m[static_cast<size_t>(f)] = AmbilTingkat(saah, 6 + f);
    Ijtima(2) = AlamahTarkh(-1, m, AmbilTanda(saah));
    Ijtima(3) = t[1];
    Ijtima(4) = selisihBujur(bujurBertanggal());
    Ijtima(5) = IjtimaDiTempat(JenisAlamahMasehi, Ijtima(3), Ijtima(4));
}

void IttifaqDzatilBain::HilalFR() {
    KerangkaTaqribi::HilalFR();
    WaktuIDB1();
}

void IttifaqDzatilBain::WaktuIDB1() {
    const Tempat& t = k_.sesi.tempat;
    // sin δ = sin λ sin 23° 52', and then the same with the latitude.
    auto sinKali = [](const Nilai& a, const Nilai& b) {
        const Nilai sa = TrigNilai(1, ModusBuruj, a, false).value_or(kNol);
        const Nilai sb = TrigNilai(1, ModusBuruj, b, false).value_or(kNol);
        return HitungDeret(TandaIkut, ModusBuruj, 1, sa, 3, sb, 0, kNol, 0, kNol, 0, kNol);
    };
    Waktu(1) = TambahNilai(JenisBusur, TandaIkut, ModusLingkaran, tempatMatahari(), kNol);
    isi(Waktu(2), sinKali(Waktu(1), Nilai("00 23 52 00 00 1")));
    Waktu(3) = DlorbuSittin(0, t.lintangDerajat, t.lintangMenit, 0, 0, AmbilTanda(Nilai(t.tandaLintang)), ModusBuruj);
    isi(Waktu(4), sinKali(Waktu(2), Waktu(3)));
    isi(Waktu(5), KaliNilai(JenisBusur, TandaIkut, ModusBuruj, Waktu(4), Nilai("00 00 04 00 00 1")));
    const Nilai& I = Ijtima(5);
    Waktu(6) = CAlamahToUmum(AlamahTarkh(
        JenisAlamah, MedanAlamah{0, 0, 0, 0, 0, AmbilTingkat(I, MedanJam), AmbilTingkat(I, MedanMenit), 0, 0}, 1));
    Waktu(7) = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, Waktu(5), Waktu(6));

    auto tanda = [](int flag) { return flag == 0 ? std::string("-") : std::string(); };
    Tanda = {tanda(AmbilTanda(Waktu(2))), t.tandaLintang == "0" ? "-" : "", tanda(AmbilTanda(Waktu(4))),
             tanda(AmbilTanda(Waktu(5))), tanda(AmbilTanda(Waktu(6))), tanda(AmbilTanda(Waktu(7)))};
}

Nilai IttifaqDzatilBain::hariIjtima() {
    if (TanggalMasehi[1].kosongTeks()) return Nilai();
    return TanggalAlamah(Ijtima(5));
}

void IttifaqDzatilBain::tulisSelTambahan(ClsFlexGrid& g) {
    for (size_t k = 1; k <= 7; ++k) g.FlexData(Waktu(k), static_cast<int>(k) + 31, 19, {1, 2, 3, 4, 5});
    // Each sign stands beside its cell: cells 2 to 7, the latitude being cell 3.
    for (size_t i = 0; i < Tanda.size(); ++i) g.FlexTeks(Tanda[i], static_cast<int>(i) + 33, 21);
}

void IttifaqDzatilBain::catatTambahan(std::vector<BarisTercatat>& baris) const {
    baris.push_back(catat("Waktu", Waktu));
    BarisTercatat t{"Tanda", {}};
    for (const std::string& s : Tanda) t.sel.push_back(s);
    baris.push_back(std::move(t));
    baris.push_back(BarisTercatat{"TanggalMasehi", {TanggalMasehi[0].teks(), TanggalMasehi[1].teks()}});
}

}  // namespace falak
