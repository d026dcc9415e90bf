#pragma once

#include <vector>

#include "diagrams/diagramm.h"
#include "window/ergebnis/flaechenrahmen.h"

class QLabel;

namespace varnok {

class Musterstrich;

// The legend of a diagram: a row for each entry, text and sample line.
class Legendenrahmen : public Flaechenrahmen {
    Q_OBJECT
public:
    // `Endung`: "_4", "_mehrfach_3" or "_Zusammenfassung_2".
    Legendenrahmen(const QString& Endung, Flaechenort Heimat, QWidget* Flaeche);

    // `Nummer` is the index of the diagram, which the object names count on from.
    void zeige(const Legende& l, int Nummer);
    // As wide as the texts, up to a third of the surface, then texts end in dots; as high as the rows.
    void ordne(int Flaechenbreite, double Massstab);

protected:
    void zeige_Griff(bool gehalten) override;

private:
    struct Zeile {
        QLabel* Text;
        Musterstrich* Strich;  // none at the name of a compound
        QString Inhalt;
        bool eingerueckt = false;
    };

    void fuege_an(const QString& Name, const std::string& Text, const QString& Strichname, const Musterlinie* Linie, bool Einzug);

    Legende Inhalt_;
    std::vector<Zeile> Zeilen_;
};

}  // namespace varnok
