#include "eclipse/LangkahGerhana.h"

#include "conclusions/Kesimpulan.h"
#include "core/Sesi.h"
#include "methods/Lembar.h"
#include "methods/Taadil.h"

namespace falak::gerhana {

Nilai busur(int64_t b, int64_t d, int64_t m, int64_t s) { return DlorbuSittin(b, d, m, s, 0, 1, ModusBuruj); }
Nilai tambah(const Nilai& a, const Nilai& b) { return TambahNilai(JenisBusur, TandaIkut, ModusBuruj, a, b); }
Nilai kurang(const Nilai& a, const Nilai& b) { return KurangNilai(JenisBusur, TandaIkut, ModusBuruj, a, b); }
Nilai kali(const Nilai& a, const Nilai& b, int modus) {
    return KaliNilai(JenisBusur, TandaIkut, modus, a, b).value_or(Nilai());
}
Nilai tambahAlamah(const Nilai& a, const Nilai& b) { return TambahNilai(JenisAlamah, TandaIkut, ModusBuruj, a, b); }
Nilai kurangAlamah(const Nilai& a, const Nilai& b) { return KurangNilai(JenisAlamah, TandaIkut, ModusBuruj, a, b); }
Nilai alamahNol() { return AlamahTarkh(JenisAlamah, MedanAlamah{}, 1); }

bool burujSebelumSimpul(const Nilai& v) {
    const int b = AmbilTingkat(v, MedanBuruj);
    return b == 5 || b == 11;
}

bool dekatSimpul(const Nilai& hishshoh, int batas) {
    const int b = AmbilTingkat(hishshoh, MedanBuruj);
    const int d = AmbilTingkat(hishshoh, MedanDarojah);
    return ((b == 0 || b == 6 || b == 12) && d <= batas) || (burujSebelumSimpul(hishshoh) && d >= 30 - batas);
}

Nilai jamSipil(const Nilai& alamah) {
    return tambahAlamah(alamah, AlamahTarkh(JenisAlamah, MedanAlamah{0, 0, 0, 0, 0, 18, 0, 0, 0}, 1));
}

double jamDesimal(const Nilai& alamah) {
    return AmbilTingkat(alamah, MedanJam) + AmbilTingkat(alamah, MedanMenit) / 60.0 +
           AmbilTingkat(alamah, MedanDetik) / 3600.0;
}

}  // namespace falak::gerhana

namespace falak {

using namespace gerhana;

void HitungQomar(std::span<Nilai, 6> q, const Nilai& tdlKs, const Nilai& tdlMr) {
    q[0] = tdlKs;
    q[1] = tdlMr;
    q[2] = tambah(q[0], q[1]);
    q[3] = kali(q[2], busur(0, 0, 5));
    q[4] = tdlMr;
    q[5] = tambah(q[3], q[4]);
}

size_t SelMatahari(const DataGerhana& data) { return data.wasath == 0 ? 5 : 3; }

void HitungSyams(std::span<Nilai> s, std::span<const Nilai, 5> jumlah, const Nilai& koreksi, const DataGerhana& data,
                 bool titikHadap) {
    if (data.wasath == 0) {
        s[0] = jumlah[static_cast<size_t>(data.markaz) - 1];
        s[1] = jumlah[4];
        s[2] = tambah(s[0], s[1]);
        s[3] = koreksi;
        s[4] = kurang(s[2], s[3]);
    } else {
        s[0] = jumlah[static_cast<size_t>(data.wasath) - 1];
        s[1] = koreksi;
        s[2] = kurang(s[0], s[1]);
    }
    const size_t matahari = SelMatahari(data);
    if (titikHadap) s[matahari] = tambah(s[matahari - 1], busur(6, 0, 0));
}

void HitungArdl(std::span<Nilai, 7> a, const Nilai& saah, const Nilai& tdlMr, const Nilai& hishshoh) {
    a[0] = saah;
    a[1] = kali(a[0], busur(0, 0, 2, 30));
    a[2] = tdlMr;
    a[3] = tambah(a[1], a[2]);
    a[4] = hishshoh;
    a[5] = a[3];
    a[6] = kurang(a[4], a[5]);
}

void HitungBuhtu(std::span<Nilai, 4> b, const Nilai& saah, const Nilai& khossyoh) {
    b[0] = saah;
    b[1] = kali(b[0], busur(0, 0, 43));
    b[2] = khossyoh;
    b[3] = kurang(b[2], b[1]);
}

void TulisKesimpulanGerhana(Konteks& k, HasilHitung& h, const FaseGerhana& f, const Nilai& tanggal,
                            const std::string& hari, const std::string& warna) {
    ClsKesimpulan& ks = k.kesimpulan;
    const Sesi& s = k.sesi;
    RingkasanGerhana& r = *h.gerhana;
    const bool total = NilaiDesimal(JenisBusur, f.mukts) != 0.0;
    const auto jam = [&](const Nilai& alamah, const Nilai& tempat, bool akhir) {
        return ks.FormatJam(jamSipil(alamah), tanggal, true, tempat, f.ukuran, true, akhir);
    };
    const auto lama = [&](const Nilai& alamah) {
        return ks.FormatJam(alamah, tanggal, false, {}, f.ukuran, true, false);
    };
    r.tanggal = tanggal;
    r.awal = jam(f.awal, f.lintang, false);
    r.tengah = jam(f.tengah, {}, false);
    r.akhir = jam(f.akhir, f.lintang, true);
    if (total) {
        r.awalTotal = jam(f.awalTotal, {}, false);
        r.akhirTotal = jam(f.akhirTotal, {}, false);
    }
    r.besar = ks.UkuranGerhana(f.ukuran);
    r.jamTengah = jamDesimal(jamSipil(f.tengah));
    r.ashobi = NilaiDesimal(JenisBusur, NolkanBuruj(f.ukuran));
    h.kesimpulan = {s.namaKitab,
                    s.labelKe(16) + hari,
                    s.labelKe(17) + r.awal,
                    s.labelKe(18) + r.tengah,
                    s.labelKe(19) + r.akhir,
                    s.labelKe(20) + lama(f.lama),
                    s.labelKe(21) + (total ? r.awalTotal : "-"),
                    s.labelKe(22) + (total ? r.akhirTotal : "-"),
                    s.labelKe(23) + (total ? lama(f.lamaTotal) : "-"),
                    s.labelKe(24) + r.besar,
                    s.labelKe(25) + warna};
}

}  // namespace falak

namespace falak {

void PokokFathu::hitung(Konteks& k, int32_t tahun, int16_t bulan, bool istiqbal, const BarisTahun& baris) const {
    const int16_t bulanRun = bulan;
    if (kitab_.bulanYangDibuka) BulanDibuka(tahun, bulan);
    baris.catat(bulanRun, HitungPokokFR(k, kitab_, tahun, bulan, istiqbal ? "GB" : "", alamah_, baris.pokok()));
}

void TulisKepalaGerhana(ClsFlexGrid& g, const Sesi& s, std::string_view judul, const BarisTahun& baris) {
    constexpr int T = ClsFlexGrid::kTanpaMedan;
    g.FlexNama(std::string(judul) + NamaBulanArab(baris.bulan) + " سنة " +
                   std::to_string(AmbilTingkat(s.tanggalPilihan, MedanTahun)) + " ببلد " + s.tempat.namaTampil,
               0, 0, 39);
    g.FlexTeks(std::to_string(baris.dawr), 3, 39);
    g.FlexTeks(std::to_string(baris.sisaTahun), 4, 39);
    g.FlexTeks(NamaBulanArab(baris.bulan), 5, 39);
    int c = 37;
    for (size_t k = 1; k <= 5; c -= 6, ++k) {
        int b = 3;
        for (const Baris<5>* row : {&baris.majmu, &baris.mabsut, &baris.syahr, &baris.jumlah})
            g.FlexData((*row)(k), b++, c,
                       k == 1 ? std::initializer_list<int>{10, 11, 12, T} : std::initializer_list<int>{1, 2, 3, T});
    }
}

std::optional<Nilai> PokokFathu::saatBertanggal(Konteks& k, const BarisTahun& baris, const Nilai& saah) const {
    if (tanggal_ != Tanggal::Alamah) return std::nullopt;
    const auto t = k.taadil.Taadil(baris.majmu(1), baris.mabsut(1), baris.syahr(1), saah, baris.dawr,
                                   baris.sisaTahun, Nilai(kitab_.mabda[0]), Nilai(kitab_.tambah[0]));
    if (t[1].kosongTeks()) return std::nullopt;
    return t[1];
}

}  // namespace falak
