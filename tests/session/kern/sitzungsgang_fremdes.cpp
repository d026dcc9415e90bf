// The start and the end of the program, and another one beside it.

#include "records/voreinstellungen.h"
#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

bool geht_zu_Ende(Gang& g) {
    g.Fragesteller().bestehe_auf(Knopf::Nein);
    g.Fragesteller().lass_los(true);
    g.tue<&Programmablauf::schliesse_Fenster>();
    g.Fragesteller().lass_los(false);
    g.setze_ab(false);
    return g.z().beendet();
}

// With something to bring back, and with each answer to that.
void stuerze_ab(Gang& g) {
    // Beside another window nothing is kept for the next start.
    if (g.z().Sperre->von_anderem_gehalten() && geht_zu_Ende(g)) g.starte_neben(Sperrlage::frei);
    if (g.z().abgedeckt()) heile(g);
    g.setze_ab(false);
    for (const Knopf Antwort : alle_Antworten) {
        if (g.r().einmal_von(4)) tippe_langsam(g);
        if (!g.r().einmal_von(8)) tippe_in(g, "Applikationsrate", std::to_string(100 + g.r().unter(900)));
        g.tue<&Zwischensicherung::schreibe>();
        g.setze_ab(true);
        g.stuerze_ab(Antwort);
    }
}
// Another program breaks the record before the program is started again.
void stuerze_ab_und_zerbrich(Gang& g) {
    if (!tippe_in(g, "Applikationsrate", std::to_string(100 + g.r().unter(900)))) return;
    g.tue<&Zwischensicherung::schreibe>();
    const std::string Datei = Satzdatei(g.z().gewaehlt(Applikation), Applikation);
    g.setze_ab(true);
    g.stuerze_ab(Knopf::Ja, [&] { g.tue_Fremdes("deleted", [&] { return g.Projekt().loesche_Datei(Datei); }); });
}
void sichere_neben_anderem(Gang& g) {
    using enum Sperrlage;
    for (const Sperrlage Lage : {zweites_Fenster, andere_Maschine, andere_Maschine, andere_Maschine, zweites_Fenster}) {
        if (!geht_zu_Ende(g)) return;
        g.starte_neben(Lage);
        g.setze_ab(true);
        for (const Knopf Antwort : {Knopf::nicht_jetzt, Knopf::Nein, Knopf::nicht_jetzt, Knopf::Nein, Knopf::Ja}) {
            if (!g.z().Sperre->von_anderem_gehalten()) break;
            g.Fragesteller().bestehe_auf(Antwort);
            g.tue<&Satzverwaltung::speichere>();
        }
        g.setze_ab(true);
    }
}
void starte_ohne_Dateien(Gang& g) {
    // Beside another window nothing unsaved is kept for the next start.
    if (g.z().Sperre->von_anderem_gehalten() && !geht_zu_Ende(g)) return;
    for (const char* Endung : {Endungen[Simulation], Endungen[Szenario]}) {
        for (const Knopf Antwort : alle_Antworten) {
            g.starte_ohne(Endung, Antwort);
        }
        g.tue_Fremdes("put back", [&] { return g.Projekt().stelle_her(); });
    }
}

// With changes, of which one is asked about: Esc goes back to work.
template <auto Ende>
void beende_mit_Aenderung(Gang& g) {
    if (!tippe_in(g, "Applikationsrate", std::to_string(100 + g.r().unter(900)))) return;
    g.setze_ab(true);
    g.Fragesteller().bestehe_auf(Knopf::nicht_jetzt);
    g.tue<Ende>();
    g.Fragesteller().bestehe_auf(g.r().einmal_von(2) ? Knopf::Ja : Knopf::Nein);
    g.tue<Ende>();
}

// On files of four kinds at once.
template <auto Tat>
void tut(Gang& g, const char* Wort) {
    const auto Arten = static_cast<int>(Dateiarten.size());
    const int erste = g.r().unter(Arten);
    for (const int i : {erste, (erste + 1) % Arten, (erste + 2) % Arten, (erste + 3) % Arten}) {
        const char* Endung = Dateiarten[static_cast<std::size_t>(i)];
        g.tue_Fremdes(Wort, [&] { return (g.Projekt().*Tat)(Endung, g.r()); });
    }
}
void aendere(Gang& g) { tut<&Gangprojekt::aendere>(g, "changed"); }
void loesche(Gang& g) { tut<&Gangprojekt::loesche>(g, "deleted"); }
void zerstoere(Gang& g) { tut<&Gangprojekt::zerstoere>(g, "destroyed"); }
void bringe_neue(Gang& g) { tut<&Gangprojekt::bringe_neue>(g, "new"); }
void benenne_um(Gang& g) { tut<&Gangprojekt::benenne_um>(g, "renamed"); }
void stelle_wieder_her(Gang& g) {
    g.tue_Fremdes("put back", [&] { return g.Projekt().stelle_her(); });
}
void rechne_ohne_Wetter(Gang& g) {
    stelle_wieder_her(g);
    waehle_mit_Namen(g, "Beta");
    g.merke_Wetter();
    for (int i = 0; i < 2; ++i) g.tue_Fremdes("deleted", [&] { return g.Projekt().loesche(Klima_Endung, g.r()); });
    g.tue<&Satzverwaltung::aktualisiere>();
}

}  // namespace

void heile(Gang& g) {
    stelle_wieder_her(g);
    g.Fragesteller().bestehe_auf(Knopf::nicht_jetzt);
    g.Fragesteller().lass_los(true);
    waehle_mit_Namen(g, g.r().einmal_von(2) ? "Alpha" : "Beta");
    g.Fragesteller().beginne();
}

std::vector<Aktionsart> Aktionen_am_Programm() {
    return {
        {"exit", 40, Befehl | liest, tue<&Programmablauf::beende>},
        {"exit with changes", 40, Befehl | liest | Pruefung, beende_mit_Aenderung<&Programmablauf::beende>},
        {"close box", 40, Befehl | liest, tue<&Programmablauf::schliesse_Fenster>},
        {"close box with changes", 40, Befehl | liest | Pruefung, beende_mit_Aenderung<&Programmablauf::schliesse_Fenster>},
        {"the program is killed", 70, Pruefung, stuerze_ab},
        {"the program is killed and loses a record", 10, Pruefung | fremd, stuerze_ab_und_zerbrich},
        {"save beside another window", 5, Pruefung, sichere_neben_anderem},
        {"a start without records", 16, Pruefung | fremd, starte_ohne_Dateien},
        {"default settings", 5, Befehl | liest, tue<&Satzverwaltung::lade_Voreinstellungen>},
        {"check: exit with Yes", 0, Pruefung, [](Gang& g) { g.pruefe_Ende(Knopf::Ja); }},
        {"check: exit with No", 0, Pruefung, [](Gang& g) { g.pruefe_Ende(Knopf::Nein); }},
        {"check: another simulation", 0, Pruefung, [](Gang& g) { g.pruefe_andere_Simulation(); }},
        {"check: save and load", 0, Pruefung, [](Gang& g) { g.pruefe_Sicherung(); }},
    };
}

std::vector<Aktionsart> fremde_Aktionen() {
    return {
        {"another program changes files", 60, fremd, aendere},
        {"another program removes files", 60, fremd, loesche},
        {"another program breaks files", 60, fremd, zerstoere},
        {"another program brings files", 60, fremd, bringe_neue},
        {"another program renames files", 60, fremd, benenne_um},
        {"another program puts all back", 10, fremd, stelle_wieder_her},
        {"all put back, and a simulation chosen", 150, Befehl | liest | fremd, heile},
        {"run without weather", 10, Befehl | liest | fremd, rechne_ohne_Wetter},
    };
}

}  // namespace varnok::gang
