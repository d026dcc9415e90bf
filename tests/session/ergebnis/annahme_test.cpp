// What is in work when a command comes, and what stands on the screen while one is at work.

#include <gmock/gmock.h>

#include <functional>

#include "session/kern/unterschied.h"
#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Annahme : public Befehlsprobe {
protected:
    void tippe_Zelle(Zelle z, const std::string& Tasten) {
        s_->fuehre_aus<&Applikationstabelle::leere>(z);
        for (const char c : Tasten) s_->fuehre_aus<&Applikationstabelle::haenge_an>(z, c);
    }
    // Typed and not left.
    void tippe_ins(const std::string& Objektname, const std::string& Text) {
        s_->fuehre_aus<&Feldeingabe::betrete>(Feld(Objektname));
        s_->fuehre_aus<&Feldeingabe::aendere>(Feld(Objektname), Text);
    }
    void gestartet_mit_Tabelle() {
        Felder_.Applikationsmuster = unregelmaessig;
        Felder_.Applikationsschema = {{"01", "04", "500", "0"}, {"15", "05", "500", "0"}};
        schreibe_Probe();
        gestartet();
    }
    Eingabe gespeichert(const std::string& Name) const {
        Eingabe e;
        Ansicht a;
        for (const Satzart Art : Eingabearten) Satz_lesen(Projektordner(Wurzel_.string()), Name, Art, e, a);
        return e;
    }
    const std::string& Zeile() const { return Zeile_ = z().Statuszeile.Text(); }

private:
    mutable std::string Zeile_;
};

// The description

TEST_F(Annahme, a_description_in_work_ends_with_the_next_command) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::oeffne>();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Typed on the first");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    ASSERT_EQ(z().gewaehlt(Simulation), "Second");
    EXPECT_FALSE(s_->zeige<Beschreibungseingabe>().offen());
    s_->fuehre_aus<&Beschreibungseingabe::nimm_zurueck>();
    EXPECT_EQ(z().Vorgabe.Beschreibung, "second");
}

TEST_F(Annahme, a_description_opens_only_once_the_field_in_work_is_accepted) {
    gestartet();
    tippe_ins("S_DT50_0", "-3");
    Fragen_.erwarte_Anfang("No valid input!", "");
    EXPECT_FALSE(s_->fuehre_aus<&Beschreibungseingabe::oeffne>());
    EXPECT_FALSE(s_->zeige<Beschreibungseingabe>().offen());
}

// The close box

TEST_F(Annahme, the_close_box_takes_a_valid_number_in_work_as_typed) {
    gestartet();
    tippe_ins("Applikationsrate", "12abc");
    Fragen_.erwarte_Anfang("Save changes?", "You modified application", Knopf::Ja);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(gespeichert("Probe").Applikationsrate.Text(), "12");
}

TEST_F(Annahme, the_close_box_puts_back_a_cell_that_would_be_a_thousandth) {
    gestartet_mit_Tabelle();
    tippe_Zelle({0, 2}, "1.250.5");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(z().Vorgabe.Applikationsschema[0][2].Text(), "500");
    EXPECT_FALSE(s_->zeige<Applikationstabelle>().ist_in_Arbeit());
}

TEST_F(Annahme, the_close_box_takes_a_cell_in_work_as_the_number_it_holds) {
    gestartet_mit_Tabelle();
    tippe_Zelle({0, 2}, "750");
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{1, 2}, "800 g");
    Fragen_.erwarte_Anfang("Save changes?", "You modified application", Knopf::Ja);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(gespeichert("Probe").Applikationsschema[0][2].Text(), "750");
    EXPECT_EQ(gespeichert("Probe").Applikationsschema[1][2].Text(), "800");
}

// Changes that set no mark of their record, before it is read over

TEST_F(Annahme, a_deleted_study_is_in_backup_when_another_compound_is_chosen) {
    gestartet();
    Fragen_.erwarte_Anfang("Delete study", "", Knopf::Ja);
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    waehle(Wirkstoff, "Second");
    EXPECT_THAT(gesichert(), Contains("unsaved Probe.che"));
}

TEST_F(Annahme, a_temperature_is_in_backup_when_another_scenario_is_chosen) {
    gestartet();
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    s_->fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
    EXPECT_TRUE(s_->fuehre_aus<&Szenarioeditor::uebernimm>());
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    ASSERT_FALSE(z().Saetze[Szenario].Geaendert());
    waehle(Szenario, "Second");
    EXPECT_THAT(gesichert(), Contains("unsaved Probe.sce"));
}

TEST_F(Annahme, a_report_after_the_organiser_carries_the_names_of_the_moment) {
    gestartet();
    s_->fuehre_aus<&Organiser::oeffne>();
    s_->fuehre_aus<&Organiser::aendere_Projektname>("Other words");
    ASSERT_TRUE(s_->fuehre_aus<&Organiser::uebernimm>());
    s_->fuehre_aus<&Organiser::schliesse_ab>();
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Renamed P");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().Ergebnisdatei().substr(0, 11), "Other words");
    const Diagramm& Bild = *s_->zeige<Diagrammsteuerung>().vorderes();
    EXPECT_THAT(Bild.Titel.Text, HasSubstr("Other words"));
    EXPECT_THAT(Bild.Kommentar.Text, HasSubstr("Renamed P"));
}

// No run reads the date in constant climate: results stay valid, and a report tells the date of the screen.
TEST_F(Annahme, a_report_tells_the_application_date_of_the_moment) {
    gestartet();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::waehle_Monat>(6);
    s_->fuehre_aus<&Listenwahl::waehle_Tag>(14);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_THAT(s_->zeige<Berichtssteuerung>().offener()->Text, HasSubstr("Application date:             \t15 Jul\r\n"));
}

// The line at the foot

TEST_F(Annahme, what_a_field_was_read_as_stands_before_what_the_command_says) {
    gestartet();
    tippe_ins("S_KOC_0", "7x5");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_THAT(Zeile(), StartsWith("Koc"));
    EXPECT_THAT(Zeile(), HasSubstr("\"7x5\" was read as 7."));
    EXPECT_THAT(Zeile(), HasSubstr("saved."));
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    EXPECT_EQ(Zeile(), "");
}

TEST_F(Annahme, a_command_that_the_user_gives_up_leaves_the_line) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    const std::string vorher = Zeile();
    ASSERT_NE(vorher, "");
    bejahe_Loeschen(Knopf::nicht_jetzt);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    EXPECT_EQ(Zeile(), vorher);
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    ASSERT_TRUE(tippe("S_DT50_0", "13"));
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    const std::string danach = Zeile();
    Fragen_.erwarte_Anfang("Save changes?", "", Knopf::nicht_jetzt);
    waehle(Wirkstoff, "Second");
    EXPECT_EQ(Zeile(), danach);
}

// The cover

TEST_F(Annahme, typing_takes_no_cover_away) {
    gestartet_mit_Tabelle();
    const std::string alt = z().Vorgabe.Applikationsschema[0][0].Text();
    tippe_Zelle({0, 0}, "400");
    Fragen_.erwarte_Anfang("No valid input!", "");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    ASSERT_EQ(z().Abdeckungswort(), "Not valid");
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    tippe_Zelle({0, 0}, alt);
    EXPECT_TRUE(z().abgedeckt());
    s_->fuehre_aus<&Applikationstabelle::schliesse_ab>();
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_FALSE(z().Hinweis());
}

TEST_F(Annahme, a_cell_that_was_refused_is_to_be_selected_once) {
    gestartet_mit_Tabelle();
    tippe_Zelle({0, 2}, "1.250.5");
    Fragen_.erwarte_Anfang("No valid input!", "");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(s_->fuehre_aus<&Laufsteuerung::nimm_Tabellenfehler>(), (Zelle{0, 2}));
    EXPECT_EQ(s_->fuehre_aus<&Laufsteuerung::nimm_Tabellenfehler>(), std::nullopt);
}

// The list of simulations

TEST_F(Annahme, the_mark_of_another_combination_goes_with_the_combination) {
    gestartet();
    waehle(Szenario, "Second");
    EXPECT_TRUE(z().Simulation_markiert());
    waehle(Szenario, "Probe");
    EXPECT_FALSE(z().Simulation_markiert());
}

// The report

TEST_F(Annahme, an_open_report_closes_when_a_name_in_it_is_another) {
    gestartet();
    s_->fuehre_aus<&Szenarioeditor::oeffne>();
    s_->fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodenszenario, "Heavy clay");
    s_->fuehre_aus<&Szenarioeditor::uebernimm>();
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe.Bodenszenario, "Sandy loam");
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_TRUE(benenne_um(*s_, Applikation, "Third", true));
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
}

// Undo

TEST_F(Annahme, undo_shows_the_study_that_it_brings_back) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    Fragen_.erwarte_Anfang("Delete study", "", Knopf::Ja);
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    ASSERT_EQ(z().i_studie(), 0);
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().i_studie(), 1);
}

TEST(Unterschied, nennt_Studie_und_Stoff_eines_Namens) {
    Eingabe a = Probeeingabe();
    Eingabe b = a;
    b.Studie[1] = "Renamed";
    EXPECT_EQ(vergleiche(a, b).i_studie, 1);
    b = a;
    b.Name_Met_2 = "Other";
    EXPECT_EQ(vergleiche(a, b).i_substanz, 2);
    b = a;
    b.Studie.emplace_back("Third soil");
    EXPECT_EQ(vergleiche(a, b).i_studie, 2);
    EXPECT_EQ(vergleiche(b, a).i_studie, 2);
}

// The record keeps the text as typed.
TEST(Unterschied, findet_einen_anderen_Text_derselben_Zahl_in_seinem_Satz) {
    const Eingabe a = Probeeingabe();
    Eingabe b = a;
    b.Molmasse_Met_1 = "200.0";
    const Unterschied u = vergleiche(a, b);
    EXPECT_TRUE(u.Arten[Wirkstoff]);
    EXPECT_FALSE(u.Arten[Applikation]);
    EXPECT_EQ(u.i_substanz, 1);
}

// While a message stands

class Zuschauer : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        Gesehenes.push_back(f.Titel);
        if (bei_Frage) bei_Frage();
        return f.Knoepfe.front();
    }
    std::vector<std::string> Gesehenes;
    std::function<void()> bei_Frage;
};

class Hinter_der_Meldung : public Befehlsprobe {
protected:
    void starte() {
        s_ = std::make_unique<Sitzung>(Umgebung{&Zuschauer_, Wurzel_.string(), "", '.'});
        ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    }
    Zuschauer Zuschauer_;
};

TEST_F(Hinter_der_Meldung, steht_das_neue_Bild_wenn_seine_Dateien_nicht_zu_schreiben_waren) {
    starte();
    std::filesystem::remove_all(Wurzel_ / "output");
    std::filesystem::create_directories(Wurzel_ / "output/Detailed Results - Parent P.tab");
    int Zeichnung = 0;
    Endpunktart Endpunkt = Gesamtgehalt;
    Zuschauer_.bei_Frage = [&] {
        Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
        Endpunkt = s_->zeige<Diagrammsteuerung>().vorderes()->Endpunkt;
    };
    const int vorher = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    ASSERT_EQ(Zuschauer_.Gesehenes, std::vector<std::string>{"Runtime error"});
    EXPECT_EQ(Zeichnung, vorher + 1);
    EXPECT_EQ(Endpunkt, Porenwasser);
}

// A copy that is refused says nothing against the results.
TEST_F(Hinter_der_Meldung, bleiben_gueltige_Ergebnisse_zu_sehen) {
    starte();
    bool abgedeckt = true;
    Zuschauer_.bei_Frage = [&] { abgedeckt = z().abgedeckt(); };
    EXPECT_FALSE(benenne_um(*s_, Szenario, "a/b", false));
    ASSERT_EQ(Zuschauer_.Gesehenes.size(), 1U);
    EXPECT_FALSE(abgedeckt);
}

}  // namespace
}  // namespace varnok
