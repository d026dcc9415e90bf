#include "extras/versionstexte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace varnok {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

using Zeilen = std::vector<std::string>;

Zeilen alle_Zeilen() {
    Zeilen Liste;
    std::string Text = Versionstext();
    for (std::size_t Ende = Text.find("\r\n"); Ende != std::string::npos; Ende = Text.find("\r\n")) {
        Liste.push_back(Text.substr(0, Ende));
        Text.erase(0, Ende + 2);
    }
    EXPECT_EQ(Text, "") << "the last line has no end";
    return Liste;
}

const std::string Strich(40, '-');

// The lines below the heading of a release.
Zeilen Block(const std::string& Datum) {
    const Zeilen Liste = alle_Zeilen();
    auto Anfang = std::find(Liste.begin(), Liste.end(), "Version 2.0 (" + Datum + ")");
    if (Anfang == Liste.end()) return {"no such release"};
    const auto Ende = std::find_if(++Anfang, Liste.end(), [](const auto& z) { return z.empty() || ist_Versionskopf(z); });
    return {Anfang, Ende};
}

TEST(Versionstexte, has_20_releases_the_newest_first) {
    std::vector<std::string> Koepfe;
    for (const std::string& z : alle_Zeilen()) {
        if (z.starts_with("Version 2.0 (")) Koepfe.push_back(z.substr(13, z.size() - 14));
    }
    EXPECT_THAT(Koepfe, ElementsAre("21 September 2018", "5 September 2017", "18 November 2016", "5 November 2015",
                                    "28 July 2015", "26 June 2015", "23 Feb 2015", "28 Jan 2014", "14 Jan 2014", "27 Nov 2012",
                                    "29 Aug 2012", "08 Oct 2011", "10 Jan 2011", "27 Oct 2010", "11 May 2010", "20 Apr 2010",
                                    "6 Nov 2009", "21 Oct 2009", "06 Oct 2009", "06 Aug 2009"));
}

TEST(Versionstexte, begins_with_the_newest_heading) {
    EXPECT_TRUE(Versionstext().starts_with("Version 2.0 (21 September 2018)\r\n"));
}

// Letter by letter, with the slips that they were published with.
TEST(Versionstexte, keeps_the_wording_of_the_published_notes) {
    const std::map<std::string, Zeilen> Notizen = {
        {"21 September 2018",
         {"The estimation of the final plateau for non-SFO-kinetics was improved by implementing an exponential equation instead "
          "of a polynom.",
          "It will only influence the PEC of very persistent compounds.", Strich}},
        {"5 September 2017",
         {"In the new version the time dependent concentrations in soil are additionally written in an ASCII-file.", Strich,
          "The consideration of daily weather data was disabled due to accuracy problems.", Strich}},
        {"18 November 2016",
         {"In the previous version sometimes a wrong warning was shown that the final plateau wasn't reached though the "
          "substance "
          "degraded fast.",
          Strich}},
        {"5 November 2015",
         {"In the previous version the user could select plateau depths smaller than the soil depth.", Strich}},
        {"28 July 2015",
         {"In rare situations negative plateau concentrations could be simulationed due to rounding errors.", Strich}},
        {"26 June 2015",
         {"If steady state conditions were not reached after 10 years the estimation of the fraction of the plateau was "
          "sometimes "
          "estimated wrongly.",
          Strich}},
        {"27 Nov 2012",
         {"A new option was implemented in addition to variable climatic condition.",
          "When using the new feature VARNOK will consider the theoretical platau",
          "instead of estimations based on the accumulation in the first 10 years.", Strich}},
        {"29 Aug 2012",
         {"There was a problem for substances with short half lives ",
          "in combination with SFO-kintics without temperature and soil moisture correction", "which ended in an overflow-error.",
          Strich}},
        {"27 Oct 2010",
         {"A new list box has been added which allows the user to consider crop rotation.",
          "A linear reduction factor was introduced to correct the background concentration",
          "Please notice that the effect of crop rotation is only shown in the tabular output.",
          "The graphical output is still related to applications every year.", Strich}},
        {"06 Oct 2009", {"In the previous versions the soil moisture correction for metabolites was done wrongly. ", Strich}},
    };
    for (const auto& [Datum, Text] : Notizen) EXPECT_THAT(Block(Datum), ElementsAreArray(Text)) << Datum;
}

TEST(Versionstexte, tells_the_subject_of_the_other_releases) {
    const std::map<std::string, const char*> Woerter = {
        {"23 Feb 2015", "folder"},    {"28 Jan 2014", "crash"},      {"14 Jan 2014", "twice"},
        {"08 Oct 2011", "Windows 7"}, {"10 Jan 2011", "server"},     {"11 May 2010", "program defaults"},
        {"20 Apr 2010", "reloads"},   {"6 Nov 2009", "simulations"}, {"21 Oct 2009", "DFOP"},
    };
    for (const auto& [Datum, Wort] : Woerter) {
        const Zeilen b = Block(Datum);
        ASSERT_EQ(b.size(), 2u) << Datum;
        EXPECT_NE(b[0].find(Wort), std::string::npos) << b[0];
        EXPECT_EQ(b[1], Strich);
    }
}

TEST(Versionstexte, closes_each_note_with_a_separator_of_40_hyphens) {
    for (const Version& v : Versionen()) {
        const Zeilen b = Block(v.Datum);
        EXPECT_EQ(static_cast<std::size_t>(std::count(b.begin(), b.end(), Strich)), v.Notizen.size()) << v.Datum;
    }
}

TEST(Versionstexte, the_oldest_release_is_its_heading_alone) { EXPECT_EQ(Block("06 Aug 2009"), Zeilen()); }

TEST(Versionstexte, ends_with_the_heading_of_the_oldest_release) {
    EXPECT_EQ(alle_Zeilen().back(), "Version 2.0 (06 Aug 2009)");
    EXPECT_THAT(alle_Zeilen(), ::testing::Not(::testing::Contains("")));
}

TEST(Versionstexte, notes_of_this_edition_are_sentences_of_their_own) {
    ASSERT_FALSE(Ausgabenotizen().empty());
    for (const std::string& n : Ausgabenotizen()) {
        EXPECT_EQ(n.back(), '.') << n;
        EXPECT_EQ(Versionstext().find(n), std::string::npos) << n;
    }
}

TEST(Versionstexte, knows_its_headings_and_separators) {
    EXPECT_TRUE(ist_Versionskopf("Version 2.0 (23 Feb 2015)"));
    EXPECT_FALSE(ist_Versionskopf("In the previous version the input files were saved twice."));
    EXPECT_TRUE(ist_Trennzeile(Strich));
    EXPECT_FALSE(ist_Trennzeile(std::string(39, '-')));
}

}  // namespace
}  // namespace varnok
