#pragma once

#include "window/kern/ziffernfeld.h"

namespace varnok {

// An entry field for a number, made from a row of the table of fields. It tells what the user does in it and
// decides nothing; what is accepted is the session's matter.
class Zahlenfeld : public Ziffernfeld {
    Q_OBJECT
public:
    // `Feld`: place in the table of fields.
    Zahlenfeld(int Feld, QWidget* parent);

    // Width of all numeric fields in the font of a widget.
    static int Breite(const QWidget& w) { return Ziffern(w, 8) + 14; }
    int Feld() const { return Feld_; }
    // The caption that the table of fields gives it.
    QString Beschriftung() const;
    // Text, and the colour of a field in work or at rest.
    void zeige(const QString& Text, bool in_Arbeit);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void betreten();
    // The focus went to another control of the window; not told for popups and other windows.
    void verlassen();
    void bestaetigt();
    void zurueckgenommen();

protected:
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    int Feld_;
};

}  // namespace varnok
