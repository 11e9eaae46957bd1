#include "export/Cetak.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QPdfWriter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <memory>

#include "core/Berkas.h"
#include "export/TataLembar.h"
#include "run/Workspace.h"

namespace falak {

namespace {

QString q(const std::string& s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// The faces of the sheets: Amiri for Arabic, DejaVu Sans for numbers and Latin labels.
QFont fontArab() { return QFont(QStringLiteral("Amiri"), 10); }
QFont fontLatin() { return QFont(QStringLiteral("DejaVu Sans"), 8); }
// The face of the text that a PDF reader reads back under the Arabic labels.
QFont fontBaca() { return QFont(QStringLiteral("DejaVu Sans"), 7); }

// One sheet measured for a device: the width of each column, the height of a row, and the
// conclusion's lines below it, all in the device's units.
class TataHalaman {
public:
    TataHalaman(const Sheet& s, const std::vector<std::string>& kesimpulan, QPaintDevice& alat)
        : s_(s), kesimpulan_(kesimpulan), arab_(fontArab(), &alat), latin_(fontLatin(), &alat),
          fArab_(fontArab(), &alat), fLatin_(fontLatin(), &alat), fBaca_(fontBaca(), &alat) {
        pad_ = latin_.averageCharWidth() * 0.6;
        tinggiBaris_ = std::max(arab_.height(), latin_.height()) * 1.1;
        ukurKolom();
        for (const std::string& baris : kesimpulan_) {
            const auto [label, isi] = belah(baris);
            lebarLabel_ = std::max(lebarLabel_, latin_.horizontalAdvance(label));
            lebarIsi_ = std::max(lebarIsi_, latin_.horizontalAdvance(isi));
        }
    }

    double lebar() const { return std::max(lebarGrid(), lebarLabel_ + lebarIsi_ + 4 * pad_); }
    double tinggi() const {
        return tinggiBaris_ * (s_.jumlahBaris() + (kesimpulan_.empty() ? 0 : 1.5 + static_cast<double>(kesimpulan_.size())));
    }

    void lukis(QPainter& p) const {
        std::vector<double> x(kolom_.size() + 1, 0.0);
        for (size_t k = 0; k < kolom_.size(); ++k) x[k + 1] = x[k] + kolom_[k];
        p.setPen(QPen(Qt::black, 0));
        for (int b = 0; b < s_.jumlahBaris(); ++b)
            for (int k = 0; k < s_.jumlahKolom(); ++k) {
                const QRectF r(x[static_cast<size_t>(k)], b * tinggiBaris_, kolom_[static_cast<size_t>(k)], tinggiBaris_);
                garis(p, r, s_.selLengkap(b, k).garis);
                const Gabungan* g = s_.gabunganDi(b, k);
                if (g && (g->baris != b || g->kolom1 != k)) continue;
                QRectF kotak = r;
                if (g)
                    kotak = QRectF(x[static_cast<size_t>(g->kolom1)], b * tinggiBaris_,
                                   x[static_cast<size_t>(g->kolom2) + 1] - x[static_cast<size_t>(g->kolom1)],
                                   tinggiBaris_ * g->tinggi);
                teks(p, kotak, s_.selLengkap(b, k), g != nullptr);
            }
        double y = tinggiBaris_ * (s_.jumlahBaris() + 1.5);
        for (size_t i = 0; i < kesimpulan_.size(); ++i, y += tinggiBaris_) {
            QFont f = fLatin_;
            f.setBold(i == 0);
            p.setFont(f);
            const auto [label, isi] = belah(kesimpulan_[i]);
            if (i == 0 || isi.isEmpty()) {
                p.drawText(QRectF(pad_, y, lebar(), tinggiBaris_), Qt::AlignLeft | Qt::AlignVCenter, kesimpulan_[i].empty() ? QString() : q(kesimpulan_[i]));
                continue;
            }
            p.drawText(QRectF(pad_, y, lebarLabel_, tinggiBaris_), Qt::AlignLeft | Qt::AlignVCenter, label);
            p.drawText(QRectF(lebarLabel_ + 3 * pad_, y, lebarIsi_ + pad_, tinggiBaris_), Qt::AlignLeft | Qt::AlignVCenter,
                       QStringLiteral(": ") + isi);
        }
    }

private:
    // A conclusion line as label and value, at its first ":".
    static std::pair<QString, QString> belah(const std::string& baris) {
        const QString t = q(baris);
        const qsizetype titik = t.indexOf(QLatin1Char(':'));
        if (titik < 0) return {t, {}};
        return {t.left(titik).trimmed(), t.mid(titik + 1).trimmed()};
    }

    const QFontMetricsF& ukuran(const Sel& sel) const { return sel.jenis == JenisSel::LabelArab ? arab_ : latin_; }

    double lebarGrid() const {
        double w = 0;
        for (double k : kolom_) w += k;
        return w;
    }

    // Each column as wide as its widest text outside a merge; a merge too narrow for its
    // text widens its columns alike.
    void ukurKolom() {
        kolom_.assign(static_cast<size_t>(s_.jumlahKolom()), pad_);
        for (int b = 0; b < s_.jumlahBaris(); ++b)
            for (int k = 0; k < s_.jumlahKolom(); ++k) {
                const Sel& sel = s_.selLengkap(b, k);
                if (sel.teks.empty() || s_.gabunganDi(b, k)) continue;
                auto& w = kolom_[static_cast<size_t>(k)];
                w = std::max(w, ukuran(sel).horizontalAdvance(q(sel.teks)) + 2 * pad_);
            }
        for (const Gabungan& g : s_.gabungan()) {
            const Sel& sel = s_.selLengkap(g.baris, g.kolom1);
            double ada = 0;
            for (int k = g.kolom1; k <= g.kolom2; ++k) ada += kolom_[static_cast<size_t>(k)];
            const double perlu = ukuran(sel).horizontalAdvance(q(sel.teks)) + 2 * pad_;
            if (perlu > ada)
                for (int k = g.kolom1; k <= g.kolom2; ++k) kolom_[static_cast<size_t>(k)] += (perlu - ada) / (g.kolom2 - g.kolom1 + 1);
        }
    }

    static void garis(QPainter& p, const QRectF& r, uint8_t sisi) {
        if (sisi & SisiAtas) p.drawLine(r.topLeft(), r.topRight());
        if (sisi & SisiBawah) p.drawLine(r.bottomLeft(), r.bottomRight());
        if (sisi & SisiKiri) p.drawLine(r.topLeft(), r.bottomLeft());
        if (sisi & SisiKanan) p.drawLine(r.topRight(), r.bottomRight());
    }

    void teks(QPainter& p, const QRectF& kotak, const Sel& sel, bool digabung) const {
        if (sel.teks.empty()) return;
        const bool arab = sel.jenis == JenisSel::LabelArab;
        const bool label = arab || sel.jenis == JenisSel::Label;
        Qt::Alignment rata = Qt::AlignVCenter;
        switch (sel.rata) {
            case Rata::Kiri: rata |= Qt::AlignLeft; break;
            case Rata::Tengah: rata |= Qt::AlignHCenter; break;
            case Rata::Kanan: rata |= Qt::AlignRight; break;
            case Rata::Bawaan:
                rata |= digabung && label ? Qt::AlignHCenter : (!label || s_.dibacaDariKanan) ? Qt::AlignRight : Qt::AlignLeft;
        }
        QTextOption opsi(rata | Qt::AlignAbsolute);
        opsi.setWrapMode(QTextOption::NoWrap);
        const QRectF dalam = kotak.adjusted(pad_, 0, -pad_, 0);
        if (!arab) {
            p.setFont(fLatin_);
            p.drawText(dalam, q(sel.teks), opsi);
            return;
        }
        opsi.setTextDirection(Qt::RightToLeft);
        lukisArab(p, dalam, q(sel.teks), rata);
        // The words once more, unseen, in a face whose joined letters a PDF reader can read
        // back: the shaped forms of Amiri have no characters of their own in the file, so a
        // reader that searches or copies the page would lose them.
        p.save();
        p.setPen(QColor(0, 0, 0, 0));
        p.setFont(fBaca_);
        p.drawText(dalam, q(sel.teks), opsi);
        p.restore();
    }

    // An Arabic text as the text engine shapes it in Amiri (joined, right to left), drawn as
    // the outlines of its glyphs.
    void lukisArab(QPainter& p, const QRectF& kotak, const QString& teks, Qt::Alignment rata) const {
        QTextLayout tata(teks, fArab_, p.device());
        QTextOption opsi(Qt::AlignLeft | Qt::AlignAbsolute);
        opsi.setTextDirection(Qt::RightToLeft);
        opsi.setWrapMode(QTextOption::NoWrap);
        tata.setTextOption(opsi);
        tata.beginLayout();
        QTextLine baris = tata.createLine();
        if (!baris.isValid()) return;
        baris.setLineWidth(1e6);
        tata.endLayout();
        const double lebar = baris.naturalTextWidth();
        double x = kotak.left();
        if (rata & Qt::AlignRight) x = kotak.right() - lebar;
        else if (rata & Qt::AlignHCenter) x = kotak.center().x() - lebar / 2;
        const QPointF awal(x - baris.naturalTextRect().left(), kotak.center().y() - baris.height() / 2);
        QPainterPath jalur;
        for (const QGlyphRun& run : baris.glyphRuns()) {
            const QRawFont font = run.rawFont();
            const QList<quint32> glyph = run.glyphIndexes();
            const QList<QPointF> posisi = run.positions();
            for (qsizetype i = 0; i < glyph.size(); ++i)
                jalur.addPath(font.pathForGlyph(glyph[i]).translated(posisi[i]));
        }
        p.fillPath(jalur.translated(awal), Qt::black);
    }

    const Sheet& s_;
    const std::vector<std::string>& kesimpulan_;
    QFontMetricsF arab_, latin_;
    QFont fArab_, fLatin_, fBaca_;
    std::vector<double> kolom_;
    double pad_ = 0, tinggiBaris_ = 0, lebarLabel_ = 0, lebarIsi_ = 0;
};

}  // namespace

void LukisLembar(QPagedPaintDevice& kertas, const std::vector<const LembarKerja*>& lembar, const ClsConnection& koneksi) {
    QPainter p;
    for (size_t i = 0; i < lembar.size(); ++i) {
        Sheet s = lembar[i]->lembar;
        TerapkanTata(s, koneksi, AkhiranTata(lembar[i]->kunci));
        const TataHalaman tata(s, lembar[i]->kesimpulan, kertas);
        const auto arah = tata.lebar() > tata.tinggi() ? QPageLayout::Landscape : QPageLayout::Portrait;
        kertas.setPageOrientation(arah);
        if (i == 0) {
            if (!p.begin(&kertas)) return;
        } else {
            kertas.newPage();
        }
        const QRect halaman = kertas.pageLayout().paintRectPixels(kertas.logicalDpiX());
        const double skala = std::min({halaman.width() / tata.lebar(), halaman.height() / tata.tinggi(), 1.5});
        p.save();
        // Centred across the page, from its top.
        p.translate((halaman.width() - tata.lebar() * skala) / 2, 0);
        p.scale(skala, skala);
        tata.lukis(p);
        p.restore();
    }
    if (p.isActive()) p.end();
}

std::unique_ptr<QGuiApplication> AplikasiTanpaLayar() {
    if (QGuiApplication::instance()) return nullptr;
    static int argc = 1;
    static char nama[] = "falak";
    static char* argv[] = {nama, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

std::string CetakPdf(const std::vector<const LembarKerja*>& lembar, const ClsConnection& koneksi,
                     const std::filesystem::path& berkas) {
    if (lembar.empty()) return "Tidak ada lembar hisab untuk dicetak.";
    const auto aplikasi = AplikasiTanpaLayar();
    QByteArray isi;
    {
        QBuffer buffer(&isi);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&buffer);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(12.7, 17.8, 12.7, 17.8), QPageLayout::Millimeter);
        pdf.setResolution(300);
        pdf.setTitle(q(lembar.front()->judul));
        pdf.setCreator(QStringLiteral("falak"));
        LukisLembar(pdf, lembar, koneksi);
    }
    if (isi.isEmpty()) return "Halaman tidak dapat dilukis.";
    const std::string masalah = TulisAtomik(berkas, std::string_view(isi.constData(), static_cast<size_t>(isi.size())));
    return masalah.empty() ? std::string() : berkas.string() + ": " + masalah;
}

}  // namespace falak
