// falak: the command line of the reckoning.
#include <iostream>
#include <string>
#include <vector>

#include "cli/Perintah.h"

int main(int argc, char** argv) {
    const falak::cli::Lingkungan l{falak::CariLokasiData(), std::cin, std::cout, std::cerr};
    return falak::cli::Jalankan(std::vector<std::string>(argv + 1, argv + argc), l);
}
