#pragma once

#include "records/projektordner.h"
#include "window/kern/rahmen.h"

class QGridLayout;
class QPushButton;

namespace varnok {

class Auswahlliste;
class Umbenennfeld;

// A row of the simulation organiser: the selector of one kind of record with its buttons, in the colour of that kind.
class Organiserzeile : public Rahmen {
    Q_OBJECT
public:
    Organiserzeile(Satzart Art, Sitzung& Programm, QWidget* parent);
    void zeige() override;

    // Puts a button between the selector and the others.
    void schiebe_ein(QPushButton* Taste);
    // Adds a line with a label below the selector.
    void haenge_an(const QString& Aufschrift, QWidget* Feld);
    // A name in the rename box counts as typed. False if it was refused.
    bool schliesse_Umbenennen();
    Auswahlliste* Liste() const { return Liste_; }

protected:
    void changeEvent(QEvent* e) override;

private:
    QPushButton* erstelle_Taste(const char16_t* Name, const QString& Aufschrift);
    void verbinde_Tasten();
    void verbinde_Bedienung();
    void richte_aus();
    void kopiere();
    void loesche();
    void beginne_Umbenennen();
    bool benenne_um(bool Enter);

    Satzart Satzart_;
    QGridLayout* Raster_;
    Auswahlliste* Liste_;
    Umbenennfeld* Neuer_Dateiname_;
    QPushButton* Copy_;
    QPushButton* Loeschen_;
    QPushButton* Umbenennen_;
};

// A button of the dialog, all of one width; Enter presses the one that has the focus.
QPushButton* Dialogtaste(const QString& Name, const QString& Aufschrift, QWidget* parent);

}  // namespace varnok
