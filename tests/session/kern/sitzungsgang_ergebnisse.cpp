// Views, diagrams, pictures, reports.

#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

void waehle_TWA(Gang& g) {
    g.tue<&Listenwahl::waehle_TWA_Laenge>(g.r().unter(static_cast<int>(g.s().zeige<Listenwahl>().TWA_Laengen().size())));
}

void skaliere(Gang& g) {
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;  // the menu entry
    for (const char* Start : {"0", "30", "400"}) {
        const std::string Ende = g.r().eins_von(std::array{"450", "365", "3650", "500", "1", "abc", "9999"});
        g.sage(Start + (" to " + Ende));
        g.tue<&Diagrammsteuerung::skaliere>(Start, Ende);
    }
    g.tue<&Laufsteuerung::schliesse_Skalierung>();
}
void skaliere_falsch(Gang& g) {
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;
    for (int i = 0; i < 3; ++i) g.tue<&Diagrammsteuerung::skaliere>("0", "1");
    g.tue<&Laufsteuerung::schliesse_Skalierung>();
}
void ziehe_Legende(Gang& g) {
    g.tue<&Diagrammsteuerung::merke_Legende>(g.z().Zusammenfassung_aktiv(), g.s().zeige<Diagrammsteuerung>().vorne(),
                                             Flaechenort{0.1 * g.r().unter(9), 0.3});
}

// A closer look at the diagram in front, by keys and by the wheel.
void sieh_naeher_hin(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    const double Start = 10 * g.r().unter(20);
    g.tue<&Diagrammsteuerung::zeige_Zeitraum>(Zeitraum{Start, Start + 20 + 10 * g.r().unter(10)});
    g.tue<&Diagrammsteuerung::strecke>(g.r().einmal_von(2) ? 0.5 : 2.0);
    g.tue<&Diagrammsteuerung::strecke_um>(g.r().einmal_von(2) ? 0.8 : 1.25, Start);
    g.tue<&Diagrammsteuerung::verschiebe>(g.r().einmal_von(2) ? 0.25 : -0.25);
}
void sieh_alles(Gang& g) { g.tue<&Diagrammsteuerung::zeige_alles>(); }

std::string Pfad(Gang& g, const char* Name) { return (g.Projekt().Wurzel() / "output" / Name).string(); }
// The menu is open over a diagram.
bool hat_Bild(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    return g.s().zeige<Diagrammsteuerung>().vorderes() != nullptr && !g.z().abgedeckt();
}
void speichere_Bild(Gang& g) {
    if (!hat_Bild(g)) return;
    // Small ones: the walk asks whether they are written, not how they look.
    g.tue<&Bildsteuerung::setze>(Bildeinstellung{kleinstes_Bild, kleinstes_Bild, kleinste_Aufloesung, g.r().einmal_von(2)});
    if (!hat_Bild(g)) return;
    g.tue<&Bildsteuerung::speichere>(Pfad(g, "picture"), static_cast<Bildart>(g.r().unter(3)), g.r().einmal_von(2));
}
void speichere_Daten(Gang& g) {
    if (hat_Bild(g)) g.tue<&Bildsteuerung::speichere_Daten>(Pfad(g, "data.csv"), g.r().einmal_von(2) ? '.' : ',');
}
void kopiere_Bild(Gang& g) {
    if (hat_Bild(g)) g.tue<&Bildsteuerung::melde_kopiert>("Picture");
}

void schliesse_Bericht(Gang& g) { g.tue<&Berichtssteuerung::schliesse>(); }
void Bericht_als_PDF(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    if (g.s().zeige<Berichtssteuerung>().offener() == nullptr) g.tue<&Berichtssteuerung::erstelle>();
    for (const char* Name : {"report.rtf", g.r().einmal_von(4) ? "report.pdf" : "another.rtf"})
        g.tue<&Berichtssteuerung::speichere_PDF>((g.Projekt().Wurzel() / Name).string());
}
void Bericht_und_zu(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    g.tue<&Berichtssteuerung::erstelle>();
    schliesse_Bericht(g);
}

}  // namespace

std::vector<Aktionsart> Aktionen_an_Ergebnissen() {
    return {
        {"endpoint", 12, Befehl | immer, waehle<&Listenwahl::waehle_Endpunkt, 2, Endpunktart>},
        {"view", 14, Befehl | immer, waehle<&Listenwahl::waehle_PEC_Typ, 3, PEC_Ansicht>},
        {"rotation", 12, Befehl | immer, waehle<&Listenwahl::waehle_Fruchtwechsel, 3, Fruchtfolge>},
        {"window", 12, Befehl, waehle_TWA},
        {"studies", 10, Befehl | immer, tue<&Listenwahl::zeige_Studien>},
        {"summary", 14, Befehl, tue<&Listenwahl::zeige_Zusammenfassung>},
        {"next diagram", 10, Befehl | immer, tue<&Diagrammsteuerung::schalte_weiter>},
        {"scaling", 60, Befehl, skaliere},
        {"scaling refused", 5, Befehl, skaliere_falsch},
        {"legend", 10, 0, ziehe_Legende},
        {"a closer look", 20, Befehl | liest, sieh_naeher_hin},
        {"the whole range", 10, Befehl | immer, sieh_alles},
        {"picture", 40, Befehl | liest, speichere_Bild},
        {"data of a picture", 40, Befehl | liest, speichere_Daten},
        {"picture copied", 40, Befehl | liest, kopiere_Bild},
        {"report", 12, Befehl, tue<&Berichtssteuerung::erstelle>},
        {"report and away", 5, Befehl | liest, Bericht_und_zu},
        {"close report", 5, 0, schliesse_Bericht},
        {"report into a file", 40, Handlung | liest | Pruefung, Bericht_als_PDF},
    };
}

}  // namespace varnok::gang
