#include "ui/Pekerja.h"

#include <exception>

#include "methods/Konteks.h"

namespace falak::ui {

Pekerja::Pekerja(Kemajuan& kemajuan, QObject* induk)
    : QObject(induk), kemajuan_(kemajuan), penerima_(std::make_unique<QObject>()) {
    benang_.setObjectName("falak-hisab");
    penerima_->moveToThread(&benang_);
    kemajuan_.atasLapor([this](int nilai, int maksimum) { lapor(nilai, maksimum); });
    benang_.start();
}

Pekerja::~Pekerja() {
    lepas(true);
    benang_.quit();
    benang_.wait();
    kemajuan_.atasLapor(nullptr);
}

bool Pekerja::mulai(Tugas tugas) {
    if (sibuk_) return false;
    sibuk_ = true;
    {
        std::lock_guard<std::mutex> kunci(mutex_);
        ditahan_ = false;
        // A stop asked of the last job is not one for this job.
        kemajuan_.berhenti = false;
    }
    QMetaObject::invokeMethod(
        penerima_.get(),
        [this, tugas = std::move(tugas)] {
            Lanjutan lanjutan;
            QString alasan;
            try {
                lanjutan = tugas();
            } catch (const std::exception& e) {
                alasan = QString::fromUtf8(e.what());
            } catch (...) {
                alasan = QStringLiteral("kesalahan yang tidak dikenal");
            }
            // Back on the window's thread; dropped if the window is already gone.
            QMetaObject::invokeMethod(
                this,
                [this, lanjutan = std::move(lanjutan), alasan] {
                    sibuk_ = false;
                    if (!alasan.isEmpty()) emit gagal(alasan);
                    if (lanjutan) lanjutan();
                    emit selesai();
                },
                Qt::QueuedConnection);
        },
        Qt::QueuedConnection);
    return true;
}

void Pekerja::tahan() {
    std::lock_guard<std::mutex> kunci(mutex_);
    ditahan_ = true;
}

void Pekerja::lepas(bool berhenti) {
    {
        std::lock_guard<std::mutex> kunci(mutex_);
        // A request that comes after the job ended would stop the next one.
        if (berhenti && sibuk_) kemajuan_.berhenti = true;
        ditahan_ = false;
    }
    cv_.notify_all();
}

void Pekerja::lapor(int nilai, int maksimum) {
    emit maju(nilai, maksimum);
    if (setelahLapor) setelahLapor(nilai, maksimum);
    std::unique_lock<std::mutex> kunci(mutex_);
    cv_.wait(kunci, [this] { return !ditahan_; });
}

}  // namespace falak::ui
