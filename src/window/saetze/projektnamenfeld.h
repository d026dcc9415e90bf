#pragma once

#include "window/kern/bausteine.h"

namespace varnok {

// The description of the simulation in the organiser: yellow while it is typed in. Enter and Esc leave it, Esc with the text
// that it had before.
class Projektnamenfeld : public Textfeld {
    Q_OBJECT
public:
    explicit Projektnamenfeld(QWidget* parent);

Q_SIGNALS:
    void verlassen();
    void zurueckgenommen(const QString& alter_Text);

protected:
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    QString alter_Text_;
};

}  // namespace varnok
