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
double Jahresende(const Ergebnissicht& Sicht, int i_studie, int i_substanz) {
    const float Fensterende = Sicht.Maximumtag_plus(i_studie, i_substanz, Sicht.laengstes_Fenster(i_studie, i_substanz));
    const float Jahr = std::floor(Fensterende / Tage_pro_Jahr);
    return static_cast<double>((Jahr + 1) * Tage_pro_Jahr - 1);
}

// End of the time axis: the studies' years, or the user's end if that is later; never behind the run.
double Ende_fuer(const Ergebnissicht& Sicht, double manuelles_Ende, int i_substanz) {
    if (Sicht.PEC_Art() == Hintergrund) return letztes_Ende;
    double Ende = std::max(static_cast<double>(Tage_pro_Jahr - 1), manuelles_Ende);
    for (int i = 0; i < Sicht.Studienzahl(); ++i) Ende = std::max(Ende, Jahresende(Sicht, i, i_substanz));
    return std::min(Ende, letztes_Ende);
}

double Y_Maximum_fuer(const Ergebnissicht& Sicht, int i_substanz, double X_Start, double X_Ende) {
    const int von = static_cast<int>(std::nearbyint(gehaltener_Start(X_Start)));
    const int bis = static_cast<int>(std::nearbyint(std::min(X_Ende, letztes_Ende)));
    float groesster = 0;
    for (int i = 0; i < Sicht.Studienzahl(); ++i) {
        for (const float w : Sicht.Werte(i, i_substanz, von, bis)) groesster = std::max(groesster, w);
    }
    return erstelle_Diagramm_skaliere_y_Achse(static_cast<double>(groesster));
}

// The concentrations in the tillage depth, whatever the view shows.
void schreibe_Studie(Nebenprodukt& n, const Ergebnissicht& Sicht, const Achsenbereich& a, int i_studie, int i_substanz) {
    const std::vector<float>& Reihe = Sicht.Reihe_Plateautiefe(i_studie, i_substanz);
    const std::string Anfang = std::to_string(i_studie) + ' ' + std::to_string(i_substanz) + ' ';
    for (int t = a.erster_Tag(); t <= a.letzter_Tag(); ++t) {
        n.Zeilen.push_back(Anfang + std::to_string(t) + ' ' + allgemeine_Zahl(Reihe[Ort(t)]));
    }
}

}  // namespace

double erstelle_Diagramm_skaliere_y_Achse(const Darstellung& Inhalt, int i_substanz, double X_Start, double X_Ende) {
    return Y_Maximum_fuer(Ergebnissicht(Inhalt, Inhalt.Sicht.Studie_Index), i_substanz, X_Start, X_Ende);
}

Diagramm erstelle_Diagramm_Zusammenfassung(const Darstellung& Inhalt, Diagrammbereiche& b, int Zusammenfassungssatz, int i_studie,
                                           bool mit_Datei) {
    const Ergebnissicht Sicht(Inhalt, i_studie);
    const auto z = Ort(Zusammenfassungssatz);
    const int c = Substanz_von_Zusammenfassung(Zusammenfassungssatz);
    b.X_Ende_Zusammenfassung[z] = Ende_fuer(Sicht, b.manuelles_Ende[z], c);
    const double Start = b.X_Start_Zusammenfassung[z];
    const double Ende = b.X_Ende_Zusammenfassung[z];
    const Achsenbereich a = bilde_Achsenbereich(Start, Ende, Y_Maximum_fuer(Sicht, c, Start, Ende));

    Diagramm d;
    d.Nummer = Zusammenfassungssatz;
    d.Zusammenfassung = true;
    beschrifte_Achsen(d, Sicht);
    d.Ergebnistitel = Sicht.Ergebnistitel();
    zeichne_Achsen(d.Liste, a);
    d.Legendeninhalt = {Legendenart::Zusammenfassung, {Legendengruppe()}};
    if (mit_Datei) d.Datei.Dateiname = "Diagram.txt";
    for (int i = 0; i < Sicht.Studienzahl(); ++i) {
        d.Legendeninhalt.Gruppen[0].Eintraege.push_back({Sicht.Studienname(i), {Studienfarbe(i), 2}});
        zeichne_Kurve(d, a, Sicht, i, c, Studienfarbe(i), Sicht.Studienname(i));
        if (mit_Datei) schreibe_Studie(d.Datei, Sicht, a, i, c);
        zeichne_TWA(d, a, Sicht, i, c, Studienfarbe(i), Sicht.Studienname(i));
    }
    d.Titel = mittige_Beschriftung(Sicht.Titelanfang() + " - All soil studies", a, 1, 100);
    d.Kommentar = mittige_Beschriftung(Sicht.Stoffkommentar(c), a, 0, 90);
    return d;
}

std::vector<Diagramm> erstelle_Diagramme_Zusammenfassung(const Darstellung& Inhalt, Diagrammbereiche& b, int i_studie) {
    const Stoffschema Schema = Inhalt.Studie(i_studie).Vorgabe->Berechnungsmodus;
    const int Stoffzahl = Anzahl_Stoffe(Schema);
    std::vector<Diagramm> Diagramme;
    for (int c = 0; c < Stoffzahl; ++c) {
        const bool letztes = c == Stoffzahl - 1;
        Diagramme.push_back(erstelle_Diagramm_Zusammenfassung(Inhalt, b, Zusammenfassungssatz_von(Schema, c), i_studie, letztes));
    }
    return Diagramme;
}

}  // namespace varnok
