#pragma once

#include "records/projektordner.h"
#include "window/kern/bausteine.h"
#include "window/kern/rahmen.h"

namespace varnok {

class Satzauswahl;
class Umbenennfeld;

// A selector of the main form with what belongs to it: buttons to copy and delete the entry, the box to rename it, the keys
// and the menu for the same.
class Satzliste : public QObject {
    Q_OBJECT
public:
    // `Name`: object names of list and buttons ("Liste_1", "Copy_1", "Loeschen_1").
    struct Namen {
        QString Liste, Copy, Loeschen;
    };
    Satzliste(Satzart Art, const Namen& n, int Zeichen, Sitzung& Programm, Rahmen& Traeger);

    void zeige();

    Satzauswahl* Liste;
    Schaltflaeche* Copy;
    Schaltflaeche* Loeschen;

Q_SIGNALS:
    void gehandelt();

private:
    template <auto Befehl, class... Angaben>
    bool befiehl(Angaben&&... a);
    void verbinde_Bedienung();
    void benenne_um(bool Enter);

    Satzart Art_;
    Sitzung& Programm_;
    Umbenennfeld* Neuer_Dateiname_;
};

}  // namespace varnok
