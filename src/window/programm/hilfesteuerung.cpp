#include "window/programm/hilfesteuerung.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QWidget>
#include <QtGui/QAccessible>

#include "painting/qt_text.h"
#include "session/programm/handhabung.h"
#include "window/programm/hilfefenster.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

QString Handhabung_von(const QWidget& w) { return in_Qt(Handhabung(aus_Qt(w.objectName()))); }

// A control is known by its own name and by those of what it stands in.
std::vector<std::string> Objektnamen(const QWidget* w) {
    std::vector<std::string> Namen;
    for (; w; w = w->parentWidget()) {
        if (!w->objectName().isEmpty() && !w->objectName().startsWith("qt_"_L1)) Namen.push_back(aus_Qt(w->objectName()));
        if (w->isWindow()) break;
    }
    return Namen;
}

QString Aufschrift(QWidget* w) {
    const QAccessibleInterface* Name = QAccessible::queryAccessibleInterface(w);
    const QString Text = Name ? Name->text(QAccessible::Name).trimmed() : QString();
    return Text.isEmpty() ? u"VARNOK"_s : Text;
}

}  // namespace

Hilfesteuerung::Hilfesteuerung(Sitzung& Programm, QMainWindow& Fenster)
    : QObject(&Fenster), Programm_(Programm), Fenster_(Fenster) {
    for (QWidget* w : Fenster.findChildren<QWidget*>()) {
        const QString Text = Handhabung_von(*w);
        if (!Text.isEmpty() && w->window() == &Fenster) w->setStatusTip(Text);
    }
    connect(Fenster.findChild<QAction*>(u"M_Feldhilfe"_s), &QAction::triggered, this, &Hilfesteuerung::zeige);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* neues) { folge_dem_Fokus(neues); });
    qApp->installEventFilter(this);
}

void Hilfesteuerung::folge_dem_Fokus(QWidget* w) {
    // Another window, or none: the control is still the one in focus of this one.
    if (w && w->window() == &Fenster_) Q_EMIT Handhabung_geaendert(w->statusTip());
}

// The shortcut of the window does not reach dialogs in front of it.
bool Hilfesteuerung::eventFilter(QObject* Objekt, QEvent* e) {
    if (e->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(e)->key() != Qt::Key_F1) return QObject::eventFilter(Objekt, e);
    const auto* w = qobject_cast<QWidget*>(Objekt);
    if (!w || w->window() == &Fenster_ || w->window() == Hilfe_ || !QApplication::activeModalWidget()) return false;
    zeige();
    return true;
}

void Hilfesteuerung::zeige() {
    QWidget* vorn = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : &Fenster_;
    QWidget* w = vorn->focusWidget() ? vorn->focusWidget() : vorn;
    const QString Text = in_Qt(Programm_.zeige<Hilfetexte>().Feldhilfe(Objektnamen(w), aus_Qt(Aufschrift(w))));
    if (Hilfe_ && Hilfe_->parentWidget() != vorn) delete Hilfe_;
    if (!Hilfe_) Hilfe_ = new Hilfefenster(vorn);
    Hilfe_->zeige(Text);
}

}  // namespace varnok
