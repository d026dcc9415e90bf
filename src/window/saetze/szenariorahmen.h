#pragma once

#include "window/kern/rahmen.h"

namespace varnok {

class Satzzeile;
class Schaltflaeche;
class Textfeld;

// The scenario record: which soil, which climate. Its values are changed in a dialog of their own.
class Szenariorahmen : public Rahmen {
    Q_OBJECT
public:
    Szenariorahmen(Sitzung& Programm, QWidget* parent);
    void zeige() override;

protected:
    // A click on the surface or on a label opens the editor, like the button.
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    bool eventFilter(QObject* Quelle, QEvent* e) override;

private:
    void oeffne_Editor();
    bool ist_Flaeche(const QMouseEvent* e) const;

    Satzzeile* Satz_;
    Schaltflaeche* Edit_;
    Textfeld* Bodenszenario_;
    Textfeld* Klimaszenario_;
    bool gedrueckt_ = false;  // the left button, on the surface
};

}  // namespace varnok
