// The places register (table Daerah): the one table the user changes.
//
// The factory copy Balad.csv ships with the tables; the working copy Daerah.csv lives in the
// user's data folder and is made from the factory copy when it is missing. A save replaces the
// working copy whole or not at all. Adding, changing and deleting a place go through
// RegisterDaerah, which the dialogs of the GUI and the commands of the CLI share; it refuses
// bad input with a message in the users' own words.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Berkas.h"
#include "core/Tabel.h"
#include "core/Tempat.h"

namespace falak {

// The register's columns, in the order of a new file.
inline constexpr std::array<std::string_view, 10> kKolomDaerah = {
    "BaladIN",     "BaladAR", "DarojatArdlu", "DaqiqohArdlu", "ArahArdlu",
    "DarojatThul", "DaqiqohThul", "ArahThul", "ZonaTime",     "Ketinggian"};

inline std::filesystem::path BerkasDaerah(const LokasiData& lokasi) { return lokasi.pengguna / "Daerah.csv"; }
inline std::filesystem::path BerkasBalad(const LokasiData& lokasi) { return lokasi.data / "Balad.csv"; }

// Opens the working copy into the table, first making it from the factory copy when it is
// missing. Returns an empty text, or what went wrong: the table is then closed, or open on
// the factory copy when the working copy could not be made, or open on the good rows of a
// damaged working copy (a row that does not read, or whose values would be refused as input,
// is left out and told with its line; the file stays as it is until the user mends it).
std::string BukaDaerah(Tabel& daerah, const LokasiData& lokasi);

// The place record of a register row: names trimmed, "LS" south and anything else north,
// "BT" east and anything else west, numbers read as the kernel reads table cells.
Tempat TempatDariBaris(const Tabel& daerah, size_t baris);
// The run's search "BaladIN = 'name'": the record of the first row with that name (compared
// as RegisterDaerah::cari compares, trimmed and without regard to case), and the table's
// cursor on it; no value when the place is not there.
std::optional<Tempat> CariTempat(Tabel& daerah, std::string_view nama);

// A place as the user types it, field by field.
struct IsianTempat {
    std::string nama;
    std::string namaTampil;  // empty: the name itself
    std::string lintangDerajat, lintangMenit, arahLintang;  // arah "LU" or "LS"
    std::string bujurDerajat, bujurMenit, arahBujur;        // arah "BT" or "BB"
    std::string zona;
    std::string tinggi;  // metres; empty is 0
};

class RegisterDaerah {
public:
    // The register works on the table (Daerah, opened by BukaDaerah) and saves to the file.
    RegisterDaerah(Tabel& daerah, std::filesystem::path berkas);

    const std::filesystem::path& berkas() const { return berkas_; }
    // The places in stored order.
    std::vector<Tempat> daftar() const;
    // The row of a place (names compared trimmed, without regard to case), or none.
    std::optional<size_t> cari(std::string_view nama) const;
    // The stored fields of a row, as a form would show them for a change.
    IsianTempat isian(size_t baris) const;

    // Each returns an empty text when the change is made in memory, else why it is refused.
    // Nothing reaches the file before simpan().
    std::string tambah(const IsianTempat& isian);
    std::string ubah(std::string_view nama, const IsianTempat& isian);
    std::string hapus(std::string_view nama);
    // Writes the working copy, under the register's lock. Refused when the file on the disk is
    // read-only or damaged, so that nothing in it is lost. Empty text, or the message to show;
    // the file on the disk is then the one of the last good save.
    std::string simpan();

    // One change as a whole, under the register's lock: the working copy is read afresh (so that
    // what another program saved meanwhile is kept), the change is made and saved. On success
    // the table holds the file as saved; otherwise it is as it was. Empty text, or the message.
    static std::string Ubah(Tabel& daerah, const LokasiData& lokasi,
                            const std::function<std::string(RegisterDaerah&)>& ubah);

    // Leaves out the rows whose values would be refused as input (a latitude that is not a
    // number would read as 0° in a run), each told with its line of the file.
    std::vector<std::string> singkirkanBarisRusak(const std::vector<size_t>& barisBerkas);

private:
    std::string bolehDiubah() const;
    std::string bolehDitulis() const;
    std::string tulisBerkas();
    std::string kolomLengkap() const;
    std::string periksa(const IsianTempat& isian, std::optional<size_t> kecuali) const;
    void tulis(size_t baris, const IsianTempat& isian);

    Tabel& daerah_;
    std::filesystem::path berkas_;
};

}  // namespace falak
