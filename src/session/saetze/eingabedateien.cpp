#include "session/saetze/eingabedateien.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <algorithm>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/satztext.h"
#include "session/kern/texte.h"
#include "session/saetze/satzwaechter.h"

namespace varnok {
namespace {

void pruefe_Namen(const std::string& Name) {
    const std::string Einwand = Einwand_gegen_Namen(Name);
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a simulation: " + Einwand);
}

}  // namespace

std::vector<std::string> Eingabedateien::Dateien(const std::string& Ordner, const std::string& Endung) {
    const QStringList Muster{QString::fromStdString("*" + Endung)};
    std::vector<std::string> Namen;
    const QDir Verzeichnis(QString::fromStdString(Ordner));
    for (const QString& Name : Verzeichnis.entryList(Muster, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        Namen.push_back(Name.toStdString());
    }
    return Namen;
}

bool Eingabedateien::darf_loeschen(const std::string& Ordner) const {
    const QString wirklich = QFileInfo(QString::fromStdString(Ordner)).canonicalFilePath();
    return !wirklich.isEmpty() && wirklich == QFileInfo(QString::fromStdString(z_.Ordner->Eingabeordner())).canonicalFilePath();
}

void Eingabedateien::zeige_als_Simulation(const std::string& Name) {
    z_.Namen[Simulation] = Name;
    if (z_.Auswahl(Simulation) < 0) z_.Listen[Simulation].push_back(Name);
}

void Eingabedateien::lade(const std::string& Dateiname) {
    const std::string Name = ohne_Endung(Dateiname);
    pruefe_Namen(Name);
    const std::string Satz = z_.Namen[Wirkstoff];
    z_.Statuszeile.vergiss_Frueheres();
    if (z_.verschieden(Wirkstoff)) {
        sichere(z_,
                {{{Satz + Endungen[Wirkstoff], Satz_als_Bytes(Wirkstoff, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen)}}, {}});
    }
    zeige_als_Simulation(Name);
    if (Saetze_.lies_Satz(Wirkstoff, Satz)) z_.Gerechnetes.melde_Grund({Texte::Eingabe_geaendert});
}

bool Eingabedateien::speichere(const std::string& Dateiname) {
    const std::string Endung = Endungen[Simulation];
    const bool mit_Endung = Zeichenzahl(Dateiname) > 4 && Dateiname.ends_with(Endung);
    const std::string Name = mit_Endung ? Dateiname.substr(0, Dateiname.size() - Endung.size()) : Dateiname;
    pruefe_Namen(Name);
    verlange_Schreibrecht(z_);
    if (!Saetze_.pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return false;
    z_.Statuszeile.vergiss_Frueheres();
    // Three lines, no description: read as four, the file is misread, and that is why this dialog stays out of use.
    std::string Bytes;
    for (const Satzart Art : Eingabearten) Bytes += als_Satztext(z_.Namen[Art], Satzart_Namen[Art]) + "\r\n";
    // What is replaced is kept, the records of the selectors too: their files may hold what the screen never showed.
    Sicherungsgut ersetzt;
    const auto ersetze = [&](const std::string& Satz, Satzart Art) {
        const auto alte = z_.Ordner->finde(Satz, Endungen[Art]);
        if (alte) ersetzt.nimm_Datei(*alte, Satz + Endungen[Art]);
    };
    ersetze(Name, Simulation);
    for (const Satzart Art : Eingabearten) {
        if (z_.Saetze[Art].gelesen()) ersetze(z_.Namen[Art], Art);
    }
    sichere(z_, ersetzt);
    schreibe_Datei(z_.Ordner->Zielpfad(Name, Endung), Bytes, als_Satz);
    zeige_als_Simulation(Name);
    for (const Satzart Art : Eingabearten) {
        if (!z_.Saetze[Art].gelesen()) continue;
        Satz_schreiben(*z_.Ordner, z_.Namen[Art], Art, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen);
        z_.Saetze[Art].vergiss_Aenderung();
    }
    return true;
}

void Eingabedateien::loesche(const std::string& Ordner, const std::string& Dateiname) {
    pruefe_Namen(Dateiname);
    verlange_Schreibrecht(z_);
    if (!darf_loeschen(Ordner)) {
        throw Laufzeitfehler("\"" + Dateiname + "\" is not deleted: files are only deleted in the folder \"" +
                             z_.Ordner->Eingabeordner() + "\"");
    }
    const std::string Pfad = z_.Ordner->Eingabeordner() + "/" + Dateiname;
    z_.Statuszeile.vergiss_Frueheres();
    Sicherungsgut Gut;
    Gut.nimm_Datei(Pfad, Dateiname);
    sichere(z_, Gut);
    loesche_Datei(Pfad);
}

}  // namespace varnok
