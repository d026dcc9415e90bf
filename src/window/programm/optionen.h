#pragma once

#include <QDialog>
#include <array>

#include "session/kern/sitzung.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QPushButton;
class QVBoxLayout;

namespace varnok {

class Kurztext;
class Ordnerwahl;

// The options: shows them as they are, hands them over with OK.
class Optionen : public QDialog {
    Q_OBJECT
public:
    Optionen(Sitzung& Programm, QWidget* parent);

    // Closes only if the options are taken.
    void accept() override;

private:
    QVBoxLayout* erstelle_Satzspalte(const Optionsentwurf& o);
    QVBoxLayout* erstelle_Programmspalte(const Optionsentwurf& o);
    QGroupBox* erstelle_Namensteile(const Optionsentwurf& o);
    void fuege_Ordnerwahl_an(QVBoxLayout& Spalte, const std::string& Pfad);
    QWidget* erstelle_Tasten();
    void zeige_Pfad();
    void lege_Ordner_an();
    Optionsentwurf Entwurf() const;

    Sitzung& Programm_;
    QButtonGroup* Einheit_ = nullptr;
    QButtonGroup* Separate_Rueckstaende_ = nullptr;
    QButtonGroup* TWA_Zeiten_ = nullptr;
    std::array<QCheckBox*, 6> Check1_{};
    QButtonGroup* Tips_anzeigen_ = nullptr;
    QButtonGroup* Farbeinstellung_ = nullptr;
    Ordnerwahl* Dir1_ = nullptr;
    Kurztext* Pfad_ = nullptr;
    QPushButton* OK_ = nullptr;
};

}  // namespace varnok
