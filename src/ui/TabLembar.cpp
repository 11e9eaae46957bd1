#include "ui/TabLembar.h"

#include <QGroupBox>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

#include "run/Workspace.h"
#include "ui/ModelLembar.h"

namespace falak::ui {

TabLembar::TabLembar(const LembarKerja& lembar, QWidget* induk)
    : QWidget(induk), lembar_(lembar), grid_(new GridLembar(lembar.lembar)), kesimpulan_(new QPlainTextEdit) {
    setObjectName(QString::fromStdString(lembar.kunci));

    auto* kotak = new QGroupBox(QStringLiteral("Kesimpulan"));
    kotak->setObjectName("Kesimpulan");
    auto* isiKotak = new QVBoxLayout(kotak);
    isiKotak->setContentsMargins(4, 4, 4, 4);
    kesimpulan_->setObjectName("RichKesimpulan");
    kesimpulan_->setReadOnly(true);
    kesimpulan_->setLineWrapMode(QPlainTextEdit::NoWrap);
    QString teks;
    for (const std::string& baris : lembar.kesimpulan) teks += QString::fromStdString(baris) + QLatin1Char('\n');
    kesimpulan_->setPlainText(teks.trimmed());
    // Room for every line of the conclusion without scrolling.
    const int baris = std::max<int>(static_cast<int>(lembar.kesimpulan.size()), 1);
    kesimpulan_->setMinimumHeight(kesimpulan_->fontMetrics().lineSpacing() * baris +
                                  2 * (kesimpulan_->frameWidth() + static_cast<int>(kesimpulan_->document()->documentMargin())) + 4);
    isiKotak->addWidget(kesimpulan_);

    auto* belah = new QSplitter(Qt::Vertical);
    belah->addWidget(grid_);
    belah->addWidget(kotak);
    belah->setStretchFactor(0, 1);
    belah->setStretchFactor(1, 0);
    belah->setChildrenCollapsible(false);

    auto* tata = new QVBoxLayout(this);
    tata->setContentsMargins(0, 0, 0, 0);
    tata->addWidget(belah);
}

}  // namespace falak::ui
