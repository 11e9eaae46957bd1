// What a module reads and writes during a run, handed to it by the session that owns it: the
// run state, the tables, the table engine, the conclusion writer and the progress of the run.
#pragma once

#include <atomic>
#include <functional>

namespace falak {

struct Sesi;
class ClsConnection;
class ClsTaadil;
class ClsKesimpulan;

// The progress bar of a run and the stop request of its button.
class Kemajuan {
public:
    using Lapor = std::function<void(int nilai, int maksimum)>;

    void atasLapor(Lapor lapor) { lapor_ = std::move(lapor); }
    // A method sets its maximum at its start unless a batch runs; a batch sets its own.
    void mulai(int maksimum) {
        if (batch) return;
        maksimum_ = maksimum;
        nilai_ = 0;
        kirim();
    }
    void mulaiBatch(int maksimum) {
        maksimum_ = maksimum;
        nilai_ = 0;
        kirim();
    }
    // One step of a method; during a batch only the batch moves the bar.
    void langkah() {
        if (!batch) maju();
    }
    void maju() {
        if (nilai_ < maksimum_) ++nilai_;
        kirim();
    }
    // Raises the bar to its maximum when behind.
    void penuh() {
        if (!batch && nilai_ < maksimum_) {
            nilai_ = maksimum_;
            kirim();
        }
    }
    int nilai() const { return nilai_; }
    int maksimum() const { return maksimum_; }

    // A batch of n runs under one bar, a step a run (jalan(i) for the i-th); the stop button
    // ends it between two runs. False when it was stopped.
    template <class Jalan>
    bool jalankanBatch(int n, Jalan&& jalan) {
        berhenti = false;
        mulaiBatch(n);
        batch = true;
        bool selesai = true;
        for (int i = 0; i < n && selesai; ++i) {
            if (berhenti) {
                selesai = false;
            } else {
                jalan(i);
                maju();
            }
        }
        batch = false;
        return selesai;
    }

    bool batch = false;                 // a batch is running
    std::atomic<bool> berhenti{false};  // the stop button asked for a stop

private:
    void kirim() {
        if (lapor_) lapor_(nilai_, maksimum_);
    }
    Lapor lapor_;
    int nilai_ = 0;
    int maksimum_ = 0;
};

struct Konteks {
    Sesi& sesi;
    ClsConnection& koneksi;
    ClsTaadil& taadil;
    ClsKesimpulan& kesimpulan;
    Kemajuan& kemajuan;
};

}  // namespace falak
