#include "batch/fundstelle.h"

#include <array>
#include <string_view>

#include "batch/satzladen.h"
#include "records/projektordner.h"

namespace varnok::batch {
namespace {

// Lines of a compound record in front of the first study, of one study, and the line behind the last study
// on which the parent's molar mass stands; the metabolites follow it.
constexpr int Zeilen_vor_Studien = 9;
constexpr int Zeilen_pro_Studie = 15;
constexpr int Zeile_Stoff = 5;

enum class Bezug { Datei, Studie };  // from where a line is counted

struct Eintrag {
    std::string_view Wort;  // how a message names the value
    Satzart Art;
    Bezug gezaehlt_ab;
    int Zeile;
};

constexpr std::array Eintraege = {
    Eintrag{"Soil density", Szenario, Bezug::Datei, 3},
    Eintrag{"Soil depth", Szenario, Bezug::Datei, 4},
    Eintrag{"Plateaudepth", Szenario, Bezug::Datei, 5},
    Eintrag{"Organic carbon content", Szenario, Bezug::Datei, 6},
    Eintrag{"Field capacity", Szenario, Bezug::Datei, 7},
    Eintrag{"Wilting point", Szenario, Bezug::Datei, 8},
    Eintrag{"Application rate", Applikation, Bezug::Datei, 5},
    Eintrag{"Crop interception", Applikation, Bezug::Datei, 6},
    Eintrag{"KOC", Wirkstoff, Bezug::Studie, 2},
    Eintrag{"Q10-factor", Wirkstoff, Bezug::Studie, 3},
    Eintrag{"Walker-exponent", Wirkstoff, Bezug::Studie, 4},
    Eintrag{"Reference Temperature", Wirkstoff, Bezug::Studie, 5},
    Eintrag{"kinetics of", Wirkstoff, Bezug::Studie, 6},
    Eintrag{"SFO k", Wirkstoff, Bezug::Studie, 7},
    Eintrag{"FOMC alpha", Wirkstoff, Bezug::Studie, 8},
    Eintrag{"FOMC beta", Wirkstoff, Bezug::Studie, 9},
    Eintrag{"DFOP k1", Wirkstoff, Bezug::Studie, 10},
    Eintrag{"DFOP k2", Wirkstoff, Bezug::Studie, 11},
    Eintrag{"DFOP  g", Wirkstoff, Bezug::Studie, 12},
    Eintrag{"DFOP g", Wirkstoff, Bezug::Studie, 12},
    Eintrag{"HS   k1", Wirkstoff, Bezug::Studie, 13},
    Eintrag{"HS k1", Wirkstoff, Bezug::Studie, 13},
    Eintrag{"HS   k2", Wirkstoff, Bezug::Studie, 14},
    Eintrag{"HS k2", Wirkstoff, Bezug::Studie, 14},
    Eintrag{"HS   Tb", Wirkstoff, Bezug::Studie, 15},
    Eintrag{"HS Tb", Wirkstoff, Bezug::Studie, 15},
};

constexpr std::string_view Wort_Molmasse = "molar mass of ";
constexpr std::string_view Wort_Klima = "climate file";
constexpr std::string_view Wort_Fenster = "TWA window";

bool enthaelt(std::string_view Text, std::string_view Teil) { return Text.find(Teil) != std::string_view::npos; }

// Messages name the value at fault first thing in their brackets.
bool beginnt_Klammer(std::string_view Text, std::string_view Wort) {
    const auto Klammer = Text.find("Please correct! (");
    return Klammer != std::string_view::npos && Text.substr(Text.find('(', Klammer) + 1).starts_with(Wort);
}

// Line of the compound whose molar mass is at fault, 0 if the message is about something else.
int Zeile_der_Molmasse(const std::string& Meldung, const Lauf& l) {
    const auto Stelle = Meldung.find(Wort_Molmasse);
    if (Stelle == std::string::npos) return 0;
    const std::string_view Rest = std::string_view(Meldung).substr(Stelle + Wort_Molmasse.size());
    const int davor = Zeilen_vor_Studien + Zeilen_pro_Studie * l.Parameter.Anzahl_Studien + Zeile_Stoff;
    for (int c = 0; c < Anzahl_Stoffe(l.Felder.Berechnungsmodus); ++c) {
        if (Rest.starts_with(Stoffname(l.Felder, c) + " = ")) return davor + c;
    }
    return davor;
}

}  // namespace

std::string Fundstelle(const std::string& Meldung, const Lauf& l, const Simulationssatz& Satz, int i_studie) {
    if (const int Zeile = Zeile_der_Molmasse(Meldung, l)) return Dateistelle(Satzdatei(Satz, Wirkstoff), Zeile);
    for (const Eintrag& e : Eintraege) {
        if (!beginnt_Klammer(Meldung, e.Wort)) continue;
        // The table of irregular applications has a line for each event, and the message does not tell which.
        if (e.Art == Applikation && l.Felder.Applikationsmuster == unregelmaessig) return Dateistelle(Satzdatei(Satz, e.Art));
        const int davor = e.gezaehlt_ab == Bezug::Studie ? Zeilen_vor_Studien + Zeilen_pro_Studie * i_studie : 0;
        return Dateistelle(Satzdatei(Satz, e.Art), davor + e.Zeile);
    }
    if (enthaelt(Meldung, Wort_Fenster)) return "settings file";  // no record holds the lists
    const std::string Klimadatei = l.Felder.Klimaszenario + Klima_Endung;
    if (enthaelt(Meldung, Klimadatei)) return "";
    if (enthaelt(Meldung, Wort_Klima)) return Dateistelle(Klimadatei);
    return "files " + Satzdatei(Satz, Wirkstoff) + ", " + Satzdatei(Satz, Applikation) + ", " + Satzdatei(Satz, Szenario);
}

}  // namespace varnok::batch
