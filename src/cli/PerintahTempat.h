// "falak tempat": the places register from the command line, through the same register API
// as the window's dialog. Lists and confirmations go to out, refusals and problems to err; a
// refused change or a failed save exits 1.
#pragma once

#include "cli/Perintah.h"

namespace falak::cli {

int perintahTempatDaftar(const Argumen& a, const Lingkungan& l);
int perintahTempatTambah(const Argumen& a, const Lingkungan& l);
int perintahTempatUbah(const Argumen& a, const Lingkungan& l);
int perintahTempatHapus(const Argumen& a, const Lingkungan& l);

}  // namespace falak::cli
