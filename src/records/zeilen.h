#pragma once

// Text files as lines of bytes; a line is decoded only after it has been cut.

#include <cstddef>
#include <optional>
#include <string_view>

namespace varnok {

// The lines of a file one after the other. A line ends at CR LF, LF or CR, and so does its number; a
// last line without an end counts. Keeps a view: the bytes must outlive it.
class Zeilenfolge {
public:
    explicit Zeilenfolge(std::string_view Bytes) : Bytes_(Bytes) {}

    // Takes the next line, without its end; nothing behind the last one.
    std::optional<std::string_view> naechste();
    // The same line without taking it.
    std::optional<std::string_view> voraus() const;
    // Number of the line taken last, counted from 1; 0 before the first.
    int Nummer() const { return Nummer_; }

private:
    std::string_view Bytes_;
    std::size_t Stelle_ = 0;
    int Nummer_ = 0;
};

// What editors put in front of a text in UTF-8.
inline constexpr std::string_view UTF8_Marke = "\xEF\xBB\xBF";

// A value reaches over 255 bytes at most.
inline constexpr std::size_t Hoechstlaenge_Wert = 255;

// The values of a line: what stands behind its first tab, at most 255 bytes. A line without a tab is
// its own value, cut to the same length.
std::string_view hinter_Tabulator(std::string_view Zeile);

}  // namespace varnok
