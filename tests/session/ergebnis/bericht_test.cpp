// The report command behind the window.

#include <QCryptographicHash>
#include <QImage>
#include <QUrl>
#include <QtEndian>
#include <fstream>

#include "reports/dokumentbild.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Berichtsprobe : public Probesitzung {
protected:
    // The picture of the open report.
    QImage Bild() const {
        const QTextDocument& d = *s_->zeige<Berichtssteuerung>().offener()->Dokument;
        return d.resource(QTextDocument::ImageResource, QUrl(QString::fromLatin1(Bildname))).value<QImage>();
    }
    QImage Bild_mit_Legende(const std::optional<Flaechenort>& Ort) const {
        return erstelle_Berichtsbild(mit_Beschriftung(*s_->zeige<Diagrammsteuerung>().vorderes(), {.Legende = Ort}));
    }
};

TEST_F(Berichtsprobe, of_the_selected_study_is_shown_and_written_to_output) {
    gestartet();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener()->Text.find("RESULTS OF THE CALCULATION"), std::string::npos);
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().Ergebnisdatei(), "A trial");  // all name parts off
    EXPECT_TRUE(gibt_es("output/A trial.rtf"));
}

// As `sha256sum` over the records gives it, each behind its length in eight bytes.
TEST_F(Berichtsprobe, carries_the_sum_over_its_files_while_nothing_differs_from_them) {
    gestartet();
    const auto Herkunft = [this] {
        s_->fuehre_aus<&Berichtssteuerung::erstelle>();
        return Herkunft_von(*s_->zeige<Berichtssteuerung>().offener()->Dokument).toStdString();
    };
    QCryptographicHash Summe(QCryptographicHash::Sha256);
    for (const char* Endung : {".che", ".app", ".sce"}) {
        const std::string Bytes = Datei(std::string("input/Probe") + Endung);
        const quint64 Laenge = qToLittleEndian<quint64>(Bytes.size());
        Summe.addData(QByteArrayView(reinterpret_cast<const char*>(&Laenge), sizeof Laenge));
        Summe.addData(QByteArrayView(Bytes.data(), static_cast<qsizetype>(Bytes.size())));
    }
    const std::string gesichert = "inputs_sha256 " + Summe.result().toHex().toStdString();
    EXPECT_EQ(Herkunft(), gesichert);
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener()->RTF.find("{\\info{\\doccomm " + gesichert + "}}"), std::string::npos);
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener()->Text.find("inputs_sha256"), std::string::npos);
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    EXPECT_EQ(Herkunft(), "inputs not saved");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Herkunft(), gesichert);
    EXPECT_EQ(Herkunft().find("inputs_sha256 "), 0U);
    std::ofstream(Wurzel_ / "input/Probe.sce", std::ios::app) << "of another program";
    EXPECT_EQ(Herkunft(), "inputs not saved");
}

TEST_F(Berichtsprobe, in_the_summary_view_is_that_of_all_studies) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener()->Text.find("Second soil"), std::string::npos);
}

TEST_F(Berichtsprobe, first_accepts_the_field_in_work_and_runs) {
    gestartet();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "12");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener()->Text.find("DT50 (d):\t12\r\n"), std::string::npos);
}

TEST_F(Berichtsprobe, out_of_an_invalid_field_there_is_none) {
    gestartet();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
    Fragen_.erwarte("No valid input!", "The DT50 is invalid. Please correct!");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
}

TEST_F(Berichtsprobe, that_cannot_be_written_is_told_and_stays_on_the_screen) {
    gestartet();
    std::filesystem::remove_all(Wurzel_ / "output");
    std::ofstream(Wurzel_ / "output") << "a file in the folder's place";
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Berichtsprobe, with_a_description_that_no_file_can_be_called_by_has_a_name_that_one_can) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Field A/B");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().Ergebnisdatei().substr(0, 9), "Field A_B");
    EXPECT_TRUE(gibt_es("output/" + s_->zeige<Berichtssteuerung>().Ergebnisdatei() + ".rtf"));
}

TEST_F(Berichtsprobe, another_description_clears_the_name_of_the_output_file) {
    gestartet();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Another");
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().Ergebnisdatei(), "");
}

TEST_F(Berichtsprobe, has_the_legend_where_it_was_dragged_to_in_the_diagram_in_front) {
    constexpr Flaechenort Ort = {0.3, 0.6};
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(ein_Metabolit);
    s_->fuehre_aus<&Diagrammsteuerung::merke_Legende>(false, 1, Ort);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(Bild(), Bild_mit_Legende(Ort));
    EXPECT_NE(Bild(), Bild_mit_Legende({}));
    s_->fuehre_aus<&Diagrammsteuerung::schalte_weiter>();  // the legend of the metabolite's diagram is still at home
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(Bild(), Bild_mit_Legende({}));
}

TEST_F(Berichtsprobe, of_all_studies_goes_by_the_legend_of_the_summary_diagram) {
    constexpr Flaechenort Ort = {0.1, 0.4};
    gestartet();
    s_->fuehre_aus<&Diagrammsteuerung::merke_Legende>(false, 0, Flaechenort{0.5, 0.5});
    s_->fuehre_aus<&Diagrammsteuerung::merke_Legende>(true, 0, Ort);
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(Bild(), Bild_mit_Legende(Ort));
}

TEST_F(Berichtsprobe, has_a_legend_that_was_called_home_at_home) {
    gestartet();
    s_->fuehre_aus<&Diagrammsteuerung::merke_Legende>(false, 0, Flaechenort{0.5, 0.5});
    s_->fuehre_aus<&Diagrammsteuerung::merke_Legende>(false, 0, std::nullopt);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(Bild(), Bild_mit_Legende({}));
}

TEST_F(Berichtsprobe, shows_the_diagram_in_front) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(zwei_parallel);
    for (int i = 0; i < 4; ++i) {
        s_->fuehre_aus<&Berichtssteuerung::erstelle>();
        EXPECT_EQ(Bild(), Bild_mit_Legende({})) << s_->zeige<Diagrammsteuerung>().vorne();
        s_->fuehre_aus<&Diagrammsteuerung::schalte_weiter>();
    }
}

TEST_F(Berichtsprobe, is_saved_as_a_PDF) {
    gestartet();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    s_->fuehre_aus<&Berichtssteuerung::speichere_PDF>((Wurzel_ / "report.pdf").string());
    EXPECT_EQ(Datei("report.pdf").substr(0, 5), "%PDF-");
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "Report written: " + (Wurzel_ / "report.pdf").string());
}

}  // namespace
}  // namespace varnok
