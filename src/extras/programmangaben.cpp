#include "extras/programmangaben.h"

#include "base/laufzeitfehler.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

std::string lies_falls_moeglich(const std::string& Pfad) {
    try {
        return lies_Datei_falls_moeglich(Pfad).value_or("");
    } catch (const Laufzeitfehler&) {
        return {};  // far too large for a few lines of text
    }
}

}  // namespace

std::string lies_Programmangaben(const std::string& installierte_Daten) {
    const std::string Bytes = lies_falls_moeglich(installierte_Daten + "/about.txt");
    std::string Text;
    Zeilenfolge Zeilen(Bytes);
    while (const auto Zeile = Zeilen.naechste()) Text += aus_Windows_1252(*Zeile) + "\r\n";
    return Text.empty() ? "Details of developer and sponsor are not part of this installation.\r\n" : Text;
}

}  // namespace varnok
