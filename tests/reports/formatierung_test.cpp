// Formats of the document, searched and selected step by step.

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextCursor>

#include "berichtsprobe.h"
#include "reports/formatierung.h"
#include "reports/twips.h"

namespace varnok::probe {
namespace {

struct Zeichenprobe {
    int Farbe = -1;  // 0xRRGGBB
    double Punkte = 0;
    bool fett = false;
    bool kursiv = false;

    friend bool operator==(const Zeichenprobe&, const Zeichenprobe&) = default;
    friend std::ostream& operator<<(std::ostream& o, const Zeichenprobe& z) {
        return o << std::hex << z.Farbe << std::dec << " " << z.Punkte << (z.fett ? " bold" : "") << (z.kursiv ? " italic" : "");
    }
};

constexpr int Schwarz = 0x000000, Gruen = 0x008000, Violett = 0x800080, Blau = 0x0000FF, Hellrot = 0xFF0000;

class Formate : public ::testing::Test {
protected:
    void nimm(const Darstellung& l, Berichtsart Art = Berichtsart::Standard) { b_ = Bericht_von(l, Art); }

    QTextCursor finde(const char* Wort, int Nummer = 1) const {
        QTextCursor c(b_.Dokument.get());
        for (int i = 0; i < Nummer; ++i) c = b_.Dokument->find(QString::fromUtf8(Wort), c, QTextDocument::FindCaseSensitively);
        EXPECT_FALSE(c.isNull()) << Wort;
        return c;
    }
    static Zeichenprobe Format_an(const QTextDocument& d, int Stelle) {
        QTextCursor c(const_cast<QTextDocument*>(&d));
        c.setPosition(Stelle + 1);  // a cursor tells of the character in front of it
        const QTextCharFormat f = c.charFormat();
        return {static_cast<int>(f.foreground().color().rgb() & 0xFFFFFF), f.fontPointSize(), f.fontWeight() == QFont::Bold,
                f.fontItalic()};
    }
    // Of the first and last character of a word, which must agree.
    Zeichenprobe Format(const char* Wort, int Nummer = 1) const {
        const QTextCursor c = finde(Wort, Nummer);
        const Zeichenprobe erstes = Format_an(*b_.Dokument, c.selectionStart());
        EXPECT_EQ(erstes, Format_an(*b_.Dokument, c.selectionEnd() - 1)) << Wort;
        return erstes;
    }
    QTextBlockFormat Absatz(const char* Wort, int Nummer = 1) const { return finde(Wort, Nummer).blockFormat(); }
    // Tab stops of the paragraph in twips from the page margin.
    std::vector<int> Tabulatoren(const char* Wort) const {
        std::vector<int> Stellen;
        const QTextBlockFormat f = Absatz(Wort);
        for (const auto& t : f.tabPositions()) Stellen.push_back(Pixel_in_Twips(t.position + f.leftMargin()));
        return Stellen;
    }

    Bericht b_;
};

TEST_F(Formate, title_lines) {
    nimm(mit_Ergebnissen({}));
    EXPECT_EQ(Format("V A R N O K"), (Zeichenprobe{Blau, 14, true, true}));
    EXPECT_EQ(Format("Soil Residue Forecast Tool"), (Zeichenprobe{Blau, 12, true, false}));
    EXPECT_EQ(Format("developed by Emil Tarrasch"), (Zeichenprobe{Schwarz, 10, false, true}));
    for (const char* Zeile : {"V A R N O K", "Soil Residue", "developed by"})
        EXPECT_EQ(Absatz(Zeile).alignment(), Qt::AlignHCenter);
    EXPECT_NE(Absatz("Program version").alignment(), Qt::AlignHCenter);
}

TEST_F(Formate, all_paragraphs_are_indented) {
    nimm(mit_Ergebnissen({}));
    for (QTextBlock t = b_.Dokument->begin(); t.isValid(); t = t.next()) {
        EXPECT_EQ(Pixel_in_Twips(t.blockFormat().leftMargin()), 500);
        EXPECT_EQ(Pixel_in_Twips(t.blockFormat().rightMargin()), 200);
    }
}

TEST_F(Formate, input_part_is_plain) {
    nimm(mit_Ergebnissen({}));
    for (const char* Wort : {"PROGRAM SETTINGS", "Soil density", "Kinetics for"}) {
        EXPECT_EQ(Format(Wort), (Zeichenprobe{Schwarz, 10, false, false}));
        EXPECT_EQ(Tabulatoren(Wort), (std::vector{3000, 4000, 6000}));
    }
}

TEST_F(Formate, blocks_of_a_parent_are_green_magenta_and_red) {
    nimm(mit_Ergebnissen(Lauf_bauer().Schema(1)));
    EXPECT_EQ(Format("RESULTS OF THE CALCULATION"), (Zeichenprobe{Blau, 12, true, false}));
    EXPECT_EQ(Format("RESULTS FOR: parent"), (Zeichenprobe{Blau, 12, true, false}));
    EXPECT_EQ(Format("Calculations over one year"), (Zeichenprobe{Gruen, 12, false, true}));
    EXPECT_EQ(Format("PECact*"), (Zeichenprobe{Gruen, 10, false, false}));
    EXPECT_EQ(Format("Calculation of background concentrations after many years"), (Zeichenprobe{Violett, 12, false, true}));
    EXPECT_EQ(Format("Reduction factor"), (Zeichenprobe{Violett, 10, false, false}));
    EXPECT_EQ(Format("Calculations of concentrations considering accumulation after many years of application"),
              (Zeichenprobe{Hellrot, 12, false, true}));
    EXPECT_EQ(Format("PECact**"), (Zeichenprobe{Hellrot, 10, false, false}));
    EXPECT_EQ(Tabulatoren("PECact*"), (std::vector{2500, 4000, 5500, 7500}));
    EXPECT_EQ(Format("GRAPHIC REPRESENTATION OF THE CALCULATION"), (Zeichenprobe{Blau, 10, false, false}));
}

TEST_F(Formate, blocks_of_every_metabolite_are_as_those_of_the_parent) {
    nimm(mit_Ergebnissen(Lauf_bauer().Schema(2)));
    int Nummer = 1;
    for (const char* Name : {"RESULTS FOR: parent", "RESULTS FOR: first metabolite", "RESULTS FOR: second metabolite"}) {
        EXPECT_EQ(Format(Name), (Zeichenprobe{Blau, 12, true, false}));
        EXPECT_EQ(Format("Calculations over one year", Nummer), (Zeichenprobe{Gruen, 12, false, true}));
        EXPECT_EQ(Format("Reduction factor", Nummer), (Zeichenprobe{Violett, 10, false, false}));
        EXPECT_EQ(Format("PECact**", Nummer), (Zeichenprobe{Hellrot, 10, false, false}));
        ++Nummer;
    }
}

TEST_F(Formate, extended_report_has_six_tab_stops) {
    nimm(mit_Ergebnissen(mit_Studien(Lauf_bauer(), 6)), Berichtsart::erweitert);
    EXPECT_EQ(Tabulatoren("Time (d)"), (std::vector{1800, 3200, 4700, 6200, 7700, 9200}));
    EXPECT_EQ(Tabulatoren("PROGRAM SETTINGS"), (std::vector{3000, 4000, 6000}));
    EXPECT_EQ(Format("Calculations over one year"), (Zeichenprobe{Gruen, 12, false, true}));
}

// The headline bears the description, the search is for the name of the compound: nothing is found, and the selection
// left behind is empty, so no text changes.
TEST_F(Formate, headline_of_a_parent_that_goes_by_another_name_stays_plain) {
    nimm(mit_Ergebnissen({}));
    EXPECT_EQ(Format("RESULTS FOR: the problem"), (Zeichenprobe{Blau, 10, false, false}));
    EXPECT_EQ(Format("V A R N O K"), (Zeichenprobe{Blau, 14, true, true}));
    EXPECT_EQ(Format("Calculations over one year"), (Zeichenprobe{Gruen, 12, false, true}));
}

TEST_F(Formate, headline_of_a_parent_called_as_the_description) {
    Lauf_bauer b;
    b.Felder.Beschreibung = "parent";
    nimm(mit_Ergebnissen(b));
    EXPECT_EQ(Format("RESULTS FOR: parent"), (Zeichenprobe{Blau, 12, true, false}));
}

// The description stands above the results: the search meets it first.
TEST_F(Formate, description_like_a_headline_draws_the_format_to_itself) {
    Lauf_bauer b;
    b.Felder.Beschreibung = "RESULTS OF THE CALCULATION";
    nimm(mit_Ergebnissen(b));
    EXPECT_EQ(Format("RESULTS OF THE CALCULATION", 1), (Zeichenprobe{Blau, 12, true, false}));
    EXPECT_EQ(Tabulatoren("PROGRAM SETTINGS"), (std::vector{2500, 4000, 5500, 7500}));
    EXPECT_EQ(Format("PROGRAM SETTINGS"), (Zeichenprobe{Blau, 10, false, false}));
    EXPECT_EQ(Format("Calculation problem"), (Zeichenprobe{Schwarz, 10, false, false}));
}

// A name that is the start of another: the search stops at the first headline.
TEST_F(Formate, metabolite_whose_name_begins_the_name_of_the_parent) {
    Lauf_bauer b = Lauf_bauer().Schema(1);
    b.Felder.Name_Wirkstoff = "ABC acid";
    b.Felder.Name_Met_1 = "ABC";
    nimm(mit_Ergebnissen(b));
    EXPECT_EQ(Format("RESULTS FOR: ABC", 2), (Zeichenprobe{Hellrot, 10, false, false}));
}

TEST_F(Formate, picture_stands_in_the_place_of_the_placeholder) {
    nimm(mit_Ergebnissen({}));
    EXPECT_TRUE(b_.Dokument->find(QStringLiteral("A diagram should appear here!")).isNull());
    const QTextBlock Kopf = finde("GRAPHIC REPRESENTATION").block();
    const QString Bildzeile = Kopf.next().next().text();
    EXPECT_EQ(Bildzeile, QString(QChar::ObjectReplacementCharacter));
    EXPECT_TRUE(Kopf.next().next().begin().fragment().charFormat().isImageFormat());
    EXPECT_EQ(Kopf.next().next().next().next().next().isValid(), false);
}

// --- warnings ----------------------------------------------------------------------------------------------

Darstellungsprobe mit_zwei_Warnungen() {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(2).nach_DFOP(0.1, 0.01, 0.7).nach_DFOP(0.1, 0.01, 0.7, 2));
    for (const int c : {0, 2}) l.Werte(c).Plateauprozent = 3;
    return l;
}

TEST_F(Formate, every_plateau_warning_is_bold_and_red) {
    nimm(mit_zwei_Warnungen());
    for (const int Nummer : {1, 2}) {
        EXPECT_EQ(Format("In the simulation a final plateau was estimated", Nummer), (Zeichenprobe{Hellrot, 10, true, false}));
        EXPECT_EQ(Format("These results may not be reliable. Please check", Nummer), (Zeichenprobe{Hellrot, 10, true, false}));
        EXPECT_EQ(Format("If possible select a more suitable", Nummer), (Zeichenprobe{Hellrot, 10, true, false}));
    }
    EXPECT_EQ(Format("RESULTS FOR: first metabolite"), (Zeichenprobe{Blau, 12, true, false}));
    EXPECT_EQ(Format("Calculations over one year", 2), (Zeichenprobe{Gruen, 12, false, true}));
    EXPECT_EQ(Format("GRAPHIC REPRESENTATION"), (Zeichenprobe{Blau, 10, false, false}));
}

// What is bold behind the headlines of a text that ends in `Rest`.
std::string fett_in(const std::string& Rest) {
    const std::string Text =
        "V A R N O K\r\nSoil Residue Forecast Tool\r\ndeveloped by Emil Tarrasch\r\nRESULTS OF THE CALCULATION\r\n" + Rest;
    QTextDocument d;
    Textstelle w(d, QString::fromStdString(Text));
    formatiere_Bericht(w, Text, {""}, Berichtsart::Standard);
    std::string fett;
    for (QTextBlock b = d.findBlockByNumber(4); b.isValid(); b = b.next()) {
        for (auto i = b.begin(); !i.atEnd(); ++i) {
            if (i.fragment().charFormat().fontWeight() == QFont::Bold) fett += i.fragment().text().toStdString();
        }
    }
    return fett;
}

// Each line end counts as two of the 300 characters, so a warning's format ends before the next headline.
TEST(Warnungsformat, is_300_characters_long) {
    const std::string Anfang = "In the simulation a final" + std::string(75, 'a');
    EXPECT_EQ(fett_in("start " + Anfang + "\r\n" + std::string(400, 'b') + "\r\n"), Anfang + std::string(300 - 100 - 2, 'b'));
}

// Behind each hit the search goes on 270 characters further in what is left of the text, and in the document 300.
TEST(Warnungsformat, second_warning_too_close_to_the_first_is_overlooked) {
    const std::string Anfang = "In the simulation a final";
    const auto in_Abstand = [&](std::size_t n) {
        return fett_in(Anfang + std::string(n - Anfang.size(), 'a') + Anfang + std::string(400, 'b')).size();
    };
    EXPECT_EQ(in_Abstand(269), 300U);
    EXPECT_EQ(in_Abstand(300), 600U);
}

// A search without a hit leaves the selection of the step before: here all, which so becomes bold.
TEST(Formatierung, text_without_a_title_is_bold_as_a_whole) {
    const std::string Text = "nothing to find\r\nat all\r\n";
    QTextDocument d;
    Textstelle w(d, QString::fromStdString(Text));
    formatiere_Bericht(w, Text, {""}, Berichtsart::Standard);
    for (const int Zeile : {0, 1}) {
        const QTextBlock b = d.findBlockByNumber(Zeile);
        EXPECT_EQ(b.begin().fragment().charFormat().fontWeight(), QFont::Bold);
        EXPECT_EQ(b.blockFormat().alignment(), Qt::AlignHCenter);
    }
}

// --- the selection itself ----------------------------------------------------------------------------------

TEST(Textstelle, counts_a_line_end_as_two_characters) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("ab\r\ncd\r\n\r\nef"));
    EXPECT_TRUE(w.suche(QStringLiteral("ef")));
    EXPECT_EQ(w.Anfang(), 10);
    w.fett();
    QTextCursor c(&d);
    c.setPosition(6);
    EXPECT_NE(c.charFormat().fontWeight(), QFont::Bold);
    c.setPosition(7);
    EXPECT_EQ(c.charFormat().fontWeight(), QFont::Bold);
    EXPECT_EQ(d.toPlainText(), QStringLiteral("ab\ncd\n\nef"));
}

TEST(Textstelle, finds_at_or_behind_the_start_of_the_selection) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("one two one"));
    EXPECT_TRUE(w.suche(QStringLiteral("one")));
    EXPECT_EQ(w.Anfang(), 0);
    EXPECT_TRUE(w.suche(QStringLiteral("one")));  // at the start counts
    EXPECT_EQ(w.Anfang(), 0);
    w.setze(1, 0);
    EXPECT_TRUE(w.suche(QStringLiteral("one")));
    EXPECT_EQ(w.Anfang(), 8);
    EXPECT_EQ(w.Laenge(), 3);
}

TEST(Textstelle, search_without_a_hit_leaves_the_selection) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("one two"));
    w.setze(4, 3);
    EXPECT_FALSE(w.suche(QStringLiteral("three")));
    EXPECT_EQ(w.Anfang(), 4);
    EXPECT_EQ(w.Laenge(), 3);
    EXPECT_FALSE(w.suche(QStringLiteral("one")));  // it stands before the selection
    EXPECT_FALSE(w.suche(QStringLiteral("TWO")));  // case counts
}

TEST(Textstelle, never_reaches_beyond_the_text) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("abc"));
    w.setze(2, 300);
    EXPECT_EQ(w.Laenge(), 1);
    w.setze(302, 0);
    EXPECT_EQ(w.Anfang(), 3);
    w.setze(1, 0);
    w.bis_Ende();
    EXPECT_EQ(w.Laenge(), 2);
}

TEST(Textstelle, empty_selection_changes_no_character_but_its_paragraph) {
    QTextDocument d;
    Textstelle w(d, QStringLiteral("abc\r\ndef"));
    w.setze(1, 0);
    w.fett();
    w.zentriert();
    for (QTextBlock b = d.begin(); b.isValid(); b = b.next()) {
        EXPECT_NE(b.begin().fragment().charFormat().fontWeight(), QFont::Bold);
    }
    EXPECT_EQ(d.begin().blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_NE(d.begin().next().blockFormat().alignment(), Qt::AlignHCenter);
}

}  // namespace
}  // namespace varnok::probe
