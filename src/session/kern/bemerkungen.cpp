#include "session/kern/bemerkungen.h"

#include "base/laufzeitfehler.h"
#include "records/klimadatei.h"
#include "records/satz.h"
#include "records/simulation.h"

namespace varnok {
namespace {

// What reading the bytes of a record again has to remark. What makes them useless was told when they were read.
std::vector<Bemerkung> zum_Satz(const Dateistand& Datei, Satzart Art) {
    std::vector<Bemerkung> Gefundene;
    const std::string Name = Datei.Name + Endungen[Art];
    try {
        if (Art == Simulation) {
            zerlege_Simulation(Datei.Bytes, Name, &Gefundene);
            return Gefundene;
        }
        Eingabe e;
        Ansicht a;
        return Satz_lesen_aus(Datei.Bytes, Name, Art, e, a).Bemerkungen;
    } catch (const Laufzeitfehler&) {
        return Gefundene;
    }
}

std::vector<Bemerkung> zum_Klima(const Zustand& z) {
    std::vector<Bemerkung> Gefundene;
    if (!z.Klima.Wert()) return Gefundene;
    try {
        zerlege_Klimadatei(*z.Klima.Wert(), z.Vorgabe.Klimaszenario + Klima_Endung, &Gefundene);
    } catch (const Laufzeitfehler&) {
        Gefundene.clear();  // the run tells of a file that is of no use
    }
    return Gefundene;
}

}  // namespace

std::vector<Bemerkung> Bemerkungen(const Zustand& z) {
    std::vector<Bemerkung> Alle;
    if (!z.Ordner) return Alle;
    const auto nimm_auf = [&](const std::vector<Bemerkung>& neue) {
        for (Bemerkung b : neue) {
            b.Datei = z.Ordner->Eingabedatei(b.Datei);
            Alle.push_back(std::move(b));
        }
    };
    for (const Satzart Art : alle_Arten) {
        if (z.Saetze[Art].gelesen() && !z.Saetze[Art].Datei().Bytes.empty()) nimm_auf(zum_Satz(z.Saetze[Art].Datei(), Art));
    }
    nimm_auf(zum_Klima(z));
    Alle.insert(Alle.end(), z.zu_den_Einstellungen.begin(), z.zu_den_Einstellungen.end());
    return Alle;
}

}  // namespace varnok
