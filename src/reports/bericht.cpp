#include "reports/bericht.h"

#include <array>

#include "base/dateiname.h"
#include "diagrams/diagrammbau.h"
#include "reports/ausgabedateien.h"
#include "reports/berichtswoerter.h"
#include "reports/dokumentbild.h"
#include "reports/formatierung.h"
#include "reports/rtf_schreiber.h"
#include "reports/zeilenpassung.h"

namespace varnok {
namespace {

struct Berichtsroutinen {
    std::string (*Name)(const Darstellung&, const Berichtszeit&);
    std::string (*Text)(const Darstellung&, const Berichtsangaben&);
};
constexpr std::array<Berichtsroutinen, 2> Routinen = {
    {{Ausgabename_Standardbericht, erstelle_Standardbericht}, {Ausgabename_erweiterter_Bericht, erstelle_erweiterten_Bericht}}};

std::vector<std::string> Stoffnamen(const Darstellung& d) {
    std::vector<std::string> Namen;
    for (int c = 0; c < Anzahl_Stoffe(d.Vorgabe().Berechnungsmodus); ++c) Namen.push_back(Stoffname(d.Namen, c));
    return Namen;
}

std::unique_ptr<QTextDocument> leeres_Dokument() {
    auto Dokument = std::make_unique<QTextDocument>();
    QFont Schrift;
    // The text processor looks for the first one, a screen without it takes one that is like it.
    Schrift.setFamilies({QString::fromLatin1(Berichtsschrift), QStringLiteral("Liberation Serif"), QStringLiteral("Nimbus Roman"),
                         QStringLiteral("DejaVu Serif")});
    Schrift.setStyleHint(QFont::Serif);
    Schrift.setPointSize(10);
    Dokument->setDefaultFont(Schrift);
    return Dokument;
}

}  // namespace

Diagramm erstelle_Berichtsdiagramm(const Darstellung& d, Berichtsart Art) {
    Diagrammbereiche b;
    setze_Bereiche_nach_Ansicht(b, d.Sicht.PEC_Typ);
    const Stoffschema Schema = d.Vorgabe().Berechnungsmodus;
    const int st = d.Sicht.Studie_Index;
    // The summary opens with the parent. A compound that the scheme does not have cannot be in view.
    if (Art == Berichtsart::erweitert)
        return erstelle_Diagramm_Zusammenfassung(d, b, Zusammenfassungssatz_von(Schema, 0), st, false);
    const int c = d.Sicht.Substanz < Anzahl_Stoffe(Schema) ? d.Sicht.Substanz : 0;
    return erstelle_Diagramm(d, b, Diagrammsatz_von(Schema, c), st);
}

Bericht schreibe_Bericht(const Berichtsauftrag& a) {
    const Berichtsroutinen& r = Routinen.at(static_cast<std::size_t>(a.Art));
    Bericht b;
    b.Name = als_Dateiname(r.Name(a.Inhalt, a.Zeitpunkt));
    b.Text = r.Text(a.Inhalt, {a.Programmversion, a.Zeitpunkt.Datum, a.Zeitpunkt.Zeit, a.Applikationssatz});
    b.Dokument = leeres_Dokument();
    Textstelle w(*b.Dokument, QString::fromStdString(b.Text));
    const std::string& Simulation = a.Inhalt.Namen.Beschreibung;
    b.Dokument->setMetaInformation(QTextDocument::DocumentTitle,
                                   QString::fromStdString(Simulation.empty() ? b.Name : Simulation));
    merke_Herkunft(*b.Dokument, QString::fromStdString(a.Herkunft));
    formatiere_Bericht(w, b.Text, Stoffnamen(a.Inhalt), a.Art);
    passe_Zeilen_ein(*b.Dokument);
    halte_Gruppen_beisammen(*b.Dokument);

    const Zeichenliste Bild = mit_Beschriftung(a.Bild, {.Legende = a.Legende, .fuer_Druck = a.fuer_Druck});
    merke_Zeichnung(*b.Dokument, Bild);
    w.suche(QString::fromLatin1(Berichtswort::Bildplatz));
    w.halte_beisammen();
    w.ersetze_durch_Bild(QString::fromLatin1(Bildname), erstelle_Berichtsbild(Bild), Bildbreite_Twips, Bildhoehe_Twips);
    b.RTF = als_RTF(*b.Dokument);
    return b;
}

std::string speichere_Bericht(const Bericht& b, const std::string& Ordner, const std::string& Grenze) {
    return schreibe_Ausgabedatei(Ordner, b.Name + Berichtsendung, b.RTF, {Schreibweise::Datei, Grenze});
}

}  // namespace varnok
