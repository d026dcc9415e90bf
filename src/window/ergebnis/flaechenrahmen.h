#pragma once

#include <QFrame>
#include <optional>

#include "diagrams/diagrammsaetze.h"

class QMouseEvent;

namespace varnok {

// A frame that stands on a diagram: it can be dragged about with its children, hidden, and called home. Its place is kept
// as fraction of the surface, so that redraws and other sizes of the window leave it where it is on the picture.
class Flaechenrahmen : public QFrame {
    Q_OBJECT
public:
    Flaechenrahmen(const QString& Name, Flaechenort Heimat, QWidget* Flaeche);

    // Stands there, wholly on the surface.
    void stelle(const QPoint& Ecke);
    Flaechenort Heimat() const { return Heimat_; }
    // Forgets where it was dragged to.
    void kehre_heim();
    // Where it was dragged to: upper left corner, in fractions of the surface. None: it is at home.
    const std::optional<Flaechenort>& gezogen() const { return gezogen_; }

    // Hidden by the user; whether it is seen depends on `erlaube` too.
    void verbirg(bool verborgen);
    bool verborgen() const { return verborgen_; }
    void erlaube(bool erlaubt);

Q_SIGNALS:
    void betreten();
    // It was dragged, or called home.
    void umgestellt();

protected:
    // Mouse events of the child work as if they were the frame's own.
    void reiche_weiter(QWidget* Kind);
    // Shows that the frame is held, or no more.
    virtual void zeige_Griff(bool gehalten) = 0;
    // A child was pressed and released at a place of its own, without a move.
    virtual void klicke(const QMouseEvent&) {}

    bool eventFilter(QObject* Kind, QEvent* e) override;
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    bool behandle(QWidget* Quelle, QEvent* e);
    void druecke(QMouseEvent* e);
    void ziehe(const QMouseEvent* e);
    void lasse_los(const QWidget* Quelle, const QMouseEvent* e);

    Flaechenort Heimat_;
    std::optional<Flaechenort> gezogen_;  // none: at home
    std::optional<QPoint> Griff_;         // the grabbed point, while a button is down
    QPoint Druckstelle_;                  // on the screen
    bool bewegt_ = false;
    bool verborgen_ = false;
    bool erlaubt_ = true;
};

}  // namespace varnok
