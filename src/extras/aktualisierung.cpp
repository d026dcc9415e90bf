#include "extras/aktualisierung.h"

#include <exception>

#include "extras/signatur.h"

namespace varnok {

using Ausgang = Aktualisierungsausgang;

Knopf Aktualisierung::sage(const std::string& Titel, const std::string& Text, std::vector<Knopf> Knoepfe) {
    return Fragen_.frage({Titel, Text, Symbol::keines, std::move(Knoepfe)});
}

Ausgang Aktualisierung::Suche_nach_Update() {
    if (!Welt_.vorhanden()) return Ausgang::keine_Antwort;
    return beurteile(Welt_.Netz->hole(Welt_.Ziel.Versionsseite(), Seitengrenze));
}

Ausgang Aktualisierung::beurteile(const Abrufantwort& Seite) {
    const auto Version = Seite ? Version_der_Seite(*Seite) : std::nullopt;
    if (!Version) return Ausgang::keine_Antwort;
    const int Vergleich = vergleiche_mit_eigener(*Version);
    if (Vergleich > 0) return biete_an(*Version);
    if (Vergleich < 0) {
        sage(Updatetexte::Titel, Updatetexte::aeltere_Version, {Knopf::OK, Knopf::Abbrechen});
    } else {
        sage(Updatetexte::Titel, Updatetexte::gleiche_Version);
    }
    return Ausgang::beantwortet;
}

// A program that the user cannot replace is fetched by hand, or comes with the next package.
Ausgang Aktualisierung::biete_an(const Serverversion& Version) {
    const std::string neu = std::string(Updatetexte::neue_Version) + "\n";
    if (!Welt_.Tausch->moeglich()) {
        sage(Updatetexte::Titel_neue_Version, neu + Welt_.Ziel.Versionsseite());
        return Ausgang::beantwortet;
    }
    const Knopf Antwort = sage(Updatetexte::Titel_neue_Version, neu + Updatetexte::wollen_Sie, {Knopf::Ja, Knopf::Nein});
    return Antwort == Knopf::Ja ? lade(Version) : Ausgang::beantwortet;
}

// The signature first: without one the program need not travel.
Ausgang Aktualisierung::lade(const Serverversion& Version) {
    const Abrufantwort Signatur = Welt_.Netz->hole(Welt_.Ziel.Signatur(), Signaturgrenze);
    const Abrufantwort Programm = Signatur ? Welt_.Netz->hole(Welt_.Ziel.Programm(), Programmgrenze) : std::nullopt;
    if (!Programm) {
        sage_Ablehnung(Updatetexte::nicht_angekommen);
        return Ausgang::nicht_geladen;
    }
    const std::string Text = signierter_Text(Version.Zeichen, Aktualisierungsziel::Programmname(), *Programm);
    if (!Signatur_passt(*Signatur, Text, Welt_.Ziel.Schluessel)) {
        sage_Ablehnung(Updatetexte::falsche_Signatur);
        return Ausgang::falsch_signiert;
    }
    return tausche(*Programm);
}

Ausgang Aktualisierung::tausche(const std::string& Programm) {
    try {
        Welt_.Tausch->bereite_vor(Programm);
        if (vor_dem_Ende_) vor_dem_Ende_();
    } catch (const std::exception& Fehler) {
        return verwirf(Fehler.what());
    }
    sage(Updatetexte::Titel, Updatetexte::geladen);
    if (Welt_.Tausch->starte_neues_Programm()) return Ausgang::Programmende;
    return verwirf(Updatetexte::nicht_gestartet);
}

Ausgang Aktualisierung::verwirf(const std::string& Grund) {
    Welt_.Tausch->verwirf();
    sage_Ablehnung(Grund);
    return Ausgang::nicht_ersetzt;
}

void Aktualisierung::sage_Ablehnung(const std::string& Grund) {
    Fragen_.frage({Updatetexte::Titel_abgelehnt, Grund + Updatetexte::nichts_ersetzt, Symbol::Ausrufezeichen, {Knopf::OK}});
}

}  // namespace varnok
