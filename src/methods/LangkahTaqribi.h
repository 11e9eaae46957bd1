// Steps that the taqribi treatises on value rows work alike, each on its own rows: the lunar
// mansion of the sun's place, the hours between the luminaries, the place's correction, and
// the hilal's height, stay and light from the hours before sunset.
#pragma once

#include <span>

#include "core/Nilai.h"
#include "core/Tempat.h"

namespace falak {

class Tabel;

// Manzil 1 to 6: the sun's place, the degrees run in its mansion, the next degree (after the
// thirteenth the first again), the minutes and smaller parts of the place, their sum, and
// the mansion's name, from the mansions' rows of the equation table.
void HitungManzil(std::span<Nilai, 6> manzil, const Nilai& matahari, Tabel& trbTaadil);

// Saah 1 to 5: the moon's correction less the minutes of the day's equation, times the hours
// per degree of elongation.
void HitungSaah(std::span<Nilai, 5> saah, const Nilai& koreksiQomar, const Nilai& daqoiq, const Nilai& hishshohSaah);

// The place's longitude less the markaz's, in hours of time, as an alamah value.
Nilai SelisihBujur(const Tempat& tempat, int bujurDerajat, int bujurMenit, bool bertanggal);

// The ijtima' at the place: the ijtima' at the markaz (an alamah value of the given kind) with
// the place's correction added. The result is a moment of the week, always plus.
Nilai IjtimaDiTempat(int jenis, const Nilai& diMarkaz, const Nilai& selisihBujur);

// Hilal 3 to 7 and Nur from the hours between the ijtima' and sunset in Hilal 3: the height at
// 0° 30' an hour, the stay at 0° 4' a degree, and the light: the latitude's share plus the stay.
void TinggiHilal(std::span<Nilai, 7> hilal, std::span<Nilai, 2> nur, const Nilai& cahayaLintang);

// Hilal 1 to 3 with sunset fixed at 24 hours of the alamah's clock, then the height and light.
void HilalMaghribTetap(std::span<Nilai, 7> hilal, std::span<Nilai, 2> nur, const Nilai& ijtima,
                       const Nilai& cahayaLintang);

}  // namespace falak
