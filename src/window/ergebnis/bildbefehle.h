#pragma once

#include <QObject>
#include <vector>

class QAction;
class QMainWindow;

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

private:
    enum class Dateiart { PNG, SVG, PDF };

    template <class Befehl>
    QAction* fuege_an(const char16_t* Name, const char16_t* Aufschrift, Befehl b);
    void kopiere();
    void speichere(Dateiart Art);
    void schreibe(const QString& Pfad, const QByteArray& Inhalt);

    Sitzung& Programm_;
    Ergebnisbereich& Bereich_;
    QMainWindow& Fenster_;
    std::vector<QAction*> Eintraege_;
    QString Ordner_;  // of the picture saved last
    int Aufloesung_ = 300;
};

}  // namespace varnok
