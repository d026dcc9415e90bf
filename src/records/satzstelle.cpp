#include "records/satzstelle.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace varnok {
namespace {

// Lines of a compound record in front of the first study and of each study, and the lines behind the last study down to
// the metabolism scheme; the parent's line is the next.
constexpr int Zeilen_vor_Studien = 9;
constexpr int Zeilen_pro_Studie = 15;
constexpr int Zeilen_vor_Stoffen = 4;

// From where a line is counted.
enum class Bezug { Datei, Studie, Stoff };

struct Eintrag {
    std::string_view Feld;
    Satzart Art;
    Bezug gezaehlt_ab;
    int Zeile;
};

constexpr std::array Eintraege = {
    Eintrag{"Bodendichte", Szenario, Bezug::Datei, 3},
    Eintrag{"Bodentiefe", Szenario, Bezug::Datei, 4},
    Eintrag{"Plateautiefe", Szenario, Bezug::Datei, 5},
    Eintrag{"Kohlenstoffgehalt", Szenario, Bezug::Datei, 6},
    Eintrag{"Feldkapazitaet", Szenario, Bezug::Datei, 7},
    Eintrag{"Welkepunkt", Szenario, Bezug::Datei, 8},
    Eintrag{"Applikationsrate", Applikation, Bezug::Datei, 5},
    Eintrag{"Interzeption", Applikation, Bezug::Datei, 6},
    Eintrag{"KOC", Wirkstoff, Bezug::Studie, 2},
    Eintrag{"Q10", Wirkstoff, Bezug::Studie, 3},
    Eintrag{"Walker", Wirkstoff, Bezug::Studie, 4},
    Eintrag{"TRef", Wirkstoff, Bezug::Studie, 5},
    Eintrag{"Kinetik", Wirkstoff, Bezug::Studie, 6},
    Eintrag{"k_SFO", Wirkstoff, Bezug::Studie, 7},
    Eintrag{"alpha_FOMC", Wirkstoff, Bezug::Studie, 8},
    Eintrag{"beta_FOMC", Wirkstoff, Bezug::Studie, 9},
    Eintrag{"k1_DFOP", Wirkstoff, Bezug::Studie, 10},
    Eintrag{"k2_DFOP", Wirkstoff, Bezug::Studie, 11},
    Eintrag{"g_DFOP", Wirkstoff, Bezug::Studie, 12},
    Eintrag{"k1_HS", Wirkstoff, Bezug::Studie, 13},
    Eintrag{"k2_HS", Wirkstoff, Bezug::Studie, 14},
    Eintrag{"Tb_HS", Wirkstoff, Bezug::Studie, 15},
    Eintrag{"Molmasse", Wirkstoff, Bezug::Stoff, 1},
    Eintrag{"Bildungsanteil", Wirkstoff, Bezug::Stoff, 1},
};

// Lines in front of the one that an entry counts from; nothing where the fault does not tell.
std::optional<int> Zeilen_davor(Bezug b, const Fehlerort& Ort, const Eingabe& e) {
    if (b == Bezug::Datei) return 0;
    const int Index = b == Bezug::Studie ? Ort.i_studie : Ort.i_substanz;
    if (Index < 0) return std::nullopt;
    if (b == Bezug::Studie) return Zeilen_vor_Studien + Zeilen_pro_Studie * Index;
    return Zeilen_vor_Studien + Zeilen_pro_Studie * e.Studienzahl() + Zeilen_vor_Stoffen + Index;
}

}  // namespace

std::optional<Satzstelle> finde_Satzstelle(const Fehlerort& Ort, const Eingabe& e) {
    const auto gefunden = std::find_if(Eintraege.begin(), Eintraege.end(), [&](const Eintrag& x) { return x.Feld == Ort.Feld; });
    if (gefunden == Eintraege.end()) return std::nullopt;
    // With the irregular pattern it is the table that holds doses and interceptions.
    if (gefunden->Art == Applikation && e.Applikationsmuster == unregelmaessig) {
        return Satzstelle{Applikation, Ort.Reihe > 0 ? Zeile_der_Tabellenreihe(Ort.Reihe) : 0};
    }
    const auto davor = Zeilen_davor(gefunden->gezaehlt_ab, Ort, e);
    if (!davor) return std::nullopt;
    return Satzstelle{gefunden->Art, *davor + gefunden->Zeile};
}

}  // namespace varnok
