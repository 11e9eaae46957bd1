#include "core/FlexGrid.h"

#include <algorithm>
#include <string>

#include "core/FungsHisab.h"

namespace falak {

namespace {
// The Arabic fonts in which the frames are drawn, and the Latin one of the Indonesian sheets.
constexpr const char* kFontArab = "Amiri";
constexpr const char* kFontLatin = "DejaVu Sans";

bool bilanganBulat(std::string_view t) {
    if (!t.empty() && t.front() == '-') t.remove_prefix(1);
    return !t.empty() && std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Arabic letters are two-byte UTF-8 sequences led by 0xD8 to 0xDB.
bool adaHurufArab(std::string_view t) {
    return std::any_of(t.begin(), t.end(), [](char c) {
        const auto b = static_cast<unsigned char>(c);
        return b >= 0xD8 && b <= 0xDB;
    });
}
}  // namespace

void ClsFlexGrid::FlexSetting(int baris, int kolom, int lebarKolom, int tinggiBaris, int lebarLabel, bool fontArab) {
    if (!lembar_) return;
    lembar_->atur(baris, kolom);
    lembar_->lebarKolom = lebarKolom;
    lembar_->tinggiBaris = tinggiBaris;
    lembar_->lebarLabel = lebarLabel;
    lembar_->arab = fontArab;
    // An Arabic frame is read from the right, as the books are; an Indonesian one from the left.
    lembar_->dibacaDariKanan = fontArab;
    lembar_->font = fontArab ? kFontArab : kFontLatin;
}

void ClsFlexGrid::FlexNama(std::string_view teks, int baris, int kolom1, int kolom2, int inden) {
    if (!lembar_) return;
    std::string isi(teks);
    if (lembar_->arab) {
        const bool minus = isi.find('-') != std::string::npos;
        if (minus && !isi.empty()) {
            // The first character, not its first byte: an Arabic letter is two.
            size_t panjang = 1;
            while (panjang < isi.size() && (static_cast<unsigned char>(isi[panjang]) & 0xC0) == 0x80) ++panjang;
            std::rotate(isi.begin(), isi.begin() + static_cast<std::ptrdiff_t>(panjang), isi.end());
        }
        if (!isi.empty()) {
            const bool tandaKurung = teks == "(-)" || teks == "(+)";
            isi = std::string(static_cast<size_t>(std::max(inden, 0)), ' ') + (minus && !tandaKurung ? "\u0650" : "") + isi;
        }
    }
    lembar_->tulis(baris, kolom1, isi, lembar_->arab ? JenisSel::LabelArab : JenisSel::Label);
    if (kolom1 != kolom2) lembar_->gabung(baris, kolom1, kolom2);
}

void ClsFlexGrid::FlexData(const Nilai& nilai, int baris, int kolom, std::initializer_list<int> medan) {
    if (!lembar_) return;
    int i = 0;
    for (int indeks : medan) {
        if (indeks == kTanpaMedan) break;
        lembar_->tulis(baris, kolom - 2 * i, std::to_string(AmbilTingkat(nilai, indeks)), JenisSel::Angka);
        ++i;
    }
}

void ClsFlexGrid::FlexDataSH(float nilai, int baris, int kolom) {
    if (lembar_) lembar_->tulis(baris, kolom, CetakAngka32(nilai), JenisSel::Angka);
}

void ClsFlexGrid::FlexTeks(std::string_view teks, int baris, int kolom) {
    if (!lembar_) return;
    const JenisSel jenis = bilanganBulat(teks) ? JenisSel::Angka
                           : adaHurufArab(teks) ? JenisSel::LabelArab
                                                : JenisSel::Label;
    lembar_->tulis(baris, kolom, std::string(teks), jenis);
}

}  // namespace falak
