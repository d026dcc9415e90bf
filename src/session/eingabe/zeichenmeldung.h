#pragma once

#include <string>

#include "session/kern/schauplatz.h"

namespace varnok {

// What the fields of text tell: a character was left out.
class Zeichenmeldung {
public:
    explicit Zeichenmeldung(Schauplatz& z) : z_(z) {}

    void sage(const std::string& Hinweis) { z_.Statuszeile.sage(Hinweis); }

private:
    Schauplatz& z_;
};

}  // namespace varnok
