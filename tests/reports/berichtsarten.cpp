#include "berichtsarten.h"

namespace varnok::probe {
namespace {

Lauf_bauer mit_Namen(Lauf_bauer b) {
    b.Felder.Beschreibung = "Winter cereals and sugar beet in rotation, early and late treatment";
    b.Felder.Name_Wirkstoff = "Tetrahydrobenzopyranocarboxamide";
    b.Felder.Name_Met_1 = "Hydroxytetrahydrobenzopyranocarboxylic acid";
    b.Felder.Name_Met_2 = "Desethylhydroxytetrahydrobenzopyranol";
    return b;
}

Lauf_bauer drei_Stoffe() {
    return Lauf_bauer().Schema(3).nach_SFO(0.03, 1).nach_DFOP(0.05, 0.004, 0.6, 2).KOC(1234.5, 1).KOC(99.123, 2);
}

Lauf_bauer zwanzig_Gaben(Lauf_bauer b) {
    std::vector<Applikationszeile> Zeilen;
    for (int i = 0; i < 20; ++i) {
        const std::string Tag = std::to_string(1 + i % 2 * 15), Monat = std::to_string(1 + i / 2);
        Zeilen.push_back({Tag, Monat, "1250.5", "25"});
    }
    return b.Termine(Zeilen);
}

Lauf_bauer Wirkstoff() { return Lauf_bauer(); }

Lauf_bauer Wirkstoff_im_Wetter() {
    return Lauf_bauer().nach_FOMC(0.1, 5).Rueckstaende(2).regelmaessige_Gaben(3, 14).Wetter(wechselndes_Wetter(365));
}

Lauf_bauer Metaboliten() { return drei_Stoffe(); }

Lauf_bauer lange_Namen() {
    Lauf_bauer b = zwanzig_Gaben(mit_Namen(drei_Stoffe()).Einheit(1));
    b.Sicht.Endpunkt = Porenwasser;
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    return b;
}

Lauf_bauer drei_Studien() { return mit_Studien(Lauf_bauer().Schema(2).KOC(42.5, 1), 3); }

Lauf_bauer sechs_Studien() { return mit_Studien(drei_Stoffe(), 6); }

Lauf_bauer sechs_lange_Studien() {
    Lauf_bauer b = mit_Studien(lange_Namen(), 6);
    int Nummer = 1;
    for (std::string& Studie : b.Felder.Studie) Studie = "Sandy loam, field trial " + std::to_string(Nummer++) + " (2019)";
    return b;
}

}  // namespace

const std::vector<Berichtsfall>& Berichtsfaelle() {
    static const std::vector<Berichtsfall> Liste = {
        {"standard_parent", Berichtsart::Standard, Wirkstoff},
        {"standard_climate_warning", Berichtsart::Standard, Wirkstoff_im_Wetter},
        {"standard_metabolites", Berichtsart::Standard, Metaboliten},
        {"standard_long_names", Berichtsart::Standard, lange_Namen},
        {"extended_three_studies", Berichtsart::erweitert, drei_Studien},
        {"extended_six_studies", Berichtsart::erweitert, sechs_Studien},
        {"extended_widest", Berichtsart::erweitert, sechs_lange_Studien},
    };
    return Liste;
}

}  // namespace varnok::probe
