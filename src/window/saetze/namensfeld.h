#pragma once

#include "window/kern/bausteine.h"

namespace varnok {

// The name of a compound. Enter and leaving tell that it is complete.
class Namensfeld : public Textfeld {
    Q_OBJECT
public:
    Namensfeld(const QString& Name, QWidget* parent);

Q_SIGNALS:
    void fertig();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
};

}  // namespace varnok
