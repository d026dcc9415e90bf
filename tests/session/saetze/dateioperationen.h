#pragma once

// The calls by which this program changes files, seen from the tests: they can be counted, and end the process before one
// of them as a kill would.

#include <functional>

namespace varnok {

inline constexpr int Abbruchstatus = 99;

// Runs `Tat` in a process of its own that ends with `Abbruchstatus` before its operation `Nummer` on files, counted from 1, and
// with 0 when it needs fewer. Any other status tells of a failed test within.
int fuehre_aus_bis_Operation(int Nummer, const std::function<void()>& Tat);

}  // namespace varnok
