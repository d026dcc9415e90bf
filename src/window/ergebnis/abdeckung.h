#pragma once

#include <QWidget>

namespace varnok {

// Fades the results while they must not be seen, with a word of why.
class Abdeckung : public QWidget {
    Q_OBJECT
public:
    explicit Abdeckung(QWidget* parent);
    void zeige(bool sichtbar, const QString& Wort);

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    QString Wort_;
};

}  // namespace varnok
