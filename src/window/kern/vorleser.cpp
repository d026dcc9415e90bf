#include "window/kern/vorleser.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>

#include "window/kern/bausteine.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Its children are the open list and, where it is typed into, the line.
class Listenvorleser : public QAccessibleWidget {
public:
    explicit Listenvorleser(QWidget* Liste) : QAccessibleWidget(Liste, QAccessible::ComboBox) {}

    QString text(QAccessible::Text Art) const override {
        const QString Eintrag = Liste().currentText();
        if (Art == QAccessible::Value) return Eintrag;
        if (Art != QAccessible::Name) return QAccessibleWidget::text(Art);
        return ohne_Doppelpunkt(Liste().accessibleName()) + u": "_s + Eintrag;
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.hasPopup = s.expandable = true;
        s.expanded = Liste().view()->isVisible();
        s.editable = Liste().isEditable();
        return s;
    }
    int childCount() const override { return Liste().isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int i) const override {
        return QAccessible::queryAccessibleInterface(i == 0 ? static_cast<QObject*>(Liste().view()) : Liste().lineEdit());
    }
    int indexOfChild(const QAccessibleInterface* Kind) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (Kind && Kind->object() == child(i)->object()) return i;
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return Liste().isEditable() && child(1)->rect().contains(x, y) ? child(1) : nullptr;
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& Name) override {
        if (Name == showMenuAction() || Name == pressAction())
            Liste().view()->isVisible() ? Liste().hidePopup() : Liste().showPopup();
    }

private:
    QComboBox& Liste() const { return *static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* Vorleser_fuer(const QString& Klasse, QObject* Ding) {
    auto* Liste = Klasse == u"varnok::Auswahlliste"_s ? qobject_cast<Auswahlliste*>(Ding) : nullptr;
    return Liste ? new Listenvorleser(Liste) : nullptr;
}

}  // namespace

void lies_Listen_vor() {
    static const bool eingerichtet = [] {
        QAccessible::installFactory(Vorleser_fuer);
        return true;
    }();
    Q_UNUSED(eingerichtet);
}

}  // namespace varnok
