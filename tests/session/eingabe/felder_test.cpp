// The numeric fields: ranges, messages, and what typing, Enter and leaving do.

#include <cmath>

#include "base/zahlen.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

constexpr const char* ungueltig = "No valid input!";

// One line for each kind of field: an accepted, a refused and a boundary value on leaving and on Enter.
struct Probe {
    const char* Feld;
    const char* angenommen;
    const char* abgelehnt;
    const char* Grenze;
    bool Grenze_gilt;
    bool Grenze_gilt_bei_Enter;
    const char* Meldung;
    const char* Meldung_Enter;
};

std::ostream& operator<<(std::ostream& Strom, const Probe& p) { return Strom << p.Feld; }

constexpr const char* DT50 = "The DT50 is invalid. Please correct!";
constexpr const char* Masse = "The molecular mass is invalid. Please correct!";
constexpr const char* Bildung = "The formation rate is invalid. Please correct!";

const Probe Proben[] = {
    {"Applikationsrate", "750", "-1", "0", false, true, "The applikations rate is invalid. Please correct!", nullptr},
    {"Interzeption", "99.9", "-1", "100", false, false, "The crop interception is invalid. Please correct!", nullptr},
    {"Bildungsanteil_Met_1", "55", "100.5", "100", true, true, Bildung, nullptr},
    {"Bildungsanteil_Met_2", "55", "-1", "0", true, true, Bildung, nullptr},
    {"Molmasse_Wirkstoff", "312.4", "-5", "0", false, false, Masse, nullptr},
    {"Molmasse_Met_1", "312.4", "-5", "0", false, false, Masse, nullptr},
    {"Molmasse_Met_2", "312.4", "-5", "0", false, false, Masse, nullptr},
    {"S_KOC_0", "250", "-1", "0", true, true, "The KOC constant is invalid. Please correct!",
     "The Koc constant is invalid. Please correct!"},
    {"S_KOC_1", "250", "-1", "0", true, true, "The KOC constant is invalid. Please correct!",
     "The Koc constant is invalid. Please correct!"},
    {"S_KOC_2", "250", "-1", "0", true, true, "The KOC constant is invalid. Please correct!",
     "The Koc constant is invalid. Please correct!"},
    {"S_DT50_0", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_1", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_2", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_1_DFOP_0", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_1_DFOP_1", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_1_DFOP_2", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_2_DFOP_0", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_2_DFOP_1", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_2_DFOP_2", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_g_0", "0.3", "1.1", "1", true, true, "The g constant is invalid. Please correct!", nullptr},
    {"S_g_1", "0.3", "-0.1", "0", true, true, "The g constant is invalid. Please correct!", nullptr},
    {"S_g_2", "0.3", "1.1", "1", true, true, "The g constant is invalid. Please correct!", nullptr},
    {"S_alpha", "0.8", "-1", "0", true, true, "The alpha constant is invalid. Please correct!", nullptr},
    {"S_beta", "3", "-1", "0", false, false, "The beta constant is invalid. Please correct!", nullptr},
    {"S_DT50_1_HS", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_DT50_2_HS", "12", "-1", "0", true, true, DT50, nullptr},
    {"S_Tb", "12", "-1", "0", true, true, "The breakpoint is invalid. Please correct!", nullptr},
    {"S_Q10_0", "2.2", "-1", "0", false, false, "The Q10 constant is invalid. Please correct!", nullptr},
    {"S_Q10_1", "2.2", "-1", "0", false, false, "The Q10 constant is invalid. Please correct!", nullptr},
    {"S_Q10_2", "2.2", "-1", "0", false, false, "The Q10 constant is invalid. Please correct!", nullptr},
    {"S_TRef_0", "15", "-1", "0", true, true, "The tref exponent is invalid. Please correct!", nullptr},
    {"S_TRef_1", "15", "-1", "0", true, true, "The tref exponent is invalid. Please correct!", nullptr},
    {"S_TRef_2", "15", "-1", "0", true, true, "The tref exponent is invalid. Please correct!", nullptr},
    {"S_Walker_0", "0.5", "-1", "0", true, true, "The Walker exponent is invalid. Please correct!", nullptr},
    {"S_Walker_1", "0.5", "-1", "0", true, true, "The Walker exponent is invalid. Please correct!", nullptr},
    {"S_Walker_2", "0.5", "-1", "0", true, true, "The Walker exponent is invalid. Please correct!", nullptr},
};

class Feldprobe : public Probesitzung, public ::testing::WithParamInterface<Probe> {
protected:
    void erwarte_Ablehnung(bool Enter) {
        const Probe& p = GetParam();
        Fragen_.erwarte(ungueltig, Enter && p.Meldung_Enter ? p.Meldung_Enter : p.Meldung);
    }
    // A parent that does not degrade is calculated, and said to have no plateau.
    void erwarte_Warnung_ohne_Abbau() {
        if (GetParam().Feld != std::string("S_DT50_0")) return;
        Fragen_.erwarte_Anfang("No final plateau", "The residues of Parent P grow without limit");
    }
    bool bestaetige(const char* Text) {
        const int f = Feld(GetParam().Feld);
        s_->fuehre_aus<&Feldeingabe::betrete>(f);
        s_->fuehre_aus<&Feldeingabe::aendere>(f, Text);
        return s_->fuehre_aus<&Feldeingabe::bestaetige>(f);
    }
};

TEST_P(Feldprobe, accepted_value_on_leaving) {
    gestartet();
    EXPECT_TRUE(tippe(GetParam().Feld, GetParam().angenommen));
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_P(Feldprobe, refused_value_on_leaving) {
    gestartet();
    erwarte_Ablehnung(false);
    EXPECT_FALSE(tippe(GetParam().Feld, GetParam().abgelehnt));
    EXPECT_EQ(s_->zeige<Feldeingabe>().aktives_Feld(), Feld(GetParam().Feld));
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_P(Feldprobe, boundary_value_on_leaving) {
    gestartet();
    if (!GetParam().Grenze_gilt) erwarte_Ablehnung(false);
    erwarte_Warnung_ohne_Abbau();
    EXPECT_EQ(tippe(GetParam().Feld, GetParam().Grenze), GetParam().Grenze_gilt);
}

TEST_P(Feldprobe, accepted_value_on_enter) {
    gestartet();
    EXPECT_TRUE(bestaetige(GetParam().angenommen));
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_EQ(s_->zeige<Feldeingabe>().aktives_Feld(), Feld(GetParam().Feld));
}

TEST_P(Feldprobe, refused_value_on_enter) {
    gestartet();
    erwarte_Ablehnung(true);
    EXPECT_FALSE(bestaetige(GetParam().abgelehnt));
}

TEST_P(Feldprobe, boundary_value_on_enter) {
    gestartet();
    if (!GetParam().Grenze_gilt_bei_Enter) erwarte_Ablehnung(true);
    erwarte_Warnung_ohne_Abbau();
    EXPECT_EQ(bestaetige(GetParam().Grenze), GetParam().Grenze_gilt_bei_Enter);
}

INSTANTIATE_TEST_SUITE_P(jedes_Feld, Feldprobe, ::testing::ValuesIn(Proben),
                         [](const auto& i) { return std::string(i.param.Feld); });

TEST(Feldtabelle, has_a_trial_for_every_field) {
    ASSERT_EQ(Feldtabelle().size(), std::size(Proben));
    for (const Probe& p : Proben) EXPECT_GE(Feld_mit_Namen(p.Feld), 0) << p.Feld;
}

TEST(Feldtabelle, a_DT50_typed_and_saved_reads_as_it_was_typed) {
    for (const char* Text : {"33", "6.5", "61.5", "0.7", "1234.5", "12.345678"}) {
        const double gespeichert = Wert(allgemeine_Zahl(Halbwertszeit(Wert(Text))));  // the record keeps 15 digits
        EXPECT_EQ(Text_der_Halbwertszeit(gespeichert, '.'), Text);
    }
}

TEST(Feldtabelle, a_rate_constant_without_a_short_DT50_shows_15_digits) {
    EXPECT_EQ(Text_der_Halbwertszeit(0.01, ','), "69,3147180559945");  // 100 ln(2) = 69.31471805599453
    EXPECT_EQ(Text_der_Halbwertszeit(0, '.'), "0");
}

using Felder = Probesitzung;

double k_SFO(const Sitzung& s) { return s.Stand().Parameter().k_SFO[0][0]; }

TEST_F(Felder, typing_12_starts_no_run_at_1) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "1");
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "12");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_DOUBLE_EQ(k_SFO(*s_), std::log(2.0) / 12);
}

TEST_F(Felder, enter_with_no_change_does_nothing) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::bestaetige>(f));
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_FALSE(s_->Stand().Hinweis());
}

TEST_F(Felder, a_comma_and_a_point_read_alike) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "1,5"));
    EXPECT_DOUBLE_EQ(k_SFO(*s_), std::log(2.0) / 1.5);
}

TEST_F(Felder, the_text_12abc_is_taken_as_12) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12abc"));
    EXPECT_DOUBLE_EQ(k_SFO(*s_), std::log(2.0) / 12);
}

TEST_F(Felder, a_text_that_fails_its_test_stands_as_0_in_the_table_until_it_is_corrected) {
    gestartet();
    const int f = Feld("S_g_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "3");
    EXPECT_EQ(s_->Stand().Parameter().g_DFOP[0][0], 0);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "0.25");
    EXPECT_EQ(s_->Stand().Parameter().g_DFOP[0][0], 0.25);
}

// What a record keeps as a number is at once what reading the record gives.
TEST_F(Felder, saving_and_reading_change_no_bit_of_a_number) {
    gestartet();
    for (const char* Name : {"S_DT50_0", "S_DT50_1_DFOP_0", "S_g_0", "S_alpha", "S_DT50_1_HS", "S_Q10_0", "S_KOC_0"}) {
        ASSERT_TRUE(tippe(Name, "0.12345678901234567"));
    }
    const Laufparameter getippt = s_->Stand().Parameter();
    EXPECT_NEAR(getippt.KOC[0][0], 0.12345678901234567, 1e-15);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(nur_geladen().Stand().Parameter(), getippt);
}

// A run leaves its dump, scaling does not.
class Dosis : public Probesitzung {
protected:
    bool ohne_Lauf(const std::string& Feldname, const std::string& Text) {
        std::filesystem::remove(Wurzel_ / "output/test.txt");
        EXPECT_TRUE(tippe(Feldname, Text));
        EXPECT_FALSE(s_->Stand().abgedeckt());
        EXPECT_FALSE(s_->Stand().Hinweis());
        return !gibt_es("output/test.txt");
    }
    // What stands there is what a run of the input on the screen gives, to the bit.
    void erwarte_wie_nach_Lauf() {
        const Ergebnis vorher = Werte();
        EXPECT_EQ(*vorher.Vorgabe, s_->Stand().Vorgabe);
        s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
        const Ergebnis& Lauf = Werte();
        EXPECT_EQ(vorher.Wirksame_Rate, Lauf.Wirksame_Rate);
        EXPECT_EQ(vorher.erste_Rate, Lauf.erste_Rate);
        EXPECT_EQ(vorher.Tagesrate, Lauf.Tagesrate);
        EXPECT_EQ(vorher.Warnungen, Lauf.Warnungen);
        ASSERT_EQ(vorher.Stoffwerte.size(), Lauf.Stoffwerte.size());
        for (std::size_t c = 0; c < Lauf.Stoffwerte.size(); ++c) {
            for (std::size_t e = 0; e < Endpunkte; ++e) {
                erwarte_gleich(vorher.Stoffwerte[c].Endpunktwerte[e], Lauf.Stoffwerte[c].Endpunktwerte[e]);
            }
        }
    }

private:
    static void erwarte_gleich(const Endpunktergebnis& a, const Endpunktergebnis& b) {
        EXPECT_EQ(a.Maximum_Bodentiefe, b.Maximum_Bodentiefe);
        EXPECT_EQ(a.Maximumtag_Bodentiefe, b.Maximumtag_Bodentiefe);
        EXPECT_EQ(a.Maximum_Plateautiefe, b.Maximum_Plateautiefe);
        EXPECT_EQ(a.Jahresmaximum, b.Jahresmaximum);
        EXPECT_EQ(a.Plateauwert, b.Plateauwert);
        EXPECT_EQ(a.Plateauzuwachs, b.Plateauzuwachs);
        EXPECT_EQ(a.Plateautext, b.Plateautext);
        EXPECT_EQ(a.Plateauprozent, b.Plateauprozent);
        EXPECT_EQ(a.Reihe_Bodentiefe, b.Reihe_Bodentiefe);
        EXPECT_EQ(a.Reihe_Plateautiefe, b.Reihe_Plateautiefe);
        EXPECT_EQ(a.Integral_Bodentiefe, b.Integral_Bodentiefe);
        ASSERT_EQ(a.TWA.size(), b.TWA.size());
        for (std::size_t j = 0; j < a.TWA.size(); ++j) {
            EXPECT_EQ(a.TWA[j].Tage, b.TWA[j].Tage);
            EXPECT_EQ(a.TWA[j].Maximum, b.TWA[j].Maximum);
            EXPECT_EQ(a.TWA[j].Starttag, b.TWA[j].Starttag);
            EXPECT_EQ(a.TWA[j].aktuell, b.TWA[j].aktuell);
        }
    }
};

TEST_F(Dosis, twice_the_rate_doubles_every_concentration_without_a_run) {
    gestartet();
    const float vorher = Maximum();
    const double Wirksame = Werte().Wirksame_Rate;
    EXPECT_TRUE(ohne_Lauf("Applikationsrate", "2000"));
    EXPECT_EQ(Maximum(), 2 * vorher);
    EXPECT_EQ(Werte().Wirksame_Rate, 2 * Wirksame);
    EXPECT_TRUE(s_->Stand().Saetze[Applikation].Geaendert());
}

// Powers of two leave every bit of a number's digits, so nothing is rounded in another way.
TEST_F(Dosis, powers_of_two_are_scaled_to_what_a_run_gives) {
    Parameter_.k_SFO = fuer_alle(0.005);  // slow, so that after ten years no residue is near the end of the range
    Felder_.Berechnungsmodus = zwei_in_Folge;
    Felder_.Applikationsmuster = regelmaessig;
    Felder_.Intervall_Index = 13;
    schreibe_Probe();
    gestartet();
    EXPECT_TRUE(ohne_Lauf("Applikationsrate", "250"));
    erwarte_wie_nach_Lauf();
    EXPECT_TRUE(ohne_Lauf("Interzeption", "50"));
    erwarte_wie_nach_Lauf();
    EXPECT_TRUE(ohne_Lauf("Interzeption", "75"));
    EXPECT_TRUE(ohne_Lauf("Applikationsrate", "8000"));
    erwarte_wie_nach_Lauf();
}

// Any other factor could round a value, and with it the day of a tied peak, in another way: a run is made.
TEST_F(Dosis, the_fast_path_agrees_with_a_run) {
    Parameter_.Kinetik[0] = ueberall(FOMC);
    schreibe_Probe();
    gestartet();
    EXPECT_FALSE(ohne_Lauf("Applikationsrate", "730"));
    EXPECT_FALSE(ohne_Lauf("Interzeption", "35"));
    erwarte_wie_nach_Lauf();
}

TEST_F(Dosis, another_text_of_the_same_rate_needs_no_run_and_is_the_one_of_the_results) {
    gestartet();
    EXPECT_TRUE(ohne_Lauf("Applikationsrate", "1000.0"));
    EXPECT_EQ(Werte().Vorgabe->Applikationsrate.Text(), "1000.0");
    erwarte_wie_nach_Lauf();
}

TEST_F(Dosis, one_that_no_run_takes_is_told_and_covered_in_every_view) {
    gestartet();
    Fragen_.erwarte_Anfang("Runtime error", "The calculation is not possible with these input data. Please correct!");
    tippe("Applikationsrate", "1E300");
    EXPECT_TRUE(s_->Stand().abgedeckt());
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_FALSE(ohne_Lauf("Applikationsrate", "2000"));
    erwarte_wie_nach_Lauf();
}

TEST_F(Felder, a_rate_of_0_by_enter_is_a_run_without_a_dose_and_a_later_rate_a_run_with_one) {
    gestartet();
    const float vorher = Maximum();
    const int f = Feld("Applikationsrate");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "0");
    ASSERT_TRUE(s_->fuehre_aus<&Feldeingabe::bestaetige>(f));
    EXPECT_EQ(Maximum(), 0.0F);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "1000");
    ASSERT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(Maximum(), vorher);
}

TEST_F(Felder, a_dose_typed_back_after_a_refusal_needs_no_scaling) {
    gestartet();
    const float vorher = Maximum();
    const int f = Feld("Applikationsrate");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "");
    Fragen_.erwarte(ungueltig, "The applikations rate is invalid. Please correct!");
    EXPECT_FALSE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    s_->fuehre_aus<&Feldeingabe::betrete>(f);  // the focus comes back
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "1000");
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(Maximum(), vorher);
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Felder, an_interception_left_at_0_reads_0_and_marks_nothing) {
    gestartet();
    const int f = Feld("Interzeption");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(f), "0");
    EXPECT_FALSE(s_->Stand().Saetze[Applikation].Geaendert());
}

TEST_F(Felder, esc_puts_the_last_accepted_text_back) {
    gestartet();
    const int f = Feld("S_DT50_0");
    const std::string vorher = s_->zeige<Feldeingabe>().Text(f);
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "abc");
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(f);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(f), vorher);
    EXPECT_NEAR(k_SFO(*s_), 0.01, 1e-15);
}

TEST_F(Felder, a_command_out_of_an_invalid_field_is_not_done) {
    gestartet();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
    Fragen_.erwarte(ungueltig, DT50);
    s_->fuehre_aus<&Listenwahl::waehle_Muster>(regelmaessig);
    EXPECT_EQ(s_->Stand().Vorgabe.Applikationsmuster, 0);
}

TEST_F(Felder, refresh_out_of_a_changed_field_makes_one_run) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "33");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
}

TEST_F(Felder, showing_a_study_writes_nothing_back) {
    Parameter_.TRef[0][1] = -5;  // a field would refuse it
    Parameter_.k_SFO[0][1] = 0.0123456789012345;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    EXPECT_EQ(s_->Stand().Parameter().TRef[0][1], -5);
    EXPECT_EQ(s_->Stand().Parameter().k_SFO[0][1], 0.0123456789012345);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

}  // namespace
}  // namespace varnok
