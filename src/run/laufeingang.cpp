#include "run/laufeingang.h"

namespace varnok {
namespace {

using Zahlen = std::vector<double>;

void nimm(Zahlen& z, std::initializer_list<double> Werte) { z.insert(z.end(), Werte); }

void nimm_Szenario(Zahlen& z, const Eingabe& e) {
    const Laufparameter& p = e.Parameter;
    nimm(z, {p.Bodendichte, p.Bodentiefe, p.Plateautiefe, p.Kohlenstoffgehalt, p.Feldkapazitaet, p.Welkepunkt});
    nimm(z, {static_cast<double>(p.Klimamodus)});
    if (p.Klimamodus == 1) {
        nimm(z, {static_cast<double>(e.App_Monat), static_cast<double>(e.App_Tag)});  // where the weather begins
    } else {
        nimm(z, {static_cast<double>(p.Szenariotemperatur)});
    }
}

void nimm_Optionen(Zahlen& z, const Laufparameter& p) {
    nimm(z, {static_cast<double>(p.Einheit), static_cast<double>(p.Separate_Rueckstaende), static_cast<double>(p.TWA_Zeiten)});
    if (p.TWA_Zeiten == 1) {
        z.insert(z.end(), p.TWA.EU.begin(), p.TWA.EU.end());
    } else {
        z.insert(z.end(), p.TWA.Monat.begin(), p.TWA.Monat.end());
    }
}

void nimm_Kinetik(Zahlen& z, const Laufparameter& p, std::size_t c, std::size_t st) {
    const Kinetikart Kinetik = p.Kinetik[c][st];
    nimm(z, {static_cast<double>(Kinetik)});
    // The effective rate of the parent is that of its SFO constant under every kinetics.
    if (Kinetik == SFO || c == 0) nimm(z, {p.k_SFO[c][st]});
    if (Kinetik == DFOP) nimm(z, {p.k1_DFOP[c][st], p.k2_DFOP[c][st], p.g_DFOP[c][st]});
    if (Kinetik == FOMC) nimm(z, {p.alpha_FOMC[st], p.beta_FOMC[st]});
    if (Kinetik == HS) nimm(z, {p.k1_HS[st], p.k2_HS[st], p.Tb_HS[st]});
}

void nimm_Stoffe(Zahlen& z, const Eingabe& e, std::size_t st) {
    const Laufparameter& p = e.Parameter;
    nimm(z, {static_cast<double>(e.Berechnungsmodus)});
    const int Anzahl = Anzahl_Stoffe(e.Berechnungsmodus);
    for (int i = 0; i < Anzahl; ++i) {
        const auto c = static_cast<std::size_t>(i);
        nimm(z, {p.KOC[c][st], p.Q10[c][st], p.Walker[c][st], p.TRef[c][st]});
        nimm_Kinetik(z, p, c, st);
        if (Anzahl > 1) nimm(z, {Molmasse(e, i).Zahl()});
        if (i > 0) nimm(z, {Bildungsanteil(e, i).Zahl()});
    }
}

void nimm_Applikation(Zahlen& z, const Eingabe& e) {
    // The number counts under the single pattern, too: FOMC takes the days of so many events for reference days.
    nimm(z, {static_cast<double>(e.Applikationsmuster), static_cast<double>(e.Anzahl())});
    if (e.Applikationsmuster == unregelmaessig) {
        for (const Applikationszeile& Zeile : e.Applikationsschema) {
            for (const Zahlwert& Zelle : Zeile) nimm(z, {Zelle.Zahl()});
        }
        return;
    }
    nimm(z, {e.Applikationsrate.Zahl(), e.Interzeption.Zahl()});
    if (e.Applikationsmuster == regelmaessig) nimm(z, {static_cast<double>(e.Intervall())});
}

}  // namespace

std::vector<double> Laufeingang(const Eingabe& e, int i_studie) {
    Zahlen z;
    z.reserve(160);
    nimm_Szenario(z, e);
    nimm_Optionen(z, e.Parameter);
    nimm_Stoffe(z, e, static_cast<std::size_t>(i_studie));
    nimm_Applikation(z, e);
    return z;
}

bool gleicher_Laufeingang(const Eingabe& a, const Eingabe& b, int i_studie) {
    const bool gleiches_Klima = a.Parameter.Klimamodus != 1 || b.Parameter.Klimamodus != 1 || a.Klimaszenario == b.Klimaszenario;
    return gleiches_Klima && Laufeingang(a, i_studie) == Laufeingang(b, i_studie);
}

}  // namespace varnok
