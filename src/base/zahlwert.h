#pragma once

#include <string>
#include <utility>

#include "base/zahlen.h"

namespace varnok {

// A number that a person typed or a record keeps as text: the text as it stands, the number that it means, and how much of the
// text that number is. Whoever calculates takes the number, whoever shows or saves takes the text; neither is ever made from the
// other a second time.
class Zahlwert {
public:
    Zahlwert() = default;  // no text, 0
    Zahlwert(std::string Text) : Text_(std::move(Text)) {
        const Zahllesung l = lies_Zahl(Text_);
        Zahl_ = l.Zahl;
        ganz_ = l.ganz();
        eindeutig_ = !l.mehrere_Trennzeichen;
        ohne_Zahl_ = l.ohne_Zahl;
    }
    Zahlwert(const char* Text) : Zahlwert(std::string(Text)) {}

    // A number as a record gives it back: in general form, and what that form means.
    static Zahlwert in_allgemeiner_Form(double Zahl, char Dezimalzeichen) { return allgemeine_Zahl(Zahl, Dezimalzeichen); }

    const std::string& Text() const { return Text_; }
    double Zahl() const { return Zahl_; }
    bool leer() const { return Text_.empty(); }
    // One number from end to end.
    bool ganz() const { return ganz_; }
    // False where two or more separators stand: read as told it would be a thousandth of what was meant.
    bool eindeutig() const { return eindeutig_; }
    // No digit was found.
    bool ohne_Zahl() const { return ohne_Zahl_; }

    friend bool operator==(const Zahlwert& a, const Zahlwert& b) { return a.Text_ == b.Text_; }

private:
    std::string Text_;
    double Zahl_ = 0;
    bool ganz_ = false;
    bool eindeutig_ = true;
    bool ohne_Zahl_ = true;
};

}  // namespace varnok
