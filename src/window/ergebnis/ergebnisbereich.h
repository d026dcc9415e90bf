#pragma once

#include <array>
#include <optional>
#include <vector>

#include "window/kern/rahmen.h"

class QStackedLayout;

namespace varnok {

class Abdeckung;
class Diagrammflaeche;
class Reiter;

// The results: a page for each metabolism scheme with the diagrams and grids of its compounds, and the cover over them.
class Ergebnisbereich : public Rahmen {
    Q_OBJECT
public:
    Ergebnisbereich(Sitzung& Programm, QWidget* parent);
    void zeige() override;
    // The cover over the results, alone.
    void zeige_Abdeckung();

    // The diagram in front, for a command; the field in work is accepted first. Null where that is refused, and where
    // there is no diagram to be seen.
    Diagrammflaeche* Flaeche_fuer_Befehl();
    Diagrammflaeche* Flaeche_vorn() const { return Flaeche_vorn(Seiten_[Vorgabe().Berechnungsmodus]); }
    // The dialog for the time range of the diagram in front.
    void skaliere();
    // A view was chosen: grids that the user hid come back.
    void hole_Ergebnisrahmen();

    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    struct Seite {
        QWidget* Flaeche = nullptr;
        QStackedLayout* Stapel = nullptr;
        std::vector<Diagrammflaeche*> Diagramme;          // one for each compound; a further one for all
        std::vector<Diagrammflaeche*> Zusammenfassungen;  // one for each compound
    };

    void erstelle_Seite(Stoffschema m);
    Diagrammflaeche* erstelle_Flaeche(bool Zusammenfassung, int Nummer, Seite& s);
    Diagrammflaeche* Flaeche_vorn(const Seite& s) const;
    void zeige_Ergebnisse(Seite& s);
    void fuelle_Diagramme(const Seite& s);
    void fuelle_Tafeln(const Seite& s);
    void decke_zu();
    void bestimme_Zeilen();

    Reiter* Berechnungsmodus_;
    std::array<Seite, 4> Seiten_;
    Abdeckung* Abdeckung_;
    int Zeichnung_ = -1;  // the redraw that the surfaces show
    // A spare last row of the single grids, until a view is chosen for the first time in its list of windows.
    bool Ersatzzeile_ = true;
    int PEC_Typ_ = -1;
    std::optional<TWA_Listenart> TWA_Zeiten_;
};

}  // namespace varnok
