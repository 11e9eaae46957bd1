// "falak tempat": the places register from the command line, through the same register API
// as the GUI's dialog.
//
//   falak tempat daftar
//   falak tempat tambah NAMA --lintang "7 39 LS" --bujur "112 56 BT" --zona 7 [--tinggi M] [--arab TEKS]
//   falak tempat ubah NAMA [--nama BARU] [--lintang ..] [--bujur ..] [--zona ..] [--tinggi ..] [--arab ..]
//   falak tempat hapus NAMA
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/Berkas.h"

namespace falak::cli {

extern const char* const kBantuanTempat;

// Runs the command on the register of the given folders. Lists and confirmations go to out,
// refusals and problems to err. Returns 0, 1 for a refused change or a failed save, 2 for a
// command written wrongly.
int perintahTempat(const std::vector<std::string>& argumen, const LokasiData& lokasi, std::ostream& out,
                   std::ostream& err);

}  // namespace falak::cli
