// Dialogs, and what leads to other programs.

#include <algorithm>

#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

const std::array Namenstexte = {"Alpha", "Beta", "Gamma", "delta", "copy of Alpha", "a/b", "", "Umlaut \xC3\xA4", "Beta.che"};
constexpr std::size_t viele_Saetze = 6;

void aendere_Szenario(Gang& g) {
    const auto& e = g.s().zeige<Szenarioeditor>();
    using E = Szenarioentwurf;
    const int Anzahl = 2 + g.r().unter(4);
    for (int i = 0; i < Anzahl; ++i) {
        const int Klimata = static_cast<int>(e.Entwurf().Klimadateien.size());
        switch (g.r().unter(8)) {
            case 0:
                g.tue<&Szenarioeditor::aendere>(E::Bodenszenario, g.r().eins_von(std::array{"Loam", "Clay"}));
                break;
            case 1:
                g.tue<&Szenarioeditor::aendere>(E::Bodendichte, g.r().eins_von(std::array{"1.1", "1.4", "0", "abc"}));
                break;
            case 2:
                g.tue<&Szenarioeditor::aendere>(E::Feldkapazitaet, g.r().eins_von(std::array{"25", "35"}));
                g.tue<&Szenarioeditor::verlasse_Zahl>(E::Feldkapazitaet);
                break;
            case 3:
                g.tue<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, g.r().unter(200));
                g.tue<&Szenarioeditor::blaettere>(&Szenarioentwurf::Boden, g.r().unter(200));
                g.tue<&Szenarioeditor::verlasse>(&Szenarioentwurf::Boden);
                break;
            case 4:
                g.tue<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Plateau, g.r().unter(2));
                break;
            case 5:
                if (e.darf_variabel()) g.tue<&Szenarioeditor::waehle_Klimabedingungen>(static_cast<Klimaart>(g.r().unter(2)));
                break;
            case 6:
                g.tue<&Szenarioeditor::waehle_Temperatur>(g.r().unter(30));
                break;
            default:
                if (Klimata > 0) g.tue<&Szenarioeditor::waehle_Klimaszenario>(g.r().unter(Klimata));
        }
    }
    if (g.r().einmal_von(3) && !e.Entwurf().Szenarien.empty())
        g.tue<&Szenarioeditor::waehle_Szenario>(g.r().unter(static_cast<int>(e.Entwurf().Szenarien.size())));
}
void Editor(Gang& g, bool Done) {
    if (!g.tue<&Szenarioeditor::oeffne>()) return;
    aendere_Szenario(g);
    // The dialog stays where a number is refused.
    if (!Done || !g.tue<&Szenarioeditor::uebernimm>()) g.tue<&Szenarioeditor::verwirf>();
    g.tue<&Szenarioeditor::schliesse>();
}
void Editor_Done(Gang& g) { Editor(g, true); }
void Editor_Cancel(Gang& g) { Editor(g, false); }
void Editor_mit_falschem_Namen(Gang& g) {
    if (!g.tue<&Szenarioeditor::oeffne>()) return;
    g.tue<&Szenarioeditor::aendere>(Szenarioentwurf::Bodenszenario, "a\ttab");
    g.tue<&Szenarioeditor::verwirf>();
    g.tue<&Szenarioeditor::schliesse>();
}
// One value alone, over results that can be seen.
void andere_Bodentiefe(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    if (!g.tue<&Szenarioeditor::oeffne>()) return;
    g.tue<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, g.r().unter(200));
    g.tue<&Szenarioeditor::uebernimm>();
    g.tue<&Szenarioeditor::schliesse>();
}
// The plateau depth is told to be the smaller one.
void Plateau_zu_flach(Gang& g) {
    if (!g.tue<&Szenarioeditor::oeffne>()) return;
    g.tue<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 150 + g.r().unter(9));
    g.tue<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 50 + g.r().unter(50));
    g.tue<&Szenarioeditor::uebernimm>();
    g.tue<&Szenarioeditor::schliesse>();
}

void tue_im_Organiser(Gang& g) {
    const auto Art = static_cast<Satzart>(g.r().unter(4));
    const int n = static_cast<int>(g.s().zeige<Organiser>().Listen().Listen[Art].size());
    const int i = g.r().unter(n);
    const int was = g.r().unter(12);
    const std::string Name = g.r().eins_von(Namenstexte);
    const bool Enter = g.r().einmal_von(2);
    g.sage("[" + std::to_string(was) + " " + Endungen[Art] + " " + std::to_string(i) + " " + Name + "]");
    const auto& o = g.s().zeige<Organiser>();
    switch (was) {
        case 0:
            g.tue<&Organiser::aendere_Projektname>("Organised " + std::to_string(i));
            break;
        case 1:
            if (o.darf_kopieren(Art) && n <= static_cast<int>(viele_Saetze)) g.tue<&Organiser::kopiere>(Art);
            break;
        case 2:
            if (o.darf_loeschen(Art)) g.tue<&Organiser::loesche>(Art);
            break;
        case 3:
            if (o.darf_kopieren(Art)) g.tue<&Organiser::benenne_um>(Art, Name, Enter);
            break;
        case 5:
        case 6:  // over the one that the main screen shows
            if (n > 0) g.tue<&Organiser::waehle>(Art, i);
            if (o.darf_kopieren(Art)) g.tue<&Organiser::benenne_um>(Art, g.z().gewaehlt(Art), true);
            break;
        case 4:
            if (!o.Einwand_gegen_Bearbeiten().empty()) break;
            g.tue<&Organiser::beginne_Bearbeiten>();
            Editor(g, g.r().einmal_von(2));
            g.tue<&Organiser::beende_Bearbeiten>();
            g.setze_ab(true);
            break;
        default:
            if (n > 0) g.tue<&Organiser::waehle>(Art, i);
    }
}
void Organiser_offen(Gang& g, bool Done) {
    if (!g.tue<&Organiser::oeffne>()) return;
    const int Anzahl = 1 + g.r().unter(4);
    for (int i = 0; i < Anzahl && !g.z().beendet(); ++i) tue_im_Organiser(g);
    if (!Done || !g.tue<&Organiser::uebernimm>()) g.tue<&Organiser::verwirf>();
    g.tue<&Organiser::schliesse_ab>();
}
void Organiser_Done(Gang& g) { Organiser_offen(g, true); }
void Organiser_Esc(Gang& g) { Organiser_offen(g, false); }
// Edits the scenario from there.
void Organiser_bearbeitet(Gang& g) {
    if (!g.tue<&Organiser::oeffne>()) return;
    if (g.s().zeige<Organiser>().Einwand_gegen_Bearbeiten().empty()) {
        g.tue<&Organiser::beginne_Bearbeiten>();
        Editor(g, true);
        g.tue<&Organiser::beende_Bearbeiten>();
        g.setze_ab(true);
    }
    g.tue<&Organiser::aendere_Projektname>("Edited " + std::to_string(g.r().unter(5)));
    if (!g.tue<&Organiser::uebernimm>()) g.tue<&Organiser::verwirf>();
    g.tue<&Organiser::schliesse_ab>();
}
// Files come and go at once, also those that the main screen shows.
void Organiser_kopiert(Gang& g) {
    if (!g.tue<&Organiser::oeffne>()) return;
    const Satzart Art = eine_Art(g);
    const auto& o = g.s().zeige<Organiser>();
    g.Fragesteller().bestehe_auf(Knopf::Ja);
    if (o.darf_kopieren(Art)) g.tue<&Organiser::kopiere>(Art);
    if (o.darf_loeschen(Art)) g.tue<&Organiser::loesche>(Art);
    g.setze_ab(false);
    const auto& Liste = o.Listen().Listen[Art];
    const std::string gezeigter = g.z().gewaehlt(Art);
    const auto anderer = std::find_if(Liste.begin(), Liste.end(), [&](const std::string& s) { return s != gezeigter; });
    if (anderer != Liste.end() && !gezeigter.empty()) {
        g.tue<&Organiser::waehle>(Art, static_cast<int>(anderer - Liste.begin()));
        g.tue<&Organiser::benenne_um>(Art, gezeigter, true);
    }
    g.tue<&Organiser::verwirf>();
    g.tue<&Organiser::schliesse_ab>();
}
// The simulation that the dialog shows goes while it is open.
void Organiser_ohne_Simulation(Gang& g) {
    if (!g.tue<&Organiser::oeffne>()) return;
    const Satzlisten& Listen = g.s().zeige<Organiser>().Listen();
    if (Listen.Auswahl(Simulation) >= 0 && Listen.Listen[Simulation].size() > 1) {
        const std::string Datei = Satzdatei(Listen.gewaehlt(Simulation), Simulation);
        g.tue_Fremdes("deleted", [&] { return g.Projekt().loesche_Datei(Datei); });
        g.tue<&Organiser::kopiere>(Simulation);
        for (int i = 0; i < 3; ++i) g.tue<&Organiser::uebernimm>();
    }
    g.tue<&Organiser::verwirf>();
    g.tue<&Organiser::schliesse_ab>();
}

void Optionen_OK(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() < 0) g.tue<&Feldeingabe::betrete>(g.r().unter(5));
    if (!g.tue<&Feldeingabe::schliesse_ab>(true)) return;  // the focus goes to the menu
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;
    Optionsentwurf o = g.tue<&Optionensteuerung::oeffne>();
    switch (g.r().unter(5)) {
        case 0:
            o.Einheit = static_cast<Einheitsart>(g.r().unter(2));
            break;
        case 1:
            o.Separate_Rueckstaende = static_cast<Rueckstandsart>(g.r().unter(3));
            break;
        case 2:
            o.TWA_Zeiten = static_cast<TWA_Listenart>(g.r().unter(2));
            break;
        case 3:
            o.Ausgabename_Teile[0] = !o.Ausgabename_Teile[0];
            break;
        default:
            break;
    }
    for (const int Tips : {1, 0}) {
        o.Tips_anzeigen = Tips;
        g.tue<&Optionensteuerung::oeffne>();
        if (!g.tue<&Optionensteuerung::uebernimm>(o)) return;
        g.tue<&Optionensteuerung::schliesse>();
    }
    g.zaehle<&Optionensteuerung::schliesse>();  // its answer is whether tips have come
}
void Optionen_Cancel(Gang& g) {
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;  // the menu entry
    g.tue<&Optionensteuerung::oeffne>();
    g.tue<&Optionensteuerung::schliesse>();
}
void Optionen_abgelehnt(Gang& g) {
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;  // the menu entry
    Optionsentwurf o = g.tue<&Optionensteuerung::oeffne>();
    o.Projektpfad = "/no/such/folder";
    g.tue<&Optionensteuerung::uebernimm>(o);
    g.tue<&Optionensteuerung::schliesse>();
}
void lege_Ordner_an(Gang& g) {
    const std::string Ort = g.Projekt().Wurzel().string();
    static int Nummer = 0;
    for (const std::string& Name : {std::string("a/b"), "folder " + std::to_string(++Nummer), std::string("input")})
        g.tue<&Optionensteuerung::lege_Ordner_an>(Ort, Name);
}

void Hilfe(Gang& g) {
    g.tue<&Hilfetexte::Tooltips>();
    g.s().zeige<Hilfetexte>().Programmangaben();
}
// A server that says each of the things that it can say.
void suche_Update(Gang& g) {
    Scheinwelt& w = g.Welt();
    const auto suche = [&](std::optional<Knopf> Antwort) {
        g.Fragesteller().bestehe_auf(Antwort);
        g.tue<&Aktualisierungssteuerung::suche>();
    };
    w.Netz.waehrend = [&] { g.tue<&Aktualisierungssteuerung::halte_an>(); };
    w.stelle_Server("", "", "");
    suche(std::nullopt);
    w.stelle_Server(std::string(Eigene_Version), "", "");
    suche(std::nullopt);
    w.stelle_Server("20100101", "", "");
    for (int i = 0; i < 3; ++i) suche(std::nullopt);
    w.stelle_Server("20990101", "", "");
    for (const Knopf Antwort : alle_Antworten) suche(Antwort);
    w.stelle_Server("20990101", "new program", "another program");
    suche(Knopf::Ja);
    w.stelle_Server("20990101", "new program", "new program");
    w.Tausch.ersetzbar = false;
    suche(std::nullopt);
    w.Tausch.ersetzbar = true;
    w.Tausch.startet = false;
    suche(Knopf::Ja);
    w.Tausch.startet = true;
    if (g.r().einmal_von(8)) suche(Knopf::Ja);
    w.Netz.waehrend = nullptr;
}

// The same project with another simulation, or another project.
void oeffne_Projekt(Gang& g) {
    const std::string Wurzel = g.Projekt().Wurzel().string();
    const std::string Pfad = g.r().eins_von(
        std::array<std::string, 4>{Wurzel, Wurzel + "/input/Alpha.vnk", Wurzel + "/input/Beta.vnk", Wurzel + "/other"});
    std::filesystem::create_directories(Wurzel + "/other/input");
    g.Welt().Fenster_moeglich = !g.r().einmal_von(4);
    g.sage(Pfad);
    g.tue<&Projektoeffnung::oeffne>(Pfad);
}
void sage_Zeichen(Gang& g) { g.tue<&Zeichenmeldung::sage>("A character was left out."); }

}  // namespace

std::vector<Aktionsart> Aktionen_in_Dialogen() {
    return {
        {"editor, Done", 40, Befehl | liest, Editor_Done},
        {"editor, Cancel", 10, Befehl | liest, Editor_Cancel},
        {"editor, a name that no record holds", 16, Befehl | liest, Editor_mit_falschem_Namen},
        {"editor, plateau too thin", 20, Befehl | liest, Plateau_zu_flach},
        {"editor, another soil depth", 10, Befehl | liest, andere_Bodentiefe},
        {"organiser, Done", 80, Befehl | liest, Organiser_Done},
        {"organiser, Esc", 50, Befehl | liest, Organiser_Esc},
        {"organiser, copy, delete, replace", 10, Befehl | liest | Pruefung, Organiser_kopiert},
        {"organiser, edit", 12, Befehl | liest, Organiser_bearbeitet},
        {"organiser without its simulation", 25, Befehl | liest | Pruefung | fremd, Organiser_ohne_Simulation},
        {"options, OK", 14, Befehl | Pruefung, Optionen_OK},
        {"options, Cancel", 10, Befehl, Optionen_Cancel},
        {"options, a folder that is none", 5, Befehl, Optionen_abgelehnt},
        {"a folder made", 5, 0, lege_Ordner_an},
        {"look for an update", 10, Befehl | Pruefung, suche_Update},
        {"open a project", 30, Befehl | liest, oeffne_Projekt},
        {"a character left out", 5, Handlung, sage_Zeichen},
        {"help", 10, 0, Hilfe},
    };
}

}  // namespace varnok::gang
