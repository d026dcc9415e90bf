#include "batch/vorgaben.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/laufzeitfehler.h"
#include "batch/aufruf.h"
#include "batch/simulationslauf.h"

namespace varnok::batch {
namespace {

gegebener_Wert lies_Vorgabe(const std::string& Text, const Projektordner& Ordner) {
    const std::string Option = "--set " + Text;
    const auto Gleich = Text.find('=');
    if (Gleich == std::string::npos) throw Aufruffehler(Option + ": this is not NAME=VALUE");
    try {
        Namensbezug b = lies_Namensbezug(std::string_view(Text).substr(0, Gleich));
        Eingabewert w = lies_Eingabewert(b, std::string_view(Text).substr(Gleich + 1), Ordner);
        return {std::move(b), std::move(w), Option};
    } catch (const Laufzeitfehler& f) {
        throw Aufruffehler(Option + ": " + f.what());
    }
}

// Whether a run of any chosen simulation reads the values of the call, name by name.
class Lesestand {
public:
    explicit Lesestand(std::vector<const Namensbezug*> Namen) : Namen_(std::move(Namen)), gelesen_(Namen_.size(), false) {}

    void sieh_nach(const Eingabe& e) {
        for (std::size_t i = 0; i < Namen_.size(); ++i) gelesen_[i] = gelesen_[i] || wird_gelesen(*Namen_[i], e);
    }
    const Namensbezug* ungelesener() const {
        const auto i = std::find(gelesen_.begin(), gelesen_.end(), false);
        return i == gelesen_.end() ? nullptr : Namen_[static_cast<std::size_t>(i - gelesen_.begin())];
    }

private:
    std::vector<const Namensbezug*> Namen_;
    std::vector<bool> gelesen_;
};

// Puts the call's values into one simulation, variant by variant.
void pruefe_Simulation(const Auftrag& a, const std::string& Name, const Lesung& l, Variantenquelle* Varianten, Lesestand& Stand) {
    const std::size_t Anzahl = Varianten != nullptr ? Varianten->Anzahl() : 1;
    if (Varianten != nullptr) Varianten->beginne_neu();
    for (std::size_t i = 0; i < Anzahl; ++i) {
        std::optional<Variante> v;
        if (Varianten != nullptr) v = Varianten->naechste();
        Eingabe e = *l.Vorgabe;
        Ansicht Sicht = l.Sicht;
        try {
            a.Vorgaben.setze_ein(v ? &*v : nullptr, e, Sicht);
        } catch (const Laufzeitfehler& f) {
            const std::string Quelle = v ? Varianten->Bezeichnung(v->Reihe) : "--set";
            throw Aufruffehler(Quelle + ", simulation \"" + Name + "\": " + f.what());
        }
        Stand.sieh_nach(e);
    }
}

}  // namespace

std::vector<gegebener_Wert> lies_Vorgaben(const Aufruf& a, const Projektordner& Ordner) {
    std::vector<gegebener_Wert> Werte;
    for (const std::string& Text : a.Vorgaben) Werte.push_back(lies_Vorgabe(Text, Ordner));
    return Werte;
}

Vorgabensatz::Vorgabensatz(std::vector<gegebener_Wert> Werte, const std::vector<Namensbezug>& Variantennamen)
    : Werte_(std::move(Werte)), Variantennamen_(Variantennamen) {
    for (std::size_t i = 0; i < Werte_.size() + Variantennamen_.size(); ++i) Reihenfolge_.push_back(i);
    std::stable_partition(Reihenfolge_.begin(), Reihenfolge_.end(), [&](std::size_t i) { return Bezug(i).Name->zuerst; });
}

std::vector<const Namensbezug*> Vorgabensatz::Namen() const {
    std::vector<const Namensbezug*> Alle;
    for (std::size_t i = 0; i < Reihenfolge_.size(); ++i) Alle.push_back(&Bezug(i));
    return Alle;
}

void Vorgabensatz::setze_ein(const Variante* v, Eingabe& e, Ansicht& Sicht) const {
    if (leer()) return;
    for (const std::size_t i : Reihenfolge_) setze(e, Sicht, Bezug(i), Wert(i, v));
    stimme_ab(e, Namen());
}

std::vector<Bemerkung> Vorgabensatz::Bemerkungen(const Variante* v, const Eingabe& e, const std::string& Quelle) const {
    std::vector<Bemerkung> Alle;
    for (std::size_t i = 0; i < Reihenfolge_.size(); ++i) {
        const Namensbezug& b = Bezug(i);
        const Eingabewert& w = Wert(i, v);
        const auto bemerke = [&](const std::string& Meldung) {
            const auto Zahl = w.ist_Wort ? std::nullopt : std::optional(w.Zahl());
            Alle.push_back({i < Werte_.size() ? Werte_[i].Option : Quelle, 1, b.Text, Meldung, w.Text(), Zahl});
        };
        if (!wird_gelesen(b, e)) bemerke("no run of this simulation reads it");
        const Wertebereich* g = finde_Wertebereich(b.Name->Speicher);
        if (g != nullptr && !w.ist_Wort && !g->ueblich.enthaelt(w.Zahl()))
            bemerke("outside the usual range (" + als_Text(g->ueblich) + ")");
    }
    return Alle;
}

void pruefe_Vorgaben(const Auftrag& a, const std::vector<std::string>& Simulationen, Variantenquelle* Varianten) {
    if (a.Vorgaben.leer()) return;
    Lesestand Stand(a.Vorgaben.Namen());
    bool eine_gelesen = false;
    for (const std::string& Name : Simulationen) {
        const auto l = lies_Simulationssaetze(a, Name);
        if (l->Fehler) continue;  // told in its turn
        eine_gelesen = true;
        pruefe_Simulation(a, Name, *l, Varianten, Stand);
    }
    if (!eine_gelesen) return;
    if (const Namensbezug* b = Stand.ungelesener())
        throw Aufruffehler(b->Text + ": no run of the chosen simulations reads this value");
}

std::string Namenshilfe() {
    std::string Text =
        "Names for --set, --vary and --sample. A study counts from 1, compound 0 is the parent, 1 and 2 are the metabolites;\n"
        "an index left out, [study,] and [,compound] mean all that the simulation has. [row] is that of the table of irregular\n"
        "applications.\n\n";
    std::size_t Breite = 0;
    for (const Eingabename& n : Eingabenamen()) Breite = std::max(Breite, Name_mit_Indizes(n).size());
    constexpr std::size_t Einheitenbreite = 7;
    for (const Eingabename& n : Eingabenamen()) {
        std::string Name = Name_mit_Indizes(n);
        Name.resize(Breite + 2, ' ');
        std::string Einheit(n.Einheit);
        // The degree sign takes two bytes and one column.
        Einheit.resize(Einheitenbreite + (Einheit.find("°") != std::string::npos ? 1 : 0), ' ');
        Text += "  " + Name + Einheit + Wertebereich_als_Text(n) + "\n";
    }
    return Text;
}

}  // namespace varnok::batch
