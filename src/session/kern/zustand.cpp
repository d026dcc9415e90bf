#include "session/kern/zustand.h"

#include <algorithm>

#include "session/kern/texte.h"

namespace varnok {

bool Zustand::alles_Gezeigte_gueltig() const {
    const std::vector<int> Studien = gezeigte_Studien();
    return std::all_of(Studien.begin(), Studien.end(), [this](int st) { return gueltig(st); });
}

std::string Zustand::Abdeckungswort() const {
    if (!Gestartet) return Texte::Eingabe_geaendert;
    for (const Satzart Art : alle_Arten) {
        if (!Saetze[Art].gelesen() && !Saetze[Art].Grund().empty()) return Saetze[Art].Grund();
    }
    for (const Satzart Art : Eingabearten) {
        if (Auswahl(Art) < 0 && !Namen[Art].empty()) return Texte::fehlender_Satz(Namen[Art] + Endungen[Art]);
    }
    if (!Saetze_vollstaendig()) return Texte::Satz_fehlt;
    if (Feld_abgelehnt) return Texte::nicht_gueltig;
    if (Gerechnetes.Grund()) return Gerechnetes.Grund()->Wort;  // until an action finds results of the present input
    const std::vector<int> Studien = gezeigte_Studien();
    const bool da = std::all_of(Studien.begin(), Studien.end(), [this](int st) { return Gerechnetes.vorhanden(st); });
    return da ? "" : Texte::Eingabe_geaendert;
}

bool Zustand::Neu_berechnen() const {
    const bool fehlt = Auswahl(Wirkstoff) < 0 || Auswahl(Applikation) < 0 || Auswahl(Szenario) < 0;
    return !fehlt && !(Gerechnetes.Grund() && Gerechnetes.Grund()->gesperrt);
}

}  // namespace varnok
