#pragma once

// What must hold for any bytes that a reader is given. The fuzzers call it with what they make up, the
// ordinary tests with every input that was ever kept in fuzz/corpus. A breach ends the process.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "records/eingabenamen.h"
#include "records/einstellungen.h"
#include "records/klimadatei.h"
#include "records/pruefung.h"
#include "records/satz.h"
#include "records/satztext.h"
#include "records/simulation.h"

namespace varnok::fuzz {

inline void fordere(bool erfuellt) {
    if (!erfuellt) std::abort();
}

// A record that was read is written as bytes that read and write the same again, unless it holds a
// text that no record can hold (a tab, too long with its numbers written out).
inline void pruefe_Rundgang(Satzart Art, const Eingabe& Felder, const Ansicht& Sicht, char Dezimalzeichen) {
    std::string Bytes;
    try {
        Bytes = Satz_als_Bytes(Art, Felder, Sicht, Dezimalzeichen);
    } catch (const Laufzeitfehler&) {
        return;
    }
    Eingabe e;
    Ansicht a;
    const Lesebefund b = Satz_lesen_aus(Bytes, "written", Art, e, a, Dezimalzeichen);
    fordere(b.Ausgang == Leseausgang::gelesen);
    fordere(Satz_als_Bytes(Art, e, a, Dezimalzeichen) == Bytes);
}

// A remark says where it belongs and what is doubtful there.
inline void pruefe_Bemerkungen(const std::vector<Bemerkung>& Bemerkungen) {
    for (const Bemerkung& b : Bemerkungen) {
        fordere(b.Datei == "input" && b.Zeile >= 1 && !b.Meldung.empty());
        fordere(!b.Wert || std::isfinite(*b.Wert));
        fordere(!als_Zeile(b).empty());
    }
}

// What is taken of a text and what is left make up the text, and nothing that is left over goes without a word.
inline void pruefe_Zahl(const std::string& Eingang) {
    const Zahllesung l = lies_Zahl(Eingang);
    fordere(l.Zahl == Wert(Eingang) && !std::isnan(l.Zahl));
    fordere(lies_fuehrende_Zahl(Eingang).Zahl == fuehrende_Zahl(Eingang));
    const std::size_t Ende = std::min(Eingang.find_last_not_of(' ') + 1, Eingang.size());
    fordere(l.Rest.size() <= Ende && Eingang.substr(Ende - l.Rest.size(), l.Rest.size()) == l.Rest);
    fordere(Wert(Eingang.substr(0, Ende - l.Rest.size())) == l.Zahl);
    fordere(!l.leer || l.ohne_Zahl);
    fordere(!l.ohne_Zahl || l.Zahl == 0);
    if (!l.ganz()) return;
    const auto zaehle = [&](std::string_view Zeichen) {
        return std::count_if(Eingang.begin(), Eingang.end(), [&](char z) { return Zeichen.find(z) != std::string_view::npos; });
    };
    fordere(Eingang.find_first_not_of(" +-0123456789.,eE") == std::string::npos && zaehle(".,") <= 1 && zaehle("eE") <= 1);
}

// What is left of a text that somebody typed or pasted can stand in a record.
inline void pruefe_Zeichen(const std::string& Eingang) {
    const Satzfaehiges s = nur_Satzfaehiges(Eingang);
    fordere(Einwand_gegen_Text(s.Text).empty());
    fordere(s.Text.size() <= Eingang.size());
    fordere(nur_Satzfaehiges(s.Text).Text == s.Text);
    fordere(Meldung_ueber(s).empty() == s.abgewiesen.empty());
}

// The first byte chooses the kind of record and the decimal separator.
inline void pruefe_Satz(const std::string& Eingang) {
    if (Eingang.empty()) return;
    const auto Wahl = static_cast<unsigned char>(Eingang.front());
    const auto Art = static_cast<Satzart>(Wirkstoff + Wahl % 3);
    const char Dezimalzeichen = Wahl % 2 ? ',' : '.';
    Eingabe e;
    Ansicht a;
    try {
        const Lesebefund b = Satz_lesen_aus(Eingang.substr(1), "input", Art, e, a, Dezimalzeichen);
        fordere(b.Ausgang != Leseausgang::fehlt);
        pruefe_Bemerkungen(b.Bemerkungen);
        if (b.Ausgang == Leseausgang::gelesen) pruefe_Rundgang(Art, e, a, Dezimalzeichen);
    } catch (const Laufzeitfehler&) {
        fordere(Art == Wirkstoff && e == Eingabe{} && a == Ansicht{});
    }
}

inline void pruefe_Klima(const std::string& Eingang) {
    try {
        std::vector<Bemerkung> Bemerkungen;
        const auto Tage = zerlege_Klimadatei(Eingang, "input", &Bemerkungen);
        fordere(!Tage.empty());
        pruefe_Bemerkungen(Bemerkungen);
        fordere(Tage.size() == 365 || !Bemerkungen.empty());
    } catch (const Laufzeitfehler&) {
        return;
    }
}

inline void pruefe_Simulation(const std::string& Eingang) {
    try {
        std::vector<Bemerkung> Bemerkungen;
        zerlege_Simulation(Eingang, "input", &Bemerkungen);
        pruefe_Bemerkungen(Bemerkungen);
    } catch (const Laufzeitfehler&) {
        return;
    }
}

inline void pruefe_Einstellungen(const std::string& Eingang) {
    std::vector<Bemerkung> Bemerkungen;
    const auto e = zerlege_Einstellungen(Eingang, "input", &Bemerkungen);
    pruefe_Bemerkungen(Bemerkungen);
    fordere(e || !Bemerkungen.empty());
    if (!e) return;
    const std::string Bytes = Einstellungen_als_Bytes(e->Werte, e->TWA);
    const auto wieder = zerlege_Einstellungen(Bytes);
    fordere(wieder && Einstellungen_als_Bytes(wieder->Werte, wieder->TWA) == Bytes);
}

// The findings about a record: a fault where it cannot be read, and each with a line and a message. The first byte chooses the
// kind.
inline void pruefe_Befunde(const std::string& Eingang) {
    static Projektpruefer Pruefer{Projektordner(".")};
    if (Eingang.empty()) return;
    const auto Art = static_cast<Satzart>(Wirkstoff + static_cast<unsigned char>(Eingang.front()) % 3);
    bool lesbar = false;
    try {
        Eingabe e;
        Ansicht a;
        lesbar = Satz_lesen_aus(Eingang.substr(1), "input", Art, e, a).Ausgang == Leseausgang::gelesen;
    } catch (const Laufzeitfehler&) {
        lesbar = false;
    }
    bool Mangel = false;
    for (const Befund& b : Pruefer.pruefe_Satz(Eingang.substr(1), "input", Art)) {
        fordere(b.Stelle.Zeile >= 1 && !b.Stelle.Meldung.empty() && !b.Stelle.Datei.empty());
        Mangel = Mangel || b.Mangel;
    }
    fordere(lesbar || Mangel);
}

// NAME=VALUE: what is taken reads back as the same text, and goes into an input without another word.
inline void pruefe_Namen(const std::string& Eingang) {
    static const Projektordner Ordner(".");
    const auto Gleich = Eingang.find('=');
    if (Gleich == std::string::npos) return;
    try {
        const Namensbezug b = lies_Namensbezug(std::string_view(Eingang).substr(0, Gleich));
        const Eingabewert w = lies_Eingabewert(b, std::string_view(Eingang).substr(Gleich + 1), Ordner);
        fordere(lies_Eingabewert(b, w.Text(), Ordner) == w);
        Eingabe e;
        Ansicht a;
        e.Studie = {"1", "2"};
        e.Berechnungsmodus = zwei_in_Folge;
        const Namensbezug* const Namen[] = {&b};
        setze(e, a, b, w);
        stimme_ab(e, Namen);
        wird_gelesen(b, e);
        benannte_Werte(e, a);
    } catch (const Laufzeitfehler&) {
        return;
    }
}

}  // namespace varnok::fuzz
