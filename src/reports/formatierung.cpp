#include "reports/formatierung.h"

#include "diagrams/palette.h"
#include "reports/berichtswoerter.h"

namespace varnok {
namespace {

// Places of the palette, beside black.
constexpr int Gruen = 2;
constexpr int Violett = 5;
constexpr int Blau = 9;
constexpr int Hellrot = 12;

QString Wort(const char* Utf8) { return QString::fromUtf8(Utf8); }

void formatiere_Kopf(Textstelle& w) {
    w.alles();
    w.groesse(10);
    w.kursiv(false);
    w.fett(false);
    w.Farbe(Schwarz);
    w.alles();
    w.Einzug(500, 200);
    w.suche(Wort(Berichtswort::Titel));
    w.kursiv();
    w.Farbe(Blau);
    w.groesse(14);
    w.zentriert();
    w.fett();
    w.setze_Anfang(0);
    w.suche(Wort(Berichtswort::Untertitel));
    w.Farbe(Blau);
    w.groesse(12);
    w.zentriert();
    w.fett();
    w.setze_Anfang(0);
    w.suche(Wort(Berichtswort::Verfasser));
    w.zentriert();
    w.kursiv();
    w.alles();
    w.Tabulatoren({3000, 4000, 6000});
}

void formatiere_Ergebniskopf(Textstelle& w, Berichtsart Art) {
    w.setze_Anfang(0);
    w.suche(Wort(Berichtswort::Ergebnisse));
    w.fett();
    w.groesse(12);
    w.bis_Ende();
    w.Farbe(Blau);
    if (Art == Berichtsart::Standard) {
        w.Tabulatoren({2500, 4000, 5500, 7500});
    } else {
        w.Tabulatoren({1800, 3200, 4700, 6200, 7700, 9200});
    }
    w.setze(0, 0);
    w.suche(Wort(Berichtswort::Ergebnisse));
    w.bis_Ende();
    w.Farbe(Blau);
}

// A block's headline, and its colour to the end of the document: the next block overwrites it.
void formatiere_Block(Textstelle& w, const char* Kopf, int Farbe) {
    w.suche(Wort(Kopf));
    w.groesse(12);
    w.kursiv();
    w.bis_Ende();
    w.Farbe(Farbe);
}

void formatiere_Stoff(Textstelle& w, const std::string& Name, bool Metabolit) {
    w.setze(0, 0);
    w.suche(Wort(Berichtswort::Stoffkopf) + QString::fromStdString(Name));
    w.fett();
    w.groesse(12);
    if (Metabolit) {
        w.bis_Ende();
        w.Farbe(Blau);
    }
    formatiere_Block(w, Berichtswort::Jahr, Gruen);
    formatiere_Block(w, Berichtswort::Hintergrund, Violett);
    formatiere_Block(w, Berichtswort::Anreicherung, Hellrot);
}

// Each warning is looked for in a copy of the text that is cut down as they are found, and in the document from
// where the last one ended.
void formatiere_Warnungen(Textstelle& w, const std::string& Berichtstext) {
    constexpr qsizetype Warnungslaenge = 300;
    constexpr qsizetype Fortsetzung = 270;
    constexpr qsizetype Sichtweite = 65000;
    const QString Anfang = Wort(Berichtswort::Warnungsanfang);
    QString Rest = QString::fromStdString(Berichtstext);
    w.setze(0, 0);
    for (qsizetype Treffer = Rest.indexOf(Anfang); Treffer >= 0; Treffer = Rest.indexOf(Anfang)) {
        w.suche(Anfang);
        w.setze(w.Anfang(), Warnungslaenge);
        w.fett();
        w.Farbe(Hellrot);
        w.setze(w.Anfang() + Warnungslaenge, 0);
        Rest = Rest.mid(Treffer + Fortsetzung, Sichtweite);
    }
}

}  // namespace

void formatiere_Bericht(Textstelle& w, const std::string& Berichtstext, const std::vector<std::string>& Stoffnamen,
                        Berichtsart Art) {
    formatiere_Kopf(w);
    formatiere_Ergebniskopf(w, Art);
    for (std::size_t c = 0; c < Stoffnamen.size(); ++c) formatiere_Stoff(w, Stoffnamen[c], c > 0);
    w.suche(Wort(Berichtswort::Bildkopf));
    w.bis_Ende();
    w.Farbe(Blau);
    if (Art == Berichtsart::Standard) formatiere_Warnungen(w, Berichtstext);
}

}  // namespace varnok
