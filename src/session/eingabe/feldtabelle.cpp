#include "session/eingabe/feldtabelle.h"

#include <cmath>
#include <vector>

#include "base/zahlen.h"

namespace varnok {
namespace {

const Feldbeschreibung Vorlagen[] = {
    {"S_DT50", "DT50 (d)", Grenzen_von("k_SFO"), -1, Feldgruppe::Studie, true, &Laufparameter::k_SFO},
    {"S_DT50_1_DFOP", "DT50 1 (d)", Grenzen_von("k1_DFOP"), -1, Feldgruppe::Studie, true, &Laufparameter::k1_DFOP},
    {"S_DT50_2_DFOP", "DT50 2 (d)", Grenzen_von("k2_DFOP"), -1, Feldgruppe::Studie, true, &Laufparameter::k2_DFOP},
    {"S_g", "g", Grenzen_von("g_DFOP"), -1, Feldgruppe::Studie, false, &Laufparameter::g_DFOP},
    {"S_alpha", "alpha", Grenzen_von("alpha_FOMC"), 0, Feldgruppe::Studie_Hinweis_bleibt, false, &Laufparameter::alpha_FOMC},
    {"S_beta", "beta", Grenzen_von("beta_FOMC"), 0, Feldgruppe::Studie_Hinweis_bleibt, false, &Laufparameter::beta_FOMC},
    {"S_DT50_1_HS", "DT50 1 (d)", Grenzen_von("k1_HS"), 0, Feldgruppe::Studie_Hinweis_bleibt, true, &Laufparameter::k1_HS},
    {"S_DT50_2_HS", "DT50 2 (d)", Grenzen_von("k2_HS"), 0, Feldgruppe::Studie_Hinweis_bleibt, true, &Laufparameter::k2_HS},
    {"S_Tb", "Tb (d)", Grenzen_von("Tb_HS"), 0, Feldgruppe::Studie_Hinweis_bleibt, false, &Laufparameter::Tb_HS},
    {"S_Q10", "Q10:", Grenzen_von("Q10"), -1, Feldgruppe::Studie, false, &Laufparameter::Q10},
    {"S_Walker", "Walker:", Grenzen_von("Walker"), -1, Feldgruppe::Studie, false, &Laufparameter::Walker},
    {"S_TRef", "To:", Grenzen_von("TRef"), -1, Feldgruppe::Studie, false, &Laufparameter::TRef},
    {"S_KOC", "Koc (L/kgl):", Grenzen_von("KOC"), -1, Feldgruppe::Studie, false, &Laufparameter::KOC,
     "The Koc constant is invalid. Please correct!"},
    {"Molmasse_Wirkstoff", "Mol. Mass (g/mol):", Grenzen_von("Molmasse"), 0, Feldgruppe::Stoff, false,
     &Eingabe::Molmasse_Wirkstoff},
    {"Molmasse_Met_1", "Mol. Mass (g/mol):", Grenzen_von("Molmasse"), 1, Feldgruppe::Stoff, false, &Eingabe::Molmasse_Met_1},
    {"Molmasse_Met_2", "Mol. Mass (g/mol):", Grenzen_von("Molmasse"), 2, Feldgruppe::Stoff, false, &Eingabe::Molmasse_Met_2},
    {"Bildungsanteil_Met_1", "Formation fraction (%):", Grenzen_von("Bildungsanteil"), 1, Feldgruppe::Stoff, false,
     &Eingabe::Bildungsanteil_Met_1},
    {"Bildungsanteil_Met_2", "Formation fraction (%):", Grenzen_von("Bildungsanteil"), 2, Feldgruppe::Stoff, false,
     &Eingabe::Bildungsanteil_Met_2},
    {"Applikationsrate", "Rate", Grenzen_von("Applikationsrate"), 0, Feldgruppe::Dosis, false, &Eingabe::Applikationsrate,
     nullptr, true},
    {"Interzeption", "Interception", Grenzen_von("Interzeption"), 0, Feldgruppe::Dosis, false, &Eingabe::Interzeption},
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
    return Bereich->Grenzen.enthaelt(v) || (Enter && Null_bei_Enter && v == 0);
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

}  // namespace varnok
