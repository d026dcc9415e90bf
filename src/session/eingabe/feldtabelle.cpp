#include "session/eingabe/feldtabelle.h"

#include <cmath>
#include <limits>
#include <vector>

#include "base/zahlen.h"

namespace varnok {
namespace {

constexpr double ohne_Ende = std::numeric_limits<double>::infinity();

constexpr Bereich ab_0 = {0, true, ohne_Ende, true};
constexpr Bereich ueber_0 = {0, false, ohne_Ende, true};

constexpr const char* Meldung_DT50 = "The DT50 is invalid. Please correct!";
constexpr const char* Meldung_Masse = "The molecular mass is invalid. Please correct!";
constexpr const char* Meldung_Bildung = "The formation rate is invalid. Please correct!";

const Feldbeschreibung Vorlagen[] = {
    {"S_DT50", "DT50 (d)", "d", -1, Feldgruppe::Studie, true, ab_0, Meldung_DT50, &Laufparameter::k_SFO},
    {"S_DT50_1_DFOP", "DT50 1 (d)", "d", -1, Feldgruppe::Studie, true, ab_0, Meldung_DT50, &Laufparameter::k1_DFOP},
    {"S_DT50_2_DFOP", "DT50 2 (d)", "d", -1, Feldgruppe::Studie, true, ab_0, Meldung_DT50, &Laufparameter::k2_DFOP},
    {"S_g",
     "g",
     "",
     -1,
     Feldgruppe::Studie,
     false,
     {0, true, 1, true},
     "The g constant is invalid. Please correct!",
     &Laufparameter::g_DFOP},
    {"S_alpha", "alpha", "", 0, Feldgruppe::Studie_Hinweis_bleibt, false, ab_0, "The alpha constant is invalid. Please correct!",
     &Laufparameter::alpha_FOMC},
    {"S_beta", "beta", "", 0, Feldgruppe::Studie_Hinweis_bleibt, false, ueber_0, "The beta constant is invalid. Please correct!",
     &Laufparameter::beta_FOMC},
    {"S_DT50_1_HS", "DT50 1 (d)", "d", 0, Feldgruppe::Studie_Hinweis_bleibt, true, ab_0, Meldung_DT50, &Laufparameter::k1_HS},
    {"S_DT50_2_HS", "DT50 2 (d)", "d", 0, Feldgruppe::Studie_Hinweis_bleibt, true, ab_0, Meldung_DT50, &Laufparameter::k2_HS},
    {"S_Tb", "Tb (d)", "d", 0, Feldgruppe::Studie_Hinweis_bleibt, false, ab_0, "The breakpoint is invalid. Please correct!",
     &Laufparameter::Tb_HS},
    {"S_Q10", "Q10:", "", -1, Feldgruppe::Studie, false, ueber_0, "The Q10 constant is invalid. Please correct!",
     &Laufparameter::Q10},
    {"S_Walker", "Walker:", "", -1, Feldgruppe::Studie, false, ab_0, "The Walker exponent is invalid. Please correct!",
     &Laufparameter::Walker},
    {"S_TRef", "To:", "°C", -1, Feldgruppe::Studie, false, ab_0, "The tref exponent is invalid. Please correct!",
     &Laufparameter::TRef},
    {"S_KOC", "Koc (L/kgl):", "L/kg", -1, Feldgruppe::Studie, false, ab_0, "The KOC constant is invalid. Please correct!",
     &Laufparameter::KOC, "The Koc constant is invalid. Please correct!"},
    {"Molmasse_Wirkstoff", "Mol. Mass (g/mol):", "g/mol", 0, Feldgruppe::Stoff, false, ueber_0, Meldung_Masse,
     &Eingabe::Molmasse_Wirkstoff},
    {"Molmasse_Met_1", "Mol. Mass (g/mol):", "g/mol", 1, Feldgruppe::Stoff, false, ueber_0, Meldung_Masse,
     &Eingabe::Molmasse_Met_1},
    {"Molmasse_Met_2", "Mol. Mass (g/mol):", "g/mol", 2, Feldgruppe::Stoff, false, ueber_0, Meldung_Masse,
     &Eingabe::Molmasse_Met_2},
    {"Bildungsanteil_Met_1",
     "Formation fraction (%):",
     "%",
     1,
     Feldgruppe::Stoff,
     false,
     {0, true, 100, true},
     Meldung_Bildung,
     &Eingabe::Bildungsanteil_Met_1},
    {"Bildungsanteil_Met_2",
     "Formation fraction (%):",
     "%",
     2,
     Feldgruppe::Stoff,
     false,
     {0, true, 100, true},
     Meldung_Bildung,
     &Eingabe::Bildungsanteil_Met_2},
    {"Applikationsrate", "Rate", "g/ha", 0, Feldgruppe::Dosis, false, ueber_0,
     "The applikations rate is invalid. Please correct!", &Eingabe::Applikationsrate, nullptr, true},
    {"Interzeption",
     "Interception",
     "%",
     0,
     Feldgruppe::Dosis,
     false,
     {0, true, 100, false},
     "The crop interception is invalid. Please correct!",
     &Eingabe::Interzeption},
};

std::vector<Feldbeschreibung> erstelle_Tabelle() {
    std::vector<Feldbeschreibung> Felder;
    for (Feldbeschreibung f : Vorlagen) {
        if (f.i_substanz >= 0) {
            Felder.push_back(f);
            continue;
        }
        f.je_Stoff = true;
        for (f.i_substanz = 0; f.i_substanz < Stoffe; ++f.i_substanz) Felder.push_back(f);
    }
    return Felder;
}

}  // namespace

std::string Feldbeschreibung::Objektname() const {
    return je_Stoff ? std::string(Name) + "_" + std::to_string(i_substanz) : std::string(Name);
}

bool Feldbeschreibung::gilt(double v, bool Enter) const {
    if (!std::isfinite(v)) return false;
    const bool unten = v > Grenzen.von || (v == Grenzen.von && (Grenzen.von_gilt || (Enter && Null_bei_Enter)));
    const bool oben = v < Grenzen.bis || (v == Grenzen.bis && Grenzen.bis_gilt);
    return unten && oben;
}

std::span<const Feldbeschreibung> Feldtabelle() {
    static const std::vector<Feldbeschreibung> Felder = erstelle_Tabelle();
    return Felder;
}

int Feld_mit_Namen(const std::string& Objektname) {
    const auto Felder = Feldtabelle();
    for (std::size_t i = 0; i < Felder.size(); ++i) {
        if (Felder[i].Objektname() == Objektname) return static_cast<int>(i);
    }
    return -1;
}

double Halbwertszeit(double v) { return v > 0 ? std::log(2.0) / v : 0; }

std::string Text_der_Halbwertszeit(double k, char Dezimalzeichen) {
    const double DT50 = Halbwertszeit(k);
    const std::string gesucht = allgemeine_Zahl(k);
    for (int Stellen = 1; Stellen < 15; ++Stellen) {
        const std::string Text = gekuerzte_Zahl(DT50, Stellen);
        if (allgemeine_Zahl(Halbwertszeit(Wert(Text))) == gesucht) return gekuerzte_Zahl(DT50, Stellen, Dezimalzeichen);
    }
    return allgemeine_Zahl(DT50, Dezimalzeichen);
}

}  // namespace varnok
