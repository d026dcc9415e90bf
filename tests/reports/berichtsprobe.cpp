#include "berichtsprobe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "exposure/schritte.h"

namespace varnok::probe {

std::unique_ptr<Lauf> gerechnet(Lauf_bauer b) {
    b.Felder.Aktuelle_Dateinamen = {"simulation", "compound record", "pattern record", "scenario record"};
    if (b.Felder.Beschreibung.empty()) b.Felder.Beschreibung = "the problem";
    b.Felder.Bodenszenario = "loam";
    if (b.Parameter.Klimamodus == 0) b.Felder.Klimaszenario = "20 °C constant";  // as reading a scenario sets it
    b.Parameter.Anzahl_Studien = static_cast<std::uint8_t>(b.Felder.Studie.size());
    auto l = std::make_unique<Lauf>(b.baue());
    const Klimaliste Quelle = b.Klima ? Klimaliste(*b.Klima) : Klimaliste();
    const auto rechne = [&](int st) {
        if (!berechne_PEC(*l, st, Quelle, alle_Rechenschritte).gelungen()) throw std::logic_error("the run has ended early");
    };
    for (int st = 0; st < static_cast<int>(b.Felder.Studie.size()); ++st) {
        if (st != b.Felder.Studie_Index) rechne(st);
    }
    rechne(b.Felder.Studie_Index);
    return l;
}

Lauf_bauer mit_Studien(Lauf_bauer b, int Anzahl) {
    for (int st = 1; st < Anzahl; ++st) {
        b.Studie(st);
        b.Felder.Studie.push_back("soil " + std::to_string(st + 1));
        const auto s = static_cast<std::size_t>(st);
        for (auto& k : b.Parameter.k_SFO) k[s] *= std::pow(0.75, st);
    }
    b.i_studie = 0;
    return b;
}

zeuge::Aufgabe als_Aufgabe(const Lauf& l, const Lauf_bauer& b) {
    return {l.Parameter,   l.Felder,    b.Klima.value_or(std::vector<Klimatag>()), Angaben.Programmversion,
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

Bericht Bericht_von(const Lauf& l, Berichtsart Art) {
    return schreibe_Bericht({l, Art, Angaben.Programmversion, Zeitpunkt, erstelle_Berichtsdiagramm(l, Art), std::nullopt});
}

}  // namespace varnok::probe
