#include "batch/aufruf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

using probe::rufe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::variant<Aufruf, Auskunft> lies(std::vector<const char*> Argumente) {
    Argumente.insert(Argumente.begin(), "varnok-batch");
    return lies_Aufruf(static_cast<int>(Argumente.size()), Argumente.data());
}

Aufruf gelesen(const std::vector<const char*>& Argumente) { return std::get<Aufruf>(lies(Argumente)); }

TEST(Aufruf, project_alone_leaves_every_default) {
    const Aufruf a = gelesen({"soil"});
    EXPECT_EQ(a.Projekt, "soil");
    EXPECT_THAT(a.Simulationen, IsEmpty());
    EXPECT_FALSE(a.alle);
    EXPECT_FALSE(a.Studie);
    EXPECT_EQ(a.Arbeiter, 0);
    EXPECT_EQ(a.Teil, 0);
    EXPECT_EQ(a.Teile, 1);
    EXPECT_TRUE(a.Tabelle());
}

TEST(Aufruf, each_simulation_option_takes_one_name_so_the_project_may_follow) {
    const Aufruf a = gelesen({"--simulation", "a", "--simulation=b c", "soil"});
    EXPECT_THAT(a.Simulationen, ElementsAre("a", "b c"));
    EXPECT_EQ(a.Projekt, "soil");
}

TEST(Aufruf, simulation_name_in_brackets_is_one_name) {
    EXPECT_THAT(gelesen({"--simulation", "[a,b]", "soil"}).Simulationen, ElementsAre("[a,b]"));
}

TEST(Aufruf, all_options_are_read) {
    const Aufruf a = gelesen({"--all", "--study", "2", "--json", "-", "--csv", "c.csv", "--series", "s", "--jobs", "3", "--shard",
                              "1/4", "--settings", "x.ini", "--quiet", "soil"});
    EXPECT_TRUE(a.alle);
    EXPECT_EQ(a.Studie, 2);
    EXPECT_EQ(a.JSON_Datei, "-");
    EXPECT_EQ(a.CSV_Datei, "c.csv");
    EXPECT_EQ(a.Serienordner, "s");
    EXPECT_EQ(a.Arbeiter, 3);
    EXPECT_EQ(a.Teil, 1);
    EXPECT_EQ(a.Teile, 4);
    EXPECT_EQ(a.Einstellungsdatei, "x.ini");
    EXPECT_TRUE(a.leise);
}

TEST(Aufruf, any_output_file_takes_the_place_of_the_table) {
    EXPECT_FALSE(gelesen({"--json", "j", "soil"}).Tabelle());
    EXPECT_FALSE(gelesen({"--csv", "c", "soil"}).Tabelle());
    EXPECT_FALSE(gelesen({"--series", "s", "soil"}).Tabelle());
    EXPECT_FALSE(gelesen({"--quiet", "soil"}).Tabelle());
}

class Falscher_Aufruf : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(Falscher_Aufruf, is_found_before_any_folder_is_looked_at) {
    std::vector<const char*> Argumente;
    for (const std::string& a : GetParam()) Argumente.push_back(a.c_str());
    EXPECT_THROW(lies(Argumente), Aufruffehler);
}

TEST_P(Falscher_Aufruf, has_status_2_one_message_and_no_output) {
    const auto r = rufe(GetParam());
    EXPECT_EQ(r.Status, 2);
    EXPECT_EQ(r.aus, "");
    EXPECT_THAT(r.fehler, StartsWith("varnok-batch: "));
    EXPECT_GT(r.fehler.size(), std::string("varnok-batch: \n").size());
}

using A = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(
    Aufruf, Falscher_Aufruf,
    testing::Values(A{}, A{"--all"}, A{"--unknown", "soil"}, A{"soil", "second"}, A{"--json"}, A{"soil", "--json"},
                    A{"--json", "a", "--json", "b", "soil"}, A{"--study", "0", "soil"}, A{"--study", "-1", "soil"},
                    A{"--study", "1.5", "soil"}, A{"--study", "one", "soil"}, A{"--study", "99999999999999999999", "soil"},
                    A{"--study", "", "soil"}, A{"--jobs", "-1", "soil"}, A{"--jobs", "many", "soil"}, A{"--jobs", "1025", "soil"},
                    A{"--shard", "1", "soil"}, A{"--shard", "2/2", "soil"}, A{"--shard", "-1/2", "soil"},
                    A{"--shard", "0/0", "soil"}, A{"--shard", "1/2/3", "soil"}, A{"--shard", "/", "soil"},
                    A{"--shard", "a/b", "soil"}, A{"--json", "-", "--csv", "-", "soil"}, A{"--json", "", "soil"},
                    A{"--simulation", "", "soil"}, A{"--all", "--simulation", "x", "soil"}, A{""}, A{"--extended", "soil"},
                    A{"--vary", "a", "--sample", "b", "--draws", "3", "soil"}, A{"--sample", "b", "soil"},
                    A{"--draws", "3", "soil"}, A{"--seed", "3", "soil"}, A{"--resume", "soil"},
                    A{"--sample", "b", "--draws", "0", "soil"},
                    A{"--sample", "b", "--draws", "1", "--seed", "4294967296", "soil"},
                    A{"--sample", "b", "--draws", "1", "--seed", "", "soil"},
                    A{"--sample", "b", "--draws", "1", "--seed", "-1", "soil"}, A{"--json-lines", "-", "--resume", "soil"},
                    A{"--sqlite", "-", "soil"}, A{"--json-lines", "a", "--resume", "--csv", "b", "soil"}, A{"--merge", "a", "b"},
                    A{"--check", "--summary", "a", "soil"}, A{"--records", "a", "--json", "b", "soil"},
                    A{"--json", "c", "--csv", "d", "--merge", "a", "b"}));

TEST(Aufruf, message_of_a_number_out_of_range_names_option_and_text) {
    EXPECT_THAT(rufe({"--study", "0x10", "soil"}).fehler, HasSubstr("--study: \"0x10\""));
    EXPECT_THAT(rufe({"--shard", "4/4", "soil"}).fehler, HasSubstr("--shard: \"4/4\""));
    EXPECT_THAT(rufe({"--jobs", "010a", "soil"}).fehler, HasSubstr("--jobs: \"010a\""));
}

TEST(Aufruf, leading_zeros_do_not_mean_octal) { EXPECT_EQ(gelesen({"--study", "010", "soil"}).Studie, 10); }

TEST(Aufruf, version_is_told_on_standard_output_with_status_0) {
    const auto r = rufe({"--version"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.aus, "VARNOK 2.0 (21 September 2018)\n");
    EXPECT_EQ(r.fehler, "");
}

TEST(Aufruf, help_names_every_option_and_shows_an_example) {
    const auto r = rufe({"--help"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.fehler, "");
    for (const char* Option :
         {"PROJECT",   "--simulation", "--all",     "--study",  "--json",   "--csv",         "--series", "--jobs",
          "--shard",   "--settings",   "--quiet",   "--set",    "--vary",   "--sample",      "--draws",  "--seed",
          "--summary", "--json-lines", "--resume",  "--sqlite", "--inputs", "--series-full", "--check",  "--records",
          "--merge",   "--help-names", "--version", "--help",   "Example",  "Exit status"}) {
        EXPECT_THAT(r.aus, HasSubstr(Option));
    }
}

TEST(Aufruf, no_arguments_at_all_not_even_a_program_name) {
    std::ostringstream aus, fehler;
    EXPECT_EQ(varnok_batch(0, nullptr, aus, fehler, {[] { return false; }}), 2);
    EXPECT_THAT(fehler.str(), HasSubstr("PROJECT"));
}

}  // namespace
}  // namespace varnok::batch
