#include "run/ProsesKalender.h"

#include <cmath>

#include "core/Angka.h"
#include "core/FungsHisab.h"
#include "core/Koneksi.h"

namespace falak {

namespace {

std::optional<int64_t> nomorDari(const std::optional<Nilai>& tanggal) {
    if (!tanggal || tanggal->kosongTeks()) return std::nullopt;
    return NomorHari(AmbilTingkat(*tanggal, 6), AmbilTingkat(*tanggal, 7), AmbilTingkat(*tanggal, 8));
}

// Month (tahun, bulan) with a month above 12 run into the next year and one below 1 into the
// year before.
std::pair<int32_t, int> bulanRata(int32_t tahun, int bulan) {
    return {tahun + static_cast<int32_t>(std::floor((bulan - 1) / 12.0)), static_cast<int>(SisaBawah(bulan - 1, 12)) + 1};
}

bool tahunAngka(const std::string& teks) {
    if (!AdalahAngka(teks)) return false;
    const double v = ValAngka(teks);
    return v == std::floor(v) && std::fabs(v) < 1e6;
}

}  // namespace

LembarKerja LembarKerjaKalender(const HasilKalender& h) {
    LembarKerja l;
    l.kunci = "Kalender";
    l.judul = "Kalender " + std::to_string(h.kalender->tahun) + (h.kalender->hijriah ? " H. " : " M. ") +
              std::string(h.kitab->kode);
    l.modul = h.kitab;
    l.lembar = LembarKalender(*h.kalender);
    return l;
}

double BujurKalender(const Tempat& tempat) {
    const double bujur = tempat.bujurDerajat + tempat.bujurMenit / 60.0;
    return tempat.tandaBujur == "0" ? -bujur : bujur;
}

std::string BacaTaadilKalender(ClsConnection& koneksi, TaadilKalender& taadil) {
    return taadil.baca(koneksi.TaadilKal1, koneksi.TaadilKal2, koneksi.TaadilKal3);
}

HasilKalender ProsesKal12(Workspace& ws, const std::string& kodeKitab, const std::string& tahunTeks, bool hijriah,
                          const std::string& namaTempat) {
    HasilKalender h;
    if (!tahunAngka(tahunTeks)) {
        h.pesan = Workspace::Pesan{"Kesalahan Input", "Input Tahun harus diisi dengan angka"};
        h.masukanSalah = true;
        return h;
    }
    h.kitab = CariModul(kodeKitab);
    if (!h.kitab) {
        h.pesan = Workspace::Pesan{"Kesalahan Input", "Kitab " + kodeKitab + " tidak dikenal."};
        h.masukanSalah = true;
        return h;
    }
    ws.pilihTempat(namaTempat);
    const auto tahun = static_cast<int32_t>(ValAngka(tahunTeks));
    SumberAwalBulan sumber;
    TaadilKalender taadil;
    const MarkazKalender* markaz = CariMarkazKalender(h.kitab->kodeLembar);
    if (markaz) {
        if (std::string salah = BacaTaadilKalender(ws.koneksi, taadil); !salah.empty()) {
            h.pesan = Workspace::Pesan{"Tabel Kalender", salah};
            return h;
        }
        const double bujur = BujurKalender(ws.sesi.tempat);
        sumber = [&taadil, markaz, bujur](int32_t t, int b) { return AwalBulanKalender(taadil, *markaz, bujur, t, b); };
    } else if (ws.modul(*h.kitab)) {
        h.dariModul = true;
        const EntriModul& kitab = *h.kitab;
        sumber = [&ws, &kitab](int32_t t, int b) {
            const auto [tahunBulan, bulan] = bulanRata(t, b);
            return nomorDari(ws.awalBulan(kitab, tahunBulan, bulan));
        };
    } else {
        h.pesan = Workspace::Pesan{"Sabar rek..", "Kitab " + std::string(h.kitab->nama) + " belum tersedia."};
        return h;
    }
    // The month the session has just reckoned in full by this book at this place keeps the
    // first day that its conclusion spoke.
    const auto& terakhir = ws.awalTerakhir;
    if (terakhir && terakhir->kitab == h.kitab && terakhir->tempat == ws.sesi.tempat.nama) {
        sumber = [singkat = std::move(sumber), ucap = *terakhir](int32_t t, int b) {
            return bulanRata(t, b) == std::pair{ucap.tahun, ucap.bulan} ? nomorDari(ucap.awal) : singkat(t, b);
        };
    }
    h.kalender = SusunKalender(tahun, hijriah, sumber);
    if (!h.kalender)
        h.pesan = Workspace::Pesan{"Kesalahan Input", "Kalender tahun " + tahunTeks + " tidak bisa dihitung."};
    return h;
}

}  // namespace falak
