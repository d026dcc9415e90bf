#pragma once

#include <QFocusFrame>
#include <QPointer>
#include <memory>

class QStyle;

namespace varnok {

// A ring around the control that has the focus, in the window and its dialogs: what the style draws is hardly seen on frames of
// another colour, and not at all on a table.
class Fokusring : public QObject {
    Q_OBJECT
public:
    explicit Fokusring(QObject* parent);
    ~Fokusring() override;

private:
    void folge(QWidget* neues);

    std::unique_ptr<QStyle> Stil_;
    QPointer<QFocusFrame> Ring_;  // goes with the window that it stands in
};

}  // namespace varnok
