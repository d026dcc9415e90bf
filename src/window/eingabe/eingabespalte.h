#pragma once

#include <QScrollArea>

namespace varnok {

// The column of the inputs: as wide as its frames need in the present font, with room for the bar that appears
// when the window is low; what gets the focus comes into sight. On a screen that is too small for that there is a bar below.
class Eingabespalte : public QScrollArea {
    Q_OBJECT
public:
    Eingabespalte(QWidget* Inhalt, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    void hole_in_Sicht(QWidget* Teil);
};

}  // namespace varnok
