#pragma once

#include <QList>
#include <QTextBlockFormat>
#include <QTextDocument>
#include <QTextOption>

namespace varnok {

// The tab stops of a paragraph up to the right edge of the text: its own, behind the last of them those that every text
// processor adds.
QList<QTextOption::Tab> alle_Tabulatoren(const QTextBlockFormat& f);

// Gives all of them to each paragraph, so that the document is laid out as its rich text will be.
void ergaenze_Tabulatoren(QTextDocument& Dokument);

}  // namespace varnok
