#include "ui/PanelRumus.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "rumus/Rumus.h"

namespace falak::ui {

namespace {

QString q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

}  // namespace

PanelRumus::PanelRumus(QWidget* induk) : QWidget(induk) {
    setObjectName("PctRumuz");
    judul_ = new QLabel;
    judul_->setObjectName("lblJudulRumus");
    judul_->setAlignment(Qt::AlignCenter);
    judul_->setWordWrap(true);
    QFont tebal = judul_->font();
    tebal.setBold(true);
    judul_->setFont(tebal);

    isi_ = new QLabel(QStringLiteral("Rumus ada pada hisab tahqiqi: hisablah satu kitabnya."));
    isi_->setObjectName("lblRumus");
    isi_->setTextFormat(Qt::PlainText);
    isi_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    isi_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    isi_->setMargin(8);

    gulung_ = new QScrollArea;
    gulung_->setObjectName("gulungRumus");
    gulung_->setWidget(isi_);
    gulung_->setWidgetResizable(true);
    gulung_->setBackgroundRole(QPalette::Base);

    auto* tata = new QVBoxLayout(this);
    tata->setContentsMargins(0, 4, 0, 0);
    tata->addWidget(judul_);
    tata->addWidget(gulung_, 1);
    setMinimumWidth(280);
}

void PanelRumus::ikuti(DaftarRumus& daftar, std::string_view kunciTab) {
    const auto t = daftar.tampil(kunciTab);
    if (!t) return;
    judul_->setText(q(t->judul));
    const QString teks = q(t->lembar->halaman);
    if (teks == isi_->text()) return;
    isi_->setText(teks);
    gulung_->horizontalScrollBar()->setValue(0);
    gulung_->verticalScrollBar()->setValue(0);
}

QString PanelRumus::judul() const { return judul_->text(); }
QString PanelRumus::isi() const { return isi_->text(); }

}  // namespace falak::ui
