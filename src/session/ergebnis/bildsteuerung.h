#pragma once

#include <QSizeF>
#include <string>

#include "diagrams/diagrammdaten.h"
#include "session/ergebnis/diagrammsteuerung.h"

namespace varnok {

enum class Bildart { PNG, SVG, PDF };

// A picture ready to be painted.
struct Bild {
    Zeichenliste Liste;
    QSizeF Groesse;  // units of 1/96 inch
    std::string Titel;
};

// The diagram in front on its way to other programs, as picture and as numbers. What is written or copied is told in the status
// line. Every routine that writes throws Laufzeitfehler that names the file and the reason.
class Bildsteuerung {
public:
    Bildsteuerung(Zustand& z, const Diagrammsteuerung& Diagramme) : z_(z), Diagramme_(Diagramme) {}

    const Bildeinstellung& Einstellung() const { return z_.Einstellung.Bild; }
    void setze(const Bildeinstellung& e) { z_.Einstellung.Bild = e; }

    // The path that is proposed for a file, without its ending: in the folder `output`, or where the last one went; the name
    // tells compound, study, view and endpoint.
    std::string Vorschlag() const;

    // There must be a diagram in front. A legend that the user hid is in no picture.
    Bild erstelle(bool mit_Legende) const;
    void speichere(const std::string& Pfad, Bildart Art, bool mit_Legende);
    // The numbers of curves, averages and tables.
    std::string Daten(const Datenform& f) const;
    void speichere_Daten(const std::string& Pfad, char Dezimalzeichen);
    void melde_kopiert(const std::string& Was) { z_.Statuszeile.sage(Was + " copied: " + Diagramme_.vorderes()->Titel.Text); }

private:
    void schreibe(const std::string& Pfad, const std::string& Inhalt, const std::string& Was);

    Zustand& z_;
    const Diagrammsteuerung& Diagramme_;
    std::string Ordner_;  // of the file written last
};

}  // namespace varnok
