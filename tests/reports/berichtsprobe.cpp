#include "berichtsprobe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace varnok::probe {

Darstellungsprobe mit_Ergebnissen(Lauf_bauer b) {
    if (b.Felder.Beschreibung.empty()) b.Felder.Beschreibung = "the problem";
    b.Felder.Bodenszenario = "loam";
    return gerechnet(b);
}

Lauf_bauer mit_Studien(Lauf_bauer b, int Anzahl) {
    for (int st = 1; st < Anzahl; ++st) {
        b.Studie(st);
        b.Felder.Studie.push_back("soil " + std::to_string(st + 1));
        const auto s = static_cast<std::size_t>(st);
        for (auto& k : b.Felder.Parameter.k_SFO) k[s] *= std::pow(0.75, st);
    }
    b.i_studie = 0;
    return b;
}

zeuge::Aufgabe als_Aufgabe(const Darstellungsprobe& p, const Lauf_bauer& b) {
    return {
        p.Felder,      p.Sicht,     b.Klima.value_or(std::vector<Klimatag>()), Angaben.Applikationssatz, Angaben.Programmversion,
        Angaben.Datum, Angaben.Zeit};
}

std::vector<std::string> Zeilen(const std::string& Text) {
    std::vector<std::string> Liste;
    std::size_t Anfang = 0;
    for (std::size_t Ende = Text.find("\r\n"); Ende != std::string::npos; Ende = Text.find("\r\n", Anfang)) {
        Liste.push_back(Text.substr(Anfang, Ende - Anfang));
        Anfang = Ende + 2;
    }
    EXPECT_EQ(Anfang, Text.size()) << "the last line has no end";
    for (const std::string& z : Liste) EXPECT_EQ(z.find_first_of("\r\n"), std::string::npos) << z;
    return Liste;
}

std::vector<std::string> ab_Zeile(const std::string& Text, const std::string& Anfang) {
    std::vector<std::string> Liste = Zeilen(Text);
    const auto Treffer = std::find_if(Liste.begin(), Liste.end(), [&](const std::string& z) { return z.starts_with(Anfang); });
    EXPECT_NE(Treffer, Liste.end()) << "no line begins with " << Anfang;
    Liste.erase(Liste.begin(), Treffer);
    return Liste;
}

std::string Zeile_mit(const std::string& Text, const std::string& Anfang) {
    const auto Liste = ab_Zeile(Text, Anfang);
    return Liste.empty() ? std::string() : Liste.front();
}

int Anzahl_von(const std::string& Text, const std::string& Wort) {
    int Anzahl = 0;
    for (std::size_t i = Text.find(Wort); i != std::string::npos; i = Text.find(Wort, i + 1)) ++Anzahl;
    return Anzahl;
}

std::string Wert_in(const std::string& Zeile) { return Zeile.substr(Zeile.find('\t') + 1); }

Bericht Bericht_von(const Darstellung& d, Berichtsart Art) {
    return schreibe_Bericht(
        {d, Art, Angaben.Applikationssatz, Angaben.Programmversion, Zeitpunkt, erstelle_Berichtsdiagramm(d, Art), std::nullopt});
}

}  // namespace varnok::probe
