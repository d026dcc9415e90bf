#include "batch/fundstelle.h"

#include "batch/satzladen.h"
#include "records/satzstelle.h"

namespace varnok::batch {

std::string Fundstelle(const Laufzeitfehler& Fehler, const Eingabe& e, const Simulationssatz& Satz, int i_studie) {
    Fehlerort Ort = Fehler.Ort();
    if (!Ort.Datei.empty()) return "";
    if (Ort.Feld == "TWA") return "settings file";  // no record holds the lists
    if (Ort.Feld == "Klimaszenario") return Dateistelle(e.Klimaszenario + Klima_Endung);
    if (Ort.i_studie < 0) Ort.i_studie = i_studie;
    if (const auto Stelle = finde_Satzstelle(Ort, e)) return Dateistelle(Satzdatei(Satz, Stelle->Art), Stelle->Zeile);
    return "files " + Satzdatei(Satz, Wirkstoff) + ", " + Satzdatei(Satz, Applikation) + ", " + Satzdatei(Satz, Szenario);
}

std::string Fundstelle(const Laufergebnis& Ergebnis, const Eingabe& e, const Simulationssatz& Satz) {
    if (Ergebnis.Ausgang == Laufausgang::Klimadatei_fehlt) return Dateistelle(e.Klimaszenario + Klima_Endung);
    const std::string Datei = Satzdatei(Satz, Applikation);
    if (Ergebnis.Ausgang != Laufausgang::Tabelle_ungueltig) return Dateistelle(Datei);
    const int Reihe = Ergebnis.Zeile + 1;
    return Dateistelle(Datei, Zeile_der_Tabellenreihe(Reihe)) + ", row " + std::to_string(Reihe) + " of the table, " +
           (Ergebnis.Spalte == 0 ? "day" : "month");
}

}  // namespace varnok::batch
