#include "session/kern/sitzung.h"

#include <utility>

#include "session/kern/versuch.h"

namespace varnok {

Sitzung::Sitzung(Umgebung Welt) {
    z_.Welt = std::move(Welt);
    z_.Statuszeile.stelle_Uhr(&z_.Zeit());
}

// The one place that turns a fault of a command into a message. What stands behind that is what there is by then.
void Sitzung::versuche(const Handlung& h) {
    varnok::versuche(z_, [&] {
        try {
            h();
        } catch (...) {
            Fehler_bei([this] { zeichne_Stand(); });
            throw;
        }
    });
}

// The one way of a command.
void Sitzung::fuehre(const Ablauf& a, const Handlung& h) {
    if (a.Weg == Weg::Zwischenschritt) return versuche(h);
    const bool nimmt_an = a.Weg != Weg::Handlung && !(a.nach_Klimameldung && Laeufe_.Klimadatei_fehlt());
    const bool Lauf_fehlt = nimmt_an && a.Weg == Weg::Rechenbefehl && Felder_.aktives_Feld() >= 0;
    const int begonnen = z_.Statuszeile.Handlung();
    if (nimmt_an && !nimm_Texte_an(a.Weg == Weg::Befehl)) return;
    z_.Statuszeile.zaehle_zur_naechsten(begonnen);  // what a field told belongs to this command
    Laeufe_.sieh_Klima_an();
    versuche(h);
    // A command that was to run and did not leaves the accepted value without results.
    if (Lauf_fehlt && z_.Hinweis() && !z_.abgedeckt() && !z_.beendet()) versuche([this] { Laeufe_.berechne(); });
    schliesse_Handlung_ab();
}

// What a command finds is complete. False where the field or the cell in work refuses its value.
bool Sitzung::nimm_Texte_an(bool mit_Lauf) {
    if (Tabelle_.ist_in_Arbeit() && !fuehre_aus<&Applikationstabelle::schliesse_ab>()) return false;
    if (Felder_.aktives_Feld() >= 0 && !fuehre_aus<&Feldeingabe::schliesse_ab>(mit_Lauf)) return false;
    if (Studien_.Name_offen()) fuehre_aus<&Studienverwaltung::bestaetige>(false);
    if (Umbenennung_.offen()) fuehre_aus<&Satzumbenennung::bestaetige>(false);
    if (Beschreibung_.offen()) fuehre_aus<&Beschreibungseingabe::schliesse>();
    Ruecknahme_.merke();  // a cell or a name typed before is a step of its own
    return true;
}

// What follows from the values that an action leaves: marks without a difference go, what is shown is drawn, and then told of.
void Sitzung::schliesse_Handlung_ab() {
    Laeufe_.sieh_Klima_an();  // the action may have named another file, or changed this one
    z_.raeume_Marken_auf();
    if (!z_.Zusammenfassung_aktiv()) z_.zeige_Studien();  // it does not come back with a second study
    if (z_.Gestartet) {
        versuche([this] { zeichne_Stand(); });
        Laeufe_.melde_Warnungen();
        Berichte_.schliesse_veralteten();
    }
    Ruecknahme_.merke();
    fuehre_Statuszeile();
    if (z_.beendet()) Zwischenstand_.raeume();
}

// A reason that results have overtaken goes, and what is shown is drawn.
void Sitzung::zeichne_Stand() {
    if (!z_.Gestartet) return;
    if (z_.alles_Gezeigte_gueltig()) z_.Gerechnetes.vergiss_Grund();
    Diagramme_.ziehe_nach(Laeufe_.nimm_Gelaufenes().get());
}

void Sitzung::fuehre_Statuszeile() {
    // The first results take no line away: until then nobody has seen it.
    const bool andere_Werte = letzte_Werte_ != Ergebnisse{} && z_.Werte() != letzte_Werte_;
    z_.Statuszeile.schliesse_ab(z_.Vorgabe != letzte_Vorgabe_ || z_.Namen != letzte_Namen_ || andere_Werte);
    letzte_Vorgabe_ = z_.Vorgabe;
    letzte_Namen_ = z_.Namen;
    letzte_Werte_ = z_.Werte();
}

}  // namespace varnok
