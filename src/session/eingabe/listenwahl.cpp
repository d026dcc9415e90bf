#include "session/eingabe/listenwahl.h"

#include <algorithm>
#include <utility>

#include "exposure/twa.h"
#include "run/kalender.h"

namespace varnok {

void Listenwahl::merke_Applikation() { z_.Saetze[Applikation].merke_Aenderung(); }

void Listenwahl::waehle_Substanz(int c) {
    z_.Sicht.Substanz = c;
    Diagramme_.bringe_nach_vorn(c);
}

void Listenwahl::waehle_Kinetik(int c, Kinetikart k) {
    Kinetikart& Kinetik = z_.Parameter().Kinetik[static_cast<std::size_t>(c)][static_cast<std::size_t>(z_.i_studie())];
    if (Kinetik == k) return;
    Kinetik = k;
    z_.Saetze[Wirkstoff].merke_Aenderung();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Studie(int i) {
    if (i == z_.i_studie()) return;
    z_.Sicht.Studie_Index = i;
    Felder_.fuelle();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Berechnungsmodus(Stoffschema m) {
    if (m == z_.Vorgabe.Berechnungsmodus) return;
    z_.Vorgabe.Berechnungsmodus = m;
    if (z_.Sicht.Substanz >= Anzahl_Stoffe(m)) z_.Sicht.Substanz = 0;
    if (!z_.Gestartet) return;
    z_.Saetze[Wirkstoff].merke_Aenderung();
    // Nothing valid stands for the new scheme: the summary ends and every study is run.
    z_.zeige_Studien();
    Laeufe_.berechne_alle_Studien();
}

void Listenwahl::aendere_Namen(int c, const std::string& Name) {
    std::string& Platz = c == 0 ? z_.Vorgabe.Name_Wirkstoff : c == 1 ? z_.Vorgabe.Name_Met_1 : z_.Vorgabe.Name_Met_2;
    if (Platz == Name) return;
    Platz = Name;
    z_.Saetze[Wirkstoff].merke_Aenderung();
}

void Listenwahl::waehle_Muster(Applikationsart m) {
    if (m == z_.Vorgabe.Applikationsmuster) return;
    z_.Vorgabe.Applikationsmuster = m;
    if (!z_.Gestartet) return;
    merke_Applikation();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Monat(int i) {
    if (i == z_.Vorgabe.App_Monat) return;
    z_.Vorgabe.App_Monat = i;
    z_.Vorgabe.App_Tag = std::min(z_.Vorgabe.App_Tag, Tage_im_Monat(i + 1) - 1);
    merke_Applikation();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Tag(int i) {
    if (i == z_.Vorgabe.App_Tag) return;
    z_.Vorgabe.App_Tag = i;
    merke_Applikation();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Intervall(int i) {
    if (i == z_.Vorgabe.Intervall_Index) return;
    z_.Vorgabe.Intervall_Index = i;
    z_.zeige_Studien();
    merke_Applikation();
    Laeufe_.berechne();
}

void Listenwahl::waehle_Anzahl(int i) {
    Eingabe& e = z_.Vorgabe;
    const int Anzahl = kleinste_Anzahl(e) + i;
    if (Anzahl == e.Anzahl()) return;
    const std::size_t bisher = e.Applikationsschema.size();
    // Rows in store are those of the record on the screen.
    const int jetzige = z_.Saetze[Applikation].Lesungen();
    if (std::exchange(Vorrat_der_Lesung_, jetzige) != jetzige) Zeilenvorrat_.clear();
    Zeilenvorrat_.resize(max_Applikationen);
    std::copy(e.Applikationsschema.begin(), e.Applikationsschema.end(), Zeilenvorrat_.begin());
    varnok::waehle_Anzahl(e, Anzahl);
    for (std::size_t k = bisher; k < e.Applikationsschema.size(); ++k) e.Applikationsschema[k] = Zeilenvorrat_[k];
    if (e.Applikationsmuster == unregelmaessig) return;  // the table takes effect with its Enter key
    Laeufe_.berechne();
}

void Listenwahl::waehle_Endpunkt(Endpunktart e) {
    if (e == z_.Sicht.Endpunkt) return;
    z_.Sicht.Endpunkt = e;
}

void Listenwahl::waehle_PEC_Typ(PEC_Ansicht a) {
    if (a == z_.Sicht.PEC_Typ) return;
    z_.Sicht.PEC_Typ = a;
    Diagramme_.setze_Bereiche_nach_Ansicht();
    Diagramme_.bringe_nach_vorn(z_.Sicht.Substanz);
}

void Listenwahl::waehle_Fruchtwechsel(Fruchtfolge r) {
    if (r == z_.Sicht.Fruchtwechsel) return;
    z_.Sicht.Fruchtwechsel = r;
}

void Listenwahl::waehle_TWA_Laenge(int j) {
    if (j == z_.Sicht.TWA_Laenge) return;
    z_.Sicht.TWA_Laenge = j;
}

void Listenwahl::zeige_Studien() { z_.zeige_Studien(); }

void Listenwahl::zeige_Zusammenfassung() {
    if (z_.Studienzahl() <= 1) return;
    z_.zeige_Zusammenfassung();
    Laeufe_.berechne();
}

int Listenwahl::Tage() const { return Tage_im_Monat(z_.Vorgabe.App_Monat + 1); }

int Listenwahl::Intervalle() const { return laengstes_Intervall(z_.Vorgabe.Anzahl()); }

std::vector<std::string> Listenwahl::TWA_Laengen() const { return TWA_Eintraege(z_.Parameter(), z_.Welt.Dezimalzeichen); }

}  // namespace varnok
