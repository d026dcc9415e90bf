#pragma once

// The values that a call gives in place of those of the records.

#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "batch/variantenquelle.h"

namespace varnok::batch {

struct Aufruf;
struct Auftrag;

// One value with where it was given.
struct gegebener_Wert {
    Namensbezug Bezug;
    Eingabewert Wert;
    std::string Option;  // "--set DT50=60"
};

// The values of --set. Throws Aufruffehler that names the option.
std::vector<gegebener_Wert> lies_Vorgaben(const Aufruf& a, const Projektordner& Ordner);

// What a call puts in: the values of --set, then those of a variant.
class Vorgabensatz {
public:
    Vorgabensatz() = default;
    Vorgabensatz(std::vector<gegebener_Wert> Werte, const std::vector<Namensbezug>& Variantennamen);

    bool leer() const { return Reihenfolge_.empty(); }
    const std::vector<gegebener_Wert>& Werte() const { return Werte_; }
    const std::vector<Namensbezug>& Variantennamen() const { return Variantennamen_; }
    // All names, --set first.
    std::vector<const Namensbezug*> Namen() const;

    // Puts the values in, those first that others depend on, then checks what goes together. Throws Laufzeitfehler.
    void setze_ein(const Variante* v, Eingabe& e, Ansicht& Sicht) const;

    // About values that no run of these inputs reads, and densities that hardly any soil has.
    std::vector<Bemerkung> Bemerkungen(const Variante* v, const Eingabe& e, const std::string& Quelle) const;

private:
    const Eingabewert& Wert(std::size_t i, const Variante* v) const {
        return i < Werte_.size() ? Werte_[i].Wert : v->Werte[i - Werte_.size()];
    }
    const Namensbezug& Bezug(std::size_t i) const {
        return i < Werte_.size() ? Werte_[i].Bezug : Variantennamen_[i - Werte_.size()];
    }

    std::vector<gegebener_Wert> Werte_;
    std::vector<Namensbezug> Variantennamen_;
    std::vector<std::size_t> Reihenfolge_;
};

// Puts every value into every chosen simulation, so that the whole call is checked before anything runs. A simulation that cannot
// be read is left to its turn. Throws Aufruffehler that names option, row and simulation.
void pruefe_Vorgaben(const Auftrag& a, const std::vector<std::string>& Simulationen, Variantenquelle* Varianten);

// The names with unit, indices and range, as a text for the eye.
std::string Namenshilfe();

}  // namespace varnok::batch
