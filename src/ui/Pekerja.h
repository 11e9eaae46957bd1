// The thread on which the window's session reckons.
//
// The session is not re-entrant, so there is one job at a time: a single run or a batch. While
// a job runs the window keeps its hands off the session; it only hears the progress that the
// job reports and may hold the job (while the user is asked whether to stop) and let it go on,
// with or without a stop request. Whatever a job hands back is done on the window's thread
// once the job is over, when the session is free again.
#pragma once

#include <QObject>
#include <QThread>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace falak {
class Kemajuan;
}

namespace falak::ui {

class Pekerja : public QObject {
    Q_OBJECT
public:
    // What a job leaves to be done on the window's thread.
    using Lanjutan = std::function<void()>;
    using Tugas = std::function<Lanjutan()>;

    // Listens to the session's progress; the reports come on the worker thread.
    explicit Pekerja(Kemajuan& kemajuan, QObject* induk = nullptr);
    // Lets a held job go with a stop request and waits for it to end.
    ~Pekerja() override;

    // Window thread only.
    bool sibuk() const { return sibuk_; }
    // Starts the job on the worker thread; false, doing nothing, while another one runs.
    bool mulai(Tugas tugas);
    // The job waits at its next progress report until lepas().
    void tahan();
    // A held job goes on; with berhenti the session is asked to stop at its next chance.
    void lepas(bool berhenti);

    // Called on the worker thread after each report, before a held job waits: a seam for
    // tests that walk a batch step by step.
    std::function<void(int nilai, int maksimum)> setelahLapor;

signals:
    void maju(int nilai, int maksimum);
    void gagal(const QString& alasan);
    void selesai();

private:
    void lapor(int nilai, int maksimum);

    Kemajuan& kemajuan_;
    QThread benang_;
    std::unique_ptr<QObject> penerima_;  // lives on the thread; jobs are posted to it
    bool sibuk_ = false;
    std::mutex mutex_;
    std::condition_variable cv_;
    bool ditahan_ = false;
};

}  // namespace falak::ui
