#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <tuple>

#include "run/arten.h"
#include "run/zeitachse.h"

namespace varnok {

// One value for each study; study 0 to 5 are in use.
template <class T>
using Studientabelle = std::array<T, Studienplaetze>;

// One value for each compound and study.
template <class T>
using Stofftabelle = std::array<Studientabelle<T>, Stoffe>;

template <class T>
constexpr Studientabelle<T> ueberall(T Wert) {
    Studientabelle<T> Tabelle{};
    Tabelle.fill(Wert);
    return Tabelle;
}

template <class T>
constexpr Stofftabelle<T> fuer_alle(T Wert) {
    Stofftabelle<T> Tabelle{};
    Tabelle.fill(ueberall(Wert));
    return Tabelle;
}

// Lengths of the averaging windows in days, of both lists; they belong to the settings.
struct TWA_Listen {
    std::array<double, 10> EU = {1, 2, 4, 7, 14, 21, 28, 42, 50, 100};
    std::array<double, 12> Monat = {30, 60, 90, 120, 150, 180, 210, 240, 270, 300, 330, 360};

    friend bool operator==(const TWA_Listen&, const TWA_Listen&) = default;
};

// The most averaging windows that a list has.
inline constexpr int meiste_TWA =
    static_cast<int>(std::max(std::tuple_size_v<decltype(TWA_Listen::EU)>, std::tuple_size_v<decltype(TWA_Listen::Monat)>));

// The run parameters that all parts of the program share. The values set here are those of a
// program that has read no record yet.
struct Laufparameter {
    // scenario
    double Bodendichte = 0;        // kg/L
    double Bodentiefe = 0;         // cm
    double Plateautiefe = 0;       // cm
    double Kohlenstoffgehalt = 0;  // %
    double Feldkapazitaet = 0;     // Vol%
    double Welkepunkt = 0;         // Vol%
    Klimaart Klimamodus = konstante_Temperatur;
    std::uint8_t Szenariotemperatur = 20;  // degrees C

    // options
    Einheitsart Einheit = Milligramm;
    Rueckstandsart Separate_Rueckstaende = gemeinsam;
    TWA_Listenart TWA_Zeiten = EU_Liste;
    std::array<std::uint8_t, 7> Ausgabename_Teile{};  // product, study, kinetics, endpoint, date, time, unused
    std::uint8_t Rechenmodus = 0;                     // carried through the record

    // compounds
    Stofftabelle<double> KOC = fuer_alle(0.0);  // L/kg
    Stofftabelle<double> Q10 = fuer_alle(1.0);
    Stofftabelle<double> Walker = fuer_alle(0.0);
    Stofftabelle<double> TRef = fuer_alle(20.0);  // degrees C
    Stofftabelle<Kinetikart> Kinetik = fuer_alle(SFO);
    Stofftabelle<double> k_SFO = fuer_alle(0.01);  // 1/d
    Stofftabelle<double> k1_DFOP = fuer_alle(0.01);
    Stofftabelle<double> k2_DFOP = fuer_alle(0.01);
    Stofftabelle<double> g_DFOP = fuer_alle(0.5);
    Studientabelle<double> alpha_FOMC = ueberall(0.1);
    Studientabelle<double> beta_FOMC = ueberall(1.0);  // d
    Studientabelle<double> k1_HS = ueberall(0.01);     // 1/d
    Studientabelle<double> k2_HS = ueberall(0.01);
    Studientabelle<double> Tb_HS = ueberall(10.0);  // d

    TWA_Listen TWA;

    friend bool operator==(const Laufparameter&, const Laufparameter&) = default;
};

}  // namespace varnok
