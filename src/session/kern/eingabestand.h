#pragma once

// What is entered: the records behind the selectors, the inputs on the screen, the view chosen. Knows nothing of results.

#include <array>
#include <string>
#include <vector>

#include "records/projektordner.h"
#include "run/ansicht.h"
#include "run/eingabe.h"
#include "session/kern/satzlisten.h"
#include "session/kern/satzplatz.h"
#include "session/kern/schauplatz.h"

namespace varnok {

struct Eingabestand : Schauplatz, Satzlisten {
    Eingabe Vorgabe;  // all inputs on the screen
    Ansicht Sicht;    // what the user has chosen to look at
    std::array<Satzplatz, 4> Saetze;

    Laufparameter& Parameter() { return Vorgabe.Parameter; }
    const Laufparameter& Parameter() const { return Vorgabe.Parameter; }
    int i_studie() const { return Sicht.Studie_Index; }
    int Studienzahl() const { return Vorgabe.Studienzahl(); }

    // All studies are in view, of which there are several.
    bool Zusammenfassung_aktiv() const { return Zusammenfassung_ && Studienzahl() > 1; }
    void zeige_Zusammenfassung() { Zusammenfassung_ = true; }
    void zeige_Studien() { Zusammenfassung_ = false; }
    // The studies that the view on display shows: the selected one, in the summary view all.
    std::vector<int> gezeigte_Studien() const;

    // What of each kind the user changed.
    using Marken_je_Art = std::array<bool, 4>;
    Marken_je_Art Marken() const;
    // As they were before a step that did not come about, or that is no change of the user's.
    void stelle_Marken(const Marken_je_Art& Marken);
    // Where no record is different, there is nothing to ask about.
    void raeume_Marken_auf();

    // ---- what follows from all that; nobody keeps it ----

    // The selectors name another combination of records than the summary file does.
    bool Simulation_markiert() const;
    // Whether each selector names a record whose values are on the screen.
    bool Saetze_vollstaendig() const;
    // What a save of this kind writes. Throws Laufzeitfehler for a text or a value that no record can hold.
    std::string Speicherbytes(Satzart Art) const;
    // The inputs in it, for comparing: the same whatever is in view, which a record keeps and no result depends on. Where nothing
    // can be written, the reason.
    std::string Speicherbild(Satzart Art) const;
    // Whether a save would now write other inputs than right after reading or saving. A place that was not read is different
    // only by what the user entered there.
    bool verschieden(Satzart Art) const;

private:
    std::string Bytes(Satzart Art, const Ansicht& Gesehenes) const;

    bool Zusammenfassung_ = false;
};

}  // namespace varnok
