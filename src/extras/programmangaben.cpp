#include "extras/programmangaben.h"

#include <sodium.h>

#include <QFileInfo>
#include <QString>

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

std::string Lizenzangaben(const std::string& installierte_Daten) {
    const std::string Datei = installierte_Daten + "/LICENSE";
    const bool da = QFileInfo(QString::fromStdString(Datei)).isFile();
    std::string Text = "\r\nLicence\r\n    MIT" + (da ? "; the text is in " + Datei : "") + "\r\n\r\nLibraries\r\n";
    Text += std::string("    Qt ") + qVersion() + " (LGPL-3)\r\n";
    Text += std::string("    libsodium ") + sodium_version_string() + " (ISC)\r\n";
    Text += "\r\nLibraries of varnok-batch beside these\r\n";
    for (const char* Zeile : {VARNOK_BATCHBIBLIOTHEKEN}) Text += std::string("    ") + Zeile + "\r\n";
    return Text;
}

}  // namespace varnok
