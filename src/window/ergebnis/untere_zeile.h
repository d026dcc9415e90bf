#pragma once

#include "window/kern/rahmen.h"

class QButtonGroup;

namespace varnok {

class Auswahlliste;
class Kurztext;

// What the diagrams and tables show of the results; nothing here starts a run.
class Untere_Zeile : public Rahmen {
    Q_OBJECT
public:
    Untere_Zeile(Sitzung& Programm, QWidget* parent);
    void zeige() override;

Q_SIGNALS:
    // The user chose a view, before anything has come of it.
    void Ansicht_gewaehlt();

private:
    QButtonGroup* Endpunkt_;
    QButtonGroup* PEC_Typ_;
    Auswahlliste* TWA_Laenge_;
    Kurztext* Ergebnisdatei_;
};

}  // namespace varnok
