#include "exposure/schritte.h"

#include "exposure/metabolit.h"
#include "exposure/plateau.h"
#include "exposure/twa.h"

namespace varnok {

const Rechenschritte alle_Rechenschritte = {Berechnung_Metabolit_1, Berechnung_Metabolit_2, berechne_Plateau, berechne_TWA};

}  // namespace varnok
