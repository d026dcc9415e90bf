// The about box and the release notes.

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>

#include "base/programm.h"
#include "extras/programmangaben.h"
#include "extras/versionstexte.h"
#include "painting/qt_text.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Textfenstertest : public QObject {
    Q_OBJECT

private:
    // Chooses the entry and looks at the dialog that comes; `pruefe` closes it.
    void oeffne(const char* Eintrag, const std::function<void(QDialog&)>& pruefe) {
        auto* Aktion = p_->Fenster().findChild<QAction*>(QLatin1String(Eintrag));
        QVERIFY(Aktion && Aktion->isEnabled());
        bool gesehen = false;
        QTimer::singleShot(50, this, [&] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) return;
            gesehen = true;
            pruefe(*Dialog);
            if (Dialog->isVisible()) Dialog->reject();
        });
        Aktion->trigger();
        QTRY_VERIFY(gesehen);
        p_->aktiviere();
    }
    template <class W>
    static W* Teil(QDialog& d, const QString& Name) {
        W* w = d.findChild<W*>(Name);
        if (!w) qFatal("no control %s", qPrintable(Name));
        return w;
    }

private Q_SLOTS:
    void init() { p_ = std::make_unique<Fensterprobe>(&Fragen_); }
    void cleanup() { p_.reset(); }

    void notes_of_this_edition_stand_in_a_box_above_the_releases() {
        oeffne("M_ueber", [&](QDialog& d) { QVERIFY(!d.findChild<QLabel*>(u"Ausgabe"_s)); });
        oeffne("M_Versionsinfo", [&](QDialog& d) {
            const auto* Kasten = Teil<QLabel>(d, u"Ausgabe"_s);
            for (const std::string& n : Ausgabenotizen()) QVERIFY(Kasten->text().contains(in_Qt(n)));
            const auto* Feld = Teil<QTextEdit>(d, u"Text1"_s);
            QVERIFY(Kasten->mapTo(&d, QPoint(0, Kasten->height())).y() <= Feld->mapTo(&d, QPoint()).y());
            QVERIFY2(d.height() <= d.screen()->availableSize().height(), "the window does not fit on the screen");
        });
    }

    void both_present_the_program_data() {
        QTest::addColumn<QByteArray>("Eintrag");
        QTest::addColumn<QString>("Name");
        QTest::addColumn<QString>("Titel");
        QTest::addColumn<QString>("Text");
        QTest::newRow("about") << QByteArray("M_ueber") << u"Info"_s << u"About VARNOK"_s
                               << in_Qt(lies_Programmangaben(VARNOK_DATENORDNER) + Lizenzangaben(VARNOK_DATENORDNER));
        QTest::newRow("release notes") << QByteArray("M_Versionsinfo") << u"Versionsinfo"_s << u"Release notes"_s
                                       << in_Qt(Versionstext());
    }
    void both_present_the_program() {
        QFETCH(QByteArray, Eintrag);
        QFETCH(QString, Name);
        QFETCH(QString, Titel);
        QFETCH(QString, Text);
        oeffne(Eintrag, [&](QDialog& d) {
            QCOMPARE(d.objectName(), Name);
            QCOMPARE(d.windowTitle(), Titel);
            QVERIFY(d.isModal());
            QCOMPARE(Teil<QLabel>(d, u"Label1"_s)->text(), u"VARNOK"_s);
            QCOMPARE(Teil<QLabel>(d, u"Label2"_s)->text(), u"Soil residue forecast tool"_s);
            QCOMPARE(Teil<QLabel>(d, u"Label3"_s)->text(), Teil<QLabel>(d, u"Label2"_s)->text());
            QVERIFY(Teil<QWidget>(d, u"Image1"_s)->isVisible() && Teil<QWidget>(d, u"Image2"_s)->isVisible());
            QCOMPARE(Teil<QLabel>(d, u"Versionsangabe"_s)->text(), u"Version: "_s + QLatin1String(Programmversion));
            auto* Feld = Teil<QTextEdit>(d, u"Text1"_s);
            QVERIFY(Feld->isReadOnly());
            QCOMPARE(Feld->toPlainText(), QString(Text).replace(u"\r\n"_s, u"\n"_s));
            // Over the middle of the window, as far as the screen has room.
            QRect Platz = d.rect();
            Platz.moveCenter(p_->Fenster().geometry().center());
            const QRect Schirm = d.screen()->availableGeometry();
            Platz.moveLeft(std::clamp(Platz.left(), Schirm.left(), std::max(Schirm.left(), Schirm.right() - Platz.width())));
            QVERIFY((d.geometry().center() - Platz.center()).manhattanLength() < 60);
        });
    }

    void release_notes_begin_at_the_newest_in_bold() {
        oeffne("M_Versionsinfo", [&](QDialog& d) {
            auto* Feld = Teil<QTextEdit>(d, u"Text1"_s);
            const QTextBlock Kopf = Feld->cursorForPosition(QPoint(12, 14)).block();
            QCOMPARE(Kopf.text(), u"Version 2.0 (21 September 2018)"_s);
            QVERIFY(Kopf.begin().fragment().charFormat().fontWeight() > QFont::Normal);
            QVERIFY(Kopf.next().begin().fragment().charFormat().fontWeight() <= QFont::Normal);
        });
    }

    void they_close_with_data() {
        QTest::addColumn<int>("Taste");
        QTest::addColumn<QString>("auf");
        QTest::newRow("Esc") << int(Qt::Key_Escape) << u"Command1"_s;
        QTest::newRow("Esc in the text") << int(Qt::Key_Escape) << u"Text1"_s;
        QTest::newRow("Enter") << int(Qt::Key_Return) << u"Command1"_s;
        QTest::newRow("Enter in the text") << int(Qt::Key_Return) << u"Text1"_s;
        QTest::newRow("OK") << 0 << u"Command1"_s;
    }
    void they_close_with() {
        QFETCH(int, Taste);
        QFETCH(QString, auf);
        for (const char* Eintrag : {"M_ueber", "M_Versionsinfo"}) {
            oeffne(Eintrag, [&](QDialog& d) {
                QVERIFY(Teil<QPushButton>(d, u"Command1"_s)->isDefault());
                auto* w = Teil<QWidget>(d, auf);
                w->setFocus();
                if (Taste == 0) {
                    QTest::mouseClick(w, Qt::LeftButton);
                } else {
                    QTest::keyClick(w, static_cast<Qt::Key>(Taste));
                }
                QVERIFY(!d.isVisible());
            });
        }
    }

    void the_button_has_the_focus_and_the_text_takes_it() {
        oeffne("M_ueber", [&](QDialog& d) {
            QCOMPARE(d.focusWidget()->objectName(), u"Command1"_s);
            QTest::keyClick(&d, Qt::Key_Tab);
            QCOMPARE(d.focusWidget()->objectName(), u"Text1"_s);
            QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
            QCOMPARE(d.focusWidget()->objectName(), u"Command1"_s);
        });
    }

    void the_simulation_is_left_as_it_is() {
        p_->starte();
        p_->tippe("Applikationsrate", "1");
        const Zustand& z = p_->Programm().Stand();
        const int Zeichnung = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        const auto Marken = z.Marken();
        oeffne("M_Versionsinfo", [](QDialog&) {});
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
        QVERIFY(z.Hinweis());
        QVERIFY(z.Marken() == Marken);
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Textfenstertest> angemeldet;
}

}  // namespace varnok

#include "textfenster_test.moc"
