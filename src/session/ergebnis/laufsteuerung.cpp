#include "session/ergebnis/laufsteuerung.h"

#include <algorithm>

#include "exposure/schritte.h"
#include "session/kern/texte.h"

namespace varnok {

void Laufsteuerung::markiere_veraltet() {
    if (!z_.Gestartet) return;
    z_.veraltet = true;
    z_.Hinweis = true;
}

void Laufsteuerung::verwirf_Studie(int i_studie) { z_.gueltig.at(static_cast<std::size_t>(i_studie)) = false; }

void Laufsteuerung::verwirf_alle() { z_.gueltig.fill(false); }

bool Laufsteuerung::Saetze_vollstaendig() const {
    for (std::size_t t = 1; t <= 3; ++t) {
        if (z_.Auswahl[t] < 0 || z_.nicht_gelesen[t]) return false;
    }
    return !z_.nicht_gelesen[0];  // a simulation in the place of a deleted one
}

bool Laufsteuerung::alles_Gezeigte_gueltig() const {
    if (!z_.Zusammenfassung_aktiv) return z_.gueltig[static_cast<std::size_t>(z_.i_studie())];
    return std::all_of(z_.gueltig.begin(), z_.gueltig.begin() + z_.Studienzahl(), [](bool g) { return g; });
}

bool Laufsteuerung::berechne(bool vom_Benutzer) {
    if (z_.Zusammenfassung_aktiv) return fuehre_aus(0, z_.Studienzahl() - 1, vom_Benutzer);
    return fuehre_aus(z_.i_studie(), z_.i_studie(), vom_Benutzer);
}

bool Laufsteuerung::berechne_alle_Studien() { return fuehre_aus(0, z_.Studienzahl() - 1, false); }

bool Laufsteuerung::fuehre_aus(int erste, int letzte, bool vom_Benutzer) {
    if (!z_.Gestartet) return false;
    if (!Saetze_vollstaendig()) {
        const bool geloescht = std::find(z_.nicht_gelesen.begin(), z_.nicht_gelesen.end(), true) != z_.nicht_gelesen.end();
        decke_ab(z_, geloescht ? Texte::Satz_geloescht : Texte::Satz_fehlt);
        if (vom_Benutzer) melde_fehlenden_Satz();
        return false;
    }
    z_.Hinweis = false;
    Warnungen_.clear();
    bool gelaufen = false;
    for (int st = erste; st <= letzte; ++st) {
        // A study whose results are of this input needs no run, unless it is the one asked for.
        if (erste != letzte && z_.gueltig[static_cast<std::size_t>(st)]) continue;
        if (!rechne_Studie(st)) return false;
        gelaufen = true;
    }
    beende_mit_Erfolg(gelaufen);
    return true;
}

bool Laufsteuerung::rechne_Studie(int i_studie) {
    verwirf_Studie(i_studie);
    z_.Tabellenfehler.reset();
    decke_ab(z_, Texte::Eingabe_geaendert);
    const Projektklima Klima(*z_.Ordner);
    Laufergebnis Ergebnis;
    try {
        Ergebnis = berechne_PEC(z_.Rechnung, i_studie, Klima, alle_Rechenschritte);
    } catch (...) {
        z_.Hinweis = z_.veraltet = true;
        z_.Abdeckungswort = Texte::nicht_gueltig;
        throw;
    }
    if (Ergebnis.gelungen()) {
        z_.gueltig[static_cast<std::size_t>(i_studie)] = true;
        sammle_Warnungen();
        return true;
    }
    z_.Hinweis = z_.veraltet = true;
    z_.Abdeckungswort = Texte::nicht_gueltig;
    z_.Neu_berechnen = Ergebnis.Ausgang == Laufausgang::Tabelle_ungueltig;
    if (Ergebnis.Ausgang == Laufausgang::Tabelle_ungueltig) z_.Tabellenfehler = Zelle{Ergebnis.Zeile, Ergebnis.Spalte};
    const bool Datei = Ergebnis.Ausgang == Laufausgang::Klimadatei_fehlt;
    z_.Szenarioeditor_faellig = Datei;
    melde(z_, Datei ? Texte::Datei_fehlt : Texte::keine_gueltige_Eingabe, Meldung(Ergebnis.Ausgang));
    return false;
}

void Laufsteuerung::sammle_Warnungen() {
    for (const std::string& w : z_.Rechnung.Warnungen) {
        if (std::find(Warnungen_.begin(), Warnungen_.end(), w) == Warnungen_.end()) Warnungen_.push_back(w);
    }
}

void Laufsteuerung::beende_mit_Erfolg(bool gelaufen) {
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

void Laufsteuerung::zeichne(bool nach_Lauf) {
    if (!z_.Gestartet || !alles_Gezeigte_gueltig() || !Saetze_vollstaendig()) return;
    Diagramme_.zeichne(nach_Lauf);
    ++z_.Zeichnung;
    z_.abgedeckt = false;
}

void Laufsteuerung::melde_fehlenden_Satz() {
    for (std::size_t t = 1; t <= 3; ++t) {
        if (z_.Auswahl[t] < 0) {
            melde(z_, Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[t]);
            return;
        }
    }
}

}  // namespace varnok
