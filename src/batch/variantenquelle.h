#pragma once

// Where the variants of a call come from: a table or distributions. Nothing is held for each of them, so any number can be asked
// for.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "records/eingabenamen.h"

namespace varnok::batch {

struct Aufruf;

// One variant: its number, from 1, and a value for each name.
struct Variante {
    std::size_t Reihe = 0;
    std::vector<Eingabewert> Werte;
};

class Variantenquelle {
public:
    virtual ~Variantenquelle() = default;

    const std::vector<Namensbezug>& Namen() const { return Namen_; }
    virtual std::size_t Anzahl() const = 0;

    // The first variant comes next.
    virtual void beginne_neu() = 0;
    // Throws Aufruffehler that names option, row and column for a value that cannot be taken. Not after the last one.
    virtual Variante naechste() = 0;
    virtual void ueberspringe() = 0;
    // "--vary plan.csv, row 3", for messages about a variant as a whole.
    virtual std::string Bezeichnung(std::size_t Reihe) const = 0;

protected:
    // The same name twice would make one of its values count for nothing.
    void nimm_Namen(Namensbezug b, const std::string& davor);

    std::vector<Namensbezug> Namen_;
};

// The source that the call asks for, every value of it checked; null without one.
std::unique_ptr<Variantenquelle> oeffne_Varianten(const Aufruf& a, const Projektordner& Ordner);

std::unique_ptr<Variantenquelle> Variantentabelle(const std::string& Datei, const Projektordner& Ordner);
std::unique_ptr<Variantenquelle> Stichprobe(const std::string& Datei, std::size_t Ziehungen, std::uint32_t Saat,
                                            const Projektordner& Ordner);

}  // namespace varnok::batch
