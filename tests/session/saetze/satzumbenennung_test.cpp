// The box in which a record of the main form gets another name: nobody leaves it open over another record.

#include <gmock/gmock.h>

#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

class Umbenennungsprobe : public Befehlsprobe {
protected:
    void oeffne_mit(Satzart Art, const std::string& Name) {
        s_->fuehre_aus<&Satzumbenennung::beginne>(Art);
        s_->fuehre_aus<&Satzumbenennung::aendere>(Name);
    }
    bool offen() const { return s_->zeige<Satzumbenennung>().offen(); }
};

TEST_F(Umbenennungsprobe, a_box_left_open_names_the_record_that_it_was_opened_for) {
    gestartet();
    oeffne_mit(Wirkstoff, "Mine");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_FALSE(offen());
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Second");
    EXPECT_EQ(auf_Platte(Wirkstoff), (Namen{"Mine", "Second"}));
    s_->fuehre_aus<&Satzumbenennung::bestaetige>(true);
    EXPECT_EQ(auf_Platte(Wirkstoff), (Namen{"Mine", "Second"}));
}

TEST_F(Umbenennungsprobe, saving_takes_the_name_in_the_box) {
    gestartet();
    oeffne_mit(Szenario, "Mine");
    EXPECT_TRUE(s_->fuehre_aus<&Satzverwaltung::speichere>());
    EXPECT_FALSE(offen());
    EXPECT_EQ(lies_Simulation(Projektordner(Wurzel_.string()), "Probe").Dateinamen[Szenario], "Mine");
}

TEST_F(Umbenennungsprobe, the_close_box_of_the_window_takes_it_too) {
    gestartet();
    oeffne_mit(Szenario, "Mine");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(auf_Platte(Szenario), (Namen{"Mine", "Second"}));
}

TEST_F(Umbenennungsprobe, a_field_that_refuses_its_value_keeps_the_box_closed_and_says_so_once) {
    gestartet();
    s_->fuehre_aus<&Feldeingabe::betrete>(Feld("S_DT50_0"));
    s_->fuehre_aus<&Feldeingabe::aendere>(Feld("S_DT50_0"), "-3");
    Fragen_.erwarte_Anfang("No valid input!", "");
    EXPECT_FALSE(s_->fuehre_aus<&Satzumbenennung::beginne>(Wirkstoff));
    EXPECT_FALSE(offen());
}

TEST_F(Umbenennungsprobe, a_refused_name_can_be_corrected_after_enter_and_is_given_up_when_left) {
    gestartet();
    oeffne_mit(Szenario, "a/b");
    Fragen_.erwarte_Anfang("Runtime error", "");
    EXPECT_FALSE(s_->fuehre_aus<&Satzumbenennung::bestaetige>(true));
    EXPECT_TRUE(s_->zeige<Satzumbenennung>().offen_ueber(Szenario));
    Fragen_.erwarte_Anfang("Runtime error", "");
    EXPECT_FALSE(s_->fuehre_aus<&Satzumbenennung::bestaetige>(false));
    EXPECT_FALSE(offen());
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
}

TEST_F(Umbenennungsprobe, esc_leaves_the_name) {
    gestartet();
    oeffne_mit(Szenario, "Mine");
    s_->fuehre_aus<&Satzumbenennung::nimm_zurueck>();
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
}

}  // namespace
}  // namespace varnok
