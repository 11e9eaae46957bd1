#include "cli/Perintah.h"

#include <algorithm>
#include <charconv>
#include <ostream>

#include "cli/Kalkulator.h"
#include "cli/PerintahBatch.h"
#include "cli/PerintahGerhana.h"
#include "cli/PerintahHisab.h"
#include "cli/PerintahKalender.h"
#include "cli/PerintahTempat.h"
#include "run/Workspace.h"

namespace falak::cli {

namespace {

using enum Syarat;

std::string periksaTahun(std::string_view v) {
    const auto pesan = Workspace::periksaTahun(std::string(v));
    return pesan ? pesan->teks : std::string();
}

std::string periksaBulan(std::string_view v) {
    int b = 0;
    const auto [akhir, ec] = std::from_chars(v.data(), v.data() + v.size(), b);
    if (ec != std::errc() || akhir != v.data() + v.size() || b < 1 || b > 12)
        return "bulan \"" + std::string(v) + "\" tidak ada; pilihlah 1 sampai 12 (1 Muharrom ... 12 Dzulhijjah)";
    return {};
}

std::string daftarKitab() {
    std::string s;
    for (const EntriModul* k : Workspace::kitabTerdaftar())
        if (k->buat) s += (s.empty() ? "" : ", ") + std::string(k->kode);
    return s;
}

// A treatise whose month module exists, or "semua" where a subcommand takes every one.
std::string periksaKitab(std::string_view v) {
    if (v == "semua") return {};
    const EntriModul* e = CariModul(v);
    if (!e) return "kitab \"" + std::string(v) + "\" tidak dikenal; pilihlah " + daftarKitab();
    if (!e->buat) return "kitab " + std::string(e->nama) + " belum tersedia; pilihlah " + daftarKitab();
    return {};
}

std::string periksaJenis(std::string_view v) {
    if (v == "bulan" || v == "matahari") return {};
    return "jenis \"" + std::string(v) + "\" tidak dikenal; pilihlah bulan atau matahari";
}

}  // namespace

// The catalogue of options. A new option is one line here, and its name in the lines of the
// subcommands that take it.
const std::vector<Opsi>& DaftarOpsi() {
    static const std::vector<Opsi> daftar = {
        {"--kitab", "KODE", "kitab yang dipakai", periksaKitab, "SN"},
        {"--tahun", "TAHUN", "tahun Hijriyah", periksaTahun},
        {"--bulan", "BULAN", "bulan Hijriyah yang di akhirnya ijtima' dicari (8 Sya'ban: hilal Ramadan)", periksaBulan},
        {.nama = "--markaz", .isian = "NAMA", .keterangan = "tempat dari daftar tempat (huruf besar kecil sama saja)",
         .bawaan = "Pasuruan", .alias = "--tempat"},
        {"--json", "", "keluaran JSON"},
        {"--rumus", "", "lembar rumus kitab tahqiqi sesudah kesimpulan"},
        {"--deltat", "", "Ephemeris memakai delta T: jam ijtima' dalam waktu universal (bawaan: tanpa, seperti kitabnya)"},
        {"--xlsx", "BERKAS", "lembar hisab dan kesimpulannya ke berkas .xlsx"},
#ifdef FALAK_PDF
        {"--pdf", "BERKAS", "lembar hisab dan kesimpulannya ke berkas .pdf (satu halaman A4)"},
        {"--odt", "BERKAS", "lembar rumus kitab tahqiqi ke berkas .odt (pengolah kata)"},
#else
        {"--odt", "BERKAS", "tidak tersedia: falak ini dibangun tanpa Qt"},
        {"--pdf", "BERKAS", "tidak tersedia: falak ini dibangun tanpa Qt"},
#endif
        {"--batch", "", "operasi satu per baris dari masukan baku"},
        {"--nama", "BARU", "nama baru tempat itu"},
        {"--lintang", "SUDUT", "lintang, mis. \"7 39 LS\" (derajat, menit, LU/LS)"},
        {"--bujur", "SUDUT", "bujur, mis. \"112 56 BT\" (derajat, menit, BT/BB)"},
        {"--zona", "JAM", "zona waktu, mis. 7 untuk WIB"},
        {"--tinggi", "METER", "tinggi tempat di atas laut"},
        {"--arab", "TEKS", "nama tampilan (mis. dalam huruf Arab)"},
        {"--jenis", "bulan|matahari", "gerhana bulan atau gerhana matahari", periksaJenis, "bulan"},
        {"--sampai", "TAHUN", "tahun Hijriyah terakhir pencarian", periksaTahun},
        {"--hijriah", "", "tahunnya tahun Hijriyah, bulannya bulan Hijriyah (tanpa ini: tahun Masehi)"},
    };
    return daftar;
}

// The table of subcommands. A new subcommand is one line here.
const std::vector<Perintah>& DaftarPerintah() {
    static const std::vector<Perintah> daftar = {
        {"hisab", "", 0, 0,
         {{"--kitab"}, {"--tahun", Wajib}, {"--bulan", Wajib}, {"--markaz"}, {"--json"}, {"--xlsx"}, {"--pdf"},
          {"--rumus"}, {"--odt"}, {"--deltat"}},
         "ijtima' dan hilal akhir bulan itu menurut satu kitab: lembar kerja dan kesimpulannya", perintahHisab},
        {"semua", "", 0, 0, {{"--tahun", Wajib}, {"--bulan", Wajib}, {"--markaz"}, {"--json"}, {"--xlsx"}, {"--deltat"}},
         "ijtima' dan awal bulan menurut semua kitab, satu baris sekitab", perintahSemua},
        {"setahun", "", 0, 0, {{"--kitab"}, {"--tahun", Wajib}, {"--markaz"}, {"--json"}, {"--xlsx"}},
         "dua belas bulan setahun menurut satu kitab (--kitab semua: menurut semua kitab)", perintahSetahun},
        {"gerhana", "", 0, 0,
         {{"--jenis"}, {"--kitab"}, {"--tahun", Wajib}, {"--sampai"}, {"--bulan"}, {"--markaz"}, {"--json"}, {"--xlsx"},
          {"--pdf"}},
         "gerhana yang ditemukan kitab itu, satu per baris dengan waktu fasenya (--bulan: lembar kerja "
         "dan kesimpulan gerhana bulan itu)",
         perintahGerhana},
        {"kalender", "", 0, 0,
         {{"--tahun", Wajib}, {"--hijriah"}, {"--kitab"}, {"--markaz"}, {"--json"}, {"--xlsx"}, {"--pdf"}},
         "kalender setahun: tanggal Hijriyah dan pasaran tiap hari, awal bulan Hijriyah ditandai *", perintahKalender},
        {"tempat daftar", "", 0, 0, {}, "daftar tempat dan berkas yang dipakai", perintahTempatDaftar},
        {"tempat tambah", "NAMA", 1, 1,
         {{"--lintang", Wajib}, {"--bujur", Wajib}, {"--zona", Wajib}, {"--tinggi"}, {"--arab"}},
         "menambah tempat ke daftar", perintahTempatTambah},
        {"tempat ubah", "NAMA", 1, 1,
         {{"--nama"}, {"--lintang"}, {"--bujur"}, {"--zona"}, {"--tinggi"}, {"--arab"}},
         "mengubah tempat yang ada (hanya isian yang ditulis)", perintahTempatUbah},
        {"tempat hapus", "NAMA", 1, 1, {}, "menghapus tempat dari daftar", perintahTempatHapus},
        {"nilai", "[OPERASI...]", 0, SIZE_MAX, {{"--batch"}},
         "kalkulator nilai, mis. 'tambah;3;3;1;00 10 00 00 00 1;00 20 00 00 00 1'", perintahNilai},
    };
    return daftar;
}

const Opsi* CariOpsi(std::string_view nama) {
    for (const Opsi& o : DaftarOpsi())
        if (o.nama == nama || (!o.alias.empty() && o.alias == nama)) return &o;
    return nullptr;
}

std::string Argumen::teks(std::string_view opsi) const {
    if (const auto it = nilai_.find(opsi); it != nilai_.end()) return it->second;
    const Opsi* o = CariOpsi(opsi);
    return o ? std::string(o->bawaan) : std::string();
}

int32_t Argumen::bulat(std::string_view opsi) const {
    const std::string s = teks(opsi);
    int32_t v = 0;
    std::from_chars(s.data(), s.data() + s.size(), v);
    return v;
}

std::string Pemakaian(const Perintah& p) {
    std::string s = "falak " + std::string(p.nama);
    if (!p.posisi.empty()) s += " " + std::string(p.posisi);
    for (const PakaiOpsi& po : p.opsi) {
        const Opsi& o = *CariOpsi(po.nama);
        std::string bagian(o.nama);
        if (!o.isian.empty()) bagian += " " + std::string(o.isian);
        s += " " + (po.syarat == Wajib ? bagian : "[" + bagian + "]");
    }
    return s;
}

std::string Bantuan(const Perintah& p) {
    std::string s = "Pemakaian: " + Pemakaian(p) + "\n" + std::string(p.ringkas) + "\n";
    std::vector<std::pair<std::string, std::string>> baris;
    for (const PakaiOpsi& po : p.opsi) {
        const Opsi& o = *CariOpsi(po.nama);
        std::string kiri(o.nama);
        if (!o.isian.empty()) kiri += " " + std::string(o.isian);
        std::string kanan(o.keterangan);
        if (!o.bawaan.empty()) kanan += " (bawaan: " + std::string(o.bawaan) + ")";
        if (o.nama == "--kitab") kanan += ": " + daftarKitab() + (p.nama == "setahun" ? ", semua" : "");
        baris.emplace_back(std::move(kiri), std::move(kanan));
    }
    baris.emplace_back("--help", "keterangan ini");
    size_t lebar = 0;
    for (const auto& [kiri, _] : baris) lebar = std::max(lebar, kiri.size());
    s += "\nPilihan:\n";
    for (const auto& [kiri, kanan] : baris) s += "  " + kiri + std::string(lebar - kiri.size() + 2, ' ') + kanan + "\n";
    return s;
}

std::string BantuanUmum() {
    std::string s = "falak: hisab ilmu falak menurut kitab-kitab pesantren\n\nPemakaian:\n";
    for (const Perintah& p : DaftarPerintah()) s += "  " + Pemakaian(p) + "\n      " + std::string(p.ringkas) + "\n";
    s += "  falak --version\n\nKitab: " + daftarKitab() +
         "\nKeterangan satu perintah: falak PERINTAH --help (mis. falak tempat tambah --help)\n";
    return s;
}

Argumen BacaArgumen(const Perintah& p, const std::vector<std::string>& argumen) {
    std::map<std::string_view, std::string> nilai;
    std::vector<std::string> posisi;
    for (size_t i = 0; i < argumen.size(); ++i) {
        const std::string& a = argumen[i];
        if (!a.starts_with("--")) {
            posisi.push_back(a);
            continue;
        }
        const size_t samaDengan = a.find('=');
        const std::string nama = a.substr(0, samaDengan);
        const Opsi* o = CariOpsi(nama);
        if (!o || std::none_of(p.opsi.begin(), p.opsi.end(), [&](const PakaiOpsi& po) { return po.nama == o->nama; }))
            throw SalahPakai{"pilihan " + nama + " tidak dikenal"};
        std::string isi;
        if (o->isian.empty()) {
            if (samaDengan != std::string::npos) throw SalahPakai{"pilihan " + nama + " tidak memakai isian"};
        } else if (samaDengan != std::string::npos) {
            isi = a.substr(samaDengan + 1);
        } else if (i + 1 < argumen.size()) {
            isi = argumen[++i];
        } else {
            throw SalahPakai{"pilihan " + nama + " belum diberi isian " + std::string(o->isian)};
        }
        if (o->periksa)
            if (std::string salah = o->periksa(isi); !salah.empty()) throw SalahPakai{salah};
        if (!nilai.emplace(o->nama, std::move(isi)).second)
            throw SalahPakai{"pilihan " + std::string(o->nama) + " ditulis dua kali"};
    }
    for (const PakaiOpsi& po : p.opsi)
        if (po.syarat == Wajib && !nilai.contains(po.nama))
            throw SalahPakai{"pilihan " + std::string(po.nama) + " wajib diisi"};
    if (posisi.size() < p.posisiSedikit)
        throw SalahPakai{p.posisiSedikit == 1 && !p.posisi.empty() ? std::string(p.posisi) + " belum ditulis"
                                                                   : "isiannya kurang"};
    if (posisi.size() > p.posisiBanyak)
        throw SalahPakai{"isian \"" + posisi[p.posisiBanyak] + "\" tidak dikenal"};
    return Argumen(p, std::move(nilai), std::move(posisi));
}

int Tolak(const Argumen& a, const Lingkungan& l, std::string_view pesan) {
    l.err << "falak " << a.perintah().nama << ": " << pesan << "\n";
    return 1;
}

namespace {

bool mintaBantuan(const std::vector<std::string>& argumen, size_t dari) {
    return std::any_of(argumen.begin() + static_cast<std::ptrdiff_t>(std::min(dari, argumen.size())), argumen.end(),
                       [](const std::string& a) { return a == "--help" || a == "-h"; });
}

int salahPakai(std::string_view nama, std::string_view pesan, std::string_view pemakaian, const Lingkungan& l) {
    l.err << "falak" << (nama.empty() ? "" : " ") << nama << ": " << pesan << "\n";
    if (!pemakaian.empty()) l.err << "Pemakaian: " << pemakaian << "\n";
    l.err << "Keterangan: falak " << nama << (nama.empty() ? "" : " ") << "--help\n";
    return 2;
}

// The subcommands that begin with these words ("tempat": its four).
std::vector<const Perintah*> kelompok(std::string_view kata) {
    std::vector<const Perintah*> hasil;
    for (const Perintah& p : DaftarPerintah())
        if (p.nama == kata || p.nama.starts_with(std::string(kata) + " ")) hasil.push_back(&p);
    return hasil;
}

}  // namespace

int Jalankan(const std::vector<std::string>& argumen, const Lingkungan& l) {
    if (argumen.empty()) return salahPakai("", "perintahnya apa?", "", l);
    if (argumen[0] == "--help" || argumen[0] == "-h" || argumen[0] == "bantuan") {
        l.out << BantuanUmum();
        return 0;
    }
    if (argumen[0] == "--version") {
        l.out << "falak " << FALAK_VERSI << "\n";
        return 0;
    }
    const auto calon = kelompok(argumen[0]);
    if (calon.empty()) return salahPakai("", "perintah \"" + argumen[0] + "\" tidak dikenal", "", l);
    const Perintah* p = calon.size() == 1 && calon[0]->nama == argumen[0] ? calon[0] : nullptr;
    size_t kata = 1;
    if (!p) {
        // A group of subcommands: its second word picks one.
        const std::string dua = argumen.size() > 1 ? argumen[0] + " " + argumen[1] : "";
        for (const Perintah* c : calon)
            if (c->nama == dua) p = c;
        kata = 2;
        if (!p) {
            std::string daftar;
            for (const Perintah* c : calon) daftar += "  " + Pemakaian(*c) + "\n      " + std::string(c->ringkas) + "\n";
            if (mintaBantuan(argumen, 1)) {
                l.out << "Pemakaian:\n" << daftar;
                return 0;
            }
            const std::string pesan = argumen.size() > 1 ? "perintah \"" + dua + "\" tidak dikenal" : "perintahnya apa?";
            l.err << "falak " << argumen[0] << ": " << pesan << "\nPemakaian:\n" << daftar;
            return 2;
        }
    }
    if (mintaBantuan(argumen, kata)) {
        l.out << Bantuan(*p);
        return 0;
    }
    try {
        const Argumen a = BacaArgumen(*p, {argumen.begin() + static_cast<std::ptrdiff_t>(kata), argumen.end()});
        return p->jalankan(a, l);
    } catch (const SalahPakai& s) {
        return salahPakai(p->nama, s.pesan, Pemakaian(*p), l);
    }
}

}  // namespace falak::cli
