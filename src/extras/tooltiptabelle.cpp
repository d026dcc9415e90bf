#include "extras/tooltiptabelle.h"

namespace varnok {
namespace {

// One name, or the same name with the indices `von` to `bis` behind it.
struct Zeile {
    std::size_t Tip;
    const char* Name;
    int von = -1;
    int bis = -1;
};

const Zeile Zeilen[] = {
    {1, "Diagramm", 0, 11},
    {1, "Diagramm_Zusammenfassung", 0, 8},
    {2, "Ergebnisse", 0, 11},
    {2, "Ergebnisrahmen", 0, 11},
    {2, "Legendenrahmen", 0, 11},
    {2, "Legendenrahmen_mehrfach", 0, 11},
    {2, "Ergebnisse_Zusammenfassung", 0, 8},
    {2, "Ergebnisrahmen_Zusammenfassung", 0, 8},
    {2, "Legendenrahmen_Zusammenfassung", 0, 8},
    {3, "Legendenrahmen", 0, 11},
    {3, "Legendenrahmen_mehrfach", 0, 11},
    {3, "Legendenrahmen_Zusammenfassung", 0, 8},
    {4, "Berechnungsmodus"},
    {5, "Endpunkt", 0, 1},
    {6, "TWA_Laenge"},
    {7, "speichern"},
    {8, "Bericht_erstellen"},
    {9, "Ende"},
    {10, "Simulationsliste"},
    {10, "Frame2"},
    {11, "Beschreibung"},
    {12, "Szenariorahmen"},
    {13, "Applikationsrahmen"},
    {14, "App_Tag"},
    {14, "App_Monat"},
    {15, "Applikationsmuster", 0, 2},
    {16, "PEC_Typ", 0, 2},
    {17, "Anzahl"},
    {18, "Applikationsrate"},
    {19, "Interzeption"},
    {20, "Intervall"},
    {21, "Applikationsschema"},
    {22, "Kinetikschema"},
    {23, "S_Q10", 0, 2},
    {24, "S_Walker", 0, 2},
    {25, "S_KOC", 0, 2},
    {26, "Studie"},
    {27, "Studienname"},
    {28, "Addiere_Studie"},
    {29, "S_Kinetik", 0, 2},
    {30, "Kinetikparameter", 0, 0},
    {31, "Kinetikparameter", 1, 1},
    {32, "Kinetikparameter", 2, 2},
    {33, "Substanz", 0, 0},
    {34, "Substanz", 1, 1},
    {35, "Substanz", 2, 2},
    {36, "S_DT50", 0, 2},
    {37, "S_DT50_1_DFOP", 0, 2},
    {38, "S_DT50_2_DFOP", 0, 2},
    {39, "S_g", 0, 2},
    {40, "S_alpha"},
    {41, "S_beta"},
    {42, "S_DT50_1_HS"},
    {43, "S_DT50_2_HS"},
    {44, "S_Tb"},
    {45, "Wirkstoffdaten"},
    {46, "Name_Wirkstoff", 0, 1},
    {47, "Name_Met_1", 0, 1},
    {48, "Name_Met_2", 0, 1},
    {49, "Molmasse_Wirkstoff"},
    {50, "Molmasse_Met_1"},
    {51, "Molmasse_Met_2"},
    {52, "Bildungsanteil_Met_1"},
    {53, "Bildungsanteil_Met_2"},
};

std::vector<Tooltipziel> erstelle_Tabelle() {
    std::vector<Tooltipziel> Tabelle;
    for (const Zeile& z : Zeilen) {
        if (Tabelle.empty() || Tabelle.back().Tip != z.Tip) Tabelle.push_back({z.Tip, {}});
        std::vector<std::string>& Namen = Tabelle.back().Objektnamen;
        if (z.von < 0) Namen.emplace_back(z.Name);
        for (int i = z.von; i >= 0 && i <= z.bis; ++i) Namen.push_back(std::string(z.Name) + "_" + std::to_string(i));
    }
    return Tabelle;
}

}  // namespace

const std::vector<Tooltipziel>& Tooltiptabelle() {
    static const std::vector<Tooltipziel> Tabelle = erstelle_Tabelle();
    return Tabelle;
}

}  // namespace varnok
