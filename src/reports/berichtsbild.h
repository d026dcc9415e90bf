#pragma once

// The picture of a report. It does not depend on any window: the surface has always the same size.

#include <QImage>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>
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

// The drawing fitted to the surface, with its labels and legend in it. `Legende` is the place that the legend was dragged
// to, its upper left corner; without it it stands at home.
Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenort>& Legende = std::nullopt);

// Paints a drawing on white, 1920 x 1500 pixels.
QImage erstelle_Berichtsbild(const Zeichenliste& z);

// Keeps the drawing of its picture with the document.
void merke_Zeichnung(QTextDocument& Dokument, const Zeichenliste& z);

// Makes a document with a drawing show it instead of the pixels: sharp at every scale of a screen, and as lines and
// text in print. It lays the document out, so it belongs into the thread of the window.
void zeichne_statt_Bild(QTextDocument& Dokument);

// A copy of the document for a device of its own, with all that; the caller owns it.
QTextDocument* kopiere_Dokument(const QTextDocument& Dokument);

// The same of what is selected in a document.
std::unique_ptr<QTextDocument> Auswahl_als_Dokument(const QTextCursor& Auswahl);

}  // namespace varnok
