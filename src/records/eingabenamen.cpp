#include "records/eingabenamen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "run/bezeichnungen.h"
#include "run/halbwertszeit.h"
#include "run/kalender.h"

namespace varnok {
namespace {

using Ort = Eingabeort;
using Wortliste = std::span<const std::string_view>;

constexpr std::size_t Platz(int i) { return static_cast<std::size_t>(i); }

// The words of the choices, in the order of their codes.
constexpr std::array<std::string_view, 2> TWA_Listennamen = {"monthly", "EU"};

Eingabewert Wort(Wortliste Worte, int Code) { return als_Eingabewert(Worte[Platz(Code)], Code); }

int Code(const Eingabewert& w) { return static_cast<int>(w.Zahl()); }

// --- how a value comes out of the input and goes into it ---

template <auto Tabelle>
Eingabewert lies_je_Stoff(const Eingabe& e, const Ansicht&, const Ort& o) {
    return als_Eingabewert((e.Parameter.*Tabelle)[Platz(o.Stoff)][Platz(o.Studie)]);
}
template <auto Tabelle>
void setze_je_Stoff(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    (e.Parameter.*Tabelle)[Platz(o.Stoff)][Platz(o.Studie)] = w.Zahl();
}

template <auto Tabelle>
Eingabewert lies_je_Studie(const Eingabe& e, const Ansicht&, const Ort& o) {
    return als_Eingabewert((e.Parameter.*Tabelle)[Platz(o.Studie)]);
}
template <auto Tabelle>
void setze_je_Studie(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    (e.Parameter.*Tabelle)[Platz(o.Studie)] = w.Zahl();
}

template <auto Feld>
Eingabewert lies_Parameter(const Eingabe& e, const Ansicht&, const Ort&) {
    return als_Eingabewert(static_cast<double>(e.Parameter.*Feld));
}
template <auto Feld>
void setze_Parameter(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    auto& Ziel = e.Parameter.*Feld;
    Ziel = static_cast<std::remove_reference_t<decltype(Ziel)>>(w.Zahl());
}

template <auto Feld>
Eingabewert lies_Feld(const Eingabe& e, const Ansicht&, const Ort&) {
    return als_Eingabewert((e.*Feld).Zahl());
}
template <auto Feld>
void setze_Feld(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    e.*Feld = w.Wert;
}

template <int Spalte>
Eingabewert lies_Zelle(const Eingabe& e, const Ansicht&, const Ort& o) {
    return als_Eingabewert(e.Applikationsschema.at(Platz(o.Reihe))[Platz(Spalte)].Zahl());
}
// Days and months have two digits in the table.
template <int Spalte>
void setze_Zelle(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    e.Applikationsschema.at(Platz(o.Reihe))[Platz(Spalte)] = Spalte < 2 ? Zahlwert(zweistellig(w.Zahl())) : w.Wert;
}

// A rate constant as the DT50 that its field shows.
Eingabewert DT50(double k) { return als_Eingabewert(gezeigte_Halbwertszeit(k)); }
double Konstante(const Eingabewert& w) { return wie_im_Satz(Halbwertszeit(w.Zahl())); }

Kinetikart Kinetik(const Eingabe& e, const Ort& o) { return e.Parameter.Kinetik[Platz(o.Stoff)][Platz(o.Studie)]; }

Eingabewert lies_DT50(const Eingabe& e, const Ansicht&, const Ort& o) {
    return DT50(e.Parameter.k_SFO[Platz(o.Stoff)][Platz(o.Studie)]);
}
void setze_DT50(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    e.Parameter.k_SFO[Platz(o.Stoff)][Platz(o.Studie)] = Konstante(w);
}

// The two constants of DFOP or HS, whichever is in force.
template <auto bei_DFOP, auto bei_HS>
Eingabewert lies_DT50_Phase(const Eingabe& e, const Ansicht&, const Ort& o) {
    const bool ist_HS = o.Stoff == 0 && Kinetik(e, o) == HS;
    return DT50(ist_HS ? (e.Parameter.*bei_HS)[Platz(o.Studie)] : (e.Parameter.*bei_DFOP)[Platz(o.Stoff)][Platz(o.Studie)]);
}
template <auto bei_DFOP, auto bei_HS>
void setze_DT50_Phase(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    const bool ist_HS = o.Stoff == 0 && Kinetik(e, o) == HS;
    (ist_HS ? (e.Parameter.*bei_HS)[Platz(o.Studie)] : (e.Parameter.*bei_DFOP)[Platz(o.Stoff)][Platz(o.Studie)]) = Konstante(w);
}

Eingabewert lies_Kinetik(const Eingabe& e, const Ansicht&, const Ort& o) { return Wort(Kinetiknamen, Kinetik(e, o)); }
void setze_Kinetik(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    e.Parameter.Kinetik[Platz(o.Stoff)][Platz(o.Studie)] = static_cast<Kinetikart>(Code(w));
}

Eingabewert lies_Muster(const Eingabe& e, const Ansicht&, const Ort&) { return Wort(Musternamen, e.Applikationsmuster); }
void setze_Muster(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    e.Applikationsmuster = static_cast<Applikationsart>(Code(w));
}

Eingabewert lies_Anzahl(const Eingabe& e, const Ansicht&, const Ort&) { return als_Eingabewert(e.Anzahl()); }
void setze_Anzahl(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) { waehle_Anzahl(e, Code(w)); }

// Positions in lists whose first entry is 1.
template <int Eingabe::*Feld>
Eingabewert lies_Position(const Eingabe& e, const Ansicht&, const Ort&) {
    return als_Eingabewert(e.*Feld + 1);
}
template <int Eingabe::*Feld>
void setze_Position(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    e.*Feld = Code(w) - 1;
}

Eingabewert lies_Fruchtwechsel(const Eingabe&, const Ansicht& a, const Ort&) {
    return als_Eingabewert(Anbaujahre(a.Fruchtwechsel));
}
void setze_Fruchtwechsel(Eingabe&, Ansicht& a, const Ort&, const Eingabewert& w) { a.Fruchtwechsel = Fruchtfolge_von(Code(w)); }

Eingabewert lies_Schema(const Eingabe& e, const Ansicht&, const Ort&) { return als_Eingabewert(e.Berechnungsmodus); }
void setze_Schema(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    e.Berechnungsmodus = static_cast<Stoffschema>(Code(w));
}

Eingabewert lies_Molmasse(const Eingabe& e, const Ansicht&, const Ort& o) { return als_Eingabewert(Molmasse(e, o.Stoff).Zahl()); }
void setze_Molmasse(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    (o.Stoff == 0 ? e.Molmasse_Wirkstoff : o.Stoff == 1 ? e.Molmasse_Met_1 : e.Molmasse_Met_2) = w.Wert;
}
Eingabewert lies_Bildungsanteil(const Eingabe& e, const Ansicht&, const Ort& o) {
    return als_Eingabewert(Bildungsanteil(e, o.Stoff).Zahl());
}
void setze_Bildungsanteil(Eingabe& e, Ansicht&, const Ort& o, const Eingabewert& w) {
    (o.Stoff == 1 ? e.Bildungsanteil_Met_1 : e.Bildungsanteil_Met_2) = w.Wert;
}

Eingabewert lies_Klima(const Eingabe& e, const Ansicht&, const Ort&) {
    return als_Eingabewert(e.Parameter.Klimamodus == nach_Klimadatei ? std::string_view(e.Klimaszenario) : konstantes_Klima);
}
void setze_Klima(Eingabe& e, Ansicht&, const Ort&, const Eingabewert& w) {
    const bool konstant = w.Wort == konstantes_Klima;
    e.Parameter.Klimamodus = konstant ? konstante_Temperatur : nach_Klimadatei;
    e.Klimaszenario = konstant ? std::string() : w.Wort;
}

template <auto Feld>
Eingabewert lies_Wahl(Wortliste Worte, const Eingabe& e) {
    return Wort(Worte, e.Parameter.*Feld);
}
Eingabewert lies_Einheit(const Eingabe& e, const Ansicht&, const Ort&) {
    return lies_Wahl<&Laufparameter::Einheit>(Masseneinheiten, e);
}
Eingabewert lies_TWA(const Eingabe& e, const Ansicht&, const Ort&) {
    return lies_Wahl<&Laufparameter::TWA_Zeiten>(TWA_Listennamen, e);
}

// --- the table ---

using P = Laufparameter;
using Lesen = decltype(Eingabename::lies);
using Setzen = decltype(Eingabename::setze);

constexpr bool vor_anderen = true;

// A number whose range and unit are those of its store.
constexpr Eingabename Zahl(std::string_view Name, std::string_view Speicher, Indexart i, Lesen l, Setzen s, bool ganz = false,
                           bool zuerst = false) {
    const Wertebereich* w = finde_Wertebereich(Speicher);
    return {Name, Speicher, i, {}, w->Grenzen, w->Einheit, ganz, zuerst, l, s};
}

// A whole number out of a list.
constexpr Eingabename Listenzahl(std::string_view Name, std::string_view Speicher, int von, int bis, std::string_view Einheit,
                                 Lesen l, Setzen s, bool zuerst = false) {
    const Bereich Grenzen = {static_cast<double>(von), true, static_cast<double>(bis), true};
    return {Name, Speicher, Indexart::keiner, {}, Grenzen, Einheit, true, zuerst, l, s};
}

constexpr Eingabename Wortwahl(std::string_view Name, std::string_view Speicher, Indexart i, Wortliste Worte, Lesen l, Setzen s,
                               bool zuerst = false) {
    return {Name, Speicher, i, Worte, {}, "", false, zuerst, l, s};
}

template <auto Tabelle>
constexpr Eingabename Stoffwert(std::string_view Name, std::string_view Speicher) {
    return Zahl(Name, Speicher, Indexart::Studie_und_Stoff, lies_je_Stoff<Tabelle>, setze_je_Stoff<Tabelle>);
}
template <auto Tabelle>
constexpr Eingabename Studienwert(std::string_view Name, std::string_view Speicher) {
    return Zahl(Name, Speicher, Indexart::Studie, lies_je_Studie<Tabelle>, setze_je_Studie<Tabelle>);
}
template <auto Feld>
constexpr Eingabename Parameterwert(std::string_view Name, std::string_view Speicher, bool ganz = false) {
    return Zahl(Name, Speicher, Indexart::keiner, lies_Parameter<Feld>, setze_Parameter<Feld>, ganz);
}
template <int Spalte>
constexpr Eingabename Tabellenwert(std::string_view Name, std::string_view Speicher) {
    return Zahl(Name, Speicher, Indexart::Tabellenreihe, lies_Zelle<Spalte>, setze_Zelle<Spalte>, Spalte < 2);
}

constexpr std::array Tabelle = {
    Wortwahl("pattern", "Applikationsmuster", Indexart::keiner, Musternamen, lies_Muster, setze_Muster, vor_anderen),
    Zahl("applications", "Anzahl", Indexart::keiner, lies_Anzahl, setze_Anzahl, true, vor_anderen),
    Zahl("rate", "Applikationsrate", Indexart::keiner, lies_Feld<&Eingabe::Applikationsrate>,
         setze_Feld<&Eingabe::Applikationsrate>),
    Zahl("interception", "Interzeption", Indexart::keiner, lies_Feld<&Eingabe::Interzeption>, setze_Feld<&Eingabe::Interzeption>),
    Listenzahl("interval", "Intervall", 1, Tage_pro_Jahr, "d", lies_Position<&Eingabe::Intervall_Index>,
               setze_Position<&Eingabe::Intervall_Index>),
    Listenzahl("month", "App_Monat", 1, Monate, "", lies_Position<&Eingabe::App_Monat>, setze_Position<&Eingabe::App_Monat>),
    Listenzahl("day", "App_Tag", 1, laengster_Monat, "", lies_Position<&Eingabe::App_Tag>, setze_Position<&Eingabe::App_Tag>),
    Tabellenwert<0>("day", "Tabellentag"),
    Tabellenwert<1>("month", "Tabellenmonat"),
    Tabellenwert<2>("rate", "Tabellenrate"),
    Tabellenwert<3>("interception", "Tabelleninterzeption"),
    Listenzahl("rotation", "Fruchtwechsel", 1, Anbaujahre(jedes_dritte_Jahr), "years", lies_Fruchtwechsel, setze_Fruchtwechsel),
    Wortwahl("kinetics", "Kinetik", Indexart::Studie_und_Stoff, Kinetiknamen, lies_Kinetik, setze_Kinetik, vor_anderen),
    Zahl("DT50", "k_SFO", Indexart::Studie_und_Stoff, lies_DT50, setze_DT50),
    Zahl("DT50_1", "k1_DFOP", Indexart::Studie_und_Stoff, lies_DT50_Phase<&P::k1_DFOP, &P::k1_HS>,
         setze_DT50_Phase<&P::k1_DFOP, &P::k1_HS>),
    Zahl("DT50_2", "k2_DFOP", Indexart::Studie_und_Stoff, lies_DT50_Phase<&P::k2_DFOP, &P::k2_HS>,
         setze_DT50_Phase<&P::k2_DFOP, &P::k2_HS>),
    Stoffwert<&P::g_DFOP>("g", "g_DFOP"),
    Studienwert<&P::alpha_FOMC>("alpha", "alpha_FOMC"),
    Studienwert<&P::beta_FOMC>("beta", "beta_FOMC"),
    Studienwert<&P::Tb_HS>("Tb", "Tb_HS"),
    Stoffwert<&P::KOC>("Koc", "KOC"),
    Stoffwert<&P::Q10>("Q10", "Q10"),
    Stoffwert<&P::Walker>("Walker", "Walker"),
    Stoffwert<&P::TRef>("reference_temperature", "TRef"),
    Zahl("molar_mass", "Molmasse", Indexart::Stoff, lies_Molmasse, setze_Molmasse),
    Zahl("formation", "Bildungsanteil", Indexart::Metabolit, lies_Bildungsanteil, setze_Bildungsanteil),
    Parameterwert<&P::Bodendichte>("density", "Bodendichte"),
    Parameterwert<&P::Bodentiefe>("soil_depth", "Bodentiefe"),
    Parameterwert<&P::Plateautiefe>("tillage_depth", "Plateautiefe"),
    Parameterwert<&P::Kohlenstoffgehalt>("organic_carbon", "Kohlenstoffgehalt"),
    Parameterwert<&P::Feldkapazitaet>("field_capacity", "Feldkapazitaet"),
    Parameterwert<&P::Welkepunkt>("wilting_point", "Welkepunkt"),
    Parameterwert<&P::Szenariotemperatur>("temperature", "Szenariotemperatur", true),
    Wortwahl("climate", "Klimaszenario", Indexart::keiner, {}, lies_Klima, setze_Klima, vor_anderen),
    Listenzahl("scheme", "Berechnungsmodus", 0, 3, "", lies_Schema, setze_Schema, vor_anderen),
    Listenzahl("separate", "Separate_Rueckstaende", gemeinsam, im_Jahr_getrennt, "", lies_Parameter<&P::Separate_Rueckstaende>,
               setze_Parameter<&P::Separate_Rueckstaende>),
    Wortwahl("unit", "Einheit", Indexart::keiner, Masseneinheiten, lies_Einheit, setze_Parameter<&P::Einheit>),
    Wortwahl("twa", "TWA_Zeiten", Indexart::keiner, TWA_Listennamen, lies_TWA, setze_Parameter<&P::TWA_Zeiten>),
};

}  // namespace

std::span<const Eingabename> Eingabenamen() { return Tabelle; }

Eingabewert als_Eingabewert(double Zahl) { return {.Wert = Zahlwert::in_allgemeiner_Form(Zahl, '.')}; }

Eingabewert als_Eingabewert(std::string_view Wort, int Code) {
    return {.Wort = std::string(Wort), .Code = Code, .ist_Wort = true};
}

std::vector<benannter_Wert> benannte_Werte(const Eingabe& e, const Ansicht& Sicht) {
    std::vector<benannter_Wert> Werte;
    for (const Eingabename& n : Tabelle) {
        const auto nimm = [&](const Ort& o) { Werte.push_back({&n, o, n.lies(e, Sicht, o)}); };
        const bool unregelmaessige = e.Applikationsmuster == unregelmaessig;
        if (n.Indizes == Indexart::Tabellenreihe) {
            for (int k = 0; unregelmaessige && k < static_cast<int>(e.Applikationsschema.size()); ++k) nimm({0, 0, k});
            continue;
        }
        for (const Ort& o : Orte({&n, std::string(n.Name)}, e)) nimm(o);
    }
    return Werte;
}

}  // namespace varnok
