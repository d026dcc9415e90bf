// Rich text read back by a reader of its own.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTextCursor>

#include "berichtsprobe.h"
#include "reports/dokumentbild.h"
#include "reports/rtf_schreiber.h"
#include "reports/textstelle.h"
#include "rtf_leser.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

std::string ohne_Platzhalter(std::string Text) {
    const std::string Wort = "A diagram should appear here!";
    return Text.replace(Text.find(Wort), Wort.size(), "");
}

const RTF_Absatz& Absatz_mit(const RTF_Dokument& d, const std::string& Anfang, int Nummer = 1) {
    for (const RTF_Absatz& a : d.Absaetze) {
        if (a.Text().starts_with(Anfang) && --Nummer == 0) return a;
    }
    throw std::runtime_error("no paragraph begins with " + Anfang);
}

std::string hin_und_zurueck(const std::string& Text) {
    QTextDocument d;
    d.setPlainText(QString::fromStdString(Text));
    return lies_RTF(als_RTF(d)).Text();
}

TEST(RTF, whole_report_reads_back_as_its_text) {
    for (const Berichtsart Art : {Berichtsart::Standard, Berichtsart::erweitert}) {
        const Bericht b = Bericht_von(mit_Ergebnissen(mit_Studien(Lauf_bauer().Schema(2).Einheit(1), 3)), Art);
        EXPECT_EQ(lies_RTF(b.RTF).Text(), ohne_Platzhalter(b.Text));
    }
}

TEST(RTF, formats_of_a_report) {
    const RTF_Dokument d = lies_RTF(Bericht_von(mit_Ergebnissen(Lauf_bauer().Schema(1))).RTF);
    EXPECT_EQ(d.Codepage, 1252);
    const RTF_Absatz& Titel = Absatz_mit(d, "V A R N O K");
    EXPECT_TRUE(Titel.zentriert);
    ASSERT_EQ(Titel.Laeufe.size(), 1U);
    EXPECT_EQ(Titel.Laeufe[0].halbe_Punkte, 28);
    EXPECT_EQ(Titel.Laeufe[0].Farbe, 0x0000FF);
    EXPECT_EQ(Titel.Laeufe[0].Schrift, "Times New Roman");
    EXPECT_TRUE(Titel.Laeufe[0].fett && Titel.Laeufe[0].kursiv);

    const RTF_Absatz& Eingabe = Absatz_mit(d, "Soil density");
    EXPECT_FALSE(Eingabe.zentriert);
    EXPECT_EQ(Eingabe.links, 500);
    EXPECT_EQ(Eingabe.rechts, 200);
    EXPECT_EQ(Eingabe.Tabulatoren, (std::vector{3000, 4000, 6000}));
    EXPECT_EQ(Eingabe.Laeufe[0].Farbe, 0x000000);
    EXPECT_EQ(Eingabe.Laeufe[0].halbe_Punkte, 20);
    EXPECT_FALSE(Eingabe.Laeufe[0].fett || Eingabe.Laeufe[0].kursiv);

    const RTF_Absatz& Tabelle = Absatz_mit(d, "Time(d)\tPECact**", 2);
    EXPECT_EQ(Tabelle.Tabulatoren, (std::vector{2500, 4000, 5500, 7500}));
    EXPECT_EQ(Tabelle.Laeufe[0].Farbe, 0xFF0000);
    EXPECT_EQ(Absatz_mit(d, "Calculations over one year").Laeufe[0].Farbe, 0x008000);
    EXPECT_EQ(Absatz_mit(d, "Reduction factor").Laeufe[0].Farbe, 0x800080);
    EXPECT_TRUE(Absatz_mit(d, "RESULTS FOR: first metabolite").Laeufe[0].fett);
}

TEST(RTF, format_that_ends_within_a_line) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("plain bold\r\nnext"));
    w.suche(QStringLiteral("bold"));
    w.fett();
    w.Farbe(12);
    const RTF_Dokument r = lies_RTF(als_RTF(d));
    ASSERT_EQ(r.Absaetze.size(), 2U);
    ASSERT_EQ(r.Absaetze[0].Laeufe.size(), 2U);
    EXPECT_EQ(r.Absaetze[0].Laeufe[0].Text, "plain ");
    EXPECT_FALSE(r.Absaetze[0].Laeufe[0].fett);
    EXPECT_EQ(r.Absaetze[0].Laeufe[0].Farbe, -1);
    EXPECT_EQ(r.Absaetze[0].Laeufe[1].Text, "bold");
    EXPECT_TRUE(r.Absaetze[0].Laeufe[1].fett);
    EXPECT_EQ(r.Absaetze[0].Laeufe[1].Farbe, 0xFF0000);
    EXPECT_FALSE(r.Absaetze[1].Laeufe[0].fett);
}

TEST(RTF, picture_is_the_drawing_in_its_size) {
    const auto l = mit_Ergebnissen({});
    const RTF_Dokument d = lies_RTF(Bericht_von(l).RTF);
    ASSERT_EQ(d.Bilder.size(), 1U);
    const RTF_Bild& b = d.Bilder[0];
    EXPECT_EQ(b.Breite, 1920);
    EXPECT_EQ(b.Hoehe, 1500);
    EXPECT_EQ(b.Zielbreite, Bildbreite_Twips);
    EXPECT_EQ(b.Zielhoehe, Bildhoehe_Twips);
    EXPECT_EQ(b.laengste_Zeile, 128U);
    EXPECT_EQ(d.Absaetze[b.Absatz - 2].Text(), "GRAPHIC REPRESENTATION OF THE CALCULATION");
    const QImage Bild = QImage::fromData(QByteArray::fromStdString(b.PNG), "PNG");
    const QImage gemalt = erstelle_Berichtsbild(mit_Beschriftung(erstelle_Berichtsdiagramm(l, Berichtsart::Standard)));
    EXPECT_EQ(Bild.convertToFormat(QImage::Format_RGB32), gemalt);
}

// The headline, an empty line, the picture, two empty lines: each but the last stays with the next. What stands in front
// does not.
TEST(RTF, headline_and_picture_stay_on_one_page) {
    for (const Berichtsart Art : {Berichtsart::Standard, Berichtsart::erweitert}) {
        const RTF_Dokument d = lies_RTF(Bericht_von(mit_Ergebnissen(mit_Studien(Lauf_bauer(), 2)), Art).RTF);
        const std::size_t Bild = d.Bilder.at(0).Absatz;
        ASSERT_EQ(d.Absaetze.size(), Bild + 3);
        for (std::size_t i = Bild - 3; i < d.Absaetze.size(); ++i) {
            EXPECT_EQ(d.Absaetze[i].beim_naechsten, i + 2 >= Bild && i < Bild + 2) << i << d.Absaetze[i].Text();
        }
        EXPECT_EQ(d.Absaetze[Bild - 2].Text(), "GRAPHIC REPRESENTATION OF THE CALCULATION");
    }
}

TEST(RTF, special_characters_are_escaped) {
    EXPECT_EQ(RTF_Text(QStringLiteral("a{b}c\\d\te")), "a\\{b\\}c\\\\d\\tab e");
    EXPECT_EQ(RTF_Text(QStringLiteral("µ° €")), "\\'b5\\'b0 \\'80");
    EXPECT_EQ(RTF_Text(QStringLiteral("≥x")), "\\u8805?x");
    EXPECT_EQ(RTF_Text(QStringLiteral("\uFFE0")), "\\u-32?");
    EXPECT_EQ(RTF_Text(QStringLiteral("\U0001F33E")), "\\u-10180?\\u-8386?");
    EXPECT_EQ(RTF_Text(QString(QChar(7)) + QChar(0x81) + QStringLiteral("x")), "x");
    EXPECT_EQ(RTF_Text(QString(QChar(0x2028))), "\\line ");
}

TEST(RTF, any_text_comes_back) {
    for (const char* Text : {"{}\\ {{\\par}} \\'b5", "\\u8805?", "1 2  3   ", "\ttab\t\ttab", "µg/kg ≥ 20 °C — „Weizen“ €",
                             "Ωδ λ жито 小麦", "grain \xF0\x9F\x8C\xBE!", "5", "-3", "?", "a?b", ""}) {
        EXPECT_EQ(hin_und_zurueck(Text), Text);
    }
}

TEST(RTF, compound_name_of_any_letters_comes_back_and_keeps_its_format) {
    for (const char* Name : {"a{b}\\c", "tab\there", "пшеница", "A ≥ B", "\xF0\x9F\x8C\xBE", "\\rtf1"}) {
        Lauf_bauer b = Lauf_bauer().Schema(1);
        b.Felder.Name_Met_1 = Name;
        const Bericht r = Bericht_von(mit_Ergebnissen(b));
        const RTF_Dokument d = lies_RTF(r.RTF);
        EXPECT_EQ(d.Text(), ohne_Platzhalter(r.Text));
        EXPECT_TRUE(Absatz_mit(d, std::string("RESULTS FOR: ") + Name).Laeufe[0].fett) << Name;
    }
}

// A text processor that does not know the program widens runs of blanks, and labels miss their tab stops.
TEST(RTF, names_its_program) {
    const QTextDocument d;
    EXPECT_THAT(als_RTF(d), HasSubstr("{\\*\\generator VARNOK;}"));
}

TEST(RTF, empty_document_is_valid) {
    const QTextDocument d;
    const RTF_Dokument r = lies_RTF(als_RTF(d));
    EXPECT_EQ(r.Absaetze.size(), 1U);
    EXPECT_EQ(r.Text(), "");
}

TEST(RTF, kinds_of_fonts) {
    QTextDocument d;
    QTextCursor c(&d);
    for (const char* Name : {"Courier New", "Times New Roman", "Symbol {x}"}) {
        QTextCharFormat f;
        f.setFontFamilies({QString::fromLatin1(Name)});
        c.insertText(QStringLiteral("x"), f);
    }
    const std::string Rtf = als_RTF(d);
    EXPECT_THAT(Rtf, HasSubstr("\\fmodern\\fcharset0 Courier New;"));
    EXPECT_THAT(Rtf, HasSubstr("\\froman\\fcharset0 Times New Roman;"));
    EXPECT_THAT(Rtf, HasSubstr("\\fnil\\fcharset0 Symbol \\{x\\};"));
    EXPECT_EQ(lies_RTF(Rtf).Absaetze[0].Laeufe.size(), 3U);
}

}  // namespace
}  // namespace varnok::probe
