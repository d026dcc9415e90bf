#include "session/ergebnis/laufsteuerung.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "exposure/anpassung.h"
#include "run/applikation.h"
#include "session/kern/texte.h"

namespace varnok {
namespace {

std::vector<int> alle_Studien(int Anzahl) {
    std::vector<int> Studien(static_cast<std::size_t>(Anzahl));
    std::iota(Studien.begin(), Studien.end(), 0);
    return Studien;
}

// The net dose of an input over that of another one.
double Dosisfaktor(const Eingabe& alt, const Eingabe& neu) {
    return Nettodosis(neu.Applikationsrate, neu.Interzeption) / Nettodosis(alt.Applikationsrate, alt.Interzeption);
}

}  // namespace

void Laufsteuerung::markiere_veraltet() {
    if (!z_.Gestartet) return;
    z_.veraltet = true;
    z_.Hinweis = true;
}

void Laufsteuerung::verwirf_Studie(int i_studie) { z_.gueltig.at(static_cast<std::size_t>(i_studie)) = false; }

void Laufsteuerung::verwirf_alle() { z_.gueltig.fill(false); }

bool Laufsteuerung::Saetze_vollstaendig() const {
    for (std::size_t t = 1; t <= 3; ++t) {
        if (z_.Auswahl(t) < 0 || z_.nicht_gelesen[t]) return false;
    }
    return !z_.nicht_gelesen[0];  // a simulation in the place of a deleted one
}

// Those that the view on display shows: the selected one, in the summary view all.
std::vector<int> Laufsteuerung::gezeigte_Studien() const {
    if (!z_.Zusammenfassung_aktiv) return {z_.i_studie()};
    return alle_Studien(z_.Studienzahl());
}

bool Laufsteuerung::alles_Gezeigte_gueltig() const {
    const std::vector<int> Studien = gezeigte_Studien();
    return std::all_of(Studien.begin(), Studien.end(), [this](int st) { return z_.gueltig.at(static_cast<std::size_t>(st)); });
}

bool Laufsteuerung::berechne(bool vom_Benutzer) { return fuehre_aus(gezeigte_Studien(), vom_Benutzer); }

bool Laufsteuerung::berechne_alle_Studien() { return fuehre_aus(alle_Studien(z_.Studienzahl()), false); }

bool Laufsteuerung::fuehre_aus(const std::vector<int>& Studien, bool vom_Benutzer) {
    if (!z_.Gestartet) return false;
    if (!Saetze_vollstaendig()) {
        const bool geloescht = std::find(z_.nicht_gelesen.begin(), z_.nicht_gelesen.end(), true) != z_.nicht_gelesen.end();
        decke_ab(z_, geloescht ? Texte::Satz_geloescht : Texte::Satz_fehlt);
        if (vom_Benutzer) melde_fehlenden_Satz();
        return false;
    }
    z_.Hinweis = false;
    Warnungen_.clear();
    const Ergebnis* gelaufen = nullptr;
    for (const int st : Studien) {
        // A study whose results are of this input needs no run, unless it is the one asked for.
        if (Studien.size() > 1 && z_.gueltig[static_cast<std::size_t>(st)]) continue;
        if (!rechne_Studie(st)) return false;
        gelaufen = z_.Werte[static_cast<std::size_t>(st)].get();
    }
    beende_mit_Erfolg(gelaufen);
    return true;
}

bool Laufsteuerung::rechne_Studie(int i_studie) {
    verwirf_Studie(i_studie);
    z_.Tabellenfehler.reset();
    decke_ab(z_, Texte::Eingabe_geaendert);
    Studienlauf Gerechnet;
    try {
        const Projektklima Klima(*z_.Ordner);
        Gerechnet = berechne_Studie(*Arbeitsplatz_, std::make_shared<const Eingabe>(z_.Vorgabe), i_studie, Klima);
    } catch (...) {
        z_.Hinweis = z_.veraltet = true;
        z_.Abdeckungswort = Texte::nicht_gueltig;
        throw;
    }
    if (!Gerechnet.Werte) return ende_ohne_Ergebnis(Gerechnet.Ausgang);
    z_.Vorgabe.Applikationsschema = Gerechnet.Werte->Vorgabe->Applikationsschema;  // the run may have repaired it
    sammle_Warnungen(*Gerechnet.Werte);
    z_.Werte[static_cast<std::size_t>(i_studie)] = std::move(Gerechnet.Werte);
    z_.gueltig[static_cast<std::size_t>(i_studie)] = true;
    return true;
}

// Tells why a run ended early; false for the caller.
bool Laufsteuerung::ende_ohne_Ergebnis(const Laufergebnis& Ausgang) {
    z_.Hinweis = z_.veraltet = true;
    z_.Abdeckungswort = Texte::nicht_gueltig;
    z_.Neu_berechnen = Ausgang.Ausgang == Laufausgang::Tabelle_ungueltig;
    if (Ausgang.Ausgang == Laufausgang::Tabelle_ungueltig) z_.Tabellenfehler = Zelle{Ausgang.Zeile, Ausgang.Spalte};
    const bool Datei = Ausgang.Ausgang == Laufausgang::Klimadatei_fehlt;
    z_.Szenarioeditor_faellig = Datei;
    melde(z_, Datei ? Texte::Datei_fehlt : Texte::keine_gueltige_Eingabe, Meldung(Ausgang.Ausgang));
    return false;
}

bool Laufsteuerung::skaliere() {
    if (!alles_Gezeigte_gueltig()) return false;
    const auto Vorgabe = std::make_shared<const Eingabe>(z_.Vorgabe);
    Ergebnisse neue = z_.Werte;
    std::array<bool, max_Studien> gueltig{};
    for (const int st : gezeigte_Studien()) {
        const auto i = static_cast<std::size_t>(st);
        neue[i] = Werte_anpassen(*z_.Werte[i], Vorgabe, Dosisfaktor(*z_.Werte[i]->Vorgabe, *Vorgabe));
        if (!neue[i]) return false;
        gueltig[i] = true;
    }
    z_.Werte = std::move(neue);
    z_.gueltig = gueltig;
    z_.veraltet = z_.Hinweis = false;
    zeichne_neu();
    return true;
}

void Laufsteuerung::sammle_Warnungen(const Ergebnis& e) {
    for (const std::string& w : e.Warnungen) {
        if (std::find(Warnungen_.begin(), Warnungen_.end(), w) == Warnungen_.end()) Warnungen_.push_back(w);
    }
}

void Laufsteuerung::beende_mit_Erfolg(const Ergebnis* gelaufen) {
    z_.veraltet = false;
    zeichne(gelaufen);
    zeige_Warnungen();
}

void Laufsteuerung::zeige_Warnungen() {
    if (Warnungen_.empty()) return;
    std::string Text;
    for (const std::string& w : Warnungen_) Text += (Text.empty() ? "" : "\n") + w;
    melde(z_, Texte::kein_Endplateau, Text);
}

void Laufsteuerung::zeichne(const Ergebnis* gelaufen) {
    if (!z_.Gestartet || !alles_Gezeigte_gueltig() || !Saetze_vollstaendig()) return;
    Diagramme_.zeichne(gelaufen);
    ++z_.Zeichnung;
    z_.abgedeckt = false;
}

void Laufsteuerung::melde_fehlenden_Satz() {
    for (std::size_t t = 1; t <= 3; ++t) {
        if (z_.Auswahl(t) < 0) {
            melde(z_, Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[t]);
            return;
        }
    }
}

}  // namespace varnok
