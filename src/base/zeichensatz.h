#pragma once

// Windows-1252, the one-byte code page of the records. Inside the program all text is UTF-8.

#include <optional>
#include <string>
#include <string_view>

namespace varnok {

// Every byte has a character: the five bytes that the code page leaves open become the control
// characters of the same number, so that any bytes survive a round trip.
std::string aus_Windows_1252(std::string_view Bytes);

// Nothing if the text holds a character without a place in the code page, or is no valid UTF-8.
std::optional<std::string> nach_Windows_1252(std::string_view Utf8);

// The first character of `Utf8` that has no place in the code page, empty if all have one.
std::string Zeichen_ohne_Platz(std::string_view Utf8);

// Number of characters (not bytes) of a UTF-8 text.
std::size_t Zeichenzahl(std::string_view Utf8);

}  // namespace varnok
