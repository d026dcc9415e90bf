#include "session/ergebnis/herkunft.h"

#include "records/dateien.h"
#include "records/eingabensumme.h"

namespace varnok {

std::string Herkunft_der_Ergebnisse(const Zustand& z) {
    const std::string ungesichert = "inputs not saved";
    if (z.verschieden(Simulation)) return ungesichert;
    Eingabensumme Summe;
    for (const Satzart Art : Eingabearten) {
        const Satzplatz& p = z.Saetze[Art];
        const auto Pfad = z.Ordner->finde(p.Datei().Name, Endungen[Art]);
        const auto Bytes = Pfad ? lies_Datei_falls_moeglich(*Pfad) : std::nullopt;
        if (!p.gelesen() || z.verschieden(Art) || Bytes != p.Datei().Bytes) return ungesichert;
        Summe.nimm_Datei(*Bytes);
    }
    if (z.Parameter().Klimamodus == nach_Klimadatei && z.Klima.Wert()) Summe.nimm_Datei(*z.Klima.Wert());
    return std::string(Eingabensummenname) + " " + Summe.als_Text();
}

}  // namespace varnok
