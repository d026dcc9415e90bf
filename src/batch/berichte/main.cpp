#include <iostream>

#include "batch/abbruch.h"
#include "batch/berichte/berichte.h"
#include "batch/varnok_batch.h"

int main(int argc, char** argv) {
    varnok::batch::Umgebung Umwelt = varnok::batch::Umgebung_des_Prozesses();
    Umwelt.Berichte = varnok::batch::bereite_Berichte_vor;
    Umwelt.Abbruch = &varnok::batch::horche_auf_Abbruch();
    return varnok::batch::varnok_batch(argc, argv, std::cout, std::cerr, Umwelt);
}
