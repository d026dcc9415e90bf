#include <algorithm>
#include <cmath>

#include "base/zahlen.h"
#include "diagrams/achsen.h"
#include "diagrams/diagrammbau.h"
#include "diagrams/striche.h"

namespace varnok {
namespace {

constexpr auto Ort = [](int i) { return static_cast<std::size_t>(i); };
constexpr double letztes_Ende = letzter_Tag;

// Last day of the year in which the longest averaging window behind a study's peak ends.
double Jahresende(const Ansicht& Sicht, int i_studie, int i_substanz) {
    const float Jahr = std::floor(Sicht.Maximumtag_plus(i_studie, i_substanz, Sicht.laengstes_Fenster()) / Tage_pro_Jahr);
    return static_cast<double>((Jahr + 1) * Tage_pro_Jahr - 1);
}

// End of the time axis: the studies' years, or the user's end if that is later; never behind the run.
double Ende_fuer(const Lauf& l, const Ansicht& Sicht, double manuelles_Ende, int i_substanz) {
    if (Sicht.PEC_Art() == Ansicht::Hintergrund) return letztes_Ende;
    double Ende = std::max(static_cast<double>(Tage_pro_Jahr - 1), manuelles_Ende);
    for (int i = 0; i < Studienzahl(l); ++i) Ende = std::max(Ende, Jahresende(Sicht, i, i_substanz));
    return std::min(Ende, letztes_Ende);
}

// The concentrations in the tillage depth, whatever the view shows.
void schreibe_Studie(Nebenprodukt& n, const Lauf& l, const Achsenbereich& a, int i_studie, int i_substanz) {
    const auto Reihe = l.Speicher.Reihe_Plateautiefe(Ansicht(l).Endpunkt(), i_studie, i_substanz, 0);
    const std::string Anfang = std::to_string(i_studie) + ' ' + std::to_string(i_substanz) + ' ';
    for (int t = a.erster_Tag(); t <= a.letzter_Tag(); ++t) {
        n.Zeilen.push_back(Anfang + std::to_string(t) + ' ' + allgemeine_Zahl(Reihe[Ort(t)]));
    }
}

}  // namespace

double erstelle_Diagramm_skaliere_y_Achse(const Lauf& l, int i_substanz, double X_Start, double X_Ende) {
    const Ansicht Sicht(l);
    const int von = static_cast<int>(std::nearbyint(gehaltener_Start(X_Start)));
    const int bis = static_cast<int>(std::nearbyint(std::min(X_Ende, letztes_Ende)));
    float Y_Maximum = 0;
    for (int i = 0; i < Studienzahl(l); ++i) {
        for (const float w : Sicht.Werte(i, i_substanz, von, bis)) Y_Maximum = std::max(Y_Maximum, w);
    }
    return erstelle_Diagramm_skaliere_y_Achse(static_cast<double>(Y_Maximum));
}

Diagramm erstelle_Diagramm_Zusammenfassung(const Lauf& l, Diagrammbereiche& b, int Zusammenfassungssatz, int i_studie,
                                           bool mit_Datei) {
    const Ansicht Sicht(l);
    const auto z = Ort(Zusammenfassungssatz);
    const int c = Substanz_von_Zusammenfassung(Zusammenfassungssatz);
    b.X_Ende_Zusammenfassung[z] = Ende_fuer(l, Sicht, b.manuelles_Ende[z], c);
    const double Start = b.X_Start_Zusammenfassung[z];
    const double Ende = b.X_Ende_Zusammenfassung[z];
    const Achsenbereich a = bilde_Achsenbereich(Start, Ende, erstelle_Diagramm_skaliere_y_Achse(l, c, Start, Ende));

    Diagramm d;
    d.Satz = Zusammenfassungssatz;
    d.Zusammenfassung = true;
    beschrifte_Achsen(d, Sicht);
    d.Ergebnistitel = Sicht.Ergebnistitel();
    zeichne_Achsen(d.Liste, a);
    d.Legendeninhalt = {Legendenart::Zusammenfassung, {Legendengruppe()}};
    if (mit_Datei) d.Datei.Dateiname = "Diagram.txt";
    for (int i = 0; i < Studienzahl(l); ++i) {
        d.Legendeninhalt.Gruppen[0].Eintraege.push_back({Studienname(l, i), {Studienfarbe(i), 2}});
        zeichne_Kurve(d, a, Sicht, i, c, Studienfarbe(i), Studienname(l, i));
        if (mit_Datei) schreibe_Studie(d.Datei, l, a, i, c);
        zeichne_TWA(d.Liste, a, Sicht, i, c, Studienfarbe(i));
    }
    d.Titel = mittige_Beschriftung(std::string(Sicht.Titelanfang()) + l.Felder.Beschreibung + " - All soil studies", a, 1, 100);
    d.Kommentar = mittige_Beschriftung(Stoffkommentar(l, c, i_studie), a, 0, 90);
    return d;
}

std::vector<Diagramm> erstelle_Diagramme_Zusammenfassung(const Lauf& l, Diagrammbereiche& b, int i_studie) {
    const int Schema = l.Felder.Berechnungsmodus;
    const int Stoffzahl = Anzahl_Stoffe(Schema);
    std::vector<Diagramm> Diagramme;
    for (int c = 0; c < Stoffzahl; ++c) {
        const bool letztes = c == Stoffzahl - 1;
        Diagramme.push_back(erstelle_Diagramm_Zusammenfassung(l, b, Zusammenfassungssatz_von(Schema, c), i_studie, letztes));
    }
    return Diagramme;
}

}  // namespace varnok
