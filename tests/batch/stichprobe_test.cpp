// Variants drawn from distributions, and percentiles over them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "base/zahlen.h"
#include "batch/aufruf.h"
#include "batch/perzentile.h"
#include "batch/probeprojekt.h"
#include "batch/variantenquelle.h"
#include "batch/verteilung.h"

namespace varnok::batch {
namespace {

using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::HasSubstr;

constexpr const char* Kopf = "name,distribution,a,b,c,correlated_with,rank_correlation\n";

struct Ziehungen : testing::Test {
    Probeprojekt Projekt;
    Ziehungen() { Projekt.schreibe("s"); }

    std::string schreibe(const std::string& Zeilen, const std::string& Name = "u.csv") const {
        Projekt.schreibe_Bytes("../../" + Name, Name == "u.csv" ? Kopf + Zeilen : Zeilen);
        return Projekt.daneben(Name);
    }
    // The values of each name over all draws.
    std::vector<std::vector<double>> gezogen(const std::string& Zeilen, std::size_t Anzahl, std::uint32_t Saat = 1) const {
        const Projektordner Ordner(Projekt.Pfad());
        const auto Quelle = Stichprobe(schreibe(Zeilen), Anzahl, Saat, Ordner);
        std::vector<std::vector<double>> Reihen(Quelle->Namen().size());
        for (std::size_t i = 0; i < Anzahl; ++i) {
            const Variante v = Quelle->naechste();
            EXPECT_EQ(v.Reihe, i + 1);
            for (std::size_t j = 0; j < Reihen.size(); ++j) Reihen[j].push_back(v.Werte[j].Zahl());
        }
        return Reihen;
    }
    std::string abgelehnt(const std::string& Zeilen) const {
        const auto r = rufe({"--sample", schreibe(Zeilen), "--draws", "10", "--json", "-", Projekt.Pfad()});
        EXPECT_EQ(r.Status, 2);
        EXPECT_EQ(r.aus, "");
        return r.fehler;
    }
};

double Anteil_unter(const std::vector<double>& Werte, double Grenze) {
    return static_cast<double>(std::count_if(Werte.begin(), Werte.end(), [&](double x) { return x < Grenze; })) /
           static_cast<double>(Werte.size());
}

std::vector<double> Raenge(const std::vector<double>& Werte) {
    std::vector<std::size_t> Ordnung(Werte.size());
    std::iota(Ordnung.begin(), Ordnung.end(), std::size_t{0});
    std::sort(Ordnung.begin(), Ordnung.end(), [&](std::size_t a, std::size_t b) { return Werte[a] < Werte[b]; });
    std::vector<double> R(Werte.size());
    for (std::size_t i = 0; i < Ordnung.size(); ++i) R[Ordnung[i]] = static_cast<double>(i);
    return R;
}

double Rangkorrelation(const std::vector<double>& a, const std::vector<double>& b) {
    const auto x = Raenge(a), y = Raenge(b);
    const double m = static_cast<double>(x.size() - 1) / 2;
    double xy = 0, xx = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        xy += (x[i] - m) * (y[i] - m);
        xx += (x[i] - m) * (x[i] - m);
    }
    return xy / xx;
}

TEST_F(Ziehungen, draw_depends_on_seed_and_number_alone) {
    const auto zehn = gezogen("rate,uniform,1,2,,,\nKoc,normal,100,10,,,\n", 10);
    const auto hundert = gezogen("rate,uniform,1,2,,,\nKoc,normal,100,10,,,\n", 100);
    EXPECT_TRUE(std::equal(zehn[1].begin(), zehn[1].end(), hundert[1].begin()));
    EXPECT_NE(gezogen("rate,uniform,1,2,,,\n", 1, 2)[0], gezogen("rate,uniform,1,2,,,\n", 1, 1)[0]);
}

// The stream as it is told: one 64-bit number for each name and try.
TEST_F(Ziehungen, numbers_are_those_of_the_generator) {
    const auto Werte = gezogen("rate,uniform,0,1,,,\nKoc,uniform,10,30,,,\n", 3, 77);
    for (std::uint32_t i = 1; i <= 3; ++i) {
        std::seed_seq Saat{77U, i};
        std::mt19937_64 Generator(Saat);
        const double u1 = (static_cast<double>(Generator() >> 12) + 0.5) / std::pow(2.0, 52);
        const double u2 = (static_cast<double>(Generator() >> 12) + 0.5) / std::pow(2.0, 52);
        EXPECT_EQ(Werte[0][i - 1], wie_im_Satz(u1));
        EXPECT_EQ(Werte[1][i - 1], wie_im_Satz(10 + u2 * 20));
    }
}

// A share p of n draws lies within four standard deviations of its expectation.
TEST_F(Ziehungen, distributions_have_their_quantiles) {
    constexpr std::size_t n = 20000;
    const auto Werte = gezogen(
        "rate,normal,100,15,,,\nKoc,lognormal,50,1.5,,,\ninterception,uniform,20,60,,,\ndensity,triangular,1,1.2,1.8,,\n", n);
    const auto pruefe = [&](std::size_t j, double Grenze, double p) {
        EXPECT_NEAR(Anteil_unter(Werte[j], Grenze), p, 4 * std::sqrt(p * (1 - p) / n)) << Grenze;
    };
    pruefe(0, 100, 0.5);
    pruefe(0, 115, 0.8413447);
    pruefe(1, 50, 0.5);
    pruefe(1, 50 / 1.5, 0.1586553);  // 68 % lie between a/b and a*b
    pruefe(1, 50 * 1.5, 0.8413447);
    pruefe(2, 30, 0.25);
    pruefe(3, 1.2, 0.2 / 0.8);
    pruefe(3, 1.5, 1 - 0.3 * 0.3 / (0.8 * 0.6));
}

TEST_F(Ziehungen, truncated_to_the_range_of_the_field) {
    const auto Werte = gezogen("interception,normal,95,10,,,\n", 5000)[0];
    EXPECT_LT(*std::max_element(Werte.begin(), Werte.end()), 100);
    EXPECT_GE(*std::min_element(Werte.begin(), Werte.end()), 0);
    EXPECT_GT(Anteil_unter(Werte, 95), 0.6);  // half of the mass above the mean is gone in part
    EXPECT_THAT(abgelehnt("interception,normal,500,1,,,\n"), HasSubstr("10000 values in a row fell outside"));
}

TEST_F(Ziehungen, rank_correlation_is_the_one_asked_for) {
    constexpr std::size_t n = 20000;
    for (const char* Rang : {"0.7", "-0.4"}) {
        const auto Werte = gezogen(std::string("Koc,lognormal,50,2,,,\nrate,uniform,1,2,,Koc,") + Rang + "\n", n);
        // The standard error of a rank correlation is at most 1/sqrt(n - 1).
        EXPECT_NEAR(Rangkorrelation(Werte[0], Werte[1]), fuehrende_Zahl(Rang), 4 / std::sqrt(n - 1.0));
        EXPECT_NEAR(Anteil_unter(Werte[1], 1.25), 0.25, 4 * std::sqrt(0.25 * 0.75 / n));  // and its own distribution stays
    }
    const auto ganz = gezogen("Koc,lognormal,50,2,,,\nrate,uniform,1,2,,Koc,1\n", 100);
    EXPECT_EQ(Raenge(ganz[0]), Raenge(ganz[1]));
}

double Phi(double z) { return std::erfc(-z / std::sqrt(2.0)) / 2; }

double Normalpunkt(double u) {
    double unten = -40, oben = 40;
    for (int i = 0; i < 200; ++i) (Phi((unten + oben) / 2) < u ? unten : oben) = (unten + oben) / 2;
    return unten;
}

// A value outside its range takes the next number of the same stream, and what goes along with it the score that was accepted.
TEST_F(Ziehungen, score_passed_on_is_that_of_the_accepted_draw) {
    const auto Werte = gezogen("interception,normal,95,10,,,\nKoc,uniform,10,30,,interception,0.5\n", 200, 7);
    const double r = 2 * std::sin(std::acos(-1.0) / 6 * 0.5);
    int verworfene = 0;
    for (std::uint32_t i = 1; i <= 200; ++i) {
        std::seed_seq Saat{7U, i};
        std::mt19937_64 Generator(Saat);
        const auto Punkt = [&] { return Normalpunkt((static_cast<double>(Generator() >> 12) + 0.5) / std::pow(2.0, 52)); };
        double erster = Punkt();
        for (; 95 + 10 * erster >= 100 || 95 + 10 * erster < 0; ++verworfene) erster = Punkt();
        EXPECT_NEAR(Werte[0][i - 1], 95 + 10 * erster, 1e-6);
        EXPECT_NEAR(Werte[1][i - 1], 10 + 20 * Phi(r * erster + std::sqrt(1 - r * r) * Punkt()), 1e-6);
    }
    EXPECT_GT(verworfene, 20);
}

TEST_F(Ziehungen, lists_give_their_values_with_their_weights) {
    constexpr std::size_t n = 20000;
    schreibe("value,weight\n30,1\n10,3\n", "d.csv");
    schreibe("5\n7\n6\n7\n", "e.csv");
    schreibe("SFO,1\nFOMC,1\n", "k.csv");
    const auto Werte = gezogen("Koc,discrete,d.csv,,,,\nrate,empirical,e.csv,,,,\nkinetics,discrete,k.csv,,,,\n", n);
    const double e = 4 * std::sqrt(0.25 * 0.75 / n);
    EXPECT_NEAR(Anteil_unter(Werte[0], 20), 0.75, e);
    EXPECT_NEAR(Anteil_unter(Werte[1], 6), 0.25, e);
    EXPECT_NEAR(Anteil_unter(Werte[1], 7), 0.5, 1.2 * e);
    EXPECT_NEAR(Anteil_unter(Werte[2], 1), 0.5, 1.2 * e);
}

TEST_F(Ziehungen, bad_line_is_told_with_row_and_column) {
    EXPECT_THAT(abgelehnt("Koc,normal,100,0,,,\n"), HasSubstr("row 1 (line 2), column b: the deviation b must be above 0"));
    EXPECT_THAT(abgelehnt("rate,uniform,1,2,,,\nKoc,normal,ten,0,,,\n"), HasSubstr("row 2 (line 3), column a: \"ten\""));
    EXPECT_THAT(abgelehnt("Koc,weibull,1,2,,,\n"), HasSubstr("column distribution: \"weibull\""));
    EXPECT_THAT(abgelehnt("Koc,lognormal,0,2,,,\n"), HasSubstr("median"));
    EXPECT_THAT(abgelehnt("Koc,uniform,3,2,,,\n"), HasSubstr("a must be below b"));
    EXPECT_THAT(abgelehnt("Koc,triangular,1,5,3,,\n"), HasSubstr("mode"));
    EXPECT_THAT(abgelehnt("Koc,uniform,1,2,3,,\n"), HasSubstr("column c"));
    EXPECT_THAT(abgelehnt("foo,uniform,1,2,,,\n"), HasSubstr("column name: foo"));
    EXPECT_THAT(abgelehnt("Koc,uniform,1,2,,,\nKoc,uniform,1,2,,,\n"), HasSubstr("twice"));
    EXPECT_THAT(abgelehnt("Koc,uniform,1,2,,rate,0.5\n"), HasSubstr("earlier line"));
    EXPECT_THAT(abgelehnt("rate,uniform,1,2,,,\nKoc,uniform,1,2,,rate,1.5\n"), HasSubstr("outside -1 to 1"));
    EXPECT_THAT(abgelehnt("rate,uniform,1,2,,,\nKoc,uniform,1,2,,rate,\n"), HasSubstr("column rank_correlation"));
    EXPECT_THAT(abgelehnt("temperature,uniform,1,20,,,\n"), HasSubstr("single values"));
    EXPECT_THAT(abgelehnt("Koc,discrete,none.csv,,,,\n"), HasSubstr("none.csv"));
    schreibe("-5,1\n", "d.csv");
    EXPECT_THAT(abgelehnt("Koc,discrete,d.csv,,,,\n"), HasSubstr("file d.csv, line 1: Koc: \"-5\" lies outside"));
    schreibe("1e400\n5\n", "e.csv");
    EXPECT_THAT(abgelehnt("Koc,empirical,e.csv,,,,\n"), HasSubstr("file e.csv, line 1: Koc: \"1e400\" is too large"));
    EXPECT_THAT(abgelehnt(""), HasSubstr("no line below the head"));
    Projekt.schreibe_Bytes("../../h.csv", "name,a\nKoc,1\n");
    EXPECT_THAT(rufe({"--sample", Projekt.daneben("h.csv"), "--draws", "1", Projekt.Pfad()}).fehler,
                HasSubstr("line 1: the head"));
}

TEST(Perzentile, lie_between_order_statistics) {
    const std::vector<double> Werte = {1, 2, 4, 8, 16};
    EXPECT_EQ(Perzentil(Werte, 0), 1);
    EXPECT_EQ(Perzentil(Werte, 0.5), 4);
    EXPECT_EQ(Perzentil(Werte, 0.05), 1.2);
    EXPECT_DOUBLE_EQ(Perzentil(Werte, 0.95), 14.4);
    EXPECT_EQ(Perzentil({7}, 0.95), 7);
}

// One dose a year under SFO at constant climate: the plateau is D x / (1 - x) with x = exp(-365 ln2 / DT50), rising in DT50, so
// its percentiles are those of the DT50 put in.
TEST_F(Ziehungen, percentiles_of_a_plateau_are_those_of_the_closed_form) {
    constexpr double Median = 200, Faktor = 1.4, n = 4000;
    schreibe("DT50,lognormal,200,1.4,,,\n");
    const auto r = rufe({"--sample", Projekt.daneben("u.csv"), "--draws", "4000", "--summary", "-", Projekt.Pfad()});
    ASSERT_EQ(r.Status, 0) << r.fehler;
    const double Dosis = 1000.0 / (1.5 * 20 * 100);  // mg/kg in the tillage layer: g/ha over kg/L, cm
    const auto Plateau = [&](double DT50) {
        const double x = std::exp(-365 * std::log(2.0) / DT50);
        return Dosis * x / (1 - x);
    };
    const auto Zeilen = probe::Zeilen(r.aus, "\r\n");
    ASSERT_EQ(Zeilen[0], "simulation,study,compound,endpoint,unit,result,n,minimum,p5,p50,p95,maximum,mean");
    const auto Zeile = std::find_if(Zeilen.begin(), Zeilen.end(),
                                    [](const auto& z) { return z.starts_with("s,1,0,total soil,mg/kg,plateau,4000,"); });
    ASSERT_NE(Zeile, Zeilen.end());
    const auto Zellen = probe::Zeilen(*Zeile, ",");
    const struct {
        std::size_t Spalte;
        double p, z;
    } Erwartet[] = {{8, 0.05, -1.6448536}, {9, 0.5, 0}, {10, 0.95, 1.6448536}};
    for (const auto& e : Erwartet) {
        // The p of the draws below the true percentile has a standard error of sqrt(p (1 - p) / n); the bounds are its images.
        const double Fehler = 4 * std::sqrt(e.p * (1 - e.p) / n);
        const auto Grenze = [&](double p) { return Plateau(Median * std::exp(std::log(Faktor) * Normalwert(p))); };
        EXPECT_GT(fuehrende_Zahl(Zellen[e.Spalte]), Grenze(e.p - Fehler)) << e.p;
        EXPECT_LT(fuehrende_Zahl(Zellen[e.Spalte]), Grenze(e.p + Fehler)) << e.p;
        EXPECT_NEAR(Normalwert(e.p), e.z, 1e-6);
    }
}

TEST_F(Ziehungen, summary_of_one_simulation_holds_its_results) {
    const auto r = rufe({"--set", "rotation=2", "--summary", Projekt.daneben("s.csv"), "--json", "-", Projekt.Pfad()});
    const auto e = r.JSON()["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0];
    const double Maximum = e["Maximum_Bodentiefe"], Plateau = e["Plateauwert"];
    const std::string Text = Inhalt(Projekt.daneben("s.csv"));
    const auto Zeile = [&](const std::string& Name, double Wert) {
        const std::string w = genaue_Zahl(Wert);
        return "s,1,0,total soil,mg/kg," + Name + ",1," + w + "," + w + "," + w + "," + w + "," + w + "," + w + "\r\n";
    };
    EXPECT_THAT(Text, HasSubstr(Zeile("maximum", Maximum)));
    EXPECT_THAT(Text, HasSubstr(Zeile("plateau", Plateau)));
    EXPECT_THAT(Text, HasSubstr(Zeile("maximum_plus_plateau", Plateau / 2 + Maximum)));
    EXPECT_THAT(Text, HasSubstr(Zeile("twa_7", e["TWA"][3]["maximum"].get<double>())));
}

}  // namespace
}  // namespace varnok::batch
