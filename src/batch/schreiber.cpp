#include "batch/schreiber.h"

namespace varnok::batch {

std::string als_Text(Schreiber& s, const std::vector<Simulationsausgang>& Ausgaenge) {
    std::string Text = s.Anfang();
    for (const Simulationsausgang& a : Ausgaenge) Text += s.naechstes(s.Stueck(a), a.Fehler.has_value());
    return Text + s.Ende();
}

std::string als_JSON(const std::vector<Simulationsausgang>& Ausgaenge) { return als_Text(*JSON_Schreiber(), Ausgaenge); }

}  // namespace varnok::batch
