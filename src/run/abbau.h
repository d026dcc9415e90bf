#pragma once

#include <memory>
#include <span>

#include "run/lauf.h"

namespace varnok {

// A store that grows: the sum in double precision, rounded once.
inline void waechst_um(float& Speicher, double Zuwachs) {
    Speicher = static_cast<float>(static_cast<double>(Speicher) + Zuwachs);
}

// How the residues of the parent decline: one kinetics, both series, the rows of the slots.
class Abbau {
public:
    explicit Abbau(Lauf& l);
    virtual ~Abbau() = default;
    Abbau(const Abbau&) = delete;
    Abbau& operator=(const Abbau&) = delete;

    // The rate constants that temperature and moisture correct, at most two.
    virtual std::span<const double> Konstanten() const { return {}; }

    // Decline of slots 1 to `Anzahl` over n days from day d on: fills their rows. Nothing is applied before the last of them.
    virtual void baue_ab(int d, int n, int Anzahl) = 0;
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
    const Laufparameter& Parameter() const { return l_.Felder.Parameter; }
    bool getrennt() const { return Parameter().Separate_Rueckstaende != gemeinsam; }

    Lauf& l_;
    Slotzeilen& Zeilen_;
    const Tagesfaktoren& Faktoren_;
    double Tiefe_Boden_;    // dm
    double Tiefe_Plateau_;  // dm
};

// The kinetics of the study. Throws Laufzeitfehler for parameters that make it impossible.
std::unique_ptr<Abbau> erstelle_Abbau(Lauf& l);

}  // namespace varnok
