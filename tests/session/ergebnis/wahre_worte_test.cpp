// The words around the results: the cover's, the hint's and those of the status line.

#include <gmock/gmock.h>

#include "records/dateien.h"
#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

class Wahre_Worte : public Befehlsprobe {
protected:
    // A text that the field refuses, on Enter.
    void tippe_Ungueltiges(int f) {
        s_->fuehre_aus<&Feldeingabe::betrete>(f);
        s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
        Fragen_.erwarte_Anfang("No valid input!", "");
        s_->fuehre_aus<&Feldeingabe::bestaetige>(f);
        ASSERT_EQ(z().Abdeckungswort(), "Not valid");
    }
};

TEST_F(Wahre_Worte, esc_takes_a_refused_value_and_the_word_on_the_cover_away) {
    gestartet();
    const int f = Feld("S_DT50_0");
    tippe_Ungueltiges(f);
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(f);
    EXPECT_EQ(z().Abdeckungswort(), "");
    EXPECT_FALSE(z().Hinweis());
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
}

TEST_F(Wahre_Worte, a_valid_value_after_a_refused_one_uncovers_its_results) {
    gestartet();
    const int f = Feld("S_DT50_0");
    tippe_Ungueltiges(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "12");
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(z().Abdeckungswort(), "");
    EXPECT_FALSE(z().Hinweis());
}

// What another program did, what is kept and what is missing, in one line: none of them takes the place of another.
TEST_F(Wahre_Worte, everything_that_one_command_has_to_tell_stands_in_the_line) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    schreibe_Datei((Wurzel_ / "input/Probe.che").string(), "of another program");
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    Fragen_.erwarte_Anfang("Save changes?", "", Knopf::Nein);
    waehle(Wirkstoff, "Second");
    EXPECT_THAT(z().Statuszeile.Text(), AllOf(HasSubstr("\"Probe.che\" was changed by another program since it was read."),
                                              HasSubstr("What was there before is kept in"), HasSubstr("\"unsaved Probe.che\"")));
}

}  // namespace
}  // namespace varnok
