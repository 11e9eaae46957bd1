// A folder of tables for one test, made fresh and removed afterwards: the shipped tables, over
// which a test writes the ones it makes itself.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "core/Berkas.h"

namespace falak::uji {

class FolderUji {
public:
    explicit FolderUji(const std::string& nama)
        : akar_(std::filesystem::path(testing::TempDir()) / (nama + "-" + std::to_string(getpid()))) {
        std::filesystem::remove_all(akar_);
        std::filesystem::create_directories(akar_ / "data");
        std::filesystem::create_directories(akar_ / "pengguna");
        for (const auto& berkas : std::filesystem::directory_iterator(FALAK_DATA_UJI))
            if (berkas.path().extension() == ".csv" && berkas.path().filename() != "Balad.csv")
                std::filesystem::copy_file(berkas.path(), akar_ / "data" / berkas.path().filename());
    }
    ~FolderUji() { std::filesystem::remove_all(akar_); }
    FolderUji(const FolderUji&) = delete;
    FolderUji& operator=(const FolderUji&) = delete;

    // Writes a table file of the shipped data.
    void tabel(const std::string& nama, const std::string& isi) const { std::ofstream(akar_ / "data" / (nama + ".csv")) << isi; }
    LokasiData lokasi() const { return {akar_ / "data", akar_ / "pengguna"}; }

private:
    std::filesystem::path akar_;
};

}  // namespace falak::uji
