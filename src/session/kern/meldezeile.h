#pragma once

#include <string>

#include "base/schnittstellen.h"

namespace varnok {

// The line at the foot of the window. What an action has to say stands there until the next change of an input, a result or a
// file, or until another action says something. What its steps say is put together, whoever says it.
class Meldezeile {
public:
    void stelle_Uhr(const Uhr* Zeit) { Uhr_ = Zeit; }

    // What fields were taken for stands in front of what the command says that accepted them.
    std::string Text() const;
    // hh:mm of the step that said it.
    const std::string& Zeit() const { return Zeit_; }

    // In place of what the action in work has said so far, behind it, before it.
    void sage(std::string Text);
    void sage_dazu(const std::string& Text);
    void stelle_voran(const std::string& Text);
    // A field or a cell was not taken as it was typed.
    void sage_Zahl(const std::string& Text);
    // A file is another one: what was said before this action goes.
    void vergiss_Frueheres();
    // Takes back what the action in work has said.
    std::string nimm();

    // Names the action in work.
    int Handlung() const { return Beginn_; }
    // What was said since the beginning of that one belongs to the action that is to come.
    void zaehle_zur_naechsten(int Handlung) { Beginn_ = Handlung; }
    // An action is over. Without a word of its own, it takes the line away where it has changed an input or a result.
    void schliesse_ab(bool geaendert);

private:
    // A text, and the action that said it.
    struct Wort {
        std::string Text;
        int Handlung = 0;
    };

    bool neu(const Wort& w) const { return w.Handlung >= Beginn_; }
    void setze(Wort& w, std::string Text);

    const Uhr* Uhr_ = nullptr;
    Wort Zahlen_;
    Wort Befehl_;
    std::string Zeit_;
    int Beginn_ = 1;
    int laufende_ = 1;
};

}  // namespace varnok
