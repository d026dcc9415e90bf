#pragma once

#include <QDialog>

namespace varnok {

class Hilfeseite;

// The help, beside the window: it stays open while work goes on. Esc closes it.
class Hilfefenster : public QDialog {
    Q_OBJECT
public:
    explicit Hilfefenster(QWidget* parent);

    // Shows a text in Markdown from its beginning, in front.
    void zeige(const QString& Text);

private:
    Hilfeseite* Seite_;
};

}  // namespace varnok
