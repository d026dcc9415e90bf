#pragma once

#include "window/kern/bausteine.h"

namespace varnok {

// The line of description: locked until a press of the right button (or F2) unlocks it; Enter or leaving locks
// it again, Esc brings the old text back.
class Beschreibungsfeld : public Textfeld {
    Q_OBJECT
public:
    explicit Beschreibungsfeld(QWidget* parent);
    void zeige(const QString& Text, bool offen, bool farbig);

Q_SIGNALS:
    void aufgeschlossen();
    void abgeschlossen();
    void zurueckgenommen();
    void doppelt_geklickt();  // while it is locked

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
};

}  // namespace varnok
