// The command line's one reader of arguments. Every subcommand is a line in one table (its
// words, its positional arguments, the options it takes and its function), and every option a
// line in one catalogue (its placeholder, its default, its check, its help). Help, usage errors
// and exit statuses come from those two tables, so that they are alike for every subcommand:
//
//   0  done
//   1  the run or the change was refused (a message says why)
//   2  the command was written wrongly: "falak CMD: what is wrong", its usage, where to read more
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/Berkas.h"

namespace falak::cli {

// Where a command reads and writes: the data folders and the three streams.
struct Lingkungan {
    LokasiData lokasi;
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

// A command written wrongly; thrown by the reader or by a subcommand, told with the usage, exit 2.
struct SalahPakai {
    std::string pesan;
};

// One option of the catalogue.
struct Opsi {
    std::string_view nama;        // "--tahun"
    std::string_view isian;       // its placeholder in the usage ("TAHUN"); empty for a switch
    std::string_view keterangan;  // one line of help
    // Why a value is refused (empty when it is good); nullptr takes any value.
    std::string (*periksa)(std::string_view nilai) = nullptr;
    std::string_view bawaan{};    // the value when it is not given; empty: none
    std::string_view alias{};     // another name that means the same
};

enum class Syarat { Boleh, Wajib };

// An option as one subcommand takes it.
struct PakaiOpsi {
    std::string_view nama;
    Syarat syarat = Syarat::Boleh;
};

class Argumen;
using FungsiPerintah = int (*)(const Argumen&, const Lingkungan&);

// One subcommand: its words ("hisab", "tempat tambah"), the positional arguments as the usage
// shows them and how many there may be, its options, one line of help, and its function.
struct Perintah {
    std::string_view nama;
    std::string_view posisi;  // "NAMA", "[OPERASI...]", or empty
    size_t posisiSedikit = 0;
    size_t posisiBanyak = 0;
    std::vector<PakaiOpsi> opsi;
    std::string_view ringkas;
    FungsiPerintah jalankan = nullptr;
};

// The arguments of one subcommand as the reader found them, every value already checked.
class Argumen {
public:
    Argumen(const Perintah& perintah, std::map<std::string_view, std::string> nilai, std::vector<std::string> posisi)
        : perintah_(perintah), nilai_(std::move(nilai)), posisi_(std::move(posisi)) {}

    const Perintah& perintah() const { return perintah_; }
    // Whether the option (or switch) was given.
    bool ada(std::string_view opsi) const { return nilai_.contains(opsi); }
    // The option's value, or its default, or empty.
    std::string teks(std::string_view opsi) const;
    // The value of an option whose check admits only whole numbers.
    int32_t bulat(std::string_view opsi) const;
    const std::vector<std::string>& posisi() const { return posisi_; }
    // The options given, by their catalogue names, with their values.
    const std::map<std::string_view, std::string>& semua() const { return nilai_; }

private:
    const Perintah& perintah_;
    std::map<std::string_view, std::string> nilai_;
    std::vector<std::string> posisi_;
};

const std::vector<Opsi>& DaftarOpsi();
const std::vector<Perintah>& DaftarPerintah();
const Opsi* CariOpsi(std::string_view nama);

// The usage line of a subcommand: "falak hisab --kitab KODE ... [--json]".
std::string Pemakaian(const Perintah& p);
// The whole help of a subcommand, and of the program.
std::string Bantuan(const Perintah& p);
std::string BantuanUmum();

// Reads the subcommand's own arguments (those after its words). Throws SalahPakai.
Argumen BacaArgumen(const Perintah& p, const std::vector<std::string>& argumen);

// The program: finds the subcommand, reads its arguments, runs it. Returns the exit status.
int Jalankan(const std::vector<std::string>& argumen, const Lingkungan& l);

// A refusal in the common style ("falak CMD: message"); returns 1.
int Tolak(const Argumen& a, const Lingkungan& l, std::string_view pesan);

}  // namespace falak::cli
