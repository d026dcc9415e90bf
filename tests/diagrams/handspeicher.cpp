#include "diagrams/handspeicher.h"

#include <algorithm>

#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

constexpr auto St = [](int i) { return static_cast<std::size_t>(i); };

int Tag_des_Maximums(const std::vector<float>& Werte) {
    return static_cast<int>(std::max_element(Werte.begin(), Werte.end()) - Werte.begin());
}

}  // namespace

Lauf Handspeicher() {
    Lauf l = Lauf_bauer().baue();
    l.Felder.Beschreibung = "Wheat";
    return l;
}

Lauf Handspeicher_Studien(int n) {
    Lauf l = Handspeicher();
    l.Parameter.Anzahl_Studien = static_cast<std::uint8_t>(n);
    l.Felder.Studie.clear();
    for (int i = 0; i < n; ++i) l.Felder.Studie.push_back("study " + std::to_string(i));
    return l;
}

void setze_Boden(Lauf& l, const std::vector<float>& Werte, int i_substanz, int i_studie, int i_endpunkt) {
    const int Tag = Tag_des_Maximums(Werte);
    std::copy(Werte.begin(), Werte.end(), l.Speicher.Reihe_Bodentiefe(i_endpunkt, i_studie, i_substanz, 0).begin());
    l.Speicher.Maximum_Bodentiefe[St(i_endpunkt)][St(i_studie)][St(i_substanz)] = Werte[St(Tag)];
    l.Speicher.Maximumtag_Bodentiefe[St(i_endpunkt)][St(i_studie)][St(i_substanz)] = static_cast<std::int16_t>(Tag);
}

void setze_Plateau(Lauf& l, const std::vector<float>& Werte, int i_substanz, int i_studie, int i_endpunkt) {
    std::copy(Werte.begin(), Werte.end(), l.Speicher.Reihe_Plateautiefe(i_endpunkt, i_studie, i_substanz, 0).begin());
    l.Speicher.Maximum_Plateautiefe[St(i_endpunkt)][St(i_studie)][St(i_substanz)] = Werte[St(Tag_des_Maximums(Werte))];
}

void setze_Maximumtag(Lauf& l, int Tag, int i_substanz, int i_studie) {
    for (auto& Tabelle : l.Speicher.Maximumtag_Bodentiefe) Tabelle[St(i_studie)][St(i_substanz)] = static_cast<std::int16_t>(Tag);
}

void setze_TWA(Lauf& l, float Laenge, float Hoehe, int Start, int i_substanz, int i_studie) {
    const std::size_t w = St(l.Felder.TWA_Laenge + 1);
    l.Speicher.TWA_Tage[w] = Laenge;
    for (int e = 0; e < Endpunkte; ++e) {
        l.Speicher.TWA_Maximum[St(e)][St(i_studie)][St(i_substanz)][w] = Hoehe;
        l.Speicher.TWA_Starttag[St(e)][St(i_studie)][St(i_substanz)][w] = static_cast<std::int16_t>(Start);
    }
}

void setze_Plateauwert(Lauf& l, float Wert, int i_substanz, int i_studie, int i_endpunkt) {
    l.Speicher.Plateauwert[St(i_endpunkt)][St(i_studie)][St(i_substanz)] = Wert;
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
