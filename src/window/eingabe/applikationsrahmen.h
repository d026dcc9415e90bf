#pragma once

#include <array>
#include <vector>

#include "window/kern/rahmen.h"

class QButtonGroup;
class QLabel;

namespace varnok {

class Applikationsschema;
class Auswahlliste;
class Feldsteuerung;
class Raster;
class Satzzeile;

// The application pattern record: when, how often, how much.
class Applikationsrahmen : public Rahmen {
    Q_OBJECT
public:
    Applikationsrahmen(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent);
    void zeige() override;
    void waehle_Zelle(Zelle z);

private:
    QWidget* erstelle_Muster();
    void erstelle_Dosis(QWidget* Werte, Feldsteuerung& Steuerung);
    void erstelle_Termine(QWidget* Werte);
    void verbinde();
    void stelle_Anzahl();
    void zeige_bei(unsigned Muster, std::initializer_list<QWidget*> Teile);

    // A control and the patterns that show it, one bit for each.
    struct Sichtbarkeit {
        QWidget* Teil;
        unsigned Muster;
    };

    Satzzeile* Satz_;
    QButtonGroup* Applikationsmuster_;
    Raster* Gitter_;
    QLabel* L_Anzahl_;
    Auswahlliste *Anzahl_, *Intervall_, *App_Tag_, *App_Monat_, *Fruchtwechsel_;
    Applikationsschema* Schema_;
    std::vector<Sichtbarkeit> Sichtbarkeiten_;
};

}  // namespace varnok
