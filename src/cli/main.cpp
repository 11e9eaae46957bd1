// falak: the command line of the reckoning.
#include <iostream>
#include <string>
#include <vector>

#include "cli/Kalkulator.h"
#include "cli/PerintahBatch.h"
#include "cli/PerintahHisab.h"
#include "cli/PerintahTempat.h"

namespace {

const std::string kBantuan =
    std::string("falak: hisab ilmu falak menurut kitab-kitab pesantren\n"
                "\n"
                "Pemakaian:\n"
                "  falak nilai OPERASI...          kalkulator nilai (mis. 'tambah;3;3;1;00 10 00 00 00 1;00 20 00 00 00 1')\n"
                "  falak nilai --batch             operasi satu per baris dari masukan baku\n"
                "  falak hisab --kitab SN --tahun 1445 --bulan 8 [--markaz NAMA] [--json] [--xlsx BERKAS]\n"
                "                                  ijtima' dan hilal akhir bulan itu menurut satu kitab\n"
                "                                  (--xlsx: lembar hisab dan kesimpulannya ke berkas .xlsx)\n"
                "                                  (kitab: SN, FR, IDB1, SH, TZ, KW1, FK)\n") +
    falak::cli::kBantuanBatch +
    falak::cli::kBantuanTempat;

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> argumen(argv + 1, argv + argc);
    if (argumen.empty() || argumen[0] == "--help" || argumen[0] == "-h" || argumen[0] == "bantuan") {
        std::cout << kBantuan;
        return argumen.empty() ? 2 : 0;
    }
    const std::string perintah = argumen[0];
    argumen.erase(argumen.begin());
    if (perintah == "nilai") return falak::cli::perintahNilai(argumen, std::cin, std::cout, std::cerr);
    if (perintah == "hisab") return falak::cli::perintahHisab(argumen, std::cout, std::cerr);
    if (perintah == "semua") return falak::cli::perintahSemua(argumen, falak::CariLokasiData(), std::cout, std::cerr);
    if (perintah == "setahun") return falak::cli::perintahSetahun(argumen, falak::CariLokasiData(), std::cout, std::cerr);
    if (perintah == "tempat") return falak::cli::perintahTempat(argumen, falak::CariLokasiData(), std::cout, std::cerr);
    std::cerr << "falak: perintah \"" << perintah << "\" tidak dikenal\n\n" << kBantuan;
    return 2;
}
