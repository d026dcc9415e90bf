#include "screens/handlers/szenarioeditor.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "records/satztext.h"

namespace varnok {
namespace {

constexpr int Tiefenschritte = 500;  // 0.1 to 50.0 cm
constexpr int hoechste_Temperatur = 40;
constexpr int individuell = 2;

// The list of depths with the position of `Tiefe`. A depth that is no entry becomes one of its own behind the others.
Tiefenwahl Tiefenliste(double Tiefe, std::array<int, 2> Vorgaben, char Dezimalzeichen) {
    Tiefenwahl t;
    for (int i = 0; i < Tiefenschritte; ++i) t.Eintraege.push_back(feste_Zahl((i + 1) / 10.0, 1, Dezimalzeichen));
    t.Vorgaben = Vorgaben;
    const auto Position = ganze_Zahl(Tiefe * 10 - 1, 0, Tiefenschritte - 1);
    if (Position && std::abs((*Position + 1) / 10.0 - Tiefe) < 1e-9) {
        t.Position = *Position;
    } else {
        t.Eintraege.push_back(allgemeine_Zahl(Tiefe, Dezimalzeichen));
        t.Position = Tiefenschritte;
    }
    return t;
}

int Platz(const std::vector<std::string>& Liste, const std::string& Eintrag) {
    const auto Treffer = std::find(Liste.begin(), Liste.end(), Eintrag);
    return std::min(static_cast<int>(Treffer - Liste.begin()), static_cast<int>(Liste.size()) - 1);
}

std::string Eintrag(const std::vector<std::string>& Liste, int i) {
    return i < 0 ? std::string() : Liste[static_cast<std::size_t>(i)];
}

}  // namespace

void Szenarioeditor::oeffne() {
    e_ = {};
    Klima_gewaehlt_ = Lauf_faellig_ = false;
    z_.Szenarioeditor_faellig = false;
    for (int t = 0; t <= hoechste_Temperatur; ++t) e_.Temperaturen.push_back(std::to_string(t));
    e_.Temperatur = z_.Parameter().Szenariotemperatur;
    if (e_.Temperatur > hoechste_Temperatur) {
        const int Grad = e_.Temperatur;
        e_.Temperaturen.push_back(std::to_string(Grad));
        e_.Temperatur = hoechste_Temperatur + 1;
    }
    e_.Klimamodus = z_.Parameter().Klimamodus;
    e_.Szenarien = z_.Ordner->Namen(Endungen[varnok::Szenario]);
    e_.Klimadateien = z_.Ordner->Namen(Klima_Endung);
    e_.Szenario = Platz(e_.Szenarien, z_.Felder().Aktuelle_Dateinamen[varnok::Szenario]);
    zeige_Werte();
    gezeigt_ = e_;
}

void Szenarioeditor::zeige_Werte() {
    const Laufparameter& p = z_.Parameter();
    const char d = z_.Welt.Dezimalzeichen;
    e_.Texte = {z_.Felder().Bodenszenario, allgemeine_Zahl(p.Bodendichte, d), allgemeine_Zahl(p.Kohlenstoffgehalt, d),
                allgemeine_Zahl(p.Feldkapazitaet, d), allgemeine_Zahl(p.Welkepunkt, d)};
    e_.Boden = Tiefenliste(p.Bodentiefe, {49, 24}, d);
    e_.Plateau = Tiefenliste(p.Plateautiefe, {49, 199}, d);
    waehle_Tiefe(e_.Boden, e_.Boden.Position);
    waehle_Tiefe(e_.Plateau, e_.Plateau.Position);
    e_.Klima = Platz(e_.Klimadateien, z_.Felder().Klimaszenario);
    Klima_gewaehlt_ = false;
}

void Szenarioeditor::waehle_Szenario(int i) {
    e_.Szenario = i;
    zeige_Werte();
}

void Szenarioeditor::waehle_Option(Tiefenwahl& t, int o) {
    t.Option = o;
    t.Liste_sichtbar = o == individuell;
    if (o < individuell) t.Position = t.Vorgaben[static_cast<std::size_t>(o)];
}

void Szenarioeditor::waehle_Tiefe(Tiefenwahl& t, int i) {
    t.Position = i;
    t.Option = static_cast<int>(std::find(t.Vorgaben.begin(), t.Vorgaben.end(), i) - t.Vorgaben.begin());
    t.Liste_sichtbar = t.Option == individuell;
}

void Szenarioeditor::waehle_Klimaszenario(int i) {
    e_.Klima = i;
    Klima_gewaehlt_ = true;
}

void Szenarioeditor::merke_Aenderung() {
    z_.Geaendert[varnok::Szenario] = true;
    Lauf_faellig_ = true;
}

// Whether the parameter is another one now.
bool Szenarioeditor::uebernimm_Wert(const std::string& Text, const std::string& gezeigt, double& Parameter) {
    if (Text == gezeigt || Wert(Text) == Parameter) return false;
    Parameter = Wert(Text);
    merke_Aenderung();
    return true;
}

void Szenarioeditor::uebernimm_Werte() {
    Laufparameter& p = z_.Parameter();
    using E = Szenarioentwurf;
    const auto Text = [&](E::Feld f, double& Ziel) { uebernimm_Wert(e_.Texte[f], gezeigt_.Texte[f], Ziel); };
    const auto Tiefe = [&](const Tiefenwahl& t, const Tiefenwahl& alt, double& Ziel) {
        return uebernimm_Wert(Eintrag(t.Eintraege, t.Position), Eintrag(alt.Eintraege, alt.Position), Ziel);
    };
    Text(E::Bodendichte, p.Bodendichte);
    Tiefe(e_.Boden, gezeigt_.Boden, p.Bodentiefe);
    if (Tiefe(e_.Plateau, gezeigt_.Plateau, p.Plateautiefe) && p.Plateautiefe < p.Bodentiefe) {
        z_.Welt.Fragen->frage({"Problem!", "A plateau depth was defined smaller than the current soil depth.\nThe problem was corrected.",
                               Symbol::Hinweis, {Knopf::OK}});
    }
    Text(E::Kohlenstoffgehalt, p.Kohlenstoffgehalt);
    Text(E::Feldkapazitaet, p.Feldkapazitaet);
    Text(E::Welkepunkt, p.Welkepunkt);
    uebernimm_Plateautiefe();
}

// The tillage layer holds the soil layer: it can never be the thinner one.
void Szenarioeditor::uebernimm_Plateautiefe() {
    Laufparameter& p = z_.Parameter();
    if (p.Plateautiefe >= p.Bodentiefe) return;
    p.Plateautiefe = p.Bodentiefe;
    merke_Aenderung();
}

// A change of the temperature or of the mode alone marks no record and starts no run: only the hint tells of it. After a run that
// found no climate file it does, as there are no results that could be kept.
void Szenarioeditor::uebernimm_Klima() {
    const bool ohne_Ergebnisse = !z_.Neu_berechnen;
    const bool anders = e_.Temperatur != gezeigt_.Temperatur || e_.Klimamodus != gezeigt_.Klimamodus;
    if (e_.Temperatur != gezeigt_.Temperatur) z_.Parameter().Szenariotemperatur = static_cast<std::uint8_t>(e_.Temperatur);
    z_.Parameter().Klimamodus = static_cast<std::uint8_t>(e_.Klimamodus);
    std::string& Text = z_.Felder().Klimaszenario;
    if (e_.Klimamodus == 0) {
        Text = std::to_string(z_.Parameter().Szenariotemperatur) + " \xC2\xB0""C constant";
    } else if (Klima_gewaehlt_ || anders) {
        Text = Eintrag(e_.Klimadateien, e_.Klima);
    }
    if (Klima_gewaehlt_) merke_Aenderung();
    if (!anders) return;
    Laeufe_.verwirf_alle();
    Laeufe_.markiere_veraltet();
    Lauf_faellig_ = Lauf_faellig_ || ohne_Ergebnisse;
}

void Szenarioeditor::uebernimm_Namen() {
    z_.Geaendert[varnok::Szenario] = z_.Geaendert[varnok::Szenario] || e_.Texte[0] != gezeigt_.Texte[0];
    z_.Felder().Bodenszenario = e_.Texte[Szenarioentwurf::Bodenszenario];
    const std::string Name = Eintrag(e_.Szenarien, e_.Szenario);
    if (e_.Szenario == gezeigt_.Szenario && Name == z_.gewaehlt(varnok::Szenario)) return;
    z_.Listen[varnok::Szenario] = e_.Szenarien;
    z_.waehle(varnok::Szenario, Name);
    if (Name == z_.Felder().Aktuelle_Dateinamen[varnok::Szenario]) return;
    z_.Felder().Aktuelle_Dateinamen[varnok::Szenario] = Name;
    z_.Geaendert[0] = z_.Simulation_markiert = true;
}

void Szenarioeditor::pruefe() const {
    const std::string& Name = e_.Texte[Szenarioentwurf::Bodenszenario];
    const std::string Einwand = Einwand_gegen_Text(Name);
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a soil: " + Einwand);
}

void Szenarioeditor::uebernimm() {
    uebernimm_Werte();
    uebernimm_Klima();
    uebernimm_Namen();
    if (!Lauf_faellig_) return;
    Lauf_faellig_ = false;
    Laeufe_.verwirf_alle();
    Laeufe_.markiere_veraltet();
    z_.Neu_berechnen = true;
    Laeufe_.berechne();
}

}  // namespace varnok
