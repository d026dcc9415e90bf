#pragma once

// The axes of every calculation. A year has 365 days, a run has ten of them, and day 0 is the day of
// the first application whatever its date. There are no leap years.

namespace varnok {

inline constexpr int Tage_pro_Jahr = 365;
inline constexpr int Jahre = 10;
inline constexpr int letzter_Tag = Jahre * Tage_pro_Jahr - 1;
inline constexpr int Tagesplaetze = 3752;  // 3650 days of the run and 102 spare ones that stay 0

inline constexpr int Endpunkte = 2;  // places by `Endpunktart`
inline constexpr int Stoffe = 3;     // 0 parent, 1 first metabolite, 2 second metabolite
inline constexpr int max_Studien = 6;
inline constexpr int Studienplaetze = 7;  // the seventh place of the tables is never used

inline constexpr int max_Applikationen = 20;  // a year
inline constexpr int Ereignisplaetze = 221;   // place 0 and eleven years of events
inline constexpr int Slots_Plateau = 221;     // slot 0 is the sum of all others
inline constexpr int Slots_Boden = 23;        // slot 0, one year's events and two spare places

// Year of a day, counted from 1.
constexpr int Jahr_von(int Tag) { return Tag / Tage_pro_Jahr + 1; }

}  // namespace varnok
