#pragma once

#include <optional>
#include <string>
#include <vector>

namespace varnok {

// One day of a climate file.
struct Klimatag {
    double Tagesniederschlag = 0;  // mm
    double Tagesverdunstung = 0;   // mm
    double Tagestemperatur = 0;    // degrees C
};

// Where the weather comes from: a climate file of the project, or a list in a test.
class Klimaquelle {
public:
    virtual ~Klimaquelle() = default;
    // The day lines of the climate of that name in their order; nothing if it cannot be opened.
    // Throws Laufzeitfehler for a file that can be opened and not be used.
    virtual std::optional<std::vector<Klimatag>> lade(const std::string& Name) const = 0;
};

// Temperature and soil moisture of every day of a run, the same for each compound of it.
class Wetter {
public:
    // Constant temperature, moisture at field capacity.
    Wetter() = default;
    // The days of a climate file from the date of the first application on; after its last day the
    // file starts over. Throws Laufzeitfehler if there is no day.
    Wetter(std::vector<Klimatag> Tage, int App_Monat, int App_Tag);

    bool variabel() const { return !Tage_.empty(); }
    // Days after which the same lines return.
    int Laenge() const { return static_cast<int>(Tage_.size()); }
    // Weather of day 1 to 3649; only for variable climate.
    const Klimatag& Tag(int d) const { return Tage_[(Start_ + static_cast<std::size_t>(d) - 1) % Tage_.size()]; }

private:
    std::vector<Klimatag> Tage_;
    std::size_t Start_ = 0;
};

}  // namespace varnok
