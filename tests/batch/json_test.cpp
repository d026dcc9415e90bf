#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "batch/probeprojekt.h"
#include "batch/schreiber.h"
#include "records/einstellungen.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::ElementsAre;

std::vector<std::string> Schluessel(const JSON& Objekt) {
    std::vector<std::string> Namen;
    for (const auto& [Name, Wert] : Objekt.items()) Namen.push_back(Name);
    return Namen;
}

JSON gerechnet(const Probe& p, std::vector<std::string> Argumente = {}) {
    Probeprojekt Projekt;
    Projekt.schreibe("case", p);
    Argumente.insert(Argumente.end(), {"--json", "-", Projekt.Pfad()});
    const auto r = rufe(Argumente);
    EXPECT_EQ(r.Status, 0) << r.fehler;
    return r.JSON();
}

TEST(Batch_JSON, keys_stand_in_the_order_of_the_contract) {
    const JSON Dokument = gerechnet({});
    EXPECT_THAT(Schluessel(Dokument), ElementsAre("program", "version", "simulations", "errors"));
    const JSON& s = Dokument["simulations"][0];
    EXPECT_THAT(Schluessel(s), ElementsAre("simulation", "description", "compound_record", "application_record",
                                           "scenario_record", "Einheit", "Separate_Rueckstaende", "TWA_Zeiten", "Klimamodus",
                                           "scheme", "studies", "remarks", "inputs_sha256"));
    const JSON& st = s["studies"][0];
    EXPECT_THAT(Schluessel(st),
                ElementsAre("study", "name", "Anzahl_pro_Jahr", "Wirksame_Rate", "Applikationstag", "compounds", "warnings"));
    EXPECT_THAT(Schluessel(st["compounds"][0]), ElementsAre("compound", "name", "endpoints"));
    const JSON& e = st["compounds"][0]["endpoints"][0];
    EXPECT_THAT(Schluessel(e),
                ElementsAre("endpoint", "unit", "Maximum_Bodentiefe", "Maximumtag_Bodentiefe", "Maximum_Plateautiefe",
                            "Jahresmaximum", "Plateauwert", "Plateauzuwachs", "Plateautext", "TWA"));
    EXPECT_THAT(Schluessel(e["TWA"][0]), ElementsAre("days", "maximum", "start", "actual"));
    EXPECT_EQ(e["Jahresmaximum"].size(), 10U);
    EXPECT_EQ(Dokument["program"], "VARNOK");
    EXPECT_EQ(Dokument["version"], "2.0 (21 September 2018)");
}

TEST(Batch_JSON, simulation_tells_its_records_and_options) {
    Probe p;
    p.Felder.Parameter.Separate_Rueckstaende = im_Jahr_getrennt;
    p.Felder.Parameter.TWA_Zeiten = Monatsliste;
    p.Felder.Berechnungsmodus = ein_Metabolit;
    const JSON Dokument = gerechnet(p);
    const JSON& s = Dokument["simulations"][0];
    EXPECT_EQ(s["simulation"], "case");
    EXPECT_EQ(s["description"], "One application in spring");
    EXPECT_EQ(s["compound_record"], "case");
    EXPECT_EQ(s["application_record"], "case");
    EXPECT_EQ(s["scenario_record"], "case");
    EXPECT_EQ(s["Einheit"], 0);
    EXPECT_EQ(s["Separate_Rueckstaende"], 2);
    EXPECT_EQ(s["TWA_Zeiten"], 0);
    EXPECT_EQ(s["Klimamodus"], 0);
    EXPECT_EQ(s["scheme"], 1);
}

TEST(Batch_JSON, compounds_are_those_of_the_scheme_with_both_endpoints) {
    for (int Schema = 0; Schema <= 3; ++Schema) {
        Probe p;
        p.Felder.Berechnungsmodus = static_cast<Stoffschema>(Schema);
        const JSON Dokument = gerechnet(p);
        const JSON& Stoffe_der_Studie = Dokument["simulations"][0]["studies"][0]["compounds"];
        ASSERT_EQ(Stoffe_der_Studie.size(), static_cast<std::size_t>(std::min(Schema, 2) + 1));
        const char* const Namen[] = {"Parent", "Met 1", "Met 2"};
        for (std::size_t c = 0; c < Stoffe_der_Studie.size(); ++c) {
            EXPECT_EQ(Stoffe_der_Studie[c]["compound"], c);
            EXPECT_EQ(Stoffe_der_Studie[c]["name"], Namen[c]);
            ASSERT_EQ(Stoffe_der_Studie[c]["endpoints"].size(), 2U);
            EXPECT_EQ(Stoffe_der_Studie[c]["endpoints"][0]["endpoint"], "total soil");
            EXPECT_EQ(Stoffe_der_Studie[c]["endpoints"][1]["endpoint"], "pore water");
        }
    }
}

TEST(Batch_JSON, unit_follows_Einheit_and_endpoint) {
    const char* const Einheiten[2][2] = {{"mg/kg", "mg/L"}, {"µg/kg", "µg/L"}};
    for (const int Einheit : {0, 1}) {
        Probe p;
        p.Felder.Parameter.Einheit = static_cast<Einheitsart>(Einheit);
        const JSON Dokument = gerechnet(p);
        const JSON& Endpunktliste = Dokument["simulations"][0]["studies"][0]["compounds"][0]["endpoints"];
        EXPECT_EQ(Endpunktliste[0]["unit"], Einheiten[Einheit][0]);
        EXPECT_EQ(Endpunktliste[1]["unit"], Einheiten[Einheit][1]);
    }
}

TEST(Batch_JSON, applications_of_the_first_year_are_counted_from_the_first) {
    Probe p;
    p.Felder.Applikationsmuster = regelmaessig;
    waehle_Anzahl(p.Felder, 3);
    p.Felder.Intervall_Index = 13;
    const JSON Dokument = gerechnet(p);
    EXPECT_EQ(Dokument["simulations"][0]["studies"][0]["Anzahl_pro_Jahr"], 3);
    EXPECT_EQ(Dokument["simulations"][0]["studies"][0]["Applikationstag"], (JSON{0, 14, 28}));
}

TEST(Batch_JSON, list_of_windows_is_that_of_TWA_Zeiten) {
    for (const int TWA_Zeiten : {0, 1}) {
        Probe p;
        p.Felder.Parameter.TWA_Zeiten = static_cast<TWA_Listenart>(TWA_Zeiten);
        const JSON Dokument = gerechnet(p);
        const JSON& TWA = Dokument["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0]["TWA"];
        std::vector<int> Tage;
        for (const JSON& f : TWA) Tage.push_back(f["days"]);
        if (TWA_Zeiten == 1) {
            EXPECT_THAT(Tage, ElementsAre(1, 2, 4, 7, 14, 21, 28, 42, 50, 100));
        } else {
            EXPECT_THAT(Tage, ElementsAre(30, 60, 90, 120, 150, 180, 210, 240, 270, 300, 330, 360));
        }
    }
}

TEST(Batch_JSON, windows_of_a_settings_file_replace_the_default_lists) {
    Probeprojekt Projekt;
    Projekt.schreibe("case");
    TWA_Listen Listen;
    Listen.EU = {1, 2.5, 3, 4, 5, 6, 7, 8, 9, 10};
    Projekt.schreibe_Bytes("../VARNOK.ini", Einstellungen_als_Bytes({}, Listen));
    const auto r = rufe({"--json", "-", "--settings", Projekt.Pfad() + "/VARNOK.ini", Projekt.Pfad()});
    ASSERT_EQ(r.Status, 0) << r.fehler;
    const JSON Dokument = r.JSON();
    const JSON& TWA = Dokument["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0]["TWA"];
    EXPECT_EQ(TWA[0]["days"], 1);
    EXPECT_EQ(TWA[1]["days"], 2.5);
    EXPECT_EQ(TWA[9]["days"], 10);
}

// Values without a short decimal form, at both ends of the range.
Simulationsausgang mit_krummen_Zahlen() {
    Simulationsausgang a;
    a.Ergebnis.Name = "Zürich \"A\"\\B";
    Eingabe v;
    v.Studie = {"Field"};
    Ergebnis s;
    s.Vorgabe = a.Ergebnis.Vorgabe = std::make_shared<const Eingabe>(v);
    s.Wirksame_Rate = 1.0 / 3;
    s.Stoffwerte.resize(1);
    Endpunktergebnis& e = s.Stoffwerte[0].Endpunktwerte[0];
    e.Maximum_Bodentiefe = 0.1F;
    e.Maximum_Plateautiefe = 1.0F / 3;
    e.Jahresmaximum = {std::numeric_limits<float>::min(),
                       std::numeric_limits<float>::denorm_min(),
                       std::numeric_limits<float>::max(),
                       std::nextafter(1.0F, 2.0F),
                       1e-5F,
                       123456.79F,
                       16777216.0F,
                       -0.25F,
                       0.0F,
                       1e20F};
    e.Plateauwert = 1e-30F;
    e.Plateauzuwachs = 0.1 + 0.2;
    e.TWA = {{2.5F, 0.7F, 3, 0.3F}};
    a.Ergebnis.Studien.push_back(std::make_shared<const Ergebnis>(s));
    return a;
}

TEST(Batch_JSON, reading_back_gives_the_same_single_and_double_precision_values) {
    const Simulationsausgang a = mit_krummen_Zahlen();
    const Endpunktergebnis& e = a.Ergebnis.Studien[0]->Werte(Gesamtgehalt, 0);
    const JSON Dokument = JSON::parse(als_JSON({a}));
    const JSON& gelesen = Dokument["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0];
    EXPECT_EQ(gelesen["Maximum_Bodentiefe"].get<double>(), static_cast<double>(e.Maximum_Bodentiefe));
    EXPECT_EQ(gelesen["Maximum_Plateautiefe"].get<float>(), e.Maximum_Plateautiefe);
    EXPECT_EQ(gelesen["Plateauwert"].get<float>(), e.Plateauwert);
    EXPECT_EQ(gelesen["Plateauzuwachs"].get<double>(), e.Plateauzuwachs);
    for (std::size_t j = 0; j < e.Jahresmaximum.size(); ++j) {
        EXPECT_EQ(gelesen["Jahresmaximum"][j].get<float>(), e.Jahresmaximum[j]) << "year " << j + 1;
        EXPECT_EQ(gelesen["Jahresmaximum"][j].get<double>(), static_cast<double>(e.Jahresmaximum[j])) << "year " << j + 1;
    }
    EXPECT_EQ(gelesen["TWA"][0]["days"].get<float>(), 2.5F);
    EXPECT_EQ(gelesen["TWA"][0]["maximum"].get<float>(), 0.7F);
    EXPECT_EQ(Dokument["simulations"][0]["studies"][0]["Wirksame_Rate"].get<double>(), 1.0 / 3);
    EXPECT_EQ(Dokument["simulations"][0]["simulation"], "Zürich \"A\"\\B");
}

TEST(Batch_JSON, text_is_utf_8_and_not_escaped) {
    Simulationsausgang a = mit_krummen_Zahlen();
    a.Ergebnis.Beschreibung = "Ackerbau für Rüben";
    EXPECT_THAT(als_JSON({a}), testing::HasSubstr("Ackerbau für Rüben"));
}

TEST(Batch_JSON, bytes_that_are_no_utf_8_do_not_cost_the_results) {
    Simulationsausgang a = mit_krummen_Zahlen();
    a.Ergebnis.Name = "\xFF";
    EXPECT_TRUE(JSON::accept(als_JSON({a})));
}

TEST(Batch_JSON, no_simulation_gives_empty_lists) {
    const JSON Dokument = JSON::parse(als_JSON({}));
    EXPECT_EQ(Dokument["simulations"], JSON::array());
    EXPECT_EQ(Dokument["errors"], JSON::array());
}

}  // namespace
}  // namespace varnok::batch
