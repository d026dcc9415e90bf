#pragma once

#include <optional>
#include <string>

#include "session/saetze/satzverwaltung.h"

namespace varnok {

// The box over a selector of the main form in which its record gets another name. Every command takes what stands in it first,
// so it is never open over another record than the one it was opened for.
class Satzumbenennung {
public:
    Satzumbenennung(Eingabestand& z, Satzverwaltung& Saetze) : z_(z), Saetze_(Saetze) {}

    bool offen() const { return Art_.has_value(); }
    bool offen_ueber(Satzart Art) const { return Art_ == Art; }
    // The name it opened with.
    const std::string& Vorschlag() const { return Vorschlag_; }

    void beginne(Satzart Art);
    // The text in the box, as far as it is typed.
    void aendere(const std::string& Name) { Entwurf_ = Name; }
    // Enter, or leaving the box: the file gets the name. A refused name can be corrected after Enter; left, it is given up.
    bool bestaetige(bool Enter);
    // Esc.
    void nimm_zurueck() { Art_.reset(); }

private:
    Eingabestand& z_;
    Satzverwaltung& Saetze_;
    std::optional<Satzart> Art_;
    std::string Vorschlag_;
    std::string Entwurf_;
};

}  // namespace varnok
