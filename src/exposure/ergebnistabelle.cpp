#include "exposure/ergebnistabelle.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "exposure/twa.h"

namespace varnok {
namespace {

// Places behind the point for a decimal logarithm, about five significant figures.
int Stellen_fuer(double Wert) {
    const double m = std::floor(std::log10(Wert));
    return m <= 0 ? 4 : m >= 4 ? 0 : 4 - static_cast<int>(m);
}

constexpr const char* kein_Mittelwert = "--------";  // a peak has no average
constexpr const char* Kopf_aktuell = "PECactual";
constexpr const char* Kopf_Mittelwert = "PECtwa";

void schneide_Nullen(std::string& Text, char Dezimalzeichen) {
    if (Text.find(Dezimalzeichen) == std::string::npos) return;
    Text.resize(Text.find_last_not_of('0') + 1);
}

std::string Blanks(std::ptrdiff_t Anzahl) {
    return std::string(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, Anzahl)), ' ');
}

// A stored value in the view and rotation chosen.
double gezeigter_Wert(const Darstellung& d, const Endpunktergebnis& e, float gespeichert) {
    return Ansichtswert(e.Plateauwert, d.Sicht.PEC_Typ, d.Sicht.Fruchtwechsel, gespeichert);
}

Einheitsart Einheit_der_Studie(const Darstellung& d, int i_studie) { return d.Studie(i_studie).Vorgabe->Parameter.Einheit; }

// The rows that the averaging windows of the input make.
std::vector<Ergebniswerte::Zeile> leere_Zeilen(const Darstellung& d) {
    std::vector<Ergebniswerte::Zeile> Zeilen(1);
    for (const float Tage : TWA_Fenster(d.Vorgabe().Parameter)) Zeilen.push_back({Tage, {}});
    return Zeilen;
}

std::string Fensterbezeichnung(std::optional<float> Fenster, char Dezimalzeichen) {
    return Fenster ? Fensterlaenge(*Fenster, Dezimalzeichen) : "PECmax";
}

}  // namespace

double Ansichtswert(float Plateauwert, PEC_Ansicht PEC_Art, Fruchtfolge Fruchtwechsel, float gespeichert) {
    return static_cast<double>(Plateauwert) * (static_cast<int>(PEC_Art) / 2.0) / Anbaujahre(Fruchtwechsel) +
           static_cast<double>(gespeichert);
}

std::string Formatiere_Zahl(double Wert, bool kuerzen, bool Grenztext, Einheitsart Einheit, char Dezimalzeichen) {
    const bool fest = !kuerzen && Grenztext;
    if (!fest && Wert < 0) throw Laufzeitfehler("A negative concentration cannot be shown: " + allgemeine_Zahl(Wert));
    const int Stellen = fest ? (Einheit == Milligramm ? 4 : 2) : Wert == 0 ? 1 : Stellen_fuer(Wert);
    const double gezeigter = gerundet(Wert, Stellen);
    if (fest && gezeigter == 0) return "<" + allgemeine_Zahl(Einheit == Mikrogramm ? 0.01 : 0.0001, Dezimalzeichen);
    std::string Text = feste_Zahl(Wert, Stellen, Dezimalzeichen);
    if (kuerzen && gezeigter > 0) schneide_Nullen(Text, Dezimalzeichen);
    if (Text.back() == Dezimalzeichen) Text.pop_back();
    return Text;
}

int PECactual_Tag(int Maximumtag, float Fenstertage) {
    const double Tag = std::min(Maximumtag + static_cast<double>(Fenstertage), static_cast<double>(letzter_Tag));
    return static_cast<int>(std::nearbyint(Tag));
}

std::string Ergebniswerte::Bezeichnung(const Zeile& z, char Dezimalzeichen) {
    return Fensterbezeichnung(z.Fenster, Dezimalzeichen);
}

std::string Ergebniswerte::Text(const Zeile& z, std::size_t i_spalte, char Dezimalzeichen) const {
    const std::optional<double>& Wert = z.Spalten.at(i_spalte);
    return Wert ? Formatiere_Zahl(*Wert, false, true, Spalten.at(i_spalte).Einheit, Dezimalzeichen) : kein_Mittelwert;
}

Ergebniswerte Werte_einer_Studie(const Darstellung& d, int i_studie, int i_substanz) {
    const Endpunktergebnis& e = d.Werte(i_studie, i_substanz);
    const Einheitsart Einheit = Einheit_der_Studie(d, i_studie);
    Ergebniswerte w{{{Kopf_aktuell, Einheit}, {Kopf_Mittelwert, Einheit}}, leere_Zeilen(d)};
    w.Zeilen[0].Spalten = {gezeigter_Wert(d, e, e.Maximum_Bodentiefe), std::nullopt};
    for (std::size_t j = 0; j < e.TWA.size(); ++j)
        w.Zeilen.at(j + 1).Spalten = {gezeigter_Wert(d, e, e.TWA[j].aktuell), gezeigter_Wert(d, e, e.TWA[j].Maximum)};
    return w;
}

Ergebniswerte Werte_aller_Studien(const Darstellung& d, int i_substanz) {
    Ergebniswerte w{{}, leere_Zeilen(d)};
    for (std::size_t st = 0; st < d.Namen.Studie.size(); ++st) {
        const int i_studie = static_cast<int>(st);
        const Endpunktergebnis& e = d.Werte(i_studie, i_substanz);
        w.Spalten.push_back({d.Namen.Studie[st], Einheit_der_Studie(d, i_studie)});
        w.Zeilen[0].Spalten.emplace_back(gezeigter_Wert(d, e, e.Maximum_Bodentiefe));
        for (std::size_t j = 0; j < e.TWA.size(); ++j)
            w.Zeilen.at(j + 1).Spalten.emplace_back(gezeigter_Wert(d, e, e.TWA[j].Maximum));
    }
    return w;
}

Tabellentext Tabellenkopf(const Laufparameter& p, char Dezimalzeichen) {
    const std::vector<float> Fenster = TWA_Fenster(p);
    Tabellentext Tabelle(Fenster.size() + 3, std::vector<std::string>(3));
    Tabelle[0] = {Blanks(10) + Fensterkopf, Blanks(5) + Kopf_aktuell, Blanks(7) + Kopf_Mittelwert};
    Tabelle[1][0] = Blanks(9) + Fensterbezeichnung({}, Dezimalzeichen);
    Tabelle[1][2] = Blanks(7) + kein_Mittelwert;
    for (std::size_t j = 0; j < Fenster.size(); ++j) {
        const std::string Laenge = Fensterlaenge(Fenster[j], Dezimalzeichen);
        // A digit of the proportional grid font is about twice as wide as a blank.
        Tabelle[j + 2][0] = Blanks(25 - 2 * static_cast<std::ptrdiff_t>(Zeichenzahl(Laenge))) + Laenge;
    }
    Tabelle.back()[2] = Blanks(7) + kein_Mittelwert;
    return Tabelle;
}

void erstelle_Ergebnistabelle(const Darstellung& d, int i_studie, int i_substanz, Tabellentext& Tabelle) {
    if (d.Sicht.PEC_Typ == Hintergrund) return;
    const Ergebniswerte w = Werte_einer_Studie(d, i_studie, i_substanz);
    for (std::size_t i = 0; i < w.Zeilen.size(); ++i) {
        Tabelle[i + 1][1] = w.Text(w.Zeilen[i], 0);
        if (w.Zeilen[i].Spalten[1]) Tabelle[i + 1][2] = w.Text(w.Zeilen[i], 1) + Blanks(6);
    }
}

void erstelle_Ergebnistabelle_Zusammenfassung(const Darstellung& d, int i_substanz, Tabellentext& Tabelle) {
    if (d.Sicht.PEC_Typ == Hintergrund) return;
    const Ergebniswerte w = Werte_aller_Studien(d, i_substanz);
    const std::size_t n = w.Spalten.size();
    const std::string Rand = Blanks(6 - static_cast<std::ptrdiff_t>(n));
    for (auto& Zeile : Tabelle) Zeile.resize(n + 1);
    Tabelle.back().assign(n + 1, "");  // the spare row; its dashes belong to the table of a compound
    Tabelle.back()[0] = " ";
    for (std::size_t st = 0; st < n; ++st) {
        Tabelle[0][st + 1] = w.Spalten[st].Kopf;
        for (std::size_t i = 0; i < w.Zeilen.size(); ++i) Tabelle[i + 1][st + 1] = Rand + w.Text(w.Zeilen[i], st);
    }
}

}  // namespace varnok
