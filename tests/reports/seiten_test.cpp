// Reports on paper: the pages of the program's PDF and those that a text processor makes of the rich text, read by a third
// program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QXmlStreamReader>

#include "berichtsarten.h"
#include "fremdprogramm.h"
#include "records/dateien.h"
#include "reports/berichtswoerter.h"
#include "reports/dokumentbild.h"
#include "reports/seitenausgabe.h"
#include "reports/seitenmass.h"
#include "reports/twips.h"

namespace varnok::probe {
namespace {

struct Wort {
    std::string Text;
    double links = 0;  // points from the edge of the paper
};

struct Papierzeile {
    std::vector<Wort> Woerter;
    int Seite = 0;
    double oben = 0;

    std::string Text() const {
        std::string t;
        for (const Wort& w : Woerter) t += w.Text;
        return ohne_Luecken(ersetzt(t, "ﬁ", "fi"));
    }
    double links() const { return Woerter.front().links; }
};

constexpr double gleiche_Hoehe = 2;

void nimm_Wort(std::vector<Papierzeile>& Zeilen, int Seite, double unten, Wort w) {
    const auto dieselbe = [&](const Papierzeile& z) { return z.Seite == Seite && std::abs(z.oben - unten) < gleiche_Hoehe; };
    auto Zeile = std::find_if(Zeilen.begin(), Zeilen.end(), dieselbe);
    if (Zeile == Zeilen.end()) Zeile = Zeilen.insert(Zeilen.end(), {{}, Seite, unten});
    Zeile->Woerter.push_back(std::move(w));
}

// The lines of a PDF from the top of the first page to the bottom of the last one.
std::vector<Papierzeile> lies_PDF(const QString& Datei) {
    const auto Xml = rufe("pdftotext", {QStringLiteral("-bbox"), Datei, QStringLiteral("-")});
    std::vector<Papierzeile> Zeilen;
    if (!Xml) return Zeilen;
    QXmlStreamReader r(QByteArray::fromStdString(*Xml));
    int Seite = 0;
    while (!r.atEnd()) {
        if (r.readNext() != QXmlStreamReader::StartElement) continue;
        if (r.name() == QLatin1String("page")) ++Seite;
        if (r.name() != QLatin1String("word")) continue;
        const double links = r.attributes().value(QLatin1String("xMin")).toDouble();
        const double unten = r.attributes().value(QLatin1String("yMax")).toDouble();
        nimm_Wort(Zeilen, Seite, unten, {r.readElementText().toStdString(), links});
    }
    EXPECT_FALSE(r.hasError()) << r.errorString().toStdString();
    std::stable_sort(Zeilen.begin(), Zeilen.end(),
                     [](const auto& a, const auto& b) { return std::pair(a.Seite, a.oben) < std::pair(b.Seite, b.oben); });
    for (Papierzeile& z : Zeilen) {
        std::stable_sort(z.Woerter.begin(), z.Woerter.end(), [](const Wort& a, const Wort& b) { return a.links < b.links; });
    }
    return Zeilen;
}

// A report with its lines on paper.
struct Probe {
    const Berichtsfall* Fall;
    Bericht Inhalt;
    std::vector<Papierzeile> Zeilen;

    // The line of the paper that holds the line of the text as a whole, searched from `ab` on.
    std::size_t finde(const std::string& Zeile, std::size_t ab) const {
        const std::string Gesucht = ohne_Luecken(Zeile);
        while (ab < Zeilen.size() && Zeilen[ab].Text() != Gesucht) ++ab;
        return ab;
    }
};

Probe Probe_von(const Berichtsfall& f, const QString& PDF) { return {&f, f.schreibe(), lies_PDF(PDF)}; }

// The pages that the program prints of every kind of report.
std::vector<Probe> gedruckte() {
    const QTemporaryDir Ordner;
    std::vector<Probe> Liste;
    for (const Berichtsfall& f : Berichtsfaelle()) {
        const Bericht b = f.schreibe();
        const QString Datei = Ordner.filePath(QString::fromLatin1(f.Name));
        schreibe_Datei(Datei.toStdString(), als_PDF(*b.Dokument, b.Name));
        Liste.push_back(Probe_von(f, Datei));
    }
    return Liste;
}

// The pages that a text processor makes of their rich text. It starts slowly, so it gets all of them at once.
std::vector<Probe> gesetzte() {
    const QTemporaryDir Ordner;
    const auto Datei = [&](const Berichtsfall& f, const char* Endung) {
        return Ordner.filePath(QString::fromLatin1(f.Name) + QString::fromLatin1(Endung));
    };
    QStringList Aufruf = {QStringLiteral("--headless"),
                          QStringLiteral("-env:UserInstallation=file://") + Ordner.filePath(QStringLiteral("profile")),
                          QStringLiteral("--convert-to"),
                          QStringLiteral("pdf"),
                          QStringLiteral("--outdir"),
                          Ordner.path()};
    for (const Berichtsfall& f : Berichtsfaelle()) {
        schreibe_Datei(Datei(f, ".rtf").toStdString(), f.schreibe().RTF);
        Aufruf << Datei(f, ".rtf");
    }
    std::vector<Probe> Liste;
    if (!rufe("soffice", Aufruf)) return Liste;
    for (const Berichtsfall& f : Berichtsfaelle()) Liste.push_back(Probe_von(f, Datei(f, ".pdf")));
    return Liste;
}

bool ist_Zeile(const std::string& z) { return z.find('\t') != std::string::npos; }
bool ist_Tabellenkopf(const std::string& z) { return z.starts_with("Time(d)\t") || z.starts_with("Time (d)\t"); }

void pruefe_Zeilen(const Probe& p) {
    std::size_t Stelle = 0;
    for (const std::string& z : Zeilen(p.Inhalt.Text)) {
        if (!ist_Zeile(z)) continue;
        const std::size_t Treffer = p.finde(z, Stelle);
        if (Treffer == p.Zeilen.size()) {
            ADD_FAILURE() << z;
        } else {
            Stelle = Treffer + 1;
        }
    }
}

std::vector<std::string> Zellen(const std::string& Zeile) {
    std::vector<std::string> Liste(1);
    for (const char z : Zeile) {
        if (z == '\t') {
            Liste.emplace_back();
        } else {
            Liste.back().push_back(z);
        }
    }
    return Liste;
}

// Where the cells of a line begin: each at the word that its text begins with.
std::vector<double> Zellanfaenge(const Papierzeile& Papier, const std::string& Zeile) {
    std::vector<double> Anfaenge;
    std::size_t Wortnummer = 0;
    for (const std::string& Zelle : Zellen(Zeile)) {
        if (ohne_Luecken(Zelle).empty()) continue;
        Anfaenge.push_back(Papier.Woerter.at(Wortnummer).links);
        std::string Rest = ohne_Luecken(Zelle);
        while (!Rest.empty() && Wortnummer < Papier.Woerter.size()) {
            const std::string Text = ersetzt(Papier.Woerter[Wortnummer++].Text, "ﬁ", "fi");
            EXPECT_TRUE(Rest.starts_with(Text)) << Rest << " / " << Text;
            Rest.erase(0, Text.size());
        }
    }
    return Anfaenge;
}

constexpr double Punkte_pro_Twip = 1.0 / 20;
const std::vector<int> Stellen_Standard = {500, 2500, 4000, 5500, 7500};
const std::vector<int> Stellen_erweitert = {500, 1800, 3200, 4700, 6200, 7700, 9200};

// The head of a table and each of its rows: the cells begin at the tab stops, whatever stands in them.
void pruefe_Spalten(const Probe& p) {
    const auto& Stellen = p.Fall->Art == Berichtsart::Standard ? Stellen_Standard : Stellen_erweitert;
    std::size_t Stelle = 0;
    int Zeilen_gesehen = 0;
    bool Tabelle = false;
    for (const std::string& z : Zeilen(p.Inhalt.Text)) {
        Tabelle = ist_Tabellenkopf(z) || (Tabelle && ist_Zeile(z));
        if (!Tabelle) continue;
        Stelle = p.finde(z, Stelle);
        ASSERT_LT(Stelle, p.Zeilen.size()) << z;
        const auto Anfaenge = Zellanfaenge(p.Zeilen[Stelle], z);
        for (std::size_t i = 0; i < Anfaenge.size(); ++i) {
            EXPECT_NEAR(Anfaenge[i], (Seitenrand + Stellen.at(i)) * Punkte_pro_Twip, 1.5) << z;
        }
        ++Zeilen_gesehen;
        ++Stelle;
    }
    EXPECT_GT(Zeilen_gesehen, 20);
}

// Head and rows of a table are on one page, and the caption above with them.
void pruefe_Tabellen(const Probe& p) {
    std::size_t Stelle = 0;
    int Seite = 0;
    bool Tabelle = false;
    for (const std::string& z : Zeilen(p.Inhalt.Text)) {
        const bool Kopf = ist_Tabellenkopf(z);
        Tabelle = Kopf || (Tabelle && ist_Zeile(z));
        if (!Tabelle) continue;
        Stelle = p.finde(z, Stelle);
        ASSERT_LT(Stelle, p.Zeilen.size());
        if (Kopf) {
            Seite = p.Zeilen[Stelle].Seite;
            EXPECT_EQ(p.Zeilen[Stelle - 1].Seite, Seite) << z;
        }
        EXPECT_EQ(p.Zeilen[Stelle].Seite, Seite) << z;
    }
}

// No headline is the last of its page.
void pruefe_Ueberschriften(const Probe& p) {
    int gesehen = 0;
    for (std::size_t i = 0; i < p.Zeilen.size(); ++i) {
        const std::string Text = p.Zeilen[i].Text();
        bool Kopf = Text.starts_with("RESULTSFOR:");
        for (const char* Wort : {Berichtswort::Jahr, Berichtswort::Hintergrund, Berichtswort::Anreicherung, "PROGRAM SETTINGS",
                                 "APPLICATION PATTERN USED IN THE CALCULATION"}) {
            Kopf = Kopf || Text == ohne_Luecken(Wort);
        }
        if (!Kopf) continue;
        ++gesehen;
        ASSERT_LT(i + 1, p.Zeilen.size());
        EXPECT_EQ(p.Zeilen[i].Seite, p.Zeilen[i + 1].Seite) << Text;
    }
    EXPECT_GT(gesehen, 5);
}

// What holds on paper, whoever set the pages.
void pruefe(const Probe& p) {
    SCOPED_TRACE(p.Fall->Name);
    pruefe_Zeilen(p);
    pruefe_Spalten(p);
    pruefe_Tabellen(p);
    pruefe_Ueberschriften(p);
}

// The pages of the PDF say what they belong to; the print keeps clear of the edge.
void pruefe_Fuesse(const Probe& p) {
    SCOPED_TRACE(p.Fall->Name);
    const int Seiten = p.Zeilen.back().Seite;
    std::vector<std::string> Fuesse(static_cast<std::size_t>(Seiten));
    for (const Papierzeile& z : p.Zeilen) {
        Fuesse[static_cast<std::size_t>(z.Seite - 1)] = z.Text();
        EXPECT_GE(z.links(), Seitenrand * Punkte_pro_Twip - 1) << z.Text();
    }
    const std::string Beschreibung = mit_Ergebnissen(p.Fall->Bauer()).Felder.Beschreibung;
    for (int s = 1; s <= Seiten; ++s) {
        EXPECT_EQ(Fuesse[static_cast<std::size_t>(s - 1)],
                  ohne_Luecken(Beschreibung + "page" + std::to_string(s) + "of" + std::to_string(Seiten)));
    }
}

TEST(Papier, pages_of_the_PDF) {
    ASSERT_TRUE(ist_da("pdftotext")) << "poppler-utils is missing";
    int Bild_unter_Ergebnissen = 0;
    for (const Probe& p : gedruckte()) {
        pruefe(p);
        pruefe_Fuesse(p);
        const std::size_t Kopf = p.finde(Berichtswort::Bildkopf, 0);
        ASSERT_LT(Kopf, p.Zeilen.size());
        ASSERT_GT(Kopf, 0U);
        Bild_unter_Ergebnissen += p.Zeilen[Kopf].Seite == p.Zeilen[Kopf - 1].Seite;
    }
    EXPECT_GT(Bild_unter_Ergebnissen, 0) << "a picture that has room begins no page";
}

// The same row of the two ways: its cells begin at the same places, and so do the key figures behind their words.
void pruefe_gleiche_Tabulatoren(const Probe& PDF, const Probe& RTF) {
    SCOPED_TRACE(PDF.Fall->Name);
    std::size_t a = 0, b = 0;
    for (const std::string& z : Zeilen(PDF.Inhalt.Text)) {
        if (!ist_Zeile(z)) continue;
        a = PDF.finde(z, a);
        b = RTF.finde(z, b);
        ASSERT_LT(a, PDF.Zeilen.size()) << z;
        ASSERT_LT(b, RTF.Zeilen.size()) << z;
        const auto hier = Zellanfaenge(PDF.Zeilen[a++], z), dort = Zellanfaenge(RTF.Zeilen[b++], z);
        for (std::size_t k = 0; k < hier.size(); ++k) EXPECT_NEAR(hier[k], dort[k], 1.5) << z;
    }
}

TEST(Papier, pages_of_the_rich_text_are_as_those_of_the_PDF) {
    ASSERT_TRUE(ist_da("pdftotext")) << "poppler-utils is missing";
    ASSERT_TRUE(ist_da("soffice")) << "libreoffice-writer-nogui is missing";
    const std::vector<Probe> PDF = gedruckte(), RTF = gesetzte();
    ASSERT_EQ(PDF.size(), RTF.size());
    for (const Probe& p : RTF) pruefe(p);
    for (std::size_t i = 0; i < RTF.size(); ++i) pruefe_gleiche_Tabulatoren(PDF[i], RTF[i]);
}

std::vector<Papierzeile> gedruckt_mit(const Bericht& b, const std::function<void(QPdfWriter&)>& richte_ein) {
    const QTemporaryDir Ordner;
    const QString Datei = Ordner.filePath(QStringLiteral("x.pdf"));
    {
        QPdfWriter Geraet(Datei);
        Geraet.setPageSize(QPageSize(QPageSize::A4));
        Geraet.setPageMargins(QMarginsF(Seitenrand_mm, Seitenrand_mm, Seitenrand_mm, Seitenrand_mm), QPageLayout::Millimeter);
        richte_ein(Geraet);
        EXPECT_TRUE(drucke_Dokument(*b.Dokument, Geraet));
    }
    return lies_PDF(Datei);
}

TEST(Papier, smaller_paper_shows_the_same_rows_smaller) {
    ASSERT_TRUE(ist_da("pdftotext")) << "poppler-utils is missing";
    const Berichtsfall& f = Berichtsfaelle().back();
    Probe p{&f, f.schreibe(), {}};
    p.Zeilen = gedruckt_mit(p.Inhalt, [](QPdfWriter& g) { g.setPageSize(QPageSize(QPageSize::A5)); });
    pruefe_Zeilen(p);
    for (const Papierzeile& z : p.Zeilen) EXPECT_LT(z.Woerter.back().links, 420) << z.Text();
}

TEST(Papier, only_the_pages_wanted_are_printed) {
    ASSERT_TRUE(ist_da("pdftotext")) << "poppler-utils is missing";
    const Bericht b = Berichtsfaelle().back().schreibe();
    int Seiten = 0;
    const auto Zeilen = gedruckt_mit(b, [&](QPdfWriter& g) {
        Seiten = Seitenzahl(*b.Dokument, g);
        QPageRanges Bereiche;
        Bereiche.addRange(2, 3);
        Bereiche.addPage(5);
        g.setPageRanges(Bereiche);
    });
    ASSERT_GT(Seiten, 5);
    std::vector<std::string> Fuesse;
    for (const Papierzeile& z : Zeilen) {
        const std::string Text = z.Text();
        if (const auto i = Text.rfind("page"); i != std::string::npos) Fuesse.push_back(Text.substr(i));
    }
    const std::string von = "of" + std::to_string(Seiten);
    EXPECT_THAT(Fuesse, ::testing::ElementsAre("page2" + von, "page3" + von, "page5" + von));
}

// The sheet of the window, set for its dots: what a row takes there does not depend on the window's width.
TEST(Blatt, every_row_stands_on_one_line) {
    for (const Berichtsfall& f : Berichtsfaelle()) {
        SCOPED_TRACE(f.Name);
        const Bericht b = f.schreibe();
        const std::unique_ptr<QTextDocument> Blatt(kopiere_Dokument(*b.Dokument));
        Blatt->setDocumentMargin(Twips_in_Pixel(Seitenrand));
        Blatt->setTextWidth(Twips_in_Pixel(Papierbreite));
        Blatt->documentLayout()->documentSize();  // lays it out to its end
        int gesehen = 0;
        for (QTextBlock z = Blatt->begin(); z.isValid(); z = z.next()) {
            if (!z.text().contains(u'\t')) continue;
            EXPECT_EQ(z.layout()->lineCount(), 1) << z.text().toStdString();
            ++gesehen;
        }
        EXPECT_GT(gesehen, 30);
    }
}

}  // namespace
}  // namespace varnok::probe
