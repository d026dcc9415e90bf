#pragma once

#include <stdexcept>

#include "exposure/ergebnis.h"
#include "run/ansicht.h"

namespace varnok {

// What is shown, in a table, a diagram or a report: results, the view chosen, and the names and the description as they are now.
// Unit, windows, kinetics and scheme in texts are those of the results.
struct Darstellung {
    const Ergebnisse& Studien;
    const Ansicht& Sicht;
    const Eingabe& Namen;

    // The result of a study. Throws std::logic_error where none was made: who shows it has to see to that.
    const Ergebnis& Studie(int i_studie) const {
        const auto& e = Studien.at(static_cast<std::size_t>(i_studie));
        if (!e) throw std::logic_error("study " + std::to_string(i_studie + 1) + " was not calculated");
        return *e;
    }
    const Ergebnis& Studie() const { return Studie(Sicht.Studie_Index); }

    // The input that the result of the selected study comes from.
    const Eingabe& Vorgabe() const { return *Studie().Vorgabe; }

    // The values of a compound and study at the endpoint chosen.
    const Endpunktergebnis& Werte(int i_studie, int i_substanz) const {
        return Studie(i_studie).Werte(Sicht.Endpunkt, i_substanz);
    }
};

}  // namespace varnok
