#include "records/zwischenstand.h"

#include <QFileInfo>

#include "base/zahlen.h"
#include "records/dateien.h"
#include "records/schreibort.h"

namespace varnok {
namespace {

constexpr int groesstes_Stueck = int{Hoechstgroesse_Datei};
constexpr std::string_view Kopf = "VARNOK unsaved values\r\n";

std::string Ort(const Projektordner& Ordner) { return Ordner.Unterordner("backup") + "/unsaved"; }

// A link is nothing that this program left there, and neither is a file in a folder outside of the project.
bool liegt_da(const Projektordner& Ordner) {
    const QFileInfo Datei(QString::fromStdString(Ort(Ordner)));
    return Datei.isFile() && !Datei.isSymLink() && !liegt_ausserhalb(Ort(Ordner), Ordner.Pfad());
}

// Name and size in a line, then the bytes: whatever they hold.
void haenge_an(std::string& Text, const std::string& Name, const std::string& Bytes) {
    Text += Name + "\t" + std::to_string(Bytes.size()) + "\r\n" + Bytes + "\r\n";
}

// Takes a piece off the front of the rest.
std::optional<Sicherungsstueck> nimm_Stueck(std::string_view& Rest) {
    const std::size_t Zeile = Rest.find("\r\n");
    const std::size_t Tabulator = Rest.substr(0, Zeile).rfind('\t');
    if (Zeile == std::string_view::npos || Tabulator == std::string_view::npos) return std::nullopt;
    const auto Groesse = ganze_Zahl(Wert(Rest.substr(Tabulator + 1, Zeile - Tabulator - 1)), 0, groesstes_Stueck);
    const std::size_t Anfang = Zeile + 2;
    if (!Groesse || Rest.size() - Anfang < static_cast<std::size_t>(*Groesse) + 2) return std::nullopt;
    const auto n = static_cast<std::size_t>(*Groesse);
    Sicherungsstueck s{std::string(Rest.substr(0, Tabulator)), std::string(Rest.substr(Anfang, n))};
    Rest.remove_prefix(Anfang + n + 2);
    return s;
}

}  // namespace

std::string als_Bytes(const Zwischenstand& z) {
    std::string Text(Kopf);
    haenge_an(Text, z.Simulation, z.Zusammenfassung);
    for (const Sicherungsstueck& s : z.Stuecke) haenge_an(Text, s.Dateiname, s.Bytes);
    return Text;
}

std::optional<Zwischenstand> zerlege_Zwischenstand(const std::string& Bytes) {
    std::string_view Rest = Bytes;
    if (!Rest.starts_with(Kopf)) return std::nullopt;
    Rest.remove_prefix(Kopf.size());
    const auto erstes = nimm_Stueck(Rest);
    if (!erstes) return std::nullopt;
    Zwischenstand z{erstes->Dateiname, erstes->Bytes, {}};
    while (!Rest.empty()) {
        auto s = nimm_Stueck(Rest);
        if (!s) return std::nullopt;
        z.Stuecke.push_back(std::move(*s));
    }
    return z;
}

std::optional<std::string> lies_Zwischenstand(const Projektordner& Ordner) {
    return liegt_da(Ordner) ? std::optional(lies_Datei(Ort(Ordner))) : std::nullopt;
}

void schreibe_Zwischenstand(const Projektordner& Ordner, const Zwischenstand& z) {
    lege_Ordner_an(Ordner.Unterordner("backup"), Ordner.Pfad());
    schreibe_Datei(Ort(Ordner), als_Bytes(z), {Schreibweise::ungefragt, Ordner.Pfad()});
}

void loesche_Zwischenstand(const Projektordner& Ordner) {
    if (liegt_da(Ordner)) loesche_Datei(Ort(Ordner));
}

}  // namespace varnok
