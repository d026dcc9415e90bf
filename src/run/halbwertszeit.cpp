#include "run/halbwertszeit.h"

#include <cmath>

#include "base/zahlen.h"

namespace varnok {

double Halbwertszeit(double v) { return v > 0 ? std::log(2.0) / v : 0; }

double gezeigte_Halbwertszeit(double k) {
    const double DT50 = Halbwertszeit(k);
    const double gesucht = wie_im_Satz(k);
    for (int Stellen = 1; Stellen < 15; ++Stellen) {
        const double gekuerzte = gekuerzt(DT50, Stellen);
        if (wie_im_Satz(Halbwertszeit(gekuerzte)) == gesucht) return gekuerzte;
    }
    return wie_im_Satz(DT50);
}

std::string Text_der_Halbwertszeit(double k, char Dezimalzeichen) {
    return allgemeine_Zahl(gezeigte_Halbwertszeit(k), Dezimalzeichen);
}

}  // namespace varnok
