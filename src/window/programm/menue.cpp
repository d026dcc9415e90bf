#include "window/programm/menue.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>

#include "painting/qt_text.h"
#include "window/kern/rahmen.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

enum Menuename { Datei, editieren, ansehen, Hilfe };

struct Menuezeile {
    const char16_t* Name;
    const char16_t* Aufschrift;
    bool nach_Start;  // not on the start page
};
constexpr std::array<Menuezeile, 4> Menues = {{{u"M_Datei", u"&File", false},
                                               {u"M_editieren", u"&Edit pesticide data", true},
                                               {u"M_Ansicht", u"&View", true},
                                               {u"M_Hilfe", u"&Help", false}}};

template <auto Befehl, auto... Angaben>
void befiehl(Sitzung& s) {
    s.fuehre_aus<Befehl>(Angaben...);
}

// What a part says.
template <auto Auskunft>
auto frage(const Sitzung& s) {
    return std::invoke(Auskunft, s.zeige<Teil_mit<Auskunft>>());
}

bool ist_gestartet(const Sitzung& s) { return s.Stand().Gestartet; }

struct Befehlszeile {
    Menuename Menue;
    const char16_t* Name;
    const char16_t* Aufschrift;
    Menue::Befehl befiehl = nullptr;  // none: the window opens a dialog for it
    const char16_t* Taste = u"";
    bool Strich_davor = false;
    Menue::Erlaubnis erlaubt = nullptr;    // none: always
    Menue::Auskunft Gegenstand = nullptr;  // told behind the caption; where it is empty there is nothing to do
};
constexpr std::array<Befehlszeile, 19> Befehle = {{
    {Datei, u"M_Neuer_Wirkstoff", u"New &Pesticide record", befiehl<&Satzverwaltung::lege_an, Wirkstoff>},
    {Datei, u"M_Neue_Applikationsdatei", u"New &Application record", befiehl<&Satzverwaltung::lege_an, Applikation>},
    {Datei, u"M_Neues_Szenario", u"&New Scenario", befiehl<&Satzverwaltung::lege_an, Szenario>},
    {Datei, u"M_Laden", u"&Load simulation", nullptr, u"", true},
    {Datei, u"M_Defaults", u"&Load program defaults", befiehl<&Satzverwaltung::lade_Voreinstellungen>},
    {Datei, u"M_Wiederherstellen", u"&Restore..."},
    {Datei, u"M_Drucken", u"&Print", nullptr, u"", true},
    {Datei, u"M_Speichern", u"&Save all input data", befiehl<&Satzverwaltung::speichere>, u"Ctrl+S"},
    {Datei, u"M_Ende", u"&Exit", befiehl<&Programmablauf::beende>, u"Ctrl+Q", true},
    {editieren, u"M_Rueckgaengig", u"&Undo", befiehl<&Ruecknahme::mache_rueckgaengig>, u"Ctrl+Z", false, nullptr,
     frage<&Ruecknahme::Name_zurueck>},
    {editieren, u"M_Wiederholen", u"&Redo", befiehl<&Ruecknahme::wiederhole>, u"Ctrl+Shift+Z", false, nullptr,
     frage<&Ruecknahme::Name_vor>},
    {editieren, u"M_Addiere", u"&Add study", befiehl<&Studienverwaltung::addiere>, u"", true,
     frage<&Studienverwaltung::darf_addieren>},
    {editieren, u"M_Loesche", u"&Delete study", befiehl<&Studienverwaltung::loesche>, u"", false,
     frage<&Studienverwaltung::darf_loeschen>},
    {editieren, u"M_Optionen", u"&Preferences", nullptr, u"", true},
    {ansehen, u"M_Studien", u"&Individual studies", befiehl<&Listenwahl::zeige_Studien>},
    {ansehen, u"M_Zusammenfassung", u"&Summary", befiehl<&Listenwahl::zeige_Zusammenfassung>, u"", false,
     frage<&Listenwahl::darf_Zusammenfassung>},
    {Hilfe, u"M_suche_nach_Update", u"&Onlinecheck for updates", befiehl<&Aktualisierungssteuerung::suche>, u"", false,
     frage<&Aktualisierungssteuerung::darf_suchen>},
    {Hilfe, u"M_Versionsinfo", u"&Release notes"},
    {Hilfe, u"M_ueber", u"&About", nullptr, u"", true},
}};

}  // namespace

Menue::Menue(Sitzung& Programm, QMainWindow& Fenster) : QObject(&Fenster), Programm_(Programm) {
    std::array<QMenu*, Menues.size()> Menueliste{};
    for (std::size_t i = 0; i < Menues.size(); ++i) {
        // The report is a command of the menu bar itself, before the help.
        if (i == Hilfe) {
            QAction* Bericht = Fenster.menuBar()->addAction(u"&Report"_s);
            Bericht->setObjectName(u"M_Bericht"_s);
            Bericht->setShortcut(QKeySequence(u"Ctrl+R"_s));
            Eintraege_.push_back({Bericht, ist_gestartet, nullptr, {}});
            connect(Bericht, &QAction::triggered, this,
                    [this, Bericht] { fuehre_aus(Bericht, befiehl<&Berichtssteuerung::erstelle>); });
        }
        Menueliste[i] = Fenster.menuBar()->addMenu(QString::fromUtf16(Menues[i].Aufschrift));
        Menueliste[i]->setObjectName(QString::fromUtf16(Menues[i].Name));
        if (Menues[i].nach_Start) nach_Start_.push_back(Menueliste[i]->menuAction());
    }
    for (const Befehlszeile& b : Befehle) {
        QMenu* m = Menueliste[b.Menue];
        if (b.Strich_davor) m->addSeparator();
        QAction* Aktion = m->addAction(QString::fromUtf16(b.Aufschrift));
        Aktion->setObjectName(QString::fromUtf16(b.Name));
        Aktion->setShortcut(QKeySequence(QString::fromUtf16(b.Taste)));
        // Names like "Quit" would move entries to another menu on some desktops.
        Aktion->setMenuRole(QAction::NoRole);
        Eintraege_.push_back({Aktion, b.erlaubt, b.Gegenstand, Aktion->text()});
        if (b.befiehl) connect(Aktion, &QAction::triggered, this, [this, Aktion, Tat = b.befiehl] { fuehre_aus(Aktion, Tat); });
    }
}

// A command that waits for an answer from outside is not started again meanwhile.
void Menue::fuehre_aus(QAction* Aktion, Befehl b) {
    {
        const Wartezeiger warte;
        Aktion->setEnabled(false);
        b(Programm_);
        Aktion->setEnabled(true);
    }
    Q_EMIT gehandelt();
}

void Menue::zeige() {
    for (QAction* m : nach_Start_) m->setEnabled(Programm_.Stand().Gestartet);
    for (const Eintrag& e : Eintraege_) {
        if (e.erlaubt) e.Aktion->setEnabled(e.erlaubt(Programm_));
        if (e.Gegenstand) zeige_Gegenstand(e);
    }
}

void Menue::zeige_Gegenstand(const Eintrag& e) {
    const QString Name = in_Qt(e.Gegenstand(Programm_));
    e.Aktion->setText(Name.isEmpty() ? e.Aufschrift : e.Aufschrift + u' ' + QString(Name).replace(u'&', u"&&"_s));
    e.Aktion->setEnabled(!Name.isEmpty());
}

}  // namespace varnok
