#pragma once

#include <atomic>

namespace varnok::batch {

// Set by Ctrl-C and by a request to end: what is under way is brought to its end then, so that lines and transactions stay whole.
// The second time the process ends at once.
const std::atomic<bool>& horche_auf_Abbruch();

}  // namespace varnok::batch
