#include "session/kern/zustand.h"

#include <algorithm>
#include <numeric>

#include "base/laufzeitfehler.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/texte.h"

namespace varnok {

std::vector<int> Zustand::gezeigte_Studien() const {
    if (!Zusammenfassung_aktiv) return {i_studie()};
    std::vector<int> alle(static_cast<std::size_t>(Studienzahl()));
    std::iota(alle.begin(), alle.end(), 0);
    return alle;
}

bool Zustand::alles_Gezeigte_gueltig() const {
    const std::vector<int> Studien = gezeigte_Studien();
    return std::all_of(Studien.begin(), Studien.end(), [this](int st) { return gueltig(st); });
}

bool Zustand::Saetze_vollstaendig() const {
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) {
        if (Auswahl(Art) < 0 || !Saetze[Art].gelesen()) return false;
    }
    return Saetze[Simulation].gelesen();  // a simulation in the place of a deleted one
}

std::string Zustand::Abdeckungswort() const {
    if (!Gestartet) return Texte::Eingabe_geaendert;
    for (const Satzart Art : {Simulation, Wirkstoff, Applikation, Szenario}) {
        if (!Saetze[Art].gelesen() && !Saetze[Art].Grund().empty()) return Saetze[Art].Grund();
    }
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) {
        if (Auswahl(Art) < 0 && !Namen[Art].empty()) return Texte::fehlender_Satz(Namen[Art] + Endungen[Art]);
    }
    if (!Saetze_vollstaendig()) return Texte::Satz_fehlt;
    if (Feld_abgelehnt || Meldung_steht) return Texte::nicht_gueltig;
    if (Gerechnetes.Grund() && !alles_Gezeigte_gueltig()) return Gerechnetes.Grund()->Wort;
    const std::vector<int> Studien = gezeigte_Studien();
    const bool da = std::all_of(Studien.begin(), Studien.end(), [this](int st) { return Gerechnetes.vorhanden(st); });
    return da ? "" : Texte::Eingabe_geaendert;
}

bool Zustand::Neu_berechnen() const {
    const bool fehlt = Auswahl(Wirkstoff) < 0 || Auswahl(Applikation) < 0 || Auswahl(Szenario) < 0;
    return !fehlt && !(Gerechnetes.Grund() && Gerechnetes.Grund()->gesperrt);
}

std::string Zustand::Speicherbytes(Satzart Art) const {
    if (Art != Simulation) return Satz_als_Bytes(Art, Vorgabe, Sicht, Welt.Dezimalzeichen);
    Simulationssatz Satz{Vorgabe.Beschreibung, {}};
    for (const Satzart t : {Wirkstoff, Applikation, Szenario}) Satz.Dateinamen[t] = Namen[t];
    return Simulation_als_Bytes(Satz);
}

std::string Zustand::Speicherbild(Satzart Art) const {
    try {
        return Speicherbytes(Art);
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
}

bool Zustand::verschieden(Satzart Art) const {
    return Saetze[Art].gelesen() ? Speicherbild(Art) != Saetze[Art].gespeichert() : Saetze[Art].Geaendert();
}

}  // namespace varnok
