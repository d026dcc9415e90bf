#include "session/programm/aktualisierungssteuerung.h"

#include <utility>

#include "session/kern/texte.h"

namespace varnok {

using Ausgang = Aktualisierungsausgang;

Aktualisierungssteuerung::~Aktualisierungssteuerung() { brich_ab(); }

void Aktualisierungssteuerung::brich_ab() {
    if (sucht_beim_Start_) z_.Welt.Update.Netz->brich_ab();
    sucht_beim_Start_ = false;
}

template <class Suche>
Ausgang Aktualisierungssteuerung::fuehre(Suche s) {
    // Also an exception ends the check.
    struct Merker {
        bool& laeuft;
        ~Merker() { laeuft = false; }
    } const Ende{laeuft_};
    laeuft_ = true;
    Fehler_ = false;
    Aktualisierung a(*z_.Welt.Fragen, z_.Welt.Update, vor_dem_Ende_);
    const Ausgang Ergebnis = s(a);
    Fehler_ = ist_Aktualisierungsfehler(Ergebnis);
    if (Ergebnis == Ausgang::Programmende) z_.beende();
    return Ergebnis;
}

void Aktualisierungssteuerung::halte_an() {
    if (laeuft_ && z_.Welt.Update.Netz) z_.Welt.Update.Netz->brich_ab();
}

void Aktualisierungssteuerung::suche() {
    brich_ab();
    const Ausgang Ergebnis = fuehre([](Aktualisierung& a) { return a.Suche_nach_Update(); });
    if (Ergebnis == Ausgang::keine_Antwort && !z_.beendet())
        varnok::melde(z_, Texte::keine_Verbindung, Texte::Updateserver_antwortet_nicht);
}

void Aktualisierungssteuerung::suche_beim_Start(std::function<void(const std::string& Seite)> antwortet) {
    const Aktualisierungswelt& Welt = z_.Welt.Update;
    if (!Welt.vorhanden()) return;
    sucht_beim_Start_ = true;
    Welt.Netz->hole_nebenher(Welt.Ziel.Versionsseite(), Startgrenze,
                             [this, antwortet = std::move(antwortet)](const Abrufantwort& Seite) {
                                 sucht_beim_Start_ = false;
                                 Fehler_ = !Seite || !Version_der_Seite(*Seite);
                                 if (!Fehler_ && !z_.Gestartet && !z_.beendet()) antwortet(*Seite);
                             });
}

void Aktualisierungssteuerung::melde(const std::string& Seite) {
    fuehre([&](Aktualisierung& a) { return a.beurteile(Seite); });
}

}  // namespace varnok
