#pragma once

#include <span>

namespace varnok {

// The two series of a compound.
enum class Tiefe { Plateau, Boden };

// Sees the residues of the single slots, of which a run keeps the sums only. For tests; a run without one pays nothing.
class Slotbeobachter {
public:
    virtual ~Slotbeobachter() = default;
    // A run of the study begins or has ended without a result: what was seen of it counts no more.
    virtual void verwirf(int i_studie) = 0;
    // Total soil content of a slot on the days from `erster_Tag` on. It replaces what was said of these days before.
    virtual void sieh(int i_substanz, Tiefe t, int Slot, int erster_Tag, std::span<const float> Werte) = 0;
};

}  // namespace varnok
