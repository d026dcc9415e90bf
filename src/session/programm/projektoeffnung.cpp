#include "session/programm/projektoeffnung.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <algorithm>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "painting/qt_text.h"
#include "records/dateien.h"
#include "session/kern/texte.h"
#include "session/programm/projektwahl.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// The file has a line for each entry: its kind, a tab, its path. The last one opened stands first.
constexpr std::string_view Projektzeile = "project\t";
constexpr std::string_view Simulationszeile = "simulation\t";
constexpr std::size_t Hoechstzahl = 10;  // of a kind

bool gibt_es(const std::string& Pfad) { return QFileInfo::exists(in_Qt(Pfad)); }

std::string wirklicher_Pfad(const std::string& Pfad) {
    const QFileInfo Ort(in_Qt(Pfad));
    const QString Name = Ort.canonicalFilePath();
    return (Name.isEmpty() ? QDir::cleanPath(Ort.absoluteFilePath()) : Name).toStdString();
}

std::vector<std::string> lies_Zeilen(const std::string& Datei) {
    std::vector<std::string> Zeilen;
    if (Datei.empty()) return Zeilen;
    try {
        const std::string Bytes = lies_Datei_falls_moeglich(Datei).value_or("");
        for (const std::string_view Zeile : zerlege_an(Bytes, '\n')) {
            if (Zeile.starts_with(Projektzeile) || Zeile.starts_with(Simulationszeile)) Zeilen.emplace_back(Zeile);
        }
    } catch (const Laufzeitfehler&) {
        Zeilen.clear();  // no file that this program wrote
    }
    return Zeilen;
}

std::vector<std::string> Pfade(const std::string& Datei, std::string_view Art) {
    std::vector<std::string> Liste;
    for (const std::string& Zeile : lies_Zeilen(Datei)) {
        if (Zeile.starts_with(Art)) Liste.push_back(Zeile.substr(Art.size()));
    }
    return Liste;
}

void stelle_voran(std::vector<std::string>& Zeilen, std::string_view Art, const std::string& Pfad) {
    if (Pfad.empty() || Pfad.find('\n') != std::string::npos) return;
    const std::string Zeile = std::string(Art) + Pfad;
    std::erase(Zeilen, Zeile);
    Zeilen.insert(Zeilen.begin(), Zeile);
    std::size_t n = 0;
    std::erase_if(Zeilen, [&](const std::string& z) { return z.starts_with(Art) && ++n > Hoechstzahl; });
}

std::string Ordner_der_Simulation(const std::string& Pfad) {
    return QDir::cleanPath(QFileInfo(in_Qt(Pfad)).path() + u"/.."_s).toStdString();
}

}  // namespace

bool Projektoeffnung::ist_hier(const std::string& Ordner) const {
    return z_.Ordner && wirklicher_Pfad(Ordner) == wirklicher_Pfad(z_.Ordner->Pfad());
}

void Projektoeffnung::oeffne(const std::string& Pfad) {
    if (Pfad.empty()) return;
    const Projektwahl Wahl = waehle_Projekt(Pfad, {});
    if (!Wahl.Einwand.empty()) return melde(z_, Texte::Laufzeitfehler, Wahl.Einwand);
    if (ist_hier(Wahl.Ordner)) return oeffne_hier(Wahl.Simulation);
    if (!z_.Welt.weiteres_Fenster || !z_.Welt.weiteres_Fenster(Pfad))
        throw Laufzeitfehler("\"" + Pfad + "\" cannot be opened: no further window of the program could be started");
    z_.Statuszeile.sage("\"" + Pfad + "\" opens in a window of its own.");
}

void Projektoeffnung::oeffne_hier(const std::string& Name) {
    if (Name.empty()) {
        z_.Statuszeile.sage("This window shows that project already.");
        return;
    }
    const auto Platz = [&] { return std::find(z_.Listen[Simulation].begin(), z_.Listen[Simulation].end(), Name); };
    if (Platz() == z_.Listen[Simulation].end()) Saetze_.fuelle_Listen();  // it came after the window
    if (Platz() == z_.Listen[Simulation].end()) throw Laufzeitfehler("The simulation \"" + Name + "\" is not there");
    Saetze_.waehle_Simulation(static_cast<int>(Platz() - z_.Listen[Simulation].begin()));
}

void Projektoeffnung::merke() {
    const std::string& Datei = z_.Welt.zuletzt_Datei;
    if (Datei.empty() || !z_.Ordner) return;
    const bool geladen = z_.Saetze[Simulation].gelesen() && z_.Auswahl(Simulation) >= 0;
    const auto gefunden = geladen ? z_.Ordner->finde(z_.gewaehlt(Simulation), Endungen[Simulation]) : std::nullopt;
    const std::string offen = z_.Ordner->Pfad() + '\n' + gefunden.value_or("");
    if (offen == gemerkt_) return;
    gemerkt_ = offen;
    try {
        // Another window may have written meanwhile.
        std::vector<std::string> Zeilen = lies_Zeilen(Datei);
        stelle_voran(Zeilen, Simulationszeile, gefunden.value_or(""));
        stelle_voran(Zeilen, Projektzeile, z_.Ordner->Pfad());
        std::string Text;
        for (const std::string& Zeile : Zeilen) Text += Zeile + '\n';
        lege_Ordner_an(aus_Qt(QFileInfo(in_Qt(Datei)).path()));
        schreibe_Datei(Datei, Text, als_Datei);
    } catch (const Laufzeitfehler&) {
        return;
    }
}

std::vector<Zuletztes> Projektoeffnung::Projekte() const {
    std::vector<Zuletztes> Liste;
    for (const std::string& Pfad : Pfade(z_.Welt.zuletzt_Datei, Projektzeile)) {
        if (!ist_hier(Pfad)) Liste.push_back({Pfad, Pfad, gibt_es(Pfad)});
    }
    return Liste;
}

std::vector<Zuletztes> Projektoeffnung::Simulationen() const {
    std::vector<Zuletztes> Liste;
    for (const std::string& Pfad : Pfade(z_.Welt.zuletzt_Datei, Simulationszeile)) {
        const std::string Name = QFileInfo(in_Qt(Pfad)).completeBaseName().toStdString();
        const std::string Ordner = Ordner_der_Simulation(Pfad);
        const bool hier = ist_hier(Ordner);
        if (hier && Name == z_.gewaehlt(Simulation)) continue;
        Liste.push_back({Pfad, hier ? Name : Name + "  (" + Ordner + ")", gibt_es(Pfad)});
    }
    return Liste;
}

}  // namespace varnok
