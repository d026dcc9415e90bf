#pragma once

#include <QObject>
#include <functional>

class QDropEvent;
class QWidget;

namespace varnok {

// Files and folders that are dropped anywhere on a window, on fields too, which would take them for text.
class Dateiablage : public QObject {
    Q_OBJECT
public:
    // `frei`: whether the window can open something now.
    Dateiablage(QWidget& Fenster, std::function<bool()> frei);

Q_SIGNALS:
    void abgelegt(const QString& Pfad);

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    bool nimm(QDropEvent& e, bool losgelassen);

    QWidget& Fenster_;
    std::function<bool()> frei_;
};

}  // namespace varnok
