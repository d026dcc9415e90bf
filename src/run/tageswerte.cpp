#include "run/tageswerte.h"

#include <cmath>
#include <string>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {

void beginne_Tageswerte(Lauf& l) {
    l.Tag.Bodenfeuchte = (l.Felder.Parameter.Feldkapazitaet + l.Felder.Parameter.Welkepunkt) / 2;
    l.Tag.Referenzfeuchte = l.Felder.Parameter.Feldkapazitaet;
    l.Tag.Tagesniederschlag = l.Tag.Tagesverdunstung = 0;
}

void lies_Klimatag(Lauf& l, int d) {
    const Klimatag& k = l.Klima.Tag(d);
    l.Tag.Tagesniederschlag = k.Tagesniederschlag;
    l.Tag.Tagesverdunstung = k.Tagesverdunstung;
    l.Tag.Tagestemperatur = k.Tagestemperatur;
    // mm over cm times 100 is this model's balance, not a slip of units.
    const double Bilanz = (k.Tagesniederschlag - k.Tagesverdunstung) / l.Felder.Parameter.Bodentiefe * 100 + l.Tag.Bodenfeuchte;
    l.Tag.Bodenfeuchte = Maximum(l.Felder.Parameter.Welkepunkt, Minimum(l.Felder.Parameter.Feldkapazitaet, Bilanz));
}

void lies_Klimatage(Lauf& l) {
    Tagesfaktoren& f = l.Platz->Faktoren;
    for (int d = 1; d <= letzter_Tag; ++d) {
        lies_Klimatag(l, d);
        l.Tag.Summe_Temperatur += l.Tag.Tagestemperatur;
        l.Tag.Summe_Niederschlag += l.Tag.Tagesniederschlag;
        l.Tag.Summe_Verdunstung += l.Tag.Tagesverdunstung;
        f.Temperatur[static_cast<std::size_t>(d)] = l.Tag.Tagestemperatur;
        f.Feuchte[static_cast<std::size_t>(d)] = l.Tag.Bodenfeuchte;
    }
}

void setze_konstantes_Klima(Lauf& l) {
    l.Tag.Tagestemperatur = l.Felder.Parameter.Szenariotemperatur;
    l.Tag.Bodenfeuchte = l.Tag.Referenzfeuchte;
}

double PW_faktor(const Lauf& l, int i_studie, int i_substanz) {
    const double KOC = l.Felder.Parameter.KOC[static_cast<std::size_t>(i_substanz)][static_cast<std::size_t>(i_studie)];
    const double Faktor =
        (l.Felder.Parameter.Kohlenstoffgehalt * KOC) / 100 + (l.Tag.Bodenfeuchte / 100) / l.Felder.Parameter.Bodendichte;
    if (Faktor == 0 || !std::isfinite(Faktor)) {
        melde_unmoegliche_Rechnung(
            "KOC (L/kg) = " + allgemeine_Zahl(KOC) + ", soil moisture (Vol%) = " + allgemeine_Zahl(l.Tag.Bodenfeuchte),
            {{}, 0, "KOC", i_studie, i_substanz});
    }
    return Faktor;
}

Korrektur bestimme_Korrektur(const Lauf& l, int i_studie, int i_substanz) {
    const auto c = static_cast<std::size_t>(i_substanz);
    const auto st = static_cast<std::size_t>(i_studie);
    const Laufparameter& p = l.Felder.Parameter;
    Korrektur k;
    k.Temperatur = std::pow(p.Q10[c][st], (l.Tag.Tagestemperatur - p.TRef[c][st]) / 10);
    k.Feuchte = std::pow(l.Tag.Bodenfeuchte / l.Tag.Referenzfeuchte, p.Walker[c][st]);
    if (!std::isfinite(k.Faktor())) {
        melde_unmoegliche_Rechnung("Q10-factor = " + allgemeine_Zahl(p.Q10[c][st]) +
                                       ", Walker-exponent = " + allgemeine_Zahl(p.Walker[c][st]) +
                                       ", temperature (°C) = " + allgemeine_Zahl(l.Tag.Tagestemperatur) +
                                       ", soil moisture (Vol%) = " + allgemeine_Zahl(l.Tag.Bodenfeuchte),
                                   {{}, 0, "Q10", i_studie, i_substanz});
    }
    return k;
}

void pruefe_Boden(const Laufparameter& p) {
    const struct {
        const char* Feld;
        const char* Name;
        double Wert;
    } Nenner[] = {
        {"Bodendichte", "Soil density (kg/L)", p.Bodendichte},
        {"Bodentiefe", "Soil depth (cm)", p.Bodentiefe},
        {"Plateautiefe", "Plateaudepth (cm)", p.Plateautiefe},
        {"Feldkapazitaet", "Field capacity (Vol%)", p.Feldkapazitaet},
    };
    for (const auto& n : Nenner) {
        if (!(n.Wert > 0)) {
            melde_unmoegliche_Rechnung(std::string(n.Name) + " = " + allgemeine_Zahl(n.Wert), {{}, 0, n.Feld});
        }
    }
}

void pruefe_Stoffe(const Eingabe& e, int i_studie) {
    const auto st = static_cast<std::size_t>(i_studie);
    const Laufparameter& p = e.Parameter;
    for (int i = 0; i < Anzahl_Stoffe(e.Berechnungsmodus); ++i) {
        const auto c = static_cast<std::size_t>(i);
        if (!(p.KOC[c][st] >= 0)) {
            melde_unmoegliche_Rechnung("KOC (L/kg) = " + allgemeine_Zahl(p.KOC[c][st]), {{}, 0, "KOC", i_studie, i});
        }
        if (p.Kinetik[c][st] == DFOP && !(p.g_DFOP[c][st] >= 0 && p.g_DFOP[c][st] <= 1)) {
            melde_unmoegliche_Rechnung("DFOP g = " + allgemeine_Zahl(p.g_DFOP[c][st]), {{}, 0, "g_DFOP", i_studie, i});
        }
    }
}

}  // namespace varnok
