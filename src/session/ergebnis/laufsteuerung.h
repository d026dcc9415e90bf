#pragma once

#include <memory>
#include <string>
#include <vector>

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

    // The net dose of a single or regular pattern has changed and nothing else: gives the results on display the new one without
    // a run. Those of other studies are then of another input. False, with nothing changed, where the results are not valid or
    // would not be a run's to the bit.
    bool skaliere();

    // A view selector has changed: the results are drawn anew and uncovered if all that is shown is valid.
    void zeichne_neu() { zeichne(nullptr); }

    bool alles_Gezeigte_gueltig() const;
    // Whether each of the three selectors names a record that was read.
    bool Saetze_vollstaendig() const;

private:
    bool fuehre_aus(const std::vector<int>& Studien, bool vom_Benutzer);
    std::vector<int> gezeigte_Studien() const;
    bool rechne_Studie(int i_studie);
    bool ende_ohne_Ergebnis(const Laufergebnis& Ausgang);
    void sammle_Warnungen(const Ergebnis& e);
    void zeige_Warnungen();
    void melde_fehlenden_Satz();
    void beende_mit_Erfolg(const Ergebnis* gelaufen);
    void zeichne(const Ergebnis* gelaufen);

    Zustand& z_;
    Diagrammsteuerung& Diagramme_;
    std::unique_ptr<Lauf> Arbeitsplatz_ = std::make_unique<Lauf>();  // nothing on the screen reads it
    std::vector<std::string> Warnungen_;
};

}  // namespace varnok
