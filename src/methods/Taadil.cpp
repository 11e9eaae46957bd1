#include "methods/Taadil.h"

#include <cmath>
#include <optional>

#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "core/Kalender.h"

namespace falak {

namespace {

// One tabulated quantity: its columns and the fields (2 darojah ... 5 tsalitsah) they fill.
struct Kolom {
    const char* nama[3];
    int posisi[3];
    int modus = 1;
};

// The columns of codes 1 to 41 that Syatar1 reads; nullopt for the codes it does not.
std::optional<Kolom> kolomKode(int kode) {
    switch (kode) {
        case 1: return Kolom{{"tdKsJah", "tdKsQoh"}, {2, 3}};
        case 2: return Kolom{{"tdMrJah", "tdMrQoh"}, {2, 3}};
        case 3: return Kolom{{"ArQoh", "ArNii"}, {3, 4}};
        case 4: return Kolom{{"hsJah1", "hsQoh1"}, {2, 3}};
        case 5: return Kolom{{"dqMsQoh"}, {3}};
        case 6: return Kolom{{"hsJah", "hsQoh", "hsNii"}, {2, 3, 4}};
        case 7: return Kolom{{"tdThMasehi"}, {0}};
        case 8: return Kolom{{"tdlSyamsiJah", "tdlSyamsiQoh", "tdlSyamsiNii"}, {2, 3, 4}};
        case 9: return Kolom{{"tdlAwalQomarQoh", "tdlAwalQomarNii"}, {3, 4}};
        case 10: return Kolom{{"tdlTsaniQomarJah", "tdlTsaniQomarQoh", "tdlTsaniQomarNii"}, {2, 3, 4}};
        case 11: return Kolom{{"tdlTsalitsKhQomarQoh", "tdlTsalitsKhQomarNii"}, {3, 4}};
        case 12: return Kolom{{"tdlTsalitsWsQomarJah", "tdlTsalitsWsQomarQoh", "tdlTsalitsWsQomarNii"}, {2, 3, 4}};
        case 13: return Kolom{{"tdlRobiWsQomarQoh", "tdlRobiWsQomarNii"}, {3, 4}};
        case 14: return Kolom{{"tdlMutamimRiksiQoh", "tdlMutamimRiksiNii"}, {3, 4}};
        case 15: return Kolom{{"tdlKhomisWsQomarQoh", "tdlKhomisWsQomarNii"}, {3, 4}};
        case 16: return Kolom{{"MatholiJah", "MatholiQoh"}, {2, 3}, 2};
        case 17: return Kolom{{"SabaqKW2Qoh", "SabaqKW2Nii"}, {3, 4}};
        case 18: return Kolom{{"SabaqQ1Qoh", "SabaqQ1Nii", "SabaqQ1Lis"}, {3, 4, 5}};
        case 19: return Kolom{{"SabaqQ2Nii", "SabaqQ2Lis"}, {4, 5}};
        case 20: return Kolom{{"SabaqQ3Nii", "SabaqQ3Lis"}, {4, 5}};
        case 21: return Kolom{{"SabaqSQoh", "SabaqSNii", "SabaqSLis"}, {3, 4, 5}};
        case 22: return Kolom{{"BuhtuJah", "BuhtuQoh"}, {2, 3}};
        case 23: return Kolom{{"HsJah6_12", "HsQoh6_12", "HsNii6_12"}, {2, 3, 4}};
        case 24: return Kolom{{"HsJah5_11", "HsQoh5_11", "HsNii5_11"}, {2, 3, 4}};
        case 28: return Kolom{{"NusQothrZilQoh", "NusQothrZilNii"}, {3, 4}};
        case 29: return Kolom{{"NusQothrQomQoh", "NusQothrQomNii"}, {3, 4}};
        case 30: return Kolom{{"NusQothrSymsQoh", "NusQothrSymsNii"}, {3, 4}};
        case 31: return Kolom{{"QothrQomQoh", "QothrQomNii"}, {3, 4}};
        case 33: return Kolom{{"IkhtilafThulQoh", "IkhtilafThulNii"}, {3, 4}};
        case 34: return Kolom{{"IkhtilafArdliQoh", "IkhtilafArdliNii"}, {3, 4}};
        case 38: return Kolom{{"MelAwalJah", "MelAwalQoh", "MelAwalNii"}, {2, 3, 4}};
        case 40: return Kolom{{"JaibJah", "JaibQoh"}, {2, 3}};
        case 41: return Kolom{{"IkhtilafMandhorQoh", "IkhtilafMandhorNii"}, {3, 4}};
        default: return std::nullopt;
    }
}

// The latitude tables: the pair of columns by the place's latitude degrees.
Kolom kolomIqlim(int lintangDerajat) {
    switch (lintangDerajat) {
        case 6: return Kolom{{"IqlimJah6", "IqlimQoh6"}, {2, 3}};
        case 7: return Kolom{{"IqlimJah7", "IqlimQoh7"}, {2, 3}};
        default: return Kolom{{"IqlimJah8", "IqlimQoh8"}, {2, 3}};
    }
}

// The slot of a code's columns among those kept by position: the code itself, and for the
// latitude tables one slot each after code 41.
size_t slotKolom(int kode, int lintangDerajat) {
    if (kode != 39) return static_cast<size_t>(kode);
    return lintangDerajat == 6 ? 42 : (lintangDerajat == 7 ? 43 : 44);
}

// The key of Syatar1, wrapped into 1 .. the table's top; no key for a step of 0.
std::optional<int64_t> kunciSyatar(int kode, const Nilai& v, int langkah, bool jam) {
    const int64_t f1 = AmbilTingkat(v, MedanBuruj);
    const int64_t f2 = AmbilTingkat(v, MedanDarojah);
    const int64_t f3 = AmbilTingkat(v, MedanDaqiqoh);
    int64_t kunci;
    int64_t putaran;
    if (jam) {
        kunci = f1 * 24 + f2;
        putaran = 288;
    } else if (langkah == 12) {
        // The table of code 24 begins at 17 degrees.
        kunci = (f2 - (kode == 24 ? 17 : 0)) * 60 + f3 / 12 * 12;
        putaran = 816;
    } else {
        if (langkah == 0) return std::nullopt;
        kunci = f2 / langkah * langkah + f1 * 30;
        putaran = 360;
    }
    if (kunci <= 0) kunci += putaran;
    if (kunci > putaran) kunci -= putaran;
    return kunci;
}

// A value from the columns of the current row, positive, in the given form; di gives each
// named column's position in the table.
Nilai dariBaris(const Tabel& t, const Kolom& k, const std::array<int, 3>& di) {
    std::string_view medan[5] = {"0", "0", "0", "0", "0"};
    for (int i = 0; i < 3 && k.nama[i]; ++i) {
        const auto sel = t.baca(di[static_cast<size_t>(i)]);
        if (!sel) return {};
        medan[k.posisi[i] - 1] = *sel;
    }
    return DlorbuSittin(medan[0], medan[1], medan[2], medan[3], medan[4], 1, k.modus).value_or(Nilai());
}

std::array<int, 3> posisiNama(const Tabel& t, const Kolom& k) {
    std::array<int, 3> di{-1, -1, -1};
    for (size_t i = 0; i < 3 && k.nama[i]; ++i) di[i] = t.indeksKolom(k.nama[i]);
    return di;
}

Nilai darojah(int64_t d, int tanda, int modus) { return DlorbuSittin(0, d, 0, 0, 0, tanda, modus); }

// The term of the interpolation: offset x (difference / a value of n degrees), products in form 2.
Hasil suku(const Nilai& selisihArgumen, const Nilai& selisihEntri, int64_t n) {
    const Hasil bagi = BagiNilai(JenisBusur, TandaIkut, ModusLingkaran, selisihEntri, darojah(n, 1, 2));
    if (!bagi) return std::nullopt;
    return KaliNilai(JenisBusur, TandaIkut, ModusLingkaran, selisihArgumen, *bagi);
}

// The difference of two neighbouring rows. A signed equation is written as the circle less it
// where it is negative, so where it changes sign two neighbours stand at both ends of the
// circle: the difference is taken the short way, as no two rows lie half a circle apart.
Nilai selisihBaris(const Nilai& entri, const Nilai& entriBerikut) {
    const Nilai d = KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, entri, entriBerikut);
    if (NilaiDesimal(JenisBusur, d) <= 180) return d;
    const Nilai putaran = darojah(360, 1, 2);
    return d.tanda() == 0 ? TambahNilai(JenisBusur, TandaIkut, ModusLingkaran, d, putaran)
                          : KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, d, putaran);
}

// The degree of longitude of the current row of the right ascension table, from its key.
Nilai bujurBaris(const Tabel& t) {
    const int64_t cari = BulatGenap32(ValAngka(t.baca("Cari").value_or(""))).value_or(0);
    return DlorbuSittin(cari / 30, cari % 30, 0, 0, 0, 1, ModusBuruj);
}

// The eclipse tables: key column, the key that stands for 0, and the columns of each code.
struct Ganda {
    const char* kolomKunci;
    int64_t kunciNol;
    Kolom kolom;
};

std::optional<Ganda> gandaKode(int kode) {
    switch (kode) {
        case 25: return Ganda{"CariKsf", 360, {{"AshobiJah", "AshobiQoh"}, {2, 3}}};
        case 26: return Ganda{"CariKsf", 360, {{"MuktsKhusfJah", "MuktsKhusfQoh"}, {2, 3}}};
        case 27: return Ganda{"CariKsf", 360, {{"SaatKhusfJah", "SaatKhusfQoh"}, {2, 3}}};
        case 35: return Ganda{"CariKsfS", 351, {{"AshobiJahS", "AshobiQohS"}, {2, 3}}};
        case 36: return Ganda{"CariKsfS", 351, {{"SaatKhusfJahS", "SaatKhusfQohS"}, {2, 3}}};
        case 37: return Ganda{"CariKsfS", 351, {{"SaatMuktsuS"}, {3}}};
        default: return std::nullopt;
    }
}

constexpr int64_t kDasarGanda = 710;   // 11 degrees 50 minutes, the first row of the first argument
constexpr int64_t kSelangGanda = 20;   // minutes of the first argument per row
constexpr int64_t kLangkahGanda = 65;  // keys per row of the first argument
constexpr int64_t kPuncakGanda = 650;

int64_t menit(const Nilai& v) { return int64_t{AmbilTingkat(v, MedanDarojah)} * 60 + AmbilTingkat(v, MedanDaqiqoh); }

}  // namespace

ClsTaadil::ClsTaadil(Tabel& TRBTaadil, Tabel& TQQTaadil, const Tempat& tempat)
    : trb_(TRBTaadil), tqq_(TQQTaadil), tempat_(tempat) {
    for (int kode = 1; kode <= 41; ++kode)
        if (const auto k = kolomKode(kode))
            for (size_t i = 0; i < 3; ++i) kolom_[static_cast<size_t>(kode)][i] = k->nama[i];
    for (int lintang : {6, 7, 8}) {
        const Kolom k = kolomIqlim(lintang);
        for (size_t i = 0; i < 3; ++i) kolom_[slotKolom(39, lintang)][i] = k.nama[i];
    }
}

Tabel& ClsTaadil::tabelUntuk(int kode) const {
    const bool r = (kode >= 1 && kode <= 7) || (kode >= 22 && kode <= 24) || (kode >= 28 && kode <= 31) ||
                   kode == 33 || kode == 34 || (kode >= 38 && kode <= 41);
    return r ? trb_ : tqq_;
}

Nilai ClsTaadil::Syatar1(int kode, const Nilai& nilai, int langkah, bool jam) {
    const std::optional<Kolom> kolom = kode == 39 ? kolomIqlim(tempat_.lintangDerajat) : kolomKode(kode);
    if (!kolom) return {};
    const auto kunci = kunciSyatar(kode, nilai, langkah, jam);
    if (!kunci) return {};
    Tabel& t = tabelUntuk(kode);
    if (!t.cari((&t == &trb_ ? kunciTrb_ : kunciTqq_).di(t), *kunci)) return {};
    const auto& nama = kolom_[slotKolom(kode, tempat_.lintangDerajat)];
    if (kode == 7) {
        const auto sel = t.baca(nama[0].di(t));
        if (!sel) return {};
        return Nilai("000 00 " + std::string(*sel) + " 00 00 00 00 00 00");
    }
    return dariBaris(t, *kolom, {nama[0].di(t), nama[1].di(t), nama[2].di(t)});
}

Nilai ClsTaadil::TaadilKusfM(int kode, const Nilai& nilai, int langkah, bool jam, int& langkahIqlim) {
    if (langkah == 12) {
        const Nilai v = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, nilai,
                                    DlorbuSittin(0, 0, 12, 0, 0, nilai.tanda(), ModusBuruj));
        return Syatar1(kode, v, 12, jam);
    }
    if (kode == 39) {
        // The latitude tables are not evenly spaced: each row names the argument of the next.
        const auto m = trb_.baca("MahFudIqlim");
        if (!m) return {};
        const auto berikut = DlorbuSittin("0", *m, "0", "0", "0", 1, ModusDarojah);
        if (!berikut) return {};
        const Nilai sini =
            DlorbuSittin(AmbilTingkat(nilai, MedanBuruj), AmbilTingkat(nilai, MedanDarojah), 0, 0, 0, 1, ModusDarojah);
        langkahIqlim = AmbilTingkat(KurangNilai(JenisBusur, TandaIkut, ModusDarojah, *berikut, sini), MedanDarojah);
        return Syatar1(39, *berikut, 1, false);
    }
    const Nilai v = TambahNilai(JenisBusur, TandaIkut, ModusBuruj, nilai, darojah(langkah, nilai.tanda(), 1));
    return Syatar1(kode, v, langkah, jam);
}

Hasil ClsTaadil::TdlTarekhMasehi(int kode, const Nilai& entri, const Nilai& entriBerikut, const Nilai& nilai,
                                 int langkah, int langkahIqlim) {
    const Nilai s = NolkanBuruj(nilai);
    const int64_t n = kode == 39 ? langkahIqlim : langkah;
    if (n == 0) return std::nullopt;
    const int64_t f2 = AmbilTingkat(nilai, MedanDarojah);
    const Nilai pangkal =
        n == 12 ? DlorbuSittin(0, f2, AmbilTingkat(nilai, MedanDaqiqoh) / 12 * 12, 0, 0, s.tanda(), ModusBuruj)
                : darojah(f2 / n * n, s.tanda(), 1);
    const Nilai lebih = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, s, pangkal);
    // Also for rows of 12 minutes the divisor is n degrees: the term comes out sixty times
    // smaller than a linear one, and the treatises' digits follow from that.
    return suku(lebih, selisihBaris(entri, entriBerikut), n);
}

Nilai ClsTaadil::TaadilSisa(const Nilai& entri, const Nilai& /*entriBerikut*/, const Nilai& suku) {
    return KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, entri, suku);
}

void ClsTaadil::TaadilBaris(std::span<Nilai, 5> baris, int kode, const Nilai& nilai, int langkah, bool jam) {
    if (kode != 32) {
        int langkahIqlim = 0;
        baris[0] = Madkhul(nilai);
        baris[1] = Syatar1(kode, nilai, langkah, jam);
        baris[2] = TaadilKusfM(kode, nilai, langkah, jam, langkahIqlim);
        const Nilai plus = GantiTanda(nilai, "1");
        isi(baris[3], TdlTarekhMasehi(kode, baris[1], baris[2], plus, langkah, langkahIqlim));
        baris[4] = TaadilSisa(baris[1], baris[2], baris[3]);
        return;
    }

    // The right ascension table may skip a degree: step down until a row answers. A table
    // without any whole-degree row would answer never; a full turn is enough to know that.
    int64_t d = AmbilTingkat(nilai, MedanDarojah) - (AmbilTingkat(nilai, MedanDaqiqoh) != 0 ? 1 : 0);
    if (d < 0) d += 360;
    bool ada = false;
    for (int coba = 0; coba <= 360 && !ada; ++coba) {
        ada = tqq_.cari("MatholiJah", d);
        if (!ada && --d < 0) d += 360;
    }
    if (!ada) return;
    baris[0] = KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, nilai, darojah(d, 1, 2));
    baris[1] = bujurBaris(tqq_);
    tqq_.moveNext();
    if (tqq_.eof()) tqq_.moveFirst();
    baris[2] = bujurBaris(tqq_);
    baris[3] = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, baris[1], baris[2]);
    isi(baris[3], KaliNilai(JenisBusur, TandaIkut, ModusBuruj, baris[0], baris[3]));
    baris[0] = Madkhul(nilai);
    baris[4] = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, baris[1], baris[3]);
}

bool ClsTaadil::gandaIsi(std::span<Nilai> baris, int kode, const Nilai& a, const Nilai& b) {
    for (Nilai& sel : baris) sel = Nilai();
    const auto g = gandaKode(kode);
    if (!g) return false;

    const int64_t i = (menit(a) - kDasarGanda) / kSelangGanda;
    const int64_t j = menit(b);
    const auto kunci = [&](int64_t k) {
        if (k < 0) k += kPuncakGanda;
        if (k == 0) k = g->kunciNol;
        if (k > kPuncakGanda) k -= kPuncakGanda;
        return k;
    };
    const int64_t dasar = j + i * kLangkahGanda;
    const auto entri = [&](int64_t k) {
        return trb_.cari(g->kolomKunci, kunci(k)) ? dariBaris(trb_, g->kolom, posisiNama(trb_, g->kolom)) : Nilai();
    };
    const Nilai e1 = entri(dasar);
    const bool ada = !e1.kosongTeks();

    // Offsets of the arguments from their rows: the seconds of b beyond its whole minute, and
    // the minutes of a beyond its row of 20.
    const Nilai lebihB = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, GantiTanda(NolkanBuruj(b), "1"),
                                     DlorbuSittin(0, 0, j, 0, 0, 1, ModusBuruj));
    const Nilai lebihA = KurangNilai(JenisBusur, TandaIkut, ModusBuruj, GantiTanda(NolkanBuruj(a), "1"),
                                     DlorbuSittin(0, 0, kDasarGanda + i * kSelangGanda, 0, 0, 1, ModusBuruj));

    const auto sebaris = [&](int64_t k, size_t awal) {
        baris[awal] = awal == 0 ? e1 : entri(k);
        baris[awal + 1] = entri(k + 1);
        isi(baris[awal + 2],
            suku(lebihB, KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, baris[awal], baris[awal + 1]), 1));
        baris[awal + 3] = TaadilSisa(baris[awal], baris[awal + 1], baris[awal + 2]);
    };
    sebaris(dasar, 0);
    sebaris(dasar + kLangkahGanda, 4);
    baris[8] = KurangNilai(JenisBusur, TandaIkut, ModusLingkaran, baris[3], baris[7]);
    isi(baris[9], suku(lebihA, baris[8], kSelangGanda));
    baris[10] = TaadilSisa(baris[3], baris[7], baris[9]);
    return ada;
}

bool ClsTaadil::TaadilKhusfGanda(std::span<Nilai, 11> baris, int kode, const Nilai& a, const Nilai& b) {
    return gandaIsi(baris, kode, a, b);
}

bool ClsTaadil::TaadilKusfGanda(std::span<Nilai, 13> baris, int kode, const Nilai& a, const Nilai& b) {
    // Beyond these sums of degrees and minutes the solar table has no rows: the bigger the
    // first argument, the more latitude the second may have.
    const int64_t sa = menit(a);
    const int64_t sb = menit(b);
    const bool lewat = sa <= 750 ? sb > 31 : (sa <= 890 ? sb > 32 : sb > 35);
    if (lewat) {
        for (Nilai& sel : baris) sel = Nilai();
        return false;
    }
    const bool ada = gandaIsi(baris.first<11>(), kode, a, b);
    baris[11] = Madkhul(b);
    baris[12] = Madkhul(a);
    return ada;
}

bool ClsTaadil::OperMasehi(const Nilai& tanggal) {
    int tahun = AmbilTingkat(tanggal, MedanTahun);
    const int bulan = AmbilTingkat(tanggal, MedanBulan);
    if (bulan < 1 || bulan > 12) return false;
    if (bulan <= 2) --tahun;
    return Umurbulan(tahun, 2) == 29;
}

std::array<Nilai, 2> ClsTaadil::Taadil(const Nilai& majmu, const Nilai& mabsut, const Nilai& syahr,
                                       const Nilai& saah, int32_t dawr, int32_t sisaTahun, const Nilai& mabda,
                                       const Nilai& tambah) {
    const Nilai koreksi = Syatar1(7, DlorbuSittin(0, dawr, 0, 0, 0, 1, ModusBuruj), 1, false);
    if (koreksi.kosongTeks()) return {};

    // The groups' date, by years and months as the group row writes them.
    int64_t tahun = AmbilTingkat(mabda, MedanTahun) + int64_t{dawr} * AmbilTingkat(tambah, MedanTahun);
    int64_t bulan = AmbilTingkat(mabda, MedanBulan) + int64_t{dawr} * AmbilTingkat(tambah, MedanBulan) - 1;
    tahun += bulan >= 0 ? bulan / 12 : -((11 - bulan) / 12);
    bulan = ((bulan % 12) + 12) % 12 + 1;
    const int64_t nomor = NomorHari(tahun, static_cast<int>(bulan), AmbilTingkat(mabda, MedanTanggal)) +
                          AmbilTingkat(koreksi, MedanTanggal);

    // The single years, the month row and the hours that the rows carry, as a fraction of a day.
    const double menitAwal = AmbilTingkat(mabda, MedanJam) * 60.0 + AmbilTingkat(mabda, MedanMenit) +
                             dawr * (AmbilTingkat(tambah, MedanJam) * 60.0 + AmbilTingkat(tambah, MedanMenit));
    const double hari = sisaTahun * (354 + (8 * 60 + 48) / 1440.0) + 360.0 * AmbilTingkat(syahr, MedanTahun) +
                        30.0 * AmbilTingkat(syahr, MedanBulan) + AmbilTingkat(syahr, MedanTanggal) +
                        (AmbilTingkat(syahr, MedanJam) * 60.0 + AmbilTingkat(syahr, MedanMenit) + menitAwal) / 1440.0;
    int64_t n = nomor + static_cast<int64_t>(std::floor(hari));

    // The reckoned weekday settles the day.
    const Nilai rata = TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, majmu, mabsut, syahr);
    const int hariDicari = AmbilTingkat(rata, MedanHari) == 0 ? 7 : AmbilTingkat(rata, MedanHari);
    int64_t geser = ((hariDicari - HariPekan(n)) % 7 + 7) % 7;
    if (geser > 3) geser -= 7;
    n += geser;

    const TanggalSipil t = TanggalDariNomor(n);
    const MedanAlamah medan = {t.tahun,
                               t.bulan,
                               t.hari,
                               PasaranDariNomor(n),
                               HariPekan(n) % 7,
                               AmbilTingkat(rata, MedanJam),
                               AmbilTingkat(rata, MedanMenit),
                               AmbilTingkat(rata, MedanDetik),
                               AmbilTingkat(rata, MedanTsalitsahWaktu)};
    const Nilai rataBertanggal = AlamahTarkh(JenisAlamahMasehi, medan, 1);
    return {rataBertanggal,
            KurangNilai(JenisAlamahMasehi, TandaIkut, ModusBuruj, rataBertanggal, CUmumToAlamah(saah, true))};
}

std::string ClsTaadil::TaadilKhusf(const Nilai& a, const Nilai& b, const Nilai& c, std::string_view bentuk) {
    int64_t buruj = 0;
    int64_t derajat = 0;
    for (const Nilai* v : {&a, &b, &c}) {
        buruj += AmbilTingkat(*v, MedanBuruj);
        derajat += AmbilTingkat(*v, MedanDarojah);
    }
    const Nilai jumlah = DlorbuSittin(buruj, derajat, 0, 0, 0, 1, ModusBuruj);
    const std::string teks =
        std::to_string(int64_t{AmbilTingkat(jumlah, MedanBuruj)} * 30 + AmbilTingkat(jumlah, MedanDarojah));
    const bool kena = teks == "26" || teks == "51" || teks == "49";
    const size_t awal = kena ? 0 : 2;
    return awal < bentuk.size() ? std::string(bentuk.substr(awal, 2)) : std::string();
}

}  // namespace falak
