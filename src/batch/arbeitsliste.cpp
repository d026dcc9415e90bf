#include "batch/arbeitsliste.h"

namespace varnok::batch {

Arbeitsliste::Arbeitsliste(const Auftrag& a, const std::vector<std::string>& Simulationen, Variantenquelle* Varianten,
                           const Anteil& t, bool lies_vorher)
    : a_(&a),
      Simulationen_(&Simulationen),
      Varianten_(Varianten),
      Schritt_(static_cast<std::size_t>(t.Teile)),
      erste_(static_cast<std::size_t>(t.Teil)),
      lies_vorher_(lies_vorher || Varianten != nullptr) {
    beginne_neu();
}

std::size_t Arbeitsliste::Anzahl() const {
    const std::size_t alle = Simulationen_->size() * Varianten_pro_Simulation();
    return alle <= erste_ ? 0 : (alle - erste_ - 1) / Schritt_ + 1;
}

void Arbeitsliste::beginne_neu() {
    Position_ = erste_;
    Gelesenes_.reset();
}

std::optional<Arbeitsstueck> Arbeitsliste::naechstes() {
    const std::size_t Varianten = Varianten_pro_Simulation();
    const std::size_t Simulation = Position_ / Varianten;
    if (Simulation >= Simulationen_->size()) return std::nullopt;
    Arbeitsstueck s;
    s.Position = Position_;
    s.Simulation = (*Simulationen_)[Simulation];
    if (lies_vorher_ && (!Gelesenes_ || Simulation_ != Simulation)) {
        Gelesenes_ = lies_Simulationssaetze(*a_, s.Simulation);
        Simulation_ = Simulation;
        gelesene_Reihen_ = 0;
        if (Varianten_ != nullptr) Varianten_->beginne_neu();
    }
    s.Gelesenes = Gelesenes_;
    if (Varianten_ != nullptr) {
        for (const std::size_t Reihe = Position_ % Varianten; gelesene_Reihen_ < Reihe; ++gelesene_Reihen_)
            Varianten_->ueberspringe();
        s.Herkunft = Varianten_->naechste();
        ++gelesene_Reihen_;
    }
    Position_ += Schritt_;
    return s;
}

}  // namespace varnok::batch
