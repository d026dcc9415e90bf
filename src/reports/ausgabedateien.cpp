#include "reports/ausgabedateien.h"

#include <QDir>
#include <QString>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "records/dateien.h"

namespace varnok {
namespace {

// The file of that name; an exact match wins over one in other case, and without either it is a new one.
std::string Zielpfad(const std::string& Ordner, const std::string& Dateiname) {
    const QString gesucht = QString::fromStdString(Dateiname);
    const QDir Verzeichnis(QString::fromStdString(Ordner));
    QString Ziel = gesucht;
    if (!Verzeichnis.exists(gesucht)) {
        for (const QString& Eintrag : Verzeichnis.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
            if (Eintrag.toCaseFolded() == gesucht.toCaseFolded()) Ziel = Eintrag;
        }
    }
    return Verzeichnis.filePath(Ziel).toStdString();
}

}  // namespace

std::string Ausgabeordner(const Projektordner& Ordner) { return Ordner.Unterordner("output"); }

std::string schreibe_Ausgabedatei(const std::string& Ordner, const std::string& Dateiname, const std::string& Bytes,
                                  const Schreibort& Ort) {
    lege_Ordner_an(Ordner, Ort.Grenze);
    const std::string Pfad = Zielpfad(Ordner, Dateiname);
    schreibe_Datei(Pfad, Bytes, Ort);
    return Pfad;
}

std::string Laufprotokoll(const Ergebnis& e) {
    const Endpunktergebnis& Stoff = e.Stoffwerte.back().Endpunktwerte[Gesamtgehalt];
    const auto& [erste_Bildung, zweite_Bildung] = e.Bildung_Plateautiefe;
    std::string Text;
    for (std::size_t d = 0; d <= static_cast<std::size_t>(letzter_Tag); ++d) {
        Text += std::to_string(d);
        for (const auto* Reihe : {&Stoff.Reihe_Plateautiefe, &Stoff.Reihe_Bodentiefe, &erste_Bildung, &zweite_Bildung}) {
            Text += "\t" + allgemeine_Zahl(Reihe->at(d));
        }
        Text += "\r\n";
    }
    return Text;
}

std::string Nebenausgaben::schreibe(const Projektordner& Projekt, const std::string& Ordner, const std::string& Dateiname,
                                    const std::string& Bytes) {
    try {
        schreibe_Ausgabedatei(Ordner, Dateiname, Bytes, {Schreibweise::ungefragt, Projekt.Pfad()});
    } catch (const Laufzeitfehler& f) {
        // A folder that is a link to outside is no matter of a file.
        const bool alle = liegt_ausserhalb(Ordner, Projekt.Pfad());
        if (gemeldet_.insert(alle ? Ordner : Ordner + "/" + Dateiname).second) return f.what();
    }
    return {};
}

std::string Nebenausgaben::schreibe_Zeichnung(const Projektordner& Ordner, const Diagramm& d) {
    if (d.Datei.Dateiname.empty()) return {};
    std::string Bytes;
    for (const std::string& Zeile : d.Datei.Zeilen) Bytes += Zeile + "\r\n";
    return schreibe(Ordner, d.Zusammenfassung ? Ordner.Pfad() : Ausgabeordner(Ordner), d.Datei.Dateiname, Bytes);
}

std::string Nebenausgaben::schreibe_Laufprotokoll(const Projektordner& Ordner, const Ergebnis& e) {
    return schreibe(Ordner, Ausgabeordner(Ordner), Laufprotokoll_Name, Laufprotokoll(e));
}

}  // namespace varnok
