// What stands on the window: captions, what is shown when, the order of Tab, names for screen readers.

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

struct Aufschrift {
    const char* Name;
    const char* Text;
};

}  // namespace

class Aussehentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
    }
    void cleanup() { p_.reset(); }

    // Letter for letter, oddities included.
    void captions_are_as_users_know_them() {
        QCOMPARE(p_->Fenster().windowTitle(), u"VARNOK - Soil residue forecast tool"_s);
        for (const auto& [Name, Text] : {Aufschrift{"Starten", "OK"},
                                         {"Copy_Simulation", "Copy"},
                                         {"Loeschen_Simulation", "Del"},
                                         {"Copy_1", "Copy"},
                                         {"Copy_2", "Copy"},
                                         {"Copy_3", "Copy"},
                                         {"Loeschen_1", "Del"},
                                         {"Loeschen_2", "Del"},
                                         {"Loeschen_3", "Del"},
                                         {"Addiere_Studie", "Add study"},
                                         {"Edit", "Edit"},
                                         {"Aktualisieren", "Refresh"},
                                         {"speichern", "Save input"},
                                         {"Bericht_erstellen", "Report"},
                                         {"Ende", "Exit"}})
            QCOMPARE(p_->Teil<QPushButton>(Name)->text(), QString::fromLatin1(Text));
        for (const auto& [Name, Text] : {Aufschrift{"Applikationsmuster_0", "single"},
                                         {"Applikationsmuster_1", "regular"},
                                         {"Applikationsmuster_2", "irregular"},
                                         {"Substanz_0", "Parent"},
                                         {"Substanz_1", "Metab. 1"},
                                         {"Substanz_2", "Metab. 2"},
                                         {"Endpunkt_1", "Total content"},
                                         {"Endpunkt_0", "Porewater concentration"},
                                         {"PEC_Typ_0", "Annual"},
                                         {"PEC_Typ_1", "Background"},
                                         {"PEC_Typ_2", "Accum."}})
            QCOMPARE(p_->Teil<QRadioButton>(Name)->text(), QString::fromLatin1(Text));
        QCOMPARE(p_->Teil<QLabel>("Label1")->text(), u"Current  Simulation:"_s);
        QStringList Schilder;
        for (const QLabel* l : p_->Fenster().findChildren<QLabel*>()) Schilder << l->text();
        for (const char* Text :
             {"Description:", "Compound data", "Soil:", "Application pattern", "Crop rotation: ", "Scenario:", "Climate:",
              "TWA in graph:", "Current Outputfile:", "Koc (L/kgl):", "Name:", "Mol. Mass (g/mol):", "Formation fraction (%):",
              "Q10:", "Walker:", "To:", "Parent", "Metabolite 1", "Metabolite 2"})
            QVERIFY2(Schilder.contains(QString::fromLatin1(Text)), Text);
    }

    void pages_are_named() {
        QCOMPARE(Seiten("Wirkstoffdaten_Leiste"), (QStringList{u"Degradation"_s, u"Sorption"_s, u"Metabolism"_s}));
        QCOMPARE(Seiten("Berechnungsmodus_Leiste"),
                 (QStringList{u"Parent only"_s, u"Parent with 1 metabolite"_s, u"Parent and 2 metabolites (parallel)"_s,
                              u"Parent and 2 metabolites (sequence)"_s}));
    }

    void menus_are_named() {
        for (const auto& [Name, Text] : {Aufschrift{"M_Datei", "&File"},
                                         {"M_editieren", "&Edit pesticide data"},
                                         {"M_Ansicht", "&View"},
                                         {"M_Hilfe", "&Help"}})
            QCOMPARE(p_->Teil<QMenu>(Name)->title(), QString::fromLatin1(Text));
        for (const auto& [Name, Text] : {Aufschrift{"M_Neuer_Wirkstoff", "New &Pesticide record"},
                                         {"M_Neue_Applikationsdatei", "New &Application record"},
                                         {"M_Neues_Szenario", "&New Scenario"},
                                         {"M_Laden", "&Load simulation"},
                                         {"M_Defaults", "&Load program defaults"},
                                         {"M_Drucken", "&Print"},
                                         {"M_Speichern", "&Save all input data"},
                                         {"M_Ende", "&Exit"},
                                         {"M_Addiere", "&Add study"},
                                         {"M_Loesche", "&Delete study"},
                                         {"M_Optionen", "&Preferences"},
                                         {"M_Studien", "&Individual studies"},
                                         {"M_Zusammenfassung", "&Summary"},
                                         {"M_Bericht", "&Report"},
                                         {"M_suche_nach_Update", "&Onlinecheck for updates"},
                                         {"M_Versionsinfo", "&Release notes"},
                                         {"M_ueber", "&About"}})
            QCOMPARE(p_->Teil<QAction>(Name)->text(), QString::fromLatin1(Text));
    }

    void lists_hold_their_entries() {
        QCOMPARE(Eintraege("Fruchtwechsel"), (QStringList{u"every year"_s, u"every 2nd year"_s, u"every 3rd year"_s}));
        QCOMPARE(Eintraege("App_Monat").join(u' '), u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec"_s);
        QCOMPARE(Eintraege("S_Kinetik_0").join(u' '), u"SFO DFOP FOMC HS"_s);
        QCOMPARE(Eintraege("S_Kinetik_1").join(u' '), u"SFO DFOP"_s);
        QCOMPARE(Eintraege("S_Kinetik_2").join(u' '), u"SFO DFOP"_s);
        p_->waehle("Applikationsmuster_1");
        QCOMPARE(Eintraege("Anzahl").front(), u"2"_s);
        QCOMPARE(Eintraege("Anzahl").back(), u"20"_s);
    }

    void each_pattern_shows_its_controls_and_their_labels_data() {
        QTest::addColumn<int>("Muster");
        QTest::addColumn<QString>("sichtbar");
        const QString Dosis = u"Applikationsrate L_Applikationsrate Interzeption L_Interzeption App_Tag App_Monat L_Datum"_s;
        QTest::newRow("single") << 0 << Dosis;
        QTest::newRow("regular") << 1 << Dosis + u" Anzahl L_Anzahl Intervall L_Intervall"_s;
        QTest::newRow("irregular") << 2 << u"Anzahl L_Anzahl Applikationsschema"_s;
    }
    void each_pattern_shows_its_controls_and_their_labels() {
        QFETCH(int, Muster);
        QFETCH(QString, sichtbar);
        // From each of the other patterns.
        for (const int vorher : {0, 1, 2}) {
            p_->waehle(("Applikationsmuster_" + QByteArray::number(vorher)).constData());
            p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
            pruefe(
                u"Applikationsrate L_Applikationsrate Interzeption L_Interzeption App_Tag App_Monat L_Datum Anzahl L_Anzahl "
                "Intervall L_Intervall Applikationsschema"_s,
                sichtbar);
        }
        QVERIFY(p_->sichtbar("Fruchtwechsel"));
    }

    void each_kinetics_shows_its_fields_and_their_labels_data() {
        QTest::addColumn<int>("Substanz");
        QTest::addColumn<int>("Kinetik");
        QTest::addColumn<QString>("sichtbar");
        for (int c = 0; c < Stoffe; ++c) {
            QTest::addRow("SFO of compound %d", c) << c << int(SFO) << u"DT50_#"_s;
            QTest::addRow("DFOP of compound %d", c) << c << int(DFOP) << u"DT50_1_DFOP_# DT50_2_DFOP_# g_#"_s;
        }
        QTest::newRow("FOMC") << 0 << int(FOMC) << u"alpha beta"_s;
        QTest::newRow("HS") << 0 << int(HS) << u"DT50_1_HS DT50_2_HS Tb"_s;
    }
    void each_kinetics_shows_its_fields_and_their_labels() {
        QFETCH(int, Substanz);
        QFETCH(int, Kinetik);
        QFETCH(QString, sichtbar);
        const QByteArray Index = QByteArray::number(Substanz);
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle(("Substanz_" + Index).constData());
        p_->waehle_Eintrag(("S_Kinetik_" + Index).constData(), 1 - std::min(Kinetik, 1));
        p_->waehle_Eintrag(("S_Kinetik_" + Index).constData(), Kinetik);
        QString alle = u"alpha beta DT50_1_HS DT50_2_HS Tb"_s;
        for (int c = 0; c < Stoffe; ++c)
            alle += QString(u" DT50_# DT50_1_DFOP_# DT50_2_DFOP_# g_# Q10_# Walker_# TRef_#"_s).replace(u'#', in_Qt(c));
        const QString Namen = QString(sichtbar + u" Q10_# Walker_# TRef_#"_s).replace(u'#', QString::fromLatin1(Index));
        for (const QString& Vorsatz : {u"S_"_s, u"L_"_s}) pruefe(mit(Vorsatz, alle), mit(Vorsatz, Namen));
        for (int c = 0; c < Stoffe; ++c)
            QCOMPARE(p_->sichtbar(("Kinetikparameter_" + QByteArray::number(c)).constData()), c == Substanz);
    }

    // FOMC and HS of the parent have no fields among those of a metabolite.
    void hockey_stick_with_a_metabolite_in_view_shows_no_field_of_it() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle_Eintrag("S_Kinetik_0", HS);
        QVERIFY(p_->sichtbar("S_Tb"));
        p_->waehle("Substanz_1");
        pruefe(u"S_DT50_1_HS S_DT50_2_HS S_Tb L_Tb"_s, {});
        p_->waehle("Substanz_0");
        QVERIFY(p_->sichtbar("S_Tb"));
    }

    void each_scheme_shows_its_compounds_data() {
        QTest::addColumn<int>("Schema");
        QTest::addColumn<QString>("Optionen");
        QTest::addColumn<QString>("Namen");
        QTest::addColumn<QString>("Massen");
        QTest::addColumn<QString>("Koc");
        QTest::addColumn<QString>("Schild");
        const QString eins = u"Molmasse_Wirkstoff Molmasse_Met_1 Bildungsanteil_Met_1"_s;
        const QString drei = eins + u" Molmasse_Met_2 Bildungsanteil_Met_2"_s;
        QTest::newRow("parent only") << 0 << QString() << u"Name_Wirkstoff_#"_s << u"Molmasse_Wirkstoff"_s << u"S_KOC_0"_s
                                     << QString();
        QTest::newRow("one metabolite") << 1 << u"Substanz_0 Substanz_1"_s << u"Name_Wirkstoff_# Name_Met_1_#"_s << eins
                                        << u"S_KOC_0 S_KOC_1"_s << u"Metabolite:"_s;
        for (int m = 2; m < 4; ++m)
            QTest::newRow(m == 2 ? "parallel" : "sequence")
                << m << u"Substanz_0 Substanz_1 Substanz_2"_s << u"Name_Wirkstoff_# Name_Met_1_# Name_Met_2_#"_s << drei
                << u"S_KOC_0 S_KOC_1 S_KOC_2"_s << u"Metab. 1|Metab. 2"_s;
    }
    void each_scheme_shows_its_compounds() {
        QFETCH(int, Schema);
        QFETCH(QString, Optionen);
        QFETCH(QString, Namen);
        QFETCH(QString, Massen);
        QFETCH(QString, Koc);
        QFETCH(QString, Schild);
        for (const int vorher : {3, 0}) {
            p_->blaettere("Berechnungsmodus_Leiste", vorher);
            p_->blaettere("Berechnungsmodus_Leiste", Schema);
            p_->blaettere("Wirkstoffdaten_Leiste", 0);
            pruefe(u"Substanz_0 Substanz_1 Substanz_2"_s, Optionen);
            QVERIFY(p_->sichtbar("Kinetikparameter_0"));
            p_->blaettere("Wirkstoffdaten_Leiste", 1);
            const QString alle = u"Name_Wirkstoff_# Name_Met_1_# Name_Met_2_#"_s;
            pruefe(QString(alle).replace(u'#', u'1'), QString(Namen).replace(u'#', u'1'));
            pruefe(u"S_KOC_0 S_KOC_1 S_KOC_2"_s, Koc);
            QCOMPARE(Metabolitenschilder("Sorptionsdaten"), Schild);
            p_->blaettere("Wirkstoffdaten_Leiste", 2);
            pruefe(QString(alle).replace(u'#', u'0'), QString(Namen).replace(u'#', u'0'));
            pruefe(u"Molmasse_Wirkstoff Molmasse_Met_1 Molmasse_Met_2 Bildungsanteil_Met_1 Bildungsanteil_Met_2"_s, Massen);
            QCOMPARE(Metabolitenschilder("Metabolismusschema"), Schild);
        }
        // The record's own scheme is no change.
        QCOMPARE(p_->Programm().Stand().Saetze[Wirkstoff].Geaendert(), Schema != nur_Wirkstoff);
        Fragen_.nimm();
    }

    // The last compound in view goes with its scheme; the parent's fields are reached again.
    void a_smaller_scheme_brings_the_parent_into_view() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("Substanz_2");
        p_->blaettere("Berechnungsmodus_Leiste", 1);
        QVERIFY(p_->sichtbar("Kinetikparameter_0"));
        QVERIFY(p_->Teil<QRadioButton>("Substanz_0")->isChecked());
        Fragen_.nimm();
    }

    void the_summary_needs_more_than_one_study() {
        QVERIFY(!p_->Teil<QAction>("M_Zusammenfassung")->isEnabled());
        p_->waehle_Simulation("Sugar beet, Compound E");
        QVERIFY(p_->Teil<QAction>("M_Zusammenfassung")->isEnabled());
        Fragen_.nimm();
    }

    // Frame after frame, each of them once, on every page and with every pattern.
    void tab_walks_from_frame_to_frame_data() {
        QTest::addColumn<int>("Seite");
        QTest::addColumn<int>("Muster");
        for (int s = 0; s < 3; ++s) {
            for (int m = 0; m < 3; ++m) QTest::addRow("page %d, pattern %d", s, m) << s << m;
        }
    }
    void tab_walks_from_frame_to_frame() {
        QFETCH(int, Seite);
        QFETCH(int, Muster);
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
        p_->blaettere("Wirkstoffdaten_Leiste", Seite);
        QStringList Rahmen;
        QSet<const QWidget*> besucht;
        p_->Teil<QComboBox>("Simulationsliste")->setFocus();
        for (int i = 0; i < 100 && !besucht.contains(QApplication::focusWidget()); ++i) {
            const QWidget* w = QApplication::focusWidget();
            besucht << w;
            const QString Name = Rahmen_von(w);
            if (Rahmen.isEmpty() || Rahmen.back() != Name) Rahmen << Name;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::qWait(1);
        }
        QCOMPARE(Rahmen.join(u' '),
                 u"Frame2 Kinetikschema Applikationsrahmen Szenariorahmen Ergebnisbereich untere_Zeile Schalterrahmen"_s);
        // Nothing that can be typed in is left out.
        for (const QLineEdit* f : p_->Fenster().findChildren<QLineEdit*>()) {
            if (f->isVisible() && f->isEnabled() && !f->isReadOnly()) QVERIFY2(besucht.contains(f), qPrintable(f->objectName()));
        }
        Fragen_.nimm();
    }

    // On a page the way goes down row by row.
    void tab_walks_a_page_downwards_data() {
        QTest::addColumn<int>("Seite");
        QTest::addColumn<QString>("Weg");
        QTest::newRow("degradation") << 0 << u"S_Kinetik_0 S_DT50_1_DFOP_0 S_DT50_2_DFOP_0 S_g_0 S_Q10_0 S_Walker_0 S_TRef_0"_s;
        QTest::newRow("sorption") << 1 << u"Name_Wirkstoff_1 S_KOC_0 Name_Met_1_1 S_KOC_1 Name_Met_2_1 S_KOC_2"_s;
        QTest::newRow("metabolism") << 2
                                    << u"Name_Wirkstoff_0 Molmasse_Wirkstoff Name_Met_1_0 Molmasse_Met_1 Bildungsanteil_Met_1 "
                                       "Name_Met_2_0 Molmasse_Met_2 Bildungsanteil_Met_2"_s;
    }
    void tab_walks_a_page_downwards() {
        QFETCH(int, Seite);
        QFETCH(QString, Weg);
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle_Eintrag("S_Kinetik_0", DFOP);
        p_->blaettere("Wirkstoffdaten_Leiste", Seite);
        const QStringList Namen = Weg.split(u' ');
        p_->Teil<QWidget>(Namen.front().toLatin1())->setFocus();
        for (const QString& Name : Namen) {
            QCOMPARE(QApplication::focusWidget()->objectName(), Name);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::qWait(1);
        }
        Fragen_.nimm();
    }

    // The options of the view stand in one row, in the smallest window in two, and never in part only.
    void options_of_the_view_are_never_cut() {
        const auto Hoehe = [&](const char* Name) { return p_->Teil<QWidget>(Name)->y(); };
        for (const int Breite : {900, 1000, 1100, 1280, 1600}) {
            p_->Fenster().resize(Breite, 760);
            QTest::qWait(30);
            const auto* Zeile = p_->Teil<QWidget>("untere_Zeile");
            QList<QRect> belegt;
            for (const char* Name : {"Endpunkt_1", "Endpunkt_0", "PEC_Typ_0", "PEC_Typ_1", "PEC_Typ_2", "TWA_Laenge"}) {
                const auto* w = p_->Teil<QWidget>(Name);
                QVERIFY2(w->width() >= w->sizeHint().width(), Name);
                QVERIFY2(w->height() >= w->minimumSizeHint().height(), Name);
                QVERIFY2(Zeile->rect().contains(w->geometry()), Name);
                for (const QRect& r : belegt) QVERIFY2(!r.intersects(w->geometry()), Name);
                belegt << w->geometry();
            }
            QCOMPARE(Hoehe("Endpunkt_0") < Hoehe("PEC_Typ_0"), Breite == 900 || Breite == 1000);
        }
    }

    void day_and_month_have_names_of_their_own() {
        QCOMPARE(p_->Teil<QComboBox>("App_Tag")->accessibleName(), u"Date, day"_s);
        QCOMPARE(p_->Teil<QComboBox>("App_Monat")->accessibleName(), u"Date, month"_s);
    }

    void every_control_in_focus_has_a_name_for_screen_readers() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        int gesehen = 0;
        for (int Muster = 0; Muster < 3; ++Muster) {
            p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
            for (int Kinetik = SFO; Kinetik <= HS; ++Kinetik) {
                p_->waehle_Eintrag("S_Kinetik_0", Kinetik);
                gesehen += pruefe_Namen();
            }
        }
        for (int Seite = 1; Seite < 3; ++Seite) {
            p_->blaettere("Wirkstoffdaten_Leiste", Seite);
            gesehen += pruefe_Namen();
        }
        QVERIFY(gesehen > 300);
        Fragen_.nimm();
    }

private:
    QStringList Seiten(const char* Leiste) {
        QStringList Namen;
        const auto* l = p_->Teil<QTabBar>(Leiste);
        for (int i = 0; i < l->count(); ++i) Namen << l->tabText(i);
        return Namen;
    }
    QStringList Eintraege(const char* Liste) {
        QStringList Texte;
        const auto* l = p_->Teil<QComboBox>(Liste);
        for (int i = 0; i < l->count(); ++i) Texte << l->itemText(i);
        return Texte;
    }
    static QString mit(const QString& Vorsatz, const QString& Namen) {
        return Vorsatz + QString(Namen).replace(u' ', u' ' + Vorsatz);
    }

    // Of `alle` those of `sichtbar` are on the screen and no other.
    void pruefe(const QString& alle, const QString& sichtbar) {
        const QStringList gewollt = sichtbar.split(u' ');
        for (const QString& Name : alle.split(u' ')) {
            const bool da = p_->gibt_es_sichtbar(Name);
            QVERIFY2(da == gewollt.contains(Name), qPrintable(Name + (da ? u" is shown"_s : u" is not shown"_s)));
        }
    }

    QString Metabolitenschilder(const char* Seite) {
        QStringList Texte;
        for (const QLabel* l : p_->Teil<QWidget>(Seite)->findChildren<QLabel*>()) {
            if (l->isVisible() && l->text().startsWith(u"Metab"_s)) Texte << l->text();
        }
        return Texte.join(u'|');
    }

    static QString Rahmen_von(const QWidget* w) {
        static const QStringList Namen = {u"Frame2"_s,          u"Kinetikschema"_s, u"Applikationsrahmen"_s, u"Szenariorahmen"_s,
                                          u"Ergebnisbereich"_s, u"untere_Zeile"_s,  u"Schalterrahmen"_s};
        for (; w; w = w->parentWidget()) {
            if (Namen.contains(w->objectName())) return w->objectName();
        }
        return u"?"_s;
    }

    int pruefe_Namen() {
        int n = 0;
        for (QWidget* w : p_->Fenster().findChildren<QWidget*>()) {
            if (!w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)) continue;
            const QAccessibleInterface* Name = QAccessible::queryAccessibleInterface(w);
            if (!Name || Name->text(QAccessible::Name).trimmed().isEmpty())
                QTest::qFail(qPrintable(w->objectName() + u" has no name"_s), __FILE__, __LINE__);
            ++n;
        }
        return n;
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Aussehentest> angemeldet;
}

}  // namespace varnok

#include "aussehen_test.moc"
