#pragma once

#include <functional>

#include "base/schnittstellen.h"

class QWidget;

namespace varnok {

// Asks the user with a message box over the window.
class Fensterfrage : public Rueckfrage {
public:
    // `vorher` runs before each box: the window shows what has become of the results, so that no stale number
    // stands beside the message.
    void setze_Fenster(QWidget* Fenster, std::function<void()> vorher);

    // Esc and the close box give the harmless answer: "not now" to a question with Yes and No. A question that comes while
    // one is open is answered with it at once.
    Knopf frage(const Frage& f) override;

private:
    QWidget* Fenster_ = nullptr;
    std::function<void()> vorher_;
    bool offen_ = false;
};

}  // namespace varnok
