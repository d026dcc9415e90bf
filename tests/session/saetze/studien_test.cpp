// Adding, renaming and deleting the studies of a compound.

#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Studienprobe : public Probesitzung {
protected:
    // Three studies, each with values of its own in every table.
    void drei_Studien() {
        Felder_.Studie = {"A", "B", "C"};
        for (std::size_t st = 0; st < 3; ++st) {
            const double n = static_cast<double>(st + 1);
            for (std::size_t c = 0; c < Stoffe; ++c) {
                Parameter_.k_SFO[c][st] = Parameter_.k1_DFOP[c][st] = Parameter_.k2_DFOP[c][st] = 0.01 * n;
                Parameter_.g_DFOP[c][st] = 0.1 * n;
                Parameter_.KOC[c][st] = 100 * n;
                Parameter_.Q10[c][st] = 1 + n;
                Parameter_.Walker[c][st] = 0.1 * n;
                Parameter_.TRef[c][st] = 10 + n;
                Parameter_.Kinetik[c][st] = st == 1 ? DFOP : SFO;
            }
            Parameter_.k1_HS[st] = Parameter_.k2_HS[st] = 0.02 * n;
            Parameter_.Tb_HS[st] = Parameter_.alpha_FOMC[st] = Parameter_.beta_FOMC[st] = n;
        }
        schreibe_Probe();
        gestartet();
    }

    void addiere(const std::string& Name) {
        s_->fuehre_aus<&Studienverwaltung::addiere>();
        s_->fuehre_aus<&Studienverwaltung::aendere>(Name);
        s_->fuehre_aus<&Studienverwaltung::bestaetige>(true);
    }

    void loesche() {
        Fragen_.erwarte("Delete study", "Do you really want to delete this study?", Knopf::Ja);
        s_->fuehre_aus<&Studienverwaltung::loesche>();
    }

    const Laufparameter& p() const { return s_->Stand().Parameter(); }
    const std::vector<std::string>& Studien() const { return s_->Stand().Vorgabe.Studie; }
};

TEST_F(Studienprobe, the_box_of_a_new_study_proposes_the_next_number_and_nothing_else_is_possible_meanwhile) {
    gestartet().fuehre_aus<&Studienverwaltung::addiere>();
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().Name_offen());
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().neu());
    EXPECT_EQ(s_->zeige<Studienverwaltung>().Vorschlag(), "new Study 3");
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().darf_addieren());
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().darf_loeschen());
    EXPECT_EQ(Studien().size(), 2U);
}

TEST_F(Studienprobe, a_new_study_is_selected_run_once_and_marks_the_compound) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    addiere("Field 7");
    EXPECT_EQ(Studien(), (std::vector<std::string>{"First soil", "Second soil", "Field 7"}));
    EXPECT_EQ(s_->Stand().i_studie(), 2);
    EXPECT_EQ(s_->Stand().Studienzahl(), 3);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().Name_offen());
}

TEST_F(Studienprobe, a_new_study_starts_from_the_start_values_whatever_stood_in_its_place) {
    drei_Studien();
    loesche();
    loesche();
    addiere("new");
    const Laufparameter Start;
    EXPECT_EQ(p().k_SFO[0][1], Start.k_SFO[0][1]);
    EXPECT_EQ(p().Q10[0][1], 1);
    EXPECT_EQ(p().KOC[2][1], 0);
    EXPECT_EQ(p().TRef[1][1], 20);
    EXPECT_EQ(p().Walker[0][1], 0);
    EXPECT_EQ(p().Kinetik[0][1], SFO);
    EXPECT_EQ(p().Tb_HS[1], 10);
}

TEST_F(Studienprobe, leaving_the_box_adds_the_study_too) {
    gestartet().fuehre_aus<&Studienverwaltung::addiere>();
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(false);
    EXPECT_EQ(Studien().back(), "new Study 3");
}

TEST_F(Studienprobe, esc_takes_everything_back) {
    gestartet().fuehre_aus<&Studienverwaltung::addiere>();
    s_->fuehre_aus<&Studienverwaltung::aendere>("never");
    s_->fuehre_aus<&Studienverwaltung::nimm_zurueck>();
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(false);  // the focus that moves on afterwards
    EXPECT_EQ(Studien().size(), 2U);
    EXPECT_EQ(s_->Stand().Studienzahl(), 2);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().darf_addieren());
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().darf_loeschen());
}

TEST_F(Studienprobe, an_empty_name_becomes_the_proposal_or_the_old_name) {
    gestartet();
    addiere("");
    EXPECT_EQ(Studien().back(), "new Study 3");
    s_->fuehre_aus<&Studienverwaltung::beginne_Umbenennen>();
    s_->fuehre_aus<&Studienverwaltung::aendere>("");
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(true);
    EXPECT_EQ(Studien().back(), "new Study 3");
}

TEST_F(Studienprobe, a_seventh_study_cannot_be_added) {
    gestartet();
    for (int i = 3; i <= 6; ++i) addiere("");
    EXPECT_EQ(Studien().size(), 6U);
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().darf_addieren());
    s_->fuehre_aus<&Studienverwaltung::addiere>();
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().Name_offen());
    loesche();
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().darf_addieren());
}

TEST_F(Studienprobe, a_name_that_no_record_can_hold_is_told_and_can_be_corrected) {
    gestartet().fuehre_aus<&Studienverwaltung::addiere>();
    s_->fuehre_aus<&Studienverwaltung::aendere>("a\tb");
    Fragen_.erwarte("No valid input!", "\"a\tb\" cannot be the name of a study: it holds a control character");
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(true);
    EXPECT_TRUE(s_->zeige<Studienverwaltung>().Name_offen());
    s_->fuehre_aus<&Studienverwaltung::aendere>("\xCE\xB1");
    Fragen_.erwarte("No valid input!", "\"\xCE\xB1\" cannot be the name of a study: the records have no character \"\xCE\xB1\"");
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(false);
    EXPECT_EQ(Studien().back(), "new Study 3");
}

TEST_F(Studienprobe, a_study_is_renamed_without_a_run_and_a_taken_name_is_allowed) {
    gestartet();
    s_->fuehre_aus<&Studienverwaltung::beginne_Umbenennen>();
    EXPECT_EQ(s_->zeige<Studienverwaltung>().Vorschlag(), "First soil");
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().neu());
    s_->fuehre_aus<&Studienverwaltung::aendere>("Second soil");
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(false);
    EXPECT_EQ(Studien(), (std::vector<std::string>{"Second soil", "Second soil"}));
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Studienprobe, an_unchanged_name_marks_nothing) {
    gestartet().fuehre_aus<&Studienverwaltung::beginne_Umbenennen>();
    s_->fuehre_aus<&Studienverwaltung::bestaetige>(true);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Studienprobe, a_command_takes_the_name_in_the_box_as_typed) {
    gestartet().fuehre_aus<&Studienverwaltung::addiere>();
    s_->fuehre_aus<&Studienverwaltung::aendere>("typed");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.che").find("Study 3:\ttyped"), std::string::npos);
}

TEST_F(Studienprobe, no_to_the_question_deletes_nothing) {
    gestartet();
    Fragen_.erwarte("Delete study", "Do you really want to delete this study?", Knopf::Nein);
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    EXPECT_EQ(Studien().size(), 2U);
    EXPECT_FALSE(s_->Stand().Saetze[Applikation].Geaendert());
}

TEST_F(Studienprobe, deleting_moves_the_rate_constants_and_leaves_the_other_tables_in_their_place) {
    drei_Studien();
    loesche();  // study A; B and C move forward
    EXPECT_EQ(Studien(), (std::vector<std::string>{"B", "C"}));
    EXPECT_DOUBLE_EQ(p().k_SFO[0][0], 0.02);
    EXPECT_DOUBLE_EQ(p().k1_DFOP[1][1], 0.03);
    EXPECT_DOUBLE_EQ(p().k2_DFOP[2][0], 0.02);
    EXPECT_DOUBLE_EQ(p().g_DFOP[0][1], 0.1 * 3);
    EXPECT_DOUBLE_EQ(p().k1_HS[0], 0.04);
    EXPECT_DOUBLE_EQ(p().k2_HS[1], 0.02 * 3);
    EXPECT_EQ(p().Tb_HS[0], 2);
    EXPECT_EQ(p().alpha_FOMC[1], 3);
    EXPECT_EQ(p().beta_FOMC[0], 2);
    EXPECT_EQ(p().KOC[0][0], 100);
    EXPECT_EQ(p().Q10[1][1], 3);
    EXPECT_DOUBLE_EQ(p().Walker[0][0], 0.1);
    EXPECT_EQ(p().TRef[0][1], 12);
    EXPECT_EQ(p().Kinetik[0][0], SFO);
    EXPECT_EQ(p().Kinetik[0][1], DFOP);
    EXPECT_EQ(s_->Stand().Studienzahl(), 2);
}

TEST_F(Studienprobe, deleting_marks_the_application_pattern_and_says_what_to_check) {
    drei_Studien();
    loesche();
    EXPECT_TRUE(s_->Stand().Saetze[Applikation].Geaendert());
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(s_->Stand().Statuszeile.Text(),
              "Koc, Q10, Walker, To and kinetics of the following studies stay with their place. Please check.");
}

TEST_F(Studienprobe, after_deleting_the_study_that_moved_up_is_shown_and_run) {
    drei_Studien();
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    loesche();
    EXPECT_EQ(s_->Stand().i_studie(), 1);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_KOC_0")), "200");  // of the place, not of the study
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Studienprobe, deleting_the_last_entry_selects_the_new_last_one) {
    drei_Studien();
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(2);
    loesche();
    EXPECT_EQ(s_->Stand().i_studie(), 1);
}

TEST_F(Studienprobe, with_one_study_left_there_is_nothing_to_delete_and_no_summary) {
    gestartet().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    EXPECT_TRUE(s_->Stand().Zusammenfassung_aktiv());
    loesche();
    EXPECT_FALSE(s_->Stand().Zusammenfassung_aktiv());
    EXPECT_FALSE(s_->zeige<Studienverwaltung>().darf_loeschen());
    EXPECT_FALSE(s_->zeige<Listenwahl>().darf_Zusammenfassung());
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    EXPECT_EQ(Studien().size(), 1U);
}

}  // namespace
}  // namespace varnok
