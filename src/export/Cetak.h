// The work sheets on paper: each sheet as the book lays it out, with its lines and merges, and
// its conclusion below it, scaled to fill one page; on a printer or into a PDF file.
//
// Arabic stays Unicode text all the way: the text engine shapes it (joined letters, right to
// left) in the Amiri font, so that the page shows what the screen shows and a PDF reader can
// search and copy the words.
#pragma once

#include <QGuiApplication>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class QPagedPaintDevice;

namespace falak {

class ClsConnection;
struct LembarKerja;

// Paints the sheets, one page each, on a device whose painting has not begun (a PDF writer, a
// printer). The page turns to landscape when a sheet is wider than tall.
void LukisLembar(QPagedPaintDevice& kertas, const std::vector<const LembarKerja*>& lembar, const ClsConnection& koneksi);

// The command line has no application of its own: this starts one without a screen, which lays
// out the text, for as long as it is kept; none when an application runs already.
std::unique_ptr<QGuiApplication> AplikasiTanpaLayar();

// The same into a PDF file, written whole or not at all. Without a running Qt application (on
// the command line) one is started on the offscreen platform for the while. Empty text, or
// what went wrong.
std::string CetakPdf(const std::vector<const LembarKerja*>& lembar, const ClsConnection& koneksi,
                     const std::filesystem::path& berkas);

}  // namespace falak
