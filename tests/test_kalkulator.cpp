// The calculator of value rows, as a student or a script uses it from outside.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/Kalkulator.h"
#include "cli/Perintah.h"

using namespace falak::cli;

namespace {
struct Keluaran {
    int status;
    std::string out, err;
};

Keluaran jalankan(const std::vector<std::string>& argumen, const std::string& masukan = "") {
    std::istringstream in(masukan);
    std::ostringstream out, err;
    std::vector<std::string> semua = {"nilai"};
    semua.insert(semua.end(), argumen.begin(), argumen.end());
    const int status = Jalankan(semua, {{}, in, out, err});
    return {status, out.str(), err.str()};
}
}  // namespace

TEST(Kalkulator, OneResultPerOperation) {
    const Keluaran k = jalankan({"tambah;3;3;1;00 20 40 00 00 1;00 15 30 00 00 1", "bagi;3;3;1;00 10 00 00 00 1;00 00 00 00 00 1",
                                 "desimal;3;00 10 -30 00 00 1", "trig;3;3;00 90 00 00 00 1;1", "umum;000 00 00 00 00 45 00 00 00 1"});
    EXPECT_EQ(k.status, 0);
    EXPECT_EQ(k.out, "01 06 10 00 00 1\nERROR\n9.5\n6.189863E+14\n01 15 00 00 00 1\n");
    EXPECT_EQ(k.err, "");
}

TEST(Kalkulator, EveryOperationByItsOwnShape) {
    const Keluaran k = jalankan({"--batch"}, "kurang;3;3;1;00 03 00 00 00 1;00 10 00 00 00 1\n"
                                    "kali;3;3;1;00 12 30 00 00 1;00 00 05 00 00 1\n"
                                    "dlorbu;12;0;0;1;0;1;1\n"
                                    "alamah;2;2024;2;30;0;0;0;0;0;0;1\n"
                                    "kenilai;3;3;2;103.5;0\n"
                                    "kebusur;200;1\n"
                                    "deret;3;1;1;00 00 30 00 00 1;3;00 01 00 00 00 1;0;Kosong;0;Kosong;0;Kosong\n"
                                    "alamahdari;00 30 00 00 00 1;1\r\n"
                                    "tambah;0;3;1;000 00 00 00 06 20 00 00 00 1;000 00 00 00 03 05 30 00 00 1;Kosong;"
                                    "000 00 00 00 00 01 00 00 00 1\n");
    EXPECT_EQ(k.status, 0) << k.err;
    EXPECT_EQ(k.out,
              "00 07 00 00 00 0\n00 01 02 30 00 1\n00 00 00 01 00 1\n2024 03 01 00 00 00 00 00 00 1\n"
              "00 103 30 00 00 0\n00 200 00 00 00 0\n01 00 00 00 00 1\n000 00 01 01 01 06 00 00 00 1\n"
              "000 00 00 01 03 01 30 00 00 1\n");
}

TEST(Kalkulator, MalformedLinesAreNamedAndTheBatchGoesOn) {
    const Keluaran k = jalankan({"--batch"}, "tambah;3;3;1;00 01 00 00 00 1;00 02 00 00 00 1\n"
                                             "pangkat;2;3\n"
                                             "kali;3;3;1;00 01 00 00 00 1\n"
                                             "kali;3;x;1;00 01 00 00 00 1;00 02 00 00 00 1\n"
                                             "kebusur;10;2\n"
                                             "umum;000 00 00 00 00 05 00 00 00 1\n");
    EXPECT_EQ(k.status, 1);
    EXPECT_EQ(k.out, "00 03 00 00 00 1\n00 05 00 00 00 1\n");
    EXPECT_NE(k.err.find("baris 2: operasi \"pangkat\" tidak dikenal"), std::string::npos) << k.err;
    EXPECT_NE(k.err.find("baris 3: jumlah isian salah"), std::string::npos) << k.err;
    EXPECT_NE(k.err.find("baris 4: isian ke-3 (\"x\") bukan angka"), std::string::npos) << k.err;
    EXPECT_NE(k.err.find("baris 5: isian ke-3 harus 0 atau 1"), std::string::npos) << k.err;
}

TEST(Kalkulator, AValueWithAStrayOrSurplusFieldIsRefusedNotReadAsZero) {
    const std::string panjang(70, 'q');
    const Keluaran k = jalankan({"--batch"}, "tambah;3;3;1;00 1o 00 00 00 1;00 01 00 00 00 1\n"
                                             "kurang;3;3;1;00 10 00 00 00 1;0 0 0 0 0 0 0 0 0 0 1\n"
                                             "umum;000 00 00 00 00 05 00 00 00 1 7\n" +
                                                 panjang + ";1\n"
                                             "tambah;3;3;1;-00 01 00 00 00 1;00 02 00 00 00 1\n");
    EXPECT_EQ(k.status, 1);
    EXPECT_EQ(k.out, "00 03 00 00 00 1\n") << "only the sound line is worked";
    EXPECT_NE(k.err.find("baris 1: isian ke-5 (\"00 1o 00 00 00 1\") bukan nilai"), std::string::npos) << k.err;
    EXPECT_NE(k.err.find("baris 2: isian ke-6 (\"0 0 0 0 0 0 0 0 0 0 1\") lebih dari sepuluh medan"), std::string::npos)
        << k.err;
    EXPECT_NE(k.err.find("baris 3: isian ke-2"), std::string::npos) << k.err;
    // A long line is quoted cut short.
    EXPECT_NE(k.err.find("baris 4: operasi \"" + std::string(40, 'q') + "…\" tidak dikenal"), std::string::npos) << k.err;
    EXPECT_EQ(k.err.find(panjang), std::string::npos) << k.err;
}

TEST(Kalkulator, SumsTakeUpToSixOperands) {
    // 1+2+3+4+5+6 degrees = 21; 30 less 1, 2, 3, 4 and 5 degrees = 15; a seventh operand is one too many.
    const Keluaran k = jalankan({"--batch"},
                                "tambah;3;3;1;00 01 00 00 00 1;00 02 00 00 00 1;00 03 00 00 00 1;00 04 00 00 00 1;"
                                "00 05 00 00 00 1;00 06 00 00 00 1\n"
                                "kurang;3;3;1;00 30 00 00 00 1;00 01 00 00 00 1;00 02 00 00 00 1;00 03 00 00 00 1;"
                                "00 04 00 00 00 1;00 05 00 00 00 1\n"
                                "tambah;3;3;1;00 01 00 00 00 1;00 01 00 00 00 1;00 01 00 00 00 1;00 01 00 00 00 1;"
                                "00 01 00 00 00 1;00 01 00 00 00 1;00 01 00 00 00 1\n");
    EXPECT_EQ(k.status, 1);
    EXPECT_EQ(k.out, "00 21 00 00 00 1\n00 15 00 00 00 1\n");
    EXPECT_NE(k.err.find("baris 3: jumlah isian salah (11)"), std::string::npos) << k.err;
}

TEST(Kalkulator, NoOperationIsAUsageError) {
    EXPECT_EQ(jalankan({}).status, 2);
    EXPECT_EQ(jalankan({"--batch", "umum;0"}).status, 2);
}
