#include "run/slotsummen.h"

#include <algorithm>

namespace varnok {
namespace {

// Days that are summed side by side: each sum waits for the rounding of the slot before.
constexpr std::size_t nebeneinander = 8;
using Tagesgruppe = std::array<float, nebeneinander>;

// Sums of one group of days. The day before the group stands in front of `erste_Zeile`.
template <std::size_t Wege>
struct Summen {
    Tagesgruppe Gesamt{};
    std::array<Tagesgruppe, Wege> Bildung{};

    void addiere(const float* Zeile, std::span<const Bildungsweg> Weg) {
        // Two single precision values added in double precision and rounded are what their plain sum is.
        for (std::size_t i = 0; i < nebeneinander; ++i) Gesamt[i] += Zeile[i];
        if constexpr (Wege == 0) return;
        std::array<double, nebeneinander> Verlust;
        for (std::size_t i = 0; i < nebeneinander; ++i)
            Verlust[i] = static_cast<double>(Zeile[static_cast<std::ptrdiff_t>(i) - 1]) - static_cast<double>(Zeile[i]);
        for (std::size_t w = 0; w < Wege; ++w) {
            for (std::size_t i = 0; i < nebeneinander; ++i) {
                Bildung[w][i] = static_cast<float>(static_cast<double>(Bildung[w][i]) +
                                                   Verlust[i] * Weg[w].Anteil * Weg[w].Massenverhaeltnis);
            }
        }
    }
};

template <std::size_t Wege>
void summiere(Slotzeilen& Zeilen, Tiefe t, int Slots, int n, const Summenziel& Ziel) {
    for (int d = 0; d < n; d += static_cast<int>(nebeneinander)) {
        Summen<Wege> s;
        for (int Slot = 1; Slot <= Slots; ++Slot) s.addiere(Zeilen.Slotzeile(t, Slot) + 1 + d, Ziel.Wege);
        const int Tage = std::min(n - d, static_cast<int>(nebeneinander));
        std::copy_n(s.Gesamt.begin(), Tage, Ziel.Gesamt + d);
        for (std::size_t w = 0; w < Wege; ++w) std::copy_n(s.Bildung[w].begin(), Tage, Ziel.Bildung[w] + d);
    }
}

}  // namespace

void summiere_Slots(Slotzeilen& Zeilen, Tiefe t, int Slots, int n, const Summenziel& Ziel) {
    switch (Ziel.Wege.size()) {
        case 0:
            return summiere<0>(Zeilen, t, Slots, n, Ziel);
        case 1:
            return summiere<1>(Zeilen, t, Slots, n, Ziel);
        default:
            return summiere<2>(Zeilen, t, Slots, n, Ziel);
    }
}

}  // namespace varnok
