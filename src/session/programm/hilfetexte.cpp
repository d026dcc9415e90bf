#include "session/programm/hilfetexte.h"

#include "extras/programmangaben.h"
#include "extras/tooltipdatei.h"
#include "session/kern/texte.h"

namespace varnok {

std::vector<std::string> Hilfetexte::Tooltips() {
    const varnok::Tooltips t = lies_Tooltips({z_.Projektpfad, z_.Welt.Programmpfad, z_.Welt.installierte_Daten});
    if (t.Fehler != gemeldet_) {
        gemeldet_ = t.Fehler;
        if (!gemeldet_.empty()) melde(z_, Texte::Laufzeitfehler, gemeldet_);
    }
    return t.Texte;
}

std::string Hilfetexte::Programmangaben() const { return lies_Programmangaben(z_.Welt.installierte_Daten); }

}  // namespace varnok
