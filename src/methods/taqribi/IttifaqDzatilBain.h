// Ittifaq Dzatu al-Bain, taqribi form: the skeleton of Fathu al-Ro'uf al-Mannan whose alamah
// carries a Masehi date (its base is Kamis Kliwon 15 July 622, a group of thirty years is 29
// years and a month on the calendar), with its markaz at Surabaya (112° 46' in the reckoning;
// its conclusion names 7° 15' S, 112° 45' E, a minute less, as the book prints it). After the
// hilal it works the place and time of the hilal with sines for the place (the rows Waktu).
#pragma once

#include <array>
#include <string>

#include "methods/taqribi/KerangkaTaqribi.h"

namespace falak {

// The month row's alamah with the Masehi days of the month (mshTh, mshBln, mshTgl, Pasaran).
std::optional<Nilai> AlamahSyahrMasehi(const Tabel& syahru, std::string_view akhiran);

class IttifaqDzatilBain : public KerangkaTaqribi {
public:
    explicit IttifaqDzatilBain(Konteks k);

    void IjtimaFR() override;
    void HilalFR() override;
    // The place and time of the hilal: declination of the sun's place, the latitude, the
    // equation of sunset in degrees and in time, the ijtima's hour, and their sum.
    void WaktuIDB1();

    Baris<7> Waktu;
    std::array<std::string, 6> Tanda;  // "-" for a minus cell of Waktu: 2, latitude, 4, 5, 6, 7
    std::array<Nilai, 2> TanggalMasehi;  // the date step's two lines

protected:
    IttifaqDzatilBain(Konteks k, const DataKitabFR& data);

    std::optional<Nilai> alamahSyahr(const Tabel& syahru, std::string_view akhiran) const override;
    Nilai hariIjtima() override;
    void tulisSelTambahan(ClsFlexGrid& g) override;
    void catatTambahan(std::vector<BarisTercatat>& baris) const override;
    // The place correction leaves its count of days (Faidlu al-Karim) or not.
    virtual bool bujurBertanggal() const { return false; }
};

}  // namespace falak
