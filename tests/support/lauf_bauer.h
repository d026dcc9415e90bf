#pragma once

// Builds runs for tests: a plain scenario, one compound that decays by 1 % a day, one dose of
// 1000 g/ha. Whatever a case is about is set on top of it.

#include <optional>
#include <string>
#include <vector>

#include "run/ansicht.h"
#include "run/klima.h"
#include "run/lauf.h"

namespace varnok::probe {

// The weather as a list; without one no climate can be opened.
class Klimaliste final : public Klimaquelle {
public:
    Klimaliste() = default;
    explicit Klimaliste(std::vector<Klimatag> Tage) : Tage_(std::move(Tage)) {}
    std::optional<std::vector<Klimatag>> lade(const std::string&) const override { return Tage_; }

private:
    std::optional<std::vector<Klimatag>> Tage_;
};

struct Lauf_bauer {
    Lauf_bauer();

    // kinetics of a compound; rate constants in 1/d
    Lauf_bauer& nach_SFO(double k, int i_substanz = 0);
    Lauf_bauer& nach_DFOP(double k1, double k2, double g, int i_substanz = 0);
    Lauf_bauer& nach_FOMC(double alpha, double beta);
    Lauf_bauer& nach_HS(double k1, double k2, double Tb);
    Lauf_bauer& Korrektur(double Q10, double Walker, double TRef, int i_substanz = 0);
    Lauf_bauer& KOC(double Wert, int i_substanz = 0);

    // metabolites
    Lauf_bauer& Schema(int Berechnungsmodus);  // code of `Stoffschema`
    Lauf_bauer& Molmassen(double Wirkstoff, double Met_1, double Met_2 = 100);
    Lauf_bauer& Bildungsanteile(double Met_1, double Met_2 = 0);  // %

    // applications
    Lauf_bauer& Dosis(const std::string& Rate, const std::string& Interzeption = "0");
    Lauf_bauer& regelmaessige_Gaben(int Anzahl, int Intervall);
    Lauf_bauer& Termine(std::vector<Applikationszeile> Zeilen);
    Lauf_bauer& Rueckstaende(int Separate_Rueckstaende);

    // scenario
    Lauf_bauer& Boden(double Dichte, double Bodentiefe, double Plateautiefe);
    Lauf_bauer& Feuchte(double Feldkapazitaet, double Welkepunkt);
    Lauf_bauer& Temperatur(int Grad);
    Lauf_bauer& Wetter(std::vector<Klimatag> Tage);  // and variable climate
    Lauf_bauer& Beginn(int Monat, int Tag);          // date of the first application, counted from 1
    Lauf_bauer& Einheit(int Code);
    Lauf_bauer& Studie(int i);  // every table of that study becomes as that of study 0 so far

    // A run with the input in place, not calculated. It keeps its slots for the tests to see.
    Lauf baue() const;
    // Calculates in a run that may hold results already, after giving it the input.
    Laufergebnis rechne_in(Lauf& l) const;
    // A new run, calculated; throws std::logic_error if it ends early.
    Lauf rechne() const;

    Eingabe Felder;
    Ansicht Sicht;  // plays no part in a run
    int i_studie = 0;
    std::optional<std::vector<Klimatag>> Klima;
};

// Values of the sum slot.
float Boden(const Lauf& l, int Tag, int i_substanz = 0, Endpunktart Endpunkt = Gesamtgehalt);
float Plateau(const Lauf& l, int Tag, int i_substanz = 0, Endpunktart Endpunkt = Gesamtgehalt);
// Values of one slot at total soil content.
float Bodenslot(const Lauf& l, int Slot, int Tag, int i_substanz = 0);
float Plateauslot(const Lauf& l, int Slot, int Tag, int i_substanz = 0);

// All results of a study as bytes, its slots too, those that depend on the study alone.
std::string Abbild(const Lauf& l, int i_studie);
// The doses and the formation as bytes; all studies share them.
std::string Abbild_gemeinsam(const Lauf& l);
// Name of the first store of the study that holds a number that is not finite, empty if none does.
std::string nicht_endlicher_Speicher(const Lauf& l, int i_studie);
// Whether series, integrals and maxima of the study hold zeros only.
bool geleert(const Lauf& l, int i_studie);

// Weather that changes from day to day and repeats after `Tage` days: warm and dry, then cool and wet.
std::vector<Klimatag> wechselndes_Wetter(int Tage);

}  // namespace varnok::probe
