#include "support/lauf_bauer.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

#include "base/zahlen.h"
#include "exposure/schritte.h"
#include "support/slotprotokoll.h"

namespace varnok::probe {
namespace {

constexpr auto St = [](int i) { return static_cast<std::size_t>(i); };

template <class T>
void kopiere_Studie(Stofftabelle<T>& Tabelle, std::size_t nach) {
    for (auto& Stoff : Tabelle) Stoff[nach] = Stoff[0];
}

// Calls f(name, numbers) for every store of a study.
template <class Funktion>
void alle_Speicher(const Lauf& l, int i_studie, Funktion f) {
    const Ergebnisspeicher& s = l.Speicher;
    for (const Endpunktart e : alle_Endpunkte) {
        for (int c = 0; c < Stoffe; ++c) {
            f("Reihe_Plateautiefe", s.Reihe_Plateautiefe(e, i_studie, c));
            f("Reihe_Bodentiefe", s.Reihe_Bodentiefe(e, i_studie, c));
            for (int k = 1; e == 0 && k < Slots_Plateau; ++k)
                f("Reihe_Plateautiefe", Slotreihe(l, i_studie, c, Tiefe::Plateau, k));
            for (int k = 1; e == 0 && k < Slots_Boden; ++k) f("Reihe_Bodentiefe", Slotreihe(l, i_studie, c, Tiefe::Boden, k));
            f("Integral_Bodentiefe", s.Integral_Bodentiefe(e, i_studie, c));
            f("Jahresmaximum", std::span(s.Jahresmaximum[St(e)][St(i_studie)][St(c)]));
            f("TWA_Maximum", std::span(s.TWA_Maximum[St(e)][St(i_studie)][St(c)]));
            f("TWA_Starttag", std::span(s.TWA_Starttag[St(e)][St(i_studie)][St(c)]));
            f("Maximum_Plateautiefe", std::span(&s.Maximum_Plateautiefe[St(e)][St(i_studie)][St(c)], 1));
            f("Maximum_Bodentiefe", std::span(&s.Maximum_Bodentiefe[St(e)][St(i_studie)][St(c)], 1));
            f("Maximumtag_Plateautiefe", std::span(&s.Maximumtag_Plateautiefe[St(e)][St(i_studie)][St(c)], 1));
            f("Maximumtag_Bodentiefe", std::span(&s.Maximumtag_Bodentiefe[St(e)][St(i_studie)][St(c)], 1));
            f("Plateauwert", std::span(&s.Plateauwert[St(e)][St(i_studie)][St(c)], 1));
            f("Plateauzuwachs", std::span(&s.Plateauzuwachs[St(e)][St(i_studie)][St(c)], 1));
            f("Plateaujahr", std::span(&s.Plateaujahr[St(e)][St(i_studie)][St(c)], 1));
        }
    }
}

template <class Bereich>
void haenge_an(std::string& Bytes, const Bereich& Werte) {
    const auto Anzahl = Werte.size() * sizeof(Werte[0]);
    const auto davor = Bytes.size();
    Bytes.resize(davor + Anzahl);
    std::memcpy(Bytes.data() + davor, Werte.data(), Anzahl);
}

}  // namespace

Lauf_bauer::Lauf_bauer() {
    Felder.Parameter.Bodendichte = 1.5;
    Felder.Parameter.Bodentiefe = 5;
    Felder.Parameter.Plateautiefe = 20;
    Felder.Parameter.Kohlenstoffgehalt = 2;
    Felder.Parameter.Feldkapazitaet = 40;
    Felder.Parameter.Welkepunkt = 10;
    Felder.Parameter.Szenariotemperatur = 20;
    Felder.Parameter.Q10 = fuer_alle(2.58);
    Felder.Parameter.Walker = fuer_alle(0.7);
    Felder.Parameter.TRef = fuer_alle(20.0);
    Felder.Parameter.KOC = fuer_alle(100.0);
    Felder.Studie = {"field"};
    Felder.Name_Wirkstoff = "parent";
    Felder.Name_Met_1 = "first metabolite";
    Felder.Name_Met_2 = "second metabolite";
    Felder.Klimaszenario = "weather";
    Molmassen(200, 150, 100);
    Bildungsanteile(50, 30);
}

Lauf_bauer& Lauf_bauer::nach_SFO(double k, int i_substanz) {
    Felder.Parameter.Kinetik[St(i_substanz)][St(i_studie)] = SFO;
    Felder.Parameter.k_SFO[St(i_substanz)][St(i_studie)] = k;
    return *this;
}

Lauf_bauer& Lauf_bauer::nach_DFOP(double k1, double k2, double g, int i_substanz) {
    Felder.Parameter.Kinetik[St(i_substanz)][St(i_studie)] = DFOP;
    Felder.Parameter.k1_DFOP[St(i_substanz)][St(i_studie)] = k1;
    Felder.Parameter.k2_DFOP[St(i_substanz)][St(i_studie)] = k2;
    Felder.Parameter.g_DFOP[St(i_substanz)][St(i_studie)] = g;
    return *this;
}

Lauf_bauer& Lauf_bauer::nach_FOMC(double alpha, double beta) {
    Felder.Parameter.Kinetik[0][St(i_studie)] = FOMC;
    Felder.Parameter.alpha_FOMC[St(i_studie)] = alpha;
    Felder.Parameter.beta_FOMC[St(i_studie)] = beta;
    return *this;
}

Lauf_bauer& Lauf_bauer::nach_HS(double k1, double k2, double Tb) {
    Felder.Parameter.Kinetik[0][St(i_studie)] = HS;
    Felder.Parameter.k1_HS[St(i_studie)] = k1;
    Felder.Parameter.k2_HS[St(i_studie)] = k2;
    Felder.Parameter.Tb_HS[St(i_studie)] = Tb;
    return *this;
}

Lauf_bauer& Lauf_bauer::Korrektur(double Q10, double Walker, double TRef, int i_substanz) {
    Felder.Parameter.Q10[St(i_substanz)][St(i_studie)] = Q10;
    Felder.Parameter.Walker[St(i_substanz)][St(i_studie)] = Walker;
    Felder.Parameter.TRef[St(i_substanz)][St(i_studie)] = TRef;
    return *this;
}

Lauf_bauer& Lauf_bauer::KOC(double Wert, int i_substanz) {
    Felder.Parameter.KOC[St(i_substanz)][St(i_studie)] = Wert;
    return *this;
}

Lauf_bauer& Lauf_bauer::Schema(int Berechnungsmodus) {
    Felder.Berechnungsmodus = static_cast<Stoffschema>(Berechnungsmodus);
    return *this;
}

Lauf_bauer& Lauf_bauer::Molmassen(double Wirkstoff, double Met_1, double Met_2) {
    Felder.Molmasse_Wirkstoff = genaue_Zahl(Wirkstoff);
    Felder.Molmasse_Met_1 = genaue_Zahl(Met_1);
    Felder.Molmasse_Met_2 = genaue_Zahl(Met_2);
    return *this;
}

Lauf_bauer& Lauf_bauer::Bildungsanteile(double Met_1, double Met_2) {
    Felder.Bildungsanteil_Met_1 = genaue_Zahl(Met_1);
    Felder.Bildungsanteil_Met_2 = genaue_Zahl(Met_2);
    return *this;
}

Lauf_bauer& Lauf_bauer::Dosis(const std::string& Rate, const std::string& Interzeption) {
    Felder.Applikationsrate = Rate;
    Felder.Interzeption = Interzeption;
    return *this;
}

Lauf_bauer& Lauf_bauer::regelmaessige_Gaben(int Anzahl, int Intervall) {
    Felder.Applikationsmuster = regelmaessig;
    waehle_Anzahl(Felder, Anzahl);
    Felder.Intervall_Index = Intervall - 1;
    return *this;
}

Lauf_bauer& Lauf_bauer::Termine(std::vector<Applikationszeile> Zeilen) {
    Felder.Applikationsmuster = unregelmaessig;
    waehle_Anzahl(Felder, static_cast<int>(Zeilen.size()));
    Felder.Applikationsschema = std::move(Zeilen);
    return *this;
}

Lauf_bauer& Lauf_bauer::Rueckstaende(int Separate_Rueckstaende) {
    Felder.Parameter.Separate_Rueckstaende = static_cast<Rueckstandsart>(Separate_Rueckstaende);
    return *this;
}

Lauf_bauer& Lauf_bauer::Boden(double Dichte, double Bodentiefe, double Plateautiefe) {
    Felder.Parameter.Bodendichte = Dichte;
    Felder.Parameter.Bodentiefe = Bodentiefe;
    Felder.Parameter.Plateautiefe = Plateautiefe;
    return *this;
}

Lauf_bauer& Lauf_bauer::Feuchte(double Feldkapazitaet, double Welkepunkt) {
    Felder.Parameter.Feldkapazitaet = Feldkapazitaet;
    Felder.Parameter.Welkepunkt = Welkepunkt;
    return *this;
}

Lauf_bauer& Lauf_bauer::Temperatur(int Grad) {
    Felder.Parameter.Szenariotemperatur = static_cast<std::uint8_t>(Grad);
    return *this;
}

Lauf_bauer& Lauf_bauer::Wetter(std::vector<Klimatag> Tage) {
    Felder.Parameter.Klimamodus = nach_Klimadatei;
    Klima = std::move(Tage);
    return *this;
}

Lauf_bauer& Lauf_bauer::Beginn(int Monat, int Tag) {
    Felder.App_Monat = Monat - 1;
    Felder.App_Tag = Tag - 1;
    return *this;
}

Lauf_bauer& Lauf_bauer::Einheit(int Code) {
    Felder.Parameter.Einheit = static_cast<Einheitsart>(Code);
    return *this;
}

Lauf_bauer& Lauf_bauer::Studie(int i) {
    Laufparameter& Parameter = Felder.Parameter;
    kopiere_Studie(Parameter.Kinetik, St(i));
    for (auto* Tabelle : {&Parameter.KOC, &Parameter.Q10, &Parameter.Walker, &Parameter.TRef, &Parameter.k_SFO,
                          &Parameter.k1_DFOP, &Parameter.k2_DFOP, &Parameter.g_DFOP}) {
        kopiere_Studie(*Tabelle, St(i));
    }
    for (auto* Tabelle : {&Parameter.alpha_FOMC, &Parameter.beta_FOMC, &Parameter.k1_HS, &Parameter.k2_HS, &Parameter.Tb_HS}) {
        (*Tabelle)[St(i)] = (*Tabelle)[0];
    }
    i_studie = i;
    return *this;
}

Lauf Lauf_bauer::baue() const {
    Lauf l;
    l.Felder = Felder;
    l.Beobachter = std::make_shared<Slotprotokoll>();
    return l;
}

Laufergebnis Lauf_bauer::rechne_in(Lauf& l) const {
    l.Felder = Felder;
    const Klimaliste Quelle = Klima ? Klimaliste(*Klima) : Klimaliste();
    return berechne_PEC(l, i_studie, Quelle, alle_Rechenschritte);
}

Lauf Lauf_bauer::rechne() const {
    Lauf l = baue();
    if (!rechne_in(l).gelungen()) throw std::logic_error("the run has ended early");
    return l;
}

float Boden(const Lauf& l, int Tag, int i_substanz, Endpunktart Endpunkt) {
    return l.Speicher.Reihe_Bodentiefe(Endpunkt, l.i_studie, i_substanz)[St(Tag)];
}

float Plateau(const Lauf& l, int Tag, int i_substanz, Endpunktart Endpunkt) {
    return l.Speicher.Reihe_Plateautiefe(Endpunkt, l.i_studie, i_substanz)[St(Tag)];
}

float Bodenslot(const Lauf& l, int Slot, int Tag, int i_substanz) {
    return Slotreihe(l, l.i_studie, i_substanz, Tiefe::Boden, Slot)[St(Tag)];
}

float Plateauslot(const Lauf& l, int Slot, int Tag, int i_substanz) {
    return Slotreihe(l, l.i_studie, i_substanz, Tiefe::Plateau, Slot)[St(Tag)];
}

std::string Abbild(const Lauf& l, int i_studie) {
    std::string Bytes;
    alle_Speicher(l, i_studie, [&](const char*, const auto& Werte) { haenge_an(Bytes, Werte); });
    for (const Endpunktart e : alle_Endpunkte) {
        for (int c = 0; c < Stoffe; ++c) Bytes += l.Speicher.Plateautext[St(e)][St(i_studie)][St(c)] + '\n';
    }
    return Bytes;
}

std::string Abbild_gemeinsam(const Lauf& l) {
    std::string Bytes;
    haenge_an(Bytes, l.Speicher.Tagesrate);
    haenge_an(Bytes, l.Speicher.Applikationstag);
    for (const auto& Reihe : l.Speicher.Bildung_Plateautiefe) haenge_an(Bytes, Reihe);
    for (const auto& Reihe : l.Speicher.Bildung_Bodentiefe) haenge_an(Bytes, Reihe);
    haenge_an(Bytes, std::span(&l.Speicher.Wirksame_Rate, 1));
    return Bytes;
}

std::string nicht_endlicher_Speicher(const Lauf& l, int i_studie) {
    std::string Fund;
    const auto pruefe = [&](const char* Name, const auto& Werte) {
        const bool endlich =
            std::all_of(Werte.begin(), Werte.end(), [](auto v) { return std::isfinite(static_cast<double>(v)); });
        if (!endlich && Fund.empty()) Fund = Name;
    };
    alle_Speicher(l, i_studie, pruefe);
    pruefe("Tagesrate", l.Speicher.Tagesrate);
    for (const auto& Reihe : l.Speicher.Bildung_Plateautiefe) pruefe("Bildung_Plateautiefe", Reihe);
    for (const auto& Reihe : l.Speicher.Bildung_Bodentiefe) pruefe("Bildung_Bodentiefe", Reihe);
    return Fund;
}

bool geleert(const Lauf& l, int i_studie) {
    bool leer = true;
    alle_Speicher(l, i_studie, [&](const std::string& Name, const auto& Werte) {
        if (!Name.starts_with("Reihe") && !Name.starts_with("Integral") && !Name.starts_with("Maximum_") &&
            Name != "Jahresmaximum")
            return;
        leer = leer && std::all_of(Werte.begin(), Werte.end(), [](auto v) { return !(v < 0 || v > 0) && v == v; });
    });
    return leer;
}

std::vector<Klimatag> wechselndes_Wetter(int Tage) {
    std::vector<Klimatag> Liste;
    for (int d = 0; d < Tage; ++d) {
        Liste.push_back({d % 3 == 0 ? 6.0 : 0.0, 1.0 + 0.5 * (d % 7), 12.0 - 10.0 * std::cos(2 * 3.14159265358979 * d / 365)});
    }
    return Liste;
}

}  // namespace varnok::probe
