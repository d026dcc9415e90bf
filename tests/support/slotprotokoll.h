#pragma once

// Keeps the residues of the single slots of every run, study by study, as the run shows them.

#include <array>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "run/lauf.h"

namespace varnok::probe {

class Slotprotokoll final : public Slotbeobachter {
public:
    void verwirf(int i_studie) override;
    void sieh(int i_substanz, Tiefe t, int Slot, int erster_Tag, std::span<const float> Werte) override;

    // All days of a slot; zeros for one that was never in use.
    std::span<const float, Tagesplaetze> Slot(int i_studie, int i_substanz, Tiefe t, int Slot) const;

private:
    using Reihe = std::array<float, Tagesplaetze>;
    using Platz = std::tuple<int, Tiefe, int>;  // compound, depth, slot

    int i_studie_ = 0;
    std::array<std::map<Platz, std::unique_ptr<Reihe>>, max_Studien> Reihen_;
};

// A slot of the last run of a study at total soil content; slot 0 is the sum. Only of a run with a `Slotprotokoll`.
Tagesreihe_lesend Slotreihe(const Lauf& l, int i_studie, int i_substanz, Tiefe t, int Slot);

}  // namespace varnok::probe
