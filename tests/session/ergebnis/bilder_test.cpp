// Pictures and data of diagrams behind the window, of everything that is shipped.

#include <unistd.h>

#include <QRectF>
#include <algorithm>
#include <filesystem>

#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/zeichner.h"
#include "records/dateien.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

// What a picture holds, as rectangles and places of its surface.
struct Bildinhalt {
    Bildinhalt(const Zeichenliste& z, const QSizeF& Groesse) {
        const QRectF Flaeche(QPointF(), Groesse);
        const auto Ort = [&](Punkt p) { return auf_Flaeche(Flaeche, z.System, p); };
        const Kasten& k = z.Kaesten.at(0);
        Legende = QRectF(Ort(k.links_oben), Ort(k.rechts_unten));
        double Kopf = 0;
        for (const Schriftzug& s : z.Texte) {
            const QRectF Platz = setze_Schrift(Flaeche, z.System, s, Schriftgroesse_Bericht).Platz;
            if (s.kursiv) Kopf = std::max(Kopf, Platz.bottom());
            if (!Legende.contains(Platz.center())) Texte.push_back(Platz);
        }
        Raum =
            QRectF(QPointF(Ort(z.Linien[1].von).x() + 8, Kopf + 4), QPointF(Groesse.width() - 8, Ort(z.Linien[0].von).y() - 4));
        for (std::size_t i = 0; i < k.verdeckt; ++i) {  // behind these come the sample lines
            const Linie& l = z.Linien[i];
            if (l.Farbe == Schwarz) continue;
            const QPointF Weg = Ort(l.bis) - Ort(l.von);
            for (int t = 0; t <= 10; ++t) Kurven.push_back(Ort(l.von) + Weg * t / 10.0);
        }
    }

    bool Kurve_in(const QRectF& r) const {
        return std::any_of(Kurven.begin(), Kurven.end(), [&](const QPointF& p) { return r.contains(p); });
    }
    bool Kurve_unter_Text() const {
        return std::any_of(Texte.begin(), Texte.end(), [this](const QRectF& r) { return Kurve_in(r); });
    }
    // Whether the legend could stand in a corner or the middle of an edge without a curve or a text behind it.
    bool freier_Platz() const {
        for (const double x : {0.0, 0.5, 1.0}) {
            for (const double y : {0.0, 0.5, 1.0}) {
                const QPointF Rest(Raum.width() - Legende.width(), Raum.height() - Legende.height());
                const QRectF dort(Raum.topLeft() + QPointF(x * Rest.x(), y * Rest.y()), Legende.size());
                const auto beruehrt = [&](const QRectF& r) { return r.intersects(dort); };
                const bool Text = std::any_of(Texte.begin(), Texte.end(), beruehrt);
                if ((x != 0.5 || y != 0.5) && !Text && !Kurve_in(dort.adjusted(-3, -3, 3, 3))) return true;
            }
        }
        return false;
    }

    QRectF Legende;
    QRectF Raum;
    std::vector<QRectF> Texte;  // but those in the legend, which hides what is behind it
    std::vector<QPointF> Kurven;
};

class Jasager final : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override { return f.Knoepfe.front(); }
};

class Ausgelieferte_Bilder : public ::testing::Test {
protected:
    Ausgelieferte_Bilder()
        : Wurzel_(std::filesystem::temp_directory_path() / ("varnok-shipped-pictures-" + std::to_string(::getpid()))) {
        std::filesystem::remove_all(Wurzel_);
        std::filesystem::create_directories(Wurzel_ / "output");
        std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input", Wurzel_ / "input");
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'});
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    }
    ~Ausgelieferte_Bilder() override {
        s_.reset();
        std::filesystem::remove_all(Wurzel_);
    }

    void pruefe(const std::string& Name) {
        for (const Diagramm& d : s_->zeige<Diagrammsteuerung>().Diagramme()) {
            for (const QSizeF& Groesse : {QSizeF(640, 500), QSizeF(mm_in_Einheiten(160), mm_in_Einheiten(125)),
                                          QSizeF(mm_in_Einheiten(90), mm_in_Einheiten(70)), QSizeF(1440, 900)}) {
                for (const bool Druck : {false, true}) {
                    const Zeichenliste z = mit_Beschriftung(d, {.Groesse = Groesse, .fuer_Druck = Druck});
                    const Bildinhalt b(z, Groesse);
                    EXPECT_FALSE(b.Kurve_unter_Text()) << Name << ", " << d.Titel.Text << ", " << Groesse.width();
                    ++Bilder_;
                    if (!b.Kurve_in(b.Legende)) continue;
                    ++mit_Kurve_hinter_Legende_;
                    EXPECT_FALSE(b.freier_Platz()) << Name << ", " << d.Titel.Text << ", " << Groesse.width();
                }
            }
        }
    }

    std::filesystem::path Wurzel_;
    Jasager Fragen_;
    std::unique_ptr<Sitzung> s_;
    int Bilder_ = 0;
    int mit_Kurve_hinter_Legende_ = 0;
};

TEST_F(Ausgelieferte_Bilder, have_no_point_of_a_curve_under_a_text) {
    const auto Simulationen = s_->Stand().Listen[Simulation];
    ASSERT_GE(Simulationen.size(), 12U);
    for (std::size_t i = 0; i < Simulationen.size(); ++i) {
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
        for (const PEC_Ansicht Ansicht : {jaehrlich, Hintergrund, Anreicherung}) {
            s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Ansicht);
            for (const Endpunktart Endpunkt : {Gesamtgehalt, Porenwasser}) {
                s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Endpunkt);
                pruefe(Simulationen[i]);
                if (!s_->zeige<Listenwahl>().darf_Zusammenfassung()) continue;
                s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
                pruefe(Simulationen[i] + ", all studies");
                s_->fuehre_aus<&Listenwahl::zeige_Studien>();
            }
        }
    }
    RecordProperty("pictures", Bilder_);
    RecordProperty("with_a_curve_behind_the_legend", mit_Kurve_hinter_Legende_);
}

std::vector<std::string> Zeilen(const std::string& Text) {
    std::vector<std::string> Liste;
    for (std::size_t i = 0, Ende = Text.find("\r\n"); Ende != std::string::npos; i = Ende + 2, Ende = Text.find("\r\n", i))
        Liste.push_back(Text.substr(i, Ende - i));
    return Liste;
}

// What the data file of the diagram in front holds with a point and with a comma: all of the same, the lines of the days number
// by number.
std::string Daten_mit_beiden_Zeichen(Sitzung& s, const std::string& Pfad) {
    const auto gelesen = [&](char Dezimalzeichen) {
        s.fuehre_aus<&Bildsteuerung::speichere_Daten>(Pfad, Dezimalzeichen);
        EXPECT_EQ(s.Stand().Statuszeile.Text(), "Data written: " + Pfad);
        return lies_Datei(Pfad);
    };
    const std::string mit_Punkt = gelesen('.');
    const auto Punkt = Zeilen(mit_Punkt), Komma = Zeilen(gelesen(','));
    EXPECT_EQ(Punkt.size(), Komma.size());
    int Tage = 0;
    for (std::size_t i = 0; i < std::min(Punkt.size(), Komma.size()); ++i) {
        if (Punkt[i].empty() || Punkt[i].find_first_not_of("0123456789.,E-") != std::string::npos) continue;
        std::string Zeile = Komma[i];
        std::replace(Zeile.begin(), Zeile.end(), ',', '.');
        std::replace(Zeile.begin(), Zeile.end(), ';', ',');
        EXPECT_EQ(Zeile, Punkt[i]);
        ++Tage;
    }
    EXPECT_GE(Tage, 365);
    EXPECT_EQ(static_cast<std::size_t>(Tage), s.zeige<Diagrammsteuerung>().vorderes()->Kurven.front().Werte.size());
    return mit_Punkt;
}

int Vorkommen(const std::string& Text, const std::string& Gesuchtes) {
    int n = 0;
    for (std::size_t i = Text.find(Gesuchtes); i != std::string::npos; i = Text.find(Gesuchtes, i + 1)) ++n;
    return n;
}

TEST_F(Ausgelieferte_Bilder, data_hold_every_curve_every_box_and_every_table) {
    const auto Simulationen = s_->Stand().Listen[Simulation];
    const auto Platz = std::find(Simulationen.begin(), Simulationen.end(), "Sugar beet, Compound E") - Simulationen.begin();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(Platz));
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(jaehrlich);
    for (int i = 0; i < 3; ++i) s_->fuehre_aus<&Diagrammsteuerung::schalte_weiter>();
    const std::string Pfad = (Wurzel_ / "output" / "data.csv").string();
    const std::string Stoffe = Daten_mit_beiden_Zeichen(*s_, Pfad);
    EXPECT_EQ(Vorkommen(Stoffe, "\r\nday,Compound E (mg/kg),Metabolite E1 (mg/kg),Metabolite E2 (mg/kg)\r\n0,"), 1);
    for (const char* Stoff : {"Compound E", "Metabolite E1", "Metabolite E2"}) {
        const std::string Name = std::string("\r\n") + Stoff;
        EXPECT_EQ(Vorkommen(Stoffe, Name + ","), 1) << Stoff;                                 // its box
        EXPECT_EQ(Vorkommen(Stoffe, Name + "\r\nTime(d),PECactual,PECtwa\r\n"), 1) << Stoff;  // its table
    }
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    const std::string Studien = Daten_mit_beiden_Zeichen(*s_, Pfad);
    EXPECT_EQ(Vorkommen(Studien, "\r\nday,\"Soil 1, first order (mg/kg)\","), 1);
    for (int st = 1; st <= 6; ++st) {
        const std::string Name = "\"Soil " + std::to_string(st) + ",";
        EXPECT_EQ(Vorkommen(Studien, "\r\n" + Name), 1) << st;  // its box
        EXPECT_EQ(Vorkommen(Studien, "," + Name), 2) << st;     // its columns of curves and of the table
    }
    EXPECT_EQ(Vorkommen(Studien, "\r\nTime(d),"), 1);
}

class Bildprobe : public Probesitzung {};

TEST_F(Bildprobe, options_are_kept_in_the_settings) {
    gestartet().fuehre_aus<&Bildsteuerung::setze>(Bildeinstellung{90, 70, 600, true});
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_NE(Datei("VARNOK.ini").find("Pictures:\t90\t70\t600\t1\r\n"), std::string::npos);
}

TEST_F(Bildprobe, a_file_that_cannot_be_written_is_told_and_results_stand) {
    gestartet();
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Bildsteuerung::speichere>((Wurzel_ / "no such folder" / "a.svg").string(), Bildart::SVG, true);
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_EQ(s_->Stand().Statuszeile.Text().find("written"), std::string::npos);
}

TEST_F(Bildprobe, a_report_for_print_has_another_picture) {
    gestartet().fuehre_aus<&Berichtssteuerung::erstelle>();
    const std::string farbig = s_->zeige<Berichtssteuerung>().offener()->RTF;
    s_->fuehre_aus<&Bildsteuerung::setze>(Bildeinstellung{160, 125, 300, true});
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    const std::string gestrichelt = s_->zeige<Berichtssteuerung>().offener()->RTF;
    s_->fuehre_aus<&Bildsteuerung::setze>(Bildeinstellung{160, 125, 300, false});
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener()->RTF, gestrichelt);
    EXPECT_NE(farbig, gestrichelt);
}

}  // namespace
}  // namespace varnok
