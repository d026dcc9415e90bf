#include "diagrams/diagrammbereiche.h"

#include <algorithm>

#include "run/zeitachse.h"

namespace varnok {
namespace {

Diagrammbereiche bis_zum_Ende(double Ende) {
    Diagrammbereiche b;
    b.X_Ende.fill(Ende);
    b.X_Ende_Zusammenfassung.fill(Ende);
    return b;
}

}  // namespace

Diagrammbereiche Startbereiche(PEC_Ansicht PEC_Art) {
    return bis_zum_Ende(PEC_Art == Hintergrund ? letzter_Tag : Tage_pro_Jahr - 1);
}

void setze_Bereiche_nach_Ansicht(Diagrammbereiche& b, PEC_Ansicht PEC_Art) {
    b = bis_zum_Ende(PEC_Art == Hintergrund ? letzter_Tag : Tage_pro_Jahr);
}

void setze_Bereich_nach_Ansicht(Diagrammbereiche& b, PEC_Ansicht PEC_Art, bool Zusammenfassung, int Nummer) {
    Diagrammbereiche neue;
    setze_Bereiche_nach_Ansicht(neue, PEC_Art);
    const auto i = static_cast<std::size_t>(Nummer);
    if (Zusammenfassung) {
        b.X_Start_Zusammenfassung[i] = neue.X_Start_Zusammenfassung[i];
        b.X_Ende_Zusammenfassung[i] = neue.X_Ende_Zusammenfassung[i];
        b.manuelles_Ende[i] = neue.manuelles_Ende[i];
    } else {
        b.X_Start[i] = neue.X_Start[i];
        b.X_Ende[i] = neue.X_Ende[i];
    }
}

double gehaltener_Start(double X_Start) { return X_Start > 0 ? std::min(X_Start, static_cast<double>(letzter_Tag)) : 0; }

bool uebernimm_Skalierung(Diagrammbereiche& b, bool Zusammenfassung, int Nummer, const Zahlwert& Start, const Zahlwert& Ende) {
    const double Endwert = Ende.Zahl();
    if (!(Endwert >= 2 && Endwert <= 3650)) return false;
    const auto i = static_cast<std::size_t>(Nummer);
    if (Zusammenfassung) {
        b.X_Start_Zusammenfassung[i] = Start.Zahl();
        b.X_Ende_Zusammenfassung[i] = Endwert;
        b.manuelles_Ende[i] = Endwert;
    } else {
        b.X_Start[i] = Start.Zahl();
        b.X_Ende[i] = Endwert;
    }
    return true;
}

}  // namespace varnok
