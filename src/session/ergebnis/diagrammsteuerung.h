#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "diagrams/ausschnitt.h"
#include "diagrams/diagrammbau.h"
#include "reports/ausgabedateien.h"
#include "session/kern/zustand.h"

namespace varnok {

// The diagrams of the view on display: what is drawn, over which time, and which of them stands in front. Each page
// of a scheme remembers its own.
class Diagrammsteuerung {
public:
    explicit Diagrammsteuerung(Zustand& z);

    // The program has read its first records.
    void setze_Startbereiche();
    // A view was chosen, by click or with an application pattern.
    void setze_Bereiche_nach_Ansicht();

    // Draws all diagrams of the scheme, or all summary diagrams, and writes their files, where they would look otherwise than at
    // the last drawing: they follow from results, view and names alone. Nothing is drawn that must not be seen. `gelaufen`: what
    // the last run has just left, for diagnosis, or null. True if something was drawn.
    bool ziehe_nach(const Ergebnis* gelaufen);

    // As they are seen, in the order of the scheme: its compounds, then the multi-compound diagram.
    const std::vector<Diagramm>& Diagramme() const { return Diagramme_; }
    // Index of the diagram in front in the view on display, and the diagram itself (null before the first drawing).
    int vorne() const;
    const Diagramm* vorderes() const;

    // Another number at each drawing for which view or records are others than at the one before.
    int Anblick() const { return Anblick_; }
    // Another number at each drawing.
    int Zeichnung() const { return Zeichnung_; }

    void bringe_nach_vorn(int i_substanz);
    // A left click: the next diagram of the scheme comes to the front.
    void schalte_weiter();

    // The dialog's values for the diagram in front. False, with a message, for an end that is refused.
    bool skaliere(const Zahlwert& Start, const Zahlwert& Ende);
    double X_Start() const;
    double X_Ende() const;

    // A closer look at the diagram in front: other days of its axis, or so many times as many of them around the one that stays
    // at its place. A range from end to end is none. Results, ranges and files stay as they are.
    void zeige_Zeitraum(const Zeitraum& r);
    void strecke_um(double Faktor, double Tag);
    void strecke(double Faktor);
    // By that share of what is seen: earlier for a negative one.
    void verschiebe(double Anteil);
    // The whole range that the view starts with, also where the dialog gave another.
    void zeige_alles();
    bool hat_Ausschnitt() const { return Ausschnitte_.contains(Ausschnittplatz()); }

    // Where the user has dragged the legend of a diagram to, in fractions of its surface; none is at home.
    void merke_Legende(bool Zusammenfassung, int Diagrammsatz, const std::optional<Flaechenort>& Ort);
    // That of the diagram in front.
    const std::optional<Flaechenort>& Legende() const;

private:
    // What a drawing follows from.
    struct Grundlage {
        Ergebnisse Werte;  // of the studies that are shown
        Ansicht Sicht;
        bool Zusammenfassung = false;
        std::string Beschreibung;
        std::vector<std::string> Namen;  // of studies and compounds
        Diagrammbereiche Bereiche;

        friend bool operator==(const Grundlage&, const Grundlage&) = default;
    };

    Grundlage jetzige_Grundlage() const;
    // Whether one looks at the same as at the last drawing, at other numbers perhaps.
    bool gleicher_Anblick() const;
    // Gives why files could not be written, empty where all were.
    std::string zeichne(const Ergebnis* gelaufen);
    // What is seen of the diagrams that were drawn.
    void schneide_aus();
    using Platz = std::pair<bool, int>;  // summary or not, number
    Platz Ausschnittplatz() const { return {z_.Zusammenfassung_aktiv(), vorne()}; }
    std::optional<Zeitraum> gesehener_Zeitraum() const;
    int& Platz_vorne();

    Zustand& z_;
    Diagrammbereiche Bereiche_;
    std::vector<Diagramm> gezeichnete_;  // with their whole range
    std::vector<Diagramm> Diagramme_;    // as they are seen
    std::map<Platz, Zeitraum> Ausschnitte_;
    std::map<Platz, Zeitraum> gesehene_Ausschnitte_;  // at the last drawing
    std::array<int, 4> vorne_{};                      // `Diagrammsatz` of each scheme
    std::array<int, 4> vorne_Zusammenfassung_{};      // `Zusammenfassungssatz` of each scheme
    std::array<std::optional<Flaechenort>, Diagrammzahl> Legenden_;
    std::array<std::optional<Flaechenort>, Zusammenfassungszahl> Legenden_Zusammenfassung_;
    Nebenausgaben Nebenausgaben_;
    std::optional<Grundlage> gezeichnet_;            // of the last drawing
    std::array<std::string, 4> gezeichnete_Saetze_;  // names of the records then
    int Anblick_ = 0;
    int Zeichnung_ = 0;
};

}  // namespace varnok
