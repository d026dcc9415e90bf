#include <algorithm>
#include <array>
#include <utility>

#include "base/druckbares.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "batch/schreiber.h"
#include "exposure/ergebnistabelle.h"
#include "exposure/twa.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

// Positions of the averaging windows that fit on a line: by default 7, 21, 28, 50, 100 days of the EU list, and
// 30, 60, 90, 180, 360 days of the monthly one.
constexpr std::array<std::array<std::size_t, 5>, 2> gezeigte_Fenster = {{{0, 1, 2, 5, 11}, {3, 5, 6, 8, 9}}};
constexpr std::size_t Textspalten = 2;  // study and compound stand flush left, numbers flush right
constexpr const char* ohne_Wert = "-";

using Zellen = std::vector<std::string>;

const std::array<std::size_t, 5>& Fenster(const Simulationsergebnis& r) {
    return gezeigte_Fenster[r.Vorgabe->Parameter.TWA_Zeiten];
}

Zellen Kopfzeile(const Simulationsergebnis& r, const Endpunktergebnis& e) {
    Zellen k = {"Study", "Compound", "Maximum", "Day", "Plateau", "Max+plateau"};
    for (const std::size_t j : Fenster(r)) k.push_back("TWA " + Fensterlaenge(e.TWA[j].Tage));
    k.emplace_back("Reached after 10 years");
    return k;
}

Zellen Wertezeile(const Simulationsergebnis& r, const Ergebnis& s, int i_substanz, Endpunktart Endpunkt) {
    const Eingabe& v = *s.Vorgabe;
    const Endpunktergebnis& e = s.Werte(Endpunkt, i_substanz);
    const auto Text = [&](double Wert) { return Formatiere_Zahl(Wert, false, true, v.Parameter.Einheit); };
    // The closed series gives no plateau for pore water: a 0 would look like a result.
    const bool Plateau = !e.Plateautext.empty();
    Zellen z = {std::to_string(s.i_studie + 1) + " " + druckbar(v.Studie.at(static_cast<std::size_t>(s.i_studie))),
                druckbar(Stoffname(v, i_substanz)),
                Text(static_cast<double>(e.Maximum_Bodentiefe)),
                std::to_string(e.Maximumtag_Bodentiefe),
                Plateau ? Text(static_cast<double>(e.Plateauwert)) : ohne_Wert,
                Plateau ? Text(Ansichtswert(e.Plateauwert, Anreicherung, jedes_Jahr, e.Maximum_Bodentiefe)) : ohne_Wert};
    for (const std::size_t j : Fenster(r)) z.push_back(Text(static_cast<double>(e.TWA[j].Maximum)));
    z.push_back(Plateau ? e.Plateautext : ohne_Wert);
    return z;
}

std::string ausgerichtet(const std::vector<Zellen>& Zeilen) {
    std::vector<std::size_t> Breiten(Zeilen.front().size(), 0);
    for (const Zellen& z : Zeilen) {
        for (std::size_t i = 0; i < z.size(); ++i) Breiten[i] = std::max(Breiten[i], Zeichenzahl(z[i]));
    }
    std::string Text;
    for (const Zellen& z : Zeilen) {
        std::string Zeile;
        for (std::size_t i = 0; i < z.size(); ++i) {
            const std::string Luft(Breiten[i] - Zeichenzahl(z[i]), ' ');
            Zeile += "  " + (i < Textspalten ? z[i] + Luft : Luft + z[i]);
        }
        Zeile.erase(Zeile.find_last_not_of(' ') + 1);
        Text += Zeile + "\n";
    }
    return Text;
}

std::string Endpunkttabelle(const Simulationsergebnis& r, Endpunktart Endpunkt) {
    std::vector<Zellen> Zeilen = {Kopfzeile(r, r.Studien.front()->Werte(Endpunkt, 0))};
    for (const auto& s : r.Studien) {
        for (int c = 0; c < static_cast<int>(s->Stoffwerte.size()); ++c) Zeilen.push_back(Wertezeile(r, *s, c, Endpunkt));
    }
    std::string Text = "\nConcentration in ";
    Text.append(Endpunktnamen[Endpunkt]).append(" (");
    Text.append(Konzentrationseinheit(r.Vorgabe->Parameter.Einheit, Endpunkt)).append(")\n");
    return Text + ausgerichtet(Zeilen);
}

// "3: rate = 750, Koc = 100"
std::string Variantentext(const Variante& v, const std::vector<std::string>& Namen) {
    std::string Text = std::to_string(v.Reihe);
    for (std::size_t i = 0; i < Namen.size(); ++i)
        Text.append(i == 0 ? ": " : ", ").append(Namen[i]).append(" = ").append(v.Werte[i].Text());
    return druckbar(Text);
}

std::string Simulationstext(const Simulationsausgang& a, const Schreibumfang& u) {
    const Simulationsergebnis& r = a.Ergebnis;
    std::string Text = "Simulation:  " + druckbar(r.Name) + "\n";
    if (a.Herkunft) Text += "Variant:     " + Variantentext(*a.Herkunft, u.Variantennamen) + "\n";
    if (!r.Beschreibung.empty()) Text += "Description: " + druckbar(r.Beschreibung) + "\n";
    Text += "Records:     compound \"" + druckbar(r.Dateinamen[Wirkstoff]) + "\", application pattern \"" +
            druckbar(r.Dateinamen[Applikation]) + "\", scenario \"" + druckbar(r.Dateinamen[Szenario]) + "\"\n";
    for (const Endpunktart e : alle_Endpunkte) Text += Endpunkttabelle(r, e);
    for (const auto& s : r.Studien) {
        for (const std::string& w : s->Warnungen)
            Text += "\nWarning, study " + std::to_string(s->i_studie + 1) + ": " + druckbar(w) + "\n";
    }
    return Text;
}

class Tabelle : public Schreiber {
public:
    explicit Tabelle(Schreibumfang u) : Umfang_(std::move(u)) {}

    std::string Stueck(const Simulationsausgang& a) const override { return a.Fehler ? "" : Simulationstext(a, Umfang_); }

    std::string naechstes(std::string Text, bool gescheitert) override {
        if (gescheitert) return {};
        if (!std::exchange(erste_, false)) Text.insert(0, 1, '\n');
        return Text;
    }

private:
    Schreibumfang Umfang_;
    bool erste_ = true;
};

}  // namespace

std::unique_ptr<Schreiber> Tabellenschreiber(const Schreibumfang& u) { return std::make_unique<Tabelle>(u); }

}  // namespace varnok::batch
