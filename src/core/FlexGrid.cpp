#include "core/FlexGrid.h"

#include <algorithm>
#include <string>

#include "core/FungsHisab.h"

namespace falak {

namespace {
// The Arabic fonts in which the frames are drawn, and the Latin one of the Indonesian sheets.
constexpr const char* kFontArab = "Amiri";
constexpr const char* kFontLatin = "DejaVu Sans";
}  // namespace

void ClsFlexGrid::FlexSetting(int baris, int kolom, int lebarKolom, int tinggiBaris, int lebarLabel, bool fontArab) {
    if (!lembar_) return;
    lembar_->atur(baris, kolom);
    lembar_->lebarKolom = lebarKolom;
    lembar_->tinggiBaris = tinggiBaris;
    lembar_->lebarLabel = lebarLabel;
    lembar_->arab = fontArab;
    lembar_->font = fontArab ? kFontArab : kFontLatin;
}

void ClsFlexGrid::FlexNama(std::string_view teks, int baris, int kolom1, int kolom2, int inden) {
    if (!lembar_) return;
    std::string isi(teks);
    if (lembar_->arab) {
        const bool minus = isi.find('-') != std::string::npos;
        if (minus && !isi.empty()) {
            std::rotate(isi.begin(), isi.begin() + 1, isi.end());
        }
        if (!isi.empty()) {
            const bool tandaKurung = teks == "(-)" || teks == "(+)";
            isi = std::string(static_cast<size_t>(std::max(inden, 0)), ' ') + (minus && !tandaKurung ? "\u0650" : "") + isi;
        }
    }
    lembar_->tulis(baris, kolom1, isi);
    if (kolom1 != kolom2) lembar_->gabung(baris, kolom1, kolom2);
}

void ClsFlexGrid::FlexData(const Nilai& nilai, int baris, int kolom, std::initializer_list<int> medan) {
    if (!lembar_) return;
    int i = 0;
    for (int indeks : medan) {
        if (indeks == kTanpaMedan) break;
        lembar_->tulis(baris, kolom - 2 * i, std::to_string(AmbilTingkat(nilai, indeks)));
        ++i;
    }
}

void ClsFlexGrid::FlexDataSH(float nilai, int baris, int kolom) {
    if (lembar_) lembar_->tulis(baris, kolom, CetakAngka32(nilai));
}

void ClsFlexGrid::FlexTeks(std::string_view teks, int baris, int kolom) {
    if (lembar_) lembar_->tulis(baris, kolom, std::string(teks));
}

}  // namespace falak
