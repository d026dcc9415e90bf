#include "run/lauf.h"

#include <span>

#include "base/laufzeitfehler.h"
#include "base/wertebereiche.h"
#include "base/zahlen.h"
#include "run/applikation.h"
#include "run/tageswerte.h"
#include "run/wirkstoff.h"

namespace varnok {
namespace {

using Rechnung = void (*)(Lauf&);

// One compound of a metabolism scheme.
struct Schritt {
    int i_substanz;
    enum { Stamm, Metabolit_1, Metabolit_2 } Art;
};

constexpr Schritt Schema_0[] = {{0, Schritt::Stamm}};
constexpr Schritt Schema_1[] = {{0, Schritt::Stamm}, {1, Schritt::Metabolit_1}};
constexpr Schritt Schema_2[] = {{0, Schritt::Stamm}, {1, Schritt::Metabolit_1}, {2, Schritt::Metabolit_1}};
constexpr Schritt Schema_3[] = {{0, Schritt::Stamm}, {1, Schritt::Metabolit_1}, {2, Schritt::Metabolit_2}};
constexpr std::array<std::span<const Schritt>, 4> Schemata = {Schema_0, Schema_1, Schema_2, Schema_3};

Rechnung Rechnung_fuer(const Schritt& s, const Rechenschritte& r) {
    if (s.Art == Schritt::Stamm) return Berechnung_Wirkstoff;
    return s.Art == Schritt::Metabolit_1 ? r.Berechnung_Metabolit_1 : r.Berechnung_Metabolit_2;
}

void rechne_Stoffe(Lauf& l, const Rechenschritte& r) {
    pruefe_Boden(l.Felder.Parameter);
    pruefe_Stoffe(l.Felder, l.i_studie);
    const auto Schema = static_cast<std::size_t>(l.Felder.Berechnungsmodus);
    if (Schema >= Schemata.size()) return;
    for (const Schritt& s : Schemata[Schema]) {
        l.i_substanz = s.i_substanz;
        Rechnung_fuer(s, r)(l);
        r.berechne_Plateau(l);
        r.berechne_TWA(l);
    }
}

// False if the scenario wants a climate file that cannot be opened.
bool lade_Klima(Lauf& l, const Klimaquelle& Quelle) {
    l.Klima = Wetter();
    if (l.Felder.Parameter.Klimamodus == konstante_Temperatur) return true;
    auto Tage = Quelle.lade(l.Felder.Klimaszenario);
    if (!Tage) return false;
    if (Tage->empty())
        throw Laufzeitfehler("The climate file \"" + l.Felder.Klimaszenario + "\" holds no day.", {{}, 0, "Klimaszenario"});
    l.Klima = Wetter(std::move(*Tage), l.Felder.App_Monat, l.Felder.App_Tag);
    return true;
}

void verwirf(Lauf& l) {
    l.Speicher.verwirf_Studie(l.i_studie);
    if (l.Beobachter) l.Beobachter->verwirf(l.i_studie);
}

}  // namespace

std::string Meldung(Laufausgang Ausgang) {
    switch (Ausgang) {
        case Laufausgang::berechnet:
            return {};
        case Laufausgang::Tabelle_ungueltig:
            return Bereiche::Meldung_Datum;
        case Laufausgang::Datumsfolge_ungueltig:
            return "The sequence of application dates that is not valid. Please correct!";
        case Laufausgang::Klimadatei_fehlt:
            return "Cannot load climate data file. Please correct!";
    }
    return {};
}

Laufergebnis berechne_PEC(Lauf& l, int i_studie, const Klimaquelle& Quelle, const Rechenschritte& Schritte) {
    l.Warnungen.clear();
    if (l.Felder.Applikationsmuster == unregelmaessig) {
        if (const auto Zelle = Tabelle_mit_Applikationen_berechne_PEC(l.Felder)) {
            return {Laufausgang::Tabelle_ungueltig, Zelle->Zeile, Zelle->Spalte};
        }
    }
    l.i_studie = i_studie;
    l.Speicher.leere_Studie(i_studie);
    if (l.Beobachter) l.Beobachter->verwirf(i_studie);
    if (!Lade_Applikationen(l.Felder, i_studie, l.Speicher)) return {Laufausgang::Datumsfolge_ungueltig};
    try {
        if (!lade_Klima(l, Quelle)) {
            verwirf(l);
            return {Laufausgang::Klimadatei_fehlt};
        }
        rechne_Stoffe(l, Schritte);
    } catch (...) {
        verwirf(l);  // half a result is none
        throw;
    }
    return {};
}

}  // namespace varnok
