#include "run/laufeingang.h"

#include <algorithm>
#include <array>

namespace varnok {
namespace {

// The walk over what a run of a study reads: for each number the name of its store, its compound (-1 without one) and itself.
template <class Funktion>
void gehe_durch_Szenario(const Eingabe& e, Funktion nimm) {
    const Laufparameter& p = e.Parameter;
    nimm("Bodendichte", -1, p.Bodendichte);
    nimm("Bodentiefe", -1, p.Bodentiefe);
    nimm("Plateautiefe", -1, p.Plateautiefe);
    nimm("Kohlenstoffgehalt", -1, p.Kohlenstoffgehalt);
    nimm("Feldkapazitaet", -1, p.Feldkapazitaet);
    nimm("Welkepunkt", -1, p.Welkepunkt);
    nimm("Klimamodus", -1, p.Klimamodus);
    if (p.Klimamodus == nach_Klimadatei) {
        nimm("App_Monat", -1, e.App_Monat);  // where the weather begins
        nimm("App_Tag", -1, e.App_Tag);
    } else {
        nimm("Szenariotemperatur", -1, p.Szenariotemperatur);
    }
}

template <class Funktion>
void gehe_durch_Optionen(const Laufparameter& p, Funktion nimm) {
    nimm("Einheit", -1, p.Einheit);
    nimm("Separate_Rueckstaende", -1, p.Separate_Rueckstaende);
    nimm("TWA_Zeiten", -1, p.TWA_Zeiten);
    if (p.TWA_Zeiten == EU_Liste) {
        for (const double Tage : p.TWA.EU) nimm("TWA", -1, Tage);
    } else {
        for (const double Tage : p.TWA.Monat) nimm("TWA", -1, Tage);
    }
}

template <class Funktion>
void gehe_durch_Kinetik(const Laufparameter& p, std::size_t c, std::size_t st, Funktion nimm) {
    const Kinetikart Kinetik = p.Kinetik[c][st];
    nimm("Kinetik", Kinetik);
    // The effective rate of the parent is that of its SFO constant under every kinetics.
    if (Kinetik == SFO || c == 0) nimm("k_SFO", p.k_SFO[c][st]);
    if (Kinetik == DFOP) {
        nimm("k1_DFOP", p.k1_DFOP[c][st]);
        nimm("k2_DFOP", p.k2_DFOP[c][st]);
        nimm("g_DFOP", p.g_DFOP[c][st]);
    }
    if (Kinetik == FOMC) {
        nimm("alpha_FOMC", p.alpha_FOMC[st]);
        nimm("beta_FOMC", p.beta_FOMC[st]);
    }
    if (Kinetik == HS) {
        nimm("k1_HS", p.k1_HS[st]);
        nimm("k2_HS", p.k2_HS[st]);
        nimm("Tb_HS", p.Tb_HS[st]);
    }
}

template <class Funktion>
void gehe_durch_Stoffe(const Eingabe& e, std::size_t st, Funktion nimm) {
    const Laufparameter& p = e.Parameter;
    nimm("Berechnungsmodus", -1, e.Berechnungsmodus);
    const int Anzahl = Anzahl_Stoffe(e.Berechnungsmodus);
    for (int i = 0; i < Anzahl; ++i) {
        const auto c = static_cast<std::size_t>(i);
        const auto nimm_von_Stoff = [&](std::string_view Name, double Wert) { nimm(Name, i, Wert); };
        nimm_von_Stoff("KOC", p.KOC[c][st]);
        nimm_von_Stoff("Q10", p.Q10[c][st]);
        nimm_von_Stoff("Walker", p.Walker[c][st]);
        nimm_von_Stoff("TRef", p.TRef[c][st]);
        gehe_durch_Kinetik(p, c, st, nimm_von_Stoff);
        if (Anzahl > 1) nimm_von_Stoff("Molmasse", Molmasse(e, i).Zahl());
        if (i > 0) nimm_von_Stoff("Bildungsanteil", Bildungsanteil(e, i).Zahl());
    }
}

constexpr std::array<std::string_view, 4> Tabellenspalten = {"Tabellentag", "Tabellenmonat", "Tabellenrate",
                                                             "Tabelleninterzeption"};

template <class Funktion>
void gehe_durch_Applikation(const Eingabe& e, Funktion nimm) {
    // The number counts under the single pattern, too: FOMC takes the days of so many events for reference days.
    nimm("Applikationsmuster", -1, e.Applikationsmuster);
    nimm("Anzahl", -1, e.Anzahl());
    if (e.Applikationsmuster == unregelmaessig) {
        for (const Applikationszeile& Zeile : e.Applikationsschema) {
            for (std::size_t j = 0; j < Tabellenspalten.size(); ++j) nimm(Tabellenspalten[j], -1, Zeile[j].Zahl());
        }
        return;
    }
    nimm("Applikationsrate", -1, e.Applikationsrate.Zahl());
    nimm("Interzeption", -1, e.Interzeption.Zahl());
    if (e.Applikationsmuster == regelmaessig) nimm("Intervall", -1, e.Intervall());
}

template <class Funktion>
void gehe_durch_Laufeingang(const Eingabe& e, int i_studie, Funktion nimm) {
    gehe_durch_Szenario(e, nimm);
    gehe_durch_Optionen(e.Parameter, nimm);
    gehe_durch_Stoffe(e, static_cast<std::size_t>(i_studie), nimm);
    gehe_durch_Applikation(e, nimm);
}

}  // namespace

std::vector<double> Laufeingang(const Eingabe& e, int i_studie) {
    std::vector<double> Zahlen;
    Zahlen.reserve(160);
    gehe_durch_Laufeingang(e, i_studie, [&](std::string_view, int, double Zahl) { Zahlen.push_back(Zahl); });
    return Zahlen;
}

bool liest_ein_Lauf(const Eingabe& e, std::string_view Speicher, int i_studie, int i_substanz) {
    bool gelesen = false;
    gehe_durch_Laufeingang(e, std::max(i_studie, 0), [&](std::string_view Name, int c, double) {
        gelesen = gelesen || (Name == Speicher && (i_substanz < 0 || c < 0 || c == i_substanz));
    });
    return gelesen;
}

bool gleicher_Laufeingang(const Eingabe& a, const Eingabe& b, int i_studie) {
    const bool gleiches_Klima = a.Parameter.Klimamodus == konstante_Temperatur ||
                                b.Parameter.Klimamodus == konstante_Temperatur || a.Klimaszenario == b.Klimaszenario;
    return gleiches_Klima && Laufeingang(a, i_studie) == Laufeingang(b, i_studie);
}

}  // namespace varnok
