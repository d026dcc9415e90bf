#include "batch/volle_serien.h"

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "batch/csv_zeile.h"
#include "exposure/ergebnistabelle.h"
#include "records/dateien.h"
#include "run/applikation.h"
#include "run/bezeichnungen.h"
#include "run/kalender.h"
#include "run/tageswerte.h"

namespace varnok::batch {
namespace {

// Day of the year, from 0, of the first application.
int erster_Jahrestag(const Eingabe& e) {
    if (e.Applikationsmuster != unregelmaessig) return Julian(e.App_Monat + 1) + e.App_Tag;
    return Jahrestag(e.Applikationsschema.front()).value_or(0);  // a run takes no other row
}

// "03 May"
std::string Datum(int Jahrestag) {
    int Monat = 1;
    while (Monat < Monate && Julian(Monat + 1) <= Jahrestag) ++Monat;
    return zweistellig(Jahrestag - Julian(Monat) + 1) + " " + std::string(Monatsnamen[static_cast<std::size_t>(Monat - 1)]);
}

void schreibe_Kopf(CSV_Zeile z, const Ergebnis& s) {
    for (const char* Name : {"day", "year", "date", "temperature (°C)", "soil moisture (Vol%)", "dose (g/ha)"}) z.Text(Name);
    for (int c = 0; c < static_cast<int>(s.Stoffwerte.size()); ++c) {
        for (const Endpunktart e : alle_Endpunkte) {
            const std::string davor = Stoffname(*s.Vorgabe, c) + " " + std::string(Endpunktnamen[e]) + " ";
            const std::string Einheit = " (" + std::string(Konzentrationseinheit(s.Vorgabe->Parameter.Einheit, e)) + ")";
            for (const std::string_view Sicht : Ansichtsnamen) z.Text(davor + std::string(Sicht) + Einheit);
        }
    }
    z.beende();
}

}  // namespace

Tageswetter bestimme_Tageswetter(const Eingabe& e, const Klimaquelle& Quelle, Lauf& l) {
    Tageswetter w;
    l.Felder = e;
    beginne_Tageswerte(l);
    auto Tage = e.Parameter.Klimamodus == nach_Klimadatei ? Quelle.lade(e.Klimaszenario) : std::nullopt;
    if (!Tage) {
        setze_konstantes_Klima(l);
        w.Temperatur = {l.Tag.Tagestemperatur};
        w.Feuchte.assign(letzter_Tag + 1, l.Tag.Bodenfeuchte);
        return w;
    }
    w.variabel = true;
    l.Klima = Wetter(std::move(*Tage), e.App_Monat, e.App_Tag);
    w.Feuchte.push_back(l.Tag.Bodenfeuchte);
    for (int d = 1; d <= letzter_Tag; ++d) {
        lies_Klimatag(l, d);
        w.Temperatur.push_back(l.Tag.Tagestemperatur);
        w.Feuchte.push_back(l.Tag.Bodenfeuchte);
    }
    return w;
}

std::string volle_Serie(const Ergebnis& s, const Ansicht& Sicht, const Tageswetter& Wetter) {
    std::string Text;
    schreibe_Kopf(CSV_Zeile(Text), s);
    const int erster = erster_Jahrestag(*s.Vorgabe);
    for (int d = 0; d <= letzter_Tag; ++d) {
        const auto i = static_cast<std::size_t>(d);
        CSV_Zeile z(Text);
        z.Zahl(d);
        z.Zahl(Jahr_von(d));
        z.Text(Datum((erster + d) % Tage_pro_Jahr));
        if (Wetter.variabel && d == 0) {
            z.leer();
        } else {
            z.Zahl(Wetter.variabel ? Wetter.Temperatur[i - 1] : Wetter.Temperatur.front());
        }
        z.Zahl(Wetter.Feuchte[i]);
        z.Zahl(s.Tagesrate[i]);
        for (const Stoffergebnis& Stoff : s.Stoffwerte) {
            for (const Endpunktergebnis& w : Stoff.Endpunktwerte) {
                z.Zahl(w.Reihe_Bodentiefe[i]);
                z.Zahl(w.Reihe_Plateautiefe[i]);
                z.Zahl(Ansichtswert(w.Plateauwert, Anreicherung, Sicht.Fruchtwechsel, w.Reihe_Bodentiefe[i]));
            }
        }
        z.beende();
    }
    return Text;
}

void schreibe_volle_Serien(const std::string& Ordner, const std::string& Name, const Simulationsergebnis& r,
                           const Klimaquelle& Quelle, Lauf& Arbeitsplatz, std::vector<std::string>& Schreibfehler) {
    const Tageswetter Wetter = bestimme_Tageswetter(*r.Vorgabe, Quelle, Arbeitsplatz);
    for (const auto& s : r.Studien) {
        try {
            schreibe_Datei(Ordner + "/" + Name + " - study " + std::to_string(s->i_studie + 1) + ".csv",
                           volle_Serie(*s, r.Sicht, Wetter), als_Datei);
        } catch (const Laufzeitfehler& f) {
            Schreibfehler.emplace_back(f.what());
        }
    }
}

}  // namespace varnok::batch
