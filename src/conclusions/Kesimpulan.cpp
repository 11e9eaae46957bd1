#include "conclusions/Kesimpulan.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/Arah.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"
#include "core/Maghrib.h"

namespace falak {

namespace {

// The first of the seven days in which a reckoned weekday is sought.
constexpr int32_t kHariCariAwal = 27;

int64_t bagiBawah(int64_t a, int64_t b) { return a / b - ((a % b != 0 && (a < 0) != (b < 0)) ? 1 : 0); }

struct TanggalSipil {
    int64_t tahun;
    int bulan;
    int hari;
};

// The civil date of a day number (day 1 is 1 January of the year 1 on the Julian reckoning):
// Julian up to 4 October 1582, Gregorian from the next day, 15 October, as the reform counts
// them. The weekday and the pasaran run on the day number itself, so the date has to come
// from the same count: a date and a weekday that disagree name two different days.
constexpr int64_t kHariReformasi = 577738;  // 15 October 1582

TanggalSipil tanggalDariHari(int64_t n) {
    int64_t c;
    int64_t abad = 0;
    if (n >= kHariReformasi) {
        const int64_t a = n + 1721423 + 32044;
        abad = bagiBawah(4 * a + 3, 146097);
        c = a - bagiBawah(146097 * abad, 4);
    } else {
        c = n + 1721423 + 32082;
    }
    const int64_t d = bagiBawah(4 * c + 3, 1461);
    const int64_t e = c - bagiBawah(1461 * d, 4);
    const int64_t m = bagiBawah(5 * e + 2, 153);
    const int hari = static_cast<int>(e - bagiBawah(153 * m + 2, 5) + 1);
    const int bulan = static_cast<int>(m + 3 - 12 * bagiBawah(m, 10));
    const int64_t tahun = (n >= kHariReformasi ? 100 * abad : 0) + d - 4800 + bagiBawah(m, 10);
    return {tahun, bulan, hari};
}

// The day number of a civil date, on the same reckonings.
int64_t hariDariTanggal(int64_t tahun, int bulan, int hari) {
    const int64_t a = bagiBawah(14 - bulan, 12);
    const int64_t y = tahun + 4800 - a;
    const int64_t m = bulan + 12 * a - 3;
    const int64_t sebelum = hari + bagiBawah(153 * m + 2, 5) + 365 * y + bagiBawah(y, 4);
    const int64_t gregorius = sebelum - bagiBawah(y, 100) + bagiBawah(y, 400) - 32045 - 1721423;
    return gregorius >= kHariReformasi ? gregorius : sebelum - 32083 - 1721423;
}

// A date value of a day number: the civil date with its pasaran and weekday.
Nilai nilaiTanggal(int64_t n) {
    const TanggalSipil t = tanggalDariHari(n);
    int64_t W = n % 7 - 1, P = n % 5 - 1;
    if (W < 1) W += 7;
    if (P < 1) P += 5;
    std::string teks;
    teks.reserve(32);
    auto tulis = [&teks](int64_t v) {
        char buf[24];
        teks.append(buf, std::to_chars(buf, buf + sizeof buf, v).ptr);
    };
    tulis(t.tahun);
    teks += t.bulan >= 0 && t.bulan < 10 ? " 0" : " ";  // the month in two digits
    tulis(t.bulan);
    for (const int64_t v : {int64_t{t.hari}, P, W}) {
        teks.push_back(' ');
        tulis(v);
    }
    teks += " 00 00 00 00 1";
    return Nilai(teks);
}

std::string gabung(std::initializer_list<std::string_view> bagian) {
    std::string out;
    for (std::string_view b : bagian) {
        if (!out.empty()) out.push_back(' ');
        out.append(b);
    }
    return out;
}

std::string rapikan(std::string s) {
    const size_t a = s.find_first_not_of(' ');
    if (a == std::string::npos) return {};
    const size_t b = s.find_last_not_of(' ');
    return s.substr(a, b - a + 1);
}

// "The value without field 1, as decimal degrees".
double tanpaBuruj(const Nilai& v) { return NilaiDesimal(JenisBusur, NolkanBuruj(v)); }

// The sign of the equation of time by the civil calendar: negative in these stretches.
bool tafawutNegatif(int bulan, int hari) {
    switch (bulan) {
        case 1: case 2: case 3: case 7: case 8: return true;
        case 4: return hari < 15;
        case 6: return hari > 14;
        case 9: return hari < 3;
        case 12: return hari > 26;
        default: return false;
    }
}

// The minutes (first) and seconds of the equation of time by civil month.
constexpr std::array<std::array<const char*, 2>, 12> kKolomTafawut = {{{"Jan1", "Jan2"},
                                                                      {"Peb1", "Peb2"},
                                                                      {"Mar1", "Mar2"},
                                                                      {"Apr1", "Apr2"},
                                                                      {"Mei1", "Mei2"},
                                                                      {"juni1", "juni2"},
                                                                      {"juli1", "juli2"},
                                                                      {"Agus1", "Agus2"},
                                                                      {"Sept1", "Sept2"},
                                                                      {"Okt1", "Okt2"},
                                                                      {"Nop1", "Nop2"},
                                                                      {"Des1", "Des2"}}};

// A time as an arc value of hours (Darojah), minutes, seconds, and back.
Nilai jamKeNilai(const Waktu& w) {
    return DlorbuSittin(0, 0, 0, std::llabs(w.detik()), 0, w.detik() < 0 ? 0 : 1, ModusDarojah);
}

Waktu nilaiKeJam(const Nilai& v) {
    const int64_t detik = int64_t{AmbilTingkat(v, MedanDarojah)} * 3600 + AmbilTingkat(v, MedanDaqiqoh) * 60 +
                          AmbilTingkat(v, MedanTsaniyah);
    return Waktu::dari(0, 0, AmbilTanda(v) == 0 ? -detik : detik);
}

}  // namespace

ClsKesimpulan::ClsKesimpulan(Sesi& sesi) : sesi_(sesi) {
    for (size_t b = 0; b < kKolomTafawut.size(); ++b)
        for (size_t i = 0; i < 2; ++i) kolomTafawut_[b][i] = kKolomTafawut[b][i];
}

std::optional<Nilai> ClsKesimpulan::ConvertToHijri(int32_t tahun, int32_t bulan, int32_t tanggal) {
    const int64_t H = tahun, B = bulan, T = tanggal;
    constexpr int64_t kMaks32 = std::numeric_limits<int32_t>::max(), kMin32 = std::numeric_limits<int32_t>::min();
    if (11 * H > kMaks32 || 11 * H < kMin32 || 354 * H > kMaks32 || 354 * H < kMin32) return std::nullopt;
    if (30 * B > std::numeric_limits<int16_t>::max() || 30 * B < std::numeric_limits<int16_t>::min()) return std::nullopt;

    const double N = std::floor(11.0 * H / 30) + 227015 + 354.0 * H + 30.0 * B - std::floor((B - 1) / 2.0) + T - 384;
    return nilaiTanggal(static_cast<int64_t>(BulatGenap(N)));
}

Nilai ClsKesimpulan::GeserHari(const Nilai& tanggal, int hari) {
    if (tanggal.kosongTeks()) return tanggal;
    return nilaiTanggal(hariDariTanggal(AmbilTingkat(tanggal, MedanTahun), AmbilTingkat(tanggal, MedanBulan),
                                        AmbilTingkat(tanggal, MedanTanggal)) +
                        hari);
}

std::optional<Nilai> ClsKesimpulan::CariTHM(int32_t tahun, int32_t bulan, int32_t hari) {
    auto minggu = [](int w) { return w == 0 ? 7 : w; };
    const int dicari = minggu(hari);
    // The ijtima' that ends a month falls, on the day counted from sunset, between the 28th
    // and the 2nd of the next month of this calendar wherever the books are used: seven days
    // from the 27th hold each weekday once, and the day count runs on past the month's end.
    for (int32_t i = kHariCariAwal; i < kHariCariAwal + 7; ++i) {
        const auto t = ConvertToHijri(tahun, bulan, i);
        if (!t) return std::nullopt;
        if (minggu(AmbilTingkat(*t, MedanHari)) == dicari) return t;
    }
    return Nilai();
}

int16_t ClsKesimpulan::CekHijriHaqiqi(const Nilai& a, const Nilai& b) {
    const auto t =
        ConvertToHijri(AmbilTingkat(b, MedanTahun), AmbilTingkat(b, MedanBulan), AmbilTingkat(b, MedanTanggal));
    return static_cast<int16_t>(AmbilTingkat(a, MedanTanggal) - (t ? AmbilTingkat(*t, MedanTanggal) : 0));
}

std::string ClsKesimpulan::FullM(const Nilai& tanggal, std::string_view jam, bool bulanHijri) const {
    std::string bulan;
    if (bulanHijri) {
        const std::string baris = kBarisBulan[static_cast<size_t>(sesi_.barisBulan % 12)];
        bulan = (baris.size() > 4 ? baris.substr(4) : std::string()) + " :";
    }
    const std::string hari = NamaHari(AmbilTingkat(tanggal, MedanHari), jam, bulanHijri);
    const std::string pasaran = NamaPas(AmbilTingkat(tanggal, MedanPasaran)) + ",";
    const std::string tgl = std::to_string(AmbilTingkat(tanggal, MedanTanggal));
    const std::string tahun = std::to_string(AmbilTingkat(tanggal, MedanTahun)) + " M.";
    return rapikan(gabung({bulan, hari, pasaran, tgl, ManaBln(AmbilTingkat(tanggal, MedanBulan)), tahun}));
}

std::string ClsKesimpulan::NamaHari(int hari, std::string_view jam, bool bendera) {
    double h = ValAngka(jam);
    if (h < 1) h += 24;
    if (h > 24) h -= 24;
    const std::string awalan = (h >= 18 && !bendera) ? " Malam " : "";
    if (hari > 7) hari -= 7;
    static constexpr const char* kNama[8] = {"Sabtu", "Ahad", "Senin", "Selasa", "Rabu", "Kamis", "Jum'at", "Sabtu"};
    return awalan + ((hari >= 0 && hari <= 7) ? kNama[hari] : "");
}

std::string ClsKesimpulan::NamaBulan(int bulan) {
    static constexpr const char* kNama[12] = {"Muharrom", "Sofar", "Robiul awal", "Robiul ahir", "Jumadil awal",
                                              "Jumadil ahir", "Rojab", "Sakban", "Romadon", "Sawal", "Zulqokdah",
                                              "Zulhijjah"};
    return (bulan >= 0 && bulan < 12) ? kNama[bulan] : "";
}

std::string ClsKesimpulan::NamaPas(int pasaran) {
    static constexpr const char* kNama[6] = {"Kliwon", "Legi", "Pahing", "Pon", "Wage", "Kliwon"};
    return (pasaran >= 0 && pasaran <= 5) ? kNama[pasaran] : "";
}

std::string ClsKesimpulan::ManaBln(int bulan) {
    static constexpr const char* kNama[12] = {"Jan", "Feb", "Mar", "Apr", "Mei", "Jun",
                                              "Jul", "Agu", "Sep", "Okt", "Nov", "Des"};
    return (bulan >= 1 && bulan <= 12) ? kNama[bulan - 1] : "";
}

const ClsKesimpulan::SelisihTempat& ClsKesimpulan::selisihTempat() const {
    const Tempat& t = sesi_.tempat;
    const auto& s = selisihTempat_;
    if (s && s->tandaBujur == t.tandaBujur && s->bujurDerajat == t.bujurDerajat && s->bujurMenit == t.bujurMenit &&
        s->zona == t.zona)
        return *s;
    const Nilai bujur =
        DlorbuSittin(0, t.bujurDerajat, t.bujurMenit, 0, 0, AmbilTanda(Nilai(t.tandaBujur)), ModusDarojah);
    const Nilai selisih =
        KurangNilai(JenisBusur, TandaIkut, ModusDarojah, DlorbuSittin(0, 105, 0, 0, 0, 1, ModusDarojah), bujur);
    const Nilai jamBujur =
        BagiNilai(JenisBusur, TandaIkut, ModusDarojah, selisih, DlorbuSittin(0, 15, 0, 0, 0, 1, ModusDarojah))
            .value_or(selisih);
    const Nilai zona = DlorbuSittin(0, std::abs(t.zona - 7), 0, 0, 0, t.zona < 7 ? 0 : 1, ModusDarojah);
    selisihTempat_ = SelisihTempat{t.tandaBujur, t.bujurDerajat, t.bujurMenit, t.zona, jamBujur, zona};
    return *selisihTempat_;
}

Waktu ClsKesimpulan::keZona(int bulan, int hari, Waktu waktu) const {
    if (bulan < 1 || bulan > 12 || !sesi_.koneksi) return waktu;
    Tabel& tabel = sesi_.koneksi->TafawutWIB;
    if (!tabel.cari(kolomTanggal_.di(tabel), hari)) return waktu;
    const auto& kolom = kolomTafawut_[static_cast<size_t>(bulan - 1)];
    const int menit = BacaBulat(tabel, kolom[0].di(tabel));
    const int detik = BacaBulat(tabel, kolom[1].di(tabel));

    const SelisihTempat& tempat = selisihTempat();
    const Nilai tafawut = DlorbuSittin(0, 0, menit, detik, 0, tafawutNegatif(bulan, hari) ? 0 : 1, ModusDarojah);
    Nilai hasil = KurangNilai(JenisBusur, TandaIkut, ModusDarojah, jamKeNilai(waktu), tafawut);
    hasil = TambahNilai(JenisBusur, TandaIkut, ModusDarojah, hasil, tempat.jamBujur, tempat.jamZona);
    return nilaiKeJam(hasil);
}

std::string ClsKesimpulan::kataZona() const {
    switch (sesi_.tempat.zona) {
        case 7: return " WIB";
        case 8: return " WITA";
        case 9: return " WIT";
        default: return " W. Setempat";
    }
}

std::string ClsKesimpulan::JamIjtima(std::string_view jam, std::string_view menit, const Nilai& tanggal) {
    const Waktu t = Waktu::dari(static_cast<int64_t>(ValAngka(jam)), static_cast<int64_t>(ValAngka(menit)), 0);
    const Waktu z = keZona(AmbilTingkat(tanggal, MedanBulan), AmbilTingkat(tanggal, MedanTanggal), t);
    return rapikan(gabung({t.format("hh.mm") + " WIS, ", z.format("hh.mm"), kataZona()}));
}

std::string ClsKesimpulan::JamIjtimaTQQ(std::string_view waktuWis, std::string_view waktuZona) {
    auto baca = [](std::string_view s) { return Waktu::baca(s).value_or(Waktu()).tambah(31).format("hh.mm"); };
    return baca(waktuWis) + " WIS, " + baca(waktuZona) + kataZona();
}

std::string ClsKesimpulan::SaatuMaghribS(const Nilai& matahari) {
    const Nilai nol("00 00 00 00 00 1");
    const Nilai x = TrigNilai(1, ModusBuruj, matahari, false).value_or(nol);
    const Nilai y = KaliNilai(JenisBusur, TandaIkut, ModusBuruj, x, Nilai("0 0 23 52 0 1")).value_or(nol);
    const Nilai v = HitungDeret(TandaIkut, ModusBuruj, 1, y, 0, nol, 0, nol, 0, nol, 0, nol).value_or(nol);
    const int menit = AmbilTingkat(v, MedanDaqiqoh) + AmbilTingkat(v, MedanTsaniyah) / 60;
    std::string out = std::to_string(AmbilTingkat(v, MedanDarojah)) + "°";
    if (menit != 0) out += std::to_string(menit) + "'";
    return out + (AmbilTanda(v) != 0 ? " Di sebelah utara titik barat" : " Di sebelah selatan titik barat");
}

std::string ClsKesimpulan::AzimutSQ(const Nilai& azimut) {
    std::string out = std::to_string(AmbilTingkat(azimut, MedanDarojah)) + "°";
    if (AmbilTingkat(azimut, MedanDaqiqoh) != 0) out += std::to_string(AmbilTingkat(azimut, MedanDaqiqoh)) + "'";
    return out + (AmbilTanda(azimut) != 0 ? " Di sebelah utara titik barat" : " Di sebelah selatan titik barat");
}

std::string ClsKesimpulan::Kemiringan(const Nilai& a, const Nilai& b, const Nilai& c, const Nilai& d) {
    if (a.teks() == b.teks()) return "Terlentang";
    const double p0 = NilaiDesimal(JenisBusur, a), p1 = NilaiDesimal(JenisBusur, b), p2 = NilaiDesimal(JenisBusur, c),
                 p3 = NilaiDesimal(JenisBusur, d);
    if (!(2 * p3 > p2)) return "Tegak lurus";
    const int s = AmbilTanda(a);
    if (BulatGenap(p0) > BulatGenap(p1) && AmbilTanda(a) == AmbilTanda(b))
        return std::string("Miring ke ") + (s == 0 ? "utara" : "selatan");
    return std::string("Miring ke ") + (s == 0 ? "selatan" : "utara");
}

std::string ClsKesimpulan::IrtifaHilal(const Nilai& tinggi, bool bertanda) {
    const int g = bertanda ? AmbilTanda(tinggi) : 1;
    const std::string meter = FormatTetap(tanpaBuruj(tinggi) * 0.72, 2) + " m";
    const int m = AmbilTingkat(tinggi, MedanDaqiqoh) + AmbilTingkat(tinggi, MedanTsaniyah) / 30;
    std::string menit = m == 0 ? "" : std::to_string(m) + "'";
    int derajat = AmbilTingkat(tinggi, MedanDarojah);
    if (menit == "60'") {
        menit.clear();
        derajat += 1;
    }
    const std::string minus = g == 0 ? "-" : "";
    return minus + std::to_string(derajat) + "°" + menit + " / " + minus + meter;
}

std::string ClsKesimpulan::ArahHilal(const Nilai& tempatHilal) {
    const double x = NilaiDesimal(JenisBusur, tempatHilal);
    const double phi = sesi_.tempat.lintangDerajat + sesi_.tempat.lintangMenit / 60.0;
    return (x - 180 < phi || x > 360 - phi) ? " Di utara" : " Di selatan";
}

std::string ClsKesimpulan::KeadaanHilal(const Nilai& matahari) {
    const int b = AmbilTingkat(matahari, MedanBuruj);
    const double d = tanpaBuruj(matahari);
    const char* c1 = ((b == 11 || b == 5) && d > 26) ? "1" : "2";
    const char* c2 = ((b == 0 || b == 6) && d < 6) ? "1" : "2";
    const char* c3 = (b >= 3 && b <= 8) ? "2" : "1";
    if (std::string_view(c1) == "1" && std::string_view(c2) == "1") return "Terlentang";
    return std::string_view(c3) == "1" ? "Miring ke utara" : "Miring ke selatan";
}

std::string ClsKesimpulan::MuktsulHilal(const Nilai& lama) {
    if (AmbilTanda(lama) == 0) return "00.00 Menit";
    const Waktu w = Waktu::dari(AmbilTingkat(lama, MedanDarojah), AmbilTingkat(lama, MedanDaqiqoh),
                                AmbilTingkat(lama, MedanTsaniyah));
    const std::string out = w.format("hh.mm") + " Menit";
    return out == "00.00 Menit" ? w.format("hh.mm.ss") + " Menit" : out;
}

Waktu ClsKesimpulan::WaktuGurub(const Nilai& matahari, std::string& gurub, std::string& terbit) {
    // Field 2 and 3 of the sun's place are its sign and the degree within it.
    const int derajat = AmbilTingkat(matahari, MedanDarojah) * 30 + AmbilTingkat(matahari, MedanDaqiqoh);
    const SaatMatahari saat = WaktuMaghrib(derajat, 0, sesi_.tempat);
    const Nilai tanggal(TanggalDariBuruj(matahari).value_or(""));
    const int bulan = AmbilTingkat(tanggal, MedanDarojah), hari = AmbilTingkat(tanggal, MedanDaqiqoh);
    const std::string zona = kataZona().substr(1);
    gurub = rapikan(gabung({saat.terbenam.format("hh.mm"), "WIS", keZona(bulan, hari, saat.terbenam).format("hh.mm"), zona}));
    terbit = rapikan(gabung({saat.terbit.format("hh.mm"), "WIS", keZona(bulan, hari, saat.terbit).format("hh.mm"), zona}));
    return saat.terbenam;
}

std::string ClsKesimpulan::NurHilal(const Nilai& nur) {
    const std::string cm = FormatTetap(NilaiDesimal(JenisBusur, nur) * 0.72, 3) + " cm";
    const int m = AmbilTingkat(nur, MedanDaqiqoh);
    const int n = AmbilTingkat(nur, MedanDarojah);
    std::string pita;
    switch (m) {
        case 1: pita = "1/60 Ushbu'  /"; break;
        case 2: pita = "1/30 Ushbu'  /"; break;
        case 3: pita = "1/20 Ushbu'  /"; break;
        case 4: pita = "1/15 Ushbu'  /"; break;
        case 5: pita = "1/12 Ushbu'  /"; break;
        default:
            if (m <= 9) pita = "1/10 Ushbu'  /";
            else if (m <= 11) pita = "1/6 Ushbu'  /";
            else if (m <= 14) pita = "1/5 Ushbu'  /";
            else if (m <= 19) pita = "1/4 Ushbu'  /";
            else if (m <= 23) pita = "1/3 Ushbu'  /";
            else if (m <= 29) pita = "2/5 Ushbu'  /";
            else if (m <= 35) pita = "1/2 Ushbu'  /";
            else if (m <= 39) pita = "3/5 Ushbu'  /";
            else if (m <= 43) pita = "2/3 Ushbu'  /";
            else if (m <= 47) pita = "3/4 Ushbu'  /";
            else if (m <= 56) pita = "4/5 Ushbu'  /";
            else pita = std::to_string(n + 1) + "Ushbu'  /";
    }
    return pita + " " + cm;
}

std::string ClsKesimpulan::baris(std::string_view nama, int lintangDerajat, int lintangMenit, int tandaLintang,
                                 int bujurDerajat, int bujurMenit, int tandaBujur) {
    return rapikan(gabung({IsolasiNama(rapikan(std::string(nama))), std::to_string(lintangDerajat) + "°",
                           std::to_string(lintangMenit) + "'" + (tandaLintang != 0 ? " LU |" : " LS |"),
                           std::to_string(bujurDerajat) + "°",
                           std::to_string(bujurMenit) + "'" + (tandaBujur != 0 ? " BT" : " BB")}));
}

std::string ClsKesimpulan::barisMarkaz(const TitikMarkaz& m) {
    return baris(m.nama ? m.nama : "", m.lintangDerajat, m.lintangMenit, m.tandaLintang, m.bujurDerajat, m.bujurMenit,
                 m.tandaBujur);
}

std::string ClsKesimpulan::barisTempat(const Tempat& t) {
    return baris(t.nama, t.lintangDerajat, t.lintangMenit, static_cast<int>(ValAngka(t.tandaLintang)), t.bujurDerajat,
                 t.bujurMenit, static_cast<int>(ValAngka(t.tandaBujur)));
}

}  // namespace falak

namespace falak {

namespace {

// The date value moved on by whole days: weekday and pasaran move with it.
Nilai tambahHari(const Nilai& tanggal, int hari) {
    const std::string d = std::to_string(hari);
    const Nilai langkah = AlamahTarkh(3, {"0", "0", d, d, d, "0", "0", "0", "0"}, 1).value_or(Nilai());
    return TambahNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, tanggal, langkah);
}

int hariPekan(const Nilai& v) {
    const int h = AmbilTingkat(v, MedanHari);
    return h == 0 ? 7 : h;
}

// Hours, minutes and seconds of a time: an alamah value by its clock fields, an arc value of
// hours by Darojah and what follows.
Waktu bacaJam(const Nilai& jam) {
    if (jam.teks().size() > 20)
        return Waktu::dari(AmbilTingkat(jam, MedanJam), AmbilTingkat(jam, MedanMenit), AmbilTingkat(jam, MedanDetik));
    return Waktu::dari(AmbilTingkat(jam, MedanDarojah), AmbilTingkat(jam, MedanDaqiqoh), AmbilTingkat(jam, MedanTsaniyah));
}

std::string bagianHari(const std::string& jam) {
    if (jam < "09.00") return "(Pagi)";
    if (jam < "15.00") return "(Siang)";
    if (jam < "18.00") return "(Sore)";
    // Compared as texts: "24:00" takes every clock time that is left.
    return jam < "24:00" ? "(Malam)" : "";
}

int menitKedalaman(const Nilai& v) { return AmbilTingkat(v, MedanDarojah) * 60 + AmbilTingkat(v, MedanDaqiqoh); }

}  // namespace

std::string ClsKesimpulan::UkuranGerhana(const Nilai& ukuran) {
    if (AmbilTingkat(ukuran, MedanDarojah) >= 12) return "12 Ushbu' (Total)";
    return NurHilal(ukuran);
}

std::string ClsKesimpulan::FullGerhanB(Nilai& tanggal, const Nilai& hariDihitung, const Nilai& jam,
                                       int16_t& hariHijri) const {
    const int dicari = hariPekan(hariDihitung);
    Nilai hari = tanggal;
    for (int i = 11; i <= 17; ++i) {
        hari = tambahHari(tanggal, i);
        hariHijri = static_cast<int16_t>(i);
        if (hariPekan(hari) == dicari) {
            hariHijri = static_cast<int16_t>(i + 1);
            break;
        }
    }
    tanggal = hari;
    return barisGerhanaB(tanggal, jam, hariHijri);
}

std::string ClsKesimpulan::FullGerhanBTanggal(const Nilai& awal, const Nilai& tanggal, const Nilai& jam,
                                              int16_t& hariHijri) const {
    const auto nomor = [](const Nilai& t) {
        return hariDariTanggal(AmbilTingkat(t, MedanTahun), AmbilTingkat(t, MedanBulan), AmbilTingkat(t, MedanTanggal));
    };
    hariHijri = static_cast<int16_t>(nomor(tanggal) - nomor(awal) + 1);
    return barisGerhanaB(tanggal, jam, hariHijri);
}

std::string ClsKesimpulan::barisGerhanaB(const Nilai& tanggal, const Nilai& jam, int16_t hariHijri) const {
    const int jamSaja = jam.teks().size() > 23 ? AmbilTingkat(jam, MedanJam) : AmbilTingkat(jam, MedanDarojah);
    const std::string baris = kBarisBulan[static_cast<size_t>(sesi_.barisBulan % 12)];
    const std::string bulan = rapikan(baris.size() > 4 ? baris.substr(4) : std::string());
    return rapikan(gabung({NamaHari(AmbilTingkat(tanggal, MedanHari), std::to_string(jamSaja + 18), false),
                           NamaPas(AmbilTingkat(tanggal, MedanPasaran)) + ",", std::to_string(hariHijri), bulan,
                           sesi_.tahunHijri + " H./", std::to_string(AmbilTingkat(tanggal, MedanTanggal)),
                           ManaBln(AmbilTingkat(tanggal, MedanBulan)),
                           std::to_string(AmbilTingkat(tanggal, MedanTahun)) + " M."}));
}

std::string ClsKesimpulan::FullGerhanM(Nilai& tanggal, const Nilai& jam) const {
    // The row of the run's month in the list; a month of 0 reads the last row.
    const int bulanRun = AmbilTingkat(sesi_.tanggalPilihan, MedanBulan);
    const std::string baris = kBarisBulan[static_cast<size_t>(bulanRun == 0 ? 11 : std::clamp(bulanRun - 1, 0, 11))];
    const std::string bulan = rapikan(baris.size() > 4 ? baris.substr(4) : std::string());
    return rapikan(gabung({NamaHari(AmbilTingkat(tanggal, MedanHari),
                                    std::to_string(AmbilTingkat(jam, MedanDarojah) + 18), true),
                           NamaPas(AmbilTingkat(tanggal, MedanPasaran)) + ",", "29", bulan, sesi_.tahunHijri + " H./",
                           std::to_string(AmbilTingkat(tanggal, MedanTanggal)),
                           ManaBln(AmbilTingkat(tanggal, MedanBulan)),
                           std::to_string(AmbilTingkat(tanggal, MedanTahun)) + " M."}));
}

std::string ClsKesimpulan::FormatJam(const Nilai& jam, const Nilai& tanggal, bool lengkap, const Nilai& tempat,
                                     const Nilai& ukuran, bool zonaKedua, bool akhir) const {
    const Waktu w = bacaJam(jam);
    std::string butir0 = w.format("hh.mm");
    if (!lengkap) return butir0;
    std::string butir2 = butir0;
    // A clock time: just after midnight by the sun may be just before it by the zone.
    constexpr int64_t kSehari = 24 * 3600;
    const int64_t detikZona = keZona(AmbilTingkat(tanggal, MedanBulan), AmbilTingkat(tanggal, MedanTanggal), w).detik();
    const Waktu zona = Waktu::dari(0, 0, (detikZona % kSehari + kSehari) % kSehari);
    // The writers of the methods expect the two columns to change places with the flag.
    if (zonaKedua) butir2 = zona.format("hh.mm");
    else butir0 = zona.format("hh.mm");

    std::string sisi;
    const bool total = AmbilTingkat(ukuran, MedanDarojah) == 12;
    const bool selatan = AmbilTingkat(tempat, MedanBuruj) == 6 || AmbilTingkat(tempat, MedanBuruj) == 11;
    if (!tempat.kosongTeks()) sisi = total ? "(dr Timur)" : (selatan ? "(dr Selatan t'gara)" : "(dr Utara t'laut)");
    if (akhir) sisi = total ? "(dr Barat)" : (selatan ? "(dr Selatan)" : "(dr Utara)");
    return rapikan(gabung({butir0, "WIS,", butir2, rapikan(kataZona()), bagianHari(butir0), sisi}));
}

std::string ClsKesimpulan::WarnaGerhana(const Nilai& v) {
    const int n = menitKedalaman(v);
    if (n < 11) return "Hitam";
    if (n < 21) return "Hitam ke hijau - hijauan";
    if (n < 31) return "Hitam ke merah - merahan";
    if (n < 41) return "Hitam ke kuning - kuningan";
    if (n < 51) return "Coklat";
    return "Kelabu";
}

std::string ClsKesimpulan::WarnaGerhanaM(const Nilai& v) {
    static constexpr std::pair<int, const char*> kWarna[] = {
        {20, "Kuning keputi - putihan"},    {60, "Kuning"},
        {95, "Kelabu ke biru - biruan"},    {130, "Kelabu"},
        {220, "Coklat agak kelabu"},        {280, "Coklat"},
        {350, "Coklat ke kuning - kuningan"}, {420, "Coklat ke merah - merahan"},
        {500, "kelabu ke coklat - coklatan"}, {580, "Kelabu ke hitam - hitaman"},
        {650, "Hitam"},                     {720, "Sangat hitam"},
    };
    const int n = menitKedalaman(v);
    for (const auto& [batas, warna] : kWarna)
        if (n <= batas) return warna;
    return {};
}

}  // namespace falak
