#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "run/slotbeobachter.h"
#include "run/zeitachse.h"

namespace varnok {

// The rows of that many slots: a row for each slot and series. The two series alternate, as far as the soil depth has slots, so
// that the rows in use are always the first ones.
constexpr int Zeilenzahl(int Slots) { return Slots < Slots_Boden ? 2 * Slots : Slots + Slots_Boden - 1; }

constexpr int Zeilennummer(Tiefe t, int Slot) {
    if (Slot < Slots_Boden) return 2 * (Slot - 1) + (t == Tiefe::Boden ? 1 : 0);
    return Slot + Slots_Boden - 2;
}

inline constexpr int Zeilengruppe = 8;  // rows that are worked on together
inline constexpr int alle_Zeilen = (Zeilenzahl(Slots_Plateau - 1) + Zeilengruppe - 1) / Zeilengruppe * Zeilengruppe;

// The residues of the slots over a few days, in front of each row the last day before.
class Slotzeilen {
public:
    static constexpr int Tage = 32;  // that a row holds
    static constexpr int Zeilenlaenge = Tage + 4;

    float* Slotzeile(int Nummer) { return Werte_.data() + static_cast<std::size_t>(Nummer) * Zeilenlaenge; }
    float* Slotzeile(Tiefe t, int Slot) { return Slotzeile(Zeilennummer(t, Slot)); }
    // The residue of the last day calculated.
    float& heute(Tiefe t, int Slot) { return Slotzeile(t, Slot)[0]; }

    void leere() { Werte_.fill(0); }
    // The last of n days becomes the one before the next days.
    void ruecke_vor(int Slots, int n) {
        for (int i = 0; i < Zeilenzahl(Slots); ++i) Slotzeile(i)[0] = Slotzeile(i)[n];
    }

private:
    std::array<float, std::size_t{alle_Zeilen} * Zeilenlaenge> Werte_{};
};

// The slots up to `Anzahl` that a series has; the soil depth has residue in its slots 1 to 22 only.
constexpr int Slots_von(Tiefe t, int Anzahl) { return t == Tiefe::Boden ? std::min(Anzahl, Slots_Boden - 1) : Anzahl; }

}  // namespace varnok
