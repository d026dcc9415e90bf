#include "session/ergebnis/bildsteuerung.h"

#include <QString>

#include "base/dateiname.h"
#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/qt_text.h"
#include "records/dateien.h"
#include "reports/ausgabedateien.h"
#include "run/bezeichnungen.h"
#include "session/ergebnis/ergebnisanzeige.h"

namespace varnok {
namespace {

constexpr qsizetype laengster_Name = 150;

std::vector<int> Stoffe_von(const Diagramm& d) {
    if (d.Zusammenfassung) return {Substanz_von_Zusammenfassung(d.Nummer)};
    if (!ist_mehrfach(d.Nummer)) return {Substanz_von_Diagramm(d.Nummer)};
    std::vector<int> alle;
    for (int c = 0; c < Anzahl_Stoffe(Schema_von_Diagramm(d.Nummer)); ++c) alle.push_back(c);
    return alle;
}

}  // namespace

std::string Bildsteuerung::Vorschlag() const {
    const Diagramm& d = *Diagramme_.vorderes();
    std::string Name;
    for (const int c : Stoffe_von(d)) Name += (Name.empty() ? "" : ", ") + Stoffname(z_.Vorgabe, c);
    const auto st = static_cast<std::size_t>(z_.i_studie());
    Name += " - " + (d.Zusammenfassung ? std::string("all studies") : z_.Vorgabe.Studie.at(st));
    Name += " - " + std::string(Ansichtsnamen.at(z_.Sicht.PEC_Typ)) + " - " + std::string(Endpunktnamen.at(d.Endpunkt));
    const std::string kurz = aus_Qt(in_Qt(als_Dateiname(Name)).simplified().left(laengster_Name).trimmed());
    return (Ordner_.empty() ? Ausgabeordner(*z_.Ausgabeprojekt) : Ordner_) + '/' + kurz;
}

Bild Bildsteuerung::erstelle(bool mit_Legende) const {
    const Diagramm& d = *Diagramme_.vorderes();
    const Bildeinstellung& e = Einstellung();
    const QSizeF Groesse(mm_in_Einheiten(e.Breite), mm_in_Einheiten(e.Hoehe));
    return {mit_Beschriftung(d, {Groesse, Diagramme_.Legende(), mit_Legende, e.fuer_Druck}), Groesse, d.Titel.Text};
}

void Bildsteuerung::speichere(const std::string& Pfad, Bildart Art, bool mit_Legende) {
    const Bild b = erstelle(mit_Legende);
    const QString Titel = in_Qt(b.Titel).simplified();
    const QByteArray Inhalt = Art == Bildart::PNG   ? Bild_als_PNG(b.Liste, b.Groesse, Einstellung().Aufloesung)
                              : Art == Bildart::SVG ? Bild_als_SVG(b.Liste, Titel, b.Groesse)
                                                    : Bild_als_PDF(b.Liste, Titel, b.Groesse);
    schreibe(Pfad, Inhalt.toStdString(), "Picture");
}

std::string Bildsteuerung::Daten(const Datenform& f) const {
    const Diagramm& d = *Diagramme_.vorderes();
    std::vector<Datentafel> Tafeln;
    const bool mit_Tafel = z_.Sicht.PEC_Typ != Hintergrund;
    for (const int c : mit_Tafel ? Stoffe_von(d) : std::vector<int>()) {
        const std::string Titel = d.Ergebnistitel.empty() ? "" : d.Ergebnistitel + ": ";
        Tafeln.push_back(
            {Titel + Stoffname(z_.Vorgabe, c), d.Zusammenfassung ? Werte_aller_Studien(z_, c) : Werte_einer_Studie(z_, c)});
    }
    return Diagrammdaten(d, Tafeln, f);
}

void Bildsteuerung::speichere_Daten(const std::string& Pfad, char Dezimalzeichen) {
    schreibe(Pfad, Daten(CSV_mit(Dezimalzeichen)), "Data");
}

void Bildsteuerung::schreibe(const std::string& Pfad, const std::string& Inhalt, const std::string& Was) {
    schreibe_Datei(Pfad, Inhalt, als_Datei);
    Ordner_ = Pfad.substr(0, Pfad.find_last_of('/'));
    z_.Statuszeile.sage(Was + " written: " + Pfad);
}

}  // namespace varnok
