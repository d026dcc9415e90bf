#pragma once

// Reports on paper and as PDF.

#include <QPagedPaintDevice>
#include <QTextDocument>
#include <string>

namespace varnok {

// Prints the document page by page on the device's page, with its title and "page n of N" at the foot. Paper that is narrower
// than the text of a report shows it smaller. Of a device with page ranges only those. False if the device cannot begin a page.
bool drucke_Dokument(const QTextDocument& Dokument, QPagedPaintDevice& Geraet);

// How many pages that are.
int Seitenzahl(const QTextDocument& Dokument, QPagedPaintDevice& Geraet);

// The bytes of a PDF file, A4 with the margins of `seitenmass.h`.
std::string als_PDF(const QTextDocument& Dokument, const std::string& Titel);

}  // namespace varnok
