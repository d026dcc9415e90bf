#include "support/slotprotokoll.h"

#include <algorithm>
#include <stdexcept>

namespace varnok::probe {

void Slotprotokoll::verwirf(int i_studie) {
    i_studie_ = i_studie;
    Reihen_[static_cast<std::size_t>(i_studie)].clear();
}

void Slotprotokoll::sieh(int i_substanz, Tiefe t, int Slot, int erster_Tag, std::span<const float> Werte) {
    auto& r = Reihen_[static_cast<std::size_t>(i_studie_)][{i_substanz, t, Slot}];
    if (!r) r = std::make_unique<Reihe>();
    std::copy(Werte.begin(), Werte.end(), r->begin() + erster_Tag);
}

std::span<const float, Tagesplaetze> Slotprotokoll::Slot(int i_studie, int i_substanz, Tiefe t, int Slot) const {
    static const Reihe leer{};
    const auto& Reihen = Reihen_[static_cast<std::size_t>(i_studie)];
    const auto i = Reihen.find({i_substanz, t, Slot});
    return i == Reihen.end() ? leer : *i->second;
}

Tagesreihe_lesend Slotreihe(const Lauf& l, int i_studie, int i_substanz, Tiefe t, int Slot) {
    if (Slot == 0) {
        return t == Tiefe::Plateau ? l.Speicher.Reihe_Plateautiefe(Gesamtgehalt, i_studie, i_substanz)
                                   : l.Speicher.Reihe_Bodentiefe(Gesamtgehalt, i_studie, i_substanz);
    }
    const auto* Protokoll = dynamic_cast<const Slotprotokoll*>(l.Beobachter.get());
    if (Protokoll == nullptr) throw std::logic_error("nobody has kept the slots of this run");
    return Protokoll->Slot(i_studie, i_substanz, t, Slot);
}

}  // namespace varnok::probe
