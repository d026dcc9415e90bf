// When the box comes that warns of results.

#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

// The compound does not degrade in the first study; no run of the second one ends well.
class Warnung : public Probesitzung {
protected:
    Warnung() {
        Parameter_.k_SFO[0][0] = 0;
        Parameter_.Q10[0][1] = 1E300;
        Parameter_.TRef[0][1] = 0;
        schreibe_Probe();
    }
    void es_warnt() { Fragen_.erwarte_Anfang("No final plateau", "The residues of Parent P grow without limit"); }
    void es_versagt() { Fragen_.erwarte_Anfang("Runtime error", "The calculation is not possible with these input data."); }
    // A new dose in the summary, which stays covered.
    void rechne_verdeckt() {
        es_warnt();
        gestartet();
        es_versagt();
        s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
        es_versagt();
        tippe("Applikationsrate", "1300");
        ASSERT_TRUE(s_->Stand().abgedeckt());
        ASSERT_TRUE(s_->Stand().Zusammenfassung_aktiv());
    }
};

TEST_F(Warnung, of_results_under_the_cover_comes_once_when_they_come_into_sight) {
    rechne_verdeckt();
    es_warnt();
    s_->fuehre_aus<&Listenwahl::zeige_Studien>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_EQ(Werte().Vorgabe->Applikationsrate.Text(), "1300");
    es_versagt();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Listenwahl::zeige_Studien>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Warnung, of_results_that_others_have_overtaken_under_the_cover_never_comes) {
    rechne_verdeckt();
    es_versagt();
    tippe("S_DT50_0", "60");
    s_->fuehre_aus<&Listenwahl::zeige_Studien>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->Stand().Hinweis());
}

}  // namespace
}  // namespace varnok
