#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace varnok {

// Files and folders that are dropped anywhere on a window, on fields too, which would take them for text.
class Dateiablage : public QObject {
    Q_OBJECT
public:
    explicit Dateiablage(QWidget& Fenster);

Q_SIGNALS:
    void abgelegt(const QString& Pfad);

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    bool nimm(QDropEvent& e, bool losgelassen);

    QWidget& Fenster_;
};

}  // namespace varnok
