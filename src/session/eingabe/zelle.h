#pragma once

namespace varnok {

// A cell of the table of applications, row and column counted from 0.
struct Zelle {
    int Zeile = 0;
    int Spalte = 0;

    friend bool operator==(const Zelle&, const Zelle&) = default;
};

}  // namespace varnok
