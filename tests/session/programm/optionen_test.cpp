// The options: what each of them changes, and where it is kept.

#include <chrono>
#include <cmath>
#include <fstream>

#include "records/einstellungen.h"
#include "records/satz.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/programm/optionsprobe.h"

namespace varnok {
namespace {

TEST_F(Optionsprobe, are_shown_as_they_are) {
    Parameter_.Einheit = Mikrogramm;
    Parameter_.Separate_Rueckstaende = im_Jahr_getrennt;
    Parameter_.TWA_Zeiten = Monatsliste;
    Parameter_.Ausgabename_Teile = {1, 0, 1, 0, 0, 1, 1};
    schreibe_Probe();
    Einstellungen e;
    e.Tips_anzeigen = 1;
    e.Farbeinstellung = 1;
    std::ofstream(Wurzel_ / "VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes(e, {});
    gestartet();
    const Optionsentwurf erwartet{Mikrogramm, im_Jahr_getrennt, Monatsliste, {true, false, true, false, false, true}, 1,
                                  1,          Wurzel_.string()};
    EXPECT_EQ(s_->fuehre_aus<&Optionensteuerung::oeffne>(), erwartet);
}

TEST_F(Optionsprobe, cancelled_change_nothing_and_run_nothing) {
    gestartet();
    const Laufparameter vorher = s_->Stand().Parameter();
    const std::string Einstellung = Datei("VARNOK.ini");
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Optionensteuerung::oeffne>();
    EXPECT_FALSE(s_->fuehre_aus<&Optionensteuerung::schliesse>());
    EXPECT_EQ(s_->Stand().Parameter(), vorher);
    EXPECT_EQ(s_->Stand().Projektpfad, Wurzel_.string());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_EQ(Datei("VARNOK.ini"), Einstellung);
    EXPECT_FALSE(irgendetwas_geaendert());
}

TEST_F(Optionsprobe, cancelled_after_an_earlier_OK_run_nothing_either) {
    gestartet();
    bestaetige_unveraendert();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Optionensteuerung::oeffne>();
    s_->fuehre_aus<&Optionensteuerung::schliesse>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
}

TEST_F(Optionsprobe, accepted_unchanged_run_once_and_mark_nothing) {
    gestartet();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const Laufparameter vorher = s_->Stand().Parameter();
    EXPECT_FALSE(bestaetige_unveraendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
    EXPECT_EQ(s_->Stand().Parameter(), vorher);
    EXPECT_FALSE(irgendetwas_geaendert());
    EXPECT_FALSE(s_->Stand().Simulation_markiert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "");
}

TEST_F(Optionsprobe, in_the_summary_view_run_all_studies_and_stay_there) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    bestaetige([](Optionsentwurf& o) { o.Einheit = Mikrogramm; });
    EXPECT_TRUE(s_->Stand().Zusammenfassung_aktiv());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
    EXPECT_FLOAT_EQ(Maximum(0), 1333.3334F);
    EXPECT_FLOAT_EQ(Maximum(1), 1333.3334F);
}

TEST_F(Optionsprobe, the_unit_multiplies_by_a_thousand_and_goes_with_the_compound_record) {
    gestartet();
    ASSERT_FLOAT_EQ(Maximum(), 1.3333334F);  // 1000 g/ha in 5 cm of 1.5 kg/L
    const std::string vorher = Datei("input/Probe.che");
    const std::string Einstellung = Datei("VARNOK.ini");
    bestaetige([](Optionsentwurf& o) { o.Einheit = Mikrogramm; });
    EXPECT_FLOAT_EQ(Maximum(), 1333.3334F);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_EQ(Datei("input/Probe.che"), vorher);  // with Save only
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Zeile("input/Probe.che", "Unit:"), "Unit:\t1");
    EXPECT_EQ(Datei("VARNOK.ini"), Einstellung);
}

TEST_F(Optionsprobe, a_changed_unit_is_asked_about_at_the_end) {
    gestartet();
    bestaetige([](Optionsentwurf& o) { o.Einheit = Mikrogramm; });
    Fragen_.erwarte("Save changes?",
                    "You modified pesticide input data!  Do you want to save the changes in your data base?\n'Probe'", Knopf::Ja);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Zeile("input/Probe.che", "Unit:"), "Unit:\t1");
}

// Degradation that slows down with time starts anew, and fast, for a residue that a dose is added to; each on its own the
// old ones go on slowly. With one dose a year "within a year" starts all of them anew, too.
TEST_F(Optionsprobe, separate_residues_of_slowing_kinetics_last_longer) {
    Parameter_.Kinetik = fuer_alle(SFO);
    Parameter_.Kinetik[0].fill(FOMC);
    Parameter_.alpha_FOMC.fill(0.5);
    Parameter_.beta_FOMC.fill(5);
    schreibe_Probe();
    gestartet();
    const auto letzter = [&] { return Werte().Werte(Gesamtgehalt, 0).Reihe_Plateautiefe[3640]; };
    bestaetige([](Optionsentwurf& o) { o.Separate_Rueckstaende = im_Jahr_getrennt; });
    const float innerhalb_des_Jahres = letzter();
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    bestaetige([](Optionsentwurf& o) { o.Separate_Rueckstaende = gemeinsam; });
    const float zusammen = letzter();
    bestaetige([](Optionsentwurf& o) { o.Separate_Rueckstaende = getrennt; });
    const float getrennt = letzter();
    EXPECT_GT(getrennt, 1.5F * zusammen);
    EXPECT_FLOAT_EQ(innerhalb_des_Jahres, zusammen);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Zeile("input/Probe.che", "Separate residues:"), "Separate residues:\t1");
}

TEST_F(Optionsprobe, the_monthly_list_brings_its_windows_its_rows_and_its_first_entry) {
    gestartet();
    ASSERT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0).size(), 13U);
    s_->fuehre_aus<&Listenwahl::waehle_TWA_Laenge>(2);
    bestaetige([](Optionsentwurf& o) { o.TWA_Zeiten = Monatsliste; });
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0).size(), 15U);
    EXPECT_EQ(s_->zeige<Listenwahl>().TWA_Laengen().size(), 12U);
    EXPECT_EQ(s_->zeige<Listenwahl>().TWA_Laengen().front(), "TWA (30 d)");
    EXPECT_EQ(s_->Stand().Sicht.TWA_Laenge, 0);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->Stand().Hinweis());
    // The mean of 30 days from the peak on, with k = 0.01: c (1 - exp(-0.3)) / 0.3.
    EXPECT_NEAR(Werte().Werte(Gesamtgehalt, 0).TWA[0].Maximum, 1.3333334 * (1 - std::exp(-0.3)) / 0.3, 1e-4);
    bestaetige([](Optionsentwurf& o) { o.TWA_Zeiten = EU_Liste; });
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0).size(), 13U);
    EXPECT_EQ(s_->zeige<Listenwahl>().TWA_Laengen().size(), 10U);
    EXPECT_EQ(s_->Stand().Sicht.TWA_Laenge, 6);  // 28 days
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Zeile("input/Probe.che", "TWA according"), "TWA according to EU:\t1");
}

TEST_F(Optionsprobe, the_list_of_a_compound_record_comes_with_it) {
    Eingabe e = Felder_;
    e.Parameter.TWA_Zeiten = Monatsliste;
    Satz_schreiben(Projektordner(Wurzel_.string()), "Monthly", Wirkstoff, e, Sicht_);
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 0);
    ASSERT_EQ(s_->Stand().gewaehlt(Wirkstoff), "Monthly");
    EXPECT_EQ(s_->zeige<Listenwahl>().TWA_Laengen().size(), 12U);
    EXPECT_EQ(s_->Stand().Sicht.TWA_Laenge, 0);
    EXPECT_EQ(s_->fuehre_aus<&Optionensteuerung::oeffne>().TWA_Zeiten, Monatsliste);
}

TEST_F(Optionsprobe, the_parts_of_the_name_mark_the_compound_and_make_the_name) {
    gestartet();
    bestaetige([](Optionsentwurf& o) { o.Ausgabename_Teile[1] = true; });
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().Ergebnisdatei().find("First soil"), std::string::npos);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Zeile("input/Probe.che", "Output file name"), "Output file name :\t0\t1\t0\t0\t0\t0\t0");
}

TEST_F(Optionsprobe, the_seventh_part_of_the_name_survives_any_number_of_passes) {
    Parameter_.Ausgabename_Teile = {0, 0, 0, 0, 0, 0, 1};
    schreibe_Probe();
    gestartet();
    for (int i = 0; i < 3; ++i) {
        bestaetige([](Optionsentwurf& o) { o.Ausgabename_Teile.fill(!o.Ausgabename_Teile[0]); });
    }
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Zeile("input/Probe.che", "Output file name"), "Output file name :\t1\t1\t1\t1\t1\t1\t1");
}

TEST_F(Optionsprobe, tooltips_switched_on_are_told_to_the_window_alone) {
    std::ofstream(Wurzel_ / "VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes({}, {});
    gestartet();
    const std::string Einstellung = Datei("VARNOK.ini");
    EXPECT_TRUE(bestaetige([](Optionsentwurf& o) { o.Tips_anzeigen = 1; }));
    EXPECT_EQ(s_->Stand().Einstellung.Tips_anzeigen, 1);
    EXPECT_EQ(Datei("VARNOK.ini"), Einstellung);  // with the end of the program
    EXPECT_FALSE(irgendetwas_geaendert());
    EXPECT_FALSE(bestaetige_unveraendert());  // they are on already
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Zeile("VARNOK.ini", "Tooltips:"), "Tooltips:\t1");
}

TEST_F(Optionsprobe, tooltips_switched_off_write_the_settings_and_say_when_they_go) {
    Einstellungen e;
    e.Tips_anzeigen = 1;
    std::ofstream(Wurzel_ / "VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes(e, {});
    gestartet();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Fragen_.erwarte("Tooltips", "The tooltips will be switched off when you exit VARNOK and call it again!");
    EXPECT_FALSE(bestaetige([](Optionsentwurf& o) { o.Tips_anzeigen = 0; }));
    EXPECT_EQ(Zeile("VARNOK.ini", "Tooltips:"), "Tooltips:\t0");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
}

TEST_F(Optionsprobe, settings_that_cannot_be_written_are_told_and_the_run_follows) {
    Einstellungen e;
    e.Tips_anzeigen = 1;
    std::ofstream(Wurzel_ / "VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes(e, {});
    gestartet();
    std::filesystem::remove(Wurzel_ / "VARNOK.ini");
    std::filesystem::create_directory(Wurzel_ / "VARNOK.ini");
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file \"" + (Wurzel_ / "VARNOK.ini").string())
        .erwarte("Tooltips", "The tooltips will be switched off when you exit VARNOK and call it again!");
    bestaetige([](Optionsentwurf& o) {
        o.Tips_anzeigen = 0;
        o.Einheit = Mikrogramm;
    });
    EXPECT_FLOAT_EQ(Maximum(), 1333.3334F);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Optionsprobe, the_appearance_is_kept_in_the_settings) {
    gestartet();
    bestaetige([](Optionsentwurf& o) { o.Farbeinstellung = 1; });
    EXPECT_FALSE(irgendetwas_geaendert());
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Zeile("VARNOK.ini", "Appearance:"), "Appearance:\t1");
}

TEST_F(Optionsprobe, a_run_that_fails_leaves_the_results_covered_and_the_hint_on) {
    Felder_.Applikationsmuster = unregelmaessig;  // twice the same day
    schreibe_Probe();
    for (int i = 0; i < 2; ++i) {
        Fragen_.erwarte("No valid input!", "The sequence of application dates that is not valid. Please correct!");
    }
    gestartet();
    bestaetige([](Optionsentwurf& o) { o.Einheit = Mikrogramm; });
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

TEST_F(Optionsprobe, with_a_record_missing_stay_covered_without_a_word) {
    gestartet();
    std::ofstream(Wurzel_ / "input/Torn.vnk", std::ios::binary) << "text\r\nno such record\r\nProbe\r\nProbe\r\n";
    std::filesystem::last_write_time(Wurzel_ / "input/Torn.vnk",
                                     std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1));
    nur_geladen();
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    ASSERT_TRUE(s_->Stand().abgedeckt());
    bestaetige([](Optionsentwurf& o) { o.Einheit = Mikrogramm; });
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

}  // namespace
}  // namespace varnok
