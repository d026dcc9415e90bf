#include "diagrams/diagrammbau.h"

#include <algorithm>

#include "base/dateiname.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "diagrams/achsen.h"
#include "diagrams/striche.h"

namespace varnok {
namespace {

constexpr auto st = [](int i) { return static_cast<std::size_t>(i); };
constexpr double letztes_Ende = letzter_Tag;

// The end of an axis moves on to make room, but never behind the run.
double mache_Platz(double X_Ende, float bis) { return std::min(letztes_Ende, std::max(X_Ende, static_cast<double>(bis))); }

// Where the averaging window ends that begins with the peak.
float Fensterende(const Ergebnissicht& Sicht, int i_studie, int i_substanz) {
    return Sicht.Maximumtag_plus(i_studie, i_substanz, Sicht.TWA_Fenster(i_studie, i_substanz));
}

// Legend of a compound: its curve and its averaging window.
Legendengruppe Stofflegende(const Ergebnissicht& Sicht, std::string Titel, int i_substanz) {
    return {std::move(Titel), {{"PEC", {Kurvenfarbe(i_substanz), 2}}, {Sicht.TWA_Text(), {TWA_Farbe(i_substanz), 1}}}};
}

// The study's name stands in the title and counts twice in its centring.
Beschriftung Studientitel(const Ergebnissicht& Sicht, const Achsenbereich& a, int i_studie) {
    const std::string& Studie = Sicht.Studienname(i_studie);
    return mittige_Beschriftung(Sicht.Titelanfang() + " Study: " + Studie, a, 1 + static_cast<int>(Zeichenzahl(Studie)), 100);
}

Nebenprodukt Tagesreihe_Datei(const Ergebnissicht& Sicht, const std::string& Stoff, const std::vector<Kurve>& Kurven) {
    Nebenprodukt n = {Dateiname_Tagesreihe(Stoff), {Sicht.Dateikopf()}};
    if (Kurven.empty()) return n;
    const Kurve& k = Kurven.front();
    n.Zeilen.reserve(k.Werte.size());
    for (std::size_t i = 0; i + 1 < k.Werte.size(); ++i) {
        n.Zeilen.push_back(std::to_string(k.erster_Tag + static_cast<int>(i)) + '\t' + allgemeine_Zahl(k.Werte[i]));
    }
    return n;
}

}  // namespace

Diagramm erstelle_Diagramm(const Darstellung& Inhalt, Diagrammbereiche& b, int Diagrammsatz, int i_studie) {
    const Ergebnissicht Sicht(Inhalt, i_studie);
    const int c = Substanz_von_Diagramm(Diagrammsatz);
    double& X_Ende = b.X_Ende[st(Diagrammsatz)];
    X_Ende = mache_Platz(X_Ende, Fensterende(Sicht, i_studie, c));
    if (Sicht.PEC_Art() == Hintergrund) X_Ende = letztes_Ende;
    const double Y_Maximum = erstelle_Diagramm_skaliere_y_Achse(static_cast<double>(Sicht.Maximum(i_studie, c)));
    const Achsenbereich a = bilde_Achsenbereich(b.X_Start[st(Diagrammsatz)], X_Ende, Y_Maximum);

    Diagramm d;
    d.Nummer = Diagrammsatz;
    beschrifte_Achsen(d, Sicht);
    d.Ergebnistitel = Sicht.Ergebnistitel();
    zeichne_Achsen(d.Liste, a);
    zeichne_Kurve(d, a, Sicht, i_studie, c, Kurvenfarbe(c), Sicht.Stoffname(c));
    d.Datei = Tagesreihe_Datei(Sicht, Sicht.Stoffname(c), d.Kurven);
    zeichne_TWA(d, a, Sicht, i_studie, c, TWA_Farbe(c), Sicht.Stoffname(c));
    d.Legendeninhalt = {Legendenart::einzeln, {Stofflegende(Sicht, {}, c)}};
    d.Titel = Studientitel(Sicht, a, i_studie);
    d.Kommentar = mittige_Beschriftung(Sicht.Stoffkommentar(c), a, 0, 90);
    d.Kommentar.Farbe = Kurvenfarbe(c);
    return d;
}

Diagramm erstelle_Diagramm_mehrfach(const Darstellung& Inhalt, Diagrammbereiche& b, int Diagrammsatz, int i_substanz,
                                    int i_studie) {
    const Ergebnissicht Sicht(Inhalt, i_studie);
    const int Stoffzahl = Anzahl_Stoffe(Schema_von_Diagramm(Diagrammsatz));
    double& X_Ende = b.X_Ende[st(Diagrammsatz)];
    if (Sicht.PEC_Art() == Hintergrund) X_Ende = letztes_Ende;
    X_Ende = mache_Platz(X_Ende, Fensterende(Sicht, i_studie, i_substanz));
    if (Stoffzahl > 2) {
        const float v = Sicht.Maximumtag_plus(i_studie, 2, Sicht.laengstes_Fenster(i_studie, 2)) + 1;
        X_Ende = std::max(X_Ende, mache_Platz(Tage_pro_Jahr - 1, v));
    }
    float groesster = Sicht.Maximum(i_studie, 0);
    for (int k = 1; k < Stoffzahl; ++k) groesster = std::max(groesster, Sicht.Maximum(i_studie, k));
    const double Y_Maximum = erstelle_Diagramm_skaliere_y_Achse(static_cast<double>(groesster));
    const Achsenbereich a = bilde_Achsenbereich(b.X_Start[st(Diagrammsatz)], X_Ende, Y_Maximum);

    Diagramm d;
    d.Nummer = Diagrammsatz;
    beschrifte_Achsen(d, Sicht);
    zeichne_Achsen(d.Liste, a);
    d.Legendeninhalt.Art = Legendenart::mehrfach;
    for (int k = 0; k < Stoffzahl; ++k) {
        zeichne_Kurve(d, a, Sicht, i_studie, k, Kurvenfarbe(k), Sicht.Stoffname(k));
        zeichne_TWA(d, a, Sicht, i_studie, k, TWA_Farbe(k), Sicht.Stoffname(k));
        d.Legendeninhalt.Gruppen.push_back(Stofflegende(Sicht, Sicht.Stoffname(k), k));
    }
    d.Titel = Studientitel(Sicht, a, i_studie);
    d.Kommentar = mittige_Beschriftung(Sicht.Schemakommentar(), a, 0, 100);
    return d;
}

std::vector<Diagramm> erstelle_Diagramme(const Darstellung& Inhalt, Diagrammbereiche& b, int i_studie) {
    const Stoffschema Schema = Inhalt.Studie(i_studie).Vorgabe->Berechnungsmodus;
    const int Stoffzahl = Anzahl_Stoffe(Schema);
    std::vector<Diagramm> Diagramme;
    for (int c = 0; c < Stoffzahl; ++c) Diagramme.push_back(erstelle_Diagramm(Inhalt, b, Diagrammsatz_von(Schema, c), i_studie));
    const int mehrfach = Mehrfachsatz_von(Schema);
    if (mehrfach != kein_Diagramm) Diagramme.push_back(erstelle_Diagramm_mehrfach(Inhalt, b, mehrfach, Stoffzahl - 1, i_studie));
    return Diagramme;
}

std::string Dateiname_Tagesreihe(const std::string& Stoffname) {
    return als_Dateiname("Detailed Results - " + Stoffname, ".tab");
}

}  // namespace varnok
