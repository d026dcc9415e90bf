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

void schneide_Nullen(std::string& Text) {
    if (Text.find('.') == std::string::npos) return;
    Text.resize(Text.find_last_not_of('0') + 1);
}

std::string Blanks(std::ptrdiff_t Anzahl) {
    return std::string(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, Anzahl)), ' ');
}

// Text of a stored value in the view and rotation chosen.
std::string Zellentext(const Darstellung& d, int i_studie, int i_substanz, float gespeichert) {
    const float Plateau = d.Werte(i_studie, i_substanz).Plateauwert;
    return Formatiere_Zahl(Ansichtswert(Plateau, d.Sicht.PEC_Typ, d.Sicht.Fruchtwechsel, gespeichert), false, true,
                           d.Studie(i_studie).Vorgabe->Parameter.Einheit);
}

}  // namespace

double Ansichtswert(float Plateauwert, PEC_Ansicht PEC_Art, Fruchtfolge Fruchtwechsel, float gespeichert) {
    return static_cast<double>(Plateauwert) * (static_cast<int>(PEC_Art) / 2.0) / Anbaujahre(Fruchtwechsel) +
           static_cast<double>(gespeichert);
}

std::string Formatiere_Zahl(double Wert, bool kuerzen, bool Grenztext, Einheitsart Einheit) {
    const bool fest = !kuerzen && Grenztext;
    if (!fest && Wert < 0) throw Laufzeitfehler("A negative concentration cannot be shown: " + allgemeine_Zahl(Wert));
    const int Stellen = fest ? (Einheit == Milligramm ? 4 : 2) : Wert == 0 ? 1 : Stellen_fuer(Wert);
    const double gezeigter = gerundet(Wert, Stellen);
    if (fest && gezeigter == 0) return Einheit == Mikrogramm ? "<0.01" : "<0.0001";
    std::string Text = feste_Zahl(Wert, Stellen);
    if (kuerzen && gezeigter > 0) schneide_Nullen(Text);
    if (Text.back() == '.') Text.pop_back();
    return Text;
}

int PECactual_Tag(int Maximumtag, float Fenstertage) {
    const double Tag = std::min(Maximumtag + static_cast<double>(Fenstertage), static_cast<double>(letzter_Tag));
    return static_cast<int>(std::nearbyint(Tag));
}

Tabellentext Tabellenkopf(const Laufparameter& p, char Dezimalzeichen) {
    const std::vector<float> Fenster = TWA_Fenster(p);
    Tabellentext Tabelle(Fenster.size() + 3, std::vector<std::string>(3));
    Tabelle[0] = {"          Time(d)", "     PECactual", "       PECtwa"};
    Tabelle[1][0] = "         PECmax";
    Tabelle[1][2] = "       --------";  // a peak has no average
    for (std::size_t j = 0; j < Fenster.size(); ++j) {
        const std::string Laenge = Fensterlaenge(Fenster[j], Dezimalzeichen);
        // A digit of the proportional grid font is about twice as wide as a blank.
        Tabelle[j + 2][0] = Blanks(25 - 2 * static_cast<std::ptrdiff_t>(Zeichenzahl(Laenge))) + Laenge;
    }
    Tabelle.back()[2] = "       --------";
    return Tabelle;
}

void erstelle_Ergebnistabelle(const Darstellung& d, int i_studie, int i_substanz, Tabellentext& Tabelle) {
    if (d.Sicht.PEC_Typ == Hintergrund) return;
    const Endpunktergebnis& e = d.Werte(i_studie, i_substanz);
    Tabelle[1][1] = Zellentext(d, i_studie, i_substanz, e.Maximum_Bodentiefe);
    for (std::size_t j = 0; j < e.TWA.size(); ++j) {
        Tabelle[j + 2][1] = Zellentext(d, i_studie, i_substanz, e.TWA[j].aktuell);
        Tabelle[j + 2][2] = Zellentext(d, i_studie, i_substanz, e.TWA[j].Maximum) + "      ";
    }
}

void erstelle_Ergebnistabelle_Zusammenfassung(const Darstellung& d, int i_substanz, Tabellentext& Tabelle) {
    if (d.Sicht.PEC_Typ == Hintergrund) return;
    const std::size_t n = d.Namen.Studie.size();
    const std::string Rand = Blanks(6 - static_cast<std::ptrdiff_t>(n));
    for (auto& Zeile : Tabelle) Zeile.resize(n + 1);
    Tabelle.back().assign(n + 1, "");  // the spare row; its dashes belong to the table of a compound
    Tabelle.back()[0] = " ";
    for (std::size_t st = 0; st < n; ++st) {
        const int i_studie = static_cast<int>(st);
        const Endpunktergebnis& e = d.Werte(i_studie, i_substanz);
        Tabelle[0][st + 1] = d.Namen.Studie[st];
        Tabelle[1][st + 1] = Rand + Zellentext(d, i_studie, i_substanz, e.Maximum_Bodentiefe);
        for (std::size_t j = 0; j < e.TWA.size(); ++j) {
            Tabelle[j + 2][st + 1] = Rand + Zellentext(d, i_studie, i_substanz, e.TWA[j].Maximum);
        }
    }
}

}  // namespace varnok
