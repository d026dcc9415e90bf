#include "batch/berichtsauftrag.h"

namespace varnok::batch {

std::string Studienzusatz(const Eingabe& e, int i_studie, std::size_t Studien) {
    constexpr std::size_t Teil_Studie = 1;
    if (Studien < 2 || e.Parameter.Ausgabename_Teile[Teil_Studie] == 1) return {};
    return " - study " + std::to_string(i_studie + 1);
}

}  // namespace varnok::batch
