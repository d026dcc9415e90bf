// The folder of output and what is written to it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "berichtsprobe.h"
#include "diagrams/diagrammbau.h"
#include "records/dateien.h"
#include "reports/ausgabedateien.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

class Ausgaben : public ::testing::Test {
protected:
    std::string Pfad(const std::string& Name = {}) const { return Zeit_.filePath(QString::fromStdString(Name)).toStdString(); }
    Projektordner Ordner() const { return Projektordner(Zeit_.path().toStdString()); }
    QStringList Eintraege(const std::string& Name) const {
        return QDir(QString::fromStdString(Pfad(Name)))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir Zeit_;
};

TEST_F(Ausgaben, folder_is_made_when_it_is_missing) {
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    const std::string Datei = speichere_Bericht(b, Ausgabeordner(Ordner()));
    EXPECT_EQ(Datei, Pfad("output/the problem.rtf"));
    EXPECT_EQ(lies_Datei(Datei), b.RTF);
    EXPECT_EQ(Eintraege("output"), QStringList(QStringLiteral("the problem.rtf")));
}

TEST_F(Ausgaben, folder_in_other_case_is_the_folder) {
    QDir(Zeit_.path()).mkdir(QStringLiteral("Output"));
    EXPECT_EQ(speichere_Bericht(Bericht_von(mit_Ergebnissen({})), Ausgabeordner(Ordner())), Pfad("Output/the problem.rtf"));
    EXPECT_EQ(Eintraege(""), QStringList(QStringLiteral("Output")));
}

TEST_F(Ausgaben, second_report_of_a_name_replaces_the_first) {
    schreibe_Ausgabedatei(Pfad("output"), "a.rtf", "long and old");
    EXPECT_EQ(schreibe_Ausgabedatei(Pfad("output"), "a.rtf", "new"), Pfad("output/a.rtf"));
    EXPECT_EQ(schreibe_Ausgabedatei(Pfad("output"), "A.RTF", "newer"), Pfad("output/a.rtf"));
    EXPECT_EQ(lies_Datei(Pfad("output/a.rtf")), "newer");
    EXPECT_EQ(Eintraege("output").size(), 1);
}

TEST_F(Ausgaben, name_of_any_letters) {
    const std::string Name = "Weizen µ жито 小麦.rtf";
    EXPECT_EQ(lies_Datei(schreibe_Ausgabedatei(Pfad("output"), Name, "x")), "x");
    EXPECT_EQ(Eintraege("output"), QStringList(QString::fromStdString(Name)));
}

TEST_F(Ausgaben, file_in_place_of_the_folder_is_a_fault_that_names_it) {
    schreibe_Datei(Pfad("output"), "in the way");
    try {
        schreibe_Ausgabedatei(Pfad("output"), "a.rtf", "x");
        FAIL() << "no fault";
    } catch (const Laufzeitfehler& f) {
        EXPECT_THAT(f.what(), HasSubstr("Cannot make the folder \"" + Pfad("output") + "\": "));
    }
}

TEST_F(Ausgaben, folder_in_place_of_the_file_is_a_fault_that_names_it) {
    QDir(Zeit_.path()).mkpath(QStringLiteral("output/a.rtf"));
    try {
        schreibe_Ausgabedatei(Pfad("output"), "a.rtf", "x");
        FAIL() << "no fault";
    } catch (const Laufzeitfehler& f) {
        EXPECT_THAT(f.what(), HasSubstr(Pfad("output/a.rtf")));
    }
}

// --- by-products -------------------------------------------------------------------------------------------

Diagramm Zeichnung(const Darstellung& d, int Nummer) {
    Diagrammbereiche b;
    setze_Bereiche_nach_Ansicht(b, d.Sicht.PEC_Typ);
    return erstelle_Diagramm(d, b, Nummer, d.Sicht.Studie_Index);
}

TEST_F(Ausgaben, day_series_is_named_by_its_compound) {
    const auto l = mit_Ergebnissen({});
    const Lauf Rechnung = Lauf_bauer().rechne();
    Nebenausgaben n;
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 0)), "");
    const auto Zeilen = probe::Zeilen(lies_Datei(Pfad("output/Detailed Results - parent.tab")));
    ASSERT_EQ(Zeilen.size(), 1U + 365);  // days 0 to 364: the last day of the axis is not written
    EXPECT_EQ(Zeilen[0], "Time (d)\tPEC (mg/kg)");
    EXPECT_EQ(Zeilen[1], "0\t" + allgemeine_Zahl(Boden(Rechnung, 0)));
    EXPECT_EQ(Zeilen[365], "364\t" + allgemeine_Zahl(Boden(Rechnung, 364)));
}

TEST_F(Ausgaben, two_compounds_of_one_name_share_a_file) {
    Lauf_bauer b = Lauf_bauer().Schema(1).nach_SFO(0.02, 1);
    b.Felder.Name_Met_1 = b.Felder.Name_Wirkstoff;
    const auto l = mit_Ergebnissen(b);
    Nebenausgaben n;
    n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 1));
    n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 2));
    EXPECT_EQ(Eintraege("output").size(), 1);
    EXPECT_EQ(probe::Zeilen(lies_Datei(Pfad("output/Detailed Results - parent.tab")))[1], "0\t0");
}

TEST_F(Ausgaben, compound_with_forbidden_characters_gets_a_file_all_the_same) {
    Lauf_bauer b;
    b.Felder.Name_Wirkstoff = "A/B: \"x\"*?<|>\\\t";
    Nebenausgaben n;
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), Zeichnung(mit_Ergebnissen(b), 0)), "");
    EXPECT_EQ(Eintraege("output"), QStringList(QStringLiteral("Detailed Results - A_B_ _x________.tab")));
}

TEST_F(Ausgaben, numbers_of_a_summary_diagram_stand_beside_the_folder) {
    const auto l = mit_Ergebnissen(mit_Studien(Lauf_bauer(), 2));
    Diagrammbereiche b;
    setze_Bereiche_nach_Ansicht(b, jaehrlich);
    Nebenausgaben n;
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), erstelle_Diagramm_Zusammenfassung(l, b, 0, 0)), "");
    EXPECT_EQ(Eintraege(""), QStringList(QStringLiteral("Diagram.txt")));
    EXPECT_FALSE(lies_Datei(Pfad("Diagram.txt")).empty());
}

TEST_F(Ausgaben, run_dump_holds_the_compound_calculated_last) {
    const Lauf_bauer b = Lauf_bauer().Schema(1).nach_SFO(0.02, 1);
    const auto l = mit_Ergebnissen(b);
    const Lauf Rechnung = b.rechne();
    Nebenausgaben n;
    EXPECT_EQ(n.schreibe_Laufprotokoll(Ordner(), *l.Studien[0]), "");
    const auto Zeilen = probe::Zeilen(lies_Datei(Pfad("output/test.txt")));
    ASSERT_EQ(Zeilen.size(), 3650U);
    EXPECT_EQ(Zeilen[0], "0\t0\t0\t0\t0");
    EXPECT_EQ(Zeilen[100], "100\t" + allgemeine_Zahl(Plateau(Rechnung, 100, 1)) + "\t" +
                               allgemeine_Zahl(Boden(Rechnung, 100, 1)) + "\t" +
                               allgemeine_Zahl(Rechnung.Speicher.Bildung_Plateautiefe[0][100]) + "\t0");
}

TEST_F(Ausgaben, failure_of_a_by_product_is_told_once_per_file) {
    schreibe_Datei(Pfad("output"), "in the way");
    const auto l = mit_Ergebnissen({});
    Nebenausgaben n;
    EXPECT_THAT(n.schreibe_Laufprotokoll(Ordner(), *l.Studien[0]), HasSubstr("Cannot make the folder"));
    EXPECT_EQ(n.schreibe_Laufprotokoll(Ordner(), *l.Studien[0]), "");
    EXPECT_THAT(n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 0)), HasSubstr("Cannot make the folder"));
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 0)), "");
}

// ---- links

class Ausgaben_mit_Links : public Ausgaben {
protected:
    void verknuepfe(const std::string& Name) {
        schreibe_Datei(fremd_.filePath(QStringLiteral("mine")).toStdString(), "mine");
        QDir().mkpath(QString::fromStdString(Pfad("output")));
        QFile::link(fremd_.filePath(QStringLiteral("mine")), QString::fromStdString(Pfad(Name)));
    }
    void verknuepfe_output() const { QFile::link(fremd_.path(), QString::fromStdString(Pfad("output"))); }
    std::string Fremdes() const { return lies_Datei(fremd_.filePath(QStringLiteral("mine")).toStdString()); }
    QTemporaryDir fremd_;
};

TEST_F(Ausgaben_mit_Links, by_product_is_not_written_through_one) {
    verknuepfe("output/test.txt");
    Nebenausgaben n;
    EXPECT_THAT(n.schreibe_Laufprotokoll(Ordner(), *mit_Ergebnissen({}).Studien[0]), HasSubstr("lies outside of"));
    EXPECT_EQ(Fremdes(), "mine");
}

TEST_F(Ausgaben_mit_Links, by_product_beside_the_folders_is_not_written_through_one) {
    verknuepfe("Diagram.txt");
    const auto l = mit_Ergebnissen(mit_Studien(Lauf_bauer(), 2));
    Diagrammbereiche b;
    Nebenausgaben n;
    EXPECT_THAT(n.schreibe_Zeichnung(Ordner(), erstelle_Diagramm_Zusammenfassung(l, b, 0, 0)), HasSubstr("lies outside of"));
    EXPECT_EQ(Fremdes(), "mine");
}

TEST_F(Ausgaben_mit_Links, report_takes_the_place_of_one) {
    verknuepfe("output/the problem.rtf");
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    EXPECT_EQ(lies_Datei(speichere_Bericht(b, Ausgabeordner(Ordner()), Ordner().Pfad())), b.RTF);
    EXPECT_EQ(Fremdes(), "mine");
}

TEST_F(Ausgaben_mit_Links, folder_that_is_one_to_outside_is_told_once_and_nothing_goes_there) {
    verknuepfe_output();
    const auto l = mit_Ergebnissen({});
    Nebenausgaben n;
    EXPECT_THAT(n.schreibe_Laufprotokoll(Ordner(), *l.Studien[0]), HasSubstr("it is a link to outside of"));
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), Zeichnung(l, 0)), "");
    EXPECT_THROW(speichere_Bericht(Bericht_von(l), Ausgabeordner(Ordner()), Ordner().Pfad()), Laufzeitfehler);
    EXPECT_EQ(QDir(fremd_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 0);
}

TEST_F(Ausgaben, multi_compound_diagram_writes_nothing) {
    const auto l = mit_Ergebnissen(Lauf_bauer().Schema(1));
    Diagrammbereiche b;
    Nebenausgaben n;
    EXPECT_EQ(n.schreibe_Zeichnung(Ordner(), erstelle_Diagramm_mehrfach(l, b, 3, 1, 0)), "");
    EXPECT_TRUE(Eintraege("").isEmpty());
}

}  // namespace
}  // namespace varnok::probe
