#include "methods/Lembar.h"

#include <array>

#include "core/Arah.h"
#include "core/Tabel.h"

namespace falak {

void IsiBingkai(ClsFlexGrid& grid, Tabel& names, std::string_view kode) {
    const std::string k(kode);
    const std::string nama = "Nama" + k, baris = "Baris" + k, kolom1 = "Kolom1" + k, kolom2 = "Kolom2" + k;
    for (names.moveFirst(); !names.eof(); names.moveNext()) {
        if (BacaTeks(names, baris).empty()) break;
        grid.FlexNama(BacaTeks(names, nama), BacaBulat(names, baris), BacaBulat(names, kolom1), BacaBulat(names, kolom2));
    }
}

std::string NamaBulanArab(int bulan) {
    static constexpr std::array<const char*, 12> kNama = {"محرم",  "صفر",  "ربيع الأول", "ربيع الآخر",
                                                          "جمادى الأولى", "جمادى الآخرة", "رجب", "شعبان",
                                                          "رمضان", "شوال", "ذو القعدة", "ذو الحجة"};
    const int i = ((bulan - 1) % 12 + 12) % 12;
    return kNama[static_cast<size_t>(i)];
}

std::string JudulLembarArab(std::string_view namaTempat, int tahun, int bulanBaru) {
    const int t = bulanBaru > 12 ? tahun + 1 : tahun;
    return "حساب اجتماع النيرين وارتفاع الهلال لأول شهر " + NamaBulanArab(bulanBaru) + " سنة " + std::to_string(t) +
           " هـ لبلد " + IsolasiNama(namaTempat, ArahBaris::KananKeKiri);
}

void TulisNamaManzil(ClsFlexGrid& grid, std::string_view nama, int baris, int kolom) {
    Sheet* lembar = grid.lembar();
    if (!lembar) return;
    const std::string isi = " " + std::string(nama) + lembar->sel(baris, kolom);
    for (int k = kolom; k <= kolom + 2; ++k) lembar->tulis(baris, k, isi);
    lembar->gabung(baris, kolom, kolom + 2);
}

}  // namespace falak
