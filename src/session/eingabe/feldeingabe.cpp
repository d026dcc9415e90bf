#include "session/eingabe/feldeingabe.h"

#include <utility>

#include "base/zahlen.h"
#include "session/kern/texte.h"
#include "session/kern/zahleneingabe.h"

namespace varnok {
namespace {

const Feldbeschreibung& Beschreibung(int Feld) { return Feldtabelle()[static_cast<std::size_t>(Feld)]; }

// The record that a field belongs to.
Satzart Satz_von(const Feldbeschreibung& f) { return f.Gruppe == Feldgruppe::Dosis ? Applikation : Wirkstoff; }

bool gehoert_zur_Studie(const Feldbeschreibung& f) {
    return f.Gruppe == Feldgruppe::Studie || f.Gruppe == Feldgruppe::Studie_Hinweis_bleibt;
}

// Whether the field takes this text.
bool gilt(const Feldbeschreibung& f, const Zahlwert& v, bool Enter) { return v.eindeutig() && f.gilt(v.Zahl(), Enter); }

// How the status line names a field.
std::string Feldname(const Feldbeschreibung& f) {
    std::string Name = f.Beschriftung;
    if (Name.ends_with(':')) Name.pop_back();
    return f.i_substanz > 0 ? Name + ", metabolite " + std::to_string(f.i_substanz) : Name;
}

template <class... F>
struct je_Ziel : F... {
    using F::operator()...;
};
template <class... F>
je_Ziel(F...) -> je_Ziel<F...>;

}  // namespace

const Zahlwert& Feldeingabe::Feldwert(int Feld) const {
    const auto* Ziel = std::get_if<Zahlwert Eingabe::*>(&Beschreibung(Feld).Ziel);
    return Ziel ? z_.Vorgabe.*(*Ziel) : Studienfelder_[static_cast<std::size_t>(Feld)];
}

Zahlwert Feldeingabe::gespeicherter_Wert(const Feldbeschreibung& f) const {
    const auto c = static_cast<std::size_t>(f.i_substanz);
    const auto st = static_cast<std::size_t>(z_.i_studie());
    const auto zeige = [&](double v) {
        const char d = z_.Welt.Dezimalzeichen;
        return Zahlwert(f.DT50 ? Text_der_Halbwertszeit(v, d) : allgemeine_Zahl(v, d));
    };
    return std::visit(je_Ziel{[&](Stofftabelle<double> Laufparameter::*t) { return zeige((z_.Parameter().*t)[c][st]); },
                              [&](Studientabelle<double> Laufparameter::*t) { return zeige((z_.Parameter().*t)[st]); },
                              [&](Zahlwert Eingabe::*t) { return z_.Vorgabe.*t; }},
                      f.Ziel);
}

void Feldeingabe::fuelle() {
    for (std::size_t i = 0; i < Studienfelder_.size(); ++i) {
        if (gehoert_zur_Studie(Feldtabelle()[i])) Studienfelder_[i] = gespeicherter_Wert(Feldtabelle()[i]);
    }
}

void Feldeingabe::betrete(int Feld) {
    if (aktiv_ == Feld) return;  // focus given back after a message: nothing is new
    aktiv_ = Feld;
    geaendert_ = false;
    Alter_Wert_ = Eintrittswert_ = Feldwert(Feld);
}

// The value goes to its table at once, as a record would give it back; a text that fails the test or is empty stands for 0 there.
void Feldeingabe::setze(int Feld, const Zahlwert& v) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    const auto c = static_cast<std::size_t>(f.i_substanz);
    const auto st = static_cast<std::size_t>(z_.i_studie());
    const double gueltiger = !v.leer() && gilt(f, v, false) ? v.Zahl() : 0;
    const double Ziel = wie_im_Satz(f.DT50 ? Halbwertszeit(gueltiger) : gueltiger);
    if (gehoert_zur_Studie(f)) Studienfelder_[static_cast<std::size_t>(Feld)] = v;
    std::visit(je_Ziel{[&](Stofftabelle<double> Laufparameter::*t) { (z_.Parameter().*t)[c][st] = Ziel; },
                       [&](Studientabelle<double> Laufparameter::*t) { (z_.Parameter().*t)[st] = Ziel; },
                       [&](Zahlwert Eingabe::*t) { z_.Vorgabe.*t = v; }},
               f.Ziel);
}

void Feldeingabe::aendere(int Feld, const std::string& Text) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    Satzplatz& Satz = z_.Saetze[Satz_von(f)];
    if (!std::exchange(geaendert_, true)) alte_Marke_ = Satz.Geaendert();
    setze(Feld, Text);
    if (Feldwert(Feld) == Alter_Wert_) z_.Feld_abgelehnt = false;
    Satz.merke_Aenderung();
}

bool Feldeingabe::pruefe(int Feld, bool Enter) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    z_.Feld_abgelehnt = !gilt(f, Feldwert(Feld), Enter);
    if (!z_.Feld_abgelehnt) return true;
    melde(z_, Texte::keine_gueltige_Eingabe, Enter && f.Meldung_Enter ? f.Meldung_Enter : f.Bereich->Meldung);
    return false;
}

bool Feldeingabe::bestaetige(int Feld) {
    if (!z_.Gestartet || !(z_.Hinweis() || geaendert_)) return true;
    if (!pruefe(Feld, true)) return false;
    uebernimm_Text(Feld);
    nimm_an(Feld, true);
    return true;
}

bool Feldeingabe::verlasse(int Feld) { return gib_ab(Feld, true); }

bool Feldeingabe::schliesse_ab(bool mit_Lauf) { return aktiv_ < 0 || gib_ab(aktiv_, mit_Lauf); }

bool Feldeingabe::gib_ab(int Feld, bool mit_Lauf) {
    // What stands as the record gave it may be left, valid or not.
    if (!(Feldwert(Feld) == Eintrittswert_)) {
        if (!pruefe(Feld, false)) return false;
        uebernimm_Text(Feld);
    }
    if (geaendert_ && Beschreibung(Feld).Name == std::string("Interzeption") && Feldwert(Feld).Zahl() == 0) setze(Feld, "0");
    aktiv_ = -1;
    z_.Feld_abgelehnt = false;
    if (geaendert_ || z_.Hinweis()) nimm_an(Feld, mit_Lauf);
    geaendert_ = false;
    return true;
}

// The field shows the number that its text was taken for.
void Feldeingabe::uebernimm_Text(int Feld) {
    if (!geaendert_) return;
    const Zahlwert Zahl = nimm_Zahl_an(z_, Feldname(Beschreibung(Feld)), Feldwert(Feld));
    if (Zahl != Feldwert(Feld)) setze(Feld, Zahl);
}

bool Feldeingabe::ausserhalb(int Feld) const {
    return !(Feld == aktiv_ && geaendert_) && !gilt(Beschreibung(Feld), Feldwert(Feld), false);
}

void Feldeingabe::nimm_zurueck(int Feld) {
    if (Feld != aktiv_ || !geaendert_) return;
    setze(Feld, Alter_Wert_);
    z_.Saetze[Satz_von(Beschreibung(Feld))].stelle_Marke(alte_Marke_);
    geaendert_ = z_.Feld_abgelehnt = false;
}

void Feldeingabe::nimm_Ungueltiges_zurueck() {
    if (aktiv_ >= 0 && !gilt(Beschreibung(aktiv_), Feldwert(aktiv_), false)) nimm_zurueck(aktiv_);
}

// The value has passed its test: the results follow it.
void Feldeingabe::nimm_an(int Feld, bool mit_Lauf) {
    const Feldbeschreibung& f = Beschreibung(Feld);
    // Rate and interception: where that is a run's outcome to the bit, valid results are scaled.
    const bool skaliert = f.Gruppe == Feldgruppe::Dosis && Laeufe_.skaliere();
    if (!skaliert && mit_Lauf) Laeufe_.berechne();
    // Enter runs a rate of 0 that cannot be left: Esc still brings back the text before.
    if (!f.gilt(Feldwert(Feld).Zahl(), false)) return;
    Alter_Wert_ = Feldwert(Feld);
    geaendert_ = false;
}

}  // namespace varnok
