#include "batch/datenbank.h"

#include <utility>

#include "base/programm.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

double einfach(float x) { return static_cast<double>(x); }

}  // namespace

Datenbank::Datenbank(const std::string& Datei, Datenbankumfang u) : u_(std::move(u)), Ziel_(Datei, u_.geteilt) {}

void Datenbank::nimm(const Simulationsausgang& a) {
    const Simulationsergebnis& r = a.Ergebnis;
    Ziel_.beginne_Stueck();
    if (Name_ != r.Name) betrete(r);
    Variantennummer Variante;
    if (a.Herkunft) Variante = Ziel_.Variante(Simulation_, static_cast<long long>(a.Herkunft->Reihe));
    Ziel_.loesche_Ergebnisse(Simulation_, Variante);
    if (Variante) schreibe_Werte(a, *Variante);
    if (!a.Fehler) beschreibe(r, a.Herkunft.has_value());
    for (const auto& s : r.Studien) schreibe(*s, Variante);
    melde(a, Variante);
    if (u_.geteilt)
        mit(Ziel_.Position().nimm(1, static_cast<long long>(a.Position)).nimm(2, Simulation_), 3, Variante).fuehre_aus();
    Ziel_.beende_Stueck();
}

void Datenbank::betrete(const Simulationsergebnis& r) {
    Name_ = r.Name;
    beschrieben_ = false;
    Simulation_ = Ziel_.Simulation(u_.Projekt, r.Name);
    // Of the variants in another part some may have been calculated.
    if (!u_.geteilt || u_.Varianten == 0) Ziel_.vergiss_Beschreibung(Simulation_);
    if (u_.Varianten > 0 && !u_.geteilt) Ziel_.loesche_Varianten_ueber(Simulation_, static_cast<long long>(u_.Varianten));
}

// What is the same for all variants is written once. The sum of a simulation with variants is that of what they share.
void Datenbank::beschreibe(const Simulationsergebnis& r, bool mit_Variante) {
    if (std::exchange(beschrieben_, true)) return;
    Anweisung& b = Ziel_.Zeilen().Beschreiben;
    b.nimm(1, Simulation_).nimm(2, r.Beschreibung);
    for (int i = 1; i <= 3; ++i) b.nimm(2 + i, r.Dateinamen[static_cast<std::size_t>(i)]);
    b.nimm(6, mit_Variante ? r.gemeinsame_Summe : r.Eingabensumme);
    b.nimm(7, std::string("VARNOK")).nimm(8, std::string(Programmversion)).fuehre_aus();
}

void Datenbank::schreibe_Werte(const Simulationsausgang& a, long long Variante) {
    Ziel_.Zeilen().Variantensumme.nimm(1, Variante).nimm(2, a.Ergebnis.Eingabensumme).fuehre_aus();
    Anweisung& w = Ziel_.Zeilen().Variantenwert;
    for (std::size_t i = 0; i < u_.Namen.size(); ++i) {
        const Eingabewert& x = a.Herkunft->Werte[i];
        w.nimm(1, Variante).nimm(2, u_.Namen[i]);
        (x.ist_Wort ? w.nimm(3, x.Wort) : w.nimm(3, x.Zahl())).fuehre_aus();
    }
}

void Datenbank::schreibe(const Ergebnis& s, const Variantennummer& Variante) {
    Anweisung& e = Ziel_.Zeilen().Ergebnis;
    const Eingabe& v = *s.Vorgabe;
    for (int c = 0; c < static_cast<int>(s.Stoffwerte.size()); ++c) {
        for (const Endpunktart Endpunkt : alle_Endpunkte) {
            const Endpunktergebnis& w = s.Werte(Endpunkt, c);
            mit(e.nimm(1, Simulation_), 2, Variante);
            e.nimm(3, s.i_studie + 1).nimm(4, v.Studie.at(static_cast<std::size_t>(s.i_studie)));
            e.nimm(5, c).nimm(6, Stoffname(v, c)).nimm(7, std::string(Endpunktnamen[Endpunkt]));
            e.nimm(8, std::string(Konzentrationseinheit(v.Parameter.Einheit, Endpunkt)));
            e.nimm(9, einfach(w.Maximum_Bodentiefe)).nimm(10, w.Maximumtag_Bodentiefe);
            e.nimm(11, einfach(w.Maximum_Plateautiefe)).nimm(12, einfach(w.Plateauwert));
            e.nimm(13, w.Plateauzuwachs).nimm(14, w.Plateautext).fuehre_aus();
            schreibe_Einzelwerte(w, Ziel_.letzte_Nummer());
        }
    }
}

void Datenbank::schreibe_Einzelwerte(const Endpunktergebnis& w, long long Ergebnis) {
    auto& x = Ziel_.Zeilen();
    int Jahr = 0;
    for (const float m : w.Jahresmaximum) x.Jahr.nimm(1, Ergebnis).nimm(2, ++Jahr).nimm(3, einfach(m)).fuehre_aus();
    for (const Fensterergebnis& f : w.TWA) {
        x.TWA.nimm(1, Ergebnis).nimm(2, einfach(f.Tage)).nimm(3, einfach(f.Maximum)).nimm(4, f.Starttag);
        x.TWA.nimm(5, einfach(f.aktuell)).fuehre_aus();
    }
    for (std::size_t d = 0; u_.mit_Reihen && d < w.Reihe_Bodentiefe.size(); ++d) {
        x.Tag.nimm(1, Ergebnis).nimm(2, static_cast<long long>(d)).nimm(3, einfach(w.Reihe_Bodentiefe[d]));
        x.Tag.nimm(4, einfach(w.Reihe_Plateautiefe[d])).fuehre_aus();
    }
}

void Datenbank::melde(const Simulationsausgang& a, const Variantennummer& Variante) {
    Anweisung& m = Ziel_.Zeilen().Meldung;
    const auto schreibe_Meldung = [&](const char* Art, const std::string& Text) {
        mit(m.nimm(1, Simulation_), 2, Variante).nimm(3, std::string(Art)).nimm(4, Text).fuehre_aus();
    };
    if (a.Fehler) schreibe_Meldung("error", a.Fehler->what());
    for (const auto& s : a.Ergebnis.Studien) {
        for (const std::string& Text : s->Warnungen) schreibe_Meldung("warning", Text);
    }
    for (const Bemerkung& b : a.Ergebnis.Bemerkungen) schreibe_Meldung("remark", als_Zeile(b));
}

}  // namespace varnok::batch
