#include "run/halbwertszeit.h"

#include <cmath>

#include "base/zahlen.h"

namespace varnok {

double Halbwertszeit(double v) { return v > 0 ? std::log(2.0) / v : 0; }

std::string Text_der_Halbwertszeit(double k, char Dezimalzeichen) {
    const double DT50 = Halbwertszeit(k);
    const std::string gesucht = allgemeine_Zahl(k);
    for (int Stellen = 1; Stellen < 15; ++Stellen) {
        const std::string Text = gekuerzte_Zahl(DT50, Stellen);
        if (allgemeine_Zahl(Halbwertszeit(Wert(Text))) == gesucht) return gekuerzte_Zahl(DT50, Stellen, Dezimalzeichen);
    }
    return allgemeine_Zahl(DT50, Dezimalzeichen);
}

}  // namespace varnok
