#include "reports/berichtstext.h"

#include "reports/berichtsabschnitte.h"
#include "reports/berichtswoerter.h"

namespace varnok {
namespace {

using TWA_Tabelle = void (*)(std::string&, const std::string&, const Darstellung&, int);

std::string erstelle_Bericht(const Darstellung& d, const Berichtsangaben& a, Berichtsart Art, TWA_Tabelle haenge_Tabellen_an) {
    std::string Berichtstext;
    Textaufbau t(Berichtstext);
    haenge_Kopf_an(t, d, a, Art);
    haenge_Programmeinstellungen_an(t, d);
    haenge_Szenario_an(t, d, a, Art);
    haenge_Applikationen_an(t, d);
    haenge_Stoffe_an(t, d);
    haenge_Kinetik_an(t, d, Art);
    t.Enden(3);
    t.Text({Berichtswort::Ergebnisse}, 2);
    const Stoffschema Schema = d.Vorgabe().Berechnungsmodus;
    t.Zeile("Metabolism scheme:", Schemaname(Schema), 2);
    for (int c = 0; c < Anzahl_Stoffe(Schema); ++c) haenge_Tabellen_an(Berichtstext, Berichtsname(d, c), d, c);
    t.Enden(3);
    t.Text({Berichtswort::Bildkopf}, 2);
    t.Text({Berichtswort::Bildplatz}, 2);
    return Berichtstext;
}

}  // namespace

std::string erstelle_Standardbericht(const Darstellung& d, const Berichtsangaben& a) {
    return erstelle_Bericht(d, a, Berichtsart::Standard, erstelle_Standardbericht_TWA_Tabelle);
}

std::string erstelle_erweiterten_Bericht(const Darstellung& d, const Berichtsangaben& a) {
    return erstelle_Bericht(d, a, Berichtsart::erweitert, erstelle_erweiterten_Bericht_TWA_Tabelle);
}

}  // namespace varnok
