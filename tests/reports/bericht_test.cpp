// A report as a whole: from the calculation to files that other programs open.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>

#include <atomic>
#include <thread>

#include "berichtsprobe.h"
#include "fremdprogramm.h"
#include "records/dateien.h"
#include "reports/dokumentbild.h"
#include "reports/rtf_schreiber.h"
#include "reports/seitenausgabe.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

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
    const auto l = mit_Ergebnissen({});
    const Bericht b = Bericht_von(l);
    EXPECT_EQ(b.Name, "the problem");
    EXPECT_EQ(b.Text, erstelle_Standardbericht(l, Angaben));
    EXPECT_THAT(b.RTF, ::testing::StartsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"));
    EXPECT_TRUE(b.Dokument->toPlainText().contains(QStringLiteral("RESULTS OF THE CALCULATION")));
}

TEST(Bericht, extended_report_takes_name_and_text_of_its_own) {
    Lauf_bauer b = mit_Studien(Lauf_bauer(), 2);
    b.Felder.Parameter.Ausgabename_Teile[4] = 1;
    const auto l = mit_Ergebnissen(b);
    const Bericht r = Bericht_von(l, Berichtsart::erweitert);
    EXPECT_EQ(r.Name, "the problem - 1 year");
    EXPECT_EQ(r.Text, erstelle_erweiterten_Bericht(l, Angaben));
}

TEST(Bericht, the_run_is_only_read) {
    const auto l = mit_Ergebnissen(Lauf_bauer().Schema(1));
    const Darstellungsprobe vorher = l;
    const Ergebnis Werte = *l.Studien[0];
    Bericht_von(l);
    EXPECT_EQ(l.Felder, vorher.Felder);
    EXPECT_EQ(l.Sicht, vorher.Sicht);
    EXPECT_EQ(l.Studien, vorher.Studien);
    EXPECT_EQ(*l.Studien[0]->Vorgabe, l.Felder);
    for (int c = 0; c < 2; ++c) {
        for (const Endpunktart e : alle_Endpunkte) {
            const Endpunktergebnis& jetzt = l.Studien[0]->Werte(e, c);
            EXPECT_EQ(jetzt.Reihe_Bodentiefe, Werte.Werte(e, c).Reihe_Bodentiefe);
            EXPECT_EQ(jetzt.Reihe_Plateautiefe, Werte.Werte(e, c).Reihe_Plateautiefe);
            EXPECT_EQ(jetzt.Plateauwert, Werte.Werte(e, c).Plateauwert);
        }
    }
}

std::atomic<int> Meldungen = 0;

// A batch program makes its reports in threads of any library, without a word from below.
TEST(Bericht, is_the_same_in_every_thread) {
    const auto l = mit_Ergebnissen(Lauf_bauer().Schema(2).nach_SFO(0.02, 1));
    Meldungen = 0;
    const auto vorher = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++Meldungen; });
    const std::string hier = Bericht_von(l).RTF;
    std::array<std::string, 3> dort;
    {
        std::vector<std::jthread> Faeden;
        for (std::string& Platz : dort) Faeden.emplace_back([&Platz, &l] { Platz = Bericht_von(l).RTF; });
    }
    qInstallMessageHandler(vorher);
    for (const std::string& RTF : dort) EXPECT_TRUE(RTF == hier);
    EXPECT_EQ(Meldungen, 0);
}

TEST(PDF, has_numbered_pages_and_the_picture_on_one_of_them) {
    const Bericht b = Bericht_von(mit_Ergebnissen(Lauf_bauer().Schema(2).nach_SFO(0.02, 1)));
    const std::string PDF = als_PDF(*b.Dokument, b.Name);
    EXPECT_THAT(PDF, ::testing::StartsWith("%PDF-"));
    const auto Text = Seiten(PDF);
    ASSERT_TRUE(Text.has_value()) << "poppler-utils is missing";
    ASSERT_GT(Text->size(), 2U);
    for (std::size_t i = 0; i < Text->size(); ++i) {
        EXPECT_THAT((*Text)[i], HasSubstr("page " + std::to_string(i + 1) + " of " + std::to_string(Text->size())));
    }
    EXPECT_THAT(Text->front(), HasSubstr("VARNOK"));
    // The picture is drawn as lines and text, headline and labels with it.
    EXPECT_THAT(Text->back(), HasSubstr("GRAPHIC REPRESENTATION OF THE CALCULATION"));
    EXPECT_THAT(Text->back(), HasSubstr("Annual concentration of the problem Study: field"));
    EXPECT_THAT(Text->back(), HasSubstr("Time after first application (d)"));
    const auto Anzahl =
        std::count_if(Text->begin(), Text->end(), [](const auto& s) { return s.find("Time after first") != std::string::npos; });
    EXPECT_EQ(Anzahl, 1);
}

TEST(PDF, tells_where_its_figures_come_from_at_every_foot_and_in_its_information_and_not_in_the_text) {
    const Bericht b = Bericht_von(mit_Ergebnissen(Lauf_bauer().Schema(2)));
    merke_Herkunft(*b.Dokument, QStringLiteral("inputs_sha256 0123456789abcdef"));
    const std::string PDF = als_PDF(*b.Dokument, b.Name);
    const auto Text = Seiten(PDF);
    ASSERT_TRUE(Text.has_value()) << "poppler-utils is missing";
    for (const std::string& Seite : *Text) {
        EXPECT_THAT(Seite, HasSubstr("inputs_sha256 0123456789abcdef"));
        EXPECT_THAT(Seite, HasSubstr("page "));
    }
    QTemporaryDir Ordner;
    const QString Datei = Ordner.filePath(QStringLiteral("x.pdf"));
    schreibe_Datei(Datei.toStdString(), PDF);
    EXPECT_THAT(rufe("pdfinfo", {Datei}).value_or(""), HasSubstr("inputs_sha256 0123456789abcdef"));
    EXPECT_FALSE(b.Dokument->toPlainText().contains(QStringLiteral("inputs_sha256")));
    EXPECT_THAT(als_RTF(*b.Dokument), HasSubstr("{\\info{\\doccomm inputs_sha256 0123456789abcdef}}"));
}

TEST(PDF, every_line_of_the_report_is_on_a_page) {
    const Bericht b = Bericht_von(mit_Ergebnissen(mit_Studien(Lauf_bauer().Schema(3), 3)), Berichtsart::erweitert);
    const auto Text = Seiten(als_PDF(*b.Dokument, b.Name));
    ASSERT_TRUE(Text.has_value()) << "poppler-utils is missing";
    std::string alles;
    for (const std::string& s : *Text) alles += ohne_Luecken(s.substr(0, s.rfind("the problem")));
    std::string erwartet = ohne_Luecken(b.Text);
    erwartet.resize(erwartet.find("Adiagramshould"));
    EXPECT_EQ(alles.substr(0, erwartet.size()), erwartet);
}

// Nothing stands twice where one page ends and the next begins.
TEST(PDF, no_line_is_on_two_pages) {
    const Bericht b = Bericht_von(mit_Ergebnissen(mit_Studien(Lauf_bauer().Schema(3), 6)), Berichtsart::erweitert);
    const auto Text = Seiten(als_PDF(*b.Dokument, b.Name));
    ASSERT_TRUE(Text.has_value()) << "poppler-utils is missing";
    std::string alles;
    for (const std::string& s : *Text) alles += s;
    for (const char* Wort : {"Time (d)", "occurring on day", "Q10-factor", "PECact", "GRAPHIC", "Soil study:"}) {
        EXPECT_EQ(Anzahl_von(alles, Wort), Anzahl_von(b.Text, Wort)) << Wort;
    }
}

// The words found up to the end of the report.
QTextCursor ab(const Bericht& b, const char* Wort) {
    QTextCursor c = b.Dokument->find(QString::fromLatin1(Wort));
    c.setPosition(c.selectionStart());
    c.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    return c;
}

TEST(PDF, of_a_selection_holds_that_and_the_picture_in_it) {
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    const auto Text = Seiten(als_PDF(*Textstelle_als_Dokument(ab(b, "GRAPHIC REPRESENTATION")), "x"));
    ASSERT_TRUE(Text.has_value()) << "poppler-utils is missing";
    ASSERT_EQ(Text->size(), 1U);
    EXPECT_EQ(ohne_Luecken(Text->front()).find("GRAPHIC"), 0U);
    EXPECT_THAT(Text->front(), HasSubstr("Time after first application (d)"));
    EXPECT_THAT(Text->front(), HasSubstr("page 1 of 1"));
}

TEST(PDF, of_a_selection_has_font_and_indent_of_the_report) {
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    const auto d = Textstelle_als_Dokument(ab(b, "Soil density"));
    EXPECT_EQ(d->defaultFont(), b.Dokument->defaultFont());
    EXPECT_EQ(d->begin().blockFormat(), b.Dokument->findBlock(ab(b, "Soil density").selectionStart()).blockFormat());
}

TEST(PDF, document_stays_as_it_was) {
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    const QString vorher = b.Dokument->toHtml();
    const QSizeF Groesse = b.Dokument->size();
    als_PDF(*b.Dokument, "x");
    EXPECT_EQ(b.Dokument->toHtml(), vorher);
    EXPECT_EQ(b.Dokument->size(), Groesse);
}

}  // namespace
}  // namespace varnok::probe
