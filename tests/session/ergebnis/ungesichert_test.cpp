// What counts as entered and not saved, in questions, reports, the status line and the history.

#include <gmock/gmock.h>

#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class Ungesichert : public Befehlsprobe {
protected:
    void tippe_ins(const std::string& Objektname, const std::string& Text) {
        s_->fuehre_aus<&Feldeingabe::betrete>(Feld(Objektname));
        s_->fuehre_aus<&Feldeingabe::aendere>(Feld(Objektname), Text);
    }
    void mit_Tabelle() {
        Felder_.Applikationsmuster = unregelmaessig;
        Felder_.Applikationsschema = {{"01", "04", "500", "0"}, {"15", "05", "500", "0"}};
        schreibe_Probe();
        gestartet();
    }
    // Stands in the scenario and has no mark of its own.
    void aendere_Temperatur() {
        s_->fuehre_aus<&Szenarioeditor::oeffne>();
        s_->fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
        s_->fuehre_aus<&Szenarioeditor::uebernimm>();
        s_->fuehre_aus<&Szenarioeditor::schliesse>();
    }
    std::string rueckgaengig() const { return s_->zeige<Ruecknahme>().Name_zurueck(); }
    std::string Zeile() const { return z().Statuszeile.Text(); }
};

// A view is no input

TEST_F(Ungesichert, a_view_chosen_is_nothing_to_save_and_nothing_to_ask_about) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    s_->fuehre_aus<&Listenwahl::waehle_Substanz>(0);
    tippe_ins("S_DT50_0", "12");
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(Feld("S_DT50_0"));
    for (const Satzart Art : alle_Arten) EXPECT_FALSE(z().verschieden(Art)) << Art;
    s_->fuehre_aus<&Programmablauf::beende>();  // a question would fail the test
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(gesichert(), Namen{});
}

TEST_F(Ungesichert, a_value_undone_under_another_view_is_not_asked_about) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Hintergrund);
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
}

TEST_F(Ungesichert, a_report_of_another_view_names_the_sum_of_the_files) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_THAT(s_->zeige<Berichtssteuerung>().offener()->RTF, HasSubstr("inputs_sha256"));
}

TEST_F(Ungesichert, a_view_chosen_is_saved_with_its_record) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_THAT(Datei("input/Probe.app"), HasSubstr("PEC-Type:\t2"));
}

TEST_F(Ungesichert, esc_leaves_no_mark_beside_a_difference_without_one) {
    gestartet();
    aendere_Temperatur();
    tippe_ins("S_DT50_0", "12");
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(Feld("S_DT50_0"));
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    ASSERT_TRUE(tippe("S_DT50_0", "13"));
    tippe_ins("S_DT50_0", "14");
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(Feld("S_DT50_0"));
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert()) << "13 was accepted";
}

// The organiser shows the description of a simulation chosen there

TEST_F(Ungesichert, a_description_looked_at_in_the_organiser_is_no_step_of_the_history) {
    gestartet();
    s_->fuehre_aus<&Organiser::oeffne>();
    s_->fuehre_aus<&Organiser::waehle>(Simulation, 1);
    EXPECT_EQ(s_->zeige<Organiser>().gezeigte_Beschreibung(), "second");
    s_->fuehre_aus<&Zeichenmeldung::sage>("The character is refused.");
    s_->fuehre_aus<&Organiser::verwirf>();
    s_->fuehre_aus<&Organiser::schliesse_ab>();
    EXPECT_EQ(s_->zeige<Organiser>().gezeigte_Beschreibung(), "A trial");
    EXPECT_EQ(z().Vorgabe.Beschreibung, "A trial");
    EXPECT_EQ(rueckgaengig(), "");
}

// The status line

TEST_F(Ungesichert, no_line_says_saved_beside_another_combination) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    ASSERT_THAT(Zeile(), HasSubstr("saved"));
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    s_->fuehre_aus<&Szenarioeditor::waehle_Szenario>(1);
    s_->fuehre_aus<&Szenarioeditor::uebernimm>();
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    ASSERT_TRUE(z().Simulation_markiert());
    EXPECT_THAT(Zeile(), Not(HasSubstr("saved")));
}

// The table of applications

TEST_F(Ungesichert, what_is_pasted_is_told_and_is_a_step_of_its_own) {
    mit_Tabelle();
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 2}, "800 g");
    EXPECT_THAT(Zeile(), HasSubstr("was read as 800"));
    EXPECT_THAT(Zeile(), Not(HasSubstr("saved")));
    EXPECT_NE(rueckgaengig(), "");
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe.Applikationsschema[0][2].Text(), "800");
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe.Applikationsschema[0][2].Text(), "500");
}

TEST_F(Ungesichert, a_cell_in_work_can_be_undone) {
    mit_Tabelle();
    ASSERT_EQ(rueckgaengig(), "");
    s_->fuehre_aus<&Applikationstabelle::haenge_an>(Zelle{0, 2}, '0');
    EXPECT_NE(rueckgaengig(), "");
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe.Applikationsschema[0][2].Text(), "500");
    EXPECT_EQ(rueckgaengig(), "");
}

// The list of averaging windows

TEST_F(Ungesichert, undo_of_the_list_of_windows_leaves_a_window_of_the_list_in_view) {
    gestartet();
    Optionsentwurf o = s_->fuehre_aus<&Optionensteuerung::oeffne>();
    o.TWA_Zeiten = Monatsliste;
    s_->fuehre_aus<&Optionensteuerung::uebernimm>(o);
    s_->fuehre_aus<&Optionensteuerung::schliesse>();
    s_->fuehre_aus<&Listenwahl::waehle_TWA_Laenge>(11);
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Sicht.TWA_Laenge, 6);
    EXPECT_EQ(s_->zeige<Listenwahl>().TWA_Laengen().size(), 10U);
}

// The open report

TEST_F(Ungesichert, a_report_that_says_not_saved_closes_when_it_is) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_THAT(s_->zeige<Berichtssteuerung>().offener()->RTF, HasSubstr("inputs not saved"));
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_THAT(Zeile(), AllOf(HasSubstr("saved"), HasSubstr("The open report was closed")));
}

// The close box

TEST_F(Ungesichert, the_close_box_does_not_ask_about_a_cell_that_it_has_put_back) {
    mit_Tabelle();
    s_->fuehre_aus<&Applikationstabelle::leere>(Zelle{0, 2});
    for (const char c : std::string("1.2.5")) s_->fuehre_aus<&Applikationstabelle::haenge_an>(Zelle{0, 2}, c);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
}

TEST_F(Ungesichert, the_close_box_does_not_ask_about_a_text_typed_back) {
    gestartet();
    const std::string vorher = s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0"));
    tippe_ins("S_DT50_0", "12");
    s_->fuehre_aus<&Feldeingabe::aendere>(Feld("S_DT50_0"), vorher);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
}

TEST_F(Ungesichert, the_close_box_closes_behind_a_refused_name) {
    gestartet();
    s_->fuehre_aus<&Satzumbenennung::beginne>(Szenario);
    s_->fuehre_aus<&Satzumbenennung::aendere>("a/b");
    Fragen_.erwarte_Anfang("Runtime error", "");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
}

// The scenario editor

TEST_F(Ungesichert, done_without_a_change_keeps_the_name_of_a_scenario_that_is_gone) {
    gestartet();
    std::filesystem::remove(Wurzel_ / in("Probe", Szenario));
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    ASSERT_EQ(z().Auswahl(Szenario), -1);
    ASSERT_TRUE(z().abgedeckt());
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    EXPECT_EQ(s_->zeige<Szenarioeditor>().Entwurf().Szenarien.back(), "Probe");
    s_->fuehre_aus<&Szenarioeditor::uebernimm>();
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    EXPECT_EQ(z().Namen[Szenario], "Probe");
    EXPECT_TRUE(z().abgedeckt());
}

}  // namespace
}  // namespace varnok
