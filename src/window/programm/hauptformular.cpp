#include "window/programm/hauptformular.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QStatusTipEvent>
#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "extras/versionstexte.h"
#include "painting/qt_text.h"
#include "window/eingabe/applikationsrahmen.h"
#include "window/eingabe/eingabespalte.h"
#include "window/eingabe/feldsteuerung.h"
#include "window/eingabe/kinetikschema.h"
#include "window/ergebnis/berichtsansicht.h"
#include "window/ergebnis/bildbefehle.h"
#include "window/ergebnis/ergebnisbereich.h"
#include "window/ergebnis/untere_zeile.h"
#include "window/kern/bausteine.h"
#include "window/kern/bilder.h"
#include "window/kern/ctooltip.h"
#include "window/kern/fensterfrage.h"
#include "window/kern/fokusring.h"
#include "window/programm/hilfesteuerung.h"
#include "window/programm/intro.h"
#include "window/programm/menue.h"
#include "window/programm/optionen.h"
#include "window/programm/projektmenue.h"
#include "window/programm/schalterrahmen.h"
#include "window/programm/textfenster.h"
#include "window/programm/tooltips.h"
#include "window/saetze/frame2.h"
#include "window/saetze/simulationen.h"
#include "window/saetze/szenario_form.h"
#include "window/saetze/szenariorahmen.h"
#include "window/saetze/wiederherstellungsfenster.h"

namespace varnok {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Hauptformular::Hauptformular(Sitzung& Programm, Fensterfrage* Fragen, const QString& Fensterdatei, QWidget* parent)
    : QMainWindow(parent),
      Programm_(Programm),
      Fragen_(Fragen),
      Fensterdatei_(Fensterdatei),
      Steuerung_(new Feldsteuerung(Programm, this)),
      Menue_(new Menue(Programm, *this)),
      Nachlauf_(new QTimer(this)) {
    setObjectName(u"Hauptformular"_s);
    setWindowIcon(Bild_aus_SVG(u"varnok"_s));

    Blaetter_ = new QStackedWidget(this);
    Intro_ = new Intro(Blaetter_);
    Arbeitsflaeche_ = erstelle_Arbeitsflaeche();
    Bilder_ = new Bildbefehle(Programm, *Ergebnisse_, *this);
    Blaetter_->addWidget(Intro_);
    Blaetter_->addWidget(Arbeitsflaeche_);
    setCentralWidget(Blaetter_);

    connect(Intro_, &Intro::gestartet, this, &Hauptformular::verlasse_Startseite);
    connect(Menue_, &Menue::gehandelt, this, &Hauptformular::nach_Handlung);
    Drucken_ = findChild<QAction*>(u"M_Drucken"_s);
    connect(Drucken_, &QAction::triggered, Bericht_, &Berichtsansicht::drucke);
    connect(findChild<QAction*>(u"M_Optionen"_s), &QAction::triggered, this, &Hauptformular::oeffne_Optionen);
    connect(findChild<QAction*>(u"M_ueber"_s), &QAction::triggered, this, &Hauptformular::zeige_Info);
    connect(findChild<QAction*>(u"M_Versionsinfo"_s), &QAction::triggered, this, &Hauptformular::zeige_Versionsinfo);
    connect(findChild<QAction*>(u"M_Laden"_s), &QAction::triggered, this, &Hauptformular::oeffne_Organiser);
    connect(Bilder_, &Bildbefehle::gehandelt, this, &Hauptformular::nach_Handlung);
    Projekte_ = new Projektmenue(Programm, *this);
    connect(Projekte_, &Projektmenue::gehandelt, this, &Hauptformular::nach_Handlung);
    Hilfe_ = new Hilfesteuerung(Programm, *this);
    connect(Hilfe_, &Hilfesteuerung::Handhabung_geaendert, Schalter_, &Schalterrahmen::zeige_Fokushandhabung);
    connect(findChild<QAction*>(u"M_Wiederherstellen"_s), &QAction::triggered, this, &Hauptformular::stelle_wieder_her);
    connect(Steuerung_, &Feldsteuerung::gehandelt, this, &Hauptformular::zeige);
    connect(Steuerung_, &Feldsteuerung::getippt, this, &Hauptformular::zeige_Getipptes);
    for (Rahmen* r : Rahmen_) {
        connect(r, &Rahmen::gehandelt, this, &Hauptformular::nach_Handlung);
        connect(r, &Rahmen::getippt, this, &Hauptformular::zeige_Getipptes);
    }
    Nachlauf_->setSingleShot(true);
    Nachlauf_->setInterval(100ms);
    connect(Nachlauf_, &QTimer::timeout, this, &Hauptformular::sichere_Zwischenstand);
    if (Fragen_) Fragen_->setze_Fenster(this, [this] { zeige(); });
    qApp->installEventFilter(this);
    new Fokusring(this);
    zeige();
    bestimme_kleinste_Groesse();
    stelle_Fenster_her();
    Intro_->gib_Fokus();
    // When the window is on the screen: what there may be to say about the tips stands over it.
    if (Programm_.Stand().Einstellung.Tips_anzeigen == 1) QTimer::singleShot(0ms, this, &Hauptformular::erstelle_tooltips);
}

Hauptformular::~Hauptformular() {
    if (Fragen_) Fragen_->setze_Fenster(nullptr, {});
}

template <class R>
R* Hauptformular::nimm_auf(R* Neuer) {
    Rahmen_.push_back(Neuer);
    return Neuer;
}

QWidget* Hauptformular::erstelle_Arbeitsflaeche() {
    auto* Flaeche = new QWidget(Blaetter_);
    Flaeche->setObjectName(u"Arbeitsflaeche"_s);
    auto* Blatt = new QVBoxLayout(Flaeche);
    Blatt->setContentsMargins(8, 8, 8, 8);
    Blatt->setSpacing(8);
    // Made in the order in which Tab walks through them.
    auto* Kopf = nimm_auf(new Frame2(Programm_, Flaeche));
    connect(Kopf, &Frame2::Organiser_verlangt, this, &Hauptformular::oeffne_Organiser);
    Blatt->addWidget(Kopf);
    auto* Mitte = new QHBoxLayout;
    Mitte->setSpacing(8);
    Mitte->addWidget(erstelle_Eingabespalte());
    Mitte->addWidget(erstelle_Ergebnisspalte(), 1);
    Blatt->addLayout(Mitte, 1);
    Schalter_ = nimm_auf(new Schalterrahmen(Programm_, Flaeche));
    Blatt->addWidget(Schalter_);
    return Flaeche;
}

QWidget* Hauptformular::erstelle_Eingabespalte() {
    auto* Spalte = new QWidget;
    auto* Liste = new QVBoxLayout(Spalte);
    Liste->setContentsMargins(0, 0, 0, 0);
    Liste->setSpacing(8);
    Liste->addWidget(nimm_auf(new Kinetikschema(Programm_, *Steuerung_, Spalte)));
    Applikation_ = nimm_auf(new Applikationsrahmen(Programm_, *Steuerung_, Spalte));
    Liste->addWidget(Applikation_);
    Liste->addWidget(nimm_auf(new Szenariorahmen(Programm_, Spalte)));
    Liste->addStretch(1);
    return new Eingabespalte(Spalte, Blaetter_);
}

QWidget* Hauptformular::erstelle_Ergebnisspalte() {
    auto* Spalte = new QWidget(Blaetter_);
    auto* Liste = new QVBoxLayout(Spalte);
    Liste->setContentsMargins(0, 0, 0, 0);
    Liste->setSpacing(8);
    Ergebnisse_ = nimm_auf(new Ergebnisbereich(Programm_, Spalte));
    auto* Optionen = nimm_auf(new Untere_Zeile(Programm_, Spalte));
    connect(Optionen, &Untere_Zeile::Ansicht_gewaehlt, Ergebnisse_, &Ergebnisbereich::hole_Ergebnisrahmen);
    Liste->addWidget(Ergebnisse_, 1);
    Liste->addWidget(Optionen);
    Bericht_ = nimm_auf(new Berichtsansicht(Programm_, Ergebnisse_, Spalte));
    return Spalte;
}

void Hauptformular::verlasse_Startseite() {
    {
        const Wartezeiger warte;
        Programm_.fuehre_aus<&Programmablauf::verlasse_Startseite>();
    }
    nach_Handlung();
    Schalter_->gib_Ende_den_Fokus();
}

void Hauptformular::zeige() {
    Steuerung_->beginne_Zeigen();
    Blaetter_->setCurrentWidget(Programm_.Stand().Gestartet ? Arbeitsflaeche_ : static_cast<QWidget*>(Intro_));
    Menue_->zeige();
    Bilder_->zeige();
    for (Rahmen* r : Rahmen_) r->zeige();
    Drucken_->setEnabled(Programm_.zeige<Berichtssteuerung>().offener() != nullptr);
    Steuerung_->zeige();
    zeige_Titel();
    Steuerung_->beende_Zeigen();
    Nachlauf_->start();
    // Whatever action the run belonged to is over first.
    if (Programm_.zeige<Laufsteuerung>().Klimadatei_fehlt())
        QTimer::singleShot(0ms, this, &Hauptformular::oeffne_faelligen_Editor);
}

// Behind a box or a dialog an action may be under way; it is shown when it is over.
void Hauptformular::sichere_Zwischenstand() {
    if (QApplication::activeModalWidget()) return;
    Programm_.fuehre_aus<&Projektoeffnung::merke>();
    const std::string vorher = Programm_.Stand().Statuszeile.Text();
    Programm_.fuehre_aus<&Zwischensicherung::schreibe>();
    if (Programm_.Stand().Statuszeile.Text() != vorher) Schalter_->zeige();
}

void Hauptformular::zeige_Getipptes() {
    Schalter_->zeige_Hinweis();
    Ergebnisse_->zeige_Abdeckung();
    Menue_->zeige();
    zeige_Titel();
}

void Hauptformular::zeige_Titel() {
    const Zustand& z = Programm_.Stand();
    const bool verschieden = std::any_of(alle_Arten.begin(), alle_Arten.end(), [&z](Satzart Art) { return z.verschieden(Art); });
    setWindowTitle(u"VARNOK - Soil residue forecast tool"_s + (z.nur_lesbar ? u" (read only)"_s : QString()) +
                   (verschieden ? u"*"_s : QString()));
}

void Hauptformular::oeffne_faelligen_Editor() {
    const Zustand& z = Programm_.Stand();
    if (!Programm_.zeige<Laufsteuerung>().Klimadatei_fehlt() || z.beendet() || QApplication::activeModalWidget()) return;
    zeige_Szenarioeditor(Programm_, this);
    nach_Handlung();
}

void Hauptformular::erstelle_tooltips() {
    if (!Tooltips_) Tooltips_ = new cTooltip(this);
    varnok::erstelle_tooltips(*Tooltips_, *this, Programm_.fuehre_aus<&Hilfetexte::Tooltips>());
}

void Hauptformular::zeige_Info() {
    Textfenster Fenster(u"Info"_s, u"About VARNOK"_s, in_Qt(Programm_.zeige<Hilfetexte>().Programmangaben()), {}, this);
    Fenster.exec();
}

void Hauptformular::zeige_Versionsinfo() {
    QStringList Notizen;
    for (const std::string& n : Ausgabenotizen()) Notizen << in_Qt(n);
    Textfenster Fenster(u"Versionsinfo"_s, u"Release notes"_s, in_Qt(Versionstext()), Notizen, this);
    Fenster.exec();
}

// The one place where an action of the user ends.
void Hauptformular::nach_Handlung() {
    if (Programm_.Stand().beendet() || std::exchange(schliessen_faellig_, false)) {
        close();
        return;
    }
    zeige();
    waehle_Fehlerzelle();
    // A field still in work refused its value: the command was not done.
    Steuerung_->gib_Fokus_zurueck();
}

void Hauptformular::suche_beim_Start() {
    Programm_.fuehre_aus<&Aktualisierungssteuerung::suche_beim_Start>([Fenster = QPointer(this)](const std::string& Seite) {
        if (!Fenster) return;
        {
            const Wartezeiger warte;
            Fenster->Programm_.fuehre_aus<&Aktualisierungssteuerung::melde>(Seite);
        }
        Fenster->nach_Handlung();
    });
}

void Hauptformular::oeffne_Optionen() {
    bool frei = false;
    {
        const Wartezeiger warte;
        frei = Programm_.fuehre_aus<&Programmablauf::beginne_Dialog>();
    }
    nach_Handlung();
    if (!frei) return;
    Optionen Dialog(Programm_, this);
    Dialog.exec();
    nach_Optionen();
}

void Hauptformular::nach_Optionen() {
    farbe_einstellen(*this, Programm_.Stand().Einstellung);
    {
        const Wartezeiger warte;
        if (Programm_.fuehre_aus<&Optionensteuerung::schliesse>()) erstelle_tooltips();
    }
    nach_Handlung();
}

void Hauptformular::stelle_wieder_her() {
    const bool frei = Programm_.fuehre_aus<&Programmablauf::beginne_Dialog>();
    nach_Handlung();
    if (!frei) return;
    std::vector<Gesichertes> Gewaehlte;
    {
        Wiederherstellungsfenster Dialog(Programm_, this);
        if (Dialog.exec() == QDialog::Accepted) Gewaehlte = Dialog.Gewaehlte();
    }
    if (Gewaehlte.empty()) return;
    {
        const Wartezeiger warte;
        Programm_.fuehre_aus<&Wiederherstellung::stelle_her>(Gewaehlte);
    }
    nach_Handlung();
}

void Hauptformular::oeffne_Organiser() {
    const bool offen = Programm_.fuehre_aus<&Organiser::oeffne>();
    nach_Handlung();
    if (!offen) return;
    {
        Simulationen Dialog(
            Programm_, [this](QWidget* w) { zeige_Szenarioeditor(Programm_, w); }, this);
        connect(&Dialog, &Simulationen::gehandelt, this, &Hauptformular::zeige);
        Dialog.exec();
    }
    // The dialog is gone from the screen before records are read and a run is made.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    {
        const Wartezeiger warte;
        Programm_.fuehre_aus<&Organiser::schliesse_ab>();
    }
    nach_Handlung();
}

void Hauptformular::waehle_Fehlerzelle() {
    if (const auto Zelle = Programm_.fuehre_aus<&Laufsteuerung::nimm_Tabellenfehler>()) Applikation_->waehle_Zelle(*Zelle);
}

// What a field tells of a character that it did not take. Actions of the menu tell with an empty text, too.
void Hauptformular::closeEvent(QCloseEvent* e) {
    // What waits for the server ends first; then the window closes.
    if (Programm_.zeige<Aktualisierungssteuerung>().laeuft()) {
        schliessen_faellig_ = true;
        Programm_.fuehre_aus<&Aktualisierungssteuerung::halte_an>();
        e->ignore();
        return;
    }
    if (!Programm_.fuehre_aus<&Programmablauf::schliesse_Fenster>()) {
        e->ignore();
        zeige();
        return;
    }
    if (!Fensterdatei_.isEmpty()) QSettings(Fensterdatei_, QSettings::IniFormat).setValue(u"geometry"_s, saveGeometry());
    e->accept();
}

bool Hauptformular::event(QEvent* e) {
    if (e->type() == QEvent::StatusTip) {
        Schalter_->zeige_Handhabung(static_cast<QStatusTipEvent*>(e)->tip());
    } else if (e->type() == Zeichenereignis::Art) {
        Programm_.fuehre_aus<&Zeichenmeldung::sage>(aus_Qt(static_cast<Zeichenereignis*>(e)->Meldung()));
        Schalter_->zeige();
    } else {
        return QMainWindow::event(e);
    }
    return true;
}

void Hauptformular::keyPressEvent(QKeyEvent* e) {
    if (e->key() != Qt::Key_Home || e->modifiers() != Qt::NoModifier) return QMainWindow::keyPressEvent(e);
    Bilder_->zeige_alles();
}

bool Hauptformular::eventFilter(QObject* Objekt, QEvent* e) {
    constexpr std::array Eingaben = {QEvent::MouseButtonPress,
                                     QEvent::MouseButtonRelease,
                                     QEvent::MouseButtonDblClick,
                                     QEvent::Wheel,
                                     QEvent::KeyPress,
                                     QEvent::KeyRelease,
                                     QEvent::Shortcut,
                                     QEvent::ShortcutOverride,
                                     QEvent::ContextMenu,
                                     QEvent::TouchBegin,
                                     QEvent::TouchUpdate,
                                     QEvent::TouchEnd};
    const bool wartet = Programm_.zeige<Aktualisierungssteuerung>().laeuft() && !QApplication::activeModalWidget();
    if (!wartet || std::find(Eingaben.begin(), Eingaben.end(), e->type()) == Eingaben.end()) {
        return QMainWindow::eventFilter(Objekt, e);
    }
    if (e->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Escape)
        Programm_.fuehre_aus<&Aktualisierungssteuerung::halte_an>();
    return true;
}

void Hauptformular::changeEvent(QEvent* e) {
    QMainWindow::changeEvent(e);
    // When all that stands in the window has heard of it.
    if (e->type() == QEvent::FontChange) QTimer::singleShot(0ms, this, &Hauptformular::bestimme_kleinste_Groesse);
}

void Hauptformular::bestimme_kleinste_Groesse() {
    constexpr double Ziffern_breit = 112.5;
    constexpr int Zeilen_hoch = 40;
    constexpr QSize Rand_des_Desktops = {4, 40};
    const QSize Inhalt = Blaetter_->minimumSizeHint() + QSize(0, menuBar()->sizeHint().height());
    const QSize gewohnt = {Ziffern(*this, Ziffern_breit), fontMetrics().height() * Zeilen_hoch};
    setMinimumSize(Inhalt.expandedTo(gewohnt).boundedTo(screen()->availableSize() - Rand_des_Desktops));
}

void Hauptformular::stelle_Fenster_her() {
    resize(QSize(1280, 860).boundedTo(screen()->availableSize() * 0.95));
    if (Fensterdatei_.isEmpty()) return;
    const QByteArray Lage = QSettings(Fensterdatei_, QSettings::IniFormat).value(u"geometry"_s).toByteArray();
    if (!Lage.isEmpty()) restoreGeometry(Lage);
}

}  // namespace varnok
