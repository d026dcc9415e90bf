#include "records/einstellungen.h"

#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

bool ist_Utf8(const std::string& Bytes) { return QString::fromStdString(Bytes).toStdString() == Bytes; }

bool ist_Ascii(std::string_view Text) {
    return std::all_of(Text.begin(), Text.end(), [](char z) { return static_cast<unsigned char>(z) < 0x80; });
}

// A project path may hold characters that the code page does not have. Such a line stands in UTF-8, and
// so does one whose bytes would be taken for UTF-8: every text comes back as it was.
std::string als_Zeile(const std::string& Text) {
    if (Text.find_first_of("\r\n") != std::string::npos) {
        throw Laufzeitfehler("The settings cannot be saved: \"" + Text + "\" holds a line end");
    }
    const auto Bytes = nach_Windows_1252(Text);
    const bool verwechselbar = Bytes && !ist_Ascii(*Bytes) && ist_Utf8(*Bytes);
    return (Bytes && !verwechselbar ? *Bytes : Text) + "\r\n";
}

std::string aus_Zeile(std::string_view Zeile) {
    const std::string Bytes(Zeile);
    return ist_Utf8(Bytes) ? Bytes : aus_Windows_1252(Bytes);
}

// As the platform prints a number: a place for the sign in front, a separator behind.
std::string als_Dauer(double Tage) {
    std::string Zeile(Tage < 0 ? 0 : 1, ' ');
    return Zeile += allgemeine_Zahl(Tage) + " \r\n";
}

bool lies_Byte(Zeilenfolge& Zeilen, std::uint8_t& Ziel) {
    const auto Zeile = Zeilen.naechste();
    if (!Zeile) return false;
    const auto Zahl = ganze_Zahl(Wert(hinter_Tabulator(*Zeile)), 0, 255);
    if (Zahl) Ziel = static_cast<std::uint8_t>(*Zahl);
    return Zahl.has_value();
}

bool lies_Text(Zeilenfolge& Zeilen, std::string& Ziel) {
    const auto Zeile = Zeilen.naechste();
    if (Zeile) Ziel = aus_Zeile(*Zeile);
    return Zeile.has_value();
}

bool lies_Dauer(Zeilenfolge& Zeilen, double& Ziel) {
    const auto Zeile = Zeilen.naechste();
    if (!Zeile) return false;
    const auto Anfang = Zeile->find_first_not_of(" \t");
    if (Anfang == std::string_view::npos || !ist_Zahl_oder_leer(Zeile->substr(Anfang))) return false;
    Ziel = Wert(Zeile->substr(Anfang));
    return std::isfinite(Ziel);
}

template <std::size_t n>
bool lies_Liste(Zeilenfolge& Zeilen, std::array<double, n>& Liste) {
    return std::all_of(Liste.begin(), Liste.end(), [&](double& Dauer) { return lies_Dauer(Zeilen, Dauer); });
}

constexpr const char* Bildzeile = "Pictures:";

// Numbers out of their range, or another line than that, are none of this program.
void lies_Bildzeile(Zeilenfolge& Zeilen, Bildeinstellung& Ziel) {
    const auto Zeile = Zeilen.naechste();
    if (!Zeile) return;
    const auto Teile = zerlege_an(*Zeile, '\t');
    if (Teile.size() != 5 || Teile[0] != Bildzeile) return;
    const auto Breite = ganze_Zahl(Wert(Teile[1]), kleinstes_Bild, groesstes_Bild);
    const auto Hoehe = ganze_Zahl(Wert(Teile[2]), kleinstes_Bild, groesstes_Bild);
    const auto Aufloesung = ganze_Zahl(Wert(Teile[3]), kleinste_Aufloesung, groesste_Aufloesung);
    if (Breite && Hoehe && Aufloesung) Ziel = {*Breite, *Hoehe, *Aufloesung, Wert(Teile[4]) > 0};
}

std::string als_Bildzeile(const Bildeinstellung& b) {
    std::string Zeile = Bildzeile;
    for (const int Zahl : {b.Breite, b.Hoehe, b.Aufloesung, static_cast<int>(b.fuer_Druck)}) Zeile += '\t' + std::to_string(Zahl);
    return Zeile + "\r\n";
}

}  // namespace

std::optional<Einstellungen> zerlege_Einstellungen(const std::string& Bytes) {
    Zeilenfolge Zeilen(Bytes);
    Einstellungen e;
    const bool gelesen = lies_Byte(Zeilen, e.Tips_anzeigen) && lies_Byte(Zeilen, e.Farbeinstellung) &&
                         lies_Text(Zeilen, e.TWA_Titel_EU) && lies_Liste(Zeilen, e.TWA.EU) &&
                         lies_Text(Zeilen, e.TWA_Titel_Monat) && lies_Liste(Zeilen, e.TWA.Monat);
    if (!gelesen) return std::nullopt;
    lies_Text(Zeilen, e.Projektpfad);  // older files end before it
    lies_Bildzeile(Zeilen, e.Bild);
    return e;
}

std::string Einstellungen_als_Bytes(const Einstellungen& e) {
    std::string Bytes = "Tooltips:\t" + std::to_string(e.Tips_anzeigen) + "\r\n";
    Bytes += "Appearance:\t" + std::to_string(e.Farbeinstellung) + "\r\n";
    Bytes += als_Zeile(e.TWA_Titel_EU);
    for (const double Tage : e.TWA.EU) Bytes += als_Dauer(Tage);
    Bytes += als_Zeile(e.TWA_Titel_Monat);
    for (const double Tage : e.TWA.Monat) Bytes += als_Dauer(Tage);
    Bytes += als_Zeile(e.Projektpfad);
    return e.Bild == Bildeinstellung() ? Bytes : Bytes + als_Bildzeile(e.Bild);
}

}  // namespace varnok
