#include "records/satzaufbau.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "run/kalender.h"

namespace varnok {
namespace {

constexpr int Hoechstzahl_Byte = 255;

// An enumeration as the byte that holds its code; a byte may stand for any type.
template <class Aufzaehlung>
std::uint8_t& als_Byte(Aufzaehlung& a) {
    static_assert(std::is_same_v<std::underlying_type_t<Aufzaehlung>, std::uint8_t>);
    return reinterpret_cast<std::uint8_t&>(a);
}

Feld Ganzzahl(std::uint8_t& Platz, int von, int bis) { return {Feldart::ganze_Zahl, &Platz, von, bis}; }
Feld Position(int& Platz, int von, int bis) { return {Feldart::ganze_Zahl, &Platz, von, bis, true}; }
template <class Aufzaehlung>
Feld Auswahl(Aufzaehlung& Platz, int bis) {
    return Ganzzahl(als_Byte(Platz), 0, bis);
}
Feld Kennzahl(Kinetikart& Platz, Kinetikart letzte) { return {Feldart::Kennzahl, &als_Byte(Platz), 0, letzte}; }
Feld Zahl(double& Platz) { return {Feldart::Zahl, &Platz}; }
Feld Text(std::string& Platz) { return {Feldart::Text, &Platz}; }
Feld Zahltext(Zahlwert& Platz) { return {Feldart::Zahltext, &Platz}; }

Feld ohne_Komma(Feld f) {
    f.mit_Komma = false;
    return f;
}

Feld abwaehlbar(Feld f) {
    f.abwaehlbar = true;
    return f;
}

// The lines of a study, with a value for each compound or for the parent alone.
struct Stoffzeile {
    const char* Beschriftung;
    Stofftabelle<double> Laufparameter::*je_Stoff;
    Studientabelle<double> Laufparameter::*nur_Wirkstoff;
};

constexpr std::array<Stoffzeile, 4> Stoffeigenschaften = {{
    {"KOC (L/kg):", &Laufparameter::KOC, nullptr},
    {"Q10-factor:", &Laufparameter::Q10, nullptr},
    {"Walker-exponent:", &Laufparameter::Walker, nullptr},
    {"Reference Temperature (°C):", &Laufparameter::TRef, nullptr},
}};

constexpr std::array<Stoffzeile, 9> Abbauparameter = {{
    {"SFO k (1/d):", &Laufparameter::k_SFO, nullptr},
    {"FOMC alpha:", nullptr, &Laufparameter::alpha_FOMC},
    {"FOMC beta:", nullptr, &Laufparameter::beta_FOMC},
    {"DFOP k1 (1/d):", &Laufparameter::k1_DFOP, nullptr},
    {"DFOP k2 (1/d):", &Laufparameter::k2_DFOP, nullptr},
    {"DFOP  g:", &Laufparameter::g_DFOP, nullptr},
    {"HS   k1 (1/d):", nullptr, &Laufparameter::k1_HS},
    {"HS   k2 (1/d):", nullptr, &Laufparameter::k2_HS},
    {"HS   Tb (d)", nullptr, &Laufparameter::Tb_HS},
}};

void gehe_durch(Satzgang& g, const Stoffzeile& z, Laufparameter& p, std::size_t Studie) {
    if (z.je_Stoff) {
        auto& Tabelle = p.*z.je_Stoff;
        g.Zeile(z.Beschriftung, {Zahl(Tabelle[0][Studie]), Zahl(Tabelle[1][Studie]), Zahl(Tabelle[2][Studie])});
    } else {
        g.Zeile(z.Beschriftung, {Zahl((p.*z.nur_Wirkstoff)[Studie])});
    }
}

void gehe_durch_Studie(Satzgang& g, Laufparameter& p, std::string& Name, std::size_t Studie) {
    g.Zeile("Study " + std::to_string(Studie + 1) + ":", {Text(Name)});
    for (const auto& Zeile : Stoffeigenschaften) gehe_durch(g, Zeile, p, Studie);
    // FOMC and HS are kinetics of the parent alone.
    g.Zeile("Kinetics:",
            {Kennzahl(p.Kinetik[0][Studie], HS), Kennzahl(p.Kinetik[1][Studie], DFOP), Kennzahl(p.Kinetik[2][Studie], DFOP)});
    for (const auto& Zeile : Abbauparameter) gehe_durch(g, Zeile, p, Studie);
}

void gehe_durch_Tabelle(Satzgang& g, std::vector<Applikationszeile>& Tabelle) {
    g.Ueberschrift("Date\tMonth\tRate (g/ha)\tInterception (%)");
    int Nummer = 0;
    for (auto& [Tag, Monat, Rate, Interzeption] : Tabelle) {
        g.beginne_Tabellenzeile(++Nummer);
        g.Zwischenwert({Feldart::Tageszahl, &Tag});
        g.Zwischenwert({Feldart::Tageszahl, &Monat});
        g.Zwischenwert({Feldart::Rohzahl, &Rate});
        g.Endwert(Zahltext(Interzeption));
    }
}

}  // namespace

void Satzgang::Zeile(std::string_view Beschriftung, std::initializer_list<Feld> Felder) {
    beginne(Beschriftung);
    for (auto f = Felder.begin(); f != Felder.end(); ++f) {
        if (f + 1 == Felder.end()) {
            Endwert(*f);
        } else {
            Zwischenwert(*f);
        }
    }
}

void gehe_durch_Szenario(Satzgang& g, Eingabe& e) {
    Laufparameter& p = e.Parameter;
    g.Ueberschrift("Soil Parameters");
    g.Zeile("Soil scenario:     ", {Text(e.Bodenszenario)});
    g.Zeile("Soil density (kg/L):", {Zahl(p.Bodendichte)});
    g.Zeile("Soil depth (cm):", {Zahl(p.Bodentiefe)});
    g.Zeile("Plateaudepth:", {Zahl(p.Plateautiefe)});
    g.Zeile("Organic carbon content:", {Zahl(p.Kohlenstoffgehalt)});
    g.Zeile("Field capacity (Vol%):", {Zahl(p.Feldkapazitaet)});
    g.Zeile("Wilting point (Vol%):", {Zahl(p.Welkepunkt)});
    std::string Klima = Klimatext(e);
    g.Zeile("Climatic condition:", {Text(Klima)});
    e.Klimaszenario = Klima;
    if (g.folgt_Trennlinie()) {
        p.Klimamodus = 0;
        p.Szenariotemperatur = 20;
    } else {
        g.Zeile("Climate mode:", {ohne_Komma(Ganzzahl(p.Klimamodus, 0, 1))});
        g.Zeile("Scenario Temperature:", {ohne_Komma(Ganzzahl(p.Szenariotemperatur, 0, Hoechstzahl_Byte))});
    }
    g.Schlusszeile();
    // Under constant temperature the line tells the temperature and no climate file.
    if (p.Klimamodus == 0) e.Klimaszenario.clear();
}

void gehe_durch_Applikation(Satzgang& g, Eingabe& e, Ansicht& a) {
    g.Ueberschrift("Application Pattern");
    g.Zeile("Application type:", {ohne_Komma(Auswahl(e.Applikationsmuster, unregelmaessig))});
    g.Zeile("PEC-Type:", {Auswahl(a.PEC_Typ, Anreicherung)});
    g.beginne("Regular application date:");
    g.Zwischenwert(Position(e.App_Monat, 1, 12));
    // The list of days follows the month, so that a day of the old month does not outlive it.
    const int Tage = Tage_im_Monat(e.App_Monat + 1);
    e.App_Tag = std::min(e.App_Tag, Tage - 1);
    g.Endwert(ohne_Komma(Position(e.App_Tag, 1, Tage)));
    g.Zeile("Application rate (g/ha):", {Zahltext(e.Applikationsrate)});
    g.Zeile("Crop interception (%):", {Zahltext(e.Interzeption)});
    // The list of intervals is full here and is cut to 365/number as soon as the number is known.
    g.Zeile("Time between applications:", {Position(e.Intervall_Index, 1, 365)});
    g.Zeile("Number of applications per year:", {abwaehlbar(Position(e.Anzahl_Index, 2, 20))});
    waehle_Anzahl(e, e.Anzahl());
    gehe_durch_Tabelle(g, e.Applikationsschema);
    g.Schlusszeile();
}

void gehe_durch_Wirkstoffkopf(Satzgang& g, Eingabe& e) {
    g.Ueberschrift("Pesticide data");
    g.Zeile("Unit:", {Ganzzahl(e.Parameter.Einheit, 0, 1)});
}

void gehe_durch_Ausgabename(Satzgang& g, Eingabe& e) {
    auto& Teile = e.Parameter.Ausgabename_Teile;
    g.beginne("Output file name :");
    for (std::size_t i = 0; i < 6; ++i) g.Zwischenwert(Ganzzahl(Teile[i], 0, Hoechstzahl_Byte));
    g.Endwert(Ganzzahl(Teile[6], 0, Hoechstzahl_Byte));
}

void gehe_durch_Wirkstoffdaten(Satzgang& g, Eingabe& e, Ansicht& a, int& Zaehler) {
    Laufparameter& p = e.Parameter;
    g.Zeile("Separate residues:", {Ganzzahl(p.Separate_Rueckstaende, 0, 2)});
    g.Zeile("TWA according to EU:", {Ganzzahl(p.TWA_Zeiten, 0, 1)});
    g.Zeile("Calculation mode:", {Ganzzahl(p.Rechenmodus, 0, Hoechstzahl_Byte)});
    g.Trennlinie();
    g.Ueberschrift("Degradation kinetics Parameters");
    int letzte_Studie = e.Studienzahl() - 1;
    g.Zeile("Number of studies:", {Position(letzte_Studie, 1, max_Studien)});
    e.Studie.resize(static_cast<std::size_t>(letzte_Studie) + 1);
    Zaehler = 0;
    for (std::size_t i = 0; i < e.Studie.size(); ++i, ++Zaehler) gehe_durch_Studie(g, p, e.Studie[i], i);
    g.Zeile("Compound shown:", {ohne_Komma(Position(a.Substanz, 0, 2))});
    g.Trennlinie();
    g.Ueberschrift("Metabolism scheme");
    g.Zeile("Type of calculation:", {Auswahl(e.Berechnungsmodus, zwei_in_Folge)});
    g.Zeile("Parent:", {Text(e.Name_Wirkstoff), Zahltext(e.Molmasse_Wirkstoff)});
    g.Zeile("Metabolite 1:", {Text(e.Name_Met_1), Zahltext(e.Molmasse_Met_1), Zahltext(e.Bildungsanteil_Met_1)});
    g.Zeile("Metabolite 2:", {Text(e.Name_Met_2), Zahltext(e.Molmasse_Met_2), Zahltext(e.Bildungsanteil_Met_2)});
    g.Schlusszeile();
}

std::string ausserhalb(std::string_view Wertetext, std::string_view Feldname, const Feld& f) {
    return '"' + std::string(Wertetext) + "\" is not valid for " + std::string(Feldname) + " (" + std::to_string(f.von) + " to " +
           std::to_string(f.bis) + ")";
}

}  // namespace varnok
