#include "diagrams/druckfassung.h"

#include <algorithm>

#include "exposure/twa.h"
#include "run/zeitachse.h"

namespace varnok {
namespace {

// Light green, light cyan and yellow are hardly seen on white.
constexpr int dunkle_Farbe(int Farbe) { return Farbe == 10 || Farbe == 11 || Farbe == 14 ? Farbe - 8 : Farbe; }

// Which compound or study a colour means; 0 for what has no colour.
int Nummer_von(int Farbe, bool Zusammenfassung) {
    if (Farbe == Schwarz) return 0;
    if (Zusammenfassung) return Farbe - Studienfarbe(0);
    for (int c = 0; c < Stoffe; ++c) {
        if (Farbe == Kurvenfarbe(c) || Farbe == TWA_Farbe(c)) return c;
    }
    return 0;
}

}  // namespace

void richte_fuer_Druck(Diagramm& d) {
    const auto richte = [&](auto& Strich) {
        Strich.Muster = Nummer_von(Strich.Farbe, d.Zusammenfassung);
        Strich.Farbe = dunkle_Farbe(Strich.Farbe);
    };
    for (Linie& l : d.Liste.Linien) richte(l);
    for (Legendengruppe& g : d.Legendeninhalt.Gruppen) {
        for (Legendeneintrag& e : g.Eintraege) richte(e.Linie);
    }
    if (d.Zusammenfassung && !d.Mittelwerte.empty()) {
        const std::string Eintrag = TWA_Eintrag(static_cast<float>(d.Mittelwerte.front().Tage));
        d.Legendeninhalt.Gruppen.front().Eintraege.push_back({"thin: " + Eintrag, {Schwarz, 1}});
    }
}

}  // namespace varnok
