#include "batch/fundstelle.h"

#include <utility>

#include "batch/satzladen.h"
#include "records/satzstelle.h"

namespace varnok::batch {
namespace {

Fundstelle in_Datei(Fehlerort Ort, const std::string& Datei, int Zeile = 0) {
    Ort.Datei = Datei;
    Ort.Zeile = Zeile;
    return {std::move(Ort), Dateistelle(Datei, Zeile)};
}

}  // namespace

Fundstelle finde_Fundstelle(const Laufzeitfehler& Fehler, const Eingabe& e, const Simulationssatz& Satz, int i_studie) {
    Fehlerort Ort = Fehler.Ort();
    if (Ort.i_studie < 0) Ort.i_studie = i_studie;
    if (!Ort.Datei.empty()) return {Ort, Ort.Zeile > 0 ? "File " + Zeilenangabe(Ort.Datei, Ort.Zeile) : std::string()};
    if (Ort.Feld == "TWA") return {Ort, "settings file"};  // no record holds the lists
    if (Ort.Feld == "Klimaszenario") return in_Datei(Ort, e.Klimaszenario + Klima_Endung);
    if (const auto Stelle = finde_Satzstelle(Ort, e)) return in_Datei(Ort, Satzdatei(Satz, Stelle->Art), Stelle->Zeile);
    return {Ort, "files " + Satzdatei(Satz, Wirkstoff) + ", " + Satzdatei(Satz, Applikation) + ", " + Satzdatei(Satz, Szenario)};
}

Fundstelle finde_Fundstelle(const Laufergebnis& Ergebnis, const Eingabe& e, const Simulationssatz& Satz, int i_studie) {
    if (Ergebnis.Ausgang == Laufausgang::Klimadatei_fehlt)
        return in_Datei({.Feld = "Klimaszenario", .i_studie = i_studie}, e.Klimaszenario + Klima_Endung);
    const std::string Datei = Satzdatei(Satz, Applikation);
    if (Ergebnis.Ausgang != Laufausgang::Tabelle_ungueltig) return in_Datei({.i_studie = i_studie}, Datei);
    const int Reihe = Ergebnis.Zeile + 1;
    const bool Tag = Ergebnis.Spalte == 0;
    const Fehlerort Zelle = {.Feld = Tag ? "Tabellentag" : "Tabellenmonat",
                             .i_studie = i_studie,
                             .Reihe = Reihe,
                             .Bezeichnung = Tag ? "day" : "month"};
    Fundstelle Stelle = in_Datei(Zelle, Datei, Stelle_der_Reihe(Reihe, e).Zeile);
    Stelle.Text += ", row " + std::to_string(Reihe) + " of the table, " + Zelle.Bezeichnung;
    return Stelle;
}

}  // namespace varnok::batch
