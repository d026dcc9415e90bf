#include "session/saetze/szenarioeditor.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/wertebereiche.h"
#include "base/zahlen.h"
#include "records/einwaende.h"
#include "records/satztext.h"
#include "session/kern/texte.h"
#include "session/kern/zahleneingabe.h"

namespace varnok {
namespace {

constexpr int Tiefenschritte = 500;  // 0.1 to 50.0 cm
constexpr int hoechste_Temperatur = 40;
constexpr int individuell = 2;

// The fields that hold a number, and what is told of a text that could be another one.
struct Zahlenfeld {
    Szenarioentwurf::Feld Feld;
    const Wertebereich* Grenzen;
    const char* Name;
};
constexpr std::array Zahlenfelder = {
    Zahlenfeld{Szenarioentwurf::Bodendichte, Grenzen_von("Bodendichte"), "Soil density (kg/L)"},
    Zahlenfeld{Szenarioentwurf::Kohlenstoffgehalt, Grenzen_von("Kohlenstoffgehalt"), "Organic carbon content (%)"},
    Zahlenfeld{Szenarioentwurf::Feldkapazitaet, Grenzen_von("Feldkapazitaet"), "Field capacity (Vol %)"},
    Zahlenfeld{Szenarioentwurf::Welkepunkt, Grenzen_von("Welkepunkt"), "Wilting point (%)"}};

// The row of a field, null for one that holds a text.
const Zahlenfeld* Zeile_von(Szenarioentwurf::Feld f) {
    const auto Zeile = std::find_if(Zahlenfelder.begin(), Zahlenfelder.end(), [f](const Zahlenfeld& z) { return z.Feld == f; });
    return Zeile == Zahlenfelder.end() ? nullptr : &*Zeile;
}

constexpr double Tiefe_auf_Platz(int i) { return (i + 1) / 10.0; }

// The place of a depth in the list, behind the others where it is no entry.
int Platz_der_Tiefe(double Tiefe) {
    const auto Position = ganze_Zahl(Tiefe * 10 - 1, 0, Tiefenschritte - 1);
    return Position && std::abs(Tiefe_auf_Platz(*Position) - Tiefe) < 1e-9 ? *Position : Tiefenschritte;
}

// The list of depths with the position of `Tiefe`. A depth that is no entry becomes one of its own.
Tiefenwahl Tiefenliste(double Tiefe, const std::array<double, 2>& Vorgaben, char Dezimalzeichen) {
    Tiefenwahl t;
    for (int i = 0; i < Tiefenschritte; ++i) {
        t.Tiefen.push_back(Tiefe_auf_Platz(i));
        t.Eintraege.push_back(feste_Zahl(t.Tiefen.back(), 1, Dezimalzeichen));
    }
    t.Vorgaben = {Platz_der_Tiefe(Vorgaben[0]), Platz_der_Tiefe(Vorgaben[1])};
    t.Position = Platz_der_Tiefe(Tiefe);
    if (t.Position == Tiefenschritte) {
        t.Tiefen.push_back(Tiefe);
        t.Eintraege.push_back(allgemeine_Zahl(Tiefe, Dezimalzeichen));
    }
    return t;
}

// The place of an entry, the last one where the list does not have it.
int Platz(const std::vector<std::string>& Liste, const std::string& Eintrag) {
    const auto Treffer = std::find(Liste.begin(), Liste.end(), Eintrag);
    return std::min(static_cast<int>(Treffer - Liste.begin()), static_cast<int>(Liste.size()) - 1);
}

// The same for a climate file: the one that a run opens under that name.
int Platz_der_Klimadatei(const std::vector<std::string>& Liste, const std::string& Name) {
    const auto passt = [&](const std::string& s) { return gleich_ohne_Gross_Klein(s, Name); };
    const bool genau = std::find(Liste.begin(), Liste.end(), Name) != Liste.end();
    const auto Treffer = genau ? Liste.end() : std::find_if(Liste.begin(), Liste.end(), passt);
    return Platz(Liste, Treffer == Liste.end() ? Name : *Treffer);
}

std::string Eintrag(const std::vector<std::string>& Liste, int i) {
    return i < 0 ? std::string() : Liste[static_cast<std::size_t>(i)];
}

}  // namespace

bool Szenarioeditor::ausserhalb(Szenarioentwurf::Feld f) const {
    const Zahlenfeld* Zeile = Zeile_von(f);
    return Zeile && !Einwand_gegen_Wert(*Zeile->Grenzen, e_.Zahlen[f].Zahl()).empty();
}

bool Szenarioeditor::oeffne() {
    Laeufe_.oeffne_Szenarioeditor();
    Saetze_.lies_Szenario_nach();
    // The values of another record would stand there under the name of this one.
    if (z_.Auswahl(varnok::Szenario) >= 0 && !z_.Saetze[varnok::Szenario].gelesen())
        throw Laufzeitfehler(z_.Saetze[varnok::Szenario].Grund());
    e_ = {};
    Gelesenes_.clear();
    geaendert_ = Lauf_faellig_ = false;
    e_.Klimamodus = z_.Parameter().Klimamodus;
    fuelle_Listen();
    zeige_Werte();
    gezeigt_ = e_;
    return !z_.beendet();
}

std::string Szenarioeditor::gezeigter_Satz() const {
    return z_.Saetze[varnok::Szenario].gelesen() ? z_.Namen[varnok::Szenario] : z_.gewaehlt(varnok::Szenario);
}

void Szenarioeditor::fuelle_Listen() {
    for (int t = 0; t <= hoechste_Temperatur; ++t) e_.Temperaturen.push_back(std::to_string(t));
    e_.Temperatur = z_.Parameter().Szenariotemperatur;
    if (e_.Temperatur > hoechste_Temperatur) {
        const int Grad = e_.Temperatur;
        e_.Temperaturen.push_back(std::to_string(Grad));
        e_.Temperatur = hoechste_Temperatur + 1;
    }
    e_.Klimadateien = z_.Ordner->Namen(Klima_Endung);
    e_.Szenarien = z_.Ordner->Namen(Endungen[varnok::Szenario]);
    // The values on the screen are those of their record, also when another program has deleted its file.
    const std::string Name = gezeigter_Satz();
    const bool fehlt = std::find(e_.Szenarien.begin(), e_.Szenarien.end(), Name) == e_.Szenarien.end();
    if (fehlt && !Name.empty()) e_.Szenarien.push_back(Name);
    e_.Szenario = Platz(e_.Szenarien, Name);
}

void Szenarioeditor::zeige_Werte() {
    const Laufparameter& p = z_.Parameter();
    const char d = z_.Welt.Dezimalzeichen;
    e_.Bodenname = z_.Vorgabe.Bodenszenario;
    e_.Zahlen = {Zahlwert(), allgemeine_Zahl(p.Bodendichte, d), allgemeine_Zahl(p.Kohlenstoffgehalt, d),
                 allgemeine_Zahl(p.Feldkapazitaet, d), allgemeine_Zahl(p.Welkepunkt, d)};
    e_.Boden = Tiefenliste(p.Bodentiefe, Bodenvorgaben, d);
    e_.Plateau = Tiefenliste(p.Plateautiefe, Plateauvorgaben, d);
    verlasse(&Szenarioentwurf::Boden);
    verlasse(&Szenarioentwurf::Plateau);
    e_.Klima = Platz_der_Klimadatei(e_.Klimadateien, z_.Vorgabe.Klimaszenario);
    Klima_gewaehlt_ = false;
}

void Szenarioeditor::waehle_Szenario(int i) {
    if (i == e_.Szenario) return;
    e_.Szenario = i;
    zeige_Werte();
}

bool Szenarioeditor::aendere(Szenarioentwurf::Feld f, const std::string& Text) {
    if (f != Szenarioentwurf::Bodenszenario) {
        e_.Zahlen[f] = Text;
        return true;
    }
    const std::string Einwand = Einwand_gegen_Text(Text);
    // A name that came from a file can be corrected key by key.
    if (!Einwand.empty() && Einwand_gegen_Text(e_.Bodenname).empty()) {
        melde(z_, Texte::keine_gueltige_Eingabe, "\"" + Text + "\" cannot be the name of a soil: " + Einwand);
        return false;
    }
    e_.Bodenname = Text;
    return true;
}

void Szenarioeditor::waehle_Option(Tiefe t, int o) {
    Tiefenwahl& w = e_.*t;
    w.Option = o;
    w.Liste_sichtbar = o == individuell;
    if (o < individuell) w.Position = w.Vorgaben[static_cast<std::size_t>(o)];
}

void Szenarioeditor::waehle_Tiefe(Tiefe t, int i) {
    Tiefenwahl& w = e_.*t;
    w.Position = i;
    w.Option = static_cast<int>(std::find(w.Vorgaben.begin(), w.Vorgaben.end(), i) - w.Vorgaben.begin());
    w.Liste_sichtbar = w.Option == individuell;
}

void Szenarioeditor::blaettere(Tiefe t, int i) {
    waehle_Tiefe(t, i);
    (e_.*t).Liste_sichtbar = true;
}

void Szenarioeditor::waehle_Klimaszenario(int i) {
    e_.Klima = i;
    Klima_gewaehlt_ = true;
}

void Szenarioeditor::merke_Aenderung() {
    z_.Saetze[varnok::Szenario].merke_Aenderung();
    geaendert_ = Lauf_faellig_ = true;
}

// Whether the parameter is another one now.
bool Szenarioeditor::uebernimm_Wert(double neu, double& Parameter) {
    if (neu == Parameter) return false;
    Parameter = neu;
    merke_Aenderung();
    return true;
}

void Szenarioeditor::uebernimm_Werte() {
    Laufparameter& p = z_.Parameter();
    using E = Szenarioentwurf;
    const auto uebernimm_Zahl = [&](E::Feld f, double& Ziel) {
        if (e_.Zahlen[f] != gezeigt_.Zahlen[f]) uebernimm_Wert(wie_im_Satz(e_.Zahlen[f].Zahl()), Ziel);
    };
    const auto uebernimm_Tiefe = [&](const Tiefenwahl& t, const Tiefenwahl& alt, double& Ziel) {
        return t.Position != alt.Position && uebernimm_Wert(t.Tiefen[static_cast<std::size_t>(t.Position)], Ziel);
    };
    uebernimm_Zahl(E::Bodendichte, p.Bodendichte);
    uebernimm_Tiefe(e_.Boden, gezeigt_.Boden, p.Bodentiefe);
    if (uebernimm_Tiefe(e_.Plateau, gezeigt_.Plateau, p.Plateautiefe) && p.Plateautiefe < p.Bodentiefe) {
        const std::string Meldung =
            "A plateau depth was defined smaller than the current soil depth.\nThe problem was corrected.";
        z_.Welt.Fragen->frage({"Problem!", Meldung, Symbol::Hinweis, {Knopf::OK}});
    }
    uebernimm_Zahl(E::Kohlenstoffgehalt, p.Kohlenstoffgehalt);
    uebernimm_Zahl(E::Feldkapazitaet, p.Feldkapazitaet);
    uebernimm_Zahl(E::Welkepunkt, p.Welkepunkt);
    uebernimm_Plateautiefe();
}

// The tillage layer holds the soil layer: it can never be the thinner one.
void Szenarioeditor::uebernimm_Plateautiefe() {
    Laufparameter& p = z_.Parameter();
    if (p.Plateautiefe >= p.Bodentiefe) return;
    p.Plateautiefe = p.Bodentiefe;
    merke_Aenderung();
}

// A change of the temperature or of the mode alone marks no record and starts no run: only the hint tells of it. Where there are
// no results to be seen, as after a run that found no climate file, it does; and so does another file in the place of one.
void Szenarioeditor::uebernimm_Klima() {
    const bool war_variabel = z_.Parameter().Klimamodus == nach_Klimadatei;
    const bool variabel = e_.Klimamodus == nach_Klimadatei;
    std::string& Datei = z_.Vorgabe.Klimaszenario;
    const std::string vorher = Klimatext(z_.Vorgabe);
    if (e_.Temperatur != gezeigt_.Temperatur) z_.Parameter().Szenariotemperatur = static_cast<std::uint8_t>(e_.Temperatur);
    z_.Parameter().Klimamodus = e_.Klimamodus;
    if (!variabel) {
        Datei.clear();
    } else if (e_.Klima >= 0 && !gleich_ohne_Gross_Klein(Datei, Eintrag(e_.Klimadateien, e_.Klima))) {
        Datei = Eintrag(e_.Klimadateien, e_.Klima);
    }
    if (Klimatext(z_.Vorgabe) == vorher && variabel == war_variabel) return;
    geaendert_ = true;
    if (variabel && Klima_gewaehlt_) merke_Aenderung();
    Lauf_faellig_ = Lauf_faellig_ || z_.abgedeckt() || (variabel && war_variabel);
}

void Szenarioeditor::uebernimm_Namen() {
    if (e_.Bodenname != gezeigt_.Bodenname) {
        z_.Vorgabe.Bodenszenario = e_.Bodenname;
        z_.Saetze[varnok::Szenario].merke_Aenderung();
        geaendert_ = true;
    }
    const std::string Name = Eintrag(e_.Szenarien, e_.Szenario);
    if (Name == gezeigter_Satz()) return;
    z_.Listen[varnok::Szenario] = z_.Ordner->Namen(Endungen[varnok::Szenario]);
    z_.Namen[varnok::Szenario] = Name;
    z_.Saetze[Simulation].merke_Aenderung();
}

void Szenarioeditor::verlasse_Zahl(Szenarioentwurf::Feld f) {
    const Zahlenfeld* Zeile = Zeile_von(f);
    if (!Zeile || e_.Zahlen[f] == gezeigt_.Zahlen[f] || !e_.Zahlen[f].eindeutig()) return;
    e_.Zahlen[f] = nimm_Zahl_an(z_, Zeile->Name, e_.Zahlen[f], Gelesenes_);
}

bool Szenarioeditor::nimm_Texte_an() {
    for (const Zahlenfeld& f : Zahlenfelder) {
        if (e_.Zahlen[f.Feld] != gezeigt_.Zahlen[f.Feld] && !e_.Zahlen[f.Feld].eindeutig()) {
            melde(z_, Texte::keine_gueltige_Eingabe, f.Grenzen->Meldung);
            return false;
        }
    }
    for (const Zahlenfeld& f : Zahlenfelder) verlasse_Zahl(f.Feld);
    return true;
}

bool Szenarioeditor::uebernimm() {
    if (!nimm_Texte_an()) return false;
    const bool ohne_Satz = z_.Auswahl(varnok::Szenario) < 0;
    uebernimm_Werte();
    uebernimm_Klima();
    uebernimm_Namen();
    if (!ohne_Satz || !geaendert_) return true;
    // What was entered stands under the name chosen; else `schliesse` reads that record.
    z_.Saetze[varnok::Szenario].nimm_Eingegebenes_an();
    Lauf_faellig_ = true;
    return true;
}

void Szenarioeditor::verwirf() {
    Lauf_faellig_ = false;
    Gelesenes_.clear();
}

void Szenarioeditor::schliesse() {
    Saetze_.lies_Szenario_nach();
    if (std::exchange(Lauf_faellig_, false)) Laeufe_.berechne();
    Laeufe_.oeffne_Szenarioeditor();
    z_.Statuszeile.sage_Zahl(Gelesenes_);
}

}  // namespace varnok
