#include "session/kern/eingabestand.h"

#include <algorithm>
#include <numeric>

#include "base/laufzeitfehler.h"
#include "records/satz.h"
#include "records/simulation.h"

namespace varnok {

std::vector<int> Eingabestand::gezeigte_Studien() const {
    if (!Zusammenfassung_aktiv()) return {i_studie()};
    std::vector<int> alle(static_cast<std::size_t>(Studienzahl()));
    std::iota(alle.begin(), alle.end(), 0);
    return alle;
}

bool Eingabestand::Saetze_vollstaendig() const {
    for (const Satzart Art : Eingabearten) {
        if (Auswahl(Art) < 0 || !Saetze[Art].gelesen()) return false;
    }
    return Saetze[Simulation].gelesen();  // a simulation in the place of a deleted one
}

std::string Eingabestand::Bytes(Satzart Art, const Ansicht& Gesehenes) const {
    if (Art != Simulation) return Satz_als_Bytes(Art, Vorgabe, Gesehenes, Welt.Dezimalzeichen);
    Simulationssatz Satz{Vorgabe.Beschreibung, {}};
    for (const Satzart t : Eingabearten) Satz.Dateinamen[t] = Namen[t];
    return Simulation_als_Bytes(Satz);
}

std::string Eingabestand::Speicherbytes(Satzart Art) const { return Bytes(Art, Sicht); }

std::string Eingabestand::Speicherbild(Satzart Art) const {
    try {
        return Bytes(Art, {});
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
}

bool Eingabestand::verschieden(Satzart Art) const {
    return Saetze[Art].gelesen() ? Speicherbild(Art) != Saetze[Art].gespeichert() : Saetze[Art].Geaendert();
}

void Eingabestand::raeume_Marken_auf() {
    if (std::any_of(alle_Arten.begin(), alle_Arten.end(), [this](Satzart Art) { return verschieden(Art); })) return;
    for (Satzplatz& p : Saetze) p.vergiss_Aenderung();
}

bool Eingabestand::Simulation_markiert() const {
    if (!Saetze[Simulation].gelesen()) return false;
    try {
        const Simulationssatz Satz = zerlege_Simulation(Saetze[Simulation].gespeichert(), {});
        return !std::equal(Namen.begin() + 1, Namen.end(), Satz.Dateinamen.begin() + 1);
    } catch (const Laufzeitfehler&) {
        return true;  // names that no summary file holds
    }
}

Eingabestand::Marken_je_Art Eingabestand::Marken() const {
    Marken_je_Art Marken{};
    for (const Satzart Art : alle_Arten) Marken[Art] = Saetze[Art].Geaendert();
    return Marken;
}

void Eingabestand::stelle_Marken(const Marken_je_Art& Marken) {
    for (const Satzart Art : alle_Arten) Saetze[Art].stelle_Marke(Marken[Art]);
}

}  // namespace varnok
