// falak-gui: the desktop program.
//
//   falak-gui [--markaz NAMA] [--tahun TAHUN] [--bulan 1..12]
//   falak-gui --screenshot BERKAS.png [--markaz NAMA] [--tahun TAHUN] [--bulan 1..12]
//   falak-gui --waktu-mulai
//
// --screenshot starts the window off screen, reckons by Sullam al-Nairoin for the chosen (or
// default) place, year and month, saves a picture of the whole window and ends: what a user
// would see, for anyone without a screen. --waktu-mulai prints how long the window took to be
// ready for the user and ends.
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "core/Berkas.h"
#include "ui/FrmHisab.h"
#include "ui/Pekerja.h"

namespace {

struct Pilihan {
    QString gambar;
    QString markaz;
    QString tahun;
    int bulan = 0;
    bool waktuMulai = false;
};

constexpr const char* kPemakaian =
    "Pemakaian:\n"
    "  falak-gui [--markaz NAMA] [--tahun TAHUN] [--bulan 1..12]\n"
    "  falak-gui --screenshot BERKAS.png [--markaz NAMA] [--tahun TAHUN] [--bulan 1..12]\n"
    "  falak-gui --waktu-mulai\n";

// Reads the options; an empty text, or what is wrong with them.
std::string bacaPilihan(int argc, char** argv, Pilihan& p) {
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--waktu-mulai") {
            p.waktuMulai = true;
            continue;
        }
        if (a != "--screenshot" && a != "--markaz" && a != "--tahun" && a != "--bulan")
            return "pilihan \"" + a + "\" tidak dikenal";
        if (i + 1 >= argc) return a + " butuh isian";
        const QString v = QString::fromLocal8Bit(argv[++i]);
        if (a == "--screenshot") {
            p.gambar = v;
        } else if (a == "--markaz") {
            p.markaz = v;
        } else if (a == "--tahun") {
            bool ok = false;
            v.toInt(&ok);
            if (!ok || v.startsWith('-') || v.startsWith('+')) return "tahun \"" + v.toStdString() + "\" bukan tahun Hijriyah yang sah";
            p.tahun = v;
        } else {
            bool ok = false;
            p.bulan = v.toInt(&ok);
            if (!ok || p.bulan < 1 || p.bulan > 12)
                return "bulan \"" + v.toStdString() + "\" tidak ada; pilihlah 1 sampai 12";
        }
    }
    return {};
}

// Hears the window's first paint, once.
class CatatLukisan : public QObject {
public:
    CatatLukisan(QObject& induk, std::function<void()> lapor) : QObject(&induk), lapor_(std::move(lapor)) {}
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint && lapor_) {
            QTimer::singleShot(0, this, lapor_);
            lapor_ = nullptr;
        }
        return false;
    }

private:
    std::function<void()> lapor_;
};

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer jam;
    jam.start();
    Pilihan p;
    if (const std::string salah = bacaPilihan(argc, argv, p); !salah.empty()) {
        std::fprintf(stderr, "falak-gui: %s\n\n%s", salah.c_str(), kPemakaian);
        return 2;
    }
    // A picture needs no screen.
    if (!p.gambar.isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QApplication::setApplicationName("falak");
    falak::ui::FrmHisab jendela(falak::CariLokasiData());

    if (!p.markaz.isEmpty() || !p.tahun.isEmpty() || p.bulan) {
        const QString markaz = p.markaz.isEmpty() ? QStringLiteral("Pasuruan") : p.markaz;
        if (!jendela.pilih(markaz, p.tahun, p.bulan)) {
            std::fprintf(stderr, "falak-gui: daerah \"%s\" tidak ada di daftar tempat (lihat: falak tempat daftar)\n",
                         markaz.toLocal8Bit().constData());
            return 2;
        }
    }
    jendela.show();

    if (p.waktuMulai) {
        // Ready when the window has been painted for the first time.
        auto* saring = new CatatLukisan(jendela, [&] {
            std::printf("siap dalam %lld ms\n", static_cast<long long>(jam.elapsed()));
            app.quit();
        });
        jendela.installEventFilter(saring);
        return app.exec();
    }

    if (!p.gambar.isEmpty()) {
        if (!jendela.laporanTabel().isEmpty()) std::fprintf(stderr, "%s\n", jendela.laporanTabel().toLocal8Bit().constData());
        QEventLoop tunggu;
        QObject::connect(&jendela.pekerja(), &falak::ui::Pekerja::selesai, &tunggu, &QEventLoop::quit);
        jendela.prosesKitab("SN");
        if (jendela.pekerja().sibuk()) tunggu.exec();
        QApplication::processEvents();
        if (!jendela.simpanGambar(p.gambar)) {
            std::fprintf(stderr, "falak-gui: gambar tidak bisa disimpan ke %s\n", p.gambar.toLocal8Bit().constData());
            return 1;
        }
        std::printf("%s\n", p.gambar.toLocal8Bit().constData());
        return 0;
    }
    return app.exec();
}
