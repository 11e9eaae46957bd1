#include "core/Berkas.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#ifndef FALAK_DATA_DIR
#define FALAK_DATA_DIR "data"
#endif

namespace fs = std::filesystem;

namespace falak {

namespace {

std::string lingkungan(const char* nama) {
    const char* v = std::getenv(nama);
    return v ? std::string(v) : std::string();
}

// The system's reason in the users' words where we have them.
std::string alasanSistem(int kode) {
    switch (kode) {
        case ENOENT: return "berkas atau foldernya tidak ada";
        case EACCES:
        case EPERM: return "tidak ada izin";
        case ENOSPC: return "disk penuh";
        case EFBIG: return "berkas kebesaran untuk disk ini";
        case EROFS: return "disk hanya bisa dibaca";
        case ENOTDIR: return "jalurnya bukan folder";
        case EISDIR: return "itu folder, bukan berkas";
        default: return std::strerror(kode);
    }
}

#ifndef _WIN32
// Writes all of isi to fd, riding over interrupted and partial writes.
int tulisSemua(int fd, std::string_view isi) {
    while (!isi.empty()) {
        const ssize_t n = ::write(fd, isi.data(), isi.size());
        if (n < 0) {
            if (errno == EINTR) continue;
            return errno;
        }
        isi.remove_prefix(static_cast<size_t>(n));
    }
    return 0;
}

// The rename itself lives in the folder: flush the folder too, so that it survives a crash.
void sinkronFolder(const fs::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}
#endif

}  // namespace

fs::path FolderProgram() {
#ifdef _WIN32
    std::wstring buf(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = GetModuleFileNameW(nullptr, buf.data(), static_cast<DWORD>(buf.size()));
        if (n == 0) return {};
        if (n < buf.size()) {
            buf.resize(n);
            return fs::path(buf).parent_path();
        }
        buf.resize(buf.size() * 2);
    }
#else
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    return ec ? fs::path() : exe.parent_path();
#endif
}

fs::path FolderData() {
    const std::string env = lingkungan("FALAK_DATA");
    if (!env.empty()) return fs::path(env);
    std::error_code ec;
    fs::path folder = FolderProgram();
    for (int naik = 0; naik <= 3 && !folder.empty(); ++naik) {
        if (fs::is_directory(folder / "data", ec)) return folder / "data";
        if (!folder.has_parent_path() || folder.parent_path() == folder) break;
        folder = folder.parent_path();
    }
    return fs::path(FALAK_DATA_DIR);
}

fs::path FolderPengguna() {
    const std::string env = lingkungan("FALAK_DATA_HOME");
    if (!env.empty()) return fs::path(env);
#ifdef _WIN32
    const std::string appData = lingkungan("APPDATA");
    if (!appData.empty()) return fs::path(appData) / "falak";
    return fs::path("falak");
#else
    const std::string xdg = lingkungan("XDG_DATA_HOME");
    // The XDG rule: a relative value is to be ignored.
    if (!xdg.empty() && fs::path(xdg).is_absolute()) return fs::path(xdg) / "falak";
    const std::string home = lingkungan("HOME");
    return fs::path(home.empty() ? "." : home) / ".local" / "share" / "falak";
#endif
}

std::string BacaBerkas(const fs::path& berkas, std::string& isi) {
    std::error_code ec;
    if (!fs::exists(berkas, ec)) return "berkas tidak ada";
    if (fs::is_directory(berkas, ec)) return alasanSistem(EISDIR);
    std::ifstream in(berkas, std::ios::binary);
    if (!in) return "tidak bisa dibuka (" + alasanSistem(errno) + ")";
    in.seekg(0, std::ios::end);
    const std::streamoff ukuran = in.tellg();
    if (ukuran < 0) return "tidak bisa dibaca";
    in.seekg(0, std::ios::beg);
    isi.resize(static_cast<size_t>(ukuran));
    if (ukuran > 0 && !in.read(isi.data(), ukuran)) return "tidak bisa dibaca sampai habis";
    return {};
}

std::string TulisAtomik(const fs::path& berkas, std::string_view isi) {
    const fs::path folder = berkas.has_parent_path() ? berkas.parent_path() : fs::path(".");
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec) return "folder " + folder.string() + " tidak bisa dibuat (" + alasanSistem(ec.value()) + ")";

#ifdef _WIN32
    const fs::path sementara = folder / ("~" + berkas.filename().string() + ".tmp");
    FILE* f = _wfopen(sementara.c_str(), L"wb");
    if (!f) return "berkas sementara tidak bisa dibuat (" + alasanSistem(errno) + ")";
    const bool ok = std::fwrite(isi.data(), 1, isi.size(), f) == isi.size() && std::fflush(f) == 0 &&
                    _commit(_fileno(f)) == 0;
    const int kode = errno;
    std::fclose(f);
    if (!ok) {
        fs::remove(sementara, ec);
        return "gagal menulis (" + alasanSistem(kode) + ")";
    }
    if (!MoveFileExW(sementara.c_str(), berkas.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        fs::remove(sementara, ec);
        return "berkas tidak bisa diganti (kode " + std::to_string(GetLastError()) + ")";
    }
    return {};
#else
    std::string pola = (folder / ("." + berkas.filename().string() + ".XXXXXX")).string();
    const int fd = ::mkstemp(pola.data());
    if (fd < 0) return "berkas sementara tidak bisa dibuat di " + folder.string() + " (" + alasanSistem(errno) + ")";
    int kode = tulisSemua(fd, isi);
    if (kode == 0 && ::fsync(fd) != 0) kode = errno;
    // The file keeps its own permissions; a new one gets those of an ordinary file rather
    // than mkstemp's private ones.
    struct stat lama {};
    if (kode == 0) ::fchmod(fd, ::stat(berkas.c_str(), &lama) == 0 ? (lama.st_mode & 07777) : 0644);
    if (::close(fd) != 0 && kode == 0) kode = errno;
    if (kode == 0 && std::rename(pola.c_str(), berkas.c_str()) != 0) kode = errno;
    if (kode != 0) {
        ::unlink(pola.c_str());
        return "gagal menulis (" + alasanSistem(kode) + ")";
    }
    sinkronFolder(folder);
    return {};
#endif
}

namespace {

// The names TulisAtomik gives its temporary file.
bool namaSementara(const std::string& nama, const std::string& berkas) {
#ifdef _WIN32
    return nama == "~" + berkas + ".tmp";
#else
    const std::string awal = "." + berkas + ".";
    return nama.size() == awal.size() + 6 && nama.starts_with(awal);
#endif
}

}  // namespace

void HapusSisaSementara(const fs::path& berkas) {
    const fs::path folder = berkas.has_parent_path() ? berkas.parent_path() : fs::path(".");
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), akhir; !ec && it != akhir; it.increment(ec))
        if (namaSementara(it->path().filename().string(), berkas.filename().string())) {
            std::error_code abaikan;
            fs::remove(it->path(), abaikan);
        }
}

KunciBerkas::KunciBerkas(const fs::path& berkasKunci) {
    std::error_code ec;
    if (berkasKunci.has_parent_path()) fs::create_directories(berkasKunci.parent_path(), ec);
#ifdef _WIN32
    HANDLE h = CreateFileW(berkasKunci.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                           nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    OVERLAPPED o{};
    if (h == INVALID_HANDLE_VALUE || !LockFileEx(h, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &o)) {
        masalah_ = "kunci " + berkasKunci.string() + " tidak bisa dipegang (kode " + std::to_string(GetLastError()) + ")";
        if (h != INVALID_HANDLE_VALUE) CloseHandle(h);
        return;
    }
    pegangan_ = h;
#else
    fd_ = ::open(berkasKunci.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd_ < 0) {
        masalah_ = "kunci " + berkasKunci.string() + " tidak bisa dibuat (" + alasanSistem(errno) + ")";
        return;
    }
    int hasil;
    do hasil = ::flock(fd_, LOCK_EX);
    while (hasil != 0 && errno == EINTR);
    if (hasil != 0) {
        masalah_ = "kunci " + berkasKunci.string() + " tidak bisa dipegang (" + alasanSistem(errno) + ")";
        ::close(fd_);
        fd_ = -1;
    }
#endif
}

KunciBerkas::~KunciBerkas() {
#ifdef _WIN32
    if (pegangan_) CloseHandle(static_cast<HANDLE>(pegangan_));
#else
    if (fd_ >= 0) ::close(fd_);  // closing lets the lock go
#endif
}

}  // namespace falak
