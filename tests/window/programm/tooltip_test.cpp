// The tips of the controls, as the pointer that rests on them meets them.

#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QtGui/QHelpEvent>
#include <map>
#include <optional>

#include "painting/qt_text.h"
#include "window/kern/anmeldung.h"
#include "window/kern/ctooltip.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

// Which tip a control has in the end.
std::map<QString, int> erwartete_Tips() {
    const struct {
        int Tip;
        const char16_t* Name;
        int Anzahl = 0;  // 0: no index
        int von = 0;
    } Zeilen[] = {
        {1, u"Diagramm", 12},
        {1, u"Diagramm_Zusammenfassung", 9},
        {2, u"Ergebnisse", 12},
        {2, u"Ergebnisrahmen", 12},
        {2, u"Ergebnisse_Zusammenfassung", 9},
        {2, u"Ergebnisrahmen_Zusammenfassung", 9},
        {3, u"Legendenrahmen", 12},
        {3, u"Legendenrahmen_mehrfach", 12},
        {3, u"Legendenrahmen_Zusammenfassung", 9},
        {4, u"Berechnungsmodus"},
        {5, u"Endpunkt", 2},
        {6, u"TWA_Laenge"},
        {7, u"speichern"},
        {8, u"Bericht_erstellen"},
        {9, u"Ende"},
        {10, u"Simulationsliste"},
        {10, u"Frame2"},
        {11, u"Beschreibung"},
        {12, u"Szenariorahmen"},
        {13, u"Applikationsrahmen"},
        {14, u"App_Tag"},
        {14, u"App_Monat"},
        {15, u"Applikationsmuster", 3},
        {16, u"PEC_Typ", 3},
        {17, u"Anzahl"},
        {18, u"Applikationsrate"},
        {19, u"Interzeption"},
        {20, u"Intervall"},
        {21, u"Applikationsschema"},
        {22, u"Kinetikschema"},
        {23, u"S_Q10", 3},
        {24, u"S_Walker", 3},
        {25, u"S_KOC", 3},
        {26, u"Studie"},
        {27, u"Studienname"},
        {28, u"Addiere_Studie"},
        {29, u"S_Kinetik", 3},
        {30, u"Kinetikparameter", 1},
        {31, u"Kinetikparameter", 1, 1},
        {32, u"Kinetikparameter", 1, 2},
        {33, u"Substanz", 1},
        {34, u"Substanz", 1, 1},
        {35, u"Substanz", 1, 2},
        {36, u"S_DT50", 3},
        {37, u"S_DT50_1_DFOP", 3},
        {38, u"S_DT50_2_DFOP", 3},
        {39, u"S_g", 3},
        {40, u"S_alpha"},
        {41, u"S_beta"},
        {42, u"S_DT50_1_HS"},
        {43, u"S_DT50_2_HS"},
        {44, u"S_Tb"},
        {45, u"Wirkstoffdaten"},
        {46, u"Name_Wirkstoff", 2},
        {47, u"Name_Met_1", 2},
        {48, u"Name_Met_2", 2},
        {49, u"Molmasse_Wirkstoff"},
        {50, u"Molmasse_Met_1"},
        {51, u"Molmasse_Met_2"},
        {52, u"Bildungsanteil_Met_1"},
        {53, u"Bildungsanteil_Met_2"},
    };
    std::map<QString, int> Tips;
    for (const auto& z : Zeilen) {
        const QString Name = QString::fromUtf16(z.Name);
        if (z.Anzahl == 0) Tips[Name] = z.Tip;
        for (int i = z.von; i < z.von + z.Anzahl; ++i) Tips[Name + u'_' + in_Qt(i)] = z.Tip;
    }
    return Tips;
}

// Names of the table that the window does not have: the diagrams of all compounds have no grid and a legend of another name.
bool fehlt_mit_Recht(const QString& Name) {
    static const QStringList ohne_Tafel = {u"Ergebnisse_3"_s,     u"Ergebnisse_7"_s,     u"Ergebnisse_11"_s,
                                           u"Ergebnisrahmen_3"_s, u"Ergebnisrahmen_7"_s, u"Ergebnisrahmen_11"_s,
                                           u"Legendenrahmen_3"_s, u"Legendenrahmen_7"_s, u"Legendenrahmen_11"_s};
    if (Name.startsWith(u"Legendenrahmen_mehrfach_")) {
        const QString Index = Name.section(u'_', -1);
        return Index != u"3" && Index != u"7" && Index != u"11";
    }
    return ohne_Tafel.contains(Name);
}

QByteArray Tipdatei(int Anzahl, const QByteArray& Wort = "tip ") {
    QByteArray Bytes;
    for (int i = 1; i <= Anzahl; ++i) Bytes += Wort + QByteArray::fromStdString(std::to_string(i)) + "\r\nsecond line\r\n\r\n";
    return Bytes;
}

void schreibe(const QString& Pfad, const QByteArray& Bytes) {
    QFile f(Pfad);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(Bytes);
}

QString Tiptext(int i, const QString& Wort = u"tip "_s) { return Wort + in_Qt(i) + u"\nsecond line"_s; }

// The text of the tip that is seen.
QString gezeigter_Tip() {
    if (!QToolTip::isVisible()) return {};
    QTextDocument Text;
    Text.setHtml(QToolTip::text());
    return Text.toPlainText().trimmed();
}

}  // namespace

class Tooltiptest : public QObject {
    Q_OBJECT

private:
    // A window that shows tips from the start.
    void oeffne(const QByteArray& Tips) {
        Fragen_.vergiss();
        p_ = std::make_unique<Fensterprobe>(&Fragen_, [&](const QString& Ordner) {
            schreibe(Ordner + u"/input/tooltips.uk"_s, Tips);
            schreibe(Ordner + u"/VARNOK.ini"_s, QByteArray::fromStdString([] {
                         Einstellungen e;
                         e.Tips_anzeigen = 1;
                         return Einstellungen_als_Bytes(e, {});
                     }()));
        });
        QTRY_VERIFY(Tooltips());
    }
    cTooltip* Tooltips() { return p_->Fenster().findChild<cTooltip*>(); }
    QString Text(const QString& Name) { return Tooltips()->ToolText(*p_->Fenster().findChild<QWidget*>(Name)); }

    // The pointer rests at a place of a control.
    void verweile(const char* Name, std::optional<QPoint> Ort = {}) { verweile(p_->Teil<QWidget>(Name), Ort); }
    void verweile(QWidget* w, std::optional<QPoint> Ort = {}) {
        QToolTip::hideText();
        QTest::qWait(350);
        const QPoint Platz = Ort.value_or(w->rect().center());
        QHelpEvent e(QEvent::ToolTip, Platz, w->mapToGlobal(Platz));
        // As the desktop tells it: with a spontaneous event's way up through the frames.
        qApp->notify(w, &e);
        QTest::qWait(1);
    }

private Q_SLOTS:
    void cleanup() {
        QToolTip::hideText();
        p_.reset();
    }

    void each_tip_reaches_exactly_its_controls() {
        oeffne(Tipdatei(53));
        const auto erwartet = erwartete_Tips();
        for (const auto& [Name, Tip] : erwartet) {
            const bool da = p_->Fenster().findChild<QWidget*>(Name) != nullptr;
            QVERIFY2(da || fehlt_mit_Recht(Name), qPrintable(Name));
            if (da) QCOMPARE(Name + u": "_s + Text(Name), Name + u": "_s + Tiptext(Tip));
        }
        int ohne_Tip = 0;
        for (QWidget* w : p_->Fenster().findChildren<QWidget*>()) {
            if (erwartet.contains(w->objectName())) continue;
            QVERIFY2(Tooltips()->ToolText(*w).isEmpty(), qPrintable(w->objectName()));
            ++ohne_Tip;
        }
        QVERIFY(ohne_Tip > 50);
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

    void width_and_time_are_those_of_all_tips() {
        oeffne(Tipdatei(53));
        QCOMPARE(Tooltips()->MaxTipWidth(), 240);
        QCOMPARE(Tooltips()->DelayTime(2), 20000);
        QCOMPARE(p_->Teil<QWidget>("S_Q10_0")->toolTipDuration(), 20000);
    }

    void a_tip_is_shown_with_its_two_lines() {
        oeffne(Tipdatei(53));
        p_->starte();
        verweile("S_Q10_0");
        QCOMPARE(gezeigter_Tip(), Tiptext(23));
    }

    void without_the_option_nothing_has_a_tip() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, [&](const QString& Ordner) {
            schreibe(Ordner + u"/VARNOK.ini"_s, QByteArray::fromStdString(Einstellungen_als_Bytes({}, {})));
        });
        QTest::qWait(20);
        QVERIFY(!Tooltips());
        QCOMPARE(p_->Teil<QWidget>("S_Q10_0")->toolTip(), QString());
    }

    void a_first_start_shows_tips() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        QTRY_VERIFY(Tooltips());
        QVERIFY(p_->Teil<QWidget>("S_Q10_0")->toolTip().contains(u"Q10: factor"_s));
    }

    // "Copy" and the labels have none, and stand on frames that have one.
    void a_control_without_a_tip_does_not_show_that_of_its_frame() {
        oeffne(Tipdatei(53));
        p_->starte();
        verweile("Kinetikschema", QPoint(4, 4));
        QCOMPARE(gezeigter_Tip(), Tiptext(22));
        for (const char* Name : {"Copy_1", "L_Q10_0", "Liste_1", "Abbaudaten"}) {
            verweile(Name, QPoint(3, 3));
            QCOMPARE(QLatin1String(Name) + gezeigter_Tip(), QLatin1String(Name));
        }
    }

    void a_piece_of_a_control_shows_its_tip() {
        oeffne(Tipdatei(53));
        p_->starte();
        auto* Leiste = p_->Teil<QTabBar>("Wirkstoffdaten_Leiste");
        verweile(Leiste, Leiste->tabRect(1).center());
        QCOMPARE(gezeigter_Tip(), Tiptext(45));
        auto* Tafel = p_->Teil<QTableWidget>("Ergebnisse_0");
        verweile(Tafel->viewport(), Tafel->visualItemRect(Tafel->item(3, 1)).center());
        QCOMPARE(gezeigter_Tip(), Tiptext(2));
        verweile("L_PEC_0");
        QCOMPARE(gezeigter_Tip(), Tiptext(3));
    }

    void tips_that_show_a_cut_text_stay() {
        oeffne(Tipdatei(53));
        p_->starte();
        auto* Datei = p_->Teil<QLabel>("Ergebnisdatei");
        verweile(Datei);
        QCOMPARE(gezeigter_Tip(), QString());
        Datei->setText(QString(400, u'x'));
        QTRY_COMPARE(Datei->toolTip(), Datei->text());
        verweile(Datei);
        QCOMPARE(gezeigter_Tip(), Datei->text());
        auto* Tafel = p_->Teil<QTableWidget>("Ergebnisse_0");
        verweile(Tafel->viewport(), Tafel->visualItemRect(Tafel->item(0, 1)).center());
        QCOMPARE(gezeigter_Tip(), u"PECactual"_s);
    }

    // Who reads values along a curve sees the tip once at most.
    void the_tip_of_a_diagram_gives_way_to_the_pointer() {
        oeffne(Tipdatei(53));
        p_->starte();
        auto* Diagramm = p_->Teil<QWidget>("Diagramm_0");
        const QPoint Ort(Diagramm->width() / 3, Diagramm->height() / 2);
        verweile(Diagramm, Ort);
        QCOMPARE(gezeigter_Tip(), Tiptext(1));
        QTest::mouseMove(Diagramm, Ort + QPoint(30, 0));
        QTRY_VERIFY(!QToolTip::isVisible());
        verweile(Diagramm, Ort + QPoint(30, 0));
        QCOMPARE(gezeigter_Tip(), QString());
        QEvent weg(QEvent::Leave);
        QApplication::sendEvent(Diagramm, &weg);
        verweile(Diagramm, Ort);
        QCOMPARE(gezeigter_Tip(), Tiptext(1));
    }

    void switching_on_twice_replaces_the_texts_and_adds_no_tool() {
        oeffne(Tipdatei(53));
        p_->starte();
        const int Anzahl = Tooltips()->ToolCount();
        QVERIFY(Anzahl > 100);
        schreibe(p_->Pfad(u"input/tooltips.uk"_s), Tipdatei(53, "other "));
        p_->Fenster().erstelle_tooltips();
        QCOMPARE(Tooltips()->ToolCount(), Anzahl);
        QCOMPARE(Text(u"S_Q10_0"_s), Tiptext(23, u"other "_s));
        QCOMPARE(Text(u"Legendenrahmen_0"_s), Tiptext(3, u"other "_s));
        verweile("S_Q10_0");
        QCOMPARE(gezeigter_Tip(), Tiptext(23, u"other "_s));
    }

    void a_short_file_is_one_message_and_gives_the_tips_it_has() {
        oeffne(Tipdatei(23));
        const QStringList Meldungen = Fragen_.nimm();
        QCOMPARE(Meldungen.size(), 1);
        QVERIFY2(Meldungen[0].startsWith(u"Runtime error: File \""_s + p_->Pfad(u"input/tooltips.uk"_s)),
                 qPrintable(Meldungen[0]));
        QCOMPARE(Text(u"S_Q10_0"_s), Tiptext(23));
        QCOMPARE(Text(u"S_Walker_0"_s), QString());
        p_->Fenster().erstelle_tooltips();
        QCOMPARE(Fragen_.nimm(), QStringList());
        p_->starte();
        QVERIFY(p_->sichtbar("Diagramm_0"));
    }

    // The same with the box itself.
    void a_short_file_is_one_box() {
        p_ = std::make_unique<Fensterprobe>();
        schreibe(p_->Pfad(u"input/tooltips.uk"_s), Tipdatei(52));
        const QStringList Kaesten = p_->Kaesten_bei([&] { p_->Fenster().erstelle_tooltips(); }, QMessageBox::Ok);
        QCOMPARE(Kaesten.size(), 1);
        QVERIFY2(Kaesten[0].contains(u"it ends after tip 52 of 53"), qPrintable(Kaesten[0]));
        QCOMPARE(Text(u"Bildungsanteil_Met_1"_s), Tiptext(52));
    }

    void an_empty_tip_of_the_file_is_no_tip() {
        QByteArray Bytes = Tipdatei(22) + "\r\n";
        for (int i = 24; i <= 53; ++i) Bytes += "x\r\n\r\n";
        oeffne(Bytes);
        p_->starte();
        QCOMPARE(Text(u"S_Walker_0"_s), u"x"_s);
        verweile("S_Q10_0");
        QCOMPARE(gezeigter_Tip(), QString());
    }

    // What the legend shows changes while tips are there.
    void tips_survive_other_records_and_views() {
        oeffne(Tipdatei(53));
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_1");
        verweile("Legendenrahmen_8", QPoint(2, 2));
        QCOMPARE(gezeigter_Tip(), Tiptext(3));
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Tooltiptest> angemeldet;
}

}  // namespace varnok

#include "tooltip_test.moc"
