#include "run/Registri.h"

#include "eclipse/GerhanaFaidlulKarim.h"
#include "eclipse/GerhanaFathurRouf.h"
#include "eclipse/GerhanaIttifaqDzatilBain.h"
#include "eclipse/GerhanaTadzkirotulIkhwan.h"
#include "eclipse/lunar/KhusufSullam.h"
#include "eclipse/lunar/KhusufSyamsu.h"
#include "eclipse/solar/KusufSullam.h"
#include "eclipse/solar/KusufSyamsu.h"
#include "methods/tahqiqi/Ephemeris.h"
#include "methods/taqribi/FaidlulKarim.h"
#include "methods/taqribi/FathurRouf.h"
#include "methods/taqribi/IttifaqDzatilBain.h"
#include "methods/taqribi/KhulashohWafiyah.h"
#include "methods/taqribi/SullamNairoin.h"
#include "methods/taqribi/SyamsulHilal.h"
#include "methods/taqribi/TadzkirotulIkhwan.h"
#include "methods/tahqiqi/BadiatulMitsal.h"
#include "methods/tahqiqi/NurulAnwar.h"

namespace falak {

namespace {

template <class M>
std::unique_ptr<Modul> buat(Konteks k) {
    return std::make_unique<M>(k);
}

using enum Garapan;
using enum Aliran;

// A month's tables: the book's own, then what every month run reads besides them (the frames
// of its sheet, the labels of its conclusion, the zone times).
std::vector<std::string_view> tabelBulan(std::initializer_list<std::string_view> sendiri) {
    std::vector<std::string_view> t(sendiri);
    t.insert(t.end(), {"Names", "ListTxt", "TafawutWIB"});
    return t;
}

// The tables of the books of mean motions and equations.
std::vector<std::string_view> tabelTahqiqi() {
    return tabelBulan({"TQQthMab", "TQQSyahru", "TQQYaumTam", "TQQSaah", "TQQDaqoiqAhTaf", "TQQTaadil",
                       "TQQRumuz"});
}

// The tables of a lunar eclipse, and of a solar one, which reads the rising times besides.
std::vector<std::string_view> tabelGerhana() { return tabelBulan({"TRBSyahru", "TRBTaadil"}); }
std::vector<std::string_view> tabelKusuf() { return tabelBulan({"TRBSyahru", "TRBTaadil", "TQQTaadil"}); }

}  // namespace

const std::vector<EntriModul>& DaftarModul() {
    static const std::vector<EntriModul> daftar = {
        {"SN", Ij, 2, "IjSN_", "Sullam al-Nairoin", "Sullam al-Nairoin", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<SullamNairoin>},
        {"FR", Ij, 6, "IjFR_", "Fathu al-Ro'uf al-Mannan", "Fathu al-Ro'uf al-Mannan", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<FathurRouf>},
        {"IDB1", Ij, 11, "IjIDB1_", "Ittifaq Dzatu al-Bain Taqribi", "Ittifaq Dzatu al-Bain (Taqribi)", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<IttifaqDzatilBain>},
        {"SH", Ij, 19, "IjSH_", "Syamsu al-Hilal", "Syamsu al-Hilal", Taqribi,
         tabelBulan({"TRBthMabSH", "TRBSyahruSH", "TRBTaadilSH"}), buat<SyamsulHilal>},
        {"TZ", Ij, 23, "IjTZ_", "Tadzkirotu al-Ikhwan", "Tadzkirotu al-Ikhwan", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<TadzkirotulIkhwan>},
        {"KW1", Ij, 34, "IjKW1_", "Khulashotu al-Wafiyah Taqribi", "Khulashotu al-Wafiyah (Taqribi)", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<KhulashohWafiyah>},
        {"FK", Ij, 27, "IjFK_", "Faidlu al-Karim", "Faidlu al-Karim", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<FaidlulKarim>},
        {"BM", Ij, 31, "IjBM_", "Badi'atu al-Mitsal", "Badi'atu al-Mitsal", Tahqiqi, tabelTahqiqi(),
         buat<BadiatulMitsal>},
        {"MA", Ij, 39, "IjMA_", "Muntaha Nataiji al-Aqwal", "Muntaha Nataiji al-Aqwal", Tahqiqi, {}, nullptr},
        {"IDB2", Ij, 15, "IjIDB2_", "Ittifaq Dzatu al-Bain Tahqiqi", "Ittifaq Dzatu al-Bain (Tahqiqi)", Tahqiqi, {},
         nullptr},
        {"NA", Ij, 41, "IjNA_", "Nuru al-Anwar", "Nuru al-Anwar", Tahqiqi, tabelTahqiqi(), buat<NurulAnwar>},
        {"KW2", Ij, 36, "IjKW2_", "Khulashotu al-Wafiyah Tahqiqi", "Khulashotu al-Wafiyah (Tahqiqi)", Tahqiqi, {},
         nullptr},
        {"IM", Ij, 45, "IjIM_", "Irsyadu al-Murid", "Irsyadu al-Murid", Tahqiqi, {}, nullptr},
        {"ER", Ij, 48, "IjER_", "Ephemeris", "Ephemeris", Tahqiqi, tabelBulan({"ERBumi", "Refraksi", "TQQRumuz"}),
         buat<Ephemeris>},
        {"SN", Hs, 3, "HsSN_", "Sullam al-Nairoin", "Sullam al-Nairoin", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil"}), buat<KhusufSullam>},
        {"FR", Hs, 7, "HsFR_", "Fathu al-Ro'uf al-Mannan", "Fathu al-Ro'uf al-Mannan", Taqribi, tabelGerhana(), buat<KhusufFathurRouf>},
        {"IDB1", Hs, 12, "HsIDB1_", "Ittifaq Dzatu al-Bain Taqribi", "Ittifaq Dzatu al-Bain (Taqribi)", Taqribi,
         tabelGerhana(), buat<KhusufIttifaqDzatilBain>},
        {"SH", Hs, 20, "HsSH_", "Syamsu al-Hilal", "Syamsu al-Hilal", Taqribi,
         tabelBulan({"TRBthMabSH", "TRBSyahruSH", "TRBTaadilSH"}), buat<KhusufSyamsu>},
        {"TZ", Hs, 24, "HsTZ_", "Tadzkirotu al-Ikhwan", "Tadzkirotu al-Ikhwan", Taqribi, tabelGerhana(), buat<KhusufTadzkirotulIkhwan>},
        {"FK", Hs, 28, "HsFK_", "Faidlu al-Karim", "Faidlu al-Karim", Taqribi, tabelGerhana(), buat<KhusufFaidlulKarim>},
        {"IDB2", Hs, 16, "HsIDB2_", "Ittifaq Dzatu al-Bain Tahqiqi", "Ittifaq Dzatu al-Bain (Tahqiqi)", Tahqiqi, {},
         nullptr},
        {"KW2", Hs, 37, "HsKW2_", "Khulashotu al-Wafiyah Tahqiqi", "Khulashotu al-Wafiyah (Tahqiqi)", Tahqiqi, {},
         nullptr},
        {"NA", Hs, 42, "HsNA_", "Nuru al-Anwar", "Nuru al-Anwar", Tahqiqi, {}, nullptr},
        {"IM", Hs, 46, "HsIM_", "Irsyadu al-Murid", "Irsyadu al-Murid", Tahqiqi, {}, nullptr},
        {"ER", Hs, 49, "HsER_", "Ephemeris", "Ephemeris", Tahqiqi, {}, nullptr},
        {"SN", Kf, 4, "KfSN_", "Sullam al-Nairoin", "Sullam al-Nairoin", Taqribi,
         tabelBulan({"TRBSyahru", "TRBTaadil", "TQQTaadil"}), buat<KusufSullam>},
        {"FR", Kf, 8, "KfFR_", "Fathu al-Ro'uf al-Mannan", "Fathu al-Ro'uf al-Mannan", Taqribi, tabelKusuf(), buat<KusufFathurRouf>},
        {"IDB1", Kf, 13, "KfIDB1_", "Ittifaq Dzatu al-Bain Taqribi", "Ittifaq Dzatu al-Bain (Taqribi)", Taqribi,
         tabelKusuf(), buat<KusufIttifaqDzatilBain>},
        {"SH", Kf, 21, "KfSH_", "Syamsu al-Hilal", "Syamsu al-Hilal", Taqribi,
         tabelBulan({"TRBthMabSH", "TRBSyahruSH", "TRBTaadilSH"}), buat<KusufSyamsu>},
        {"TZ", Kf, 25, "KfTZ_", "Tadzkirotu al-Ikhwan", "Tadzkirotu al-Ikhwan", Taqribi, tabelKusuf(), buat<KusufTadzkirotulIkhwan>},
        {"FK", Kf, 29, "KfFK_", "Faidlu al-Karim", "Faidlu al-Karim", Taqribi, tabelKusuf(), buat<KusufFaidlulKarim>},
        {"IDB2", Kf, 17, "KfIDB2_", "Ittifaq Dzatu al-Bain Tahqiqi", "Ittifaq Dzatu al-Bain (Tahqiqi)", Tahqiqi, {},
         nullptr},
        {"NA", Kf, 43, "KfNA_", "Nuru al-Anwar", "Nuru al-Anwar", Tahqiqi, {}, nullptr},
    };
    return daftar;
}

const EntriModul* CariModul(std::string_view kode, Garapan garapan) {
    for (const EntriModul& m : DaftarModul())
        if (m.kode == kode && m.garapan == garapan) return &m;
    return nullptr;
}

const EntriModul* ModulDariKunci(std::string_view kunci) {
    const size_t garis = kunci.find('_');
    if (garis == std::string_view::npos) return nullptr;
    std::string_view awalan = kunci.substr(0, garis + 1);
    // The table of a solar eclipse is a second sheet of the same run.
    if (awalan.starts_with("TdlKf")) awalan.remove_prefix(3);
    for (const EntriModul& m : DaftarModul())
        if (m.awalan == awalan) return &m;
    return nullptr;
}

std::string_view NamaKelompok(Garapan garapan, Aliran aliran) {
    switch (garapan) {
        case Hs: return "Gerhana Bulan";
        case Kf: return "Gerhana Matahari";
        case Ij: break;
    }
    return aliran == Taqribi ? "Hisab Taqribi" : "Hisab Tahqiqi";
}

}  // namespace falak
