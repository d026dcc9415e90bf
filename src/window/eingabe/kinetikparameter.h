#pragma once

#include <vector>

#include "window/eingabe/feldzeile.h"
#include "window/kern/rahmen.h"

namespace varnok {

// Degradation of one compound: the kinetic model, its values, and the corrections for temperature and moisture.
class Kinetikparameter : public Rahmen {
    Q_OBJECT
public:
    // `Einzug`: see `Raster`.
    Kinetikparameter(int i_substanz, int Einzug, Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent);
    void zeige() override;

private:
    struct Modellfeld {
        Kinetikart Kinetik;
        Feldzeile Zeile;
    };

    int c_;
    Auswahlliste* S_Kinetik_;
    std::vector<Modellfeld> Modellfelder_;
};

}  // namespace varnok
