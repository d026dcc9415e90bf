#include "window/ergebnis/bildbefehle.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <exception>

#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/qt_text.h"
#include "records/dateien.h"
#include "session/kern/sitzung.h"
#include "session/kern/texte.h"
#include "window/ergebnis/diagrammflaeche.h"
#include "window/ergebnis/ergebnisbereich.h"
#include "window/ergebnis/legendenrahmen.h"
#include "window/kern/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// "PNG picture, 300 dpi, 2000 x 1562 pixels (*.png)"
QString Filter_fuer(int dpi) {
    const QSize g = Bildgroesse(dpi);
    return u"PNG picture, "_s + in_Qt(dpi) + u" dpi, "_s + in_Qt(g.width()) + u" x "_s + in_Qt(g.height()) + u" pixels (*.png)"_s;
}

QString Titel_von(const Diagramm& d) { return in_Qt(d.Titel.Text).simplified(); }

}  // namespace

template <class Befehl>
QAction* Bildbefehle::fuege_an(const char16_t* Name, const char16_t* Aufschrift, Befehl b) {
    auto* Menue = Fenster_.findChild<QMenu*>(u"M_Ansicht"_s);
    QAction* a = Menue->addAction(QString::fromUtf16(Aufschrift));
    a->setObjectName(QString::fromUtf16(Name));
    a->setMenuRole(QAction::NoRole);
    connect(a, &QAction::triggered, this, b);
    Eintraege_.push_back(a);
    return a;
}

Bildbefehle::Bildbefehle(Sitzung& Programm, Ergebnisbereich& Bereich, QMainWindow& Fenster)
    : QObject(&Fenster), Programm_(Programm), Bereich_(Bereich), Fenster_(Fenster) {
    auto* Menue = Fenster.findChild<QMenu*>(u"M_Ansicht"_s);
    Menue->addSeparator();
    fuege_an(u"M_Rahmen_zeigen", u"Show &legend and table", [this] {
        if (Diagrammflaeche* d = Bereich_.Flaeche_fuer_Befehl()) d->hole_Rahmen_heim();
    });
    Menue->addSeparator();
    fuege_an(u"M_Bild_kopieren", u"&Copy picture", [this] { kopiere(); })->setShortcut(QKeySequence(u"Ctrl+Shift+C"_s));
    fuege_an(u"M_Bild_PNG", u"Save picture as &PNG...", [this] { speichere(Dateiart::PNG); });
    fuege_an(u"M_Bild_SVG", u"Save picture as S&VG...", [this] { speichere(Dateiart::SVG); });
    fuege_an(u"M_Bild_PDF", u"Save picture as P&DF...", [this] { speichere(Dateiart::PDF); });
}

void Bildbefehle::zeige() {
    const bool zu_sehen =
        Programm_.Stand().Gestartet && !Programm_.Stand().abgedeckt() && Programm_.zeige<Diagrammsteuerung>().vorderes();
    for (QAction* a : Eintraege_) a->setEnabled(zu_sehen);
}

void Bildbefehle::kopiere() {
    const Diagrammflaeche* d = Bereich_.Flaeche_fuer_Befehl();
    if (d) kopiere_Bild(mit_Beschriftung(*d->Inhalt(), d->Legende()->gezogen()), Titel_von(*d->Inhalt()));
}

void Bildbefehle::speichere(Dateiart Art) {
    const Diagrammflaeche* d = Bereich_.Flaeche_fuer_Befehl();
    if (!d) return;
    QStringList Filter;
    QString gewaehlt;
    QString Endung;
    if (Art == Dateiart::PNG) {
        for (const int dpi : Bildaufloesungen) Filter << Filter_fuer(dpi);
        gewaehlt = Filter_fuer(Aufloesung_);
        Endung = u"png"_s;
    } else {
        Endung = Art == Dateiart::SVG ? u"svg"_s : u"pdf"_s;
        Filter << Endung.toUpper() + u" picture (*."_s + Endung + u')';
        gewaehlt = Filter.front();
    }
    const QString Ordner = Ordner_.isEmpty() ? in_Qt(Programm_.Stand().Projektpfad) : Ordner_;
    QFileDialog Dialog(&Fenster_, u"Save picture as "_s + Endung.toUpper(), Ordner);
    Dialog.setObjectName(u"Bild_speichern"_s);
    Dialog.setAcceptMode(QFileDialog::AcceptSave);
    Dialog.setNameFilters(Filter);
    Dialog.selectNameFilter(gewaehlt);
    Dialog.setDefaultSuffix(Endung);
    Dialog.selectFile(Bilddateiname(*d->Inhalt()) + u'.' + Endung);
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty()) return;
    const QString Pfad = Dialog.selectedFiles().front();
    Ordner_ = QFileInfo(Pfad).absolutePath();
    const Zeichenliste z = mit_Beschriftung(*d->Inhalt(), d->Legende()->gezogen());
    if (Art == Dateiart::PNG) {
        const auto i = Filter.indexOf(Dialog.selectedNameFilter());
        if (i >= 0) Aufloesung_ = Bildaufloesungen.at(static_cast<std::size_t>(i));
        schreibe(Pfad, Bild_als_PNG(z, Aufloesung_));
    } else {
        schreibe(Pfad,
                 Art == Dateiart::SVG ? Bild_als_SVG(z, Titel_von(*d->Inhalt())) : Bild_als_PDF(z, Titel_von(*d->Inhalt())));
    }
}

void Bildbefehle::schreibe(const QString& Pfad, const QByteArray& Inhalt) {
    try {
        schreibe_Datei(aus_Qt(Pfad), Inhalt.toStdString());
    } catch (const std::exception& Fehler) {
        Programm_.Stand().Welt.Fragen->frage({Texte::Laufzeitfehler, Fehler.what(), Symbol::Ausrufezeichen, {Knopf::OK}});
    }
}

}  // namespace varnok
