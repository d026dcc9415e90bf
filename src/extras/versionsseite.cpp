#include "extras/versionsseite.h"

#include <algorithm>

#include "base/zahlen.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

constexpr std::string_view Endung = ".zip";
constexpr std::size_t Zeichen_der_Version = 8;
// A file name of the server takes so many characters up to its ending.
constexpr std::size_t Mindestlaenge = 26;
constexpr std::size_t Hoechstlaenge = 32766;

// Digits and points only: an exponent or a sign is no part of a date code.
double Zahl_am_Anfang(std::string_view Text) {
    Text.remove_prefix(std::min(Text.find_first_not_of(' '), Text.size()));
    return fuehrende_Zahl(Text.substr(0, Text.find_first_not_of("0123456789.")));
}

}  // namespace

std::string_view letzte_Zeile(std::string_view Seite) {
    std::string_view letzte;
    Zeilenfolge Zeilen(Seite);
    while (const auto Zeile = Zeilen.naechste()) letzte = *Zeile;
    return letzte;
}

std::optional<Serverversion> Version_der_Seite(std::string_view Seite) {
    const std::string_view Zeile = letzte_Zeile(Seite);
    const std::size_t davor = Zeile.find(Endung);
    if (davor == std::string_view::npos || davor < Mindestlaenge || davor > Hoechstlaenge) return std::nullopt;
    const std::string_view Zeichen = Zeile.substr(davor - Zeichen_der_Version, Zeichen_der_Version);
    return Serverversion{std::string(Zeichen), Zahl_am_Anfang(Zeichen)};
}

int vergleiche_mit_eigener(const Serverversion& Version) {
    const double eigene = Zahl_am_Anfang(Eigene_Version);
    return Version.Zahl > eigene ? 1 : Version.Zahl < eigene ? -1 : 0;
}

}  // namespace varnok
