// The help of a control, and what the status line says of its hidden ways.

#include "session/programm/feldhilfe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include "extras/tooltipdatei.h"
#include "records/dateien.h"
#include "session/eingabe/feldtabelle.h"
#include "session/programm/handhabung.h"

namespace varnok {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class Hilfeseiten : public ::testing::Test {
protected:
    Hilfeseiten() {
        std::filesystem::create_directories(Daten_ + "/docs");
        schreibe("README.md", "# VARNOK\n\n## In the window\n\nkeys\n\n## A project folder\n\nfiles\n\n## Licence\n\nMIT\n");
        schreibe("docs/glossary.md", "# Glossary\n\n## Compounds and degradation\n\nKoc\n\n## Applications\n\ndoses\n");
    }
    void schreibe(const std::string& Name, const std::string& Text) const {
        std::ofstream(Daten_ + "/" + Name, std::ios::binary) << Text;
    }
    std::string Hilfe(const std::vector<std::string>& Namen, const std::string& Aufschrift = "Caption") const {
        return Feldhilfe({Namen, Aufschrift, zerlege_Tooltips(lies_Datei(VARNOK_DATENORDNER "/input/tooltips.uk")), Daten_});
    }

    QTemporaryDir Ordner_;
    std::string Daten_ = Ordner_.path().toStdString() + "/the data";
};

TEST_F(Hilfeseiten, tells_tip_range_and_unit_and_below_them_the_part_of_the_page) {
    const std::string Text = Hilfe({"S_DT50_0", "Abbaudaten", "Wirkstoffdaten", "Kinetikschema"}, "DT50 (d)");
    EXPECT_THAT(Text, StartsWith("# DT50 (d)\n\nDT50 (SFO): time until half has degraded, in days.\n\n"));
    const std::size_t Grenzen = Text.find("**Accepted:** 0 or above, **unit:** d\n");
    const std::size_t Seite = Text.find("---\n\n## Compounds and degradation\n\nKoc\n");
    ASSERT_NE(Grenzen, std::string::npos) << Text;
    ASSERT_NE(Seite, std::string::npos) << Text;
    EXPECT_LT(Grenzen, Seite);
    EXPECT_THAT(Text, Not(HasSubstr("## Applications")));
}

TEST_F(Hilfeseiten, a_control_without_a_tip_has_that_of_what_it_stands_in) {
    EXPECT_THAT(Hilfe({"Copy_1", "Kinetikschema"}), HasSubstr("The compound record"));
    EXPECT_THAT(Hilfe({"Fruchtwechsel", "Applikationsrahmen"}), HasSubstr("Dates, doses"));
}

TEST_F(Hilfeseiten, each_number_field_has_its_range_and_unit) {
    for (const Feldbeschreibung& f : Feldtabelle()) {
        const std::string Text = Hilfe({f.Objektname()});
        EXPECT_THAT(Text, HasSubstr("**Accepted:** " + als_Text(f.Bereich->Grenzen))) << f.Objektname();
        EXPECT_THAT(Text, HasSubstr("**unit:** ")) << f.Objektname();
    }
    EXPECT_THAT(Hilfe({"Applikationsschema"}), HasSubstr("Rate: **Accepted:** 0 or above, **unit:** g/ha"));
    EXPECT_THAT(Hilfe({"Bodendichte", "Szenario_Form"}), HasSubstr("**Accepted:** above 0 (usual: 0.2 to 3), **unit:** kg/L"));
}

TEST_F(Hilfeseiten, lists_of_files_show_what_the_files_hold_and_other_controls_the_keys) {
    EXPECT_THAT(Hilfe({"Simulationsliste", "Frame2"}), HasSubstr("## A project folder\n\nfiles\n"));
    EXPECT_THAT(Hilfe({"Liste_1", "Kinetikschema"}), HasSubstr("## A project folder"));
    EXPECT_THAT(Hilfe({"Aktualisieren", "Schalterrahmen"}), HasSubstr("## In the window\n\nkeys\n"));
    EXPECT_THAT(Hilfe({}), HasSubstr("## In the window"));
}

TEST_F(Hilfeseiten, links_lead_to_the_pages_that_there_are) {
    const std::string Text = Hilfe({});
    EXPECT_THAT(Text, HasSubstr("Whole pages: [the program and its files](file://"));
    EXPECT_THAT(Text, HasSubstr("the%20data/docs/glossary.md)"));
    EXPECT_THAT(Text, Not(HasSubstr("batch_at_work.md")));
}

TEST_F(Hilfeseiten, without_pages_there_is_the_tip) {
    std::filesystem::remove_all(Daten_);
    EXPECT_THAT(Hilfe({"S_Tb"}), HasSubstr("**Accepted:** 0 or above, **unit:** d"));
    EXPECT_THAT(Hilfe({"S_Tb"}), Not(HasSubstr("---")));
}

TEST_F(Hilfeseiten, marks_of_the_text_are_letters) {
    EXPECT_THAT(Hilfe({}, "5 * [x]_1 #"), StartsWith("# 5 \\* \\[x\\]\\_1 \\#\n"));
}

// The headings that the help looks for are there.
TEST(Hilfeauslieferung, every_part_of_a_page_is_found_in_the_documentation) {
    const std::string Wurzel = VARNOK_DATENORDNER "/..";
    for (const char* Name : {"Liste_1", "Frame2", "Fruchtwechsel", "Kinetikschema", "Applikationsrahmen", "Szenariorahmen",
                             "untere_Zeile", "Berechnungsmodus", "Bericht", "Ende", "Diagramm_8", "Ergebnisse_8"}) {
        const std::string Text = Feldhilfe({{Name}, "x", {}, Wurzel});
        EXPECT_THAT(Text, HasSubstr("---\n\n## ")) << Name;
        EXPECT_THAT(Text, HasSubstr("docs/batch_at_work.md)"));
    }
}

TEST(Hilfeauslieferung, a_diagram_has_the_page_that_tells_its_keys) {
    const std::string Wurzel = VARNOK_DATENORDNER "/..";
    const std::string Text = Feldhilfe({{"Diagramm_8", "Flaeche", "Berechnungsmodus"}, "Diagram", {}, Wurzel});
    EXPECT_THAT(Text, HasSubstr("Keys do it while the diagram has the focus"));
    EXPECT_THAT(Feldhilfe({{"Ergebnisse_8", "Ergebnisrahmen_8", "Diagramm_8"}, "Results", {}, Wurzel}), HasSubstr("## Results"));
}

TEST(Handhabung, tells_mouse_and_keys_of_what_has_them) {
    EXPECT_THAT(Handhabung("Liste_2"), HasSubstr("Right click or F2: rename"));
    EXPECT_EQ(Handhabung("Simulationsliste"), Handhabung("Liste_1"));
    EXPECT_THAT(Handhabung("Beschreibung"), HasSubstr("F2: change it"));
    EXPECT_THAT(Handhabung("Ergebnisse_Zusammenfassung_8"), HasSubstr("Ctrl+C"));
    EXPECT_THAT(Handhabung("Diagramm_11"), HasSubstr("Arrows: read off"));
    EXPECT_EQ(Handhabung("Diagramm_Zusammenfassung_8"), Handhabung("Diagramm_0"));
    EXPECT_THAT(Handhabung("S_DT50_1_DFOP_2"), HasSubstr("Esc: the value before"));
    EXPECT_EQ(Handhabung("Copy_1"), "");
    EXPECT_EQ(Handhabung(""), "");
}

}  // namespace
}  // namespace varnok
