// The formula pane beside the work sheets: the title of the formula sheet and its whole text
// in a scrollable picture. It shows the sheet of the tab in front; a tab whose run made no
// sheet leaves the pane as it was.
#pragma once

#include <QWidget>

#include <string_view>

class QLabel;
class QScrollArea;

namespace falak {
class DaftarRumus;
}

namespace falak::ui {

class PanelRumus : public QWidget {
    Q_OBJECT
public:
    explicit PanelRumus(QWidget* induk = nullptr);

    // Brings on view the sheet kept under the key of the selected tab. A sheet that comes on
    // view anew starts at its top-left corner; the same sheet keeps where it was scrolled.
    void ikuti(DaftarRumus& daftar, std::string_view kunciTab);

    QString judul() const;
    QString isi() const;
    QScrollArea& gulung() const { return *gulung_; }

private:
    QLabel* judul_ = nullptr;
    QLabel* isi_ = nullptr;
    QScrollArea* gulung_ = nullptr;
};

}  // namespace falak::ui
