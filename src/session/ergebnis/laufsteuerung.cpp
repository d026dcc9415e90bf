#include "session/ergebnis/laufsteuerung.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "exposure/anpassung.h"
#include "records/dateien.h"
#include "records/klimadatei.h"
#include "run/applikation.h"
#include "run/laufeingang.h"
#include "session/kern/texte.h"

namespace varnok {
namespace {

// The net dose of an input over that of another one.
double Dosisfaktor(const Eingabe& alt, const Eingabe& neu) {
    return Nettodosis(neu.Applikationsrate, neu.Interzeption) / Nettodosis(alt.Applikationsrate, alt.Interzeption);
}

// Whether two inputs differ for a run of the study in nothing but the dose.
bool nur_andere_Dosis(Eingabe alt, const Eingabe& neu, int i_studie) {
    alt.Applikationsrate = neu.Applikationsrate;
    alt.Interzeption = neu.Interzeption;
    return gleicher_Laufeingang(alt, neu, i_studie);
}

}  // namespace

void Laufsteuerung::sieh_Klima_an() {
    if (z_.Parameter().Klimamodus == konstante_Temperatur || !z_.Ordner) {
        z_.Klima = nullptr;
        return;
    }
    const auto Pfad = z_.Ordner->finde(z_.Vorgabe.Klimaszenario, Klima_Endung);
    const auto Bytes = Pfad ? lies_Datei_falls_moeglich(*Pfad) : std::nullopt;
    const Klimabytes& bekannt = z_.Klima;
    if (Bytes && bekannt && *bekannt == *Bytes) return;  // results of one weather share it
    z_.Klima = Bytes ? std::make_shared<const std::string>(*Bytes) : nullptr;
}

bool Laufsteuerung::berechne(bool auch_gueltige) { return fuehre_aus(z_.gezeigte_Studien(), auch_gueltige); }

bool Laufsteuerung::berechne_auf_Wunsch(bool auch_gueltige) {
    if (z_.Gestartet && !z_.Saetze_vollstaendig()) melde_fehlenden_Satz();
    return berechne(auch_gueltige);
}

bool Laufsteuerung::berechne_alle_Studien() {
    std::vector<int> alle(static_cast<std::size_t>(z_.Studienzahl()));
    std::iota(alle.begin(), alle.end(), 0);
    return fuehre_aus(alle, false);
}

bool Laufsteuerung::fuehre_aus(const std::vector<int>& Studien, bool auch_gueltige) {
    if (!z_.Gestartet || !z_.Saetze_vollstaendig()) return false;
    sieh_Klima_an();
    for (const int st : Studien) {
        if (!auch_gueltige && z_.gueltig(st)) continue;
        if (!rechne_Studie(st)) return false;
    }
    z_.Gerechnetes.vergiss_Grund();
    return true;
}

bool Laufsteuerung::rechne_Studie(int i_studie) {
    Tabellenfehler_.reset();
    Klimadatei_fehlt_ = false;
    Studienlauf Gerechnet;
    try {
        const Projektklima Klima(*z_.Ordner);
        Gerechnet = berechne_Studie(*Arbeitsplatz_, std::make_shared<const Eingabe>(z_.Vorgabe), i_studie, Klima);
    } catch (...) {
        z_.Gerechnetes.melde_Grund({Texte::nicht_gueltig});
        throw;
    }
    if (!Gerechnet.Werte) return ende_ohne_Ergebnis(Gerechnet.Ausgang);
    z_.Vorgabe.Applikationsschema = Gerechnet.Werte->Vorgabe->Applikationsschema;  // the run may have repaired it
    sammle_Warnungen(*Gerechnet.Werte);
    gelaufen_ = Gerechnet.Werte;
    z_.Gerechnetes.uebernimm(i_studie, std::move(Gerechnet.Werte), z_.Klima);
    return true;
}

// Tells why a run ended early; false for the caller.
bool Laufsteuerung::ende_ohne_Ergebnis(const Laufergebnis& Ausgang) {
    const bool Tabelle = Ausgang.Ausgang == Laufausgang::Tabelle_ungueltig;
    const bool Datei = Ausgang.Ausgang == Laufausgang::Klimadatei_fehlt;
    z_.Gerechnetes.melde_Grund({Texte::nicht_gueltig, !Tabelle});
    if (Tabelle) Tabellenfehler_ = Zelle{Ausgang.Zeile, Ausgang.Spalte};
    Klimadatei_fehlt_ = Datei;
    melde(z_, Datei ? Texte::Datei_fehlt : Texte::keine_gueltige_Eingabe, Meldung(Ausgang.Ausgang));
    return false;
}

bool Laufsteuerung::skaliere() {
    if (z_.Gerechnetes.Grund()) return false;
    sieh_Klima_an();
    const auto Vorgabe = std::make_shared<const Eingabe>(z_.Vorgabe);
    Ergebnisse neue = z_.Werte();
    for (const int st : z_.gezeigte_Studien()) {
        auto& Platz = neue.at(static_cast<std::size_t>(st));
        if (!Platz || !nur_andere_Dosis(*Platz->Vorgabe, *Vorgabe, st)) return false;
        if (!z_.Gerechnetes.gueltig(st, *Platz->Vorgabe, z_.Klima)) return false;  // the weather is another one by now
        Platz = Werte_anpassen(*Platz, Vorgabe, Dosisfaktor(*Platz->Vorgabe, *Vorgabe));
        if (!Platz) return false;
    }
    for (const int st : z_.gezeigte_Studien()) {
        z_.Gerechnetes.uebernimm(st, std::move(neue.at(static_cast<std::size_t>(st))), z_.Klima);
    }
    z_.Gerechnetes.vergiss_Grund();
    return true;
}

void Laufsteuerung::sammle_Warnungen(const Ergebnis& e) {
    for (const std::string& w : e.Warnungen) {
        if (std::find(Warnungen_.begin(), Warnungen_.end(), w) == Warnungen_.end()) Warnungen_.push_back(w);
    }
}

void Laufsteuerung::melde_Warnungen() {
    const std::vector<std::string> Warnungen = std::exchange(Warnungen_, {});
    if (Warnungen.empty() || z_.abgedeckt()) return;
    std::string Text;
    for (const std::string& w : Warnungen) Text += (Text.empty() ? "" : "\n") + w;
    melde(z_, Texte::kein_Endplateau, Text);
}

void Laufsteuerung::melde_fehlenden_Satz() {
    for (const Satzart Art : Eingabearten) {
        if (z_.Auswahl(Art) < 0) {
            melde(z_, Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Art]);
            return;
        }
    }
}

}  // namespace varnok
