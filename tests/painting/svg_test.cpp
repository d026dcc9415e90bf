// Pictures for other programs.

#include <gtest/gtest.h>

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/bildprobe.h"
#include "painting/qt_text.h"
#include "reports/fremdprogramm.h"

namespace varnok::probe {
namespace {

const QSizeF Groesse(mm_in_Einheiten(160), mm_in_Einheiten(125));

// All texts of the file; fails for one that is no XML.
QStringList Texte(const QByteArray& SVG) {
    QStringList Liste;
    QXmlStreamReader Leser(SVG);
    while (!Leser.atEnd()) {
        if (Leser.readNext() == QXmlStreamReader::StartElement && Leser.name() == u"text") Liste << Leser.readElementText();
    }
    EXPECT_FALSE(Leser.hasError()) << Leser.errorString().toStdString();
    return Liste;
}

QByteArray SVG_von(const Lauf_bauer& b, const QString& Titel = {}, Bildform f = {.Groesse = Groesse}) {
    return Bild_als_SVG(mit_Beschriftung(Wirkstoffdiagramm(b), f), Titel, Groesse);
}

class Feindliche_Namen : public ::testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(alle, Feindliche_Namen,
                         ::testing::Values("a & b", "<script>alert(1)</script>", "]]>", "\"quoted\" 'names'", "&#0;&lt;",
                                           "tab\there \x01\x02\x1F bells \x07", "µ ≥ жито 日本 \xF0\x9F\x8C\xBE", "--><!--",
                                           "\xEF\xBF\xBE\xEF\xBF\xBF", "url(#surface)"));

TEST_P(Feindliche_Namen, give_a_valid_file) {
    Lauf_bauer b;
    b.Felder.Beschreibung = GetParam();
    b.Felder.Name_Wirkstoff = GetParam();
    const QByteArray SVG = SVG_von(b, in_Qt(GetParam()));
    const QString alles = Texte(SVG).join(u' ');
    EXPECT_TRUE(alles.contains(QStringLiteral("PEC")));
    QTemporaryDir Ordner;
    const QString Pfad = Ordner.filePath(QStringLiteral("a.svg"));
    QFile Datei(Pfad);
    ASSERT_TRUE(Datei.open(QIODevice::WriteOnly));
    Datei.write(SVG);
    Datei.close();
    const QString PNG = Ordner.filePath(QStringLiteral("a.png"));
    if (!rufe("rsvg-convert", {QStringLiteral("-o"), PNG, Pfad})) GTEST_SKIP() << "rsvg-convert is not installed";
    EXPECT_EQ(QImage(PNG).width(), 605);
}

TEST(SVG, text_comes_back_as_it_was) {
    Lauf_bauer b;
    b.Felder.Beschreibung = "a & b < c > \"d\"";
    EXPECT_TRUE(Texte(SVG_von(b)).contains(QStringLiteral("Annual concentration of a & b < c > \"d\" Study: field")));
}

// A curve of a year is one path of 365 segments, and no other is so long.
TEST(SVG, a_curve_is_one_path) {
    const QString SVG = QString::fromUtf8(SVG_von(Lauf_bauer()));
    static const QRegularExpression Wege(QStringLiteral("<path d=\"([^\"]*)\" stroke=\"([^\"]*)\" stroke-width=\"2\""));
    int lange = 0;
    for (auto it = Wege.globalMatch(SVG); it.hasNext();) {
        const auto Fund = it.next();
        if (Fund.captured(1).count(u'L') < 10) continue;
        ++lange;
        EXPECT_EQ(Fund.captured(1).count(u'M'), 1);
        EXPECT_EQ(Fund.captured(1).count(u'L'), 365);
        EXPECT_EQ(Fund.captured(2), QStringLiteral("#000080"));
    }
    EXPECT_EQ(lange, 1);
}

// With a font of another width a number stays under its tick and a title in the middle.
TEST(SVG, texts_are_held_where_they_belong_and_name_several_families) {
    const QString SVG = QString::fromUtf8(SVG_von(Lauf_bauer()));
    EXPECT_TRUE(SVG.contains(QStringLiteral("sans-serif")));
    const auto Halt = [&](const QString& Text) {
        const auto Fund =
            QRegularExpression(QStringLiteral("<text ([^>]*)>") + QRegularExpression::escape(Text) + QStringLiteral("</text>"))
                .match(SVG);
        EXPECT_TRUE(Fund.hasMatch()) << Text.toStdString();
        return Fund.captured(1);
    };
    EXPECT_TRUE(Halt(QStringLiteral("Annual concentration of the problem Study: field")).contains(QStringLiteral("middle")));
    EXPECT_TRUE(Halt(QStringLiteral("350")).contains(QStringLiteral("middle")));
    EXPECT_TRUE(Halt(QStringLiteral("1.5")).contains(QStringLiteral("\"end\"")));
    EXPECT_FALSE(Halt(QStringLiteral("PEC")).contains(QStringLiteral("text-anchor")));
}

TEST(SVG, has_the_size_in_millimetres) {
    EXPECT_TRUE(QString::fromUtf8(SVG_von(Lauf_bauer())).contains(QStringLiteral("width=\"160mm\" height=\"125mm\"")));
}

TEST(SVG, for_print_has_dashes) {
    Lauf_bauer b = Lauf_bauer().Schema(ein_Metabolit).nach_SFO(0.02, 1);
    Diagrammbereiche Bereiche = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_mehrfach(gerechnetes_Problem(b), Bereiche, 3, 0, 0);
    EXPECT_FALSE(Bild_als_SVG(mit_Beschriftung(d, {.Groesse = Groesse}), {}, Groesse).contains("dasharray"));
    const Bildform Druck = {.Groesse = Groesse, .fuer_Druck = true};
    const QByteArray SVG = Bild_als_SVG(mit_Beschriftung(d, Druck), {}, Groesse);
    EXPECT_EQ(SVG.count("stroke-dasharray=\"12,6\""), 2);  // the metabolite's curve and its sample line
    EXPECT_FALSE(SVG.contains("#00ff00"));
}

// The same picture by another painter: most of it is alike.
TEST(SVG, looks_like_the_pixels) {
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(), {.Groesse = Groesse});
    QTemporaryDir Ordner;
    const QString Pfad = Ordner.filePath(QStringLiteral("a.svg"));
    QFile Datei(Pfad);
    ASSERT_TRUE(Datei.open(QIODevice::WriteOnly));
    Datei.write(Bild_als_SVG(z, {}, Groesse));
    Datei.close();
    const QString PNG = Ordner.filePath(QStringLiteral("a.png"));
    if (!rufe("rsvg-convert", {QStringLiteral("-o"), PNG, Pfad})) GTEST_SKIP() << "rsvg-convert is not installed";
    const QImage fremd = QImage(PNG).convertToFormat(QImage::Format_RGB32);
    const QImage eigen = Bild_als_Pixel(z, Groesse, 96);
    ASSERT_LE((fremd.size() - eigen.size()).width(), 1);
    int dunkel = 0, beide = 0;
    for (int y = 2; y < eigen.height() - 2; ++y) {
        for (int x = 2; x < eigen.width() - 2; ++x) {
            if (qGray(eigen.pixel(x, y)) > 100) continue;
            ++dunkel;
            bool da = false;
            for (int i = 0; i < 25; ++i) da = da || qGray(fremd.pixel(x - 2 + i % 5, y - 2 + i / 5)) < 160;
            beide += da;
        }
    }
    EXPECT_GT(dunkel, 3000);
    EXPECT_GT(beide, dunkel * 0.97);
}

QString geschrieben(const QTemporaryDir& Ordner, const QString& Name, const QByteArray& Inhalt) {
    QFile Datei(Ordner.filePath(Name));
    EXPECT_TRUE(Datei.open(QIODevice::WriteOnly));
    Datei.write(Inhalt);
    return Datei.fileName();
}

// Names that would break a careless file.
Lauf_bauer mit_feindlichem_Namen() {
    Lauf_bauer b;
    b.Felder.Beschreibung = "a & b <c> ]]> --> \"q\" 'n' &#0; \x01 \xC2\xB5 \xE6\x97\xA5";
    b.Felder.Name_Wirkstoff = "<script>alert(1)</script> & url(#surface)";
    return b;
}

TEST(SVG, is_opened_by_a_drawing_program) {
    const QTemporaryDir Ordner;
    const QString SVG = geschrieben(Ordner, QStringLiteral("a.svg"), SVG_von(mit_feindlichem_Namen()));
    const QString PNG = Ordner.filePath(QStringLiteral("a.png"));
    if (!rufe("inkscape", {SVG, QStringLiteral("--export-filename=") + PNG})) GTEST_SKIP() << "inkscape is not installed";
    const QImage Bild(PNG);
    ASSERT_FALSE(Bild.isNull());
    EXPECT_NEAR(static_cast<double>(Bild.width()) / Bild.height(), 160 / 125.0, 0.02);
}

// In a page that a word processor turns into a PDF its texts are found again.
TEST(SVG, is_opened_by_a_word_processor) {
    const QTemporaryDir Ordner;
    geschrieben(Ordner, QStringLiteral("a.svg"), SVG_von(mit_feindlichem_Namen()));
    const QString Seite =
        geschrieben(Ordner, QStringLiteral("a.html"), "<html><body><p>A page</p><img src=\"a.svg\"></body></html>");
    const QString Profil = QStringLiteral("-env:UserInstallation=file://") + Ordner.filePath(QStringLiteral("profile"));
    const auto Ausgabe =
        rufe("soffice", {QStringLiteral("--headless"), Profil, QStringLiteral("--convert-to"),
                         QStringLiteral("pdf:writer_web_pdf_Export"), QStringLiteral("--outdir"), Ordner.path(), Seite});
    const auto Text =
        rufe("pdftotext", {QStringLiteral("-layout"), Ordner.filePath(QStringLiteral("a.pdf")), QStringLiteral("-")});
    if (!Ausgabe || !Text) GTEST_SKIP() << "soffice or pdftotext is not installed";
    for (const char* Stelle :
         {"Timeafterfirstapplication(d)", "concentrationofa&b<c>]]>-->\"q\"'n'&#0;", "<script>alert(1)</script>"})
        EXPECT_NE(ohne_Luecken(*Text).find(Stelle), std::string::npos) << *Text;
}

TEST(PDF, has_the_size) {
    const QByteArray PDF =
        Bild_als_PDF(mit_Beschriftung(Wirkstoffdiagramm(), {.Groesse = Groesse}), QStringLiteral("a & b"), Groesse);
    EXPECT_TRUE(PDF.startsWith("%PDF-"));
    EXPECT_TRUE(PDF.contains("/MediaBox [0 0 453") || PDF.contains("/MediaBox [0 0 454")) << PDF.left(600).toStdString();
}

// Read by a program of another maker; letters are paths of curves there, so the number of straight pieces tells them apart.
TEST(PDF, a_curve_is_one_path) {
    const QTemporaryDir Ordner;
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(), {.Groesse = Groesse});
    const QString PDF = geschrieben(Ordner, QStringLiteral("a.pdf"), Bild_als_PDF(z, {}, Groesse));
    const auto SVG = rufe("pdftocairo", {QStringLiteral("-svg"), PDF, QStringLiteral("-")});
    if (!SVG) GTEST_SKIP() << "pdftocairo is not installed";
    static const QRegularExpression Wege(QStringLiteral(" d=\"([^\"]*)\""));
    std::vector<qsizetype> Stuecke;
    for (auto it = Wege.globalMatch(QString::fromStdString(*SVG)); it.hasNext();) {
        const auto Anzahl = it.next().captured(1).count(u'L');
        if (Anzahl > 40) Stuecke.push_back(Anzahl);
    }
    EXPECT_EQ(Stuecke, std::vector<qsizetype>{364});  // between the days 0 to 364
}

}  // namespace
}  // namespace varnok::probe
