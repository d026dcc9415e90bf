#include "records/einwaende.h"

#include "base/text.h"
#include "base/zeichensatz.h"

namespace varnok {

std::string Einwand_gegen_Zahl(const Zahllesung& l, double genommen) {
    if (l.leer) return "there is no value";
    if (l.ohne_Zahl) return "this is no number";
    if (!l.Rest.empty()) return "only its beginning was taken as a number";
    if (l.mit_Luecke) return "there are blanks inside the number";
    if (l.zu_klein) return "this is too small a number";
    return genommen == l.Zahl ? std::string() : "this is not a whole number";
}

std::string Einwand_gegen_Wert(const Wertebereich& w, double Wert) {
    if (!w.Grenzen.enthaelt(Wert)) return "outside the range " + als_Text(w.Grenzen);
    return w.ueblich.enthaelt(Wert) ? std::string() : "outside the usual range " + als_Text(w.ueblich);
}

std::string Auszug(std::string_view Bytes) {
    constexpr std::size_t Hoechstlaenge = 40;
    const std::string_view Kern = ohne_Randblanks(Bytes);
    return aus_Windows_1252(Kern.substr(0, Hoechstlaenge)) + (Kern.size() > Hoechstlaenge ? "..." : "");
}

}  // namespace varnok
