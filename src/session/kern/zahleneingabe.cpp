#include "session/kern/zahleneingabe.h"

#include "base/zahlen.h"

namespace varnok {
namespace {

// A typed text for the status line, cut where it is long, never inside a character.
std::string Anfang(const std::string& Text) {
    constexpr std::size_t Hoechstlaenge = 40;
    if (Text.size() <= Hoechstlaenge) return Text;
    std::size_t Ende = Hoechstlaenge;
    while (Ende > 0 && (static_cast<unsigned char>(Text[Ende]) & 0xC0U) == 0x80U) --Ende;
    return Text.substr(0, Ende) + "...";
}

}  // namespace

bool ist_eindeutig(const std::string& Text) { return !lies_Zahl(Text).mehrere_Trennzeichen; }

std::string nimm_Zahl_an(const Schauplatz& z, const std::string& Feld, const std::string& Text, std::string& Meldung) {
    const Zahllesung l = lies_Zahl(Text);
    if (l.ganz()) return Text;
    const std::string Zahl = allgemeine_Zahl(l.Zahl, z.Welt.Dezimalzeichen);
    const std::string Gelesenes = l.leer ? "an empty text" : '"' + Anfang(Text) + '"';
    Meldung += (Meldung.empty() ? "" : " ") + Feld + ": " + Gelesenes + " was read as " + Zahl + ".";
    return Zahl;
}

std::string nimm_Zahl_an(Schauplatz& z, const std::string& Feld, const std::string& Text) {
    std::string Meldung;
    const std::string Zahl = nimm_Zahl_an(z, Feld, Text, Meldung);
    if (!Meldung.empty()) z.Statuszeile.sage(Meldung);
    return Zahl;
}

}  // namespace varnok
