// Names of the reports' files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDateTime>
#include <QLocale>

#include "base/laufzeitfehler.h"
#include "berichtsprobe.h"

namespace varnok::probe {
namespace {

Lauf_bauer Grundlage() {
    Lauf_bauer b;
    b.Felder.Beschreibung = "Wheat";
    b.Felder.Studie = {"north", "south"};
    b.Sicht.Studie_Index = 1;
    b.Felder.Parameter.Kinetik[0][1] = FOMC;
    b.Felder.Parameter.Kinetik[1][1] = DFOP;
    return b;
}

Darstellungsprobe mit_Teilen(Lauf_bauer b, unsigned Muster) {
    for (unsigned i = 0; i < 7; ++i) b.Felder.Parameter.Ausgabename_Teile[i] = (Muster >> i) & 1U;
    Darstellungsprobe p = leere_Probe(b);
    p.Studie(b.Sicht.Studie_Index);
    return p;
}

constexpr unsigned alle = 0x7F;
constexpr unsigned bit(unsigned i) { return 1U << i; }

TEST(Ausgabename, without_flags_is_the_description) {
    EXPECT_EQ(Ausgabename_Standardbericht(mit_Teilen(Grundlage(), 0), Zeitpunkt), "Wheat");
    EXPECT_EQ(Ausgabename_erweiterter_Bericht(mit_Teilen(Grundlage(), 0), Zeitpunkt), "Wheat");
}

TEST(Ausgabename, with_all_flags) {
    Lauf_bauer b = Grundlage().Schema(2);
    EXPECT_EQ(Ausgabename_Standardbericht(mit_Teilen(b, alle), Zeitpunkt),
              "Wheat - south - (FOMC - DFOP - SFO) - total soil conc - 21 Nov 2025 - 14.05");
    b.Sicht.Endpunkt = Porenwasser;
    EXPECT_EQ(Ausgabename_erweiterter_Bericht(mit_Teilen(b, alle), Zeitpunkt),
              "Wheat - pore water conc - 1 year - 21 Nov 2025 - 14.05");
}

// Each flag adds its part and no other, in a fixed order.
TEST(Ausgabename, every_combination_of_flags) {
    const char* const Standard[7] = {"", " - south", " - FOMC", " - total soil conc", " - 21 Nov 2025", " - 14.05", ""};
    const char* const erweitert[7] = {"", "", "", " - total soil conc", " - 10 years", " - 21 Nov 2025", " - 14.05"};
    Lauf_bauer b = Grundlage();
    b.Sicht.PEC_Typ = Hintergrund;
    for (unsigned Muster = 0; Muster <= alle; ++Muster) {
        std::string s = "Wheat", e = "Wheat";
        for (unsigned i = 0; i < 7; ++i) {
            if ((Muster & bit(i)) == 0) continue;
            s += Standard[i];
            e += erweitert[i];
        }
        const Darstellungsprobe l = mit_Teilen(b, Muster);
        EXPECT_EQ(Ausgabename_Standardbericht(l, Zeitpunkt), s) << Muster;
        EXPECT_EQ(Ausgabename_erweiterter_Bericht(l, Zeitpunkt), e) << Muster;
    }
}

TEST(Ausgabename, kinetics_of_the_scheme) {
    const auto Name = [](int Schema) {
        return Ausgabename_Standardbericht(mit_Teilen(Grundlage().Schema(Schema), bit(2)), Zeitpunkt);
    };
    EXPECT_EQ(Name(0), "Wheat - FOMC");
    EXPECT_EQ(Name(1), "Wheat - (FOMC - DFOP)");
    EXPECT_EQ(Name(2), "Wheat - (FOMC - DFOP - SFO)");
    EXPECT_EQ(Name(3), "Wheat - (FOMC - DFOP - SFO)");
}

TEST(Ausgabename, year_of_the_extended_report_follows_the_view) {
    Lauf_bauer b = Grundlage();
    for (const PEC_Ansicht Art : {jaehrlich, Anreicherung}) {
        b.Sicht.PEC_Typ = Art;
        EXPECT_EQ(Ausgabename_erweiterter_Bericht(mit_Teilen(b, bit(4)), Zeitpunkt), "Wheat - 1 year");
    }
    b.Sicht.PEC_Typ = Hintergrund;
    EXPECT_EQ(Ausgabename_erweiterter_Bericht(mit_Teilen(b, bit(4)), Zeitpunkt), "Wheat - 10 years");
}

TEST(Ausgabename, a_flag_is_1_and_nothing_else) {
    Darstellungsprobe l = mit_Teilen(Grundlage(), 0);
    l.Felder.Parameter.Ausgabename_Teile[1] = 2;
    EXPECT_EQ(Ausgabename_Standardbericht(l, Zeitpunkt), "Wheat");
}

TEST(Ausgabename, time_is_made_safe) {
    EXPECT_EQ(Datum_als_Text({"03 May 2026", "14:05"}), "03 May 2026");
    EXPECT_EQ(Zeit_als_Text({"03 May 2026", "14:05"}), "14.05");
}

class feste_Uhr : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override {
        return std::chrono::system_clock::time_point(std::chrono::seconds(1763733909));
    }
};

TEST(Ausgabename, moment_of_the_clock_is_local_time_and_the_same_in_every_region) {
    const QDateTime Ort = QDateTime::fromSecsSinceEpoch(1763733909);
    const std::string Tag = QLocale::c().toString(Ort, QStringLiteral("dd MMM yyyy")).toStdString();
    const QLocale vorher;
    for (const QLocale::Language Sprache : {QLocale::German, QLocale::Arabic, QLocale::English}) {
        QLocale::setDefault(QLocale(Sprache));
        const Berichtszeit z = Berichtszeit_nach(feste_Uhr());
        EXPECT_EQ(z.Datum, Tag);
        EXPECT_EQ(z.Zeit, Ort.toString(QStringLiteral("HH:mm")).toStdString());
    }
    QLocale::setDefault(vorher);
}

// A report is never refused for its name.
using Namenspaar = std::pair<std::string, std::string>;
class schwieriger_Name : public ::testing::TestWithParam<Namenspaar> {};

TEST_P(schwieriger_Name, becomes_one_that_a_file_can_have) {
    auto l = mit_Ergebnissen({});
    l.Felder.Beschreibung = GetParam().first;
    EXPECT_EQ(Bericht_von(l).Name, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Ausgabename, schwieriger_Name,
                         ::testing::Values(Namenspaar("", "_"), Namenspaar(".", "_"), Namenspaar("..", "__"),
                                           Namenspaar("Field A/B", "Field A_B"), Namenspaar("a\\b", "a_b"),
                                           Namenspaar("tab\tin it", "tab_in it"), Namenspaar("line\nend", "line_end"),
                                           Namenspaar("\xC2\x9B"
                                                      "31m",
                                                      "_31m"),
                                           Namenspaar("100 % \"x\"", "100 % _x_"),
                                           Namenspaar(std::string(241, 'x'), std::string(240, 'x'))));

TEST(Ausgabename, study_with_a_slash_is_replaced_where_it_is_part_of_the_name) {
    Lauf_bauer b;
    b.Felder.Studie = {"clay/loam"};
    EXPECT_EQ(Bericht_von(mit_Ergebnissen(b)).Name, "the problem");
    b.Felder.Parameter.Ausgabename_Teile[1] = 1;
    EXPECT_EQ(Bericht_von(mit_Ergebnissen(b)).Name, "the problem - clay_loam");
}

}  // namespace
}  // namespace varnok::probe
