#include "session/ergebnis/diagrammsteuerung.h"

#include <algorithm>
#include <cmath>

#include "session/kern/zahleneingabe.h"

namespace varnok {

Diagrammsteuerung::Diagrammsteuerung(Zustand& z) : z_(z), Bereiche_(Startbereiche(jaehrlich)) {
    for (const Stoffschema m : {nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge}) {
        vorne_[m] = Diagrammsatz_von(m, 0);
        vorne_Zusammenfassung_[m] = Zusammenfassungssatz_von(m, 0);
    }
}

void Diagrammsteuerung::setze_Startbereiche() {
    Bereiche_ = Startbereiche(z_.Sicht.PEC_Typ);
    Ausschnitte_.clear();
}

void Diagrammsteuerung::setze_Bereiche_nach_Ansicht() {
    varnok::setze_Bereiche_nach_Ansicht(Bereiche_, z_.Sicht.PEC_Typ);
    Ausschnitte_.clear();
}

Diagrammsteuerung::Grundlage Diagrammsteuerung::jetzige_Grundlage() const {
    Grundlage g{{}, z_.Sicht, z_.Zusammenfassung_aktiv(), z_.Vorgabe.Beschreibung, z_.Vorgabe.Studie, Bereiche_};
    for (const int st : z_.gezeigte_Studien())
        g.Werte.at(static_cast<std::size_t>(st)) = z_.Werte().at(static_cast<std::size_t>(st));
    for (int c = 0; c < Stoffe; ++c) g.Namen.push_back(Stoffname(z_.Vorgabe, c));
    return g;
}

bool Diagrammsteuerung::gleicher_Anblick() const {
    return gezeichnet_ && gezeichnet_->Sicht == z_.Sicht && gezeichnet_->Zusammenfassung == z_.Zusammenfassung_aktiv() &&
           gezeichnet_->Bereiche == Bereiche_ && gezeichnete_Saetze_ == z_.Namen && gesehene_Ausschnitte_ == Ausschnitte_;
}

bool Diagrammsteuerung::ziehe_nach(const Ergebnis* gelaufen) {
    if (z_.abgedeckt()) return false;
    const bool anders = gelaufen != nullptr || gezeichnet_ != jetzige_Grundlage();
    if (!anders && gesehene_Ausschnitte_ == Ausschnitte_) return false;
    if (!gleicher_Anblick()) ++Anblick_;
    const std::string Fehler = anders ? zeichne(gelaufen) : std::string();
    schneide_aus();
    gezeichnet_ = jetzige_Grundlage();  // the drawing may have moved the ends of its axes
    gezeichnete_Saetze_ = z_.Namen;
    gesehene_Ausschnitte_ = Ausschnitte_;
    ++Zeichnung_;
    // One message for a drawing, and the drawing stands.
    if (!Fehler.empty()) melde_Fehler(z_, Fehler);
    return true;
}

void Diagrammsteuerung::schneide_aus() {
    Diagramme_ = gezeichnete_;
    for (Diagramm& d : Diagramme_) {
        const auto Fund = Ausschnitte_.find({d.Zusammenfassung, d.Nummer});
        const auto ganzer = gezeigter_Zeitraum(d);
        if (Fund != Ausschnitte_.end() && ganzer) d = zeige_Ausschnitt(d, halte_in(*ganzer, Fund->second));
    }
}

std::string Diagrammsteuerung::zeichne(const Ergebnis* gelaufen) {
    gezeichnete_ = z_.Zusammenfassung_aktiv() ? erstelle_Diagramme_Zusammenfassung(z_.zeige(), Bereiche_, z_.i_studie())
                                              : erstelle_Diagramme(z_.zeige(), Bereiche_, z_.i_studie());
    std::string Fehler;
    // Files that fail for one reason are told in one line.
    const auto sammle = [&](const std::string& Text) {
        if (Fehler.find(Text) == std::string::npos) Fehler += (Fehler.empty() ? "" : "\n") + Text;
    };
    if (z_.ohne_Nebenausgaben) return Fehler;
    if (gelaufen != nullptr) sammle(Nebenausgaben_.schreibe_Laufprotokoll(*z_.Ausgabeprojekt, *gelaufen));
    for (const Diagramm& d : gezeichnete_) sammle(Nebenausgaben_.schreibe_Zeichnung(*z_.Ausgabeprojekt, d));
    return Fehler;
}

int& Diagrammsteuerung::Platz_vorne() {
    const Stoffschema m = z_.Vorgabe.Berechnungsmodus;
    return z_.Zusammenfassung_aktiv() ? vorne_Zusammenfassung_[m] : vorne_[m];
}

int Diagrammsteuerung::vorne() const { return const_cast<Diagrammsteuerung*>(this)->Platz_vorne(); }

const Diagramm* Diagrammsteuerung::vorderes() const {
    const auto Treffer = std::find_if(Diagramme_.begin(), Diagramme_.end(), [&](const Diagramm& d) {
        return d.Nummer == vorne() && d.Zusammenfassung == z_.Zusammenfassung_aktiv();
    });
    return Treffer == Diagramme_.end() ? nullptr : &*Treffer;
}

void Diagrammsteuerung::bringe_nach_vorn(int i_substanz) {
    const Stoffschema m = z_.Vorgabe.Berechnungsmodus;
    const int Nummer = z_.Zusammenfassung_aktiv() ? Zusammenfassungssatz_von(m, i_substanz) : Diagrammsatz_von(m, i_substanz);
    if (Nummer != kein_Diagramm) Platz_vorne() = Nummer;
}

void Diagrammsteuerung::schalte_weiter() {
    const auto i = static_cast<std::size_t>(vorne());
    Platz_vorne() = z_.Zusammenfassung_aktiv() ? Zusammenfassungsring[i].Nummer : Diagrammring[i].Nummer;
}

bool Diagrammsteuerung::skaliere(const Zahlwert& Start, const Zahlwert& Ende) {
    const bool eindeutig = Start.eindeutig() && Ende.eindeutig();
    if (eindeutig && uebernimm_Skalierung(Bereiche_, z_.Zusammenfassung_aktiv(), vorne(), Start, Ende)) {
        Ausschnitte_.erase(Ausschnittplatz());
        std::string Meldung;
        nimm_Zahl_an(z_, "Start (d)", Start, Meldung);
        nimm_Zahl_an(z_, "End (d)", Ende, Meldung);
        z_.Statuszeile.sage_Zahl(Meldung);
        return true;
    }
    z_.Welt.Fragen->frage({Skalierungsfehler_Titel, Skalierungsfehler, Symbol::Ausrufezeichen, {Knopf::OK, Knopf::Abbrechen}});
    return false;
}

double Diagrammsteuerung::X_Start() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv() ? Bereiche_.X_Start_Zusammenfassung[i] : Bereiche_.X_Start[i];
}

double Diagrammsteuerung::X_Ende() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv() ? Bereiche_.X_Ende_Zusammenfassung[i] : Bereiche_.X_Ende[i];
}

std::optional<Zeitraum> Diagrammsteuerung::gesehener_Zeitraum() const {
    const Diagramm* d = vorderes();
    return d != nullptr ? gezeigter_Zeitraum(*d) : std::nullopt;
}

void Diagrammsteuerung::zeige_Zeitraum(const Zeitraum& r) {
    const auto Fund = std::find_if(gezeichnete_.begin(), gezeichnete_.end(),
                                   [this](const Diagramm& d) { return Platz(d.Zusammenfassung, d.Nummer) == Ausschnittplatz(); });
    const auto ganzer = Fund == gezeichnete_.end() ? std::nullopt : gezeigter_Zeitraum(*Fund);
    if (!ganzer) return;
    const Zeitraum gehalten = halte_in(*ganzer, r);
    Ausschnitte_.erase(Ausschnittplatz());
    if (gehalten != *ganzer) Ausschnitte_[Ausschnittplatz()] = gehalten;
}

void Diagrammsteuerung::strecke_um(double Faktor, double Tag) {
    if (const auto r = gesehener_Zeitraum()) zeige_Zeitraum(gestreckt(*r, Faktor, Tag));
}

void Diagrammsteuerung::strecke(double Faktor) {
    if (const auto r = gesehener_Zeitraum()) strecke_um(Faktor, (r->von + r->bis) / 2);
}

void Diagrammsteuerung::verschiebe(double Anteil) {
    const auto r = gesehener_Zeitraum();
    if (!r || !hat_Ausschnitt()) return;
    const double Tage = std::nearbyint(Anteil * r->Laenge());  // there and back is the same place
    zeige_Zeitraum({r->von + Tage, r->bis + Tage});
}

void Diagrammsteuerung::zeige_alles() {
    Ausschnitte_.erase(Ausschnittplatz());
    setze_Bereich_nach_Ansicht(Bereiche_, z_.Sicht.PEC_Typ, z_.Zusammenfassung_aktiv(), vorne());
}

void Diagrammsteuerung::merke_Legende(bool Zusammenfassung, int Diagrammsatz, const std::optional<Flaechenort>& Ort) {
    const auto i = static_cast<std::size_t>(Diagrammsatz);
    (Zusammenfassung ? Legenden_Zusammenfassung_.at(i) : Legenden_.at(i)) = Ort;
}

const std::optional<Flaechenort>& Diagrammsteuerung::Legende() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv() ? Legenden_Zusammenfassung_[i] : Legenden_[i];
}

}  // namespace varnok
