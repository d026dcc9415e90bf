#pragma once

// Which values the inputs take, in one table: the fields of the window, the remarks about records and the values of a call
// all go by it.

#include <array>
#include <limits>
#include <string>
#include <string_view>

namespace varnok {

// A range of finite numbers; each end is valid itself or is not.
struct Bereich {
    static constexpr double ohne_Ende = std::numeric_limits<double>::max();

    double von = -ohne_Ende;
    bool von_gilt = true;
    double bis = ohne_Ende;
    bool bis_gilt = true;

    constexpr bool enthaelt(double v) const { return (v > von || (von_gilt && v == von)) && (v < bis || (bis_gilt && v == bis)); }
};

// "above 0", "0 to 1", "0 to below 100"
std::string als_Text(const Bereich& b);

// An input that is a number.
struct Wertebereich {
    std::string_view Name;      // of its store, as a `Fehlerort` names it
    std::string_view Einheit;   // as it is typed: a rate constant is typed as a DT50
    Bereich Grenzen;            // what its field accepts
    const char* Meldung;        // what the user is told of another value
    Bereich ueblich = Grenzen;  // a value outside it is worth a remark, and is accepted all the same
};

namespace Bereiche {
inline constexpr Bereich ab_0 = {0};
inline constexpr Bereich ueber_0 = {0, false};
inline constexpr Bereich bis_100 = {0, true, 100, true};
inline constexpr Bereich unter_100 = {0, true, 100, false};
inline constexpr Bereich Tiefe = {0.1, true, 500, true};

inline constexpr const char* Meldung_DT50 = "The DT50 is invalid. Please correct!";
inline constexpr const char* Meldung_Rate = "The applikations rate is invalid. Please correct!";
inline constexpr const char* Meldung_Interzeption = "The crop interception is invalid. Please correct!";
inline constexpr const char* Meldung_Datum = "You entered application dates that are not valid. Please correct!";
}  // namespace Bereiche

// "Tabelle..." are the cells of the table of irregular applications.
inline constexpr std::array Wertebereiche = {
    Wertebereich{"k_SFO", "d", Bereiche::ab_0, Bereiche::Meldung_DT50},
    Wertebereich{"k1_DFOP", "d", Bereiche::ab_0, Bereiche::Meldung_DT50},
    Wertebereich{"k2_DFOP", "d", Bereiche::ab_0, Bereiche::Meldung_DT50},
    Wertebereich{"g_DFOP", "", {0, true, 1, true}, "The g constant is invalid. Please correct!"},
    Wertebereich{"alpha_FOMC", "", Bereiche::ab_0, "The alpha constant is invalid. Please correct!"},
    Wertebereich{"beta_FOMC", "", Bereiche::ueber_0, "The beta constant is invalid. Please correct!"},
    Wertebereich{"k1_HS", "d", Bereiche::ab_0, Bereiche::Meldung_DT50},
    Wertebereich{"k2_HS", "d", Bereiche::ab_0, Bereiche::Meldung_DT50},
    Wertebereich{"Tb_HS", "d", Bereiche::ab_0, "The breakpoint is invalid. Please correct!"},
    Wertebereich{"Q10", "", Bereiche::ueber_0, "The Q10 constant is invalid. Please correct!"},
    Wertebereich{"Walker", "", Bereiche::ab_0, "The Walker exponent is invalid. Please correct!"},
    Wertebereich{"TRef", "°C", Bereiche::ab_0, "The tref exponent is invalid. Please correct!"},
    Wertebereich{"KOC", "L/kg", Bereiche::ab_0, "The KOC constant is invalid. Please correct!"},
    Wertebereich{"Molmasse", "g/mol", Bereiche::ueber_0, "The molecular mass is invalid. Please correct!"},
    Wertebereich{"Bildungsanteil", "%", Bereiche::bis_100, "The formation rate is invalid. Please correct!"},
    Wertebereich{"Applikationsrate", "g/ha", Bereiche::ueber_0, Bereiche::Meldung_Rate},
    Wertebereich{"Interzeption", "%", Bereiche::unter_100, Bereiche::Meldung_Interzeption},
    Wertebereich{"Anzahl", "", {2, true, 20, true}, "The number of applications is invalid. Please correct!"},
    Wertebereich{"Tabellentag", "", {1, true, 31, true}, Bereiche::Meldung_Datum},
    Wertebereich{"Tabellenmonat", "", {1, true, 12, true}, Bereiche::Meldung_Datum},
    Wertebereich{"Tabellenrate", "g/ha", Bereiche::ab_0, Bereiche::Meldung_Rate},
    Wertebereich{"Tabelleninterzeption", "%", Bereiche::unter_100, Bereiche::Meldung_Interzeption},
    Wertebereich{"Bodendichte", "kg/L", Bereiche::ueber_0, "The soil density is invalid. Please correct!", {0.2, true, 3, true}},
    Wertebereich{"Bodentiefe", "cm", Bereiche::Tiefe, "The soil depth is invalid. Please correct!"},
    Wertebereich{"Plateautiefe", "cm", Bereiche::Tiefe, "The tillage depth is invalid. Please correct!"},
    Wertebereich{"Kohlenstoffgehalt", "%", Bereiche::bis_100, "The organic carbon content is invalid. Please correct!"},
    Wertebereich{"Feldkapazitaet", "Vol%", {0, false, 100, true}, "The field capacity is invalid. Please correct!"},
    Wertebereich{"Welkepunkt", "Vol%", Bereiche::bis_100, "The wilting point is invalid. Please correct!"},
    Wertebereich{"Szenariotemperatur", "°C", {0, true, 40, true}, "The temperature is invalid. Please correct!"},
    Wertebereich{"TWA", "d", Bereiche::ueber_0, "The length of the averaging window is invalid. Please correct!"},
};

// The line of a store, null without one.
constexpr const Wertebereich* finde_Wertebereich(std::string_view Name) {
    for (const Wertebereich& w : Wertebereiche) {
        if (w.Name == Name) return &w;
    }
    return nullptr;
}

// The same for a name in the program, which must be in the table. Under the sanitizers no comparison with a null pointer is a
// constant.
consteval const Wertebereich* Grenzen_von(std::string_view Name) {
    for (const Wertebereich& w : Wertebereiche) {
        if (w.Name == Name) return &w;
    }
    throw "no such store";
}

}  // namespace varnok
