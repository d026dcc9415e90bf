#include "session/programm/hilfetexte.h"

#include "extras/programmangaben.h"
#include "extras/tooltipdatei.h"
#include "session/programm/feldhilfe.h"

namespace varnok {

std::vector<std::string> Hilfetexte::Tooltips() {
    const varnok::Tooltips t = lies_Tooltips({z_.Projektpfad, z_.Welt.Programmpfad, z_.Welt.installierte_Daten});
    if (t.Fehler != gemeldet_) {
        gemeldet_ = t.Fehler;
        if (!gemeldet_.empty()) melde_Fehler(z_, gemeldet_);
    }
    return t.Texte;
}

std::string Hilfetexte::Programmangaben() const {
    const std::string& Daten = z_.Welt.installierte_Daten;
    return lies_Programmangaben(Daten) + Lizenzangaben(Daten);
}

std::string Hilfetexte::Feldhilfe(const std::vector<std::string>& Objektnamen, const std::string& Aufschrift) const {
    const std::string& Daten = z_.Welt.installierte_Daten;
    return varnok::Feldhilfe(
        {Objektnamen, Aufschrift, lies_Tooltips({z_.Projektpfad, z_.Welt.Programmpfad, Daten}).Texte, Daten});
}

}  // namespace varnok
