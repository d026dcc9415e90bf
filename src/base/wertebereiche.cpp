#include "base/wertebereiche.h"

#include "base/zahlen.h"

namespace varnok {

std::string als_Text(const Bereich& b) {
    const bool unten_offen = b.von == -Bereich::ohne_Ende;
    const bool oben_offen = b.bis == Bereich::ohne_Ende;
    const std::string von = allgemeine_Zahl(b.von);
    const std::string bis = allgemeine_Zahl(b.bis);
    if (unten_offen && oben_offen) return "any number";
    if (unten_offen) return b.bis_gilt ? bis + " or below" : "below " + bis;
    if (oben_offen) return b.von_gilt ? von + " or above" : "above " + von;
    return (b.von_gilt ? von : "above " + von) + (b.bis_gilt ? " to " : " to below ") + bis;
}

}  // namespace varnok
