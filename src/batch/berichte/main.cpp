#include <iostream>

#include "batch/berichte/berichte.h"
#include "batch/varnok_batch.h"

int main(int argc, char** argv) {
    varnok::batch::Umgebung Umwelt = varnok::batch::Umgebung_des_Prozesses();
    Umwelt.Berichte = varnok::batch::bereite_Berichte_vor;
    return varnok::batch::varnok_batch(argc, argv, std::cout, std::cerr, Umwelt);
}
