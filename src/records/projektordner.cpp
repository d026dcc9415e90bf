#include "records/projektordner.h"

#include <QString>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/laufzeitfehler.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

fs::path als_Pfad(const std::string& Utf8) { return {std::u8string(Utf8.begin(), Utf8.end())}; }

std::string als_Text(const fs::path& Pfad) {
    const std::u8string Text = Pfad.u8string();
    return {Text.begin(), Text.end()};
}

QString gefaltet(const std::string& Utf8) { return QString::fromStdString(Utf8).toCaseFolded(); }

std::string verbunden(const std::string& Ordner, const std::string& Name) {
    return Ordner.ends_with('/') ? Ordner + Name : Ordner + '/' + Name;
}

bool ist_Datei(const fs::path& Pfad) {
    std::error_code Fehler;
    return fs::is_regular_file(Pfad, Fehler);
}

bool ist_Ordner(const fs::path& Pfad) {
    std::error_code Fehler;
    return fs::is_directory(Pfad, Fehler);
}

// The names in a folder in a fixed order; those that are no text at all are left out.
std::vector<std::string> Eintraege(const std::string& Ordner) {
    std::vector<std::string> Namen;
    std::error_code Fehler;
    for (fs::directory_iterator i(als_Pfad(Ordner), Fehler), Ende; !Fehler && i != Ende; i.increment(Fehler)) {
        std::string Name = als_Text(i->path().filename());
        if (QString::fromStdString(Name).toStdString() == Name) Namen.push_back(std::move(Name));
    }
    std::sort(Namen.begin(), Namen.end());
    return Namen;
}

// Among the names that fit, the exact one wins; without it the first.
std::optional<std::string> passender(const std::vector<std::string>& Namen, const std::string& Name) {
    if (std::binary_search(Namen.begin(), Namen.end(), Name)) return Name;
    const QString gesucht = gefaltet(Name);
    const auto Treffer = std::find_if(Namen.begin(), Namen.end(), [&](const auto& n) { return gefaltet(n) == gesucht; });
    if (Treffer == Namen.end()) return std::nullopt;
    return *Treffer;
}

template <class Bedingung>
std::vector<std::string> nur(std::vector<std::string> Namen, const std::string& Ordner, Bedingung b) {
    std::erase_if(Namen, [&](const auto& n) { return !b(als_Pfad(verbunden(Ordner, n))); });
    return Namen;
}

bool ist_Steuerzeichen(char z) { return static_cast<unsigned char>(z) < 0x20 || z == 0x7F; }

std::string Einwand_gegen_Zeichen(const std::string& Name) {
    if (Name.empty()) return "it is empty";
    if (Name == "." || Name == "..") return "\"" + Name + "\" is the name of a folder";
    if (Name.find_first_of("/\\") != std::string::npos) return "it holds a slash";
    if (std::any_of(Name.begin(), Name.end(), ist_Steuerzeichen)) return "it holds a control character";
    if (QString::fromStdString(Name).toStdString() != Name) return "it is no valid text";
    return {};
}

}  // namespace

std::string Einwand_gegen_Namen(const std::string& Name) {
    // File systems take 255 bytes; some are for the extension and for the file written beside the old one.
    constexpr std::size_t Hoechstlaenge = 240;
    if (Name.size() > Hoechstlaenge) return "it is too long";
    return Einwand_gegen_Zeichen(Name);
}

Projektordner::Projektordner(const std::string& Pfad) : Pfad_(Pfad) {
    if (!ist_Ordner(als_Pfad(Pfad))) throw Laufzeitfehler("There is no folder \"" + Pfad + "\"");
}

std::string Projektordner::Unterordner(const std::string& Name) const {
    if (const auto genau = verbunden(Pfad_, Name); ist_Ordner(als_Pfad(genau))) return genau;
    const auto Ordner = passender(nur(Eintraege(Pfad_), Pfad_, ist_Ordner), Name);
    return verbunden(Pfad_, Ordner.value_or(Name));
}

std::string Projektordner::Eingabeordner() const { return Unterordner("input"); }

std::optional<std::string> Projektordner::finde(const std::string& Name, const std::string& Endung) const {
    if (!Einwand_gegen_Zeichen(Name).empty()) return std::nullopt;
    const std::string Ordner = Eingabeordner();
    if (const auto genau = verbunden(Ordner, Name + Endung); ist_Datei(als_Pfad(genau))) return genau;
    const std::vector<std::string> Namen = Eintraege(Ordner);
    // A file is meant; a folder of that name is found only to say what stands in the way.
    auto Treffer = passender(nur(Namen, Ordner, ist_Datei), Name + Endung);
    if (!Treffer) Treffer = passender(nur(Namen, Ordner, ist_Ordner), Name + Endung);
    if (!Treffer) return std::nullopt;
    return verbunden(Ordner, *Treffer);
}

std::string Projektordner::Zielpfad(const std::string& Name, const std::string& Endung) const {
    const std::string Einwand = Einwand_gegen_Namen(Name);
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a file: " + Einwand);
    return finde(Name, Endung).value_or(verbunden(Eingabeordner(), Name + Endung));
}

std::vector<std::string> Projektordner::Namen(const std::string& Endung) const {
    const std::string Ordner = Eingabeordner();
    const QString gesucht = gefaltet(Endung);
    std::vector<std::pair<QString, std::string>> Gefunden;
    for (const auto& Eintrag : Eintraege(Ordner)) {
        if (Eintrag.size() <= Endung.size()) continue;
        std::string Name = Eintrag.substr(0, Eintrag.size() - Endung.size());
        if (gefaltet(Eintrag.substr(Name.size())) != gesucht || !Einwand_gegen_Zeichen(Name).empty()) continue;
        if (ist_Datei(als_Pfad(verbunden(Ordner, Eintrag)))) Gefunden.emplace_back(gefaltet(Name), std::move(Name));
    }
    std::sort(Gefunden.begin(), Gefunden.end());
    // Extensions that differ in case alone make one name of two files; the exact extension is opened.
    Gefunden.erase(std::unique(Gefunden.begin(), Gefunden.end()), Gefunden.end());
    std::vector<std::string> Namen;
    for (auto& Paar : Gefunden) Namen.push_back(std::move(Paar.second));
    return Namen;
}

}  // namespace varnok
