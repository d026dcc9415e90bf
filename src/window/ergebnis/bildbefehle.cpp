#include "window/ergebnis/bildbefehle.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <utility>

#include "painting/bildausgabe.h"
#include "painting/qt_text.h"
#include "session/kern/sitzung.h"
#include "window/ergebnis/bildeinstellungen.h"
#include "window/ergebnis/diagrammflaeche.h"
#include "window/ergebnis/ergebnisbereich.h"
#include "window/ergebnis/legendenrahmen.h"
#include "window/kern/dateifrage.h"
#include "window/kern/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr double naeher = 0.5;  // share of the days that is left
constexpr double Schritt = 0.25;

}  // namespace

template <auto Befehl, class... Angaben>
void Bildbefehle::befiehl(Angaben&&... a) {
    {
        const Wartezeiger warte;
        Programm_.fuehre_aus<Befehl>(std::forward<Angaben>(a)...);
    }
    Q_EMIT gehandelt();
}

QAction* Bildbefehle::fuege_an(const char16_t* Name, const char16_t* Aufschrift, const char16_t* Taste,
                               std::function<void()> Befehl) {
    QAction* a = Menue_->addAction(QString::fromUtf16(Aufschrift));
    a->setObjectName(QString::fromUtf16(Name));
    a->setShortcut(QKeySequence(QString::fromUtf16(Taste)));
    a->setMenuRole(QAction::NoRole);
    connect(a, &QAction::triggered, this, std::move(Befehl));
    Eintraege_.push_back(a);
    return a;
}

Bildbefehle::Bildbefehle(Sitzung& Programm, Ergebnisbereich& Bereich, QMainWindow& Fenster)
    : QObject(&Fenster),
      Programm_(Programm),
      Bereich_(Bereich),
      Fenster_(Fenster),
      Menue_(Fenster.findChild<QMenu*>(u"M_Ansicht"_s)) {
    Menue_->addSeparator();
    fuege_Blick_an();
    Menue_->addSeparator();
    fuege_Ausgabe_an();
}

void Bildbefehle::fuege_Blick_an() {
    fuege_an(u"M_naechstes_Diagramm", u"&Next diagram", u"F6", [this] { befiehl<&Diagrammsteuerung::schalte_weiter>(); });
    fuege_an(u"M_Zeitraum", u"&Time range...", u"F7", [this] { Bereich_.skaliere(); });
    fuege_an(u"M_naeher", u"&Zoom in", u"Ctrl++", [this] { befiehl<&Diagrammsteuerung::strecke>(naeher); });
    fuege_an(u"M_ferner", u"Zoom &out", u"Ctrl+-", [this] { befiehl<&Diagrammsteuerung::strecke>(1 / naeher); });
    fuege_an(u"M_frueher", u"&Earlier", u"Alt+Left", [this] { befiehl<&Diagrammsteuerung::verschiebe>(-Schritt); });
    fuege_an(u"M_spaeter", u"L&ater", u"Alt+Right", [this] { befiehl<&Diagrammsteuerung::verschiebe>(Schritt); });
    // Told in the menu and no shortcut: fields and lists need the key, the window hears of it where they do not.
    fuege_an(u"M_ganzer_Zeitraum", u"&Whole range\tHome", u"", [this] { zeige_alles(); });
    fuege_an(u"M_Rahmen_zeigen", u"Show &legend and table", u"", [this] {
        if (Diagrammflaeche* d = Bereich_.Flaeche_fuer_Befehl()) d->hole_Rahmen_heim();
    });
}

void Bildbefehle::fuege_Ausgabe_an() {
    fuege_an(u"M_Bild_kopieren", u"&Copy picture", u"Ctrl+Shift+C", [this] { kopiere(); });
    fuege_an(u"M_Bild_PNG", u"Save picture as &PNG...", u"", [this] { speichere(Bildart::PNG); });
    fuege_an(u"M_Bild_SVG", u"Save picture as S&VG...", u"", [this] { speichere(Bildart::SVG); });
    fuege_an(u"M_Bild_PDF", u"Save picture as P&DF...", u"", [this] { speichere(Bildart::PDF); });
    fuege_an(u"M_Bild_Optionen", u"Picture opt&ions...", u"", [this] { waehle_Einstellung(); });
    Menue_->addSeparator();
    fuege_an(u"M_Daten_kopieren", u"Copy &data", u"", [this] { kopiere_Daten(); });
    fuege_an(u"M_Daten_speichern", u"Save dat&a...", u"", [this] { speichere_Daten(); });
}

void Bildbefehle::zeige() {
    const bool zu_sehen =
        Programm_.Stand().Gestartet && !Programm_.Stand().abgedeckt() && Programm_.zeige<Diagrammsteuerung>().vorderes();
    for (QAction* a : Eintraege_) a->setEnabled(zu_sehen);
}

void Bildbefehle::zeige_alles() {
    if (Eintraege_.front()->isEnabled()) befiehl<&Diagrammsteuerung::zeige_alles>();
}

bool Bildbefehle::mit_Legende() const { return !Bereich_.Flaeche_vorn()->Legende()->verborgen(); }

std::optional<Bildbefehle::Dateiwahl> Bildbefehle::frage_nach_Datei(const QString& Titel, const QStringList& Filter,
                                                                    const QString& Endung) {
    if (!Bereich_.Flaeche_fuer_Befehl()) return std::nullopt;
    QFileDialog Dialog(&Fenster_, Titel);
    Dialog.setObjectName(u"Bild_speichern"_s);
    Dialog.setNameFilters(Filter);
    const QFileInfo Vorschlag(in_Qt(Programm_.zeige<Bildsteuerung>().Vorschlag()));
    schlage_vor(Dialog, Vorschlag.path(), Vorschlag.fileName(), Endung);
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty()) return std::nullopt;
    return Dateiwahl{Dialog.selectedFiles().front(), Filter.indexOf(Dialog.selectedNameFilter())};
}

void Bildbefehle::speichere(Bildart Art) {
    static const std::array<QString, 3> Bildendungen = {u"png"_s, u"svg"_s, u"pdf"_s};
    const QString& Endung = Bildendungen.at(static_cast<std::size_t>(Art));
    const Bildeinstellung& e = Programm_.zeige<Bildsteuerung>().Einstellung();
    QString Form = in_Qt(e.Breite) + u" x "_s + in_Qt(e.Hoehe) + u" mm"_s;
    if (Art == Bildart::PNG) Form += u", "_s + in_Qt(e.Aufloesung) + u" dpi"_s;
    if (e.fuer_Druck) Form += u", for print"_s;
    const auto Wahl = frage_nach_Datei(u"Save picture as "_s + Endung.toUpper(),
                                       {Endung.toUpper() + u" picture, "_s + Form + u" (*."_s + Endung + u')'}, Endung);
    if (Wahl) befiehl<&Bildsteuerung::speichere>(aus_Qt(Wahl->Pfad), Art, mit_Legende());
}

void Bildbefehle::speichere_Daten() {
    const char Region = Programm_.Stand().Welt.Dezimalzeichen;
    std::vector<char> Zeichen = {Region};
    if (Region != '.') Zeichen.push_back('.');
    QStringList Filter;
    for (const char z : Zeichen) Filter << (z == ',' ? u"CSV, decimal comma (*.csv)"_s : u"CSV, decimal point (*.csv)"_s);
    const auto Wahl = frage_nach_Datei(u"Save data"_s, Filter, u"csv"_s);
    if (!Wahl) return;
    const char Dezimalzeichen = Zeichen.at(static_cast<std::size_t>(std::max<qsizetype>(0, Wahl->Filter)));
    befiehl<&Bildsteuerung::speichere_Daten>(aus_Qt(Wahl->Pfad), Dezimalzeichen);
}

void Bildbefehle::kopiere() {
    if (!Bereich_.Flaeche_fuer_Befehl()) return;
    const auto& Bilder = Programm_.zeige<Bildsteuerung>();
    const Bild Kopie = Bilder.erstelle(mit_Legende());
    kopiere_Bild(Kopie.Liste, in_Qt(Kopie.Titel), Kopie.Groesse, Bilder.Einstellung().Aufloesung);
    befiehl<&Bildsteuerung::melde_kopiert>("Picture");
}

void Bildbefehle::kopiere_Daten() {
    if (!Bereich_.Flaeche_fuer_Befehl()) return;
    const auto& Bilder = Programm_.zeige<Bildsteuerung>();
    const char Region = Programm_.Stand().Welt.Dezimalzeichen;
    kopiere_Zahlen(in_Qt(Bilder.Daten({'\t', Region})), in_Qt(Bilder.Daten(CSV_mit(Region))));
    befiehl<&Bildsteuerung::melde_kopiert>("Data");
}

void Bildbefehle::waehle_Einstellung() {
    if (!Bereich_.Flaeche_fuer_Befehl()) return;
    Bildeinstellungen Dialog(Programm_.zeige<Bildsteuerung>().Einstellung(), &Fenster_);
    if (Dialog.exec() == QDialog::Accepted) befiehl<&Bildsteuerung::setze>(Dialog.gewaehlte());
}

}  // namespace varnok
