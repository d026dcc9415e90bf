#pragma once

#include <string>

#include "base/schnittstellen.h"

namespace varnok {

// The line at the foot of the window. What a command has to say stands there until the next change of an input or a result; the
// next command on files takes it away, too.
class Meldezeile {
public:
    const std::string& Text() const { return Text_; }
    // hh:mm of the action that said it.
    const std::string& Zeit() const { return Zeit_; }

    // In place of what stands there, behind it, before it.
    void sage(std::string Text);
    void sage_dazu(const std::string& Text);
    void stelle_voran(const std::string& Text);
    void leere() { Text_.clear(); }
    std::string nimm();

    // What was said up to the end of the last action.
    const std::string& gesagt() const { return gesagt_; }
    // What was said since then belongs to the action that is to come.
    void zaehle_zur_naechsten(std::string gesagt);
    // An action is over. Without a word of its own, it takes the line away where it has changed an input or a result.
    void schliesse_ab(bool geaendert, const Uhr& Zeit);

private:
    std::string Text_;
    std::string Zeit_;
    std::string gesagt_;
};

}  // namespace varnok
