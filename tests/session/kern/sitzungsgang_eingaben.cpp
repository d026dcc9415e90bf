// Fields, lists, the table of applications.

#include <algorithm>
#include "session/kern/sitzungsgang_aktionen.h"

namespace varnok::gang {
namespace {

const std::array Texte_der_Felder = {"12",  "0",   "",    "abc", "-3",    "1e2",  "30",   "12abc", "55.5", "100", "0.5",
                                     "200", "400", "0,5", " 20", "33.33", "1000", "2000", "25",    "50",   "99",  "7"};

std::string Feldname(int f) { return Feldtabelle()[static_cast<std::size_t>(f)].Objektname(); }

// Fields of compounds that the scheme has.
int sichtbares_Feld(Gang& g) {
    for (;;) {
        const int f = g.r().unter(static_cast<int>(Feldtabelle().size()));
        if (Feldtabelle()[static_cast<std::size_t>(f)].i_substanz < Anzahl_Stoffe(g.z().Vorgabe.Berechnungsmodus)) return f;
    }
}

void betrete_Feld(Gang& g) {
    const int f = sichtbares_Feld(g);
    const int bisher = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.tue<&Feldeingabe::verlasse>(bisher)) return g.sage("the field before keeps the focus");
    g.tue<&Feldeingabe::betrete>(f);
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
    g.tue<&Feldeingabe::aendere>(f, Text);
    g.getippt();
    g.sage(Feldname(f) + " \"" + Text + "\"");
}

// Twice or half the dose, which is scaled.
void tippe_Dosis(Gang& g) {
    const int f = Feld_mit_Namen("Applikationsrate");
    const int bisher = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.tue<&Feldeingabe::verlasse>(bisher)) return;
    g.tue<&Feldeingabe::betrete>(f);
    const std::string Text = g.r().eins_von(std::array{"125", "250", "500", "1000", "2000", "4000"});
    g.tue<&Feldeingabe::aendere>(f, Text);
    g.getippt();
    g.sage(Text);
    if (g.r().einmal_von(2)) g.tue<&Feldeingabe::verlasse>(f);
}

template <auto Feldbefehl>
void am_Feld(Gang& g) {
    if (g.s().zeige<Feldeingabe>().aktives_Feld() < 0) betrete_Feld(g);
    const int f = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (f < 0) return;
    g.sage(Feldname(f) + " \"" + g.s().zeige<Feldeingabe>().Text(f) + "\"");
    g.tue<Feldbefehl>(f);
}

// Refused, and taken back.
void tippe_Falsches(Gang& g) {
    for (const char* Text : {"abc", "-3"}) {
        if (tippe_in(g, "Applikationsrate", Text)) continue;
        const int f = g.s().zeige<Feldeingabe>().aktives_Feld();
        if (f >= 0) g.tue<&Feldeingabe::nimm_zurueck>(f);
    }
}

void Esc_im_Feld(Gang& g) {
    if (!g.r().einmal_von(3)) tippe(g);
    if (g.s().zeige<Feldeingabe>().aktives_Feld() >= 0)
        g.tue<&Feldeingabe::nimm_zurueck>(g.s().zeige<Feldeingabe>().aktives_Feld());
}

void waehle_Substanz(Gang& g) { g.tue<&Listenwahl::waehle_Substanz>(g.r().unter(Anzahl_Stoffe(g.z().Vorgabe.Berechnungsmodus))); }
void waehle_Kinetik(Gang& g) {
    const int c = g.r().unter(Anzahl_Stoffe(g.z().Vorgabe.Berechnungsmodus));
    const auto k = static_cast<Kinetikart>(g.r().unter(c == 0 ? 4 : 2));
    g.sage(std::to_string(c) + " " + std::to_string(k));
    g.tue<&Listenwahl::waehle_Kinetik>(c, k);
}
void waehle_Studie(Gang& g) {
    const int i = g.r().unter(g.z().Studienzahl());
    g.sage(std::to_string(i));
    g.tue<&Listenwahl::waehle_Studie>(i);
}
void waehle_Tag(Gang& g) { g.tue<&Listenwahl::waehle_Tag>(g.r().unter(g.s().zeige<Listenwahl>().Tage())); }
void waehle_Intervall(Gang& g) {
    const int i = g.r().unter(std::min(40, g.s().zeige<Listenwahl>().Intervalle()));
    g.sage(std::to_string(i));
    g.tue<&Listenwahl::waehle_Intervall>(i);
}

bool hat_Tabelle(Gang& g) { return g.z().Vorgabe.Applikationsmuster == unregelmaessig; }
Zelle eine_Zelle(Gang& g) {
    const Zelle z{g.r().unter(static_cast<int>(g.z().Vorgabe.Applikationsschema.size())), g.r().unter(4)};
    g.sage(std::to_string(z.Zeile) + "/" + std::to_string(z.Spalte));
    return z;
}
void tippe_Zelle(Gang& g) {
    if (!hat_Tabelle(g)) g.tue<&Listenwahl::waehle_Muster>(unregelmaessig);
    const Zelle z = eine_Zelle(g);
    g.tue<&Applikationstabelle::haenge_an>(z, g.r().eins_von(std::array{'0', '1', '2', '5', '.', 'x'}));
}
void kuerze_Zelle(Gang& g) {
    if (!hat_Tabelle(g)) g.tue<&Listenwahl::waehle_Muster>(unregelmaessig);
    if (hat_Tabelle(g)) g.tue<&Applikationstabelle::nimm_letztes>(eine_Zelle(g));
}
void leere_Zelle(Gang& g) {
    if (!hat_Tabelle(g)) g.tue<&Listenwahl::waehle_Muster>(unregelmaessig);
    if (hat_Tabelle(g)) g.tue<&Applikationstabelle::leere>(eine_Zelle(g));
}
void fuege_ein(Gang& g) {
    if (!hat_Tabelle(g)) g.tue<&Listenwahl::waehle_Muster>(unregelmaessig);
    std::string Text;
    const int n = g.r().unter(4) + 1;
    for (int i = 0; i < n; ++i)
        Text += "05\t0" + std::to_string(i + 3) + "\t" + std::to_string(100 + g.r().unter(5) * 50) + "\t0\r\n";
    g.tue<&Applikationstabelle::fuege_ein>(Zelle{0, 0}, Text);
}
void bestaetige_Tabelle(Gang& g) {
    if (!hat_Tabelle(g)) g.tue<&Listenwahl::waehle_Muster>(unregelmaessig);
    if (hat_Tabelle(g)) g.tue<&Applikationstabelle::bestaetige>();
}
void verlasse_Tabelle(Gang& g) {
    if (!g.s().zeige<Applikationstabelle>().ist_in_Arbeit()) tippe_Zelle(g);
    g.tue<&Applikationstabelle::schliesse_ab>();
}

void mache_zurueck_und_vor(Gang& g) {
    if (g.s().zeige<Ruecknahme>().Name_vor().empty()) g.tue<&Ruecknahme::mache_rueckgaengig>();
    g.tue<&Ruecknahme::wiederhole>();
}

}  // namespace

bool tippe_in(Gang& g, const char* Feld, const std::string& Text) {
    const int f = Feld_mit_Namen(Feld);
    const int bisher = g.s().zeige<Feldeingabe>().aktives_Feld();
    if (bisher >= 0 && bisher != f && !g.tue<&Feldeingabe::verlasse>(bisher)) return false;
    g.tue<&Feldeingabe::betrete>(f);
    g.tue<&Feldeingabe::aendere>(f, Text);
    g.getippt();
    return g.tue<&Feldeingabe::verlasse>(f);
}

// Nothing decays, or hardly anything: there is no plateau.
void tippe_langsam(Gang& g) { tippe_in(g, "S_DT50_0", g.r().eins_von(std::array{"0", "0", "100000"})); }

std::vector<Aktionsart> Aktionen_an_Eingaben() {
    return {
        {"enter a field", 20, Handlung, betrete_Feld},
        {"type", 60, Handlung, tippe},
        {"type a dose", 15, Handlung, tippe_Dosis},
        {"type a slow decay", 20, Handlung, tippe_langsam},
        {"Enter in a field", 20, Handlung, am_Feld<&Feldeingabe::bestaetige>},
        {"leave a field", 40, Handlung, am_Feld<&Feldeingabe::verlasse>},
        {"a text that is refused", 5, Handlung | Pruefung, tippe_Falsches},
        {"Esc in a field", 35, Handlung, Esc_im_Feld},
        {"compound", 10, Befehl, waehle_Substanz},
        {"kinetics", 12, Befehl, waehle_Kinetik},
        {"study", 15, Befehl, waehle_Studie},
        {"scheme", 12, Befehl, waehle<&Listenwahl::waehle_Berechnungsmodus, 4, Stoffschema>},
        {"pattern", 12, Befehl, waehle<&Listenwahl::waehle_Muster, 3, Applikationsart>},
        {"month", 10, Befehl, waehle<&Listenwahl::waehle_Monat, 12>},
        {"day", 10, Befehl, waehle_Tag},
        {"interval", 10, Befehl, waehle_Intervall},
        {"number", 12, Befehl, waehle<&Listenwahl::waehle_Anzahl, 8>},
        {"type into a cell", 12, 0, tippe_Zelle},
        {"shorten a cell", 10, 0, kuerze_Zelle},
        {"empty a cell", 10, 0, leere_Zelle},
        {"paste into the table", 10, 0, fuege_ein},
        {"leave the table", 10, Handlung | Pruefung, verlasse_Tabelle},
        {"Enter in the table", 14, Befehl | Pruefung, bestaetige_Tabelle},
        {"undo", 20, Befehl | Pruefung, tue<&Ruecknahme::mache_rueckgaengig>},
        {"redo", 10, Befehl | Pruefung, mache_zurueck_und_vor},
    };
}

}  // namespace varnok::gang
