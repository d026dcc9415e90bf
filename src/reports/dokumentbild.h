#pragma once

// What a report's document carries beside its text: its picture, and where its figures come from.

#include <QByteArray>
#include <QImage>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "painting/bildflaeche.h"

namespace varnok {

// Size in the document: 6 inches wide, between the indents of an A4 page.
inline constexpr int Bildbreite_Twips = 8640;
inline constexpr int Bildhoehe_Twips = 6750;

inline constexpr const char* Bildname = "varnok:diagram";

// Bytes of a picture for a file that holds it.
QByteArray als_PNG(const QImage& Bild);

// Keeps the drawing of its picture with the document.
void merke_Zeichnung(QTextDocument& Dokument, const Zeichenliste& z);

// Where its figures come from, for the document information and the foot of a page; empty where that is not known.
void merke_Herkunft(QTextDocument& Dokument, const QString& Herkunft);
QString Herkunft_von(const QTextDocument& Dokument);

// Makes a document with a drawing show it instead of the pixels: sharp at every scale of a screen, and as lines and
// text in print. It lays the document out, so it belongs into the thread of the window.
void zeichne_statt_Bild(QTextDocument& Dokument);

// A copy of the document for a device of its own, with all that, laid out by the true widths of its letters and with all
// tab stops; the caller owns it.
QTextDocument* kopiere_Dokument(const QTextDocument& Dokument);

// The same of what is selected in a document.
std::unique_ptr<QTextDocument> Textstelle_als_Dokument(const QTextCursor& Stelle);

}  // namespace varnok
