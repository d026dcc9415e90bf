// Typed numbers: what is taken, what is refused, and that nothing is read as something else in silence.

#include <fstream>

#include "session/kern/bemerkungen.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

constexpr const char* ungueltig = "No valid input!";
constexpr const char* KOC_Meldung = "The KOC constant is invalid. Please correct!";

std::string vierhundert(const std::string& davor) { return davor + std::string(400, '3'); }

struct Getipptes {
    std::string Text;
    std::string gezeigt;  // what the field shows afterwards
    std::string gelesen;  // what the status line names, empty where there is nothing to tell
};

class Angenommen : public Probesitzung, public ::testing::WithParamInterface<Getipptes> {};

TEST_P(Angenommen, text_is_replaced_by_the_number_taken_and_told) {
    gestartet();
    ASSERT_TRUE(tippe("S_KOC_0", GetParam().Text));
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_KOC_0")), GetParam().gezeigt);
    EXPECT_EQ(s_->Stand().Parameter().KOC[0][0], wie_im_Satz(Wert(GetParam().gezeigt)));
    const std::string erwartet = GetParam().gelesen.empty()
                                     ? std::string()
                                     : "Koc (L/kgl): " + GetParam().gelesen + " was read as " + GetParam().gezeigt + ".";
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), erwartet);
    EXPECT_FALSE(s_->Stand().Hinweis());
}

INSTANTIATE_TEST_SUITE_P(
    alle, Angenommen,
    ::testing::Values(Getipptes{"12.5", "12.5", ""}, Getipptes{"12,5", "12,5", ""}, Getipptes{" 12 ", " 12 ", ""},
                      Getipptes{"+5", "+5", ""}, Getipptes{"1E2", "1E2", ""}, Getipptes{"5.", "5.", ""},
                      Getipptes{"7x5", "7", "\"7x5\""}, Getipptes{"12abc", "12", "\"12abc\""}, Getipptes{"1e", "1", "\"1e\""},
                      Getipptes{"1 250", "1250", "\"1 250\""}, Getipptes{"--5", "0", "\"--5\""}, Getipptes{"+-5", "0", "\"+-5\""},
                      Getipptes{"0x1F", "0", "\"0x1F\""}, Getipptes{"inf", "0", "\"inf\""}, Getipptes{"nan", "0", "\"nan\""},
                      Getipptes{"abc", "0", "\"abc\""}, Getipptes{"", "0", "an empty text"},
                      Getipptes{"1e-400", "0", "\"1e-400\""}, Getipptes{"\xD9\xA1\xD9\xA2", "0", "\"\xD9\xA1\xD9\xA2\""},
                      Getipptes{vierhundert("x"), "0", "\"" + vierhundert("x").substr(0, 40) + "...\""},
                      Getipptes{vierhundert("0."), vierhundert("0."), ""}));

class Abgelehnt : public Probesitzung, public ::testing::WithParamInterface<std::string> {};

TEST_P(Abgelehnt, text_that_may_mean_a_thousand_times_as_much_gets_the_message_of_its_field) {
    gestartet();
    const double vorher = s_->Stand().Parameter().KOC[0][0];
    Fragen_.erwarte(ungueltig, KOC_Meldung);
    EXPECT_FALSE(tippe("S_KOC_0", GetParam()));
    EXPECT_EQ(s_->zeige<Feldeingabe>().aktives_Feld(), Feld("S_KOC_0"));
    EXPECT_TRUE(s_->Stand().abgedeckt());
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(Feld("S_KOC_0"));
    EXPECT_EQ(s_->Stand().Parameter().KOC[0][0], vorher);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

INSTANTIATE_TEST_SUITE_P(alle, Abgelehnt,
                         ::testing::Values("1.250,5", "1,250.5", "1.250.000", "1,250,000", "1'250",
                                           "1\xE2\x80\x99"
                                           "250",
                                           "1\xC2\xA0"
                                           "250",
                                           "1_250", "1..5", vierhundert("")));

using Zahleneingabe = Probesitzung;

TEST_F(Zahleneingabe, enter_replaces_the_text_as_leaving_does) {
    gestartet();
    const int f = Feld("Applikationsrate");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "750 g");
    ASSERT_TRUE(s_->fuehre_aus<&Feldeingabe::bestaetige>(f));
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(f), "750");
    EXPECT_EQ(s_->Stand().Vorgabe.Applikationsrate.Text(), "750");
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "Rate: \"750 g\" was read as 750.");
}

TEST_F(Zahleneingabe, a_thousandth_of_the_rate_is_never_calculated) {
    gestartet();
    const float vorher = Maximum();
    Fragen_.erwarte(ungueltig, "The applikations rate is invalid. Please correct!");
    EXPECT_FALSE(tippe("Applikationsrate", "1.250,5"));
    EXPECT_EQ(Maximum(), vorher);
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Zahleneingabe, no_number_where_0_is_not_valid_is_refused) {
    gestartet();
    Fragen_.erwarte(ungueltig, "The beta constant is invalid. Please correct!");
    EXPECT_FALSE(tippe("S_beta", "abc"));
}

TEST_F(Zahleneingabe, the_same_text_in_two_fields_is_told_twice) {
    gestartet();
    ASSERT_TRUE(tippe("S_KOC_0", "7x5"));
    ASSERT_TRUE(tippe("S_KOC_1", "7x5"));
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "Koc (L/kgl), metabolite 1: \"7x5\" was read as 7.");
}

TEST_F(Zahleneingabe, text_of_a_command_that_closes_the_field_is_replaced_too) {
    gestartet();
    const int f = Feld("S_KOC_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "7x5");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(f), "7");
}

TEST_F(Zahleneingabe, close_box_puts_back_a_text_with_two_separators) {
    gestartet();
    const int f = Feld("S_KOC_0");
    const double vorher = s_->Stand().Parameter().KOC[0][0];
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "1.250,5");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(s_->Stand().Parameter().KOC[0][0], vorher);
}

TEST_F(Zahleneingabe, number_taken_is_shown_with_the_separator_of_the_region) {
    nur_geladen();
    gestartet();
    ASSERT_TRUE(tippe("S_KOC_0", "7,5 L"));
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_KOC_0")), std::string("7") + s_->Stand().Welt.Dezimalzeichen + "5");
}

class Zellen : public Probesitzung {
protected:
    void tippe_Zelle(Zelle z, const std::string& Tasten) {
        s_->fuehre_aus<&Applikationstabelle::leere>(z);
        for (const char c : Tasten) s_->fuehre_aus<&Applikationstabelle::haenge_an>(z, c);
    }
    const std::string& Text(int Zeile, int Spalte) const {
        return s_->Stand().Vorgabe.Applikationsschema[static_cast<std::size_t>(Zeile)][static_cast<std::size_t>(Spalte)].Text();
    }
    Sitzung& mit_Tabelle() {
        Felder_.Applikationsmuster = unregelmaessig;
        Felder_.Applikationsschema = {{"01", "04", "500", "0"}, {"15", "05", "500", "0"}};
        schreibe_Probe();
        return gestartet();
    }
};

TEST_F(Zellen, second_separator_is_refused_with_the_message_of_the_cell_and_nothing_runs) {
    mit_Tabelle();
    const float vorher = Maximum();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    tippe_Zelle({0, 2}, "1.250.5");
    Fragen_.erwarte(ungueltig, "The applikations rate is invalid. Please correct!");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_EQ(Maximum(), vorher);
    EXPECT_EQ(s_->zeige<Laufsteuerung>().Tabellenfehler(), (Zelle{0, 2}));
    // The next command meets the same text.
    Fragen_.erwarte(ungueltig, "The applikations rate is invalid. Please correct!");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    tippe_Zelle({0, 2}, "1250.5");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
}

TEST_F(Zellen, one_with_a_value_outside_its_range_is_known_once_it_is_left) {
    Felder_.Applikationsmuster = unregelmaessig;
    Felder_.Applikationsschema = {{"01", "04", "500", "150"}, {"", "13", "-5", "0"}};
    schreibe_Probe();
    Fragen_.erwarte_Anfang(ungueltig, "");
    gestartet();
    const auto& Tabelle = s_->zeige<Applikationstabelle>();
    EXPECT_TRUE(Tabelle.ausserhalb({0, 3})) << "150 % of interception";
    EXPECT_TRUE(Tabelle.ausserhalb({1, 1})) << "month 13";
    EXPECT_TRUE(Tabelle.ausserhalb({1, 2})) << "a rate below 0";
    EXPECT_FALSE(Tabelle.ausserhalb({1, 0})) << "a day that is not filled yet";
    EXPECT_FALSE(Tabelle.ausserhalb({0, 2}));
    EXPECT_FALSE(Tabelle.ausserhalb({2, 0})) << "no such row";
    tippe_Zelle({0, 3}, "150");
    EXPECT_FALSE(Tabelle.ausserhalb({0, 3})) << "while it is typed into";
}

TEST_F(Zellen, emptied_rate_reads_as_0_and_is_told) {
    mit_Tabelle();
    s_->fuehre_aus<&Applikationstabelle::leere>(Zelle{0, 3});
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(Text(0, 3), "0");
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "interception in row 1: an empty text was read as 0.");
}

TEST_F(Zellen, pasted_text_is_taken_as_numbers_and_what_is_none_is_left_out) {
    mit_Tabelle();
    Fragen_.erwarte(ungueltig, "You entered application dates that are not valid. Please correct!");
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 0}, "May\t5\t1.250,5\t10 %\r\n02\t06\t750 g/ha\t5");
    EXPECT_EQ(Text(0, 0), "01");  // no day
    EXPECT_EQ(Text(0, 1), "5");
    EXPECT_EQ(Text(0, 2), "500");  // two separators
    EXPECT_EQ(Text(0, 3), "10");
    EXPECT_EQ(Text(1, 2), "750");
}

TEST_F(Zellen, text_of_the_record_in_a_cell_nobody_typed_into_stays) {
    mit_Tabelle();
    s_.reset();
    Felder_.Applikationsschema[0][2] = "7x5";
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(Text(0, 2), "7x5");
    ASSERT_EQ(Bemerkungen(s_->Stand()).size(), 1U);
    EXPECT_EQ(als_Zeile(Bemerkungen(s_->Stand())[0]),
              "input/Probe.app:10: remark: row 1 of the application table, rate: only its beginning was taken as a "
              "number (7x5 -> 7)");
}

TEST_F(Zahleneingabe, remarks_are_those_of_the_files_as_they_were_read_or_saved_last) {
    Parameter_.Q10[0][0] = -2.58;
    schreibe_Probe();
    gestartet();
    ASSERT_EQ(Bemerkungen(s_->Stand()).size(), 1U);
    EXPECT_EQ(Bemerkungen(s_->Stand())[0].Datei, "input/Probe.che");
    EXPECT_TRUE(s_->zeige<Feldeingabe>().ausserhalb(Feld("S_Q10_0")));
    EXPECT_FALSE(s_->zeige<Feldeingabe>().ausserhalb(Feld("S_KOC_0")));
    ASSERT_TRUE(tippe("S_Q10_0", "2.58"));
    EXPECT_FALSE(s_->zeige<Feldeingabe>().ausserhalb(Feld("S_Q10_0")));
    EXPECT_EQ(Bemerkungen(s_->Stand()).size(), 1U);  // the file still says so
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_TRUE(Bemerkungen(s_->Stand()).empty());
}

TEST_F(Zahleneingabe, doubtful_weather_is_a_remark_while_it_is_in_force) {
    Parameter_.Klimamodus = nach_Klimadatei;
    Felder_.Klimaszenario = "site";
    schreibe_Probe();
    std::ofstream(Wurzel_ / "input/site.cli") << "header\n01-Jan        1.5       0.5          200\n";
    gestartet();
    const auto b = Bemerkungen(s_->Stand());
    ASSERT_GE(b.size(), 1U);
    EXPECT_EQ(als_Zeile(b[0]), "input/site.cli:1: remark: there are 1 days behind the header line, not 365");
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    s_->fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    s_->fuehre_aus<&Szenarioeditor::uebernimm>();
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    EXPECT_TRUE(Bemerkungen(s_->Stand()).empty());
}

TEST_F(Zahleneingabe, scenario_takes_no_text_in_silence) {
    gestartet();
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    s_->fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, "1,3,5");
    Fragen_.erwarte(ungueltig, "The soil density is invalid. Please correct!");
    EXPECT_FALSE(s_->fuehre_aus<&Szenarioeditor::uebernimm>());
    EXPECT_EQ(s_->Stand().Parameter().Bodendichte, Parameter_.Bodendichte);
    s_->fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, "1.3 kg");
    EXPECT_TRUE(s_->fuehre_aus<&Szenarioeditor::uebernimm>());
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    EXPECT_EQ(s_->Stand().Parameter().Bodendichte, 1.3);
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "Soil density (kg/L): \"1.3 kg\" was read as 1.3.");
}

TEST_F(Zahleneingabe, scaling_takes_no_text_in_silence) {
    gestartet();
    Fragen_.erwarte_Anfang(Skalierungsfehler_Titel, Skalierungsfehler, Knopf::OK);
    EXPECT_FALSE(s_->fuehre_aus<&Diagrammsteuerung::skaliere>("0", "1.250,5"));
    EXPECT_TRUE(s_->fuehre_aus<&Diagrammsteuerung::skaliere>("0", "100 d"));
    s_->fuehre_aus<&Laufsteuerung::schliesse_Skalierung>();
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "End (d): \"100 d\" was read as 100.");
}

TEST_F(Zahleneingabe, one_application_a_year_from_a_record_is_in_the_list_while_the_input_holds_it) {
    Felder_.Applikationsmuster = regelmaessig;
    Felder_.Anzahl_Index = -1;
    Felder_.Applikationsschema.resize(1);
    schreibe_Probe();
    gestartet();
    EXPECT_EQ(s_->Stand().Vorgabe.Anzahl(), 1);
    EXPECT_EQ(kleinste_Anzahl(s_->Stand().Vorgabe), 1);
    EXPECT_EQ(Werte().Anzahl_pro_Jahr, 1);
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(2);  // 1, 2, 3
    EXPECT_EQ(s_->Stand().Vorgabe.Anzahl(), 3);
    EXPECT_EQ(kleinste_Anzahl(s_->Stand().Vorgabe), 2);
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(0);
    EXPECT_EQ(s_->Stand().Vorgabe.Anzahl(), 2);
}

}  // namespace
}  // namespace varnok
