#include "base/bemerkung.h"

#include "base/zahlen.h"

namespace varnok {

std::string als_Zeile(const Bemerkung& b, std::string_view Art) {
    std::string Zeile = b.Datei + ":" + std::to_string(b.Zeile) + ": " + std::string(Art) + ": ";
    if (!b.Feld.empty()) Zeile += b.Feld + ": ";
    Zeile += b.Meldung;
    if (!b.Text.empty() || b.Wert) Zeile += " (" + b.Text + (b.Wert ? " -> " + allgemeine_Zahl(*b.Wert) : "") + ")";
    return Zeile;
}

}  // namespace varnok
