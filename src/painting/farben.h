#pragma once

#include <QColor>

#include "diagrams/palette.h"

namespace varnok {

// A colour of the palette that diagrams and reports share, by its place.
inline QColor Palettenfarbe(int Platz) {
    const Farbwert& f = Palette.at(static_cast<std::size_t>(Platz));
    return QColor(f.Rot, f.Gruen, f.Blau);
}

}  // namespace varnok
