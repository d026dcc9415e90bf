#include "painting/bildprobe.h"

namespace varnok::probe {

Darstellungsprobe gerechnetes_Problem(Lauf_bauer b) {
    if (b.Felder.Beschreibung.empty()) b.Felder.Beschreibung = "the problem";
    return gerechnet(b);
}

Diagramm Wirkstoffdiagramm(const Lauf_bauer& b) {
    Diagrammbereiche Bereiche;
    setze_Bereiche_nach_Ansicht(Bereiche, b.Sicht.PEC_Typ);
    return erstelle_Diagramm(gerechnetes_Problem(b), Bereiche, Diagrammsatz_von(b.Felder.Berechnungsmodus, 0), 0);
}

}  // namespace varnok::probe
