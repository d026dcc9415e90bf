#include "records/satz.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/satzaufbau.h"
#include "records/satzleser.h"
#include "records/satzschreiber.h"
#include "records/satzstelle.h"
#include "records/zeilen.h"
#include "run/studientabellen.h"

namespace varnok {
namespace {

constexpr int Zeile_der_Flaggen = 3;

// The kind of record that a template has the layout of.
Satzart Grundart(Satzart Art) { return Art > Szenario ? static_cast<Satzart>(Art - Szenario) : Art; }

// What a reading works on: nothing of the caller's is touched before it is clear what counts.
struct Lesung {
    Satzleser Leser;
    Eingabe Felder;
    Ansicht Sicht;
};

[[noreturn]] void verwirf(const Lesefehler& f, const std::string& Zusatz = {}) {
    throw Laufzeitfehler(f.what() + Zusatz, f.Ort());
}

Lesebefund abgebrochen(const Lesefehler& f) { return {Leseausgang::abgebrochen, f.Ort(), f.what(), {}}; }

void loesche_Flaggen_ab(Laufparameter& p, int Stelle) {
    std::fill(p.Ausgabename_Teile.begin() + std::clamp(Stelle, 0, 7), p.Ausgabename_Teile.end(), std::uint8_t{0});
}

// Older records have fewer than seven flags: those from the missing tab on are 0. True if it was needed.
bool lies_Flaggen(Lesung& l) {
    try {
        gehe_durch_Ausgabename(l.Leser, l.Felder);
        return false;
    } catch (const Lesefehler& f) {
        const bool Datei_zu_Ende = l.Leser.Zeilennummer() < f.Zeile();
        if (!f.am_Aufbau() || Datei_zu_Ende) throw;
        loesche_Flaggen_ab(l.Felder.Parameter, f.Stelle());
        l.Leser.bemerke(f.Zeile(), std::string(f.what()) + "; from there on all are 0");
        return true;
    }
}

// Lines 4 on. After a complete line 3 the repair is still armed: the first fault of the layout clears
// the flags from the index of the study on, and the reading takes the next line for line 4.
void lies_Wirkstoffdaten(Lesung& l, bool Flaggen_repariert) {
    int Zaehler = static_cast<int>(l.Felder.Parameter.Ausgabename_Teile.size());
    std::optional<Lesefehler> erster;
    try {
        gehe_durch_Wirkstoffdaten(l.Leser, l.Felder, l.Sicht, Zaehler);
        return;
    } catch (const Lesefehler& f) {
        if (!f.am_Aufbau()) throw;
        if (Flaggen_repariert) {
            verwirf(f, " (line " + std::to_string(Zeile_der_Flaggen) + " is short of values, too)");
        }
        erster = f;
    }
    loesche_Flaggen_ab(l.Felder.Parameter, Zaehler);
    l.Leser.bemerke(erster->Zeile(), std::string(erster->what()) + "; reading went on with the line behind as line 4");
    try {
        gehe_durch_Wirkstoffdaten(l.Leser, l.Felder, l.Sicht, Zaehler);
    } catch (const Lesefehler&) {
        verwirf(*erster);
    }
}

Lesebefund lies_Wirkstoff(Lesung& l) {
    try {
        gehe_durch_Wirkstoffkopf(l.Leser, l.Felder);
    } catch (const Lesefehler& f) {
        if (f.am_Aufbau()) return abgebrochen(f);
        verwirf(f);
    }
    try {
        lies_Wirkstoffdaten(l, lies_Flaggen(l));
    } catch (const Lesefehler& f) {
        verwirf(f);
    }
    l.Sicht.Studie_Index = 0;
    setze_Startwerte(l.Felder.Parameter, l.Felder.Studie.size());
    return {};
}

int Zeile_von(const char* Speicher, const Eingabe& e) { return finde_Satzstelle({.Feld = Speicher}, e)->Zeile; }

// The last line that a run of the pattern reads; none where it is the table's last.
std::optional<int> letzte_noetige_Zeile(const Eingabe& e) {
    if (e.Applikationsmuster == unregelmaessig) return std::nullopt;
    return Zeile_von(e.Applikationsmuster == einzeln ? "Interzeption" : "Anzahl", e);
}

// Rows and lists that the record does not give are those of a program that has read none, never those of the record before.
void setze_Startwerte_der_Applikation(Eingabe& e) {
    const Eingabe Start;
    e.Intervall_Index = Start.Intervall_Index;
    e.Anzahl_Index = Start.Anzahl_Index;
    e.Applikationsschema = Start.Applikationsschema;
}

Lesebefund lies_Applikation(Lesung& l) {
    setze_Startwerte_der_Applikation(l.Felder);
    try {
        gehe_durch_Applikation(l.Leser, l.Felder, l.Sicht);
        return {};
    } catch (const Lesefehler& f) {
        const auto noetig = letzte_noetige_Zeile(l.Felder);
        if (!noetig || f.Zeile() <= *noetig) return abgebrochen(f);
        waehle_Anzahl(l.Felder, l.Felder.Anzahl());
        l.Leser.bemerke(f.Zeile(), std::string(f.what()) + "; reading stopped there, and the rest is not needed");
        return {};
    }
}

// What each value alone does not show.
void vergleiche_Bodenwerte(Lesung& l) {
    const Laufparameter& p = l.Felder.Parameter;
    const auto bemerke = [&](const char* Speicher, const char* Meldung, const char* anderer, double Wert) {
        const Satzstelle Stelle = finde_Satzstelle({.Feld = Speicher}, l.Felder).value();
        const std::string Zeile = std::to_string(Zeile_von(anderer, l.Felder));
        l.Leser.bemerke(Stelle.Zeile, Stelle.Name, std::string(Meldung) + " (line " + Zeile + ")", Wert);
    };
    if (p.Plateautiefe < p.Bodentiefe) bemerke("Plateautiefe", "below the soil depth", "Bodentiefe", p.Plateautiefe);
    if (p.Welkepunkt > p.Feldkapazitaet) bemerke("Welkepunkt", "above the field capacity", "Feldkapazitaet", p.Welkepunkt);
}

// A record that ends before it tells of the climate comes from a time of constant 20 degrees; the climate file makes the
// temperature needless.
Lesebefund lies_Szenario(Lesung& l) {
    try {
        gehe_durch_Szenario(l.Leser, l.Felder);
        return {};
    } catch (const Lesefehler& f) {
        Laufparameter& p = l.Felder.Parameter;
        const int Zeile_der_Temperatur = Zeile_von("Szenariotemperatur", l.Felder);
        const bool hinter_dem_Boden = f.Zeile() > Zeile_von("Welkepunkt", l.Felder);
        const bool vor_dem_Klima = f.am_Aufbau() && hinter_dem_Boden && f.Zeile() < Zeile_der_Temperatur;
        const bool nur_ohne_Temperatur = f.Zeile() == Zeile_der_Temperatur && p.Klimamodus == nach_Klimadatei;
        if (!vor_dem_Klima && !nur_ohne_Temperatur) return abgebrochen(f);
        p.Szenariotemperatur = 20;
        if (vor_dem_Klima) {
            p.Klimamodus = konstante_Temperatur;
            l.Felder.Klimaszenario.clear();
        }
        const char* Folge = vor_dem_Klima ? "the climate is 20 °C constant" : "the temperature is not needed";
        l.Leser.bemerke(f.Zeile(), std::string(f.what()) + "; reading stopped there, and " + Folge);
        return {};
    }
}

Lesebefund lies(Lesung& l, Satzart Art) {
    if (Art == Wirkstoff) return lies_Wirkstoff(l);
    if (Art == Applikation) return lies_Applikation(l);
    const Lesebefund Befund = lies_Szenario(l);
    if (Befund.Ausgang == Leseausgang::gelesen) vergleiche_Bodenwerte(l);
    return Befund;
}

}  // namespace

Lesebefund Satz_lesen_aus(const std::string& Bytes, const std::string& Datei, Satzart Art, Eingabe& e, Ansicht& a,
                          char Dezimalzeichen) {
    if (Art < Wirkstoff || Art > Vorlage_Szenario) throw Laufzeitfehler("File " + Datei + " is no record", {Datei});
    if (Bytes.size() > Hoechstgroesse_Datei) throw Laufzeitfehler("the file is too large for a record", {Datei, 1});
    Lesung l{Satzleser(Bytes, Datei, Dezimalzeichen), e, a};
    if (Bytes.starts_with(UTF8_Marke)) l.Leser.bemerke(1, "the file begins with the mark of UTF-8 and was read as Windows-1252");
    Lesebefund Befund = lies(l, Grundart(Art));
    Befund.Bemerkungen = l.Leser.Bemerkungen(l.Felder);
    if (Befund.Ausgang == Leseausgang::abgebrochen) return Befund;
    e = std::move(l.Felder);
    a = l.Sicht;
    return Befund;
}

Lesebefund Satz_lesen(const Projektordner& Ordner, const std::string& Name, Satzart Art, Eingabe& e, Ansicht& a,
                      char Dezimalzeichen) {
    if (Art < Wirkstoff || Art > Vorlage_Szenario) throw Laufzeitfehler("\"" + Name + "\" is no record");
    const std::string Endung = Endungen[Art];
    const auto Pfad = Ordner.finde(Name, Endung);
    if (!Pfad) return {Leseausgang::fehlt, {}, {}, {}};
    return Satz_lesen_aus(lies_Datei(*Pfad), Name + Endung, Art, e, a, Dezimalzeichen);
}

std::string Satz_als_Bytes(Satzart Art, const Eingabe& e, const Ansicht& a, char Dezimalzeichen) {
    Satzschreiber Schreiber(Dezimalzeichen);
    Eingabe Felder = e;
    Ansicht Sicht = a;
    int Zaehler = 0;
    if (Art == Wirkstoff) {
        gehe_durch_Wirkstoffkopf(Schreiber, Felder);
        gehe_durch_Ausgabename(Schreiber, Felder);
        gehe_durch_Wirkstoffdaten(Schreiber, Felder, Sicht, Zaehler);
    }
    if (Art == Applikation) gehe_durch_Applikation(Schreiber, Felder, Sicht);
    if (Art == Szenario) gehe_durch_Szenario(Schreiber, Felder);
    return Schreiber.Bytes();
}

void Satz_schreiben(const Projektordner& Ordner, const std::string& Name, Satzart Art, const Eingabe& e, const Ansicht& a,
                    char Dezimalzeichen) {
    if (Art < Wirkstoff || Art > Szenario) return;
    const std::string Pfad = Ordner.Zielpfad(Name, Endungen[Art]);
    schreibe_Datei(Pfad, Satz_als_Bytes(Art, e, a, Dezimalzeichen), als_Satz);
}

}  // namespace varnok
