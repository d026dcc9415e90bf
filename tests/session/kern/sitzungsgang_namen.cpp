// Studies, names, the description.

#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

void beginne_Studienname(Gang& g) { g.tue<&Studienverwaltung::beginne_Umbenennen>(); }
void tippe_Studienname(Gang& g) {
    if (!g.s().zeige<Studienverwaltung>().Name_offen()) beginne_Studienname(g);
    const std::string Name = g.r().eins_von(std::array{"", "A soil", "tab\there", "Another soil"});
    g.tue<&Studienverwaltung::aendere>(Name);
    g.sage("\"" + Name + "\"");
}
void bestaetige_Studienname(Gang& g) {
    if (!g.s().zeige<Studienverwaltung>().Name_offen()) beginne_Studienname(g);
    g.tue<&Studienverwaltung::bestaetige>(g.r().einmal_von(2));
}
void Studienname_zurueck(Gang& g) {
    if (!g.s().zeige<Studienverwaltung>().Name_offen()) beginne_Studienname(g);
    g.tue<&Studienverwaltung::nimm_zurueck>();
}

void tippe_Namen(Gang& g) {
    if (!g.tue<&Feldeingabe::schliesse_ab>(true)) return;  // the focus goes over
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Vorgabe.Berechnungsmodus));
    g.tue<&Listenwahl::aendere_Namen>(c, "Name " + std::to_string(g.r().unter(5)));
    g.Name_in_Arbeit = true;
    if (g.r().einmal_von(2)) return;
    g.tue<&Listenwahl::verlasse_Namen>();
    g.Name_in_Arbeit = false;
}
void verlasse_Namen(Gang& g) {
    g.tue<&Listenwahl::verlasse_Namen>();
    g.Name_in_Arbeit = false;
}
void oeffne_Beschreibung(Gang& g) {
    if (!g.s().zeige<Beschreibungseingabe>().offen()) g.tue<&Beschreibungseingabe::oeffne>();
}
void tippe_Beschreibung(Gang& g) {
    oeffne_Beschreibung(g);
    if (!g.s().zeige<Beschreibungseingabe>().offen()) return;
    g.tue<&Beschreibungseingabe::aendere>("Text " + std::to_string(g.r().unter(5)));
}
void schliesse_Beschreibung(Gang& g) {
    oeffne_Beschreibung(g);
    if (g.s().zeige<Beschreibungseingabe>().offen()) g.tue<&Beschreibungseingabe::schliesse>();
}
void Beschreibung_zurueck(Gang& g) {
    oeffne_Beschreibung(g);
    if (g.s().zeige<Beschreibungseingabe>().offen()) g.tue<&Beschreibungseingabe::nimm_zurueck>();
}

// With each answer: one that stays, one that stays, one that goes.
void loesche_Studien(Gang& g) {
    for (const Knopf Antwort : alle_Antworten) {
        g.Fragesteller().bestehe_auf(Antwort);
        loesche_Studie(g);
    }
}
// A name that no record can hold can be typed, and is asked about where it would be dropped.
void Name_ohne_Platz(Gang& g) {
    if (!g.tue<&Feldeingabe::schliesse_ab>(true)) return;
    for (const Knopf Antwort : alle_Antworten) {
        g.tue<&Listenwahl::aendere_Namen>(0, "\xE4\xB8\xAD " + std::to_string(g.r().unter(5)));
        g.tue<&Listenwahl::verlasse_Namen>();
        g.setze_ab(true);
        g.Fragesteller().bestehe_auf(Antwort);
        waehle_mit_Namen(g, "Alpha");
    }
}
// The same for a study: refused at once.
void Studienname_ohne_Platz(Gang& g) {
    g.tue<&Studienverwaltung::beginne_Umbenennen>();
    g.tue<&Studienverwaltung::aendere>("tab\there");
    g.tue<&Studienverwaltung::bestaetige>(true);
    g.tue<&Studienverwaltung::nimm_zurueck>();
}

}  // namespace

void addiere_Studie(Gang& g) {
    if (g.s().zeige<Studienverwaltung>().darf_addieren()) g.tue<&Studienverwaltung::addiere>();
}
void loesche_Studie(Gang& g) {
    if (g.s().zeige<Studienverwaltung>().darf_addieren() && g.z().Studienzahl() == 1) {
        g.tue<&Studienverwaltung::addiere>();
        g.tue<&Studienverwaltung::bestaetige>(true);
    }
    if (g.s().zeige<Studienverwaltung>().darf_loeschen()) g.tue<&Studienverwaltung::loesche>();
}

std::vector<Aktionsart> Aktionen_an_Studien_und_Namen() {
    return {
        {"add study", 20, Befehl, addiere_Studie},
        {"delete study", 10, Befehl | Pruefung, loesche_Studien},
        {"rename study", 10, Befehl, beginne_Studienname},
        {"type a study's name", 10, Befehl, tippe_Studienname},
        {"accept a study's name", 12, Handlung, bestaetige_Studienname},
        {"Esc in a study's name", 10, 0, Studienname_zurueck},
        {"a study's name with a tab", 10, Befehl | Pruefung, Studienname_ohne_Platz},
        {"type a compound's name", 10, 0, tippe_Namen},
        {"leave a compound's name", 10, Handlung, verlasse_Namen},
        {"a compound's name that no record holds", 24, Befehl | liest | Pruefung, Name_ohne_Platz},
        {"open description", 10, 0, oeffne_Beschreibung},
        {"type description", 12, 0, tippe_Beschreibung},
        {"accept description", 10, Handlung, schliesse_Beschreibung},
        {"Esc in description", 10, Handlung, Beschreibung_zurueck},
    };
}

}  // namespace varnok::gang
