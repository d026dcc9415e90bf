// Titles and comments in their lines.

#include "painting/titelform.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

#include "painting/bildflaeche.h"
#include "painting/bildprobe.h"
#include "painting/qt_text.h"
#include "painting/zeichner.h"

namespace varnok::probe {
namespace {

Beschriftung gesetzt(const std::string& Text, double Breite, int Zeilen) {
    Beschriftung b;
    b.Text = Text;
    EXPECT_EQ(setze_Titel(b, Breite, Schriftgroesse_Titel, Schriftgroesse_Bericht, true, false), Zeilen) << Text;
    return b;
}

TEST(Titelform, one_line_where_it_fits) {
    const Beschriftung b = gesetzt("a title of some words", 400, 1);
    EXPECT_EQ(b.Text, "a title of some words");
    EXPECT_EQ(b.Groesse, 12);
}

TEST(Titelform, two_lines_of_about_the_same_width_where_it_does_not) {
    EXPECT_EQ(gesetzt("first half of it second half of it", 200, 2).Text, "first half of it\nsecond half of it");
}

// Where both lines find room so, whatever their lengths.
TEST(Titelform, the_second_line_begins_with_a_statement_of_its_own) {
    EXPECT_EQ(gesetzt("Annual concentration of a long description Study: x", 450, 2).Text,
              "Annual concentration of a long description\nStudy: x");
    EXPECT_EQ(gesetzt("Mode: Parent only  - presented substance: x", 300, 2).Text,
              "Mode: Parent only  -\npresented substance: x");
    // Else as even as can be.
    EXPECT_EQ(gesetzt("one two three four five six seven eight Study: x", 250, 2).Text,
              "one two three four five\nsix seven eight Study: x");
}

TEST(Titelform, smaller_letters_before_a_third_line) {
    const Beschriftung b = gesetzt("first half of it second half of it", 140, 2);
    EXPECT_LT(b.Groesse, 12);
    EXPECT_GE(b.Groesse, 7);
}

// Every character is there, within the width, whatever the text.
TEST(Titelform, nothing_is_ever_cut) {
    for (const std::string& Text :
         {std::string(300, 'w'), std::string("a ") + std::string(200, 'm') + " b", std::string("word ") + std::string(40, 'x'),
          std::string("x"), std::string("many short words ") + std::string(50, 'i') + " and more of them here"}) {
        Beschriftung b;
        b.Text = Text;
        setze_Titel(b, 100, Schriftgroesse_Titel, Schriftgroesse_Bericht, true, false);
        QString ohne_Umbruch = in_Qt(b.Text);
        EXPECT_EQ(ohne_Umbruch.remove(u'\n').remove(u' '), in_Qt(Text).remove(u' '));
        for (const QString& Zeile : in_Qt(b.Text).split(u'\n'))
            EXPECT_LE(QFontMetricsF(Diagrammschrift(b.Groesse, true)).horizontalAdvance(Zeile), 100) << Text;
    }
}

TEST(Titelform, of_a_picture_is_centred_over_the_axes_and_larger_than_the_comment) {
    Lauf_bauer l;
    l.Felder.Beschreibung = "A description that is so long that its title does not fit on one line of the picture at all";
    for (const Lauf_bauer& b : {Lauf_bauer(), l}) {
        const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(b));
        const double links = auf_Flaeche(Bildflaeche, z.System, z.Linien[0].von).x();
        const double rechts = auf_Flaeche(Bildflaeche, z.System, z.Linien[0].bis).x();
        int Titelzeilen = 0;
        for (const Schriftzug& s : z.Texte) {
            const QRectF Platz = setze_Schrift(Bildflaeche, z.System, s, Schriftgroesse_Bericht).Platz;
            EXPECT_FALSE(setze_Schrift(Bildflaeche, z.System, s, Schriftgroesse_Bericht).gekuerzt) << s.Inhalt;
            if (s.Groesse == Schriftgroesse_Titel) {
                ++Titelzeilen;
                EXPECT_TRUE(std::abs(Platz.center().x() - (links + rechts) / 2) < 1 || Platz.left() < 1 || Platz.right() > 639)
                    << s.Inhalt;
            }
            EXPECT_TRUE(!s.kursiv || s.Groesse < Schriftgroesse_Titel);
        }
        EXPECT_EQ(Titelzeilen, b.Felder.Beschreibung.empty() ? 1 : 2);
    }
}

// On a small picture a long title has smaller letters, and the comment still smaller ones.
TEST(Titelform, the_comment_is_smaller_than_any_title) {
    for (const std::size_t Laenge : {10U, 60U, 120U, 250U}) {
        Lauf_bauer l;
        for (std::size_t i = 0; i < Laenge; ++i) l.Felder.Beschreibung += i % 8 == 7 ? ' ' : 'e';
        const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(l), {.Groesse = {453, 340}});
        int Titel = 0, Kommentar = 0;
        for (const Schriftzug& s : z.Texte) {
            if (s.Inhalt.starts_with("Annual")) Titel = s.Groesse;
            if (s.kursiv) Kommentar = std::max(Kommentar, s.Groesse);
        }
        EXPECT_GT(Kommentar, 0);
        EXPECT_LT(Kommentar, Titel) << Laenge;
    }
}

}  // namespace
}  // namespace varnok::probe
