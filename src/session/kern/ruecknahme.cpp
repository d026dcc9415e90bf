#include "session/kern/ruecknahme.h"

#include <algorithm>
#include <utility>

#include "exposure/twa.h"
#include "session/kern/unterschied.h"

namespace varnok {

void Ruecknahme::mache_rueckgaengig() {
    if (Verlauf_.kann_zurueck()) stelle_her(Verlauf_.zurueck());
}

void Ruecknahme::wiederhole() {
    if (Verlauf_.kann_vor()) stelle_her(Verlauf_.vor());
}

// What stands in a field or a cell becomes the last step with the command.
std::string Ruecknahme::Name_zurueck() const {
    const std::string Offenes = Verlauf_.Name_des_Offenen(z_.Vorgabe);
    return Offenes.empty() ? Verlauf_.Name_zurueck() : Offenes;
}

// A field in work is no step yet.
void Ruecknahme::merke() {
    const int jetzige = Folge_der_Saetze();
    if (std::exchange(Folge_, jetzige) != jetzige) return Verlauf_.beginne(z_.Vorgabe);
    if (!Felder_.ist_in_Arbeit()) Verlauf_.merke(z_.Vorgabe);
}

// There is no way back behind a record that was read, given up or renamed.
int Ruecknahme::Folge_der_Saetze() const {
    int Folge = 0;
    for (const Satzplatz& p : z_.Saetze) Folge += p.Lesungen() + p.Umbenennungen();
    return Folge;
}

// An input of the history in place of the present one, with the study and the compound in view that it concerns.
void Ruecknahme::stelle_her(const Eingabe& e) {
    const Unterschied u = vergleiche(z_.Vorgabe, e);
    const bool andere_Fenster = z_.Vorgabe.Parameter.TWA_Zeiten != e.Parameter.TWA_Zeiten;
    z_.Vorgabe = e;
    if (andere_Fenster) z_.Sicht.TWA_Laenge = TWA_Vorauswahl(e.Parameter.TWA_Zeiten);
    for (const Satzart Art : alle_Arten) {
        if (u.Arten[Art]) z_.Saetze[Art].merke_Aenderung();
    }
    if (u.i_studie >= 0) z_.Sicht.Studie_Index = u.i_studie;
    z_.Sicht.Studie_Index = std::min(z_.Sicht.Studie_Index, z_.Studienzahl() - 1);
    if (u.i_substanz >= 0) z_.Sicht.Substanz = u.i_substanz;
    if (z_.Sicht.Substanz >= Anzahl_Stoffe(z_.Vorgabe.Berechnungsmodus)) z_.Sicht.Substanz = 0;
    Felder_.fuelle();
    Diagramme_.bringe_nach_vorn(z_.Sicht.Substanz);
    Laeufe_.berechne();
    // A run repairs the table; the step is the table as it was, or there would be no way past it.
    z_.Vorgabe.Applikationsschema = e.Applikationsschema;
}

}  // namespace varnok
