#include "reports/berichtstext.h"

#include "reports/berichtsabschnitte.h"
#include "reports/berichtswoerter.h"

namespace varnok {
namespace {

using TWA_Tabelle = void (*)(std::string&, const std::string&, const Lauf&, int);

std::string erstelle_Bericht(const Lauf& l, const Berichtsangaben& a, Berichtsart Art, TWA_Tabelle haenge_Tabellen_an) {
    std::string Berichtstext;
    Textaufbau t(Berichtstext);
    haenge_Kopf_an(t, l, a, Art);
    haenge_Programmeinstellungen_an(t, l);
    haenge_Szenario_an(t, l, Art);
    haenge_Applikationen_an(t, l.Felder);
    haenge_Stoffe_an(t, l);
    haenge_Kinetik_an(t, l, Art);
    t.Enden(3);
    t.Text({Berichtswort::Ergebnisse}, 2);
    t.Zeile("Metabolism scheme:", Schemaname(l.Felder.Berechnungsmodus), 2);
    for (int c = 0; c < Anzahl_Stoffe(l.Felder.Berechnungsmodus); ++c) {
        haenge_Tabellen_an(Berichtstext, Berichtsname(l.Felder, c), l, c);
    }
    t.Enden(3);
    t.Text({Berichtswort::Bildkopf}, 2);
    t.Text({Berichtswort::Bildplatz}, 2);
    return Berichtstext;
}

}  // namespace

std::string erstelle_Standardbericht(const Lauf& l, const Berichtsangaben& a) {
    return erstelle_Bericht(l, a, Berichtsart::Standard, erstelle_Standardbericht_TWA_Tabelle);
}

std::string erstelle_erweiterten_Bericht(const Lauf& l, const Berichtsangaben& a) {
    return erstelle_Bericht(l, a, Berichtsart::erweitert, erstelle_erweiterten_Bericht_TWA_Tabelle);
}

}  // namespace varnok
