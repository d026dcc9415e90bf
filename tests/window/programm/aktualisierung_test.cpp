// The check for a newer version as the window shows it.

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QUrl>
#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>

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

    void nothing_is_dropped_on_the_window_while_the_check_runs() {
        p_->starte();
        Fragen_.nimm();
        QMimeData Daten;
        Daten.setUrls({QUrl::fromLocalFile(p_->Pfad(u"input/Vines, Compound D.vnk"_s))});
        QDragEnterEvent herein(QPoint(9, 9), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        QDropEvent ab(QPointF(9, 9), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        bool angenommen = true;
        Netz_->waehrend = [&] {
            herein.ignore();
            QApplication::sendEvent(&p_->Fenster(), &herein);
            ab.ignore();
            QApplication::sendEvent(&p_->Fenster(), &ab);
            angenommen = herein.isAccepted() || ab.isAccepted();
        };
        Eintrag()->trigger();
        QVERIFY(!angenommen);
        QTest::qWait(20);
        QCOMPARE(p_->Programm().Stand().gewaehlt(Simulation), std::string("Programcheck"));
        Fragen_.nimm();
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

    void esc_ends_the_wait_for_the_page_and_for_the_download() {
        const Aktualisierungsziel Ziel{"http", "example.org", std::string(64, '0')};
        for (const std::string& Adresse : {Ziel.Versionsseite(), Ziel.Programm()}) {
            Netz_->Antworten = {{Ziel.Versionsseite(), Seite("20180922")}, {Ziel.Signatur(), "signature"}};
            Netz_->abgebrochen = 0;
            Netz_->waehrend = [&] {
                if (Netz_->gefragt.back() != Adresse) return;
                QTest::keyClick(&p_->Fenster(), Qt::Key_A);  // nothing else is heard
                QCOMPARE(Netz_->abgebrochen, 0);
                QTest::keyClick(&p_->Fenster(), Qt::Key_Escape);
                Netz_->Antworten.clear();  // what is broken off gives no answer
            };
            Eintrag()->trigger();
            QCOMPARE(Netz_->gefragt.back(), Adresse);
            QCOMPARE(Netz_->abgebrochen, 1);
            const QString letzte = Fragen_.nimm().last();
            QVERIFY2(letzte.startsWith(Adresse == Ziel.Programm() ? u"Update not installed: "_s : u"Connection error: "_s),
                     qPrintable(letzte));
            QVERIFY(p_->Fenster().isVisible());
            QVERIFY(Eintrag()->isEnabled());
            QVERIFY(!QApplication::overrideCursor());
        }
        QVERIFY(Tausch_.bereit.empty());
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
