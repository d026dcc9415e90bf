#pragma once

#include "window/kern/bausteine.h"

namespace varnok {

// The box for a new name, laid over the list whose entry it names. Enter and leaving it tell that the name is complete, Esc
// gives it up and hides the box.
class Umbenennfeld : public Textfeld {
    Q_OBJECT
public:
    Umbenennfeld(const QString& Name, QWidget& Liste);

    // Shows a name to be overtyped, and takes the focus.
    void oeffne(const QString& Text);
    // The focus goes back to the list where the box had it.
    void schliesse();
    // Open or closed, as the session says.
    void zeige(bool offen, const QString& Vorschlag);

Q_SIGNALS:
    // `Enter`: the box was not left, and may stay open for a correction.
    void bestaetigt(bool Enter);
    void zurueckgenommen();

protected:
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    bool eventFilter(QObject* Quelle, QEvent* e) override;

private:
    QWidget& Liste_;
};

}  // namespace varnok
