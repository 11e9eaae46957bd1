// "falak nilai": the calculator of value rows, with which a student checks his hand work.
#pragma once

#include <string>
#include <string_view>

#include "cli/Perintah.h"

namespace falak::cli {

// The outcome of one operation line: its printed result, or why the line is malformed.
struct HasilBaris {
    bool cacat = false;  // the line is malformed
    std::string teks;    // the result ("ERROR" when the operation has none), or the message
};

// Works one operation written "op;field;field..." and gives its printed result.
HasilBaris hitungBaris(std::string_view baris);

// The command: operations from the arguments, or with --batch one per line from input.
// Results go to out, messages about malformed lines to err. Returns the exit status.
int perintahNilai(const Argumen& a, const Lingkungan& l);

}  // namespace falak::cli
