#include "batch/perzentile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>

#include "base/zahlen.h"
#include "batch/csv_zeile.h"
#include "exposure/ergebnistabelle.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

enum Ergebnisart { Maximum, Plateau, Maximum_mit_Plateau, TWA };
constexpr std::array<const char*, 4> Ergebnisnamen = {"maximum", "plateau", "maximum_plus_plateau", "twa_"};

constexpr std::array Spalten = {"simulation", "study", "compound", "endpoint", "unit",    "result", "n",
                                "minimum",    "p5",    "p50",      "p95",      "maximum", "mean"};

std::string Ergebnisname(int Art, double Tage) {
    std::string Name = Ergebnisnamen[static_cast<std::size_t>(Art)];
    return Art == TWA ? Name + allgemeine_Zahl(Tage) : Name;
}

}  // namespace

double Perzentil(const std::vector<double>& aufsteigend, double Anteil) {
    const double Stelle = Anteil * static_cast<double>(aufsteigend.size() - 1);
    const auto unten = static_cast<std::size_t>(std::floor(Stelle));
    const std::size_t oben = std::min(unten + 1, aufsteigend.size() - 1);
    return aufsteigend[unten] + (Stelle - std::floor(Stelle)) * (aufsteigend[oben] - aufsteigend[unten]);
}

std::vector<Kennwerte> entnimm_Kennwerte(const Simulationsergebnis& r) {
    std::vector<Kennwerte> Alle;
    for (const auto& s : r.Studien) {
        for (int c = 0; c < static_cast<int>(s->Stoffwerte.size()); ++c) {
            for (const Endpunktart e : alle_Endpunkte) {
                const Endpunktergebnis& w = s->Werte(e, c);
                Kennwerte k;
                k.Studie = s->i_studie + 1;
                k.Stoff = c;
                k.Endpunkt = e;
                k.Einheit = Konzentrationseinheit(s->Vorgabe->Parameter.Einheit, e);
                k.Maximum = static_cast<double>(w.Maximum_Bodentiefe);
                k.Plateau = static_cast<double>(w.Plateauwert);
                k.Maximum_mit_Plateau = Ansichtswert(w.Plateauwert, Anreicherung, r.Sicht.Fruchtwechsel, w.Maximum_Bodentiefe);
                for (const Fensterergebnis& f : w.TWA)
                    k.TWA.emplace_back(static_cast<double>(f.Tage), static_cast<double>(f.Maximum));
                Alle.push_back(std::move(k));
            }
        }
    }
    return Alle;
}

std::string Zusammenfassung::Kopfzeile() {
    std::string Text;
    CSV_Zeile z(Text);
    for (const char* Name : Spalten) z.Text(Name);
    z.beende();
    return Text;
}

void Zusammenfassung::lege_ab(const Kennwerte& k, int Art, double Tage, double Wert) {
    auto& Reihe = Reihen_[{k.Studie, k.Stoff, k.Endpunkt, k.Einheit, Art, Tage}];
    // Twice the room, as a list takes it by itself, would be half of it for nothing where their number is not known.
    if (Reihe.size() == Reihe.capacity()) Reihe.reserve(std::max(Varianten_, Reihe.size() + Reihe.size() / 8 + 16));
    Reihe.push_back(Wert);
}

std::string Zusammenfassung::nimm(const std::string& Simulation, const std::vector<Kennwerte>& Werte) {
    std::string Fertiges;
    if (Simulation != Simulation_) {
        Fertiges = beende();
        Simulation_ = Simulation;
    }
    for (const Kennwerte& k : Werte) {
        lege_ab(k, Maximum, 0, k.Maximum);
        lege_ab(k, Plateau, 0, k.Plateau);
        lege_ab(k, Maximum_mit_Plateau, 0, k.Maximum_mit_Plateau);
        for (const auto& [Tage, Wert] : k.TWA) lege_ab(k, TWA, Tage, Wert);
    }
    return Fertiges;
}

std::string Zusammenfassung::beende() {
    std::string Text;
    for (auto& [von, Werte] : Reihen_) {
        const auto& [Studie, Stoff, Endpunkt, Einheit, Art, Tage] = von;
        // In the order of the variants, before they are sorted: so it is in every call that gives them.
        const double Mittel = std::accumulate(Werte.begin(), Werte.end(), 0.0) / static_cast<double>(Werte.size());
        std::sort(Werte.begin(), Werte.end());
        CSV_Zeile z(Text);
        z.Text(Simulation_);
        z.Zahl(Studie);
        z.Zahl(Stoff);
        z.Text(Endpunktnamen[static_cast<std::size_t>(Endpunkt)]);
        z.Text(Einheit);
        z.Text(Ergebnisname(Art, Tage));
        z.Text(std::to_string(Werte.size()));
        z.Zahl(Werte.front());
        for (const double Anteil : {0.05, 0.5, 0.95}) z.Zahl(Perzentil(Werte, Anteil));
        z.Zahl(Werte.back());
        z.Zahl(Mittel);
        z.beende();
    }
    Reihen_.clear();
    return Text;
}

}  // namespace varnok::batch
