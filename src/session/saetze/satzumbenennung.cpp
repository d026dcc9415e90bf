#include "session/saetze/satzumbenennung.h"

namespace varnok {

void Satzumbenennung::beginne(Satzart Art) {
    if (!z_.Gestartet) return;
    Art_ = Art;
    Vorschlag_ = Entwurf_ = z_.gewaehlt(Art);
}

bool Satzumbenennung::bestaetige(bool Enter) {
    if (!Art_) return false;
    const Satzart Art = *Art_;
    // Closed before anything is told: the box must not be left a second time by that.
    if (!Enter) Art_.reset();
    if (!Saetze_.benenne_um(Art, Entwurf_, Enter)) return false;
    Art_.reset();
    return true;
}

}  // namespace varnok
