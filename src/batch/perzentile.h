#pragma once

// Percentiles of each result over the variants of a simulation.

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "batch/simulationsergebnis.h"

namespace varnok::batch {

// What the summary reads of a compound and endpoint.
struct Kennwerte {
    int Studie = 1;  // counted from 1
    int Stoff = 0;
    Endpunktart Endpunkt = Gesamtgehalt;
    std::string Einheit;
    double Maximum = 0;
    double Plateau = 0;
    double Maximum_mit_Plateau = 0;
    std::vector<std::pair<double, double>> TWA;  // days, maximum
};

// Of every compound and endpoint of a simulation that was calculated.
std::vector<Kennwerte> entnimm_Kennwerte(const Simulationsergebnis& r);

// Collects simulation after simulation; holds eight bytes for each result and variant of the one in work.
class Zusammenfassung {
public:
    // How many variants a simulation has at most.
    explicit Zusammenfassung(std::size_t Varianten) : Varianten_(Varianten) {}

    static std::string Kopfzeile();
    // Rows of the simulation before, where this is another one.
    std::string nimm(const std::string& Simulation, const std::vector<Kennwerte>& Werte);
    // Rows of the last simulation.
    std::string beende();

private:
    // Study, compound, endpoint, unit, kind of result, days of its window.
    using Schluessel = std::tuple<int, int, int, std::string, int, double>;

    void lege_ab(const Kennwerte& k, int Art, double Tage, double Wert);

    std::size_t Varianten_;
    std::string Simulation_;
    std::map<Schluessel, std::vector<double>> Reihen_;
};

// The value below which a share of the ascending values lies, between order statistics by linear interpolation.
double Perzentil(const std::vector<double>& aufsteigend, double Anteil);

}  // namespace varnok::batch
