#pragma once

#include <QObject>
#include <QString>
#include <string>
#include <vector>

#include "session/kern/sitzung.h"

class QAction;
class QMainWindow;
class QMenu;

namespace varnok {

// The menus of the window.
class Menue : public QObject {
    Q_OBJECT
public:
    using Befehl = void (*)(Sitzung&);
    using Erlaubnis = bool (*)(const Sitzung&);
    using Auskunft = std::string (*)(const Sitzung&);

    Menue(Sitzung& Programm, QMainWindow& Fenster);
    // Enables what can be done now.
    void zeige();

Q_SIGNALS:
    void gehandelt();

private:
    struct Eintrag {
        QAction* Aktion;
        Erlaubnis erlaubt;    // none: always
        Auskunft Gegenstand;  // what it acts on, behind its caption; none: nothing is told
        QString Aufschrift;
    };

    void fuehre_aus(QAction* Aktion, Befehl b);
    void zeige_Gegenstand(const Eintrag& e);

    Sitzung& Programm_;
    std::vector<QAction*> nach_Start_;  // enabled once the start page is left
    std::vector<Eintrag> Eintraege_;
};

}  // namespace varnok
