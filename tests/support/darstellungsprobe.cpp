#include "support/darstellungsprobe.h"

#include <stdexcept>

#include "exposure/twa.h"

namespace varnok::probe {
namespace {

constexpr auto St = [](int i) { return static_cast<std::size_t>(i); };

Endpunktergebnis leerer_Endpunkt(const Laufparameter& p) {
    Endpunktergebnis e;
    for (const float Tage : TWA_Fenster(p)) e.TWA.push_back({Tage, 0, 0, 0});
    for (auto* Reihe : {&e.Reihe_Bodentiefe, &e.Reihe_Plateautiefe, &e.Integral_Bodentiefe}) Reihe->resize(letzter_Tag + 1);
    return e;
}

std::shared_ptr<const Ergebnis> leeres_Ergebnis(const Eingabe& e, int i_studie) {
    Ergebnis r;
    r.Vorgabe = std::make_shared<const Eingabe>(e);
    r.i_studie = i_studie;
    r.Tagesrate.resize(letzter_Tag + 1);
    for (int c = 0; c < Anzahl_Stoffe(e.Berechnungsmodus); ++c) {
        r.Stoffwerte.push_back({{leerer_Endpunkt(e.Parameter), leerer_Endpunkt(e.Parameter)}});
    }
    return std::make_shared<const Ergebnis>(std::move(r));
}

}  // namespace

Ergebnis& Darstellungsprobe::Studie(int i_studie) {
    auto& Platz = Studien.at(St(i_studie));
    // Whoever changes a result by hand changes it for this probe alone.
    auto eigenes = std::make_shared<Ergebnis>(Platz ? *Platz : *leeres_Ergebnis(Felder, i_studie));
    eigenes->Vorgabe = std::make_shared<const Eingabe>(Felder);
    for (int c = static_cast<int>(eigenes->Stoffwerte.size()); c < Stoffe; ++c) {
        eigenes->Stoffwerte.push_back({{leerer_Endpunkt(Felder.Parameter), leerer_Endpunkt(Felder.Parameter)}});
    }
    Platz = eigenes;
    return *eigenes;
}

Endpunktergebnis& Darstellungsprobe::Werte(int i_substanz, int i_studie, Endpunktart Endpunkt) {
    return Studie(i_studie).Stoffwerte.at(St(i_substanz)).Endpunktwerte[Endpunkt];
}

Darstellungsprobe leere_Probe(const Lauf_bauer& b) { return {b.Felder, b.Sicht, {}}; }

Darstellungsprobe gerechnet(const Lauf_bauer& b) {
    Darstellungsprobe p = leere_Probe(b);
    const Klimaliste Quelle = b.Klima ? Klimaliste(*b.Klima) : Klimaliste();
    const auto Vorgabe = std::make_shared<const Eingabe>(b.Felder);
    Lauf Arbeitsplatz;
    for (int st = 0; st < b.Felder.Studienzahl(); ++st) {
        p.Studien[St(st)] = berechne_Studie(Arbeitsplatz, Vorgabe, st, Quelle).Werte;
        if (!p.Studien[St(st)]) throw std::logic_error("the run has ended early");
    }
    return p;
}

Darstellungsprobe aus_Lauf(const Lauf& l, const Ansicht& Sicht) {
    Darstellungsprobe p{l.Felder, Sicht, {}};
    p.Studien[St(l.i_studie)] =
        std::make_shared<const Ergebnis>(entnimm_Ergebnis(l, l.i_studie, std::make_shared<const Eingabe>(l.Felder)));
    return p;
}

}  // namespace varnok::probe
