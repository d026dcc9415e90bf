#include "run/kehrpotenz.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace varnok {
namespace {

// An interval is what shares the exponent and the first bits of the mantissa: 128 of them lie between two powers of 2, and no
// point is farther from the middle than 1/256 of it.
constexpr int Mantissenbits = 7;
constexpr int Rest_Bits = 52 - Mantissenbits;
constexpr double Abstand = 1.0 / 256;

constexpr std::uint64_t Kennung(double x) { return std::bit_cast<std::uint64_t>(x) >> Rest_Bits; }
std::size_t Intervall(double x) { return static_cast<std::size_t>(Kennung(x) - Kennung(1.0)); }
double Mitte(std::size_t Intervall) {
    return std::bit_cast<double>(((Intervall + Kennung(1.0)) << Rest_Bits) | (std::uint64_t{1} << (Rest_Bits - 1)));
}

}  // namespace

Kehrpotenz::Kehrpotenz(double alpha) : alpha_(alpha) {
    double Koeffizient = 1;
    for (int k = 0; k <= Grad; ++k) {
        Reihe_[static_cast<std::size_t>(k)] = Koeffizient;
        Koeffizient *= (-alpha - k) / (k + 1);
    }
    // The first term left out, twice for all others, and the rounding of x, distance, series and powers.
    Fehler_ = 2 * std::abs(Koeffizient) * std::pow(Abstand, Grad + 1) + std::ldexp(std::abs(alpha) + 4, -50);
}

bool Kehrpotenz::reicht_bis(double x) {
    constexpr double groesstes_x = 1E9;
    constexpr double groesster_Fehler = 0x1p-34;  // with more of it too many results would have to be worked out anew
    if (!(x >= 1 && x <= groesstes_x) || !(Fehler_ < groesster_Fehler)) return false;
    for (std::size_t i = Stuetzen_.size(); i <= Intervall(x); ++i)
        Stuetzen_.push_back({1 / Mitte(i), std::pow(Mitte(i), -alpha_)});
    return true;
}

void Kehrpotenz::rechne(std::span<const double> x, double* Ergebnis) const {
    std::array<double, groesste_Anzahl> Kehrwert;
    std::array<double, groesste_Anzahl> Potenz;
    for (std::size_t t = 0; t < x.size(); ++t) {
        const Stuetze& s = Stuetzen_[Intervall(x[t])];
        Kehrwert[t] = s.Kehrwert;
        Potenz[t] = s.Potenz;
    }
    const auto [c0, c1, c2, c3, c4, c5] = Reihe_;
    for (std::size_t t = 0; t < x.size(); ++t) {
        const double u = x[t] * Kehrwert[t] - 1;
        const double u2 = u * u;  // in pairs, so that the terms need not wait for one another
        Ergebnis[t] = Potenz[t] * ((c0 + c1 * u) + u2 * ((c2 + c3 * u) + u2 * (c4 + c5 * u)));
    }
}

}  // namespace varnok
