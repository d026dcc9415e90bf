// The witness for the rich text: programs of other makers open it and tell the same.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTextDocumentFragment>

#include "berichtsarten.h"
#include "fremdprogramm.h"
#include "painting/bildflaeche.h"
#include "records/dateien.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

std::string ohne_Bildplatz(const Bericht& b) { return ersetzt(b.Text, "A diagram should appear here!", ""); }

Bericht Bericht_mit_Metabolit(const char* Name) {
    Lauf_bauer l = Lauf_bauer().Schema(1).Einheit(1);
    l.Felder.Name_Met_1 = Name;
    return Bericht_von(mit_Ergebnissen(l));
}

class LibreOffice : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(ist_da("soffice")) << "libreoffice-writer-nogui is missing";
        ASSERT_TRUE(ist_da("pdfimages")) << "poppler-utils is missing";
    }
    bool wandle(const char* Format, const QStringList& Dateien) const {
        const QString Profil = QStringLiteral("-env:UserInstallation=file://") + Ordner_.filePath(QStringLiteral("profile"));
        return rufe("soffice", QStringList{QStringLiteral("--headless"), Profil, QStringLiteral("--convert-to"),
                                           QString::fromLatin1(Format), QStringLiteral("--outdir"), Ordner_.path()} +
                                   Dateien)
            .has_value();
    }
    QString Pfad(const std::string& Name) const { return Ordner_.filePath(QString::fromStdString(Name)); }

    QTemporaryDir Ordner_;
};

TEST_F(LibreOffice, opens_the_rich_text) {
    const Bericht b = Bericht_mit_Metabolit("Met {1} \\ ≥ µ жито");
    const std::string RTF = speichere_Bericht(b, Ordner_.path().toStdString());
    ASSERT_TRUE(wandle("txt:Text (encoded):UTF8", {QString::fromStdString(RTF)}));
    std::string Text = lies_Datei(Pfad("the problem.txt").toStdString());
    if (Text.starts_with("\xEF\xBB\xBF")) Text.erase(0, 3);
    std::string erwartet = ohne_Bildplatz(b);
    std::erase(erwartet, '\r');
    std::erase(Text, '\r');
    while (Text.ends_with('\n')) Text.pop_back();
    while (erwartet.ends_with('\n')) erwartet.pop_back();
    EXPECT_EQ(Text, erwartet);

    ASSERT_TRUE(wandle("pdf", {QString::fromStdString(RTF)}));
    const auto Bilder = rufe("pdfimages", {QStringLiteral("-list"), Pfad("the problem.pdf")});
    ASSERT_TRUE(Bilder.has_value());
    EXPECT_THAT(*Bilder, HasSubstr(" image "));
}

struct Bildseiten {
    int Kopf = 0;
    int Bild = 0;
    int letzte = 0;
};

// Pages of a PDF that hold the headline of the picture, and the picture.
Bildseiten Seiten_von(const QString& PDF) {
    const std::string Text = rufe("pdftotext", {QStringLiteral("-layout"), PDF, QStringLiteral("-")}).value();
    const auto Kopf = static_cast<std::ptrdiff_t>(Text.find("GRAPHIC REPRESENTATION OF THE CALCULATION"));
    // Two lines of head, then a line for each picture that begins with its page.
    const std::string Liste = rufe("pdfimages", {QStringLiteral("-list"), PDF}).value();
    const std::size_t Zeile = Liste.find('\n', Liste.find('\n') + 1) + 1;
    return {1 + static_cast<int>(std::count(Text.begin(), Text.begin() + Kopf, '\f')), std::stoi(Liste.substr(Zeile)),
            static_cast<int>(std::count(Text.begin(), Text.end(), '\f'))};
}

// Reports of different length, so that the picture comes to lie on every part of a page. Without the words that hold them
// together some would be torn.
TEST_F(LibreOffice, shows_headline_and_picture_on_the_last_page_however_long_the_report_is) {
    constexpr int Berichte = 6;
    QStringList Dateien;
    for (int i = 0; i < Berichte; ++i) {
        const std::string RTF = Bericht_von(mit_Ergebnissen(mit_Studien(Lauf_bauer(), i + 1)), Berichtsart::erweitert).RTF;
        for (const char* Art : {"bound", "loose"}) {
            const QString Datei = Pfad(Art + std::to_string(i) + ".rtf");
            schreibe_Datei(Datei.toStdString(), *Art == 'l' ? ersetzt(RTF, "\\keepn", "") : RTF);
            Dateien << Datei;
        }
    }
    ASSERT_TRUE(wandle("pdf", Dateien));
    int zerrissen = 0;
    for (int i = 0; i < Berichte; ++i) {
        const Bildseiten s = Seiten_von(Pfad("bound" + std::to_string(i) + ".pdf"));
        EXPECT_EQ(s.Kopf, s.letzte) << i;
        EXPECT_EQ(s.Bild, s.letzte) << i;
        const Bildseiten lose = Seiten_von(Pfad("loose" + std::to_string(i) + ".pdf"));
        zerrissen += lose.Kopf != lose.Bild;
    }
    EXPECT_GT(zerrissen, 0) << "no report is long enough to show anything";
}

// A small converter that every machine can have. It keeps neither tabs nor runs of blanks, and of a character outside the
// code page it takes the sign behind it away, so none stands at the end of the name.
TEST(Unrtf, reads_the_text_and_the_picture) {
    ASSERT_TRUE(ist_da("unrtf")) << "unrtf is missing";
    const Bericht b = Bericht_mit_Metabolit("Met {1} \\ ≥ жито µ €");
    QTemporaryDir Ordner;
    const QString RTF = QString::fromStdString(speichere_Bericht(b, Ordner.path().toStdString()));
    const std::string Html = rufe("unrtf", {QStringLiteral("--html"), RTF}, Ordner.path()).value();
    const QString Text = QTextDocumentFragment::fromHtml(QString::fromStdString(Html)).toPlainText();
    const std::string gelesen = ersetzt(ersetzt(Text.toStdString(), "\u00A0", ""), "\uFFFC", "");
    EXPECT_EQ(ohne_Luecken(gelesen), ohne_Luecken(ohne_Bildplatz(b)));

    const QStringList Bilder = QDir(Ordner.path()).entryList({QStringLiteral("*.png")});
    ASSERT_EQ(Bilder.size(), 1);
    const QImage Bild(Ordner.filePath(Bilder.front()));
    EXPECT_EQ(Bild.size(), QSize(Bildbreite, Bildhoehe) * Bildpunkte_pro_Einheit);
}

TEST(Unrtf, has_each_row_of_the_widest_report_as_one_line) {
    ASSERT_TRUE(ist_da("unrtf")) << "unrtf is missing";
    const Bericht b = Berichtsfaelle().back().schreibe();
    QTemporaryDir Ordner;
    const QString RTF = QString::fromStdString(speichere_Bericht(b, Ordner.path().toStdString()));
    const std::string Html = rufe("unrtf", {QStringLiteral("--html"), RTF}, Ordner.path()).value();
    const QString Text = QTextDocumentFragment::fromHtml(QString::fromStdString(Html)).toPlainText();
    std::vector<std::string> gelesen;
    for (const QString& z : Text.split(u'\n')) gelesen.push_back(ohne_Luecken(ersetzt(z.toStdString(), "\u00A0", "")));
    int gesehen = 0;
    for (const std::string& z : Zeilen(b.Text)) {
        if (z.find('\t') == std::string::npos) continue;
        EXPECT_THAT(gelesen, ::testing::Contains(ohne_Luecken(z)));
        ++gesehen;
    }
    EXPECT_GT(gesehen, 100);
}

}  // namespace
}  // namespace varnok::probe
