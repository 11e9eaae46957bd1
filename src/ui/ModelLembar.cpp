#include "ui/ModelLembar.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPainter>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <vector>

#include "core/Sheet.h"

namespace falak::ui {

namespace {

// The widest a cell's text may make its column, in digit widths: twice the longest label of
// the frames, room for a place's name of some thirty letters.
constexpr int kLebarTerpanjang = 30;

// Amiri draws its letters small for their line height; a size up makes them read like the
// Latin digits beside them.
QFont fontLembar(const Sheet& lembar) {
    QFont f = QApplication::font();
    if (!lembar.font.empty()) f.setFamily(QString::fromStdString(lembar.font));
    if (lembar.arab) f.setPointSizeF(f.pointSizeF() + 2);
    return f;
}

}  // namespace

ModelLembar::ModelLembar(const Sheet& lembar, QObject* induk)
    : QAbstractTableModel(induk), lembar_(lembar), baris_(lembar.jumlahBaris()) {
    // A frame is drawn for the longest book; the rows that this run left without text or line
    // at the foot of the sheet are not shown.
    auto kosong = [&](int b) {
        for (int k = 0; k < lembar_.jumlahKolom(); ++k)
            if (lembar_.selLengkap(b, k).garis) return false;
        return lembar_.barisKosong(b);
    };
    while (baris_ > 0 && kosong(baris_ - 1)) --baris_;
}

int ModelLembar::rowCount(const QModelIndex& induk) const { return induk.isValid() ? 0 : baris_; }

int ModelLembar::columnCount(const QModelIndex& induk) const { return induk.isValid() ? 0 : lembar_.jumlahKolom(); }

QVariant ModelLembar::data(const QModelIndex& indeks, int peran) const {
    if (!indeks.isValid()) return {};
    const Sel& sel = lembar_.selLengkap(indeks.row(), indeks.column());
    switch (peran) {
        case Qt::DisplayRole:
            return sel.teks.empty() ? QVariant() : QVariant(QString::fromStdString(sel.teks));
        case Qt::TextAlignmentRole: {
            // Absolute, so that a cell laid out from right to left still keeps to the right.
            Qt::Alignment arah = Qt::AlignLeft;
            if (sel.rata == Rata::Tengah) arah = Qt::AlignHCenter;
            else if (sel.rata == Rata::Kanan ||
                     (sel.rata == Rata::Bawaan && (lembar_.dibacaDariKanan || sel.jenis == JenisSel::Angka)))
                arah = Qt::AlignRight;
            return QVariant::fromValue(arah | Qt::AlignAbsolute | Qt::AlignVCenter);
        }
        case Qt::ToolTipRole:
            for (const Tip& t : lembar_.tips())
                if (t.baris == indeks.row() && t.kolom == indeks.column())
                    return QString::fromStdString(t.judul + "\n" + t.pesan);
            return {};
        case PeranGaris:
            return sel.garis;
        default:
            return {};
    }
}

void DelegasiLembar::paint(QPainter* pelukis, const QStyleOptionViewItem& pilihan, const QModelIndex& indeks) const {
    QStyledItemDelegate::paint(pelukis, pilihan, indeks);
    const int garis = indeks.data(ModelLembar::PeranGaris).toInt();
    if (!garis) return;
    pelukis->save();
    pelukis->setPen(QPen(pilihan.palette.color(QPalette::WindowText), 1));
    const QRect r = pilihan.rect.adjusted(0, 0, -1, -1);
    if (garis & SisiAtas) pelukis->drawLine(r.topLeft(), r.topRight());
    if (garis & SisiBawah) pelukis->drawLine(r.bottomLeft(), r.bottomRight());
    if (garis & SisiKiri) pelukis->drawLine(r.topLeft(), r.bottomLeft());
    if (garis & SisiKanan) pelukis->drawLine(r.topRight(), r.bottomRight());
    pelukis->restore();
}

void DelegasiLembar::initStyleOption(QStyleOptionViewItem* pilihan, const QModelIndex& indeks) const {
    QStyledItemDelegate::initStyleOption(pilihan, indeks);
    pilihan->direction = pilihan->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

GridLembar::GridLembar(const Sheet& lembar, QWidget* induk) : QTableView(induk), model_(new ModelLembar(lembar, this)) {
    setObjectName("GridLembar");
    // The sheet already stands as it is read; a mirrored view would turn it around.
    setLayoutDirection(Qt::LeftToRight);
    setModel(model_);
    setItemDelegate(new DelegasiLembar(this));
    setFont(fontLembar(lembar));
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (const Gabungan& g : lembar.gabungan())
        if (g.baris < model_->rowCount()) setSpan(g.baris, g.kolom1, g.tinggi, g.kolom2 - g.kolom1 + 1);
    aturUkuran();
}

void GridLembar::aturUkuran() {
    const Sheet& l = model_->lembar();
    const QFontMetrics fm(font());
    const int celah = fm.horizontalAdvance(QLatin1Char('0'));
    const int sempit = celah + 2;  // an empty column: the spare one between two fields
    std::vector<int> lebar(static_cast<size_t>(l.jumlahKolom()), sempit);
    std::vector<bool> digabung(static_cast<size_t>(l.jumlahBaris()) * static_cast<size_t>(l.jumlahKolom()), false);
    auto ke = [&](int b, int k) { return static_cast<size_t>(b) * static_cast<size_t>(l.jumlahKolom()) + static_cast<size_t>(k); };
    for (const Gabungan& g : l.gabungan())
        for (int b = g.baris; b < g.baris + g.tinggi; ++b)
            for (int k = g.kolom1; k <= g.kolom2; ++k) digabung[ke(b, k)] = true;
    // A text may ask for no more than a long label does: a place's name of any length then
    // keeps its column on the screen, shortened with an ellipsis and whole in its tip.
    const int batas = celah * kLebarTerpanjang;
    auto perlu = [&](const std::string& teks) {
        return std::min(fm.horizontalAdvance(QString::fromStdString(teks)) + 2 * celah, batas);
    };

    for (int b = 0; b < l.jumlahBaris(); ++b)
        for (int k = 0; k < l.jumlahKolom(); ++k)
            if (!digabung[ke(b, k)] && !l.sel(b, k).empty())
                lebar[static_cast<size_t>(k)] = std::max(lebar[static_cast<size_t>(k)], perlu(l.sel(b, k)));
    // The narrow merges first: what they add to their columns is then already there for the
    // wide ones, such as a heading across the whole sheet.
    std::vector<Gabungan> gabungan = l.gabungan();
    std::sort(gabungan.begin(), gabungan.end(),
              [](const Gabungan& a, const Gabungan& b) { return a.kolom2 - a.kolom1 < b.kolom2 - b.kolom1; });
    for (const Gabungan& g : gabungan) {
        const std::string& teks = l.sel(g.baris, g.kolom1);
        if (teks.empty()) continue;
        int ada = 0;
        for (int k = g.kolom1; k <= g.kolom2; ++k) ada += lebar[static_cast<size_t>(k)];
        const int n = g.kolom2 - g.kolom1 + 1;
        // What already spans wider than the limit shortens the text rather than widen more.
        const int kurang = std::min(fm.horizontalAdvance(QString::fromStdString(teks)) + 2 * celah, std::max(ada, batas)) - ada;
        if (kurang > 0)
            for (int k = g.kolom1; k <= g.kolom2; ++k) lebar[static_cast<size_t>(k)] += (kurang + n - 1) / n;
    }
    for (int k = 0; k < l.jumlahKolom(); ++k) setColumnWidth(k, lebar[static_cast<size_t>(k)]);
    // Amiri keeps room above and below for stacked marks that the sheets' words do not use.
    const int tinggi = l.arab ? fm.ascent() * 9 / 10 + fm.descent() * 2 / 3 : fm.height();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(tinggi + 4);
}

bool GridLembar::viewportEvent(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        // A shortened text shows itself whole, unless the cell has a tip of its own.
        const auto* h = static_cast<QHelpEvent*>(e);
        const QModelIndex i = indexAt(h->pos());
        const QString teks = i.data().toString();
        if (i.isValid() && !i.data(Qt::ToolTipRole).isValid() && !teks.isEmpty()) {
            const QRect r = visualRect(i);
            if (fontMetrics().horizontalAdvance(teks) > r.width() - 2 * fontMetrics().horizontalAdvance(QLatin1Char('0'))) {
                QToolTip::showText(h->globalPos(), teks, viewport(), r);
                return true;
            }
        }
    }
    return QTableView::viewportEvent(e);
}

void GridLembar::showEvent(QShowEvent* e) {
    QTableView::showEvent(e);
    // The sheet begins at its right edge, where its labels stand.
    if (!sudahTampil_) {
        sudahTampil_ = true;
        horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
    }
}

}  // namespace falak::ui
