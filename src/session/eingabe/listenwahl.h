#pragma once

#include "session/eingabe/feldeingabe.h"
#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The lists, options and tabs of the main screen: what a choice of the user stores, marks and runs. A choice
// of what is already chosen does nothing.
class Listenwahl {
public:
    Listenwahl(Eingabestand& z, Laufsteuerung& Laeufe, Feldeingabe& Felder, Diagrammsteuerung& Diagramme)
        : z_(z), Laeufe_(Laeufe), Felder_(Felder), Diagramme_(Diagramme) {}

    // compound data
    void waehle_Substanz(int c);
    void waehle_Kinetik(int c, Kinetikart k);
    void waehle_Studie(int i);
    void waehle_Berechnungsmodus(Stoffschema m);
    void aendere_Namen(int c, const std::string& Name);
    // The text is left: what carries the name follows as at the end of any action.
    void verlasse_Namen() {}

    // application pattern
    void waehle_Muster(Applikationsart m);
    void waehle_Monat(int i);
    void waehle_Tag(int i);
    void waehle_Intervall(int i);
    void waehle_Anzahl(int i);

    // results
    void waehle_Endpunkt(Endpunktart e);
    void waehle_PEC_Typ(PEC_Ansicht a);
    void waehle_Fruchtwechsel(Fruchtfolge r);
    void waehle_TWA_Laenge(int j);
    void zeige_Studien();
    void zeige_Zusammenfassung();

    // Lists whose length depends on the input, and what can be chosen now.
    int Tage() const;
    int Intervalle() const;
    std::vector<std::string> TWA_Laengen() const;
    bool darf_Zusammenfassung() const { return z_.Gestartet && z_.Studienzahl() > 1; }

private:
    void merke_Applikation();

    Eingabestand& z_;
    Laufsteuerung& Laeufe_;
    Feldeingabe& Felder_;
    Diagrammsteuerung& Diagramme_;
    std::vector<Applikationszeile> Zeilenvorrat_;  // of the table, cut off by a smaller number
    int Vorrat_der_Lesung_ = 0;
};

}  // namespace varnok
