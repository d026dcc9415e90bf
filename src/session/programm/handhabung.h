#pragma once

#include <string>

namespace varnok {

// What a control of that object name can do beside what is seen of it: mouse and keys. Empty where there is no such thing.
std::string Handhabung(const std::string& Objektname);

}  // namespace varnok
