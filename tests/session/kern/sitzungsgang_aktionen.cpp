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
    const int bisher = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.s().fuehre_aus<&Feldeingabe::verlasse>(bisher))
        return g.sage("the field before keeps the focus");
    g.s().fuehre_aus<&Feldeingabe::betrete>(f);
    g.sage(Feldname(f));
}

void tippe(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() < 0) betrete_Feld(g);
    const int f = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (f < 0) return;
    const std::string jetzt = g.s().zeige<Feldeingabe>().Text(f);
    std::string Text = g.r().eins_von(Texte_der_Felder);
    if (g.r().einmal_von(4)) Text = jetzt + "0";
    if (g.r().einmal_von(6) && !jetzt.empty()) Text = jetzt.substr(0, jetzt.size() - 1);
    g.s().fuehre_aus<&Feldeingabe::aendere>(f, Text);
    g.getippt();
    g.sage(Feldname(f) + " \"" + Text + "\"");
}

// Twice or half the dose, which is scaled.
void tippe_Dosis(Gang& g) {
    const int f = Feld_mit_Namen("Applikationsrate");
    const int bisher = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.s().fuehre_aus<&Feldeingabe::verlasse>(bisher)) return;
    g.s().fuehre_aus<&Feldeingabe::betrete>(f);
    const std::string Text = g.r().eins_von(std::array{"125", "250", "500", "1000", "2000", "4000"});
    g.s().fuehre_aus<&Feldeingabe::aendere>(f, Text);
    g.getippt();
    g.sage(Text);
    if (g.r().einmal_von(2)) g.s().fuehre_aus<&Feldeingabe::verlasse>(f);
}

void waehle_mit_Namen(Gang& g, const std::string& Name) {
    const auto& Liste = g.z().Listen[Simulation];
    const auto i = std::find(Liste.begin(), Liste.end(), Name) - Liste.begin();
    if (i < static_cast<std::ptrdiff_t>(Liste.size())) g.s().fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
}

// The rarer questions, each by the way that leads to it.
void speichere_Luecke(Gang& g) {
    waehle_mit_Namen(g, "Torn");
    g.s().fuehre_aus<&Satzverwaltung::speichere>();
}
void rechne_ohne_Wetter(Gang& g) {
    g.Projekt().stelle_her();
    waehle_mit_Namen(g, "Beta");
    g.merke_Wetter();
    for (int i = 0; i < 2; ++i) g.Projekt().loesche(Klima_Endung, g.r());
    g.s().fuehre_aus<&Satzverwaltung::aktualisiere>();
}
void skaliere_falsch(Gang& g) {
    if (g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true) && !g.s().fuehre_aus<&Diagrammsteuerung::skaliere>("0", "1"))
        g.s().fuehre_aus<&Laufsteuerung::schliesse_Skalierung>();
}
void Plateau_zu_flach(Gang& g) {
    if (!g.s().fuehre_aus<&Szenarioeditor::oeffne>()) return;
    g.s().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 150 + g.r().unter(9));
    g.s().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 50 + g.r().unter(50));
    g.s().fuehre_aus<&Szenarioeditor::uebernimm>();
    g.s().fuehre_aus<&Szenarioeditor::schliesse>();
}

// Nothing decays, or hardly anything: there is no plateau.
void tippe_langsam(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() >= 0 &&
        !g.s().fuehre_aus<&Feldeingabe::verlasse>(g.s().zeige<Feldeingabe>().aktives_Feld()))
        return;
    const int f = Feld_mit_Namen("S_DT50_0");
    g.s().fuehre_aus<&Feldeingabe::betrete>(f);
    g.s().fuehre_aus<&Feldeingabe::aendere>(f, g.r().eins_von(std::array{"0", "0", "100000"}));
    g.getippt();
    g.s().fuehre_aus<&Feldeingabe::verlasse>(f);
}

// As a rule with something to bring back.
void stuerze_ab(Gang& g) {
    if (!g.r().einmal_von(4)) tippe_langsam(g);
    g.s().fuehre_aus<&Zwischensicherung::schreibe>();
    g.stuerze_ab();
}

template <auto Feldbefehl>
void am_Feld(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() < 0) betrete_Feld(g);
    const int f = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (f < 0) return;
    g.sage(Feldname(f) + " \"" + g.s().zeige<Feldeingabe>().Text(f) + "\"");
    g.s().fuehre_aus<Feldbefehl>(f);
}

void Esc_im_Feld(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() >= 0)
        g.s().fuehre_aus<&Feldeingabe::nimm_zurueck>(g.s().zeige<Feldeingabe>().aktives_Feld());
}

// One of the first entries of a list or an enumeration.
template <auto Wahl, int Anzahl, class Eintrag = int>
void waehle(Gang& g) {
    const int i = g.r().unter(Anzahl);
    g.sage(std::to_string(i));
    g.s().fuehre_aus<Wahl>(static_cast<Eintrag>(i));
}

template <auto Tat>
void tue(Gang& g) {
    g.s().fuehre_aus<Tat>();
}

void waehle_Substanz(Gang& g) {
    g.s().fuehre_aus<&Listenwahl::waehle_Substanz>(g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus)));
}
void waehle_Kinetik(Gang& g) {
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus));
    const auto k = static_cast<Kinetikart>(g.r().unter(c == 0 ? 4 : 2));
    g.sage(std::to_string(c) + " " + std::to_string(k));
    g.s().fuehre_aus<&Listenwahl::waehle_Kinetik>(c, k);
}
void waehle_Studie(Gang& g) {
    const int i = g.r().unter(g.z().Studienzahl());
    g.sage(std::to_string(i));
    g.s().fuehre_aus<&Listenwahl::waehle_Studie>(i);
}
void waehle_Tag(Gang& g) { g.s().fuehre_aus<&Listenwahl::waehle_Tag>(g.r().unter(g.s().zeige<Listenwahl>().Tage())); }
void waehle_Intervall(Gang& g) {
    const int i = g.r().unter(std::min(40, g.s().zeige<Listenwahl>().Intervalle()));
    g.sage(std::to_string(i));
    g.s().fuehre_aus<&Listenwahl::waehle_Intervall>(i);
}
void waehle_TWA(Gang& g) {
    g.s().fuehre_aus<&Listenwahl::waehle_TWA_Laenge>(
        g.r().unter(static_cast<int>(g.s().zeige<Listenwahl>().TWA_Laengen().size())));
}

void skaliere(Gang& g) {
    const std::string Start = g.r().eins_von(std::array{"0", "30", "400"});
    const std::string Ende = g.r().eins_von(std::array{"50", "365", "3650", "1", "abc", "9999"});
    g.sage(Start + " to " + Ende);
    if (!g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true)) return;  // the menu entry
    g.s().fuehre_aus<&Diagrammsteuerung::skaliere>(Start, Ende);
    g.s().fuehre_aus<&Laufsteuerung::schliesse_Skalierung>();
}
void ziehe_Legende(Gang& g) {
    g.s().fuehre_aus<&Diagrammsteuerung::merke_Legende>(g.z().Zusammenfassung_aktiv(), g.s().zeige<Diagrammsteuerung>().vorne(),
                                                        Flaechenort{0.1 * g.r().unter(9), 0.3});
}

bool hat_Tabelle(Gang& g) { return g.z().Felder().Applikationsmuster == unregelmaessig; }
Zelle eine_Zelle(Gang& g) {
    const Zelle z{g.r().unter(static_cast<int>(g.z().Felder().Applikationsschema.size())), g.r().unter(4)};
    g.sage(std::to_string(z.Zeile) + "/" + std::to_string(z.Spalte));
    return z;
}
void tippe_Zelle(Gang& g) {
    if (!hat_Tabelle(g)) g.s().fuehre_aus<&Listenwahl::waehle_Muster>(unregelmaessig);
    const Zelle z = eine_Zelle(g);
    g.s().fuehre_aus<&Applikationstabelle::haenge_an>(z, g.r().eins_von(std::array{'0', '1', '2', '5', '.', 'x'}));
}
void kuerze_Zelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().fuehre_aus<&Applikationstabelle::nimm_letztes>(eine_Zelle(g));
}
void leere_Zelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().fuehre_aus<&Applikationstabelle::leere>(eine_Zelle(g));
}
void fuege_ein(Gang& g) {
    if (!hat_Tabelle(g)) g.s().fuehre_aus<&Listenwahl::waehle_Muster>(unregelmaessig);
    std::string Text;
    const int n = g.r().unter(4) + 1;
    for (int i = 0; i < n; ++i)
        Text += "05\t0" + std::to_string(i + 3) + "\t" + std::to_string(100 + g.r().unter(5) * 50) + "\t0\r\n";
    g.s().fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 0}, Text);
}
void bestaetige_Tabelle(Gang& g) {
    if (hat_Tabelle(g)) g.s().fuehre_aus<&Applikationstabelle::bestaetige>();
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
    g.s().fuehre_aus<&Satzverwaltung::waehle_Simulation>(i);
}
void waehle_Satz(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].empty()) return;
    const int i = g.r().unter(static_cast<int>(g.z().Listen[Art].size()));
    g.sage("\"" + g.z().Listen[Art][static_cast<std::size_t>(i)] + "\"");
    g.s().fuehre_aus<&Satzverwaltung::waehle_Satz>(Art, i);
}

constexpr std::size_t viele_Saetze = 6;

void loesche(Gang& g) {
    Satzart Art = eine_Art(g);
    for (const Satzart t : {Simulation, Wirkstoff, Applikation, Szenario}) {
        if (g.z().Listen[t].size() > viele_Saetze) Art = t;
    }
    if (g.s().zeige<Satzverwaltung>().darf_loeschen(Art)) g.s().fuehre_aus<&Satzverwaltung::loesche>(Art);
}
void lege_an(Gang& g) {
    const Satzart Art = eine_Art(g, false);
    if (g.z().Listen[Art].size() > viele_Saetze) return loesche(g);
    g.s().fuehre_aus<&Satzverwaltung::lege_an>(Art);
}
void kopiere(Gang& g) {
    const Satzart Art = eine_Art(g);
    if (g.z().Listen[Art].size() > viele_Saetze) return loesche(g);
    if (g.s().zeige<Satzverwaltung>().darf_kopieren(Art)) g.s().fuehre_aus<&Satzverwaltung::kopiere>(Art);
}
void benenne_um(Gang& g) {
    const Satzart Art = eine_Art(g);
    const std::string Name = g.r().eins_von(Namenstexte);
    g.sage("\"" + Name + "\"");
    g.s().fuehre_aus<&Satzverwaltung::benenne_um>(Art, Name, !g.r().einmal_von(4));
}

void ersetze(Gang& g) {
    const Satzart Art = eine_Art(g);
    const auto& Liste = g.z().Listen[Art];
    if (Liste.empty()) return;
    const std::string Name = g.r().eins_von(Liste);
    g.sage("\"" + Name + "\"");
    g.s().fuehre_aus<&Satzverwaltung::benenne_um>(Art, Name, true);
}

void addiere_Studie(Gang& g) {
    if (g.s().zeige<Studienverwaltung>().darf_addieren()) g.s().fuehre_aus<&Studienverwaltung::addiere>();
}
void loesche_Studie(Gang& g) {
    if (g.s().zeige<Studienverwaltung>().darf_addieren() && g.z().Studienzahl() == 1) {
        g.s().fuehre_aus<&Studienverwaltung::addiere>();
        g.s().fuehre_aus<&Studienverwaltung::bestaetige>(true);
    }
    if (g.s().zeige<Studienverwaltung>().darf_loeschen()) g.s().fuehre_aus<&Studienverwaltung::loesche>();
}
void beginne_Studienname(Gang& g) { g.s().fuehre_aus<&Studienverwaltung::beginne_Umbenennen>(); }
void tippe_Studienname(Gang& g) {
    if (!g.s().zeige<Studienverwaltung>().Name_offen()) beginne_Studienname(g);
    const std::string Name = g.r().eins_von(std::array{"", "A soil", "tab\there", "Another soil"});
    g.s().fuehre_aus<&Studienverwaltung::aendere>(Name);
    g.sage("\"" + Name + "\"");
}
void bestaetige_Studienname(Gang& g) {
    if (g.s().zeige<Studienverwaltung>().Name_offen()) g.s().fuehre_aus<&Studienverwaltung::bestaetige>(g.r().einmal_von(2));
}
void Studienname_zurueck(Gang& g) { g.s().fuehre_aus<&Studienverwaltung::nimm_zurueck>(); }

void tippe_Namen(Gang& g) {
    if (!g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true)) return;  // the focus goes over
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Felder().Berechnungsmodus));
    g.s().fuehre_aus<&Listenwahl::aendere_Namen>(c, "Name " + std::to_string(g.r().unter(5)));
    g.Name_in_Arbeit = true;
    if (g.r().einmal_von(2)) return;
    g.s().fuehre_aus<&Listenwahl::verlasse_Namen>();
    g.Name_in_Arbeit = false;
}
void verlasse_Namen(Gang& g) {
    g.s().fuehre_aus<&Listenwahl::verlasse_Namen>();
    g.Name_in_Arbeit = false;
}
void oeffne_Beschreibung(Gang& g) {
    if (!g.s().zeige<Beschreibungseingabe>().offen() && g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true))
        g.s().fuehre_aus<&Beschreibungseingabe::oeffne>();
}
void tippe_Beschreibung(Gang& g) {
    oeffne_Beschreibung(g);
    if (!g.s().zeige<Beschreibungseingabe>().offen()) return;
    g.s().fuehre_aus<&Beschreibungseingabe::aendere>("Text " + std::to_string(g.r().unter(5)));
}
void schliesse_Beschreibung(Gang& g) {
    if (g.s().zeige<Beschreibungseingabe>().offen()) g.s().fuehre_aus<&Beschreibungseingabe::schliesse>();
}
void Beschreibung_zurueck(Gang& g) {
    if (g.s().zeige<Beschreibungseingabe>().offen()) g.s().fuehre_aus<&Beschreibungseingabe::nimm_zurueck>();
}

void aendere_Szenario(Gang& g) {
    Sitzung& s = g.s();
    const auto& e = s.zeige<Szenarioeditor>();
    using E = Szenarioentwurf;
    const int Anzahl = 1 + g.r().unter(3);
    for (int i = 0; i < Anzahl; ++i) {
        const int Klimata = static_cast<int>(e.Entwurf().Klimadateien.size());
        switch (g.r().unter(8)) {
            case 0:
                s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, g.r().eins_von(std::array{"Loam", "Clay"}));
                break;
            case 1:
                s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, g.r().eins_von(std::array{"1.1", "1.4", "0", "abc"}));
                break;
            case 2:
                s.fuehre_aus<&Szenarioeditor::aendere>(E::Feldkapazitaet, g.r().eins_von(std::array{"25", "35"}));
                break;
            case 3:
                s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, g.r().unter(300));
                break;
            case 4:
                s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Plateau, g.r().unter(2));
                break;
            case 5:
                if (e.darf_variabel()) s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(g.r().unter(2));
                break;
            case 6:
                s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(g.r().unter(30));
                break;
            default:
                if (Klimata > 0) s.fuehre_aus<&Szenarioeditor::waehle_Klimaszenario>(g.r().unter(Klimata));
        }
    }
    if (g.r().einmal_von(5) && !e.Entwurf().Szenarien.empty())
        s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(g.r().unter(static_cast<int>(e.Entwurf().Szenarien.size())));
}
void Editor_Done(Gang& g) {
    if (!g.s().fuehre_aus<&Szenarioeditor::oeffne>()) return;
    aendere_Szenario(g);
    g.s().fuehre_aus<&Szenarioeditor::uebernimm>();
    g.s().fuehre_aus<&Szenarioeditor::schliesse>();
}
void Editor_Cancel(Gang& g) {
    if (!g.s().fuehre_aus<&Szenarioeditor::oeffne>()) return;
    aendere_Szenario(g);
    g.s().fuehre_aus<&Szenarioeditor::verwirf>();
    g.s().fuehre_aus<&Szenarioeditor::schliesse>();
}

void tue_im_Organiser(Gang& g) {
    const auto Art = static_cast<Satzart>(g.r().unter(4));
    const int n = static_cast<int>(g.s().zeige<Organiser>().Listen().Listen[Art].size());
    const int i = g.r().unter(n);
    const int was = g.r().unter(8);
    const std::string Name = g.r().eins_von(Namenstexte);
    const bool Enter = g.r().einmal_von(2);
    g.sage("[" + std::to_string(was) + " " + Endungen[Art] + " " + std::to_string(i) + " " + Name + "]");
    const auto& o = g.s().zeige<Organiser>();
    switch (was) {
        case 0:
            g.s().fuehre_aus<&Organiser::aendere_Projektname>("Organised " + std::to_string(i));
            break;
        case 1:
            if (o.darf_kopieren(Art) && n <= static_cast<int>(viele_Saetze)) g.s().fuehre_aus<&Organiser::kopiere>(Art);
            break;
        case 2:
            if (o.darf_loeschen(Art)) g.s().fuehre_aus<&Organiser::loesche>(Art);
            break;
        case 3:
            if (o.darf_kopieren(Art)) g.s().fuehre_aus<&Organiser::benenne_um>(Art, Name, Enter);
            break;
        default:
            if (n > 0) g.s().fuehre_aus<&Organiser::waehle>(Art, i);
    }
}
void Organiser_Done(Gang& g) {
    if (!g.s().fuehre_aus<&Organiser::oeffne>()) return;
    const int Anzahl = g.r().unter(4);
    for (int i = 0; i < Anzahl; ++i) tue_im_Organiser(g);
    const bool zu = g.s().fuehre_aus<&Organiser::uebernimm>();
    if (!zu) g.s().fuehre_aus<&Organiser::verwirf>();
    g.s().fuehre_aus<&Organiser::schliesse_ab>();
}
void Organiser_Esc(Gang& g) {
    if (!g.s().fuehre_aus<&Organiser::oeffne>()) return;
    const int Anzahl = g.r().unter(4);
    for (int i = 0; i < Anzahl; ++i) tue_im_Organiser(g);
    g.s().fuehre_aus<&Organiser::verwirf>();
    g.s().fuehre_aus<&Organiser::schliesse_ab>();
}

void Optionen_OK(Gang& g) {
    if (!g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true)) return;  // the menu entry
    Optionsentwurf o = g.s().fuehre_aus<&Optionensteuerung::oeffne>();
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
    if (g.s().fuehre_aus<&Optionensteuerung::uebernimm>(o)) g.s().fuehre_aus<&Optionensteuerung::schliesse>();
}
void Optionen_Cancel(Gang& g) {
    if (!g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true)) return;  // the menu entry
    g.s().fuehre_aus<&Optionensteuerung::oeffne>();
    g.s().fuehre_aus<&Optionensteuerung::schliesse>();
}

void PDF(Gang& g) { g.s().fuehre_aus<&Berichtssteuerung::speichere_PDF>((g.Projekt().Wurzel() / "report.pdf").string()); }

void Hilfe(Gang& g) {
    g.s().fuehre_aus<&Hilfetexte::Tooltips>();
    g.s().zeige<Hilfetexte>().Programmangaben();
}

void speichere_unter(Gang& g) {
    const std::string Name = g.r().eins_von(std::array{"Epsilon", "Zeta.vnk"});
    g.sage(Name);
    if (g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true)) g.s().fuehre_aus<&Eingabedateien::speichere>(Name);
}
void lade(Gang& g) {
    if (g.s().fuehre_aus<&Feldeingabe::schliesse_ab>(true))
        g.s().fuehre_aus<&Eingabedateien::lade>(g.r().eins_von(std::array{"Alpha.vnk", "Beta.vnk", "a/b.vnk"}));
}
void loesche_Datei(Gang& g) {
    g.s().fuehre_aus<&Eingabedateien::loesche>((g.Projekt().Wurzel() / "input").string(),
                                               g.r().eins_von(std::array{"Gamma.che", "Epsilon.vnk"}));
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
        {"Enter in a field", 20, Handlung, am_Feld<&Feldeingabe::bestaetige>},
        {"leave a field", 40, Handlung, am_Feld<&Feldeingabe::verlasse>},
        {"Esc in a field", 15, Handlung, Esc_im_Feld},
        {"compound", 10, Befehl, waehle_Substanz},
        {"kinetics", 12, Befehl, waehle_Kinetik},
        {"study", 15, Befehl, waehle_Studie},
        {"scheme", 12, Befehl, waehle<&Listenwahl::waehle_Berechnungsmodus, 4, Stoffschema>},
        {"pattern", 12, Befehl, waehle<&Listenwahl::waehle_Muster, 3, Applikationsart>},
        {"month", 10, Befehl, waehle<&Listenwahl::waehle_Monat, 12>},
        {"day", 10, Befehl, waehle_Tag},
        {"interval", 10, Befehl, waehle_Intervall},
        {"number", 12, Befehl, waehle<&Listenwahl::waehle_Anzahl, 8>},
        {"endpoint", 12, Befehl | immer, waehle<&Listenwahl::waehle_Endpunkt, 2, Endpunktart>},
        {"view", 14, Befehl | immer, waehle<&Listenwahl::waehle_PEC_Typ, 3, PEC_Ansicht>},
        {"rotation", 12, Befehl | immer, waehle<&Listenwahl::waehle_Fruchtwechsel, 3, Fruchtfolge>},
        {"window", 12, Befehl, waehle_TWA},
        {"studies", 10, Befehl | immer, tue<&Listenwahl::zeige_Studien>},
        {"summary", 14, Befehl, tue<&Listenwahl::zeige_Zusammenfassung>},
        {"next diagram", 10, Befehl | immer, tue<&Diagrammsteuerung::schalte_weiter>},
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
        {"delete record", 24, Befehl | liest, loesche},
        {"rename record", 40, Befehl | schreibt | liest, benenne_um},
        {"rename record over another", 110, Befehl | schreibt | liest, ersetze},
        {"save with a record missing", 12, Befehl | liest | Pruefung, speichere_Luecke},
        {"run without weather", 5, Befehl | liest | fremd, rechne_ohne_Wetter},
        {"scaling refused", 40, Befehl, skaliere_falsch},
        {"editor, plateau too thin", 20, Befehl | liest, Plateau_zu_flach},
        {"add study", 16, Befehl, addiere_Studie},
        {"delete study", 120, Befehl, loesche_Studie},
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
        {"report", 12, Befehl, tue<&Berichtssteuerung::erstelle>},
        {"close report", 10, 0, tue<&Berichtssteuerung::schliesse>},
        {"report as PDF", 10, Handlung, PDF},
        {"save", 26, Befehl | schreibt, tue<&Satzverwaltung::speichere>},
        {"refresh", 15, Befehl | immer | liest, tue<&Satzverwaltung::aktualisiere>},
        {"undo", 14, Befehl | Pruefung, tue<&Ruecknahme::mache_rueckgaengig>},
        {"redo", 14, Befehl | Pruefung, tue<&Ruecknahme::wiederhole>},
        {"exit", 50, Befehl | schreibt | liest, tue<&Programmablauf::beende>},
        {"close box", 50, Befehl | liest, [](Gang& g) { g.s().fuehre_aus<&Programmablauf::schliesse_Fenster>(); }},
        {"the program is killed", 150, Pruefung, stuerze_ab},
        {"default settings", 10, Befehl | schreibt | liest, tue<&Satzverwaltung::lade_Voreinstellungen>},
        {"look for an update", 10, Befehl, tue<&Aktualisierungssteuerung::suche>},
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
