#pragma once

#include <array>
#include <memory>

#include "run/lauf.h"
#include "run/tageswerte.h"

namespace varnok {

// The slots of one series of a compound at endpoint 0, days behind one another.
class Slotreihen {
public:
    explicit Slotreihen(Tagesreihe Slot_0) : Anfang_(Slot_0.data()) {}
    float* operator[](int Slot) const { return Anfang_ + static_cast<std::size_t>(Slot) * Tagesplaetze; }

private:
    float* Anfang_;
};

// The two series of the parent: all doses in the tillage depth, the first year's in the soil depth.
// The second one has residue in its slots 1 to 22 only.
struct Reihenpaar {
    explicit Reihenpaar(Lauf& l)
        : Plateau(l.Speicher.Reihe_Plateautiefe(0, l.i_studie, l.i_substanz, 0)),
          Boden(l.Speicher.Reihe_Bodentiefe(0, l.i_studie, l.i_substanz, 0)) {}

    Slotreihen Plateau;
    Slotreihen Boden;
};

// The slots up to `Anzahl` that the series in the soil depth has.
constexpr int Bodenslots(int Anzahl) { return std::min(Anzahl, Slots_Boden - 1); }

// A store that grows: the sum in double precision, rounded once.
inline void waechst_um(float& Speicher, double Zuwachs) {
    Speicher = static_cast<float>(static_cast<double>(Speicher) + Zuwachs);
}

// How the residues of the parent decline: one kinetics, both series.
class Abbau {
public:
    explicit Abbau(Lauf& l)
        : l_(l),
          Reihen_(l),
          Tiefe_Boden_(l.Felder.Parameter.Bodentiefe / 10),
          Tiefe_Plateau_(l.Felder.Parameter.Plateautiefe / 10) {}
    virtual ~Abbau() = default;
    Abbau(const Abbau&) = delete;
    Abbau& operator=(const Abbau&) = delete;

    // Takes over the correction of the day; called only when it has changed.
    virtual void korrigiere(const Korrektur& k) = 0;
    // One day's decline of slots 1 to `Anzahl`, from day d - 1 to d.
    virtual void baue_ab(int d, int Anzahl) = 0;
    // A dose falls on day d: the clock of the slot starts anew.
    virtual void beginne_Slot(int Slot, int d);
    // Adds a dose to a slot on day d, C as concentration in the soil depth. The series in the soil depth takes
    // the doses of the first year only.
    virtual void dosiere(int Slot, int d, double C);
    // What the residue of day 0 means beyond its concentration.
    virtual void beginne_Tag_0() {}
    // The tillage depth's residue of `alter_Slot` goes over to `Slot` on day d.
    virtual void vereinige(int alter_Slot, int Slot, int d);

protected:
    std::size_t Studie() const { return static_cast<std::size_t>(l_.i_studie); }

    Lauf& l_;
    Reihenpaar Reihen_;
    double Tiefe_Boden_;    // dm
    double Tiefe_Plateau_;  // dm
};

// The kinetics of the study. Throws Laufzeitfehler for parameters that make it impossible.
std::unique_ptr<Abbau> erstelle_Abbau(Lauf& l);

}  // namespace varnok
