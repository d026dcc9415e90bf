#pragma once

#include <array>
#include <memory>
#include <string>

#include "reports/bericht.h"
#include "session/ergebnis/diagrammsteuerung.h"
#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The report command: the standard report of the selected study, or in the summary view the extended one.
class Berichtssteuerung {
public:
    Berichtssteuerung(Zustand& z, Laufsteuerung& Laeufe, Diagrammsteuerung& Diagramme)
        : z_(z), Laeufe_(Laeufe), Diagramme_(Diagramme) {}

    // Makes the report of what is shown, after a run where something entered is not in the results, and writes it to
    // the folder `output`. Without valid results there is none. A file that cannot be written is told; the report
    // stands on the screen all the same.
    void erstelle();
    void schliesse() { Bericht_.reset(); }
    // The same where it no longer tells of what is shown: other results, another view, other names.
    void schliesse_veralteten();

    // Name of the report file written last, while the simulation has the description that it tells; else empty.
    std::string Ergebnisdatei() const;

    // The report on the screen, null without one.
    const Bericht* offener() const { return Bericht_.get(); }

    // The open report as a PDF, or as rich text where the file has that ending, and where it went in the status line; throws
    // Laufzeitfehler where it cannot be written.
    void speichere_PDF(const std::string& Pfad) const;

private:
    // What a report tells of, beside the results.
    struct Grundlage {
        int Zeichnung = 0;
        Eingabe Vorgabe;
        std::array<std::string, 4> Saetze;
        bool fuer_Druck = false;

        friend bool operator==(const Grundlage&, const Grundlage&) = default;
    };

    Grundlage jetzige_Grundlage() const;
    void schreibe(const Diagramm& Bild);
    Ergebnisse mit_jetziger_Vorgabe() const;
    void stelle_her(const Diagramm& Bild);

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    Diagrammsteuerung& Diagramme_;
    std::unique_ptr<Bericht> Bericht_;
    Grundlage Grundlage_;   // of the open report
    std::string Herkunft_;  // as it says
    std::string Ergebnisdatei_;
    std::string berichtete_Beschreibung_;
};

}  // namespace varnok
