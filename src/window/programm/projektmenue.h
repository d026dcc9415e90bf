#pragma once

#include <QObject>

#include "session/kern/sitzung.h"

class QMainWindow;
class QMenu;

namespace varnok {

// Other projects: the dialog for a folder, what was open last, what is dropped on the window.
class Projektmenue : public QObject {
    Q_OBJECT
public:
    Projektmenue(Sitzung& Programm, QMainWindow& Fenster);

Q_SIGNALS:
    void gehandelt();

private:
    void waehle_Ordner();
    void oeffne(const QString& Pfad);
    QMenu* erstelle_Liste(const QString& Name, const QString& Aufschrift,
                          std::vector<Zuletztes> (Projektoeffnung::*Eintraege)() const);
    void fuelle(QMenu& Liste, const std::vector<Zuletztes>& Eintraege);

    Sitzung& Programm_;
    QMainWindow& Fenster_;
};

}  // namespace varnok
