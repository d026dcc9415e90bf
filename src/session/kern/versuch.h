#pragma once

#include <exception>
#include <string>

#include "session/kern/schauplatz.h"

namespace varnok {

// The user does not want a command done that drops what cannot be kept. Ends the command without a further message.
class Befehl_aufgegeben : public std::exception {
public:
    const char* what() const noexcept override { return "The command was given up."; }
};

// Does it; the text of a fault, empty without one. That the user gave it up passes on.
template <class Handlung>
std::string Fehler_bei(Handlung h) {
    try {
        h();
        return {};
    } catch (const Befehl_aufgegeben&) {
        throw;
    } catch (const std::exception& Fehler) {
        return Fehler.what();
    }
}

// Does it. A fault is told, and the caller goes on; false then, or where the user gave it up, who has just said so.
template <class Handlung>
bool versuche(Schauplatz& s, Handlung h) {
    try {
        const std::string Fehler = Fehler_bei(h);
        if (!Fehler.empty()) melde_Fehler(s, Fehler);
        return Fehler.empty();
    } catch (const Befehl_aufgegeben&) {
        return false;
    }
}

}  // namespace varnok
