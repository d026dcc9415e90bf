#include "session/programm/optionensteuerung.h"

#include <QFileInfo>
#include <QString>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "exposure/twa.h"
#include "records/schreibort.h"
#include "session/kern/texte.h"
#include "session/kern/versuch.h"
#include "session/programm/einstellungsdatei.h"
#include "session/saetze/sicherungsgut.h"

namespace varnok {
namespace {

// What goes wrong here is told nowhere: the first file that is written says it.
void lege_Unterordner_an(const Projektordner& Projekt) {
    for (const char* Name : {"input", "output"}) {
        try {
            varnok::lege_Ordner_an(Projekt.Unterordner(Name), Projekt.Pfad());
        } catch (const Laufzeitfehler&) {
            continue;
        }
    }
}

}  // namespace

std::string Einwand_gegen_Projektpfad(const std::string& Pfad) {
    const QFileInfo Ordner(QString::fromStdString(Pfad));
    if (Pfad.empty() || !Ordner.isDir()) return "There is no folder \"" + Pfad + "\".";
    if (!Ordner.isExecutable() || !Ordner.isReadable()) return "The folder \"" + Pfad + "\" cannot be entered.";
    // The settings file holds the path in one line.
    if (Pfad.find_first_of("\r\n") != std::string::npos) return "The name of the folder holds a line end.";
    return {};
}

Optionsentwurf Optionensteuerung::jetzt() const {
    const Laufparameter& p = z_.Parameter();
    Optionsentwurf o;
    o.Einheit = p.Einheit;
    o.Separate_Rueckstaende = p.Separate_Rueckstaende;
    o.TWA_Zeiten = p.TWA_Zeiten;
    for (std::size_t i = 0; i < o.Ausgabename_Teile.size(); ++i) o.Ausgabename_Teile[i] = p.Ausgabename_Teile[i] == 1;
    // A settings file may hold other numbers.
    o.Tips_anzeigen = z_.Einstellung.Tips_anzeigen == 1 ? 1 : 0;
    o.Farbeinstellung = z_.Einstellung.Farbeinstellung == 0 ? 0 : 1;
    o.Projektpfad = z_.Projektpfad;
    return o;
}

Optionsentwurf Optionensteuerung::oeffne() {
    vorher_ = jetzt();
    Lauf_faellig_ = false;
    return vorher_;
}

bool Optionensteuerung::uebernimm(const Optionsentwurf& Neue) {
    if (const std::string Einwand = Einwand_gegen_Projektpfad(Neue.Projektpfad); !Einwand.empty()) {
        melde(z_, Texte::Projektpfad, Einwand);
        return false;
    }
    Laufparameter& p = z_.Parameter();
    z_.Einstellung.Farbeinstellung = static_cast<std::uint8_t>(Neue.Farbeinstellung);
    p.Einheit = Neue.Einheit;
    z_.Einstellung.Tips_anzeigen = static_cast<std::uint8_t>(Neue.Tips_anzeigen);
    p.Separate_Rueckstaende = Neue.Separate_Rueckstaende;
    p.TWA_Zeiten = Neue.TWA_Zeiten;
    std::copy(Neue.Ausgabename_Teile.begin(), Neue.Ausgabename_Teile.end(), p.Ausgabename_Teile.begin());
    Lauf_faellig_ = true;
    setze_Projektpfad(Neue.Projektpfad);
    return true;
}

// The selectors stay with their folder until the program ends: what they name is there.
void Optionensteuerung::setze_Projektpfad(const std::string& Pfad) {
    setze_Ausgabeprojekt(z_, Pfad);
    lege_Unterordner_an(*z_.Ausgabeprojekt);
    if (Pfad == z_.Projektpfad) return;
    z_.Projektpfad = Pfad;
    z_.Statuszeile.sage("Output goes to \"" + Pfad + "\"; its input data are shown after the next start.");
}

bool Optionensteuerung::schliesse() {
    if (!Lauf_faellig_) return false;
    Lauf_faellig_ = false;
    const Optionsentwurf Neue = jetzt();
    merke_Aenderungen(Neue);
    if (Neue.Tips_anzeigen < vorher_.Tips_anzeigen) sage_Tips_ab();
    Laeufe_.berechne(true);  // the options concern all studies
    return Neue.Tips_anzeigen > vorher_.Tips_anzeigen;
}

void Optionensteuerung::merke_Aenderungen(const Optionsentwurf& Neue) {
    const bool neue_Liste = Neue.TWA_Zeiten != vorher_.TWA_Zeiten;
    const bool neue_Rechnung =
        neue_Liste || Neue.Einheit != vorher_.Einheit || Neue.Separate_Rueckstaende != vorher_.Separate_Rueckstaende;
    if (neue_Rechnung || Neue.Ausgabename_Teile != vorher_.Ausgabename_Teile) z_.Saetze[Wirkstoff].merke_Aenderung();
    if (neue_Liste) z_.Sicht.TWA_Laenge = TWA_Vorauswahl(z_.Parameter().TWA_Zeiten);
}

// Tooltips once attached stay until the program ends.
void Optionensteuerung::sage_Tips_ab() {
    versuche(z_, [&] {
        verlange_Schreibrecht(z_);
        Einstellungen_schreiben(z_);
    });
    melde(z_, "Tooltips", "The tooltips will be switched off when you exit VARNOK and call it again!");
}

std::optional<std::string> Optionensteuerung::lege_Ordner_an(const std::string& darin, const std::string& Name) {
    if (const std::string Einwand = Einwand_gegen_Namen(Name); !Einwand.empty()) {
        melde(z_, Texte::Ordner_anlegen, "\"" + Name + "\" cannot be the name of a folder: " + Einwand);
        return std::nullopt;
    }
    const std::string Pfad = darin + (darin.ends_with('/') ? "" : "/") + Name;
    std::error_code Fehler;
    if (std::filesystem::create_directory(als_Pfad(Pfad), Fehler)) return Pfad;
    melde(
        z_, Texte::Ordner_anlegen,
        Fehler ? "Cannot make the folder \"" + Pfad + "\": " + Fehler.message() : "The folder \"" + Pfad + "\" already exists.");
    return std::nullopt;
}

}  // namespace varnok
