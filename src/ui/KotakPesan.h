// The program's message boxes: a title of their own, the text as written, and shown without
// blocking, so that a run on the worker thread goes on reporting while a box waits.
#pragma once

#include <QMessageBox>

#include <functional>

namespace falak::ui {

// Opens a window-modal box over induk; jawab, if given, hears the button pressed (or Cancel,
// Escape and closing the box give the box's escape button).
inline QMessageBox* BukaPesan(QWidget* induk, QMessageBox::Icon ikon, const QString& judul, const QString& teks,
                              QMessageBox::StandardButtons tombol = QMessageBox::Ok,
                              std::function<void(QMessageBox::StandardButton)> jawab = {}) {
    auto* kotak = new QMessageBox(ikon, judul, teks, tombol, induk);
    kotak->setAttribute(Qt::WA_DeleteOnClose);
    if (jawab)
        QObject::connect(kotak, &QMessageBox::finished, kotak, [kotak, jawab] {
            jawab(kotak->standardButton(kotak->clickedButton()));
        });
    kotak->open();
    return kotak;
}

}  // namespace falak::ui
