#pragma once

// What surrounds a session in a walk and is no file of its project: a server, the program's own file, a desktop.

#include <string>

#include "extras/schluessel.h"
#include "extras/signatur.h"
#include "extras/versionsseite.h"
#include "support/updatewelt.h"

namespace varnok::gang {

class Scheinwelt {
public:
    Scheinwelt() { stelle_Server({}, "", ""); }

    Aktualisierungswelt Update() { return {Ziel_, &Netz, &Tausch}; }
    // The version that the page offers, none for no answer; the new program, and what it is signed as.
    void stelle_Server(const std::string& Version, const std::string& Programm, const std::string& unterschrieben) {
        Netz.Antworten.clear();
        Tausch.ersetzbar = Tausch.startet = true;
        if (!Version.empty()) Netz.Antworten[Ziel_.Versionsseite()] = Seite(Version);
        if (Programm.empty()) return;
        Netz.Antworten[Ziel_.Programm()] = Programm;
        const std::string Text = signierter_Text(Version, Aktualisierungsziel::Programmname(), unterschrieben);
        Netz.Antworten[Ziel_.Signatur()] = Testschluessel().signiere(Text);
    }
    static std::string Seite(const std::string& Version) {
        return "<a href=\"Varnok_package_" + Version + ".zip\">VARNOK</a>\r\n";
    }

    Scheinnetz Netz;
    Scheintausch Tausch;
    int Fenster = 0;  // further ones that the program has opened
    bool Fenster_moeglich = true;

private:
    Aktualisierungsziel Ziel_{"http", "example.org", Testschluessel().Hex()};
};

}  // namespace varnok::gang
