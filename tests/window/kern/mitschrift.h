#pragma once

#include <QStringList>
#include <deque>
#include <utility>

#include "base/schnittstellen.h"
#include "painting/qt_text.h"

namespace varnok {

// Stands in for the user at the message boxes: writes down what is asked, and answers from a list written beforehand, then
// with each question's first button.
class Mitschrift : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        Fragen_ << in_Qt(f.Titel + ": " + f.Text);
        if (Antworten_.empty()) return f.Knoepfe.front();
        const Knopf k = Antworten_.front();
        Antworten_.pop_front();
        return k;
    }
    Mitschrift& antworte(Knopf k) {
        Antworten_.push_back(k);
        return *this;
    }
    // What was asked since the last call, each as title, a colon and text.
    QStringList nimm() { return std::exchange(Fragen_, {}); }
    void vergiss() {
        Fragen_.clear();
        Antworten_.clear();
    }

private:
    QStringList Fragen_;
    std::deque<Knopf> Antworten_;
};

}  // namespace varnok
