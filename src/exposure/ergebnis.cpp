#include "exposure/ergebnis.h"

#include <cmath>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "exposure/ergebnistabelle.h"
#include "exposure/schritte.h"
#include "exposure/twa.h"

namespace varnok {
namespace {

constexpr auto Platz = [](int i) { return static_cast<std::size_t>(i); };

// What is no finite number is a fault of the input.
template <class Zahl>
Zahl endlich(Zahl Wert, const char* Name, int i_studie, int i_substanz = -1) {
    if (!std::isfinite(Wert))
        melde_unmoegliche_Rechnung(std::string(Name) + " = " + allgemeine_Zahl(Wert), {{}, 0, Name, i_studie, i_substanz});
    return Wert;
}

// The days of a run; the spare ones behind them hold nothing.
template <class Reihe>
std::vector<float> Tage_des_Laufs(const Reihe& r) {
    return {r.begin(), r.begin() + letzter_Tag + 1};
}

// A compound that never rose above 0 has no day of its peak; its concentration is 0.
float PECactual(Tagesreihe_lesend Reihe, int Maximumtag, float Fenstertage) {
    return Maximumtag < 0 ? 0 : Reihe[Platz(PECactual_Tag(Maximumtag, Fenstertage))];
}

// The series of one compound and endpoint as the stores hold it.
struct Speicherplatz {
    const Ergebnisspeicher& s;
    Endpunktart e;
    int st, c;

    template <class T>
    const T& aus(const Ergebnistabelle<T>& Tabelle) const {
        return Tabelle[e][Platz(st)][Platz(c)];
    }
    template <class Zahl>
    Zahl endlich(Zahl Wert, const char* Name) const {
        return varnok::endlich(Wert, Name, st, c);
    }
    Tagesreihe_lesend Boden() const { return s.Reihe_Bodentiefe(e, st, c); }
};

std::vector<Fensterergebnis> entnimm_Fenster(const Speicherplatz& p, const std::vector<float>& Fenster) {
    std::vector<Fensterergebnis> TWA;
    for (std::size_t j = 0; j < Fenster.size(); ++j) {
        const float aktuell = PECactual(p.Boden(), p.aus(p.s.Maximumtag_Bodentiefe), Fenster[j]);
        TWA.push_back({p.endlich(Fenster[j], "TWA_Tage"), p.endlich(p.aus(p.s.TWA_Maximum)[j + 1], "TWA_Maximum"),
                       p.aus(p.s.TWA_Starttag)[j + 1], p.endlich(aktuell, "PECactual")});
    }
    return TWA;
}

Endpunktergebnis entnimm_Endpunkt(const Speicherplatz& p, const std::vector<float>& Fenster, Umfang u) {
    const Ergebnisspeicher& s = p.s;
    Endpunktergebnis r;
    r.Maximum_Bodentiefe = p.endlich(p.aus(s.Maximum_Bodentiefe), "Maximum_Bodentiefe");
    r.Maximumtag_Bodentiefe = p.aus(s.Maximumtag_Bodentiefe);
    r.Maximum_Plateautiefe = p.endlich(p.aus(s.Maximum_Plateautiefe), "Maximum_Plateautiefe");
    for (std::size_t j = 0; j < Jahre; ++j) r.Jahresmaximum[j] = p.endlich(p.aus(s.Jahresmaximum)[j + 1], "Jahresmaximum");
    r.Plateauwert = p.endlich(p.aus(s.Plateauwert), "Plateauwert");
    r.Plateauzuwachs = p.endlich(p.aus(s.Plateauzuwachs), "Plateauzuwachs");
    r.Plateautext = p.aus(s.Plateautext);
    r.Plateauprozent = p.aus(s.Plateauprozent);
    r.TWA = entnimm_Fenster(p, Fenster);
    if (u == Umfang::ohne_Reihen) return r;
    r.Reihe_Bodentiefe = Tage_des_Laufs(p.Boden());
    r.Reihe_Plateautiefe = Tage_des_Laufs(s.Reihe_Plateautiefe(p.e, p.st, p.c));
    r.Integral_Bodentiefe = Tage_des_Laufs(s.Integral_Bodentiefe(p.e, p.st, p.c));
    return r;
}

}  // namespace

Ergebnis entnimm_Ergebnis(const Lauf& l, int i_studie, std::shared_ptr<const Eingabe> Vorgabe, Umfang u) {
    const Ergebnisspeicher& s = l.Speicher;
    Ergebnis r;
    r.Vorgabe = std::move(Vorgabe);
    r.i_studie = i_studie;
    r.Anzahl_pro_Jahr = s.Anzahl_pro_Jahr;
    r.Wirksame_Rate = endlich(s.Wirksame_Rate, "Wirksame_Rate", i_studie);
    r.Applikationstag.assign(s.Applikationstag.begin() + 1, s.Applikationstag.begin() + 1 + r.Anzahl_pro_Jahr);
    r.erste_Rate = s.Tagesrate[Platz(s.Applikationstag[1])];
    if (u == Umfang::vollstaendig) {
        r.Tagesrate = Tage_des_Laufs(s.Tagesrate);
        for (std::size_t i = 0; i < r.Bildung_Plateautiefe.size(); ++i) {
            r.Bildung_Plateautiefe[i] = Tage_des_Laufs(s.Bildung_Plateautiefe[i]);
        }
    }
    r.Summe_Temperatur = l.Tag.Summe_Temperatur;
    r.Summe_Niederschlag = l.Tag.Summe_Niederschlag;
    r.Summe_Verdunstung = l.Tag.Summe_Verdunstung;
    const std::vector<float> Fenster = TWA_Fenster(l.Felder.Parameter);
    for (int c = 0; c < Anzahl_Stoffe(l.Felder.Berechnungsmodus); ++c) {
        Stoffergebnis Stoff;
        for (const Endpunktart e : alle_Endpunkte) Stoff.Endpunktwerte[e] = entnimm_Endpunkt({s, e, i_studie, c}, Fenster, u);
        r.Stoffwerte.push_back(std::move(Stoff));
    }
    r.Warnungen = l.Warnungen;
    return r;
}

Studienlauf berechne_Studie(Lauf& Arbeitsplatz, const std::shared_ptr<const Eingabe>& Vorgabe, int i_studie,
                            const Klimaquelle& Quelle, Umfang u) {
    Arbeitsplatz.Felder = *Vorgabe;
    const Laufergebnis Ausgang = berechne_PEC(Arbeitsplatz, i_studie, Quelle, alle_Rechenschritte);
    if (!Ausgang.gelungen()) return {Ausgang, nullptr};
    const bool repariert = Arbeitsplatz.Felder.Applikationsschema != Vorgabe->Applikationsschema;
    auto wirkliche = repariert ? std::make_shared<const Eingabe>(Arbeitsplatz.Felder) : Vorgabe;
    return {Ausgang, std::make_shared<const Ergebnis>(entnimm_Ergebnis(Arbeitsplatz, i_studie, std::move(wirkliche), u))};
}

}  // namespace varnok
