// The program's files: where the shipped tables and the user's own data live, and how a file
// the user cares about is written so that no save can leave it half-written.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace falak {

// The two folders a session reads: the shipped tables, and the user's data (the places register).
struct LokasiData {
    std::filesystem::path data;
    std::filesystem::path pengguna;
};

// Folder of the running executable; empty when the platform does not tell.
std::filesystem::path FolderProgram();

// The folder of the shipped tables, searched in this order: the environment variable FALAK_DATA,
// a folder "data" beside the executable or beside one of its parents up to three levels up,
// then the folder fixed when the program was built. The last is returned even when it does not
// exist, so that the tables' readers can name the place they looked in.
std::filesystem::path FolderData();

// The user's data folder: FALAK_DATA_HOME when set; otherwise %APPDATA%\falak on Windows and
// $XDG_DATA_HOME/falak or ~/.local/share/falak elsewhere. It is not created here.
std::filesystem::path FolderPengguna();

// Both folders as a session finds them.
inline LokasiData CariLokasiData() { return {FolderData(), FolderPengguna()}; }

// Reads a whole file into isi. Returns an empty text, or why the file could not be read.
std::string BacaBerkas(const std::filesystem::path& berkas, std::string& isi);

// Replaces a file by the given content, or leaves it exactly as it was: the content goes to a
// temporary file in the same folder, is flushed to the disk, and only then takes the file's
// name. The folder is made when missing. Returns an empty text, or why the file could not be
// written (a full disk, a folder that may not be written ...); the old file is then whole.
std::string TulisAtomik(const std::filesystem::path& berkas, std::string_view isi);

// Removes what an interrupted TulisAtomik of this file may have left beside it. Call it only
// while no one else writes the file (under its KunciBerkas).
void HapusSisaSementara(const std::filesystem::path& berkas);

// An exclusive advisory lock on a lock file, held while the object lives, so that the programs
// that read, change and write one file take turns and none loses another's change. The lock
// file is made when missing, with its folder, and stays.
class KunciBerkas {
public:
    explicit KunciBerkas(const std::filesystem::path& berkasKunci);
    ~KunciBerkas();
    KunciBerkas(const KunciBerkas&) = delete;
    KunciBerkas& operator=(const KunciBerkas&) = delete;

    // Empty when the lock is held, else why it could not be taken.
    const std::string& masalah() const { return masalah_; }

private:
#ifdef _WIN32
    void* pegangan_ = nullptr;
#else
    int fd_ = -1;
#endif
    std::string masalah_;
};

}  // namespace falak
