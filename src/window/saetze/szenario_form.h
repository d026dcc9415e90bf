#pragma once

#include <QDialog>
#include <array>

#include "session/kern/sitzung.h"

class QButtonGroup;
class QFrame;
class QGridLayout;
class QLabel;

namespace varnok {

class Auswahlliste;
class Textfeld;
class Tiefenfeld;

// The dialog for soil and climate of the scenario on the screen.
class Szenario_Form : public QDialog {
    Q_OBJECT
public:
    // The session's editor is open.
    Szenario_Form(Sitzung& Programm, QWidget* parent);

    void accept() override;
    void reject() override;

private:
    QWidget* erstelle_Boden();
    QWidget* erstelle_Klima();
    QWidget* erstelle_Tasten();
    void erstelle_Textzeile(QGridLayout& Raster, int Zeile, Szenarioentwurf::Feld f);
    void tippe(Szenarioentwurf::Feld f, const QString& Text);
    Tiefenfeld* erstelle_Tiefe(QGridLayout& Raster, int Zeile, bool Boden);
    void zeige();
    template <auto Befehl, class... Angaben>
    void befiehl(Angaben... a);

    Sitzung& Programm_;
    Auswahlliste* Szenarioliste_;
    std::array<Textfeld*, Szenarioentwurf::Anzahl_Felder> Texte_{};
    Tiefenfeld* Bodentiefe_;
    Tiefenfeld* Plateautiefe_;
    QButtonGroup* Klimabedingungen_;
    QLabel* Temperaturschild_;
    Auswahlliste* Temperatur_;
    Auswahlliste* Klimaszenario_;
};

// Opens the editor over a window, waits until it has closed and does what follows. True if it was left by "Done".
bool zeige_Szenarioeditor(Sitzung& Programm, QWidget* Fenster);

}  // namespace varnok
