#include "diagrams/zeichenliste.h"

namespace varnok {

std::vector<Linienzug> verbinde_Linien(std::span<const Linie> Linien) {
    std::vector<Linienzug> Zuege;
    for (const Linie& l : Linien) {
        const bool weiter = !Zuege.empty() && Zuege.back().Farbe == l.Farbe && Zuege.back().Breite == l.Breite &&
                            Zuege.back().Muster == l.Muster && Zuege.back().Punkte.back() == l.von;
        if (!weiter) Zuege.push_back({{l.von}, l.Farbe, l.Breite, l.Muster});
        Zuege.back().Punkte.push_back(l.bis);
    }
    return Zuege;
}

}  // namespace varnok
