#include "session/eingabe/feldeingabe.h"

#include <algorithm>
#include <cmath>

#include "base/zahlen.h"
#include "exposure/plateau.h"
#include "run/anpassung.h"
#include "run/applikation.h"
#include "session/kern/texte.h"

namespace varnok {
namespace {

const Feldbeschreibung& Beschreibung(int Feld) { return Feldtabelle()[static_cast<std::size_t>(Feld)]; }

// Type of the record that a field belongs to.
std::size_t Satz_von(const Feldbeschreibung& f) { return f.Gruppe == Feldgruppe::Dosis ? 2 : 1; }

bool gehoert_zur_Studie(const Feldbeschreibung& f) { return f.Gruppe == Feldgruppe::Studie || f.Gruppe == Feldgruppe::Studie_2; }

template <class... F>
struct je_Ziel : F... {
    using F::operator()...;
};
template <class... F>
je_Ziel(F...) -> je_Ziel<F...>;

// Scaling again and again lets rounding grow; beyond this product of factors a run is made instead.
constexpr double groesste_Skalierung = 1E6;

}  // namespace

std::string& Feldeingabe::Textplatz(int Feld) {
    const auto* Ziel = std::get_if<std::string Eingabe::*>(&Beschreibung(Feld).Ziel);
    return Ziel ? z_.Felder().*(*Ziel) : Texte_[static_cast<std::size_t>(Feld)];
}

const std::string& Feldeingabe::Text(int Feld) const { return const_cast<Feldeingabe*>(this)->Textplatz(Feld); }

std::string Feldeingabe::gespeicherter_Text(const Feldbeschreibung& f) const {
    const auto c = static_cast<std::size_t>(f.i_substanz);
    const auto st = static_cast<std::size_t>(z_.i_studie());
    const double v = std::visit(je_Ziel{[&](Stofftabelle<double> Laufparameter::*t) { return (z_.Parameter().*t)[c][st]; },
                                        [&](Studientabelle<double> Laufparameter::*t) { return (z_.Parameter().*t)[st]; },
                                        [&](std::string Eingabe::*t) { return Wert(z_.Felder().*t); }},
                                f.Ziel);
    return f.DT50 ? Text_der_Halbwertszeit(v, z_.Welt.Dezimalzeichen) : allgemeine_Zahl(v, z_.Welt.Dezimalzeichen);
}

void Feldeingabe::fuelle() {
    for (std::size_t i = 0; i < Texte_.size(); ++i) {
        if (gehoert_zur_Studie(Feldtabelle()[i])) Texte_[i] = gespeicherter_Text(Feldtabelle()[i]);
    }
}

void Feldeingabe::betrete(int Feld) {
    if (aktiv_ == Feld) return;  // focus given back after a message: nothing is new
    aktiv_ = Feld;
    geaendert_ = false;
    Alter_Wert_ = Text(Feld);
    z_.Neu_berechnen = false;
    if (Beschreibung(Feld).Gruppe == Feldgruppe::Studie) z_.Hinweis = false;
}

// The value goes to its table at once; a text that fails the test or is empty stands for 0 there.
void Feldeingabe::uebernimm(int Feld, const std::string& Text) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    const auto c = static_cast<std::size_t>(f.i_substanz);
    const auto st = static_cast<std::size_t>(z_.i_studie());
    const double v = Wert(Text);
    const double gueltiger = !Text.empty() && f.gilt(v, false) ? v : 0;
    const double Ziel = f.DT50 ? Halbwertszeit(gueltiger) : gueltiger;
    std::visit(je_Ziel{[&](Stofftabelle<double> Laufparameter::*t) { (z_.Parameter().*t)[c][st] = Ziel; },
                       [&](Studientabelle<double> Laufparameter::*t) { (z_.Parameter().*t)[st] = Ziel; },
                       [&](std::string Eingabe::*t) { z_.Felder().*t = Text; }},
               f.Ziel);
}

void Feldeingabe::aendere(int Feld, const std::string& Text) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    geaendert_ = true;
    Textplatz(Feld) = Text;
    uebernimm(Feld, Text);
    z_.Geaendert[Satz_von(f)] = true;
    Laeufe_.markiere_veraltet();
    if (gehoert_zur_Studie(f)) Laeufe_.verwirf_Studie(z_.i_studie());
    if (f.Gruppe == Feldgruppe::Stoff) Laeufe_.verwirf_alle();
}

bool Feldeingabe::pruefe(int Feld, bool Enter) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    if (f.gilt(Wert(Text(Feld)), Enter)) return true;
    decke_ab(z_, Texte::nicht_gueltig);
    melde(z_, Texte::keine_gueltige_Eingabe, Enter && f.Meldung_Enter ? f.Meldung_Enter : f.Meldung);
    return false;
}

bool Feldeingabe::bestaetige(int Feld) {
    if (!z_.Gestartet || !(z_.Hinweis || geaendert_)) return true;
    if (!pruefe(Feld, true)) return false;
    nimm_an(Feld, true);
    z_.Neu_berechnen = false;  // the field still has the focus
    return true;
}

bool Feldeingabe::verlasse(int Feld, bool mit_Lauf) {
    if (!pruefe(Feld, false)) return false;
    if (Beschreibung(Feld).Name == std::string("Interzeption") && Wert(Text(Feld)) == 0) Textplatz(Feld) = "0";
    aktiv_ = -1;
    z_.Neu_berechnen = true;
    if (z_.veraltet) nimm_an(Feld, mit_Lauf);
    z_.Hinweis = z_.veraltet;  // comes back where the focus took it away and no run followed
    geaendert_ = false;
    return true;
}

void Feldeingabe::nimm_zurueck(int Feld) {
    if (Feld != aktiv_ || !geaendert_) return;
    Textplatz(Feld) = Alter_Wert_;
    uebernimm(Feld, Alter_Wert_);
}

void Feldeingabe::nimm_Ungueltiges_zurueck() {
    if (aktiv_ >= 0 && !Beschreibung(aktiv_).gilt(Wert(Text(aktiv_)), false)) nimm_zurueck(aktiv_);
}

// The value has passed its test: the results follow it.
void Feldeingabe::nimm_an(int Feld, bool mit_Lauf) {
    z_.Neu_berechnen = true;
    const Feldbeschreibung& f = Beschreibung(Feld);
    if (f.Gruppe == Feldgruppe::Dosis) {
        passe_Dosis_an(Feld);
    } else if (mit_Lauf) {
        Skalierung_ = 1;
        Laeufe_.berechne();
    }
    Alter_Wert_ = Text(Feld);
    geaendert_ = false;
}

std::vector<int> Feldeingabe::betroffene_Studien() const {
    if (!z_.Zusammenfassung_aktiv) return {z_.i_studie()};
    std::vector<int> Studien;
    for (int st = 0; st < z_.Studienzahl(); ++st) Studien.push_back(st);
    return Studien;
}

// Rate and interception: every series is linear in the dose, so results that are valid are scaled.
void Feldeingabe::passe_Dosis_an(int Feld) {
    const double alt = Wert(Alter_Wert_);
    const double neu = Wert(Text(Feld));
    const bool gueltig = Laeufe_.alles_Gezeigte_gueltig();
    if (gueltig && alt == neu) {
        z_.veraltet = z_.Hinweis = false;
        Laeufe_.zeichne_neu();
        return;
    }
    if (gueltig && skaliere(Feld, alt, neu)) return;
    Skalierung_ = 1;
    Laeufe_.verwirf_alle();
    Laeufe_.berechne();
}

bool Feldeingabe::skaliere(int Feld, double alt, double neu) {
    const bool Rate = std::string(Beschreibung(Feld).Name) == "Applikationsrate";
    const double alte_Dosis = Rate ? alt : 100 - alt;
    const double neue_Dosis = Rate ? neu : 100 - neu;
    const double andere = Rate ? 100 - Wert(z_.Felder().Interzeption) : Wert(z_.Felder().Applikationsrate);
    if (!(alte_Dosis > 0 && neue_Dosis > 0 && andere > 0) || z_.Felder().Applikationsmuster == unregelmaessig) return false;
    const double Faktor = neue_Dosis / alte_Dosis;
    Skalierung_ *= Faktor;
    if (!(Skalierung_ <= groesste_Skalierung && Skalierung_ >= 1 / groesste_Skalierung)) return false;

    const std::vector<int> Studien = betroffene_Studien();
    const auto passt = [&](int st) { return laesst_sich_skalieren(z_.Rechnung, st, Faktor); };
    if (!std::all_of(Studien.begin(), Studien.end(), passt)) return false;  // a run tells what is wrong
    // The results of the studies that are not shown are of the old dose.
    for (int st = 0; st < max_Studien; ++st) {
        if (std::find(Studien.begin(), Studien.end(), st) == Studien.end()) Laeufe_.verwirf_Studie(st);
    }
    for (const int st : Studien) {
        Lade_Applikationen(z_.Felder(), z_.Parameter(), st, z_.Rechnung.Speicher);
        Werte_anpassen(z_.Rechnung, st, Faktor, Faktor);
        skaliere_Plateau(z_.Rechnung, st, Faktor);
    }
    z_.Geaendert[2] = true;
    z_.veraltet = z_.Hinweis = false;
    Laeufe_.zeichne_neu();
    return true;
}

}  // namespace varnok
