#include "core/Koneksi.h"

#include "core/Angka.h"
#include "core/Teks.h"

namespace falak {

ClsConnection::ClsConnection(LokasiData lokasi) : lokasi_(std::move(lokasi)) {
    for (Tabel* t : semua()) BukaTabel(*t, t->nama());
}

std::vector<Tabel*> ClsConnection::semua() {
    return {&Daerah,      &ClearTxtMargen,  &Lines,      &ListTxt,     &MergenExcel,    &Names,
            &Refraksi,        &TafawutWIB, &TQQDaqoiqAhTaf, &TQQImkanGerhana, &TQQRumuz,
            &TQQSaah,     &TQQSyahru,       &TQQTaadil,  &TQQthMab,    &TQQYaumTam,     &TRBSyahru,
            &TRBSyahruSH, &TRBTaadil,       &TRBTaadilSH, &TRBthMabSH, &TdlTA1,         &TdlTA2,     &ERBumi,
            &TaadilKal1,  &TaadilKal2,      &TaadilKal3, &Validation};
}

Tabel* ClsConnection::tabel(std::string_view nama) {
    for (Tabel* t : semua())
        if (t->nama() == nama) return t;
    return nullptr;
}

void ClsConnection::BukaTabel(Tabel& tabel, std::string_view nama) {
    std::filesystem::path berkas;
    std::string alasan;
    if (nama == "Daerah") {
        berkas = BerkasDaerah(lokasi_);
        alasan = BukaDaerah(tabel, lokasi_);
    } else {
        berkas = lokasi_.data / (std::string(nama) + ".csv");
        alasan = tabel.buka(berkas);
    }
    if (!alasan.empty()) masalah_.push_back({std::string(nama), berkas, alasan});
}

std::string PeriksaIsi(const Tabel& tabel) {
    if (!tabel.terbuka()) return "tabel tidak terbuka";
    if (tabel.jumlahBaris() == 0) return "tabel kosong, tidak ada baris isian";
    const auto& kolom = tabel.kolom();
    for (size_t k = 0; k < kolom.size(); ++k) {
        // Texts: mansion names, labels, and the sign ("+" or "-") of the daqa'iq tafawut.
        if (kolom[k] == "mn" || kolom[k] == "IsiText" || kolom[k] == "Tanda" || kolom[k].starts_with("Nama")) continue;
        // The names of the series' terms, and the texts of the formula sheets.
        if (kolom[k] == "Deret" || kolom[k].find("Nama") != std::string::npos ||
            kolom[k].find("Rumuz") != std::string::npos || kolom[k].find("Var") != std::string::npos)
            continue;
        for (size_t b = 0; b < tabel.jumlahBaris(); ++b) {
            const std::string_view sel = tabel.sel(b, k);
            if (!sel.empty() && !AdalahAngka(sel))
                return "baris isian ke-" + std::to_string(b + 1) + ", kolom " + kolom[k] + ": \"" +
                       Pendekkan(sel, 40) + "\" bukan angka";
        }
    }
    return {};
}

std::string LaporanMasalah(const std::vector<MasalahTabel>& masalah) {
    if (masalah.empty()) return {};
    std::string pesan = masalah.size() == 1 ? "Ada tabel yang tidak bisa dibaca"
                                            : "Ada " + std::to_string(masalah.size()) + " tabel yang tidak bisa dibaca";
    pesan += "; hisab yang memakainya tidak akan lengkap:\n";
    for (const MasalahTabel& m : masalah) pesan += "  " + m.tabel + " (" + m.berkas.string() + "): " + m.alasan + "\n";
    return pesan;
}

}  // namespace falak
