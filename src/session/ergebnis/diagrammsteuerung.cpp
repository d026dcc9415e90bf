#include "session/ergebnis/diagrammsteuerung.h"

#include <algorithm>

#include "session/kern/texte.h"

namespace varnok {

Diagrammsteuerung::Diagrammsteuerung(Zustand& z) : z_(z), Bereiche_(Startbereiche(jaehrlich)) {
    for (const Stoffschema m : {nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge}) {
        vorne_[m] = Diagrammsatz_von(m, 0);
        vorne_Zusammenfassung_[m] = Zusammenfassungssatz_von(m, 0);
    }
}

void Diagrammsteuerung::setze_Startbereiche() { Bereiche_ = Startbereiche(z_.Sicht.PEC_Typ); }

void Diagrammsteuerung::setze_Bereiche_nach_Ansicht() { varnok::setze_Bereiche_nach_Ansicht(Bereiche_, z_.Sicht.PEC_Typ); }

Diagrammsteuerung::Grundlage Diagrammsteuerung::jetzige_Grundlage() const {
    Grundlage g{{}, z_.Sicht, z_.Zusammenfassung_aktiv, z_.Vorgabe.Beschreibung, z_.Vorgabe.Studie, Bereiche_};
    for (const int st : z_.gezeigte_Studien())
        g.Werte.at(static_cast<std::size_t>(st)) = z_.Werte().at(static_cast<std::size_t>(st));
    for (int c = 0; c < Stoffe; ++c) g.Namen.push_back(Stoffname(z_.Vorgabe, c));
    return g;
}

bool Diagrammsteuerung::ziehe_nach(const Ergebnis* gelaufen) {
    if (z_.abgedeckt() || (gelaufen == nullptr && gezeichnet_ == jetzige_Grundlage())) return false;
    zeichne(gelaufen);
    gezeichnet_ = jetzige_Grundlage();  // the drawing may have moved the ends of its axes
    ++z_.Zeichnung;
    return true;
}

void Diagrammsteuerung::zeichne(const Ergebnis* gelaufen) {
    Diagramme_ = z_.Zusammenfassung_aktiv ? erstelle_Diagramme_Zusammenfassung(z_.zeige(), Bereiche_, z_.i_studie())
                                          : erstelle_Diagramme(z_.zeige(), Bereiche_, z_.i_studie());
    std::string Fehler;
    // Files that fail for one reason are told in one line.
    const auto sammle = [&](const std::string& Text) {
        if (Fehler.find(Text) == std::string::npos) Fehler += (Fehler.empty() ? "" : "\n") + Text;
    };
    if (gelaufen != nullptr) sammle(Nebenausgaben_.schreibe_Laufprotokoll(*z_.Ausgabeprojekt, *gelaufen));
    for (const Diagramm& d : Diagramme_) sammle(Nebenausgaben_.schreibe_Zeichnung(*z_.Ausgabeprojekt, d));
    // One message for a drawing, and the drawing stands.
    if (!Fehler.empty()) melde(z_, Texte::Laufzeitfehler, Fehler);
}

int& Diagrammsteuerung::Platz_vorne() {
    const Stoffschema m = z_.Felder().Berechnungsmodus;
    return z_.Zusammenfassung_aktiv ? vorne_Zusammenfassung_[m] : vorne_[m];
}

int Diagrammsteuerung::vorne() const { return const_cast<Diagrammsteuerung*>(this)->Platz_vorne(); }

const Diagramm* Diagrammsteuerung::vorderes() const {
    const auto Treffer = std::find_if(Diagramme_.begin(), Diagramme_.end(), [&](const Diagramm& d) {
        return d.Nummer == vorne() && d.Zusammenfassung == z_.Zusammenfassung_aktiv;
    });
    return Treffer == Diagramme_.end() ? nullptr : &*Treffer;
}

void Diagrammsteuerung::bringe_nach_vorn(int i_substanz) {
    const Stoffschema m = z_.Felder().Berechnungsmodus;
    const int Nummer = z_.Zusammenfassung_aktiv ? Zusammenfassungssatz_von(m, i_substanz) : Diagrammsatz_von(m, i_substanz);
    if (Nummer != kein_Diagramm) Platz_vorne() = Nummer;
}

void Diagrammsteuerung::schalte_weiter() {
    const auto i = static_cast<std::size_t>(vorne());
    Platz_vorne() = z_.Zusammenfassung_aktiv ? Zusammenfassungsring[i].Nummer : Diagrammring[i].Nummer;
}

bool Diagrammsteuerung::skaliere(const std::string& Start, const std::string& Ende) {
    if (uebernimm_Skalierung(Bereiche_, z_.Zusammenfassung_aktiv, vorne(), Start, Ende)) return true;
    z_.Welt.Fragen->frage({Skalierungsfehler_Titel, Skalierungsfehler, Symbol::Ausrufezeichen, {Knopf::OK, Knopf::Abbrechen}});
    return false;
}

double Diagrammsteuerung::X_Start() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv ? Bereiche_.X_Start_Zusammenfassung[i] : Bereiche_.X_Start[i];
}

double Diagrammsteuerung::X_Ende() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv ? Bereiche_.X_Ende_Zusammenfassung[i] : Bereiche_.X_Ende[i];
}

void Diagrammsteuerung::merke_Legende(bool Zusammenfassung, int Diagrammsatz, const std::optional<Flaechenort>& Ort) {
    const auto i = static_cast<std::size_t>(Diagrammsatz);
    (Zusammenfassung ? Legenden_Zusammenfassung_.at(i) : Legenden_.at(i)) = Ort;
}

const std::optional<Flaechenort>& Diagrammsteuerung::Legende() const {
    const auto i = static_cast<std::size_t>(vorne());
    return z_.Zusammenfassung_aktiv ? Legenden_Zusammenfassung_[i] : Legenden_[i];
}

}  // namespace varnok
