// A report as a whole: from the calculation to files that other programs open.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocument>

#include <atomic>
#include <thread>

#include "berichtsprobe.h"
#include "records/dateien.h"
#include "reports/seitenausgabe.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

// Standard output of a program, nothing if it is not installed.
std::optional<std::string> rufe(const char* Programm, const QStringList& Argumente) {
    const QString Pfad = QStandardPaths::findExecutable(QString::fromLatin1(Programm));
    if (Pfad.isEmpty()) return std::nullopt;
    QProcess p;
    p.start(Pfad, Argumente);
    EXPECT_TRUE(p.waitForFinished(100000)) << Programm;
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return p.readAllStandardOutput().toStdString();
}

std::string ersetzt(std::string Text, const std::string& Was, const std::string& Womit) {
    for (std::size_t i = Text.find(Was); i != std::string::npos; i = Text.find(Was, i + Womit.size()))
        Text.replace(i, Was.size(), Womit);
    return Text;
}

// Blanks, tabs and line ends fall as the width of a page wants it.
std::string ohne_Luecken(std::string Text) {
    std::erase_if(Text, [](char z) { return z == ' ' || z == '\t' || z == '\r' || z == '\n'; });
    return Text;
}

// Pages of a PDF as text with letters for ligatures, nothing where no tool can read one.
std::optional<std::vector<std::string>> Seiten(const std::string& PDF) {
    QTemporaryDir Ordner;
    const QString Datei = Ordner.filePath(QStringLiteral("x.pdf"));
    schreibe_Datei(Datei.toStdString(), PDF);
    auto Text = rufe("pdftotext", {QStringLiteral("-layout"), Datei, QStringLiteral("-")});
    if (!Text) return std::nullopt;
    std::vector<std::string> Liste;
    for (std::size_t i = Text->find('\f'); i != std::string::npos; i = Text->find('\f')) {
        Liste.push_back(ersetzt(Text->substr(0, i), "ﬁ", "fi"));
        Text->erase(0, i + 1);
    }
    return Liste;
}

TEST(Bericht, brings_name_text_document_and_bytes) {
    const auto l = gerechnet({});
    const Bericht b = Bericht_von(*l);
    EXPECT_EQ(b.Name, "the problem");
    EXPECT_EQ(b.Text, erstelle_Standardbericht(*l, Angaben));
    EXPECT_THAT(b.RTF, ::testing::StartsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"));
    EXPECT_TRUE(b.Dokument->toPlainText().contains(QStringLiteral("RESULTS OF THE CALCULATION")));
}

TEST(Bericht, extended_report_takes_name_and_text_of_its_own) {
    Lauf_bauer b = mit_Studien(Lauf_bauer(), 2);
    b.Parameter.Ausgabename_Teile[4] = 1;
    const auto l = gerechnet(b);
    const Bericht r = Bericht_von(*l, Berichtsart::erweitert);
    EXPECT_EQ(r.Name, "the problem - 1 year");
    EXPECT_EQ(r.Text, erstelle_erweiterten_Bericht(*l, Angaben));
}

TEST(Bericht, the_run_is_only_read) {
    const auto l = gerechnet(Lauf_bauer().Schema(1));
    const std::string vorher = Abbild(*l, 0) + Abbild_gemeinsam(*l);
    const Eingabe Felder = l->Felder;
    Bericht_von(*l);
    EXPECT_EQ(Abbild(*l, 0) + Abbild_gemeinsam(*l), vorher);
    EXPECT_EQ(l->Felder, Felder);
}

std::atomic<int> Meldungen = 0;

// A batch program makes its reports in threads of any library, without a word from below.
TEST(Bericht, is_the_same_in_every_thread) {
    const auto l = gerechnet(Lauf_bauer().Schema(2).nach_SFO(0.02, 1));
    Meldungen = 0;
    const auto vorher = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++Meldungen; });
    const std::string hier = Bericht_von(*l).RTF;
    std::array<std::string, 3> dort;
    {
        std::vector<std::jthread> Faeden;
        for (std::string& Platz : dort) Faeden.emplace_back([&Platz, &l] { Platz = Bericht_von(*l).RTF; });
    }
    qInstallMessageHandler(vorher);
    for (const std::string& RTF : dort) EXPECT_TRUE(RTF == hier);
    EXPECT_EQ(Meldungen, 0);
}

TEST(PDF, has_numbered_pages_and_the_picture_on_one_of_them) {
    const Bericht b = Bericht_von(*gerechnet(Lauf_bauer().Schema(2).nach_SFO(0.02, 1)));
    const std::string PDF = als_PDF(*b.Dokument, b.Name);
    EXPECT_THAT(PDF, ::testing::StartsWith("%PDF-"));
    const auto Text = Seiten(PDF);
    if (!Text) GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_GT(Text->size(), 2U);
    for (std::size_t i = 0; i < Text->size(); ++i) {
        EXPECT_THAT((*Text)[i], HasSubstr("page " + std::to_string(i + 1) + " of " + std::to_string(Text->size())));
    }
    EXPECT_THAT(Text->front(), HasSubstr("VARNOK"));
    // The picture is drawn as lines and text, headline and labels with it.
    EXPECT_THAT(Text->back(), HasSubstr("GRAPHIC REPRESENTATION OF THE CALCULATION"));
    EXPECT_THAT(Text->back(), HasSubstr("Annual concentration of the problem Study: field"));
    EXPECT_THAT(Text->back(), HasSubstr("Time after first application (d)"));
    EXPECT_EQ(Text->back().find("GRAPHIC"), 0U);  // the headline begins the page
    const auto Anzahl =
        std::count_if(Text->begin(), Text->end(), [](const auto& s) { return s.find("Time after first") != std::string::npos; });
    EXPECT_EQ(Anzahl, 1);
}

TEST(PDF, every_line_of_the_report_is_on_a_page) {
    const Bericht b = Bericht_von(*gerechnet(mit_Studien(Lauf_bauer().Schema(3), 3)), Berichtsart::erweitert);
    const auto Text = Seiten(als_PDF(*b.Dokument, b.Name));
    if (!Text) GTEST_SKIP() << "pdftotext is not installed";
    std::string alles;
    for (const std::string& s : *Text) alles += ohne_Luecken(s.substr(0, s.rfind("page ")));
    std::string erwartet = ohne_Luecken(b.Text);
    erwartet.resize(erwartet.find("Adiagramshould"));
    EXPECT_EQ(alles.substr(0, erwartet.size()), erwartet);
}

// Nothing stands twice where one page ends and the next begins.
TEST(PDF, no_line_is_on_two_pages) {
    const Bericht b = Bericht_von(*gerechnet(mit_Studien(Lauf_bauer().Schema(3), 6)), Berichtsart::erweitert);
    const auto Text = Seiten(als_PDF(*b.Dokument, b.Name));
    if (!Text) GTEST_SKIP() << "pdftotext is not installed";
    std::string alles;
    for (const std::string& s : *Text) alles += s;
    for (const char* Wort : {"Time (d)", "occurring on day", "Q10-factor", "PECact", "GRAPHIC", "Soil study:"}) {
        EXPECT_EQ(Anzahl_von(alles, Wort), Anzahl_von(b.Text, Wort)) << Wort;
    }
}

TEST(PDF, document_stays_as_it_was) {
    const Bericht b = Bericht_von(*gerechnet({}));
    const QString vorher = b.Dokument->toHtml();
    const QSizeF Groesse = b.Dokument->size();
    als_PDF(*b.Dokument, "x");
    EXPECT_EQ(b.Dokument->toHtml(), vorher);
    EXPECT_EQ(b.Dokument->size(), Groesse);
}

// The witness for the rich text: a text processor opens it and tells the same lines.
TEST(LibreOffice, opens_the_rich_text) {
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty()) GTEST_SKIP() << "soffice is not installed";
    Lauf_bauer l = Lauf_bauer().Schema(1).Einheit(1);
    l.Felder.Name_Met_1 = "Met {1} \\ ≥ µ жито";
    const Bericht b = Bericht_von(*gerechnet(l));
    QTemporaryDir Ordner;
    const std::string RTF = speichere_Bericht(b, Ordner.path().toStdString());
    const auto wandle = [&](const char* Format) {
        return rufe("soffice", {QStringLiteral("--headless"),
                                QStringLiteral("-env:UserInstallation=file://") + Ordner.filePath(QStringLiteral("profile")),
                                QStringLiteral("--convert-to"), QString::fromLatin1(Format), QStringLiteral("--outdir"),
                                Ordner.path(), QString::fromStdString(RTF)});
    };
    ASSERT_TRUE(wandle("txt:Text (encoded):UTF8"));
    std::string Text = lies_Datei(Ordner.filePath(QStringLiteral("the problem.txt")).toStdString());
    if (Text.starts_with("\xEF\xBB\xBF")) Text.erase(0, 3);
    std::string erwartet = b.Text;
    const std::string Platz = "A diagram should appear here!";
    erwartet.replace(erwartet.find(Platz), Platz.size(), "");
    std::erase(erwartet, '\r');
    std::erase(Text, '\r');
    while (Text.ends_with('\n')) Text.pop_back();
    while (erwartet.ends_with('\n')) erwartet.pop_back();
    EXPECT_EQ(Text, erwartet);

    ASSERT_TRUE(wandle("pdf"));
    const QString PDF = Ordner.filePath(QStringLiteral("the problem.pdf"));
    const auto Bilder = rufe("pdfimages", {QStringLiteral("-list"), PDF});
    if (!Bilder) GTEST_SKIP() << "pdfimages is not installed";
    EXPECT_THAT(*Bilder, HasSubstr(" image "));
}

}  // namespace
}  // namespace varnok::probe
