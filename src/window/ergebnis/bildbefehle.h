#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <vector>

#include "session/ergebnis/bildsteuerung.h"

class QAction;
class QMainWindow;
class QMenu;

namespace varnok {

class Ergebnisbereich;
class Sitzung;

// What the menu "View" does with the diagram in front.
class Bildbefehle : public QObject {
    Q_OBJECT
public:
    // The menus exist already.
    Bildbefehle(Sitzung& Programm, Ergebnisbereich& Bereich, QMainWindow& Fenster);
    // Enabled while there is a diagram to be seen.
    void zeige();
    // The whole range of the diagram in front, by a key that no field or list wanted for itself.
    void zeige_alles();

Q_SIGNALS:
    void gehandelt();

private:
    // `Taste` in the form of a key sequence, empty for none.
    QAction* fuege_an(const char16_t* Name, const char16_t* Aufschrift, const char16_t* Taste, std::function<void()> Befehl);
    void fuege_Blick_an();
    void fuege_Ausgabe_an();
    template <auto Befehl, class... Angaben>
    void befiehl(Angaben&&... a);
    bool mit_Legende() const;

    struct Dateiwahl {
        QString Pfad;
        qsizetype Filter = 0;  // which of those offered
    };
    // Asks for a file of one of these kinds; nothing where the user does not want one.
    std::optional<Dateiwahl> frage_nach_Datei(const QString& Titel, const QStringList& Filter, const QString& Endung);
    void speichere(Bildart Art);
    void speichere_Daten();
    void kopiere();
    void kopiere_Daten();
    void waehle_Einstellung();

    Sitzung& Programm_;
    Ergebnisbereich& Bereich_;
    QMainWindow& Fenster_;
    QMenu* Menue_;
    std::vector<QAction*> Eintraege_;
};

}  // namespace varnok
