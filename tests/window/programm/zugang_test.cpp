// Window and dialogs for everybody: every control that takes the focus has a name for screen readers and shows that it has the
// focus, and every text stands out from its ground by 4.5 to 1, on a light and on a dark desktop. What lacks one of it is
// printed.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <cmath>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/kern/rahmenfarben.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

QPalette dunkle_Palette() {
    QPalette p(QColor(53, 53, 53));
    p.setColor(QPalette::Window, QColor(53, 53, 53));
    p.setColor(QPalette::Base, QColor(35, 35, 35));
    p.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    p.setColor(QPalette::Button, QColor(53, 53, 53));
    for (const auto Rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText})
        p.setColor(Rolle, Qt::white);
    p.setColor(QPalette::Link, QColor(120, 180, 255));
    p.setColor(QPalette::Highlight, QColor(42, 130, 218));
    p.setColor(QPalette::HighlightedText, Qt::black);
    return p;
}

double Helligkeit(const QColor& f) {
    const auto linear = [](double k) { return k <= 0.04045 ? k / 12.92 : std::pow((k + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(f.redF()) + 0.7152 * linear(f.greenF()) + 0.0722 * linear(f.blueF());
}

double Kontrast(const QColor& a, const QColor& b) {
    const double x = Helligkeit(a) + 0.05, y = Helligkeit(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

QString als_Name(const QWidget* w) {
    QString Name = QString::fromLatin1(w->metaObject()->className()).section(u':', -1) + u' ' + w->objectName();
    for (w = w->parentWidget(); w && Name.endsWith(u' '); w = w->parentWidget()) Name += w->objectName();
    return Name;
}

// The text that a control paints itself, empty for one that has none.
QString Text_von(const QWidget* w) {
    if (const auto* l = qobject_cast<const QLabel*>(w)) return l->textFormat() == Qt::RichText ? QString() : l->text();
    if (const auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (const auto* f = qobject_cast<const QLineEdit*>(w)) return f->text();
    if (const auto* l = qobject_cast<const QComboBox*>(w)) return l->currentText();
    if (const auto* g = qobject_cast<const QGroupBox*>(w)) return g->title();
    if (const auto* t = qobject_cast<const QTextEdit*>(w)) return t->toPlainText();
    return {};
}

QPalette::ColorRole Textrolle(const QWidget* w) {
    if (qobject_cast<const QPushButton*>(w) || qobject_cast<const QComboBox*>(w)) return QPalette::ButtonText;
    if (qobject_cast<const QLineEdit*>(w) || qobject_cast<const QTextEdit*>(w)) return QPalette::Text;
    return qobject_cast<const QLabel*>(w) ? w->foregroundRole() : QPalette::WindowText;
}

// What most of a picture shows; neighbours on a slope of colours are one.
QColor Grund(const QImage& Bild) {
    struct Summe {
        int n = 0, r = 0, g = 0, b = 0;
    };
    QHash<QRgb, Summe> Summen;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) {
            const QColor f(Bild.pixel(x, y));
            Summe& s = Summen[Bild.pixel(x, y) & 0xE0E0E0];
            ++s.n, s.r += f.red(), s.g += f.green(), s.b += f.blue();
        }
    }
    Summe meiste;
    for (const Summe& s : std::as_const(Summen))
        if (s.n > meiste.n) meiste = s;
    return meiste.n ? QColor(meiste.r / meiste.n, meiste.g / meiste.n, meiste.b / meiste.n) : QColor();
}

// The pixel that stands out most.
double groesster_Kontrast(const QImage& Bild, const QColor& Grund) {
    double k = 1;
    QHash<QRgb, bool> gesehen;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) {
            const QRgb f = Bild.pixel(x, y);
            if (std::exchange(gesehen[f], true)) continue;
            k = std::max(k, Kontrast(QColor(f), Grund));
        }
    }
    return k;
}

QImage Bild_von(QWidget& Wurzel, QWidget* w, int Rand) {
    const QRect Ort(w->mapTo(&Wurzel, QPoint()), w->size());
    return Wurzel.grab(Ort.marginsAdded(QMargins(Rand, Rand, Rand, Rand)) & Wurzel.rect()).toImage();
}

bool ist_verdeckt(QWidget& Wurzel, const QWidget* w) {
    return w->visibleRegion().isEmpty() || !Wurzel.rect().intersects(QRect(w->mapTo(&Wurzel, QPoint()), w->size()));
}

}  // namespace

class Zugangtest : public QObject {
    Q_OBJECT

private:
    // As the program does on such a desktop.
    static void stelle_Palette_ein(QPalette p) {
        const QPalette Markierung = lesbare_Markierung(p);
        for (const auto Gruppe : {QPalette::Active, QPalette::Inactive})
            p.setColor(Gruppe, QPalette::Highlight, Markierung.color(Gruppe, QPalette::Highlight));
        QApplication::setPalette(p);
    }
    // Everything on the screen of a window.
    void pruefe(QWidget& Wurzel, const QString& Ort) {
        for (QWidget* w : Wurzel.findChildren<QWidget*>()) {
            if (w->window() != &Wurzel || !w->isVisible() || !w->isEnabled() || ist_verdeckt(Wurzel, w)) continue;
            // A piece of a control that types for it has no name of its own.
            const bool Stueck = w->focusProxy() || w->objectName().startsWith("qt_"_L1);
            const bool nimmt_Fokus = (w->focusPolicy() & Qt::TabFocus) && !Stueck;
            if (nimmt_Fokus) pruefe_Namen(w, Ort);
            if (nimmt_Fokus) pruefe_Fokus(Wurzel, w, Ort);
            // The light below letters that look pressed into the paper repeats their text.
            const bool nur_Licht = w->objectName() == u"Label2"_s;
            if (!Text_von(w).trimmed().isEmpty() && !nur_Licht) pruefe_Kontrast(Wurzel, w, Ort);
            const bool waehlbar =
                qobject_cast<QLineEdit*>(w) || qobject_cast<QTextEdit*>(w) || qobject_cast<QAbstractItemView*>(w);
            if (waehlbar) pruefe_Auswahl(w, Ort);
            ++gesehen_;
        }
    }
    void klage(const QString& Ort, const QWidget* w, const QString& was) {
        Maengel_ << u"%1: %2: %3"_s.arg(Ort, als_Name(w), was);
    }
    void pruefe_Namen(QWidget* w, const QString& Ort) {
        const QAccessibleInterface* Name = QAccessible::queryAccessibleInterface(w);
        if (!Name || Name->text(QAccessible::Name).trimmed().isEmpty()) klage(Ort, w, u"no name"_s);
    }
    void pruefe_Fokus(QWidget& Wurzel, QWidget* w, const QString& Ort) {
        Wurzel.setAttribute(Qt::WA_KeyboardFocusChange);  // as after Tab
        if (Wurzel.focusWidget()) Wurzel.focusWidget()->clearFocus();
        QTest::qWait(1);
        const QImage ohne = Bild_von(Wurzel, w, 3);
        w->setFocus(Qt::TabFocusReason);
        QTest::qWait(1);
        if (!w->hasFocus()) return;
        const QImage mit = Bild_von(Wurzel, w, 3);
        int anders = 0;
        for (int y = 0; y < mit.height(); ++y)
            for (int x = 0; x < mit.width(); ++x) anders += mit.pixel(x, y) != ohne.pixel(x, y);
        if (anders < 20) klage(Ort, w, u"no focus frame"_s);
    }
    void pruefe_Kontrast(QWidget& Wurzel, QWidget* w, const QString& Ort) {
        if (Wurzel.focusWidget()) Wurzel.focusWidget()->clearFocus();
        const QImage Bild = Bild_von(Wurzel, w, 0);
        const QColor g = Grund(Bild);
        const QColor Schrift = w->palette().color(QPalette::Active, Textrolle(w));
        const double Soll = Kontrast(Schrift, g);
        if (Soll < 4.5) klage(Ort, w, u"%1 on %2: %3 to 1"_s.arg(Schrift.name(), g.name()).arg(Soll, 0, 'f', 1));
        if (groesster_Kontrast(Bild, g) < 3) klage(Ort, w, u"no text is seen on %1"_s.arg(g.name()));
    }

    void pruefe_Farben(const QPalette& p, QPalette::ColorRole Schrift, QPalette::ColorRole Grund, const QWidget* w,
                       const QString& Ort) {
        const double k = Kontrast(p.color(Schrift), p.color(Grund));
        if (k < 4.5) klage(Ort, w, u"%1 on %2: %3 to 1"_s.arg(p.color(Schrift).name(), p.color(Grund).name()).arg(k, 0, 'f', 1));
    }
    // What is marked, and the rows of a list.
    void pruefe_Auswahl(const QWidget* w, const QString& Ort) {
        pruefe_Farben(w->palette(), QPalette::HighlightedText, QPalette::Highlight, w, Ort);
        if (qobject_cast<const QAbstractItemView*>(w)) pruefe_Farben(w->palette(), QPalette::Text, QPalette::Base, w, Ort);
    }

    // Opens a dialog and looks at it.
    void pruefe_Dialog(const QString& Ort, const std::function<void()>& oeffne) {
        bool gesehen = false;
        QTimer Waechter;
        connect(&Waechter, &QTimer::timeout, this, [&] {
            QWidget* Dialog = QApplication::activeModalWidget();
            if (!Dialog || gesehen) return;
            gesehen = true;
            QTest::qWait(20);
            pruefe(*Dialog, Ort);
            Dialog->close();
        });
        Waechter.start(30);
        oeffne();
        QTest::qWait(1);
        Waechter.stop();
        p_->aktiviere();
        QVERIFY2(gesehen, qPrintable(Ort));
    }
    void pruefe_Eintrag(const char* Name) {
        pruefe_Dialog(QLatin1String(Name), [&] { p_->Fenster().findChild<QAction*>(QLatin1String(Name))->trigger(); });
    }
    void pruefe_Fenster() {
        pruefe(p_->Fenster(), u"start page"_s);
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        pruefe(p_->Fenster(), u"window"_s);
        for (int Seite = 1; Seite < 3; ++Seite) {
            p_->blaettere("Wirkstoffdaten_Leiste", Seite);
            pruefe(p_->Fenster(), u"page %1"_s.arg(Seite));
        }
        p_->blaettere("Wirkstoffdaten_Leiste", 0);
        for (const int Kinetik : {DFOP, FOMC, HS}) {
            p_->waehle_Eintrag("S_Kinetik_0", Kinetik);
            pruefe(p_->Fenster(), u"kinetics %1"_s.arg(Kinetik));
        }
        for (int Muster = 0; Muster < 3; ++Muster) {
            p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
            pruefe(p_->Fenster(), u"pattern %1"_s.arg(Muster));
        }
        p_->Fenster().findChild<QAction*>(u"M_Zusammenfassung"_s)->trigger();
        pruefe(p_->Fenster(), u"summary"_s);
        p_->klicke("Bericht_erstellen");
        pruefe(p_->Fenster(), u"report"_s);
        QTest::keyClick(p_->Teil<QWidget>("Bericht"), Qt::Key_Escape);
    }
    void pruefe_Dialoge() {
        for (const char* Name : {"M_Optionen", "M_ueber", "M_Versionsinfo", "M_Laden", "M_Zeitraum", "M_Bild_Optionen"})
            pruefe_Eintrag(Name);
        p_->klicke("Loeschen_2");  // now there is something to restore
        pruefe_Eintrag("M_Wiederherstellen");
        pruefe_Dialog(u"scenario"_s, [&] { p_->klicke("Edit"); });
        p_->Fenster().findChild<QAction*>(u"M_Feldhilfe"_s)->trigger();
        QTest::qWait(20);
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->objectName() != u"Hilfefenster"_s || !w->isVisible()) continue;
            pruefe(*w, u"help"_s);
            w->close();
        }
    }

private Q_SLOTS:
    void initTestCase() {
        Palette_ = QApplication::palette();
        Stil_ = QApplication::style()->name();
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    }
    void cleanupTestCase() {
        QApplication::setPalette(Palette_);
        QApplication::setStyle(Stil_);
    }
    void cleanup() { p_.reset(); }

    void what_lacks_something_is_found() {
        QWidget Wurzel;
        auto* Blatt = new QVBoxLayout(&Wurzel);
        auto* namenlos = new QLineEdit(u"12"_s, &Wurzel);
        auto* blass = new QLabel(u"hardly seen"_s, &Wurzel);
        QPalette p = blass->palette();
        p.setColor(QPalette::WindowText, QColor(170, 170, 170));
        blass->setPalette(p);
        class Stumm : public QCheckBox {
        public:
            using QCheckBox::QCheckBox;

        protected:
            void paintEvent(QPaintEvent*) override {}
        };
        auto* stumm = new Stumm(u"text"_s, &Wurzel);
        for (QWidget* w : {static_cast<QWidget*>(namenlos), static_cast<QWidget*>(blass), static_cast<QWidget*>(stumm)})
            Blatt->addWidget(w);
        namenlos->setObjectName(u"namenlos"_s);
        blass->setObjectName(u"blass"_s);
        stumm->setObjectName(u"stumm"_s);
        stelle_Palette_ein(QApplication::style()->standardPalette());
        Wurzel.show();
        QVERIFY(QTest::qWaitForWindowActive(&Wurzel));
        Maengel_.clear();
        pruefe(Wurzel, u"x"_s);
        QCOMPARE(Maengel_.filter(u"namenlos: no name"_s).size(), 1);
        QCOMPARE(Maengel_.filter(u"blass: #aaaaaa on"_s).size(), 1);
        QCOMPARE(Maengel_.filter(u"stumm: no focus frame"_s).size(), 1);
        QCOMPARE(Maengel_.filter(u"no text is seen"_s).size(), 2);
        QVERIFY2(Maengel_.size() == 5, qPrintable(Maengel_.join(u"; "_s)));
    }

    void nothing_lacks_a_name_a_focus_frame_or_contrast_data() {
        QTest::addColumn<bool>("dunkel");
        QTest::newRow("light desktop") << false;
        QTest::newRow("dark desktop") << true;
    }
    void nothing_lacks_a_name_a_focus_frame_or_contrast() {
        QFETCH(bool, dunkel);
        stelle_Palette_ein(dunkel ? dunkle_Palette() : QApplication::style()->standardPalette());
        Maengel_.clear();
        gesehen_ = 0;
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->Fenster().resize(1280, 900);
        pruefe_Fenster();
        pruefe_Dialoge();
        pruefe_Farben(QToolTip::palette(), QPalette::ToolTipText, QPalette::ToolTipBase, &p_->Fenster(), u"tips"_s);
        pruefe_Farben(QApplication::palette(), QPalette::HighlightedText, QPalette::Highlight, &p_->Fenster(), u"menus"_s);
        Maengel_.removeDuplicates();
        for (const QString& m : Maengel_) qWarning("%s", qPrintable(m));
        QVERIFY2(gesehen_ > 1000, qPrintable(u"only %1 controls were seen"_s.arg(gesehen_)));
        QVERIFY2(Maengel_.isEmpty(), qPrintable(u"%1 are lacking"_s.arg(Maengel_.size())));
        Fragen_.vergiss();
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
    QPalette Palette_;
    QString Stil_;
    QStringList Maengel_;
    int gesehen_ = 0;
};

namespace {
const Anmeldung<Zugangtest> angemeldet;
}

}  // namespace varnok

#include "zugang_test.moc"
