#pragma once

#include <QWidget>

namespace varnok {

class Schaltflaeche;

// The start page: what the program is, a drawing, and the way in.
class Intro : public QWidget {
    Q_OBJECT
public:
    explicit Intro(QWidget* parent);
    void gib_Fokus();

Q_SIGNALS:
    void gestartet();

protected:
    void paintEvent(QPaintEvent* e) override;
    // Enter presses the only button.
    void keyPressEvent(QKeyEvent* e) override;

private:
    Schaltflaeche* Starten_;
};

}  // namespace varnok
