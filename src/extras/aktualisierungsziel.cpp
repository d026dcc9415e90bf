#include "extras/aktualisierungsziel.h"

namespace varnok {

Aktualisierungsziel Ziel_der_Auslieferung() { return {VARNOK_UPDATE_SCHEME, VARNOK_UPDATE_HOST, VARNOK_UPDATE_KEY}; }

}  // namespace varnok
