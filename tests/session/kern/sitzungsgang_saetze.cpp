// Simulations and records.

#include <algorithm>
#include <iterator>
#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

const std::array Namenstexte = {"Alpha", "Beta", "Gamma", "delta", "copy of Alpha", "a/b", "", "Umlaut \xC3\xA4", "Beta.che"};
constexpr std::size_t viele_Saetze = 6;

void waehle_Simulation(Gang& g) {
    const auto& Liste = g.z().Listen[Simulation];
    if (Liste.empty()) return;
    const int i = g.r().unter(static_cast<int>(Liste.size()));
    g.sage("\"" + Liste[static_cast<std::size_t>(i)] + "\"");
    g.tue<&Satzverwaltung::waehle_Simulation>(i);
}
void waehle_Satz(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].empty()) return;
    const int i = g.r().unter(static_cast<int>(g.z().Listen[Art].size()));
    g.sage("\"" + g.z().Listen[Art][static_cast<std::size_t>(i)] + "\"");
    g.tue<&Satzverwaltung::waehle_Satz>(Art, i);
}

void loesche(Gang& g) {
    Satzart Art = eine_Art(g);
    for (const Satzart t : alle_Arten) {
        if (g.z().Listen[t].size() > viele_Saetze) Art = t;
    }
    if (g.s().zeige<Satzverwaltung>().darf_loeschen(Art)) g.tue<&Satzverwaltung::loesche>(Art);
}
void lege_an(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].size() > viele_Saetze) loesche(g);
    g.tue<&Satzverwaltung::lege_an>(Art);
}
void kopiere(Gang& g) {
    const Satzart Art = eine_Art(g);
    if (g.z().Listen[Art].size() > viele_Saetze) loesche(g);
    g.setze_ab(false);
    if (g.s().zeige<Satzverwaltung>().darf_kopieren(Art)) g.tue<&Satzverwaltung::kopiere>(Art);
}
void beginne_Umbenennen(Gang& g, Satzart Art, const std::string& Name) {
    g.tue<&Satzumbenennung::beginne>(Art);
    g.tue<&Satzumbenennung::aendere>(Name);
    g.setze_offenen_Namen(Art, Name);
}
void benenne_um(Gang& g) {
    const Satzart Art = eine_Art(g);
    const std::string Name = g.r().eins_von(Namenstexte);
    g.sage("\"" + Name + "\"");
    beginne_Umbenennen(g, Art, Name);
    if (g.r().einmal_von(4)) return;  // the next command takes what stands in the box
    if (!g.tue<&Satzumbenennung::bestaetige>(!g.r().einmal_von(4))) g.tue<&Satzumbenennung::nimm_zurueck>();
}

// With each answer, as long as there is another one.
void ersetze(Gang& g) {
    const Satzart Art = eine_Art(g);
    for (const Knopf Antwort : alle_Antworten) {
        const auto Liste = g.z().Listen[Art];
        const auto anderer = std::find_if(Liste.begin(), Liste.end(), [&](const auto& s) { return s != g.z().gewaehlt(Art); });
        if (anderer == Liste.end()) return;
        g.sage("\"" + *anderer + "\"");
        g.Fragesteller().bestehe_auf(Antwort);
        beginne_Umbenennen(g, Art, *anderer);
        if (!g.tue<&Satzumbenennung::bestaetige>(true)) g.tue<&Satzumbenennung::nimm_zurueck>();
    }
}
void loesche_mit_jeder_Antwort(Gang& g) {
    for (const Knopf Antwort : alle_Antworten) {
        g.Fragesteller().bestehe_auf(Antwort);
        loesche(g);
    }
}

// Some of what the backups hold.
void bringe_zurueck(Gang& g) {
    const auto Angebot = g.s().zeige<Wiederherstellung>().Angebot();
    if (Angebot.empty()) return;
    std::vector<Gesichertes> Gewaehlte;
    for (int i = 0; i < 2; ++i) {
        const Gesichertes& g2 = g.r().eins_von(Angebot);
        const bool schon = std::any_of(Gewaehlte.begin(), Gewaehlte.end(),
                                       [&](const Gesichertes& b) { return b.Art == g2.Art && b.Name == g2.Name; });
        if (!schon) Gewaehlte.push_back(g2);
    }
    for (const Gesichertes& b : Gewaehlte) g.sage(b.Sicherung + "/" + b.Dateiname);
    g.tue<&Wiederherstellung::stelle_her>(Gewaehlte);
}

// The rarer questions, each by the way that leads to it: a record that is missing, a run and a save without it.
void waehle_Luecke(Gang& g) {
    for (const char* Name : {"Torn compound", "Torn pattern", "Torn", "Nameless"}) {
        g.Fragesteller().bestehe_auf(Knopf::nicht_jetzt);
        waehle_mit_Namen(g, Name);
        g.tue<&Satzverwaltung::aktualisiere>();
        g.setze_ab(false);
        g.Fragesteller().bestehe_auf(std::nullopt);
        for (int i = 0; i < 3; ++i) g.tue<&Satzverwaltung::speichere>();
        g.setze_ab(false);
    }
    waehle_mit_Namen(g, "Alpha");
}

// Another record over values that no file holds, with each answer.
void waehle_ueber_Ungesichertem(Gang& g) {
    for (const Knopf Antwort : {Knopf::nicht_jetzt, Knopf::Ja, Knopf::Nein, Knopf::Ja}) {
        if (!tippe_in(g, "Applikationsrate", std::to_string(100 + g.r().unter(900)))) return;
        g.setze_ab(true);
        const auto& Liste = g.z().Listen[Applikation];
        const auto andere =
            std::find_if(Liste.begin(), Liste.end(), [&](const auto& s) { return s != g.z().gewaehlt(Applikation); });
        if (andere == Liste.end()) return;
        g.Fragesteller().bestehe_auf(Antwort);
        g.tue<&Satzverwaltung::waehle_Satz>(Applikation, static_cast<int>(andere - Liste.begin()));
        if (g.z().beendet()) return;
    }
}

// With each answer where another window has to be asked about.
void speichere(Gang& g) {
    if (!g.z().Sperre->von_anderem_gehalten()) {
        g.tue<&Satzverwaltung::speichere>();
        return;
    }
    for (const Knopf Antwort : alle_Antworten) {
        g.Fragesteller().bestehe_auf(Antwort);
        g.tue<&Satzverwaltung::speichere>();
    }
}
// A save of what another program has changed meanwhile, with each answer.
void speichere_ueber_Fremdem(Gang& g) {
    g.tue_Fremdes("put back", [&] { return g.Projekt().stelle_her(); });
    g.Fragesteller().bestehe_auf(Knopf::nicht_jetzt);
    waehle_mit_Namen(g, "Beta");
    if (!tippe_in(g, "Applikationsrate", std::to_string(100 + g.r().unter(900)))) return;
    g.setze_ab(true);
    g.tue_Fremdes("changed", [&] { return g.Projekt().aendere_Datei("Beta.app", g.r()); });
    g.Fragesteller().lass_los(true);  // a window beside it is another question
    for (const Knopf Antwort : alle_Antworten) {
        g.Fragesteller().bestehe_auf(Antwort);
        g.tue<&Satzverwaltung::speichere>();
    }
}

void speichere_unter(Gang& g) {
    if (!g.tue<&Programmablauf::beginne_Dialog>()) return;
    for (const char* Name : {"Epsilon", "Zeta.vnk"}) {
        g.tue<&Eingabedateien::speichere>(std::string(Name));
        g.setze_ab(false);
    }
}
// Over values that the results on display come from, as a rule.
void lade(Gang& g) {
    if (g.z().abgedeckt()) heile(g);
    if (!g.r().einmal_von(4)) tippe_langsam(g);
    g.setze_ab(true);
    if (g.tue<&Programmablauf::beginne_Dialog>())
        g.tue<&Eingabedateien::lade>(g.r().eins_von(std::array{"Alpha.vnk", "Beta.vnk", "a/b.vnk"}));
}
void loesche_Datei(Gang& g) {
    const Dateien Alle = g.Projekt().lies();
    const auto Datei = std::next(Alle.begin(), g.r().unter(static_cast<int>(Alle.size())));
    g.sage(Datei->first);
    g.tue<&Eingabedateien::loesche>((g.Projekt().Wurzel() / "input").string(), Datei->first);
}

}  // namespace

void waehle_mit_Namen(Gang& g, const std::string& Name) {
    const auto& Liste = g.z().Listen[Simulation];
    const auto i = std::find(Liste.begin(), Liste.end(), Name) - Liste.begin();
    if (i < static_cast<std::ptrdiff_t>(Liste.size())) g.tue<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
}

Satzart eine_Art(Gang& g, bool mit_Simulation) {
    const auto Art = static_cast<Satzart>(mit_Simulation ? g.r().unter(4) : 1 + g.r().unter(3));
    g.sage(Endungen[Art]);
    return Art;
}

std::vector<Aktionsart> Aktionen_an_Saetzen() {
    return {
        {"simulation", 25, Befehl | liest, waehle_Simulation},
        {"record", 30, Befehl | liest, waehle_Satz},
        {"another record over unsaved values", 40, Befehl | liest | Pruefung, waehle_ueber_Ungesichertem},
        {"new record", 20, Befehl | liest, lege_an},
        {"copy record", 90, Befehl | liest, kopiere},
        {"delete record", 10, Befehl | liest | Pruefung, loesche_mit_jeder_Antwort},
        {"rename record", 30, Befehl | liest, benenne_um},
        {"rename record over another", 10, Befehl | liest | Pruefung, ersetze},
        {"a record missing", 10, Befehl | liest | Pruefung, waehle_Luecke},
        {"restore from backup", 10, Befehl | liest, bringe_zurueck},
        {"save", 45, Befehl, speichere},
        {"save over what another program wrote", 40, Befehl | liest | Pruefung | fremd, speichere_ueber_Fremdem},
        {"refresh", 15, Befehl | immer | liest, tue<&Satzverwaltung::aktualisiere>},
        {"load input data", 60, Handlung | liest | Pruefung, lade},
        {"save input data as", 30, Handlung, speichere_unter},
        {"delete an input file", 20, Handlung, loesche_Datei},
    };
}

}  // namespace varnok::gang
