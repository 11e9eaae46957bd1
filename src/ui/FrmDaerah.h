// The places register dialog, "Tambah/Hapus Daerah": the list of places, and a form to add a
// place, change the chosen one or delete it. Every change is checked by the register, which
// says in the users' words what is wrong, and is saved at once to the working copy, which is
// replaced whole or not at all.
#pragma once

#include <QDialog>

#include <functional>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace falak {
class ClsConnection;
struct IsianTempat;
class RegisterDaerah;
}

namespace falak::ui {

class FrmDaerah : public QDialog {
    Q_OBJECT
public:
    explicit FrmDaerah(ClsConnection& koneksi, QWidget* induk = nullptr);

    // True once a change has been saved: the window then refreshes its places list.
    bool berubah() const { return berubah_; }

private:
    void isiDaftar(const QString& pilih = {});
    void saring(const QString& kata);
    void tampilkanTerpilih();
    IsianTempat isian() const;
    QString namaTerpilih() const;
    // Makes one change to the register and saves it, on the file as it is now (another program
    // may have changed it meanwhile); false, with the message shown, when refused.
    bool simpan(const std::function<std::string(RegisterDaerah&)>& perubahan, const QString& pilih);
    void tambah();
    void ubah();
    void hapus();

    ClsConnection& koneksi_;
    bool berubah_ = false;
    QLineEdit* cari_;
    QTableWidget* daftar_;
    QLineEdit *nama_, *namaTampil_, *lintangDerajat_, *lintangMenit_, *bujurDerajat_, *bujurMenit_, *zona_, *tinggi_;
    QComboBox *arahLintang_, *arahBujur_;
    QPushButton *tambah_, *ubah_, *hapus_;
    QLabel* keterangan_;
};

}  // namespace falak::ui
