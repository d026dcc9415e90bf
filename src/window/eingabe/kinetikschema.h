#pragma once

#include <array>
#include <vector>

#include "window/kern/rahmen.h"

class QButtonGroup;
class QSpacerItem;
class QStackedWidget;

namespace varnok {

class Auswahlliste;
class Feldsteuerung;
class Reiter;
class Satzzeile;
class Schaltflaeche;
class Umbenennfeld;

// The compound record: its studies, and the pages degradation, sorption and metabolism.
class Kinetikschema : public Rahmen {
    Q_OBJECT
public:
    Kinetikschema(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent);
    void zeige() override;

private:
    QWidget* erstelle_Abbaudaten(Feldsteuerung& Steuerung);
    QWidget* erstelle_Seite(Rahmen* Inhalt);
    void verbinde_Studien();
    void zeige_Studien();
    void wechsle_Seite(int i);
    void faerbe_Reiter();

    Satzzeile* Satz_;
    Auswahlliste* Studie_;
    Umbenennfeld* Studienname_;
    Schaltflaeche* Addiere_Studie_;
    Reiter* Wirkstoffdaten_;
    QButtonGroup* Substanz_;
    QStackedWidget* Kinetikfelder_;
    QSpacerItem* Ersatz_;
    std::vector<Rahmen*> Seiten_;  // what the pages hold
    int Seite_ = 0;
};

}  // namespace varnok
