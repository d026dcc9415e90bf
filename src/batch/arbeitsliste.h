#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/simulationslauf.h"

namespace varnok::batch {

// Which part of the work a call does: the positions p, from 0, with p mod Teile = Teil.
struct Anteil {
    int Teil = 0;
    int Teile = 1;
};

// The work of a call in its order: simulation after simulation, each with its variants. Nothing is held for each piece.
class Arbeitsliste {
public:
    // With variants, or where `lies_vorher` asks for it, the records of a simulation are read here, once for all its pieces;
    // without them by who does the work.
    Arbeitsliste(const Auftrag& a, const std::vector<std::string>& Simulationen, Variantenquelle* Varianten, const Anteil& t,
                 bool lies_vorher);

    // How many pieces there are.
    std::size_t Anzahl() const;
    void beginne_neu();
    // Nothing behind the last one.
    std::optional<Arbeitsstueck> naechstes();

private:
    std::size_t Varianten_pro_Simulation() const { return Varianten_ != nullptr ? Varianten_->Anzahl() : 1; }

    const Auftrag* a_;
    const std::vector<std::string>* Simulationen_;
    Variantenquelle* Varianten_;
    std::size_t Schritt_;
    std::size_t erste_;
    bool lies_vorher_;

    std::size_t Position_ = 0;
    std::size_t gelesene_Reihen_ = 0;  // of the source, for the simulation in work
    std::size_t Simulation_ = 0;       // that `Gelesenes_` is of
    std::shared_ptr<const Lesung> Gelesenes_;
};

}  // namespace varnok::batch
