#include "session/programm/handhabung.h"

#include <string_view>

#include "session/eingabe/feldtabelle.h"

namespace varnok {
namespace {

constexpr const char* Satzliste =
    "Right click or F2: rename. Ctrl+D: copy. Ctrl+Delete: delete. Shift+F10: menu. Letters search the open list";
constexpr const char* Tafel = "Drag: move. Double click: hide (View brings it back). Click a cell, Ctrl+C: copy";
constexpr const char* Diagramm =
    "Arrows: read off (Ctrl: peaks). Click or F6: next diagram. F7: time range. Shift + drag or wheel: zoom. Home: whole range";
constexpr const char* Legende = "Drag: move. Double click: hide (View brings it back)";
constexpr const char* Zahl = "Enter: calculate. Esc: the value before. F1: meaning, range and unit";

struct Zeile {
    std::string_view Anfang;  // of the object name; an index may follow
    const char* Text;
};
constexpr Zeile Zeilen[] = {
    {"Simulationsliste", Satzliste},
    {"Liste", Satzliste},
    {"Studie", "Right click or F2: rename. Ctrl+Delete: delete. Shift+F10: menu"},
    {"Beschreibung", "Right click or F2: change it. Enter keeps the change, Esc drops it. Double click: all simulations"},
    {"Applikationsschema", "Digits write into a cell. Delete empties it. Enter: calculate. Ctrl+C, Ctrl+V: copy, paste"},
    {"Diagramm", Diagramm},
    {"Diagramm_Zusammenfassung", Diagramm},
    {"Ergebnisse", Tafel},
    {"Ergebnisse_Zusammenfassung", Tafel},
    {"Ergebnisrahmen", Tafel},
    {"Ergebnisrahmen_Zusammenfassung", Tafel},
    {"Legendenrahmen", Legende},
    {"Legendenrahmen_mehrfach", Legende},
    {"Legendenrahmen_Zusammenfassung", Legende},
    {"Bericht", "Esc: back to the diagrams"},
    {"Aktualisieren", "F5: calculate, and read what was not read yet"},
    {"speichern", "Ctrl+S: save all input data"},
    {"Bericht_erstellen", "Ctrl+R: report of the view on the screen"},
    {"Ende", "Ctrl+Q: end the program"},
    {"Bemerkungszahl", "F8: what is doubtful in the files that were read"},
};

// Without the index behind it.
std::string_view Stamm(std::string_view Name) {
    const auto Ende = Name.find_last_not_of("0123456789");
    return Ende != std::string_view::npos && Ende + 1 < Name.size() && Name[Ende] == '_' ? Name.substr(0, Ende) : Name;
}

}  // namespace

std::string Handhabung(const std::string& Objektname) {
    for (const Zeile& z : Zeilen) {
        if (z.Anfang == Stamm(Objektname)) return z.Text;
    }
    return Feld_mit_Namen(Objektname) >= 0 ? Zahl : "";
}

}  // namespace varnok
