#include "session/kern/schauplatz.h"

#include "session/kern/texte.h"

namespace varnok {

void melde_Fehler(Schauplatz& s, const std::string& Text) { melde(s, Texte::Laufzeitfehler, Text); }

}  // namespace varnok
