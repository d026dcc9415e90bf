#pragma once

#include <string>
#include <utility>

#include "base/zahlen.h"

namespace varnok {

// A number that a person typed or a record keeps as text: the text as it stands, and the number that it means. Whoever
// calculates takes the number, whoever shows or saves takes the text; neither is ever made from the other a second time.
class Zahlwert {
public:
    Zahlwert() = default;  // no text, 0
    Zahlwert(std::string Text) : Text_(std::move(Text)), Zahl_(Wert(Text_)) {}
    Zahlwert(const char* Text) : Zahlwert(std::string(Text)) {}

    // A number as a record gives it back: in general form, and what that form means.
    static Zahlwert in_allgemeiner_Form(double Zahl, char Dezimalzeichen) { return allgemeine_Zahl(Zahl, Dezimalzeichen); }

    const std::string& Text() const { return Text_; }
    double Zahl() const { return Zahl_; }
    bool leer() const { return Text_.empty(); }

    friend bool operator==(const Zahlwert& a, const Zahlwert& b) { return a.Text_ == b.Text_; }

private:
    std::string Text_;
    double Zahl_ = 0;
};

}  // namespace varnok
