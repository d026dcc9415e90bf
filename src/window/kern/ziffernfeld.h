#pragma once

#include "window/kern/bausteine.h"

namespace varnok {

// A line for a number, on the main screen, in dialogs and in lists: a double click selects it as a whole, whatever signs are in
// it.
class Ziffernfeld : public Textfeld {
    Q_OBJECT
public:
    using Textfeld::Textfeld;

protected:
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    bool doppelt_geklickt_ = false;  // the button is still held
};

}  // namespace varnok
