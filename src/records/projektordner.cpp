#include "records/projektordner.h"

#include <QString>
#include <algorithm>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <unordered_map>
#include <utility>

#ifndef _WIN32
#include <dirent.h>
#endif

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/text.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

bool ist_ASCII(std::string_view Text) {
    return std::all_of(Text.begin(), Text.end(), [](char z) { return static_cast<unsigned char>(z) < 0x80; });
}

// A text without its case, in the units that the toolkit sorts by.
std::u16string gefaltet(std::string_view Utf8) {
    if (!ist_ASCII(Utf8))
        return QString::fromUtf8(Utf8.data(), static_cast<qsizetype>(Utf8.size())).toCaseFolded().toStdU16String();
    std::u16string Text(Utf8.size(), u'\0');
    std::transform(Utf8.begin(), Utf8.end(), Text.begin(),
                   [](char z) { return static_cast<char16_t>(z >= 'A' && z <= 'Z' ? z - 'A' + 'a' : z); });
    return Text;
}

bool ist_gueltiger_Text(const std::string& Utf8) { return ist_ASCII(Utf8) || QString::fromStdString(Utf8).toStdString() == Utf8; }

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

struct Eintrag {
    std::string Name;
    enum { Datei, Ordner, anderes } Art;
};

using Eintragsart = decltype(Eintrag::Art);

// Of a link it is that of its target.
Eintragsart Art_von(const std::string& Pfad) {
    return ist_Datei(als_Pfad(Pfad)) ? Eintrag::Datei : ist_Ordner(als_Pfad(Pfad)) ? Eintrag::Ordner : Eintrag::anderes;
}

#ifndef _WIN32
// Names and kinds come together from the system, without a path for each.
std::vector<Eintrag> lies_ungeordnet(const std::string& Ordner) {
    const std::unique_ptr<DIR, int (*)(DIR*)> Offener(opendir(Ordner.c_str()), closedir);
    std::vector<Eintrag> Eintraege;
    while (const dirent* e = Offener ? readdir(Offener.get()) : nullptr) {
        std::string Name = e->d_name;
        if (Name == "." || Name == "..") continue;
        const auto Art = e->d_type == DT_REG   ? Eintrag::Datei
                         : e->d_type == DT_DIR ? Eintrag::Ordner
                                               : Art_von(verbunden(Ordner, Name));
        Eintraege.push_back({std::move(Name), Art});
    }
    return Eintraege;
}
#else
std::vector<Eintrag> lies_ungeordnet(const std::string& Ordner) {
    std::vector<Eintrag> Eintraege;
    std::error_code Fehler;
    for (fs::directory_iterator i(als_Pfad(Ordner), Fehler), Ende; !Fehler && i != Ende; i.increment(Fehler)) {
        std::string Name = Pfadtext(i->path().filename());
        const auto Art = Art_von(verbunden(Ordner, Name));
        Eintraege.push_back({std::move(Name), Art});
    }
    return Eintraege;
}
#endif

// What lies in a folder, by name; names that are no text at all are left out.
std::vector<Eintrag> lies_Eintraege(const std::string& Ordner) {
    std::vector<Eintrag> Eintraege = lies_ungeordnet(Ordner);
    std::erase_if(Eintraege, [](const Eintrag& e) { return !ist_gueltiger_Text(e.Name); });
    std::sort(Eintraege.begin(), Eintraege.end(), [](const auto& a, const auto& b) { return a.Name < b.Name; });
    return Eintraege;
}

bool ist_Steuerzeichen(char z) { return static_cast<unsigned char>(z) < 0x20 || z == 0x7F; }

std::string Einwand_gegen_Zeichen(const std::string& Name) {
    if (Name.empty()) return "it is empty";
    if (Name == "." || Name == "..") return "\"" + Name + "\" is the name of a folder";
    if (Name.find_first_of("/\\") != std::string::npos) return "it holds a slash";
    if (std::any_of(Name.begin(), Name.end(), ist_Steuerzeichen)) return "it holds a control character";
    if (!ist_gueltiger_Text(Name)) return "it is no valid text";
    return {};
}

}  // namespace

std::string Einwand_gegen_Namen(const std::string& Name) {
    // File systems take 255 bytes; some are for the extension and for the file written beside the old one.
    constexpr std::size_t Hoechstlaenge = 240;
    if (Name.size() > Hoechstlaenge) return "it is too long";
    return Einwand_gegen_Zeichen(Name);
}

// The content of a folder at one moment. Read by several threads at once.
class Projektordner::Verzeichnis {
public:
    explicit Verzeichnis(const std::string& Ordner) : Ordner_(Ordner), Eintraege_(lies_Eintraege(Ordner)) {}

    const std::string& Ordner() const { return Ordner_; }
    const std::vector<Eintrag>& Eintraege() const { return Eintraege_; }

    const Eintrag* genau(const std::string& Name) const {
        const auto Stelle = std::lower_bound(Eintraege_.begin(), Eintraege_.end(), Name,
                                             [](const Eintrag& e, const std::string& n) { return e.Name < n; });
        return Stelle != Eintraege_.end() && Stelle->Name == Name ? &*Stelle : nullptr;
    }

    // Of the kind asked for the name that fits without regard to case: the exact one, else the first.
    const Eintrag* passend(const std::string& Name, Eintragsart Art) const {
        if (const Eintrag* e = genau(Name); e && e->Art == Art) return e;
        return ersten_passenden(Name, [&](const Eintrag& e) { return e.Art == Art; });
    }

    // Whether there is a file of exactly that name, however its extension is written.
    bool enthaelt(const std::string& Name, const std::string& Endung) const {
        if (const Eintrag* e = genau(Name + Endung); e && e->Art == Eintrag::Datei) return true;
        return ersten_passenden(Name + Endung,
                                [&](const Eintrag& e) { return e.Art == Eintrag::Datei && e.Name.starts_with(Name); }) != nullptr;
    }

private:
    template <class Bedingung>
    const Eintrag* ersten_passenden(const std::string& Name, Bedingung b) const {
        std::call_once(gefaltet_, [this] {
            for (const Eintrag& e : Eintraege_) ohne_Gross_Klein_[gefaltet(e.Name)].push_back(&e);
        });
        const auto Gruppe = ohne_Gross_Klein_.find(gefaltet(Name));
        if (Gruppe == ohne_Gross_Klein_.end()) return nullptr;
        const auto Treffer = std::find_if(Gruppe->second.begin(), Gruppe->second.end(), [&](const Eintrag* e) { return b(*e); });
        return Treffer == Gruppe->second.end() ? nullptr : *Treffer;
    }

    std::string Ordner_;
    std::vector<Eintrag> Eintraege_;
    mutable std::once_flag gefaltet_;  // most folders are written with one case throughout
    mutable std::unordered_map<std::u16string, std::vector<const Eintrag*>> ohne_Gross_Klein_;
};

Projektordner::Projektordner(const std::string& Pfad) : Pfad_(Pfad) {
    if (!ist_Ordner(als_Pfad(Pfad))) throw Laufzeitfehler("There is no folder \"" + Pfad + "\"");
}

Projektordner Projektordner::mit_Verzeichnis() const {
    Projektordner gelesener = *this;
    gelesener.gelesenes_ = std::make_shared<const Verzeichnis>(Unterordner("input"));
    return gelesener;
}

std::shared_ptr<const Projektordner::Verzeichnis> Projektordner::Eingabeverzeichnis() const {
    return gelesenes_ ? gelesenes_ : std::make_shared<const Verzeichnis>(Eingabeordner());
}

std::string Projektordner::Unterordner(const std::string& Name) const {
    if (const auto genau = verbunden(Pfad_, Name); ist_Ordner(als_Pfad(genau))) return genau;
    const Verzeichnis Projekt(Pfad_);
    const Eintrag* Ordner = Projekt.passend(Name, Eintrag::Ordner);
    return verbunden(Pfad_, Ordner ? Ordner->Name : Name);
}

std::string Projektordner::Eingabeordner() const { return gelesenes_ ? gelesenes_->Ordner() : Unterordner("input"); }

std::string Projektordner::Eingabedatei(const std::string& Dateiname) const {
    const std::string Ordner = Eingabeordner();
    return letzter_Teil(Ordner) + "/" + Dateiname;
}

std::optional<std::string> Projektordner::finde(const std::string& Name, const std::string& Endung) const {
    if (!Einwand_gegen_Zeichen(Name).empty()) return std::nullopt;
    if (!gelesenes_) {
        if (const auto genau = verbunden(Eingabeordner(), Name + Endung); ist_Datei(als_Pfad(genau))) return genau;
    }
    const auto Inhalt = Eingabeverzeichnis();
    // A file is meant; a folder of that name is found only to say what stands in the way.
    const Eintrag* Treffer = Inhalt->passend(Name + Endung, Eintrag::Datei);
    if (!Treffer) Treffer = Inhalt->passend(Name + Endung, Eintrag::Ordner);
    if (!Treffer) return std::nullopt;
    return verbunden(Inhalt->Ordner(), Treffer->Name);
}

bool Projektordner::enthaelt(const std::string& Name, const std::string& Endung) const {
    return Einwand_gegen_Zeichen(Name).empty() && Eingabeverzeichnis()->enthaelt(Name, Endung);
}

std::string Projektordner::Zielpfad(const std::string& Name, const std::string& Endung) const {
    const std::string Einwand = Einwand_gegen_Namen(Name);
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a file: " + Einwand);
    return finde(Name, Endung).value_or(verbunden(Eingabeordner(), Name + Endung));
}

std::vector<std::string> Projektordner::Namen(const std::string& Endung) const {
    const auto Inhalt = Eingabeverzeichnis();
    std::vector<std::pair<std::u16string, std::string>> Gefunden;
    for (const Eintrag& e : Inhalt->Eintraege()) {
        if (e.Art != Eintrag::Datei || e.Name.size() <= Endung.size()) continue;
        const std::size_t Laenge = e.Name.size() - Endung.size();
        if (!gleich_ohne_Gross_Klein(std::string_view(e.Name).substr(Laenge), Endung)) continue;
        std::string Name = e.Name.substr(0, Laenge);
        if (Einwand_gegen_Zeichen(Name).empty()) Gefunden.emplace_back(gefaltet(Name), std::move(Name));
    }
    std::sort(Gefunden.begin(), Gefunden.end());
    // Extensions that differ in case alone make one name of two files; the exact extension is opened.
    Gefunden.erase(std::unique(Gefunden.begin(), Gefunden.end()), Gefunden.end());
    std::vector<std::string> Namen;
    for (auto& Paar : Gefunden) Namen.push_back(std::move(Paar.second));
    return Namen;
}

}  // namespace varnok
