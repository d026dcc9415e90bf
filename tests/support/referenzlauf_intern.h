#pragma once

// What the steps of the reference calculation share.

#include "support/referenzlauf.h"

namespace varnok::referenz {

[[noreturn]] void unmoeglich(const std::string& Ursache);

// Stores a value: rounds it to single precision, throws if no finite number comes out.
float einfach(double Zahl);

// A finite double, or an exception.
double endlich(double Zahl, const char* Ursache);

double Maximum(double a, double b);
double Minimum(double a, double b);

// Nearest whole number, ties to even.
long gerundet(double Zahl);

// The state of one run: its input, its result and the values of the day.
struct Lage {
    const Laufparameter& p;
    const Eingabe& e;
    int i_studie;
    const std::vector<Klimatag>& Klima;
    Studienergebnis& Ergebnis;

    double Tagestemperatur = 0, Tagesniederschlag = 0, Tagesverdunstung = 0;
    double Bodenfeuchte = 0, Referenzfeuchte = 0;
    std::size_t naechste_Klimazeile = 0;

    // Value of this study in a table with one value for each compound and study.
    double von(const Stofftabelle<double>& Tabelle, int i_substanz) const;
    // Value of this study in a table with one value for each study.
    double von(const Studientabelle<double>& Tabelle) const;

    void Klima_oeffnen();     // stands before the line of the first application's date
    void Klimazeile_lesen();  // the next day; behind the last one comes the first
    double Temperaturpotenz(int i_substanz) const;
    double Feuchtepotenz(int i_substanz) const;
    double korrigiert(double k, int i_substanz) const;  // rate constant of the day, 1/d
    double PW_faktor(int i_substanz) const;             // total soil to pore water, L/kg
};

void Lade_Applikationen(Lage& l);
Stoffergebnis leere_Speicher();
Stoffergebnis Berechnung_Wirkstoff(Lage& l);
// `i_substanz` 1, or 2 in the parallel scheme (`als_zweiter_der_Folge` false) and in the sequence (true).
Stoffergebnis Berechnung_Metabolit(Lage& l, int i_substanz, bool als_zweiter_der_Folge);
void Integral_und_Maxima(Stoffergebnis& s, int d);
void berechne_Plateau(Lage& l, Stoffergebnis& s, int i_substanz);
void berechne_TWA(const Lage& l, Stoffergebnis& s);

}  // namespace varnok::referenz
