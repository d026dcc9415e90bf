#pragma once

// Distributions of inputs, turned from a probability into a value.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "records/eingabenamen.h"

namespace varnok::batch {

class Verteilung {
public:
    virtual ~Verteilung() = default;
    // The value below which the share u (between 0 and 1) lies, in general form; nothing where it is not finite.
    virtual std::optional<Eingabewert> Quantil(double u) const = 0;
    // Whether only given values come out, all of which the field takes.
    virtual bool aus_Liste() const { return false; }
};

// The parameters of a continuous distribution as its line gives them.
struct Parameter_abc {
    double a = 0;
    double b = 0;
    double c = 0;
};

// What is wrong with one of them.
struct Parametereinwand {
    char Parameter;  // 'a', 'b' or 'c'
    const char* Text;
};

// Nothing where the parameters make a distribution of that name.
std::optional<Parametereinwand> Einwand_gegen(const std::string& Name, const Parameter_abc& p);
// Null for a name that is none of a continuous distribution: normal (mean, deviation), lognormal (median, factor), uniform (from,
// to), triangular (from, mode, to).
std::unique_ptr<Verteilung> stetige_Verteilung(const std::string& Name, const Parameter_abc& p);
// How many of the parameters it takes; 0 for a name that is none.
int Parameterzahl(const std::string& Name);

// Values with weights; of numbers the least comes first, words stand in the order given.
struct gewichteter_Wert {
    Eingabewert Wert;
    double Gewicht = 1;
};
std::unique_ptr<Verteilung> Werteliste(std::vector<gewichteter_Wert> Werte);

// Standard normal distribution: the score of a probability, and the way back.
double Normalwert(double u);
double Wahrscheinlichkeit(double z);

}  // namespace varnok::batch
