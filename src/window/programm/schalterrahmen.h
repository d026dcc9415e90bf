#pragma once

#include "window/kern/rahmen.h"

namespace varnok {

class Kurztext;
class Schaltflaeche;

// The buttons at the foot of the window, and the line that says what was done.
class Schalterrahmen : public Rahmen {
    Q_OBJECT
public:
    Schalterrahmen(Sitzung& Programm, QWidget* parent);
    void zeige() override;
    // The picture of results that are out of date, alone.
    void zeige_Hinweis();
    // What the control under the mouse can do, in place of the line until there is a new one; empty: no longer.
    void zeige_Handhabung(const QString& Text);
    // The same of the control in focus, where there is no line.
    void zeige_Fokushandhabung(const QString& Text);
    void gib_Ende_den_Fokus();

private:
    void zeige_Bemerkungen();
    void oeffne_Bemerkungen();
    // The picture of results that are out of date: a file of the project, else the built-in one.
    QIcon Hinweisbild() const;
    void zeige_Status();

    Schaltflaeche *Aktualisieren_, *speichern_, *Bericht_erstellen_, *Ende_;
    Kurztext* Status_;
    QString Statustext_;
    QString Handhabung_;
    QString Fokushandhabung_;
    Schaltflaeche* Bemerkungen_;  // only where there are any
};

}  // namespace varnok
