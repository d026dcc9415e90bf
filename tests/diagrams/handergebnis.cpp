#include "diagrams/handergebnis.h"

#include <algorithm>

namespace varnok::probe {
namespace {

constexpr auto St = [](int i) { return static_cast<std::size_t>(i); };

int Tag_des_Maximums(const std::vector<float>& Werte) {
    return static_cast<int>(std::max_element(Werte.begin(), Werte.end()) - Werte.begin());
}

}  // namespace

Handergebnis::Handergebnis() : Darstellungsprobe(leere_Probe({})) { Felder.Beschreibung = "Wheat"; }

Handergebnis::operator Darstellung() {
    for (int i = 0; i < Felder.Studienzahl(); ++i) Studie(i);
    return zeige();
}

Handergebnis Handergebnis_Studien(int n) {
    Handergebnis h;
    h.Felder.Studie.clear();
    for (int i = 0; i < n; ++i) h.Felder.Studie.push_back("study " + std::to_string(i));
    return h;
}

void setze_Boden(Handergebnis& h, const std::vector<float>& Werte, int i_substanz, int i_studie, Endpunktart Endpunkt) {
    Endpunktergebnis& e = h.Werte(i_substanz, i_studie, Endpunkt);
    std::copy(Werte.begin(), Werte.end(), e.Reihe_Bodentiefe.begin());
    e.Maximumtag_Bodentiefe = Tag_des_Maximums(Werte);
    e.Maximum_Bodentiefe = Werte[St(e.Maximumtag_Bodentiefe)];
}

void setze_Plateau(Handergebnis& h, const std::vector<float>& Werte, int i_substanz, int i_studie, Endpunktart Endpunkt) {
    Endpunktergebnis& e = h.Werte(i_substanz, i_studie, Endpunkt);
    std::copy(Werte.begin(), Werte.end(), e.Reihe_Plateautiefe.begin());
    e.Maximum_Plateautiefe = Werte[St(Tag_des_Maximums(Werte))];
}

void setze_Maximumtag(Handergebnis& h, int Tag, int i_substanz, int i_studie) {
    for (const Endpunktart e : alle_Endpunkte) h.Werte(i_substanz, i_studie, e).Maximumtag_Bodentiefe = Tag;
}

void setze_TWA(Handergebnis& h, float Laenge, float Hoehe, int Start, int i_substanz, int i_studie) {
    const std::size_t w = St(h.Sicht.TWA_Laenge);
    for (int i = 0; i < h.Felder.Studienzahl(); ++i) {
        for (Stoffergebnis& Stoff : h.Studie(i).Stoffwerte) {
            for (Endpunktergebnis& e : Stoff.Endpunktwerte) e.TWA.at(w).Tage = Laenge;
        }
    }
    for (const Endpunktart e : alle_Endpunkte) h.Werte(i_substanz, i_studie, e).TWA.at(w) = {Laenge, Hoehe, Start, 0};
}

void setze_Plateauwert(Handergebnis& h, float Wert, int i_substanz, int i_studie, Endpunktart Endpunkt) {
    h.Werte(i_substanz, i_studie, Endpunkt).Plateauwert = Wert;
}

std::vector<Linie> Linien(const Diagramm& d, int Farbe, int Breite) {
    std::vector<Linie> Gefundene;
    for (const Linie& l : d.Liste.Linien) {
        if (l.Farbe == Farbe && l.Breite == Breite) Gefundene.push_back(l);
    }
    return Gefundene;
}

std::vector<std::string> Zahlen_x(const Diagramm& d) {
    std::vector<std::string> Zahlen;
    for (const Schriftzug& t : d.Liste.Texte) {
        if (t.Ort.y < 0) Zahlen.push_back(t.Inhalt);
    }
    return Zahlen;
}

std::vector<std::string> Zahlen_y(const Diagramm& d) {
    std::vector<std::string> Zahlen;
    for (const Schriftzug& t : d.Liste.Texte) {
        if (t.Ort.y > 0) Zahlen.push_back(t.Inhalt);
    }
    return Zahlen;
}

Punkt Zeitachse(const Diagramm& d) { return {d.Liste.Linien.at(0).von.x, d.Liste.Linien.at(0).bis.x}; }

}  // namespace varnok::probe
