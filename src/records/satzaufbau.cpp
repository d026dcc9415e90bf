#include "records/satzaufbau.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "base/text.h"
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
// The place holds the zero-based position in a list whose first entry is `von`.
Feld Position(int& Platz, int von, int bis) { return {Feldart::ganze_Zahl, &Platz, von, bis, von}; }
template <class Aufzaehlung>
Feld Listenfeld(Aufzaehlung& Platz, int bis) {
    return Ganzzahl(als_Byte(Platz), 0, bis);
}
Feld Kennzahl(Kinetikart& Platz, Kinetikart letzte) { return {Feldart::Kennzahl, &als_Byte(Platz), 0, letzte}; }
Feld Zahl(double& Platz) { return {Feldart::Zahl, &Platz}; }
Feld Text(std::string& Platz) { return {Feldart::Text, &Platz}; }
Feld Zahltext(Zahlwert& Platz) { return {Feldart::Zahltext, &Platz}; }

Feld mit(Feld f, const Wertebereich* Grenzen, std::string_view Teil = {}) {
    f.Grenzen = Grenzen;
    if (Grenzen) f.Speicher = Grenzen->Name;
    f.Teil = Teil;
    return f;
}

Feld im_Speicher(Feld f, std::string_view Speicher) {
    f.Speicher = Speicher;
    return f;
}

Feld mit_Teil(Feld f, std::string_view Teil) {
    f.Teil = Teil;
    return f;
}

constexpr std::array<std::string_view, Stoffe> Stoffworte = {"parent", "metabolite 1", "metabolite 2"};

// A value of a compound, or of the parent alone where `allein`.
Feld von_Stoff(Feld f, const Wertebereich* Grenzen, std::size_t Stoff, int Studie = -1, bool allein = false) {
    f = mit(f, Grenzen, allein ? std::string_view() : Stoffworte[Stoff]);
    f.i_substanz = static_cast<int>(Stoff);
    f.i_studie = Studie;
    return f;
}

Feld ohne_Komma(Feld f) {
    f.mit_Komma = false;
    return f;
}

// Applications a year. The list begins with 2; a record that holds 1 keeps it.
Feld Anzahl(int& Platz) { return mit({Feldart::ganze_Zahl, &Platz, 1, max_Applikationen, 2}, Grenzen_von("Anzahl")); }

// The lines of a study, with a value for each compound or for the parent alone.
struct Stoffzeile {
    const char* Beschriftung;
    Stofftabelle<double> Laufparameter::*je_Stoff;
    Studientabelle<double> Laufparameter::*nur_Wirkstoff;
    const Wertebereich* Grenzen;
};

constexpr std::array<Stoffzeile, 4> Stoffeigenschaften = {{
    {"KOC (L/kg):", &Laufparameter::KOC, nullptr, Grenzen_von("KOC")},
    {"Q10-factor:", &Laufparameter::Q10, nullptr, Grenzen_von("Q10")},
    {"Walker-exponent:", &Laufparameter::Walker, nullptr, Grenzen_von("Walker")},
    {"Reference Temperature (°C):", &Laufparameter::TRef, nullptr, Grenzen_von("TRef")},
}};

constexpr std::array<Stoffzeile, 9> Abbauparameter = {{
    {"SFO k (1/d):", &Laufparameter::k_SFO, nullptr, Grenzen_von("k_SFO")},
    {"FOMC alpha:", nullptr, &Laufparameter::alpha_FOMC, Grenzen_von("alpha_FOMC")},
    {"FOMC beta:", nullptr, &Laufparameter::beta_FOMC, Grenzen_von("beta_FOMC")},
    {"DFOP k1 (1/d):", &Laufparameter::k1_DFOP, nullptr, Grenzen_von("k1_DFOP")},
    {"DFOP k2 (1/d):", &Laufparameter::k2_DFOP, nullptr, Grenzen_von("k2_DFOP")},
    {"DFOP  g:", &Laufparameter::g_DFOP, nullptr, Grenzen_von("g_DFOP")},
    {"HS   k1 (1/d):", nullptr, &Laufparameter::k1_HS, Grenzen_von("k1_HS")},
    {"HS   k2 (1/d):", nullptr, &Laufparameter::k2_HS, Grenzen_von("k2_HS")},
    {"HS   Tb (d)", nullptr, &Laufparameter::Tb_HS, Grenzen_von("Tb_HS")},
}};

void gehe_durch(Satzgang& g, const Stoffzeile& z, Laufparameter& p, std::size_t Studie) {
    const int Nummer = static_cast<int>(Studie);
    if (z.je_Stoff) {
        const auto Wert = [&](std::size_t c) { return von_Stoff(Zahl((p.*z.je_Stoff)[c][Studie]), z.Grenzen, c, Nummer); };
        g.Zeile(z.Beschriftung, {Wert(0), Wert(1), Wert(2)});
    } else {
        g.Zeile(z.Beschriftung, {von_Stoff(Zahl((p.*z.nur_Wirkstoff)[Studie]), z.Grenzen, 0, Nummer, true)});
    }
}

void gehe_durch_Studie(Satzgang& g, Laufparameter& p, std::string& Name, std::size_t Studie) {
    g.Zeile("Study " + std::to_string(Studie + 1) + ":", {Text(Name)});
    for (const auto& Zeile : Stoffeigenschaften) gehe_durch(g, Zeile, p, Studie);
    // FOMC and HS are kinetics of the parent alone.
    const auto Kinetik = [&](std::size_t c, Kinetikart letzte) {
        return im_Speicher(von_Stoff(Kennzahl(p.Kinetik[c][Studie], letzte), nullptr, c, static_cast<int>(Studie)), "Kinetik");
    };
    g.Zeile("Kinetics:", {Kinetik(0, HS), Kinetik(1, DFOP), Kinetik(2, DFOP)});
    for (const auto& Zeile : Abbauparameter) gehe_durch(g, Zeile, p, Studie);
}

Feld Masse(Zahlwert& Platz, std::size_t Stoff) {
    return mit_Teil(von_Stoff(Zahltext(Platz), Grenzen_von("Molmasse"), Stoff), "molar mass");
}

Feld Anteil(Zahlwert& Platz, std::size_t Stoff) {
    return mit_Teil(von_Stoff(Zahltext(Platz), Grenzen_von("Bildungsanteil"), Stoff), "formation fraction");
}

void gehe_durch_Tabelle(Satzgang& g, std::vector<Applikationszeile>& Tabelle) {
    g.Ueberschrift("Date\tMonth\tRate (g/ha)\tInterception (%)");
    int Nummer = 0;
    for (auto& [Tag, Monat, Rate, Interzeption] : Tabelle) {
        g.beginne_Tabellenzeile(++Nummer);
        g.Zwischenwert(mit({Feldart::Tageszahl, &Tag}, Grenzen_von("Tabellentag"), "day"));
        g.Zwischenwert(mit({Feldart::Tageszahl, &Monat}, Grenzen_von("Tabellenmonat"), "month"));
        g.Zwischenwert(mit({Feldart::Rohzahl, &Rate}, Grenzen_von("Tabellenrate"), "rate"));
        g.Endwert(mit(Zahltext(Interzeption), Grenzen_von("Tabelleninterzeption"), "interception"));
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
    g.Zeile("Soil density (kg/L):", {mit(Zahl(p.Bodendichte), Grenzen_von("Bodendichte"))});
    g.Zeile("Soil depth (cm):", {mit(Zahl(p.Bodentiefe), Grenzen_von("Bodentiefe"))});
    g.Zeile("Plateaudepth:", {mit(Zahl(p.Plateautiefe), Grenzen_von("Plateautiefe"))});
    g.Zeile("Organic carbon content:", {mit(Zahl(p.Kohlenstoffgehalt), Grenzen_von("Kohlenstoffgehalt"))});
    g.Zeile("Field capacity (Vol%):", {mit(Zahl(p.Feldkapazitaet), Grenzen_von("Feldkapazitaet"))});
    g.Zeile("Wilting point (Vol%):", {mit(Zahl(p.Welkepunkt), Grenzen_von("Welkepunkt"))});
    std::string Klima = Klimatext(e);
    g.Zeile("Climatic condition:", {im_Speicher(Text(Klima), "Klimatext")});
    e.Klimaszenario = Klima;
    if (g.folgt_Trennlinie()) {
        p.Klimamodus = konstante_Temperatur;
        p.Szenariotemperatur = 20;
    } else {
        g.Zeile("Climate mode:", {ohne_Komma(Listenfeld(p.Klimamodus, nach_Klimadatei))});
        g.Zeile("Scenario Temperature:",
                {mit(ohne_Komma(Ganzzahl(p.Szenariotemperatur, 0, Hoechstzahl_Byte)), Grenzen_von("Szenariotemperatur"))});
    }
    g.Schlusszeile();
    // Under constant temperature the line tells the temperature and no climate file.
    if (p.Klimamodus == konstante_Temperatur) e.Klimaszenario.clear();
}

void gehe_durch_Applikation(Satzgang& g, Eingabe& e, Ansicht& a) {
    g.Ueberschrift("Application Pattern");
    g.Zeile("Application type:", {ohne_Komma(Listenfeld(e.Applikationsmuster, unregelmaessig))});
    g.Zeile("PEC-Type:", {Listenfeld(a.PEC_Typ, Anreicherung)});
    g.beginne("Regular application date:");
    g.Zwischenwert(im_Speicher(mit_Teil(Position(e.App_Monat, 1, Monate), "month"), "App_Monat"));
    // The list of days follows the month, so that a day of the old month does not outlive it.
    const int Tage = Tage_im_Monat(e.App_Monat + 1);
    e.App_Tag = std::min(e.App_Tag, Tage - 1);
    g.Endwert(im_Speicher(mit_Teil(ohne_Komma(Position(e.App_Tag, 1, Tage)), "day"), "App_Tag"));
    g.Zeile("Application rate (g/ha):", {mit(Zahltext(e.Applikationsrate), Grenzen_von("Applikationsrate"))});
    g.Zeile("Crop interception (%):", {mit(Zahltext(e.Interzeption), Grenzen_von("Interzeption"))});
    // The list of intervals is full here and is cut to 365/number as soon as the number is known.
    g.Zeile("Time between applications:", {Position(e.Intervall_Index, 1, Tage_pro_Jahr)});
    g.Zeile("Number of applications per year:", {Anzahl(e.Anzahl_Index)});
    waehle_Anzahl(e, e.Anzahl());
    gehe_durch_Tabelle(g, e.Applikationsschema);
    g.Schlusszeile();
}

void gehe_durch_Wirkstoffkopf(Satzgang& g, Eingabe& e) {
    g.Ueberschrift("Pesticide data");
    g.Zeile("Unit:", {Listenfeld(e.Parameter.Einheit, Mikrogramm)});
}

void gehe_durch_Ausgabename(Satzgang& g, Eingabe& e) {
    auto& Teile = e.Parameter.Ausgabename_Teile;
    g.beginne("Output file name :");
    constexpr std::array<std::string_view, 7> Worte = {"value 1", "value 2", "value 3", "value 4",
                                                       "value 5", "value 6", "value 7"};
    const auto Flagge = [&](std::size_t i) { return mit_Teil(Ganzzahl(Teile[i], 0, Hoechstzahl_Byte), Worte[i]); };
    for (std::size_t i = 0; i < 6; ++i) g.Zwischenwert(Flagge(i));
    g.Endwert(Flagge(6));
}

void gehe_durch_Wirkstoffdaten(Satzgang& g, Eingabe& e, Ansicht& a, int& Zaehler) {
    Laufparameter& p = e.Parameter;
    g.Zeile("Separate residues:", {Listenfeld(p.Separate_Rueckstaende, im_Jahr_getrennt)});
    g.Zeile("TWA according to EU:", {Listenfeld(p.TWA_Zeiten, EU_Liste)});
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
    g.Zeile("Type of calculation:", {Listenfeld(e.Berechnungsmodus, zwei_in_Folge)});
    g.Zeile("Parent:", {mit_Teil(Text(e.Name_Wirkstoff), "name"), Masse(e.Molmasse_Wirkstoff, 0)});
    g.Zeile("Metabolite 1:",
            {mit_Teil(Text(e.Name_Met_1), "name"), Masse(e.Molmasse_Met_1, 1), Anteil(e.Bildungsanteil_Met_1, 1)});
    g.Zeile("Metabolite 2:",
            {mit_Teil(Text(e.Name_Met_2), "name"), Masse(e.Molmasse_Met_2, 2), Anteil(e.Bildungsanteil_Met_2, 2)});
    g.Schlusszeile();
}

std::string Zeilenname(std::string_view Beschriftung) {
    std::string_view Name = ohne_Randblanks(Beschriftung);
    if (Name.ends_with(':')) Name.remove_suffix(1);
    return std::string(ohne_Randblanks(Name));
}

std::string Reihenname(int Reihe) { return "row " + std::to_string(Reihe) + " of the application table"; }

std::string ausserhalb(std::string_view Wertetext, std::string_view Feldname, const Feld& f) {
    return '"' + std::string(Wertetext) + "\" is not valid for " + std::string(Feldname) + " (" + std::to_string(f.von) + " to " +
           std::to_string(f.bis) + ")";
}

}  // namespace varnok
