#include "records/schreibort.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/text.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace varnok {
namespace {

namespace fs = std::filesystem;

fs::file_type eigene_Art(const fs::path& Pfad) {
    std::error_code Fehler;
    return fs::symlink_status(Pfad, Fehler).type();
}

fs::file_type Art_hinter_Links(const fs::path& Pfad) {
    std::error_code Fehler;
    return fs::status(Pfad, Fehler).type();
}

// With links and dots resolved as far as it exists; empty where that is not possible, as for a link to itself.
fs::path aufgeloest(const fs::path& Pfad) {
    std::error_code Fehler;
    fs::path ganz = fs::weakly_canonical(fs::absolute(Pfad, Fehler), Fehler);
    if (Fehler) return {};
    return ganz.has_filename() ? ganz : ganz.parent_path();
}

bool ist_darin(const fs::path& Pfad, const fs::path& Ordner) {
    if (Pfad.empty() || Ordner.empty()) return false;
    return std::mismatch(Ordner.begin(), Ordner.end(), Pfad.begin(), Pfad.end()).first == Ordner.end();
}

[[noreturn]] void lehne_ab(const std::string& Pfad, const std::string& Grund) {
    throw Laufzeitfehler("Cannot write the file \"" + Pfad + "\": " + Grund, {letzter_Teil(Pfad)});
}

std::string Linkbeschreibung(const fs::path& Pfad) {
    std::error_code Fehler;
    return "it is a link to \"" + Pfadtext(fs::read_symlink(Pfad, Fehler)) + "\"";
}

// A file of its own folder is meant, not what its own folder is a link to.
fs::path Ordner_von(const fs::path& Pfad) {
    std::error_code Fehler;
    return fs::absolute(Pfad, Fehler).parent_path();
}

// The names that the system keeps for open files lead to them; what stands there is no place of its own.
bool gehoert_dem_System(const fs::path& Pfad) {
    const fs::path Ordner = aufgeloest(Ordner_von(Pfad));
    return ist_darin(Ordner, "/dev") || ist_darin(Ordner, "/proc");
}

std::string Ziel_des_Satzes(const std::string& Utf8, const fs::path& Pfad) {
    if (eigene_Art(Pfad) != fs::file_type::symlink) return Utf8;
    const fs::file_type Art = Art_hinter_Links(Pfad);
    if (Art == fs::file_type::not_found) return Utf8;
    const fs::path Ziel = aufgeloest(Pfad);
    const bool von_der_Art =
        Art == fs::file_type::regular && gleich_ohne_Gross_Klein(Pfadtext(Ziel.extension()), Pfadtext(Pfad.extension()));
    if (!von_der_Art) lehne_ab(Utf8, Linkbeschreibung(Pfad) + ", which is no " + Pfadtext(Pfad.extension()) + " file");
    return Pfadtext(Ziel);
}

void pruefe_Datei(const std::string& Utf8, const fs::path& Pfad, const Schreibort& Ort) {
    const std::string Ordner = Pfadtext(Ordner_von(Pfad));
    if (!Ort.Grenze.empty() && liegt_ausserhalb(Ordner, Ort.Grenze)) {
        lehne_ab(Utf8, "the folder \"" + Ordner + "\" is a link to outside of \"" + Ort.Grenze + "\"");
    }
    const fs::file_type Art = eigene_Art(Pfad);
    const bool Datei_oder_nichts = Art == fs::file_type::regular || Art == fs::file_type::not_found;
    if (Art != fs::file_type::symlink && !Datei_oder_nichts) lehne_ab(Utf8, "it is no plain file");
    if (Art == fs::file_type::symlink && Ort.Weise == Schreibweise::ungefragt && liegt_ausserhalb(Utf8, Ort.Grenze)) {
        lehne_ab(Utf8, Linkbeschreibung(Pfad) + ", which lies outside of \"" + Ort.Grenze + "\"");
    }
}

}  // namespace

std::string Schreibziel(const std::string& Pfad, const Schreibort& Ort) {
    const fs::path Stelle = als_Pfad(Pfad);
    const fs::file_type Art = eigene_Art(Stelle);
    if (Art == fs::file_type::directory || !Stelle.has_filename()) lehne_ab(Pfad, "it is a folder");
    if (Art == fs::file_type::symlink && Art_hinter_Links(Stelle) == fs::file_type::directory) {
        lehne_ab(Pfad, "it is a link to a folder");
    }
    if (Ort.Weise == Schreibweise::Satz) {
        if (ist_Geraet(Pfad)) lehne_ab(Pfad, "it is no plain file");
        return Ziel_des_Satzes(Pfad, Stelle);
    }
    if (Ort.Weise != Schreibweise::Ausgabe) pruefe_Datei(Pfad, Stelle, Ort);
    return Pfad;
}

bool liegt_ausserhalb(const std::string& Pfad, const std::string& Ordner) {
    const fs::path Stelle = als_Pfad(Pfad);
    fs::path wirklich = aufgeloest(Stelle);
    // A link to nothing is where it leads to: that is where a file would be made.
    std::error_code Fehler;
    if (eigene_Art(Stelle) == fs::file_type::symlink && Art_hinter_Links(Stelle) == fs::file_type::not_found)
        wirklich = aufgeloest(aufgeloest(Ordner_von(Stelle)) / fs::read_symlink(Stelle, Fehler));
    return !ist_darin(wirklich, aufgeloest(als_Pfad(Ordner)));
}

bool ist_Geraet(const std::string& Pfad) {
    const fs::path Stelle = als_Pfad(Pfad);
    const fs::file_type Art = Art_hinter_Links(Stelle);
    switch (Art) {
        case fs::file_type::regular:
            return eigene_Art(Stelle) == fs::file_type::symlink && gehoert_dem_System(Stelle);
        case fs::file_type::directory:
        case fs::file_type::not_found:
        case fs::file_type::none:
        case fs::file_type::unknown:
            return false;
        default:
            return true;
    }
}

#ifndef _WIN32
bool ist_beschreibbar(const std::string& Ordner) {
    return faccessat(AT_FDCWD, Ordner.c_str(), W_OK | X_OK, AT_EACCESS) == 0 || errno == ENOENT;
}
#else
bool ist_beschreibbar(const std::string&) { return true; }
#endif

void lege_Ordner_an(const std::string& Pfad, const std::string& Grenze) {
    if (!Grenze.empty() && liegt_ausserhalb(Pfad, Grenze)) {
        throw Laufzeitfehler("Cannot write to the folder \"" + Pfad + "\": it is a link to outside of \"" + Grenze + "\"",
                             {letzter_Teil(Pfad)});
    }
    std::error_code Fehler;
    fs::create_directories(als_Pfad(Pfad), Fehler);
    std::error_code unwichtig;
    if (fs::is_directory(als_Pfad(Pfad), unwichtig)) return;
    const std::string Grund = Fehler ? Fehler.message() : "there is something else of that name";
    throw Laufzeitfehler("Cannot make the folder \"" + Pfad + "\": " + Grund, {letzter_Teil(Pfad)});
}

void entferne_Ordner(const std::string& Pfad, const std::string& Grenze) {
    const fs::path Stelle = als_Pfad(Pfad);
    if (eigene_Art(Stelle) != fs::file_type::directory || liegt_ausserhalb(Pfad, Grenze)) return;
    std::error_code still;
    fs::remove_all(Stelle, still);
}

}  // namespace varnok
