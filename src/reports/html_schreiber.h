#pragma once

#include <QString>
#include <QTextDocument>

namespace varnok {

// The document as HTML that holds its pictures itself.
QString als_HTML(const QTextDocument& Dokument);

}  // namespace varnok
