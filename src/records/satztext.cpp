#include "records/satztext.h"

#include <algorithm>

#include "base/zeichensatz.h"

namespace varnok {

std::string als_Satztext(std::string_view Utf8, std::string_view Feldname, Fehlerort Ort) {
    const std::string Anfang = "The record cannot be saved: " + std::string(Feldname) + " holds ";
    Ort.Bezeichnung = Feldname;
    Ort.Text = Utf8;
    const auto Bytes = nach_Windows_1252(Utf8);
    if (!Bytes) {
        throw Laufzeitfehler(
            Anfang + "the character \"" + Zeichen_ohne_Platz(Utf8) + "\", which has no place in its character set (Windows-1252)",
            Ort);
    }
    if (Bytes->find_first_of("\r\n") != std::string::npos) throw Laufzeitfehler(Anfang + "a line end", Ort);
    return *Bytes;
}

std::string Einwand_gegen_Text(std::string_view Utf8) {
    const auto ist_Steuerzeichen = [](char z) { return static_cast<unsigned char>(z) < 0x20 || z == 0x7F; };
    if (std::any_of(Utf8.begin(), Utf8.end(), ist_Steuerzeichen)) return "it holds a control character";
    const std::string Zeichen = Zeichen_ohne_Platz(Utf8);
    return Zeichen.empty() ? std::string() : "the records have no character \"" + Zeichen + "\"";
}

Satzfaehiges nur_Satzfaehiges(std::string_view Utf8) {
    Satzfaehiges s;
    for (std::size_t i = 0; i < Utf8.size();) {
        std::size_t Ende = i + 1;
        while (Ende < Utf8.size() && (static_cast<unsigned char>(Utf8[Ende]) & 0xC0U) == 0x80U) ++Ende;
        const std::string_view Zeichen = Utf8.substr(i, Ende - i);
        const bool Zeilenende = Zeichen == "\n" || Zeichen == "\r" || Zeichen == "\xE2\x80\xA8" || Zeichen == "\xE2\x80\xA9";
        const bool zweites = Zeichen == "\n" && i > 0 && Utf8[i - 1] == '\r';
        if (Zeilenende || Zeichen == "\t") {
            if (!zweites) s.Text += ' ';
        } else if (Einwand_gegen_Text(Zeichen).empty()) {
            s.Text += Zeichen;
        } else if (s.abgewiesen.empty()) {
            s.abgewiesen = Zeichen;
        }
        i = Ende;
    }
    return s;
}

std::string Meldung_ueber(const Satzfaehiges& s) {
    if (s.abgewiesen.empty()) return {};
    const bool Steuerzeichen = s.abgewiesen.size() == 1;
    return (Steuerzeichen ? "A control character" : '"' + s.abgewiesen + '"') + " was left out: the records " +
           (Steuerzeichen ? "cannot hold it." : "have no such character.");
}

}  // namespace varnok
