#pragma once

#include <QObject>
#include <QPointer>

#include "session/kern/sitzung.h"

class QMainWindow;
class QWidget;

namespace varnok {

class Hilfefenster;

// What the control under the mouse or in focus can do, for the status line, and the help of the control in focus: in the window
// and in its dialogs.
class Hilfesteuerung : public QObject {
    Q_OBJECT
public:
    Hilfesteuerung(Sitzung& Programm, QMainWindow& Fenster);

    // Opens the help of the control in focus.
    void zeige();

Q_SIGNALS:
    // Of the control in focus.
    void Handhabung_geaendert(const QString& Text);

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    void folge_dem_Fokus(QWidget* w);

    Sitzung& Programm_;
    QMainWindow& Fenster_;
    QPointer<Hilfefenster> Hilfe_;
};

}  // namespace varnok
