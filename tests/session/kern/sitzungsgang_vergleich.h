#pragma once

// How a walk compares what the session shows with what it ought to show.

#include <memory>
#include <string>
#include <vector>

#include "diagrams/diagramm.h"
#include "exposure/ergebnis.h"
#include "session/ergebnis/ergebnisstand.h"

namespace varnok::gang {

bool gleiche_Werte(const Ergebnis& a, const Ergebnis& b);
// What tells two pictures apart, empty for equal ones.
std::string Unterschied_der(const Diagramm& a, const Diagramm& b);

// A text as typed stays in the record until it is read again: 0,5 becomes 0.5, and an empty cell is 0. Names differ where their
// letters do.
bool gleiche_Zahlen(const std::string& a, const std::string& b);
// The first words that two texts of a record do not share.
std::string Unterschied(const std::string& a, const std::string& b);

std::string Satzdatei(const std::string& Name, std::size_t Art);

// Results calculated anew, each input once.
class Gegenrechnung {
public:
    std::shared_ptr<const Ergebnis> rechne(const Eingabe& e, int i_studie, const Klimabytes& Klima);

private:
    struct Platz {
        Eingabe Vorgabe;
        int i_studie = 0;
        std::string Klima;
        std::shared_ptr<const Ergebnis> Werte;
    };
    std::vector<Platz> Plaetze_;
    std::size_t naechster_ = 0;
};

}  // namespace varnok::gang
