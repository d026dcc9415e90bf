#pragma once

#include <QTextDocument>
#include <string>

namespace varnok {

// The document as rich text that text processors open, pure ASCII: fonts, sizes, colours, bold, italic, alignment,
// indents, tab stops, paragraphs that stay together and pictures (PNG). The page is that of `seitenmass.h`. Tables, lists and
// links are not written as such, their text is.
std::string als_RTF(const QTextDocument& Dokument);

// A text as it stands inside rich text: characters of Windows-1252 by their code, others by their number
// in UTF-16 with "?" for readers that do not know it. Control characters other than the tab are left out.
std::string RTF_Text(const QString& Text);

}  // namespace varnok
