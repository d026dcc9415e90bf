#pragma once

#include <string>

namespace varnok {

// Control characters replaced by "?": a name out of a file shall not steer a terminal. UTF-8.
std::string druckbar(const std::string& Text);

}  // namespace varnok
