#include "reports/bericht.h"

#include <array>

#include "diagrams/diagrammbau.h"
#include "reports/ausgabedateien.h"
#include "reports/berichtswoerter.h"
#include "reports/dokumentbild.h"
#include "reports/formatierung.h"
#include "reports/rtf_schreiber.h"

namespace varnok {
namespace {

struct Berichtsroutinen {
    std::string (*Name)(const Lauf&, const Berichtszeit&);
    std::string (*Text)(const Lauf&, const Berichtsangaben&);
};
constexpr std::array<Berichtsroutinen, 2> Routinen = {
    {{Ausgabename_Standardbericht, erstelle_Standardbericht}, {Ausgabename_erweiterter_Bericht, erstelle_erweiterten_Bericht}}};

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

Diagramm erstelle_Berichtsdiagramm(const Lauf& l, Berichtsart Art) {
    Diagrammbereiche b;
    setze_Bereiche_nach_Ansicht(b, l.Felder.PEC_Typ);
    const int Schema = l.Felder.Berechnungsmodus;
    const int st = l.Felder.Studie_Index;
    if (Art == Berichtsart::erweitert)
        return erstelle_Diagramm_Zusammenfassung(l, b, Zusammenfassungssatz_von(Schema, 0), st, false);
    return erstelle_Diagramm(l, b, Diagrammsatz_von(Schema, 0), st);
}

Bericht schreibe_Bericht(const Berichtsauftrag& a) {
    const Berichtsroutinen& r = Routinen.at(static_cast<std::size_t>(a.Art));
    Bericht b;
    b.Name = r.Name(a.Rechnung, a.Zeitpunkt);
    pruefe_Ausgabename(b.Name);
    b.Text = r.Text(a.Rechnung, {a.Programmversion, a.Zeitpunkt.Datum, a.Zeitpunkt.Zeit});
    b.Dokument = leeres_Dokument();
    Textauswahl w(*b.Dokument, QString::fromStdString(b.Text));
    formatiere_Bericht(w, b.Text, a.Rechnung.Felder, a.Art);

    const Zeichenliste Bild = mit_Beschriftung(a.Bild, a.Legende);
    merke_Zeichnung(*b.Dokument, Bild);
    w.suche(QString::fromLatin1(Berichtswort::Bildplatz));
    w.halte_beisammen();
    w.ersetze_durch_Bild(QString::fromLatin1(Bildname), erstelle_Berichtsbild(Bild), Bildbreite_Twips, Bildhoehe_Twips);
    b.RTF = als_RTF(*b.Dokument);
    return b;
}

std::string speichere_Bericht(const Bericht& b, const std::string& Ordner) {
    return schreibe_Ausgabedatei(Ordner, b.Name + Berichtsendung, b.RTF);
}

}  // namespace varnok
