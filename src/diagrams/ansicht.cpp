#include "diagrams/ansicht.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "exposure/twa.h"

namespace varnok {
namespace {

constexpr auto st = [](int i) { return static_cast<std::size_t>(i); };

constexpr std::array<std::string_view, 4> Schematexte = {
    "Parent only", "Parent with 1 metabolite", "Parent and 2 metabolites (parallel)", "Parent and 2 metabolites (sequence)"};
constexpr std::array<std::string_view, 4> Kinetiktexte = {"SFO", "DFOP", "FOMC", "HS"};
constexpr std::array<std::string_view, 3> Titelanfaenge = {"Annual concentration of ", "Background concentration of ",
                                                           "PEC acumumlation for "};
// [unit][endpoint]
constexpr std::array<std::array<std::string_view, 2>, 2> Einheiten = {{{"mg/kg", "mg/L"}, {"µg/kg", "µg/L"}}};
constexpr std::array<std::string_view, 2> Ergebnisworte = {"Total soil concentrations (", "Pore water concentrations ("};

template <std::size_t n>
std::string_view Eintrag(const std::array<std::string_view, n>& Liste, int i) {
    return Liste[st(std::clamp(i, 0, static_cast<int>(n) - 1))];
}

}  // namespace

Ansicht::Ansicht(const Lauf& l)
    : l_(&l),
      e_(l.Felder.Endpunkt == 1 ? 1 : 0),
      Art_(l.Felder.PEC_Typ),
      Fenster_(st(std::clamp(l.Felder.TWA_Laenge, 0, Anzahl_TWA(l.Parameter.TWA_Zeiten) - 1)) + 1) {}

float Ansicht::Maximum(int i_studie, int i_substanz) const {
    const Ergebnisspeicher& s = l_->Speicher;
    if (Art_ == Hintergrund) return s.Maximum_Plateautiefe[e_][st(i_studie)][st(i_substanz)];
    const float Peak = s.Maximum_Bodentiefe[e_][st(i_studie)][st(i_substanz)];
    return Art_ == Anreicherung ? Peak + s.Plateauwert[e_][st(i_studie)][st(i_substanz)] : Peak;
}

std::vector<float> Ansicht::Werte(int i_studie, int i_substanz, int von, int bis) const {
    if (bis < von) return {};
    const Ergebnisspeicher& s = l_->Speicher;
    const auto Reihe = Art_ == Hintergrund ? s.Reihe_Plateautiefe(Endpunkt(), i_studie, i_substanz, 0)
                                           : s.Reihe_Bodentiefe(Endpunkt(), i_studie, i_substanz, 0);
    std::vector<float> Werte(Reihe.begin() + von, Reihe.begin() + bis + 1);
    if (Art_ == Anreicherung) {
        const float Plateau = s.Plateauwert[e_][st(i_studie)][st(i_substanz)];
        for (float& w : Werte) w += Plateau;
    }
    return Werte;
}

float Ansicht::Maximumtag_plus(int i_studie, int i_substanz, float Tage) const {
    return static_cast<float>(l_->Speicher.Maximumtag_Bodentiefe[e_][st(i_studie)][st(i_substanz)]) + Tage;
}

float Ansicht::laengstes_Fenster() const { return l_->Speicher.TWA_Tage[st(Anzahl_TWA(l_->Parameter.TWA_Zeiten))]; }

float Ansicht::TWA_Hoehe(int i_studie, int i_substanz) const {
    const Ergebnisspeicher& s = l_->Speicher;
    return static_cast<float>(Art_) * s.Plateauwert[e_][st(i_studie)][st(i_substanz)] / 2.0F +
           s.TWA_Maximum[e_][st(i_studie)][st(i_substanz)][Fenster_];
}

float Ansicht::TWA_Start(int i_studie, int i_substanz) const {
    return static_cast<float>(l_->Speicher.TWA_Starttag[e_][st(i_studie)][st(i_substanz)][Fenster_]);
}

std::string Ansicht::Einheit() const { return std::string(Einheiten[l_->Parameter.Einheit == 1 ? 1 : 0][e_]); }

std::string Ansicht::Name_y_Achse() const { return "c(" + Einheit() + ")"; }

std::string Ansicht::Dateikopf() const { return "Time (d)\tPEC (" + Einheit() + ")"; }

std::string Ansicht::Ergebnistitel() const { return std::string(Ergebnisworte[e_]) + Einheit() + ") incl. crop rotation"; }

std::string Ansicht::TWA_Text() const { return "TWA " + TWA_Eintraege(*l_)[Fenster_ - 1].substr(3, 100); }

std::string_view Ansicht::Titelanfang() const { return Eintrag(Titelanfaenge, Art_); }

int Studienzahl(const Lauf& l) { return std::clamp(static_cast<int>(l.Parameter.Anzahl_Studien), 1, max_Studien); }

std::string Studienname(const Lauf& l, int i_studie) {
    return st(i_studie) < l.Felder.Studie.size() ? l.Felder.Studie[st(i_studie)] : std::string();
}

std::string_view Kinetiktext(const Lauf& l, int i_substanz, int i_studie) {
    return Eintrag(Kinetiktexte, static_cast<int>(std::nearbyint(l.Parameter.Kinetik[st(i_substanz)][st(i_studie)])));
}

std::string_view Schematext(int Berechnungsmodus) { return Eintrag(Schematexte, Berechnungsmodus); }

std::string Stoffkommentar(const Lauf& l, int i_substanz, int i_studie) {
    return "Mode: " + std::string(Schematext(l.Felder.Berechnungsmodus)) +
           "  - presented substance: " + Stoffname(l.Felder, i_substanz) +
           " (kinetics: " + std::string(Kinetiktext(l, i_substanz, i_studie)) + " )";
}

}  // namespace varnok
