// One work sheet on its tab: the worked table of the run, and its conclusion below it.
#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace falak {
struct LembarKerja;
}

namespace falak::ui {

class GridLembar;

class TabLembar : public QWidget {
    Q_OBJECT
public:
    // The sheet must outlive the tab; the tab is named by the sheet's key.
    explicit TabLembar(const LembarKerja& lembar, QWidget* induk = nullptr);

    const LembarKerja& lembar() const { return lembar_; }
    GridLembar* grid() const { return grid_; }
    QPlainTextEdit* kesimpulan() const { return kesimpulan_; }

private:
    const LembarKerja& lembar_;
    GridLembar* grid_;
    QPlainTextEdit* kesimpulan_;
};

}  // namespace falak::ui
