#pragma once

// Climate files: a header line, then one line for each day of the year in fixed columns.

#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "records/projektordner.h"
#include "run/klima.h"

namespace varnok {

// The day lines of a climate file: rain in columns 8 to 17, potential evapotranspiration in 18 to 27,
// temperature in 38 to 47. What is missing or no number is 0. Lines that no run can reach are left out.
// Throws Laufzeitfehler that names file and line for a value that is not finite or a file without a day. Adds remarks about
// another number of days than 365, about cells that are no number and about weather that there is not: the first few of a kind
// with their lines, then how many more there are.
std::vector<Klimatag> zerlege_Klimadatei(const std::string& Bytes, const std::string& Datei,
                                         std::vector<Bemerkung>* Bemerkungen = nullptr);

// The climate files of a project.
class Projektklima : public Klimaquelle {
public:
    explicit Projektklima(const Projektordner& Ordner) : Ordner_(&Ordner) {}
    std::optional<std::vector<Klimatag>> lade(const std::string& Name) const override { return lade(Name, nullptr); }
    std::optional<std::vector<Klimatag>> lade(const std::string& Name, std::vector<Bemerkung>* Bemerkungen) const;

private:
    const Projektordner* Ordner_;
};

// The same for many runs one after the other: the climate asked for last is kept. Each thread needs one of its own.
class Klimagedaechtnis : public Klimaquelle {
public:
    explicit Klimagedaechtnis(const Projektordner& Ordner) : Dateien_(Ordner) {}
    std::optional<std::vector<Klimatag>> lade(const std::string& Name) const override;
    // About the file loaded last.
    const std::vector<Bemerkung>& Bemerkungen() const { return Bemerkungen_; }

private:
    Projektklima Dateien_;
    mutable std::optional<std::string> Name_;  // nothing: no climate kept
    mutable std::optional<std::vector<Klimatag>> Tage_;
    mutable std::vector<Bemerkung> Bemerkungen_;
};

}  // namespace varnok
