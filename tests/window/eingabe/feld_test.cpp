// Every numeric field as the user has it: typed in, confirmed with Enter, left with Tab.

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

constexpr int Abbau = 0, Sorption = 1, Metabolismus = 2, Applikationen = -1;  // where a field stands
constexpr int egal = -1;

struct Feldfall {
    const char* Feld;  // with a # for the index of the compound
    int Seite;
    int Kinetik;
    std::vector<const char*> gueltig;    // on Enter and on leaving
    std::vector<const char*> ungueltig;  // on both
    const char* Meldung;
    const char* Meldung_Enter = nullptr;
    const char* nur_bei_Enter = nullptr;  // a value that Enter takes and leaving refuses
};

const std::vector<const char*> ab_0 = {"12", "0", "0.001"};
const std::vector<const char*> unter_0 = {"-0.001", "-1"};
const std::vector<const char*> ueber_0 = {"12", "0.001"};
const std::vector<const char*> bis_0 = {"0", "-1", "abc", ""};

constexpr const char* DT50 = "The DT50 is invalid. Please correct!";
constexpr const char* Masse = "The molecular mass is invalid. Please correct!";
constexpr const char* Bildung = "The formation rate is invalid. Please correct!";

const Feldfall Faelle[] = {
    {"S_DT50_#", Abbau, SFO, ab_0, unter_0, DT50},
    {"S_DT50_1_DFOP_#", Abbau, DFOP, ab_0, unter_0, DT50},
    {"S_DT50_2_DFOP_#", Abbau, DFOP, ab_0, unter_0, DT50},
    {"S_g_#", Abbau, DFOP, {"0.3", "0", "1"}, {"-0.001", "1.001"}, "The g constant is invalid. Please correct!"},
    {"S_Q10_#", Abbau, egal, ueber_0, bis_0, "The Q10 constant is invalid. Please correct!"},
    {"S_Walker_#", Abbau, egal, {"0.7", "0"}, unter_0, "The Walker exponent is invalid. Please correct!"},
    {"S_TRef_#", Abbau, egal, {"15", "0"}, unter_0, "The tref exponent is invalid. Please correct!"},
    {"S_KOC_#", Sorption, egal, ab_0, unter_0, "The KOC constant is invalid. Please correct!",
     "The Koc constant is invalid. Please correct!"},
    {"S_alpha", Abbau, FOMC, {"0.8", "0"}, unter_0, "The alpha constant is invalid. Please correct!"},
    {"S_beta", Abbau, FOMC, ueber_0, bis_0, "The beta constant is invalid. Please correct!"},
    {"S_DT50_1_HS", Abbau, HS, ab_0, unter_0, DT50},
    {"S_DT50_2_HS", Abbau, HS, ab_0, unter_0, DT50},
    {"S_Tb", Abbau, HS, ab_0, unter_0, "The breakpoint is invalid. Please correct!"},
    {"Molmasse_Wirkstoff", Metabolismus, egal, {"312.4"}, bis_0, Masse},
    {"Molmasse_Met_1", Metabolismus, egal, {"212.4"}, bis_0, Masse},
    {"Molmasse_Met_2", Metabolismus, egal, {"112.4"}, bis_0, Masse},
    {"Bildungsanteil_Met_1", Metabolismus, egal, {"55", "0", "100"}, {"-0.1", "100.1"}, Bildung},
    {"Bildungsanteil_Met_2", Metabolismus, egal, {"25", "0", "100"}, {"-0.1", "100.1"}, Bildung},
    {"Applikationsrate",
     Applikationen,
     egal,
     {"750", "0.5"},
     {"-1"},
     "The applikations rate is invalid. Please correct!",
     nullptr,
     "0"},
    {"Interzeption",
     Applikationen,
     egal,
     {"50", "0", "99.9"},
     {"-1", "100", "100.5"},
     "The crop interception is invalid. Please correct!"},
};

constexpr const char* Titel = "No valid input!: ";

}  // namespace

class Feldtest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // All fields are reached in one window with a scheme of three compounds; a field that fails gets a new one.
    void init() {
        if (p_) return;
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("Applikationsmuster_0");
        Fragen_.nimm();
    }
    void cleanup() {
        if (QTest::currentTestFailed()) p_.reset();
    }
    void cleanupTestCase() { p_.reset(); }

    void every_field_has_its_trial() {
        int n = 0;
        for (const Feldfall& f : Faelle) n += QByteArray(f.Feld).endsWith('#') ? Stoffe : 1;
        QCOMPARE(n, static_cast<int>(Feldtabelle().size()));
    }

    void enter_accepts_and_refuses_data() { bereite_Faelle(); }
    void enter_accepts_and_refuses() { pruefe(true); }

    void leaving_accepts_and_refuses_data() { bereite_Faelle(); }
    void leaving_accepts_and_refuses() { pruefe(false); }

private:
    static void bereite_Faelle() {
        QTest::addColumn<int>("Fall");
        QTest::addColumn<int>("Substanz");
        int Fall = 0;
        for (const Feldfall& f : Faelle) {
            const int n = QByteArray(f.Feld).endsWith('#') ? Stoffe : 1;
            for (int c = 0; c < n; ++c)
                QTest::newRow(QByteArray(f.Feld).replace('#', QByteArray::number(c)).constData()) << Fall << c;
            ++Fall;
        }
    }

    void zeige_Feld(const Feldfall& f, int c) {
        if (f.Seite == Applikationen) return;
        p_->blaettere("Wirkstoffdaten_Leiste", f.Seite);
        if (f.Seite != Abbau) return;
        p_->waehle(("Substanz_" + QByteArray::number(c)).constData());
        if (f.Kinetik != egal) p_->waehle_Eintrag(("S_Kinetik_" + QByteArray::number(c)).constData(), f.Kinetik);
    }

    QColor Farbe(const char* Feld) { return p_->Teil<QLineEdit>(Feld)->palette().color(QPalette::Active, QPalette::Base); }
    bool Hinweis() { return !p_->Teil<QPushButton>("Aktualisieren")->icon().isNull(); }
    // Messages about the value; a compound that does not degrade is also told to have no plateau.
    // Which it is, not how often it comes.
    QStringList Ablehnungen() { return Fragen_.nimm().filter(QLatin1StringView(Titel)); }

    void pruefe(bool Enter) {
        QFETCH(int, Fall);
        QFETCH(int, Substanz);
        const Feldfall& f = Faelle[Fall];
        const QByteArray Name = QByteArray(f.Feld).replace('#', QByteArray::number(Substanz));
        zeige_Feld(f, Substanz);
        QVERIFY(p_->sichtbar(Name));
        for (const char* Text : f.gueltig) angenommen(Name, Text, Enter);
        if (f.nur_bei_Enter) {
            if (Enter)
                angenommen(Name, f.nur_bei_Enter, true);
            else
                abgelehnt(Name, f.nur_bei_Enter, false, f.Meldung);
        }
        for (const char* Text : f.ungueltig) abgelehnt(Name, Text, Enter, Enter && f.Meldung_Enter ? f.Meldung_Enter : f.Meldung);
        angenommen(Name, f.gueltig.front(), false);
    }

    void angenommen(const char* Feld, const char* Text, bool Enter) {
        p_->tippe(Feld, Text);
        QCOMPARE(Farbe(Feld), QColor(255, 255, 0));
        p_->druecke(Feld, Enter ? Qt::Key_Return : Qt::Key_Tab);
        QCOMPARE(Ablehnungen(), QStringList());
        QVERIFY2(!Hinweis(), Text);
        QVERIFY2(!p_->sichtbar("Abdeckung"), Text);
        QCOMPARE(p_->Teil<QLineEdit>(Feld)->text(), QString::fromLatin1(Text));
        QCOMPARE(p_->Teil<QLineEdit>(Feld)->hasFocus(), Enter);
        if (!Enter) QCOMPARE(Farbe(Feld), QColor(Qt::white));
    }

    void abgelehnt(const char* Feld, const char* Text, bool Enter, const char* Meldung) {
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        auto* f = p_->Teil<QLineEdit>(Feld);
        p_->tippe(Feld, "5");  // so that an empty text is a change as well
        f->selectAll();
        QTest::keyClick(f, Qt::Key_Delete);
        QTest::keyClicks(f, QString::fromLatin1(Text));
        p_->druecke(Feld, Enter ? Qt::Key_Return : Qt::Key_Tab);
        QTest::qWait(1);
        QCOMPARE(Ablehnungen(), QStringList(QString::fromLatin1(Titel) + QString::fromLatin1(Meldung)));
        QVERIFY(p_->sichtbar("Abdeckung"));
        QVERIFY2(f->hasFocus(), Text);
        QCOMPARE(f->selectedText(), QString::fromLatin1(Text));
        QCOMPARE(f->text(), QString::fromLatin1(Text));
        QCOMPARE(Farbe(Feld), QColor(255, 255, 0));
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher);
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Feldtest> angemeldet;
}

}  // namespace varnok

#include "feld_test.moc"
