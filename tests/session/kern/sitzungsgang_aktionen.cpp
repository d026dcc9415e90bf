// What a user, and another program beside him, can do.

#include <algorithm>
#include <array>

#include "session/kern/sitzungsgang.h"

namespace varnok::gang {
namespace {

const std::array Texte_der_Felder = {"12",  "0",   "",    "abc", "-3",    "1e2",  "30",   "12abc", "55.5", "100", "0.5",
                                     "200", "400", "0,5", " 20", "33.33", "1000", "2000", "25",    "50",   "99",  "7"};
const std::array Namenstexte = {"Alpha", "Beta", "Gamma", "delta", "copy of Alpha", "a/b", "", "Umlaut \xC3\xA4", "Beta.che"};

std::string Feldname(int f) { return Feldtabelle()[static_cast<std::size_t>(f)].Objektname(); }

// Fields of compounds that the scheme has.
int sichtbares_Feld(Gang& g) {
    for (;;) {
        const int f = g.r().unter(static_cast<int>(Feldtabelle().size()));
        if (Feldtabelle()[static_cast<std::size_t>(f)].i_substanz < Anzahl_Stoffe(g.z().Felder().Berechnungsmodus)) return f;
    }
}

void betrete_Feld(Gang& g) {
    const int f = sichtbares_Feld(g);
    const int bisher = g.s().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.s().verlasse_Feld(bisher)) return g.sage("the field before keeps the focus");
    g.s().betrete_Feld(f);
    g.sage(Feldname(f));
}

void tippe(Gang& g) {
    if (g.s().aktives_Feld() < 0) betrete_Feld(g);
    const int f = g.s().aktives_Feld();
    if (f < 0) return;
    const std::string jetzt = g.s().Feldtext(f);
    std::string Text = g.r().eins_von(Texte_der_Felder);
    if (g.r().einmal_von(4)) Text = jetzt + "0";
    if (g.r().einmal_von(6) && !jetzt.empty()) Text = jetzt.substr(0, jetzt.size() - 1);
    g.s().aendere_Feld(f, Text);
    g.getippt();
    g.sage(Feldname(f) + " \"" + Text + "\"");
}

// Twice or half the dose, which is scaled.
void tippe_Dosis(Gang& g) {
    const int f = Feld_mit_Namen("Applikationsrate");
    const int bisher = g.s().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.s().verlasse_Feld(bisher)) return;
    g.s().betrete_Feld(f);
    const std::string Text = g.r().eins_von(std::array{"125", "250", "500", "1000", "2000", "4000"});
    g.s().aendere_Feld(f, Text);
    g.getippt();
    g.sage(Text);
    if (g.r().einmal_von(2)) g.s().verlasse_Feld(f);
}

void waehle_mit_Namen(Gang& g, const std::string& Name) {
    const auto& Liste = g.z().Listen[Simulation];
    const auto i = std::find(Liste.begin(), Liste.end(), Name) - Liste.begin();
    if (i < static_cast<std::ptrdiff_t>(Liste.size())) g.s().waehle_Simulation(static_cast<int>(i));
}

// The rarer questions, each by the way that leads to it.
void speichere_Luecke(Gang& g) {
    waehle_mit_Namen(g, "Torn");
    g.s().Speichern();
}
void rechne_ohne_Wetter(Gang& g) {
    g.Projekt().stelle_her();
    waehle_mit_Namen(g, "Beta");
    g.merke_Wetter();
    for (int i = 0; i < 2; ++i) g.Projekt().loesche(Klima_Endung, g.r());
    g.s().Aktualisieren();
}
void skaliere_falsch(Gang& g) {
    if (g.s().schliesse_Feld_ab() && !g.s().skaliere_Diagramm("0", "1")) g.s().schliesse_Skalierung();
}
void Plateau_zu_flach(Gang& g) {
    if (!g.s().oeffne_Szenarioeditor()) return;
    g.s().Editor().waehle_Bodentiefe(150 + g.r().unter(9));
    g.s().Editor().waehle_Plateautiefe(50 + g.r().unter(50));
    g.s().uebernimm_Szenario();
    g.s().schliesse_Szenarioeditor();
}

// Nothing decays, or hardly anything: there is no plateau.
void tippe_langsam(Gang& g) {
    if (g.s().aktives_Feld() >= 0 && !g.s().verlasse_Feld(g.s().aktives_Feld())) return;
    const int f = Feld_mit_Namen("S_DT50_0");
    g.s().betrete_Feld(f);
    g.s().aendere_Feld(f, g.r().eins_von(std::array{"0", "0", "100000"}));
    g.getippt();
    g.s().verlasse_Feld(f);
}

template <bool (Sitzung::*Befehl_)(int)>
void am_Feld(Gang& g) {
    if (g.s().aktives_Feld() < 0) betrete_Feld(g);
    const int f = g.s().aktives_Feld();
    if (f < 0) return;
    g.sage(Feldname(f) + " \"" + g.s().Feldtext(f) + "\"");
    (g.s().*Befehl_)(f);
}

void Esc_im_Feld(Gang& g) {
    if (g.s().aktives_Feld() >= 0) g.s().nimm_Feld_zurueck(g.s().aktives_Feld());
}

template <void (Sitzung::*Wahl)(int), int Anzahl>
void waehle(Gang& g) {
    const int i = g.r().unter(Anzahl);
    g.sage(std::to_string(i));
    (g.s().*Wahl)(i);
}

template <void (Sitzung::*Tat)()>
void tue(Gang& g) {
    (g.s().*Tat)();
}

void waehle_Substanz(Gang& g) { g.s().waehle_Substanz(g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus))); }
void waehle_Kinetik(Gang& g) {
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus));
    const auto k = static_cast<Kinetikart>(g.r().unter(c == 0 ? 4 : 2));
    g.sage(std::to_string(c) + " " + std::to_string(k));
    g.s().waehle_Kinetik(c, k);
}
void waehle_Studie(Gang& g) {
    const int i = g.r().unter(g.z().Studienzahl());
    g.sage(std::to_string(i));
    g.s().waehle_Studie(i);
}
void waehle_Tag(Gang& g) { g.s().waehle_Tag(g.r().unter(g.s().Tage_der_Liste())); }
void waehle_Intervall(Gang& g) {
    const int i = g.r().unter(std::min(40, g.s().Intervalle_der_Liste()));
    g.sage(std::to_string(i));
    g.s().waehle_Intervall(i);
}
void waehle_TWA(Gang& g) { g.s().waehle_TWA_Laenge(g.r().unter(static_cast<int>(g.s().TWA_Liste().size()))); }

void skaliere(Gang& g) {
    const std::string Start = g.r().eins_von(std::array{"0", "30", "400"});
    const std::string Ende = g.r().eins_von(std::array{"50", "365", "3650", "1", "abc", "9999"});
    g.sage(Start + " to " + Ende);
    if (!g.s().schliesse_Feld_ab()) return;  // the menu entry
    g.s().skaliere_Diagramm(Start, Ende);
    g.s().schliesse_Skalierung();
}
void ziehe_Legende(Gang& g) {
    g.s().merke_Legende(g.z().Zusammenfassung_aktiv, g.s().Diagramme().vorne(), Flaechenort{0.1 * g.r().unter(9), 0.3});
}

bool hat_Tabelle(Gang& g) { return g.z().Felder().Applikationsmuster == unregelmaessig; }
Zelle eine_Zelle(Gang& g) {
    const Zelle z{g.r().unter(static_cast<int>(g.z().Felder().Applikationsschema.size())), g.r().unter(4)};
    g.sage(std::to_string(z.Zeile) + "/" + std::to_string(z.Spalte));
    return z;
}
void tippe_Zelle(Gang& g) {
    if (!hat_Tabelle(g)) g.s().waehle_Muster(unregelmaessig);
    const Zelle z = eine_Zelle(g);
    g.s().haenge_an_Zelle(z, g.r().eins_von(std::array{'0', '1', '2', '5', '.', 'x'}));
}
void kuerze_Zelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().nimm_letztes_Zeichen(eine_Zelle(g));
}
void leere_Zelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().leere_Zelle(eine_Zelle(g));
}
void fuege_ein(Gang& g) {
    if (!hat_Tabelle(g)) g.s().waehle_Muster(unregelmaessig);
    std::string Text;
    const int n = g.r().unter(4) + 1;
    for (int i = 0; i < n; ++i)
        Text += "05\t0" + std::to_string(i + 3) + "\t" + std::to_string(100 + g.r().unter(5) * 50) + "\t0\r\n";
    g.s().fuege_in_Tabelle_ein({0, 0}, Text);
}
void bestaetige_Tabelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().bestaetige_Tabelle();
}

Satzart eine_Art(Gang& g, bool mit_Simulation = true) {
    const auto Art = static_cast<Satzart>(mit_Simulation ? g.r().unter(4) : 1 + g.r().unter(3));
    g.sage(Endungen[Art]);
    return Art;
}

void waehle_Simulation(Gang& g) {
    const auto& Liste = g.z().Listen[Simulation];
    if (Liste.empty()) return;
    const int i = g.r().unter(static_cast<int>(Liste.size()));
    g.sage("\"" + Liste[static_cast<std::size_t>(i)] + "\"");
    g.s().waehle_Simulation(i);
}
void waehle_Satz(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].empty()) return;
    const int i = g.r().unter(static_cast<int>(g.z().Listen[Art].size()));
    g.sage("\"" + g.z().Listen[Art][static_cast<std::size_t>(i)] + "\"");
    g.s().waehle_Satz(Art, i);
}

constexpr std::size_t viele_Saetze = 6;

void loesche(Gang& g) {
    Satzart Art = eine_Art(g);
    for (const Satzart t : {Simulation, Wirkstoff, Applikation, Szenario}) {
        if (g.z().Listen[t].size() > viele_Saetze) Art = t;
    }
    if (g.s().darf_loeschen(Art)) g.s().loesche_Satz(Art);
}
void lege_an(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].size() > viele_Saetze) return loesche(g);
    g.s().lege_Satz_an(Art);
}
void kopiere(Gang& g) {
    const Satzart Art = eine_Art(g);
    if (g.z().Listen[Art].size() > viele_Saetze) return loesche(g);
    if (g.s().darf_kopieren(Art)) g.s().kopiere_Satz(Art);
}
void benenne_um(Gang& g) {
    const Satzart Art = eine_Art(g);
    const std::string Name = g.r().eins_von(Namenstexte);
    g.sage("\"" + Name + "\"");
    g.s().benenne_Satz_um(Art, Name, !g.r().einmal_von(4));
}

void ersetze(Gang& g) {
    const Satzart Art = eine_Art(g);
    const auto& Liste = g.z().Listen[Art];
    if (Liste.empty()) return;
    const std::string Name = g.r().eins_von(Liste);
    g.sage("\"" + Name + "\"");
    g.s().benenne_Satz_um(Art, Name, true);
}

void addiere_Studie(Gang& g) {
    if (g.s().darf_Studie_addieren()) g.s().addiere_Studie();
}
void loesche_Studie(Gang& g) {
    if (g.s().darf_Studie_addieren() && g.z().Studienzahl() == 1) {
        g.s().addiere_Studie();
        g.s().bestaetige_Studienname(true);
    }
    if (g.s().darf_Studie_loeschen()) g.s().loesche_Studie();
}
void beginne_Studienname(Gang& g) { g.s().beginne_Studienname(); }
void tippe_Studienname(Gang& g) {
    if (!g.s().Studien().Name_offen()) beginne_Studienname(g);
    const std::string Name = g.r().eins_von(std::array{"", "A soil", "tab\there", "Another soil"});
    g.s().aendere_Studienname(Name);
    g.sage("\"" + Name + "\"");
}
void bestaetige_Studienname(Gang& g) {
    if (g.s().Studien().Name_offen()) g.s().bestaetige_Studienname(g.r().einmal_von(2));
}
void Studienname_zurueck(Gang& g) { g.s().nimm_Studienname_zurueck(); }

void tippe_Namen(Gang& g) {
    if (!g.s().schliesse_Feld_ab()) return;  // the focus goes over
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus));
    g.s().aendere_Namen(c, "Name " + std::to_string(g.r().unter(5)));
    g.Name_in_Arbeit = true;
    if (g.r().einmal_von(2)) return;
    g.s().verlasse_Namen();
    g.Name_in_Arbeit = false;
}
void verlasse_Namen(Gang& g) {
    g.s().verlasse_Namen();
    g.Name_in_Arbeit = false;
}
void oeffne_Beschreibung(Gang& g) {
    if (!g.z().Beschreibung_offen && g.s().schliesse_Feld_ab()) g.s().oeffne_Beschreibung();
}
void tippe_Beschreibung(Gang& g) {
    oeffne_Beschreibung(g);
    if (!g.z().Beschreibung_offen) return;
    g.s().aendere_Beschreibung("Text " + std::to_string(g.r().unter(5)));
}
void schliesse_Beschreibung(Gang& g) {
    if (g.z().Beschreibung_offen) g.s().schliesse_Beschreibung();
}
void Beschreibung_zurueck(Gang& g) {
    if (g.z().Beschreibung_offen) g.s().nimm_Beschreibung_zurueck();
}

void aendere_Szenario(Gang& g) {
    Szenarioeditor& e = g.s().Editor();
    using E = Szenarioentwurf;
    const int Anzahl = 1 + g.r().unter(3);
    for (int i = 0; i < Anzahl; ++i) {
        const int Klimata = static_cast<int>(e.Entwurf().Klimadateien.size());
        switch (g.r().unter(8)) {
            case 0:
                e.aendere(E::Bodenszenario, g.r().eins_von(std::array{"Loam", "Clay"}));
                break;
            case 1:
                e.aendere(E::Bodendichte, g.r().eins_von(std::array{"1.1", "1.4", "0", "abc"}));
                break;
            case 2:
                e.aendere(E::Feldkapazitaet, g.r().eins_von(std::array{"25", "35"}));
                break;
            case 3:
                e.waehle_Bodentiefe(g.r().unter(300));
                break;
            case 4:
                e.waehle_Plateautiefe_Option(g.r().unter(2));
                break;
            case 5:
                if (e.darf_variabel()) e.waehle_Klimabedingungen(g.r().unter(2));
                break;
            case 6:
                e.waehle_Temperatur(g.r().unter(30));
                break;
            default:
                if (Klimata > 0) e.waehle_Klimaszenario(g.r().unter(Klimata));
        }
    }
    if (g.r().einmal_von(5) && !e.Entwurf().Szenarien.empty())
        e.waehle_Szenario(g.r().unter(static_cast<int>(e.Entwurf().Szenarien.size())));
}
void Editor_Done(Gang& g) {
    if (!g.s().oeffne_Szenarioeditor()) return;
    aendere_Szenario(g);
    g.s().uebernimm_Szenario();
    g.s().schliesse_Szenarioeditor();
}
void Editor_Cancel(Gang& g) {
    if (!g.s().oeffne_Szenarioeditor()) return;
    aendere_Szenario(g);
    g.s().Editor().verwirf();
    g.s().schliesse_Szenarioeditor();
}

void tue_im_Organiser(Gang& g) {
    const auto Art = static_cast<Satzart>(g.r().unter(4));
    const int n = static_cast<int>(g.s().Organisation().Listen().Listen[Art].size());
    const int i = g.r().unter(n);
    const int was = g.r().unter(8);
    const std::string Name = g.r().eins_von(Namenstexte);
    const bool Enter = g.r().einmal_von(2);
    g.sage("[" + std::to_string(was) + " " + Endungen[Art] + " " + std::to_string(i) + " " + Name + "]");
    g.s().organisiere([&](Organiser& o) {
        switch (was) {
            case 0:
                o.aendere_Projektname("Organised " + std::to_string(i));
                break;
            case 1:
                if (o.darf_kopieren(Art) && n <= static_cast<int>(viele_Saetze)) o.kopiere(Art);
                break;
            case 2:
                if (o.darf_loeschen(Art)) o.loesche(Art);
                break;
            case 3:
                if (o.darf_kopieren(Art)) o.benenne_um(Art, Name, Enter);
                break;
            default:
                if (n == 0) return;
                Art == Simulation ? o.waehle_Simulation(i) : o.waehle_Satz(Art, i);
        }
    });
}
void Organiser_Done(Gang& g) {
    if (!g.s().oeffne_Organiser()) return;
    const int Anzahl = g.r().unter(4);
    for (int i = 0; i < Anzahl; ++i) tue_im_Organiser(g);
    bool zu = false;
    g.s().organisiere([&](Organiser& o) { zu = o.uebernimm(); });
    if (!zu) g.s().organisiere([](Organiser& o) { o.verwirf(); });
    g.s().schliesse_Organiser();
}
void Organiser_Esc(Gang& g) {
    if (!g.s().oeffne_Organiser()) return;
    const int Anzahl = g.r().unter(4);
    for (int i = 0; i < Anzahl; ++i) tue_im_Organiser(g);
    g.s().organisiere([](Organiser& o) { o.verwirf(); });
    g.s().schliesse_Organiser();
}

void Optionen_OK(Gang& g) {
    if (!g.s().schliesse_Feld_ab()) return;  // the menu entry
    Optionsentwurf o = g.s().oeffne_Optionen();
    switch (g.r().unter(5)) {
        case 0:
            o.Einheit = g.r().unter(2);
            break;
        case 1:
            o.Separate_Rueckstaende = g.r().unter(3);
            break;
        case 2:
            o.TWA_Zeiten = g.r().unter(2);
            break;
        case 3:
            o.Ausgabename_Teile[0] = !o.Ausgabename_Teile[0];
            break;
        default:
            break;
    }
    if (g.s().uebernimm_Optionen(o)) g.s().schliesse_Optionen();
}
void Optionen_Cancel(Gang& g) {
    if (!g.s().schliesse_Feld_ab()) return;  // the menu entry
    g.s().oeffne_Optionen();
    g.s().schliesse_Optionen();
}

void PDF(Gang& g) { g.s().speichere_Bericht_als_PDF((g.Projekt().Wurzel() / "report.pdf").string()); }

void Hilfe(Gang& g) {
    g.s().Tooltips();
    g.s().Programmangaben();
}

void speichere_unter(Gang& g) {
    const std::string Name = g.r().eins_von(std::array{"Epsilon", "Zeta.vnk"});
    g.sage(Name);
    if (g.s().schliesse_Feld_ab()) g.s().speichere_Eingabedaten_unter(Name);
}
void lade(Gang& g) {
    if (g.s().schliesse_Feld_ab()) g.s().lade_Eingabedaten(g.r().eins_von(std::array{"Alpha.vnk", "Beta.vnk", "a/b.vnk"}));
}
void loesche_Datei(Gang& g) {
    g.s().loesche_Eingabedatei((g.Projekt().Wurzel() / "input").string(), g.r().eins_von(std::array{"Gamma.che", "Epsilon.vnk"}));
}

const char* eine_Endung(Gang& g) { return Endungen[static_cast<std::size_t>(g.r().unter(4))]; }
void fremd_aendere(Gang& g) { g.sage(g.Projekt().aendere(eine_Endung(g), g.r())); }
void fremd_loesche(Gang& g) { g.sage(g.Projekt().loesche(eine_Endung(g), g.r())); }
void fremd_zerstoere(Gang& g) { g.sage(g.Projekt().zerstoere(eine_Endung(g), g.r())); }
void Wetter_aendere(Gang& g) { g.sage(g.Projekt().aendere(Klima_Endung, g.r())); }
void Wetter_loesche(Gang& g) { g.sage(g.Projekt().loesche(Klima_Endung, g.r())); }
void Wetter_zerstoere(Gang& g) { g.sage(g.Projekt().zerstoere(Klima_Endung, g.r())); }
void stelle_her(Gang& g) { g.Projekt().stelle_her(); }

}  // namespace

const std::vector<Aktionsart>& Aktionsarten() {
    static const std::vector<Aktionsart> Arten = {
        {"enter a field", 20, Handlung, betrete_Feld},
        {"type", 60, Handlung, tippe},
        {"type a dose", 15, Handlung, tippe_Dosis},
        {"type a slow decay", 30, Handlung, tippe_langsam},
        {"Enter in a field", 20, Handlung, am_Feld<&Sitzung::bestaetige_Feld>},
        {"leave a field", 40, Handlung, am_Feld<&Sitzung::verlasse_Feld>},
        {"Esc in a field", 15, Handlung, Esc_im_Feld},
        {"compound", 10, Befehl, waehle_Substanz},
        {"kinetics", 12, Befehl, waehle_Kinetik},
        {"study", 15, Befehl, waehle_Studie},
        {"scheme", 12, Befehl, waehle<&Sitzung::waehle_Berechnungsmodus, 4>},
        {"pattern", 12, Befehl, waehle<&Sitzung::waehle_Muster, 3>},
        {"month", 10, Befehl, waehle<&Sitzung::waehle_Monat, 12>},
        {"day", 10, Befehl, waehle_Tag},
        {"interval", 10, Befehl, waehle_Intervall},
        {"number", 12, Befehl, waehle<&Sitzung::waehle_Anzahl, 8>},
        {"endpoint", 12, Befehl | immer, waehle<&Sitzung::waehle_Endpunkt, 2>},
        {"view", 14, Befehl | immer, waehle<&Sitzung::waehle_PEC_Typ, 3>},
        {"rotation", 12, Befehl | immer, waehle<&Sitzung::waehle_Fruchtwechsel, 3>},
        {"window", 12, Befehl, waehle_TWA},
        {"studies", 10, Befehl | immer, tue<&Sitzung::zeige_Studien>},
        {"summary", 14, Befehl, tue<&Sitzung::zeige_Zusammenfassung>},
        {"next diagram", 10, Befehl | immer, tue<&Sitzung::schalte_Diagramm_weiter>},
        {"scaling", 26, Befehl, skaliere},
        {"legend", 10, 0, ziehe_Legende},
        {"type into a cell", 12, 0, tippe_Zelle},
        {"shorten a cell", 10, 0, kuerze_Zelle},
        {"empty a cell", 10, 0, leere_Zelle},
        {"paste into the table", 10, 0, fuege_ein},
        {"Enter in the table", 14, Befehl, bestaetige_Tabelle},
        {"simulation", 25, Befehl | liest, waehle_Simulation},
        {"record", 30, Befehl | liest, waehle_Satz},
        {"new record", 12, Befehl | schreibt | liest, lege_an},
        {"copy record", 30, Befehl | schreibt | liest, kopiere},
        {"delete record", 14, Befehl | liest, loesche},
        {"rename record", 40, Befehl | schreibt | liest, benenne_um},
        {"rename record over another", 110, Befehl | schreibt | liest, ersetze},
        {"save with a record missing", 12, Befehl | liest | Pruefung, speichere_Luecke},
        {"run without weather", 5, Befehl | liest | fremd, rechne_ohne_Wetter},
        {"scaling refused", 40, Befehl, skaliere_falsch},
        {"editor, plateau too thin", 20, Befehl | liest, Plateau_zu_flach},
        {"add study", 16, Befehl, addiere_Studie},
        {"delete study", 70, Befehl, loesche_Studie},
        {"rename study", 10, Befehl, beginne_Studienname},
        {"type a study's name", 10, Befehl, tippe_Studienname},
        {"accept a study's name", 12, Handlung, bestaetige_Studienname},
        {"Esc in a study's name", 10, 0, Studienname_zurueck},
        {"type a compound's name", 10, 0, tippe_Namen},
        {"leave a compound's name", 10, Handlung, verlasse_Namen},
        {"open description", 10, 0, oeffne_Beschreibung},
        {"type description", 12, 0, tippe_Beschreibung},
        {"accept description", 10, Handlung, schliesse_Beschreibung},
        {"Esc in description", 10, Handlung, Beschreibung_zurueck},
        {"editor, Done", 40, Befehl | liest, Editor_Done},
        {"editor, Cancel", 10, Befehl | liest, Editor_Cancel},
        {"organiser, Done", 16, Befehl | schreibt | liest, Organiser_Done},
        {"organiser, Esc", 12, Befehl | schreibt | liest, Organiser_Esc},
        {"options, OK", 14, Befehl, Optionen_OK},
        {"options, Cancel", 10, Befehl, Optionen_Cancel},
        {"report", 12, Befehl, tue<&Sitzung::erstelle_Bericht>},
        {"close report", 10, 0, tue<&Sitzung::schliesse_Bericht>},
        {"report as PDF", 10, Handlung, PDF},
        {"save", 26, Befehl | schreibt, tue<&Sitzung::Speichern>},
        {"refresh", 15, Befehl | immer | liest, tue<&Sitzung::Aktualisieren>},
        {"undo", 14, Befehl | Pruefung, tue<&Sitzung::mache_rueckgaengig>},
        {"redo", 14, Befehl | Pruefung, tue<&Sitzung::wiederhole>},
        {"exit", 50, Befehl | schreibt | liest, tue<&Sitzung::Ende>},
        {"close box", 50, Befehl | liest, [](Gang& g) { g.s().schliesse_Fenster(); }},
        {"default settings", 10, Befehl | schreibt | liest, tue<&Sitzung::lade_Voreinstellungen>},
        {"look for an update", 10, Befehl, tue<&Sitzung::suche_nach_Update>},
        {"help", 10, 0, Hilfe},
        {"load input data", 45, Handlung | liest, lade},
        {"save input data as", 10, Handlung | schreibt, speichere_unter},
        {"delete an input file", 10, Handlung | schreibt, loesche_Datei},
        {"another program changes a record", 12, fremd, fremd_aendere},
        {"another program removes a record", 14, fremd, fremd_loesche},
        {"another program breaks a record", 10, fremd, fremd_zerstoere},
        {"another program changes the weather", 10, fremd, Wetter_aendere},
        {"another program removes the weather", 10, fremd, Wetter_loesche},
        {"another program breaks the weather", 10, fremd, Wetter_zerstoere},
        {"another program puts all back", 30, fremd, stelle_her},
        {"check: exit with Yes", 0, Pruefung, [](Gang& g) { g.pruefe_Ende(Knopf::Ja); }},
        {"check: exit with No", 0, Pruefung, [](Gang& g) { g.pruefe_Ende(Knopf::Nein); }},
        {"check: another simulation", 0, Pruefung, [](Gang& g) { g.pruefe_andere_Simulation(); }},
        {"check: save and load", 0, Pruefung, [](Gang& g) { g.pruefe_Sicherung(); }},
    };
    return Arten;
}

int Aktion_mit_Namen(const std::string& Name) {
    const auto& Arten = Aktionsarten();
    const auto Treffer = std::find_if(Arten.begin(), Arten.end(), [&](const Aktionsart& a) { return a.Name == Name; });
    return static_cast<int>(Treffer - Arten.begin());
}

}  // namespace varnok::gang
