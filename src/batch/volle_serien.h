#pragma once

#include <string>
#include <vector>

#include "batch/simulationsergebnis.h"
#include "run/klima.h"
#include "run/lauf.h"

namespace varnok::batch {

// Temperature in °C and soil moisture in Vol% of the days of a run, as the calculation reads them; day 0 has no temperature in
// variable climate. `Arbeitsplatz` is used up.
struct Tageswetter {
    std::vector<double> Temperatur;  // from day 1 on in variable climate, else the one of all days
    std::vector<double> Feuchte;     // from day 0 on
    bool variabel = false;
};
Tageswetter bestimme_Tageswetter(const Eingabe& e, const Klimaquelle& Quelle, Lauf& Arbeitsplatz);

// The daily series of a study for people: a table of days 0 to 3649 with date, weather, dose and, for each compound and endpoint,
// the annual, background and accumulated concentration.
std::string volle_Serie(const Ergebnis& s, const Ansicht& Sicht, const Tageswetter& Wetter);

// One file for each study into the folder. What cannot be written is added to `Schreibfehler`.
void schreibe_volle_Serien(const std::string& Ordner, const std::string& Name, const Simulationsergebnis& r,
                           const Klimaquelle& Quelle, Lauf& Arbeitsplatz, std::vector<std::string>& Schreibfehler);

}  // namespace varnok::batch
