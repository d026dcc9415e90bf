#pragma once

// Reports on paper and as PDF.

#include <QPagedPaintDevice>
#include <QTextDocument>
#include <string>

namespace varnok {

// Prints the document page by page on the device's page, with "page n of N" at the foot. The headline of the picture
// begins a page, so that both stay together. False if the device cannot begin a page.
bool drucke_Dokument(const QTextDocument& Dokument, QPagedPaintDevice& Geraet);

// The bytes of a PDF file, A4 with margins of 2 cm.
std::string als_PDF(const QTextDocument& Dokument, const std::string& Titel);

}  // namespace varnok
