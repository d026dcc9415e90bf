#pragma once

#include <QIcon>

class QPainter;

namespace varnok {

// A drawing of the program, "varnok", "bodensaeule" or "hinweis", as an icon in the usual sizes.
QIcon Bild_aus_SVG(const QString& Name);

// Paints a drawing into a rectangle, its proportions kept.
void male_SVG(const QString& Name, QPainter& p, const QRectF& Platz);

}  // namespace varnok
