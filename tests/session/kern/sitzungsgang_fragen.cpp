#include "session/kern/sitzungsgang_fragen.h"

#include <algorithm>
#include <array>

#include "diagrams/diagrammbereiche.h"
#include "extras/aktualisierung.h"
#include "session/kern/texte.h"

namespace varnok::gang {
namespace {

using Knoepfe = std::vector<Knopf>;
const Knoepfe nur_OK = {Knopf::OK};
const Knoepfe mit_Abbruch = {Knopf::OK, Knopf::Abbrechen};
const Knoepfe Ja_Nein = {Knopf::Ja, Knopf::Nein};

// A title asks different things: the text or the buttons tell them apart. The first that fits is the one.
struct Fragenklasse {
    const char* Titel;
    const char* Stelle;  // of the text
    const Knoepfe* Angebot;
};
const std::array Klassen = {
    Fragenklasse{Texte::Aenderungen_sichern, "Yes writes these values to", &Ja_Nein},
    Fragenklasse{Texte::Aenderungen_sichern, "You modified", &Ja_Nein},
    Fragenklasse{Texte::Aenderungen_sichern, Texte::zweites_Fenster_sichert, &Ja_Nein},
    Fragenklasse{Texte::Aenderungen_sichern, Texte::trotzdem_sichern, &Ja_Nein},
    Fragenklasse{Texte::Ordner_in_Gebrauch, Texte::zweites_Fenster, &nur_OK},
    Fragenklasse{Texte::Ordner_in_Gebrauch, Texte::Sperre_uebernehmen, &Ja_Nein},
    Fragenklasse{Texte::Satz_ersetzen, "was changed by another program", &Ja_Nein},
    Fragenklasse{Texte::Satz_ersetzen, "already exists", &Ja_Nein},
    Fragenklasse{Texte::Laufzeitfehler, Texte::nicht_zu_behalten, &Ja_Nein},
    Fragenklasse{Texte::Laufzeitfehler, "", &nur_OK},
    Fragenklasse{"Delete record", "", &Ja_Nein},
    Fragenklasse{"Delete study", "", &Ja_Nein},
    Fragenklasse{Texte::Ungesichertes, "Do you want them back?", &Ja_Nein},
    Fragenklasse{Texte::Ungesichertes, "Not all of the values", &nur_OK},
    Fragenklasse{Texte::Datei_fehlt, "Input files are missing", &Ja_Nein},
    Fragenklasse{Texte::Datei_fehlt, " is missing. Should the default settings", &Ja_Nein},
    Fragenklasse{Texte::Datei_fehlt, "climate data file", &nur_OK},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Wirkstoff], &nur_OK},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Applikation], &nur_OK},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Szenario], &nur_OK},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Wirkstoff], &mit_Abbruch},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Applikation], &mit_Abbruch},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Szenario], &mit_Abbruch},
    Fragenklasse{Texte::Satz_nicht_gewaehlt, Texte::Simulation_waehlen, &mit_Abbruch},
    Fragenklasse{Skalierungsfehler_Titel, Skalierungsfehler, &mit_Abbruch},
    Fragenklasse{Texte::keine_gueltige_Eingabe, "cannot be the name of a soil", &nur_OK},
    Fragenklasse{Texte::keine_gueltige_Eingabe, "cannot be the name of a study", &nur_OK},
    Fragenklasse{Texte::keine_gueltige_Eingabe, "application dates", &nur_OK},
    Fragenklasse{Texte::keine_gueltige_Eingabe, "", &nur_OK},
    Fragenklasse{Texte::kein_Endplateau, "", &nur_OK},
    Fragenklasse{"Problem!", "plateau depth", &nur_OK},
    Fragenklasse{"Default settings", "", &nur_OK},
    Fragenklasse{Texte::Projektpfad, "There is no folder", &nur_OK},
    Fragenklasse{Texte::Ordner_anlegen, "cannot be the name of a folder", &nur_OK},
    Fragenklasse{Texte::Ordner_anlegen, "already exists", &nur_OK},
    Fragenklasse{"Tooltips", "", &nur_OK},
    Fragenklasse{Texte::keine_Verbindung, "", &nur_OK},
    Fragenklasse{Updatetexte::Titel, "unofficial version", &mit_Abbruch},
    Fragenklasse{Updatetexte::Titel, "latest version", &nur_OK},
    Fragenklasse{Updatetexte::Titel, "has been downloaded", &nur_OK},
    Fragenklasse{Updatetexte::Titel_neue_Version, Updatetexte::wollen_Sie, &Ja_Nein},
    Fragenklasse{Updatetexte::Titel_neue_Version, "", &nur_OK},
    Fragenklasse{Updatetexte::Titel_abgelehnt, Updatetexte::falsche_Signatur, &nur_OK},
    Fragenklasse{Updatetexte::Titel_abgelehnt, Updatetexte::nicht_angekommen, &nur_OK},
    Fragenklasse{Updatetexte::Titel_abgelehnt, Updatetexte::nicht_gestartet, &nur_OK},
};

std::string Name(const Fragenklasse& k, Knopf Antwort) {
    static const std::array Woerter = {"OK", "Cancel", "Yes", "No", "Esc"};
    const std::string Stelle = *k.Stelle == 0 ? "" : std::string(" (") + k.Stelle + ")";
    return k.Titel + Stelle + (k.Angebot == &mit_Abbruch ? " or Cancel: " : ": ") + Woerter[static_cast<std::size_t>(Antwort)];
}

Knoepfe Antworten(const Knoepfe& Angebot) {
    Knoepfe Alle = Angebot;
    if (Angebot == Ja_Nein) Alle.push_back(Knopf::nicht_jetzt);
    return Alle;
}

// Of a record that cannot be read, the fault says which; everything else stands in texts.h.
const std::array feste_Abdeckungen = {Texte::nicht_gueltig, Texte::Eingabe_geaendert, Texte::Satz_geloescht, Texte::Satz_ersetzt,
                                      Texte::Satz_fehlt};
constexpr const char* ungelesen = "a record that cannot be read";
constexpr const char* benannt = "Record \"...\" missing: choose one";

}  // namespace

std::vector<std::string> alle_Fragen() {
    std::vector<std::string> Namen;
    for (const Fragenklasse& k : Klassen) {
        for (const Knopf Antwort : Antworten(*k.Angebot)) Namen.push_back(Name(k, Antwort));
    }
    return Namen;
}

std::string Klasse_der_Abdeckung(const std::string& Wort) {
    if (std::find(feste_Abdeckungen.begin(), feste_Abdeckungen.end(), Wort) != feste_Abdeckungen.end()) return Wort;
    if (Wort.find(", line ") != std::string::npos) return ungelesen;
    return Wort.starts_with("Record \"") && Wort.ends_with("\" missing: choose one") ? benannt : "";
}

std::vector<std::string> alle_Abdeckungen() {
    std::vector<std::string> Namen(feste_Abdeckungen.begin(), feste_Abdeckungen.end());
    Namen.insert(Namen.end(), {ungelesen, benannt});
    return Namen;
}

Knopf Antworter::frage(const Frage& f) {
    if (bei_Frage) bei_Frage();
    const Knoepfe moegliche = Antworten(f.Knoepfe);
    const bool ja_nein = f.Knoepfe == Ja_Nein;
    Knopf Antwort = Zufall_->eins_von(moegliche);
    // Whether another machine still works there is no matter of what the walk is about to do.
    if (fest_ && f.Titel != Texte::Ordner_in_Gebrauch) Antwort = ja_nein ? *fest_ : Knopf::OK;
    if (Angebot_ && f.Titel == Texte::Ungesichertes && ja_nein) Antwort = *Angebot_;
    const bool hindert = f.Titel == Texte::Laufzeitfehler || f.Text.find(Texte::trotzdem_sichern) != std::string::npos;
    if (laesst_los_ && ja_nein && hindert) Antwort = Knopf::Ja;
    const auto Klasse = std::find_if(Klassen.begin(), Klassen.end(), [&](const Fragenklasse& k) {
        return f.Titel == k.Titel && f.Text.find(k.Stelle) != std::string::npos && f.Knoepfe == *k.Angebot;
    });
    if (Klasse == Klassen.end()) {
        unbekannte_ = f.Titel + ": " + f.Text;
    } else {
        ++Gezaehltes[Name(*Klasse, Antwort)];
    }
    Titel_.insert(f.Titel);
    if (Antwort == Knopf::Ja && bei_Zustimmung) bei_Zustimmung(f);
    static const std::array Woerter = {"OK", "Cancel", "Yes", "No", "Esc"};
    Bericht_ += " {" + f.Titel + ": " + f.Text.substr(0, 90) + ": " + Woerter[static_cast<std::size_t>(Antwort)] + "}";
    return Antwort;
}

void Antworter::beginne() {
    Titel_.clear();
    Bericht_.clear();
    fest_.reset();
    laesst_los_ = false;
}

std::vector<std::string> Fehlendes(const std::vector<std::string>& Namen, const Zaehler& Gezaehltes,
                                   const std::vector<Ausnahme>& Ausnahmen, int mindestens) {
    std::vector<std::string> Text;
    for (const std::string& Name : Namen) {
        const auto Fund = Gezaehltes.find(Name);
        const int n = Fund == Gezaehltes.end() ? 0 : Fund->second;
        const bool befreit = std::any_of(Ausnahmen.begin(), Ausnahmen.end(), [&](const Ausnahme& a) { return a.Was == Name; });
        if (n < mindestens && !befreit) Text.push_back(std::to_string(n) + " x " + Name);
        if (n >= mindestens && befreit) Text.push_back(Name + " is no exception any more");
    }
    return Text;
}

const std::vector<Ausnahme>& Fragen_ohne_Gang() {
    static const std::vector<Ausnahme> Liste = {};
    return Liste;
}

}  // namespace varnok::gang
