#include "diagrams/ergebnissicht.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "exposure/twa.h"
#include "run/bezeichnungen.h"

namespace varnok {
namespace {

constexpr auto st = [](int i) { return static_cast<std::size_t>(i); };

// by view
constexpr std::array<std::string_view, 3> Titelanfaenge = {"Annual concentration of ", "Background concentration of ",
                                                           "PEC acumumlation for "};
// by endpoint
constexpr std::array<std::string_view, Endpunkte> Ergebnisworte = {"Total soil concentrations (", "Pore water concentrations ("};

// The entry of a list that a selector stands on, the last one where the list has become shorter.
template <class Liste>
const auto& gewaehlt(const Liste& l, int Platz) {
    return l[st(std::clamp(Platz, 0, static_cast<int>(l.size()) - 1))];
}

}  // namespace

Ergebnissicht::Ergebnissicht(const Darstellung& d, int i_studie)
    : d_(d), i_studie_(i_studie), Vorgabe_(*d.Studie(i_studie).Vorgabe) {}

float Ergebnissicht::Maximum(int i_studie, int i_substanz) const {
    const Endpunktergebnis& e = d_.Werte(i_studie, i_substanz);
    if (PEC_Art() == Hintergrund) return e.Maximum_Plateautiefe;
    return PEC_Art() == Anreicherung ? e.Maximum_Bodentiefe + e.Plateauwert : e.Maximum_Bodentiefe;
}

std::vector<float> Ergebnissicht::Werte(int i_studie, int i_substanz, int von, int bis) const {
    if (bis < von) return {};
    const Endpunktergebnis& e = d_.Werte(i_studie, i_substanz);
    const std::vector<float>& Reihe = PEC_Art() == Hintergrund ? e.Reihe_Plateautiefe : e.Reihe_Bodentiefe;
    std::vector<float> Werte(Reihe.begin() + von, Reihe.begin() + bis + 1);
    if (PEC_Art() == Anreicherung) {
        for (float& w : Werte) w += e.Plateauwert;
    }
    return Werte;
}

const std::vector<float>& Ergebnissicht::Reihe_Plateautiefe(int i_studie, int i_substanz) const {
    return d_.Werte(i_studie, i_substanz).Reihe_Plateautiefe;
}

float Ergebnissicht::Maximumtag_plus(int i_studie, int i_substanz, float Tage) const {
    return static_cast<float>(d_.Werte(i_studie, i_substanz).Maximumtag_Bodentiefe) + Tage;
}

const Fensterergebnis& Ergebnissicht::Fenster(int i_studie, int i_substanz) const {
    return gewaehlt(d_.Werte(i_studie, i_substanz).TWA, d_.Sicht.TWA_Laenge);
}

float Ergebnissicht::TWA_Hoehe(int i_studie, int i_substanz) const {
    return static_cast<float>(PEC_Art()) * d_.Werte(i_studie, i_substanz).Plateauwert / 2.0F +
           Fenster(i_studie, i_substanz).Maximum;
}

float Ergebnissicht::TWA_Start(int i_studie, int i_substanz) const {
    return static_cast<float>(Fenster(i_studie, i_substanz).Starttag);
}

float Ergebnissicht::laengstes_Fenster(int i_studie, int i_substanz) const {
    return d_.Werte(i_studie, i_substanz).TWA.back().Tage;
}

std::string Ergebnissicht::Einheit() const {
    return std::string(Konzentrationseinheit(Vorgabe_.Parameter.Einheit, d_.Sicht.Endpunkt));
}

std::string Ergebnissicht::Name_y_Achse() const { return "c(" + Einheit() + ")"; }

std::string Ergebnissicht::Dateikopf() const { return "Time (d)\tPEC (" + Einheit() + ")"; }

std::string Ergebnissicht::Ergebnistitel() const {
    return std::string(Ergebnisworte[d_.Sicht.Endpunkt]) + Einheit() + ") incl. crop rotation";
}

std::string Ergebnissicht::TWA_Text() const {
    return "TWA  (" + Fensterlaenge(gewaehlt(varnok::TWA_Fenster(Vorgabe_.Parameter), d_.Sicht.TWA_Laenge)) + ")";
}

std::string Ergebnissicht::Titelanfang() const { return std::string(Titelanfaenge[PEC_Art()]) + d_.Namen.Beschreibung; }

std::string Ergebnissicht::Schemakommentar() const { return "Mode: " + std::string(Schemanamen[Vorgabe_.Berechnungsmodus]); }

std::string Ergebnissicht::Stoffkommentar(int i_substanz) const {
    const Kinetikart Kinetik = Vorgabe_.Parameter.Kinetik[st(i_substanz)][st(i_studie_)];
    return Schemakommentar() + "  - presented substance: " + Stoffname(i_substanz) +
           " (kinetics: " + std::string(Kinetiknamen[Kinetik]) + " )";
}

}  // namespace varnok
