// How little of the window is refreshed by a key.

#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QtGui/QPaintEvent>
#include <algorithm>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

QString Bezeichnung(const QWidget& w) { return QString::fromLatin1(w.metaObject()->className()) + u' ' + w.objectName(); }

// The widgets that were painted anew or have changed their looks. What a widget paints only since something that stands on it
// is painted anew, and lets it shine through, does not count; a frame that is painted for its own sake counts, and all on it.
class Auffrischungen : public QObject {
public:
    Auffrischungen() { qApp->installEventFilter(this); }
    QStringList Namen() const {
        QStringList Liste;
        for (auto t = Teile_.begin(); t != Teile_.end(); ++t) {
            QRegion eigenes = t->Gemaltes;
            for (auto x = Teile_.begin(); x != Teile_.end(); ++x) {
                if (x != t && t.key()->isAncestorOf(x.key())) eigenes -= x->Gemaltes;
            }
            if (t->anderes_Aussehen || !eigenes.isEmpty()) Liste << Bezeichnung(*t.key());
        }
        return Liste;
    }

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        auto* w = qobject_cast<QWidget*>(o);
        if (w && e->type() == QEvent::Paint)
            Teile_[w].Gemaltes += static_cast<QPaintEvent*>(e)->region().translated(w->mapTo(w->window(), QPoint()));
        if (w && (e->type() == QEvent::EnabledChange || e->type() == QEvent::PaletteChange)) Teile_[w].anderes_Aussehen = true;
        return false;
    }

private:
    struct Teil {
        QRegion Gemaltes;  // in the window
        bool anderes_Aussehen = false;
    };
    QHash<QWidget*, Teil> Teile_;
};

// Writes something else into all other fields, lists, labels and cells, behind the program's back: what shows the session again
// afterwards was refreshed.
class Verstellte {
public:
    Verstellte(const QWidget& Fenster, const QWidget* ausser) {
        for (QLineEdit* f : Fenster.findChildren<QLineEdit*>()) {
            if (f != ausser && !qobject_cast<QComboBox*>(f->parentWidget())) Felder_ << f;
        }
        for (QComboBox* l : Fenster.findChildren<QComboBox*>()) {
            if (l->currentIndex() >= 0) Listen_ << l;
        }
        for (QLabel* l : Fenster.findChildren<QLabel*>()) {
            if (l->pixmap(Qt::ReturnByValue).isNull()) Schilder_ << l;
        }
        for (const QTableWidget* t : Fenster.findChildren<QTableWidget*>()) Zellen_ << t->findItems(u"*"_s, Qt::MatchWildcard);
        verstelle();
        QTest::qWait(50);  // other labels have other sizes, and diagrams then other labels
        verstelle();
    }
    QStringList erneuerte() const {
        QStringList Namen;
        for (const QLineEdit* f : Felder_) {
            if (f->text() != u"?"_s) Namen << f->objectName();
        }
        for (const QComboBox* l : Listen_) {
            if (l->currentIndex() >= 0) Namen << l->objectName();
        }
        for (const QLabel* l : Schilder_) {
            if (l->text() != u"?"_s) Namen << Bezeichnung(*l) + u' ' + l->text();
        }
        for (const QTableWidgetItem* z : Zellen_) {
            if (z->text() != u"?"_s) Namen << z->tableWidget()->objectName() + u' ' + z->text();
        }
        return Namen;
    }
    qsizetype Felder() const { return Felder_.size() + Listen_.size(); }
    qsizetype Schilder() const { return Schilder_.size(); }
    qsizetype Zellen() const { return Zellen_.size(); }

private:
    void verstelle() {
        for (QLineEdit* f : Felder_) f->setText(u"?"_s);
        for (QComboBox* l : Listen_) {
            const QSignalBlocker still(l);
            l->setCurrentIndex(-1);
        }
        for (QLabel* l : Schilder_) l->setText(u"?"_s);
        for (QTableWidgetItem* z : Zellen_) {
            const QSignalBlocker still(z->tableWidget());
            z->setText(u"?"_s);
        }
    }

    QList<QLineEdit*> Felder_;
    QList<QComboBox*> Listen_;
    QList<QLabel*> Schilder_;
    QList<QTableWidgetItem*> Zellen_;
};

}  // namespace

class Auffrischungstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void a_frame_that_is_painted_for_its_own_sake_counts_with_all_on_it() {
        QWidget Fenster;
        auto* Rahmen = new QFrame(&Fenster);
        Rahmen->setGeometry(0, 0, 90, 90);
        QList<QLabel*> Schilder;
        for (int i = 0; i < 3; ++i) {
            Schilder << new QLabel(u"a"_s, Rahmen);
            Schilder.back()->setGeometry(10, 10 + 20 * i, 50, 10);
        }
        Fenster.resize(99, 99);
        Fenster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&Fenster));
        QTest::qWait(50);
        const auto gezaehlt = [](QWidget* w) {
            const Auffrischungen Zaehler;
            w->update();
            QTest::qWait(20);
            return Zaehler.Namen().filter(u"QLabel"_s).size() * 10 + Zaehler.Namen().filter(u"QFrame"_s).size();
        };
        QCOMPARE(gezaehlt(Schilder[1]), 10);
        QCOMPARE(gezaehlt(Rahmen), 31);
    }

    void a_key_refreshes_at_most_five_widgets_data() {
        QTest::addColumn<QByteArray>("Feld");
        for (const char* f : {"S_DT50_0", "Applikationsrate", "Beschreibung"}) QTest::newRow(f) << QByteArray(f);
    }
    void a_key_refreshes_at_most_five_widgets() {
        QFETCH(QByteArray, Feld);
        druecke_auf(Feld, Feld == "Beschreibung" ? Qt::RightButton : Qt::LeftButton);
        feld(Feld)->end(false);
        QTest::qWait(50);
        for (int i = 0; i < 2; ++i) {  // the first one lights the hint
            const Auffrischungen Zaehler;
            QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_1);
            QTest::qWait(50);
            const QStringList Namen = Zaehler.Namen();
            QVERIFY(!Namen.isEmpty());
            QVERIFY2(Namen.size() <= 5, qPrintable(Namen.join(u", "_s)));
        }
        const Verstellte andere(p_->Fenster(), feld(Feld));
        QVERIFY(andere.Felder() > 30);
        QVERIFY(andere.Schilder() > 30);
        QVERIFY(andere.Zellen() > 30);
        QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_1);
        QTest::qWait(50);
        QVERIFY2(andere.erneuerte().size() <= 5, qPrintable(andere.erneuerte().join(u", "_s)));
        QVERIFY(p_->Fenster().windowTitle().endsWith(u'*'));
        if (Feld != "Beschreibung") QVERIFY(!p_->Teil<QPushButton>("Aktualisieren")->icon().isNull());
    }

    void a_key_in_a_cell_shows_in_the_cell_and_refreshes_little() {
        p_->waehle("Applikationsmuster_2");
        Fragen_.vergiss();
        auto* Tafel = p_->Teil<QTableWidget>("Applikationsschema");
        Tafel->setFocus();
        Tafel->setCurrentCell(0, 2);
        QTest::qWait(50);
        const QString alt = p_->Zelle("Applikationsschema", 0, 2);
        const Auffrischungen Zaehler;
        QTest::keyClick(Tafel, Qt::Key_7);
        QTest::qWait(50);
        const QStringList Namen = Zaehler.Namen();
        QCOMPARE(p_->Zelle("Applikationsschema", 0, 2), alt + u'7');
        QVERIFY2(Namen.size() <= 5, qPrintable(Namen.join(u", "_s)));
        const Verstellte andere(p_->Fenster(), nullptr);
        QTest::keyClick(Tafel, Qt::Key_7);
        QTest::qWait(50);
        QCOMPARE(p_->Zelle("Applikationsschema", 0, 2), alt + u"77"_s);
        QVERIFY2(andere.erneuerte().size() <= 5, qPrintable(andere.erneuerte().join(u", "_s)));
    }

private:
    QLineEdit* feld(const char* Name) { return p_->Teil<QLineEdit>(Name); }
    // As the desktop tells it: the press gives the focus.
    void druecke_auf(const char* Name, Qt::MouseButton Taste) {
        QTest::mouseClick(p_->Fenster().windowHandle(), Taste, {},
                          feld(Name)->mapTo(&p_->Fenster(), feld(Name)->rect().center()));
        QTest::qWait(5);
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Auffrischungstest> angemeldet;
}

}  // namespace varnok

#include "auffrischung_test.moc"
