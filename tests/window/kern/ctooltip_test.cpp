// The tips of a form, without the program.

#include "window/kern/ctooltip.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <cmath>

#include "window/kern/anmeldung.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Tooltipklassentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_tool_is_added_once_and_removed_once() {
        QWidget Formular;
        QLineEdit Feld(&Formular), fremd;
        cTooltip t(nullptr);
        QVERIFY(!t.AddTool(Feld, u"before"_s));
        QVERIFY(t.Create(Formular));
        QVERIFY(t.Create(fremd));  // the first form stays
        QVERIFY(!t.AddTool(fremd));
        QVERIFY(t.AddTool(Feld, u"first"_s));
        QVERIFY(!t.AddTool(Feld, u"second"_s));
        QCOMPARE(t.ToolText(Feld), u"first"_s);
        QCOMPARE(t.ToolCount(), 1);
        QVERIFY(t.RemoveTool(Feld));
        QVERIFY(!t.RemoveTool(Feld));
        QCOMPARE(t.ToolCount(), 0);
        QCOMPARE(Feld.toolTip(), QString());
        QVERIFY(!t.ToolText(Feld, u"none"_s));
    }

    void a_label_gets_no_tool() {
        QWidget Formular;
        QLabel Schild(&Formular);
        cTooltip t(nullptr);
        t.Create(Formular);
        QVERIFY(!t.AddTool(Schild, u"text"_s));
        QCOMPARE(t.ToolCount(), 0);
    }

    void tools_go_with_their_controls_and_tips_with_the_class() {
        QWidget Formular;
        QLineEdit bleibt(&Formular);
        auto* geht = new QLineEdit(&Formular);
        {
            cTooltip t(nullptr);
            t.Create(Formular);
            t.AddTool(bleibt, u"text"_s);
            t.AddTool(*geht, u"text"_s);
            delete geht;
            QCOMPARE(t.ToolCount(), 1);
            QVERIFY(!bleibt.toolTip().isEmpty());
        }
        QCOMPARE(bleibt.toolTip(), QString());
    }

    void lines_are_broken_within_the_width_and_signs_are_no_markup() {
        QWidget Formular;
        QLineEdit Feld(&Formular);
        cTooltip t(nullptr);
        t.Create(Formular);
        t.MaxTipWidth(240);
        t.AddTool(Feld, u"a < b & c > d\n"_s + u"many words "_s.repeated(12) + u'\n' + QString(90, u'w'));
        QTextDocument Text;
        Text.setDefaultFont(QToolTip::font());
        Text.setDocumentMargin(0);
        Text.setHtml(Feld.toolTip());
        QVERIFY2(Text.idealWidth() <= 240, qPrintable(Feld.toolTip()));
        const QStringList Reihen = Text.toPlainText().split(u'\n');
        QCOMPARE(Reihen.front(), u"a < b & c > d"_s);
        QVERIFY(Reihen.size() > 5);
        QCOMPARE(Reihen.join(QString()).remove(u' '), QString(u"a<b&c>d"_s + u"manywords"_s.repeated(12) + QString(90, u'w')));
        t.MaxTipWidth(-1);
        Text.setHtml(Feld.toolTip());
        QCOMPARE(Text.toPlainText().count(u'\n'), 2);
    }

    void only_the_time_on_the_screen_can_be_set() {
        QWidget Formular;
        QLineEdit Feld(&Formular);
        cTooltip t(nullptr);
        t.Create(Formular);
        t.AddTool(Feld, u"text"_s);
        QVERIFY(t.DelayTime(cTooltip::Anzeige, 20000));
        QVERIFY(t.DelayTime(6, 15000));  // 6 is 2 in its last two bits
        QCOMPARE(Feld.toolTipDuration(), 15000);
        QVERIFY(!t.DelayTime(cTooltip::Beginn, 1));
        QVERIFY(!t.DelayTime(cTooltip::automatisch, 1));
        QCOMPARE(t.DelayTime(cTooltip::Anzeige), 15000);
    }

    void margins_make_room_around_the_text() {
        QWidget Formular;
        QLineEdit Feld(&Formular);
        cTooltip t(nullptr);
        t.Create(Formular);
        t.AddTool(Feld, u"text"_s);
        const auto Groesse = [&] {
            QTextDocument Text;
            Text.setDocumentMargin(0);
            Text.setHtml(Feld.toolTip());
            return QSize(static_cast<int>(std::ceil(Text.idealWidth())), static_cast<int>(Text.size().height()));
        };
        const QSize vorher = Groesse();
        t.Margin(cTooltip::links, 10);
        t.Margin(cTooltip::unten, 7);
        QCOMPARE(t.Margin(cTooltip::links), 10);
        QCOMPARE(t.Margin(cTooltip::oben), 0);
        QCOMPARE(Groesse(), vorher + QSize(10, 7));
    }

    void colours_are_those_of_the_tips() {
        const QPalette vorher = QToolTip::palette();
        cTooltip t(nullptr);
        t.BackColor(QColor(255, 255, 225));
        t.ForeColor(QColor(0, 0, 128));
        QCOMPARE(t.BackColor(), QColor(255, 255, 225));
        QCOMPARE(t.ForeColor(), QColor(0, 0, 128));
        QCOMPARE(QToolTip::palette().color(QPalette::Inactive, QPalette::ToolTipText), QColor(0, 0, 128));
        QToolTip::setPalette(vorher);
    }
};

namespace {
const Anmeldung<Tooltipklassentest> angemeldet;
}

}  // namespace varnok

#include "ctooltip_test.moc"
