#pragma once

#include <QObject>
#include <vector>

#include "session/kern/sitzung.h"
#include "window/eingabe/zahlenfeld.h"

class QAbstractButton;

namespace varnok {

// Stands between the numeric fields and the session: says when a field counts as entered and as left. A field is
// checked after the event that took its focus, never within it, so that a message cannot lose a click.
class Feldsteuerung : public QObject {
    Q_OBJECT
public:
    Feldsteuerung(Sitzung& Programm, QObject* parent);

    // The field of that object name.
    Zahlenfeld* erstelle(const QString& Objektname, QWidget* parent);

    // All texts and colours of the fields. One at most is yellow: the one that the session waits for.
    void zeige();
    // Focus that moves between these two is the program's doing: no field counts as entered or left by it.
    void beginne_Zeigen() { zeigt_ = true; }
    void beende_Zeigen() { zeigt_ = false; }
    // The field whose value was refused gets the focus, its text is selected. False without one.
    bool gib_Fokus_zurueck();

Q_SIGNALS:
    void gehandelt();
    // A key: the field itself shows it.
    void getippt();

private:
    int aktives_Feld() const;
    bool in_Arbeit(const Zahlenfeld& f) const;
    void faerbe();
    void beginne(Zahlenfeld* f);
    void tippe(Zahlenfeld* f, const QString& Text);
    void bestaetige(Zahlenfeld* f);
    void nimm_zurueck(Zahlenfeld* f);
    void verlasse(Zahlenfeld* f);
    void warte_auf(const QAbstractButton& Taste, Zahlenfeld* f);
    void merke_Eintritt(Zahlenfeld* f);
    void merke_Austritt(Zahlenfeld* f);
    Zahlenfeld* Feld_in_Arbeit() const;

    Sitzung& Programm_;
    std::vector<Zahlenfeld*> Felder_;
    Zahlenfeld* getippt_ = nullptr;  // its text is on the way to the session
    bool zeigt_ = false;
};

}  // namespace varnok
