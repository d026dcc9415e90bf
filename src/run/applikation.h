#pragma once

#include <optional>

#include "run/eingabe.h"
#include "run/ergebnisspeicher.h"

namespace varnok {

// A cell of the table of irregular applications, row and column counted from 0.
struct Tabellenzelle {
    int Zeile = 0;
    int Spalte = 0;
};

// Day of the year of a table row, counted from 0; nothing outside a year of 365 days.
std::optional<int> Jahrestag(const Applikationszeile& Zeile);

// Checks the table before a run: gives the cell whose day or month is no date of a year, nothing if all
// are. An interception of 100 or more becomes "99" without a word, since an event without a dose would
// shift the slots of all later ones.
std::optional<Tabellenzelle> Tabelle_mit_Applikationen_berechne_PEC(Eingabe& e);

// Net dose of a single or regular pattern: the part of the rate that reaches the soil, g/ha.
double Nettodosis(const Zahlwert& Rate, const Zahlwert& Interzeption);

// Spreads the doses over the time axis: fills `Tagesrate`, `Applikationstag`, `Anzahl_pro_Jahr` and
// `Wirksame_Rate` for a study. False if the dates of an irregular pattern do not ascend.
// Throws Laufzeitfehler for a dose that is not finite.
bool Lade_Applikationen(const Eingabe& e, int i_studie, Ergebnisspeicher& Speicher);

}  // namespace varnok
