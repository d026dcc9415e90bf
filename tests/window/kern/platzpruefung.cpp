#include "window/kern/platzpruefung.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

#include "window/eingabe/zahlenfeld.h"
#include "window/kern/bausteine.h"
#include "window/saetze/satzauswahl.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

QString zu_klein(const QString& was, int hat, int braucht) {
    return hat >= braucht ? QString() : u"%1 %2 of %3 px "_s.arg(was).arg(hat).arg(braucht);
}

QString kleiner_als(const QWidget& w, const QSize& noetig) {
    return zu_klein(u"width"_s, w.width(), noetig.width()) + zu_klein(u"height"_s, w.height(), noetig.height());
}

QString Mangel_eines_Schilds(const QLabel& l) {
    const QSize Platz = l.contentsRect().size();
    if (l.wordWrap()) {
        const QRect Bedarf = l.fontMetrics().boundingRect(QRect(0, 0, Platz.width(), 10000), Qt::TextWordWrap, l.text());
        return zu_klein(u"width"_s, Platz.width(), Bedarf.width()) + zu_klein(u"height"_s, Platz.height(), Bedarf.height());
    }
    return zu_klein(u"width"_s, Platz.width(), l.fontMetrics().horizontalAdvance(l.text().trimmed())) +
           zu_klein(u"height"_s, Platz.height(), l.fontMetrics().height());
}

// Every entry, not just the present one.
QString Mangel_einer_Liste(const QComboBox& Liste) {
    QStyleOptionComboBox Art;
    Art.initFrom(&Liste);
    Art.editable = Liste.isEditable();
    Art.frame = Liste.hasFrame();
    const QRect Platz = Liste.style()->subControlRect(QStyle::CC_ComboBox, &Art, QStyle::SC_ComboBoxEditField, &Liste);
    int Bedarf = 0;
    const bool fremde_Namen = qobject_cast<const Satzauswahl*>(&Liste) || Liste.objectName() == u"Studie"_s;
    for (int i = 0; i < Liste.count() && !fremde_Namen; ++i)
        Bedarf = std::max(Bedarf, Liste.fontMetrics().horizontalAdvance(Liste.itemText(i)) + 2);
    return zu_klein(u"entries"_s, Platz.width(), Bedarf) + zu_klein(u"height"_s, Platz.height(), Liste.fontMetrics().height());
}

QString Mangel_einer_Tafel(const QTableWidget& t) {
    QString Text;
    for (int j = 0; j < t.columnCount(); ++j) {
        if (t.horizontalHeader()->isVisible())
            Text += zu_klein(u"head "_s + t.horizontalHeaderItem(j)->text(), t.columnWidth(j),
                             t.fontMetrics().horizontalAdvance(t.horizontalHeaderItem(j)->text()) + 4);
        for (int i = 0; i < t.rowCount(); ++i) {
            if (t.item(i, j) && t.horizontalHeader()->isVisible())
                Text += zu_klein(u"cell"_s, t.columnWidth(j), t.fontMetrics().horizontalAdvance(t.item(i, j)->text()) + 4);
        }
    }
    return Text;
}

// Seen as a whole through all that lies above it, or to be scrolled to.
bool erreichbar(const QWidget& w, const QWidget& Bereich) {
    QRect Ort = w.rect();
    for (const QWidget* k = &w; k != &Bereich; k = k->parentWidget()) {
        Ort.translate(k->pos());
        const QWidget* Traeger = k->parentWidget();
        const auto* Rolle = Traeger->parentWidget() ? qobject_cast<const QAbstractScrollArea*>(Traeger->parentWidget()) : nullptr;
        if (Rolle && Rolle->viewport() == Traeger) {
            const bool breit = Ort.left() < 0 || Ort.right() >= Traeger->width();
            const bool hoch = Ort.top() < 0 || Ort.bottom() >= Traeger->height();
            return (!breit || Rolle->horizontalScrollBar()->isVisible()) && (!hoch || Rolle->verticalScrollBar()->isVisible());
        }
        if (!Traeger->rect().contains(Ort)) return false;
    }
    return true;
}

// Parts of a control that belong to it alone.
bool gehoert_zu_anderem(const QWidget& w) {
    const QWidget* Traeger = w.parentWidget();
    return qobject_cast<const QComboBox*>(Traeger) || qobject_cast<const QLineEdit*>(Traeger) ||
           qobject_cast<const QHeaderView*>(Traeger) || qobject_cast<const QTabBar*>(Traeger) || w.inherits("QFocusFrame");
}

}  // namespace

QString Mangel(const QWidget& w) {
    if (qobject_cast<const Kurztext*>(&w)) return kleiner_als(w, {Ziffern(w, 4), w.fontMetrics().height()});
    if (const auto* l = qobject_cast<const QLabel*>(&w)) return Mangel_eines_Schilds(*l);
    if (const auto* l = qobject_cast<const QComboBox*>(&w)) return Mangel_einer_Liste(*l);
    if (const auto* t = qobject_cast<const QTableWidget*>(&w)) return Mangel_einer_Tafel(*t);
    if (qobject_cast<const QPushButton*>(&w) || qobject_cast<const QRadioButton*>(&w) || qobject_cast<const Zahlenfeld*>(&w))
        return kleiner_als(w, w.sizeHint());
    if (qobject_cast<const QLineEdit*>(&w)) return kleiner_als(w, {Ziffern(w, 12), w.fontMetrics().height() + 4});
    return {};
}

QString Maengel(const QWidget& Bereich) {
    QString Liste;
    for (const QWidget* w : Bereich.findChildren<QWidget*>()) {
        if (!w->isVisibleTo(&Bereich) || gehoert_zu_anderem(*w)) continue;
        const QString m = Mangel(*w) + (w->size().isEmpty() || erreichbar(*w, Bereich) ? QString() : u"sticks out"_s);
        if (m.isEmpty()) continue;
        const auto* l = qobject_cast<const QLabel*>(w);
        Liste +=
            w->objectName() + u' ' + (l ? l->text() : QString::fromLatin1(w->metaObject()->className())) + u": "_s + m + u'\n';
    }
    return Liste;
}

}  // namespace varnok
