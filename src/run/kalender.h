#pragma once

namespace varnok {

inline constexpr int Monate = 12;
inline constexpr int laengster_Monat = 31;  // days

// Days of a 365-day year before the first of a month: 0, 31, 59 ... 334 for 1 to 12, else 0.
// In spite of the name no Julian days are involved.
int Julian(int Monat);

// 31, 28 or 30 days of a month 1 to 12. There is no 29 February.
int Tage_im_Monat(int Monat);

// Longest interval between `Anzahl` applications a year: 365/`Anzahl`, ties to the even number.
int laengstes_Intervall(int Anzahl);

}  // namespace varnok
