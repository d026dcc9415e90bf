#pragma once

namespace varnok {

inline constexpr const char* Programmversion = "2.0 (21 September 2018)";

}  // namespace varnok
