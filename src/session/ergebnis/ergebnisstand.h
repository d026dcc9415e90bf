#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exposure/ergebnis.h"

namespace varnok {

// The climate file of the present input as it lies on the disk; null in constant climate and where there is none.
using Klimabytes = std::shared_ptr<const std::string>;

// Why a run gave no results.
struct Laufgrund {
    std::string Wort;       // for the cover
    bool gesperrt = false;  // there is nothing to run until the user enters something else: dates, climate file
};

// The results of the studies with the input that they come from. Whether they are valid is never noted: it is asked of the input.
class Ergebnisstand {
public:
    const Ergebnisse& Werte() const { return Werte_; }
    bool vorhanden(int i_studie) const { return Werte_.at(static_cast<std::size_t>(i_studie)) != nullptr; }

    // Whether the results of a study are those of this input: it equals theirs in all that the run reads.
    bool gueltig(int i_studie, const Eingabe& e, const Klimabytes& Klima) const;

    void uebernimm(int i_studie, std::shared_ptr<const Ergebnis> Werte, Klimabytes Klima);

    // A run of studies that are shown was refused or failed, and what ends that: a run that succeeds, or an input that has
    // results.
    void melde_Grund(Laufgrund Grund) { Grund_ = std::move(Grund); }
    void vergiss_Grund() { Grund_.reset(); }
    const std::optional<Laufgrund>& Grund() const { return Grund_; }

private:
    Ergebnisse Werte_;
    std::array<Klimabytes, max_Studien> Klima_;
    std::optional<Laufgrund> Grund_;
};

}  // namespace varnok
