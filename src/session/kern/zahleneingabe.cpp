#include "session/kern/zahleneingabe.h"

#include "base/text.h"

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

Zahlwert nimm_Zahl_an(const Schauplatz& z, const std::string& Feld, const Zahlwert& v, std::string& Meldung) {
    if (v.ganz()) return v;
    const Zahlwert Zahl = Zahlwert::in_allgemeiner_Form(v.Zahl(), z.Welt.Dezimalzeichen);
    const std::string Gelesenes = ohne_Randblanks(v.Text()).empty() ? "an empty text" : '"' + Anfang(v.Text()) + '"';
    Meldung += (Meldung.empty() ? "" : " ") + Feld + ": " + Gelesenes + " was read as " + Zahl.Text() + ".";
    return Zahl;
}

Zahlwert nimm_Zahl_an(Schauplatz& z, const std::string& Feld, const Zahlwert& v) {
    std::string Meldung;
    const Zahlwert Zahl = nimm_Zahl_an(z, Feld, v, Meldung);
    z.Statuszeile.sage_Zahl(Meldung);
    return Zahl;
}

}  // namespace varnok
