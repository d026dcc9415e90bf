#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace varnok {

// x^-alpha for x from 1 on, without a power for each x: the power of the middle of a narrow interval times a short series in the
// distance from there, (1 + u)^-alpha = 1 - alpha u + ... The result is off by less than `Fehler`, as a part of it, also where x
// is rounded a few times.
class Kehrpotenz {
public:
    explicit Kehrpotenz(double alpha);

    double Fehler() const { return Fehler_; }
    // Makes the values up to x known; false if they cannot be had well enough.
    bool reicht_bis(double x);
    // Of values each of which is at least 1 and none above what was made known.
    void rechne(std::span<const double> x, double* Ergebnis) const;

    static constexpr std::size_t groesste_Anzahl = 64;  // of values at once

private:
    static constexpr int Grad = 5;

    struct Stuetze {
        double Kehrwert;  // of the middle of the interval
        double Potenz;    // middle^-alpha
    };

    double alpha_;
    double Fehler_;
    std::array<double, Grad + 1> Reihe_;
    std::vector<Stuetze> Stuetzen_;
};

}  // namespace varnok
