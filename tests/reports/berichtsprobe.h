#pragma once

// Calculated runs and their report texts for the tests of this folder.

#include <string>
#include <vector>

#include "reports/bericht.h"
#include "reports/berichtstext.h"
#include "support/darstellungsprobe.h"
#include "zeuge.h"

namespace varnok::probe {

inline const Berichtsangaben Angaben = {"2.0 (test)", "21 Nov 2025", "14:05", "pattern record"};
inline const Berichtszeit Zeitpunkt = {"21 Nov 2025", "14:05"};

// With a description and a soil, every study calculated.
Darstellungsprobe mit_Ergebnissen(Lauf_bauer b);

// Adds studies "soil 2" ... up to `Anzahl`, each a quarter slower than the one before.
Lauf_bauer mit_Studien(Lauf_bauer b, int Anzahl);

zeuge::Aufgabe als_Aufgabe(const Darstellungsprobe& p, const Lauf_bauer& b);

// The lines of a text; every line end must be CR LF.
std::vector<std::string> Zeilen(const std::string& Text);
// The first line that begins so, and the lines from there on; fails the test without one.
std::string Zeile_mit(const std::string& Text, const std::string& Anfang);
std::vector<std::string> ab_Zeile(const std::string& Text, const std::string& Anfang);
// How often a text holds a word.
int Anzahl_von(const std::string& Text, const std::string& Wort);
// Value behind the first tab.
std::string Wert_in(const std::string& Zeile);

// A whole report with its picture.
Bericht Bericht_von(const Darstellung& d, Berichtsart Art = Berichtsart::Standard);

}  // namespace varnok::probe
