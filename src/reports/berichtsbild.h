#pragma once

// The picture of a report. It does not depend on any window: the surface has always the same size.

#include <QImage>
#include <QTextDocument>
#include <optional>

#include "diagrams/beschriftung.h"
#include "diagrams/diagramm.h"

namespace varnok {

inline constexpr int Bildbreite = 640;  // units of the surface
inline constexpr int Bildhoehe = 500;
inline constexpr int Bildpunkte_pro_Einheit = 3;

// Size in the document: 6 inches wide, between the indents of an A4 page.
inline constexpr int Bildbreite_Twips = 8640;
inline constexpr int Bildhoehe_Twips = 6750;

inline constexpr const char* Bildname = "varnok:diagram";

// A drawing with its labels and legend in it. The legend stands at home unless its frame is given.
Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenrechteck>& Legendenrahmen = std::nullopt);

// Paints a drawing on white, 1920 x 1500 pixels.
QImage erstelle_Berichtsbild(const Zeichenliste& z);

// Keeps the drawing of its picture with the document.
void merke_Zeichnung(QTextDocument& Dokument, const Zeichenliste& z);

// Makes a document with a drawing show it instead of the pixels: sharp at every scale of a screen, and as lines and
// text in print. It lays the document out, so it belongs into the thread of the window.
void zeichne_statt_Bild(QTextDocument& Dokument);

// A copy of the document for a device of its own, with all that; the caller owns it.
QTextDocument* kopiere_Dokument(const QTextDocument& Dokument);

}  // namespace varnok
