#pragma once

// The commands of a walk: how they are called, and the files of `input` that each of them may change.

#include <algorithm>
#include <map>
#include <optional>
#include <source_location>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "session/kern/ablaeufe.h"

namespace varnok::gang {

template <auto Befehl>
std::string_view Funktionstext() {
    return std::source_location::current().function_name();
}

// "Feldeingabe::betrete"
template <auto Befehl>
const std::string& Befehlsname() {
    static const std::string Name = [] {
        const std::string_view Text = Funktionstext<Befehl>();
        constexpr std::string_view davor = "Befehl = &varnok::";
        const std::size_t von = Text.find(davor) + davor.size();
        return std::string(Text.substr(von, Text.find_first_of(";]", von) - von));
    }();
    return Name;
}

// The names of all commands that there are.
template <auto... Befehle>
std::vector<std::string> Befehlsnamen(const Befehlsliste<Zeile<Befehle>...>&) {
    return {Befehlsname<Befehle>()...};
}

template <auto Befehl, auto... andere>
constexpr bool ist_einer_von = (std::is_same_v<Zeile<Befehl>, Zeile<andere>> || ...);

// The record of a kind that a command may write or remove: the one selected before it, after it, or both.
struct Namensrecht {
    bool vorher = false;
    bool nachher = false;
};
template <auto Befehl>
constexpr Namensrecht Recht_am_Satz() {
    using S = Satzverwaltung;
    using O = Organiser;
    if (ist_einer_von<Befehl, &S::lege_an, &S::kopiere, &O::kopiere>) return {false, true};
    if (ist_einer_von<Befehl, &S::loesche, &O::loesche>) return {true, false};
    if (ist_einer_von<Befehl, &O::benenne_um>) return {true, true};
    return {};
}

// Whether a command has done what it is there for.
template <class Wert>
bool getan(const Wert& w) {
    if constexpr (std::is_same_v<Wert, bool>) {
        return w;
    } else if constexpr (std::is_same_v<Wert, std::optional<std::string>>) {
        return w.has_value();
    } else {
        return true;
    }
}

// What each command has been done how often, and what a walk may leave out.
using Zaehler = std::map<std::string, int>;
struct Ausnahme {
    std::string Was;
    std::string Grund;
};
// All of `Namen` that were not counted that often and are no exception; an exception that is none any more.
std::vector<std::string> Fehlendes(const std::vector<std::string>& Namen, const Zaehler& Gezaehltes,
                                   const std::vector<Ausnahme>& Ausnahmen, int mindestens);

}  // namespace varnok::gang
