#include "exposure/ergebnistabelle.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"

namespace varnok {
namespace {

constexpr int Hintergrund = 1;  // the view that has no tables

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

// Text of a stored value in the view and rotation of the entry fields.
std::string Zellentext(const Lauf& l, int i_studie, int i_substanz, float gespeichert) {
    const auto e = static_cast<std::size_t>(l.Felder.Endpunkt);
    const float Plateau = l.Speicher.Plateauwert[e][static_cast<std::size_t>(i_studie)][static_cast<std::size_t>(i_substanz)];
    return Formatiere_Zahl(Ansichtswert(Plateau, l.Felder.PEC_Typ, l.Felder.Fruchtwechsel, gespeichert), false, true,
                           l.Parameter.Einheit);
}

}  // namespace

double Ansichtswert(float Plateauwert, int PEC_Art, int Fruchtwechsel, float gespeichert) {
    return static_cast<double>(Plateauwert) * (PEC_Art / 2.0) / (Fruchtwechsel + 1) + static_cast<double>(gespeichert);
}

std::string Formatiere_Zahl(double Wert, bool kuerzen, bool Grenztext, int Einheit) {
    std::string Text = "0.0";
    if (!kuerzen && Grenztext) {
        Text = feste_Zahl(Wert, Einheit == 0 ? 4 : 2);
    } else if (Wert < 0) {
        throw Laufzeitfehler("A negative concentration cannot be shown: " + allgemeine_Zahl(Wert));
    } else if (Wert != 0) {
        Text = feste_Zahl(Wert, Stellen_fuer(Wert));
    }
    if (kuerzen && varnok::Wert(Text) > 0) schneide_Nullen(Text);
    if (Text.back() == '.') Text.pop_back();
    if (varnok::Wert(Text) == 0 && Grenztext && !kuerzen) return Einheit == 1 ? "<0.01" : "<0.0001";
    return Text;
}

int PECactual_Tag(const Lauf& l, int i_endpunkt, int i_studie, int i_substanz, int Fenster) {
    const auto Peak = l.Speicher.Maximumtag_Bodentiefe[static_cast<std::size_t>(i_endpunkt)][static_cast<std::size_t>(i_studie)]
                                                      [static_cast<std::size_t>(i_substanz)];
    const auto Laenge = static_cast<double>(l.Speicher.TWA_Tage[static_cast<std::size_t>(Fenster)]);
    return static_cast<int>(std::nearbyint(std::min(Peak + Laenge, static_cast<double>(letzter_Tag))));
}

float PECactual(const Lauf& l, int i_endpunkt, int i_studie, int i_substanz, int Fenster) {
    const auto e = static_cast<std::size_t>(i_endpunkt);
    const bool nie_vorhanden =
        l.Speicher.Maximumtag_Bodentiefe[e][static_cast<std::size_t>(i_studie)][static_cast<std::size_t>(i_substanz)] < 0;
    if (nie_vorhanden) return 0;
    const int d = PECactual_Tag(l, i_endpunkt, i_studie, i_substanz, Fenster);
    return l.Speicher.Reihe_Bodentiefe(i_endpunkt, i_studie, i_substanz, 0)[static_cast<std::size_t>(d)];
}

Tabellentext Tabellenkopf(const Lauf& l, char Dezimalzeichen) {
    const int Fenster = Anzahl_TWA(l.Parameter.TWA_Zeiten);
    Tabellentext Tabelle(static_cast<std::size_t>(Fenster + 3), std::vector<std::string>(3));
    Tabelle[0] = {"          Time(d)", "     PECactual", "       PECtwa"};
    Tabelle[1][0] = "         PECmax";
    Tabelle[1][2] = "       --------";  // a peak has no average
    for (int j = 1; j <= Fenster; ++j) {
        const std::string Laenge = allgemeine_Zahl(l.Speicher.TWA_Tage[static_cast<std::size_t>(j)], Dezimalzeichen) + " d";
        // A digit of the proportional grid font is about twice as wide as a blank.
        Tabelle[static_cast<std::size_t>(j + 1)][0] = Blanks(25 - 2 * static_cast<std::ptrdiff_t>(Zeichenzahl(Laenge))) + Laenge;
    }
    Tabelle.back()[2] = "       --------";
    return Tabelle;
}

void erstelle_Ergebnistabelle(const Lauf& l, int i_studie, int i_substanz, Tabellentext& Tabelle) {
    if (l.Felder.PEC_Typ == Hintergrund) return;
    const auto e = static_cast<std::size_t>(l.Felder.Endpunkt);
    const auto st = static_cast<std::size_t>(i_studie);
    const auto c = static_cast<std::size_t>(i_substanz);
    Tabelle[1][1] = Zellentext(l, i_studie, i_substanz, l.Speicher.Maximum_Bodentiefe[e][st][c]);
    for (int j = 1; j <= Anzahl_TWA(l.Parameter.TWA_Zeiten); ++j) {
        auto& Zeile = Tabelle[static_cast<std::size_t>(j + 1)];
        Zeile[1] = Zellentext(l, i_studie, i_substanz, PECactual(l, l.Felder.Endpunkt, i_studie, i_substanz, j));
        Zeile[2] = Zellentext(l, i_studie, i_substanz, l.Speicher.TWA_Maximum[e][st][c][static_cast<std::size_t>(j)]) + "      ";
    }
}

void erstelle_Ergebnistabelle_Zusammenfassung(const Lauf& l, int i_substanz, Tabellentext& Tabelle) {
    if (l.Felder.PEC_Typ == Hintergrund) return;
    const auto e = static_cast<std::size_t>(l.Felder.Endpunkt);
    const auto c = static_cast<std::size_t>(i_substanz);
    const std::size_t n = l.Felder.Studie.size();
    const std::string Rand = Blanks(6 - static_cast<std::ptrdiff_t>(n));
    for (auto& Zeile : Tabelle) Zeile.resize(n + 1);
    Tabelle.back().assign(n + 1, "");  // the spare row; its dashes belong to the table of a compound
    Tabelle.back()[0] = " ";
    for (std::size_t st = 0; st < n; ++st) {
        const int i_studie = static_cast<int>(st);
        Tabelle[0][st + 1] = l.Felder.Studie[st];
        Tabelle[1][st + 1] = Rand + Zellentext(l, i_studie, i_substanz, l.Speicher.Maximum_Bodentiefe[e][st][c]);
        for (std::size_t j = 1; j <= static_cast<std::size_t>(Anzahl_TWA(l.Parameter.TWA_Zeiten)); ++j) {
            Tabelle[j + 1][st + 1] = Rand + Zellentext(l, i_studie, i_substanz, l.Speicher.TWA_Maximum[e][st][c][j]);
        }
    }
}

}  // namespace varnok
