// Whole runs: every folder of tests/cases is a project of its own with records in `input` and what is expected of it,
// and why, in `expected.json`.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>

#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using JSON = nlohmann::ordered_json;

// A number that is not finite is never within a tolerance.
struct Toleranz {
    double relativ = 0;
    double absolut = 0;

    explicit Toleranz(const JSON& t) : relativ(t.at("relative")), absolut(t.at("absolute")) {}
    bool gleich(double erwartet, double bekommen) const {
        return std::isfinite(bekommen) && std::abs(bekommen - erwartet) <= absolut + relativ * std::abs(erwartet);
    }
};

std::vector<std::string> Faelle() {
    std::vector<std::string> Namen;
    for (const auto& Eintrag : fs::directory_iterator(VARNOK_TESTORDNER "/cases")) {
        if (fs::exists(Eintrag.path() / "expected.json")) Namen.push_back(Eintrag.path().filename().string());
    }
    std::sort(Namen.begin(), Namen.end());
    return Namen;
}

class Fall : public testing::TestWithParam<std::string> {};

void pruefe(const JSON& Dokument, const JSON& Erwartung, const Toleranz& Ueblich) {
    const std::string Pfad = Erwartung.at("path");
    const std::string Grund = Erwartung.at("why");
    EXPECT_GT(Grund.size(), 5U) << Pfad << ": an expected value needs its reason";
    const JSON::json_pointer Zeiger(Pfad);
    ASSERT_TRUE(Dokument.contains(Zeiger)) << Pfad;
    const JSON& bekommen = Dokument.at(Zeiger);
    const JSON& erwartet = Erwartung.at("value");
    const Toleranz t = Erwartung.contains("tolerance") ? Toleranz(Erwartung.at("tolerance")) : Ueblich;
    if (erwartet.is_number() && bekommen.is_number()) {
        EXPECT_TRUE(t.gleich(erwartet, bekommen)) << Pfad << ": " << bekommen << " in place of " << erwartet << ": " << Grund;
    } else {
        EXPECT_EQ(bekommen, erwartet) << Pfad << ": " << Grund;
    }
}

TEST_P(Fall, gives_what_its_formulas_say) {
    const std::string Ordner = std::string(VARNOK_TESTORDNER "/cases/") + GetParam();
    const JSON Vorgabe = JSON::parse(probe::Inhalt(Ordner + "/expected.json"));
    EXPECT_FALSE(Vorgabe.at("why").get<std::string>().empty());
    ASSERT_FALSE(Vorgabe.at("expect").empty());

    std::vector<std::string> Argumente = Vorgabe.at("arguments");
    Argumente.insert(Argumente.end(), {"--json", "-", Ordner});
    const probe::Antwort r = probe::rufe(Argumente);
    EXPECT_EQ(r.Status, Vorgabe.at("status").get<int>()) << r.fehler;
    const JSON Dokument = r.JSON();
    for (const JSON& Erwartung : Vorgabe.at("expect")) pruefe(Dokument, Erwartung, Toleranz(Vorgabe.at("tolerance")));
}

INSTANTIATE_TEST_SUITE_P(Faelle, Fall, testing::ValuesIn(Faelle()), [](const auto& f) { return f.param; });

TEST(Faelle, there_are_some) { EXPECT_GE(Faelle().size(), 20U); }

TEST(Toleranz, value_that_is_not_finite_is_never_within_it) {
    const Toleranz weit(JSON{{"relative", 1e300}, {"absolute", 1e300}});
    EXPECT_TRUE(weit.gleich(1, 2));
    EXPECT_FALSE(weit.gleich(1, std::nan("")));
    EXPECT_FALSE(weit.gleich(1, INFINITY));
}

}  // namespace
}  // namespace varnok::batch
