#include "session/ergebnis/ergebnisanzeige.h"

#include <memory>

#include "exposure/twa.h"

namespace varnok {
namespace {

// What stands in the place of a study without results: the windows of the input and nothing in the soil.
std::shared_ptr<const Ergebnis> leeres_Ergebnis(const std::shared_ptr<const Eingabe>& Vorgabe, int i_studie) {
    auto Leeres = std::make_shared<Ergebnis>();
    Leeres->Vorgabe = Vorgabe;
    Leeres->i_studie = i_studie;
    Endpunktergebnis Null;
    for (const float Tage : TWA_Fenster(Vorgabe->Parameter)) Null.TWA.push_back({.Tage = Tage});
    Stoffergebnis Stoff;
    Stoff.Endpunktwerte.fill(Null);
    Leeres->Stoffwerte.assign(Stoffe, Stoff);
    return Leeres;
}

bool hat_Stoff(const std::shared_ptr<const Ergebnis>& e, int i_substanz) {
    return e && i_substanz < static_cast<int>(e->Stoffwerte.size());
}

// The results with something in every place that a grid of the compound asks for: its rows are those of the selected study.
Ergebnisse mit_Leerstellen(const Zustand& z, int i_substanz) {
    Ergebnisse Studien = z.Werte();
    auto& gewaehlte = Studien.at(static_cast<std::size_t>(z.i_studie()));
    if (!hat_Stoff(gewaehlte, i_substanz)) gewaehlte = leeres_Ergebnis(std::make_shared<const Eingabe>(z.Vorgabe), z.i_studie());
    const std::shared_ptr<const Eingabe> Vorgabe = gewaehlte->Vorgabe;
    for (int st = 0; st < max_Studien; ++st) {
        auto& e = Studien[static_cast<std::size_t>(st)];
        const bool passt = hat_Stoff(e, i_substanz) && e->Vorgabe->Parameter.TWA_Zeiten == Vorgabe->Parameter.TWA_Zeiten;
        if (!passt) e = leeres_Ergebnis(Vorgabe, st);
    }
    return Studien;
}

template <class Machen>
auto mache(const Zustand& z, int i_substanz, Machen mache_aus) {
    const Ergebnisse Studien = mit_Leerstellen(z, i_substanz);
    return mache_aus(Darstellung{Studien, z.Sicht, z.Vorgabe});
}

template <class Fuellen>
Tabellentext fuelle_Tabelle(const Zustand& z, int i_substanz, Fuellen fuelle) {
    return mache(z, i_substanz, [&](const Darstellung& d) {
        Tabellentext Tabelle = Tabellenkopf(d.Vorgabe().Parameter, z.Welt.Dezimalzeichen);
        fuelle(d, Tabelle);
        return Tabelle;
    });
}

}  // namespace

Tabellentext Ergebnisse_einer_Studie(const Zustand& z, int i_substanz) {
    return fuelle_Tabelle(z, i_substanz, [&](const Darstellung& d, Tabellentext& Tabelle) {
        erstelle_Ergebnistabelle(d, z.i_studie(), i_substanz, Tabelle);
    });
}

Tabellentext Ergebnisse_aller_Studien(const Zustand& z, int i_substanz) {
    return fuelle_Tabelle(z, i_substanz, [&](const Darstellung& d, Tabellentext& Tabelle) {
        erstelle_Ergebnistabelle_Zusammenfassung(d, i_substanz, Tabelle);
    });
}

Ergebniswerte Werte_einer_Studie(const Zustand& z, int i_substanz) {
    return mache(z, i_substanz, [&](const Darstellung& d) { return Werte_einer_Studie(d, z.i_studie(), i_substanz); });
}

Ergebniswerte Werte_aller_Studien(const Zustand& z, int i_substanz) {
    return mache(z, i_substanz, [&](const Darstellung& d) { return Werte_aller_Studien(d, i_substanz); });
}

int Zeile_des_Mittelwerts(const Ansicht& a) {
    constexpr int davor = 2;  // head and PECmax
    return davor + a.TWA_Laenge;
}

}  // namespace varnok
