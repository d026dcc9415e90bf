#include "session/kern/probeeingabe.h"

namespace varnok {

Eingabe Probeeingabe() {
    Eingabe e;
    e.Parameter.Bodendichte = 1.5;
    e.Parameter.Bodentiefe = 5;
    e.Parameter.Plateautiefe = 20;
    e.Parameter.Kohlenstoffgehalt = 1;
    e.Parameter.Feldkapazitaet = 30;
    e.Parameter.Welkepunkt = 10;
    e.Parameter.KOC = fuer_alle(100.0);
    e.Studie = {"First soil", "Second soil"};
    e.Name_Wirkstoff = "Parent P";
    e.Name_Met_1 = "Metabolite M1";
    e.Name_Met_2 = "Metabolite M2";
    e.Molmasse_Wirkstoff = "300";
    e.Molmasse_Met_1 = "200";
    e.Molmasse_Met_2 = "150";
    e.Bildungsanteil_Met_1 = "40";
    e.Bildungsanteil_Met_2 = "30";
    e.Bodenszenario = "Sandy loam";
    for (auto& Zeile : e.Applikationsschema) Zeile = {"01", "05", "100", "0"};
    return e;
}

}  // namespace varnok
