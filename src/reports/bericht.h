#pragma once

// A report from a finished calculation: text, document, bytes of the file and its name.

#include <QTextDocument>
#include <memory>
#include <optional>
#include <string>

#include "diagrams/beschriftung.h"
#include "diagrams/diagramm.h"
#include "exposure/darstellung.h"
#include "reports/ausgabenamen.h"
#include "reports/berichtsabschnitte.h"

namespace varnok {

struct Berichtsauftrag {
    Darstellung Inhalt;
    Berichtsart Art = Berichtsart::Standard;  // the selected study, or all studies
    std::string Applikationssatz;             // name of the application pattern record, which stands as that of the scenario
    std::string Programmversion;
    Berichtszeit Zeitpunkt;
    // The diagram in front, built anew, without labels in it.
    Diagramm Bild;
    // Where the legend was dragged to; at home without it.
    std::optional<Flaechenort> Legende;
    // Dashes and dark colours in the picture.
    bool fuer_Druck = false;
    // What its inputs are, by a sum over their files; stands beside the text, never in it.
    std::string Herkunft = {};
};

struct Bericht {
    std::string Name;                         // without folder and extension, checked
    std::string Text;                         // before formatting and picture
    std::unique_ptr<QTextDocument> Dokument;  // `zeichne_statt_Bild` before it is shown
    std::string RTF;
};

// The diagram of a report without a window: of the compound in view (a summary: the parent), over the time that the view starts
// with.
Diagramm erstelle_Berichtsdiagramm(const Darstellung& d, Berichtsart Art);

// Makes the report; nothing is written. Needs a QGuiApplication; may run in any thread. Throws Laufzeitfehler: no file can
// have the name, a parameter has no text.
Bericht schreibe_Bericht(const Berichtsauftrag& a);

// Writes the RTF into a folder, which is made when it is missing, over any file of that name; with `Grenze` only where that lies
// inside of it. Returns the path.
// Throws Laufzeitfehler that names the file and the reason.
std::string speichere_Bericht(const Bericht& b, const std::string& Ordner, const std::string& Grenze = {});

}  // namespace varnok
