// The worked table of a run on the screen: a model over the sheet and the grid that shows it.
//
// The sheet is laid out the way the book lays it out, to be read from the right: labels in the
// highest columns, the fields of a value running leftwards. The grid shows column 0 at the left
// edge as the sheet has it and never mirrors; only the text inside an Arabic cell runs from
// right to left, shaped by the font, and stands against the cell's right edge.
#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <QTableView>

namespace falak {
class Sheet;
}

namespace falak::ui {

class ModelLembar : public QAbstractTableModel {
    Q_OBJECT
public:
    // The sheet must outlive the model and not change while it is shown.
    explicit ModelLembar(const Sheet& lembar, QObject* induk = nullptr);

    // The cell's lines (Sisi flags), for the delegate that draws them.
    static constexpr int PeranGaris = Qt::UserRole + 1;

    int rowCount(const QModelIndex& induk = {}) const override;
    int columnCount(const QModelIndex& induk = {}) const override;
    QVariant data(const QModelIndex& indeks, int peran = Qt::DisplayRole) const override;

    const Sheet& lembar() const { return lembar_; }

private:
    const Sheet& lembar_;
    int baris_;  // the rows shown
};

// Lays each cell's text out in its own direction: an Arabic text from right to left, so that
// its words, marks and the Latin names inside it come in the order the book prints them.
class DelegasiLembar : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pelukis, const QStyleOptionViewItem& pilihan, const QModelIndex& indeks) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* pilihan, const QModelIndex& indeks) const override;
};

class GridLembar : public QTableView {
    Q_OBJECT
public:
    explicit GridLembar(const Sheet& lembar, QWidget* induk = nullptr);

    ModelLembar& model() const { return *model_; }

protected:
    void showEvent(QShowEvent* e) override;
    bool viewportEvent(QEvent* e) override;

private:
    // Column widths from the texts they hold (a merged text shares its width among its
    // columns, a long text is shortened), and row heights from the font, which for Arabic is
    // taller than for Latin.
    void aturUkuran();

    ModelLembar* model_;
    bool sudahTampil_ = false;
};

}  // namespace falak::ui
