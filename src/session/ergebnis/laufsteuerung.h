#pragma once

#include "session/ergebnis/diagrammsteuerung.h"
#include "session/kern/zustand.h"

namespace varnok {

// When runs are made, of which studies, and what may be seen of their results.
class Laufsteuerung {
public:
    Laufsteuerung(Zustand& z, Diagrammsteuerung& Diagramme) : z_(z), Diagramme_(Diagramme) {}

    // Something was entered that the results do not show yet.
    void markiere_veraltet();
    // Input of one study, or of all studies, has changed: their results are of another input.
    void verwirf_Studie(int i_studie);
    void verwirf_alle();

    // Runs what the input on the screen needs: in the summary view every study without valid results, else
    // the selected one. Redraws and uncovers on success; on failure the message has been shown and the cover
    // stays. Nothing happens before `Starten`. `vom_Benutzer`: tells of a missing record instead of waiting for it.
    bool berechne(bool vom_Benutzer = false);
    // The same for every study of the list, whatever the view.
    bool berechne_alle_Studien();

    // A view selector has changed: the results are drawn anew and uncovered if all that is shown is valid.
    void zeichne_neu() { zeichne(false); }

    bool alles_Gezeigte_gueltig() const;
    // Whether each of the three selectors names a record that was read.
    bool Saetze_vollstaendig() const;

private:
    bool fuehre_aus(int erste, int letzte, bool vom_Benutzer);
    bool rechne_Studie(int i_studie);
    void sammle_Warnungen();
    void zeige_Warnungen();
    void melde_fehlenden_Satz();
    void beende_mit_Erfolg(bool gelaufen);
    void zeichne(bool nach_Lauf);

    Zustand& z_;
    Diagrammsteuerung& Diagramme_;
    std::vector<std::string> Warnungen_;
};

}  // namespace varnok
