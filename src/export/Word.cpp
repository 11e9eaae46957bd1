#include "export/Word.h"

#include <QBuffer>
#include <QFont>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>

#include "core/Berkas.h"
#include "export/Cetak.h"
#include "rumus/Rumus.h"

namespace falak {

namespace {

QString q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// DejaVu Sans holds the symbols of the formulas (☉ ☽ ⁻¹ √ and the small figures).
QTextCharFormat huruf(int ukuran, bool tebal) {
    QTextCharFormat f;
    f.setFont(QFont(QStringLiteral("DejaVu Sans"), ukuran, tebal ? QFont::Bold : QFont::Normal));
    // The document writer names the face by this property.
    f.setProperty(QTextFormat::FontFamily, QStringLiteral("DejaVu Sans"));
    return f;
}

// One paragraph a line: a formula or a variable list of several lines stays several paragraphs.
void tulisBaris(QTextCursor& c, const QTextBlockFormat& blok, const QTextCharFormat& rupa, std::string_view teks) {
    for (const QString& baris : q(teks).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        c.insertBlock(blok, rupa);
        c.insertText(baris);
    }
}

}  // namespace

std::string TulisRumusOdt(const LembarRumus& rumus, std::string_view keterangan, const std::filesystem::path& berkas) {
    const auto aplikasi = AplikasiTanpaLayar();
    QTextDocument doc;
    doc.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    doc.setMetaInformation(QTextDocument::DocumentTitle, q(rumus.judul));
    QTextCursor c(&doc);
    c.setBlockCharFormat(huruf(14, true));
    c.setCharFormat(huruf(14, true));
    c.insertText(q(rumus.judul));
    tulisBaris(c, QTextBlockFormat(), huruf(10, false), keterangan);
    QTextBlockFormat jarak;
    jarak.setTopMargin(8);
    for (size_t i = 0; i < rumus.baris.size(); ++i) {
        const BarisRumus& b = rumus.baris[i];
        c.insertBlock(jarak, huruf(11, true));
        c.insertText(QString::number(i + 1) + QStringLiteral(". ") + q(b.nama));
        tulisBaris(c, QTextBlockFormat(), huruf(10, false), b.rumuz);
        tulisBaris(c, QTextBlockFormat(), huruf(10, false), b.isi);
    }
    QByteArray isi;
    {
        QBuffer buffer(&isi);
        buffer.open(QIODevice::WriteOnly);
        QTextDocumentWriter penulis(&buffer, "odf");
        if (!penulis.write(&doc)) return "Dokumen rumus tidak dapat ditulis.";
    }
    const std::string masalah = TulisAtomik(berkas, std::string_view(isi.constData(), static_cast<size_t>(isi.size())));
    return masalah.empty() ? std::string() : berkas.string() + ": " + masalah;
}

}  // namespace falak
