#include "diagrams/lesegang.h"

#include <algorithm>
#include <utility>

namespace varnok {
namespace {

std::size_t Platz_von(const Kurve& k, int Tag) { return static_cast<std::size_t>(Tag - k.erster_Tag); }
int letzter_Tag(const Kurve& k) { return k.erster_Tag + static_cast<int>(k.Werte.size()) - 1; }
bool hat_Tag(const Kurve& k, int Tag) { return Tag >= k.erster_Tag && Tag <= letzter_Tag(k); }
float Wert_am(const Kurve& k, int Tag) { return k.Werte[Platz_von(k, Tag)]; }

std::optional<Lesestelle> Anfang(const Diagramm& d) {
    const auto k = std::find_if(d.Kurven.begin(), d.Kurven.end(), [](const Kurve& x) { return !x.Werte.empty(); });
    if (k == d.Kurven.end()) return std::nullopt;
    const auto hoechster = std::max_element(k->Werte.begin(), k->Werte.end());
    return Lesestelle{static_cast<std::size_t>(k - d.Kurven.begin()),
                      k->erster_Tag + static_cast<int>(hoechster - k->Werte.begin())};
}

// The first peak within so many days to one side.
std::optional<int> Spitze_bis(const Kurve& k, int Tag, int Richtung, int Tage) {
    for (int i = 1; i <= Tage && hat_Tag(k, Tag + Richtung * i); ++i) {
        if (ist_Spitze(k.Werte, Platz_von(k, Tag + Richtung * i))) return Tag + Richtung * i;
    }
    return std::nullopt;
}

int schreite(const Kurve& k, int Tag, int Richtung, int Tage) {
    return Spitze_bis(k, Tag, Richtung, Tage).value_or(std::clamp(Tag + Richtung * Tage, k.erster_Tag, letzter_Tag(k)));
}

// The next one above or below on that day; equal values follow each other in the order of the curves.
std::size_t Nachbarkurve(const Diagramm& d, const Lesestelle& s, bool hoeher) {
    const auto Rang = [&](std::size_t i) { return std::pair(Wert_am(d.Kurven[i], s.Tag), i); };
    std::optional<std::size_t> Wahl;
    for (std::size_t i = 0; i < d.Kurven.size(); ++i) {
        if (!hat_Tag(d.Kurven[i], s.Tag) || i == s.Kurve || (Rang(i) > Rang(s.Kurve)) != hoeher) continue;
        if (!Wahl || (Rang(i) < Rang(*Wahl)) == hoeher) Wahl = i;
    }
    return Wahl.value_or(s.Kurve);
}

}  // namespace

bool ist_Spitze(const std::vector<float>& Werte, std::size_t i) {
    const bool steigt_an = i == 0 || Werte[i - 1] < Werte[i];
    const bool faellt_ab = i + 1 == Werte.size() || Werte[i + 1] < Werte[i];
    return steigt_an && faellt_ab && Werte[i] > 0;
}

std::optional<Lesestelle> gehe(const Diagramm& d, const std::optional<Lesestelle>& bisher, Leserichtung r, int Tage) {
    const std::optional<Lesestelle> s = halte(d, bisher);
    if (!s) return Anfang(d);
    const Kurve& k = d.Kurven[s->Kurve];
    const int ueberall = static_cast<int>(k.Werte.size());
    switch (r) {
        case Leserichtung::frueher:
            return Lesestelle{s->Kurve, schreite(k, s->Tag, -1, Tage)};
        case Leserichtung::spaeter:
            return Lesestelle{s->Kurve, schreite(k, s->Tag, 1, Tage)};
        case Leserichtung::vorige_Spitze:
            return Lesestelle{s->Kurve, Spitze_bis(k, s->Tag, -1, ueberall).value_or(s->Tag)};
        case Leserichtung::naechste_Spitze:
            return Lesestelle{s->Kurve, Spitze_bis(k, s->Tag, 1, ueberall).value_or(s->Tag)};
        case Leserichtung::hoehere_Kurve:
            return Lesestelle{Nachbarkurve(d, *s, true), s->Tag};
        case Leserichtung::tiefere_Kurve:
            return Lesestelle{Nachbarkurve(d, *s, false), s->Tag};
    }
    return s;
}

std::optional<Lesestelle> halte(const Diagramm& d, const std::optional<Lesestelle>& bisher) {
    const bool gezeigt = bisher && bisher->Kurve < d.Kurven.size() && hat_Tag(d.Kurven[bisher->Kurve], bisher->Tag);
    return gezeigt ? bisher : std::nullopt;
}

Ablesung Ablesung_an(const Diagramm& d, const Lesestelle& s) {
    const Kurve& k = d.Kurven[s.Kurve];
    return {k.Name, s.Tag, Wert_am(k, s.Tag), k.Farbe};
}

}  // namespace varnok
