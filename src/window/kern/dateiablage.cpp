#include "window/kern/dateiablage.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <utility>

namespace varnok {
namespace {

QString Datei_in(const QMimeData& Daten) {
    const QList<QUrl> Orte = Daten.urls();
    return Orte.size() == 1 && Orte.front().isLocalFile() ? Orte.front().toLocalFile() : QString();
}

}  // namespace

Dateiablage::Dateiablage(QWidget& Fenster, std::function<bool()> frei)
    : QObject(&Fenster), Fenster_(Fenster), frei_(std::move(frei)) {
    Fenster.setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool Dateiablage::nimm(QDropEvent& e, bool losgelassen) {
    const QString Pfad = Datei_in(*e.mimeData());
    if (Pfad.isEmpty()) return false;
    e.setDropAction(Qt::CopyAction);
    e.accept();
    // The source of the drag waits for the end of this event; what is opened may ask.
    if (losgelassen) {
        QTimer::singleShot(0, this, [this, Pfad] {
            if (frei_()) Q_EMIT abgelegt(Pfad);
        });
    }
    return true;
}

bool Dateiablage::eventFilter(QObject* Objekt, QEvent* e) {
    const bool losgelassen = e->type() == QEvent::Drop;
    if (!losgelassen && e->type() != QEvent::DragEnter && e->type() != QEvent::DragMove) return QObject::eventFilter(Objekt, e);
    const auto* w = qobject_cast<QWidget*>(Objekt);
    if (!w || w->window() != &Fenster_) return QObject::eventFilter(Objekt, e);
    if (!frei_()) {  // no field takes it for text either
        e->ignore();
        return true;
    }
    return nimm(*static_cast<QDropEvent*>(e), losgelassen) || QObject::eventFilter(Objekt, e);
}

}  // namespace varnok
