#include "records/satztext.h"

#include <algorithm>

#include "base/laufzeitfehler.h"
#include "base/zeichensatz.h"

namespace varnok {

std::string als_Satztext(std::string_view Utf8, std::string_view Feldname) {
    const std::string Anfang = "The record cannot be saved: " + std::string(Feldname) + " holds ";
    const auto Bytes = nach_Windows_1252(Utf8);
    if (!Bytes) {
        throw Laufzeitfehler(Anfang + "the character \"" + Zeichen_ohne_Platz(Utf8) +
                             "\", which has no place in its character set (Windows-1252)");
    }
    if (Bytes->find_first_of("\r\n") != std::string::npos) throw Laufzeitfehler(Anfang + "a line end");
    return *Bytes;
}

std::string Einwand_gegen_Text(std::string_view Utf8) {
    const auto ist_Steuerzeichen = [](char z) { return static_cast<unsigned char>(z) < 0x20 || z == 0x7F; };
    if (std::any_of(Utf8.begin(), Utf8.end(), ist_Steuerzeichen)) return "it holds a control character";
    const std::string Zeichen = Zeichen_ohne_Platz(Utf8);
    return Zeichen.empty() ? std::string() : "the records have no character \"" + Zeichen + "\"";
}

}  // namespace varnok
