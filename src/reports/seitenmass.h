#pragma once

// The page that a report is made for, in twips: A4, with margins so narrow that the widest row finds room between them.

namespace varnok {

inline constexpr int Papierbreite = 11906;
inline constexpr int Papierhoehe = 16838;
inline constexpr double Seitenrand_mm = 12;
inline constexpr int Seitenrand = 680;
inline constexpr int Textbreite = Papierbreite - 2 * Seitenrand;

// Behind the tab stops of a paragraph text processors put further ones, so far from each other, counted from the margin.
inline constexpr int Tabulatorabstand = 720;

}  // namespace varnok
