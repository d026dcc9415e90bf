#pragma once

#include <string>

#include "session/kern/zustand.h"

namespace varnok {

// What the fields of text tell: a character was left out.
class Zeichenmeldung {
public:
    explicit Zeichenmeldung(Zustand& z) : z_(z) {}

    void sage(const std::string& Hinweis) { z_.Statuszeile = Hinweis; }

private:
    Zustand& z_;
};

}  // namespace varnok
