// The check for a newer version as the window shows it.

#include <QAction>
#include <QApplication>
#include <QTest>

#include "support/updatewelt.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Updatetest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Netz_ = std::make_unique<Scheinnetz>();
        Fragen_.vergiss();
        Fragen_.nimm();
        p_ = std::make_unique<Fensterprobe>(
            &Fragen_, nullptr, Aktualisierungswelt{{"http", "example.org", std::string(64, '0')}, Netz_.get(), &Tausch_});
    }
    void cleanup() { p_.reset(); }

    void the_entry_is_disabled_and_the_pointer_waits_while_the_check_runs() {
        bool gesperrt = false, bleibt_gesperrt = false, wartet = false;
        Netz_->waehrend = [&] {
            gesperrt = !Eintrag()->isEnabled();
            p_->Fenster().zeige();
            bleibt_gesperrt = !Eintrag()->isEnabled();
            wartet = QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        };
        QVERIFY(Eintrag()->isEnabled());
        Eintrag()->trigger();
        QVERIFY(gesperrt);
        QVERIFY(bleibt_gesperrt);
        QVERIFY(wartet);
        QVERIFY(Eintrag()->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(Fragen_.nimm(), QStringList{u"Connection error: Varnok could not connect to the update server"_s});
    }

    void the_close_box_waits_for_the_check_and_then_closes_the_window() {
        bool geschlossen = true;
        Netz_->waehrend = [&] { geschlossen = p_->Fenster().close(); };
        Eintrag()->trigger();
        QVERIFY(!geschlossen);
        QCOMPARE(Netz_->abgebrochen, 1);
        Fragen_.nimm();
        QTRY_VERIFY(!p_->Fenster().isVisible());
    }

    void the_answer_at_the_start_comes_over_the_start_page() {
        p_->Fenster().suche_beim_Start();
        QVERIFY(p_->sichtbar("Intro"));
        Netz_->antworte(Seite("20180921"));
        QCOMPARE(Fragen_.nimm(), QStringList{u"VARNOK: You have the latest version of the software."_s});
        QVERIFY(p_->sichtbar("Intro"));
    }

    void no_answer_at_the_start_shows_nothing() {
        p_->Fenster().suche_beim_Start();
        Netz_->antworte(std::nullopt);
        QVERIFY(Fragen_.nimm().isEmpty());
    }

    void a_bad_download_at_the_start_leaves_the_window() {
        p_->Fenster().suche_beim_Start();
        Netz_->antworte(Seite("20180922"));
        QVERIFY(Fragen_.nimm().last().startsWith(u"Update not installed: The new version could not be downloaded"_s));
        QVERIFY(p_->Fenster().isVisible());
        QVERIFY(!QApplication::overrideCursor());
    }

    void an_answer_on_the_working_screen_shows_nothing() {
        p_->Fenster().suche_beim_Start();
        const auto spaet = Netz_->wartet;
        p_->starte();
        spaet(Seite("20180922"));
        QVERIFY(Fragen_.nimm().isEmpty());
    }

private:
    static std::string Seite(const char* Version) { return std::string("<a href=\"Varnok_package_") + Version + ".zip\">"; }
    QAction* Eintrag() const {
        auto* a = p_->Fenster().findChild<QAction*>(u"M_suche_nach_Update"_s);
        if (!a) qFatal("no menu entry");
        return a;
    }

    Mitschrift Fragen_;
    std::unique_ptr<Scheinnetz> Netz_;
    Scheintausch Tausch_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Updatetest> angemeldet;
}

}  // namespace varnok

#include "aktualisierung_test.moc"
